#include "gnuplot.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace {

std::string quoted(const std::string& text) {
  std::string result = "'";
  for (const char c : text) result += c == '\'' ? std::string("''") : std::string(1, c);
  return result + "'";
}

const char* terminalOf(const std::string& path) {
  const std::string kind = std::filesystem::path(path).extension();
  if (path == "-") return "dumb";
  if (kind == ".png") return "pngcairo";
  if (kind == ".svg") return "svg";
  throw std::runtime_error(path + ": a picture is a .png or .svg file, or -");
}

}  // namespace

Gnuplot::Gnuplot(const std::string& path, int width, int height) : path_(path), pipe_(nullptr, pclose) {
  const std::string terminal = terminalOf(path);
  if (path != "-" && !std::ofstream(path)) throw std::runtime_error(path + ": cannot be written");
  pipe_.reset(popen(path == "-" ? "gnuplot" : "gnuplot >/dev/null", "w"));
  if (pipe_ == nullptr) throw std::runtime_error("gnuplot cannot be started");
  if (path == "-") {
    std::fprintf(file(), "set terminal dumb 100 30\n");
  } else {
    std::fprintf(file(), "set terminal %s size %d,%d background rgb 'white'\nset output %s\n", terminal.c_str(), width, height,
                 quoted(path).c_str());
  }
}

void Gnuplot::title(const std::string& text) const { std::fprintf(file(), "set title %s noenhanced\n", quoted(text).c_str()); }

void Gnuplot::finish() {
  if (pclose(pipe_.release()) != 0 || (path_ != "-" && std::filesystem::file_size(path_) == 0))
    throw std::runtime_error(path_ + ": gnuplot could not draw it");
}
