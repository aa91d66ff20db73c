// The windows of the library by name, and what they do to a spectrum.
#pragma once

#include <string>
#include <vector>

#include "../support/audio.h"

struct Window {
  const char* name;
  void (*apply)(Qvx64f* samples, int len);
};

const std::vector<Window>& windows();
const Window& windowOf(const std::string& name);

struct Properties {
  double gain;            // mean of the window
  double noiseBandwidth;  // bins
  double width3;          // of the main lobe at -3 dB, bins
  double width6;          // and at -6 dB
  double sideLobe;        // the highest, dB
  double scalloping;      // what a sine between two bins loses, dB
};

// Levels in dB of the window's spectrum at `perBin` points a bin, from the middle of the main lobe on.
struct Response {
  int perBin;
  std::vector<double> levels;
};

Response responseOf(const Window& window);
Properties propertiesOf(const Window& window);
void plotWindows(const std::string& path);
