/* Thresholds: elements clipped to a level or replaced beyond it. */
#ifndef QVX_QVXS_THRESHOLD_H
#define QVX_QVXS_THRESHOLD_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

/** relOp 0: dst[n] = level where src[n] < level, else src[n]. relOp 4: dst[n] = level where src[n] > level, else src[n].
 *  Complex forms compare |src[n]| with a real level and keep the phase: an element clipped becomes src[n] * level / |src[n]|.
 *  A zero becomes level with the phase that atan2 gives its signs, an infinite element likewise. A level of 0 copies (relOp 0)
 *  or writes zeros (relOp 4).
 *  16sc: compared exactly, and rounded once, to nearest even, whatever the caller's rounding mode.
 *  32fc: compared by squares and clipped in Qvx64f, which no magnitude overflows. 64fc: the same after a scaling of every
 *  element by a power of two of its own, so that nothing overflows there either; squares that differ by less than 2 roundings
 *  may compare as equal, and a part below 1e-307 of the other may lose digits. level is finite.
 *  Here and below a NaN is neither below nor above: it stays, bit by bit, and a level that is a NaN leaves everything as it is. A
 *  complex element with a NaN as a part counts as one. -0 is not below 0.
 *  pSrc, pDst: len elements each, any alignment; pDst may be pSrc, which the _I forms have as pSrcDst.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1); qvxStatBadArg (relOp neither 0 nor 4); qvxStatNegThreshold
 *  (complex, level < 0). */
QVXS_API(QvxStatus, qvxsThreshold_16s, (const Qvx16s* pSrc, Qvx16s* pDst, int len, Qvx16s level, int relOp));
QVXS_API(QvxStatus, qvxsThreshold_16s_I, (Qvx16s* pSrcDst, int len, Qvx16s level, int relOp));
QVXS_API(QvxStatus, qvxsThreshold_16sc, (const Qvx16sc* pSrc, Qvx16sc* pDst, int len, Qvx16s level, int relOp));
QVXS_API(QvxStatus, qvxsThreshold_16sc_I, (Qvx16sc* pSrcDst, int len, Qvx16s level, int relOp));
QVXS_API(QvxStatus, qvxsThreshold_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len, Qvx32f level, int relOp));
QVXS_API(QvxStatus, qvxsThreshold_32f_I, (Qvx32f* pSrcDst, int len, Qvx32f level, int relOp));
QVXS_API(QvxStatus, qvxsThreshold_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, int len, Qvx32f level, int relOp));
QVXS_API(QvxStatus, qvxsThreshold_32fc_I, (Qvx32fc* pSrcDst, int len, Qvx32f level, int relOp));
QVXS_API(QvxStatus, qvxsThreshold_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int len, Qvx64f level, int relOp));
QVXS_API(QvxStatus, qvxsThreshold_64f_I, (Qvx64f* pSrcDst, int len, Qvx64f level, int relOp));
QVXS_API(QvxStatus, qvxsThreshold_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, int len, Qvx64f level, int relOp));
QVXS_API(QvxStatus, qvxsThreshold_64fc_I, (Qvx64fc* pSrcDst, int len, Qvx64f level, int relOp));

/** The same with relOp 0: what lies below level becomes level. A real level may be negative. */
QVXS_API(QvxStatus, qvxsThreshold_LT_16s, (const Qvx16s* pSrc, Qvx16s* pDst, int len, Qvx16s level));
QVXS_API(QvxStatus, qvxsThreshold_LT_16s_I, (Qvx16s* pSrcDst, int len, Qvx16s level));
QVXS_API(QvxStatus, qvxsThreshold_LT_16sc, (const Qvx16sc* pSrc, Qvx16sc* pDst, int len, Qvx16s level));
QVXS_API(QvxStatus, qvxsThreshold_LT_16sc_I, (Qvx16sc* pSrcDst, int len, Qvx16s level));
QVXS_API(QvxStatus, qvxsThreshold_LT_32s, (const Qvx32s* pSrc, Qvx32s* pDst, int len, Qvx32s level));
QVXS_API(QvxStatus, qvxsThreshold_LT_32s_I, (Qvx32s* pSrcDst, int len, Qvx32s level));
QVXS_API(QvxStatus, qvxsThreshold_LT_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len, Qvx32f level));
QVXS_API(QvxStatus, qvxsThreshold_LT_32f_I, (Qvx32f* pSrcDst, int len, Qvx32f level));
QVXS_API(QvxStatus, qvxsThreshold_LT_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, int len, Qvx32f level));
QVXS_API(QvxStatus, qvxsThreshold_LT_32fc_I, (Qvx32fc* pSrcDst, int len, Qvx32f level));
QVXS_API(QvxStatus, qvxsThreshold_LT_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int len, Qvx64f level));
QVXS_API(QvxStatus, qvxsThreshold_LT_64f_I, (Qvx64f* pSrcDst, int len, Qvx64f level));
QVXS_API(QvxStatus, qvxsThreshold_LT_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, int len, Qvx64f level));
QVXS_API(QvxStatus, qvxsThreshold_LT_64fc_I, (Qvx64fc* pSrcDst, int len, Qvx64f level));

