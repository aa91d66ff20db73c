// Memory and records that are released with their object.
#ifndef QVX_QVXS_MEMORY_HPP
#define QVX_QVXS_MEMORY_HPP

#include <qvx/qvxs_handles.hpp>
#include <qvx/qvxs_result.hpp>
#include <qvx/qvxs_vectors.hpp>

namespace qvx {

// Elements at a multiple of 64 bytes, of no defined content, from the allocator that the library uses itself.
template <class T> class Vector {
 public:
  Vector() = default;
  static Result<Vector> make(size_t size) {
    Vector vector;
    if (size == 0) return vector;
    if (size > INT_MAX) return Status(qvxStatBadSize);
    vector.data_ = handles::Malloc(Types<T>(), static_cast<int>(size));
    if (vector.data_ == nullptr) return Status(qvxStatNoMem);
    vector.size_ = size;
    return vector;
  }
  Vector(Vector&& other) noexcept : data_(std::exchange(other.data_, nullptr)), size_(std::exchange(other.size_, 0)) {}
  Vector& operator=(Vector&& other) noexcept {
    Vector taken(std::move(other));
    std::swap(data_, taken.data_);
    std::swap(size_, taken.size_);
    return *this;
  }
  ~Vector() { handles::Free(data_); }

  T* data() { return data_; }
  const T* data() const { return data_; }
  size_t size() const { return size_; }
  bool empty() const { return size_ == 0; }
  T* begin() { return data_; }
  T* end() { return data_ + size_; }
  const T* begin() const { return data_; }
  const T* end() const { return data_ + size_; }
  T& operator[](size_t i) { return data_[i]; }
  const T& operator[](size_t i) const { return data_[i]; }

 private:
  T* data_ = nullptr;
  size_t size_ = 0;
};

namespace detail {

// A record of InitAlloc, which Stem::free gives back. An empty one is null, which every function refuses.
template <class Stem, class Record> class Owner {
 public:
  Owner() = default;
  Owner(Owner&& other) noexcept : record_(std::exchange(other.record_, nullptr)) {}
  Owner& operator=(Owner&& other) noexcept {
    Owner taken(std::move(other));
    std::swap(record_, taken.record_);
    return *this;
  }
  ~Owner() {
    if (record_ != nullptr) Stem::free(record_);
  }
  Record* get() const { return record_; }
  Record** slot() { return &record_; }

 private:
  Record* record_ = nullptr;
};

// The stem of a record in a block that the object has beside it: there is nothing to give back.
struct InBlockStem {
  static QvxStatus free(const void*) { return qvxStatOk; }
};

template <class Range, class T>
concept Holds = Contiguous<Range> &&
    std::is_same_v<std::remove_const_t<T>, std::remove_const_t<typename decltype(view(std::declval<Range&>()))::element_type>>;

// What a member function takes: any contiguous range of elements that are, or look like, a T.
template <class T> class Span : public std::span<T> {
 public:
  Span() = default;
  template <class Range>
  requires Holds<std::remove_reference_t<Range>, T>
  // NOLINTNEXTLINE(bugprone-forwarding-reference-overload): a copy of a span is made as it is from any range
  constexpr Span(Range&& range) : std::span<T>(view(range)) {}
};
template <class T> using Source = Span<const T>;
template <class T> using Target = Span<T>;

template <class T> struct ComplexOf { using type = void; };
template <> struct ComplexOf<Qvx16s> { using type = Qvx16sc; };
template <> struct ComplexOf<Qvx32s> { using type = Qvx32sc; };
template <> struct ComplexOf<Qvx32f> { using type = Qvx32fc; };
template <> struct ComplexOf<Qvx64f> { using type = Qvx64fc; };
template <class T> inline constexpr bool kIntegral = std::is_integral_v<typename PartOf<T>::type>;

// Results in integers take a scale factor, others none.
template <class T, class... Scale>
concept Scaled = sizeof...(Scale) == (kIntegral<T> ? 1 : 0) && (std::is_convertible_v<Scale, int> && ...) &&
                 !(std::is_floating_point_v<Scale> || ...);

// The record of a stem for taps and samples, which has one name where both are of one type.
template <class Stem, class Tap, class T>
using FilterRecord = std::conditional_t<std::is_same_v<Tap, T>, handles::RecordOf<Stem, T>, handles::RecordOf<Stem, Tap, T>>;

template <class Record>
concept Known = requires {
  typename Record::type;
};

}  // namespace detail
}  // namespace qvx

#endif
