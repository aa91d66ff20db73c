// Transforms: records as objects. make() builds one; what it returns is moved, not copied.
#ifndef QVX_QVXS_TRANSFORMS_HPP
#define QVX_QVXS_TRANSFORMS_HPP

#include <qvx/qvxs_memory.hpp>

namespace qvx {

// The factor of a transform of N points.
enum class Scale : int {
  kForward = QVX_FFT_SCALE_FWD,         // forward by 1/N
  kInverse = QVX_FFT_SCALE_INV,         // inverse by 1/N
  kBothSqrt = QVX_FFT_SCALE_BOTH_SQRT,  // both by 1/sqrt(N)
  kNone = QVX_FFT_SCALE_NONE
};

inline namespace QVX_POLICY {
namespace records {

using namespace qvx::detail;

// clang-format off
// Made from an order: the length is 2^order.
struct FftStem {
  using RealStem = handles::FFT_RStem;
  using ComplexStem = handles::FFT_CStem;
  static QvxStatus make(auto** record, int order, Scale scale) { return handles::FFTInitAlloc(record, order, static_cast<int>(scale), 0); }
  static QvxStatus free(auto* record) { return handles::FFTFree(record); }
  static QvxStatus bufferSize(const auto* record, int* size) { return handles::FFTGetBufSize(record, size); }
  static size_t length(int order) { return size_t{1} << order; }
  static QvxStatus forward(auto... a) { return handles::FFTFwd_CToC(a...); }
  static QvxStatus inverse(auto... a) { return handles::FFTInv_CToC(a...); }
  static QvxStatus toCcs(auto... a) { return handles::FFTFwd_RToCCS(a...); }
  static QvxStatus toPack(auto... a) { return handles::FFTFwd_RToPack(a...); }
  static QvxStatus toPerm(auto... a) { return handles::FFTFwd_RToPerm(a...); }
  static QvxStatus fromCcs(auto... a) { return handles::FFTInv_CCSToR(a...); }
  static QvxStatus fromPack(auto... a) { return handles::FFTInv_PackToR(a...); }
  static QvxStatus fromPerm(auto... a) { return handles::FFTInv_PermToR(a...); }
};
// Made from a length.
struct DftStem {
  using RealStem = handles::DFT_RStem;
  using ComplexStem = handles::DFT_CStem;
  static QvxStatus make(auto** record, int len, Scale scale) { return handles::DFTInitAlloc(record, len, static_cast<int>(scale), 0); }
  static QvxStatus free(auto* record) { return handles::DFTFree(record); }
  static QvxStatus bufferSize(const auto* record, int* size) { return handles::DFTGetBufSize(record, size); }
  static size_t length(int len) { return static_cast<size_t>(len); }
  static QvxStatus forward(auto... a) { return handles::DFTFwd_CToC(a...); }
  static QvxStatus inverse(auto... a) { return handles::DFTInv_CToC(a...); }
  static QvxStatus toCcs(auto... a) { return handles::DFTFwd_RToCCS(a...); }
  static QvxStatus toPack(auto... a) { return handles::DFTFwd_RToPack(a...); }
  static QvxStatus toPerm(auto... a) { return handles::DFTFwd_RToPerm(a...); }
  static QvxStatus fromCcs(auto... a) { return handles::DFTInv_CCSToR(a...); }
  static QvxStatus fromPack(auto... a) { return handles::DFTInv_PackToR(a...); }
  static QvxStatus fromPerm(auto... a) { return handles::DFTInv_PermToR(a...); }
};
// The spectrum in an order of its own.
struct DftOutOfOrderStem {
  using ComplexStem = handles::DFTOutOrd_CStem;
  static QvxStatus make(auto** record, int len, Scale scale) { return handles::DFTOutOrdInitAlloc(record, len, static_cast<int>(scale), 0); }
  static QvxStatus free(auto* record) { return handles::DFTOutOrdFree(record); }
  static QvxStatus bufferSize(const auto* record, int* size) { return handles::DFTOutOrdGetBufSize(record, size); }
  static size_t length(int len) { return static_cast<size_t>(len); }
  static QvxStatus forward(auto... a) { return handles::DFTOutOrdFwd_CToC(a...); }
  static QvxStatus inverse(auto... a) { return handles::DFTOutOrdInv_CToC(a...); }
};
// clang-format on

// A record that is read, and the working memory of whoever calls.
template <class Record> struct Calls {
  size_t size() const { return len; }

  Record* record = nullptr;
  size_t len = 0;
  Qvx8u* buffer = nullptr;
};

// Sequences of N complex numbers. One vector for both is transformed in place.
template <class Stem, class Record, class T> struct ComplexCalls : Calls<Record> {
  template <class... S>
  requires Scaled<T, S...> Status forward(Source<T> src, Target<T> dst, S... scaleFactor) {
    QVX_REQUIRE(src.size() == this->len && dst.size() == this->len);
    return Stem::forward(src.data(), dst.data(), constant(), scaleFactor..., this->buffer);
  }
  template <class... S>
  requires Scaled<T, S...> Status inverse(Source<T> src, Target<T> dst, S... scaleFactor) {
    QVX_REQUIRE(src.size() == this->len && dst.size() == this->len);
    return Stem::inverse(src.data(), dst.data(), constant(), scaleFactor..., this->buffer);
  }
  template <class... S>
  requires Scaled<T, S...> Status forward(Target<T> srcDst, S... scaleFactor) { return forward(srcDst, srcDst, scaleFactor...); }
  template <class... S>
  requires Scaled<T, S...> Status inverse(Target<T> srcDst, S... scaleFactor) { return inverse(srcDst, srcDst, scaleFactor...); }

 private:
  const Record* constant() const { return this->record; }
};

// The same with the parts in two vectors.
template <class Stem, class Record, class T> struct SplitCalls : Calls<Record> {
  template <class... S>
  requires Scaled<T, S...> Status forward(Source<T> srcRe, Source<T> srcIm, Target<T> dstRe, Target<T> dstIm, S... scaleFactor) {
    QVX_REQUIRE(fit(srcRe, srcIm, dstRe, dstIm));
    return Stem::forward(srcRe.data(), srcIm.data(), dstRe.data(), dstIm.data(), constant(), scaleFactor..., this->buffer);
  }
  template <class... S>
  requires Scaled<T, S...> Status inverse(Source<T> srcRe, Source<T> srcIm, Target<T> dstRe, Target<T> dstIm, S... scaleFactor) {
    QVX_REQUIRE(fit(srcRe, srcIm, dstRe, dstIm));
    return Stem::inverse(srcRe.data(), srcIm.data(), dstRe.data(), dstIm.data(), constant(), scaleFactor..., this->buffer);
  }

 private:
  template <class... V> bool fit(const V&... vectors) const { return ((vectors.size() == this->len) && ...); }
  const Record* constant() const { return this->record; }
};

// Sequences of N real numbers. The spectrum is N/2 + 1 complex numbers, or one of the layouts Ccs (the same as 2 (N/2 + 1)
// numbers), Pack and Perm (N numbers).
template <class Stem, class Record, class T, class F> struct RealCalls : Calls<Record> {
  using Complex = typename ComplexOf<F>::type;

  size_t spectrumSize() const { return this->len / 2 + 1; }

  template <class... S>
  requires Scaled<T, S...> Status forward(Source<T> src, Target<Complex> spectrum, S... scaleFactor) {
    return toCcs(src, std::span<F>(reinterpret_cast<F*>(spectrum.data()), 2 * spectrum.size()), scaleFactor...);
  }
  template <class... S>
  requires Scaled<T, S...> Status inverse(Source<Complex> spectrum, Target<T> dst, S... scaleFactor) {
    return fromCcs(std::span<const F>(reinterpret_cast<const F*>(spectrum.data()), 2 * spectrum.size()), dst, scaleFactor...);
  }

  template <class... S>
  requires Scaled<T, S...> Status toCcs(Source<T> src, Target<F> dst, S... scaleFactor) {
    QVX_REQUIRE(src.size() == this->len && dst.size() >= 2 * spectrumSize());
    return Stem::toCcs(src.data(), dst.data(), constant(), scaleFactor..., this->buffer);
  }
  template <class... S>
  requires Scaled<T, S...> Status fromCcs(Source<F> src, Target<T> dst, S... scaleFactor) {
    QVX_REQUIRE(src.size() >= 2 * spectrumSize() && dst.size() == this->len);
    return Stem::fromCcs(src.data(), dst.data(), constant(), scaleFactor..., this->buffer);
  }
  template <class... S>
  requires Scaled<T, S...> Status toPack(Source<T> src, Target<F> dst, S... scaleFactor) {
    QVX_REQUIRE(src.size() == this->len && dst.size() == this->len);
    return Stem::toPack(src.data(), dst.data(), constant(), scaleFactor..., this->buffer);
  }
  template <class... S>
  requires Scaled<T, S...> Status fromPack(Source<F> src, Target<T> dst, S... scaleFactor) {
    QVX_REQUIRE(src.size() == this->len && dst.size() == this->len);
    return Stem::fromPack(src.data(), dst.data(), constant(), scaleFactor..., this->buffer);
  }
  template <class... S>
  requires Scaled<T, S...> Status toPerm(Source<T> src, Target<F> dst, S... scaleFactor) {
    QVX_REQUIRE(src.size() == this->len && dst.size() == this->len);
    return Stem::toPerm(src.data(), dst.data(), constant(), scaleFactor..., this->buffer);
  }
  template <class... S>
  requires Scaled<T, S...> Status fromPerm(Source<F> src, Target<T> dst, S... scaleFactor) {
    QVX_REQUIRE(src.size() == this->len && dst.size() == this->len);
    return Stem::fromPerm(src.data(), dst.data(), constant(), scaleFactor..., this->buffer);
  }

 private:
  const Record* constant() const { return this->record; }
};

// A record, with working memory of its own: the calls above are for one thread at a time.
template <class Stem, class Record, class CallsOfIt> class Transform : public CallsOfIt {
 public:
  Transform() = default;
  static Result<Transform> make(int size, Scale scale = Scale::kInverse) {
    Transform made;
    Status status = Stem::make(made.owner_.slot(), size, scale);
    int bytes = 0;
    if (!status.refused()) status = Stem::bufferSize(made.owner_.get(), &bytes);
    if (status.refused()) return status;
    Result<Vector<Qvx8u>> memory = Vector<Qvx8u>::make(static_cast<size_t>(bytes));
    if (!memory) return memory.error();
    made.memory_ = std::move(*memory);
    made.record = made.owner_.get();
    made.len = Stem::length(size);
    made.buffer = made.memory_.data();
    return made;
  }
  Transform(Transform&& other) noexcept
      : CallsOfIt(std::exchange(static_cast<CallsOfIt&>(other), CallsOfIt())),
        owner_(std::move(other.owner_)),
        memory_(std::move(other.memory_)) {}
  Transform& operator=(Transform&& other) noexcept {
    static_cast<CallsOfIt&>(*this) = std::exchange(static_cast<CallsOfIt&>(other), CallsOfIt());
    owner_ = std::move(other.owner_);
    memory_ = std::move(other.memory_);
    return *this;
  }

  // The same calls on another's working memory, so that threads may share the record. With less than bufferSize() bytes each call
  // allocates its own.
  size_t bufferSize() const { return memory_.size(); }
  CallsOfIt on(std::span<Qvx8u> memory) const {
    CallsOfIt calls = *this;
    calls.buffer = memory.size() < bufferSize() ? nullptr : memory.data();
    return calls;
  }

 private:
  Owner<Stem, Record> owner_;
  Vector<Qvx8u> memory_;
};

template <class Stem, class T, class F> struct TransformOf {
  using Known = FilterRecord<typename Stem::RealStem, T, F>;
  static_assert(detail::Known<Known>, "qvx: there is no real transform of these elements: docs/cpp.md has the table");
  using type = Transform<Stem, typename Known::type, RealCalls<Stem, typename Known::type, T, F>>;
};
template <class Stem, class T>
requires kComplex<T>
struct TransformOf<Stem, T, T> {
  using Known = handles::RecordOf<typename Stem::ComplexStem, T>;
  static_assert(detail::Known<Known>, "qvx: there is no complex transform of these elements: docs/cpp.md has the table");
  using type = Transform<Stem, typename Known::type, ComplexCalls<Stem, typename Known::type, T>>;
};
template <class Stem, class T> struct SplitTransformOf {
  using Known = handles::RecordOf<typename Stem::ComplexStem, T>;
  static_assert(detail::Known<Known>, "qvx: there is no complex transform of parts of these elements: docs/cpp.md has the table");
  using type = Transform<Stem, typename Known::type, SplitCalls<Stem, typename Known::type, T>>;
};

// clang-format off
struct DctForwardStem {
  static QvxStatus free(auto* record) { return handles::DCTFwdFree(record); }
};
struct DctInverseStem {
  static QvxStatus free(auto* record) { return handles::DCTInvFree(record); }
};
struct HilbertStem {
  static QvxStatus free(auto* record) { return handles::HilbertFree(record); }
};
// clang-format on

}  // namespace records

// 2^order points, made by make(order, scale). T is a real or a complex element; F, where it differs, that of the spectrum's
// parts.
template <class T, class F = T> using Fft = typename records::TransformOf<records::FftStem, T, F>::type;
// Complex ones, their parts in two vectors of T.
template <class T> using SplitFft = typename records::SplitTransformOf<records::FftStem, T>::type;
// Any number of points, made by make(len, scale).
template <class T> using Dft = typename records::TransformOf<records::DftStem, T, T>::type;
template <class T> using SplitDft = typename records::SplitTransformOf<records::DftStem, T>::type;
// The spectrum in an order of its own, for products of spectra.
template <class T> using DftOutOfOrder = typename records::TransformOf<records::DftOutOfOrderStem, T, T>::type;

// The cosine transforms of types II, forward, and III, inverse, of len numbers. One vector for both is transformed in place.
template <class T> class Dct {
  static_assert(detail::Known<handles::RecordOf<handles::DCTFwdStem, T>>, "qvx: qvx::Dct takes Qvx32f, Qvx64f or Qvx16s");

 public:
  Dct() = default;
  static Result<Dct> make(int len) {
    Dct made;
    Status status = handles::DCTFwdInitAlloc(made.forward_.slot(), len, 0);
    if (!status.refused()) status = handles::DCTInvInitAlloc(made.inverse_.slot(), len, 0);
    int bytes[2] = {0, 0};
    if (!status.refused()) status = handles::DCTFwdGetBufSize(made.forward_.get(), &bytes[0]);
    if (!status.refused()) status = handles::DCTInvGetBufSize(made.inverse_.get(), &bytes[1]);
    if (status.refused()) return status;
    Result<Vector<Qvx8u>> memory = Vector<Qvx8u>::make(static_cast<size_t>(bytes[0] < bytes[1] ? bytes[1] : bytes[0]));
    if (!memory) return memory.error();
    made.memory_ = std::move(*memory);
    made.len_ = static_cast<size_t>(len);
    return made;
  }
  size_t size() const { return len_; }

  template <class... S>
  requires detail::Scaled<T, S...> Status forward(detail::Source<T> src, detail::Target<T> dst, S... scaleFactor) {
    QVX_REQUIRE(src.size() == len_ && dst.size() == len_);
    return handles::DCTFwd(src.data(), dst.data(), forward_.get(), scaleFactor..., memory_.data());
  }
  template <class... S>
  requires detail::Scaled<T, S...> Status inverse(detail::Source<T> src, detail::Target<T> dst, S... scaleFactor) {
    QVX_REQUIRE(src.size() == len_ && dst.size() == len_);
    return handles::DCTInv(src.data(), dst.data(), inverse_.get(), scaleFactor..., memory_.data());
  }
  template <class... S>
  requires detail::Scaled<T, S...> Status forward(detail::Target<T> srcDst, S... scaleFactor) {
    return forward(srcDst, srcDst, scaleFactor...);
  }
  template <class... S>
  requires detail::Scaled<T, S...> Status inverse(detail::Target<T> srcDst, S... scaleFactor) {
    return inverse(srcDst, srcDst, scaleFactor...);
  }

 private:
  detail::Owner<records::DctForwardStem, typename handles::RecordOf<handles::DCTFwdStem, T>::type> forward_;
  detail::Owner<records::DctInverseStem, typename handles::RecordOf<handles::DCTInvStem, T>::type> inverse_;
  Vector<Qvx8u> memory_;
  size_t len_ = 0;
};

// The analytic signal of len real numbers of T, in complex ones of C.
template <class T, class C = typename detail::ComplexOf<T>::type> class Hilbert {
  static_assert(detail::Known<handles::RecordOf<handles::HilbertStem, T, C>>,
                "qvx: qvx::Hilbert takes Qvx32f or Qvx16s, the latter into Qvx16sc or Qvx32fc");

 public:
  Hilbert() = default;
  static Result<Hilbert> make(int len) {
    Hilbert made;
    const Status status = handles::HilbertInitAlloc(made.record_.slot(), len, 0);
    if (status.refused()) return status;
    made.len_ = static_cast<size_t>(len);
    return made;
  }
  size_t size() const { return len_; }

  template <class... S>
  requires detail::Scaled<C, S...> Status analytic(detail::Source<T> src, detail::Target<C> dst, S... scaleFactor)
  const {
    QVX_REQUIRE(src.size() == len_ && dst.size() == len_);
    return handles::Hilbert(src.data(), dst.data(), record_.get(), scaleFactor...);
  }

 private:
  detail::Owner<records::HilbertStem, typename handles::RecordOf<handles::HilbertStem, T, C>::type> record_;
  size_t len_ = 0;
};

}  // namespace QVX_POLICY
}  // namespace qvx

#endif
