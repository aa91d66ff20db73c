// Functions that may divide a vector between threads: nobody can tell. Results, statuses, the rounding mode and the
// floating-point exceptions raised are those of one thread, however many there are and wherever the call comes from.
#include <gtest/gtest.h>
#include <omp.h>
#include <qvx/qvxcore.h>
#include <qvx/qvxs.h>

#include <cfenv>
#include <cstring>
#include <random>
#include <thread>

#include "support/exports.h"

namespace {

using tests::Export;
using tests::Parameter;

// A function, the length from which it may be divided, and what it has to report: the parameter and the value in it that ask for
// the warning.
struct Divided {
  const char* name;
  int threshold;
  QvxStatus warning = qvxStatOk;
  const char* parameter = "";
  double bad = 0;
};

constexpr auto kNegative = qvxWarnSqrtNegArg;
constexpr auto kZero = qvxWarnDivByZero;

// clang-format off
const Divided kDivided[] = {
    {"qvxsSqrt_32f", 4096, kNegative, "pSrc", -1}, {"qvxsSqrt_32f_I", 4096, kNegative, "pSrcDst", -1},
    {"qvxsSqrt_64f", 512, kNegative, "pSrc", -1}, {"qvxsSqrt_64f_I", 512, kNegative, "pSrcDst", -1},
    {"qvxsSqrt_32fc", 512}, {"qvxsSqrt_32fc_I", 512},
    {"qvxsSqrt_64fc", 64}, {"qvxsSqrt_64fc_I", 64},
    {"qvxsSqrt_8u_Sfs", 2048}, {"qvxsSqrt_8u_ISfs", 2048},
    {"qvxsSqrt_16u_Sfs", 2048}, {"qvxsSqrt_16u_ISfs", 2048},
    {"qvxsSqrt_16s_Sfs", 2048, kNegative, "pSrc", -1}, {"qvxsSqrt_16s_ISfs", 2048, kNegative, "pSrcDst", -1},
    {"qvxsSqrt_16sc_Sfs", 256}, {"qvxsSqrt_16sc_ISfs", 256},
    {"qvxsSqrt_32s16s_Sfs", 1024, kNegative, "pSrc", -1},
    {"qvxsSqrt_64s16s_Sfs", 512, kNegative, "pSrc", -1},
    {"qvxsDiv_32f", 4096, kZero, "pSrc1", 0}, {"qvxsDiv_32f_I", 4096, kZero, "pSrc", 0},
    {"qvxsDiv_64f", 1024, kZero, "pSrc1", 0}, {"qvxsDiv_64f_I", 1024, kZero, "pSrc", 0},
    {"qvxsDiv_32fc", 1024, kZero, "pSrc1", 0}, {"qvxsDiv_32fc_I", 1024, kZero, "pSrc", 0},
    {"qvxsDiv_64fc", 1024, kZero, "pSrc1", 0}, {"qvxsDiv_64fc_I", 1024, kZero, "pSrc", 0},
    {"qvxsDiv_8u_Sfs", 1024, kZero, "pSrc1", 0}, {"qvxsDiv_8u_ISfs", 1024, kZero, "pSrc", 0},
    {"qvxsDiv_16s_Sfs", 1024, kZero, "pSrc1", 0}, {"qvxsDiv_16s_ISfs", 1024, kZero, "pSrc", 0},
    {"qvxsDiv_16sc_Sfs", 256, kZero, "pSrc1", 0}, {"qvxsDiv_16sc_ISfs", 256, kZero, "pSrc", 0},
    {"qvxsDiv_32s_Sfs", 1024, kZero, "pSrc1", 0}, {"qvxsDiv_32s_ISfs", 1024, kZero, "pSrc", 0},
    {"qvxsDiv_32s16s_Sfs", 1024, kZero, "pSrc1", 0},
    {"qvxsDiv_Round_8u_Sfs", 512, kZero, "pSrc1", 0}, {"qvxsDiv_Round_8u_ISfs", 512, kZero, "pSrc", 0},
    {"qvxsDiv_Round_16u_Sfs", 1024, kZero, "pSrc1", 0}, {"qvxsDiv_Round_16u_ISfs", 1024, kZero, "pSrc", 0},
    {"qvxsDiv_Round_16s_Sfs", 1024, kZero, "pSrc1", 0}, {"qvxsDiv_Round_16s_ISfs", 1024, kZero, "pSrc", 0},
    {"qvxsDivC_8u_Sfs", 4096}, {"qvxsDivC_16s_Sfs", 4096}, {"qvxsDivC_16sc_Sfs", 1024},
    {"qvxsDivCRev_16u", 2048, kZero, "pSrc", 0}, {"qvxsDivCRev_32f", 4096, kZero, "pSrc", 0},
    {"qvxsThreshold_LTInv_32f", 8192}, {"qvxsThreshold_LTInv_64f", 2048},
    {"qvxsThreshold_LTInv_32fc", 2048}, {"qvxsThreshold_LTInv_64fc", 512},
    {"qvxsMagnitude_32f", 4096}, {"qvxsMagnitude_64f", 256}, {"qvxsMagnitude_32fc", 2048}, {"qvxsMagnitude_64fc", 256},
    {"qvxsMagnitude_16sc32f", 4096}, {"qvxsMagnitude_16s32f", 2048}, {"qvxsMagnitude_16s_Sfs", 2048},
    {"qvxsMagnitude_16sc_Sfs", 2048}, {"qvxsMagnitude_32sc_Sfs", 256},
};
// clang-format on

const Export& exportNamed(const std::string& name) {
  for (const Export& e : tests::exportTable()) {
    if (e.name == name) return e;
  }
  throw std::runtime_error("no export " + name);
}

// The bytes of one part of an element, or none of them if it is not a number type: "const Qvx16sc*" has 16-bit integer parts.
struct PartType {
  size_t bytes;
  bool isFloat;

