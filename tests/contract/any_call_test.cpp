// What holds for every function and every valid call: it reads and writes only its vectors, its outcome depends on its arguments
// alone, and a refused call leaves no trace.
#include <xmmintrin.h>

#include <bit>
#include <cfenv>

#include "contract/every_call.h"

namespace {

using tests::allocator;
using tests::AnyCall;
using tests::calls;
using tests::Choices;
using tests::EveryCall;
using tests::Export;
using tests::Surroundings;
using tests::Wrong;

TEST_F(EveryCall, DependsOnItsArgumentsAlone) {
  // Garbage alone raises no floating-point exception; another place may, where lanes past the end hold other numbers.
  using enum tests::Destinations;
  Surroundings others[] = {{-1, 0x7F}, {0, 0xFF}, {1, 0x5A}, {64, 0x7F}, {4, 0, kOnFirst}};
  forEach([&](const Export& e, const Choices& choices) {
    others[4].destinations = others[4].destinations == kOnFirst ? kOnLast : kOnFirst;
    AnyCall first(e, choices, memory_);
    std::feclearexcept(FE_ALL_EXCEPT);
    const QvxStatus status = first.run();
    const int raised = std::fetestexcept(FE_ALL_EXCEPT);
    expect(first.isIntact(), "wrote elsewhere", first);
    if (status < 0 && !tests::traitsOf(e).is("midway")) expect(first.wroteNothing(), "wrote in spite of an error", first);
    for (const Surroundings& around : others) {
      allocator.garbage = around.garbage;
      AnyCall other(e, choices, memory_, around);
      std::feclearexcept(FE_ALL_EXCEPT);
      expect(other.run() == status, "another status", other);
      expect(around.offset >= 0 || std::fetestexcept(FE_ALL_EXCEPT) == raised, "raises other exceptions", other);
      expect(other.isIntact(), "wrote elsewhere", other);
      if (status >= 0) expect(other.results() == first.results(), "another result", other);
    }
  });
}

// Vectors whose last element decides nothing that a call returns: the last zero of CCS, the reference that only moves taps, a
// sample under a weight of zero.
bool mayLeaveLast(const Export& e, const std::string& parameter) {
  return e.contains("Inv_CCSToR") || (e.contains("LMS") && parameter == "pRef") || (e.contains("Win") && e.contains("_16s"));
}

// An extent that is too long does no harm here, but refuses valid vectors to whoever checks by it. So the last element of each
// source decides in one call at least, where it may be any number.
TEST_F(EveryCall, ReadsEachSourceToItsEnd) {
  constexpr int kMostWays = 4000;  // a sum of logarithms is a number once in hundreds of draws
  uint64_t seed = 0;
  for (const Export& e : tests::exportTable()) {
    for (size_t i = 0; e.call && i < e.parameters.size(); ++i) {
      const tests::Parameter& p = e.parameters[i];
      const bool isAnyNumber = tests::traitsOf(e).fills.count(p.name) == 0;
      if (p.type.rfind("const ", 0) != 0 || p.isRecord() || !isAnyNumber || mayLeaveLast(e, p.name)) continue;
      bool isDrawn = false, isRead = false;
      for (int way = 0; way < kMostWays && !isRead; ++way) {
        memory_.reuse();
        const Choices choices(++seed);
        AnyCall usual(e, choices, memory_), changed(e, choices, memory_);
        if (usual.results().empty()) break;
        if (!changed.changeLast(i, way)) continue;
        isDrawn = true;
        isRead = changed.run() != usual.run() || changed.results() != usual.results();
      }
      EXPECT_EQ(isRead, isDrawn) << e.name << ", " << p.name;
    }
  }
}

// Each wrong argument gives its own status and leaves no trace: alone, and together with wrong arguments that are tested after
// it.
TEST_F(EveryCall, ChecksItsArgumentsInOrder) {
  const int draws = std::min(5, calls());
  for (const Export& e : tests::exportTable()) {
    if (!e.call) continue;
    const std::vector<Wrong> wrongs = tests::Wrongs(e).all;
    failures_.clear();
    const auto expectRefused = [&](const Choices& choices, size_t from, size_t count, size_t which) {
      memory_.reuse();
      const int before = allocator.live;
      {
        AnyCall call(e, choices, memory_, {-1, 0x5A, {}, 3});
        const int live = allocator.live;
        for (size_t k = from + count; k-- > from;) call.spoil(wrongs[k], k == from ? which : 0);
        const QvxStatus status = call.run(), wanted = count == 0 ? qvxStatOk : wrongs[from].status;
        if (count == 0) return status >= 0 || e.contains("IIRSetTaps32s");  // which report a mismatch whatever they do
        const bool isRight = wanted == qvxStatOk ? status >= 0 || count > 1 : status == wanted;
        if (!isRight) {
          const std::string what = e.parameters[wrongs[from].index].name + " wrong" + (count > 1 ? ", and all after it" : "") +
                                   ", status " + std::to_string(status) + ", not " + std::to_string(wanted);
          expect(false, what.c_str(), call);
        }
        expect(call.isIntact() && (status >= 0 || call.wroteNothing()), "wrote in spite of an error", call);
        expect(status >= 0 || allocator.live == live, "kept memory", call);
        if (e.contains("InitAlloc")) expect(status >= 0 || call.leadsNowhere(), "leads to released memory", call);
      }
      if (allocator.live != before) failures_ += e.name + " leaks\n";
      return true;
    };
    int drawn = 0;
    for (uint64_t seed = 1; seed < 100 && drawn < draws && failures_.empty(); ++seed) {
      const Choices choices(seed);
      if (!expectRefused(choices, 0, 0, 0)) continue;  // refused as it was drawn
      ++drawn;
      for (size_t k = 0; k < wrongs.size(); ++k) {
        for (size_t i = 0; i < std::max<size_t>(wrongs[k].values.size(), 1); ++i) expectRefused(choices, k, 1, i);
        expectRefused(choices, k, wrongs.size() - k, 0);
      }
    }
    EXPECT_TRUE(drawn > 0 && failures_.empty()) << e.name << '\n' << failures_;
  }
}

TEST_F(EveryCall, RefusesTheRecordsOfOthers) {
  tests::Memory memory;
  std::deque<AnyCall> makers;
  std::map<std::string, void*> records;
  const auto recordType = [](const Export& e) {
    for (size_t i = 0; i < e.parameters.size(); ++i) {
      const tests::Parameter& p = e.parameters[i];
      if (p.isRecord() && !p.isArrayOfPointers() && !e.contains("Init") && !e.contains("Sparse"))
        return std::pair(p.pointee(), i);
    }
    return std::pair(std::string(), size_t{0});
  };
  for (const Export& e : tests::exportTable()) {
    const std::string type = recordType(e).first;
    if (type.empty() || type == "QvxsFIRState_32s") continue;
    if (e.contains("Free")) continue;
    if (records.count(type) == 0) records[type] = makers.emplace_back(e, Choices(1), memory).record();
  }
  EXPECT_EQ(records.size(), 84U);
  for (const Export& e : tests::exportTable()) {
    const auto [type, index] = recordType(e);
    if (type.empty() || e.contains("IIRSetTaps32sc_16sc")) continue;  // which takes another's
    if (e.contains("FIRLMSFree")) continue;                           // which does not look
    memory_.reuse();
    AnyCall call(e, Choices(1), memory_, {-1, 0x5A, {}, 3});
    for (const auto& [other, record] : records) {
      if (other == (type == "QvxsFIRState_32s" ? "QvxsFIRState64f_32s" : type)) continue;
      call.setRecord(index, record);
      EXPECT_TRUE(call.run() == qvxStatContextMismatch && call.wroteNothing()) << e.name << " takes " << other;
    }
  }
}

// NaN, infinities and numbers at the ends of the types, anywhere: no call fails, hangs or leaves its vectors because of them, and
// the results do not depend on addresses. The tests above draw none of them for filters and transforms.
TEST_F(EveryCall, TakesAnyFloat) {
  constexpr double kAny[] = {NAN, INFINITY, -INFINITY, -0.0, 1e-310, 1e-40, -3.4e38, 1.7e308, 0.5, -3.25, 70000, -0x1p62};
  size_t none = 0;
  forEach([&](const Export& e, const Choices& choices) {
    const auto outcome = [&](const Surroundings& around, std::vector<double>& results) {
      AnyCall call(e, choices, memory_, around);
      Choices places = choices;
      const int64_t every = places.oneOf({1, 4, 50});
      for (const tests::Parameter& p : e.parameters) {
        if (!p.isPointer() || p.isRecord() || !tests::PartType(p.pointee()).isFloat) continue;
        call.write(p.name, [&](size_t) { return places.between(1, every) == 1 ? kAny[places.between(0, 11)] : 0.75; });
      }
      const QvxStatus status = call.run();
      expect(call.isIntact(), "wrote elsewhere", call);
      results = call.numbers();
      for (double& x : results) {
        none += std::isnan(x);
        if (std::isnan(x)) x = NAN;
      }
      return status;
    };
    std::vector<double> first, other;
    const QvxStatus status = outcome({}, first), otherStatus = outcome({1, 0x5A}, other);
    const auto sameBits = [](double x, double y) { return std::bit_cast<uint64_t>(x) == std::bit_cast<uint64_t>(y); };
    const bool isSame = std::equal(first.begin(), first.end(), other.begin(), other.end(), sameBits);
    if (status != otherStatus || (status >= 0 && !isSame)) failures_ += e.name + " depends on the place\n";
  });
  EXPECT_GT(none, 1000U * static_cast<unsigned>(calls()));
}

// Rounding mode, flush to zero and masks are the caller's: as they were after every call. No integer made of integers depends on
// them, but for what is computed in floats on the way.
TEST_F(EveryCall, LeavesTheControlWordAlone) {
  constexpr unsigned kFlush = 0x8040;
  const unsigned usual = _mm_getcsr();
  forEach([&](const Export& e, const Choices& choices) {
    const bool isExact =
        !tests::traitsOf(e).is("modal") && std::none_of(e.parameters.begin(), e.parameters.end(), [](const tests::Parameter& p) {
          return tests::contains(p.type, {"f", "State", "Spec"});
        });
    AnyCall first(e, choices, memory_);
    const QvxStatus status = first.run();
    for (const unsigned mode : {_MM_ROUND_DOWN | 0U, _MM_ROUND_UP | kFlush, _MM_ROUND_TOWARD_ZERO | 0U, kFlush}) {
      AnyCall other(e, choices, memory_);
      const unsigned wanted = (usual & ~(_MM_ROUND_MASK | kFlush)) | mode;
      _mm_setcsr(wanted);
      const QvxStatus otherStatus = other.run();
      const unsigned left = _mm_getcsr();
      _mm_setcsr(usual);
      expect((left & ~0x3FU) == (wanted & ~0x3FU), "changed the control word", other);
      if (isExact) expect(otherStatus == status && other.results() == first.results(), "depends on the rounding mode", other);
    }
  });
}

}  // namespace
