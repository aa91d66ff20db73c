// The forms without a record: results, and the caller's delay line and index after each call.
#include <gtest/gtest.h>

#include "fir/pairs.h"
#include "support/blocks.h"

namespace {

using namespace tests;

// How a block and its in-place form treat the delay line.
enum class Kept {
  kPushed,          // sample by sample
  kShortOrInPlace,  // the types of one kind: rewritten in one way below a number of taps, and in another above and in place
  kNewestFirst      // 16s
};

template <class Block, class InPlace, class One, class OneInPlace> struct Direct {
  using Sample = Pointee<0, InPlace>;
  using Taps = Pointee<2, InPlace>;
  const char* name;
  Kept kept;
  int limit;
  Block block;
  InPlace inPlace;
  One one;
  OneInPlace oneInPlace;
};
template <class... F> Direct(const char*, Kept, int, F...) -> Direct<F...>;

// clang-format off
template <class With> void forEachDirect(With with) {
  constexpr Kept kPushed = Kept::kPushed, kOne = Kept::kShortOrInPlace;
  with(Direct{"32f", kOne, 64, qvxsFIR_Direct_32f, qvxsFIR_Direct_32f_I, qvxsFIROne_Direct_32f, qvxsFIROne_Direct_32f_I});
  with(Direct{"32fc", kOne, 32, qvxsFIR_Direct_32fc, qvxsFIR_Direct_32fc_I, qvxsFIROne_Direct_32fc, qvxsFIROne_Direct_32fc_I});
  with(Direct{"64f", kOne, 32, qvxsFIR_Direct_64f, qvxsFIR_Direct_64f_I, qvxsFIROne_Direct_64f, qvxsFIROne_Direct_64f_I});
  with(Direct{"64fc", kOne, 16, qvxsFIR_Direct_64fc, qvxsFIR_Direct_64fc_I, qvxsFIROne_Direct_64fc, qvxsFIROne_Direct_64fc_I});
  with(Direct{"32f_16s", kPushed, 0, qvxsFIR32f_Direct_16s_Sfs, qvxsFIR32f_Direct_16s_ISfs, qvxsFIROne32f_Direct_16s_Sfs, qvxsFIROne32f_Direct_16s_ISfs});
  with(Direct{"32fc_16sc", kPushed, 0, qvxsFIR32fc_Direct_16sc_Sfs, qvxsFIR32fc_Direct_16sc_ISfs, qvxsFIROne32fc_Direct_16sc_Sfs, qvxsFIROne32fc_Direct_16sc_ISfs});
  with(Direct{"64f_32f", kPushed, 0, qvxsFIR64f_Direct_32f, qvxsFIR64f_Direct_32f_I, qvxsFIROne64f_Direct_32f, qvxsFIROne64f_Direct_32f_I});
  with(Direct{"64fc_32fc", kPushed, 0, qvxsFIR64fc_Direct_32fc, qvxsFIR64fc_Direct_32fc_I, qvxsFIROne64fc_Direct_32fc, qvxsFIROne64fc_Direct_32fc_I});
  with(Direct{"64f_32s", kPushed, 0, qvxsFIR64f_Direct_32s_Sfs, qvxsFIR64f_Direct_32s_ISfs, qvxsFIROne64f_Direct_32s_Sfs, qvxsFIROne64f_Direct_32s_ISfs});
  with(Direct{"64fc_32sc", kPushed, 0, qvxsFIR64fc_Direct_32sc_Sfs, qvxsFIR64fc_Direct_32sc_ISfs, qvxsFIROne64fc_Direct_32sc_Sfs, qvxsFIROne64fc_Direct_32sc_ISfs});
  with(Direct{"64f_16s", kPushed, 0, qvxsFIR64f_Direct_16s_Sfs, qvxsFIR64f_Direct_16s_ISfs, qvxsFIROne64f_Direct_16s_Sfs, qvxsFIROne64f_Direct_16s_ISfs});
  with(Direct{"64fc_16sc", kPushed, 0, qvxsFIR64fc_Direct_16sc_Sfs, qvxsFIR64fc_Direct_16sc_ISfs, qvxsFIROne64fc_Direct_16sc_Sfs, qvxsFIROne64fc_Direct_16sc_ISfs});
  with(Direct{"32s_16s", kPushed, 0, qvxsFIR32s_Direct_16s_Sfs, qvxsFIR32s_Direct_16s_ISfs, qvxsFIROne32s_Direct_16s_Sfs, qvxsFIROne32s_Direct_16s_ISfs});
  with(Direct{"32sc_16sc", kPushed, 0, qvxsFIR32sc_Direct_16sc_Sfs, qvxsFIR32sc_Direct_16sc_ISfs, qvxsFIROne32sc_Direct_16sc_Sfs, qvxsFIROne32sc_Direct_16sc_ISfs});
  with(Direct{"16s", Kept::kNewestFirst, 0, qvxsFIR_Direct_16s_Sfs, qvxsFIR_Direct_16s_ISfs, qvxsFIROne_Direct_16s_Sfs, qvxsFIROne_Direct_16s_ISfs});
}
// clang-format on

template <class F, class T, class H, class... Vectors>
QvxStatus run(F f, const std::vector<H>& h, std::vector<T>& line, int& index, int scaleFactor, Vectors... vectors) {
  const int n = static_cast<int>(h.size());
  const auto with = [&](auto... taps) {
    if constexpr (std::is_invocable_v<F, Vectors..., decltype(taps)..., T*, int*, int>) {
      return f(vectors..., taps..., line.data(), &index, scaleFactor);
    } else {
      return f(vectors..., taps..., line.data(), &index);
    }
  };
  if constexpr (std::is_same_v<H, Qvx32s> || std::is_same_v<H, Qvx32sc>) return with(h.data(), n, kTapsFactor);
  else return with(h.data(), n);
}

// The caller's memory as the forms leave it, in the words of their definition.
template <class T> void pushed(std::vector<T>& line, int& index, T x) {
  const int n = static_cast<int>(line.size()) / 2;
  line[static_cast<size_t>(index)] = line[static_cast<size_t>(index + n)] = x;
  index = (index + 1) % n;
}

TEST(FirDirect, ResultsAndDelayLines) {
  forEachDirect([](const auto& direct) {
    using D = std::remove_cvref_t<decltype(direct)>;
    using T = typename D::Sample;
    using H = typename D::Taps;
    Random random(seed());
    Block input(4000 * sizeof(T));
    Block output(4000 * sizeof(T));
    for (const int tapsLen : {1, 2, 7, 15, 16, 31, 32, 33, 63, 64, 65, 150}) {
      if (testing::Test::HasFailure()) return;
      const auto n = static_cast<size_t>(tapsLen);
      std::vector<H> h(n);
      for (H& tap : h) tap = sample<H>(random);
      std::vector<T> line(2 * n);
      int index = static_cast<int>(random() % n);
      for (size_t i = 0; i < n; ++i) pushed(line, index, sample<T>(random));
      for (int call = 0; call < 14 && !testing::Test::HasFailure(); ++call) {
        const int form = static_cast<int>(random() % 4);
        static const int kLengths[] = {1, 2, 15, 31, 32, 62, 63, 64, 80, 300, 2000};
        const int length = form >= 2 ? 1 : kLengths[random() % std::size(kLengths)];
        int scaleFactor = static_cast<int>(random() % 6) - 1;
        if (!kIsFloat<H>) scaleFactor = static_cast<int>(random() % 90) - 50;
        SCOPED_TRACE(testing::Message() << direct.name << ", taps " << tapsLen << ", form " << form << ", length " << length
                                        << ", index " << index << ", scale factor " << scaleFactor << ", seed " << seed());
        const auto count = static_cast<size_t>(length);
        auto* x = reinterpret_cast<T*>(input.atEnd(count * sizeof(T)));
        auto* y = reinterpret_cast<T*>(output.atEnd(count * sizeof(T)));
        for (size_t i = 0; i < count; ++i) x[i] = sample<T>(random);
        std::copy_n(x, count, y);
        // What the call sees: the old samples, oldest first, and the new ones. Whatever pushes its samples sees those after the
        // first of them, which begin at 0 for the last index.
        const bool isNewestFirst = direct.kept == Kept::kNewestFirst && form < 2;
        const bool isWhole = form < 2 && direct.kept == Kept::kShortOrInPlace && (form == 1 || tapsLen >= direct.limit);
        const auto old = line.begin() + (isNewestFirst || isWhole ? index : (index + 1) % tapsLen - 1);
        std::vector<T> all(n);
        std::copy(old + 1, old + tapsLen, all.begin() + 1);
        all[0] = isNewestFirst ? *old : T{};
        if (isNewestFirst) std::reverse(all.begin(), all.end());
        all.insert(all.end(), x, x + count);

        std::vector<T> wantedLine = line;
        int wantedIndex = index;
        if (isNewestFirst) {
          std::copy_n(all.rbegin(), n, wantedLine.begin());
          wantedIndex = 0;
        } else if (isWhole) {
          std::copy_n(all.end() - tapsLen, n, wantedLine.begin() + index);
        } else {
          const bool isShort = form == 0 && direct.kept == Kept::kShortOrInPlace && count > n - 1;
          for (size_t i = 0; i < (isShort ? n - 1 : count); ++i) pushed(wantedLine, wantedIndex, x[i]);
          if (isShort) {
            std::copy_n(all.end() - (tapsLen - 1), n - 1, wantedLine.begin());
            wantedIndex = tapsLen - 1;
          }
        }

        QvxStatus status = qvxStatOk;
        if (form == 0) status = run(direct.block, h, line, index, scaleFactor, static_cast<const T*>(x), y, length);
        else if (form == 1) status = run(direct.inPlace, h, line, index, scaleFactor, y, length);
        else if (form == 2) status = run(direct.one, h, line, index, scaleFactor, x[0], y);
        else status = run(direct.oneInPlace, h, line, index, scaleFactor, y);
        EXPECT_EQ(status, qvxStatOk);
        EXPECT_EQ(index, wantedIndex);
        EXPECT_EQ(std::memcmp(line.data(), wantedLine.data(), line.size() * sizeof(T)), 0) << "delay line";
        EXPECT_TRUE(output.isIntact());
        for (size_t i = 0; i < count; ++i) {
          if (agrees(y[i], h, all.data() + n + i, scaleFactor, form < 2)) continue;
          ADD_FAILURE() << "output " << i;
          break;
        }
      }
    }
  });
}

}  // namespace
