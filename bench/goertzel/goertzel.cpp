// Components beside the recursion that gave the method its name.
#include <cmath>

#include "frame/families.h"

namespace bench {

namespace {

constexpr float kFrequency = 0.0321F;

struct Recursion {
  template <class T, class R> [[gnu::noipa]] static void run(const T* a, int n, R* r, float f) {
    using F = Part<R>;
    const double w = 6.283185307179586 * f;
    const auto c = static_cast<F>(2 * std::cos(w));
    F s1 = 0, s2 = 0;
    for (int i = 0; i < n; ++i) {
      const F s = static_cast<F>(a[i]) + c * s1 - s2;
      s2 = s1;
      s1 = s;
    }
    *r = {static_cast<F>(std::cos(w)) * s1 - s2, static_cast<F>(std::sin(w)) * s1};
  }
};
constexpr auto kRecursion = [](const auto* a, int n, auto* r, auto f) { Recursion::run(a, n, r, static_cast<float>(f)); };
constexpr auto kBoth = [](const auto* a, int n, auto* r, const auto* f) {
  Recursion::run(a, n, r, f[0]);
  Recursion::run(a, n, r + 1, f[1]);
};

QvxStatus two(const Qvx32f* a, int n, Qvx32fc* r) {
  const float f[] = {kFrequency, 0.1F};
  return qvxsGoertzTwo_32f(a, n, r, f);
}
void recursionTwo(const Qvx32f* a, int n, Qvx32fc* r) {
  const float f[] = {kFrequency, 0.1F};
  kBoth(a, n, r, f);
}

}  // namespace

void goertzel(Suite& s) {
  constexpr auto kDiffers = Agreement::kDiffers;  // in accuracy
  s.reduction("Goertz_32f", qvxsGoertz_32f, kFrequency).against("recursion", kRecursion, kDiffers);
  s.reduction("Goertz_64f", qvxsGoertz_64f, double{kFrequency}).against("recursion", kRecursion, kDiffers);
  s.reduction("Goertz_16s_Sfs, scale 8", qvxsGoertz_16s_Sfs, kFrequency, 8)
      .against(
          "recursion",
          [](const Qvx16s* a, int n, Qvx16sc* r, float f, int) {
            Qvx32fc z;
            Recursion::run(a, n, &z, f);
            *r = {static_cast<Qvx16s>(z.re / 256), static_cast<Qvx16s>(z.im / 256)};
          },
          kDiffers);
  s.reduction("GoertzTwo_32f", two).against("recursion", recursionTwo, kDiffers);
}

}  // namespace bench
