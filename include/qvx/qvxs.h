/* Everything libqvxs offers. The headers are in the order of the library's entry table. */
#ifndef QVX_QVXS_H
#define QVX_QVXS_H

#include <qvx/qvxs_support.h>
#include <qvx/qvxs_arith.h>
#include <qvx/qvxs_math.h>
#include <qvx/qvxs_init.h>
#include <qvx/qvxs_convert.h>
#include <qvx/qvxs_complex.h>
#include <qvx/qvxs_compand.h>
#include <qvx/qvxs_threshold.h>
#include <qvx/qvxs_stats.h>
#include <qvx/qvxs_norm.h>
#include <qvx/qvxs_fft.h>
#include <qvx/qvxs_spectrum.h>
#include <qvx/qvxs_fft_integer.h>
#include <qvx/qvxs_dft.h>
#include <qvx/qvxs_dct.h>
#include <qvx/qvxs_hilbert.h>
#include <qvx/qvxs_fir.h>
#include <qvx/qvxs_multirate.h>
#include <qvx/qvxs_lms.h>
#include <qvx/qvxs_fir_design.h>
#include <qvx/qvxs_correlation.h>
#include <qvx/qvxs_median.h>
#include <qvx/qvxs_sample.h>
#include <qvx/qvxs_iir.h>
#include <qvx/qvxs_generate.h>
#include <qvx/qvxs_window.h>
#include <qvx/qvxs_wavelet.h>
#include <qvx/qvxs_goertzel.h>
#include <qvx/qvxs_sort.h>
#include <qvx/qvxs_decode.h>
#include <qvx/qvxs_helpers.h>

#endif
