#include "mixer.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace {

double decibels(double amplitude) { return 20 * std::log10(amplitude); }

// Reads a block in the type that holds the file's samples and converts it to float.
template <class T, class Convert> std::function<int(Qvx32f*)> decoder(AudioReader file, T* allocated, Convert convert) {
  std::shared_ptr<T[]> raw = vector(allocated);
  return [file, raw, convert](Qvx32f* dst) mutable {
    const auto frames = file.read(raw.get());
    if (frames > 0) check(convert(raw.get(), dst, frames * file.channels()));
    return frames;
  };
}

[[noreturn]] void refuse(const Track& track, const std::string& has, const Track& other, const std::string& otherHas) {
  throw std::runtime_error(track.path() + " has " + has + ", but " + other.path() + " has " + otherHas);
}

std::string hertz(const Track& track) { return std::to_string(track.sampleRate()) + " Hz"; }

std::string channels(const Track& track) { return std::to_string(track.channels()) + " channels"; }

}  // namespace

void Level::add(const Qvx32f* signal, int len) {
  for (int i = 0; i < len; ++i) {
    const double x = signal[i];
    peak = std::max(peak, std::abs(x));
    squares += x * x;
    clipped += x < -1 || x > 32767.0 / 32768;
  }
  samples += len;
}

double Level::peakDb() const { return decibels(peak); }

double Level::rmsDb() const { return decibels(samples > 0 ? std::sqrt(squares / static_cast<double>(samples)) : 0); }

Track::Track(const std::string& path, double gainDb) : gainDb_(gainDb), file_(path) {
  decode_ = makeDecoder();
  samples_ = vector(qvxsMalloc_32f(kBlockFrames * channels()));
}

Track::Decoder Track::makeDecoder() const {
  const int blockLen = kBlockFrames * channels();
  switch (file_.subtype()) {
    case SF_FORMAT_FLOAT:
    case SF_FORMAT_VORBIS:
    case SF_FORMAT_OPUS:
    case SF_FORMAT_MPEG_LAYER_I:
    case SF_FORMAT_MPEG_LAYER_II:
    case SF_FORMAT_MPEG_LAYER_III:  // floats already, and lossy decoders may go beyond full scale
      return [file = file_](Qvx32f* dst) mutable { return file.read(dst); };
    case SF_FORMAT_DOUBLE:
      return decoder(file_, qvxsMalloc_64f(blockLen), qvxsConvert_64f32f);
    case SF_FORMAT_PCM_24:
    case SF_FORMAT_PCM_32:
    case SF_FORMAT_ALAC_20:
    case SF_FORMAT_ALAC_24:
    case SF_FORMAT_ALAC_32:
    case SF_FORMAT_DWVW_24:
      return decoder(file_, qvxsMalloc_32s(blockLen),
                     [](const Qvx32s* src, Qvx32f* dst, int len) { return qvxsConvert_32s32f_Sfs(src, dst, len, 31); });
    default:  // 16 bits or fewer
      return decoder(file_, qvxsMalloc_16s(blockLen),
                     [](const Qvx16s* src, Qvx32f* dst, int len) { return qvxsConvert_16s32f_Sfs(src, dst, len, 15); });
  }
}

int Track::addTo(Qvx32f* sum, int sumChannels) {
  const int frames = decode_(samples_.get());
  if (frames == 0) return 0;
  const int len = frames * channels();
  check(qvxsMulC_32f_I(static_cast<Qvx32f>(std::pow(10, gainDb_ / 20)), samples_.get(), len));
  level_.add(samples_.get(), len);
  if (channels() == sumChannels) {
    check(qvxsAdd_32f_I(samples_.get(), sum, len));
  } else {
    for (int i = 0; i < frames * sumChannels; ++i) sum[i] += samples_[i / sumChannels];
  }
  return frames;
}

MixFormat commonFormat(const std::vector<Track>& tracks) {
  const Track& widest =
      *std::max_element(tracks.begin(), tracks.end(), [](const Track& a, const Track& b) { return a.channels() < b.channels(); });
  MixFormat format = {widest.sampleRate(), widest.channels(), 0};
  for (const Track& track : tracks) {
    if (track.sampleRate() != format.sampleRate) refuse(track, hertz(track), widest, hertz(widest));
    if (track.channels() != 1 && track.channels() != format.channels) refuse(track, channels(track), widest, channels(widest));
    format.frames = std::max(format.frames, track.frames());
  }
  return format;
}

Level mix(std::vector<Track>& tracks, const MixFormat& format, const std::string& output, QvxRoundMode mode,
          const std::function<void(int64_t)>& progress) {
  std::vector<std::string> inputs;
  inputs.reserve(tracks.size());
  for (const Track& track : tracks) inputs.push_back(track.path());
  AudioWriter file(output, SF_FORMAT_WAV | SF_FORMAT_PCM_16, format.channels, format.sampleRate, inputs);
  const int blockLen = kBlockFrames * format.channels;
  const auto sum = vector(qvxsMalloc_32f(blockLen));
  const auto out = vector(qvxsMalloc_16s(blockLen));
  Level level;
  for (int64_t done = 0;;) {
    check(qvxsZero_32f(sum.get(), blockLen));
    int frames = 0;
    for (Track& track : tracks) frames = std::max(frames, track.addTo(sum.get(), format.channels));
    if (frames == 0) return level;

    const int len = frames * format.channels;
    done += frames;
    level.add(sum.get(), len);
    // Full scale is 1 in the sum and 2^15 in the file: a scale factor of -15. What is beyond saturates.
    check(qvxsConvert_32f16s_Sfs(sum.get(), out.get(), len, mode, -15));
    file.write(out.get(), frames);
    progress(done);
  }
}
