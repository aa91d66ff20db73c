// A spectrum as a picture.
#pragma once

#include "spectrum.h"

// By gnuplot, as PNG or SVG by the end of the name.
void plot(const Spectrum& spectrum, const std::vector<Peak>& peaks, const std::string& title, const std::string& path);
