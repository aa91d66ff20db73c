// Channels joined and split, and bits packed. The functions of a benchmark have one source, so the channels are parts of one
// vector.
#include "frame/families.h"
#include "peers/plain_channels.h"

namespace bench {

namespace {

// n samples of kChannels channels, planar at src and interleaved at dst.
template <auto kJoin, int kChannels, class D> void joined(const Qvx32f* src, D* dst, int n) {
  const Qvx32f* channels[kChannels];
  for (int c = 0; c < kChannels; ++c) channels[c] = src + c * (n / kChannels);
  kJoin(channels, kChannels, n / kChannels, dst);
}
template <auto kSplit, int kChannels, class S> void parted(const S* src, Qvx32f* dst, int n) {
  Qvx32f* channels[kChannels];
  for (int c = 0; c < kChannels; ++c) channels[c] = dst + c * (n / kChannels);
  kSplit(src, channels, kChannels, n / kChannels);
}

template <int kChannels> void rows(Suite& s) {
  const std::string name = ", " + std::to_string(kChannels) + " channels";
  s.row("Join_32f16s_D2L" + name, joined<qvxsJoin_32f16s_D2L, kChannels, Qvx16s>)
      .against("plain", joined<plain::join16, kChannels, Qvx16s>);
  s.row("JoinScaled_32f16s_D2L" + name, joined<qvxsJoinScaled_32f16s_D2L, kChannels, Qvx16s>)
      .within(-1.1, 1.1)
      .against("plain", joined<plain::joinScaled16, kChannels, Qvx16s>, Agreement::kDiffers);  // fused there
  s.row("JoinScaled_32f24s_D2L" + name, joined<qvxsJoinScaled_32f24s_D2L, kChannels, Qvx8u>)
      .within(-1.1, 1.1)
      .against("plain", joined<plain::joinScaled24, kChannels, Qvx8u>, Agreement::kDiffers);
  s.row("SplitScaled_16s32f_D2L" + name, parted<qvxsSplitScaled_16s32f_D2L, kChannels, Qvx16s>)
      .against("plain", parted<plain::splitScaled16, kChannels, Qvx16s>, Agreement::kDiffers);
  s.row("SplitScaled_24s32f_D2L" + name, parted<qvxsSplitScaled_24s32f_D2L, kChannels, Qvx8u>)
      .against("plain", parted<plain::splitScaled24, kChannels, Qvx8u>, Agreement::kDiffers);
}

// Words of 1 to 16 bits.
template <auto kPack> void packed(const Qvx32u* bits, const Qvx8u* random, Qvx8u* dst, int n) {
  static std::vector<int> lengths;
  if (lengths.size() != static_cast<size_t>(n)) {
    lengths.resize(static_cast<size_t>(n));
    for (size_t i = 0; i < lengths.size(); ++i) lengths[i] = 1 + random[i] % 16;
  }
  int total;
  kPack(bits, lengths.data(), n, dst, 3, &total);
}

}  // namespace

void channels(Suite& s) {
  rows<1>(s);
  rows<2>(s);
  rows<3>(s);
  rows<4>(s);
  rows<5>(s);
  rows<6>(s);
  rows<7>(s);
  rows<8>(s);
  s.row("PackBits_32u8u", packed<qvxsPackBits_32u8u>).against("bit by bit", packed<plain::packBits>, Agreement::kDiffers);
}

}  // namespace bench
