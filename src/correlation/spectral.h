// Bands by way of the FFT. Either the taps have one spectrum, and x passes in blocks that overlap by the taps less one
// (overlap-save); or there are fewer outputs than taps, and the taps pass in pieces, whose products with their windows of x are
// added up as spectra.
#pragma once

#include "convolution/elements.h"
#include "correlation/direct.h"
#include "fft/adapter.h"
#include "fft/ready.h"
#include "frame/record.h"
#include "frame/team.h"

namespace qvx::correlation {

// Samples from which blocks are divided between threads: waking one takes 8 us.
inline constexpr size_t kBlocksWorthTeam = 16384;

inline size_t dividedUp(size_t n, size_t by) { return (n + by - 1) / by; }

// Which elements of x a band meets, and where in their product with the taps, reversed or not, its outputs lie.
template <class C> struct Section {
  size_t from;
  size_t count;
  int64_t first;
  size_t room;  // the shortest cycle in which no other element of the product falls on an output

  explicit Section(const Band<C>& band) {
    const auto taps = static_cast<int64_t>(band.count);
    const auto outputs = static_cast<int64_t>(band.outputs);
    const int64_t begin = std::max<int64_t>(0, band.from);
    const int64_t end = std::min(static_cast<int64_t>(band.length), band.from + outputs + taps - 1);
    const int64_t shift = band.from - begin;
    from = static_cast<size_t>(begin);
    count = static_cast<size_t>(end - begin);
    first = shift + (band.isReversed ? taps - 1 : 0);
    room = static_cast<size_t>(std::max({end - band.from, shift + taps - 1 + outputs, taps}));
  }
};

// How a band is cut: steps of `fresh` outputs (or taps) each, in transforms of one length.
struct Cut {
  int order;
  size_t length;
  size_t fresh;
  size_t steps;
  double cost;  // in units of a transform of one point
};

// The cost of a twiddle that a call has to compute.
template <class C> inline constexpr double kTwiddleCost = 400.0 / sizeof(C);

// One for the taps, and two for each window: there and back. Taps with themselves need one spectrum only.
template <class C> double transformsOf(const Band<C>& band, size_t steps) {
  return band.isOfItself() && steps == 1 ? 2 : 1 + 2 * static_cast<double>(steps);
}

// The cost of a point's share of the record, where none is ready.
template <class C> double recordCost(int order) {
  return order <= fft::kHighestReady - (PartsOf<C>::kCount == 1 ? 0 : 1) ? 0 : kTwiddleCost<C>;
}

// less: elements of each transform that it shares with its neighbour.
template <class C> Cut cutBy(const Band<C>& band, size_t n, size_t less) {
  Cut best = {0, 0, 0, 0, 0};
  for (int order = 6; order < 30; ++order) {
    const size_t length = size_t{1} << order;
    if (length < less + 1) continue;
    const size_t fresh = length - less;
    const size_t steps = dividedUp(n, fresh);
    const double cost = static_cast<double>(length) * (transformsOf(band, steps) * (order + 8) + recordCost<C>(order));
    if (best.length == 0 || cost < best.cost) best = {order, length, fresh, steps, cost};
    if (steps == 1) break;
  }
  return best;
}

// A transform and its buffers, all in one block. Up to 2^13 real numbers its record is ready; others are made.
template <class C> class Spectra {
 public:
  using Transform = fft::Transform<C>;
  using Spec = typename Transform::Spec;

  Spectra(int order, int buffers, int threads)
      : sizes_(fft::TransformSizes::ofOrder<C>(order)),
        spec_(fft::readySpec<Spec>(order)),
        block_(sizes_.length == 0 ? 0 : bytes(buffers, threads)) {
    if (!block_) return;
    Carver carver(block_.get(), Carver::kLine);
    buffers_ = carver.takeLines<C>(int64_t{buffers} * sizes_.length);
    work_ = carver.takeLines<Qvx8u>(int64_t{threads} * up<64>(sizes_.work));
    status_ = isNull(spec_) ? make(order, carver) : qvxStatOk;
  }

  QvxStatus status() const { return status_; }
  int length() const { return sizes_.length; }
  C* buffer(size_t i) const { return buffers_ + i * static_cast<size_t>(sizes_.length); }
  QvxStatus forward(const C* from, C* to, size_t thread = 0) const { return Transform::kForward(from, to, spec_, work(thread)); }
  QvxStatus inverse(const C* from, C* to, size_t thread = 0) const { return Transform::kInverse(from, to, spec_, work(thread)); }

 private:
  int64_t bytes(int buffers, int threads) const {
    const int64_t record = isNull(spec_) ? up<64>(sizes_.spec) + up<64>(sizes_.init) : 0;
    return record + int64_t{buffers} * up<64>(sizes_.length * int64_t{sizeof(C)}) + int64_t{threads} * up<64>(sizes_.work) + 64;
  }
  QvxStatus make(int order, Carver& carver) {
    auto* memory = carver.takeLines<Qvx8u>(sizes_.spec);
    auto* init = carver.takeLines<Qvx8u>(sizes_.init);
    Spec* spec = nullptr;
    const QvxStatus status = Transform::kInit(&spec, order, fft::kInverseDivides, 0, memory, init);
    spec_ = spec;
    return status;
  }
  Qvx8u* work(size_t thread) const { return work_ + thread * static_cast<size_t>(up<64>(sizes_.work)); }

  fft::TransformSizes sizes_;
  const Spec* spec_;
  Block block_;
  C* buffers_ = nullptr;
  Qvx8u* work_ = nullptr;
  QvxStatus status_ = qvxStatNoMem;
};

// The conjugate of the spectrum of some of the taps.
template <class C> QvxStatus tapsSpectrum(const Spectra<C>& spectra, const Band<C>& band, size_t at, size_t some, C* out) {
  if (band.isReversed) std::reverse_copy(band.taps + (band.count - at - some), band.taps + (band.count - at), out);
  else std::copy_n(band.taps + at, some, out);
  std::fill(out + some, out + spectra.length(), C{});
  const QvxStatus status = spectra.forward(out, out);
  fft::conjugate(out, spectra.length());
  return status;
}

// The spectrum of a whole transform's length of x.
template <class C>
QvxStatus windowSpectrum(const Spectra<C>& spectra, const Band<C>& band, int64_t at, C* out, size_t thread = 0) {
  const auto length = static_cast<size_t>(spectra.length());
  if (at >= 0 && static_cast<size_t>(at) + length <= band.length) return spectra.forward(band.x + at, out, thread);
  const auto end = static_cast<int64_t>(length);
  const auto first = std::clamp<int64_t>(-at, 0, end);
  const auto last = std::clamp<int64_t>(static_cast<int64_t>(band.length) - at, first, end);
  std::fill_n(out, first, C{});
  std::copy_n(band.x + (at + first), last - first, out + first);
  std::fill(out + last, out + end, C{});
  return spectra.forward(out, out, thread);
}

template <class C> QvxStatus overlapSave(const Band<C>& band, const Cut& cut, C* y) {
  const int threads = band.outputs >= kBlocksWorthTeam && cut.steps > 1 ? ownGetNumThreads() : 1;
  const Spectra<C> spectra(cut.order, 1 + threads, threads);
  if (spectra.status() != qvxStatOk) return spectra.status();
  C* const taps = spectra.buffer(0);
  const QvxStatus status = tapsSpectrum(spectra, band, 0, band.count, taps);
  if (status != qvxStatOk) return status;
  return dividedBetween(threads, cut.steps, [&](size_t from, size_t steps, size_t thread) {
    C* const block = spectra.buffer(1 + thread);
    QvxStatus worst = qvxStatOk;
    const size_t end = std::min((from + steps) * cut.fresh, band.outputs);
    for (size_t at = from * cut.fresh; at < end; at += cut.fresh) {
      worst = std::min(worst, windowSpectrum(spectra, band, band.from + static_cast<int64_t>(at), block, thread));
      fft::multiply(taps, block, spectra.length());
      // The wrapped end of a block is overwritten by the next block.
      const bool hasRoom = end - at >= cut.length;
      worst = std::min(worst, spectra.inverse(block, hasRoom ? y + at : block, thread));
      if (!hasRoom) std::copy_n(block, std::min(cut.fresh, end - at), y + at);
    }
    return worst;
  });
}

template <class C> QvxStatus byPieces(const Band<C>& band, const Cut& cut, C* y) {
  const Spectra<C> spectra(cut.order, 3, 1);
  if (spectra.status() != qvxStatOk) return spectra.status();
  C* const sum = spectra.buffer(0);
  C* const taps = spectra.buffer(1);
  C* const window = spectra.buffer(2);
  QvxStatus worst = qvxStatOk;
  for (size_t at = 0; at < band.count; at += cut.fresh) {
    C* const product = at == 0 ? sum : window;
    worst = std::min(worst, tapsSpectrum(spectra, band, at, std::min(cut.fresh, band.count - at), taps));
    if (cut.steps == 1 && band.isOfItself()) {
      std::copy_n(taps, spectra.length(), product);
      fft::conjugate(product, spectra.length());
    } else {
      worst = std::min(worst, windowSpectrum(spectra, band, band.from + static_cast<int64_t>(at), product));
    }
    if (at == 0) fft::multiply(taps, sum, spectra.length());
    else fft::addProduct(taps, window, sum, spectra.length());
  }
  worst = std::min(worst, spectra.inverse(sum, sum));
  std::copy_n(sum, band.outputs, y);
  return worst;
}

// One step in the least cycle whose wrapped end meets nothing but the zeros around x: 500 by 500 floats take 3 transforms of
// 1024, where blocks of as many take 5.
template <class C> Cut wholeCut(const Band<C>& band) {
  const size_t least = std::max(Section<C>(band).room, band.outputs);
  const int order = std::max<int>(std::bit_width(least - 1), 6);
  const size_t length = size_t{1} << order;
  const double cost = static_cast<double>(length) * (transformsOf(band, 1) * (order + 8) + recordCost<C>(order));
  return {order, length, band.outputs, 1, cost};
}

template <class C> Cut cutOf(const Band<C>& band) {
  if (band.outputs <= band.count) return cutBy(band, band.count, band.outputs - 1);
  const Cut cut = cutBy(band, band.outputs, band.count - 1);
  if (band.outputs >= kBlocksWorthTeam) return cut;
  const Cut whole = wholeCut(band);
  return whole.cost < cut.cost ? whole : cut;
}
template <class C> QvxStatus spectralBand(const Band<C>& band, const Cut& cut, C* y) {
  return band.outputs <= band.count ? byPieces(band, cut, y) : overlapSave(band, cut, y);
}

}  // namespace qvx::correlation
