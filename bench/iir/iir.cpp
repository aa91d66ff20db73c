// Recursive filters: cascades of sections and direct forms.
#include <liquid/liquid.h>

#include <complex>

#include "frame/families.h"
#include "peers/plain_iir.h"

namespace bench {

namespace {

// The same sections by rising angle; the filter forgets within 40 samples.
template <class T> std::vector<T> sectionTaps(size_t count) {
  std::vector<T> taps;
  for (size_t s = 0; s < count; ++s) {
    const double angle = 0.3 + 2.4 * static_cast<double>(s) / static_cast<double>(count);
    for (const double v : {0.3, 0.2, 0.1, -1.4 * std::cos(angle), 0.49}) taps.push_back(static_cast<T>(v));
  }
  return taps;
}
template <class T> std::vector<T> withA0(const std::vector<T>& taps) {
  std::vector<T> all;
  for (size_t s = 0; s < taps.size(); s += 5) {
    all.insert(all.end(), {taps[s], taps[s + 1], taps[s + 2], T{1}, taps[s + 3], taps[s + 4]});
  }
  return all;
}
template <class T> std::vector<T> feedForward(size_t order) { return std::vector<T>(order + 1, T(0.1)); }
template <class T> std::vector<T> feedBack(size_t order) {
  std::vector<T> a(order + 1, T(0.5) / static_cast<T>(order + 1));
  a[0] = 1;
  return a;
}

// The library's number types as the plain loops have them.
template <class Q> struct PlainOf { using Type = Q; };
template <> struct PlainOf<Qvx32fc> { using Type = std::complex<float>; };
template <> struct PlainOf<Qvx64fc> { using Type = std::complex<double>; };
template <class Q> using Plain = typename PlainOf<Q>::Type;

template <class Q> std::vector<Plain<Q>> taps(bool isDirect, size_t size) {
  if (!isDirect) return withA0(sectionTaps<Plain<Q>>(size));
  std::vector<Plain<Q>> all = feedForward<Plain<Q>>(size);
  const std::vector<Plain<Q>> a = feedBack<Plain<Q>>(size);
  all.insert(all.end(), a.begin(), a.end());
  return all;
}
template <class State, class Q> State* filter(QvxStatus (*init)(State**, const Q*, int, const Q*), bool isDirect, size_t size) {
  State* s = nullptr;
  init(&s, reinterpret_cast<const Q*>(taps<Q>(isDirect, size).data()), static_cast<int>(size), nullptr);
  return s;
}

// A filter lives as long as the program, one for each size. Each call of every contender begins with an empty delay line, so that
// outputs can be compared.
template <auto kInit, auto kClear, auto kRun, bool kIsDirect, size_t kSize, class D>
QvxStatus ours(const D* src, D* dst, int len) {
  static auto* const s = filter(kInit, kIsDirect, kSize);
  kClear(s, nullptr);
  if constexpr (std::is_invocable_v<decltype(kRun), const D*, D*, int, decltype(s)>) return kRun(src, dst, len, s);
  else return kRun(src, dst, len, s, 0);
}

template <class Q> auto bySample(size_t count) {
  using T = Plain<Q>;
  return [s = new plain::Sections<T>{sectionTaps<T>(count)}](const Q* src, Q* dst, int len) {
    s->bySample(reinterpret_cast<const T*>(src), reinterpret_cast<T*>(dst), len);
  };
}
template <class Q> auto bySection(size_t count) {
  using T = Plain<Q>;
  return [s = new plain::Sections<T>{sectionTaps<T>(count)}](const Q* src, Q* dst, int len) {
    s->bySection(reinterpret_cast<const T*>(src), reinterpret_cast<T*>(dst), len);
  };
}
template <class Q, class D = Q> auto plainDirect(size_t order) {
  using T = Plain<Q>;
  return [s = new plain::Direct<T>{feedForward<T>(order), feedBack<T>(order)}](const D* src, D* dst, int len) {
    s->run(reinterpret_cast<const Plain<D>*>(src), reinterpret_cast<Plain<D>*>(dst), len);
  };
}

// One sample at a time is that library's interface.
auto liquidRun(iirfilt_rrrf filter) {
  return [filter](const Qvx32f* src, Qvx32f* dst, int len) {
    iirfilt_rrrf_reset(filter);
    for (int i = 0; i < len; ++i) iirfilt_rrrf_execute(filter, src[i], dst + i);
  };
}
auto liquidSections(size_t count) {
  std::vector<float> b, a;
  const std::vector<float> taps = sectionTaps<float>(count);
  for (size_t s = 0; s < taps.size(); s += 5) {
    b.insert(b.end(), {taps[s], taps[s + 1], taps[s + 2]});
    a.insert(a.end(), {1, taps[s + 3], taps[s + 4]});
  }
  return liquidRun(iirfilt_rrrf_create_sos(b.data(), a.data(), static_cast<unsigned>(count)));
}
auto liquidDirect(size_t order) {
  std::vector<float> b = feedForward<float>(order), a = feedBack<float>(order);
  return liquidRun(iirfilt_rrrf_create(b.data(), static_cast<unsigned>(order + 1), a.data(), static_cast<unsigned>(order + 1)));
}

// Additions and multiplications: of complex numbers, 2 and 6.
template <class Q> constexpr double operations(size_t products, size_t sums) {
  constexpr bool kIsComplex = !std::is_same_v<Q, Plain<Q>>;
  return static_cast<double>(kIsComplex ? 6 * products + 2 * sums : products + sums);
}

template <size_t kCount, auto kInit, auto kClear, auto kRun, class D> auto sectionRow(Suite& s, const std::string& name, D) {
  constexpr auto kFused = Agreement::kFused;
  const std::string count = std::to_string(kCount) + (kCount == 1 ? " section" : " sections");
  return s.row(name + ", " + count, ours<kInit, kClear, kRun, false, kCount, D>)
      .stream()
      .operations(operations<D>(5 * kCount, 4 * kCount))
      .against("plain, by sample", bySample<D>(kCount), kFused)
      .against("plain, by section", bySection<D>(kCount), kFused);
}
template <size_t kCount> void sectionRows(Suite& s) {
  sectionRow<kCount, qvxsIIRInitAlloc_BiQuad_32f, qvxsIIRSetDlyLine_32f, qvxsIIR_32f>(s, "IIR_32f", Qvx32f())
      .against("liquid-dsp", liquidSections(kCount), Agreement::kFused);
  sectionRow<kCount, qvxsIIRInitAlloc_BiQuad_DF1_32f, qvxsIIRSetDlyLine_32f, qvxsIIR_32f>(s, "IIR_32f, DF1", Qvx32f());
  sectionRow<kCount, qvxsIIRInitAlloc_BiQuad_64f, qvxsIIRSetDlyLine_64f, qvxsIIR_64f>(s, "IIR_64f", Qvx64f());
  sectionRow<kCount, qvxsIIRInitAlloc_BiQuad_32fc, qvxsIIRSetDlyLine_32fc, qvxsIIR_32fc>(s, "IIR_32fc", Qvx32fc());
  sectionRow<kCount, qvxsIIRInitAlloc_BiQuad_64fc, qvxsIIRSetDlyLine_64fc, qvxsIIR_64fc>(s, "IIR_64fc", Qvx64fc());
}

template <size_t kOrder, auto kInit, auto kClear, auto kRun, class Q> auto directRow(Suite& s, const std::string& name, Q) {
  return s.row(name + ", order " + std::to_string(kOrder), ours<kInit, kClear, kRun, true, kOrder, Q>)
      .stream()
      .operations(operations<Q>(2 * kOrder + 1, 2 * kOrder))
      .against("plain", plainDirect<Q>(kOrder), Agreement::kFused);
}
template <size_t kOrder> void directRows(Suite& s) {
  directRow<kOrder, qvxsIIRInitAlloc_32f, qvxsIIRSetDlyLine_32f, qvxsIIR_32f>(s, "IIR_32f", Qvx32f())
      .against("liquid-dsp", liquidDirect(kOrder), Agreement::kFused);
  directRow<kOrder, qvxsIIRInitAlloc_64f, qvxsIIRSetDlyLine_64f, qvxsIIR_64f>(s, "IIR_64f", Qvx64f());
  s.row("IIR32f_16s, order " + std::to_string(kOrder),
        ours<qvxsIIRInitAlloc32f_16s, qvxsIIRSetDlyLine32f_16s, qvxsIIR32f_16s_Sfs, true, kOrder, Qvx16s>)
      .stream()
      .operations(operations<Qvx32f>(2 * kOrder + 1, 2 * kOrder))
      .against("plain, truncated", plainDirect<Qvx32f, Qvx16s>(kOrder), Agreement::kDiffers);
  directRow<kOrder, qvxsIIRInitAlloc_32fc, qvxsIIRSetDlyLine_32fc, qvxsIIR_32fc>(s, "IIR_32fc", Qvx32fc());
  directRow<kOrder, qvxsIIRInitAlloc_64fc, qvxsIIRSetDlyLine_64fc, qvxsIIR_64fc>(s, "IIR_64fc", Qvx64fc());
}

}  // namespace

void iir(Suite& s) {
  sectionRows<1>(s);
  sectionRows<2>(s);
  sectionRows<4>(s);
  sectionRows<8>(s);
  sectionRows<16>(s);
  directRows<2>(s);
  directRows<4>(s);
  directRows<8>(s);
  directRows<16>(s);
  directRows<100>(s);
}

}  // namespace bench
