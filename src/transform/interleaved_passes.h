// The passes of passes.h over complex numbers as they stand in memory, P = L / 2 to a vector: for 16 registers, of which 8 points
// take 8 here, and all 16 where their parts stand in a vector each. A product with a twiddle costs an exchange of parts, and
// nothing is deinterleaved: in AVX2 2^8 to 2^12 floats take 0.79 to 0.91 of the time of those passes, 2^8 to 2^11 doubles 0.83 to
// 0.99; in SSSE3 floats 0.86 to 0.95, 2^8 to 2^10 doubles 0.93 to 0.97, 2^11 1.01.
// Row j of the work array holds R neighbouring results.
#pragma once

#include "transform/plan.h"
#include "transform/small.h"

namespace qvx::transform {

// The radices of the row, the inner and the last pass, for 256 points and on. 2^12 doubles would take 2.3 of the time of the
// passes of passes.h: points 4 KB apart share a set of the first-level cache.
struct InterleavedPlan {
  uint8_t row, inner, last;
};
inline constexpr int kLowestInterleaved = 8;
inline constexpr InterleavedPlan kInterleavedPlans[] = {{8, 4, 8}, {8, 8, 8}, {8, 16, 8}, {8, 16, 16}, {16, 16, 16}};
template <class T> inline constexpr size_t kInterleavedLengths = sizeof(T) == 4 ? 5 : kFuses ? 4 : 3;

template <class Points> inline constexpr bool kServesInterleaved = !kHasMasks && kIsInterleaved<Points>;
template <class T> constexpr bool isInterleavedLength(size_t n) {
  constexpr size_t kLeast = size_t{1} << kLowestInterleaved;
  return n >= kLeast && n < kLeast << kInterleavedLengths<T>;
}

// Numbers l of the vectors to row l of the work array, by halves, as in the row pass: a processor with one port for exchanges
// across halves takes 0.8 of the time for it, one with two 1.02.
template <class V, size_t P> QVX_INLINE void putTransposed(V (&r)[P], LaneOf<V>* y, size_t row) {
  if constexpr (P == 1) {
    store(r[0], TagOf<V>(), y);
  } else if constexpr (sizeof(LaneOf<V>) == 8) {
    unrolled<P>([&](auto i) { storeHalves(r[i], y + 2 * i, y + row + 2 * i); });
  } else if constexpr (P == 2) {
    transposePoints(r);
    store(r[0], TagOf<V>(), y);
    store(r[1], TagOf<V>(), y + row);
  } else {
    unrolled<P / 2>([&](auto i) {
      auto even = as<double>(r[2 * i]);
      auto odd = as<double>(r[2 * i + 1]);
      transposeInBlocks(even, odd);
      storeHalves(as<float>(even), y + 4 * i, y + 2 * row + 4 * i);
      storeHalves(as<float>(odd), y + row + 4 * i, y + 3 * row + 4 * i);
    });
  }
}

// twiddles: for each P rows and each k = 1..R-1 P numbers exp(-2 pi i j k / (R * kRows)). Two pointers, of which the compiler
// does not know that they are equal: else it loads a vector once and spreads its parts by two shuffles, where two loads do that.
template <size_t R, bool kSwapped, size_t kRows, class T>
[[gnu::noinline, gnu::flatten]] void interleavedRowPass(const T* src, T* y, const T* twiddles) {
  constexpr size_t L = kWidest<T>;
  constexpr size_t P = L / 2;
  const Lanes<T, L> d;
  using V = Vec<Lanes<T, L>>;
  using Z = ComplexVector<V, kSwapped>;
  const T* again = twiddles;
  __asm__("" : "+r"(again));
  for (size_t j = 0; j < kRows; j += P, twiddles += (R - 1) * L, again += (R - 1) * L) {
    Z x[R];
    dft(x, [&](auto m) { return Z{point(load(d, src + 2 * (j + m * kRows)))}; });
    unrolled<R / P>([&](auto q) {
      V r[P];
      unrolled<P>([&](auto l) {
        constexpr size_t k = q * P + l;
        if constexpr (k > 0) {
          constexpr size_t at = (k - 1) * L;
          if constexpr (P == 1) x[k] = product(x[k], same<V>(twiddles[at]), same<V>(twiddles[at + 1]));
          else x[k] = product(x[k], evensTwice(hn::Load(d, twiddles + at)), oddsTwice(hn::Load(d, again + at)));
        }
        r[l] = x[k].v;
      });
      putTransposed(r, y + 2 * (j * R + q * P), 2 * R);
    });
  }
}

// The inner pass spreads the parts of a twiddle over a vector. Where no load repeats a float but one repeats a pair, each part
// stands twice: 2^8 to 2^12 floats take 0.98 of the time.
template <class T> inline constexpr size_t kPartTimes = kVectorBytes == 16 && sizeof(T) == 4 ? 2 : 1;
template <class V> QVX_INLINE V spread(const LaneOf<V>* part) {
  if constexpr (kPartTimes<LaneOf<V>> == 1) {
    return same<V>(*part);
  } else {
    double pair;
    std::memcpy(&pair, part, sizeof(pair));
    return as<float>(hn::Set(hn::Repartition<double, TagOf<V>>(), pair));
  }
}

// What becomes of result k of transform q.
template <size_t N, class T> struct TimesTwiddle {
  const T* twiddles;

  template <class V, bool kSwapped> QVX_INLINE auto operator()(auto k, size_t q, ComplexVector<V, kSwapped> z) const {
    if constexpr (k == 0) {
      return z.v;
    } else {
      const T* const w = twiddles + 2 * kPartTimes<T> * (q * (N - 1) + k - 1);
      return product(z, spread<V>(w), spread<V>(w + kPartTimes<T>)).v;
    }
  }
};
template <class Scale> struct TimesScale {
  Scale scale;

  template <class V, bool kSwapped> QVX_INLINE V operator()(auto, size_t, ComplexVector<V, kSwapped> z) const {
    return scale(z.v);
  }
};

// The rows of transform q: the first is q * kStep, the others follow kApart apart. Constants, since 8 points of which each has an
// address to be computed take up to 1.6 of the time.
template <size_t kStep_, size_t kApart_> struct Rows {
  static constexpr size_t kStep = kStep_;
  static constexpr size_t kApart = kApart_;
};

// The inner and the last pass: `count` transforms of N rows of kWidth numbers.
template <size_t N, bool kSwapped, size_t kWidth, class From, class To, class T, class Finish>
[[gnu::noinline, gnu::flatten]] void interleavedColumns(const T* src, T* dst, size_t count, Finish finish) {
  constexpr size_t L = kWidest<T>;
  const Lanes<T, L> d;
  using Z = ComplexVector<Vec<Lanes<T, L>>, kSwapped>;
  for (size_t q = 0; q < count; ++q) {
    for (size_t column = 0; column < 2 * kWidth; column += L) {
      const T* const from = src + 2 * kWidth * From::kStep * q + column;
      T* const to = dst + 2 * kWidth * To::kStep * q + column;
      transformPoints<N>([&](auto m) { return Z{point(load(d, from + 2 * kWidth * From::kApart * m))}; },
                         [&](auto k, auto z) { store(finish(k, q, z), d, to + 2 * kWidth * To::kApart * k); });
    }
  }
}

// n points.
template <class T, bool kSwapped, class Scale>
void interleavedPasses(size_t n, const Plan<T>& plan, Interleaved<const T, kSwapped> src, Interleaved<T, kSwapped> dst, T* y,
                       Scale scale) {
  unrolled<kInterleavedLengths<T>>([&](auto i) {
    if (n != size_t{1} << (kLowestInterleaved + i)) return;
    constexpr size_t R = kInterleavedPlans[i].row;
    constexpr size_t A = kInterleavedPlans[i].inner;
    constexpr size_t B = kInterleavedPlans[i].last;
    interleavedRowPass<R, kSwapped, A * B>(src.p, y, plan.rowTwiddles);
    using Inner = Rows<1, B>;
    interleavedColumns<A, kSwapped, R, Inner, Inner>(y, y, B, TimesTwiddle<A, T>{plan.levelTwiddles});
    interleavedColumns<B, kSwapped, R, Rows<B, 1>, Rows<1, A>>(y, dst.p, A, TimesScale<Scale>{scale});
  });
}

template <class T> constexpr void setInterleavedPasses(Plan<T>& plan, size_t n) {
  const InterleavedPlan radix = kInterleavedPlans[log2Of(n) - kLowestInterleaved];
  plan.rows = static_cast<uint32_t>(n / radix.row);
  plan.levels = {2, {radix.inner, radix.last}};
}
// The twiddles of the inner pass, and what all of them take, as numbers of two floats.
template <class T> constexpr size_t innerTwiddles(const Plan<T>& plan) {
  return plan.rows / plan.levels.radix[0] * (plan.levels.radix[0] - 1U);
}
template <class T> constexpr size_t interleavedTwiddles(size_t n) {
  Plan<T> plan{};
  setInterleavedPasses(plan, n);
  return n - plan.rows + kPartTimes<T> * innerTwiddles(plan);
}
template <class T, class Write> constexpr T* writeInterleavedPasses(Plan<T>& plan, size_t n, T* row, Write write) {
  constexpr size_t P = kWidest<T> / 2;
  setInterleavedPasses(plan, n);
  const size_t R = n / plan.rows;
  const size_t count = n - plan.rows;
  write(
      n, count, [R](size_t i) { return (i / (P * (R - 1)) * P + i % P) * (i / P % (R - 1) + 1); }, intoPairs(row));
  T* const inner = row + 2 * count;
  plan.levelTwiddles = inner;
  const size_t k = plan.levels.radix[0] - 1U;
  write(
      plan.rows, innerTwiddles(plan), [k](size_t i) { return i / k * (i % k + 1); },
      [inner](size_t i, double re, double im) {
        T* const at = inner + 2 * kPartTimes<T> * i;
        for (size_t time = 0; time < kPartTimes<T>; ++time) {
          at[time] = static_cast<T>(re);
          at[kPartTimes<T> + time] = static_cast<T>(im);
        }
      });
  return row + 2 * interleavedTwiddles<T>(n);
}

}  // namespace qvx::transform
