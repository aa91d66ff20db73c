// The Blackman windows.
#include "frame/power.h"
#include "frame/rounding.h"
#include "math/sin_cos.h"
#include "window/cosine.h"

using namespace qvx;
using namespace qvx::window;

namespace {

constexpr double kStandard = -0.16F;

// alpha = -(0.5 / cos(pi / (N-1)))^2, with which the window is 0 at the second sample too: 1 + 4 alpha is -tan^2(pi / (N-1)),
// which a difference of 1 and alpha would leave few digits of.
Blackman optimalForm(int len) {
  const RoundingScope scope(kRoundsByInstruction ? Rounding::kCallers : Rounding::kNearest);
  const auto angle = sinCosOfTurns(same<Vec<Lanes<double, 2>>>(0.5 / (len - 1)));
  const double tangent = hn::GetLane(angle.sine) / hn::GetLane(angle.cosine);
  return {-tangent * tangent, 1 + tangent * tangent};
}

template <class T> QvxStatus optimal(const T* src, T* dst, int len) {
  if (len < 4) return qvxStatBadSize;
  return cosineWindow(src, dst, len, optimalForm(len));
}

Blackman blackman(double alpha) { return {1 + 4 * alpha, -4 * alpha}; }

// The middle of an odd length too.
QvxStatus scaled(Qvx16s* d, int len, Blackman form, int scaleFactor) {
  const auto factor = powerOfTwo<Qvx32f>(std::min(-int64_t{scaleFactor}, int64_t{127}));
  const QvxStatus status = cosineWindow(d, d, len, form, WeighedTimes{factor});
  if (status != qvxStatOk || len % 2 == 0) return status;
  const RoundingScope nearest(Rounding::kNearest);
  Qvx16s& middle = d[len / 2];
  middle = roundedTo<Qvx16s>(static_cast<double>(middle * factor));
  return qvxStatOk;
}

double ofQ15(int alpha) { return static_cast<Qvx32f>(alpha) * 0x1p-15F; }

}  // namespace

