// re^2 + im^2.
#include "convert/power.h"

using namespace qvx;

namespace {

// AVX2 puts only the result in order, by one shuffle, not both parts: 16 doubles take 12 cycles, not 16, where one port shuffles.
struct PowerOfParts {
  template <class V> V operator()(Complex<V> z) const { return inOrder(Power()(z.re, z.im)); }
};
template <class T, class D> QvxStatus power(const T* src, D* dst, int len) {
  if constexpr (QVXS_AVX2 && !kHasMasks) return map<PowerOfParts>(dst, len, AsIs{}, ByParts{src});
  else return map<Power>(dst, len, AsIs{}, deinterleaved(src));
}

// Runs `with` on two functions: one that scales a power in its unsigned lanes, and one that finishes the result once it is
// saturated to half as many bits.
template <class Lane, class With> QvxStatus scaledPower(int scaleFactor, const With& with) {
  constexpr int kWidth = 8 * sizeof(Lane);
  const auto asItIs = [](auto v) { return v; };
  const auto toSigned = [](auto v) { return as<std::make_signed_t<Lane>>(v); };
  if (scaleFactor >= kWidth) return with([=](auto v) { return toSigned(hn::Zero(TagOf<decltype(v)>())); }, asItIs);
  if (scaleFactor > 0) return with([=](auto v) { return toSigned(roundedShiftRoomy(v, scaleFactor)); }, asItIs);
  const int places = -std::max(scaleFactor, 1 - kWidth / 2);
  return with([](auto v) { return belowSign(v); }, [places](auto v) { return saturatedShiftLeft(v, places); });
}

QvxStatus power16Complex(const Qvx16sc* src, Qvx16s* dst, int len, int scaleFactor) {
  const QvxStatus status = check(len, src, dst);
  if (status != qvxStatOk) return status;
  return scaledPower<uint32_t>(scaleFactor, [&](auto scale, auto last) {
    const auto kernel = [=](auto pair) {
      return last(narrowInOrder<int16_t>(each(pair, [=](auto z) { return scale(powerOf16(z)); })));
    };
    return loop(kernel, destination(dst), elements(len), InPairs{reinterpret_cast<const uint32_t*>(src)});
  });
}

QvxStatus power16(const Qvx16s* re, const Qvx16s* im, Qvx16s* dst, int len, int scaleFactor) {
  const QvxStatus status = check(len, re, im, dst);
  if (status != qvxStatOk) return status;
  return scaledPower<uint32_t>(scaleFactor, [&](auto scale, auto last) {
    const auto kernel = [=](auto re, auto im) {
      const TagOf<decltype(re)> d;
      const auto half = [=](auto z) { return scale(powerOf16(z)); };
      const auto lo = half(hn::InterleaveLower(d, re, im));
      return last(narrow<int16_t>(Pair<std::remove_const_t<decltype(lo)>>{lo, half(hn::InterleaveUpper(d, re, im))}));
    };
    return loop(kernel, destination(dst), elements(len), source(re), source(im));
  });
}

QvxStatus power32Complex(const Qvx32sc* src, Qvx32s* dst, int len, int scaleFactor) {
  const QvxStatus status = check(len, src, dst);
  if (status != qvxStatOk) return status;
  return scaledPower<uint64_t>(scaleFactor, [&](auto scale, auto last) {
    const auto kernel = [=](auto pair) { return last(saturatedTo32(each(pair, [=](auto z) { return scale(PowerOf32()(z)); }))); };
    return loop(kernel, destination(dst), elements(len), InPairs{reinterpret_cast<const uint64_t*>(src)});
  });
}

}  // namespace

// clang-format off
QvxStatus qvxsPowerSpectr_32fc(const Qvx32fc* a, Qvx32f* d, int len) { return power(a, d, len); }
QvxStatus qvxsPowerSpectr_64fc(const Qvx64fc* a, Qvx64f* d, int len) { return power(a, d, len); }
QvxStatus qvxsPowerSpectr_16sc32f(const Qvx16sc* a, Qvx32f* d, int len) { return map<Power16ToFloat>(d, len, InOwnLanes{}, reinterpret_cast<const uint32_t*>(a)); }
QvxStatus qvxsPowerSpectr_16sc_Sfs(const Qvx16sc* a, Qvx16s* d, int len, int sf) { return power16Complex(a, d, len, sf); }
QvxStatus qvxsPowerSpectr_32f(const Qvx32f* re, const Qvx32f* im, Qvx32f* d, int len) { return map<Power>(d, len, AsIs{}, re, im); }
QvxStatus qvxsPowerSpectr_64f(const Qvx64f* re, const Qvx64f* im, Qvx64f* d, int len) { return map<Power>(d, len, AsIs{}, re, im); }
QvxStatus qvxsPowerSpectr_16s_Sfs(const Qvx16s* re, const Qvx16s* im, Qvx16s* d, int len, int sf) { return power16(re, im, d, len, sf); }
QvxStatus qvxsPowerSpectr_16s32f(const Qvx16s* re, const Qvx16s* im, Qvx32f* d, int len) { return map<Power16ToFloat>(d, len, InOwnLanes{}, re, im); }

QvxStatus qvxsMagSquared_32fc64f(const Qvx32fc* a, Qvx64f* d, int len) { return map<Power>(d, len, AsIs{}, deinterleaved(a)); }
QvxStatus qvxsMagSquared_32sc32s_Sfs(const Qvx32sc* a, Qvx32s* d, int len, int sf) { return power32Complex(a, d, len, sf); }
// clang-format on
