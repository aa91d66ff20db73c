// Forward transforms of any length beside FFTW's, out of order beside in order, and what a record costs.
#include "frame/families.h"
#include "frame/transforms.h"
#include "peers/fftw.h"

namespace bench {

namespace {

struct Group {
  const char* name;
  std::vector<int> lengths;
};
const Group kGroups[] = {
    {"short", {3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 20, 24, 30, 36, 45, 48, 60, 72, 90, 96, 100}},
    {"medium", {120, 144, 180, 200, 240, 300, 360, 384, 480, 500, 625, 640, 729, 768, 1000, 1001, 1080, 1200, 1536, 1920, 2000}},
    {"long", {2187, 2520, 3000, 3600, 4000, 4410, 4800, 5000, 8000, 9600, 10000, 44100, 48000, 96000, 100000, 1000000}},
    {"prime", {17, 31, 53, 101, 211, 509, 1009, 2003, 4099, 8191, 65537, 1000003}}};

template <class T, bool kReal> Case caseOf(const std::string& name, const Group& group) {
  Case c = fourierCase<T, kReal>(name, group.lengths);
  c.group = group.name;
  return c;
}

template <class T, bool kReal, class Make> void besideFftw(Suite& suite, const std::string& name, Make make) {
  for (const Group& group : kGroups) {
    Case c = caseOf<T, kReal>(name, group);
    c.contenders.push_back(transformer<T>("ours", make));
    c.contenders.push_back(transformer<T>("FFTW", planner<fftw::MeasuredPlan<T, kReal>>()));
    if (fftw::isBuilt<T>()) c.contenders.push_back(transformer<T>("FFTW, built", planner<fftw::BuiltPlan<T, kReal>>()));
    suite.add(std::move(c));
  }
}

template <class T, bool kReal, class Make> void records(Suite& suite, const std::string& name, Make make) {
  for (const Group& group : kGroups) addRecord<T>(suite, caseOf<T, kReal>(name, group), make);
}

template <class T, class Make, class InOrder> void outOfOrder(Suite& suite, const std::string& name, Make make, InOrder inOrder) {
  for (const Group& group : kGroups) {
    Case c = caseOf<T, false>(name, group);
    c.agrees = [](const Vectors&, Agreement) { return true; };
    c.contenders.push_back(transformer<T>("ours", make));
    c.contenders.push_back(transformer<T>("in order", inOrder));
    c.contenders.back().isPeer = false;
    suite.add(std::move(c));
  }
}

template <class... Functions> auto unscaled(Functions... functions) { return maker(functions..., QVX_FFT_SCALE_NONE, 0); }
// clang-format off
const auto k32fc = unscaled(qvxsDFTFwd_CToC_32fc, qvxsDFTInitAlloc_C_32fc, qvxsDFTFree_C_32fc, qvxsDFTGetBufSize_C_32fc);
const auto k64fc = unscaled(qvxsDFTFwd_CToC_64fc, qvxsDFTInitAlloc_C_64fc, qvxsDFTFree_C_64fc, qvxsDFTGetBufSize_C_64fc);
const auto k32f = unscaled(qvxsDFTFwd_RToCCS_32f, qvxsDFTInitAlloc_R_32f, qvxsDFTFree_R_32f, qvxsDFTGetBufSize_R_32f);
const auto k64f = unscaled(qvxsDFTFwd_RToCCS_64f, qvxsDFTInitAlloc_R_64f, qvxsDFTFree_R_64f, qvxsDFTGetBufSize_R_64f);
const auto kOutOfOrder32fc = unscaled(qvxsDFTOutOrdFwd_CToC_32fc, qvxsDFTOutOrdInitAlloc_C_32fc, qvxsDFTOutOrdFree_C_32fc, qvxsDFTOutOrdGetBufSize_C_32fc);
const auto kOutOfOrder64fc = unscaled(qvxsDFTOutOrdFwd_CToC_64fc, qvxsDFTOutOrdInitAlloc_C_64fc, qvxsDFTOutOrdFree_C_64fc, qvxsDFTOutOrdGetBufSize_C_64fc);
// clang-format on

}  // namespace

void dft(Suite& suite) {
  besideFftw<Qvx32f, false>(suite, "DFTFwd_CToC_32fc", k32fc);
  besideFftw<Qvx64f, false>(suite, "DFTFwd_CToC_64fc", k64fc);
  besideFftw<Qvx32f, true>(suite, "DFTFwd_RToCCS_32f", k32f);
  besideFftw<Qvx64f, true>(suite, "DFTFwd_RToCCS_64f", k64f);
}
void dftRecords(Suite& suite) {
  records<Qvx32f, false>(suite, "DFTInitAlloc_C_32fc", k32fc);
  records<Qvx64f, true>(suite, "DFTInitAlloc_R_64f", k64f);
  outOfOrder<Qvx32f>(suite, "DFTOutOrdFwd_CToC_32fc", kOutOfOrder32fc, k32fc);
  outOfOrder<Qvx64f>(suite, "DFTOutOrdFwd_CToC_64fc", kOutOfOrder64fc, k64fc);
}

}  // namespace bench
