#include "plot.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace {

std::string quoted(const std::string& text) {
  std::string result = "'";
  for (const char c : text) result += c == '\'' ? std::string("''") : std::string(1, c);
  return result + "'";
}

}  // namespace

void plot(const Spectrum& spectrum, const std::vector<Peak>& peaks, const std::string& title, const std::string& path) {
  const std::string kind = std::filesystem::path(path).extension();
  if (kind != ".png" && kind != ".svg") throw std::runtime_error(path + ": a picture's name ends with .png or .svg");
  if (!std::ofstream(path)) throw std::runtime_error(path + ": cannot be written");
  FILE* gnuplot = popen("gnuplot >/dev/null", "w");
  if (gnuplot == nullptr) throw std::runtime_error("gnuplot cannot be started");
  const double top = *std::max_element(spectrum.levels.begin(), spectrum.levels.end());
  std::fprintf(gnuplot, "set terminal %s size 1000,500 background rgb 'white'\nset output %s\n",
               kind == ".png" ? "pngcairo" : "svg", quoted(path).c_str());
  std::fprintf(gnuplot, "set title %s noenhanced\nset xlabel 'Hz'\nset ylabel 'dBFS'\nset grid\nset logscale x\n",
               quoted(title).c_str());
  std::fprintf(gnuplot, "set xrange [%g:%g]\nset yrange [%g:%g]\n", spectrum.binHz,
               spectrum.binHz * static_cast<double>(spectrum.levels.size() - 1), top - 120, top + 10);
  std::fprintf(gnuplot, "plot '-' with lines notitle, '-' with points pointtype 7 notitle\n");
  for (size_t k = 1; k < spectrum.levels.size(); ++k)
    std::fprintf(gnuplot, "%.9g %.6g\n", spectrum.binHz * static_cast<double>(k), spectrum.levels[k]);
  std::fprintf(gnuplot, "e\n");
  for (const Peak& peak : peaks) std::fprintf(gnuplot, "%.9g %.6g\n", peak.hz, peak.dbfs);
  std::fprintf(gnuplot, "e\n");
  if (pclose(gnuplot) != 0 || std::filesystem::file_size(path) == 0)
    throw std::runtime_error(path + ": gnuplot could not draw it");
}
