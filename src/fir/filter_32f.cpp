// Filtering with a record, in 32-bit floats.
#include "fir/filter.h"

using namespace qvx;
using namespace qvx::fir;

// clang-format off
QvxStatus qvxsFIR_32f(const Qvx32f* src, Qvx32f* dst, int n, QvxsFIRState_32f* s) { return filter(src, dst, n, s); }
QvxStatus qvxsFIR_32f_I(Qvx32f* srcDst, int n, QvxsFIRState_32f* s) { return filterInPlace(srcDst, n, s); }
QvxStatus qvxsFIROne_32f(Qvx32f x, Qvx32f* dst, QvxsFIRState_32f* s) { return filterOne(x, dst, s); }
QvxStatus qvxsFIR_32fc(const Qvx32fc* src, Qvx32fc* dst, int n, QvxsFIRState_32fc* s) { return filter(src, dst, n, s); }
QvxStatus qvxsFIR_32fc_I(Qvx32fc* srcDst, int n, QvxsFIRState_32fc* s) { return filterInPlace(srcDst, n, s); }
QvxStatus qvxsFIROne_32fc(Qvx32fc x, Qvx32fc* dst, QvxsFIRState_32fc* s) { return filterOne(x, dst, s); }
QvxStatus qvxsFIR32f_16s_Sfs(const Qvx16s* src, Qvx16s* dst, int n, QvxsFIRState32f_16s* s, int sf) { return filter(src, dst, n, s, sf); }
QvxStatus qvxsFIR32f_16s_ISfs(Qvx16s* srcDst, int n, QvxsFIRState32f_16s* s, int sf) { return filterInPlace(srcDst, n, s, sf); }
QvxStatus qvxsFIROne32f_16s_Sfs(Qvx16s x, Qvx16s* dst, QvxsFIRState32f_16s* s, int sf) { return filterOne(x, dst, s, sf); }
QvxStatus qvxsFIR32fc_16sc_Sfs(const Qvx16sc* src, Qvx16sc* dst, int n, QvxsFIRState32fc_16sc* s, int sf) { return filter(src, dst, n, s, sf); }
QvxStatus qvxsFIR32fc_16sc_ISfs(Qvx16sc* srcDst, int n, QvxsFIRState32fc_16sc* s, int sf) { return filterInPlace(srcDst, n, s, sf); }
QvxStatus qvxsFIROne32fc_16sc_Sfs(Qvx16sc x, Qvx16sc* dst, QvxsFIRState32fc_16sc* s, int sf) { return filterOne(x, dst, s, sf); }
// clang-format on
