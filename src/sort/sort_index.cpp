// Sorts of values together with their indices.
//
// Different elements have one order, which is found the fast way. Equal ones are only seen when that is done: then the elements
// go back to where they were, and the steps that tell their order are taken one by one.
#include "frame/check.h"
#include "frame/rounding.h"
#include "sort/documented_order.h"
#include "sort/pairs.h"
#include "sort/quicksort.h"
#include "sort/sort_keys.h"

using namespace qvx;

namespace {

// Moves elements back to their known places. A place that is done is marked by its complement.
template <class T> [[gnu::noinline]] void restore(T* x, int32_t* places, size_t n) {
  for (size_t start = 0; start < n; ++start) {
    T carried = x[start];
    for (size_t at = start; places[at] >= 0;) {
      const auto to = static_cast<size_t>(places[at]);
      places[at] = ~places[at];
      std::swap(carried, x[to]);
      at = to;
    }
  }
}

// In any mode of the caller, subnormal numbers are in the order of their keys, as they are among different elements. For the rest
// of the scope they are no zeros to the processor, if T has any.
template <class T> class SubnormalScope {
 public:
  SubnormalScope() {
    if constexpr (std::is_floating_point_v<T>) {
      saved_ = controlWord();
      if ((saved_ & kTakesForZeros) != 0) setControlWord(saved_ & ~kTakesForZeros);
    }
  }
  ~SubnormalScope() {
    if ((saved_ & kTakesForZeros) != 0) setControlWord(saved_);
  }
  SubnormalScope(const SubnormalScope&) = delete;
  SubnormalScope& operator=(const SubnormalScope&) = delete;

 private:
  static constexpr uint32_t kTakesForZeros = 0x0040;
  uint32_t saved_ = 0;
};

template <Order kOrder, class T> void sortAsTold(T* x, int32_t* places, size_t n) {
  const SubnormalScope<T> scope;
  fillNumbers(places, n);
  DocumentedOrder<kOrder, T>(x, places).sort(static_cast<ptrdiff_t>(n));
}

// ---- 8 and 16 bits: as many different elements as there can be have places that fit beside them into 32 bits

template <Order kOrder, class T> bool sortDifferent(T* x, int32_t* places, size_t n) requires(sizeof(T) <= 2) {
  constexpr int kBits = 8 * sizeof(T);
  if (n > size_t{1} << kBits) return false;
  const auto map = keyMap<T>(kOrder);
  auto* const both = reinterpret_cast<uint32_t*>(places);
  for (size_t i = 0; i < n; ++i) both[i] = static_cast<uint32_t>(map.key(asKeys(x)[i])) << 16 | static_cast<uint32_t>(i);
  sortKeys(places, n, {});
  bool isDifferent = true;
  for (size_t i = 1; i < n; ++i) isDifferent &= (both[i] ^ both[i - 1]) >> 16 != 0;
  if (!isDifferent) return false;
  for (size_t i = 0; i < n; ++i) {
    asKeys(x)[i] = map.original(static_cast<Key<T>>(places[i] >> 16));
    both[i] &= 0xFFFF;
  }
  return true;
}

// ---- 32 and 64 bits: keys in the place of the elements

// Where a sample has equal keys, there is no need to sort the rest.
template <class K> [[gnu::noinline]] bool hasEqualSample(const K* x, size_t n, KeyMap<K> map) {
  if (n < 2 * kNetworkKeys<K>) return false;
  K sample[kMostSample<K>];
  return equalNeighbours(sample, takeSample(x, n, map, sample)) > 0;
}

template <class T> bool hasNan([[maybe_unused]] const T* x, [[maybe_unused]] size_t n) {
  if constexpr (std::is_floating_point_v<T>) {
    constexpr size_t N = kVectorBytes / sizeof(T);
    const Lanes<T, N> d;
    auto isNan = hn::IsNaN(hn::Zero(d));
    size_t i = 0;
    for (; i + N <= n; i += N) isNan = hn::Or(isNan, hn::IsNaN(load(d, x + i)));
    if (i < n) isNan = hn::Or(isNan, hn::IsNaN(loadFirst(d, x + i, n - i)));
    return !hn::AllFalse(d, isNan);
  } else {
    return false;
  }
}

template <class T> bool areDifferent(const Key<T>* keys, size_t n) {
  using K = Key<T>;
  constexpr size_t N = kVectorBytes / sizeof(K);
  const Lanes<K, N> d;
  auto different = hn::Set(d, -1);
  size_t i = 1;
  // The zeros of floats have the keys -1 and 0, in either direction.
  constexpr bool kZeros = std::is_floating_point_v<T>;
  for (; i + N <= n; i += N) {
    const auto before = load(d, keys + i - 1), here = load(d, keys + i);
    different = different & hn::VecFromMask(d, before != here);
    if (kZeros) different = different & hn::VecFromMask(d, hn::Or(before - here != hn::Set(d, -1), here != hn::Zero(d)));
  }
  bool all = hn::AllTrue(d, hn::MaskFromVec(different));
  for (; i < n; ++i) all &= keys[i] != keys[i - 1] && !(kZeros && keys[i] == 0 && keys[i - 1] == -1);
  return all;
}

template <class K, class Each> void change(K* x, size_t n, Each each) {
  constexpr size_t N = kVectorBytes / sizeof(K);
  const Lanes<K, N> d;
  size_t i = 0;
  for (; i + N <= n; i += N) store(each(load(d, x + i)), d, x + i);
  if (i < n) storeFirst(each(loadFirst(d, x + i, n - i)), d, x + i, n - i);
}

template <Order kOrder, class T> bool sortDifferent(T* x, int32_t* places, size_t n) requires(sizeof(T) >= 4) {
  const auto map = keyMap<T>(kOrder);
  Key<T>* const keys = asKeys(x);
  if (hasNan(x, n) || hasEqualSample(keys, n, map)) return false;
  if (!map.isIdentity()) change(keys, n, [=](auto v) { return map.keys(v); });
  fillNumbers(places, n);
  const bool isDone = sortDifferentPairs(keys, places, n) && areDifferent<T>(keys, n);
  if (!map.isIdentity()) change(keys, n, [=](auto v) { return map.originals(v); });
  if (!isDone) restore(keys, places, n);
  return isDone;
}

template <Order kOrder, class T> QvxStatus sortIndex(T* srcDst, Qvx32s* dstIndx, int len) {
  const QvxStatus status = check(len, srcDst, dstIndx);
  if (status != qvxStatOk) return status;
  const size_t n = elements(len);
  if (!sortDifferent<kOrder>(srcDst, dstIndx, n)) sortAsTold<kOrder>(srcDst, dstIndx, n);
  return qvxStatOk;
}

}  // namespace

