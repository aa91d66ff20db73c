// Real filters over vectors and samples.
#include "iir/filter.h"

using namespace qvx;
using namespace qvx::iir;

// clang-format off
QvxStatus qvxsIIR_32f(const Qvx32f* a, Qvx32f* b, int len, QvxsIIRState_32f* s) { return filter(a, b, len, s); }
QvxStatus qvxsIIR_32f_I(Qvx32f* b, int len, QvxsIIRState_32f* s) { return filter(b, len, s); }
QvxStatus qvxsIIROne_32f(Qvx32f a, Qvx32f* b, QvxsIIRState_32f* s) { return filterOne(a, b, s); }
QvxStatus qvxsIIR_64f(const Qvx64f* a, Qvx64f* b, int len, QvxsIIRState_64f* s) { return filter(a, b, len, s); }
QvxStatus qvxsIIR_64f_I(Qvx64f* b, int len, QvxsIIRState_64f* s) { return filter(b, len, s); }
QvxStatus qvxsIIROne_64f(Qvx64f a, Qvx64f* b, QvxsIIRState_64f* s) { return filterOne(a, b, s); }
QvxStatus qvxsIIR64f_32f(const Qvx32f* a, Qvx32f* b, int len, QvxsIIRState64f_32f* s) { return filter(a, b, len, s); }
QvxStatus qvxsIIR64f_32f_I(Qvx32f* b, int len, QvxsIIRState64f_32f* s) { return filter(b, len, s); }
QvxStatus qvxsIIROne64f_32f(Qvx32f a, Qvx32f* b, QvxsIIRState64f_32f* s) { return filterOne(a, b, s); }

QvxStatus qvxsIIR32f_16s_Sfs(const Qvx16s* a, Qvx16s* b, int len, QvxsIIRState32f_16s* s, int sf) { return filter(a, b, len, s, sf); }
QvxStatus qvxsIIR32f_16s_ISfs(Qvx16s* b, int len, QvxsIIRState32f_16s* s, int sf) { return filter(b, len, s, sf); }
QvxStatus qvxsIIROne32f_16s_Sfs(Qvx16s a, Qvx16s* b, QvxsIIRState32f_16s* s, int sf) { return filterOne(a, b, s, sf); }
QvxStatus qvxsIIR32s_16s_Sfs(const Qvx16s* a, Qvx16s* b, int len, QvxsIIRState32s_16s* s, int sf) { return filter(a, b, len, s, sf); }
QvxStatus qvxsIIR32s_16s_ISfs(Qvx16s* b, int len, QvxsIIRState32s_16s* s, int sf) { return filter(b, len, s, sf); }
QvxStatus qvxsIIROne32s_16s_Sfs(Qvx16s a, Qvx16s* b, QvxsIIRState32s_16s* s, int sf) { return filterOne(a, b, s, sf); }
QvxStatus qvxsIIR64f_32s_Sfs(const Qvx32s* a, Qvx32s* b, int len, QvxsIIRState64f_32s* s, int sf) { return filter(a, b, len, s, sf); }
QvxStatus qvxsIIR64f_32s_ISfs(Qvx32s* b, int len, QvxsIIRState64f_32s* s, int sf) { return filter(b, len, s, sf); }
QvxStatus qvxsIIROne64f_32s_Sfs(Qvx32s a, Qvx32s* b, QvxsIIRState64f_32s* s, int sf) { return filterOne(a, b, s, sf); }
QvxStatus qvxsIIR64f_16s_Sfs(const Qvx16s* a, Qvx16s* b, int len, QvxsIIRState64f_16s* s, int sf) { return filter(a, b, len, s, sf); }
QvxStatus qvxsIIR64f_16s_ISfs(Qvx16s* b, int len, QvxsIIRState64f_16s* s, int sf) { return filter(b, len, s, sf); }
QvxStatus qvxsIIROne64f_16s_Sfs(Qvx16s a, Qvx16s* b, QvxsIIRState64f_16s* s, int sf) { return filterOne(a, b, s, sf); }
// clang-format on
