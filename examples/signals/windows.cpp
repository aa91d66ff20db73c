#include "windows.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "../support/gnuplot.h"
#include "transform.h"

namespace {

constexpr int kLen = 512;
constexpr int kOrder = 15;
constexpr double kLeastDb = -200;

// Weights of the window itself.
Vector<Qvx64f> weightsOf(const Window& window, int len) {
  auto weights = vector(qvxsMalloc_64f(len));
  check(qvxsSet_64f(1, weights.get(), kLen));
  if (len > kLen) check(qvxsZero_64f(weights.get() + kLen, len - kLen));
  window.apply(weights.get(), kLen);
  return weights;
}

// How far from the middle the main lobe has fallen to a level, bins, in a straight line between two points.
double halfWidth(const Response& response, double level) {
  size_t k = 1;
  while (response.levels[k] > level) ++k;
  const double part = (response.levels[k - 1] - level) / (response.levels[k - 1] - response.levels[k]);
  return (static_cast<double>(k) - 1 + part) / response.perBin;
}

}  // namespace

const std::vector<Window>& windows() {
  static const std::vector<Window> all = {
      {"none", [](Qvx64f*, int) {}},
      {"bartlett", [](Qvx64f* x, int len) { check(qvxsWinBartlett_64f_I(x, len)); }},
      {"hann", [](Qvx64f* x, int len) { check(qvxsWinHann_64f_I(x, len)); }},
      {"hamming", [](Qvx64f* x, int len) { check(qvxsWinHamming_64f_I(x, len)); }},
      {"blackman", [](Qvx64f* x, int len) { check(qvxsWinBlackmanStd_64f_I(x, len)); }},
      {"blackman-optimal", [](Qvx64f* x, int len) { check(qvxsWinBlackmanOpt_64f_I(x, len)); }},
      // alpha * (len - 1) / 2 is 2 pi, and 4 pi.
      {"kaiser-2pi", [](Qvx64f* x, int len) { check(qvxsWinKaiser_64f_I(x, len, static_cast<Qvx32f>(4 * M_PI / (len - 1)))); }},
      {"kaiser-4pi", [](Qvx64f* x, int len) { check(qvxsWinKaiser_64f_I(x, len, static_cast<Qvx32f>(8 * M_PI / (len - 1)))); }},
  };
  return all;
}

const Window& windowOf(const std::string& name) {
  for (const Window& window : windows()) {
    if (window.name == name) return window;
  }
  throw std::runtime_error(name + ": no such window");
}

Response responseOf(const Window& window) {
  Transform transform(kOrder);
  const std::vector<double> power = transform.power(weightsOf(window, transform.len()).get());
  Response response{transform.len() / kLen, {}};
  for (const double p : power) response.levels.push_back(std::max(kLeastDb, 10 * std::log10(p / power[0])));
  return response;
}

Properties propertiesOf(const Window& window) {
  const auto weights = weightsOf(window, kLen);
  Qvx64f sum = 0, squares = 0;
  check(qvxsSum_64f(weights.get(), kLen, &sum));
  check(qvxsDotProd_64f(weights.get(), weights.get(), kLen, &squares));
  const Response response = responseOf(window);
  // The main lobe ends where the level rises again.
  const auto& levels = response.levels;
  size_t end = 1;
  while (end + 1 < levels.size() && levels[end] <= levels[end - 1]) ++end;
  return {sum / kLen,
          squares * kLen / (sum * sum),
          2 * halfWidth(response, 10 * std::log10(0.5)),
          2 * halfWidth(response, 20 * std::log10(0.5)),
          *std::max_element(levels.begin() + static_cast<std::ptrdiff_t>(end), levels.end()),
          -levels[static_cast<size_t>(response.perBin / 2)]};
}

void plotWindows(const std::string& path) {
  constexpr int kBins = 16;
  Gnuplot gnuplot(path, 1000, 600);
  std::fprintf(gnuplot.file(),
               "set title 'Windows'\nset xlabel 'bins'\nset ylabel 'dB'\nset grid\nset key outside\nset yrange [-120:3]\nplot");
  for (const Window& window : windows())
    std::fprintf(gnuplot.file(), "%s '-' with lines title '%s'", &window == &windows().front() ? "" : ",", window.name);
  std::fprintf(gnuplot.file(), "\n");
  for (const Window& window : windows()) {
    const Response response = responseOf(window);
    for (int k = 0; k <= kBins * response.perBin; k += 4)
      std::fprintf(gnuplot.file(), "%g %g\n", static_cast<double>(k) / response.perBin, response.levels[static_cast<size_t>(k)]);
    std::fprintf(gnuplot.file(), "e\n");
  }
  gnuplot.finish();
}
