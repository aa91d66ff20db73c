// Conversions between integers, and from integers to floats.
#include <qvx/qvxs.h>

#include "convert/conversion.h"

namespace {

using namespace tests;
using reference::Mode;
using reference::scaled;
using reference::Wide;

template <class Oracle, class... A, class... D> void conversions(Oracle oracle, QvxStatus (*... f)(const A*, D*, int)) {
  Random random(seed());
  (Elementwise<D, A>(700, random, oracle).run(f), ...);
}

TEST(Convert, Widening) {
  conversions([](auto v) { return v; }, qvxsConvert_8s16s, qvxsConvert_16s32s, qvxsConvert_8s32f, qvxsConvert_8u32f,
              qvxsConvert_16s32f, qvxsConvert_16u32f, qvxsConvert_32s64f, qvxsConvert_32f64f);
}

// ---- three-byte integers

template <class T, class D> void from24(QvxStatus (*f)(const Qvx8u*, D*, int)) {
  Random random(seed());
  Elementwise<D, Packed24<T>>(700, random, [](Packed24<T> v) {
    return static_cast<D>(v.number());
  }).run([=](const Packed24<T>* a, D* d, int n) { return f(a->byte, d, n); });
}

template <class T> void to24(QvxStatus (*f)(const T*, Qvx8u*, int, int)) {
  constexpr Wide kMost = std::is_signed_v<T> ? 0x7FFFFF : 0xFFFFFF;
  constexpr Wide kLeast = std::is_signed_v<T> ? -0x800000 : 0;
  for (const int s : scaleFactorsOf32Bits()) {
    SCOPED_TRACE("scale factor " + std::to_string(s));
    const int limited = std::clamp(s, -31, 31);
    Random random(seed() + static_cast<unsigned>(s));
    Elementwise<Packed24<T>, T> trial(300, random, [=](T v) {
      return Packed24<T>::of(static_cast<T>(std::clamp<Wide>(scaled<Qvx64s>(v, limited), kLeast, kMost)));
    });
    const auto call = [=](const T* a, Packed24<T>* d, int n) { return f(a, d->byte, n, s); };
    trial.runAt(std::abs(s) < 2, call);
  }
}

TEST(Convert, ThreeByteIntegers) {
  from24<Qvx32u>(qvxsConvert_24u32u);
  from24<Qvx32s>(qvxsConvert_24s32s);
  from24<Qvx32u>(qvxsConvert_24u32f);
  from24<Qvx32s>(qvxsConvert_24s32f);
  to24(qvxsConvert_32u24u_Sfs);
  to24(qvxsConvert_32s24s_Sfs);
}

// ---- narrowing

TEST(Convert, NarrowingWithScale) {
  conversions([](Qvx32s v) { return reference::saturated<Qvx16s>(v); }, qvxsConvert_32s16s);
  for (const int s : scaleFactorsOf32Bits()) {
    SCOPED_TRACE("scale factor " + std::to_string(s));
    Random random(seed() + static_cast<unsigned>(s));
    Elementwise<Qvx16s, Qvx32s> trial(400, random, [=](Qvx32s v) { return scaled<Qvx16s>(v, std::clamp(s, -15, 31)); });
    const auto call = [=](const Qvx32s* a, Qvx16s* d, int n) { return qvxsConvert_32s16s_Sfs(a, d, n, s); };
    trial.runAt(std::abs(s) < 2, call);
  }
}

constexpr struct {
  QvxRoundMode mode;
  Mode rounding;
} kModes[] = {{0, Mode::kTowardZero}, {1, Mode::kNearestEven}, {2, Mode::kHalfAway}, {3, Mode::kHalfAway}, {-1, Mode::kHalfAway}};

TEST(Convert, All16BitElementsTo8Bits) {
  std::vector<Qvx16s> all(65536);
  for (size_t i = 0; i < all.size(); ++i) all[i] = static_cast<Qvx16s>(i);
  for (const auto& [mode, rounding] : kModes) {
    for (const int s : scaleFactorsOf32Bits()) {
      SCOPED_TRACE("mode " + std::to_string(mode) + ", scale factor " + std::to_string(s));
      Elementwise<Qvx8s, Qvx16s> trial(std::make_tuple(all), [=, r = rounding](Qvx16s v) { return scaled<Qvx8s>(v, s, r); });
      const auto call = [=, m = mode](const Qvx16s* a, Qvx8s* d, int n) {
        return qvxsConvert_16s8s_Sfs(a, d, static_cast<Qvx32u>(n), m, s);
      };
      trial.runAt(s == 3, call);
    }
  }
}

TEST(Convert, 64To32Bits) {
  for (const auto& [mode, rounding] : kModes) {
    for (const int s : scaleFactorsOf32Bits()) {
      SCOPED_TRACE("mode " + std::to_string(mode) + ", scale factor " + std::to_string(s));
      Random random(seed());
      std::vector<Qvx64s> source = values<Qvx64s>(300, random);
      for (int i = -40; i <= 40; ++i) source.push_back(i);
      Elementwise<Qvx32s, Qvx64s> trial(std::make_tuple(source),
                                        [=, r = rounding](Qvx64s v) { return scaled<Qvx32s>(v, std::clamp(s, -31, 63), r); });
      const auto call = [=, m = mode](const Qvx64s* a, Qvx32s* d, int n) { return qvxsConvert_64s32s_Sfs(a, d, n, m, s); };
      trial.runAt(std::abs(s) < 2, call);
    }
  }
}

// ---- to floats

// Rounded as the caller has it, zero's sign included.
TEST(Convert, ToFloatsInTheCallersRounding) {
  for (const int rounding : kRoundings) {
    SCOPED_TRACE("rounding " + std::to_string(rounding));
    const CallersRounding scope(rounding);
    conversions([](Qvx32s v) { return static_cast<Qvx32f>(v); }, qvxsConvert_32s32f);
    conversions([](Qvx64s v) { return static_cast<Qvx64f>(v); }, qvxsConvert_64s64f);
    Elementwise<Qvx32f, Qvx64f> trial(std::make_tuple(hardFloats<Qvx64f>()), [](Qvx64f v) { return static_cast<Qvx32f>(v); });
    trial.run(qvxsConvert_64f32f);
  }
}

template <class A, class D> void toFloat(QvxStatus (*f)(const A*, D*, int, int), int least, int most) {
  for (const int s : {INT32_MIN, -2000, -1008, -113, -112, -111, -9, -1, 0, 1, 5, 125, 126, 127, 1022, 1023, 2000, INT32_MAX}) {
    SCOPED_TRACE("scale factor " + std::to_string(s));
    Random random(seed());
    Elementwise<D, A> trial(700, random, [=](A v) { return std::ldexp(static_cast<D>(v), -std::clamp(s, least, most)); });
    trial.run([=](const A* a, D* d, int n) { return f(a, d, n, s); });
  }
}

TEST(Convert, ToFloatsWithScale) {
  toFloat(qvxsConvert_16s32f_Sfs, -112, 126);
  toFloat(qvxsConvert_32s32f_Sfs, -112, 126);
  toFloat(qvxsConvert_16s64f_Sfs, -1008, 1022);
  toFloat(qvxsConvert_32s64f_Sfs, -1008, 1022);
}

}  // namespace
