// The power spectra of windows of any length.
#pragma once

#include "windows.h"

// Spectra of windows of one length, by the transform of that very length.
class PowerSpectrum {
 public:
  explicit PowerSpectrum(int len);

  int bins() const { return len_ / 2 + 1; }
  // Of bins 0 to len / 2; 1 is a sine of full scale in the middle of a bin.
  const Qvx32f* of(const Qvx32f* samples);

 private:
  struct EndOfRecord {
    void operator()(QvxsDFTSpec_R_32f* record) const { qvxsDFTFree_R_32f(record); }
  };

  int len_;
  std::unique_ptr<QvxsDFTSpec_R_32f, EndOfRecord> record_;
  Vector<Qvx8u> buffer_;
  std::vector<Qvx32f> window_;
  Vector<Qvx32f> block_;
  Vector<Qvx32fc> spectrum_;
  Vector<Qvx32f> power_;
};

// Mean powers over a grid of times and frequencies.
struct Spectrogram {
  double seconds;  // of all columns
  double hz;       // of all rows
  int columns;
  int rows;
  std::vector<Qvx32f> levels;  // dBFS, row by row from the lowest frequency on
};

// No more columns and rows than these: a cell is the mean over its windows, and of their neighbouring bins the largest.
Spectrogram spectrogramOf(Windows& windows, int mostColumns, int mostRows);

// The octaves whose centres are 1000 Hz times powers of two, and their levels over time.
struct Bands {
  std::vector<double> centres;
  struct Row {
    double time;
    std::vector<double> levels;  // dBFS
  };
  std::vector<Row> rows;
};

// A row for each `seconds`, the mean over the windows that begin within them.
Bands bandsOf(Windows& windows, double seconds);
