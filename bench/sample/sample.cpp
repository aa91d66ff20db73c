// Sampling by several factors. The length is that of the longer vector.
#include "frame/families.h"

namespace bench {

namespace {

template <class T> [[gnu::noipa]] void plainUp(const T* src, int n, T* dst, int factor, int phase) {
  for (int i = 0; i < n; ++i) {
    for (int k = 0; k < factor; ++k) dst[i * factor + k] = T{};
    dst[i * factor + phase] = src[i];
  }
}
template <class T> [[gnu::noipa]] void plainDown(const T* src, int n, T* dst, int factor, int phase) {
  for (int i = phase, k = 0; i < n; i += factor) dst[k++] = src[i];
}

// call(src, n, dst), of which n is the shorter length going up and the longer one going down.
template <class T> Contender contender(std::string name, std::function<void(const T*, int, T*)> call, int divisor) {
  const auto once = [=](const Vectors& v) {
    call(reinterpret_cast<const T*>(v.slabs.source(0)), v.n / divisor, reinterpret_cast<T*>(v.slabs.destination()));
  };
  const auto timed = [=](benchmark::State& state, const Vectors& v) {
    for (auto _ : state) {
      once(v);
      benchmark::ClobberMemory();
    }
  };
  return {std::move(name), once, timed, Agreement::kBitwise};
}

template <class T, class Up, class Down> void rows(Suite& s, const std::string& type, Up up, Down down) {
  for (const bool isUp : {true, false}) {
    for (const int factor : {2, 3, 4, 8}) {
      const size_t results = isUp ? 1 : static_cast<size_t>(factor);
      Case c;
      c.name = (isUp ? "SampleUp_" : "SampleDown_") + type + ", factor " + std::to_string(factor);
      c.sizes = {16 * 9, 4096 * 3, 1 << 20};
      c.fillSources = [](const Vectors& v) { fill<T>(v.slabs.source(0), v.n, 1); };
      c.fillDestination = [](const Vectors&) {};
      c.saveDestination = [=](const Vectors& v) {
        std::memcpy(v.slabs.saved(), v.slabs.destination(), static_cast<size_t>(v.n) / results / 24 * 24 * sizeof(T));
      };
      c.agrees = [=](const Vectors& v, Agreement) {
        return std::memcmp(v.slabs.saved(), v.slabs.destination(), static_cast<size_t>(v.n) / results / 24 * 24 * sizeof(T)) == 0;
      };
      const int divisor = isUp ? factor : 1;
      const auto ours = [=](const T* src, int n, T* dst) {
        int length = 0, phase = 1;
        if (isUp) up(src, n, dst, &length, factor, &phase);
        else down(src, n, dst, &length, factor, &phase);
      };
      const auto plain = [=](const T* src, int n, T* dst) {
        if (isUp) plainUp(src, n, dst, factor, 1);
        else plainDown(src, n, dst, factor, 1);
      };
      c.contenders.push_back(contender<T>("ours", ours, divisor));
      c.contenders.push_back(contender<T>("plain", plain, divisor));
      s.add(std::move(c));
    }
  }
}

}  // namespace

void sampling(Suite& s) {
  rows<Qvx16s>(s, "16s", qvxsSampleUp_16s, qvxsSampleDown_16s);
  rows<Qvx32f>(s, "32f", qvxsSampleUp_32f, qvxsSampleDown_32f);
  rows<Qvx64fc>(s, "64fc", qvxsSampleUp_64fc, qvxsSampleDown_64fc);
}

}  // namespace bench
