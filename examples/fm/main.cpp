// fm: modulates audio into complex recordings, and demodulates them.
#include <cstdio>

#include "../support/arguments.h"
#include "../support/program.h"
#include "radio.h"

namespace {

void addRecording(Arguments command, Recording& recording, Channel& channel) {
  command.flag("-r,--raw", recording.isRaw, "The recording holds samples alone, real and imaginary parts in turn");
  command.option("-b,--bits", recording.bits, "Of a sample, in a raw recording or one to write").oneOf({8, 16}).showDefault();
  command.option("-d,--deviation", channel.deviation, "Hz at full scale").range(100.0, 40000.0).showDefault();
}

int run(int argc, char** argv) {
  Arguments app("Frequency modulation of 48 kHz audio in complex recordings of 480 kHz, and back.");
  Channel channel;
  Recording recording;
  std::string audio, original;
  Arguments make = app.command("transmit", "Writes the recording of a station that sends an audio file");
  make.option("audio", audio, "The audio file, 48000 Hz; its first channel").required().existingFile();
  make.option("-o,--output", recording.path, "The recording to write").required();
  addRecording(make, recording, channel);
  Arguments demodulate = app.command("receive", "Writes the audio of a recording");
  demodulate.option("recording", recording.path, "The recording, 480000 Hz").required().existingFile();
  demodulate.option("-o,--output", audio, "The 16-bit WAV file to write").required();
  demodulate.option("--original", original, "What was sent: prints the signal-to-noise ratio").existingFile();
  addRecording(demodulate, recording, channel);
  app.parse(argc, argv);
  if (make.isGiven()) {
    transmit(channel, audio, recording);
  } else {
    const double ratio = receive(channel, recording, audio, original);
    if (!original.empty()) std::printf("signal-to-noise ratio %.1f dB\n", ratio);
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) { return runProgram("fm", run, argc, argv); }
