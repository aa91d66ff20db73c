// The steps of a Viterbi decoder for a four-dimensional code over pairs of complex symbols.
#include <algorithm>
#include <array>

#include "frame/reduce.h"
#include "frame/unroll.h"

using namespace qvx;

namespace {

// The trellis that a number of states stands for.
int trellis(int states) { return states == 16 || states == 32 ? states : 64; }

// ---- distances to the points of the lattice

Qvx32u square(int distance) { return static_cast<Qvx32u>(distance * distance) >> 4; }

Qvx32u point(Qvx32u error, Qvx32u number) { return error | number << 16; }

// Of points at the same distance the second.
Qvx32u nearer(Qvx32u first, Qvx32u second, Qvx32u number) {
  return first < second ? point(first, number) : point(second, number + 4);
}

// ---- subsets of four dimensions

struct Sum {
  Qvx32u error;
  Qvx32u points;
};

Sum joined(const Qvx32u* first, const Qvx32u* second) {
  return {(*first & 0xFFFF) + (*second & 0xFFFF), (*first >> 16) | (*second >> 16) << 8};
}

// The least sum, of equal ones the first.
template <size_t kCount> Sum least(const std::array<Sum, kCount>& sums) {
  return *std::min_element(sums.begin(), sums.end(), [](Sum a, Sum b) { return a.error < b.error; });
}

Sum subset(const Qvx32u* e, const Qvx32u* f, int trellis, int i, int inversion) {
  if (trellis == 16) {
    const int t = (inversion & 7) ^ i;
    const int a = t >> 2;
    const int b = (t + a) & 3;
    return least<2>({joined(e + a, f + b), joined(e + a + 2, f + ((b + 2) & 3))});
  }
  const auto t = trellis == 64 ? (inversion & 31) ^ i : ((inversion & 15) ^ i) + (i & 8) * 2;
  const int a = t >> 2;
  const int b = (t + a) & 3;
  const std::array<Sum, 2> pair = {joined(e + a, f + b), joined(e + ((a + 4) & 7), f + 4 + b)};
  if (trellis == 64) return least(pair);
  const int c = (t ^ 8) >> 2;
  const int d = ((t ^ 8) + c) & 3;
  return least<4>({joined(e + c, f + d), joined(e + ((c + 4) & 7), f + 4 + d), pair[0], pair[1]});
}

// The least or the greatest of a vector.
template <class Op> struct Extreme : Reduction {
  static constexpr bool kRepeats = true;

  template <class V> V start(V v) const { return v; }
  template <class V> V add(V all, V v) const { return Op()(all, v); }
  template <class V> static V join(V a, V b) { return Op()(a, b); }
  template <class V> LaneOf<V> total(V all) const { return hn::GetLane(folded<1>(all, Op())); }
};
struct Least {
  template <class V> V operator()(V a, V b) const { return hn::Min(a, b); }
};
struct Greatest {
  template <class V> V operator()(V a, V b) const { return hn::Max(a, b); }
};

// ---- add, compare, select

struct Step {
  const Qvx16u* pathError;
  const Qvx8u* nextState;
  Qvx16u* branchError;
  const Qvx16u* points;  // and their errors, in pairs
  Qvx32u* pathTable;     // from the offset on
  size_t states;
};

// By the definition, one branch after another.
template <size_t kBranches> void selectInTurn(const Step& s) {
  for (size_t i = 0; i < s.states; ++i) {
    for (size_t j = 0; j < kBranches; ++j) {
      const Qvx16u* const pair = s.points + 2 * (2 * j + (i & 1));
      const size_t n = s.nextState[i * kBranches + j];
      const int error = s.pathError[i] + static_cast<Qvx16s>(pair[1]);
      if (error >= s.branchError[n]) continue;
      s.branchError[n] = static_cast<Qvx16u>(error);
      s.pathTable[n] = pair[0] | static_cast<Qvx32u>(i) << 16;
    }
  }
}

// A branch as a number of 32 bits, such that the least number wins: the error, saturated where it cannot win, then the branch's
// place in the order. Places count from 1, because the old value wins against an equal error.
constexpr size_t kMostInOrder = 2046;  // states

// As numbers, so that the best branch into a state is a minimum, without mispredicted jumps.
template <size_t kBranches> void selectLeast(const Step& s) {
  constexpr size_t kWords = 2 * kBranches <= kVectorBytes / 2 ? 2 * kBranches : kVectorBytes / 2;
  const Lanes<Qvx16u, kWords> d;
  alignas(64) Qvx16u costs[2][2 * kBranches];  // of even and of odd states
  for (size_t j = 0; j < 2 * kBranches; ++j) {
    costs[j & 1][2 * (j / 2)] = static_cast<Qvx16u>(j + 1);
    costs[j & 1][2 * (j / 2) + 1] = s.points[2 * j + 1];
  }
  const Qvx8u last = reduce(Extreme<Greatest>(), s.states * kBranches, source(s.nextState));
  Qvx32u best[256];
  for (size_t n = 0; n <= last; ++n) best[n] = static_cast<Qvx32u>(s.branchError[n]) << 16;
  for (size_t i = 0; i < s.states; ++i) {
    alignas(64) Qvx32u branches[kBranches];
    const auto path = as<Qvx16u>(hn::Set(Lanes<Qvx32u, kWords / 2>(), static_cast<Qvx32u>(s.pathError[i]) << 16 | i << 5));
    for (size_t k = 0; k < 2 * kBranches; k += kWords) {
      store(hn::SaturatedAdd(load(d, costs[i & 1] + k), path), d, reinterpret_cast<Qvx16u*>(branches) + k);
    }
    const Qvx8u* const next = s.nextState + i * kBranches;
    unrolled<kBranches>([&](auto j) { best[next[j]] = std::min(best[next[j]], branches[j]); });
  }
  for (size_t n = 0; n <= last; ++n) {
    const Qvx32u order = best[n] & 0xFFFF;
    if (order == 0) continue;
    s.branchError[n] = static_cast<Qvx16u>(best[n] >> 16);
    s.pathTable[n] = s.points[2 * ((order - 1) & 31)] | (order - 1) >> 5 << 16;
  }
}

template <size_t kBranches> QvxStatus select(const Step& s) {
  Qvx16u signs = 0;
  for (size_t k = 0; k < 2 * kBranches; ++k) signs |= s.points[2 * k + 1];
  if (s.states > kMostInOrder || (signs & 0x8000) != 0) selectInTurn<kBranches>(s);
  else selectLeast<kBranches>(s);
  return qvxStatOk;
}

}  // namespace

