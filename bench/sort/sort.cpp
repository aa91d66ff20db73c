// Sorts of vectors in several orders. Each call sorts a fresh copy: copying is part of every contender's time, and successive
// calls get different elements, since the processor would learn to predict the comparisons.
#include <algorithm>
#include <numeric>
#include <span>
#include <string>

#include "frame/families.h"
#include "peers/plain_sort.h"
#include "peers/vqsort.h"

namespace bench {

namespace {

enum class Pattern { kRandom, kRepeated, kSorted, kReversed, kFew, kSaw, kPipe, kHalves, kAlternating, kSubnormal, kNan };
using Named = std::pair<Pattern, const char*>;
constexpr Named kPatterns[] = {{Pattern::kRandom, ""},         {Pattern::kRepeated, ", each 15 times"},
                               {Pattern::kSorted, ", sorted"}, {Pattern::kReversed, ", reversed"},
                               {Pattern::kFew, ", 4 values"},  {Pattern::kSaw, ", saw"}};
// Of floats alone. None takes more than 1.5 times as long as random ones, but for 100 subnormal or half NaN doubles of
// AVX-512: 1.55.
constexpr Named kMorePatterns[] = {{Pattern::kPipe, ", up and down"},
                                   {Pattern::kHalves, ", sorted halves in turn"},
                                   {Pattern::kAlternating, ", one value in between"},
                                   {Pattern::kSubnormal, ", subnormal"},
                                   {Pattern::kNan, ", half NaN"}};

// Room for many short vectors.
template <class T> size_t vectorsOf(const Vectors& v) {
  const size_t n = static_cast<size_t>(v.n);
  return std::max<size_t>(1, std::min<size_t>(1 << 18, kSlabBytes / sizeof(T)) / n);
}

// Fills without repetition: with fill(), 10^6 elements would have each value 15 times or more.
template <class T> void fillAnew(T* x, size_t n) {
  constexpr size_t kPart = 8192;
  for (size_t i = 0; i < n; i += kPart) fill<T>(x + i, static_cast<int>(std::min(kPart, n - i)), i + 1);
}

template <class T> void fillIn(Pattern pattern, const Vectors& v) {
  const auto n = static_cast<size_t>(v.n);
  auto* x = reinterpret_cast<T*>(v.slabs.source(0));
  const size_t count = vectorsOf<T>(v);
  fillAnew(x, n * count);
  for (size_t k = 0; k < count; ++k, x += n) {
    if (pattern == Pattern::kSorted || pattern == Pattern::kReversed || pattern == Pattern::kPipe) std::sort(x, x + n);
    if (pattern == Pattern::kReversed) std::reverse(x, x + n);
    if (pattern == Pattern::kPipe) std::reverse(x + n / 2, x + n);
    if (pattern == Pattern::kHalves) {
      std::vector<T> sorted(x, x + n);
      std::sort(sorted.begin(), sorted.end());
      for (size_t i = 0; i < n; ++i) x[i] = sorted[i % 2 * (n / 2) + i / 2];
    }
    for (size_t i = 0; i < n; ++i) {
      if (pattern == Pattern::kRepeated) x[i] = x[i % (n / 15 + 1)];
      if (pattern == Pattern::kFew) x[i] = static_cast<T>(static_cast<uint64_t>(x[i] < T(0) ? -x[i] : x[i]) % 4);
      if (pattern == Pattern::kSaw) x[i] = static_cast<T>(i % 100);
      if (pattern == Pattern::kAlternating && i % 2 == 0) x[i] = T(1);
      if (pattern == Pattern::kSubnormal)
        x[i] = static_cast<T>(static_cast<int>(x[i] * 4096)) * std::numeric_limits<T>::denorm_min();
      if (pattern == Pattern::kNan && i % 2 == 0) x[i] = std::numeric_limits<T>::quiet_NaN();
    }
  }
}

// sort(x, n, room): room for as many indices.
template <class T> Contender sorter(std::string name, std::function<void(T*, int, Qvx32s*)> sort, int threads = 1) {
  const auto call = [sort](const Vectors& v, size_t which) {
    const auto n = static_cast<size_t>(v.n);
    auto* x = reinterpret_cast<T*>(v.slabs.destination());
    std::memcpy(x, reinterpret_cast<const T*>(v.slabs.source(0)) + which * n, n * sizeof(T));
    sort(x, v.n, reinterpret_cast<Qvx32s*>(v.slabs.source(2)));
  };
  const auto timed = [call](benchmark::State& state, const Vectors& v) {
    const size_t count = vectorsOf<T>(v);
    size_t which = 0;
    for (auto _ : state) {
      call(v, which);
      which = which + 1 == count ? 0 : which + 1;
      benchmark::ClobberMemory();
    }
  };
  return {std::move(name), [call](const Vectors& v) { call(v, 0); }, timed, Agreement::kBitwise, threads};
}

template <class T> Case sortCase(std::string name, Pattern pattern) {
  Case c;
  c.name = std::move(name);
  c.sizes = {10, 100, 1000, 10000, 100000, 1000000};
  if (sizeof(T) <= 4 && pattern == Pattern::kRandom) c.sizes.push_back(10000000);
  c.fillSources = [pattern](const Vectors& v) { fillIn<T>(pattern, v); };
  c.fillDestination = [](const Vectors&) {};
  c.saveDestination = [](const Vectors& v) {
    std::memcpy(v.slabs.saved(), v.slabs.destination(), static_cast<size_t>(v.n) * sizeof(T));
  };
  c.agrees = [](const Vectors& v, Agreement agreement) {
    return agree<T>(v.slabs.saved(), v.slabs.destination(), static_cast<size_t>(v.n) * sizeof(T), agreement, v.n);
  };
  return c;
}

template <class T>
void valueRows(Suite& s, const std::string& name, QvxStatus (*ours)(T*, int), std::span<const Named> patterns = kPatterns) {
  for (const auto& [pattern, what] : patterns) {
    Case c = sortCase<T>(name + what, pattern);
    c.contenders.push_back(sorter<T>("ours", [ours](T* x, int n, Qvx32s*) { ours(x, n); }));
    // std::sort has no order of NaN, VQSort moves them to the end.
    if (pattern != Pattern::kNan) {
      c.contenders.push_back(sorter<T>("std::sort", [](T* x, int n, Qvx32s*) { std::sort(x, x + n); }));
      if constexpr (sizeof(T) > 1)
        c.contenders.push_back(sorter<T>("VQSort", [](T* x, int n, Qvx32s*) { vqsort::ascend(x, n); }));
    }
    c.contenders.push_back(sorter<T>("radix", [](T* x, int n, Qvx32s*) { plain::radixSort(x, static_cast<size_t>(n)); }));
    s.add(std::move(c));
  }
}

// Sorts indices by their elements, then moves the elements.
template <class T> void sortIndices(T* x, int n, Qvx32s* indices) {
  static std::vector<std::pair<T, Qvx32s>> pairs;
  pairs.resize(static_cast<size_t>(n));
  for (int i = 0; i < n; ++i) pairs[static_cast<size_t>(i)] = {x[i], i};
  std::sort(pairs.begin(), pairs.end());
  for (int i = 0; i < n; ++i) std::tie(x[i], indices[i]) = pairs[static_cast<size_t>(i)];
}

// Different elements: a permutation, as far as the type goes.
template <class T> Case indexCase(const std::string& name) {
  Case c = sortCase<T>(name + ", all different", Pattern::kRandom);
  c.sizes = {10, 100, 1000, 10000, 100000, 1000000};
  c.fillSources = [](const Vectors& v) {
    fillIn<T>(Pattern::kRandom, v);
    const auto n = static_cast<size_t>(v.n);
    auto* x = reinterpret_cast<T*>(v.slabs.source(0));
    std::vector<size_t> order(n);
    for (size_t k = 0; k < vectorsOf<T>(v); ++k, x += n) {
      std::iota(order.begin(), order.end(), size_t{0});
      std::sort(order.begin(), order.end(), [x](size_t a, size_t b) { return x[a] != x[b] ? x[a] < x[b] : a < b; });
      for (size_t i = 0; i < n; ++i) x[order[i]] = static_cast<T>(i);
    }
  };
  return c;
}
template <class T> void indexRow(Suite& s, const std::string& name, QvxStatus (*ours)(T*, Qvx32s*, int)) {
  Case c = indexCase<T>(name);
  c.contenders.push_back(sorter<T>("ours", [ours](T* x, int n, Qvx32s* indices) { ours(x, indices, n); }));
  c.contenders.push_back(sorter<T>("std::sort", sortIndices<T>));
  s.add(std::move(c));
}

// With working memory, by one thread.
template <class T> void roomRow(Suite& s, const std::string& name, QvxStatus (*ours)(T*, T*, int)) {
  Case c = sortCase<T>(name + ", one thread", Pattern::kRandom);
  c.sizes = {100, 1000, 10000, 100000, 1000000};
  c.contenders.push_back(sorter<T>("ours", [ours](T* x, int n, Qvx32s* room) { ours(x, reinterpret_cast<T*>(room), n); }));
  c.contenders.push_back(sorter<T>("radix", [](T* x, int n, Qvx32s*) { plain::radixSort(x, static_cast<size_t>(n)); }));
  s.add(std::move(c));
}

// sort(x, n, room)
template <class T> void teamRow(Suite& s, Case c, const std::function<void(T*, int, Qvx32s*)>& sort) {
  c.table = Table::kTeam;
  c.inRealTime = true;
  c.sizes = {8192, 16384, 32768, 100000, 1000000};
  c.contenders.push_back(sorter<T>("ours", sort, 2));
  c.contenders.push_back(sorter<T>("one thread", sort));
  c.contenders.back().isPeer = false;
  s.add(std::move(c));
}
template <class T> void roomTeamRow(Suite& s, const std::string& name, QvxStatus (*ours)(T*, T*, int)) {
  teamRow<T>(s, sortCase<T>(name, Pattern::kRandom),
             [ours](T* x, int n, Qvx32s* room) { ours(x, reinterpret_cast<T*>(room), n); });
}
template <class T> void valueTeamRow(Suite& s, const std::string& name, QvxStatus (*ours)(T*, int)) {
  teamRow<T>(s, sortCase<T>(name, Pattern::kRandom), [ours](T* x, int n, Qvx32s*) { ours(x, n); });
}
template <class T> void indexTeamRow(Suite& s, const std::string& name, QvxStatus (*ours)(T*, Qvx32s*, int)) {
  teamRow<T>(s, indexCase<T>(name), [ours](T* x, int n, Qvx32s* indices) { ours(x, indices, n); });
}

}  // namespace

void sort(Suite& s) {
  valueRows<Qvx8u>(s, "SortAscend_8u_I", qvxsSortAscend_8u_I);
  valueRows<Qvx16u>(s, "SortAscend_16u_I", qvxsSortAscend_16u_I);
  valueRows<Qvx16s>(s, "SortAscend_16s_I", qvxsSortAscend_16s_I);
  valueRows<Qvx32s>(s, "SortAscend_32s_I", qvxsSortAscend_32s_I);
  valueRows<Qvx32f>(s, "SortAscend_32f_I", qvxsSortAscend_32f_I);
  valueRows<Qvx64f>(s, "SortAscend_64f_I", qvxsSortAscend_64f_I);
  valueRows<Qvx32f>(s, "SortAscend_32f_I", qvxsSortAscend_32f_I, kMorePatterns);
  valueRows<Qvx64f>(s, "SortAscend_64f_I", qvxsSortAscend_64f_I, kMorePatterns);
  indexRow<Qvx32s>(s, "SortIndexAscend_32s_I", qvxsSortIndexAscend_32s_I);
  indexRow<Qvx32f>(s, "SortIndexAscend_32f_I", qvxsSortIndexAscend_32f_I);
  indexRow<Qvx64f>(s, "SortIndexAscend_64f_I", qvxsSortIndexAscend_64f_I);
  roomRow<Qvx16u>(s, "SortRadixAscend_16u_I", qvxsSortRadixAscend_16u_I);
  roomRow<Qvx16s>(s, "SortRadixAscend_16s_I", qvxsSortRadixAscend_16s_I);
  roomRow<Qvx32s>(s, "SortRadixAscend_32s_I", qvxsSortRadixAscend_32s_I);
  roomRow<Qvx32u>(s, "SortRadixAscend_32u_I", qvxsSortRadixAscend_32u_I);
  roomRow<Qvx32f>(s, "SortRadixAscend_32f_I", qvxsSortRadixAscend_32f_I);
  roomRow<Qvx64f>(s, "SortRadixAscend_64f_I", qvxsSortRadixAscend_64f_I);
  roomTeamRow<Qvx32f>(s, "SortRadixAscend_32f_I", qvxsSortRadixAscend_32f_I);
  roomTeamRow<Qvx32s>(s, "SortRadixAscend_32s_I", qvxsSortRadixAscend_32s_I);
  roomTeamRow<Qvx32u>(s, "SortRadixAscend_32u_I", qvxsSortRadixAscend_32u_I);
  roomTeamRow<Qvx64f>(s, "SortRadixAscend_64f_I", qvxsSortRadixAscend_64f_I);
  valueTeamRow<Qvx32f>(s, "SortAscend_32f_I", qvxsSortAscend_32f_I);
  valueTeamRow<Qvx64f>(s, "SortAscend_64f_I", qvxsSortAscend_64f_I);
  indexTeamRow<Qvx32f>(s, "SortIndexAscend_32f_I", qvxsSortIndexAscend_32f_I);
  indexTeamRow<Qvx64f>(s, "SortIndexAscend_64f_I", qvxsSortIndexAscend_64f_I);
  teamRow<Qvx32f>(s, sortCase<Qvx32f>("SortRadixIndexAscend_32f", Pattern::kRandom),
                  [](Qvx32f* x, int n, Qvx32s* room) { qvxsSortRadixIndexAscend_32f(x, sizeof(Qvx32f), room, room + n, n); });
}

}  // namespace bench
