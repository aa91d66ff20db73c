// Products of two vectors, of a vector and a constant, and products added to the destination.
#include <qvx/qvxs.h>

#include <cmath>

#include "vector/members.h"

namespace {

using namespace tests;
using reference::scaled;
using reference::Wide;

const auto kProduct = [](Wide a, Wide b) { return a * b; };

// Complex integers: both parts exact, scaled and saturated once.
const auto kComplexProduct = []<class T>(T a, T b, int s) {
  using Part = decltype(T::re);
  return T{scaled<Part>(Wide{a.re} * b.re - Wide{a.im} * b.im, s), scaled<Part>(Wide{a.re} * b.im + Wide{a.im} * b.re, s)};
};

TEST(Mul, Scaled) {
  all(partwise(kProduct), qvxsMul_8u_Sfs, qvxsMul_16s_Sfs, qvxsMul_16u_Sfs, qvxsMulC_8u_Sfs, qvxsMulC_16s_Sfs, qvxsMulC_16u_Sfs,
      qvxsMulC_32s_Sfs);
  all(kComplexProduct, qvxsMul_16sc_Sfs, qvxsMul_32sc_Sfs, qvxsMulC_16sc_Sfs, qvxsMulC_32sc_Sfs);
  each([](Qvx16u a, Qvx16s b, int s) { return scaled<Qvx16s>(Wide{a} * b, s); }, qvxsMul_16u16s_Sfs);
  each([](Qvx16s a, Qvx16s b, int s) { return scaled<Qvx32s>(Wide{a} * b, s); }, qvxsMul_16s32s_Sfs);
  const auto byReal = [](Qvx32s a, Qvx32sc b, int s) {
    return Qvx32sc{scaled<Qvx32s>(Wide{a} * b.re, s), scaled<Qvx32s>(Wide{a} * b.im, s)};
  };
  each(byReal, qvxsMul_32s32sc_Sfs);
}

// Every pair of bytes: all sums, differences and products there are, at every scale factor that tells them apart.
TEST(Mul, AllPairsOfBytes) {
  std::vector<Qvx8u> a(65536), b(65536);
  for (size_t i = 0; i < 65536; ++i) a[i] = static_cast<Qvx8u>(i), b[i] = static_cast<Qvx8u>(i >> 8);
  const auto expect = [&](auto f, auto exact) {
    for (const int s : range(-10, 18)) {
      SCOPED_TRACE("scale factor " + std::to_string(s));
      Elementwise<Qvx8u, Qvx8u, Qvx8u>(std::make_tuple(a, b), [=](Qvx8u x, Qvx8u y) {
        return scaled<Qvx8u>(exact(x, y), s);
      }).runOnce([=](const Qvx8u* x, const Qvx8u* y, Qvx8u* d, int n) { return f(x, y, d, n, s); });
    }
  };
  expect(qvxsAdd_8u_Sfs, [](Wide x, Wide y) { return x + y; });
  expect(qvxsSub_8u_Sfs, [](Wide x, Wide y) { return y - x; });
  expect(qvxsMul_8u_Sfs, kProduct);
}

// Every 16-bit element against constants that make ties and extremes, where the four kernels take over from each other.
TEST(MulC, All16BitElements) {
  for (const Qvx16s c : {-32768, -3, 3, 512, 16384, 32767}) {
    for (const int s : {1, 2, 14, 15, 16, 17, 18, 29, 30, 31}) {
      SCOPED_TRACE("constant " + std::to_string(c) + ", scale factor " + std::to_string(s));
      Elementwise<Qvx16s, Qvx16s> trial(std::make_tuple(allOf<Qvx16s>()),
                                        [=](Qvx16s a) { return scaled<Qvx16s>(Wide{a} * c, s); });
      trial.runOnce([=](const Qvx16s* a, Qvx16s* d, int n) { return qvxsMulC_16s_Sfs(a, c, d, n, s); });
    }
  }
}

TEST(Mul, Plain) {
  all(saturated<Qvx16s>(kProduct), qvxsMul_16s, qvxsMulC_16s_I);
  each(saturated<Qvx16u>(kProduct), qvxsMul_8u16u);
  each([](Qvx16s a, Qvx16s b) { return static_cast<Qvx32f>(a) * static_cast<Qvx32f>(b); }, qvxsMul_16s32f);
}

// Float products: every operation rounded by itself.
const auto kFloatProduct = []<class T>(T a, T b) {
  if constexpr (isComplex<T>) return T{a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
  else return a * b;
};

TEST(Mul, Floats) {
  all(kFloatProduct, qvxsMul_32f, qvxsMul_64f, qvxsMul_32fc, qvxsMul_64fc, qvxsMulC_32f, qvxsMulC_64f, qvxsMulC_32fc,
      qvxsMulC_64fc);
  each([](Qvx32f a, Qvx32fc b) { return Qvx32fc{a * b.re, a * b.im}; }, qvxsMul_32f32fc);
}

// ---- by way of Qvx64f: two roundings, and not the exact product near the top of the range

Qvx32s roundedToInt(double v) { return static_cast<Qvx32s>(std::nearbyint(std::min(std::max(v, -2147483648.0), 2147483647.0))); }

TEST(Mul, ThroughDoubles) {
  const auto product = [](Qvx32s a, Qvx32s b, int s) { return roundedToInt(std::ldexp(double(a), -s) * b); };
  each(product, qvxsMul_32s_Sfs, range(-70, 70));
  // Far scale factors are zeros and extremes as anywhere.
  for (const int s : {INT32_MIN, -1025, -1024, 1023, 1024, 1025, INT32_MAX}) {
    Random random(seed());
    Elementwise<Qvx32s, Qvx32s, Qvx32s> trial(600, random, [=](Qvx32s a, Qvx32s b) { return scaled<Qvx32s>(Wide{a} * b, s); });
    trial.runOnce([=](const Qvx32s* a, const Qvx32s* b, Qvx32s* d, int n) { return qvxsMul_32s_Sfs(a, b, d, n, s); });
  }
  // A product with 54 bits just above a tie: the tie is all that is left of it in 53.
  const Qvx32s a[1] = {(1 << 30) + 1};
  const Qvx32s b[1] = {(1 << 24) + 1};
  Qvx32s d[1];
  EXPECT_EQ(qvxsMul_32s_Sfs(a, b, d, 1, 25), qvxStatOk);
  EXPECT_EQ(d[0], roundedToInt(std::ldexp(double(a[0]) * b[0], -25)));
}

TEST(AddProduct, Members) {
  const auto with = [](auto f, auto oracle, std::vector<int> scales) {
    using D = decltype(oracle(0, 0, 0, 0));
    using A = std::conditional_t<std::is_invocable_v<decltype(f), const Qvx16s*, const Qvx16s*, D*, int, int>, Qvx16s, Qvx32s>;
    for (const int s : scales) {
      SCOPED_TRACE("scale factor " + std::to_string(s));
      Random random(seed());
      Elementwise<D, A, A, D> trial(300, random, [=](A a, A b, D d) { return oracle(a, b, d, s); });
      const auto call = [=](const A* a, const A* b, const D*, D* d, int n) { return f(a, b, d, n, s); };
      trial.runAt(std::abs(s) < 20, call, 2);
    }
  };
  with(
      qvxsAddProduct_16s_Sfs, [](Qvx16s a, Qvx16s b, Qvx16s d, int s) { return scaled<Qvx16s>(Wide{a} * b + d, s); },
      scaleFactors());
  // Above scale factor 31 there are only zeros, also where 33 bits would round to 1.
  with(
      qvxsAddProduct_16s32s_Sfs,
      [](Qvx16s a, Qvx16s b, Qvx32s d, int s) { return s > 31 ? 0 : scaled<Qvx32s>(Wide{a} * b + d, s); }, scaleFactors());
  with(
      qvxsAddProduct_32s_Sfs,
      [](Qvx32s a, Qvx32s b, Qvx32s d, int s) { return roundedToInt(std::ldexp(double(a), -s) * b + std::ldexp(double(d), -s)); },
      range(-70, 70));
}

template <class T> void productSum(QvxStatus (*f)(const T*, const T*, T*, int)) {
  Random random(seed());
  Elementwise<T, T, T, T> trial(700, random, [](T a, T b, T d) {
    const T product = kFloatProduct(a, b);
    if constexpr (isComplex<T>) return T{d.re + product.re, d.im + product.im};
    else return d + product;
  });
  trial.run([=](const T* a, const T* b, const T*, T* d, int n) { return f(a, b, d, n); }, 2);
}

TEST(AddProduct, Floats) {
  productSum(qvxsAddProduct_32f);
  productSum(qvxsAddProduct_64f);
  productSum(qvxsAddProduct_32fc);
  productSum(qvxsAddProduct_64fc);
  for (const Qvx32f c : constants<Qvx32f>()) {
    Random random(seed());
    Elementwise<Qvx32f, Qvx32f, Qvx32f> trial(700, random, [=](Qvx32f a, Qvx32f d) { return d + a * c; });
    trial.run([=](const Qvx32f* a, const Qvx32f*, Qvx32f* d, int n) { return qvxsAddProductC_32f(a, c, d, n); }, 1);
  }
}

TEST(Mul, LowWord) {
  const auto lowWord = [](Qvx32s a, Qvx32s b, int s) {
    const Qvx64s product = Qvx64s{a} * b;
    if (s > 62) return 0;
    if (s < -31) return product == 0 ? 0 : product < 0 ? INT32_MIN : INT32_MAX;
    return static_cast<Qvx32s>(s < 0 ? static_cast<Qvx64u>(product) << -s : static_cast<Qvx64u>(product >> s));
  };
  each(lowWord, qvxsMul_Low_32s_Sfs);
}

// ---- floats to 16 bits

constexpr Qvx32f kHard[] = {0.5F, -0.5F, 1.5F,  2.5F,   32766.5F, 32767.0F,      32767.5F,       -32768.0F, -32768.5F, -32769.0F,
                            1e9F, -1e9F, 1e30F, -1e30F, INFINITY, 2147483648.0F, -2147483648.0F, -INFINITY, NAN,       1e-40F};
std::vector<Qvx32f> hardFloats() {
  Random random(seed());
  std::vector<Qvx32f> v = values<Qvx32f>(300, random);
  v.insert(v.end(), std::begin(kHard), std::end(kHard));
  return v;
}

TEST(MulC, FloatTo16Bits) {
  for (const int s : {-200, -127, -10, -1, 0, 1, 3, 126, 200}) {
    for (const Qvx32f c : {1.0F, -0.75F, 3.1F}) {
      SCOPED_TRACE(std::to_string(s) + " " + std::to_string(c));
      const float factor = c * std::ldexp(1.0F, -std::clamp(s, -127, 126));
      Elementwise<Qvx16s, Qvx32f> trial(std::make_tuple(hardFloats()), [=](Qvx32f a) {
        const float v = a * factor;
        return static_cast<Qvx16s>(v < 32767.0F ? v > -32768.0F ? std::nearbyint(v) : -32768.0F : 32767.0F);
      });
      const auto call = [=](const Qvx32f* a, Qvx16s* d, int n) { return qvxsMulC_32f16s_Sfs(a, c, d, n, s); };
      trial.run(call);
      trial.runInEveryRounding(call);
    }
  }
}

// Converted in the caller's mode, and whatever 32 bits cannot hold is the lower limit: even a large positive product.
TEST(MulC, FloatTo16BitsByPacking) {
  for (const int mode : kRoundings) {
    const CallersRounding scope(mode);
    const float c = 1.25F;
    Elementwise<Qvx16s, Qvx32f> trial(std::make_tuple(hardFloats()), [=](Qvx32f a) {
      const float v = a * c;
      if (!(std::fabs(v) < 2147483648.0F)) return Qvx16s{-32768};
      return static_cast<Qvx16s>(std::clamp(std::nearbyint(v), -32768.0F, 32767.0F));
    });
    trial.run([=](const Qvx32f* a, Qvx16s* d, int n) { return qvxsMulC_Low_32f16s(a, c, d, n); });
  }
}

}  // namespace
