// Shifts of every element by one count.
#include "frame/map.h"

using namespace qvx;

namespace {

// A left shift gives signed elements the same bits as unsigned ones.
struct Left {
  int count;
  template <class V> V operator()(V v) const { return hn::ShiftLeftSame(v, count); }
};
struct Right {
  int count;
  template <class V> V operator()(V v) const { return hn::ShiftRightSame(v, count); }
};

// The count is tested last, but one beyond the width needs no test: it gives zeros, or the sign.
template <class Shift, class T> QvxStatus shift(const T* src, int count, T* dst, int len) {
  constexpr int kWidth = 8 * sizeof(T);
  constexpr bool kKeepsSign = std::is_signed_v<T> && std::is_same_v<Shift, Right>;
  const QvxStatus status = check(len, src, dst);
  if (status != qvxStatOk) return status;
  if (count < 0) return qvxStatNegShift;
  if (count < kWidth || kKeepsSign) {
    return loop(Shift{std::min(count, kWidth - 1)}, destination(dst), elements(len), source(src));
  }
  std::memset(dst, 0, elements(len) * sizeof(T));
  return qvxStatOk;
}

}  // namespace

// clang-format off
QvxStatus qvxsLShiftC_8u(const Qvx8u* a, int val, Qvx8u* d, int len) { return shift<Left>(a, val, d, len); }
QvxStatus qvxsLShiftC_8u_I(int val, Qvx8u* d, int len) { return shift<Left>(d, val, d, len); }
QvxStatus qvxsLShiftC_16u(const Qvx16u* a, int val, Qvx16u* d, int len) { return shift<Left>(a, val, d, len); }
QvxStatus qvxsLShiftC_16u_I(int val, Qvx16u* d, int len) { return shift<Left>(d, val, d, len); }
QvxStatus qvxsLShiftC_16s(const Qvx16s* a, int val, Qvx16s* d, int len) { return qvxsLShiftC_16u(reinterpret_cast<const Qvx16u*>(a), val, reinterpret_cast<Qvx16u*>(d), len); }
QvxStatus qvxsLShiftC_16s_I(int val, Qvx16s* d, int len) { return qvxsLShiftC_16u_I(val, reinterpret_cast<Qvx16u*>(d), len); }
QvxStatus qvxsLShiftC_32s(const Qvx32s* a, int val, Qvx32s* d, int len) { return shift<Left>(a, val, d, len); }
QvxStatus qvxsLShiftC_32s_I(int val, Qvx32s* d, int len) { return shift<Left>(d, val, d, len); }

QvxStatus qvxsRShiftC_8u(const Qvx8u* a, int val, Qvx8u* d, int len) { return shift<Right>(a, val, d, len); }
QvxStatus qvxsRShiftC_8u_I(int val, Qvx8u* d, int len) { return shift<Right>(d, val, d, len); }
QvxStatus qvxsRShiftC_16u(const Qvx16u* a, int val, Qvx16u* d, int len) { return shift<Right>(a, val, d, len); }
QvxStatus qvxsRShiftC_16u_I(int val, Qvx16u* d, int len) { return shift<Right>(d, val, d, len); }
QvxStatus qvxsRShiftC_16s(const Qvx16s* a, int val, Qvx16s* d, int len) { return shift<Right>(a, val, d, len); }
QvxStatus qvxsRShiftC_16s_I(int val, Qvx16s* d, int len) { return shift<Right>(d, val, d, len); }
QvxStatus qvxsRShiftC_32s(const Qvx32s* a, int val, Qvx32s* d, int len) { return shift<Right>(a, val, d, len); }
QvxStatus qvxsRShiftC_32s_I(int val, Qvx32s* d, int len) { return shift<Right>(d, val, d, len); }
// clang-format on
