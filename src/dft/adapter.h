// A transform of any length as other families call it, in memory that they carve out for it. Plans are only read by transforms,
// and point into themselves: they stay where they were made.
#pragma once

#include "dft/plan.h"

namespace qvx::dft {

// What a transform asks for. Blocks may start at any address.
struct TransformBytes {
  int64_t plan = 0;
  int64_t work = 0;  // of each transform, and of the plan's making
};

// Plan: ComplexPlan<T> for interleaved points, RealPlan<T> for real numbers; T: float or double.
template <class Plan> Bytes choosePlan(Plan& plan, int len, int flag);
template <class T> Bytes choosePlan(ComplexPlan<T>& plan, int len, int flag) {
  return choose(plan, static_cast<uint32_t>(len), false, flag);
}
template <class T> Bytes choosePlan(RealPlan<T>& plan, int len, int flag) {
  return choose(plan, static_cast<uint32_t>(len), flag);
}

// Of any len from 1 up to 2^26.
template <class Plan> TransformBytes transformBytes(int len) {
  Plan plan = {};
  const Bytes bytes = choosePlan(plan, len, QVX_FFT_SCALE_NONE);
  return {static_cast<int64_t>(sizeof(Plan)) + Carver::kLine + bytes.tables, bytes.work};
}

// The plan in a block of transformBytes().plan bytes; work: of transformBytes().work bytes, not needed any more afterwards. flag:
// one of QVX_FFT_SCALE_, the factors of both directions.
template <class Plan> const Plan* makeTransform(int len, int flag, void* block, void* work) {
  Carver carver(block, Carver::kLine);
  auto* plan = carver.take<Plan>(1);
  *plan = {};
  choosePlan(*plan, len, flag);
  writeTables(*plan, flag, carver.rest(), static_cast<uint8_t*>(work));
  return plan;
}

// run(plan, isInverse, src, dst, work) of complex points, forward(plan, layout, src, dst, work) and inverse(...) of real numbers
// are in plan.h: any alignment, src may be dst; a spectrum in the layout kCcs takes 2 * (len / 2 + 1) numbers, else len.

}  // namespace qvx::dft
