// Noise, waves and ramps.
#include "frame/families.h"
#include "peers/ofast.h"
#include "peers/plain_generate.h"

namespace bench {

namespace {

constexpr auto kOther = Agreement::kDiffers;

// A record lives as long as the program.
template <auto kInit, auto kRun, class T, int kFrom, int kTo> QvxStatus noise(T* dst, int len) {
  static auto* const state = [] {
    auto* s = [] {
      if constexpr (requires(QvxsRandUniformState_32f * *p) { kInit(p, 0, 0, 0); })
        return static_cast<QvxsRandUniformState_32f*>(nullptr);
      else if constexpr (requires(QvxsRandUniformState_16s * *p) { kInit(p, 0, 0, 0); })
        return static_cast<QvxsRandUniformState_16s*>(nullptr);
      else if constexpr (requires(QvxsRandGaussState_32f * *p) { kInit(p, 0, 0, 0); })
        return static_cast<QvxsRandGaussState_32f*>(nullptr);
      else return static_cast<QvxsRandGaussState_16s*>(nullptr);
    }();
    kInit(&s, kFrom, kTo, 1);
    return s;
  }();
  return kRun(dst, len, state);
}

template <class T, auto kRun> QvxStatus tone(T* dst, int len) {
  T phase = 1;
  return kRun(dst, len, T(0.5), T(0.0123), &phase, 1);
}
template <class T, auto kRun> QvxStatus triangle(T* dst, int len) {
  T phase = 1;
  return kRun(dst, len, T(0.5), T(0.0123), T(0.4), &phase);
}
QvxStatus tone16s(Qvx16s* dst, int len) {
  Qvx32f phase = 1;
  return qvxsTone_Direct_16s(dst, len, 30000, 0.0123F, &phase, 1);
}
QvxStatus triangle16s(Qvx16s* dst, int len) {
  Qvx32f phase = 1;
  return qvxsTriangle_Direct_16s(dst, len, 30000, 0.0123F, 0.4F, &phase);
}
QvxStatus toneQ15(Qvx16s* dst, int len) { return qvxsToneQ15_Direct_16s(dst, len, 30000, 400, 1000); }

template <class T> auto cosines() {
  return [](T* dst, int n) { ofast::tone(dst, n, T(0.5), T(0.0773), T(1)); };
}
void cosines16s(Qvx16s* dst, int n) { ofast::tone(dst, n, 30000, 0.0773F, 1); }
void chirp(Qvx32f* dst, int n) { ofast::chirp(dst, n, 1); }

}  // namespace

void generators(Suite& s) {
  s.row("RandUniform_32f", noise<qvxsRandUniformInitAlloc_32f, qvxsRandUniform_32f, Qvx32f, -1, 1>)
      .against("mt19937", plain::Twister<Qvx32f>(), kOther)
      .against("its own chain", plain::BorrowChain(), kOther);
  s.row("RandUniform_16s", noise<qvxsRandUniformInitAlloc_16s, qvxsRandUniform_16s, Qvx16s, -1000, 1000>)
      .against("mt19937", plain::Twister<Qvx16s>(), kOther)
      .against("its own chain", plain::BorrowChain(), kOther);
  s.row("RandGauss_32f", noise<qvxsRandGaussInitAlloc_32f, qvxsRandGauss_32f, Qvx32f, 0, 1>)
      .against("normal_distribution", plain::NormalTwister<Qvx32f>(), kOther);
  s.row("RandGauss_16s", noise<qvxsRandGaussInitAlloc_16s, qvxsRandGauss_16s, Qvx16s, 0, 1000>)
      .against("normal_distribution", plain::NormalTwister<Qvx16s>(), kOther);
  s.row("Tone_32f", tone<Qvx32f, qvxsTone_Direct_32f>)
      .against("-Ofast", cosines<Qvx32f>(), kOther)
      .against("a fill", plain::Fill<Qvx32f>(), kOther);
  s.row("Tone_64f", tone<Qvx64f, qvxsTone_Direct_64f>)
      .against("-Ofast", cosines<Qvx64f>(), kOther)
      .against("a fill", plain::Fill<Qvx64f>(), kOther);
  s.row("Tone_16s", tone16s).against("-Ofast", cosines16s, kOther).against("a fill", plain::Fill<Qvx16s>(), kOther);
  s.row("ToneQ15_16s", toneQ15).against("-Ofast", cosines16s, kOther).against("a fill", plain::Fill<Qvx16s>(), kOther);
  s.row("Triangle_32f", triangle<Qvx32f, qvxsTriangle_Direct_32f>).against("a fill", plain::Fill<Qvx32f>(), kOther);
  s.row("Triangle_64f", triangle<Qvx64f, qvxsTriangle_Direct_64f>).against("a fill", plain::Fill<Qvx64f>(), kOther);
  s.row("Triangle_16s", triangle16s).against("a fill", plain::Fill<Qvx16s>(), kOther);
  s.row("VectorSlope_32f", qvxsVectorSlope_32f, 1.5F, 0.001F).against("a fill", plain::Fill<Qvx32f>(), kOther);
  s.row("VectorSlope_16s", qvxsVectorSlope_16s, 1.5F, 0.01F).against("a fill", plain::Fill<Qvx16s>(), kOther);
  s.row("VectorJaehne_32f", qvxsVectorJaehne_32f, 1.0F)
      .against(
          "-Ofast", [](Qvx32f* dst, int n, auto...) { chirp(dst, n); }, kOther)
      .against("a fill", plain::Fill<Qvx32f>(), kOther);
}

}  // namespace bench
