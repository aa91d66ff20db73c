#include "frame/page.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdio>
#include <map>
#include <ostream>
#include <set>
#include <stdexcept>
#include <tuple>

namespace bench {

namespace {

using Measurements = std::vector<Measurement>;

constexpr const char* kHead = R"(
Written by `./run bench --report`: each family in one run beside its peers. How to read such numbers, and how to make them, is in
[HACKING.md](HACKING.md#read-a-benchmark).
)";

constexpr const char* kSummary = R"(
## Summary

Beside the fastest peer of each cell: a cell is a function at a length. The mean is the geometric one. In brackets: without the
shortest length of each function, where the cost of a call counts.

| | cells | mean | below 1 | below 0.95 | the worst |
|---|---:|---:|---:|---:|---|
)";

constexpr const char* kHowMeasured = R"(
A call is repeated for the time above, several times over, ours and the peers' in random order in one process, on the same data at
the same addresses. The least of these times counts: what another process takes away only ever adds. Where a peer seems ahead, all
of that cell are measured again, which is as good for the peer as for us. Results are compared before anything is timed: to the
bit, or up to the roundings that an order of operations leaves open. One thread each.

A peer *plain* is the loop a user would write, compiled with the flags above into the program itself, but not inlined. A call of ours passes the dynamic loader's jump, the library's own, and the tests of its arguments: at 16 elements
that is seen. VOLK, FFTW, SLEEF, liquid-dsp and kissfft are as Debian packages them. Some peers have an
easier task: -Ofast and SLEEF differ in the last place, plain roots of 64-bit integers go through doubles, and plain thresholds of
complex vectors compute in the type of the elements.

Every table has our time of a call, what that comes to, and under it for each peer **its time over ours: above 1 we are
faster**. Cells below 1 are bold. The sections show some functions; all that were measured are counted, and every comparison
below 1 is listed at the end of its section.
)";

// Two decimals are printed: a ratio counts as below 1 if it is printed so.
bool isBelow(double ratio) { return std::lround(100 * ratio) < 100; }
bool isFarBelow(double ratio) { return ratio < 0.95; }

std::string number(double v) {
  char text[32];
  std::snprintf(text, sizeof text, v < 9.995 ? "%.2f" : v < 99.95 ? "%.1f" : "%.0f", v);
  return text;
}
std::string ratioText(double ratio) { return isBelow(ratio) ? "**" + number(ratio) + "**" : number(ratio); }
std::string timeText(double ns) {
  if (ns < 999.5) return number(ns) + " ns";
  return ns < 999500 ? number(ns / 1e3) + " µs" : number(ns / 1e6) + " ms";
}
std::string percent(double part) {
  char text[32];
  std::snprintf(text, sizeof text, "%.1f %%", 100 * part);
  return text;
}
std::string lengthOf(const Section& section, int n) {
  return section.transforms ? "2^" + std::to_string(std::countr_zero(static_cast<unsigned>(n))) : lengthText(n);
}

// ---- the machine

void machine(std::ostream& out, const Piece& all) {
  out << "| | |\n|---|---|\n";
  for (const auto& [key, value] : all.context) out << "| " << key << " | " << value << " |\n";
}

void noise(std::ostream& out, const Measurements& all) {
  std::vector<double> medians;
  for (const Measurement& m : all) medians.insert(medians.end(), {m.ours.noise, m.theirs.noise});
  std::sort(medians.begin(), medians.end());
  const auto quantile = [&](double part) { return percent(medians[static_cast<size_t>(part * double(medians.size() - 1))]); };
  out << "\nNoise: the median of the repetitions lies above their least by " << quantile(0.5)
      << " in the middle of all cells, by " << quantile(0.9) << " in one cell of ten and by " << quantile(0.99)
      << " in one of a hundred. A ratio nearer to 1 than that is a tie.\n";
}

// ---- sums over many cells

Measurements ofFamilies(const Measurements& all, const std::vector<std::string>& families) {
  Measurements some;
  std::copy_if(all.begin(), all.end(), std::back_inserter(some),
               [&](const Measurement& m) { return std::find(families.begin(), families.end(), m.family) != families.end(); });
  return some;
}

// A mere lower bound of our time ("a fill") is shown beside it, but does not count as a peer.
bool isBound(const Measurement& m) { return m.peer.starts_with("a "); }
Measurements besidePeers(const Measurements& all) {
  Measurements some;
  std::remove_copy_if(all.begin(), all.end(), std::back_inserter(some), isBound);
  return some;
}

// The fastest peer of each cell.
Measurements fastest(const Measurements& all) {
  Measurements best;
  std::map<std::pair<std::string, int>, size_t> at;
  for (const Measurement& m : all) {
    const auto [place, isNew] = at.try_emplace({m.name, m.n}, best.size());
    if (isNew) best.push_back(m);
    else if (m.ratio() < best[place->second].ratio()) best[place->second] = m;
  }
  return best;
}

