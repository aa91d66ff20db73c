#include "frame/measurement.h"

#include <algorithm>
#include <cmath>
#include <istream>
#include <ostream>
#include <sstream>
#include <stdexcept>

namespace bench {

namespace {

constexpr const char* kColumns = "family\texport\tn\toperations\tours_ns\tours_noise\tpeer\tpeer_ns\tpeer_noise";

std::vector<std::string> fields(const std::string& line) {
  std::vector<std::string> all;
  std::istringstream in(line);
  for (std::string field; std::getline(in, field, '\t');) all.push_back(field);
  return all;
}

}  // namespace

const std::string& Piece::operator[](const std::string& key) const {
  const auto at = std::find_if(context.begin(), context.end(), [&](const auto& entry) { return entry.first == key; });
  if (at == context.end()) throw std::runtime_error("measurements without a line \"" + key + "\"");
  return at->second;
}

std::string lengthText(int n) {
  constexpr int kMebi = 1 << 20;
  return n % kMebi == 0 ? std::to_string(n / kMebi) + " Mi" : std::to_string(n);
}

double geometricMean(const std::vector<double>& ratios) {
  double sum = 0;
  for (const double ratio : ratios) sum += std::log(ratio);
  return std::exp(sum / static_cast<double>(ratios.size()));
}

void write(std::ostream& out, const Piece& piece) {
  for (const auto& [key, value] : piece.context) out << "# " << key << '\t' << value << '\n';
  out << kColumns << '\n';
  out.precision(4);
  for (const Measurement& m : piece.measurements) {
    const auto timing = [&](const Timing& t) { out << t.ns << '\t' << static_cast<int>(1000 * t.noise) / 1000.0; };
    out << m.family << '\t' << m.name << '\t' << m.n << '\t' << m.operations << '\t';
    timing(m.ours);
    out << '\t' << m.peer << '\t';
    timing(m.theirs);
    out << '\n';
  }
}

Piece read(std::istream& in, const std::string& name) {
  Piece piece;
  std::string line;
  while (std::getline(in, line) && line.starts_with("# ")) {
    const size_t tab = line.find('\t');
    if (tab == std::string::npos) throw std::runtime_error(name + " is no file of measurements: " + line);
    piece.context.emplace_back(line.substr(2, tab - 2), line.substr(tab + 1));
  }
  if (line != kColumns) throw std::runtime_error(name + " is no file of measurements: it has no line of column names");
  while (std::getline(in, line)) {
    const std::vector<std::string> f = fields(line);
    if (f.size() != 9) throw std::runtime_error(name + " is damaged: " + line);
    piece.measurements.push_back({f[0],
                                  f[1],
                                  std::stoi(f[2]),
                                  std::stod(f[3]),
                                  {std::stod(f[4]), std::stod(f[5])},
                                  f[6],
                                  {std::stod(f[7]), std::stod(f[8])}});
  }
  return piece;
}

}  // namespace bench
