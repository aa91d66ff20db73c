#include "convolution/convolve.h"

#include "convolution/kernel.h"
#include "convolution/sum_shift.h"
#include "frame/team.h"

namespace qvx::convolution {

namespace {

// Outputs and multiplications (of 32-bit reals) from which a call is divided between threads: waking one takes 8 us, in which
// another does some 10^6 multiplications.
template <class T> inline constexpr size_t kOutputsWorthTeam = PartsOf<T>::kCount == 1 ? 1601 : 801;
inline constexpr size_t kProductsWorthTeam = 1 << 21;

template <class K, class Order, class Products> void plain(const Products& products, size_t count, typename K::Element* y) {
  filter<K, Order>(products, count, [y](auto v, size_t at, auto... some) {
    constexpr TagOf<decltype(v)> d;
    if constexpr (sizeof...(some) == 0) store(v, d, parts(y + at));
    else storeFirst(v, d, parts(y + at), some * PartsOf<typename K::Element>::kCount...);
  });
}

template <class K>
void divided(const typename K::Element* x, const typename K::Tap* p, size_t taps, size_t count, typename K::Element* y,
             Call call) {
  using T = typename K::Element;
  if (call == Call::kShort) return plain<K, ShortOrder<K::kChannels>>(OneRow<K>{x, p, taps}, count, y);
  const size_t work = count * taps * PartsOf<T>::kCount * sizeof(T) / sizeof(float);
  if (count < kOutputsWorthTeam<T> || work < kProductsWorthTeam) {
    return plain<K, LongOrder<K::kChannels>>(OneRow<K>{x, p, taps}, count, y);
  }
  dividedBetween(ownGetNumThreads(), count, [=](size_t from, size_t some, size_t) {
    plain<K, LongOrder<K::kChannels>>(OneRow<K>{x + from, p, taps}, some, y + from);
    return qvxStatOk;
  });
}

// Taps that count as their conjugates.
template <class T> struct ConjugateSum : ComplexSum<T> {
  using V = typename ComplexSum<T>::V;

  static V total(const V* sum) {
    const V crossed = swapped(sum[1]);
    return hn::OddEven(sum[0] - crossed, sum[0] + crossed);
  }
};

// Two sums for each element of two results.
template <class V> auto scaledInTurn(const SumShift& shift, Pair<V> sums) {
  const TagOf<V> d;
  return narrow<int16_t>(
      Pair<V>{shift(hn::InterleaveLower(d, sums.lo, sums.hi)), shift(hn::InterleaveUpper(d, sums.lo, sums.hi))});
}

// lanes: those of y, all of which may be written.
template <class Products> void integers(const Products& products, size_t lanes, int16_t* y, int64_t places) {
  const auto shift = SumShift::of(places);
  filter<PairSum, AnyOrder<PairSum::kChannels>>(products, (lanes + 1) / 2, [=](auto sums, size_t at, auto... some) {
    const auto v = scaledInTurn(shift, sums);
    constexpr TagOf<decltype(v)> d;
    constexpr size_t kWhole = hn::MaxLanes(d);
    if constexpr (sizeof...(some) != 0) storeFirst(v, d, y + 2 * at, lanes - 2 * at);
    else if (lanes - 2 * at >= kWhole) store(v, d, y + 2 * at);
    else storeFirst(v, d, y + 2 * at, kWhole - 1);
  });
}

template <class K>
void dealt(const Dealt<typename K::Element>& x, const typename K::Tap* p, size_t taps, size_t count, typename K::Element* y,
           Call call) {
  using S = typename K::Element;
  const auto inOrder = [=]<class Order>(Order) {
    if (areTapsByRow(taps, x.count)) {
      plain<K, Order>(DealtRows<K, S>{x.rows, x.stride, x.count, x.row, x.at, p, taps}, count, y);
    } else {
      plain<K, Order>(DealtTaps<K>{x.rows, x.stride, x.count, x.row, x.at, p, taps}, count, y);
    }
  };
  if (call == Call::kShort) inOrder(ShortOrder<K::kChannels>());
  else inOrder(LongOrder<K::kChannels>());
}

}  // namespace

void convolve(const Qvx32f* x, const Qvx32f* p, size_t taps, size_t count, Qvx32f* y, Call call) {
  divided<RealSum<Qvx32f>>(x, p, taps, count, y, call);
}
void convolve(const Qvx64f* x, const Qvx64f* p, size_t taps, size_t count, Qvx64f* y, Call call) {
  divided<RealSum<Qvx64f>>(x, p, taps, count, y, call);
}
void convolve(const Qvx32fc* x, const Qvx32fc* p, size_t taps, size_t count, Qvx32fc* y, Call call) {
  divided<ComplexSum<Qvx32fc>>(x, parts(p), taps, count, y, call);
}
void convolve(const Qvx64fc* x, const Qvx64fc* p, size_t taps, size_t count, Qvx64fc* y, Call call) {
  divided<ComplexSum<Qvx64fc>>(x, parts(p), taps, count, y, call);
}

void correlate(const Qvx32f* x, const Qvx32f* p, size_t taps, size_t count, Qvx32f* y, Call call) {
  convolve(x, p, taps, count, y, call);
}
void correlate(const Qvx64f* x, const Qvx64f* p, size_t taps, size_t count, Qvx64f* y, Call call) {
  convolve(x, p, taps, count, y, call);
}
void correlate(const Qvx32fc* x, const Qvx32fc* p, size_t taps, size_t count, Qvx32fc* y, Call call) {
  divided<ConjugateSum<Qvx32fc>>(x, parts(p), taps, count, y, call);
}
void correlate(const Qvx64fc* x, const Qvx64fc* p, size_t taps, size_t count, Qvx64fc* y, Call call) {
  divided<ConjugateSum<Qvx64fc>>(x, parts(p), taps, count, y, call);
}

void convolve(const Qvx16s* x, PairedTaps p, size_t count, Qvx16s* y, int64_t places) {
  integers(OneRow<PairSum>{reinterpret_cast<const Qvx16sc*>(x), p.pairs, p.count}, count, y, places);
}
void convolve(const Qvx16sc* x, PairedTaps p, size_t count, Qvx16sc* y, int64_t places) {
  integers(OneRow<PairSum>{x, p.pairs, p.count}, 2 * count, parts(y), places);
}

void convolve(const Dealt<Qvx32f>& x, const Qvx32f* p, size_t taps, size_t count, Qvx32f* y, Call call) {
  dealt<RealSum<Qvx32f>>(x, p, taps, count, y, call);
}
void convolve(const Dealt<Qvx64f>& x, const Qvx64f* p, size_t taps, size_t count, Qvx64f* y, Call call) {
  dealt<RealSum<Qvx64f>>(x, p, taps, count, y, call);
}
void convolve(const Dealt<Qvx32fc>& x, const Qvx32fc* p, size_t taps, size_t count, Qvx32fc* y, Call call) {
  dealt<ComplexSum<Qvx32fc>>(x, parts(p), taps, count, y, call);
}
void convolve(const Dealt<Qvx64fc>& x, const Qvx64fc* p, size_t taps, size_t count, Qvx64fc* y, Call call) {
  dealt<ComplexSum<Qvx64fc>>(x, parts(p), taps, count, y, call);
}
void convolve(const Dealt<Qvx16s>& x, const Qvx16sc* pairs, size_t taps, size_t count, Qvx16s* y, int64_t places) {
  integers(DealtRows<PairSum, Qvx16s>{x.rows, x.stride, x.count, x.row, x.at, pairs, taps}, count, y, places);
}
void convolve(const Dealt<Qvx16sc>& x, const Qvx16sc* pairs, size_t taps, size_t count, Qvx16sc* y, int64_t places) {
  integers(DealtRows<PairSum, Qvx16sc>{x.rows, x.stride, x.count, x.row, x.at, pairs, taps}, 2 * count, parts(y), places);
}

PairedTaps paired(const Qvx16s* p, size_t taps, Qvx16sc* pairs) {
  const auto at = [=](size_t k) { return k < taps ? p[k] : Qvx16s{0}; };
  const size_t count = pairsOf(taps, Qvx16s());
  for (size_t k = 0; k < count; ++k) {
    pairs[2 * k] = {at(2 * k), at(2 * k + 1)};
    pairs[2 * k + 1] = {at(2 * k - 1), at(2 * k)};
  }
  return {pairs, count};
}
PairedTaps paired(const Qvx16sc* p, size_t taps, Qvx16sc* pairs) {
  for (size_t k = 0; k < taps; ++k) {
    pairs[2 * k] = {p[k].re, static_cast<Qvx16s>(-p[k].im)};
    pairs[2 * k + 1] = {p[k].im, p[k].re};
  }
  return {pairs, taps};
}

Qvx16s scaledSum(int64_t sum, int64_t places) {
  const auto wrapped = static_cast<int32_t>(sum);
  if (places < 0) return scaled<Qvx16s>(int64_t{wrapped}, static_cast<int>(std::min<int64_t>(-places, 31)));
  return places > 31 ? Qvx16s{0} : saturate<Qvx16s>(static_cast<int32_t>(static_cast<uint32_t>(wrapped) << places));
}

}  // namespace qvx::convolution
