// Transforms of integers: calls of any form on vectors of wide integers, and their definition.
#pragma once

#include "fft/transforms.h"
#include "reference/packed.h"

namespace tests::integers {

using Numbers = std::vector<int64_t>;  // complex elements as two of them
using Reals = std::vector<long double>;

// ---- One face for all: a call is made out of place and in place, with a buffer and without, at the ends of blocks

enum Layout { kComplex, kPerm, kPack, kCcs };

inline reference::Layout ofReals(Layout layout) { return static_cast<reference::Layout>(layout - kPerm); }
inline size_t sequenceLength(Layout layout, size_t n) { return layout == kComplex ? 2 * n : n; }
inline size_t spectrumLength(Layout layout, size_t n) {
  return layout == kComplex ? 2 * n : reference::sizeOf(ofReals(layout), n);
}

template <class T> class Vectors {  // parts apart, each at the end of its own block
 public:
  Vectors(const Numbers& numbers, size_t parts)
      : blocks_{tests::Block(bytes(numbers, parts)), tests::Block(parts == 2 ? bytes(numbers, 2) : 1)}, parts_(parts) {
    for (size_t i = 0; i < parts; ++i) p[i] = reinterpret_cast<T*>(blocks_[i].atEnd(bytes(numbers, parts)));
    for (size_t i = 0; i < numbers.size(); ++i) p[i % parts][i / parts] = static_cast<T>(numbers[i]);
  }
  Numbers numbers(size_t count) const {
    Numbers all(count);
    for (size_t i = 0; i < count; ++i) all[i] = p[i % parts_][i / parts_];
    return all;
  }
  bool isIntact() const { return blocks_[0].isIntact() && (parts_ == 1 || blocks_[1].isIntact()); }
  T* p[2] = {};

 private:
  static size_t bytes(const Numbers& numbers, size_t parts) { return numbers.size() / parts * sizeof(T); }
  tests::Block blocks_[2];
  size_t parts_;
};

template <class In, class Out, class Spec> struct Joined {
  static constexpr size_t kParts = 1;
  QvxStatus (*out)(const In*, Out*, const Spec*, int, Qvx8u*);
  QvxStatus (*in)(Out*, const Spec*, int, Qvx8u*);
  using From = tests::Part<In>;
  using To = tests::Part<Out>;
  QvxStatus apart(From* const* s, To* const* d, const Spec* spec, int sf, Qvx8u* w) const {
    return out(reinterpret_cast<const In*>(s[0]), reinterpret_cast<Out*>(d[0]), spec, sf, w);
  }
  QvxStatus inPlace(To* const* d, const Spec* spec, int sf, Qvx8u* w) const {
    return in(reinterpret_cast<Out*>(d[0]), spec, sf, w);
  }
};
template <class T, class Spec> struct Split {
  static constexpr size_t kParts = 2;
  QvxStatus (*out)(const T*, const T*, T*, T*, const Spec*, int, Qvx8u*);
  QvxStatus (*in)(T*, T*, const Spec*, int, Qvx8u*);
  using From = T;
  using To = T;
  QvxStatus apart(T* const* s, T* const* d, const Spec* spec, int sf, Qvx8u* w) const {
    return out(s[0], s[1], d[0], d[1], spec, sf, w);
  }
  QvxStatus inPlace(T* const* d, const Spec* spec, int sf, Qvx8u* w) const { return in(d[0], d[1], spec, sf, w); }
};

template <class Call, class Spec>
Numbers called(const Call& call, const Numbers& src, size_t length, const Spec* spec, int scaleFactor, int bufferSize) {
  using To = typename Call::To;
  const Vectors<typename Call::From> from(src, Call::kParts);
  const Vectors<To> to(Numbers(length, 99), Call::kParts);
  EXPECT_EQ(call.apart(from.p, to.p, spec, scaleFactor, nullptr), qvxStatOk);
  const Numbers found = to.numbers(length);
  EXPECT_EQ(from.numbers(src.size()), src) << "the source was written";
  tests::Block work(static_cast<size_t>(bufferSize) + 1);
  Qvx8u* buffer = bufferSize == 0 ? nullptr : work.atEnd(static_cast<size_t>(bufferSize));
  EXPECT_EQ(call.apart(from.p, to.p, spec, scaleFactor, buffer), qvxStatOk);
  EXPECT_EQ(to.numbers(length), found) << "with a buffer";
  EXPECT_TRUE(from.isIntact() && to.isIntact() && (buffer == nullptr || work.isIntact()));
  if (call.in != nullptr) {
    Numbers both = src;
    both.resize(std::max(src.size(), length));
    const Vectors<To> place(both, Call::kParts);
    EXPECT_EQ(call.inPlace(place.p, spec, scaleFactor, buffer), qvxStatOk);
    EXPECT_EQ(place.numbers(length), found) << "in place";
    EXPECT_TRUE(place.isIntact());
  }
  return found;
}

// ---- The definition

// The spectrum in a layout, and the spectrum that a layout stands for.
inline Reals packed(Layout layout, const std::vector<Exact>& spectrum) {
  if (layout != kComplex) return reference::packed<long double>(ofReals(layout), spectrum);
  Reals v;
  for (const Exact& z : spectrum) v.push_back(z.real()), v.push_back(z.imag());
  return v;
}
inline std::vector<Exact> unpacked(Layout layout, const Numbers& v, size_t n) {
  const auto at = [&](size_t i) { return static_cast<long double>(v[i]); };
  std::vector<Exact> spectrum(n);
  for (size_t k = 0; k < n; ++k) {
    if (layout == kComplex) spectrum[k] = {at(2 * k), at(2 * k + 1)};
    else if (2 * k > n) spectrum[k] = std::conj(spectrum[n - k]);
    else if (const reference::Place p = reference::placeOf(ofReals(layout), n, k); k == 0 || 2 * k == n) spectrum[k] = at(p.re);
    else spectrum[k] = {at(p.re), at(p.im)};
  }
  return spectrum;
}

struct Way {
  Layout layout;
  bool inverse;
  long double eps;  // of the floats it goes through
};

inline Reals defined(const Way& way, const Numbers& src, size_t n) {
  std::vector<Exact> x;
  if (way.inverse || way.layout == kComplex) x = unpacked(way.layout, src, n);
  else x.assign(src.begin(), src.end());
  const std::vector<Exact> result = tests::dft(x, way.inverse ? 1 : -1);
  if (!way.inverse || way.layout == kComplex) return packed(way.layout, result);
  Reals v;
  for (const Exact& z : result) v.push_back(z.real());
  return v;
}

// Either number that an error of this size before the rounding may lead to; no error: the one.
template <class T> void expectRounded(const Numbers& found, const Reals& exact, long double error) {
  ASSERT_EQ(found.size(), exact.size());
  const auto rounded = [](long double v) {
    return std::rint(std::clamp<long double>(v, std::numeric_limits<T>::min(), std::numeric_limits<T>::max()));
  };
  for (size_t i = 0; i < found.size(); ++i) {
    const auto v = static_cast<long double>(found[i]);
    ASSERT_TRUE(rounded(exact[i] - error) <= v && v <= rounded(exact[i] + error))
        << i << ": " << v << " for " << exact[i] << " +- " << error;
  }
}

// Noise at several levels, extremes that all add up, one impulse.
template <class T> Numbers sourceOf(int kind, size_t count, tests::Random& random) {
  constexpr int64_t kLeast = std::numeric_limits<T>::min();
  constexpr int64_t kMost = std::numeric_limits<T>::max();
  Numbers v(count);
  for (size_t i = 0; i < count; ++i) {
    const auto any = static_cast<T>(random());
    v[i] = kind == 0        ? any
           : kind == 1      ? any >> 7
           : kind == 2      ? kLeast
           : kind == 3      ? (i % 2 != 0 ? kMost : kLeast)
           : i == 3 % count ? kMost
                            : 0;
  }
  return v;
}

}  // namespace tests::integers
