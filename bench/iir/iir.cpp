// Recursive filters: cascades of sections and direct forms.
#include <liquid/liquid.h>

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

// A filter lives as long as the program, one for each size.
template <auto kInit, class State, class T> State* sections(size_t count) {
  State* s = nullptr;
  kInit(&s, withA0(sectionTaps<T>(count)).data(), static_cast<int>(count), nullptr);
  return s;
}
template <auto kInit, class State, class T> State* direct(size_t order) {
  std::vector<T> taps = feedForward<T>(order);
  const std::vector<T> a = feedBack<T>(order);
  taps.insert(taps.end(), a.begin(), a.end());
  State* s = nullptr;
  kInit(&s, taps.data(), static_cast<int>(order), nullptr);
  return s;
}

// Each call of every contender begins with an empty delay line, so that outputs can be compared.
template <size_t kCount> QvxStatus sections32f(const Qvx32f* src, Qvx32f* dst, int len) {
  static auto* const s = sections<qvxsIIRInitAlloc_BiQuad_32f, QvxsIIRState_32f, Qvx32f>(kCount);
  qvxsIIRSetDlyLine_32f(s, nullptr);
  return qvxsIIR_32f(src, dst, len, s);
}
template <size_t kCount> QvxStatus sectionsDf1(const Qvx32f* src, Qvx32f* dst, int len) {
  static auto* const s = sections<qvxsIIRInitAlloc_BiQuad_DF1_32f, QvxsIIRState_32f, Qvx32f>(kCount);
  qvxsIIRSetDlyLine_32f(s, nullptr);
  return qvxsIIR_32f(src, dst, len, s);
}
template <size_t kCount> QvxStatus sections64f(const Qvx64f* src, Qvx64f* dst, int len) {
  static auto* const s = sections<qvxsIIRInitAlloc_BiQuad_64f, QvxsIIRState_64f, Qvx64f>(kCount);
  qvxsIIRSetDlyLine_64f(s, nullptr);
  return qvxsIIR_64f(src, dst, len, s);
}
template <size_t kOrder> QvxStatus direct32f(const Qvx32f* src, Qvx32f* dst, int len) {
  static auto* const s = direct<qvxsIIRInitAlloc_32f, QvxsIIRState_32f, Qvx32f>(kOrder);
  qvxsIIRSetDlyLine_32f(s, nullptr);
  return qvxsIIR_32f(src, dst, len, s);
}
template <size_t kOrder> QvxStatus direct64f(const Qvx64f* src, Qvx64f* dst, int len) {
  static auto* const s = direct<qvxsIIRInitAlloc_64f, QvxsIIRState_64f, Qvx64f>(kOrder);
  qvxsIIRSetDlyLine_64f(s, nullptr);
  return qvxsIIR_64f(src, dst, len, s);
}
template <size_t kOrder> QvxStatus direct16s(const Qvx16s* src, Qvx16s* dst, int len) {
  static auto* const s = direct<qvxsIIRInitAlloc32f_16s, QvxsIIRState32f_16s, Qvx32f>(kOrder);
  qvxsIIRSetDlyLine32f_16s(s, nullptr);
  return qvxsIIR32f_16s_Sfs(src, dst, len, s, 0);
}

template <class T> auto bySample(size_t count) {
  return [s = new plain::Sections<T>{sectionTaps<T>(count)}](const T* src, T* dst, int len) { s->bySample(src, dst, len); };
}
template <class T> auto bySection(size_t count) {
  return [s = new plain::Sections<T>{sectionTaps<T>(count)}](const T* src, T* dst, int len) { s->bySection(src, dst, len); };
}
template <class T, class D = T> auto plainDirect(size_t order) {
  return [s = new plain::Direct<T>{feedForward<T>(order), feedBack<T>(order)}](const D* src, D* dst, int len) {
    s->run(src, dst, len);
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

template <size_t kCount> void sectionRows(Suite& s) {
  constexpr double kEach = 9 * kCount;
  constexpr auto kFused = Agreement::kFused;
  const std::string count = std::to_string(kCount) + (kCount == 1 ? " section" : " sections");
  s.row("IIR_32f, " + count, sections32f<kCount>)
      .stream()
      .operations(kEach)
      .against("plain, by sample", bySample<float>(kCount), kFused)
      .against("plain, by section", bySection<float>(kCount), kFused)
      .against("liquid-dsp", liquidSections(kCount), kFused);
  s.row("IIR_32f, DF1, " + count, sectionsDf1<kCount>)
      .stream()
      .operations(kEach)
      .against("plain, by sample", bySample<float>(kCount), kFused)
      .against("plain, by section", bySection<float>(kCount), kFused);
  s.row("IIR_64f, " + count, sections64f<kCount>)
      .stream()
      .operations(kEach)
      .against("plain, by sample", bySample<double>(kCount), kFused)
      .against("plain, by section", bySection<double>(kCount), kFused);
}
template <size_t kOrder> void directRows(Suite& s) {
  constexpr double kEach = 4 * kOrder + 1;
  constexpr auto kFused = Agreement::kFused;
  const std::string order = "order " + std::to_string(kOrder);
  s.row("IIR_32f, " + order, direct32f<kOrder>)
      .stream()
      .operations(kEach)
      .against("plain", plainDirect<float>(kOrder), kFused)
      .against("liquid-dsp", liquidDirect(kOrder), kFused);
  s.row("IIR_64f, " + order, direct64f<kOrder>).stream().operations(kEach).against("plain", plainDirect<double>(kOrder), kFused);
  s.row("IIR32f_16s, " + order, direct16s<kOrder>)
      .stream()
      .operations(kEach)
      .against("plain, truncated", plainDirect<float, Qvx16s>(kOrder), Agreement::kDiffers);
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
