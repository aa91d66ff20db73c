// The table on the screen: a row for every export and peer, a column for every length.
#pragma once

#include <string>
#include <vector>

#include "frame/measurement.h"
#include "frame/suite.h"

namespace bench {

// Of a call, ours first, in the order of the contenders.
using Times = std::vector<Timing>;

class Report {
 public:
  void head(const Context& context);
  void open(Table table);
  void row(const Case& c, const std::vector<Times>& bySize);
  void tail() const;

  const std::vector<Measurement>& measurements() const { return measurements_; }

 private:
  void transforms(const Case& c, const std::vector<Times>& bySize);
  void keep(const Case& c, size_t size, const Times& times);

  std::vector<Measurement> measurements_;
};

}  // namespace bench
