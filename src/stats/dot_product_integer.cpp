// Dot products of vectors of integers: the exact sum, rounded once at most.
#include "stats/lifted_products.h"
#include "stats/moments.h"
#include "vector/product.h"

using namespace qvx;

namespace {

// Accumulators of several vectors in flight: four of them exceed 16 registers (4096 16-bit reals by complex ones in AVX2: 360 ns,
// not 550).
constexpr size_t kFlightOfParts = kHasMasks ? 4 : 2;

// A product's lanes hold sums of two products, or real and imaginary parts. Every real part fits its lane; kImOfPairs says
// whether an imaginary one may be twice the square of the most negative number, which does not.

struct Products16 {
  static constexpr size_t kFlight = kFlightOfParts;
  static constexpr size_t kSlice = 1 << 16;
  template <class V> static auto of(V a, V b) { return pairProducts(a, b); }
};
struct ComplexProducts16 {
  static constexpr size_t kFlight = kHasMasks ? 2 : 1;
  static constexpr bool kFetchesAhead = true;
  static constexpr size_t kSlice = 1 << 16;
  static constexpr bool kImOfPairs = true;
  template <class V> static auto of(V a, V b) {
    const auto re = differencesOfProducts(a, b);
    return Complex<std::remove_const_t<decltype(re)>>{re, pairProducts(a, swapped(b))};
  }
};
struct MixedProducts16 {
  static constexpr size_t kFlight = kFlightOfParts;
  static constexpr size_t kSlice = 1 << 16;
  static constexpr bool kImOfPairs = false;
  template <class U, class V> static auto of(U a, V b) {
    const auto low = hn::PromoteTo(hn::RepartitionToWide<hn::RebindToUnsigned<TagOf<V>>>(), as<uint16_t>(a));
    const auto re = pairProducts(as<int16_t>(low), b);
    return Complex<std::remove_const_t<decltype(re)>>{re, pairProducts(as<int16_t>(hn::ShiftLeft<16>(low)), b)};
  }
};

// In lanes of 64 bits no slice is too long.
struct Products32 {
  static constexpr size_t kFlight = 4;
  static constexpr bool kFetchesAhead = true;
  static constexpr size_t kSlice = kMostElements;
  template <class U, class V> static auto of(U v, V b) {
    const auto products = wideProduct<V>(widened<int32_t>(v), b);
    return products.even + products.odd;
  }
};
// Of 16 bits by 32, a * b = 2^16 a * h + a * l + 2^15 a, where h is the upper half of b and l the lower one less 2^15: each in
// the 16-bit lanes that SSSE3 multiplies, where a signed product of 32 bits takes nine instructions.
template <class V> struct Split {
  V high;
  V low;
  V factor;
};
struct SplitProducts {
  [[maybe_unused]] static constexpr size_t kFlight = 1;
  [[maybe_unused]] static constexpr size_t kSlice = 1 << 16;  // in SSSE3 alone
  template <class U, class V> static auto of(U a, Pair<V> b) {
    const Pair<U> halves = deinterleaved(each(b, [](V v) { return as<int16_t>(v); }));
    const U low = halves.lo ^ same<U>(INT16_MIN);
    return Split<V>{pairProducts(a, halves.hi), pairProducts(a, low), pairProducts(a, same<U>(1))};
  }
};

// SSSE3 lifts these (lifted_products.h).
struct ComplexProducts32 {
  [[maybe_unused]] static constexpr size_t kFlight = kFlightOfParts;
  [[maybe_unused]] static constexpr bool kFetchesAhead = true;
  [[maybe_unused]] static constexpr size_t kSlice = kMostElements;
  [[maybe_unused]] static constexpr bool kImOfPairs = true;
  template <class V> static auto of(V a, V b) {
    const auto straight = wideProduct(a, b);
    const auto crossed = wideProduct(a, swapped(b));
    const auto re = straight.even - straight.odd;
    return Complex<std::remove_const_t<decltype(re)>>{re, crossed.even + crossed.odd};
  }
};
struct MixedProducts32 {
  [[maybe_unused]] static constexpr size_t kFlight = kFlightOfParts;
  [[maybe_unused]] static constexpr size_t kSlice = kMostElements;
  [[maybe_unused]] static constexpr bool kImOfPairs = false;
  template <class U, class V> static auto of(U a, V b) {
    const auto even = as<int32_t>(hn::PromoteTo(hn::RepartitionToWide<hn::RebindToUnsigned<TagOf<V>>>(), as<uint32_t>(a)));
    const auto re = evenProducts(even, b);
    return Complex<std::remove_const_t<decltype(re)>>{re, evenProducts(even, hn::Shuffle2301(b))};
  }
};

template <class Re, class Im> struct ComplexSum {
  Re re;
  Im im;
  template <class V> ComplexSum plus(Complex<V> v) const { return {re.plus(v.re), im.plus(v.im)}; }
  ComplexSum operator+(ComplexSum other) const { return {re + other.re, im + other.im}; }
  auto total() const { return ComplexTotal<decltype(re.total())>{re.total(), im.total()}; }
};

template <class V> struct SplitSum {
  LongSum<V, true> high;
  LongSum<V, true> low;
  V factors;
  SplitSum plus(Split<V> v) const { return {high.plus(v.high), low.plus(v.low), factors + v.factor}; }
  SplitSum operator+(SplitSum other) const { return {high + other.high, low + other.low, factors + other.factors}; }
  __int128 total() const {
    const int64_t offset = int64_t{sumOfLanes(factors)} * (1 << 15);
    return __int128{high.total()} * (1 << 16) + (low.total() + offset);
  }
};

template <class Product> struct ExactSum : Reduction {
  static constexpr bool kFetchesAhead = requires { Product::kFetchesAhead; };
  static constexpr size_t kSlice = Product::kSlice;
  static constexpr size_t kFlight = Product::kFlight;

  template <class U, class V> auto start(U a, V b) const { return first(Product::of(a, b)); }
  template <class A, class U, class V> A add(A sum, U a, V b) const { return sum.plus(Product::of(a, b)); }
  template <class A> static A join(A a, A b) { return a + b; }
  template <class A> auto total(A sum) const { return sum.total(); }

 private:
  template <class V> static auto first(V v) { return LongSum<V, true>::of(v); }
  template <class V> static auto first(Complex<V> v) {
    using Im = LongSum<V, Product::kImOfPairs>;
    return ComplexSum<LongSum<V>, Im>{LongSum<V>::of(v.re), Im::of(v.im)};
  }
  template <class V> static SplitSum<V> first(Split<V> v) {
    using Part = LongSum<V, true>;
    return {Part::of(v.high), Part::of(v.low), v.factor};
  }
};

template <class R> R scaledSum(int64_t sum, int scaleFactor) { return scaled<R>(sum, scaleFactor); }

// Sums of 32-bit products, below 2^94, are scaled in 64 bits: 10 or 20 elements take 0.8 of the time.
template <class R> R scaledSum(Sum96 sum, int scaleFactor) {
  static_assert(sizeof(R) == 4);
  constexpr int kLow = 31;
  const auto high = 2 * sum.upper + static_cast<int64_t>(sum.rest >> kLow);
  const auto low = static_cast<int64_t>((static_cast<uint64_t>(sum.upper) << 32) + sum.rest);
  if (scaleFactor <= kLow + 1) {
    if (low >> kLow == high) return scaled<R>(low, scaleFactor);
    return high < 0 ? std::numeric_limits<R>::min() : std::numeric_limits<R>::max();
  }
  // The last bit stands for all those below it, which come to less than half a unit.
  const bool isInexact = (low & ((int64_t{1} << kLow) - 1)) != 0;
  return scaled<R>(high | isInexact, scaleFactor - kLow);
}
template <class R> R scaledSum(__int128 sum, int scaleFactor) {
  return scaledSum<R>(Sum96{static_cast<int64_t>(sum >> 32), static_cast<uint32_t>(sum)}, scaleFactor);
}

template <class D, class Finish, class Sum> D eachPart(Finish finish, Sum sum) {
  if constexpr (PartsOf<D>::kCount == 1) return finish(sum);
  else return {finish(sum.re), finish(sum.im)};
}

using Dot16 = ExactSum<Products16>;
using ComplexDot16 = ExactSum<ComplexProducts16>;
using MixedDot16 = ExactSum<MixedProducts16>;
using Dot32 = ExactSum<Products32>;
template <class Product, template <class> class Lifted>
using ComplexSum32 = std::conditional_t<QVXS_AVX2, ExactSum<Product>, lifted::Products<Lifted>>;
using ComplexDot32 = ComplexSum32<ComplexProducts32, lifted::ComplexSum>;
using MixedDot32 = ComplexSum32<MixedProducts32, lifted::MixedSum>;

// The exact sum, or a float after one rounding.
template <class Sum, class D, class... Src> QvxStatus dotProduct(D* result, int len, Src... src) {
  const auto finish = [](auto sum) { return eachPart<D>([](int64_t part) { return static_cast<Part<D>>(part); }, sum); };
  return reduceTo<Sum>(result, len, finish, src...);
}

template <class Sum, class D, class... Src> QvxStatus scaledTo(D* result, int len, int scaleFactor, Src... src) {
  const auto finish = [=](auto sum) {
    return eachPart<D>([=](auto part) { return scaledSum<Part<D>>(part, scaleFactor); }, sum);
  };
  return reduceTo<Sum>(result, len, finish, src...);
}

// A function of its own, which leaves the other one without a stack frame.
template <class Sum, class D, class... Src>
[[gnu::noinline]] QvxStatus longDotProduct(D* result, int len, int scaleFactor, Src... src) {
  return scaledTo<Sum>(result, len, scaleFactor, fetchedAhead(src)...);
}

template <class Sum, class D, class... Src> QvxStatus scaledDotProduct(D* result, int len, int scaleFactor, Src... src) {
  if constexpr (Sum::kFetchesAhead) {
    constexpr int kLong = FetchedAhead<D>::kWorthIt / sizeof(D);
    if (len >= kLong) return longDotProduct<Sum>(result, len, scaleFactor, src...);
  }
  return scaledTo<Sum>(result, len, scaleFactor, src...);
}

QvxStatus scaledDotProduct16By32(const Qvx16s* a, const Qvx32s* b, int len, Qvx32s* dp, int scaleFactor) {
  if constexpr (QVXS_AVX2) return scaledDotProduct<Dot32>(dp, len, scaleFactor, a, b);
  else return scaledDotProduct<ExactSum<SplitProducts>>(dp, len, scaleFactor, a, InPairs{b});
}

// More than 14 places up count as 14: a sum of 1 stays apart from larger ones.
int atLeastMinus14(int scaleFactor) { return std::max(scaleFactor, -14); }
// From 93 places down on, only the sum of the longest vector of the most negative numbers leaves anything: a 1 for any more.
int atMost93(int scaleFactor) { return std::min(scaleFactor, 93); }

}  // namespace

