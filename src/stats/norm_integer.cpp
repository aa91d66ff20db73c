// Norms of vectors of 16-bit integers, and of differences of two: exact, but for the root and the last rounding.
#include <algorithm>
#include <cmath>

#include "frame/power.h"
#include "frame/reduce.h"

using namespace qvx;

namespace {

// Slices of which no 32-bit sum of magnitudes, nor a LongSum of squares, can overflow.
struct ExactReduction : Reduction {
  static constexpr size_t kSlice = 1 << 16;
};

template <class V> V ones() { return same<V>(1); }
template <class V> int64_t unsignedTotal(V v) { return sumOfLanes(as<uint32_t>(v)); }
constexpr auto larger = [](auto a, auto b) { return hn::Max(a, b); };
constexpr auto smaller = [](auto a, auto b) { return hn::Min(a, b); };

// |v - w| in 16 unsigned bits.
template <class V> auto distance(V v, V w) { return as<uint16_t>(hn::Max(v, w) - hn::Min(v, w)); }

// Of one vector by its extremes: SSSE3 has a maximum of signed lanes only.
struct LargestMagnitude : Reduction {
  static constexpr bool kRepeats = true;
  template <class V> Pair<V> start(V v) const { return {v, v}; }
  template <class V> Pair<V> add(Pair<V> a, V v) const { return join(a, {v, v}); }
  template <class V> static Pair<V> join(Pair<V> a, Pair<V> b) { return {hn::Min(a.lo, b.lo), hn::Max(a.hi, b.hi)}; }
  template <class V> int64_t total(Pair<V> a) const {
    return std::max<int64_t>(-hn::GetLane(folded<1>(a.lo, smaller)), hn::GetLane(folded<1>(a.hi, larger)));
  }
};
struct LargestDistance : Reduction {
  static constexpr bool kRepeats = true;
  template <class V> auto start(V v, V w) const { return distance(v, w); }
  template <class A, class V> A add(A a, V v, V w) const { return hn::Max(a, distance(v, w)); }
  template <class A> static A join(A a, A b) { return hn::Max(a, b); }
  template <class A> int64_t total(A a) const { return hn::GetLane(folded<1>(a, larger)); }
};

struct SumOfMagnitudes : ExactReduction {
  template <class V> auto start(V v) const { return pairProducts(v, hn::BroadcastSignBit(v) | ones<V>()); }
  template <class A, class V> A add(A a, V v) const { return a + start(v); }
  template <class A> int64_t total(A a) const { return unsignedTotal(a); }
};
struct SumOfDistances : ExactReduction {
  template <class V> auto start(V v, V w) const {
    return pairProducts(hn::Max(v, w), ones<V>()) - pairProducts(hn::Min(v, w), ones<V>());
  }
  template <class A, class V> A add(A a, V v, V w) const {
    return a + pairProducts(hn::Max(v, w), ones<V>()) - pairProducts(hn::Min(v, w), ones<V>());
  }
  template <class A> int64_t total(A a) const { return unsignedTotal(a); }
};

template <class V> using SquareSum = LongSum<Vec<hn::RepartitionToWide<hn::RebindToUnsigned<TagOf<V>>>>>;
template <class V> auto pairSquares(V v) { return as<uint32_t>(pairProducts(v, v)); }

struct SumOfSquares : ExactReduction {
  template <class V> auto start(V v) const { return SquareSum<V>::of(pairSquares(v)); }
  template <class A, class V> A add(A a, V v) const { return a.plus(pairSquares(v)); }
  template <class A> int64_t total(A a) const { return a.total(); }
};

// A distance d from 2^15 on, squared as the signed number it reads as, comes to (2^16 - d)^2: 2^17 * (d - 2^15) are missing.
struct SumOfSquaredDistances : ExactReduction {
  static constexpr size_t kFlight = kHasMasks ? 4 : 1;
  template <class V> struct Squared {
    SquareSum<V> squares;
    Vec<hn::RepartitionToWide<TagOf<V>>> missing;
  };
  template <class V> static auto missing(V distance) {
    const auto above = as<int16_t>(hn::SaturatedSub(distance, same<V>(1 << 15)));
    return pairProducts(above, ones<decltype(as<int16_t>(distance))>());
  }
  template <class V> Squared<V> start(V v, V w) const {
    const auto d = distance(v, w);
    return {SquareSum<V>::of(pairSquares(as<int16_t>(d))), missing(d)};
  }
  template <class V> Squared<V> add(Squared<V> a, V v, V w) const {
    const auto d = distance(v, w);
    return {a.squares.plus(pairSquares(as<int16_t>(d))), a.missing + missing(d)};
  }
  template <class V> static Squared<V> join(Squared<V> a, Squared<V> b) { return {a.squares + b.squares, a.missing + b.missing}; }
  template <class V> int64_t total(Squared<V> a) const { return a.squares.total() + (int64_t{sumOfLanes(a.missing)} << 17); }
};

constexpr auto toFloat = [](int64_t norm) { return static_cast<Qvx32f>(norm); };
constexpr auto rootToFloat = [](int64_t sum) { return static_cast<Qvx32f>(std::sqrt(static_cast<double>(sum))); };

template <class R> auto scaledTo(int scaleFactor) {
  return [scaleFactor](int64_t norm) { return scaled<R>(norm, scaleFactor); };
}

// In the processor's rounding mode. 1000 places either way are as good as more, and neither end is lost.
auto scaledRoot(int scaleFactor) {
  return [scaleFactor](int64_t sum) {
    const double root = std::sqrt(static_cast<double>(sum)) * powerOfTwo<double>(-std::clamp(scaleFactor, -1000, 1000));
    return root > INT32_MAX ? INT32_MAX : static_cast<Qvx32s>(std::lrint(root));
  };
}

}  // namespace

