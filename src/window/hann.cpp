// The Hann window.
#include "window/cosine.h"

using namespace qvx;
using namespace qvx::window;

// clang-format off
QvxStatus qvxsWinHann_16s(const Qvx16s* a, Qvx16s* d, int len) { return cosineWindow(a, d, len, Hann{}); }
QvxStatus qvxsWinHann_16s_I(Qvx16s* d, int len) { return cosineWindow(d, d, len, Hann{}); }
QvxStatus qvxsWinHann_16sc(const Qvx16sc* a, Qvx16sc* d, int len) { return cosineWindow(a, d, len, Hann{}); }
QvxStatus qvxsWinHann_16sc_I(Qvx16sc* d, int len) { return cosineWindow(d, d, len, Hann{}); }
QvxStatus qvxsWinHann_32f(const Qvx32f* a, Qvx32f* d, int len) { return cosineWindow(a, d, len, Hann{}); }
QvxStatus qvxsWinHann_32f_I(Qvx32f* d, int len) { return cosineWindow(d, d, len, Hann{}); }
QvxStatus qvxsWinHann_32fc(const Qvx32fc* a, Qvx32fc* d, int len) { return cosineWindow(a, d, len, Hann{}); }
QvxStatus qvxsWinHann_32fc_I(Qvx32fc* d, int len) { return cosineWindow(d, d, len, Hann{}); }
QvxStatus qvxsWinHann_64f(const Qvx64f* a, Qvx64f* d, int len) { return cosineWindow(a, d, len, Hann{}); }
QvxStatus qvxsWinHann_64f_I(Qvx64f* d, int len) { return cosineWindow(d, d, len, Hann{}); }
QvxStatus qvxsWinHann_64fc(const Qvx64fc* a, Qvx64fc* d, int len) { return cosineWindow(a, d, len, Hann{}); }
QvxStatus qvxsWinHann_64fc_I(Qvx64fc* d, int len) { return cosineWindow(d, d, len, Hann{}); }
// clang-format on
