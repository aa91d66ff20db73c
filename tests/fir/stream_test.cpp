// A stream is one signal however it is cut: in blocks, in place, sample by sample, directly or by way of the FFT.
#include <gtest/gtest.h>

#include "fir/pairs.h"
#include "support/blocks.h"

namespace {

using namespace tests;

// Taps to both sides of where kernels and ways change, and some that fill no vector of any size.
const int kTaps[] = {1, 2, 3, 5, 8, 15, 16, 17, 31, 32, 33, 47, 63, 64, 65, 100, 127, 128, 250, 257, 513};

int pieceLength(Random& random) {
  static const int kLengths[] = {1,   2,   3,   7,   16,  17,   63,   64,   65,   96,   200, 255,
                                 256, 257, 511, 512, 513, 1000, 1601, 2049, 4096, 4607, 4608};
  return random() & 1 ? kLengths[random() % std::size(kLengths)] : 1 + static_cast<int>(random() % 300);
}

// Runs pieces of a stream through a record and compares all that can be seen with the definition.
template <class P> class Stream {
 public:
  using T = typename P::Sample;
  Stream(const P& pair, int tapsLen, Random& random)
      : pair_(pair), n_(static_cast<size_t>(tapsLen)), random_(random), all_(samples<T>(n_, random)) {}

  std::vector<T> newestFirst() const { return {all_.rbegin(), all_.rbegin() + static_cast<ptrdiff_t>(n_)}; }

  // Status, outputs, the delay line, and the memory around the vectors.
  template <class Oracle> void piece(typename P::State* state, const Oracle& oracle, int length, int scaleFactor) {
    const auto x = samples<T>(static_cast<size_t>(length), random_);
    const size_t bytes = x.size() * sizeof(T);
    const size_t offset = random_() % 64 / alignof(T) * alignof(T);
    auto* dst = reinterpret_cast<T*>(random_() & 1 ? output_.atEnd(bytes) : output_.atOffset(offset, bytes));
    auto* src = reinterpret_cast<T*>(random_() & 1 ? input_.atEnd(bytes) : input_.atOffset(64 - offset, bytes));
    std::memcpy(static_cast<void*>(src), x.data(), bytes);
    const int form = static_cast<int>(random_() % 3);
    SCOPED_TRACE(testing::Message() << (form == 0   ? "block"
                                        : form == 1 ? "in place"
                                                    : "one by one")
                                    << ", length " << length << ", scale factor " << scaleFactor);
    if (form == 0) {
      EXPECT_EQ(P::run(pair_.block, scaleFactor, static_cast<const T*>(src), dst, length, state), qvxStatOk);
      EXPECT_EQ(std::memcmp(src, x.data(), bytes), 0) << "the source changed";
    } else if (form == 1) {
      std::memcpy(static_cast<void*>(dst), x.data(), bytes);
      EXPECT_EQ(P::run(pair_.inPlace, scaleFactor, dst, length, state), qvxStatOk);
    } else {
      for (int i = 0; i < length; ++i)
        EXPECT_EQ(P::run(pair_.one, scaleFactor, x[static_cast<size_t>(i)], dst + i, state), qvxStatOk);
    }
    EXPECT_TRUE(output_.isIntact() && input_.isIntact()) << "bytes outside the vectors";
    all_.insert(all_.end(), x.begin(), x.end());
    const T* first = all_.data() + all_.size() - x.size();
    for (size_t i = 0; i < x.size(); ++i) {
      if (!oracle.agrees(dst[i], first + i, scaleFactor)) {
        ADD_FAILURE() << "output " << i;
        return;
      }
    }
    std::vector<T> line(n_);
    EXPECT_EQ(pair_.getLine(state, line.data()), qvxStatOk);
    EXPECT_EQ(std::memcmp(line.data(), newestFirst().data(), n_ * sizeof(T)), 0) << "delay line";
  }

 private:
  static constexpr size_t kMost = 5000;
  const P& pair_;
  size_t n_;
  Random& random_;
  std::vector<T> all_;
  Block input_{kMost * sizeof(T)};
  Block output_{kMost * sizeof(T)};
};

// The record lies in a block of exactly the reported size, at any alignment, before an unreadable page or among canaries.
TEST(FirStream, IsOneSignalHoweverItIsCut) {
  forEachPair([](const auto& pair) {
    using P = std::remove_cvref_t<decltype(pair)>;
    Random random(seed());
    for (const int tapsLen : kTaps) {
      if (testing::Test::HasFailure()) return;
      auto h = samples<typename P::Taps>(static_cast<size_t>(tapsLen), random);
      const int factor = static_cast<int>(random() % 40) - 30;
      SCOPED_TRACE(testing::Message() << pair.name << ", taps " << tapsLen << ", seed " << seed());
      Stream<P> stream(pair, tapsLen, random);
      qvxSetNumThreads(1 + static_cast<int>(random() % 7));
      const auto bytes = static_cast<size_t>(pair.size(tapsLen));
      Block memory(bytes + 128);
      uint8_t* block = tapsLen % 2 ? memory.atEnd(bytes) : memory.atOffset(random() % 64, bytes);
      auto* state = pair.build(h, factor, stream.newestFirst().data(), block);
      auto oracle = oracleOf(pair, state, h);
      for (int piece = 0; piece < 12 && !testing::Test::HasFailure(); ++piece) {
        int scaleFactor = static_cast<int>(random() % 5);
        if (!kIsFloat<typename P::Taps> || P::kHasFactor || std::string(pair.name).find("32s") == 0) {
          scaleFactor += static_cast<int>(random() % 60) - 20 + (random() & 1 ? factor + 16 : 0);
        }
        if (std::string(pair.name) == "32s") scaleFactor = 28 + static_cast<int>(random() % 8);
        stream.piece(state, oracle, pieceLength(random), scaleFactor);
        if (piece % 5 != 4) continue;
        h = samples<typename P::Taps>(h.size(), random);
        EXPECT_EQ(P::run(pair.setTaps, factor, static_cast<const typename P::Taps*>(h.data()), state), qvxStatOk);
        oracle = oracleOf(pair, state, h);
      }
      EXPECT_TRUE(memory.isIntact()) << "bytes outside the record";
      EXPECT_EQ(pair.free(state), qvxStatOk);
      qvxSetNumThreads(0);
    }
  });
}

// Long filters keep spectra that fit the length of the calls. They are made again for calls of another length, for calls that
// begin within a block, after new taps, and after samples that were filtered in another way; and the window moves through its
// memory.
TEST(FirStream, IsOneSignalWhateverLengthTheCallsComeToHave) {
  forEachPair([](const auto& pair) {
    using P = std::remove_cvref_t<decltype(pair)>;
    Random random(seed());
    for (const int tapsLen : {512, 701, 1023}) {
      auto h = samples<typename P::Taps>(static_cast<size_t>(tapsLen), random);
      SCOPED_TRACE(testing::Message() << pair.name << ", taps " << tapsLen << ", seed " << seed());
      Stream<P> stream(pair, tapsLen, random);
      const auto bytes = static_cast<size_t>(pair.size(tapsLen));
      Block memory(bytes + 128);
      auto* state = pair.build(h, 0, stream.newestFirst().data(), memory.atEnd(bytes));
      auto oracle = oracleOf(pair, state, h);
      const auto calls = [&](int count, int length) {
        for (int i = 0; i < count && !testing::Test::HasFailure(); ++i) stream.piece(state, oracle, length, 29);
      };
      calls(5, 31);
      calls(20, 64);
      calls(14, 256);
      calls(1, 37);
      calls(14, 256);
      calls(1, 1400);
      calls(4, 256);
      h = samples<typename P::Taps>(h.size(), random);
      EXPECT_EQ(P::run(pair.setTaps, 0, static_cast<const typename P::Taps*>(h.data()), state), qvxStatOk);
      oracle = oracleOf(pair, state, h);
      calls(4, 100);
      EXPECT_TRUE(memory.isIntact()) << "bytes outside the record";
      EXPECT_EQ(pair.free(state), qvxStatOk);
    }
  });
}

// Calls of one kind, of up to 64 samples or longer ones that stay with the direct way, give the same bits wherever the cuts are.
TEST(FirStream, HasTheSameBitsHoweverItIsCut) {
  forEachPair([](const auto& pair) {
    using P = std::remove_cvref_t<decltype(pair)>;
    using T = typename P::Sample;
    Random random(seed());
    for (const int tapsLen : {1, 3, 8, 15, 17, 40, 63, 100}) {
      const auto h = samples<typename P::Taps>(static_cast<size_t>(tapsLen), random);
      const auto x = samples<T>(2000, random);
      for (const auto& [least, most] : {std::pair{1, 64}, std::pair{65, 255}}) {
        const auto filtered = [&, least = least, most = most](bool inPlace) {
          auto* state = pair.allocate(h, 0, nullptr);
          std::vector<T> y = x;
          for (int at = 0, n; at < 2000 - most; at += n) {
            n = least + static_cast<int>(random() % static_cast<uint64_t>(most - least + 1));
            EXPECT_EQ(inPlace ? P::run(pair.inPlace, 9, y.data() + at, n, state)
                              : P::run(pair.block, 9, x.data() + at, y.data() + at, n, state),
                      qvxStatOk);
          }
          EXPECT_EQ(pair.free(state), qvxStatOk);
          y.resize(static_cast<size_t>(2000 - most));
          return y;
        };
        const std::vector<T> once = filtered(false), again = filtered(false), here = filtered(true);
        EXPECT_EQ(std::memcmp(once.data(), again.data(), once.size() * sizeof(T)), 0) << pair.name << ", taps " << tapsLen;
        EXPECT_EQ(std::memcmp(once.data(), here.data(), once.size() * sizeof(T)), 0) << pair.name << ", taps " << tapsLen;
      }
    }
  });
}

}  // namespace
