// Reciprocals of elements whose magnitude is raised to a level first.
#include <bit>

#include "convert/level.h"
#include "convert/magnitude.h"
#include "frame/team.h"
#include "vector/both_ways.h"

using namespace qvx;

namespace {

// A zero at level 0 has no reciprocal and becomes an infinity.
template <class T> struct Reciprocal {
  static constexpr QvxStatus kWarning = qvxWarnInvZero;
  T level;

  template <class V> V operator()(Flag& flag, V x) const {
    const V raised = Quiet::max(same<V>(level), hn::Abs(x));  // a NaN stays
    const auto bits = as<hwy::UnsignedFromSize<sizeof(T)>>(raised);
    using Bits = std::remove_const_t<decltype(bits)>;
    flag.raise(TagOf<Bits>(), bits == same<Bits>(0));
    return Quiet::quotient(same<V>(1), hn::CopySignToAbs(raised, x));
  }
};

// conj(x) / |x|^2, or conj(x) / |x| / level below the level.
struct ComplexReciprocal {
  static constexpr QvxStatus kWarning = qvxWarnInvZero;
  double level;

  template <class V> Pair<V> operator()(Flag& flag, Pair<V> x) const {
    const auto m = measured(x);
    using W = std::remove_const_t<decltype(m.square)>;
    const Pair<W> conjugate = {m.value.lo, m.value.hi ^ same<W>(-0.0)};
    const W perSquare = same<W>(1) / m.square;
    Pair<W> inverse = each(conjugate, [&](W part) { return part * perSquare * m.unit; });
    const auto below = m.isBelow(level);
    if (isAny(below, m.square)) {
      const W root = hn::Sqrt(m.square);
      inverse.lo = hn::IfThenElse(below, conjugate.lo / root / same<W>(level), inverse.lo);
      inverse.hi = hn::IfThenElse(below, conjugate.hi / root / same<W>(level), inverse.hi);
    }
    const auto isOrdinary = hn::And(m.square > same<W>(0), m.square < same<W>(kInfinity));
    if (!hn::AllTrue(TagOf<W>(), isOrdinary)) [[unlikely]] {
      inverse.lo = special(m, conjugate.lo, 1 / level, inverse.lo);
      inverse.hi = special(m, conjugate.hi, 0, inverse.hi);
      if (!(level > 0)) flag.raise(TagOf<W>(), m.isZero());
    }
    return fromDoubles<V>(inverse);
  }

 private:
  static constexpr double kInfinity = std::numeric_limits<double>::infinity();

