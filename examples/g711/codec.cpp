#include "codec.h"

#include <functional>
#include <stdexcept>

namespace {

using ReadCodes = std::function<int(Qvx8u*)>;

template <class T> ReadCodes encoder(AudioReader& input, T* allocated, QvxStatus (*codesOf)(const T*, Qvx8u*, int)) {
  std::shared_ptr<T[]> samples = vector(allocated);
  return [&input, samples, codesOf](Qvx8u* codes) {
    const int frames = input.read(samples.get());
    if (frames > 0) check(codesOf(samples.get(), codes, frames * input.channels()));
    return frames;
  };
}

ReadCodes makeEncoder(AudioReader& input, const Law& law) {
  const int blockLen = kBlockFrames * input.channels();
  switch (input.subtype()) {
    case SF_FORMAT_PCM_S8:
    case SF_FORMAT_PCM_U8:
    case SF_FORMAT_PCM_16:
    case SF_FORMAT_ALAW:
    case SF_FORMAT_ULAW:  // no samples that 16 bits do not hold
      return encoder(input, qvxsMalloc_16s(blockLen), law.codesOf16s);
    default:  // as 16-bit integers these would be truncated; from floats they are rounded and saturated
      return encoder(input, qvxsMalloc_32f(blockLen), law.codesOf32f);
  }
}

const Law& lawOf(const AudioReader& file) {
  if (file.subtype() == kALaw.subtype) return kALaw;
  if (file.subtype() == kMuLaw.subtype) return kMuLaw;
  throw std::runtime_error(file.path() + ": holds neither A-law nor mu-law codes");
}

}  // namespace

void encode(const std::string& input, const std::string& output, const Law& law, int container) {
  AudioReader in(input);
  AudioWriter out(output, container | law.subtype, in.channels(), in.sampleRate(), {input});
  const ReadCodes nextCodes = makeEncoder(in, law);
  const auto codes = vector(qvxsMalloc_8u(kBlockFrames * in.channels()));
  for (int frames; (frames = nextCodes(codes.get())) > 0;) out.writeBytes(codes.get(), frames);
}

void decode(AudioReader& input, const std::string& output) {
  const Law& law = lawOf(input);
  AudioWriter out(output, SF_FORMAT_WAV | SF_FORMAT_PCM_16, input.channels(), input.sampleRate(), {input.path()});
  const int blockLen = kBlockFrames * input.channels();
  const auto codes = vector(qvxsMalloc_8u(blockLen));
  const auto samples = vector(qvxsMalloc_16s(blockLen));
  for (int frames; (frames = input.readBytes(codes.get())) > 0;) {
    check(law.codesTo16s(codes.get(), samples.get(), frames * input.channels()));
    out.write(samples.get(), frames);
  }
}
