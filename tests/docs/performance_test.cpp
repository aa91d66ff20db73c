// The page of a report, from measurements made up here.
#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>

#include "frame/page.h"

namespace {

using bench::Measurement;
using bench::Piece;

Piece piece(std::vector<Measurement> measurements, const std::string& processor = "abacus") {
  return {{{"Processor", processor}, {"Date", "2001-02-03"}, {"Seconds", "60"}}, std::move(measurements)};
}
Measurement cell(const std::string& family, const std::string& name, int n, double ours, const std::string& peer, double theirs) {
  return {family, name, n, 0, {ours, 0.01}, peer, {theirs, 0.03}};
}
// Slower than the faster of two peers by half, by little, and by less than is printed; a bound, which is no peer.
const Piece kAdd = piece({cell("add", "Add_32f", 16, 2, "plain", 8), cell("add", "Add_32f", 16, 2, "VOLK", 1),
                          cell("add", "Add_32f", 4096, 100, "plain", 400), cell("add", "Add_32f", 4096, 100, "VOLK", 98),
                          cell("add", "Add_32f", 16, 2, "a fill", 0.5), cell("add", "Add_16s", 16, 1000, "plain", 996)});
const Piece kFft = piece({{"fft", "FFT", 1024, 51200, {400, 0}, "FFTW", {500, 0}}});
const std::vector<bench::Section> kSections = {{"Sums", "Some text.", {"plot"}, {"add"}, {16, 4096}, {"Add_32f"}},
                                               {"Transforms", "", {}, {"fft"}, {1024}, {"FFT"}, true},
                                               {"Not measured", "", {}, {"iir"}, {64}, {"IIR"}}};

std::string page(const std::vector<Piece>& pieces) {
  std::ostringstream out;
  bench::writePage(out, bench::joined(pieces), kSections);
  return out.str();
}
void expectLines(const std::string& text, const std::vector<std::string>& lines) {
  for (const std::string& line : lines) EXPECT_NE(text.find("\n" + line + "\n"), std::string::npos) << line << "\n\nin\n" << text;
}

TEST(PerformancePage, ShowsOursAndTheirsAndHidesNoLoss) {
  const std::string text = page({kAdd, kFft});
  expectLines(text,
              {"| Sums | 3 | **0.79** | 2 (1) | 1 (0) | **0.50** `Add_32f` at 16, VOLK |",
               "| Transforms | 1 | 1.25 | 0 (0) | 0 (0) | 1.25 `FFT` at 2^10, FFTW |",
               "| All | 4 | **0.88** | 2 (1) | 1 (0) | **0.50** |", "| plain | 3 | 2.52 | 0 | 0 |",
               "| VOLK | 2 | **0.70** | 2 | 1 |", "| Processor | abacus |", "| Date | 2001-02-03 |", "| Time taken | 2 minutes |",
               "| | n = | 16 | 4096 |", "| `Add_32f` | ours, elements/ns | 2.00 ns, 8.00 | 100 ns, 41.0 |",
               "|  | plain | 4.00 | 4.00 |", "|  | VOLK | **0.50** | **0.98** |", "|  | a fill | **0.25** |  |",
               "![Sums](performance/plot.svg)", "- `Add_32f` beside VOLK: **0.50** at 16, **0.98** at 4096",
               "| `FFT` | ours, GFLOPS | 400 ns, 128 |", "No comparison of 1 is below 1."});
  for (const char* absent : {"Not measured", "beside a fill", "| a fill | 1 |"})
    EXPECT_EQ(text.find(absent), std::string::npos) << absent;
}

TEST(PerformancePage, OfAnotherVariantHasNoPlotsAndOnlyLengthsThatWereMeasured) {
  const Piece shorter = piece({kAdd.measurements[0]});
  std::ostringstream out;
  bench::writePage(out, shorter, kSections, {"Another", "About it.", "elsewhere/other.tsv", false});
  expectLines("\n" + out.str(),
              {"# Another", "About it.", "| | n = | 16 |", "[other.tsv](elsewhere/other.tsv) has all of them."});
  EXPECT_EQ(out.str().find("plot.svg"), std::string::npos);
}

TEST(PerformancePage, GivesFamiliesWithoutASectionTheirOwn) {
  expectLines(page({kAdd, piece({cell("sort", "Sort", 64, 10, "std::sort", 5), cell("sort", "Sort", 32, 10, "std::sort", 20)})}),
              {"## sort", "| | n = | 32 | 64 |", "|  | std::sort | 2.00 | **0.50** |"});
}

TEST(PerformancePage, RefusesWhatIsNotOneReport) {
  EXPECT_THROW(page({}), std::runtime_error);
  EXPECT_THROW(page({kAdd, piece({cell("sub", "Sub", 16, 1, "plain", 1)}, "slide rule")}), std::runtime_error);
  EXPECT_THROW(page({piece({cell("add", "Add_64f", 16, 1, "plain", 1)})}), std::runtime_error);  // and not Add_32f
}

TEST(PerformancePage, ReadsWhatItWrites) {
  std::stringstream file;
  bench::write(file, bench::joined({kAdd, kFft}));
  const std::string text = file.str();
  const Piece back = bench::read(file, "file");
  EXPECT_EQ(back["Processor"], "abacus");
  ASSERT_EQ(back.measurements.size(), 7U);
  const Measurement& last = back.measurements.back();
  EXPECT_EQ(last.family + last.name + last.peer, "fftFFTFFTW");
  EXPECT_EQ(last.n, 1024);
  EXPECT_EQ(last.operations, 51200);
  EXPECT_EQ(last.ratio(), 1.25);
  EXPECT_EQ(back.measurements[0].theirs.noise, 0.03);
  for (const std::string& damaged : {text.substr(0, text.size() - 6), text.substr(20), std::string()}) {
    std::istringstream in(damaged);
    EXPECT_THROW(bench::read(in, "damaged"), std::runtime_error);
  }
}

}  // namespace
