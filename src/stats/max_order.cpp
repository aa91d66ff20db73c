// How many binary digits the largest magnitude of a vector takes.
#include <bit>
#include <limits>

#include "frame/reduce.h"

using namespace qvx;

namespace {

// All bits that any magnitude has: the highest is that of the largest.
struct MagnitudeBits : Reduction {
  static constexpr bool kRepeats = true;

  template <class V> static auto start(V v) { return as<std::make_unsigned_t<LaneOf<V>>>(hn::Abs(v)); }
  template <class A, class V> static A add(A a, V v) { return a | start(v); }
  template <class A> static A join(A a, A b) { return a | b; }
  template <class A> static auto total(A a) {
    return hn::GetLane(folded<1>(a, [](auto x, auto y) { return x | y; }));
  }
};

template <class T> QvxStatus orderOfIntegers(const T* src, int len, int* order) {
  const QvxStatus status = check(LengthFirst{len}, src, order);
  if (status != qvxStatOk) return status;
  *order = std::bit_width(reduce(MagnitudeBits(), elements(len), source(src)));
  return qvxStatOk;
}

// The order of a float stands in its upper 16 bits, and so does whether it is finite: lanes of 16 bits serve both types, and
// SSSE3 has a maximum of those alone.
template <class T> struct Upper {
  using Bits = std::conditional_t<sizeof(T) == 4, uint32_t, uint64_t>;
  static constexpr int kBelow = 8 * sizeof(T) - 16;
  static constexpr int kFraction = std::numeric_limits<T>::digits - 1 - kBelow;
  static constexpr int kBias = std::numeric_limits<T>::max_exponent - 2;  // 1 has order 1
  static constexpr Bits kMagnitude = Bits{INT16_MAX} << kBelow;
  static constexpr int16_t kGreatest = static_cast<int16_t>(((2 * kBias + 3) << kFraction) - 1);  // finite

  template <class V> static auto of(V v) {
    return as<int16_t>(as<Bits>(v) & hn::Set(hn::RebindToUnsigned<TagOf<V>>(), kMagnitude));
  }
};
static_assert(Upper<float>::kGreatest == 0x7F7F && Upper<double>::kGreatest == 0x7FEF);

template <class T> struct GreatestUpper : Reduction {
  static constexpr bool kRepeats = true;

  template <class V> static auto start(V v) { return Upper<T>::of(v); }
  template <class A, class V> static A add(A a, V v) { return hn::Max(a, Upper<T>::of(v)); }
  template <class A> static A join(A a, A b) { return hn::Max(a, b); }
  template <class A> static int16_t total(A a) {
    return hn::GetLane(folded<1>(a, [](auto x, auto y) { return hn::Max(x, y); }));
  }
};

// The same with zeros for all that is not finite.
template <class T> struct GreatestFiniteUpper : GreatestUpper<T> {
  template <class V> static auto start(V v) {
    const auto upper = Upper<T>::of(v);
    return hn::IfThenZeroElse(upper > same<decltype(upper)>(Upper<T>::kGreatest), upper);
  }
  template <class A, class V> static A add(A a, V v) { return hn::Max(a, start(v)); }
};

// Whether there is a number so small that its upper 16 bits are zeros. Asked only where no finite element has others. Bits are
// compared, since to the processor it may be a zero.
template <class T> bool hasTiny(const T* src, size_t n) {
  using Bits = hwy::SignedFromSize<sizeof(T)>;
  const auto isTiny = [](auto v) {
    using V = decltype(v);
    const V magnitude = v & same<V>(std::numeric_limits<Bits>::max());
    return hn::And(magnitude > same<V>(0), magnitude < same<V>(std::bit_cast<Bits>(std::numeric_limits<T>::min())));
  };
  return firstWhere(isTiny, n, source(reinterpret_cast<const Bits*>(src))) < n;
}

template <class T> QvxStatus orderOfFloats(const T* src, int len, int* order) {
  const QvxStatus status = check(LengthFirst{len}, src, order);
  if (status != qvxStatOk) return status;
  const size_t n = elements(len);
  int16_t greatest = reduce(GreatestUpper<T>(), n, source(src));
  const bool isFinite = greatest <= Upper<T>::kGreatest;
  if (!isFinite) greatest = reduce(GreatestFiniteUpper<T>(), n, source(src));
  const bool isZero = greatest == 0 && !hasTiny(src, n);
  *order = isZero ? 0 : (greatest >> Upper<T>::kFraction) - Upper<T>::kBias;
  return isFinite ? qvxStatOk : qvxWarnNotFinite;
}

}  // namespace

// clang-format off
QvxStatus qvxsMaxOrder_16s(const Qvx16s* a, int len, int* order) { return orderOfIntegers(a, len, order); }
QvxStatus qvxsMaxOrder_32s(const Qvx32s* a, int len, int* order) { return orderOfIntegers(a, len, order); }
QvxStatus qvxsMaxOrder_32f(const Qvx32f* a, int len, int* order) { return orderOfFloats(a, len, order); }
QvxStatus qvxsMaxOrder_64f(const Qvx64f* a, int len, int* order) { return orderOfFloats(a, len, order); }
// clang-format on
