// Exponentials of integers: e^x * 2^-scaleFactor, half a unit rounded up, saturated.
//
// Between results of 0 and saturated results there are no more than 11 (22, 44) integers x. So each scale factor has a row of 16
// (32, 48) results, of which the first is 0 and the last saturated, and an element is looked up in it.
#include <array>

#include "frame/map.h"

using namespace qvx;

namespace {

// ---- e^x as the nearest double: mantissa * 2^exponent, in integers, so that no rounding mode matters.

struct Power {
  uint64_t mantissa;  // 53 bits
  int exponent;
};

constexpr int kLeastX = -745;  // below, e^x is less than any double
constexpr int kMostX = 709;    // above, more
constexpr int kPowers = kMostX - kLeastX + 1;

constexpr unsigned __int128 highProduct(unsigned __int128 a, unsigned __int128 b) {
  using Wide = unsigned __int128;
  const auto low = [](Wide v) { return static_cast<Wide>(static_cast<uint64_t>(v)); };
  const Wide middle1 = (a >> 64) * low(b) + (low(a) * low(b) >> 64);
  const Wide middle2 = low(a) * (b >> 64) + low(middle1);
  return (a >> 64) * (b >> 64) + (middle1 >> 64) + (middle2 >> 64);
}

constexpr auto powersOfE() {
  using Wide = unsigned __int128;
  constexpr Wide kTop = Wide{1} << 127;
  const auto wide = [](uint64_t high, uint64_t low) { return Wide{high} << 64 | low; };
  std::array<Power, kPowers> all = {};
  // From 1 up by e and down by 1 / e, in 128 bits of mantissa: 745 products lose 10 of them.
  const auto fill = [&](int step, int most, Wide factor, int factorExponent) {
    Wide mantissa = kTop;
    int exponent = -127;
    for (int x = 0; x != most + step; x += step) {
      const auto rounded = static_cast<uint64_t>((mantissa + (Wide{1} << 74)) >> 75);
      all[static_cast<size_t>(x - kLeastX)] = {rounded, exponent + 75};
      mantissa = highProduct(mantissa, factor);
      exponent += factorExponent + 128;
      if (mantissa < kTop) mantissa <<= 1, --exponent;
    }
  };
  fill(1, kMostX, wide(0xADF85458A2BB4A9A, 0xAFDC5620273D3CF1), 2 - 128);     // e / 4
  fill(-1, kLeastX, wide(0xBC5AB1B16779BE35, 0x75BD8F0520A9F21B), -1 - 128);  // 2 / e
  return all;
}

constexpr std::array<Power, kPowers> kPowersOfE = powersOfE();

// ---- results for one scale factor

// Where e^x is beyond all doubles, so is the result, at any scale factor.
template <class T> constexpr T scaledPower(int x, int64_t scaleFactor) {
  constexpr T kMost = std::numeric_limits<T>::max();
  if (x < kLeastX) return 0;
  if (x > kMostX) return kMost;
  const Power power = kPowersOfE[static_cast<size_t>(x - kLeastX)];
  const int64_t places = scaleFactor - power.exponent;
  if (places > 54) return 0;
  if (places < -10) return kMost;
  const uint64_t v = places > 0 ? (power.mantissa + (uint64_t{1} << (places - 1))) >> places : power.mantissa << -places;
  return v > uint64_t{kMost} ? kMost : static_cast<T>(v);
}

// An x whose result is 0, and that of every smaller x: below ln(1/2) + scaleFactor * ln 2.
constexpr int lastZero(int64_t scaleFactor) {
  constexpr int64_t kLn2 = 2977044472;  // * 2^-32
  return static_cast<int>(std::clamp<int64_t>(((scaleFactor - 1) * kLn2 >> 32) - 1, kLeastX - 1, kMostX));
}

// ---- 16 bits: 16 results, low and high bytes apart

struct Row {
  alignas(16) uint8_t low[16];
  alignas(16) uint8_t high[16];
};

constexpr Row rowAt(int scaleFactor) {
  Row row = {};
  for (int i = 0; i < 16; ++i) {
    const auto v = scaledPower<Qvx16s>(lastZero(scaleFactor) + i, scaleFactor);
    row.low[i] = static_cast<uint8_t>(v);
    row.high[i] = static_cast<uint8_t>(v >> 8);
  }
  return row;
}

// Rows made at compile time: making one takes as long as 400 look-ups.
constexpr int kLeastRow = -32;
constexpr int kMostRow = 31;
constexpr auto kRows = [] {
  std::array<Row, kMostRow - kLeastRow + 1> rows = {};
  for (int s = kLeastRow; s <= kMostRow; ++s) rows[static_cast<size_t>(s - kLeastRow)] = rowAt(s);
  return rows;
}();

struct ByRow {
  const Row* row;
  int16_t zero;