  explicit PartType(const std::string& type) {
    const size_t digits = type.find_first_of("0123456789");
    const size_t letter = type.find_first_not_of("0123456789", digits);
    bytes = static_cast<size_t>(std::stoi(type.substr(digits))) / 8;
    isFloat = type[letter] == 'f';
  }

  void put(uint8_t* at, double value) const {
    const auto number = static_cast<int64_t>(value);
    const auto single = static_cast<float>(value);
    if (!isFloat) std::memcpy(at, &number, bytes);
    else if (bytes == 4) std::memcpy(at, &single, 4);
    else std::memcpy(at, &value, 8);
  }
};

// The arguments of a call: blocks of positive numbers, and where wanted a bad one.
class Call : public tests::Arguments {
 public:
  Call(const Divided& d, int len) : divided_(d), export_(exportNamed(d.name)), len_(len) {
    std::mt19937_64 random(20240229);
    for (size_t i = 0; i < export_.parameters.size(); ++i) {
      const Parameter& p = export_.parameters[i];
      if (!p.isPointer()) continue;
      const PartType part(p.type);
      blocks_[i].resize(kLead + static_cast<size_t>(len + 1) * 2 * part.bytes);
      const double most = part.isFloat ? 1000 : part.bytes == 1 ? 200 : 32000;
      for (size_t at = kLead; at + part.bytes <= blocks_[i].size(); at += part.bytes) {
        part.put(&blocks_[i][at], 1 + std::ldexp(static_cast<double>(random() >> 12), -52) * most);
      }
    }
  }

  // Makes one element of the source ask for the warning, all its parts.
  Call& spoil(int element) {
    const auto i = static_cast<size_t>(export_.indexOf(divided_.parameter));
    const PartType part(export_.parameters[i].type);
    const size_t partsOfOne = export_.parameters[i].type.find("c*") != std::string::npos ? 2 : 1;
    for (size_t k = 0; k < partsOfOne; ++k) {
      part.put(&blocks_[i][kLead + (static_cast<size_t>(element) * partsOfOne + k) * part.bytes], divided_.bad);
    }
    return *this;
  }

  void* pointer(size_t index, size_t, bool, char) override { return blocks_[index].data() + kLead; }
  int64_t integer(size_t index) override {
    const std::string& name = export_.parameters[index].name;
    return name == "len" ? len_ : name == "rndMode" ? 1 : name == "scaleFactor" ? 0 : 3;
  }
  double real(size_t) override { return 1.5; }

  Call& run(int threads) {
    qvxSetNumThreads(threads);
    return run();
  }
  Call& run() {
    status_ = export_.call(export_.address, *this);
    return *this;
  }

  QvxStatus status() const { return status_; }
  bool operator==(const Call& other) const {
    if (status_ != other.status_) return false;
    for (size_t i = 0; i < std::size(blocks_); ++i) {
      if (blocks_[i] != other.blocks_[i]) return false;
    }
    return true;
  }

