// The numbers of docs/scaling.md, read from the page: against the library, and against the definition that the page gives.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <complex>
#include <fstream>
#include <functional>
#include <limits>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "qvx/qvxs.h"

namespace {

using Cells = std::vector<std::string>;
struct Table {
  Cells head;
  std::vector<Cells> rows;
};

Cells cellsOf(const std::string& line) {
  Cells cells;
  std::istringstream in(line.substr(1));
  for (std::string cell; std::getline(in, cell, '|');) {
    const size_t from = cell.find_first_not_of(" `");
    cells.push_back(from == std::string::npos ? "" : cell.substr(from, cell.find_last_not_of(" `") - from + 1));
  }
  return cells;
}

// All tables whose first line begins so.
std::vector<Table> tables(const std::string& head) {
  std::ifstream page(QVXS_DOCS_DIR "/scaling.md");
  std::vector<Table> found;
  bool inside = false;
  for (std::string line; std::getline(page, line);) {
    if (!inside && line.starts_with(head)) found.push_back({cellsOf(line), {}});
    else if (inside && !found.empty() && line.starts_with("| ")) found.back().rows.push_back(cellsOf(line));
    inside = (inside || line.starts_with(head)) && line.starts_with("|");
  }
  return found;
}

std::vector<double> numbers(const std::string& text) {
  std::vector<double> all;
  std::istringstream in(text);
  for (std::string number; std::getline(in, number, ',');) all.push_back(std::stod(number));
  return all;
}

// ---- the scale factor

using Arguments = std::vector<double>;
struct Call {
  std::function<double(const Arguments&, int)> library;
  std::function<double(const Arguments&)> exact;
  double least;
  double most;
};

template <class S, class D>
Call call(QvxStatus (*f)(const S*, const S*, D*, int, int), std::function<double(const Arguments&)> exact) {
  const auto library = [f](const Arguments& a, int scale) {
    const S src1 = static_cast<S>(a.at(0));
    const S src2 = static_cast<S>(a.at(1));
    D dst = 77;
    EXPECT_EQ(f(&src1, &src2, &dst, 1, scale), qvxStatOk);
    return static_cast<double>(dst);
  };
  return {library, exact, double{std::numeric_limits<D>::min()}, double{std::numeric_limits<D>::max()}};
}
template <class S, class D> Call call(QvxStatus (*f)(const S*, D*, int, int), std::function<double(const Arguments&)> exact) {
  const auto library = [f](const Arguments& a, int scale) {
    const S src = static_cast<S>(a.at(0));
    D dst = 77;
    EXPECT_EQ(f(&src, &dst, 1, scale), qvxStatOk);
    return static_cast<double>(dst);
  };
  return {library, exact, double{std::numeric_limits<D>::min()}, double{std::numeric_limits<D>::max()}};
}
QvxStatus nearest32f16s(const Qvx32f* src, Qvx16s* dst, int len, int scale) {
  return qvxsConvert_32f16s_Sfs(src, dst, len, qvxRoundNearestEven, scale);
}

TEST(ScalingPage, ScaleFactors) {
  const auto sum = [](const Arguments& a) { return a[0] + a[1]; };
  const auto product = [](const Arguments& a) { return a[0] * a[1]; };
  const std::map<std::string, Call> calls = {
      {"qvxsAdd_16s_Sfs", call(qvxsAdd_16s_Sfs, sum)},
      {"qvxsAdd_8u_Sfs", call(qvxsAdd_8u_Sfs, sum)},
      {"qvxsSub_8u_Sfs", call(qvxsSub_8u_Sfs, [](const Arguments& a) { return a[1] - a[0]; })},
      {"qvxsMul_16s_Sfs", call(qvxsMul_16s_Sfs, product)},
      {"qvxsDiv_16s_Sfs", call(qvxsDiv_16s_Sfs, [](const Arguments& a) { return a[1] / a[0]; })},
      {"qvxsSqr_16s_Sfs", call(qvxsSqr_16s_Sfs, [](const Arguments& a) { return a[0] * a[0]; })},
      {"qvxsSqrt_16s_Sfs", call(qvxsSqrt_16s_Sfs, [](const Arguments& a) { return std::sqrt(a[0]); })},
      {"qvxsLn_16s_Sfs", call(qvxsLn_16s_Sfs, [](const Arguments& a) { return std::log(a[0]); })},
      {"qvxsConvert_32f16s_Sfs", call(nearest32f16s, [](const Arguments& a) { return double{static_cast<float>(a[0])}; })},
      {"qvxsConvert_32s16s_Sfs", call(qvxsConvert_32s16s_Sfs, [](const Arguments& a) { return a[0]; })},
  };
  const std::vector<Table> page = tables("| Call |");
  ASSERT_EQ(page.size(), 1U);
  ASSERT_GE(page[0].rows.size(), 20U);
  for (const Cells& row : page[0].rows) {
    SCOPED_TRACE(row[0] + " of " + row[1] + ", scale factor " + row[2]);
    const Call& of = calls.at(row[0]);
    const Arguments arguments = numbers(row[1]);
    const int scale = std::stoi(row[2]);
    const double exact = std::stod(row[3]);
    const double scaled = std::stod(row[4]);
    const double result = std::stod(row[5]);
    EXPECT_NEAR(exact, of.exact(arguments), 1e-13 * std::abs(exact));
    EXPECT_NEAR(scaled, std::ldexp(exact, -scale), 1e-13 * std::abs(scaled));
    EXPECT_EQ(result, std::fmin(std::fmax(std::nearbyint(scaled), of.least), of.most));
    EXPECT_EQ(result, of.library(arguments, scale));
  }
}

// ---- factors of transforms

const std::map<std::string, int> kFlags = {{"QVX_FFT_SCALE_FWD", QVX_FFT_SCALE_FWD},
                                           {"QVX_FFT_SCALE_INV", QVX_FFT_SCALE_INV},
                                           {"QVX_FFT_SCALE_BOTH_SQRT", QVX_FFT_SCALE_BOTH_SQRT},
                                           {"QVX_FFT_SCALE_NONE", QVX_FFT_SCALE_NONE}};

constexpr int kOrder = 3;
using Spectrum = std::array<Qvx32f, 10>;
Spectrum transformed(auto* transform, const Spectrum& src, int flag) {
  QvxsFFTSpec_R_32f* record = nullptr;
  EXPECT_EQ(qvxsFFTInitAlloc_R_32f(&record, kOrder, flag, 0), qvxStatOk);
  Spectrum dst{};
  EXPECT_EQ(transform(src.data(), dst.data(), record, nullptr), qvxStatOk);
  qvxsFFTFree_R_32f(record);
  return dst;
}

double factor(const std::string& text) {
  return text == "N" ? 8 : text == "1/N" ? 1.0 / 8 : text == "1/sqrt(N)" ? std::sqrt(1.0 / 8) : 1;
}

TEST(ScalingPage, TransformFactors) {
  const std::vector<Table> page = tables("| Flag |");
  ASSERT_EQ(page.size(), 2U);
  ASSERT_EQ(page[0].rows.size(), kFlags.size());
  for (const Cells& row : page[0].rows) {
    SCOPED_TRACE(row[0]);
    const int flag = kFlags.at(row[0]);
    EXPECT_EQ(std::stoi(row[1]), flag);
    Spectrum ones;
    ones.fill(1);
    const Spectrum spectrum = transformed(qvxsFFTFwd_RToCCS_32f, ones, flag);
    const Spectrum back = transformed(qvxsFFTInv_CCSToR_32f, spectrum, flag);
    EXPECT_NEAR(spectrum[0], 8 * factor(row[2]), 1e-5);
    EXPECT_NEAR(spectrum[0], std::stod(row[4]), 1e-5);
    EXPECT_NEAR(back[0], std::stod(row[5]), 1e-5);
    EXPECT_NEAR(back[0], 8 * factor(row[2]) * factor(row[3]), 1e-5);
    EXPECT_NEAR(back[0], factor(row[6]), 1e-5);
  }
  ASSERT_GE(page[1].rows.size(), 4U);
  for (const Cells& row : page[1].rows) {
    SCOPED_TRACE(row[0] + ", scale factor " + row[1]);
    QvxsFFTSpec_R_16s* record = nullptr;
    ASSERT_EQ(qvxsFFTInitAlloc_R_16s(&record, kOrder, kFlags.at(row[0]), 0), qvxStatOk);
    std::array<Qvx16s, 10> src;
    std::array<Qvx16s, 10> dst{};
    src.fill(20000);
    EXPECT_EQ(qvxsFFTFwd_RToCCS_16s_Sfs(src.data(), dst.data(), record, std::stoi(row[1]), nullptr), qvxStatOk);
    qvxsFFTFree_R_16s(record);
    EXPECT_EQ(dst[0], std::stoi(row[3]));
    EXPECT_EQ(dst[0], std::fmin(std::nearbyint(std::stod(row[2])), 32767));
  }
}

// ---- packed spectra

using Unfold = QvxStatus (*)(const Qvx32f*, Qvx32fc*, int);
const std::map<std::string, Unfold> kUnfolds = {
    {"Pack", qvxsConjPack_32fc}, {"Perm", qvxsConjPerm_32fc}, {"CCS", qvxsConjCcs_32fc}};

std::vector<std::complex<float>> unfolded(const std::string& layout, const std::vector<Qvx32f>& packed, size_t n) {
  std::vector<Qvx32fc> all(n);
  EXPECT_EQ(kUnfolds.at(layout)(packed.data(), all.data(), static_cast<int>(n)), qvxStatOk);
  std::vector<std::complex<float>> x;
  for (const Qvx32fc& v : all) x.emplace_back(v.re, v.im);
  return x;
}

// "X0", "Re X3", "0": of a spectrum that has 10 k + 1 and 10 k + 2 as the parts of X[k].
Qvx32f valueOf(const std::string& symbol) {
  if (symbol == "0") return 0;
  const auto k = static_cast<Qvx32f>(symbol.back() - '0');
  return 10 * k + (symbol.starts_with("Im") ? 2 : 1);
}
std::complex<float> complexOf(const std::string& text) {  // "-4-3i"
  size_t end = 0;
  const float re = std::stof(text, &end);
  return {re, end < text.size() ? std::stof(text.substr(end)) : 0};
}

TEST(ScalingPage, DrawnLayouts) {
  const std::vector<Table> page = tables("| | 0 | 1");
  ASSERT_EQ(page.size(), 2U);
  for (const size_t n : {8, 7}) {
    const Table& table = page[n == 8 ? 0 : 1];
    ASSERT_EQ(table.rows.size(), kUnfolds.size());
    for (const Cells& row : table.rows) {
      SCOPED_TRACE(row[0] + " of " + std::to_string(n));
      std::vector<Qvx32f> packed;
      for (size_t i = 1; i < row.size() && !row[i].empty(); ++i) packed.push_back(valueOf(row[i]));
      ASSERT_EQ(packed.size(), row[0] == "CCS" ? 2 * (n / 2 + 1) : n);
      const auto x = unfolded(row[0], packed, n);
      for (size_t k = 0; k <= n / 2; ++k) {
        const auto re = static_cast<float>(10 * k + 1);
        const std::complex<float> expected(re, k == 0 || 2 * k == n ? 0 : re + 1);
        EXPECT_EQ(x[k], expected) << k;
        EXPECT_EQ(x[(n - k) % n], std::conj(expected)) << k;
      }
    }
  }
}

TEST(ScalingPage, SpectraInNumbers) {
  for (const size_t n : {8, 5}) {
    const std::vector<Table> page = tables("| N = " + std::to_string(n) + " |");
    ASSERT_EQ(page.size(), 1U);
    std::map<std::string, Cells> rows;
    for (const Cells& row : page[0].rows) {
      Cells& cells = rows[row[0]];
      for (size_t i = 1; i < row.size() && !row[i].empty(); ++i) cells.push_back(row[i]);
    }
    ASSERT_EQ(rows.at("X").size(), n);
    for (const auto& [layout, unfold] : kUnfolds) {
      SCOPED_TRACE(layout + " of " + std::to_string(n));
      std::vector<Qvx32f> packed;
      for (const std::string& cell : rows.at(layout)) packed.push_back(std::stof(cell));
      ASSERT_EQ(packed.size(), layout == "CCS" ? 2 * (n / 2 + 1) : n);
      const auto x = unfolded(layout, packed, n);
      for (size_t k = 0; k < n; ++k) EXPECT_EQ(x[k], complexOf(rows.at("X")[k])) << k;
      if (n != 8) continue;
      Spectrum samples{};
      for (size_t i = 0; i < n; ++i) samples[i] = std::stof(rows.at("samples").at(i));
      const Spectrum spectrum = transformed(layout == "Pack"   ? qvxsFFTFwd_RToPack_32f
                                            : layout == "Perm" ? qvxsFFTFwd_RToPerm_32f
                                                               : qvxsFFTFwd_RToCCS_32f,
                                            samples, QVX_FFT_SCALE_NONE);
      for (size_t i = 0; i < packed.size(); ++i) EXPECT_NEAR(spectrum[i], packed[i], 1e-5) << i;
    }
  }
}

}  // namespace
