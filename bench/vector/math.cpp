// Exponentials, logarithms, arctangents and cube roots of floats.
#include "frame/families.h"
#include "peers/ofast.h"
#include "peers/sleef.h"

namespace bench {

namespace {

constexpr auto kOfastExp = [](const auto* a, auto* d, int n) { ofast::exp(a, d, n); };
constexpr auto kOfastLn = [](const auto* a, auto* d, int n) { ofast::ln(a, d, n); };
constexpr auto kOfastSumLn = [](const auto* a, int n, auto* sum) { ofast::sumLn(a, n, sum); };

}  // namespace

void math(Suite& s) {
  constexpr auto kDiffers = Agreement::kDiffers;  // in the last place
  s.row("Cubrt_32f", qvxsCubrt_32f).against("SLEEF", sleef::cubrt32f, kDiffers);
  s.row("Exp_32f", qvxsExp_32f).within(-80, 80).against("SLEEF", sleef::exp32f, kDiffers).against("-Ofast", kOfastExp, kDiffers);
  s.row("Exp_64f", qvxsExp_64f)
      .within(-700, 700)
      .against("SLEEF", sleef::exp64f, kDiffers)
      .against("-Ofast", kOfastExp, kDiffers);
  s.row("Ln_32f", qvxsLn_32f).within(0.01, 1000).against("SLEEF", sleef::ln32f, kDiffers).against("-Ofast", kOfastLn, kDiffers);
  s.row("Ln_64f", qvxsLn_64f).within(0.01, 1000).against("SLEEF", sleef::ln64f, kDiffers).against("-Ofast", kOfastLn, kDiffers);
  s.row("Arctan_32f", qvxsArctan_32f).within(-4, 4).against("SLEEF", sleef::arctan32f, kDiffers);
  s.row("Arctan_64f", qvxsArctan_64f).within(-4, 4).against("SLEEF", sleef::arctan64f, kDiffers);
  s.reduction("SumLn_32f", qvxsSumLn_32f).within(0.01, 1000).against("-Ofast", kOfastSumLn, kDiffers);
  s.reduction("SumLn_64f", qvxsSumLn_64f).within(0.01, 1000).against("-Ofast", kOfastSumLn, kDiffers);
}

}  // namespace bench
