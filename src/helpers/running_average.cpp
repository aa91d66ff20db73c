// Running averages of samples and of their squares.
#include <algorithm>

#include "frame/check.h"
#include "frame/scale.h"

using namespace qvx;

namespace {

// Each value waits for the one before: 10 cycles, of which the multiplication takes 3.
template <class Value> QvxStatus average(const Qvx16s* src, int len, Qvx32s* running, Qvx16s alpha, Value value) {
  const QvxStatus status = check(len, src, running);
  if (status != qvxStatOk) return status;
  int64_t y = *running;
  for (size_t i = 0; i < elements(len); ++i) y = scaled<Qvx32s>(alpha * y + int64_t{32768 - alpha} * value(src[i]), 15);
  *running = static_cast<Qvx32s>(y);
  return qvxStatOk;
}

}  // namespace

QvxStatus qvxsUpdateLinear_16s32s_I(const Qvx16s* src, int len, Qvx32s* y, int srcShiftRight, Qvx16s alpha, int) {
  const int shift = std::clamp(srcShiftRight, 0, 15);
  return average(src, len, y, alpha, [shift](int x) { return x >> shift; });
}

QvxStatus qvxsUpdatePower_16s32s_I(const Qvx16s* src, int len, Qvx32s* y, int srcShiftRight, Qvx16s alpha, int) {
  const int shift = std::clamp(srcShiftRight, 0, 31);
  return average(src, len, y, alpha, [shift](int x) { return x * x >> shift; });
}
