// The companding laws of ITU-T G.711 as the recommendation defines them: by tables of decision values and of the values that a
// decoder gives, for the positive half. Numbers of the law run from the smallest magnitude outwards.
#pragma once

#include <cstdint>
#include <vector>

namespace reference {

struct Segment {
  int intervals;  // of one size
  int size;
};

// Interval n holds what lies from edge n to edge n + 1; a decoder gives its middle, save for the first of mu-law, which gives 0.
struct Law {
  std::vector<int> edges;
  std::vector<int> values;

  Law(const std::vector<Segment>& segments, bool firstIsZero) : edges{0} {
    for (const Segment& s : segments) {
      for (int i = 0; i < s.intervals; ++i) edges.push_back(edges.back() + s.size);
    }
    for (size_t n = 0; n + 1 < edges.size(); ++n) values.push_back((edges[n] + edges[n + 1]) / 2);
    if (firstIsZero) values[0] = 0;
  }
};

// A-law: full scale is 8192, twice what the recommendation writes, in units of mu-law's size. mu-law: 8159.
inline Law aLaw() { return Law({{32, 4}, {16, 8}, {16, 16}, {16, 32}, {16, 64}, {16, 128}, {16, 256}}, false); }
// mu-law's first interval is half as wide as the others of its segment.
inline Law muLaw() { return Law({{1, 1}, {15, 2}, {16, 4}, {16, 8}, {16, 16}, {16, 32}, {16, 64}, {16, 128}, {16, 256}}, true); }

// The code of a number: sign bit 1 for positive; then every second bit inverted (A-law), or all but the sign (mu-law).
inline uint8_t aCode(int number, bool isNegative) { return static_cast<uint8_t>((number | (isNegative ? 0 : 0x80)) ^ 0x55); }
inline uint8_t muCode(int number, bool isNegative) { return static_cast<uint8_t>((number | (isNegative ? 0 : 0x80)) ^ 0x7F); }

// The number of the interval, the last if it lies beyond.
inline int numberOf(const Law& law, int magnitude) {
  int n = 0;
  while (n + 1 < static_cast<int>(law.values.size()) && law.edges[static_cast<size_t>(n) + 1] <= magnitude) ++n;
  return n;
}

}  // namespace reference