  // Zeros, infinities and NaN, which the arithmetic alone would all turn into NaN. Every variant gives NaN the same bits.
  template <class W> W special(const Measured<W>& m, W part, double ofZero, W inverse) const {
    inverse = hn::IfThenElse(m.square == m.square, inverse, same<W>(std::numeric_limits<double>::quiet_NaN()));
    inverse = hn::IfThenElse(m.isInfinite(), hn::CopySign(same<W>(0), part), inverse);
    const W zeros = level > 0 ? hn::CopySign(same<W>(ofZero), part) : same<W>(kInfinity);
    return hn::IfThenElse(m.isZero(), zeros, inverse);
  }
};

template <class V> [[gnu::noinline]] V silently(Flag& flag, V x, double level) {
  const SilentScope silent;
  // Taken by value: memory would not keep the arithmetic within the scope.
  const auto pinned = [](V v) { return V{RoundingScope::pinned(v.raw)}; };
  return pinned(inTurn(ComplexReciprocal{level}(flag, partsOf(pinned(x)))));
}

// The same for 32-bit elements without an exception. Special ones are left to the struct above.
template <class Arithmetic> struct QuietComplexReciprocal {
  static constexpr QvxStatus kWarning = qvxWarnInvZero;
  double level;

  explicit QuietComplexReciprocal(double least) : level(least > 0 ? least : 0) {}

  // Two vectors at a time, with one test: 4096 elements take 1160 ns, one by one 1230. In single registers throughout: a vector
  // in two halves would be stored, for the call of unusual(), before each branch to it (8 elements: 20 cycles, not 10).
  template <class V> Pair<V> operator()(Flag& flag, Pair<V> x) const {
    const auto lo = inDoubles(x.lo);
    const auto hi = inDoubles(x.hi);
    const auto loSquare = squareOf(lo);
    const auto hiSquare = squareOf(hi);
    if (!isUsual(hn::Max(beyondLeast(loSquare), beyondLeast(hiSquare)))) return {unusual(flag, x.lo), unusual(flag, x.hi)};
    const auto perLo = reciprocal(loSquare);
    const auto perHi = reciprocal(hiSquare);
    return {times(lo, perLo), times(hi, perHi)};
  }

 private:
  template <class V> static auto inDoubles(V x) {
    return each(partsOf(x), [](auto part) { return Arithmetic::toDouble(part); });
  }
  template <class W> static W squareOf(Pair<W> v) { return Arithmetic::mulAdd(v.lo, v.lo, Arithmetic::product(v.hi, v.hi)); }
  // Comparisons of floats raise exceptions; the bits of squares compare as they do, with NaN the greatest. Unsigned, one
  // comparison tells those from the level to infinity, but for zero.
  template <class W> auto beyondLeast(W square) const {
    const auto bits = as<uint64_t>(square);
    return bits - same<std::remove_const_t<decltype(bits)>>(least());
  }
  template <class Bits> bool isUsual(Bits beyond) const {
    return hn::AllTrue(TagOf<Bits>(), beyond < same<Bits>(std::bit_cast<uint64_t>(kInfinity) - least()));
  }
  uint64_t least() const { return std::max(std::bit_cast<uint64_t>(level * level), uint64_t{1}); }

  template <class W> static W reciprocal(W square) { return Arithmetic::quotient(same<W>(1), square); }
  template <class W> static auto times(Pair<W> value, W factor) {
    return conjugate(each(value, [&](W part) { return Arithmetic::toFloat(Arithmetic::product(part, factor)); }));
  }
  template <class V> static auto conjugate(Pair<V> v) { return inTurn(Pair<V>{v.lo, v.hi ^ same<V>(-0.0F)}); }

  // A vector with special elements, or some below the level. For those, factors slightly below and slightly above the true one
  // give the same results for all but 1 element in 10^4.
  template <class V> [[gnu::noinline]] V unusual(Flag& flag, V x) const {
    const auto value = inDoubles(x);
    const auto square = squareOf(value);
    using W = std::remove_const_t<decltype(square)>;
    const auto bits = as<int64_t>(square);
    using Bits = std::remove_const_t<decltype(bits)>;
    const auto isOrdinary = hn::And(bits > same<Bits>(0), bits < same<Bits>(std::bit_cast<int64_t>(kInfinity)));
    if (!hn::AllTrue(TagOf<Bits>(), isOrdinary)) return silently(flag, x, level);
    const auto below = hn::RebindMask(TagOf<W>(), bits < same<Bits>(std::bit_cast<int64_t>(level * level)));
    const W perRoot = nearQuotientByRoot<Arithmetic>(same<W>(1), square);
    // Divided here, since short calls without such elements would wait for it (16 elements: 7.5 ns, not 5.9).
    const W perLevel = Arithmetic::quotient(same<W>(1), same<W>(level));
    const W factor = Arithmetic::product(perRoot, hn::IfThenElse(below, perLevel, perRoot));
    const auto times = [&](double about) {
      const W near = Arithmetic::product(factor, same<W>(about));
      return each(value, [&](W part) { return Arithmetic::toFloat(Arithmetic::product(part, near)); });
    };
    const auto low = times(1 - 0x1p-39);
    const auto high = times(1 + 0x1p-39);
    const auto difference = as<int32_t>((low.lo ^ high.lo) | (low.hi ^ high.hi));
    using Difference = std::remove_const_t<decltype(difference)>;
    const bool isClear = hn::AllTrue(TagOf<Difference>(), difference == same<Difference>(0));
    return isClear ? conjugate(low) : silently(flag, x, level);
  }

  static constexpr double kInfinity = std::numeric_limits<double>::infinity();
};

// As many elements at a time as doubles fill a register.
struct InDoubles {
  template <class Op, class Dst, class... Src> QvxStatus run(Op op, Dst dst, size_t n, Src... src) const {
    return loop<double>(op, dst, n, src...);
  }
};

struct TwoVectors {
  template <class Op, class Dst, class... Src> QvxStatus run(Op op, Dst dst, size_t n, Src... src) const {
    return loop(op, InTwos{dst}, n, InTwos{src}...);
  }
};

// From otherWarning elements on, the warning is another: warnings and lengths are fixed values of the interface. Shorter vectors
// end in a jump to the loop: 16 elements take 2.4 ns, not 3.8.
struct Lengths {
  size_t otherWarning;
  TeamRule team;
};
template <Lengths kLengths, class Fit, class Kernel, class Dst, class Src>
QvxStatus inverted(Kernel kernel, Dst dst, size_t n, Src src) {
  if (n / Dst::kParts < kLengths.otherWarning) return Fit{}.run(kernel, dst, n, src);
  const QvxStatus met = InTeam<kLengths.team, Fit>{}.run(kernel, dst, n, src);
  return met == qvxWarnInvZero ? qvxWarnDivByZero : met;
}

template <Lengths kLengths, class T> QvxStatus inverse(const T* src, T* dst, int len, T level) {
  const QvxStatus status = checkLevel(len, src, dst, level);
  if (status != qvxStatOk) return status;
  const auto run = [=] {
    return inverted<kLengths, AsIs>(Reciprocal<T>{level}, destination(dst), elements(len), OnesPastEnd{src});
  };
  if constexpr (kQuietByInstruction) {
    return run();
  } else {
    const SilentScope silent;
    return run();
  }
}

template <Lengths kLengths, class T> QvxStatus complexInverse(const T* src, T* dst, int len, Part<T> level) {
  const QvxStatus status = checkLevel<T>(len, src, dst, level);
  if (status != qvxStatOk) return status;
  if constexpr (kQuietByInstruction && std::is_same_v<T, Qvx32fc>) {
    return inverted<kLengths, TwoVectors>(QuietComplexReciprocal<Quiet>{level}, destination(dst), 2 * elements(len),
                                          OnesPastEnd{src});
  } else {
    const SilentScope silent;
    return inverted<kLengths, InDoubles>(ComplexReciprocal{level}, InterleavedDestination<Part<T>>{parts(dst)}, elements(len),
                                         deinterleavedOnesPastEnd(src));
  }
}

constexpr Lengths k32f = {8192, {.worthIt = 32768}};
constexpr Lengths k64f = {2048, {.worthIt = 16384}};
constexpr Lengths k32fc = {2048, {.worthIt = 8192}};
constexpr Lengths k64fc = {512, {.worthIt = 8192}};

}  // namespace

