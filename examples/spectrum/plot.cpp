#include "plot.h"

#include <algorithm>

#include "../support/gnuplot.h"

void plot(const Spectrum& spectrum, const std::vector<Peak>& peaks, const std::string& title, const std::string& path) {
  Gnuplot gnuplot(path, 1000, 500);
  const double top = *std::max_element(spectrum.levels.begin(), spectrum.levels.end());
  gnuplot.title(title);
  std::fprintf(gnuplot.file(), "set xlabel 'Hz'\nset ylabel 'dBFS'\nset grid\nset logscale x\n");
  std::fprintf(gnuplot.file(), "set xrange [%g:%g]\nset yrange [%g:%g]\n", spectrum.binHz,
               spectrum.binHz * static_cast<double>(spectrum.levels.size() - 1), top - 120, top + 10);
  std::fprintf(gnuplot.file(), "plot '-' with lines notitle, '-' with points pointtype 7 notitle\n");
  for (size_t k = 1; k < spectrum.levels.size(); ++k)
    std::fprintf(gnuplot.file(), "%.9g %.6g\n", spectrum.binHz * static_cast<double>(k), spectrum.levels[k]);
  std::fprintf(gnuplot.file(), "e\n");
  for (const Peak& peak : peaks) std::fprintf(gnuplot.file(), "%.9g %.6g\n", peak.hz, peak.dbfs);
  std::fprintf(gnuplot.file(), "e\n");
  gnuplot.finish();
}
