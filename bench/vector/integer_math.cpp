// Exponentials, logarithms and cube roots of integers.
#include "frame/families.h"
#include "peers/plain_math.h"

namespace bench {

namespace {
template <auto kFunction> using InDoubles = plain::RoundedFunction<kFunction, double>;
constexpr auto kExp = [](double x) { return std::exp(x); };
constexpr auto kLn = [](double x) { return std::log(x); };
constexpr auto kTenDecimal = [](double x) { return 10 * std::log10(x); };
constexpr auto kCubrt = [](double x) { return std::cbrt(x); };
}  // namespace

void integerMath(Suite& s) {
  constexpr auto kDiffers = Agreement::kDiffers;
  const auto exp = InDoubles<kExp>();  // rounds ties to even
  const auto ln = InDoubles<kLn>();
  s.row("Exp_16s_Sfs, scale 0", qvxsExp_16s_Sfs, 0).within(-5, 15).plain(exp, kDiffers);
  s.row("Exp_16s_Sfs, scale 40", qvxsExp_16s_Sfs, 40).within(20, 45).plain(exp, kDiffers);
  s.row("Exp_32s_Sfs, scale 0", qvxsExp_32s_Sfs, 0).within(-5, 25).plain(exp, kDiffers);
  s.row("Exp_64s_Sfs, scale 0", qvxsExp_64s_Sfs, 0).within(-5, 45).plain(exp, kDiffers);
  s.row("Ln_16s_Sfs, scale 0", qvxsLn_16s_Sfs, 0).within(1, 32767).plain(ln);
  s.row("Ln_16s_Sfs, scale -10", qvxsLn_16s_Sfs, -10).within(1, 32767).plain(ln);
  s.row("Ln_32s_Sfs, scale 0", qvxsLn_32s_Sfs, 0).within(1, INT32_MAX).plain(ln);
  s.row("Ln_32s_Sfs, scale -20", qvxsLn_32s_Sfs, -20).within(1, INT32_MAX).plain(ln, kDiffers);
  s.row("Ln_32s16s_Sfs, scale -10", qvxsLn_32s16s_Sfs, -10).within(1, INT32_MAX).plain(ln);
  s.row("10Log10_32s_Sfs, scale 0", qvxs10Log10_32s_Sfs, 0).within(1, INT32_MAX).plain(InDoubles<kTenDecimal>());
  s.row("Cubrt_32s16s_Sfs, scale 0", qvxsCubrt_32s16s_Sfs, 0).plain(InDoubles<kCubrt>(), kDiffers);
}

}  // namespace bench
