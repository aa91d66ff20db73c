// How often the sign changes. 64 signs are a word of bits, and their neighbours the word shifted by one.
#include <bit>

#include "frame/check.h"
#include "frame/map.h"
#include "frame/unroll.h"

using namespace qvx;

namespace {

constexpr size_t kWord = 64;

// On which side of zero 64 elements lie.
struct Sides {
  uint64_t below = 0;
  uint64_t above = 0;
};

// A bit in each for every element, in the order of the elements.
template <class V> Sides sidesOf(V v) {
  const TagOf<V> d;
  const V zero = hn::Zero(d);
  return {maskBits(d, v < zero), maskBits(d, v > zero)};
}
// By sign bits, but for zeros: a negative float has more than the sign bit.
template <class V> Sides signsOf(V v) {
  if constexpr (std::is_integral_v<LaneOf<V>>) {
    return {maskBits(TagOf<V>(), v < hn::Zero(TagOf<V>())), 0};
  } else {
    const auto bits = as<uint32_t>(v);
    using U = std::remove_const_t<decltype(bits)>;
    return {maskBits(TagOf<U>(), bits > same<U>(0x80000000)), 0};
  }
}

template <bool kSigns, class T> Sides sidesOfWord(const T* p, size_t n) {
  constexpr size_t N = kVectorBytes / sizeof(T);
  const Lanes<T, N> d;
  Sides all;
  const auto add = [&](auto v, size_t at) __attribute__((always_inline)) {
    const Sides s = kSigns ? signsOf(v) : sidesOf(v);
    all.below |= s.below << at;
    all.above |= s.above << at;
  };
  if (n >= kWord) {
    unrolled<kWord / N>([&](auto k) __attribute__((always_inline)) { add(load(d, p + k * N), k * N); });
  } else {
    for (size_t at = 0; at < n; at += N) add(n - at >= N ? load(d, p + at) : loadFirst(d, p + at, n - at), at);
  }
  return all;
}

// changes(now, before) counts over pairs of neighbours, none of them with what stands before the vector or past its end.
template <bool kSigns, class T, class Changes> int64_t countChanges(const T* p, size_t n, Changes changes) {
  int64_t count = 0;
  Sides last;  // the bit of the last element, as the lowest
  for (size_t at = 0; at < n; at += kWord) {
    const Sides now = sidesOfWord<kSigns>(p + at, n - at);
    const Sides before = {now.below << 1 | last.below, now.above << 1 | last.above};
    uint64_t pairs = n - at < kWord ? (uint64_t{1} << (n - at)) - 1 : ~uint64_t{0};
    if (at == 0) pairs &= ~uint64_t{1};
    count += changes(now, before, pairs);
    last = {now.below >> (kWord - 1), now.above >> (kWord - 1)};
  }
  return count;
}

template <class T> QvxStatus zeroCrossing(const T* src, int len, Qvx32f* result, int type) {
  const QvxStatus status = check(len, src, result);
  if (status != qvxStatOk) return status;
  const size_t n = elements(len);
  if (type == 0) {
    *result = static_cast<Qvx32f>(countChanges<false>(src, n, [](Sides now, Sides before, uint64_t pairs) {
      return std::popcount(((now.below & before.above) | (now.above & before.below)) & pairs);
    }));
  } else if (type == 1) {
    *result = static_cast<Qvx32f>(countChanges<true>(
        src, n, [](Sides now, Sides before, uint64_t pairs) { return std::popcount((now.below ^ before.below) & pairs); }));
  } else if (type == 2) {  // from one side to the other both words change
    const int64_t twice = countChanges<false>(src, n, [](Sides now, Sides before, uint64_t pairs) {
      return std::popcount((now.below ^ before.below) & pairs) + std::popcount((now.above ^ before.above) & pairs);
    });
    *result = static_cast<Qvx32f>(static_cast<Qvx64f>(twice) / 2);
  } else {
    return qvxStatBadRange;
  }
  return qvxStatOk;
}

}  // namespace

QvxStatus qvxsZeroCrossing_16s32f(const Qvx16s* src, int len, Qvx32f* count, int type) {
  return zeroCrossing(src, len, count, type);
}
QvxStatus qvxsZeroCrossing_32f(const Qvx32f* src, int len, Qvx32f* count, int type) {
  return zeroCrossing(src, len, count, type);
}