QvxStatus qvxsGetVarPointDV_16sc(const Qvx16sc* pSrc, Qvx32u* pRefPoint, Qvx32u* pVariantPoint, const Qvx8u* pLabel, int states) {
  if (isNull(pSrc) || isNull(pRefPoint) || isNull(pVariantPoint) || isNull(pLabel)) return qvxStatNullPtr;
  const int dRe = (pSrc->re & 255) ^ 128;
  const int dIm = (pSrc->im & 255) ^ 128;
  const int re = pSrc->re - dRe;
  const int im = pSrc->im - dIm;
  *pRefPoint = (static_cast<Qvx32u>(re) & 0xFFFF) | static_cast<Qvx32u>(im) << 16;
  // Columns and rows around, modulo 4.
  const auto column = [re](int k) { return (((re - 128) >> 8) + 2 + k) & 3; };
  const auto row = [im](int k) { return ((((im - 128) >> 8) + 2 + k) & 3) * 4; };
  const int mask = states == 16 ? 3 : 7;
  const auto entry = [=](int r, int c) -> Qvx32u& { return pVariantPoint[pLabel[row(r) + column(c)] & mask]; };
  const Qvx32u re0 = square(dRe), re1 = square(256 - dRe), re2 = square(512 - dRe), reLeft = square(dRe + 256);
  const Qvx32u im0 = square(dIm), im1 = square(256 - dIm), im2 = square(512 - dIm), imBelow = square(dIm + 256);
  entry(0, 0) = point(re0 + im0, 0);
  entry(0, 1) = point(re1 + im0, 1);
  entry(1, 1) = point(re1 + im1, 2);
  entry(1, 0) = point(re0 + im1, 3);
  if (states == 16) return qvxStatOk;
  entry(2, 0) = nearer(re0 + im2, im0 + re2, 4);
  entry(2, 1) = nearer(re1 + im2, im0 + reLeft, 5);
  entry(3, 1) = nearer(re2 + im1, re0 + imBelow, 6);
  entry(3, 0) = nearer(re1 + imBelow, im1 + reLeft, 7);
  return qvxStatOk;
}

QvxStatus qvxsBuildSymblTableDV4D_16sc(const Qvx32u* pVariantPoint, Qvx16u* pCurrentSubsetPoint, int states, int bitInversion) {
  if (isNull(pVariantPoint) || isNull(pCurrentSubsetPoint)) return qvxStatNullPtr;
  const int n = trellis(states);
  for (int i = 0; i < n / 2; ++i) {
    const Sum sum = subset(pVariantPoint, pVariantPoint + 8, n, i, bitInversion);
    pCurrentSubsetPoint[2 * i] = static_cast<Qvx16u>(sum.points);
    pCurrentSubsetPoint[2 * i + 1] = static_cast<Qvx16u>(sum.error);
  }
  return qvxStatOk;
}

QvxStatus qvxsCalcStatesDV_16sc(const Qvx16u* pPathError, const Qvx8u* pNextState, Qvx16u* pBranchError,
                                const Qvx16u* pCurrentSubsetPoint, Qvx32u* pPathTable, int states, int offset) {
  if (isNull(pPathError) || isNull(pNextState) || isNull(pBranchError) || isNull(pCurrentSubsetPoint) || isNull(pPathTable))
    return qvxStatNullPtr;
  if (states < 1) return qvxStatOk;
  const Step step = {pPathError, pNextState, pBranchError, pCurrentSubsetPoint, pPathTable + offset, elements(states)};
  return states == 16 ? select<4>(step) : states == 32 ? select<8>(step) : select<16>(step);
}

QvxStatus qvxsUpdatePathMetricsDV_16u(Qvx16u* pBranchError, Qvx16u* pMinPathError, Qvx8u* pMinState, Qvx16u* pPathError,
                                      int states) {
  if (isNull(pBranchError) || isNull(pMinPathError) || isNull(pMinState) || isNull(pPathError)) return qvxStatNullPtr;
  const size_t n = elements(trellis(states));
  const Qvx16u minimum = reduce(Extreme<Least>(), n, source(pBranchError));
  const auto isLeast = [=](auto v) { return v == same<decltype(v)>(minimum); };
  *pMinState = static_cast<Qvx8u>(firstWhere(isLeast, n, source(pBranchError)));
  *pMinPathError = minimum;
  loop([](auto v, auto least) { return v - least; }, destination(pPathError), n, source(pBranchError), Constant{minimum});
  return loop([](auto all) { return all; }, destination(pBranchError), n, Constant<Qvx16u>{0xFFFF});
}
