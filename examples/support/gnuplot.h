// Pictures by gnuplot.
#pragma once

#include <cstdio>
#include <memory>
#include <string>

// One picture: commands and data go to file(), finish() waits for the drawing.
class Gnuplot {
 public:
  // A .png or .svg file of so many pixels, or "-" for letters in the terminal.
  Gnuplot(const std::string& path, int width, int height);

  FILE* file() const { return pipe_.get(); }
  // A title may hold any text.
  void title(const std::string& text) const;
  void finish();

 private:
  std::string path_;
  std::unique_ptr<FILE, int (*)(FILE*)> pipe_;
};
