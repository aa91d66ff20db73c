// The transforms that cosine transforms use, packed as tightly as their records require.
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
template <class T> dft::Bytes choosePlan(dft::ComplexPlan<T>& plan, size_t n) {
  return dft::choose(plan, static_cast<uint32_t>(n), false, QVX_FFT_SCALE_NONE);
}
template <class T> dft::Bytes choosePlan(dft::RealPlan<T>& plan, size_t n) {
  return dft::chooseLong(plan, static_cast<uint32_t>(n), QVX_FFT_SCALE_NONE);
}
template <class T> bool isConvolution(const dft::ComplexPlan<T>& plan) { return plan.way == dft::Way::kConvolution; }
template <class T> bool isConvolution(const dft::RealPlan<T>& plan) {
  return plan.way == dft::Way::kConvolution || isConvolution(plan.complex);
}
template <class T> bool isByChirp(const dft::RealPlan<T>& plan) {
  return plan.way != dft::Way::kConvolution && isByChirp(plan.complex);
}

// Plan: ComplexPlan<T>, or RealPlan<T> of an odd number of reals.
template <class Plan> PlanNeeds needsOfPlan(size_t n) {
  Plan plan = {};
  const dft::Bytes bytes = choosePlan(plan, n);
  constexpr int64_t kSlack = alignof(Plan) - 1;
  return {isByChirp(plan), static_cast<int64_t>(sizeof(plan)) + kSlack + bytes.tables, bytes.work,
          isConvolution(plan) ? bytes.work : 0};
}
template <class Plan> const Plan* makePlan(size_t n, Carver& tables, Qvx8u* work) {
  auto* const plan = tables.take<Plan>(1);
  *plan = {};
  choosePlan(*plan, n);
  dft::writeTables(*plan, QVX_FFT_SCALE_NONE, tables.rest(), work);
  return plan;
}

}  // namespace qvx::dct
