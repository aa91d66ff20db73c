#include "tone.h"

#include <algorithm>
#include <cmath>

namespace {

struct EndOfRecord {
  void operator()(QvxsHilbertSpec_32f32fc* record) const { qvxsHilbertFree_32f32fc(record); }
};

}  // namespace

std::vector<Moment> momentsOf(Windows& windows) {
  const int len = windows.len();
  QvxsHilbertSpec_32f32fc* made = nullptr;
  check(qvxsHilbertInitAlloc_32f32fc(&made, len, 0));
  const std::unique_ptr<QvxsHilbertSpec_32f32fc, EndOfRecord> record(made);
  const std::vector<Qvx32f> window = raisedCosine(len);
  const Vector<Qvx32f> block = vector(qvxsMalloc_32f(len));
  const Vector<Qvx32fc> signal = vector(qvxsMalloc_32fc(len));
  const Vector<Qvx32fc> conjugate = vector(qvxsMalloc_32fc(len));
  const Vector<Qvx32f> magnitude = vector(qvxsMalloc_32f(len));
  std::vector<Moment> moments;
  while (const Qvx32f* samples = windows.next()) {
    check(qvxsMul_32f(samples, window.data(), block.get(), len));
    check(qvxsHilbert_32f32fc(block.get(), signal.get(), record.get()));
    check(qvxsMagnitude_32fc(signal.get(), magnitude.get(), len));
    Qvx32f amplitude = 0;
    check(qvxsSum_32f(magnitude.get(), len, &amplitude, 0));
    // The turn from each sample to the next, weighed by their magnitudes.
    Qvx64fc turn = {0, 0};
    check(qvxsConj_32fc(signal.get(), conjugate.get(), len));
    if (len > 1) check(qvxsDotProd_32fc64fc(signal.get() + 1, conjugate.get(), len - 1, &turn));
    moments.push_back({windows.time(), 0, 20 * std::log10(std::max(static_cast<double>(amplitude), 1e-15))});
    moments.back().hz = std::atan2(turn.im, turn.re) / (2 * M_PI) * windows.sampleRate();
  }
  return moments;
}
