// A spectrogram as a picture.
#pragma once

#include "spectrogram.h"

// By gnuplot, as PNG or SVG by the end of the name; colours for the loudest `range` decibels.
void plot(const Spectrogram& spectrogram, double range, const std::string& title, const std::string& path);