/** The same with relOp 4: what lies above level becomes level. */
QVXS_API(QvxStatus, qvxsThreshold_GT_16s, (const Qvx16s* pSrc, Qvx16s* pDst, int len, Qvx16s level));
QVXS_API(QvxStatus, qvxsThreshold_GT_16s_I, (Qvx16s* pSrcDst, int len, Qvx16s level));
QVXS_API(QvxStatus, qvxsThreshold_GT_16sc, (const Qvx16sc* pSrc, Qvx16sc* pDst, int len, Qvx16s level));
QVXS_API(QvxStatus, qvxsThreshold_GT_16sc_I, (Qvx16sc* pSrcDst, int len, Qvx16s level));
QVXS_API(QvxStatus, qvxsThreshold_GT_32s, (const Qvx32s* pSrc, Qvx32s* pDst, int len, Qvx32s level));
QVXS_API(QvxStatus, qvxsThreshold_GT_32s_I, (Qvx32s* pSrcDst, int len, Qvx32s level));
QVXS_API(QvxStatus, qvxsThreshold_GT_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len, Qvx32f level));
QVXS_API(QvxStatus, qvxsThreshold_GT_32f_I, (Qvx32f* pSrcDst, int len, Qvx32f level));
QVXS_API(QvxStatus, qvxsThreshold_GT_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, int len, Qvx32f level));
QVXS_API(QvxStatus, qvxsThreshold_GT_32fc_I, (Qvx32fc* pSrcDst, int len, Qvx32f level));
QVXS_API(QvxStatus, qvxsThreshold_GT_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int len, Qvx64f level));
QVXS_API(QvxStatus, qvxsThreshold_GT_64f_I, (Qvx64f* pSrcDst, int len, Qvx64f level));
QVXS_API(QvxStatus, qvxsThreshold_GT_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, int len, Qvx64f level));
QVXS_API(QvxStatus, qvxsThreshold_GT_64fc_I, (Qvx64fc* pSrcDst, int len, Qvx64f level));

/** dst[n] = value where src[n], or the magnitude of a complex src[n], is below level, else src[n].
 *  Returns as above. */
QVXS_API(QvxStatus, qvxsThreshold_LTVal_16s, (const Qvx16s* pSrc, Qvx16s* pDst, int len, Qvx16s level, Qvx16s value));
QVXS_API(QvxStatus, qvxsThreshold_LTVal_16s_I, (Qvx16s* pSrcDst, int len, Qvx16s level, Qvx16s value));
QVXS_API(QvxStatus, qvxsThreshold_LTVal_16sc, (const Qvx16sc* pSrc, Qvx16sc* pDst, int len, Qvx16s level, Qvx16sc value));
QVXS_API(QvxStatus, qvxsThreshold_LTVal_16sc_I, (Qvx16sc* pSrcDst, int len, Qvx16s level, Qvx16sc value));
QVXS_API(QvxStatus, qvxsThreshold_LTVal_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len, Qvx32f level, Qvx32f value));
QVXS_API(QvxStatus, qvxsThreshold_LTVal_32f_I, (Qvx32f* pSrcDst, int len, Qvx32f level, Qvx32f value));
QVXS_API(QvxStatus, qvxsThreshold_LTVal_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, int len, Qvx32f level, Qvx32fc value));
QVXS_API(QvxStatus, qvxsThreshold_LTVal_32fc_I, (Qvx32fc* pSrcDst, int len, Qvx32f level, Qvx32fc value));
QVXS_API(QvxStatus, qvxsThreshold_LTVal_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int len, Qvx64f level, Qvx64f value));
QVXS_API(QvxStatus, qvxsThreshold_LTVal_64f_I, (Qvx64f* pSrcDst, int len, Qvx64f level, Qvx64f value));
QVXS_API(QvxStatus, qvxsThreshold_LTVal_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, int len, Qvx64f level, Qvx64fc value));
QVXS_API(QvxStatus, qvxsThreshold_LTVal_64fc_I, (Qvx64fc* pSrcDst, int len, Qvx64f level, Qvx64fc value));

