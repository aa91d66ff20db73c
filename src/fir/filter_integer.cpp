// Filtering with a record, in integers.
#include "fir/filter.h"

using namespace qvx;
using namespace qvx::fir;

// clang-format off
QvxStatus qvxsFIR32s_16s_Sfs(const Qvx16s* src, Qvx16s* dst, int n, QvxsFIRState32s_16s* s, int sf) { return filter(src, dst, n, s, sf); }
QvxStatus qvxsFIR32s_16s_ISfs(Qvx16s* srcDst, int n, QvxsFIRState32s_16s* s, int sf) { return filterInPlace(srcDst, n, s, sf); }
QvxStatus qvxsFIROne32s_16s_Sfs(Qvx16s x, Qvx16s* dst, QvxsFIRState32s_16s* s, int sf) { return filterOne(x, dst, s, sf); }
QvxStatus qvxsFIR32sc_16sc_Sfs(const Qvx16sc* src, Qvx16sc* dst, int n, QvxsFIRState32sc_16sc* s, int sf) { return filter(src, dst, n, s, sf); }
QvxStatus qvxsFIR32sc_16sc_ISfs(Qvx16sc* srcDst, int n, QvxsFIRState32sc_16sc* s, int sf) { return filterInPlace(srcDst, n, s, sf); }
QvxStatus qvxsFIROne32sc_16sc_Sfs(Qvx16sc x, Qvx16sc* dst, QvxsFIRState32sc_16sc* s, int sf) { return filterOne(x, dst, s, sf); }
QvxStatus qvxsFIR_16s_Sfs(const Qvx16s* src, Qvx16s* dst, int n, QvxsFIRState_16s* s, int sf) { return filter(src, dst, n, s, sf); }
QvxStatus qvxsFIR_16s_ISfs(Qvx16s* srcDst, int n, QvxsFIRState_16s* s, int sf) { return filterInPlace(srcDst, n, s, sf); }
QvxStatus qvxsFIROne_16s_Sfs(Qvx16s x, Qvx16s* dst, QvxsFIRState_16s* s, int sf) { return filterOne(x, dst, s, sf); }
// clang-format on
