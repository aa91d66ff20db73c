// 16-bit keys, and 8-bit ones, which are counted, or widened where they are few.
#include "sort/quicksort.h"
#include "sort/sort_keys.h"

using namespace qvx;

namespace {

constexpr int kValues = 256;

// Four tables in turn: equal neighbours would wait for each other's count in memory.
[[gnu::noinline]] void sortBytes(uint8_t* x, size_t n, KeyMap<int8_t> map) {
  uint32_t counts[4][kValues] = {};
  size_t i = 0;
  for (; i + 4 <= n; i += 4) {
    uint32_t four;
    std::memcpy(&four, x + i, sizeof four);
    ++counts[0][four & 0xFF];
    ++counts[1][four >> 8 & 0xFF];
    ++counts[2][four >> 16 & 0xFF];
    ++counts[3][four >> 24];
  }
  for (; i < n; ++i) ++counts[0][x[i]];
  uint8_t* at = x;
  for (int k = INT8_MIN; k <= INT8_MAX; ++k) {
    const auto value = static_cast<uint8_t>(map.original(static_cast<int8_t>(k)));
    at = putRun(at, x + n, value, size_t{counts[0][value]} + counts[1][value] + counts[2][value] + counts[3][value]);
  }
}

// Of one row.
void sortRowOfBytes(int8_t* x, size_t n, KeyMap<int8_t> map) {
  constexpr size_t N = kRowLanes<int16_t>;
  const Lanes<int8_t, N> bytes;
  Vec<Lanes<int16_t, N>> v[] = {
      hn::PromoteTo(Lanes<int16_t, N>(), map.keys(loadFirstOr(bytes, x, n, map.original(std::numeric_limits<int8_t>::max()))))};
  detail::sortRows<detail::ByKeys>(v);
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