/** dst[n] = value where src[n], or the magnitude of a complex src[n], is above level, else src[n]. */
QVXS_API(QvxStatus, qvxsThreshold_GTVal_16s, (const Qvx16s* pSrc, Qvx16s* pDst, int len, Qvx16s level, Qvx16s value));
QVXS_API(QvxStatus, qvxsThreshold_GTVal_16s_I, (Qvx16s* pSrcDst, int len, Qvx16s level, Qvx16s value));
QVXS_API(QvxStatus, qvxsThreshold_GTVal_16sc, (const Qvx16sc* pSrc, Qvx16sc* pDst, int len, Qvx16s level, Qvx16sc value));
QVXS_API(QvxStatus, qvxsThreshold_GTVal_16sc_I, (Qvx16sc* pSrcDst, int len, Qvx16s level, Qvx16sc value));
QVXS_API(QvxStatus, qvxsThreshold_GTVal_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len, Qvx32f level, Qvx32f value));
QVXS_API(QvxStatus, qvxsThreshold_GTVal_32f_I, (Qvx32f* pSrcDst, int len, Qvx32f level, Qvx32f value));
QVXS_API(QvxStatus, qvxsThreshold_GTVal_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, int len, Qvx32f level, Qvx32fc value));
QVXS_API(QvxStatus, qvxsThreshold_GTVal_32fc_I, (Qvx32fc* pSrcDst, int len, Qvx32f level, Qvx32fc value));
QVXS_API(QvxStatus, qvxsThreshold_GTVal_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int len, Qvx64f level, Qvx64f value));
QVXS_API(QvxStatus, qvxsThreshold_GTVal_64f_I, (Qvx64f* pSrcDst, int len, Qvx64f level, Qvx64f value));
QVXS_API(QvxStatus, qvxsThreshold_GTVal_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, int len, Qvx64f level, Qvx64fc value));
QVXS_API(QvxStatus, qvxsThreshold_GTVal_64fc_I, (Qvx64fc* pSrcDst, int len, Qvx64f level, Qvx64fc value));

/** dst[n] = valueLT where src[n] < levelLT, valueGT where src[n] > levelGT, else src[n].
 *  Returns as above; qvxStatBadLevels (levelLT > levelGT). */
QVXS_API(QvxStatus, qvxsThreshold_LTValGTVal_16s, (const Qvx16s* pSrc, Qvx16s* pDst, int len, Qvx16s levelLT, Qvx16s valueLT, Qvx16s levelGT, Qvx16s valueGT));
QVXS_API(QvxStatus, qvxsThreshold_LTValGTVal_16s_I, (Qvx16s* pSrcDst, int len, Qvx16s levelLT, Qvx16s valueLT, Qvx16s levelGT, Qvx16s valueGT));
QVXS_API(QvxStatus, qvxsThreshold_LTValGTVal_32s, (const Qvx32s* pSrc, Qvx32s* pDst, int len, Qvx32s levelLT, Qvx32s valueLT, Qvx32s levelGT, Qvx32s valueGT));
QVXS_API(QvxStatus, qvxsThreshold_LTValGTVal_32s_I, (Qvx32s* pSrcDst, int len, Qvx32s levelLT, Qvx32s valueLT, Qvx32s levelGT, Qvx32s valueGT));
QVXS_API(QvxStatus, qvxsThreshold_LTValGTVal_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len, Qvx32f levelLT, Qvx32f valueLT, Qvx32f levelGT, Qvx32f valueGT));
QVXS_API(QvxStatus, qvxsThreshold_LTValGTVal_32f_I, (Qvx32f* pSrcDst, int len, Qvx32f levelLT, Qvx32f valueLT, Qvx32f levelGT, Qvx32f valueGT));
QVXS_API(QvxStatus, qvxsThreshold_LTValGTVal_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int len, Qvx64f levelLT, Qvx64f valueLT, Qvx64f levelGT, Qvx64f valueGT));
QVXS_API(QvxStatus, qvxsThreshold_LTValGTVal_64f_I, (Qvx64f* pSrcDst, int len, Qvx64f levelLT, Qvx64f valueLT, Qvx64f levelGT, Qvx64f valueGT));

/** dst[n] = level with the sign of src[n] where |src[n]| < level, else src[n]. -0 is negative, an integer 0 positive.
 *  Returns as above; qvxStatNegThreshold (level < 0). */
