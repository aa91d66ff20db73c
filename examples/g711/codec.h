// Files of linear samples to files of G.711 codes, and back.
#pragma once

#include "../support/audio.h"

// What makes a law: its name, libsndfile's format, the level of a sine that reaches full scale, and the library's functions.
struct Law {
  const char* name;
  int subtype;
  double fullScaleDbm0;
  QvxStatus (*codesOf16s)(const Qvx16s*, Qvx8u*, int);
  QvxStatus (*codesOf32f)(const Qvx32f*, Qvx8u*, int);
  QvxStatus (*codesTo16s)(const Qvx8u*, Qvx16s*, int);
  QvxStatus (*codesTo32f)(const Qvx8u*, Qvx32f*, int);
};

// The load capacities of G.711 are 3.14 and 3.17 dBm0, at peaks of 32768 in A-law and 8159 * 4 in mu-law: there, 32768 is 0.035
// dB above.
inline constexpr Law kALaw = {
    "A-law", SF_FORMAT_ALAW, 3.14, qvxsLinToALaw_16s8u, qvxsLinToALaw_32f8u, qvxsALawToLin_8u16s, qvxsALawToLin_8u32f};
inline constexpr Law kMuLaw = {
    "mu-law", SF_FORMAT_ULAW, 3.205, qvxsLinToMuLaw_16s8u, qvxsLinToMuLaw_32f8u, qvxsMuLawToLin_8u16s, qvxsMuLawToLin_8u32f};

// container: SF_FORMAT_WAV, or SF_FORMAT_RAW for nothing but the codes. Rate and channels stay what they are, and interleaved
// channels are encoded as they lie.
void encode(const std::string& input, const std::string& output, const Law& law, int container);

// Writes a 16-bit WAV file. The law is that of the file.
void decode(AudioReader& input, const std::string& output);
