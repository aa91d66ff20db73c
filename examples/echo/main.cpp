// echo: cancels the echo of one recording in another, and makes such recordings.
#include <cstdio>
#include <stdexcept>

#include "../support/arguments.h"
#include "../support/audio.h"
#include "../support/program.h"
#include "canceller.h"

namespace {

struct Options {
  std::string played, recording, output, picture;
  double stretch = 0.25;
  Room room;
  Learning learning;
};

void make(const Options& options) {
  AudioReader in(options.played);
  writeRecording(recorded(readFirstChannel(in), options.room, in.sampleRate()), options.output, in.sampleRate(),
                 {options.played});
}

void cancel(const Options& options) {
  AudioReader played(options.played);
  AudioReader recording(options.recording);
  if (played.sampleRate() != recording.sampleRate()) throw std::runtime_error(options.recording + ": has another sample rate");
  const std::vector<float> heard = readFirstChannel(recording);
  std::vector<float> source = readFirstChannel(played);
  source.resize(heard.size());
  const std::vector<float> left = cancelled(source, heard, options.learning);
  writeRecording(left, options.output, recording.sampleRate(), {options.played, options.recording});
  const std::vector<Stretch> stretches = levels(heard, left, options.stretch, recording.sampleRate());
  std::printf("%8s %12s %10s %14s\n", "start s", "recorded dB", "left dB", "attenuation dB");
  for (const Stretch& s : stretches) std::printf("%8.2f %12.1f %10.1f %14.1f\n", s.start, s.before, s.after, s.before - s.after);
  if (!options.picture.empty()) plot(stretches, options.picture);
}

int run(int argc, char** argv) {
  Arguments app("Cancels the echo of what a loudspeaker played in what a microphone recorded.");
  Options options;
  Arguments maker = app.command("make", "Writes what a microphone would record");
  Arguments canceller = app.command("cancel", "Writes a recording without its echo, prints the attenuation over time");
  for (Arguments command : {maker, canceller}) {
    command.option("played", options.played, "What the loudspeaker played; its first channel").required().existingFile();
    command.option("-o,--output", options.output, "The 16-bit WAV file to write").required();
  }
  maker.option("--delay", options.room.delay, "Seconds to the first reflection").range(0.0, 1.0).showDefault();
  maker.option("--level", options.room.level, "Its level, dB").range(-60.0, 0.0).showDefault();
  maker.option("--noise", options.room.noise, "Noise of the microphone, dB").range(-120.0, 0.0).showDefault();
  canceller.option("recording", options.recording, "What the microphone recorded").required().existingFile();
  canceller.option("--taps", options.learning.taps, "Samples that an echo may last").range(1, 1 << 16).showDefault();
  canceller.option("--rate", options.learning.rate, "Of learning: quick at 0.5, accurate below").range(0.0, 1.0).showDefault();
  canceller.option("--stretch", options.stretch, "Seconds to a line").range(0.001, 3600.0).showDefault();
  canceller.option("-p,--plot", options.picture, "Draw the levels into this .png or .svg file");
  app.parse(argc, argv);
  if (maker.isGiven()) make(options);
  else cancel(options);
  return 0;
}

}  // namespace

int main(int argc, char** argv) { return runProgram("echo", run, argc, argv); }
