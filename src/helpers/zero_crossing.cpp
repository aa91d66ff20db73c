// How often the sign changes: counted over pairs of neighbours, the vector and itself one element on, in lanes as wide as an
// element.
#include "frame/reduce.h"
#include "frame/unroll.h"

using namespace qvx;

namespace {

// A pair adds 2 at most to its lane: 2^15 in a slice, with the 8 lanes of the narrowest registers.
template <class Changes> struct Count : Reduction {
  static constexpr size_t kSlice = 1 << 17;

  template <class V> auto start(V x, V y) const {
    const auto first = Changes::of(x, y);
    if constexpr (Changes::kIsMask) return hn::Neg(first);
    else return first;
  }
  template <class A, class V> A add(A a, V x, V y) const {
    if constexpr (Changes::kIsMask) return a - Changes::of(x, y);
    else return a + Changes::of(x, y);
  }
  template <class A> int64_t total(A a) const {
    if constexpr (sizeof(LaneOf<A>) == 2) return sumOfLanes(halvesAdded<int32_t>(as<uint16_t>(a)));
    else return static_cast<int64_t>(sumOfLanes(a));
  }
};

// -1, 0 or 1; 0 of a NaN. By the one instruction that replaces classes of floats, 4096 of them take 105 ns, by two comparisons
// each 205.
template <class V> auto sideOf(V v) {
  if constexpr (std::is_integral_v<LaneOf<V>>) {
    return hn::Max(hn::Min(v, same<V>(1)), same<V>(-1));
  } else {
#if QVXS_AVX512
    using enum Becomes;
    return replacedByClass<ByClass{kZero, kZero, kOne, kMinusOne, kOne, kMinusOne, kOne}>(v);
#else
    const TagOf<V> d;
    const auto lanes = [d](auto mask) { return as<int32_t>(hn::VecFromMask(d, mask)); };
    return lanes(v < hn::Zero(d)) - lanes(v > hn::Zero(d));
#endif
  }
}

// Through zero in two steps, or across it in one.
struct Steps {
  static constexpr bool kIsMask = false;
  template <class V> static auto of(V x, V y) { return hn::Abs(sideOf(x) - sideOf(y)); }
};

struct Opposites {
  static constexpr bool kIsMask = false;
  template <class V> static auto of(V x, V y) {
    const auto steps = Steps::of(x, y);
    using S = std::remove_const_t<decltype(steps)>;
    if constexpr (std::is_integral_v<LaneOf<S>>) return hn::ShiftRight<1>(steps);
    else return hn::Max(steps, same<S>(1)) - same<S>(1);
  }
};

// The sign bit decides, but zeros have none.
struct Signs {
  static constexpr bool kIsMask = true;
  template <class V> static auto of(V x, V y) {
    if constexpr (std::is_integral_v<LaneOf<V>>) {
      return hn::BroadcastSignBit(x ^ y);
    } else {
#if QVXS_AVX512
      return hn::BroadcastSignBit(withoutNegativeZeros(x) ^ withoutNegativeZeros(y));
#else
      return isNegative(x) ^ isNegative(y);
#endif
    }
  }

#if QVXS_AVX512
 private:
  template <class V> static auto withoutNegativeZeros(V v) {
    using enum Becomes;
    return as<int32_t>(replacedByClass<ByClass{kItself, kZero, kItself, kItself, kItself, kItself, kItself}>(v));
  }
#else
  template <class V> static auto isNegative(V v) {
    const auto bits = as<int32_t>(v);
    using B = std::remove_const_t<decltype(bits)>;
    return hn::VecFromMask(TagOf<B>(), (bits ^ same<B>(INT32_MIN)) > same<B>(0));
  }
#endif
};

#if !QVXS_AVX512
// Signs of floats in words of 64 bits, so that each is taken once: 4096 take 155 ns in AVX2, by pairs in lanes 205, in SSSE3 373
// and 515.
class SignWords {
 public:
  static constexpr size_t kWorthIt = 128;

  static int64_t changes(const float* p, size_t n) {
    int64_t count = 0;
    uint64_t last = negatives(p, 1) & 1;  // before the first element nothing changes
    for (size_t at = 0; at < n; at += kWord) {
      const uint64_t now = negatives(p + at, n - at);
      const uint64_t counted = n - at < kWord ? (uint64_t{1} << (n - at)) - 1 : ~uint64_t{0};
      count += std::popcount((now ^ (now << 1 | last)) & counted);
      last = now >> (kWord - 1);
    }
    return count;
  }

 private:
  static constexpr size_t kWord = 64;
  static constexpr size_t N = kVectorBytes / sizeof(float);

  static uint64_t negatives(const float* p, size_t n) {
    const Lanes<float, N> d;
    uint64_t all = 0;
    const auto add = [&](auto v, size_t at) __attribute__((always_inline)) {
      all |= maskBits(d, hn::MaskFromVec(as<float>(Signs::isNegative(v)))) << at;
    };
    if (n >= kWord) {
      unrolled<kWord / N>([&](auto k) __attribute__((always_inline)) { add(load(d, p + k * N), k * N); });
    } else {
      for (size_t at = 0; at < n; at += N) add(n - at >= N ? load(d, p + at) : loadFirst(d, p + at, n - at), at);
    }
    return all;
  }
};
#endif

template <class Changes, class T> QvxStatus count(const T* src, int len, Qvx32f* result, double each = 1) {
  const size_t pairs = elements(len) - 1;
  if (pairs == 0) {
    *result = 0;
    return qvxStatOk;
  }
#if !QVXS_AVX512
  if constexpr (std::is_same_v<Changes, Signs> && std::is_same_v<T, float>) {
    if (pairs >= SignWords::kWorthIt) {
      *result = static_cast<Qvx32f>(SignWords::changes(src, pairs + 1));
      return qvxStatOk;
    }
  }
#endif
  const auto finish = [each](int64_t n) { return static_cast<Qvx32f>(static_cast<Qvx64f>(n) * each); };
  return reducedTo<Count<Changes>>(result, pairs, finish, source(src), source(src + 1));
}

template <class T> QvxStatus zeroCrossing(const T* src, int len, Qvx32f* result, int type) {
  const QvxStatus status = check(len, src, result);
  if (status != qvxStatOk) return status;
  switch (type) {
    case 0:
      return count<Opposites>(src, len, result);
    case 1:
      return count<Signs>(src, len, result);
    case 2:
      return count<Steps>(src, len, result, 0.5);
    default:
      return qvxStatBadRange;
  }
}

}  // namespace

QvxStatus qvxsZeroCrossing_16s32f(const Qvx16s* src, int len, Qvx32f* count, int type) {
  return zeroCrossing(src, len, count, type);
}
QvxStatus qvxsZeroCrossing_32f(const Qvx32f* src, int len, Qvx32f* count, int type) {
  return zeroCrossing(src, len, count, type);
}