QVXS_API(QvxStatus, qvxsThreshold_LTAbs_16s, (const Qvx16s* pSrc, Qvx16s* pDst, int len, Qvx16s level));
QVXS_API(QvxStatus, qvxsThreshold_LTAbs_16s_I, (Qvx16s* pSrcDst, int len, Qvx16s level));
QVXS_API(QvxStatus, qvxsThreshold_LTAbs_32s, (const Qvx32s* pSrc, Qvx32s* pDst, int len, Qvx32s level));
QVXS_API(QvxStatus, qvxsThreshold_LTAbs_32s_I, (Qvx32s* pSrcDst, int len, Qvx32s level));
QVXS_API(QvxStatus, qvxsThreshold_LTAbs_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len, Qvx32f level));
QVXS_API(QvxStatus, qvxsThreshold_LTAbs_32f_I, (Qvx32f* pSrcDst, int len, Qvx32f level));
QVXS_API(QvxStatus, qvxsThreshold_LTAbs_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int len, Qvx64f level));
QVXS_API(QvxStatus, qvxsThreshold_LTAbs_64f_I, (Qvx64f* pSrcDst, int len, Qvx64f level));

/** dst[n] = level with the sign of src[n] where |src[n]| > level, else src[n]. */
QVXS_API(QvxStatus, qvxsThreshold_GTAbs_16s, (const Qvx16s* pSrc, Qvx16s* pDst, int len, Qvx16s level));
QVXS_API(QvxStatus, qvxsThreshold_GTAbs_16s_I, (Qvx16s* pSrcDst, int len, Qvx16s level));
QVXS_API(QvxStatus, qvxsThreshold_GTAbs_32s, (const Qvx32s* pSrc, Qvx32s* pDst, int len, Qvx32s level));
QVXS_API(QvxStatus, qvxsThreshold_GTAbs_32s_I, (Qvx32s* pSrcDst, int len, Qvx32s level));
QVXS_API(QvxStatus, qvxsThreshold_GTAbs_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len, Qvx32f level));
QVXS_API(QvxStatus, qvxsThreshold_GTAbs_32f_I, (Qvx32f* pSrcDst, int len, Qvx32f level));
QVXS_API(QvxStatus, qvxsThreshold_GTAbs_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int len, Qvx64f level));
QVXS_API(QvxStatus, qvxsThreshold_GTAbs_64f_I, (Qvx64f* pSrcDst, int len, Qvx64f level));

/** dst[n] = 1 / src[n], where the magnitude of src[n] is raised to level first, its sign or phase kept.
 *  Real forms round once. Complex forms compute as the complex threshold does: 32fc in Qvx64f, 64fc to a few roundings, but for
 *  parts below 1e-307 of the other; an infinite element gives zeros, a NaN as a part gives two. A zero at level 0, or at a NaN,
 *  becomes an infinity of its sign; the complex one has both parts +infinity.
 *  All rounds to nearest whatever the mode. No floating-point exception reaches the caller: neither flag nor trap.
 *  Long vectors (32f: 8192; 64f and 32fc: 2048; 64fc: 512 elements) may be divided between two threads.
 *  Returns as above; if there was a zero at level 0 (the vector is complete), qvxWarnInvZero below those lengths,
 *  qvxWarnDivByZero from there on; qvxStatNegThreshold (level < 0). */
QVXS_API(QvxStatus, qvxsThreshold_LTInv_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len, Qvx32f level));
QVXS_API(QvxStatus, qvxsThreshold_LTInv_32f_I, (Qvx32f* pSrcDst, int len, Qvx32f level));
QVXS_API(QvxStatus, qvxsThreshold_LTInv_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, int len, Qvx32f level));
QVXS_API(QvxStatus, qvxsThreshold_LTInv_32fc_I, (Qvx32fc* pSrcDst, int len, Qvx32f level));
QVXS_API(QvxStatus, qvxsThreshold_LTInv_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int len, Qvx64f level));
QVXS_API(QvxStatus, qvxsThreshold_LTInv_64f_I, (Qvx64f* pSrcDst, int len, Qvx64f level));
QVXS_API(QvxStatus, qvxsThreshold_LTInv_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, int len, Qvx64f level));
QVXS_API(QvxStatus, qvxsThreshold_LTInv_64fc_I, (Qvx64fc* pSrcDst, int len, Qvx64f level));

#ifdef __cplusplus
}
#endif

#endif
