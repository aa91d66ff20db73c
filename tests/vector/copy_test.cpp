// Copy, move, zero and set in all types and sizes, streamed ones too; bit strings from any bit to any bit.
#include <qvx/qvxs.h>

#include <cstring>
#include <memory>

#include "support/elementwise.h"

namespace {

using namespace tests;

template <class T>
void members(QvxStatus (*copy)(const T*, T*, int), QvxStatus (*move)(const T*, T*, int), QvxStatus (*zero)(T*, int),
             QvxStatus (*set)(T, T*, int)) {
  Random random(seed());
  Elementwise<T, T> same(2000, random, [](T v) { return v; });
  same.run(copy);
  same.run(move);
  Elementwise<T, T> none(700, random, [](T) { return T{}; });
  none.run([=](const T*, T* d, int n) { return zero(d, n); });
  const T c = value<T>(random);
  Elementwise<T, T> constant(700, random, [=](T) { return c; });
  constant.run([=](const T*, T* d, int n) { return set(c, d, n); });
}

TEST(Copy, AllTypes) {
  members(qvxsCopy_8u, qvxsMove_8u, qvxsZero_8u, qvxsSet_8u);
  members(qvxsCopy_16s, qvxsMove_16s, qvxsZero_16s, qvxsSet_16s);
  members(qvxsCopy_16sc, qvxsMove_16sc, qvxsZero_16sc, qvxsSet_16sc);
  members(qvxsCopy_32s, qvxsMove_32s, qvxsZero_32s, qvxsSet_32s);
  members(qvxsCopy_32sc, qvxsMove_32sc, qvxsZero_32sc, qvxsSet_32sc);
  members(qvxsCopy_32f, qvxsMove_32f, qvxsZero_32f, qvxsSet_32f);
  members(qvxsCopy_32fc, qvxsMove_32fc, qvxsZero_32fc, qvxsSet_32fc);
  members(qvxsCopy_64s, qvxsMove_64s, qvxsZero_64s, qvxsSet_64s);
  members(qvxsCopy_64sc, qvxsMove_64sc, qvxsZero_64sc, qvxsSet_64sc);
  members(qvxsCopy_64f, qvxsMove_64f, qvxsZero_64f, qvxsSet_64f);
  members(qvxsCopy_64fc, qvxsMove_64fc, qvxsZero_64fc, qvxsSet_64fc);
}

// Bits that arithmetic would change: signalling numbers, negative zeros.
TEST(Set, FloatsBitForBit) {
  for (const uint32_t bits : {0x7F800001U, 0xFFC12345U, 0x80000000U}) {
    Qvx32f v[19];
    Qvx32fc c[9];
    EXPECT_EQ(qvxsSet_32f(std::bit_cast<float>(bits), v, 19), qvxStatOk);
    EXPECT_EQ(qvxsSet_32fc({std::bit_cast<float>(bits), 1.0F}, c, 9), qvxStatOk);
    for (const float& x : v) EXPECT_EQ(std::bit_cast<uint32_t>(x), bits);
    for (const Qvx32fc& x : c) EXPECT_EQ(std::bit_cast<uint32_t>(x.re), bits);
  }
}

// Sizes at which another way of storing takes over, and vectors large enough to be streamed past any cache.
TEST(Copy, LargeVectors) {
  constexpr size_t kMost = (size_t{33} << 20) + 77;
  std::vector<uint8_t> source(kMost + 64);
  for (size_t i = 0; i < source.size(); ++i) source[i] = static_cast<uint8_t>(i * 2654435761U >> 13);
  Block block(kMost + 64);
  constexpr size_t kKi = 1 << 10, kMi = 1 << 20;
  for (const size_t bytes : {32 * kKi - 1, 32 * kKi, kMi - 5, kMi, kMi + 3, kMost}) {
    for (const size_t offset : {0, 1, 24}) {
      SCOPED_TRACE(std::to_string(bytes) + " bytes at " + std::to_string(offset));
      const int n = static_cast<int>(bytes);
      uint8_t* dst = block.atOffset(offset, bytes);
      ASSERT_EQ(qvxsCopy_8u(source.data() + 3, dst, n), qvxStatOk);
      EXPECT_EQ(std::memcmp(dst, source.data() + 3, bytes), 0);
      ASSERT_EQ(qvxsZero_8u(dst, n), qvxStatOk);
      EXPECT_EQ(std::count(dst, dst + bytes, 0), n);
      const Qvx64sc pair = {0x0123456789ABCDEF, -2};
      auto* pairs = reinterpret_cast<Qvx64sc*>(dst);
      ASSERT_EQ(qvxsSet_64sc(pair, pairs, n / 16), qvxStatOk);
      for (int i = 0; i < n / 16; ++i) ASSERT_EQ(std::memcmp(pairs + i, &pair, 16), 0) << i;
      EXPECT_TRUE(block.isIntact());
    }
  }
}

// Every overlap of short vectors and some of long ones, in both directions: the old contents arrive.
TEST(Move, AnyOverlap) {
  for (const int n : {1, 2, 15, 16, 17, 63, 64, 65, 130, 200, 1000, 40000, 1100000}) {
    std::vector<uint8_t> original(static_cast<size_t>(n) + 600);
    for (size_t i = 0; i < original.size(); ++i) original[i] = static_cast<uint8_t>(i * 2654435761U >> 11);
    const int step = n > 200 ? 37 : 1;
    for (int shift = -300; shift <= 300; shift += step) {
      std::vector<uint8_t> v = original;
      std::vector<uint8_t> expected = original;
      std::copy_n(original.begin() + 300, n, expected.begin() + 300 + shift);
      ASSERT_EQ(qvxsMove_8u(v.data() + 300, v.data() + 300 + shift, n), qvxStatOk);
      ASSERT_TRUE(v == expected) << n << " elements moved by " << shift;
    }
  }
}

// Beyond the caches, where vectors that do not overlap are streamed.
TEST(Move, LongOverlaps) {
  constexpr int kLength = 33 << 20;
  std::vector<uint8_t> v(kLength + 300);
  for (const int shift : {-300, -16, 16, 300}) {
    for (size_t i = 0; i < v.size(); ++i) v[i] = static_cast<uint8_t>(i * 2654435761U >> 11);
    const size_t from = shift < 0 ? 300 : 0;
    const size_t to = from + static_cast<size_t>(shift);
    ASSERT_EQ(qvxsMove_8u(&v[from], &v[to], kLength), qvxStatOk);
    size_t wrong = 0;
    for (size_t i = 0; i < kLength; ++i) wrong += v[to + i] != static_cast<uint8_t>((from + i) * 2654435761U >> 11);
    ASSERT_EQ(wrong, 0U) << shift;
  }
}

bool bit(const std::vector<uint8_t>& v, size_t i) { return (v[i / 8] >> (7 - i % 8) & 1) != 0; }

// Bit by bit: every pair of offsets, lengths through all ways of doing it.
TEST(CopyBits, EveryOffsetPair) {
  Random random(seed());
  for (int srcBit = 0; srcBit < 10; ++srcBit) {
    for (int dstBit = 0; dstBit < 10; ++dstBit) {
      for (int len = 1; len < 1200; len += len < 150 ? 1 : 97) {
        const std::vector<uint8_t> source = values<uint8_t>(static_cast<size_t>(srcBit + len + 7) / 8, random);
        const std::vector<uint8_t> before = values<uint8_t>(static_cast<size_t>(dstBit + len + 7) / 8, random);
        std::vector<uint8_t> after = before;
        ASSERT_EQ(qvxsCopy_1u(source.data(), srcBit, after.data(), dstBit, len), qvxStatOk);
        for (size_t i = 0; i < 8 * after.size(); ++i) {
          const auto from = static_cast<long>(i) - dstBit;
          const bool expected = from >= 0 && from < len ? bit(source, static_cast<size_t>(from + srcBit)) : bit(before, i);
          ASSERT_EQ(bit(after, i), expected) << "bit " << i << ", offsets " << srcBit << " and " << dstBit << ", length " << len;
        }
      }
    }
  }
}

}  // namespace
