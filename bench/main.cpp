// All exports whose name contains a filter, as a table on the screen; or one family into a file, and such files into a page.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "frame/environment.h"
#include "frame/families.h"
#include "frame/page.h"
#include "frame/runner.h"
#include "peers/volk.h"

namespace {

std::string today() {
  char text[16];
  const std::time_t now = std::time(nullptr);
  std::strftime(text, sizeof text, "%Y-%m-%d", std::localtime(&now));
  return text;
}

void initialize(char* program) {
  char interleaving[] = "--benchmark_enable_random_interleaving=true";
  char* flags[] = {program, interleaving, nullptr};
  int count = 2;
  benchmark::Initialize(&count, flags);
}

// Writes to another file first, so that an interrupted run leaves no partial one.
template <class Write> void replace(const std::filesystem::path& path, Write write) {
  const std::filesystem::path begun = path.string() + ".new";
  std::ofstream out(begun);
  write(out);
  out.close();
  if (!out) throw std::runtime_error("cannot write " + begun.string());
  std::filesystem::rename(begun, path);
}

int measure(const std::string& filter) {
  bench::Suite suite;
  for (const bench::Family& family : bench::kFamilies) family.rows(suite);
  bench::Report report;
  report.head(bench::environment());
  const int mismatches = bench::run(suite, std::regex(filter), report);
  if (report.measurements().empty()) throw std::runtime_error("no name contains " + filter);
  report.tail();
  return mismatches;
}

int measureFamily(const std::string& name, const std::string& filter, bool brief, const std::string& output) {
  const auto* family = std::ranges::find(bench::kFamilies, name, &bench::Family::name);
  if (family == std::end(bench::kFamilies)) throw std::runtime_error("no family " + name);
  bench::Suite suite;
  family->rows(suite);
  suite.keepPeers();
  if (brief) suite.keepBrief();
  const bench::Effort& effort = brief ? bench::kBrief : bench::kThorough;
  const auto start = std::chrono::steady_clock::now();
  bench::Report report;
  const int mismatches = bench::run(suite, std::regex(filter), report, effort);
  bench::Piece piece{bench::environment(), report.measurements()};
  for (bench::Measurement& m : piece.measurements) m.family = name;
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  piece.context.emplace_back("Of a call", std::to_string(effort.repetitions) + " times " +
                                              std::to_string(std::lround(1e3 * effort.seconds)) +
                                              " ms; twice as often or more where a peer seems ahead");
  piece.context.emplace_back("Date", today());
  piece.context.emplace_back("Seconds", std::to_string(taken.count()));
  if (mismatches == 0) replace(output, [&](std::ostream& out) { bench::write(out, piece); });
  return mismatches;
}

bench::Face bestFace() {
  return {"Performance",
          "The other variants beside peers of their level: [AVX2](performance-w3.md), [SSSE3](performance-u8.md).\n"
          "The same variant on a processor of another make: [performance-other.md](performance-other.md)."};
}

// The page of the best variant on a second processor.
bench::Face otherFace() {
  return {"Performance on another processor",
          "Fewer lengths than [performance.md](performance.md), which has the processor that most figures of the code are from.",
          "performance/other.tsv", false};
}

// The page of a variant that is not the processor's best.
bench::Face lowerFace() {
  const bool avx2 = std::string(QVXS_BENCH_VARIANT) == "w3";
  const std::string loops = avx2 ? "x86-64-v3" : "SSSE3";
  const std::string fftw = avx2 ? "FFTW is the packaged one and one built with AVX2" : "FFTW is built with SSE2 alone";
  return {std::string("Performance under ") + (avx2 ? "AVX2" : "SSSE3"),
          "Variant " QVXS_BENCH_VARIANT ", beside peers that are held to its instructions: loops are compiled for " + loops +
              ",\n" + fftw +
              ", SLEEF, VOLK, VQSort and the C library are kept from higher ones.\n"
              "[performance.md](performance.md) has the best variant of the same processor.",
          "performance/" QVXS_BENCH_VARIANT ".tsv", false};
}

// In the order of the families; those without a file in the folder are left out.
void page(const std::string& folder, bool brief, const std::string& output) {
  std::vector<bench::Piece> pieces;
  for (const bench::Family& family : bench::kFamilies) {
    std::ifstream in(std::filesystem::path(folder) / (std::string(family.name) + ".tsv"));
    if (in) pieces.push_back(bench::read(in, family.name));
  }
  const bench::Piece all = bench::joined(pieces);
  const bool best = std::string(QVXS_BENCH_VARIANT) == "w4";
  const bench::Face face = !best ? lowerFace() : brief ? otherFace() : bestFace();
  const std::filesystem::path measurements = std::filesystem::path(output).replace_filename(face.measurements);
  std::filesystem::create_directories(measurements.parent_path());
  replace(output, [&](std::ostream& out) { bench::writePage(out, all, bench::kSections, face); });
  replace(measurements, [&](std::ostream& out) { bench::write(out, all); });
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app("Benchmarks beside peers.");
  std::string filter, family, folder, output;
  bool families = false;
  bool brief = false;
  app.add_option("filter", filter, "a regular expression in the name");
  app.add_flag("--families", families, "list the families");
  app.add_option("--family", family, "measure one family beside its peers, into --output");
  app.add_option("--page", folder, "assemble a page, --output, of the families measured into this folder");
  app.add_flag("--brief", brief, "fewer lengths and repetitions, and a page without plots");
  app.add_option("--output", output, "a file");
  CLI11_PARSE(app, argc, argv);
  if (families) {
    for (const bench::Family& f : bench::kFamilies) std::cout << f.name << '\n';
    return 0;
  }
  try {
    if (!folder.empty()) {
      page(folder, brief, output);
      return 0;
    }
    if (std::string(qvxsGetLibVersion()->cpuTag) != QVXS_BENCH_VARIANT)
      throw std::runtime_error("these peers are for variant " QVXS_BENCH_VARIANT ", the library is " +
                               std::string(qvxsGetLibVersion()->cpuTag));
    if (std::string(QVXS_BENCH_VARIANT) != "w4") volk::hold();
    initialize(argv[0]);
    const int mismatches = family.empty() ? measure(filter) : measureFamily(family, filter, brief, output);
    if (mismatches > 0) std::cerr << mismatches << " outputs differ from a peer's\n";
    return mismatches > 0 ? 1 : 0;
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}
