#include "plot.h"

#include <algorithm>

#include "../support/gnuplot.h"

void plot(const Spectrogram& s, double range, const std::string& title, const std::string& path) {
  Gnuplot gnuplot(path, 1000, 500);
  const double top = static_cast<double>(*std::max_element(s.levels.begin(), s.levels.end()));
  gnuplot.title(title);
  std::fprintf(gnuplot.file(),
               "set xlabel 's'\nset ylabel 'Hz'\nset cblabel 'dBFS'\nset palette defined (0 'black', 1 'blue', 2 'red', 3 "
               "'yellow', 4 'white')\n");
  std::fprintf(gnuplot.file(), "set xrange [0:%g]\nset yrange [0:%g]\nset cbrange [%g:%g]\n", s.seconds, s.hz, top - range, top);
  const double dx = s.seconds / s.columns;
  const double dy = s.hz / s.rows;
  std::fprintf(gnuplot.file(),
               "plot '-' binary array=(%d,%d) format='%%float' dx=%.9g dy=%.9g origin=(%.9g,%.9g) with image notitle\n",
               s.columns, s.rows, dx, dy, dx / 2, dy / 2);
  std::fwrite(s.levels.data(), sizeof(Qvx32f), s.levels.size(), gnuplot.file());
  gnuplot.finish();
}
