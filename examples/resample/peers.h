// The resamplers that a program would use instead.
#pragma once

#include <string>

#include "quality.h"

struct Peer {
  std::string name;
  double passBand;  // as its authors tell
  Converter convert;
};

std::vector<Peer> peers(int from, int to);
