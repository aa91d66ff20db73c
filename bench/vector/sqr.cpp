// Squares and absolute values.
#include "frame/families.h"
#include "peers/plain_arithmetic.h"
#include "peers/plain_math.h"

namespace bench {

namespace {
using Direct = plain::WithItself<plain::Direct<plain::Product>>;
using Scaled = plain::WithItself<plain::Scaled<plain::Product>>;
}  // namespace

void sqr(Suite& s) {
  s.row("Sqr_32f", qvxsSqr_32f).plain(Direct());
  s.row("Sqr_32fc", qvxsSqr_32fc).plain(Direct(), Agreement::kFused);
  s.row("Sqr_64f", qvxsSqr_64f).plain(Direct());
  s.row("Sqr_64fc", qvxsSqr_64fc).plain(Direct(), Agreement::kFused);
  for (const int scale : {-3, 0, 3, 20}) {
    const std::string at = ", scale " + std::to_string(scale);
    s.row("Sqr_8u_Sfs" + at, qvxsSqr_8u_Sfs, scale).plain(Scaled());
    s.row("Sqr_16u_Sfs" + at, qvxsSqr_16u_Sfs, scale).plain(Scaled());
    s.row("Sqr_16s_Sfs" + at, qvxsSqr_16s_Sfs, scale).plain(Scaled());
    s.row("Sqr_16sc_Sfs" + at, qvxsSqr_16sc_Sfs, scale).plain(Scaled());
  }
  const auto magnitude = plain::Each<plain::absolute>();
  s.row("Abs_16s", qvxsAbs_16s).plain(magnitude);
  s.row("Abs_32s", qvxsAbs_32s).plain(magnitude);
  s.row("Abs_32f", qvxsAbs_32f).plain(magnitude);
  s.row("Abs_64f", qvxsAbs_64f).plain(magnitude);
}

}  // namespace bench