double mean(const Measurements& cells) {
  std::vector<double> ratios;
  for (const Measurement& m : cells) ratios.push_back(m.ratio());
  return geometricMean(ratios);
}
template <class Predicate> long countIf(const Measurements& cells, Predicate predicate) {
  return std::count_if(cells.begin(), cells.end(), [=](const Measurement& m) { return predicate(m.ratio()); });
}

Measurements withoutTheShortest(const Measurements& cells) {
  std::map<std::string, int> shortest;
  for (const Measurement& m : cells) {
    int& least = shortest.try_emplace(m.name, m.n).first->second;
    least = std::min(least, m.n);
  }
  Measurements longer;
  std::copy_if(cells.begin(), cells.end(), std::back_inserter(longer),
               [&](const Measurement& m) { return m.n > shortest[m.name]; });
  return longer;
}

void summary(std::ostream& out, const Measurements& all, const std::vector<Section>& sections) {
  out << kSummary;
  const auto both = [](const Measurements& cells, auto predicate) {
    return std::to_string(countIf(cells, predicate)) + " (" + std::to_string(countIf(withoutTheShortest(cells), predicate)) + ")";
  };
  const auto line = [&](const std::string& title, const Measurements& cells, const Section* section) {
    const auto worst = *std::min_element(cells.begin(), cells.end(),
                                         [](const Measurement& a, const Measurement& b) { return a.ratio() < b.ratio(); });
    out << "| " << title << " | " << cells.size() << " | " << ratioText(mean(cells)) << " | " << both(cells, isBelow) << " | "
        << both(cells, isFarBelow) << " | " << ratioText(worst.ratio());
    if (section) out << " `" << worst.name << "` at " << lengthOf(*section, worst.n) << ", " << worst.peer;
    out << " |\n";
  };
  Measurements total;
  for (const Section& section : sections) {
    const Measurements cells = fastest(besidePeers(ofFamilies(all, section.families)));
    if (cells.empty()) continue;
    total.insert(total.end(), cells.begin(), cells.end());
    line(section.title, cells, &section);
  }
  line("All", total, nullptr);
  out << "\nThe libraries one by one, in all cells that they have a function for:\n\n"
         "| | cells | mean | below 1 | below 0.95 |\n|---|---:|---:|---:|---:|\n";
  std::map<std::string, Measurements> byPeer;
  for (const Measurement& m : besidePeers(all)) byPeer[m.peer.starts_with("plain") ? "plain" : m.peer].push_back(m);
  std::vector<std::pair<std::string, Measurements>> peers(byPeer.begin(), byPeer.end());
  std::stable_sort(peers.begin(), peers.end(), [](const auto& a, const auto& b) { return a.second.size() > b.second.size(); });
  for (const auto& [peer, cells] : peers) {
    out << "| " << peer << " | " << cells.size() << " | " << ratioText(mean(cells)) << " | " << countIf(cells, isBelow) << " | "
        << countIf(cells, isFarBelow) << " |\n";
  }
}

// ---- a section

// The lines of one export: our time and what it amounts to, then each peer's ratio.
void lines(std::ostream& out, const Measurements& cells, const std::string& name, const std::vector<int>& lengths) {
  const auto row = [&](const std::string& first, const std::string& second, const std::string& peer, auto text) {
    out << "| " << first << " | " << second << " |";
    for (const int n : lengths) {
      const auto at = std::find_if(cells.begin(), cells.end(), [&](const Measurement& m) {
        return m.name == name && m.n == n && (peer.empty() || m.peer == peer);
      });
      out << " " << (at == cells.end() ? "" : text(*at)) << " |";
    }
    out << "\n";
  };
  const auto any = std::find_if(cells.begin(), cells.end(), [&](const Measurement& m) { return m.name == name; });
  if (any == cells.end()) return;
  const bool counted = any->operations > 0;
  row("`" + name + "`", counted ? "ours, GFLOPS" : "ours, elements/ns", "",
      [=](const Measurement& m) { return timeText(m.ours.ns) + ", " + number((counted ? m.operations : m.n) / m.ours.ns); });
  std::vector<std::string> peers;
  for (const Measurement& m : cells) {
    if (m.name == name && std::find(peers.begin(), peers.end(), m.peer) == peers.end()) peers.push_back(m.peer);
  }
  for (const std::string& peer : peers) row("", peer, peer, [](const Measurement& m) { return ratioText(m.ratio()); });
}

// All cells below 1, a line for an export and a peer.
void cellsBelow(std::ostream& out, const Section& section, const Measurements& cells) {
  const auto count = countIf(cells, isBelow);
  if (count == 0) {
    out << "\nNo comparison of " << cells.size() << " is below 1.\n";
    return;
  }
  out << "\n<details><summary>" << count << " of " << cells.size() << " comparisons below 1</summary>\n\n";
  std::string last;
  for (const Measurement& m : cells) {
    if (!isBelow(m.ratio())) continue;
    const std::string head = "- `" + m.name + "` beside " + m.peer + ":";
    if (head != last) out << (last.empty() ? "" : "\n") << head;
    else out << ",";
    last = head;
    out << " " << ratioText(m.ratio()) << " at " << lengthOf(section, m.n);
  }
  out << "\n\n</details>\n";
}

