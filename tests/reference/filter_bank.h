// A stage of a filter bank as its definition has it, and filters that reconstruct perfectly.
#pragma once

#include <cmath>
#include <complex>
#include <vector>

namespace reference {

using Filter = std::vector<float>;

// A sum, and what its rounding errors are measured by.
struct Sum {
  long double value = 0;
  long double magnitude = 0;
  void add(long double a, long double b) {
    if (a == 0 && std::isfinite(b)) return;
    value += a * b;
    magnitude += std::abs(a * b);
  }
};

// sum of h[j] * x[2k - o - j], zero before the first sample.
inline Sum split(const Filter& h, int offset, const std::vector<float>& x, int64_t k) {
  Sum sum;
  for (int64_t j = 0, at = 2 * k - offset; j < static_cast<int64_t>(h.size()); ++j, --at) {
    if (at >= 0 && at < static_cast<int64_t>(x.size())) sum.add(h[static_cast<size_t>(j)], x[static_cast<size_t>(at)]);
  }
  return sum;
}

// sum of h[j] * u[n - o - j] where u[2k] = a[k] and zeros stand between; an offset of -1 counts as 1.
inline void join(const Filter& h, int offset, const std::vector<float>& a, int64_t n, Sum& sum) {
  for (int64_t j = 0, at = n - std::abs(offset); j < static_cast<int64_t>(h.size()); ++j, --at) {
    if (at >= 0 && at % 2 == 0) sum.add(h[static_cast<size_t>(j)], a[static_cast<size_t>(at / 2)]);
  }
}

// The orthogonal filter of 2 * order taps with the most zeros at half the sampling rate, and all others inside the unit circle.
inline Filter daubechies(int order) {
  using Complex = std::complex<long double>;
  // P(y) = sum of C(order - 1 + k, k) y^k, by whose zeros |H|^2 = (1 - y)^order P(y) is divided; y = (2 - z - 1/z) / 4.
  std::vector<long double> p = {1};
  for (int k = 1; k < order; ++k) p.push_back(p.back() * static_cast<long double>(order - 1 + k) / k);
  std::vector<Complex> zeros;
  for (int k = 1; k < order; ++k) zeros.push_back(std::pow(Complex(0.04L, 0.09L), k));
  for (int round = 0; round < 2000; ++round) {  // all at once, by Weierstrass
    for (auto& y : zeros) {
      Complex value = 0, others = p.back();
      for (size_t k = p.size(); k-- > 0;) value = value * y + p[k];
      for (const auto& other : zeros) {
        if (&other != &y) others *= y - other;
      }
      y -= value / others;
    }
  }
  std::vector<Complex> h = {1};
  const auto by = [&h](Complex zero) {
    h.push_back(0);
    for (size_t i = h.size(); i-- > 1;) h[i] -= zero * h[i - 1];
  };
  for (int i = 0; i < order; ++i) by(-1);
  for (const auto& y : zeros) {
    const Complex half = 1.0L - 2.0L * y, root = std::sqrt(half * half - 1.0L);
    by(std::abs(half + root) < 1 ? half + root : half - root);
  }
  Complex sum = 0;
  for (const auto& tap : h) sum += tap;
  Filter taps;
  for (const auto& tap : h) taps.push_back(static_cast<float>((tap / sum).real() * std::sqrt(2.0L)));
  return taps;
}

// Two pairs that give the signal back `delay` samples later.
struct Wavelet {
  const char* name;
  Filter low, high;  // forward
  Filter backLow, backHigh;
  int delay = 0;

  // The inverse filters follow from what their images have to cancel: G0(z) = H1(-z), G1(z) = -H0(-z), up to a factor.
  Wavelet(const char* called, Filter h0, Filter h1) : name(called), low(std::move(h0)), high(std::move(h1)) {
    const auto modulated = [](const Filter& h, long double by) {
      Filter g;
      for (size_t j = 0; j < h.size(); ++j) g.push_back(static_cast<float>((j % 2 == 0 ? by : -by) * h[j]));
      return g;
    };
    std::vector<long double> whole(low.size() + high.size() - 1);
    for (size_t i = 0; i < low.size(); ++i) {
      for (size_t j = 0; j < high.size(); ++j) {
        const long double product = static_cast<long double>(low[i]) * high[j];
        whole[i + j] += (j % 2 == 0 ? product : -product) - (i % 2 == 0 ? product : -product);
      }
    }
    for (size_t i = 0; i < whole.size(); ++i) {
      if (std::abs(whole[i]) > std::abs(whole[static_cast<size_t>(delay)])) delay = static_cast<int>(i);
    }
    const long double factor = 2 / whole[static_cast<size_t>(delay)];
    backLow = modulated(high, factor);
    backHigh = modulated(low, -factor);
  }
};

inline std::vector<Wavelet> wavelets() {
  std::vector<Wavelet> all;
  for (int order = 1; order <= 10; ++order) {
    const Filter h = daubechies(order);
    Filter g(h.rbegin(), h.rend());
    for (size_t i = 1; i < g.size(); i += 2) g[i] = -g[i];
    all.emplace_back(order == 1 ? "Haar" : "Daubechies", h, g);
  }
  all.emplace_back("5/3", Filter{-0.125F, 0.25F, 0.75F, 0.25F, -0.125F}, Filter{-0.5F, 1, -0.5F});
  const float a[] = {0.602949018236360F, 0.266864118442875F, -0.078223266528990F, -0.016864118442875F, 0.026748757410810F};
  const float b[] = {1.115087052457000F, -0.591271763114250F, -0.057543526228500F, 0.091271763114250F};
  all.emplace_back("9/7", Filter{a[4], a[3], a[2], a[1], a[0], a[1], a[2], a[3], a[4]},
                   Filter{b[3], b[2], b[1], b[0], b[1], b[2], b[3]});
  return all;
}

}  // namespace reference