// clang-format off
QvxStatus qvxsSortIndexAscend_8u_I(Qvx8u* x, Qvx32s* indx, int len) { return sortIndex<kUp>(x, indx, len); }
QvxStatus qvxsSortIndexAscend_16s_I(Qvx16s* x, Qvx32s* indx, int len) { return sortIndex<kUp>(x, indx, len); }
QvxStatus qvxsSortIndexAscend_16u_I(Qvx16u* x, Qvx32s* indx, int len) { return sortIndex<kUp>(x, indx, len); }
QvxStatus qvxsSortIndexAscend_32s_I(Qvx32s* x, Qvx32s* indx, int len) { return sortIndex<kUp>(x, indx, len); }
QvxStatus qvxsSortIndexAscend_32f_I(Qvx32f* x, Qvx32s* indx, int len) { return sortIndex<kUp>(x, indx, len); }
QvxStatus qvxsSortIndexAscend_64f_I(Qvx64f* x, Qvx32s* indx, int len) { return sortIndex<kUp>(x, indx, len); }
QvxStatus qvxsSortIndexDescend_8u_I(Qvx8u* x, Qvx32s* indx, int len) { return sortIndex<kDown>(x, indx, len); }
QvxStatus qvxsSortIndexDescend_16s_I(Qvx16s* x, Qvx32s* indx, int len) { return sortIndex<kDown>(x, indx, len); }
QvxStatus qvxsSortIndexDescend_16u_I(Qvx16u* x, Qvx32s* indx, int len) { return sortIndex<kDown>(x, indx, len); }
QvxStatus qvxsSortIndexDescend_32s_I(Qvx32s* x, Qvx32s* indx, int len) { return sortIndex<kDown>(x, indx, len); }
QvxStatus qvxsSortIndexDescend_32f_I(Qvx32f* x, Qvx32s* indx, int len) { return sortIndex<kDown>(x, indx, len); }
QvxStatus qvxsSortIndexDescend_64f_I(Qvx64f* x, Qvx32s* indx, int len) { return sortIndex<kDown>(x, indx, len); }
// clang-format on
