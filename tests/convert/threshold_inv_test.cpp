// Reciprocals with a least magnitude: values, the two warnings, threads, and no floating-point exceptions.
#include <qvx/qvxcore.h>
#include <qvx/qvxs.h>
#include <xmmintrin.h>

#include "convert/conversion.h"
#include "reference/level.h"
#include "vector/divisors.h"

namespace {

using namespace tests;
using reference::Long;

template <class T> std::vector<T> sources() {
  Random random(seed());
  std::vector<T> v = values<T>(3000, random);
  using P = Part<T>;
  using L = std::numeric_limits<P>;
  const P all[] = {0, P(-0.0), L::infinity(), -L::infinity(), P(NAN), L::denorm_min(), 1, -2, L::max(), L::min()};
  for (const P x : all) {
    if constexpr (isComplex<T>) {
      for (const P y : all) v.push_back({x, y});
    } else {
      v.push_back(x);
    }
  }
  std::shuffle(v.begin(), v.end(), random);
  return v;
}

// As many as are not divided; the warning of more of them is tested below. To nearest, whatever the caller's mode.
template <class T, class L, class Oracle>
void expectAll(QvxStatus (*f)(const T*, T*, int, L), L level, int threaded, Oracle oracle) {
  auto v = sources<T>();
  v.resize(std::min(v.size(), static_cast<size_t>(threaded) - 1));
  Elementwise<T, T> trial(std::make_tuple(v), oracle);
  trial.warns([=](T x) { return isZero(x) && level == 0 ? qvxWarnInvZero : qvxStatOk; });
  const auto call = [=](const T* a, T* d, int n) { return f(a, d, n, level); };
  trial.run(call);
  trial.runInEveryRounding(call);
}

template <class T> void reals(QvxStatus (*f)(const T*, T*, int, T), int threaded) {
  for (const T level : {T(0), T(-0.0), T(0.75), T(1e-20)}) {
    SCOPED_TRACE("level " + show(level));
    expectAll(f, level, threaded, [=](T x) {
      const T size = std::fabs(x);
      return 1 / std::copysign(size < level ? level : size, x);
    });
  }
}

TEST(Inverse, OfReals) {
  reals(qvxsThreshold_LTInv_32f, 8192);
  reals(qvxsThreshold_LTInv_64f, 2048);
}

template <class C, class T> void expectInverse(C v, T level, C got, double roundings) {
  const auto expectParts = [&](T re, T im) {
    const C want = {re, im};
    EXPECT_EQ(std::memcmp(&want, &got, sizeof(C)), 0) << show(v) << " became " << show(got) << ", not " << show(want);
  };
  const T inf = std::numeric_limits<T>::infinity();
  const Long size = reference::magnitude(v);
  if (v.re != v.re || v.im != v.im) return expectParts(T(NAN), T(NAN));
  if (std::isinf(size)) return expectParts(std::copysign(T(0), v.re), std::copysign(T(0), -v.im));
  if (size == 0 && level == 0) return expectParts(inf, inf);
  if (size == 0) return expectParts(std::copysign(1 / level, v.re), std::copysign(T(0), -v.im));
  const Long larger = std::max(size, Long{level});
  const Long re = v.re / size / larger;
  const Long im = -v.im / size / larger;
  const Long allowed = roundings * std::numeric_limits<T>::epsilon() * std::max(1 / larger, Long{std::numeric_limits<T>::min()});
  const auto isNear = [=](T a, Long b) {
    return fabsl(b) > std::numeric_limits<T>::max() * (1 - roundings * std::numeric_limits<T>::epsilon())
               ? fabsl(a) >= std::numeric_limits<T>::max() * (1 - roundings * std::numeric_limits<T>::epsilon())
               : fabsl(a - b) <= allowed;
  };
  EXPECT_TRUE(isNear(got.re, re) && isNear(got.im, im)) << show(v) << " became " << show(got) << ", level " << show(level);
}

template <class C, class T> void complexes(QvxStatus (*f)(const C*, C*, int, T), int threaded, double roundings) {
  for (const T level : {T(0), T(0.75), T(1e-20), std::numeric_limits<T>::max() / 2}) {
    SCOPED_TRACE("level " + show(level));
    const auto one = [=](C x) {
      C d;
      EXPECT_EQ(f(&x, &d, 1, level), isZero(x) && level == 0 ? qvxWarnInvZero : qvxStatOk);
      return d;
    };
    for (const C x : sources<C>()) expectInverse(x, level, one(x), roundings);
    if (!testing::Test::HasFailure()) expectAll(f, level, threaded, one);
  }
}

TEST(Inverse, OfComplexes) {
  complexes(qvxsThreshold_LTInv_32fc, 2048, 0.51);
  complexes(qvxsThreshold_LTInv_64fc, 512, 4);
}

class Threads {
 public:
  explicit Threads(int n) { qvxSetNumThreads(n); }
  ~Threads() { qvxSetNumThreads(0); }
};

// From its length on the warning is another, with one thread and with two, wherever the zero is.
template <class T, class L> void warnings(QvxStatus (*f)(const T*, T*, int, L), int threaded) {
  auto source = sources<T>();
  std::erase_if(source, [](T x) { return isZero(x); });
  for (const int n : {threaded - 1, threaded, threaded + 1, 40001}) {
    std::vector<T> v(static_cast<size_t>(n)), d(v.size());
    for (size_t i = 0; i < v.size(); ++i) v[i] = source[i % source.size()];
    for (const int zero : {-1, 0, n / 2 - 1, n / 2, n - 1}) {
      const T before = v[static_cast<size_t>(std::max(zero, 0))];
      if (zero >= 0) v[static_cast<size_t>(zero)] = T{};
      for (const int threads : {1, 2}) {
        const Threads scope(threads);
        const QvxStatus wanted = zero < 0 ? qvxStatOk : n < threaded ? qvxWarnInvZero : qvxWarnDivByZero;
        ASSERT_EQ(f(v.data(), d.data(), n, L(0)), wanted) << "length " << n << ", zero at " << zero << ", threads " << threads;
        ASSERT_EQ(f(v.data(), d.data(), n, L(0.5)), qvxStatOk) << "a level above 0 inverts zeros too";
      }
      v[static_cast<size_t>(std::max(zero, 0))] = before;
    }
  }
}

TEST(Inverse, WarningsAndThreads) {
  warnings(qvxsThreshold_LTInv_32f, 8192);
  warnings(qvxsThreshold_LTInv_64f, 2048);
  warnings(qvxsThreshold_LTInv_32fc, 2048);
  warnings(qvxsThreshold_LTInv_64fc, 512);
}

// All exceptions unmasked: one would end the program. Flags that were up stay up.
template <class T, class L> void exceptions(QvxStatus (*f)(const T*, T*, int, L)) {
  const auto all = sources<T>();
  std::vector<T> v(50000);
  for (size_t i = 0; i < v.size(); ++i) v[i] = all[i % all.size()];
  std::vector<T> d(v.size());
  for (const unsigned flags : {0x00U, 0x08U}) {
    for (const int n : {1, 5, 100, 3000, 50000}) {
      for (const unsigned masks : {0x1F80U, 0x0000U}) {
        const unsigned before = _mm_getcsr();
        _mm_setcsr(masks | flags);
        f(v.data(), d.data(), n, L(0));
        f(v.data(), d.data(), n, L(0.5));
        const unsigned after = _mm_getcsr();
        _mm_setcsr(before);
        ASSERT_EQ(after, masks | flags) << "length " << n;
      }
    }
  }
}

TEST(Inverse, RaisesNoExceptions) {
  for (const int threads : {1, 2}) {
    const Threads scope(threads);
    exceptions(qvxsThreshold_LTInv_32f);
    exceptions(qvxsThreshold_LTInv_64f);
    exceptions(qvxsThreshold_LTInv_32fc);
    exceptions(qvxsThreshold_LTInv_64fc);
  }
}

}  // namespace
