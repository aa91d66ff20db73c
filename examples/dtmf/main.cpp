// dtmf: the digits of a recording of telephone keys, and such recordings.
#include <cstdio>

#include "../support/arguments.h"
#include "../support/program.h"
#include "keypad.h"

namespace {

void printTable(const std::vector<Press>& presses) {
  std::printf("%3s %8s %8s", "key", "start s", "long ms");
  for (const float tone : kTones) std::printf(" %5.0f", tone);
  std::printf(" Hz, dB\n");
  std::string digits;
  for (const Press& press : presses) {
    std::printf("%3c %8.3f %8.0f", press.key, press.start, 1000 * press.length);
    for (const double level : press.levelsDb) std::printf(" %5.1f", level);
    std::printf("\n");
    digits += press.key;
  }
  std::printf("digits %s\n", digits.c_str());
}

int run(int argc, char** argv) {
  Arguments app("Decodes the keys of a recording by their tones, and makes such recordings.");
  std::string input, keys, output;
  int sampleRate = 8000;
  double noise = -40;
  Arguments hear = app.command("listen", "Prints the keys of a recording and the levels of all tones");
  hear.option("recording", input, "The recording; its first channel").required().existingFile();
  Arguments make = app.command("dial", "Writes a recording");
  make.option("keys", keys, "Of 0 to 9, A to D, * and #").required();
  make.option("-o,--output", output, "The 16-bit WAV file to write").required();
  make.option("--rate", sampleRate, "Sample rate").range(4000, 192000).showDefault();
  make.option("--noise", noise, "Level of white noise in dB; a sine of full scale has 0").range(-200.0, 0.0).showDefault();
  app.parse(argc, argv);
  if (make.isGiven()) dial(keys, sampleRate, noise, output);
  else printTable(listen(input));
  return 0;
}

}  // namespace

int main(int argc, char** argv) { return runProgram("dtmf", run, argc, argv); }
