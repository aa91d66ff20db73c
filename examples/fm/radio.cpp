#include "radio.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <limits>
#include <memory>
#include <numbers>
#include <stdexcept>

#include "../support/audio.h"

namespace {

// From 480 kHz to 96 kHz, demodulated there, and on to 48 kHz.
constexpr int kFirst = 5;
constexpr int kSecond = 2;
constexpr int kBlock = 4000;  // frames at 480 kHz, a multiple of both, so that picking begins with each block's first sample
static_assert(kBlock <= kBlockFrames && kBlock % (kFirst * kSecond) == 0);

// Filters are symmetric, of 2 * delay + 1 taps. All delays, with the 2 samples that a difference over 5 of them adds, come to 20
// samples of the audio.
constexpr int kUpDelay = 48;
constexpr int kChannelDelay = 50;
constexpr int kAudioDelay = 20;
constexpr size_t kDelay = (kUpDelay + kChannelDelay + (kFirst - 1) / 2 + kFirst * kAudioDelay) / (kFirst * kSecond);

struct FreeFir {
  void operator()(QvxsFIRState_32f* state) const { qvxsFIRFree_32f(state); }
};
using Fir = std::unique_ptr<QvxsFIRState_32f, FreeFir>;
struct FreeIir {
  void operator()(QvxsIIRState_32f* state) const { qvxsIIRFree_32f(state); }
};
using Iir = std::unique_ptr<QvxsIIRState_32f, FreeIir>;

// A low-pass filter: a sine cardinal under a Hann window. edge: of the sampling rate.
Fir lowPass(int delay, double edge, double gain = 1) {
  std::vector<float> taps;
  for (int i = -delay; i <= delay; ++i) {
    const double x = 2 * std::numbers::pi * edge * i;
    const double window = 0.5 + 0.5 * std::cos(std::numbers::pi * i / (delay + 1));
    taps.push_back(static_cast<float>(gain * 2 * edge * window * (i == 0 ? 1 : std::sin(x) / x)));
  }
  QvxsFIRState_32f* state = nullptr;
  check(qvxsFIRInitAlloc_32f(&state, taps.data(), static_cast<int>(taps.size()), nullptr));
  return Fir(state);
}

// What of a sample is taken from the next one.
float emphasis(const Channel& channel) { return static_cast<float>(std::exp(-1 / (channel.emphasis * kAudioRate))); }

// One over pre-emphasis: y[n] = x[n] + part * y[n - 1].
Iir deemphasis(const Channel& channel) {
  const float taps[] = {1, 0, 1, -emphasis(channel)};
  QvxsIIRState_32f* state = nullptr;
  check(qvxsIIRInitAlloc_32f(&state, taps, 1, nullptr));
  return Iir(state);
}

std::vector<float> readAudio(const std::string& path) {
  AudioReader in(path);
  if (in.sampleRate() != kAudioRate) throw std::runtime_error(path + ": audio has to have 48000 Hz");
  return readFirstChannel(in);
}

void pick(const float* src, int n, int every, float* dst) {
  for (int i = 0; i < n; i += every) *dst++ = src[i];
}

int format(const Recording& recording) {
  const bool is8 = recording.bits == 8;  // unsigned in either kind of file
  return (recording.isRaw ? SF_FORMAT_RAW : SF_FORMAT_WAV) | (is8 ? SF_FORMAT_PCM_U8 : SF_FORMAT_PCM_16);
}

class Receiver {
 public:
  explicit Receiver(const Channel& channel)
      : channel_(channel),
        filters_{lowPass(kChannelDelay, 0.5 / kFirst), lowPass(kChannelDelay, 0.5 / kFirst)},
        audioFilter_(lowPass(kAudioDelay, 0.45 / kSecond)),
        deemphasis_(deemphasis(channel)) {}

  // n samples at 480 kHz give n / 10 of audio; full scale of the deviation is 1.
  void run(const Qvx32fc* iq, int n, float* audio) {
    check(qvxsCplxToReal_32fc(iq, part_[0].data(), part_[1].data(), n));
    const int slow = n / kFirst;
    for (size_t k = 0; k < 2; ++k) {
      check(qvxsFIR_32f(part_[k].data(), filtered_.data(), n, filters_[k].get()));
      pick(filtered_.data(), n, kFirst, filtered_.data());
      check(qvxsConvert_32f16s_Sfs(filtered_.data(), whole_[k].data(), slow, qvxRoundNearestEven, -14));
    }
    check(qvxsDemodulateFM_CToR_16s(whole_[0].data(), whole_[1].data(), angle_.data(), slow, &last_));
    check(qvxsConvert_16s32f(angle_.data(), part_[0].data(), slow));
    const double hertz = kIqRate / (65536.0 * kFirst);  // of a unit of the angle
    check(qvxsMulC_32f_I(static_cast<float>(hertz / channel_.deviation), part_[0].data(), slow));
    check(qvxsFIR_32f(part_[0].data(), filtered_.data(), slow, audioFilter_.get()));
    pick(filtered_.data(), slow, kSecond, audio);
    check(qvxsIIR_32f_I(audio, slow / kSecond, deemphasis_.get()));
  }

