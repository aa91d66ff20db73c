/* Path metrics of a trellis decoder: the four steps of a Viterbi decoder for a four-dimensional code over pairs of complex
 * symbols, on a lattice of points 256 apart, at 256 * m + 128 in both directions. The trellis has 16, 32 or 64 states. */
#ifndef QVX_QVXS_DECODE_H
#define QVX_QVXS_DECODE_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

/** The squared distances from one received sample to the nearest point of each two-dimensional subset.
 *  pSrc: one sample, its parts counted modulo 2^16.
 *  *pRefPoint: the lattice point at or below it, the real part in the low 16 bits, the imaginary part in the high ones.
 *  pLabel: 16 numbers; the one at row * 4 + column tells the subset of the lattice points of that row and column modulo 4. Their lowest
 *  2 bits count for 16 states, their lowest 3 otherwise.
 *  pVariantPoint: an entry for each subset, 4 for 16 states, 8 otherwise: in the low 16 bits the error (dRe^2 >> 4) + (dIm^2 >> 4) for
 *  the distances dRe, dIm in the two directions, in the high ones the number of the point:
 *    0 to 3   the corners of the cell that the sample lies in: own, right, far, up
 *    4 to 11  where states is not 16, for each of the four other subsets the nearer of two points in the cells around, numbered 4 and 8,
 *             5 and 9, 6 and 10, 7 and 11; of two as near the latter
 *  Entries are written in this order, so that of two with the same label the latter stays.
 *  states: 16, 32 or 64; any other counts as 64.
 *  Returns qvxStatOk; qvxStatNullPtr. */
QVXS_API(QvxStatus, qvxsGetVarPointDV_16sc, (const Qvx16sc* pSrc, Qvx32u* pRefPoint, Qvx32u* pVariantPoint, const Qvx8u* pLabel, int states));

/** The errors of the four-dimensional subsets from those of two symbols.
 *  pVariantPoint: 16 entries as of qvxsGetVarPointDV_16sc, from 0 on those of the first symbol, from 8 on those of the second.
 *  pCurrentSubsetPoint: for each of states / 2 subsets a pair, the point (number of the first symbol's, and 256 times that of the
 *  second's), then its error: the least sum of the errors of two entries, modulo 2^16, over the 2 (for 32 states 4) pairs of
 *  two-dimensional subsets that make it up. The first of equal sums is kept.
 *  bitInversion: is exclusive-ored with the number of a subset; its lowest 3, 4 or 5 bits count for 16, 32 or 64 states.
 *  states: 16, 32 or 64; any other counts as 64.
 *  Returns qvxStatOk; qvxStatNullPtr. */
QVXS_API(QvxStatus, qvxsBuildSymblTableDV4D_16sc, (const Qvx32u* pVariantPoint, Qvx16u* pCurrentSubsetPoint, int states, int bitInversion));

/** Add, compare, select: for the states i from 0 on and their branches j from 0 on, with n = pNextState[i * B + j] and the pair
 *  k = 2 * j + (i & 1) of pCurrentSubsetPoint, if
 *      pPathError[i] + error[k] < pBranchError[n]
 *  then pBranchError[n] takes that sum and pPathTable[offset + n] = point[k] | i << 16. Of equal sums the first is kept.
 *  B: 4 branches for 16 states, 8 for 32, 16 for any other number.
 *  pPathError: states elements. pNextState: B * states. pBranchError, and pPathTable from offset on: as many as the numbers in
 *  pNextState demand, states of them in a trellis. pCurrentSubsetPoint: 2 * B pairs, errors as signed 16-bit numbers. Sums are
 *  compared in 32 bits and stored in 16: that a negative one wins, and is a large one from then on, only happens with negative
 *  errors. No vector may overlap another.
 *  Returns qvxStatOk, also for states < 1, where nothing is done; qvxStatNullPtr. */
QVXS_API(QvxStatus, qvxsCalcStatesDV_16sc, (const Qvx16u* pPathError, const Qvx8u* pNextState, Qvx16u* pBranchError, const Qvx16u* pCurrentSubsetPoint, Qvx32u* pPathTable, int states, int offset));

/** Ends a step: *pMinPathError = the least of pBranchError, *pMinState = the first state that has it, pPathError[i] =
 *  pBranchError[i] less the least, and pBranchError[i] = 0xFFFF, ready for the next step. No vector may overlap another.
 *  pBranchError, pPathError: 16, 32 or 64 elements as states says; any other states counts as 64.
 *  Returns qvxStatOk; qvxStatNullPtr. */
QVXS_API(QvxStatus, qvxsUpdatePathMetricsDV_16u, (Qvx16u* pBranchError, Qvx16u* pMinPathError, Qvx8u* pMinState, Qvx16u* pPathError, int states));

#ifdef __cplusplus
}
#endif

#endif
