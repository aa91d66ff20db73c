// Analytic signals beside the same made of FFTW's transforms.
#include "frame/families.h"
#include "peers/fftw.h"

namespace bench {

namespace {

class Own {
 public:
  Own(int n, const Qvx32f* src, Qvx32f* dst) : src_(src), dst_(reinterpret_cast<Qvx32fc*>(dst)) {
    qvxsHilbertInitAlloc_32f32fc(&record_, n, 0);
  }
  ~Own() { qvxsHilbertFree_32f32fc(record_); }
  Own(const Own&) = delete;
  Own& operator=(const Own&) = delete;
  void run() const { qvxsHilbert_32f32fc(src_, dst_, record_); }

 private:
  const Qvx32f* src_;
  Qvx32fc* dst_;
  QvxsHilbertSpec_32f32fc* record_ = nullptr;
};

const Qvx32f* source(const Vectors& v) { return reinterpret_cast<const Qvx32f*>(v.slabs.source(0)); }
Qvx32f* destination(const Vectors& v) { return reinterpret_cast<Qvx32f*>(v.slabs.destination()); }
void fillSource(const Vectors& v) { fillFloats(const_cast<Qvx32f*>(source(v)), static_cast<size_t>(v.n), 1); }

// Planning overwrites the source.
template <class Plan> Contender contender(std::string name) {
  const auto once = [](const Vectors& v) {
    const Plan plan(v.n, source(v), destination(v));
    fillSource(v);
    plan.run();
  };
  const auto timed = [](benchmark::State& state, const Vectors& v) {
    const Plan plan(v.n, source(v), destination(v));
    fillSource(v);
    for (auto _ : state) {
      plan.run();
      benchmark::ClobberMemory();
    }
  };
  return {std::move(name), once, timed, Agreement::kFused};
}

// Up to the roundings of two transforms.
bool agreeing(const Qvx32f* ours, const Qvx32f* theirs, int n) {
  double error = 0;
  double size = 0;
  for (int i = 0; i < 2 * n; ++i) {
    error += std::pow(static_cast<double>(ours[i]) - static_cast<double>(theirs[i]), 2);
    size += std::pow(static_cast<double>(theirs[i]), 2);
  }
  return std::sqrt(error / size) < 20 * std::numeric_limits<Qvx32f>::epsilon();
}

}  // namespace

void analytic(Suite& suite) {
  Case c;
  c.name = "Hilbert_32f32fc";
  c.table = Table::kTransforms;
  c.sizes = {3,    4,    5,    7,    8,    12,   15,   16,   17,   24,   31,    32,    45,    48,    53,    60,    64,   75,
             100,  101,  120,  128,  200,  240,  256,  360,  480,  500,  509,   512,   625,   768,   960,   1000,  1009, 1024,
             1200, 1920, 2003, 2048, 2187, 3000, 4096, 4410, 8192, 9600, 16384, 44100, 48000, 65536, 65537, 100000};
  c.fillSources = fillSource;
  c.fillDestination = [](const Vectors& v) { fillFloats(destination(v), 2 * static_cast<size_t>(v.n), 2); };
  c.saveDestination = [](const Vectors& v) {
    std::memcpy(v.slabs.saved(), destination(v), 2 * static_cast<size_t>(v.n) * sizeof(Qvx32f));
  };
  c.agrees = [](const Vectors& v, Agreement) {
    return agreeing(reinterpret_cast<const Qvx32f*>(v.slabs.saved()), destination(v), v.n);
  };
  c.operations = [](int n) { return 7.5 * n * std::log2(n); };
  c.contenders.push_back(contender<Own>("ours"));
  c.contenders.push_back(contender<fftw::Analytic>("FFTW"));
  suite.add(std::move(c));
}

}  // namespace bench