void write(std::ostream& out, const Section& section, const Measurements& all, bool plots) {
  Measurements cells = ofFamilies(all, section.families);
  std::vector<int> lengths = section.lengths;
  std::erase_if(lengths,
                [&](int n) { return std::none_of(cells.begin(), cells.end(), [=](const Measurement& m) { return m.n == n; }); });
  out << "\n## " << section.title << "\n";
  if (!section.text.empty()) out << "\n" << section.text << "\n";
  for (const std::string& plot : plots ? section.plots : std::vector<std::string>())
    out << "\n![" << section.title << "](performance/" << plot << ".svg)\n";
  out << "\n| | " << (section.transforms ? "N" : "n") << " = |";
  for (const int n : lengths) out << " " << lengthOf(section, n) << " |";
  out << "\n|---|---|";
  for (size_t i = 0; i < lengths.size(); ++i) out << "---:|";
  out << "\n";
  for (const std::string& name : section.exports) lines(out, cells, name, lengths);
  // Cells of one peer stand together.
  std::stable_sort(cells.begin(), cells.end(), [](const Measurement& a, const Measurement& b) {
    return std::tie(a.family, a.name, a.peer) < std::tie(b.family, b.name, b.peer);
  });
  cellsBelow(out, section, besidePeers(cells));
}

// Families that no section names, whole.
std::vector<Section> withOthers(const Measurements& all, const std::vector<Section>& sections) {
  std::vector<Section> present;
  std::set<std::string> named;
  for (const Section& section : sections) {
    named.insert(section.families.begin(), section.families.end());
    if (!ofFamilies(all, section.families).empty()) present.push_back(section);
  }
  for (const Measurement& m : all) {
    if (!named.insert(m.family).second) continue;
    Section other{m.family, "", {}, {m.family}, {}, {}};
    for (const Measurement& cell : ofFamilies(all, {m.family})) {
      const auto addOnce = [](auto& list, const auto& v) {
        if (std::find(list.begin(), list.end(), v) == list.end()) list.push_back(v);
      };
      addOnce(other.lengths, cell.n);
      addOnce(other.exports, cell.name);
    }
    std::sort(other.lengths.begin(), other.lengths.end());
    present.push_back(other);
  }
  return present;
}

// A name that no benchmark has any more. Of families not yet measured nothing is known.
void checkExports(const Measurements& all, const std::vector<Section>& sections) {
  for (const Section& section : sections) {
    const Measurements cells = ofFamilies(all, section.families);
    const auto measured = [&](const std::string& text, std::string Measurement::*field) {
      return std::any_of(cells.begin(), cells.end(), [&](const Measurement& m) { return m.*field == text; });
    };
    const auto& families = section.families;
    if (!std::all_of(families.begin(), families.end(), [&](const auto& f) { return measured(f, &Measurement::family); }))
      continue;
    for (const std::string& name : section.exports) {
      if (!measured(name, &Measurement::name)) throw std::runtime_error("the page shows " + name + ", which was not measured");
    }
  }
}

}  // namespace

Piece joined(const std::vector<Piece>& pieces) {
  if (pieces.empty()) throw std::runtime_error("no measurements to make a page of");
  Piece all;
  double seconds = 0;
  std::string first = pieces[0]["Date"];
  std::string last = first;
  for (const Piece& piece : pieces) {
    seconds += std::stod(piece["Seconds"]);
    first = std::min(first, piece["Date"]);
    last = std::max(last, piece["Date"]);
    all.measurements.insert(all.measurements.end(), piece.measurements.begin(), piece.measurements.end());
  }
  for (const auto& [key, value] : pieces[0].context) {
    if (key == "Date" || key == "Seconds") continue;
    for (const Piece& piece : pieces) {
      if (piece[key] != value) throw std::runtime_error("measured apart: " + key + " is " + value + " and " + piece[key]);
    }
    all.context.emplace_back(key, value);
  }
  all.context.emplace_back("Date", first == last ? first : first + " to " + last);
  all.context.emplace_back("Time taken", std::to_string(std::lround(seconds / 60)) + " minutes");
  return all;
}

void writePage(std::ostream& out, const Piece& all, const std::vector<Section>& sections, const Face& face) {
  if (all.measurements.empty()) throw std::runtime_error("no measurements to make a page of");
  checkExports(all.measurements, sections);
  const std::vector<Section> present = withOthers(all.measurements, sections);
  out << "# " << face.title << "\n" << kHead;
  if (!face.introduction.empty()) out << "\n" << face.introduction << "\n";
  summary(out, all.measurements, present);
  out << "\n## How it was measured\n\n";
  machine(out, all);
  out << kHowMeasured;
  out << "[" << face.measurements.substr(face.measurements.rfind('/') + 1) << "](" << face.measurements << ") has all of them.\n";
  noise(out, all.measurements);
  for (const Section& section : present) write(out, section, all.measurements, face.plots);
}

}  // namespace bench