// clang-format off
QvxStatus qvxsDotProd_16s32f(const Qvx16s* a, const Qvx16s* b, int len, Qvx32f* dp) { return dotProduct<Dot16>(dp, len, a, b); }
QvxStatus qvxsDotProd_16sc32fc(const Qvx16sc* a, const Qvx16sc* b, int len, Qvx32fc* dp) { return dotProduct<ComplexDot16>(dp, len, a, b); }
QvxStatus qvxsDotProd_16s16sc32fc(const Qvx16s* a, const Qvx16sc* b, int len, Qvx32fc* dp) { return dotProduct<MixedDot16>(dp, len, Beside{a}, b); }
QvxStatus qvxsDotProd_16s64s(const Qvx16s* a, const Qvx16s* b, int len, Qvx64s* dp) { return dotProduct<Dot16>(dp, len, a, b); }
QvxStatus qvxsDotProd_16sc64sc(const Qvx16sc* a, const Qvx16sc* b, int len, Qvx64sc* dp) { return dotProduct<ComplexDot16>(dp, len, a, b); }
QvxStatus qvxsDotProd_16s16sc64sc(const Qvx16s* a, const Qvx16sc* b, int len, Qvx64sc* dp) { return dotProduct<MixedDot16>(dp, len, Beside{a}, b); }
QvxStatus qvxsDotProd_16s_Sfs(const Qvx16s* a, const Qvx16s* b, int len, Qvx16s* dp, int sf) { return scaledDotProduct<Dot16>(dp, len, atLeastMinus14(sf), a, b); }
QvxStatus qvxsDotProd_16sc_Sfs(const Qvx16sc* a, const Qvx16sc* b, int len, Qvx16sc* dp, int sf) { return scaledDotProduct<ComplexDot16>(dp, len, sf, a, b); }
QvxStatus qvxsDotProd_16s16sc_Sfs(const Qvx16s* a, const Qvx16sc* b, int len, Qvx16sc* dp, int sf) { return scaledDotProduct<MixedDot16>(dp, len, sf, Beside{a}, b); }
QvxStatus qvxsDotProd_16s32s_Sfs(const Qvx16s* a, const Qvx16s* b, int len, Qvx32s* dp, int sf) { return scaledDotProduct<Dot16>(dp, len, sf, a, b); }
QvxStatus qvxsDotProd_16sc32sc_Sfs(const Qvx16sc* a, const Qvx16sc* b, int len, Qvx32sc* dp, int sf) { return scaledDotProduct<ComplexDot16>(dp, len, sf, a, b); }
QvxStatus qvxsDotProd_16s16sc32sc_Sfs(const Qvx16s* a, const Qvx16sc* b, int len, Qvx32sc* dp, int sf) { return scaledDotProduct<MixedDot16>(dp, len, sf, Beside{a}, b); }
QvxStatus qvxsDotProd_32s_Sfs(const Qvx32s* a, const Qvx32s* b, int len, Qvx32s* dp, int sf) { return scaledDotProduct<Dot32>(dp, len, atMost93(sf), a, b); }
QvxStatus qvxsDotProd_32sc_Sfs(const Qvx32sc* a, const Qvx32sc* b, int len, Qvx32sc* dp, int sf) { return scaledDotProduct<ComplexDot32>(dp, len, atMost93(sf), a, b); }
QvxStatus qvxsDotProd_32s32sc_Sfs(const Qvx32s* a, const Qvx32sc* b, int len, Qvx32sc* dp, int sf) { return scaledDotProduct<MixedDot32>(dp, len, atMost93(sf), Beside{a}, b); }
QvxStatus qvxsDotProd_16s32s32s_Sfs(const Qvx16s* a, const Qvx32s* b, int len, Qvx32s* dp, int sf) { return scaledDotProduct16By32(a, b, len, dp, atMost93(sf)); }
// clang-format on
