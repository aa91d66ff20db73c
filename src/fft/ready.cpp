// Records whose tables are constants, computed by the compiler: 300 KB in all.
#include "fft/ready.h"
#include "fft/record.h"

namespace qvx::fft {

namespace {

// Sine and cosine of the eighth of a turn, kTurn steps to a turn, from their series.
constexpr size_t kTurn = size_t{1} << kHighestReady;

struct Eighth {
  double cosine[kTurn / 8 + 1] = {};
  double sine[kTurn / 8 + 1] = {};

  constexpr Eighth() {
    constexpr long double kPi = 3.14159265358979323846264338327950288L;
    for (size_t i = 0; i <= kTurn / 8; ++i) {
      const long double x = 2 * kPi * static_cast<long double>(i) / kTurn;
      long double term = 1;
      long double sums[] = {0, 0};
      for (int k = 0; k < 24; ++k) {
        sums[k % 2] += k % 4 < 2 ? term : -term;
        term *= x / (k + 1);
      }
      cosine[i] = static_cast<double>(sums[0]);
      sine[i] = static_cast<double>(sums[1]);
    }
  }
};

constexpr Eighth kEighth;  // computed once, not for each table: this file takes 0.7 s to compile, not 4

struct FromEighth {
  template <class Index, class Put> constexpr void operator()(size_t n, size_t count, Index x, Put put) const {
    for (size_t i = 0; i < count; ++i) {
      const size_t at = x(i) % n * (kTurn / n);
      const size_t part = at / (kTurn / 8);
      const size_t in = at % (kTurn / 8);
      const bool isBack = part % 2 != 0;  // counted back from the end of the eighth
      const size_t k = isBack ? kTurn / 8 - in : in;
      const bool isCrossed = (part + 1) / 2 % 2 != 0;
      const double c = isCrossed ? kEighth.sine[k] : kEighth.cosine[k];
      const double s = isCrossed ? kEighth.cosine[k] : kEighth.sine[k];
      put(i, part >= 2 && part < 6 ? -c : c, part >= 4 ? s : -s);
    }
  }
};

// The passes of n complex points, without their tables.
template <class T> constexpr Plan<T> passesOf(size_t n) {
  Plan<T> plan{};
  if constexpr (kServesInterleaved<Interleaved<T, false>>) {
    if (isInterleavedLength<T>(n)) {
      setInterleavedPasses(plan, n);
      return plan;
    }
  }
  withLanes<T>(n, [&](auto L) {
    plan.rows = static_cast<uint32_t>(n / kRowRadix<L>);
    plan.levels = passLevels(plan.rows);
  });
  return plan;
}

// Their number of twiddles.
template <class T, size_t kPoints> constexpr size_t twiddlesOf() {
  if (kPoints <= size_t{1} << kShortOrder<Interleaved<T, false>>) return 0;
  if (foldOf<T>(kPoints) == Fold::kHalves) return kPoints - kWidest<T>;
  if constexpr (kServesInterleaved<Interleaved<T, false>>) {
    if (isInterleavedLength<T>(kPoints)) return interleavedTwiddles<T>(kPoints);
  }
  const Plan<T> plan = passesOf<T>(kPoints);
  size_t rows = plan.rows;
  size_t count = kPoints - rows;
  for (size_t level = 0; level + 1 < plan.levels.count; ++level) {
    const size_t radix = plan.levels.radix[level];
    count += rows / radix * (radix - 1);
    rows /= radix;
  }
  return count;
}

template <class T, size_t kPoints> struct ComplexTables {
  alignas(64) T twiddles[2 * twiddlesOf<T, kPoints>() + 1] = {};

  constexpr ComplexTables() {
    Plan<T> plan{};
    if (twiddlesOf<T, kPoints>() > 0) writePassesAt<Interleaved<T, false>>(plan, kPoints, twiddles, FromEighth());
  }
};
template <class T, size_t kPoints> constexpr ComplexTables<T, kPoints> kComplexTables;

template <class T, size_t kNumbers> struct RealTables {
  alignas(64) T twiddles[kNumbers / 2] = {};

  constexpr RealTables() { writeRealGroups(twiddles, kNumbers, kNumbers / 4, kHalvedTwiddle, FromEighth()); }
};
template <class T, size_t kNumbers> constexpr RealTables<T, kNumbers> kRealTables;

// A plan that leads to them: the passes of a plan that writes its tables elsewhere.
template <class T, size_t kPoints> constexpr ComplexPlan<T> readyPlan(int64_t workBytes) {
  ComplexPlan<T> plan{};
  plan.n = kPoints;
  plan.workBytes = static_cast<int32_t>(workBytes);
  if (twiddlesOf<T, kPoints>() == 0) return plan;
  if (foldOf<T>(kPoints) != Fold::kHalves) plan.plan = passesOf<T>(kPoints);
  plan.plan.rowTwiddles = kComplexTables<T, kPoints>.twiddles;
  if (foldOf<T>(kPoints) == Fold::kHalves) return plan;
  plan.plan.levelTwiddles = plan.plan.rowTwiddles + 2 * (kPoints - plan.plan.rows);
  return plan;
}

template <class Record, int kOrder> constexpr Record record() {
  using T = typename Record::T;
  Record spec{};
  spec.magic = Record::kId;
  spec.order = kOrder;
  spec.invScaled = true;
  spec.normFactor = T(1) / static_cast<T>(int64_t{1} << kOrder);
  constexpr size_t kLength = size_t{1} << kOrder;
  if constexpr (requires { spec.plan.half; }) {
    spec.workSize = static_cast<int32_t>(realSizes<T>(kOrder).work);
    spec.plan.half = readyPlan<T, kLength / 2>(spec.workSize);
    spec.plan.twiddles = {kRealTables<T, kLength>.twiddles, nullptr};
  } else {
    spec.workSize = static_cast<int32_t>(complexSizes<T>(kOrder).work);
    spec.plan = readyPlan<T, kLength>(spec.workSize);
  }
  return spec;
}
template <class Record, int kOrder> constexpr Record kReady = record<Record, kOrder>();

template <class Record, int... kOrders> const Record* select(int order, std::integer_sequence<int, kOrders...>) {
  static constexpr const Record* kAll[] = {&kReady<Record, kLowestReady + kOrders>...};
  return kAll[order - kLowestReady];
}

}  // namespace

template <class Record> const Record* readySpec(int order) {
  constexpr int kMost = requires(Record r) { r.plan.half; }
  ? kHighestReady : kHighestReady - 1;
  if (order < kLowestReady || order > kMost) return nullptr;
  return select<Record>(order, std::make_integer_sequence<int, kMost - kLowestReady + 1>());
}

template const QvxsFFTSpec_R_32f* readySpec<QvxsFFTSpec_R_32f>(int);
template const QvxsFFTSpec_R_64f* readySpec<QvxsFFTSpec_R_64f>(int);
template const QvxsFFTSpec_C_32fc* readySpec<QvxsFFTSpec_C_32fc>(int);
template const QvxsFFTSpec_C_64fc* readySpec<QvxsFFTSpec_C_64fc>(int);

}  // namespace qvx::fft
