// The output of a run: the machine, then a line of a table for every export, length and peer.
#pragma once

#include <iosfwd>
#include <string>
#include <utility>
#include <vector>

namespace bench {

// The least of the repetitions, and the distance of their median from it, relative to it.
struct Timing {
  double ns = 0;
  double noise = 0;
};

struct Measurement {
  std::string family;
  std::string name;
  int n = 0;
  double operations = 0;  // of a call; 0 where they are not counted
  Timing ours;
  std::string peer;
  Timing theirs;

  double ratio() const { return theirs.ns / ours.ns; }
};

using Context = std::vector<std::pair<std::string, std::string>>;

struct Piece {
  Context context;
  std::vector<Measurement> measurements;

  const std::string& operator[](const std::string& key) const;
};

// 4096, 4 Mi
std::string lengthText(int n);
double geometricMean(const std::vector<double>& ratios);

// Lines of "# key<TAB>value", a line of column names, a line a measurement.
void write(std::ostream& out, const Piece& piece);
Piece read(std::istream& in, const std::string& name);

}  // namespace bench