  template <class V> V operator()(V x) const {
    const V i = hn::Min(hn::Max(hn::SaturatedSub(x, same<V>(zero)), same<V>(0)), same<V>(15));
    const hn::Repartition<uint8_t, TagOf<V>> bytes;
    const auto at = [&](const uint8_t* table, V index) {
      return as<int16_t>(hn::TableLookupBytesOr0(hn::LoadDup128(bytes, table), as<uint8_t>(index)));
    };
    // The index of the lane's other byte has its highest bit set, which gives a zero.
    return at(row->low, i | same<V>(static_cast<int16_t>(0x8000))) | at(row->high, hn::ShiftLeft<8>(i) | same<V>(0x80));
  }
};

QvxStatus exp16s(const Qvx16s* src, Qvx16s* dst, int len, int sf) {
  const QvxStatus status = check(len, src, dst);
  if (status != qvxStatOk) return status;
  const auto by = [=](const Row& row) {
    return loop(ByRow{&row, static_cast<int16_t>(lastZero(sf))}, destination(dst), elements(len), source(src));
  };
  if (sf >= kLeastRow && sf <= kMostRow) return by(kRows[static_cast<size_t>(sf - kLeastRow)]);
  return by(rowAt(sf));
}

// ---- 32 and 64 bits: gathered from a row, which is made for vectors long enough to pay for it

template <class T> struct Gathered {
  const T* row;
  T zero;
  T most;

  template <class V> V operator()(V x) const {
    const V i = hn::Min(hn::Max(x, same<V>(zero)), same<V>(most)) - same<V>(zero);
    return hn::GatherIndex(TagOf<V>(), row, i);
  }
};

template <class T> QvxStatus expWide(const T* src, T* dst, int len, int sf) {
  constexpr size_t kRow = sizeof(T) == 4 ? 32 : 48;
  const QvxStatus status = check(len, src, dst);
  if (status != qvxStatOk) return status;
  const T zero = lastZero(sf);
  const T most = zero + T{kRow - 1};
  if (elements(len) < 2 * kRow) {
    for (size_t i = 0; i < elements(len); ++i) dst[i] = scaledPower<T>(static_cast<int>(std::clamp(src[i], zero, most)), sf);
    return qvxStatOk;
  }
  T row[kRow];
  for (size_t i = 0; i < kRow; ++i) row[i] = scaledPower<T>(static_cast<int>(zero) + static_cast<int>(i), sf);
  // Without a comparison of 64-bit lanes, one by one: 4096 take 2368 ns, not 3323.
  if constexpr (kGathers || sizeof(T) == 4) {
    return loop(Gathered<T>{row, zero, most}, destination(dst), elements(len), source(src));
  } else {
    for (size_t i = 0; i < elements(len); ++i) dst[i] = row[std::clamp(src[i], zero, most) - zero];
    return qvxStatOk;
  }
}

}  // namespace

// clang-format off
QvxStatus qvxsExp_16s_Sfs(const Qvx16s* a, Qvx16s* d, int len, int sf) { return exp16s(a, d, len, sf); }
QvxStatus qvxsExp_16s_ISfs(Qvx16s* d, int len, int sf) { return exp16s(d, d, len, sf); }
QvxStatus qvxsExp_32s_Sfs(const Qvx32s* a, Qvx32s* d, int len, int sf) { return expWide(a, d, len, sf); }
QvxStatus qvxsExp_32s_ISfs(Qvx32s* d, int len, int sf) { return expWide(d, d, len, sf); }
QvxStatus qvxsExp_64s_Sfs(const Qvx64s* a, Qvx64s* d, int len, int sf) { return expWide(a, d, len, sf); }
QvxStatus qvxsExp_64s_ISfs(Qvx64s* d, int len, int sf) { return expWide(d, d, len, sf); }
// clang-format on
