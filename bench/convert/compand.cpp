// Companding, against table loads and the arithmetic of one sample.
#include "frame/families.h"
#include "peers/plain_compand.h"

namespace bench {

void compand(Suite& s) {
  s.row("ALawToLin_8u16s", qvxsALawToLin_8u16s).against("table", plain::decode<plain::aToLinear, Qvx16s>);
  s.row("ALawToLin_8u32f", qvxsALawToLin_8u32f).against("table", plain::decode<plain::aToLinear, Qvx32f>);
  s.row("MuLawToLin_8u16s", qvxsMuLawToLin_8u16s).against("table", plain::decode<plain::muToLinear, Qvx16s>);
  s.row("MuLawToLin_8u32f", qvxsMuLawToLin_8u32f).against("table", plain::decode<plain::muToLinear, Qvx32f>);
  s.row("LinToALaw_16s8u", qvxsLinToALaw_16s8u)
      .plain(plain::Each<plain::linearToA>())
      .against("scalar", plain::encode<plain::linearToA, Qvx16s>)
      .against("table", plain::encodeByTable<plain::linearToA>);
  s.row("LinToALaw_32f8u", qvxsLinToALaw_32f8u)
      .within(-1, 1)
      .plain(plain::Each<plain::floatToA>())
      .against("scalar", plain::encode<plain::floatToA, Qvx32f>);
  s.row("LinToMuLaw_16s8u", qvxsLinToMuLaw_16s8u)
      .plain(plain::Each<plain::linearToMu>())
      .against("scalar", plain::encode<plain::linearToMu, Qvx16s>)
      .against("table", plain::encodeByTable<plain::linearToMu>);
  s.row("LinToMuLaw_32f8u", qvxsLinToMuLaw_32f8u)
      .within(-1, 1)
      .plain(plain::Each<plain::floatToMu>())
      .against("scalar", plain::encode<plain::floatToMu, Qvx32f>);
  s.row("ALawToMuLaw_8u", qvxsALawToMuLaw_8u).against("table", plain::lawToLaw<true>);
  s.row("MuLawToALaw_8u", qvxsMuLawToALaw_8u).against("table", plain::lawToLaw<false>);
}

}  // namespace bench
