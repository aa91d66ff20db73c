// Filters in the caller's block.
#include "iir/init.h"

using namespace qvx;
using namespace qvx::iir;

// clang-format off
QvxStatus qvxsIIRInit_32f(QvxsIIRState_32f** s, const Qvx32f* t, int n, const Qvx32f* d, Qvx8u* block) { return init<QvxsIIRState_32f, Form::kDirect>(s, t, n, d, block); }
QvxStatus qvxsIIRInit_32fc(QvxsIIRState_32fc** s, const Qvx32fc* t, int n, const Qvx32fc* d, Qvx8u* block) { return init<QvxsIIRState_32fc, Form::kDirect>(s, t, n, d, block); }
QvxStatus qvxsIIRInit32f_16s(QvxsIIRState32f_16s** s, const Qvx32f* t, int n, const Qvx32f* d, Qvx8u* block) { return init<QvxsIIRState32f_16s, Form::kDirect>(s, t, n, d, block); }
QvxStatus qvxsIIRInit32fc_16sc(QvxsIIRState32fc_16sc** s, const Qvx32fc* t, int n, const Qvx32fc* d, Qvx8u* block) { return init<QvxsIIRState32fc_16sc, Form::kDirect>(s, t, n, d, block); }
QvxStatus qvxsIIRInit32s_16s(QvxsIIRState32s_16s** s, const Qvx32s* t, int n, int f, const Qvx32f* d, Qvx8u* block) { return init<QvxsIIRState32s_16s, Form::kDirect>(s, t, n, f, d, block); }
QvxStatus qvxsIIRInit32s_16s32f(QvxsIIRState32s_16s** s, const Qvx32f* t, int n, const Qvx32f* d, Qvx8u* block) { return init<QvxsIIRState32s_16s, Form::kDirect>(s, t, n, d, block); }
QvxStatus qvxsIIRInit32sc_16sc(QvxsIIRState32sc_16sc** s, const Qvx32sc* t, int n, int f, const Qvx32fc* d, Qvx8u* block) { return init<QvxsIIRState32sc_16sc, Form::kDirect>(s, t, n, f, d, block); }
QvxStatus qvxsIIRInit32sc_16sc32fc(QvxsIIRState32sc_16sc** s, const Qvx32fc* t, int n, const Qvx32fc* d, Qvx8u* block) { return init<QvxsIIRState32sc_16sc, Form::kDirect>(s, t, n, d, block); }
QvxStatus qvxsIIRInit_64f(QvxsIIRState_64f** s, const Qvx64f* t, int n, const Qvx64f* d, Qvx8u* block) { return init<QvxsIIRState_64f, Form::kDirect>(s, t, n, d, block); }
QvxStatus qvxsIIRInit_64fc(QvxsIIRState_64fc** s, const Qvx64fc* t, int n, const Qvx64fc* d, Qvx8u* block) { return init<QvxsIIRState_64fc, Form::kDirect>(s, t, n, d, block); }
QvxStatus qvxsIIRInit64f_32f(QvxsIIRState64f_32f** s, const Qvx64f* t, int n, const Qvx64f* d, Qvx8u* block) { return init<QvxsIIRState64f_32f, Form::kDirect>(s, t, n, d, block); }
QvxStatus qvxsIIRInit64fc_32fc(QvxsIIRState64fc_32fc** s, const Qvx64fc* t, int n, const Qvx64fc* d, Qvx8u* block) { return init<QvxsIIRState64fc_32fc, Form::kDirect>(s, t, n, d, block); }
QvxStatus qvxsIIRInit64f_32s(QvxsIIRState64f_32s** s, const Qvx64f* t, int n, const Qvx64f* d, Qvx8u* block) { return init<QvxsIIRState64f_32s, Form::kDirect>(s, t, n, d, block); }
QvxStatus qvxsIIRInit64fc_32sc(QvxsIIRState64fc_32sc** s, const Qvx64fc* t, int n, const Qvx64fc* d, Qvx8u* block) { return init<QvxsIIRState64fc_32sc, Form::kDirect>(s, t, n, d, block); }
QvxStatus qvxsIIRInit64f_16s(QvxsIIRState64f_16s** s, const Qvx64f* t, int n, const Qvx64f* d, Qvx8u* block) { return init<QvxsIIRState64f_16s, Form::kDirect>(s, t, n, d, block); }
QvxStatus qvxsIIRInit64fc_16sc(QvxsIIRState64fc_16sc** s, const Qvx64fc* t, int n, const Qvx64fc* d, Qvx8u* block) { return init<QvxsIIRState64fc_16sc, Form::kDirect>(s, t, n, d, block); }

