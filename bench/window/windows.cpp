// Windows in place, beside a cosine for each element and beside a table made before.
#include "frame/families.h"
#include "peers/ofast.h"
#include "peers/plain_generate.h"

namespace bench {

namespace {

constexpr auto kOther = Agreement::kDiffers;

// Windowed in place again and again, numbers become subnormal, which take 100 times as long to multiply; infinities do not.
template <class T> void makeLasting(T* x, int n) {
  if constexpr (std::is_floating_point_v<T>) {
    if (!std::isinf(x[n / 2])) std::fill_n(x, n, std::numeric_limits<T>::infinity());
  }
}
template <class T, auto kWindow> QvxStatus ours(T* x, int n) {
  makeLasting(x, n);
  return kWindow(x, n);
}
template <class T, class Peer> auto peer(Peer run) {
  return [run](T* x, int n) {
    makeLasting(x, n);
    run(x, n);
  };
}
template <class T> auto cosine(void (*run)(T*, int)) { return peer<T>(run); }
QvxStatus kaiser32f(Qvx32f* x, int n) { return qvxsWinKaiser_32f_I(x, n, 16.0F / static_cast<Qvx32f>(n - 1)); }
QvxStatus kaiser64f(Qvx64f* x, int n) { return qvxsWinKaiser_64f_I(x, n, 16.0F / static_cast<Qvx32f>(n - 1)); }

}  // namespace

void windows(Suite& s) {
  const auto table = peer<Qvx32f>(plain::WindowTable<Qvx32f>());
  s.row("WinBartlett_32f_I", ours<Qvx32f, qvxsWinBartlett_32f_I>)
      .against("-Ofast", cosine(ofast::bartlett), kOther)
      .against("a table", table, kOther);
  s.row("WinHann_32f_I", ours<Qvx32f, qvxsWinHann_32f_I>)
      .against("-Ofast", cosine<Qvx32f>(ofast::hann), kOther)
      .against("a table", table, kOther);
  s.row("WinHann_64f_I", ours<Qvx64f, qvxsWinHann_64f_I>)
      .against("-Ofast", cosine<Qvx64f>(ofast::hann), kOther)
      .against("a table", peer<Qvx64f>(plain::WindowTable<Qvx64f>()), kOther);
  s.row("WinHamming_32f_I", ours<Qvx32f, qvxsWinHamming_32f_I>)
      .against("-Ofast", cosine(ofast::hamming), kOther)
      .against("a table", table, kOther);
  s.row("WinBlackmanStd_32f_I", ours<Qvx32f, qvxsWinBlackmanStd_32f_I>)
      .against("-Ofast", cosine(ofast::blackman), kOther)
      .against("a table", table, kOther);
  s.row("WinHann_16s_I", qvxsWinHann_16s_I).against("a table", plain::WindowTable<Qvx32f>(), kOther);
  s.row("WinKaiser_32f_I", ours<Qvx32f, kaiser32f>).against("Bessel series", peer<Qvx32f>(plain::KaiserSeries<Qvx32f>()), kOther);
  s.row("WinKaiser_64f_I", ours<Qvx64f, kaiser64f>).against("Bessel series", peer<Qvx64f>(plain::KaiserSeries<Qvx64f>()), kOther);
}

}  // namespace bench
