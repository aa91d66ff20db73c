// 16-bit operands in doubles: 2^53 holds the sums of 2^23 products, however large.
#pragma once

#include "convolution/elements.h"
#include "frame/record.h"
#include "frame/rounding.h"

namespace qvx::correlation {

// run(a, aLen, b, bLen, sums) gives `outputs` sums, which are rounded to whole numbers if they come from a transform; then
// finish(sums) may change them. b may be a.
template <class Run, class Finish>
QvxStatus inDoubles(const Qvx16s* a, size_t aLen, const Qvx16s* b, size_t bLen, size_t outputs, Qvx16s* y, int scaleFactor,
                    Run run, Finish finish) {
  const bool isOne = a == b && aLen == bLen;
  const Block memory(static_cast<int64_t>((aLen + (isOne ? 0 : bLen) + outputs) * sizeof(Qvx64f)) + 3 * Carver::kLine);
  if (!memory) return qvxStatNoMem;
  Carver carver(memory.get());
  auto* const first = carver.takeLines<Qvx64f>(static_cast<int64_t>(aLen));
  auto* const second = isOne ? first : carver.takeLines<Qvx64f>(static_cast<int64_t>(bLen));
  auto* const sums = carver.takeLines<Qvx64f>(static_cast<int64_t>(outputs));
  const RoundingScope nearest(Rounding::kNearest);  // a transform's error would be rounded up to a whole unit
  convolution::toKernel(a, aLen, first);
  if (!isOne) convolution::toKernel(b, bLen, second);
  const QvxStatus status = run(first, aLen, second, bLen, sums);
  if (status != qvxStatOk) return status;
  loop([](auto v) { return hn::Round(v); }, destination(sums), outputs, source(static_cast<const Qvx64f*>(sums)));
  finish(sums);
  convolution::toSamples(sums, outputs, y, scaleFactor);
  return qvxStatOk;
}
template <class Run>
QvxStatus inDoubles(const Qvx16s* a, size_t aLen, const Qvx16s* b, size_t bLen, size_t outputs, Qvx16s* y, int scaleFactor,
                    Run run) {
  return inDoubles(a, aLen, b, bLen, outputs, y, scaleFactor, run, [](Qvx64f*) {});
}

}  // namespace qvx::correlation