// clang-format off
QvxStatus qvxsWinBlackman_16s(const Qvx16s* a, Qvx16s* d, int len, Qvx32f alpha) { return cosineWindow(a, d, len, blackman(alpha)); }
QvxStatus qvxsWinBlackman_16s_I(Qvx16s* d, int len, Qvx32f alpha) { return cosineWindow(d, d, len, blackman(alpha)); }
QvxStatus qvxsWinBlackman_16sc(const Qvx16sc* a, Qvx16sc* d, int len, Qvx32f alpha) { return cosineWindow(a, d, len, blackman(alpha)); }
QvxStatus qvxsWinBlackman_16sc_I(Qvx16sc* d, int len, Qvx32f alpha) { return cosineWindow(d, d, len, blackman(alpha)); }
QvxStatus qvxsWinBlackman_32f(const Qvx32f* a, Qvx32f* d, int len, Qvx32f alpha) { return cosineWindow(a, d, len, blackman(alpha)); }
QvxStatus qvxsWinBlackman_32f_I(Qvx32f* d, int len, Qvx32f alpha) { return cosineWindow(d, d, len, blackman(alpha)); }
QvxStatus qvxsWinBlackman_32fc(const Qvx32fc* a, Qvx32fc* d, int len, Qvx32f alpha) { return cosineWindow(a, d, len, blackman(alpha)); }
QvxStatus qvxsWinBlackman_32fc_I(Qvx32fc* d, int len, Qvx32f alpha) { return cosineWindow(d, d, len, blackman(alpha)); }
QvxStatus qvxsWinBlackman_64f(const Qvx64f* a, Qvx64f* d, int len, Qvx64f alpha) { return cosineWindow(a, d, len, blackman(alpha)); }
QvxStatus qvxsWinBlackman_64f_I(Qvx64f* d, int len, Qvx64f alpha) { return cosineWindow(d, d, len, blackman(alpha)); }
QvxStatus qvxsWinBlackman_64fc(const Qvx64fc* a, Qvx64fc* d, int len, Qvx64f alpha) { return cosineWindow(a, d, len, blackman(alpha)); }
QvxStatus qvxsWinBlackman_64fc_I(Qvx64fc* d, int len, Qvx64f alpha) { return cosineWindow(d, d, len, blackman(alpha)); }
QvxStatus qvxsWinBlackmanStd_16s(const Qvx16s* a, Qvx16s* d, int len) { return cosineWindow(a, d, len, blackman(kStandard)); }
QvxStatus qvxsWinBlackmanStd_16s_I(Qvx16s* d, int len) { return cosineWindow(d, d, len, blackman(kStandard)); }
QvxStatus qvxsWinBlackmanStd_16sc(const Qvx16sc* a, Qvx16sc* d, int len) { return cosineWindow(a, d, len, blackman(kStandard)); }
QvxStatus qvxsWinBlackmanStd_16sc_I(Qvx16sc* d, int len) { return cosineWindow(d, d, len, blackman(kStandard)); }
QvxStatus qvxsWinBlackmanStd_32f(const Qvx32f* a, Qvx32f* d, int len) { return cosineWindow(a, d, len, blackman(kStandard)); }
QvxStatus qvxsWinBlackmanStd_32f_I(Qvx32f* d, int len) { return cosineWindow(d, d, len, blackman(kStandard)); }
QvxStatus qvxsWinBlackmanStd_32fc(const Qvx32fc* a, Qvx32fc* d, int len) { return cosineWindow(a, d, len, blackman(kStandard)); }
QvxStatus qvxsWinBlackmanStd_32fc_I(Qvx32fc* d, int len) { return cosineWindow(d, d, len, blackman(kStandard)); }
QvxStatus qvxsWinBlackmanStd_64f(const Qvx64f* a, Qvx64f* d, int len) { return cosineWindow(a, d, len, blackman(kStandard)); }
QvxStatus qvxsWinBlackmanStd_64f_I(Qvx64f* d, int len) { return cosineWindow(d, d, len, blackman(kStandard)); }
QvxStatus qvxsWinBlackmanStd_64fc(const Qvx64fc* a, Qvx64fc* d, int len) { return cosineWindow(a, d, len, blackman(kStandard)); }
QvxStatus qvxsWinBlackmanStd_64fc_I(Qvx64fc* d, int len) { return cosineWindow(d, d, len, blackman(kStandard)); }
QvxStatus qvxsWinBlackmanOpt_16s(const Qvx16s* a, Qvx16s* d, int len) { return optimal<Qvx16s>(a, d, len); }
QvxStatus qvxsWinBlackmanOpt_16s_I(Qvx16s* d, int len) { return optimal<Qvx16s>(d, d, len); }
QvxStatus qvxsWinBlackmanOpt_16sc(const Qvx16sc* a, Qvx16sc* d, int len) { return optimal<Qvx16sc>(a, d, len); }
QvxStatus qvxsWinBlackmanOpt_16sc_I(Qvx16sc* d, int len) { return optimal<Qvx16sc>(d, d, len); }
QvxStatus qvxsWinBlackmanOpt_32f(const Qvx32f* a, Qvx32f* d, int len) { return optimal<Qvx32f>(a, d, len); }
QvxStatus qvxsWinBlackmanOpt_32f_I(Qvx32f* d, int len) { return optimal<Qvx32f>(d, d, len); }
QvxStatus qvxsWinBlackmanOpt_32fc(const Qvx32fc* a, Qvx32fc* d, int len) { return optimal<Qvx32fc>(a, d, len); }
QvxStatus qvxsWinBlackmanOpt_32fc_I(Qvx32fc* d, int len) { return optimal<Qvx32fc>(d, d, len); }
QvxStatus qvxsWinBlackmanOpt_64f(const Qvx64f* a, Qvx64f* d, int len) { return optimal<Qvx64f>(a, d, len); }
QvxStatus qvxsWinBlackmanOpt_64f_I(Qvx64f* d, int len) { return optimal<Qvx64f>(d, d, len); }
QvxStatus qvxsWinBlackmanOpt_64fc(const Qvx64fc* a, Qvx64fc* d, int len) { return optimal<Qvx64fc>(a, d, len); }
QvxStatus qvxsWinBlackmanOpt_64fc_I(Qvx64fc* d, int len) { return optimal<Qvx64fc>(d, d, len); }
QvxStatus qvxsWinBlackmanQ15_16s(const Qvx16s* a, Qvx16s* d, int len, int alphaQ15) { return cosineWindow(a, d, len, blackman(ofQ15(alphaQ15))); }
QvxStatus qvxsWinBlackmanQ15_16s_I(Qvx16s* d, int len, int alphaQ15) { return cosineWindow(d, d, len, blackman(ofQ15(alphaQ15))); }
QvxStatus qvxsWinBlackmanQ15_16sc(const Qvx16sc* a, Qvx16sc* d, int len, int alphaQ15) { return cosineWindow(a, d, len, blackman(ofQ15(alphaQ15))); }
QvxStatus qvxsWinBlackmanQ15_16sc_I(Qvx16sc* d, int len, int alphaQ15) { return cosineWindow(d, d, len, blackman(ofQ15(alphaQ15))); }
QvxStatus qvxsWinBlackmanQ15_16s_ISfs(Qvx16s* d, int len, int alphaQ15, int sf) { return scaled(d, len, blackman(ofQ15(alphaQ15)), sf); }
// clang-format on
