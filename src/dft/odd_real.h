// Odd numbers of reals by columns: a pass over reals, then complex transforms of the rows that it leaves.
#pragma once

#include "dft/plan.h"

namespace qvx::dft {

// A row's transform works where the numbers of the destination are, which has room for it but where that is a convolution.
template <class T> int64_t bytesOfRow(const RealPlan<T>& plan, int64_t work) {
  const int64_t row = 2 * int64_t{plan.columns.m} * static_cast<int64_t>(sizeof(T)) + work;
  return row <= int64_t{plan.n} * static_cast<int64_t>(sizeof(T)) ? 0 : row;
}

template <class T> Bytes chooseOddReals(RealPlan<T>& plan) {
  const Bytes bytes = choose(plan.complex, plan.columns.m, false, QVX_FFT_SCALE_NONE);
  const int64_t more = bytesOfRow(plan, bytes.work);
  plan.rowsHaveRoom = more == 0;
  return {bytes.tables + static_cast<int64_t>(tableLength(plan.columns) * sizeof(T)),
          int64_t{plan.n} * static_cast<int64_t>(sizeof(T)) + Carver::kLine + more};
}

template <class T> void transformRows(const RealPlan<T>& plan, bool isInverse, T* rows, T* room) {
  const size_t m = plan.columns.m;
  auto* const work = reinterpret_cast<uint8_t*>(room + 2 * m);
  const size_t others = plan.columns.radix / 2U;
  for (size_t j = 0; j < others; ++j) run(plan.complex, false, rows + 2 * j * m, rows + 2 * j * m, work);
  T* const first = rows + 2 * others * m;
  for (size_t i = 0; i < m; ++i) {
    const size_t q = std::min(i, m - i);
    room[2 * i] = isInverse ? first[i == 0 ? 0 : 2 * q - 1] : first[i];
    room[2 * i + 1] = !isInverse || i == 0 ? T(0) : i == q ? -first[2 * q] : first[2 * q];
  }
  run(plan.complex, false, room, room, work);
  if (isInverse) {
    for (size_t i = 0; i < m; ++i) first[i] = room[2 * i];
  } else {
    first[0] = room[0];
    std::copy_n(room + 2, m - 1, first + 1);
  }
}

template <class T> void forwardOddReals(const RealPlan<T>& plan, SpectrumLayout layout, const T* src, T* dst, uint8_t* work) {
  const RealColumns<T>& columns = plan.columns;
  Carver carver(work, Carver::kLine);
  T* const rows = carver.take<T>(plan.n);
  withRealRadix(columns.radix,
                [=, &columns](auto R) { realsToRows<R>(src, rows, columns.m, columns.twiddles, plan.forwardFactor); });
  transformRows(plan, false, rows, plan.rowsHaveRoom ? dst : carver.take<T>(0));
  dst[0] = rows[(columns.radix - 1U) * columns.m];
  if (layout == SpectrumLayout::kCcs) dst[1] = 0;
  rowsToSpectrum(rows, dst + placeOfPair(layout, plan.n, 1) - 2, columns.radix, columns.m);
}

template <class T> void inverseOddReals(const RealPlan<T>& plan, SpectrumLayout layout, const T* src, T* dst, uint8_t* work) {
  const RealColumns<T>& columns = plan.columns;
  Carver carver(work, Carver::kLine);
  T* const rows = carver.take<T>(plan.n);
  rows[(columns.radix - 1U) * columns.m] = src[0];
  spectrumToRows(src + placeOfPair(layout, plan.n, 1) - 2, rows, columns.radix, columns.m);
  transformRows(plan, true, rows, plan.rowsHaveRoom ? dst : carver.take<T>(0));
  withRealRadix(columns.radix,
                [=, &columns](auto R) { rowsToReals<R>(rows, dst, columns.m, columns.twiddles, plan.inverseFactor); });
}

// By a chirp, which takes reals to the lower half of their spectrum. Back: of real parts and imaginary ones added, at n - k
// subtracted, the spectrum is the same of the sequence.
template <class T> void forwardByChirp(const RealPlan<T>& plan, SpectrumLayout layout, const T* src, T* dst, uint8_t* work) {
  const size_t n = plan.n;
  Carver carver(work, Carver::kLine);
  T* const pairs = carver.take<T>(static_cast<int64_t>(n + 1));
  spectrumByChirp(plan.complex, src, pairs, plan.forwardFactor, carver.rest());
  dst[0] = pairs[0];
  if (layout == SpectrumLayout::kCcs) dst[1] = 0;
  std::copy_n(pairs + 2, n - 1, dst + placeOfPair(layout, n, 1));
}
template <class T> void inverseByChirp(const RealPlan<T>& plan, SpectrumLayout layout, const T* src, T* dst, uint8_t* work) {
  const size_t n = plan.n;
  Carver carver(work, Carver::kLine);
  T* const pairs = carver.take<T>(static_cast<int64_t>(n + 1));
  const T* const from = src + placeOfPair(layout, n, 1) - 2;
  for (size_t k = 1; k <= n / 2; ++k) {
    pairs[k] = from[2 * k] + from[2 * k + 1];
    pairs[n - k] = from[2 * k] - from[2 * k + 1];
  }
  pairs[0] = src[0];
  spectrumByChirp(plan.complex, pairs, pairs, plan.inverseFactor, carver.rest());
  dst[0] = pairs[0];
  for (size_t k = 1; k <= n / 2; ++k) {
    dst[k] = pairs[2 * k] + pairs[2 * k + 1];
    dst[n - k] = pairs[2 * k] - pairs[2 * k + 1];
  }
}

}  // namespace qvx::dft