 private:
  Channel channel_;
  Fir filters_[2];
  Fir audioFilter_;
  Iir deemphasis_;
  Qvx16sc last_ = {0, 0};
  std::vector<float> part_[2] = {std::vector<float>(kBlock), std::vector<float>(kBlock)};
  std::vector<float> filtered_ = std::vector<float>(kBlock);
  std::vector<Qvx16s> whole_[2] = {std::vector<Qvx16s>(kBlock), std::vector<Qvx16s>(kBlock)};
  std::vector<Qvx16s> angle_ = std::vector<Qvx16s>(kBlock);
};

double signalToNoise(const std::vector<float>& original, const std::vector<float>& received) {
  if (received.size() <= kDelay) return -std::numeric_limits<double>::infinity();
  const auto n = static_cast<int>(std::min(original.size(), received.size() - kDelay));
  const float* const late = received.data() + kDelay;
  double signal, common, energy;
  check(qvxsDotProd_32f64f(original.data(), original.data(), n, &signal));
  check(qvxsDotProd_32f64f(original.data(), late, n, &common));
  check(qvxsDotProd_32f64f(late, late, n, &energy));
  return -10 * std::log10(1 - common * common / (signal * energy));
}

}  // namespace

void transmit(const Channel& channel, const std::string& audio, const Recording& recording) {
  std::vector<float> x = readAudio(audio);
  AudioWriter out(recording.path, format(recording), 2, kIqRate, {audio});
  constexpr int kUp = kIqRate / kAudioRate;
  x.resize(x.size() + kDelay);  // what the filters still hold at the end
  check(qvxsPreemphasize_32f(x.data(), static_cast<int>(x.size()), emphasis(channel)));
  float peak = 0;
  check(qvxsNorm_Inf_32f(x.data(), static_cast<int>(x.size()), &peak));
  if (peak > 0) check(qvxsMulC_32f_I(1 / peak, x.data(), static_cast<int>(x.size())));
  const Fir filter = lowPass(kUpDelay, 0.45 / kUp, kUp);
  std::vector<float> spread(kUp), dense(kUp);
  std::vector<Qvx8u> bytes;
  std::vector<Qvx16s> words;
  double turns = 0;
  for (size_t i = 0; i < x.size(); ++i) {
    spread[0] = x[i];
    check(qvxsFIR_32f(spread.data(), dense.data(), kUp, filter.get()));
    for (const float v : dense) {
      turns += v * channel.deviation / kIqRate;
      turns -= std::floor(turns);
      const std::complex<double> z = std::polar(1.0, 2 * std::numbers::pi * turns);
      for (const double part : {z.real(), z.imag()}) {
        if (recording.bits == 8) bytes.push_back(static_cast<Qvx8u>(std::lrint(127 * part) + 128));
        else words.push_back(static_cast<Qvx16s>(std::lrint(32000 * part)));
      }
    }
    if (i + 1 < x.size() && bytes.size() + words.size() < size_t{2} * kBlock) continue;
    if (!bytes.empty()) out.writeBytes(bytes.data(), static_cast<int>(bytes.size() / 2));
    if (!words.empty()) out.write(words.data(), static_cast<int>(words.size() / 2));
    bytes.clear();
    words.clear();
  }
}

double receive(const Channel& channel, const Recording& recording, const std::string& output, const std::string& original) {
  AudioReader in = recording.isRaw ? AudioReader(recording.path, format(recording), 2, kIqRate) : AudioReader(recording.path);
  if (in.channels() != 2) throw std::runtime_error(recording.path + ": a complex recording has two channels");
  if (in.sampleRate() != kIqRate) throw std::runtime_error(recording.path + ": a recording has to have 480000 Hz");
  const std::vector<float> reference = original.empty() ? std::vector<float>() : readAudio(original);
  AudioWriter out(output, SF_FORMAT_WAV | SF_FORMAT_PCM_16, 1, kAudioRate, {recording.path, original});
  Receiver receiver(channel);
  std::vector<Qvx32fc> iq(kBlock);
  std::vector<float> audio(kBlock / kFirst / kSecond), all;
  for (int n; (n = in.read(reinterpret_cast<float*>(iq.data()), kBlock)) > 0;) {
    const int whole = n - n % (kFirst * kSecond);
    if (whole == 0) break;
    receiver.run(iq.data(), whole, audio.data());
    all.insert(all.end(), audio.begin(), audio.begin() + whole / (kFirst * kSecond));
  }
  if (all.empty()) throw std::runtime_error(recording.path + ": holds no samples");
  // At full scale, whatever the gain of the emphasis.
  const auto n = static_cast<int>(all.size());
  float peak = 0;
  check(qvxsNorm_Inf_32f(all.data(), n, &peak));
  std::vector<float> scaled = all;
  if (peak > 0) check(qvxsMulC_32f_I(32767 / peak, scaled.data(), n));
  std::vector<Qvx16s> samples(scaled.size());
  check(qvxsConvert_32f16s_Sfs(scaled.data(), samples.data(), n, qvxRoundNearestEven, 0));
  for (int at = 0; at < n; at += kBlockFrames) out.write(&samples[static_cast<size_t>(at)], std::min(kBlockFrames, n - at));
  return reference.empty() ? 0 : signalToNoise(reference, all);
}
