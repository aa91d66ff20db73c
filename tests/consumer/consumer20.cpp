// A user's program in C++20, by objects and spans.
#include <complex>
#include <cstdio>
#include <cstring>
#include <vector>

#include <qvx/qvxs.hpp>

namespace {

bool addsScaled() {
  std::vector<Qvx16s> samples = {30000, -7, 5};
  const std::vector<Qvx16s> others = {30000, 2, 0};
  qvx::Add(others, samples, 1).orThrow();
  return samples == std::vector<Qvx16s>{30000, -2, 2};
}

bool transforms() {
  auto fft = qvx::Fft<float>::make(4).value();
  std::vector<float> samples(16, 0.5F);
  std::vector<std::complex<float>> spectrum(fft.spectrumSize());
  fft.forward(samples, spectrum).orThrow();
  if (spectrum[0] != std::complex<float>(8)) return false;
  qvx::Zero(samples).orThrow();
  fft.inverse(spectrum, samples).orThrow();
  return samples[5] == 0.5F;
}

bool refuses() {
  std::vector<float> shorter(3);
  const std::vector<float> longer(4);
  return qvx::Add(longer, shorter) == qvxStatBadSize && qvx::Fft<float>::make(99).error() == qvxStatBadFFTOrder;
}

}  // namespace

int main(int argc, char** argv) {
  const char* const variant = qvx::handles::GetLibVersion()->cpuTag;
  if (argc != 2 || std::strcmp(variant, argv[1]) != 0) {
    std::fprintf(stderr, "the loader gave variant %s\n", variant);
    return 1;
  }
  if (!addsScaled() || !transforms() || !refuses()) {
    std::fprintf(stderr, "wrong result from variant %s\n", variant);
    return 1;
  }
  std::printf("%s\n", variant);
  return 0;
}
