// Exponentials and cube roots of integers.
#include "frame/families.h"
#include "peers/plain_math.h"

namespace bench {

namespace {
template <auto kFunction> using InDoubles = plain::RoundedFunction<kFunction, double>;
constexpr auto kExp = [](double x) { return std::exp(x); };
constexpr auto kCubrt = [](double x) { return std::cbrt(x); };
}  // namespace

// The peers round ties to even.
void integerMath(Suite& s) {
  constexpr auto kDiffers = Agreement::kDiffers;
  const auto exp = InDoubles<kExp>();
  s.row("Exp_16s_Sfs, scale 0", qvxsExp_16s_Sfs, 0).within(-5, 15).plain(exp, kDiffers);
  s.row("Exp_16s_Sfs, scale 40", qvxsExp_16s_Sfs, 40).within(20, 45).plain(exp, kDiffers);
  s.row("Exp_32s_Sfs, scale 0", qvxsExp_32s_Sfs, 0).within(-5, 25).plain(exp, kDiffers);
  s.row("Exp_64s_Sfs, scale 0", qvxsExp_64s_Sfs, 0).within(-5, 45).plain(exp, kDiffers);
  s.row("Cubrt_32s16s_Sfs, scale 0", qvxsCubrt_32s16s_Sfs, 0).plain(InDoubles<kCubrt>(), kDiffers);
}

}  // namespace bench