// clang-format off
QvxStatus qvxsNorm_Inf_16s32f(const Qvx16s* a, int len, Qvx32f* norm) { return reduceTo<LargestMagnitude>(norm, len, toFloat, a); }
QvxStatus qvxsNorm_Inf_16s32s_Sfs(const Qvx16s* a, int len, Qvx32s* norm, int sf) { return reduceTo<LargestMagnitude>(norm, len, scaledTo<Qvx32s>(sf), a); }
QvxStatus qvxsNorm_L1_16s32f(const Qvx16s* a, int len, Qvx32f* norm) { return reduceTo<SumOfMagnitudes>(norm, len, toFloat, a); }
QvxStatus qvxsNorm_L1_16s32s_Sfs(const Qvx16s* a, int len, Qvx32s* norm, int sf) { return reduceTo<SumOfMagnitudes>(norm, len, scaledTo<Qvx32s>(sf), a); }
QvxStatus qvxsNorm_L2_16s32f(const Qvx16s* a, int len, Qvx32f* norm) { return reduceTo<SumOfSquares>(norm, len, rootToFloat, a); }
QvxStatus qvxsNorm_L2_16s32s_Sfs(const Qvx16s* a, int len, Qvx32s* norm, int sf) { return reduceTo<SumOfSquares>(norm, len, scaledRoot(sf), a); }
QvxStatus qvxsNorm_L1_16s64s_Sfs(const Qvx16s* a, int len, Qvx64s* norm, int sf) { return reduceTo<SumOfMagnitudes>(norm, len, scaledTo<Qvx64s>(sf), a); }
QvxStatus qvxsNorm_L2Sqr_16s64s_Sfs(const Qvx16s* a, int len, Qvx64s* norm, int sf) { return reduceTo<SumOfSquares>(norm, len, scaledTo<Qvx64s>(sf), a); }

QvxStatus qvxsNormDiff_Inf_16s32f(const Qvx16s* a, const Qvx16s* b, int len, Qvx32f* norm) { return reduceTo<LargestDistance>(norm, len, toFloat, a, b); }
QvxStatus qvxsNormDiff_Inf_16s32s_Sfs(const Qvx16s* a, const Qvx16s* b, int len, Qvx32s* norm, int sf) { return reduceTo<LargestDistance>(norm, len, scaledTo<Qvx32s>(sf), a, b); }
QvxStatus qvxsNormDiff_L1_16s32f(const Qvx16s* a, const Qvx16s* b, int len, Qvx32f* norm) { return reduceTo<SumOfDistances>(norm, len, toFloat, a, b); }
QvxStatus qvxsNormDiff_L1_16s32s_Sfs(const Qvx16s* a, const Qvx16s* b, int len, Qvx32s* norm, int sf) { return reduceTo<SumOfDistances>(norm, len, scaledTo<Qvx32s>(sf), a, b); }
QvxStatus qvxsNormDiff_L2_16s32f(const Qvx16s* a, const Qvx16s* b, int len, Qvx32f* norm) { return reduceTo<SumOfSquaredDistances>(norm, len, rootToFloat, a, b); }
QvxStatus qvxsNormDiff_L2_16s32s_Sfs(const Qvx16s* a, const Qvx16s* b, int len, Qvx32s* norm, int sf) { return reduceTo<SumOfSquaredDistances>(norm, len, scaledRoot(sf), a, b); }
QvxStatus qvxsNormDiff_L1_16s64s_Sfs(const Qvx16s* a, const Qvx16s* b, int len, Qvx64s* norm, int sf) { return reduceTo<SumOfDistances>(norm, len, scaledTo<Qvx64s>(sf), a, b); }
QvxStatus qvxsNormDiff_L2Sqr_16s64s_Sfs(const Qvx16s* a, const Qvx16s* b, int len, Qvx64s* norm, int sf) { return reduceTo<SumOfSquaredDistances>(norm, len, scaledTo<Qvx64s>(sf), a, b); }
// clang-format on
