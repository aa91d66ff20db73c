/* Arithmetic on the packed spectra of N real values, in the layouts Perm, Pack and CCS that qvxs_fft.h draws for even N. An odd N
 * has no X[N/2]:
 *
 *                 0        1        2        3       ...  N-2             N-1             N
 *    Perm, Pack   X[0]     Re X[1]  Im X[1]  Re X[2]      Re X[(N-1)/2]   Im X[(N-1)/2]
 *    CCS          X[0]     0        Re X[1]  Im X[1]      Im X[(N-3)/2]   Re X[(N-1)/2]   Im X[(N-1)/2]
 *
 * len is N in every function. */
#ifndef QVX_QVXS_SPECTRUM_H
#define QVX_QVXS_SPECTRUM_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

/** The product of two spectra in the layout Pack: pairs as complex numbers, X[0] and X[N/2] as real ones. The _I forms: srcDst =
 *  src * srcDst.
 *  Floats: each sum of products with one rounding a product and one for the sum, as qvxsMul has it.
 *  16s: pairs are exact, scaled by 2^-scaleFactor, rounded to nearest even and saturated, as qvxsMul_16sc_Sfs has it. The real
 *  ones are shifted: right without rounding, so towards minus infinity, by a scaleFactor of 1 and more; saturated to 16 bits and
 *  then shifted left, and saturated again, by one of -1 and less.
 *  pSrc1, pSrc2, pDst: len elements each, any alignment; pDst may be a source, but must not overlap it otherwise.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsMulPack_32f, (const Qvx32f* pSrc1, const Qvx32f* pSrc2, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsMulPack_32f_I, (const Qvx32f* pSrc, Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsMulPack_64f, (const Qvx64f* pSrc1, const Qvx64f* pSrc2, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsMulPack_64f_I, (const Qvx64f* pSrc, Qvx64f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsMulPack_16s_Sfs, (const Qvx16s* pSrc1, const Qvx16s* pSrc2, Qvx16s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMulPack_16s_ISfs, (const Qvx16s* pSrc, Qvx16s* pSrcDst, int len, int scaleFactor));

/** The same for spectra in the layout Perm. */
QVXS_API(QvxStatus, qvxsMulPerm_32f, (const Qvx32f* pSrc1, const Qvx32f* pSrc2, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsMulPerm_32f_I, (const Qvx32f* pSrc, Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsMulPerm_64f, (const Qvx64f* pSrc1, const Qvx64f* pSrc2, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsMulPerm_64f_I, (const Qvx64f* pSrc, Qvx64f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsMulPerm_16s_Sfs, (const Qvx16s* pSrc1, const Qvx16s* pSrc2, Qvx16s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMulPerm_16s_ISfs, (const Qvx16s* pSrc, Qvx16s* pSrcDst, int len, int scaleFactor));

/** srcDst = conj(src) * srcDst in the layout Pack: the spectrum of a circular correlation. As qvxsMulPack. */
QVXS_API(QvxStatus, qvxsMulPackConj_32f_I, (const Qvx32f* pSrc, Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsMulPackConj_64f_I, (const Qvx64f* pSrc, Qvx64f* pSrcDst, int len));

/** The whole spectrum, len complex values, of the half that is kept in the layout Pack: dst[N - k] = conj(dst[k]). The imaginary
 *  parts of dst[0] and dst[N/2] are 0; those of -32768 become 32767 in conjugates.
 *  pSrc: len values; pDst: len complex ones, any alignment, not overlapping. The _I forms find the half at the beginning of
 *  pSrcDst.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsConjPack_32fc, (const Qvx32f* pSrc, Qvx32fc* pDst, int len));
QVXS_API(QvxStatus, qvxsConjPack_32fc_I, (Qvx32fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsConjPack_64fc, (const Qvx64f* pSrc, Qvx64fc* pDst, int len));
QVXS_API(QvxStatus, qvxsConjPack_64fc_I, (Qvx64fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsConjPack_16sc, (const Qvx16s* pSrc, Qvx16sc* pDst, int len));
QVXS_API(QvxStatus, qvxsConjPack_16sc_I, (Qvx16sc* pSrcDst, int len));

/** The same from the layout Perm. */
QVXS_API(QvxStatus, qvxsConjPerm_32fc, (const Qvx32f* pSrc, Qvx32fc* pDst, int len));
QVXS_API(QvxStatus, qvxsConjPerm_32fc_I, (Qvx32fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsConjPerm_64fc, (const Qvx64f* pSrc, Qvx64fc* pDst, int len));
QVXS_API(QvxStatus, qvxsConjPerm_64fc_I, (Qvx64fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsConjPerm_16sc, (const Qvx16s* pSrc, Qvx16sc* pDst, int len));
QVXS_API(QvxStatus, qvxsConjPerm_16sc_I, (Qvx16sc* pSrcDst, int len));

/** The same from the layout CCS: pSrc has 2 * (len/2 + 1) values. dst[0] and dst[N/2] are copied as they are, imaginary parts
 *  and all. */
QVXS_API(QvxStatus, qvxsConjCcs_32fc, (const Qvx32f* pSrc, Qvx32fc* pDst, int len));
QVXS_API(QvxStatus, qvxsConjCcs_32fc_I, (Qvx32fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsConjCcs_64fc, (const Qvx64f* pSrc, Qvx64fc* pDst, int len));
QVXS_API(QvxStatus, qvxsConjCcs_64fc_I, (Qvx64fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsConjCcs_16sc, (const Qvx16s* pSrc, Qvx16sc* pDst, int len));
QVXS_API(QvxStatus, qvxsConjCcs_16sc_I, (Qvx16sc* pSrcDst, int len));

#ifdef __cplusplus
}
#endif

#endif
