// What the C++ face takes: spans of elements, numbers, and the policy for lengths that do not fit together.
#ifndef QVX_QVXS_VECTORS_HPP
#define QVX_QVXS_VECTORS_HPP

#include <qvx/qvxs.h>

#include <cassert>
#include <climits>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <type_traits>

// What a call does with vectors whose lengths do not fit together: refuse it with qvxStatBadSize, or assert that they do, which
// with NDEBUG means to trust them. The functions of each policy stand in a namespace of their own, so that units of one program
// may differ.
#define QVX_LENGTHS_REFUSED 1
#define QVX_LENGTHS_ASSERTED 2
#ifndef QVX_LENGTHS
#define QVX_LENGTHS QVX_LENGTHS_REFUSED
#endif
#if QVX_LENGTHS == QVX_LENGTHS_REFUSED
#define QVX_POLICY lengths_refused
#define QVX_REQUIRE(condition) \
  if (!(condition)) return qvx::Status(qvxStatBadSize)
#elif defined(NDEBUG)
#define QVX_POLICY lengths_trusted
#define QVX_REQUIRE(condition) static_cast<void>(sizeof(condition))
#else
#define QVX_POLICY lengths_asserted
#define QVX_REQUIRE(condition) assert(condition)
#endif

namespace qvx {

template <class T> using In = std::span<const T>;
template <class T> using Out = std::span<T>;

// Elements for which C has no type of their own.
enum class Half : Qvx16u {};  // the bits of a number of half precision, Qvx16f
struct Int24 {
  Qvx8u bytes[3];
};
struct UInt24 {
  Qvx8u bytes[3];
};

enum class Rounding : int { kTowardZero = qvxRoundTowardZero, kNearestEven = qvxRoundNearestEven, kHalfAway = qvxRoundHalfAway };

// Element types, for functions whose arguments tell none.
template <class... T> struct Types {};

namespace detail {

template <class T> inline constexpr bool kComplex = requires(T z) { z.re; };
template <class T> struct PartOf { using type = T; };
template <class T>
requires kComplex<T>
struct PartOf<T> {
  using type = decltype(T::re);
};

// Numbers that become a T without losing a fraction: no float is taken where an integer stands.
template <class U, class T>
concept Becomes = std::is_arithmetic_v<T> && std::is_convertible_v<U, T> &&
    (std::is_floating_point_v<T> || !std::is_floating_point_v<U>);

}  // namespace detail

// A constant: a T, or a number that becomes one. A real number is a complex one.
template <class T> struct Value {
  template <class U>
  requires(std::is_same_v<U, T> || detail::Becomes<U, T>) constexpr Value(U given) : number(static_cast<T>(given)) {}
  template <class U>
  requires(detail::kComplex<T>&& detail::Becomes<U, typename detail::PartOf<T>::type>) constexpr Value(U real)
      : number{static_cast<typename detail::PartOf<T>::type>(real), 0} {}
  T number;
};

// A floating-point number, where one of integers would be another function.
template <class T> struct Fraction {
  template <class U>
  requires(std::is_floating_point_v<U>) constexpr Fraction(U given) : number(static_cast<T>(given)) {}
  T number;
};

namespace detail {

// Complex numbers of other libraries are taken for what they look like: std::complex<float> is a Qvx32fc. <complex> is not
// needed.
template <class T> struct ElementOf { using type = T; };
template <class T>
requires requires(T z) {
  typename T::value_type;
  { z.real() } -> std::convertible_to<typename T::value_type>;
  { z.imag() } -> std::convertible_to<typename T::value_type>;
  requires sizeof(T) == 2 * sizeof(typename T::value_type);
}
struct ElementOf<T> {
  using Part = typename T::value_type;
  using type =
      std::conditional_t<std::is_same_v<Part, Qvx32f>, Qvx32fc, std::conditional_t<std::is_same_v<Part, Qvx64f>, Qvx64fc, T>>;
};
template <class T>
using Element = std::conditional_t<std::is_const_v<T>, const typename ElementOf<std::remove_const_t<T>>::type,
                                   typename ElementOf<std::remove_const_t<T>>::type>;

template <class T>
concept Contiguous = requires(T& range) {
  {*std::data(range)};
  { std::size(range) } -> std::convertible_to<size_t>;
};

// An argument as the overloads know it: a range as a span, a complex number as its C type, all else as it is.
template <class T> constexpr decltype(auto) view(T& argument) {
  if constexpr (Contiguous<T>) {
    using Given = std::remove_reference_t<decltype(*std::data(argument))>;
    using Known = Element<Given>;
    if constexpr (std::is_same_v<Given, Known>) {
      return std::span<Known>(std::data(argument), std::size(argument));
    } else {
      return std::span<Known>(reinterpret_cast<Known*>(std::data(argument)), std::size(argument));
    }
  } else if constexpr (!std::is_same_v<T, Element<T>>) {
    return *reinterpret_cast<Element<T>*>(&argument);
  } else {
    return (argument);
  }
}

// The pointers that C takes, where they are not data().
template <class T> T* optional(std::span<T> vector) { return vector.empty() ? nullptr : vector.data(); }
inline const Qvx16f* pointer(In<Half> vector) { return reinterpret_cast<const Qvx16f*>(vector.data()); }
inline Qvx16f* pointer(Out<Half> vector) { return reinterpret_cast<Qvx16f*>(vector.data()); }
inline const Qvx8u* pointer(In<Int24> vector) { return reinterpret_cast<const Qvx8u*>(vector.data()); }
inline Qvx8u* pointer(Out<Int24> vector) { return reinterpret_cast<Qvx8u*>(vector.data()); }
inline const Qvx8u* pointer(In<UInt24> vector) { return reinterpret_cast<const Qvx8u*>(vector.data()); }
inline Qvx8u* pointer(Out<UInt24> vector) { return reinterpret_cast<Qvx8u*>(vector.data()); }

// The length that C takes, and whether it can.
constexpr int length(size_t size) { return static_cast<int>(size); }
constexpr Qvx32u unsignedLength(size_t size) { return static_cast<Qvx32u>(size); }
constexpr bool countable(size_t size) { return size <= INT_MAX; }
constexpr bool countableUnsigned(size_t size) { return size <= UINT_MAX; }
// At least so many elements; the expressions are those of the table of extents. What they make of arguments that the function
// refuses anyhow does not matter.
constexpr bool atLeast(size_t size, int64_t elements) { return elements <= 0 || size >= static_cast<size_t>(elements); }
constexpr int64_t quotient(int64_t a, int64_t b) { return b == 0 ? 0 : a / b; }
// Of PackBits: a length below 0 counts as 0, one above 32 as 32.
inline int64_t totalBits(std::span<const int> lengths) {
  int64_t bits = 0;
  for (const int length : lengths) bits += length < 0 ? 0 : length > 32 ? 32 : length;
  return bits;
}
constexpr int64_t largest(int64_t a, int64_t b) { return a < b ? b : a; }

template <class...> inline constexpr bool kNever = false;

}  // namespace detail
}  // namespace qvx

#endif
