// Packed spectra unfolded: the half that they hold, and its conjugates backwards after it.
#include "frame/flip.h"
#include "transform/layout.h"

using namespace qvx;
using Layout = transform::SpectrumLayout;

namespace {

// Words of a half spectrum, and of the other half from its end: one pass over the source, two stores. kInPlace: the first half is
// there already.
template <class C, bool kInPlace> struct BothHalves {
  using Lane = Word<C>;
  Lane* begin;
  Lane* end;

  template <size_t N, class V> void put(V v, size_t at) const {
    const Lanes<Lane, N> d;
    if constexpr (!kInPlace) store(v, d, begin + at);
    store(flipped<kWords<C>>(conjugateWords<C>(v)), d, end - at - N);
  }
  template <size_t N, class V> void put(V v, size_t at, size_t n) const {
    const Lanes<Lane, N> d;
    if constexpr (!kInPlace) storeFirst(v, d, begin + at, n);
    storeFirst(flippedFirst<sizeof(C)>(conjugateWords<C>(v), n / kWords<C>), d, end - at - n, n);
  }
  template <size_t N> size_t misaligned() const {
    // In place, down to where a store ends at a boundary.
    const size_t down = reinterpret_cast<uintptr_t>(end) / sizeof(Lane) % N;
    const size_t lanes = kInPlace ? down : destination(begin).template misaligned<N>();
    return lanes % kWords<C> == 0 ? lanes : 0;
  }
};

template <class C, bool kInPlace> void unfoldPairs(const Part<C>* pairs, C* dst, size_t n) {
  const BothHalves<C, kInPlace> both{words(dst + 1), words(dst + n)};
  loop([](auto v) { return v; }, both, (n - 1) / 2 * kWords<C>, Source<Word<C>>{reinterpret_cast<const Word<C>*>(pairs)});
}

// src may be the beginning of dst. Only pairs that stand where they belong can be unfolded there: others are moved first.
template <Layout kLayout, class C> QvxStatus unfold(const Part<C>* src, C* dst, int len) {
  const QvxStatus status = check(len, src, dst);
  if (status != qvxStatOk) return status;
  using T = Part<C>;
  const size_t n = elements(len);
  const bool isEven = n % 2 == 0;
  constexpr bool kIsCcs = kLayout == Layout::kCcs;
  const C first = {src[0], kIsCcs ? src[1] : T{0}};
  C middle = {};
  if (isEven) middle = {src[placeOfMiddle(kLayout, n)], kIsCcs ? src[n + 1] : T{0}};
  const T* pairs = src + placeOfPair(kLayout, n, 1);
  if (n >= 3) {
    if (src != parts(dst)) {
      unfoldPairs<C, false>(pairs, dst, n);
    } else {
      if (pairs != parts(dst + 1)) std::memmove(parts(dst + 1), pairs, (n - 1) / 2 * sizeof(C));
      unfoldPairs<C, true>(parts(dst + 1), dst, n);
    }
  }
  dst[0] = first;
  if (isEven) dst[n / 2] = middle;
  return qvxStatOk;
}

}  // namespace

// clang-format off
QvxStatus qvxsConjPack_32fc(const Qvx32f* a, Qvx32fc* d, int len) { return unfold<Layout::kPack>(a, d, len); }
QvxStatus qvxsConjPack_32fc_I(Qvx32fc* d, int len) { return unfold<Layout::kPack>(parts(d), d, len); }
QvxStatus qvxsConjPack_64fc(const Qvx64f* a, Qvx64fc* d, int len) { return unfold<Layout::kPack>(a, d, len); }
QvxStatus qvxsConjPack_64fc_I(Qvx64fc* d, int len) { return unfold<Layout::kPack>(parts(d), d, len); }
QvxStatus qvxsConjPack_16sc(const Qvx16s* a, Qvx16sc* d, int len) { return unfold<Layout::kPack>(a, d, len); }
QvxStatus qvxsConjPack_16sc_I(Qvx16sc* d, int len) { return unfold<Layout::kPack>(parts(d), d, len); }

QvxStatus qvxsConjPerm_32fc(const Qvx32f* a, Qvx32fc* d, int len) { return unfold<Layout::kPerm>(a, d, len); }
QvxStatus qvxsConjPerm_32fc_I(Qvx32fc* d, int len) { return unfold<Layout::kPerm>(parts(d), d, len); }
QvxStatus qvxsConjPerm_64fc(const Qvx64f* a, Qvx64fc* d, int len) { return unfold<Layout::kPerm>(a, d, len); }
QvxStatus qvxsConjPerm_64fc_I(Qvx64fc* d, int len) { return unfold<Layout::kPerm>(parts(d), d, len); }
QvxStatus qvxsConjPerm_16sc(const Qvx16s* a, Qvx16sc* d, int len) { return unfold<Layout::kPerm>(a, d, len); }
QvxStatus qvxsConjPerm_16sc_I(Qvx16sc* d, int len) { return unfold<Layout::kPerm>(parts(d), d, len); }

QvxStatus qvxsConjCcs_32fc(const Qvx32f* a, Qvx32fc* d, int len) { return unfold<Layout::kCcs>(a, d, len); }
QvxStatus qvxsConjCcs_32fc_I(Qvx32fc* d, int len) { return unfold<Layout::kCcs>(parts(d), d, len); }
QvxStatus qvxsConjCcs_64fc(const Qvx64f* a, Qvx64fc* d, int len) { return unfold<Layout::kCcs>(a, d, len); }
QvxStatus qvxsConjCcs_64fc_I(Qvx64fc* d, int len) { return unfold<Layout::kCcs>(parts(d), d, len); }
QvxStatus qvxsConjCcs_16sc(const Qvx16s* a, Qvx16sc* d, int len) { return unfold<Layout::kCcs>(a, d, len); }
QvxStatus qvxsConjCcs_16sc_I(Qvx16sc* d, int len) { return unfold<Layout::kCcs>(parts(d), d, len); }
// clang-format on
