// The Hann window.
#include "window/cosine.h"

using namespace qvx;
using namespace qvx::window;

// clang-format off
QvxStatus qvxsWinHann_16s(const Qvx16s* a, Qvx16s* d, int len) { return cosineWindow<Qvx16s>(a, d, len, kHann); }
QvxStatus qvxsWinHann_16s_I(Qvx16s* d, int len) { return cosineWindow<Qvx16s>(d, d, len, kHann); }
QvxStatus qvxsWinHann_16sc(const Qvx16sc* a, Qvx16sc* d, int len) { return cosineWindow<Qvx16sc>(a, d, len, kHann); }
QvxStatus qvxsWinHann_16sc_I(Qvx16sc* d, int len) { return cosineWindow<Qvx16sc>(d, d, len, kHann); }
QvxStatus qvxsWinHann_32f(const Qvx32f* a, Qvx32f* d, int len) { return cosineWindow<Qvx32f>(a, d, len, kHann); }
QvxStatus qvxsWinHann_32f_I(Qvx32f* d, int len) { return cosineWindow<Qvx32f>(d, d, len, kHann); }
QvxStatus qvxsWinHann_32fc(const Qvx32fc* a, Qvx32fc* d, int len) { return cosineWindow<Qvx32fc>(a, d, len, kHann); }
QvxStatus qvxsWinHann_32fc_I(Qvx32fc* d, int len) { return cosineWindow<Qvx32fc>(d, d, len, kHann); }
QvxStatus qvxsWinHann_64f(const Qvx64f* a, Qvx64f* d, int len) { return cosineWindow<Qvx64f>(a, d, len, kHann); }
QvxStatus qvxsWinHann_64f_I(Qvx64f* d, int len) { return cosineWindow<Qvx64f>(d, d, len, kHann); }
QvxStatus qvxsWinHann_64fc(const Qvx64fc* a, Qvx64fc* d, int len) { return cosineWindow<Qvx64fc>(a, d, len, kHann); }
QvxStatus qvxsWinHann_64fc_I(Qvx64fc* d, int len) { return cosineWindow<Qvx64fc>(d, d, len, kHann); }
// clang-format on
