// Channels joined and split by nested loops.
#pragma once

#include <algorithm>
#include <cmath>

#include "peers/plain_convert.h"

namespace plain {

[[gnu::noipa]] inline void join16(const Qvx32f* const* src, int channels, int n, Qvx16s* __restrict dst) {
  for (int c = 0; c < channels; ++c) {
    const Qvx32f* __restrict a = src[c];
    for (int i = 0; i < n; ++i) {
      dst[i * channels + c] = static_cast<Qvx16s>(std::rint(std::max(std::min(a[i], 32767.0F), -32768.0F)));
    }
  }
}
[[gnu::noipa]] inline void joinScaled16(const Qvx32f* const* src, int channels, int n, Qvx16s* __restrict dst) {
  for (int c = 0; c < channels; ++c) {
    const Qvx32f* __restrict a = src[c];
    for (int i = 0; i < n; ++i) {
      dst[i * channels + c] = static_cast<Qvx16s>(std::rint(std::max(std::min(a[i], 1.0F), -1.0F) * 32767.5F - 0.5F));
    }
  }
}
[[gnu::noipa]] inline void joinScaled24(const Qvx32f* const* src, int channels, int n, Qvx8u* __restrict dst) {
  for (int c = 0; c < channels; ++c) {
    const Qvx32f* __restrict a = src[c];
    for (int i = 0; i < n; ++i) {
      const double x = std::max(std::min(a[i], 1.0F), -1.0F) * 8388607.5 - 0.5;
      write24(static_cast<uint32_t>(static_cast<int32_t>(std::rint(x))), dst + 3 * (i * channels + c));
    }
  }
}
[[gnu::noipa]] inline void splitScaled16(const Qvx16s* __restrict src, Qvx32f* const* dst, int channels, int n) {
  for (int c = 0; c < channels; ++c) {
    Qvx32f* __restrict d = dst[c];
    for (int i = 0; i < n; ++i) d[i] = static_cast<float>(src[i * channels + c]) * (2.0F / 65535) + 1.0F / 65535;
  }
}
[[gnu::noipa]] inline void splitScaled24(const Qvx8u* __restrict src, Qvx32f* const* dst, int channels, int n) {
  for (int c = 0; c < channels; ++c) {
    Qvx32f* __restrict d = dst[c];
    for (int i = 0; i < n; ++i) {
      d[i] = static_cast<float>(read24<int32_t>(src + 3 * (i * channels + c)) * (2.0 / 16777215) + 1.0 / 16777215);
    }
  }
}

[[gnu::noipa]] inline void packBits(const Qvx32u* bits, const int* lengths, int n, Qvx8u* dst, int offset, int* total) {
  int at = offset;
  for (int i = 0; i < n; ++i) {
    for (int bit = lengths[i] - 1; bit >= 0; --bit, ++at) {
      const auto mask = static_cast<Qvx8u>(0x80 >> at % 8);
      dst[at / 8] = static_cast<Qvx8u>((dst[at / 8] & ~mask) | ((bits[i] >> bit & 1) != 0 ? mask : 0));
    }
  }
  *total = at - offset;
}

}  // namespace plain
