// Convolution and correlation by the shapes of their operands.
#include <cmath>
#include <memory>

#include "frame/families.h"
#include "peers/fftw_convolution.h"
#include "peers/plain_correlation.h"

namespace bench {

namespace {

struct Operands {
  int aLen, bLen, lags;
};

// call(a, b, y)
template <class T> Contender contender(std::string name, std::function<void(const T*, const T*, T*)> call) {
  const auto once = [=](const Vectors& v) {
    call(reinterpret_cast<const T*>(v.slabs.source(0)), reinterpret_cast<const T*>(v.slabs.source(1)),
         reinterpret_cast<T*>(v.slabs.destination()));
  };
  const auto timed = [=](benchmark::State& state, const Vectors& v) {
    for (auto _ : state) {
      once(v);
      benchmark::ClobberMemory();
    }
  };
  return {std::move(name), once, timed, Agreement::kSummed};
}

// Results agree if their difference is at most 10^-5 of them.
template <class T> Case caseOf(std::string name, Operands o) {
  Case c;
  c.name = std::move(name) + ", " + std::to_string(o.aLen) + " x " + std::to_string(o.bLen);
  c.sizes = {o.lags};
  c.fillSources = [=](const Vectors& v) {
    fill<T>(v.slabs.source(0), o.aLen, 1);
    fill<T>(v.slabs.source(1), o.bLen, 2);
  };
  c.fillDestination = [](const Vectors&) {};
  c.saveDestination = [=](const Vectors& v) {
    std::memcpy(v.slabs.saved(), v.slabs.destination(), static_cast<size_t>(o.lags) * sizeof(T));
  };
  c.agrees = [=](const Vectors& v, Agreement) {
    const auto* ours = reinterpret_cast<const T*>(v.slabs.saved());
    const auto* peers = reinterpret_cast<const T*>(v.slabs.destination());
    double apart = 0, size = 0;
    for (int i = 0; i < o.lags; ++i) {
      const auto x = static_cast<double>(ours[i]), y = static_cast<double>(peers[i]);
      apart += (x - y) * (x - y);
      size += y * y;
    }
    return apart <= 1e-10 * size;
  };
  return c;
}

// The longer operand first. FFTW is planned when it is first called, which is not timed.
std::function<void(const float*, const float*, float*)> throughFftw(int aLen, int bLen) {
  const auto convolution = std::make_shared<std::unique_ptr<fftw::Convolution>>();
  return [=](const float* a, const float* b, float* y) {
    if (*convolution == nullptr) *convolution = std::make_unique<fftw::Convolution>(aLen, bLen);
    (*convolution)->run(a, b, y);
  };
}

void convolutionRow(Suite& s, int aLen, int bLen) {
  Case c = caseOf<float>("Conv_32f", {aLen, bLen, aLen + bLen - 1});
  c.contenders.push_back(contender<float>("ours", [=](auto* a, auto* b, auto* y) { qvxsConv_32f(a, aLen, b, bLen, y); }));
  if (int64_t{aLen} * bLen < 100000000) {
    c.contenders.push_back(contender<float>("plain", [=](auto* a, auto* b, auto* y) { plain::convolve(a, aLen, b, bLen, y); }));
  }
  c.contenders.push_back(contender<float>("FFTW", throughFftw(aLen, bLen)));
  s.add(std::move(c));
}

// All lags, or a few of them around the middle.
void correlationRow(Suite& s, int aLen, int bLen, int lags) {
  const int low = lags < aLen ? -lags / 2 : 1 - aLen;
  Case c = caseOf<float>("CrossCorr_32f, " + std::to_string(lags) + " lags", {aLen, bLen, lags});
  c.contenders.push_back(
      contender<float>("ours", [=](auto* a, auto* b, auto* y) { qvxsCrossCorr_32f(a, aLen, b, bLen, y, lags, low); }));
  c.contenders.push_back(
      contender<float>("plain", [=](auto* a, auto* b, auto* y) { plain::correlate(a, aLen, b, bLen, y, lags, low); }));
  s.add(std::move(c));
}
void autoCorrelationRow(Suite& s, int length, int lags) {
  Case c = caseOf<float>("AutoCorr_32f, " + std::to_string(lags) + " lags", {length, length, lags});
  c.contenders.push_back(contender<float>("ours", [=](auto* a, auto*, auto* y) { qvxsAutoCorr_32f(a, length, y, lags); }));
  c.contenders.push_back(
      contender<float>("plain", [=](auto* a, auto*, auto* y) { plain::correlate(a, length, a, length, y, lags, 0); }));
  s.add(std::move(c));
}

}  // namespace

void correlations(Suite& s) {
  for (const auto& [aLen, bLen] :
       {std::pair{8, 8}, {64, 64}, {4096, 64}, {1000, 127}, {500, 500}, {1000, 1000}, {65536, 512}, {100000, 100000}}) {
    convolutionRow(s, aLen, bLen);
  }
  for (const auto& [aLen, bLen, lags] :
       {Operands{8, 8, 15}, {64, 4096, 4159}, {1000, 1000, 1999}, {512, 65536, 66047}, {20000, 20000, 201}}) {
    correlationRow(s, aLen, bLen, lags);
  }
  for (const auto& [length, lags] : {std::pair{64, 16}, {240, 11}, {1000, 100}, {1000, 1000}, {20000, 1000}})
    autoCorrelationRow(s, length, lags);
}

}  // namespace bench
