// Square roots.
#include "frame/families.h"
#include "peers/plain_math.h"
#include "peers/volk.h"

namespace bench {

void sqrt(Suite& s) {
  const auto root = plain::Each<plain::squareRoot>();
  s.row("Sqrt_32f", qvxsSqrt_32f).within(0, 1000).plain(root).against("VOLK", volk::sqrt32f);
  s.row("Sqrt_64f", qvxsSqrt_64f).within(0, 1000).plain(root);

  s.row("Sqrt_32f", qvxsSqrt_32f).inTeam();
  s.row("Sqrt_64f", qvxsSqrt_64f).inTeam();
}

}  // namespace bench
