// Complex filters over vectors and samples.
#include "iir/filter.h"

using namespace qvx;
using namespace qvx::iir;

// clang-format off
QvxStatus qvxsIIR_32fc(const Qvx32fc* a, Qvx32fc* b, int len, QvxsIIRState_32fc* s) { return filter(a, b, len, s); }
QvxStatus qvxsIIR_32fc_I(Qvx32fc* b, int len, QvxsIIRState_32fc* s) { return filter(b, len, s); }
QvxStatus qvxsIIROne_32fc(Qvx32fc a, Qvx32fc* b, QvxsIIRState_32fc* s) { return filterOne(a, b, s); }
QvxStatus qvxsIIR_64fc(const Qvx64fc* a, Qvx64fc* b, int len, QvxsIIRState_64fc* s) { return filter(a, b, len, s); }
QvxStatus qvxsIIR_64fc_I(Qvx64fc* b, int len, QvxsIIRState_64fc* s) { return filter(b, len, s); }
QvxStatus qvxsIIROne_64fc(Qvx64fc a, Qvx64fc* b, QvxsIIRState_64fc* s) { return filterOne(a, b, s); }
QvxStatus qvxsIIR64fc_32fc(const Qvx32fc* a, Qvx32fc* b, int len, QvxsIIRState64fc_32fc* s) { return filter(a, b, len, s); }
QvxStatus qvxsIIR64fc_32fc_I(Qvx32fc* b, int len, QvxsIIRState64fc_32fc* s) { return filter(b, len, s); }
QvxStatus qvxsIIROne64fc_32fc(Qvx32fc a, Qvx32fc* b, QvxsIIRState64fc_32fc* s) { return filterOne(a, b, s); }

QvxStatus qvxsIIR32fc_16sc_Sfs(const Qvx16sc* a, Qvx16sc* b, int len, QvxsIIRState32fc_16sc* s, int sf) { return filter(a, b, len, s, sf); }
QvxStatus qvxsIIR32fc_16sc_ISfs(Qvx16sc* b, int len, QvxsIIRState32fc_16sc* s, int sf) { return filter(b, len, s, sf); }
QvxStatus qvxsIIROne32fc_16sc_Sfs(Qvx16sc a, Qvx16sc* b, QvxsIIRState32fc_16sc* s, int sf) { return filterOne(a, b, s, sf); }
QvxStatus qvxsIIR32sc_16sc_Sfs(const Qvx16sc* a, Qvx16sc* b, int len, QvxsIIRState32sc_16sc* s, int sf) { return filter(a, b, len, s, sf); }
QvxStatus qvxsIIR32sc_16sc_ISfs(Qvx16sc* b, int len, QvxsIIRState32sc_16sc* s, int sf) { return filter(b, len, s, sf); }
QvxStatus qvxsIIROne32sc_16sc_Sfs(Qvx16sc a, Qvx16sc* b, QvxsIIRState32sc_16sc* s, int sf) { return filterOne(a, b, s, sf); }
QvxStatus qvxsIIR64fc_32sc_Sfs(const Qvx32sc* a, Qvx32sc* b, int len, QvxsIIRState64fc_32sc* s, int sf) { return filter(a, b, len, s, sf); }
QvxStatus qvxsIIR64fc_32sc_ISfs(Qvx32sc* b, int len, QvxsIIRState64fc_32sc* s, int sf) { return filter(b, len, s, sf); }
QvxStatus qvxsIIROne64fc_32sc_Sfs(Qvx32sc a, Qvx32sc* b, QvxsIIRState64fc_32sc* s, int sf) { return filterOne(a, b, s, sf); }
QvxStatus qvxsIIR64fc_16sc_Sfs(const Qvx16sc* a, Qvx16sc* b, int len, QvxsIIRState64fc_16sc* s, int sf) { return filter(a, b, len, s, sf); }
QvxStatus qvxsIIR64fc_16sc_ISfs(Qvx16sc* b, int len, QvxsIIRState64fc_16sc* s, int sf) { return filter(b, len, s, sf); }
QvxStatus qvxsIIROne64fc_16sc_Sfs(Qvx16sc a, Qvx16sc* b, QvxsIIRState64fc_16sc* s, int sf) { return filterOne(a, b, s, sf); }
// clang-format on
