// Forward transforms beside those of others, what a record costs, and where a second thread pays.
#include "frame/transforms.h"
#include "frame/families.h"
#include "peers/fftw.h"
#include "peers/kissfft.h"

namespace bench {

namespace {

// Ours, with spectra of reals in the layout that the others have.
template <class... Functions> auto byOrder(Functions... functions) {
  return [make = maker(functions..., QVX_FFT_SCALE_NONE, 0)](int n, const void* src, void* dst) {
    return make(std::countr_zero(static_cast<unsigned>(n)), src, dst);
  };
}
// clang-format off
const auto k32fc = byOrder(qvxsFFTFwd_CToC_32fc, qvxsFFTInitAlloc_C_32fc, qvxsFFTFree_C_32fc, qvxsFFTGetBufSize_C_32fc);
const auto k64fc = byOrder(qvxsFFTFwd_CToC_64fc, qvxsFFTInitAlloc_C_64fc, qvxsFFTFree_C_64fc, qvxsFFTGetBufSize_C_64fc);
const auto k32f = byOrder(qvxsFFTFwd_RToCCS_32f, qvxsFFTInitAlloc_R_32f, qvxsFFTFree_R_32f, qvxsFFTGetBufSize_R_32f);
const auto k64f = byOrder(qvxsFFTFwd_RToCCS_64f, qvxsFFTInitAlloc_R_64f, qvxsFFTFree_R_64f, qvxsFFTGetBufSize_R_64f);
// clang-format on

std::vector<int> lengths(int from, int to) {
  std::vector<int> n;
  for (int order = from; order <= to; ++order) n.push_back(1 << order);
  return n;
}

struct Group {
  const char* name;
  int from;
  int to;
};
constexpr Group kGroups[] = {{"short", 3, 12}, {"medium", 13, 16}, {"long", 17, 22}};

template <class T, bool kReal, class Make> void besideOthers(Suite& suite, const std::string& name, Make make) {
  for (const bool inPlace : {false, true}) {
    for (const Group& group : kGroups) {
      Case c = fourierCase<T, kReal>(name + (inPlace ? "_I" : ""), lengths(group.from, group.to), inPlace);
      c.group = group.name;
      c.contenders.push_back(transformer<T>("ours", make, inPlace));
      c.contenders.push_back(transformer<T>("FFTW", planner<fftw::MeasuredPlan<T, kReal>>(), inPlace));
      if (fftw::isBuilt<T>()) {
        c.contenders.push_back(transformer<T>("FFTW, built", planner<fftw::BuiltPlan<T, kReal>>(), inPlace));
        if (1 << group.to <= fftw::kMostPatient)
          c.contenders.push_back(transformer<T>("FFTW, patient", planner<fftw::PatientPlan<T, kReal>>(), inPlace));
      }
      // In place it copies.
      if constexpr (sizeof(T) == 4) {
        if (!inPlace) c.contenders.push_back(transformer<T>("kissfft", planner<kissfft::Plan<T, kReal>>()));
      }
      suite.add(std::move(c));
    }
  }
}

template <class T, class Make> void threads(Suite& suite, const std::string& name, Make make) {
  Case c = fourierCase<T, false>(name + ", two threads", lengths(13, 17));
  c.inRealTime = true;
  c.contenders.push_back(transformer<T>("ours", make, false, 2));
  c.contenders.push_back(transformer<T>("one thread", make, false, 1));
  c.contenders.back().isPeer = false;
  suite.add(std::move(c));
}

}  // namespace

void fft32fc(Suite& suite) { besideOthers<Qvx32f, false>(suite, "FFTFwd_CToC_32fc", k32fc); }
void fft64fc(Suite& suite) { besideOthers<Qvx64f, false>(suite, "FFTFwd_CToC_64fc", k64fc); }
void fft32f(Suite& suite) { besideOthers<Qvx32f, true>(suite, "FFTFwd_RToCCS_32f", k32f); }
void fft64f(Suite& suite) { besideOthers<Qvx64f, true>(suite, "FFTFwd_RToCCS_64f", k64f); }
void fftRecords(Suite& suite) {
  addRecord<Qvx32f>(suite, fourierCase<Qvx32f, false>("FFTInitAlloc_C_32fc", lengths(3, 20)), k32fc);
  addRecord<Qvx64f>(suite, fourierCase<Qvx64f, false>("FFTInitAlloc_C_64fc", lengths(3, 20)), k64fc);
  addRecord<Qvx32f>(suite, fourierCase<Qvx32f, true>("FFTInitAlloc_R_32f", lengths(3, 20)), k32f);
  addRecord<Qvx64f>(suite, fourierCase<Qvx64f, true>("FFTInitAlloc_R_64f", lengths(3, 20)), k64f);
  threads<Qvx32f>(suite, "FFTFwd_CToC_32fc", k32fc);
  threads<Qvx64f>(suite, "FFTFwd_CToC_64fc", k64fc);
}

}  // namespace bench
