// Reciprocals with a least magnitude: values, the two warnings, threads, and no floating-point exceptions.
#include <qvx/qvxcore.h>
#include <qvx/qvxs.h>

#include "convert/conversion.h"
#include "reference/level.h"

namespace {

using namespace tests;
using reference::Long;

template <class T> struct Parts { using Type = T; };
template <> struct Parts<Qvx32fc> { using Type = Qvx32f; };
template <> struct Parts<Qvx64fc> { using Type = Qvx64f; };
template <class T> using PartOf = typename Parts<T>::Type;

template <class T> std::vector<T> sources() {
  Random random(seed());
  std::vector<T> v = values<T>(3000, random);
  using Part = PartOf<T>;
  const Part inf = std::numeric_limits<Part>::infinity();
  const Part all[] = {0,
                      Part(-0.0),
                      inf,
                      -inf,
                      Part(NAN),
                      std::numeric_limits<Part>::denorm_min(),
                      1,
                      -2,
                      std::numeric_limits<Part>::max(),
                      std::numeric_limits<Part>::min()};
  for (const Part x : all) {
    if constexpr (isComplex<T>) {
      for (const Part y : all) v.push_back({x, y});
    } else {
      v.push_back(x);
    }
  }
  std::shuffle(v.begin(), v.end(), random);
  return v;
}

template <class T> void reals(QvxStatus (*f)(const T*, T*, int, T), QvxStatus (*inPlace)(T*, int, T), size_t threaded) {
  for (const T level : {T(0), T(-0.0), T(0.75), T(1e-20)}) {
    SCOPED_TRACE("level " + show(level));
    const auto oracle = [=](T x) {
      const T size = std::fabs(x);
      return 1 / std::copysign(size < level ? level : size, x);
    };
    Elementwise<T, T> trial(std::make_tuple(sources<T>()), oracle);
    trial.warns([=](T x) { return x == 0 && level == 0 ? qvxWarnInvZero : qvxStatOk; });
    if (threaded > 3100) {
      trial.run([=](const T* a, T* d, int n) { return f(a, d, n, level); });
      trial.run([=](const T*, T* d, int n) { return inPlace(d, n, level); }, 0);
    }
    // As many as are not divided; the warning of more of them is tested below.
    auto v = sources<T>();
    v.resize(std::min(v.size(), threaded - 1));
    Elementwise<T, T> below(std::make_tuple(v), oracle);
    below.warns([=](T x) { return x == 0 && level == 0 ? qvxWarnInvZero : qvxStatOk; });
    below.run([=](const T* a, T* d, int n) { return f(a, d, n, level); });
    below.run([=](const T*, T* d, int n) { return inPlace(d, n, level); }, 0);
    const auto call = [=](const T* a, T* d, int n) { return f(a, d, n, level); };
    for (const int rounding : kRoundings) below.runOnce(underRounding(rounding, call));  // to nearest in all of them
  }
}

TEST(Inverse, OfReals) {
  reals(qvxsThreshold_LTInv_32f, qvxsThreshold_LTInv_32f_I, 8192);
  reals(qvxsThreshold_LTInv_64f, qvxsThreshold_LTInv_64f_I, 2048);
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

template <class C, class T>
void complexes(QvxStatus (*f)(const C*, C*, int, T), QvxStatus (*inPlace)(C*, int, T), size_t threaded, double roundings) {
  for (const T level : {T(0), T(0.75), T(1e-20), std::numeric_limits<T>::max() / 2}) {
    SCOPED_TRACE("level " + show(level));
    auto v = sources<C>();
    const auto one = [=](C x) {
      C d;
      EXPECT_EQ(f(&x, &d, 1, level), x.re == 0 && x.im == 0 && level == 0 ? qvxWarnInvZero : qvxStatOk);
      return d;
    };
    for (const C x : v) expectInverse(x, level, one(x), roundings);
    if (testing::Test::HasFailure()) return;
    v.resize(std::min(v.size(), threaded - 1));
    Elementwise<C, C> trial(std::make_tuple(v), one);
    trial.warns([=](C x) { return x.re == 0 && x.im == 0 && level == 0 ? qvxWarnInvZero : qvxStatOk; });
    trial.run([=](const C* a, C* d, int n) { return f(a, d, n, level); });
    trial.run([=](const C*, C* d, int n) { return inPlace(d, n, level); }, 0);
    const auto call = [=](const C* a, C* d, int n) { return f(a, d, n, level); };
    for (const int rounding : kRoundings) trial.runOnce(underRounding(rounding, call));
  }
}

TEST(Inverse, OfComplexes) {
  complexes(qvxsThreshold_LTInv_32fc, qvxsThreshold_LTInv_32fc_I, 2048, 0.51);
  complexes(qvxsThreshold_LTInv_64fc, qvxsThreshold_LTInv_64fc_I, 512, 4);
}

class Threads {
 public:
  explicit Threads(int n) { qvxSetNumThreads(n); }
  ~Threads() { qvxSetNumThreads(0); }
};

// From its length on the warning is another, with one thread and with two, wherever the zero is; and no bit differs.
template <class T, class L> void warnings(QvxStatus (*f)(const T*, T*, int, L), QvxStatus (*inPlace)(T*, int, L), int threaded) {
  constexpr size_t kMost = 40001;
  std::vector<T> source(kMost);
  const auto all = sources<T>();
  for (size_t i = 0; i < kMost; ++i) {
    source[i] = all[i % all.size()];
    if constexpr (isComplex<T>) source[i].re = source[i].re == 0 ? 1 : source[i].re;
    else source[i] = source[i] == 0 ? 1 : source[i];
  }
  for (const int n : {threaded - 1, threaded, threaded + 1, static_cast<int>(kMost)}) {
    for (const int zero : {-1, 0, n / 2 - 1, n / 2, n - 1}) {
      std::vector<T> v(source.begin(), source.begin() + n);
      if (zero >= 0) v[static_cast<size_t>(zero)] = T{};
      std::vector<T> serial(v.size());
      for (const int threads : {1, 2}) {
        const Threads scope(threads);
        std::vector<T> d(v.size());
        const QvxStatus wanted = zero < 0 ? qvxStatOk : n < threaded ? qvxWarnInvZero : qvxWarnDivByZero;
        ASSERT_EQ(f(v.data(), d.data(), n, L(0)), wanted) << "length " << n << ", zero at " << zero << ", threads " << threads;
        if (threads == 1) serial = d;
        ASSERT_EQ(std::memcmp(d.data(), serial.data(), d.size() * sizeof(T)), 0) << "threads differ, length " << n;
        d = v;
        ASSERT_EQ(inPlace(d.data(), n, L(0)), wanted);
        ASSERT_EQ(std::memcmp(d.data(), serial.data(), d.size() * sizeof(T)), 0) << "in place, length " << n;
        ASSERT_EQ(inPlace(d.data(), n, L(0.5)), qvxStatOk) << "a level above 0 inverts zeros too";
      }
    }
  }
}

TEST(Inverse, WarningsAndThreads) {
  warnings(qvxsThreshold_LTInv_32f, qvxsThreshold_LTInv_32f_I, 8192);
  warnings(qvxsThreshold_LTInv_64f, qvxsThreshold_LTInv_64f_I, 2048);
  warnings(qvxsThreshold_LTInv_32fc, qvxsThreshold_LTInv_32fc_I, 2048);
  warnings(qvxsThreshold_LTInv_64fc, qvxsThreshold_LTInv_64fc_I, 512);
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
