// The complex transforms that cosine transforms use, packed as tightly as their records require.
#pragma once

#include "dft/adapter.h"

namespace qvx::dct {

template <class T> using ComplexOf = std::conditional_t<sizeof(T) == 4, Qvx32fc, Qvx64fc>;

// The bytes that an algorithm needs: of the record after its head, of working memory for each call, and for making the record.
struct Needs {
  int64_t tables;
  int64_t work;
  int64_t making;
};
struct PlanNeeds {
  bool isByChirp;
  int64_t tables;
  int64_t work;
  int64_t making;
};
template <class T> PlanNeeds needsOfPlan(size_t n) {
  dft::ComplexPlan<T> plan = {};
  const dft::Bytes bytes = dft::choosePlan(plan, static_cast<int>(n), QVX_FFT_SCALE_NONE);
  constexpr int64_t kSlack = alignof(dft::ComplexPlan<T>) - 1;
  const bool isConvolution = plan.way == dft::Way::kConvolution;
  return {isConvolution && !plan.convolution.isPermuted, static_cast<int64_t>(sizeof(plan)) + kSlack + bytes.tables, bytes.work,
          isConvolution ? bytes.work : 0};
}
template <class T> const dft::ComplexPlan<T>* makePlan(size_t n, Carver& tables, Qvx8u* work) {
  auto* const plan = tables.take<dft::ComplexPlan<T>>(1);
  *plan = {};
  dft::choosePlan(*plan, static_cast<int>(n), QVX_FFT_SCALE_NONE);
  dft::writeTables(*plan, QVX_FFT_SCALE_NONE, tables.rest(), work);
  return plan;
}

}  // namespace qvx::dct
