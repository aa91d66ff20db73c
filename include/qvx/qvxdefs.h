/* Element types, status codes and modes of the qvx libraries. Plain C; included by every other header. */
#ifndef QVX_QVXDEFS_H
#define QVX_QVXDEFS_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Real elements. All are little-endian and need no alignment beyond what the C type itself has; vectors may start anywhere. */
typedef uint8_t Qvx8u;
typedef int8_t Qvx8s;
typedef uint16_t Qvx16u;
typedef int16_t Qvx16s;
typedef uint32_t Qvx32u;
typedef int32_t Qvx32s;
typedef uint64_t Qvx64u;
typedef int64_t Qvx64s;
typedef float Qvx32f;
typedef double Qvx64f;
typedef uint16_t Qvx16f; /* IEEE 754 binary16 bit pattern; storage only */

/* Complex elements: real part first, imaginary part directly after it. A complex element counts as one. */
typedef struct { Qvx8s re, im; } Qvx8sc;
typedef struct { Qvx16s re, im; } Qvx16sc;
typedef struct { Qvx32s re, im; } Qvx32sc;
typedef struct { Qvx64s re, im; } Qvx64sc;
typedef struct { Qvx32f re, im; } Qvx32fc;
typedef struct { Qvx64f re, im; } Qvx64fc;

/* Result of nearly every function. Negative: refused, nothing was written. Positive: everything was written, but some
 * element had no proper result. Saturation of an integer result is silent. */
typedef enum {
  qvxStatOk = 0,

  qvxWarnSqrtNegArg = 3, /* a source element was negative */
  qvxWarnInvZero = 4,    /* a source element was zero */
  qvxWarnEvenMask = 5,   /* an even median mask was reduced by one */
  qvxWarnDivByZero = 6,  /* a divisor element was zero */
  qvxWarnLnZeroArg = 7,  /* a source element was zero */
  qvxWarnLnNegArg = 8,   /* a source element was negative */
  qvxWarnNotFinite = 9,  /* a source element was infinite or a NaN */
  qvxWarnBadBitLen = 27, /* a bit length was outside 0 to 32 */

  qvxStatBadArg = -5,             /* an enumerated argument or an index is outside its set */
  qvxStatBadSize = -6,            /* a length is below 1, or does not fit */
  qvxStatBadRange = -7,           /* unknown crossing type */
  qvxStatNullPtr = -8,            /* a required pointer is null */
  qvxStatNoMem = -9,              /* an allocation failed */
  qvxStatDivByZero = -10,         /* a constant divisor or a leading tap is zero */
  qvxStatBadParam = -11,          /* a distribution parameter is not above 0 */
  qvxStatBadOrderIndex = -13,     /* the stored delay-line index is negative */
  qvxStatBadFFTOrder = -15,       /* transform order out of range */
  qvxStatBadFFTFlag = -16,        /* transform flag out of its set */
  qvxStatContextMismatch = -17,   /* not a record of this kind */
  qvxStatBadLevels = -18,         /* lower level above upper level */
  qvxStatNegThreshold = -19,      /* negative level where magnitudes are compared */
  qvxStatBadDlyIndex = -24,       /* delay-line index outside the taps */
  qvxStatBadIIROrder = -25,       /* order or number of sections below 1 */
  qvxStatBadTapsLen = -26,        /* number of taps below 1 */
  qvxStatBadRelFreq = -27,        /* relative frequency outside [0, 1) */
  qvxStatBadMRPhase = -28,        /* multi-rate phase outside 0 to factor - 1 */
  qvxStatBadMRFactor = -29,       /* multi-rate factor below 1 */
  qvxStatBadSamplePhase = -30,    /* sampling phase outside 0 to factor - 1 */
  qvxStatBadSampleFactor = -31,   /* sampling factor below 1 */
  qvxStatNegShift = -32,          /* negative shift count */
  qvxStatBadMaskSize = -33,       /* window size below 1 */
  qvxStatBadWTOffset = -35,       /* wavelet offset below -1 */
  qvxStatBadJaehneMagn = -38,     /* negative magnitude */
  qvxStatBadKaiserAlpha = -39,    /* alpha too large */
  qvxStatBadTriangleAsym = -40,   /* triangle: asymmetry out of range */
  qvxStatBadTrianglePhase = -41,  /* triangle: phase out of range */
  qvxStatBadTriangleFreq = -42,   /* triangle: frequency out of range */
  qvxStatBadTriangleMagn = -43,   /* triangle: magnitude not above 0 */
  qvxStatBadTonePhase = -44,      /* tone: phase out of range */
  qvxStatBadToneFreq = -45,       /* tone: frequency out of range */
  qvxStatBadToneMagn = -46,       /* tone: magnitude not above 0 */
  qvxStatBadChannels = -53,       /* number of channels below 1 */
  qvxStatBadMatrixStep = -182,    /* kept for the numbering; no function returns it */
  qvxStatBadSparsePos = -194,     /* tap positions negative or not increasing */
  qvxStatSingularMatrix = -195,   /* kept for the numbering; no function returns it */
  qvxStatBadGenOrder = -206,      /* filter order outside 1 to 12 */
  qvxStatBadCutoff = -208,        /* cut-off frequency outside its open range */
  qvxStatBadGenParam = -209,      /* ripple or filter type out of range */
  qvxStatBadRoundMode = -213      /* round mode outside the function's set */
} QvxStatus;

/* Rounding of functions that take it as an argument. A plain int, since some of them accept any value. */
typedef int QvxRoundMode;
enum {
  qvxRoundTowardZero = 0,
  qvxRoundNearestEven = 1, /* ties to even */
  qvxRoundHalfAway = 2     /* ties away from zero */
};

/* Identity of the loaded library; see qvxsGetLibVersion. */
typedef struct {
  Qvx32s verMajor;
  Qvx32s verMinor;
  Qvx32s buildMajor;
  Qvx32s buildMinor;
  char cpuTag[4];        /* "u8", "w3" or "w4" */
  const char* libFile;   /* file name of this variant */
  const char* verText;   /* version as text */
  const char* buildDate; /* build date as text */
} QvxLibraryVersion;

#ifdef __cplusplus
}
#endif

/* Every public header is a list of QVXS_API(result, name, (arguments)) lines: plain prototypes, unless QVXS_API is defined
 * before the inclusion. The library and its tests use that to make entry points and tables out of the same lines. */
#ifndef QVXS_API
#define QVXS_API(result, name, arguments) result name arguments
#endif
/* Around the line of the one function that has no slot in the entry table. */
#ifndef QVXS_SLOTLESS
#define QVXS_SLOTLESS(line) line
#endif

#endif
