// Dot products.
#include "frame/families.h"
#include "peers/plain_reduce.h"
#include "peers/volk.h"

namespace bench {

namespace {

constexpr auto kSummed = Agreement::kSummed;
constexpr auto kDiffers = Agreement::kDiffers;  // by scale and saturation

// A product in Wide of real or complex elements, and a sum of such.
template <class Wide> struct Value {
  Wide re;
  Wide im = 0;
  template <class T> static Value of(T v) {
    if constexpr (requires { v.re; }) return {static_cast<Wide>(v.re), static_cast<Wide>(v.im)};
    else return {static_cast<Wide>(v)};
  }
};
template <class Wide> struct ComplexSum {
  Wide re = 0;
  Wide im = 0;
  template <class R> explicit operator R() const { return {static_cast<Part<R>>(re), static_cast<Part<R>>(im)}; }
};

template <class Wide> constexpr auto real = [](auto all, auto a, auto b) { return all + static_cast<Wide>(a) * b; };
template <class Wide>
constexpr auto complex = [](auto all, auto a, auto b) {
  const auto v = Value<Wide>::of(a);
  const auto w = Value<Wide>::of(b);
  all.re += v.re * w.re - v.im * w.im;
  all.im += v.re * w.im + v.im * w.re;
  return all;
};

template <class Acc, class Wide = Acc> using Real = plain::Gathered<Acc, real<Wide>>;
template <class Acc, class Wide = Acc> using Complex = plain::Gathered<ComplexSum<Acc>, complex<Wide>>;

}  // namespace

void dotProduct(Suite& s) {
  s.reduction("DotProd_32f", qvxsDotProd_32f).against("plain", Real<float>(), kSummed).against("VOLK", volk::dot32f, kSummed);
  s.reduction("DotProd_64f", qvxsDotProd_64f).against("plain", Real<double>(), kSummed);
  s.reduction("DotProd_32f64f", qvxsDotProd_32f64f).against("plain", Real<double>(), kSummed);
  s.reduction("DotProd_32fc", qvxsDotProd_32fc)
      .against("plain", Complex<float>(), kSummed)
      .against("VOLK", volk::dot32fc, kSummed);
  s.reduction("DotProd_64fc", qvxsDotProd_64fc).against("plain", Complex<double>(), kSummed);
  s.reduction("DotProd_32fc64fc", qvxsDotProd_32fc64fc).against("plain", Complex<double>(), kSummed);
  s.reduction("DotProd_32f32fc", qvxsDotProd_32f32fc)
      .against("plain", Complex<float>(), kSummed)
      .against("VOLK", volk::dot32f32fc, kSummed);
  s.reduction("DotProd_64f64fc", qvxsDotProd_64f64fc).against("plain", Complex<double>(), kSummed);
  s.reduction("DotProd_32f32fc64fc", qvxsDotProd_32f32fc64fc).against("plain", Complex<double>(), kSummed);

  s.reduction("DotProd_16s64s", qvxsDotProd_16s64s).against("plain", Real<int64_t, int>());
  s.reduction("DotProd_16s_Sfs, scale 20", qvxsDotProd_16s_Sfs, 20).against("plain", Real<int64_t, int>(), kDiffers);
  s.reduction("DotProd_16sc64sc", qvxsDotProd_16sc64sc).against("plain", Complex<int64_t, int64_t>());
  // The sums of this peer saturate at 16 bits.
  s.reduction("DotProd_16sc_Sfs, scale 20", qvxsDotProd_16sc_Sfs, 20)
      .against("plain", Complex<int64_t, int64_t>(), kDiffers)
      .against("VOLK", volk::dot16sc, kDiffers);
  s.reduction("DotProd_16s16sc64sc", qvxsDotProd_16s16sc64sc).against("plain", Complex<int64_t, int64_t>());
  // Sums of 32-bit products do not fit 64 bits.
  s.reduction("DotProd_32s_Sfs, scale 40", qvxsDotProd_32s_Sfs, 40).against("plain, doubles", Real<double>(), kDiffers);
  s.reduction("DotProd_32sc_Sfs, scale 40", qvxsDotProd_32sc_Sfs, 40).against("plain, doubles", Complex<double>(), kDiffers);
  s.reduction("DotProd_32s32sc_Sfs, scale 40", qvxsDotProd_32s32sc_Sfs, 40)
      .against("plain, doubles", Complex<double>(), kDiffers);
  s.reduction("DotProd_16s32s32s_Sfs, scale 30", qvxsDotProd_16s32s32s_Sfs, 30)
      .against("plain, doubles", Real<double>(), kDiffers);
}

}  // namespace bench
