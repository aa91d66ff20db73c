// How many bytes a filter takes.
#include "iir/record.h"

using namespace qvx;
using namespace qvx::iir;

// clang-format off
QvxStatus qvxsIIRGetStateSize_32f(int n, int* size) { return reportSize<QvxsIIRState_32f, Form::kDirect>(n, size); }
QvxStatus qvxsIIRGetStateSize_32fc(int n, int* size) { return reportSize<QvxsIIRState_32fc, Form::kDirect>(n, size); }
QvxStatus qvxsIIRGetStateSize32f_16s(int n, int* size) { return reportSize<QvxsIIRState32f_16s, Form::kDirect>(n, size); }
QvxStatus qvxsIIRGetStateSize32fc_16sc(int n, int* size) { return reportSize<QvxsIIRState32fc_16sc, Form::kDirect>(n, size); }
QvxStatus qvxsIIRGetStateSize32s_16s(int n, int* size) { return reportSize<QvxsIIRState32s_16s, Form::kDirect>(n, size); }
QvxStatus qvxsIIRGetStateSize32s_16s32f(int n, int* size) { return reportSize<QvxsIIRState32s_16s, Form::kDirect>(n, size); }
QvxStatus qvxsIIRGetStateSize32sc_16sc(int n, int* size) { return reportSize<QvxsIIRState32sc_16sc, Form::kDirect>(n, size); }
QvxStatus qvxsIIRGetStateSize32sc_16sc32fc(int n, int* size) { return reportSize<QvxsIIRState32sc_16sc, Form::kDirect>(n, size); }
QvxStatus qvxsIIRGetStateSize_64f(int n, int* size) { return reportSize<QvxsIIRState_64f, Form::kDirect>(n, size); }
QvxStatus qvxsIIRGetStateSize_64fc(int n, int* size) { return reportSize<QvxsIIRState_64fc, Form::kDirect>(n, size); }
QvxStatus qvxsIIRGetStateSize64f_32f(int n, int* size) { return reportSize<QvxsIIRState64f_32f, Form::kDirect>(n, size); }
QvxStatus qvxsIIRGetStateSize64fc_32fc(int n, int* size) { return reportSize<QvxsIIRState64fc_32fc, Form::kDirect>(n, size); }
QvxStatus qvxsIIRGetStateSize64f_32s(int n, int* size) { return reportSize<QvxsIIRState64f_32s, Form::kDirect>(n, size); }
QvxStatus qvxsIIRGetStateSize64fc_32sc(int n, int* size) { return reportSize<QvxsIIRState64fc_32sc, Form::kDirect>(n, size); }
QvxStatus qvxsIIRGetStateSize64f_16s(int n, int* size) { return reportSize<QvxsIIRState64f_16s, Form::kDirect>(n, size); }
QvxStatus qvxsIIRGetStateSize64fc_16sc(int n, int* size) { return reportSize<QvxsIIRState64fc_16sc, Form::kDirect>(n, size); }
QvxStatus qvxsIIRGetStateSize_BiQuad_32f(int n, int* size) { return reportSize<QvxsIIRState_32f, Form::kBiQuad>(n, size); }
QvxStatus qvxsIIRGetStateSize_BiQuad_32fc(int n, int* size) { return reportSize<QvxsIIRState_32fc, Form::kBiQuad>(n, size); }
QvxStatus qvxsIIRGetStateSize32f_BiQuad_16s(int n, int* size) { return reportSize<QvxsIIRState32f_16s, Form::kBiQuad>(n, size); }
QvxStatus qvxsIIRGetStateSize32fc_BiQuad_16sc(int n, int* size) { return reportSize<QvxsIIRState32fc_16sc, Form::kBiQuad>(n, size); }
QvxStatus qvxsIIRGetStateSize32s_BiQuad_16s(int n, int* size) { return reportSize<QvxsIIRState32s_16s, Form::kBiQuad>(n, size); }
QvxStatus qvxsIIRGetStateSize32s_BiQuad_16s32f(int n, int* size) { return reportSize<QvxsIIRState32s_16s, Form::kBiQuad>(n, size); }
QvxStatus qvxsIIRGetStateSize32sc_BiQuad_16sc(int n, int* size) { return reportSize<QvxsIIRState32sc_16sc, Form::kBiQuad>(n, size); }
QvxStatus qvxsIIRGetStateSize32sc_BiQuad_16sc32fc(int n, int* size) { return reportSize<QvxsIIRState32sc_16sc, Form::kBiQuad>(n, size); }
QvxStatus qvxsIIRGetStateSize_BiQuad_64f(int n, int* size) { return reportSize<QvxsIIRState_64f, Form::kBiQuad>(n, size); }
QvxStatus qvxsIIRGetStateSize_BiQuad_64fc(int n, int* size) { return reportSize<QvxsIIRState_64fc, Form::kBiQuad>(n, size); }
QvxStatus qvxsIIRGetStateSize64f_BiQuad_32f(int n, int* size) { return reportSize<QvxsIIRState64f_32f, Form::kBiQuad>(n, size); }
QvxStatus qvxsIIRGetStateSize64fc_BiQuad_32fc(int n, int* size) { return reportSize<QvxsIIRState64fc_32fc, Form::kBiQuad>(n, size); }
QvxStatus qvxsIIRGetStateSize64f_BiQuad_32s(int n, int* size) { return reportSize<QvxsIIRState64f_32s, Form::kBiQuad>(n, size); }
QvxStatus qvxsIIRGetStateSize64fc_BiQuad_32sc(int n, int* size) { return reportSize<QvxsIIRState64fc_32sc, Form::kBiQuad>(n, size); }
QvxStatus qvxsIIRGetStateSize64f_BiQuad_16s(int n, int* size) { return reportSize<QvxsIIRState64f_16s, Form::kBiQuad>(n, size); }
QvxStatus qvxsIIRGetStateSize64fc_BiQuad_16sc(int n, int* size) { return reportSize<QvxsIIRState64fc_16sc, Form::kBiQuad>(n, size); }
QvxStatus qvxsIIRGetStateSize_BiQuad_DF1_32f(int n, int* size) { return reportSize<QvxsIIRState_32f, Form::kDf1>(n, size); }
QvxStatus qvxsIIRGetStateSize64f_BiQuad_DF1_32s(int n, int* size) { return reportSize<QvxsIIRState64f_32s, Form::kDf1>(n, size); }
// clang-format on