QvxStatus qvxsIIRInit_BiQuad_32f(QvxsIIRState_32f** s, const Qvx32f* t, int n, const Qvx32f* d, Qvx8u* block) { return init<QvxsIIRState_32f, Form::kBiQuad>(s, t, n, d, block); }
QvxStatus qvxsIIRInit_BiQuad_32fc(QvxsIIRState_32fc** s, const Qvx32fc* t, int n, const Qvx32fc* d, Qvx8u* block) { return init<QvxsIIRState_32fc, Form::kBiQuad>(s, t, n, d, block); }
QvxStatus qvxsIIRInit32f_BiQuad_16s(QvxsIIRState32f_16s** s, const Qvx32f* t, int n, const Qvx32f* d, Qvx8u* block) { return init<QvxsIIRState32f_16s, Form::kBiQuad>(s, t, n, d, block); }
QvxStatus qvxsIIRInit32fc_BiQuad_16sc(QvxsIIRState32fc_16sc** s, const Qvx32fc* t, int n, const Qvx32fc* d, Qvx8u* block) { return init<QvxsIIRState32fc_16sc, Form::kBiQuad>(s, t, n, d, block); }
QvxStatus qvxsIIRInit32s_BiQuad_16s(QvxsIIRState32s_16s** s, const Qvx32s* t, int n, int f, const Qvx32f* d, Qvx8u* block) { return init<QvxsIIRState32s_16s, Form::kBiQuad>(s, t, n, f, d, block); }
QvxStatus qvxsIIRInit32s_BiQuad_16s32f(QvxsIIRState32s_16s** s, const Qvx32f* t, int n, const Qvx32f* d, Qvx8u* block) { return init<QvxsIIRState32s_16s, Form::kBiQuad>(s, t, n, d, block); }
QvxStatus qvxsIIRInit32sc_BiQuad_16sc(QvxsIIRState32sc_16sc** s, const Qvx32sc* t, int n, int f, const Qvx32fc* d, Qvx8u* block) { return init<QvxsIIRState32sc_16sc, Form::kBiQuad>(s, t, n, f, d, block); }
QvxStatus qvxsIIRInit32sc_BiQuad_16sc32fc(QvxsIIRState32sc_16sc** s, const Qvx32fc* t, int n, const Qvx32fc* d, Qvx8u* block) { return init<QvxsIIRState32sc_16sc, Form::kBiQuad>(s, t, n, d, block); }
QvxStatus qvxsIIRInit_BiQuad_64f(QvxsIIRState_64f** s, const Qvx64f* t, int n, const Qvx64f* d, Qvx8u* block) { return init<QvxsIIRState_64f, Form::kBiQuad>(s, t, n, d, block); }
QvxStatus qvxsIIRInit_BiQuad_64fc(QvxsIIRState_64fc** s, const Qvx64fc* t, int n, const Qvx64fc* d, Qvx8u* block) { return init<QvxsIIRState_64fc, Form::kBiQuad>(s, t, n, d, block); }
QvxStatus qvxsIIRInit64f_BiQuad_32f(QvxsIIRState64f_32f** s, const Qvx64f* t, int n, const Qvx64f* d, Qvx8u* block) { return init<QvxsIIRState64f_32f, Form::kBiQuad>(s, t, n, d, block); }
QvxStatus qvxsIIRInit64fc_BiQuad_32fc(QvxsIIRState64fc_32fc** s, const Qvx64fc* t, int n, const Qvx64fc* d, Qvx8u* block) { return init<QvxsIIRState64fc_32fc, Form::kBiQuad>(s, t, n, d, block); }
QvxStatus qvxsIIRInit64f_BiQuad_32s(QvxsIIRState64f_32s** s, const Qvx64f* t, int n, const Qvx64f* d, Qvx8u* block) { return init<QvxsIIRState64f_32s, Form::kBiQuad>(s, t, n, d, block); }
QvxStatus qvxsIIRInit64fc_BiQuad_32sc(QvxsIIRState64fc_32sc** s, const Qvx64fc* t, int n, const Qvx64fc* d, Qvx8u* block) { return init<QvxsIIRState64fc_32sc, Form::kBiQuad>(s, t, n, d, block); }
QvxStatus qvxsIIRInit64f_BiQuad_16s(QvxsIIRState64f_16s** s, const Qvx64f* t, int n, const Qvx64f* d, Qvx8u* block) { return init<QvxsIIRState64f_16s, Form::kBiQuad>(s, t, n, d, block); }
QvxStatus qvxsIIRInit64fc_BiQuad_16sc(QvxsIIRState64fc_16sc** s, const Qvx64fc* t, int n, const Qvx64fc* d, Qvx8u* block) { return init<QvxsIIRState64fc_16sc, Form::kBiQuad>(s, t, n, d, block); }

QvxStatus qvxsIIRInit_BiQuad_DF1_32f(QvxsIIRState_32f** s, const Qvx32f* t, int n, const Qvx32f* d, Qvx8u* block) { return init<QvxsIIRState_32f, Form::kDf1>(s, t, n, d, block); }
QvxStatus qvxsIIRInit64f_BiQuad_DF1_32s(QvxsIIRState64f_32s** s, const Qvx64f* t, int n, const Qvx32s* d, Qvx8u* block) { return init<QvxsIIRState64f_32s, Form::kDf1>(s, t, n, d, block); }
// clang-format on
