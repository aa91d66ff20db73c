// fm: modulates audio into complex recordings, and demodulates them.
#include <CLI/CLI.hpp>
#include <cstdio>

#include "../support/program.h"
#include "radio.h"

namespace {

void addRecording(CLI::App* command, Recording& recording, Channel& channel) {
  command->add_flag("-r,--raw", recording.isRaw, "The recording holds samples alone, real and imaginary parts in turn");
  command->add_option("-b,--bits", recording.bits, "Of a sample, in a raw recording or one to write")
      ->check(CLI::IsMember({8, 16}))
      ->capture_default_str();
  command->add_option("-d,--deviation", channel.deviation, "Hz at full scale")
      ->check(CLI::Range(100.0, 40000.0))
      ->capture_default_str();
}

int run(int argc, char** argv) {
  CLI::App app("Frequency modulation of 48 kHz audio in complex recordings of 480 kHz, and back.");
  app.require_subcommand(1);
  Channel channel;
  Recording recording;
  std::string audio, original;
  CLI::App* make = app.add_subcommand("transmit", "Writes the recording of a station that sends an audio file");
  make->add_option("audio", audio, "The audio file, 48000 Hz; its first channel")->required()->check(CLI::ExistingFile);
  make->add_option("-o,--output", recording.path, "The recording to write")->required();
  addRecording(make, recording, channel);
  CLI::App* demodulate = app.add_subcommand("receive", "Writes the audio of a recording");
  demodulate->add_option("recording", recording.path, "The recording, 480000 Hz")->required()->check(CLI::ExistingFile);
  demodulate->add_option("-o,--output", audio, "The 16-bit WAV file to write")->required();
  demodulate->add_option("--original", original, "What was sent: prints the signal-to-noise ratio")->check(CLI::ExistingFile);
  addRecording(demodulate, recording, channel);
  CLI11_PARSE(app, argc, argv);
  if (make->parsed()) {
    transmit(channel, audio, recording);
  } else {
    const double ratio = receive(channel, recording, audio, original);
    if (!original.empty()) std::printf("signal-to-noise ratio %.1f dB\n", ratio);
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) { return runProgram("fm", run, argc, argv); }
