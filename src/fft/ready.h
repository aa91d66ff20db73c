// Ready records of transforms: for calls that transform once, where computing sines and cosines would take longer than the
// transform.
#pragma once

#include "frame/api.h"

namespace qvx::fft {

inline constexpr int kLowestReady = 6;
inline constexpr int kHighestReady = 13;  // of real numbers; of complex ones one less

// The record of an order, dividing on the way back; null where there is none.
template <class Record> const Record* readySpec(int order);

extern template const QvxsFFTSpec_R_32f* readySpec<QvxsFFTSpec_R_32f>(int);
extern template const QvxsFFTSpec_R_64f* readySpec<QvxsFFTSpec_R_64f>(int);
extern template const QvxsFFTSpec_C_32fc* readySpec<QvxsFFTSpec_C_32fc>(int);
extern template const QvxsFFTSpec_C_64fc* readySpec<QvxsFFTSpec_C_64fc>(int);

}  // namespace qvx::fft
