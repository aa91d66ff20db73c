// align: how much later a sound is in one recording than in another, by their cross-correlation.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <stdexcept>

#include "../support/arguments.h"
#include "../support/audio.h"
#include "../support/program.h"

namespace {

struct Recording {
  std::vector<Qvx32f> samples;  // of the first channel
  int rate;
};

Recording readRecording(const std::string& path) {
  AudioReader reader(path);
  Recording recording = {readFirstChannel(reader), reader.sampleRate()};
  Qvx32f norm = 0;
  check(qvxsNorm_L2_32f(recording.samples.data(), static_cast<int>(recording.samples.size()), &norm));
  if (!(norm > 0)) throw std::runtime_error(path + ": silent");
  check(qvxsMulC_32f_I(1 / norm, recording.samples.data(), static_cast<int>(recording.samples.size())));
  return recording;
}

int run(int argc, char** argv) {
  Arguments app("Prints how much later the second recording is than the first, in samples and milliseconds.");
  std::string first;
  std::string second;
  double most = 1000;
  app.option("first", first, "A recording").required().existingFile();
  app.option("second", second, "Another one of the same sound").required().existingFile();
  app.option("-m,--most", most, "The longest delay that is looked for, in milliseconds").range(1.0, 60000.0).showDefault();
  app.parse(argc, argv);
  const Recording a = readRecording(first);
  const Recording b = readRecording(second);
  if (a.rate != b.rate) throw std::runtime_error(second + ": another sampling rate than " + first);

  const int reach = static_cast<int>(most * a.rate / 1000);
  std::vector<Qvx32f> correlation(static_cast<size_t>(2 * reach + 1));
  const int lags = static_cast<int>(correlation.size());
  check(qvxsCrossCorr_32f(a.samples.data(), static_cast<int>(a.samples.size()), b.samples.data(),
                          static_cast<int>(b.samples.size()), correlation.data(), lags, -reach));
  Qvx32f peak = 0;
  Qvx32f trough = 0;
  int place = 0;
  int lowest = 0;
  check(qvxsMaxIndx_32f(correlation.data(), lags, &peak, &place));
  check(qvxsMinIndx_32f(correlation.data(), lags, &trough, &lowest));
  const bool isInverted = -trough > peak;
  const int delay = (isInverted ? lowest : place) - reach;
  std::printf("delay %d samples, %.3f ms, correlation %.3f%s\n", delay, 1000.0 * delay / a.rate,
              static_cast<double>(isInverted ? trough : peak), isInverted ? ", inverted" : "");
  return 0;
}

}  // namespace

int main(int argc, char** argv) { return runProgram("align", run, argc, argv); }