 private:
  static constexpr size_t kLead = 24;  // vectors start where no register is aligned
  const Divided& divided_;
  const Export& export_;
  int len_;
  std::vector<uint8_t> blocks_[8];
  QvxStatus status_ = qvxStatOk;
};

constexpr int kLong = 200003;  // a team really forks

class Threads : public testing::TestWithParam<Divided> {
 protected:
  void TearDown() override {
    qvxSetNumThreads(0);
    std::fesetround(FE_TONEAREST);
  }
};

class ThreadsThatWarn : public Threads {};

TEST_P(Threads, AnyNumberGivesTheSame) {
  const int t = GetParam().threshold;
  for (const int len : {1, 6, t - 1, t, t + 1, 2 * t + 3, kLong}) {
    const Call alone = Call(GetParam(), len).run(1);
    EXPECT_EQ(alone.status(), qvxStatOk);
    for (const int threads : {2, 7, 1000}) EXPECT_TRUE(Call(GetParam(), len).run(threads) == alone) << len << ", " << threads;
  }
}

TEST_P(ThreadsThatWarn, OfAnElementInAnySlice) {
  for (const int element : {0, kLong / 2 - 1, kLong / 2, kLong / 2 + 1, kLong - 1}) {
    const Call alone = Call(GetParam(), kLong).spoil(element).run(1);
    EXPECT_EQ(alone.status(), GetParam().warning) << element;
    for (const int threads : {2, 7}) EXPECT_TRUE(Call(GetParam(), kLong).spoil(element).run(threads) == alone) << element;
  }
}

TEST_P(Threads, CallersRegion) {
  const Call alone = Call(GetParam(), kLong).run(1);
  qvxSetNumThreads(2);
  int different = 0;
#pragma omp parallel num_threads(3) reduction(+ : different)
  different += !(Call(GetParam(), kLong).run() == alone);
  EXPECT_EQ(different, 0);
}

TEST_P(Threads, SeveralCallersAtOnce) {
  const Call alone = Call(GetParam(), kLong).run(1);
  qvxSetNumThreads(2);
  bool same[4] = {};
  std::vector<std::thread> callers;
  for (bool& mine : same) callers.emplace_back([&] { mine = Call(GetParam(), kLong).run() == alone; });
  for (std::thread& caller : callers) caller.join();
  for (const bool mine : same) EXPECT_TRUE(mine);
}

// A team has control words of its own, but works under the caller's and raises the caller's flags.
TEST_P(Threads, CallersFloatingPointEnvironment) {
  for (const int mode : {FE_UPWARD, FE_DOWNWARD}) {
    const auto raisedBy = [&](Call& call, int threads) {
      std::fesetround(mode);
      std::feclearexcept(FE_ALL_EXCEPT);
      call.run(threads);
      const int raised = std::fetestexcept(FE_ALL_EXCEPT);
      EXPECT_EQ(std::fegetround(), mode);
      std::fesetround(FE_TONEAREST);
      return raised;
    };
    Call alone(GetParam(), kLong);
    Call divided(GetParam(), kLong);
    const int raised = raisedBy(alone, 1);
    EXPECT_EQ(raisedBy(divided, 2), raised);
    EXPECT_TRUE(divided == alone);
  }
}

// What is raised in the other thread's slice alone reaches the caller.
TEST_P(ThreadsThatWarn, RaiseTheExceptionsOfTheOtherSlice) {
  const auto raisedBy = [](int element, int threads) {
    Call call(GetParam(), kLong);
    call.spoil(element);
    std::feclearexcept(FE_ALL_EXCEPT);
    call.run(threads);
    return std::fetestexcept(FE_ALL_EXCEPT);
  };
  for (const int element : {3, kLong - 3}) EXPECT_EQ(raisedBy(element, 2), raisedBy(element, 1)) << element;
}

std::string nameOf(const testing::TestParamInfo<Divided>& info) { return info.param.name; }

std::vector<Divided> thatWarn() {
  std::vector<Divided> some;
  for (const Divided& d : kDivided) {
    if (d.warning != qvxStatOk) some.push_back(d);
  }
  return some;
}

INSTANTIATE_TEST_SUITE_P(All, Threads, testing::ValuesIn(kDivided), nameOf);
INSTANTIATE_TEST_SUITE_P(All, ThreadsThatWarn, testing::ValuesIn(thatWarn()), nameOf);

}  // namespace
