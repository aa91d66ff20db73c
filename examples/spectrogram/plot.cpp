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

void plot(const Spectrogram& s, double range, const std::string& title, const std::string& path) {
  const std::string kind = std::filesystem::path(path).extension();
  if (kind != ".png" && kind != ".svg") throw std::runtime_error(path + ": a picture's name ends with .png or .svg");
  if (!std::ofstream(path)) throw std::runtime_error(path + ": cannot be written");
  FILE* gnuplot = popen("gnuplot >/dev/null", "w");
  if (gnuplot == nullptr) throw std::runtime_error("gnuplot cannot be started");
  const double top = static_cast<double>(*std::max_element(s.levels.begin(), s.levels.end()));
  std::fprintf(gnuplot, "set terminal %s size 1000,500 background rgb 'white'\nset output %s\n",
               kind == ".png" ? "pngcairo" : "svg", quoted(path).c_str());
  std::fprintf(gnuplot, "set title %s noenhanced\nset xlabel 's'\nset ylabel 'Hz'\nset cblabel 'dBFS'\n", quoted(title).c_str());
  std::fprintf(gnuplot, "set palette defined (0 'black', 1 'blue', 2 'red', 3 'yellow', 4 'white')\n");
  std::fprintf(gnuplot, "set xrange [0:%g]\nset yrange [0:%g]\nset cbrange [%g:%g]\n", s.seconds, s.hz, top - range, top);
  const double dx = s.seconds / s.columns;
  const double dy = s.hz / s.rows;
  std::fprintf(gnuplot, "plot '-' binary array=(%d,%d) format='%%float' dx=%.9g dy=%.9g origin=(%.9g,%.9g) with image notitle\n",
               s.columns, s.rows, dx, dy, dx / 2, dy / 2);
  std::fwrite(s.levels.data(), sizeof(Qvx32f), s.levels.size(), gnuplot);
  if (pclose(gnuplot) != 0 || std::filesystem::file_size(path) == 0)
    throw std::runtime_error(path + ": gnuplot could not draw it");
}
