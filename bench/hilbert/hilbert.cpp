// Analytic signals beside the same made of FFTW's transforms.
#include "frame/families.h"
#include "frame/transforms.h"
#include "peers/fftw.h"

namespace bench {

namespace {

class Analytic {
 public:
  Analytic(int n, const Qvx32f*, Qvx32f*) { qvxsHilbertInitAlloc_32f32fc(&record_, n, 0); }
  ~Analytic() { qvxsHilbertFree_32f32fc(record_); }
  Analytic(const Analytic&) = delete;
  Analytic& operator=(const Analytic&) = delete;
  void run(const Qvx32f* src, Qvx32f* dst) const { qvxsHilbert_32f32fc(src, reinterpret_cast<Qvx32fc*>(dst), record_); }

 private:
  QvxsHilbertSpec_32f32fc* record_ = nullptr;
};

}  // namespace

void analytic(Suite& suite) {
  Case c = transformCase<Qvx32f>(
      "Hilbert_32f32fc",
      {3,    4,    5,    7,    8,    12,   15,   16,   17,   24,   31,    32,    45,    48,    53,    60,    64,   75,
       100,  101,  120,  128,  200,  240,  256,  360,  480,  500,  509,   512,   625,   768,   960,   1000,  1009, 1024,
       1200, 1920, 2003, 2048, 2187, 3000, 4096, 4410, 8192, 9600, 16384, 44100, 48000, 65536, 65537, 100000},
      [](int n) { return 2 * static_cast<size_t>(n); }, 7.5);
  c.contenders.push_back(transformer<Qvx32f>("ours", planner<Analytic>()));
  c.contenders.push_back(transformer<Qvx32f>("FFTW", planner<fftw::Analytic>()));
  suite.add(std::move(c));
}

}  // namespace bench
