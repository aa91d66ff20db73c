// Quotients.
#include "frame/families.h"
#include "peers/ofast.h"
#include "peers/plain_arithmetic.h"
#include "peers/plain_division.h"
#include "peers/volk.h"

namespace bench {

namespace {
constexpr auto kFused = Agreement::kFused;
constexpr auto kDiffers = Agreement::kDiffers;
const plain::QuotientByRule<> kRule;
const plain::QuotientByRule<true> kRuleReversed;

// The same call in double precision beside the scalar rule.
template <class F> auto inDoubles(F) { return plain::loopFor<plain::QuotientInDoubles<>, F>(); }
template <class F> auto constantInDoubles(F) { return plain::loopFor<plain::QuotientInDoubles<true>, F>(); }
}  // namespace

// clang-format off
void div(Suite& s) {
  s.row("Div_32f", qvxsDiv_32f).within(1, 1000).plain(plain::FloatQuotient<>()).against("VOLK", volk::div32f).against("-Ofast", ofast::quotient, Agreement::kDiffers);
  s.row("Div_64f", qvxsDiv_64f).within(1, 1000).plain(plain::FloatQuotient<>());
  s.row("Div_32fc", qvxsDiv_32fc).within(1, 1000).plain(plain::FloatQuotient<>(), kFused).against("fast math", plain::fastComplexQuotient<Qvx32fc>, kFused).against("VOLK", volk::div32fc, kFused);
  s.row("Div_64fc", qvxsDiv_64fc).within(1, 1000).plain(plain::FloatQuotient<>(), kFused).against("fast math", plain::fastComplexQuotient<Qvx64fc>, kFused);
  s.row("Div_8u_Sfs, scale 0", qvxsDiv_8u_Sfs, 0).plain(kRule).against("doubles", inDoubles(qvxsDiv_8u_Sfs));
  s.row("Div_16u_Sfs, scale 0", qvxsDiv_16u_Sfs, 0).plain(kRule).against("doubles", inDoubles(qvxsDiv_16u_Sfs));
  s.row("Div_16s_Sfs, scale -15", qvxsDiv_16s_Sfs, -15).plain(kRule).against("doubles", inDoubles(qvxsDiv_16s_Sfs));
  s.row("Div_16s_Sfs, scale 0", qvxsDiv_16s_Sfs, 0).plain(kRule).against("doubles", inDoubles(qvxsDiv_16s_Sfs));
  s.row("Div_16s_Sfs, scale 3", qvxsDiv_16s_Sfs, 3).plain(kRule).against("doubles", inDoubles(qvxsDiv_16s_Sfs));
  s.row("Div_16sc_Sfs, scale -14", qvxsDiv_16sc_Sfs, -14).plain(plain::ComplexQuotientInDoubles<>());
  s.row("Div_32s_Sfs, scale -3", qvxsDiv_32s_Sfs, -3).plain(kRule, kDiffers).against("doubles", inDoubles(qvxsDiv_32s_Sfs));
  s.row("Div_32s16s_Sfs, scale -3", qvxsDiv_32s16s_Sfs, -3).plain(kRule).against("doubles", inDoubles(qvxsDiv_32s16s_Sfs));

  s.row("DivC_32f", qvxsDivC_32f, 1.5F).plain(plain::FloatQuotient<true>(), kFused);
  s.row("DivC_64f", qvxsDivC_64f, 1.5).plain(plain::FloatQuotient<true>(), kFused);
  s.row("DivC_32fc", qvxsDivC_32fc, Qvx32fc{1.5F, -0.25F}).plain(plain::FloatQuotient<true>(), kFused);
  s.row("DivC_64fc", qvxsDivC_64fc, Qvx64fc{1.5, -0.25}).plain(plain::FloatQuotient<true>(), kFused);
  s.row("DivC_8u_Sfs, scale 0", qvxsDivC_8u_Sfs, Qvx8u{37}, 0).plain(kRuleReversed).against("doubles", constantInDoubles(qvxsDivC_8u_Sfs));
  s.row("DivC_16u_Sfs, scale 0", qvxsDivC_16u_Sfs, Qvx16u{37}, 0).plain(kRuleReversed).against("doubles", constantInDoubles(qvxsDivC_16u_Sfs));
  s.row("DivC_16s_Sfs, scale -7", qvxsDivC_16s_Sfs, Qvx16s{-1234}, -7).plain(kRuleReversed).against("doubles", constantInDoubles(qvxsDivC_16s_Sfs));
  s.row("DivC_16s_Sfs, scale 0", qvxsDivC_16s_Sfs, Qvx16s{-1234}, 0).plain(kRuleReversed).against("doubles", constantInDoubles(qvxsDivC_16s_Sfs));
  s.row("DivC_16sc_Sfs, scale -7", qvxsDivC_16sc_Sfs, Qvx16sc{1234, -567}, -7).plain(plain::ComplexQuotientInDoubles<true>());
  s.row("DivC_64s_ISfs, scale 3", qvxsDivC_64s_ISfs, Qvx64s{-1234567}, 3).plain(kRuleReversed, kDiffers);

  s.row("DivCRev_32f", qvxsDivCRev_32f, 1.5F).within(1, 1000).plain(plain::FloatQuotient<>());
  s.row("DivCRev_16u", qvxsDivCRev_16u, Qvx16u{50000}).plain(kRule).against("doubles", inDoubles(qvxsDivCRev_16u));

  s.row("Div_Round_8u_Sfs, half away, scale 0", qvxsDiv_Round_8u_Sfs, qvxRoundHalfAway, 0).plain(plain::RoundedQuotient());
  s.row("Div_Round_16u_Sfs, toward zero, scale -8", qvxsDiv_Round_16u_Sfs, qvxRoundTowardZero, -8).plain(plain::RoundedQuotient());
  s.row("Div_Round_16s_Sfs, half away, scale -8", qvxsDiv_Round_16s_Sfs, qvxRoundHalfAway, -8).plain(plain::RoundedQuotient());
  s.row("Div_Round_16s_Sfs, nearest, scale 0", qvxsDiv_Round_16s_Sfs, qvxRoundNearestEven, 0).plain(plain::RoundedQuotient());

  s.row("Div_16s_Sfs, scale -15", qvxsDiv_16s_Sfs, -15).plain(kRule).misaligned();

  s.row("Div_32f", qvxsDiv_32f).within(1, 1000).inTeam();
  s.row("Div_64f", qvxsDiv_64f).within(1, 1000).inTeam();
  s.row("Div_32fc", qvxsDiv_32fc).within(1, 1000).inTeam();
  s.row("Div_64fc", qvxsDiv_64fc).within(1, 1000).inTeam();
  s.row("Div_8u_Sfs, scale 0", qvxsDiv_8u_Sfs, 0).inTeam();
  s.row("Div_16s_Sfs, scale -15", qvxsDiv_16s_Sfs, -15).inTeam();
  s.row("Div_16s_Sfs, scale 0", qvxsDiv_16s_Sfs, 0).inTeam();
  s.row("Div_16sc_Sfs, scale -14", qvxsDiv_16sc_Sfs, -14).inTeam();
  s.row("Div_32s_Sfs, scale -3", qvxsDiv_32s_Sfs, -3).inTeam();
  s.row("DivC_8u_Sfs, scale 0", qvxsDivC_8u_Sfs, Qvx8u{37}, 0).inTeam();
  s.row("DivC_16s_Sfs, scale 0", qvxsDivC_16s_Sfs, Qvx16s{-1234}, 0).inTeam();
  s.row("DivC_16sc_Sfs, scale -7", qvxsDivC_16sc_Sfs, Qvx16sc{1234, -567}, -7).inTeam();
  s.row("DivCRev_16u", qvxsDivCRev_16u, Qvx16u{50000}).inTeam();
  s.row("DivCRev_32f", qvxsDivCRev_32f, 1.5F).within(1, 1000).inTeam();
  s.row("Div_Round_16s_Sfs, nearest, scale 0", qvxsDiv_Round_16s_Sfs, qvxRoundNearestEven, 0).inTeam();
}
// clang-format on

}  // namespace bench
