// Makes the page from the runs of all families.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "frame/measurement.h"

namespace bench {

// A chapter: some families, of which a few exports are shown and all are counted.
struct Section {
  std::string title;
  std::string text;
  std::vector<std::string> plots;  // in the folder beside the page, without ".svg"
  std::vector<std::string> families;
  std::vector<int> lengths;
  std::vector<std::string> exports;
  bool transforms = false;  // lengths are written as orders
};

extern const std::vector<Section> kSections;

// All pieces as one. They have to be of one machine and one variant.
Piece joined(const std::vector<Piece>& pieces);

// What differs between the pages of the variants.
struct Face {
  std::string title = "Performance";
  std::string introduction;                                   // a paragraph
  std::string measurements = "performance/measurements.tsv";  // beside the page
  bool plots = true;
};

// A family that no section names gets one of its own, so that nothing measured is hidden; a section without measurements is left
// out. An export that a section names and its families lack is an error.
void writePage(std::ostream& out, const Piece& all, const std::vector<Section>& sections, const Face& face = {});

}  // namespace bench