// clang-format off
QvxStatus qvxsThreshold_LTInv_32f(const Qvx32f* a, Qvx32f* d, int len, Qvx32f level) { return inverse<k32f>(a, d, len, level); }
QvxStatus qvxsThreshold_LTInv_32f_I(Qvx32f* d, int len, Qvx32f level) { return inverse<k32f>(d, d, len, level); }
QvxStatus qvxsThreshold_LTInv_32fc(const Qvx32fc* a, Qvx32fc* d, int len, Qvx32f level) { return complexInverse<k32fc>(a, d, len, level); }
QvxStatus qvxsThreshold_LTInv_32fc_I(Qvx32fc* d, int len, Qvx32f level) { return complexInverse<k32fc>(d, d, len, level); }
QvxStatus qvxsThreshold_LTInv_64f(const Qvx64f* a, Qvx64f* d, int len, Qvx64f level) { return inverse<k64f>(a, d, len, level); }
QvxStatus qvxsThreshold_LTInv_64f_I(Qvx64f* d, int len, Qvx64f level) { return inverse<k64f>(d, d, len, level); }
QvxStatus qvxsThreshold_LTInv_64fc(const Qvx64fc* a, Qvx64fc* d, int len, Qvx64f level) { return complexInverse<k64fc>(a, d, len, level); }
QvxStatus qvxsThreshold_LTInv_64fc_I(Qvx64fc* d, int len, Qvx64f level) { return complexInverse<k64fc>(d, d, len, level); }
// clang-format on
