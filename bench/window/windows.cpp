// Windows in place, beside a cosine for each element and beside a table made before.
#include "frame/families.h"
#include "peers/ofast.h"
#include "peers/plain_generate.h"

namespace bench {

namespace {

constexpr auto kOther = Agreement::kDiffers;

template <class T> auto cosine(void (*run)(T*, int)) {
  return [run](T* x, int n) { run(x, n); };
}
QvxStatus kaiser32f(Qvx32f* x, int n) { return qvxsWinKaiser_32f_I(x, n, 16.0F / static_cast<Qvx32f>(n - 1)); }
QvxStatus kaiser64f(Qvx64f* x, int n) { return qvxsWinKaiser_64f_I(x, n, 16.0F / static_cast<Qvx32f>(n - 1)); }

}  // namespace

void windows(Suite& s) {
  const auto table = plain::WindowTable<Qvx32f>();
  s.row("WinBartlett_32f_I", qvxsWinBartlett_32f_I)
      .against("-Ofast", cosine(ofast::bartlett), kOther)
      .against("a table", table, kOther);
  s.row("WinHann_32f_I", qvxsWinHann_32f_I)
      .against("-Ofast", cosine<Qvx32f>(ofast::hann), kOther)
      .against("a table", table, kOther);
  s.row("WinHann_64f_I", qvxsWinHann_64f_I)
      .against("-Ofast", cosine<Qvx64f>(ofast::hann), kOther)
      .against("a table", plain::WindowTable<Qvx64f>(), kOther);
  s.row("WinHamming_32f_I", qvxsWinHamming_32f_I)
      .against("-Ofast", cosine(ofast::hamming), kOther)
      .against("a table", table, kOther);
  s.row("WinBlackmanStd_32f_I", qvxsWinBlackmanStd_32f_I)
      .against("-Ofast", cosine(ofast::blackman), kOther)
      .against("a table", table, kOther);
  s.row("WinHann_16s_I", qvxsWinHann_16s_I).against("a table", plain::WindowTable<Qvx32f>(), kOther);
  s.row("WinKaiser_32f_I", kaiser32f).against("Bessel series", plain::KaiserSeries<Qvx32f>(), kOther);
  s.row("WinKaiser_64f_I", kaiser64f).against("Bessel series", plain::KaiserSeries<Qvx64f>(), kOther);
}

}  // namespace bench
