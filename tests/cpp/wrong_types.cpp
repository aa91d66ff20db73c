// Compiled by compile_test.cpp, which looks for the message in each comment among the errors of this file.
#include <array>
#include <vector>

#include <qvx/qvxs.hpp>

std::vector<Qvx32f> floats(8);
std::vector<Qvx64f> doubles(8);
std::vector<Qvx16s> shorts(8);
std::vector<Qvx8s> bytes(8);

void wrongTypes() {
  // qvx::Add: no such function for elements of these types in this order
  qvx::Add(floats, floats, doubles).orThrow();
  // qvx::MulC: no such function for elements of these types in this order
  qvx::MulC(shorts, 0.5, shorts, 0).orThrow();
  // qvx::Sum: no such function for elements of these types in this order
  qvx::Sum(floats, doubles[0]).orThrow();
  // qvx::Sqrt: no such function for elements of these types in this order. There are Sqrt_32f
  qvx::Sqrt(bytes).orThrow();
  const std::vector<Qvx32f> constant(8);
  // qvx::Abs: no such function for elements of these types in this order
  qvx::Abs(constant).orThrow();
  // qvx: there is no real transform of these elements
  qvx::Fft<Qvx8u>::make(3).value();
  // qvx: there is no FIR filter of such samples with such taps
  qvx::Fir<Qvx16sc>::make(std::vector<Qvx16sc>(3)).value();
  // qvx: there is no recursive filter of such samples with such taps
  qvx::Iir<Qvx32f, Qvx16s> filter;
  // qvx: qvx::Dct takes Qvx32f, Qvx64f or Qvx16s
  qvx::Dct<Qvx32s> cosine;
}

void wrongArguments(qvx::Fft<Qvx32f>& fft, qvx::Fir<Qvx16s>& fir) {
  // no matching function for call to
  fft.toCcs(floats, floats, 1).orThrow();
  // no matching function for call to
  fir.filter(shorts).orThrow();
  // no matching function for call to
  fft.forward(doubles, floats).orThrow();
}
