#include "peers.h"

#include <samplerate.h>
#include <soxr.h>

#include <algorithm>
#include <stdexcept>

namespace {

std::vector<Qvx32f> bySampleRate(const std::vector<Qvx32f>& signal, int from, int to, int quality) {
  const double ratio = static_cast<double>(to) / from;
  std::vector<Qvx32f> result(static_cast<size_t>(static_cast<double>(signal.size()) * ratio) + 1);
  SRC_DATA data = {};
  data.data_in = signal.data();
  data.data_out = result.data();
  data.input_frames = static_cast<long>(signal.size());
  data.output_frames = static_cast<long>(result.size());
  data.src_ratio = ratio;
  if (const int error = src_simple(&data, quality, 1); error != 0) throw std::runtime_error(src_strerror(error));
  result.resize(static_cast<size_t>(data.output_frames_gen));
  return result;
}

std::vector<Qvx32f> bySoxr(const std::vector<Qvx32f>& signal, int from, int to, unsigned long recipe) {
  const double ratio = static_cast<double>(to) / from;
  std::vector<Qvx32f> result(static_cast<size_t>(static_cast<double>(signal.size()) * ratio) + 1);
  const soxr_quality_spec_t quality = soxr_quality_spec(recipe, 0);
  size_t done = 0;
  const soxr_error_t error = soxr_oneshot(from, to, 1, signal.data(), signal.size(), nullptr, result.data(), result.size(), &done,
                                          nullptr, &quality, nullptr);
  if (error != nullptr) throw std::runtime_error(error);
  result.resize(done);
  return result;
}

}  // namespace

std::vector<Peer> peers(int from, int to) {
  const auto sampleRate = [=](int quality) { return [=](const auto& x) { return bySampleRate(x, from, to, quality); }; };
  const auto soxr = [=](unsigned long recipe) { return [=](const auto& x) { return bySoxr(x, from, to, recipe); }; };
  return {{"libsamplerate fastest", 0.80, sampleRate(SRC_SINC_FASTEST)},
          {"libsamplerate medium", 0.90, sampleRate(SRC_SINC_MEDIUM_QUALITY)},
          {"libsamplerate best", 0.96, sampleRate(SRC_SINC_BEST_QUALITY)},
          {"soxr low", 0.67, soxr(SOXR_LQ)},
          {"soxr medium", 0.90, soxr(SOXR_MQ)},
          {"soxr high", 0.91, soxr(SOXR_HQ)},
          {"soxr very high", 0.91, soxr(SOXR_VHQ)}};
}
