#include "room.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace {

// So that white noise is as loud in the room as outside.
void normalise(std::vector<Qvx32f>& response, const std::string& name) {
  Qvx32f norm = 0;
  check(qvxsNorm_L2_32f(response.data(), static_cast<int>(response.size()), &norm));
  if (!(norm > 0)) throw std::runtime_error(name + ": silent");
  check(qvxsMulC_32f_I(1 / norm, response.data(), static_cast<int>(response.size())));
}

}  // namespace

std::vector<Qvx32f> readResponse(const std::string& path, int sampleRate) {
  AudioReader reader(path);
  if (reader.sampleRate() != sampleRate) throw std::runtime_error(path + ": another sampling rate than the recording's");
  std::vector<Qvx32f> response = readFirstChannel(reader);
  normalise(response, path);
  return response;
}

std::vector<Qvx32f> decayingNoise(double seconds, int sampleRate) {
  const int length = std::max(1, static_cast<int>(seconds * sampleRate));
  std::vector<Qvx32f> response(static_cast<size_t>(length));
  Qvx32u seed = 1;
  check(qvxsRandGauss_Direct_32f(response.data(), length, 0, 1, &seed));
  std::vector<Qvx32f> level(response.size());
  check(qvxsVectorRamp_32f(level.data(), length, 0, static_cast<Qvx32f>(-3 * std::log(10.0) / length)));
  check(qvxsExp_32f_I(level.data(), length));
  check(qvxsMul_32f_I(level.data(), response.data(), length));
  normalise(response, "the noise");
  return response;
}

std::vector<double> decayOf(const std::vector<Qvx32f>& response, int times) {
  std::vector<double> levels;
  Qvx32f all = 0;
  for (int i = 0; i < times; ++i) {
    const size_t from = response.size() * static_cast<size_t>(i) / static_cast<size_t>(times);
    Qvx32f norm = 0;
    check(qvxsNorm_L2_32f(response.data() + from, static_cast<int>(response.size() - from), &norm));
    if (i == 0) all = norm;
    levels.push_back(20 * std::log10(static_cast<double>(norm / all)));
  }
  return levels;
}

Room::Room(std::vector<Qvx32f> response, int channels)
    : response_(std::move(response)), block_(kBlockFrames), sum_(kBlockFrames + response_.size() - 1) {
  ringing_.resize(static_cast<size_t>(channels), std::vector<Qvx32f>(sum_.size()));
}

void Room::play(Qvx16s* samples, int frames, double wet) {
  const size_t channels = ringing_.size();
  const auto n = static_cast<size_t>(frames);
  for (size_t c = 0; c < channels; ++c) {
    for (size_t i = 0; i < n; ++i) block_[i] = samples[i * channels + c];
    check(qvxsConv_32f(block_.data(), frames, response_.data(), static_cast<int>(response_.size()), sum_.data()));
    std::vector<Qvx32f>& ringing = ringing_[c];
    check(qvxsAdd_32f_I(sum_.data(), ringing.data(), frames + tail()));
    for (size_t i = 0; i < n; ++i) {
      const double both = block_[i] + wet * ringing[i];
      samples[i * channels + c] = static_cast<Qvx16s>(std::lrint(std::clamp(both, -32768.0, 32767.0)));
    }
    std::move(ringing.begin() + frames, ringing.end(), ringing.begin());
    std::fill(ringing.end() - frames, ringing.end(), 0.0F);
  }
}
