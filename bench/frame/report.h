// The table: a row for every export and peer, a column for every length.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "frame/suite.h"

namespace bench {

// Nanoseconds a call, ours first, in the order of the contenders.
using Times = std::vector<double>;

class Report {
 public:
  void head();
  void open(Table table);
  void row(const Case& c, const std::vector<Times>& bySize);
  void tail() const;

 private:
  void transforms(const Case& c, const std::vector<Times>& bySize);

  struct Cell {
    std::string label;
    double ratio;
  };
  std::vector<Cell> cells_;
  std::map<std::string, std::vector<double>> ratiosByPeer_;
};

}  // namespace bench
