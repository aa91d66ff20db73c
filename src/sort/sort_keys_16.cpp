// 16-bit keys, and 8-bit ones, which are counted, or widened where they are few.
#include "sort/quicksort.h"
#include "sort/sort_keys.h"

using namespace qvx;

namespace {

constexpr int kValues = 256;

// How often each byte occurs: eight tables in turn, since equal neighbours would wait for each other's count in memory, which
// four do not hide: vectors in order took 1.8 times as long as random ones. No two counts of a byte lie a multiple of 4 KiB
// apart: the processor takes one for the other until it knows all of both addresses.
struct ByteCounts {
  static constexpr size_t kTables = 8;
  uint32_t of[kTables][kValues + 16] = {};

  [[gnu::always_inline]] void countFour(size_t table, uint32_t four) {
    ++of[table][four & 0xFF];
    ++of[table + 1][four >> 8 & 0xFF];
    ++of[table + 2][four >> 16 & 0xFF];
    ++of[table + 3][four >> 24];
  }
  // Into the first table.
  void addUp() {
    constexpr size_t N = kVectorBytes / sizeof(uint32_t);
    const Lanes<uint32_t, N> d;
    for (size_t v = 0; v < kValues; v += N) {
      auto sum = load(d, of[0] + v);
      for (size_t t = 1; t < kTables; ++t) sum = sum + load(d, of[t] + v);
      store(sum, d, of[0] + v);
    }
  }
};

[[gnu::noinline]] void sortBytes(uint8_t* x, size_t n, KeyMap<int8_t> map) {
  ByteCounts counts;
  size_t i = 0;
  for (; i + 8 <= n; i += 8) {
    uint32_t fours[2];
    std::memcpy(fours, x + i, sizeof fours);
    counts.countFour(0, fours[0]);
    counts.countFour(4, fours[1]);
  }
  for (; i < n; ++i) ++counts.of[0][x[i]];
  counts.addUp();
  uint8_t* at = x;
  for (int k = INT8_MIN; k <= INT8_MAX; ++k) {
    const auto value = static_cast<uint8_t>(map.original(static_cast<int8_t>(k)));
    at = putRun(at, x + n, value, counts.of[0][value]);
  }
}

// Of one row.
void sortRowOfBytes(int8_t* x, size_t n, KeyMap<int8_t> map) {
  constexpr size_t N = kRowLanes<int16_t>;
  const Lanes<int8_t, N> bytes;
  Vec<Lanes<int16_t, N>> v[] = {
      hn::PromoteTo(Lanes<int16_t, N>(), map.keys(loadFirstOr(bytes, x, n, map.original(std::numeric_limits<int8_t>::max()))))};
  detail::sortRows<detail::ByMinima>(v);
  storeFirst(map.originals(hn::DemoteTo(bytes, v[0])), bytes, x, n);
}

void sortFewBytes(int8_t* x, size_t n, KeyMap<int8_t> map) {
  if (n == 0 || areInOrder<Order::kAscending>(x, n, map)) return;
  if (n <= kRowLanes<int16_t>) return sortRowOfBytes(x, n, map);
  constexpr size_t N = kVectorBytes / sizeof(int16_t);
  const Lanes<int16_t, N> d;
  const Lanes<int8_t, N> bytes;
  int16_t wide[kNetworkKeys<int16_t>];
  const size_t whole = n / N * N;
  for (size_t i = 0; i < whole; i += N) store(hn::PromoteTo(d, map.keys(load(bytes, x + i))), d, wide + i);
  if (whole < n) store(hn::PromoteTo(d, map.keys(loadFirst(bytes, x + whole, n - whole))), d, wide + whole);
  sortByNetwork(wide, n, {}, {});
  for (size_t i = 0; i < whole; i += N) store(map.originals(hn::DemoteTo(bytes, load(d, wide + i))), bytes, x + i);
  if (whole < n) storeFirst(map.originals(hn::DemoteTo(bytes, load(d, wide + whole))), bytes, x + whole, n - whole);
}

}  // namespace

void qvx::sortKeys(int8_t* x, size_t n, KeyMap<int8_t> map) {
  if (n <= kNetworkKeys<int16_t>) return sortFewBytes(x, n, map);
  sortBytes(reinterpret_cast<uint8_t*>(x), n, map);
}

void qvx::sortKeys(int16_t* x, size_t n, KeyMap<int16_t> map) { quicksort(x, n, map); }
void qvx::sortKeys(int16_t* x, int16_t* room, size_t n, KeyMap<int16_t> map) {
  if (!isSortedByReversal(x, n, map)) sortThrough(x, room, n, map, map);
}
