// Filters: records as objects. make() builds one; every call carries it on, so a stream may be cut anywhere.
#ifndef QVX_QVXS_FILTERS_HPP
#define QVX_QVXS_FILTERS_HPP

#include <qvx/qvxs_memory.hpp>

namespace qvx {

// Of up samples for each down, and where in them the first is taken and put.
struct Rates {
  int up = 1;
  int down = 1;
  int upPhase = 0;
  int downPhase = 0;
};

inline namespace QVX_POLICY {
namespace records {

using namespace qvx::detail;

struct FirStem {
  static QvxStatus free(auto* record) { return handles::FIRFree(record); }
};
struct IirStem {
  static QvxStatus free(auto* record) { return handles::IIRFree(record); }
};
struct LmsStem {
  static QvxStatus free(auto* record) { return handles::FIRLMSFree(record); }
};
struct LmsDecimatorStem {
  static QvxStatus free(auto* record) { return handles::FIRLMSMRFree(record); }
};
struct WaveletForwardStem {
  static QvxStatus free(auto* record) { return handles::WTFwdFree(record); }
};
struct WaveletInverseStem {
  static QvxStatus free(auto* record) { return handles::WTInvFree(record); }
};

// Taps of these integers are given times a power of two.
template <class T, class Tap>
inline constexpr bool kTapsHaveFactor = kIntegral<Tap> && !(std::is_same_v<T, Qvx32s> && std::is_same_v<Tap, Qvx32s>);

// C wants a pointer even to what has no element.
template <class T> T* orNone(std::span<T> vector, T& none) { return vector.empty() ? &none : vector.data(); }

// What FIR filters of one rate and of several have in common.
template <class T, class Tap> class FirRecord {
  using Known = FilterRecord<handles::FIRStem, Tap, T>;
  static_assert(detail::Known<Known>, "qvx: there is no FIR filter of such samples with such taps: docs/cpp.md has the table");

 public:
  using Record = typename Known::type;

  size_t tapsSize() const { return tapsLen_; }
  size_t delayLineSize() const { return delayLen_; }

  // The taps, h[0] first; those of integers as they were reduced, with their factor.
  Status taps(Target<Tap> dst) const requires(!kTapsHaveFactor<T, Tap>) {
    QVX_REQUIRE(dst.size() == tapsLen_);
    return handles::FIRGetTaps(record(), dst.data());
  }
  Status taps(Target<Tap> dst, int& tapsFactor) const requires kTapsHaveFactor<T, Tap> {
    QVX_REQUIRE(dst.size() == tapsLen_);
    return handles::FIRGetTaps(record(), dst.data(), &tapsFactor);
  }
  Status setTaps(Source<Tap> taps) requires(!kTapsHaveFactor<T, Tap>) {
    QVX_REQUIRE(taps.size() == tapsLen_);
    return handles::FIRSetTaps(taps.data(), record());
  }
  Status setTaps(Source<Tap> taps, int tapsFactor) requires kTapsHaveFactor<T, Tap> {
    QVX_REQUIRE(taps.size() == tapsLen_);
    return handles::FIRSetTaps(taps.data(), record(), tapsFactor);
  }
  // The samples before the next, newest first. None: zeros.
  Status delayLine(Target<T> dst) const {
    QVX_REQUIRE(dst.size() == delayLen_);
    return handles::FIRGetDlyLine(record(), dst.data());
  }
  Status setDelayLine(Source<T> samples = {}) {
    QVX_REQUIRE(samples.empty() || samples.size() == delayLen_);
    return handles::FIRSetDlyLine(record(), optional<const T>(samples));
  }

 protected:
  Record* record() const { return owner_.get(); }
  Status made(QvxStatus status, size_t tapsLen, size_t delayLen) {
    tapsLen_ = tapsLen;
    delayLen_ = delayLen;
    return status;
  }

  Owner<FirStem, Record> owner_;

 private:
  size_t tapsLen_ = 0;
  size_t delayLen_ = 0;
};

}  // namespace records

// A FIR filter of samples of T with taps of Tap. Integer samples are filtered with a scale factor as the last argument.
template <class T, class Tap = T> class Fir : public records::FirRecord<T, Tap> {
 public:
  // taps: h[0] first; delayLine: the samples before the first, newest first, as many as taps, or none for zeros.
  static Result<Fir> make(detail::Source<Tap> taps,
                          detail::Source<T> delayLine = {}) requires(!records::kTapsHaveFactor<T, Tap>) {
    QVX_REQUIRE(delayLine.empty() || delayLine.size() == taps.size());
    return build(taps.size(), [&](auto** record, int len) {
      return handles::FIRInitAlloc(record, taps.data(), len, detail::optional<const T>(delayLine));
    });
  }
  static Result<Fir> make(detail::Source<Tap> taps, int tapsFactor,
                          detail::Source<T> delayLine = {}) requires records::kTapsHaveFactor<T, Tap> {
    QVX_REQUIRE(delayLine.empty() || delayLine.size() == taps.size());
    return build(taps.size(), [&](auto** record, int len) {
      return handles::FIRInitAlloc(record, taps.data(), len, tapsFactor, detail::optional<const T>(delayLine));
    });
  }

  template <class... S>
  requires detail::Scaled<T, S...> Status filter(detail::Source<T> src, detail::Target<T> dst, S... scaleFactor) {
    QVX_REQUIRE(detail::countable(src.size()) && src.size() == dst.size());
    return handles::FIR(src.data(), dst.data(), detail::length(src.size()), this->record(), scaleFactor...);
  }
  template <class... S>
  requires detail::Scaled<T, S...> Status filter(detail::Target<T> srcDst, S... scaleFactor) {
    QVX_REQUIRE(detail::countable(srcDst.size()));
    return handles::FIR(srcDst.data(), detail::length(srcDst.size()), this->record(), scaleFactor...);
  }
  template <class... S>
  requires detail::Scaled<T, S...> Status filterOne(T sample, T& dst, S... scaleFactor) {
    return handles::FIROne(sample, &dst, this->record(), scaleFactor...);
  }

 private:
  template <class Init> static Result<Fir> build(size_t tapsLen, const Init& init) {
    QVX_REQUIRE(detail::countable(tapsLen));
    Fir made;
    const Status status = made.made(init(made.owner_.slot(), detail::length(tapsLen)), tapsLen, tapsLen);
    if (status.refused()) return status;
    return made;
  }
};

// A FIR filter that gives rates.up results for rates.down samples: interpolation, decimation, or both in one step.
template <class T, class Tap = T> class Resampler : public records::FirRecord<T, Tap> {
 public:
  // taps: as of Fir; delayLine: (taps + up - 1) / up samples, newest first, or none for zeros.
  static Result<Resampler> make(detail::Source<Tap> taps, const Rates& rates,
                                detail::Source<T> delayLine = {}) requires(!records::kTapsHaveFactor<T, Tap>) {
    return build(taps.size(), rates, delayLine, [&](auto** record, int len) {
      return handles::FIRMRInitAlloc(record, taps.data(), len, rates.up, rates.upPhase, rates.down, rates.downPhase,
                                     detail::optional<const T>(delayLine));
    });
  }
  static Result<Resampler> make(detail::Source<Tap> taps, int tapsFactor, const Rates& rates,
                                detail::Source<T> delayLine = {}) requires records::kTapsHaveFactor<T, Tap> {
    return build(taps.size(), rates, delayLine, [&](auto** record, int len) {
      return handles::FIRMRInitAlloc(record, taps.data(), len, tapsFactor, rates.up, rates.upPhase, rates.down, rates.downPhase,
                                     detail::optional<const T>(delayLine));
    });
  }
  const Rates& rates() const { return rates_; }

  // src: a multiple of rates.down; dst: the same multiple of rates.up.
  template <class... S>
  requires detail::Scaled<T, S...> Status filter(detail::Source<T> src, detail::Target<T> dst, S... scaleFactor) {
    const size_t steps = src.size() / static_cast<size_t>(rates_.down);
    QVX_REQUIRE(steps <= INT_MAX && src.size() == steps * static_cast<size_t>(rates_.down) &&
                dst.size() == steps * static_cast<size_t>(rates_.up));
    return handles::FIR(src.data(), dst.data(), static_cast<int>(steps), this->record(), scaleFactor...);
  }
  // In place: as many elements as the longer of both.
  template <class... S>
  requires detail::Scaled<T, S...> Status filter(detail::Target<T> srcDst, S... scaleFactor) {
    const size_t step = static_cast<size_t>(rates_.up < rates_.down ? rates_.down : rates_.up);
    const size_t steps = srcDst.size() / step;
    QVX_REQUIRE(steps <= INT_MAX && srcDst.size() == steps * step);
    return handles::FIR(srcDst.data(), static_cast<int>(steps), this->record(), scaleFactor...);
  }

 private:
  template <class Init>
  static Result<Resampler> build(size_t tapsLen, const Rates& rates, std::span<const T> delayLine, const Init& init) {
    const size_t up = rates.up < 1 ? 1 : static_cast<size_t>(rates.up);
    const size_t delayLen = (tapsLen + up - 1) / up;
    QVX_REQUIRE(detail::countable(tapsLen) && (delayLine.empty() || delayLine.size() == delayLen));
    Resampler made;
    const Status status = made.made(init(made.owner_.slot(), detail::length(tapsLen)), tapsLen, delayLen);
    if (status.refused()) return status;
    made.rates_ = rates;
    return made;
  }

  Rates rates_;
};

// A FIR filter, of several rates too, that keeps no samples: src begins with the historySize() samples before the first.
template <class T> class StreamFir {
  static_assert(std::is_same_v<T, Qvx32f> || std::is_same_v<T, Qvx16s>, "qvx: qvx::StreamFir takes Qvx32f or Qvx16s");
  using Record = typename handles::RecordOf<handles::FIRStem, T>::type;

 public:
  static Result<StreamFir> make(detail::Source<Qvx32f> taps, const Rates& rates = {}) requires std::is_same_v<T, Qvx32f> {
    return build(taps.size(), rates, [&](Record** record, int len, Qvx8u* block) {
      return handles::FIRMRStreamInit(record, taps.data(), len, rates.up, rates.upPhase, rates.down, rates.downPhase, block);
    });
  }
  static Result<StreamFir> make(detail::Source<Qvx16s> taps, int tapsFactor, Rounding rounding,
                                const Rates& rates = {}) requires std::is_same_v<T, Qvx16s> {
    return build(taps.size(), rates, [&](Record** record, int len, Qvx8u* block) {
      return handles::FIRMRStreamInit(record, taps.data(), len, tapsFactor, rates.up, rates.upPhase, rates.down, rates.downPhase,
                                      static_cast<QvxRoundMode>(rounding), block);
    });
  }
  size_t historySize() const { return historySize_; }

  // src: historySize() samples, and then a multiple of rates.down; dst: the same multiple of rates.up.
  template <class... S>
  requires detail::Scaled<T, S...> Status filter(detail::Source<T> src, detail::Target<T> dst, S... scaleFactor) {
    const size_t steps = dst.size() / static_cast<size_t>(rates_.up);
    QVX_REQUIRE(steps <= INT_MAX && dst.size() == steps * static_cast<size_t>(rates_.up) &&
                src.size() == historySize_ + steps * static_cast<size_t>(rates_.down));
    return handles::FIR(src.data(), dst.data(), static_cast<int>(steps), record_.get(), scaleFactor...);
  }

 private:
  template <class Init> static Result<StreamFir> build(size_t tapsLen, const Rates& rates, const Init& init) {
    QVX_REQUIRE(detail::countable(tapsLen));
    StreamFir made;
    int bytes = 0;
    const int len = detail::length(tapsLen);
    Status status = handles::FIRMRStreamGetStateSize(Types<T>(), len, rates.up, rates.down, &bytes);
    if (status.refused()) return status;
    Result<Vector<Qvx8u>> block = Vector<Qvx8u>::make(static_cast<size_t>(bytes));
    if (!block) return block.error();
    made.block_ = std::move(*block);
    status = init(made.record_.slot(), len, made.block_.data());
    if (status.refused()) return status;
    made.rates_ = rates;
    made.historySize_ = (tapsLen + static_cast<size_t>(rates.up) - 1) / static_cast<size_t>(rates.up) - 1;
    return made;
  }

  Vector<Qvx8u> block_;
  detail::Owner<detail::InBlockStem, Record> record_;
  Rates rates_;
  size_t historySize_ = 0;
};

// A FIR filter with few taps, each at a position of its own, which increase from 0 on.
class SparseFir {
 public:
  // delayLine: as many samples as the last position says, newest first, or none for zeros.
  static Result<SparseFir> make(detail::Source<Qvx32f> taps, detail::Source<Qvx32s> positions,
                                detail::Source<Qvx32f> delayLine = {}) {
    QVX_REQUIRE(detail::countable(taps.size()) && taps.size() == positions.size());
    const int order = positions.empty() ? 0 : positions.back();
    QVX_REQUIRE(delayLine.empty() || detail::atLeast(delayLine.size(), order));
    int bytes = 0;
    Status status = handles::FIRSparseGetStateSize(Types<Qvx32f>(), detail::length(taps.size()), order < 1 ? 1 : order, &bytes);
    if (status.refused()) return status;
    Result<Vector<Qvx8u>> block = Vector<Qvx8u>::make(static_cast<size_t>(bytes));
    if (!block) return block.error();
    SparseFir made;
    made.block_ = std::move(*block);
    status = handles::FIRSparseInit(made.record_.slot(), taps.data(), positions.data(), detail::length(taps.size()),
                                    detail::optional<const Qvx32f>(delayLine), made.block_.data());
    if (status.refused()) return status;
    return made;
  }
  Status filter(detail::Source<Qvx32f> src, detail::Target<Qvx32f> dst) {
    QVX_REQUIRE(detail::countable(src.size()) && src.size() == dst.size());
    return handles::FIRSparse(src.data(), dst.data(), detail::length(src.size()), record_.get());
  }

 private:
  Vector<Qvx8u> block_;
  detail::Owner<detail::InBlockStem, QvxsFIRSparseState_32f> record_;
};

// The same with feedback, which is added: tapsB on samples and tapsA on results, whose positions increase from 1 on.
class SparseIir {
 public:
  static Result<SparseIir> make(detail::Source<Qvx32f> taps, detail::Source<Qvx32s> positions, int tapsB,
                                detail::Source<Qvx32f> delayLine = {}) {
    QVX_REQUIRE(detail::countable(taps.size()) && taps.size() == positions.size() && tapsB > 0 &&
                detail::atLeast(positions.size(), int64_t{tapsB} + 1));
    const int orderB = positions[static_cast<size_t>(tapsB) - 1];
    const int orderA = positions.back();
    QVX_REQUIRE(delayLine.empty() || detail::atLeast(delayLine.size(), int64_t{orderA} + orderB));
    const int tapsA = detail::length(taps.size()) - tapsB;
    int bytes = 0;
    Status status = handles::IIRSparseGetStateSize(Types<Qvx32f>(), tapsB, tapsA, orderB, orderA, &bytes);
    if (status.refused()) return status;
    Result<Vector<Qvx8u>> block = Vector<Qvx8u>::make(static_cast<size_t>(bytes));
    if (!block) return block.error();
    SparseIir made;
    made.block_ = std::move(*block);
    status = handles::IIRSparseInit(made.record_.slot(), taps.data(), positions.data(), tapsB, tapsA,
                                    detail::optional<const Qvx32f>(delayLine), made.block_.data());
    if (status.refused()) return status;
    return made;
  }
  Status filter(detail::Source<Qvx32f> src, detail::Target<Qvx32f> dst) {
    QVX_REQUIRE(detail::countable(src.size()) && src.size() == dst.size());
    return handles::IIRSparse(src.data(), dst.data(), detail::length(src.size()), record_.get());
  }

 private:
  Vector<Qvx8u> block_;
  detail::Owner<detail::InBlockStem, QvxsIIRSparseState_32f> record_;
};

// A recursive filter: the direct form of any order, or second-order sections one after another.
template <class T, class Tap = T> class Iir {
  using Known = detail::FilterRecord<handles::IIRStem, Tap, T>;
  static_assert(detail::Known<Known>,
                "qvx: there is no recursive filter of such samples with such taps: docs/cpp.md has the table");
  using Record = typename Known::type;
  static constexpr bool kFactor = detail::kIntegral<Tap>;

 public:
  // Memory is kept in floats where taps are integers.
  using Memory =
      std::conditional_t<std::is_same_v<Tap, Qvx32s>, Qvx32f, std::conditional_t<std::is_same_v<Tap, Qvx32sc>, Qvx32fc, Tap>>;

  // taps: b[0..order], a[0..order]; integer ones count times 2^-tapsFactor. delayLine: order values, or none for zeros.
  static Result<Iir> make(detail::Source<Tap> taps, detail::Source<Memory> delayLine = {}) requires(!kFactor) {
    return direct(taps, delayLine);
  }
  static Result<Iir> make(detail::Source<Tap> taps, int tapsFactor, detail::Source<Memory> delayLine = {}) requires kFactor {
    return direct(taps, delayLine, tapsFactor);
  }
  // taps: b0, b1, b2, a0, a1, a2 of each section. delayLine: 2 values for each.
  static Result<Iir> makeSections(detail::Source<Tap> taps, detail::Source<Memory> delayLine = {}) requires(!kFactor) {
    return sections(taps, delayLine);
  }
  static Result<Iir> makeSections(detail::Source<Tap> taps, int tapsFactor,
                                  detail::Source<Memory> delayLine = {}) requires kFactor {
    return sections(taps, delayLine, tapsFactor);
  }
  // The same in the direct form I, 4 values of delay line for each.
  static Result<Iir> makeSectionsDirect1(detail::Source<Tap> taps) requires(std::is_same_v<Record, QvxsIIRState_32f> ||
                                                                            std::is_same_v<Record, QvxsIIRState64f_32s>) {
    QVX_REQUIRE(taps.size() >= 6 && taps.size() % 6 == 0);
    const size_t count = taps.size() / 6;
    return build(taps.size(), 4 * count, {}, [&](Record** record, const Memory*) {
      return handles::IIRInitAlloc_BiQuad_DF1(record, taps.data(), detail::length(count), nullptr);
    });
  }

  template <class... S>
  requires detail::Scaled<T, S...> Status filter(detail::Source<T> src, detail::Target<T> dst, S... scaleFactor) {
    QVX_REQUIRE(detail::countable(src.size()) && src.size() == dst.size());
    return handles::IIR(src.data(), dst.data(), detail::length(src.size()), owner_.get(), scaleFactor...);
  }
  template <class... S>
  requires detail::Scaled<T, S...> Status filter(detail::Target<T> srcDst, S... scaleFactor) {
    QVX_REQUIRE(detail::countable(srcDst.size()));
    return handles::IIR(srcDst.data(), detail::length(srcDst.size()), owner_.get(), scaleFactor...);
  }
  template <class... S>
  requires detail::Scaled<T, S...> Status filterOne(T sample, T& dst, S... scaleFactor) {
    return handles::IIROne(sample, &dst, owner_.get(), scaleFactor...);
  }

  size_t tapsSize() const { return tapsLen_; }
  size_t delayLineSize() const { return delayLen_; }
  Status setTaps(detail::Source<Tap> taps) requires(!kFactor) {
    QVX_REQUIRE(taps.size() == tapsLen_);
    return handles::IIRSetTaps(taps.data(), owner_.get());
  }
  Status setTaps(detail::Source<Tap> taps, int tapsFactor) requires kFactor {
    QVX_REQUIRE(taps.size() == tapsLen_);
    return handles::IIRSetTaps(taps.data(), owner_.get(), tapsFactor);
  }
  Status delayLine(detail::Target<Memory> dst) const {
    QVX_REQUIRE(dst.size() == delayLen_);
    return handles::IIRGetDlyLine(owner_.get(), dst.data());
  }
  Status setDelayLine(detail::Source<Memory> values = {}) {
    QVX_REQUIRE(values.empty() || values.size() == delayLen_);
    return handles::IIRSetDlyLine(owner_.get(), detail::optional<const Memory>(values));
  }

 private:
  template <class... Factor>
  static Result<Iir> direct(std::span<const Tap> taps, std::span<const Memory> delayLine, Factor... tapsFactor) {
    QVX_REQUIRE(taps.size() >= 4 && taps.size() % 2 == 0);
    const size_t order = taps.size() / 2 - 1;
    return build(taps.size(), order, delayLine, [&](Record** record, const Memory* memory) {
      return handles::IIRInitAlloc(record, taps.data(), detail::length(order), tapsFactor..., memory);
    });
  }
  template <class... Factor>
  static Result<Iir> sections(std::span<const Tap> taps, std::span<const Memory> delayLine, Factor... tapsFactor) {
    QVX_REQUIRE(taps.size() >= 6 && taps.size() % 6 == 0);
    const size_t count = taps.size() / 6;
    return build(taps.size(), 2 * count, delayLine, [&](Record** record, const Memory* memory) {
      return handles::IIRInitAlloc_BiQuad(record, taps.data(), detail::length(count), tapsFactor..., memory);
    });
  }
  template <class Init>
  static Result<Iir> build(size_t tapsLen, size_t delayLen, std::span<const Memory> delayLine, const Init& init) {
    QVX_REQUIRE(detail::countable(tapsLen) && (delayLine.empty() || delayLine.size() == delayLen));
    Iir made;
    Record* record = nullptr;
    const Status status = init(&record, detail::optional(delayLine));
    if (status.refused()) return status;
    *made.owner_.slot() = record;
    made.tapsLen_ = tapsLen;
    made.delayLen_ = delayLen;
    return made;
  }

  detail::Owner<records::IirStem, Record> owner_;
  size_t tapsLen_ = 0;
  size_t delayLen_ = 0;
};

// An adaptive FIR filter, whose taps follow a reference in steps of mu. Taps are floats.
template <class T> class Lms {
  using Known = detail::FilterRecord<handles::FIRLMSStem, Qvx32f, T>;
  static_assert(detail::Known<Known>, "qvx: qvx::Lms takes samples of Qvx32f or Qvx16s");

 public:
  // taps to begin with, h[0] first. delayLine: as many samples, the oldest at index, or none for zeros.
  static Result<Lms> make(detail::Source<Qvx32f> taps, detail::Source<T> delayLine = {}, int index = 0) {
    QVX_REQUIRE(delayLine.empty() || delayLine.size() == taps.size());
    return build(taps.size(), taps.data(), detail::optional<const T>(delayLine), index);
  }
  // So many taps of 0.
  static Result<Lms> make(int tapsLen) { return build(static_cast<size_t>(tapsLen < 0 ? 0 : tapsLen), nullptr, nullptr, 0); }

  Status filter(detail::Source<T> src, detail::Source<T> reference, detail::Target<T> dst, Qvx32f mu) {
    QVX_REQUIRE(detail::countable(src.size()) && src.size() == reference.size() && src.size() == dst.size());
    return handles::FIRLMS(src.data(), reference.data(), dst.data(), detail::length(src.size()), owner_.get(), mu);
  }
  size_t tapsSize() const { return tapsLen_; }
  Status taps(detail::Target<Qvx32f> dst) const {
    QVX_REQUIRE(dst.size() == tapsLen_);
    return handles::FIRLMSGetTaps(owner_.get(), dst.data());
  }
  Status delayLine(detail::Target<T> dst, int& index) const {
    QVX_REQUIRE(dst.size() == tapsLen_);
    return handles::FIRLMSGetDlyLine(owner_.get(), dst.data(), &index);
  }
  Status setDelayLine(detail::Source<T> samples = {}, int index = 0) {
    QVX_REQUIRE(samples.empty() || samples.size() == tapsLen_);
    return handles::FIRLMSSetDlyLine(owner_.get(), detail::optional<const T>(samples), index);
  }

 private:
  static Result<Lms> build(size_t tapsLen, const Qvx32f* taps, const T* delayLine, int index) {
    QVX_REQUIRE(detail::countable(tapsLen));
    Lms made;
    const Status status = handles::FIRLMSInitAlloc(made.owner_.slot(), taps, detail::length(tapsLen), delayLine, index);
    if (status.refused()) return status;
    made.tapsLen_ = tapsLen;
    return made;
  }

  detail::Owner<records::LmsStem, typename Known::type> owner_;
  size_t tapsLen_ = 0;
};

// An adaptive filter that gives one result for downFactor samples, of Qvx16s with taps of Qvx32s or complex ones.
template <class T> class LmsDecimator {
  static_assert(std::is_same_v<T, Qvx16s> || std::is_same_v<T, Qvx16sc>, "qvx: qvx::LmsDecimator takes Qvx16s or Qvx16sc");

 public:
  using Tap = std::conditional_t<std::is_same_v<T, Qvx16sc>, Qvx32sc, Qvx32s>;

  // taps: h[0] first. delayLine: as many samples, newest first, or none for zeros.
  static Result<LmsDecimator> make(detail::Source<Tap> taps, int downFactor, Qvx32f mu, detail::Source<T> delayLine = {}) {
    QVX_REQUIRE(detail::countable(taps.size()) && (delayLine.empty() || delayLine.size() == taps.size()));
    LmsDecimator made;
    const Status status = handles::FIRLMSMRInitAlloc(made.owner_.slot(), taps.data(), detail::length(taps.size()), downFactor, mu,
                                                     detail::optional<const T>(delayLine));
    if (status.refused()) return status;
    made.tapsLen_ = taps.size();
    made.downFactor_ = static_cast<size_t>(downFactor);
    return made;
  }
  // src: downFactor samples for each result.
  Status filter(detail::Source<T> src, detail::Source<T> reference, detail::Target<T> dst, int scaleFactor) {
    QVX_REQUIRE(detail::countable(dst.size()) && src.size() == dst.size() * downFactor_ && reference.size() == dst.size());
    return handles::FIRLMSMR(src.data(), reference.data(), dst.data(), detail::length(dst.size()), owner_.get(), scaleFactor);
  }
  // The parts of a step: take a sample, give a result, adapt to its error.
  Status put(T sample) { return handles::FIRLMSMRPutVal(sample, owner_.get()); }
  Status one(T& dst, int scaleFactor) { return handles::FIRLMSMROne(&dst, owner_.get(), scaleFactor); }
  Status adapt(T error) { return handles::FIRLMSMRUpdateTaps(error, owner_.get()); }

  Status setMu(Qvx32f mu) { return handles::FIRLMSMRSetMu(owner_.get(), mu); }
  size_t tapsSize() const { return tapsLen_; }
  Status taps(detail::Target<Tap> dst) const {
    QVX_REQUIRE(dst.size() == tapsLen_);
    return handles::FIRLMSMRGetTaps(owner_.get(), dst.data());
  }
  Status setTaps(detail::Source<Tap> taps) {
    QVX_REQUIRE(taps.size() == tapsLen_);
    return handles::FIRLMSMRSetTaps(taps.data(), owner_.get());
  }
  Status delayLine(detail::Target<T> dst) const {
    QVX_REQUIRE(dst.size() == tapsLen_);
    return handles::FIRLMSMRGetDlyLine(owner_.get(), dst.data());
  }
  Status setDelayLine(detail::Source<T> samples = {}) {
    QVX_REQUIRE(samples.empty() || samples.size() == tapsLen_);
    return handles::FIRLMSMRSetDlyLine(owner_.get(), detail::optional<const T>(samples));
  }
  Status delayed(int index, T& dst) const { return handles::FIRLMSMRGetDlyVal(owner_.get(), &dst, index); }

 private:
  detail::Owner<records::LmsDecimatorStem, typename handles::RecordOf<handles::FIRLMSMRStem, Tap, T>::type> owner_;
  size_t tapsLen_ = 0;
  size_t downFactor_ = 1;
};

// A filter of a wavelet bank: its taps, h[0] first, and its offset, from -1 on.
struct Band {
  std::span<const Qvx32f> taps;
  int offset = 0;

  size_t kept() const {
    return taps.empty() || static_cast<int>(taps.size()) + offset < 1 ? 0 : taps.size() + static_cast<size_t>(offset + 1) - 2;
  }
};

// Splits a stream of T into a low and a high band of floats at half the rate.
template <class T> class WaveletForward {
  using Known = detail::FilterRecord<handles::WTFwdStem, T, Qvx32f>;
  static_assert(detail::Known<Known>, "qvx: qvx::WaveletForward takes samples of Qvx32f, Qvx8u, Qvx8s, Qvx16u or Qvx16s");

 public:
  static Result<WaveletForward> make(const Band& low, const Band& high) {
    QVX_REQUIRE(detail::countable(low.taps.size()) && detail::countable(high.taps.size()));
    WaveletForward made;
    const Status status = handles::WTFwdInitAlloc(made.owner_.slot(), low.taps.data(), detail::length(low.taps.size()),
                                                  low.offset, high.taps.data(), detail::length(high.taps.size()), high.offset);
    if (status.refused()) return status;
    made.lowLen_ = low.kept();
    made.highLen_ = high.kept();
    return made;
  }
  // src: twice as many samples as low and high each.
  Status split(detail::Source<T> src, detail::Target<Qvx32f> low, detail::Target<Qvx32f> high) {
    QVX_REQUIRE(detail::countable(low.size()) && low.size() == high.size() && src.size() == 2 * low.size());
    return handles::WTFwd(src.data(), low.data(), high.data(), detail::length(low.size()), owner_.get());
  }
  // What each band keeps, oldest first.
  size_t lowSize() const { return lowLen_; }
  size_t highSize() const { return highLen_; }
  Status delayLines(detail::Target<Qvx32f> low, detail::Target<Qvx32f> high) const {
    QVX_REQUIRE(low.size() >= lowLen_ && high.size() >= highLen_);
    Qvx32f none = 0;
    return handles::WTFwdGetDlyLine(owner_.get(), records::orNone(low, none), records::orNone(high, none));
  }
  Status setDelayLines(detail::Source<Qvx32f> low, detail::Source<Qvx32f> high) {
    QVX_REQUIRE(low.size() >= lowLen_ && high.size() >= highLen_);
    const Qvx32f none = 0;
    return handles::WTFwdSetDlyLine(owner_.get(), records::orNone(low, none), records::orNone(high, none));
  }

 private:
  detail::Owner<records::WaveletForwardStem, typename Known::type> owner_;
  size_t lowLen_ = 0;
  size_t highLen_ = 0;
};

// Joins the bands again.
template <class T> class WaveletInverse {
  using Known = detail::FilterRecord<handles::WTInvStem, Qvx32f, T>;
  static_assert(detail::Known<Known>, "qvx: qvx::WaveletInverse gives samples of Qvx32f, Qvx8u, Qvx8s, Qvx16u or Qvx16s");

 public:
  static Result<WaveletInverse> make(const Band& low, const Band& high) {
    QVX_REQUIRE(detail::countable(low.taps.size()) && detail::countable(high.taps.size()));
    WaveletInverse made;
    const Status status = handles::WTInvInitAlloc(made.owner_.slot(), low.taps.data(), detail::length(low.taps.size()),
                                                  low.offset, high.taps.data(), detail::length(high.taps.size()), high.offset);
    if (status.refused()) return status;
    made.lowLen_ = low.kept() / 2;
    made.highLen_ = high.kept() / 2;
    return made;
  }
  Status join(detail::Source<Qvx32f> low, detail::Source<Qvx32f> high, detail::Target<T> dst) {
    QVX_REQUIRE(detail::countable(low.size()) && low.size() == high.size() && dst.size() == 2 * low.size());
    return handles::WTInv(low.data(), high.data(), detail::length(low.size()), dst.data(), owner_.get());
  }
  size_t lowSize() const { return lowLen_; }
  size_t highSize() const { return highLen_; }
  Status delayLines(detail::Target<Qvx32f> low, detail::Target<Qvx32f> high) const {
    QVX_REQUIRE(low.size() >= lowLen_ && high.size() >= highLen_);
    Qvx32f none = 0;
    return handles::WTInvGetDlyLine(owner_.get(), records::orNone(low, none), records::orNone(high, none));
  }
  Status setDelayLines(detail::Source<Qvx32f> low, detail::Source<Qvx32f> high) {
    QVX_REQUIRE(low.size() >= lowLen_ && high.size() >= highLen_);
    const Qvx32f none = 0;
    return handles::WTInvSetDlyLine(owner_.get(), records::orNone(low, none), records::orNone(high, none));
  }

 private:
  detail::Owner<records::WaveletInverseStem, typename Known::type> owner_;
  size_t lowLen_ = 0;
  size_t highLen_ = 0;
};

}  // namespace QVX_POLICY
}  // namespace qvx

#endif
