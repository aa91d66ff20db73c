// What holds for every function and every valid call: it reads and writes only its vectors, its outcome depends on its arguments
// alone, and a refused call leaves no trace.
#include <gtest/gtest.h>
#include <ucontext.h>
#include <xmmintrin.h>

#include <bit>
#include <cfenv>

#include "support/any_call.h"
#include "support/sanitizer.h"

// Replaces the library's allocator: counts requests, returns blocks of garbage, and fails on demand.
namespace {
struct Allocator {
  int live = 0;
  int requests = 0;
  int failing = 0;  // the number of the request that fails
  uint8_t garbage = 0xA5;
  int threadsMeanwhile = 0;  // set by another thread, as it were, before the library has its block
  size_t margin = 0;         // bytes after the last block that are not its own
  const uint8_t* end = nullptr;
} allocator;
}  // namespace

#pragma GCC visibility push(default)
extern "C" void* qvxMalloc(int64_t bytes) {
  if (bytes < 1 || ++allocator.requests == allocator.failing) return nullptr;
  const size_t rounded = (static_cast<size_t>(bytes) + 63) / 64 * 64 + allocator.margin;
  void* block = std::aligned_alloc(64, rounded);
  if (block == nullptr) return nullptr;
  ++allocator.live;
  allocator.end = static_cast<const uint8_t*>(block) + rounded - allocator.margin;
  if (allocator.threadsMeanwhile != 0) qvxSetNumThreads(allocator.threadsMeanwhile);
  return std::memset(block, allocator.garbage, rounded);
}
extern "C" void qvxFree(void* block) {
  allocator.live -= block != nullptr;
  std::free(block);
}
#pragma GCC visibility pop

namespace {

using tests::AnyCall;
using tests::Choices;
using tests::Export;
using tests::Surroundings;
using tests::Wrong;

// Calls of each function.
int calls() {
  const char* asked = std::getenv("QVXS_CALLS");
  return asked == nullptr ? 40 : std::atoi(asked);
}

class EveryCall : public testing::Test {
 protected:
  // Calls f(export, choices) for some calls of each function, until one fails.
  template <class F> void forEach(F f) {
    uint64_t seed = 0;
    for (const Export& e : tests::exportTable()) {
      for (int i = 0; e.call && i < calls(); ++i) {
        memory_.reuse();
        failures_.clear();
        f(e, Choices(++seed));
        if (failures_.empty()) continue;
        ADD_FAILURE() << failures_;
        break;
      }
    }
  }
  void expect(bool holds, const char* what, const AnyCall& call) {
    if (!holds) failures_ += std::string(what) + ": " + call.describe() + '\n';
  }

  tests::Memory memory_;
  std::string failures_;
};

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

// A function against its form in place, at every length up to some vectors and at longer ones.
TEST_F(EveryCall, InPlaceIsAsOutOfPlace) {
  size_t pairs = 0;
  for (const Export& e : tests::exportTable()) {
    const std::string apart = tests::replaced(e.name, "_I", "_");
    const Export* other = tests::findExport(apart.substr(0, apart.size() - (apart.back() == '_')));
    // One sample is no vector.
    if (apart == e.name || other == nullptr || (!e.has("len") && !e.has("numIters"))) continue;
    if (tests::traitsOf(e).is("forms")) continue;
    ++pairs;
    failures_.clear();
    for (int i = 1; i <= 4 * calls() && failures_.empty(); ++i) {
      memory_.reuse();
      const Choices choices(static_cast<uint64_t>(i));
      const int length = i <= 140 ? i : 17 * i;
      AnyCall here(e, choices, memory_, {i % 4 == 0 ? i : -1, 0x7F, {}, length});
      AnyCall there(*other, choices, memory_, {-1, 0, {}, length});
      const QvxStatus status = there.run();
      expect(here.run() == status, "another status", here);
      if (status < 0) continue;
      const std::vector<uint8_t> x = here.results("SrcDst"), y = there.results("Dst");
      expect(!y.empty() && x.size() >= y.size() && std::equal(y.begin(), y.end(), x.begin()), "another result", here);
    }
    if (!failures_.empty()) ADD_FAILURE() << failures_;
  }
  EXPECT_GT(pairs, 250U);
}

// The record of a filter has memory for each thread, as many as there were when its size was reported.
TEST(Records, CountTheThreadsOnce) {
  const std::vector<Qvx32f> taps(2000, 1);
  QvxsFIRState_32f* records[2] = {};
  const auto staysWithinItsBlock = [](QvxStatus status) {
    const auto isGarbage = [](uint8_t byte) { return byte == allocator.garbage; };
    return status == qvxStatOk && std::all_of(allocator.end, allocator.end + allocator.margin, isGarbage);
  };
  allocator.margin = size_t{4} << 20;
  allocator.threadsMeanwhile = 64;
  qvxSetNumThreads(1);
  EXPECT_TRUE(staysWithinItsBlock(qvxsFIRInitAlloc_32f(&records[0], taps.data(), 2000, nullptr)));
  qvxSetNumThreads(1);
  EXPECT_TRUE(staysWithinItsBlock(qvxsFIRMRInitAlloc_32f(&records[1], taps.data(), 2000, 1, 0, 1, 0, nullptr)));
  allocator.margin = 0;
  allocator.threadsMeanwhile = 0;
  qvxSetNumThreads(0);
  for (QvxsFIRState_32f* record : records) EXPECT_EQ(qvxsFIRFree_32f(record), qvxStatOk);
}

// An element of a call by itself.
class OneElement : public tests::Arguments {
 public:
  OneElement(const Export& e, AnyCall& whole, size_t length) : export_(e), whole_(whole), length_(length) {}

  void* pointer(size_t index, size_t size, bool, char) override {
    const uint8_t* all = whole_.bytesOf(index, true);
    if (all == nullptr) return nullptr;
    sizes_[index] = size * whole_.extentOf(index) / length_;
    return std::memcpy(element_[index], all + at_ * sizes_[index], sizes_[index]);
  }
  int64_t integer(size_t index) override { return export_.parameters[index].name == "len" ? 1 : whole_.integer(index); }
  double real(size_t index) override { return whole_.real(index); }

  QvxStatus run(size_t at) {
    at_ = at;
    return export_.call(export_.address, *this);
  }
  // The element that the whole call left. All NaN are equal.
  bool agrees() const {
    for (size_t i = 0; i < export_.parameters.size(); ++i) {
      const tests::Parameter& p = export_.parameters[i];
      if (!p.isPointer() || whole_.bytesOf(i, false) == nullptr) continue;
      const tests::PartType part(p.pointee());
      const uint8_t* other = whole_.bytesOf(i, false) + at_ * sizes_[i];
      for (size_t k = 0; k < sizes_[i]; k += part.bytes) {
        const bool areNaN = part.isFloat && std::isnan(part.get(element_[i] + k)) && std::isnan(part.get(other + k));
        if (!areNaN && std::memcmp(element_[i] + k, other + k, part.bytes) != 0) return false;
      }
    }
    return true;
  }

 private:
  const Export& export_;
  AnyCall& whole_;
  size_t length_, at_ = 0, sizes_[8] = {};
  uint8_t element_[8][64];
};

// Whether each element of a result comes from the elements at its own index alone.
bool isElementwise(const Export& e) {
  if (!e.call || !e.has("len") || e.has("tblLen")) return false;
  if (tests::traitsOf(e).is("whole")) return false;
  return std::none_of(e.parameters.begin(), e.parameters.end(),
                      [](const tests::Parameter& p) { return p.isArrayOfPointers() || p.isRecord(); });
}

// An element gives the same alone as among others, at any index; the first with a warning decides the status.
TEST_F(EveryCall, ElementsDoNotKnowTheirPlace) {
  size_t functions = 0;
  for (const Export& e : tests::exportTable()) {
    if (!isElementwise(e)) continue;
    failures_.clear();
    bool isOne = true;
    for (int i = 1; i <= calls() && failures_.empty() && isOne; ++i) {
      memory_.reuse();
      const int length = i % 8 == 0 ? 150 + 11 * i : 2 + i * 37 % 149;
      AnyCall whole(e, Choices(static_cast<uint64_t>(i)), memory_, {-1, 0, {}, length});
      for (size_t k = 0; k < e.parameters.size(); ++k) {
        if (e.parameters[k].isPointer() && whole.extentOf(k) % static_cast<size_t>(length) != 0) isOne = false;
      }
      const QvxStatus status = isOne ? whole.run() : qvxStatBadArg;
      if (status < 0) continue;
      OneElement one(e, whole, static_cast<size_t>(length));
      QvxStatus first = qvxStatOk;
      for (size_t at = 0; at < static_cast<size_t>(length) && failures_.empty(); ++at) {
        const QvxStatus now = one.run(at);
        if (first == qvxStatOk) first = now;
        if (!one.agrees()) expect(false, ("another result for element " + std::to_string(at)).c_str(), whole);
      }
      expect(first == status, "another status", whole);
    }
    functions += isOne;
    if (!failures_.empty()) ADD_FAILURE() << failures_;
  }
  EXPECT_GT(functions, 400U);
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

TEST_F(EveryCall, AllocatesOnlyWhereItMayAndSurvivesWithout) {
  size_t failed = 0;
  forEach([&](const Export& e, const Choices& choices) {
    for (int request = 0;; ++request) {  // 0: none fails
      const int live = allocator.live;
      {
        AnyCall call(e, choices, memory_);
        const int before = allocator.live;
        allocator.requests = 0;
        allocator.failing = request;
        const QvxStatus status = call.run();
        allocator.failing = 0;
        if (!tests::traitsOf(e).is("allocates")) expect(allocator.requests == 0, "allocated", call);
        if (request > 0 && allocator.requests >= request) {
          ++failed;
          expect(status == qvxStatNoMem, "did not say that memory was out", call);
          expect(call.wroteNothing() && call.leadsNowhere(), "wrote without memory", call);
          expect(allocator.live == before, "kept memory", call);
        }
        const bool changesOwner = tests::contains(e.name, {"InitAlloc", "Free"});
        expect(changesOwner || allocator.live == before, "kept memory", call);
        if (allocator.requests < request || allocator.requests == 0) request = -2;
      }
      if (allocator.live != live) failures_ += e.name + " leaks\n";
      if (request < 0 || !failures_.empty()) break;
    }
  });
  EXPECT_GT(failed, 20U * static_cast<unsigned>(calls()));
}

// Lags at which the vectors do not meet are zeros, but none may be stored when there is no memory for the others. Random calls as
// above reach this once in some thousand.
template <class T> bool writesWithoutMemory(QvxStatus (*correlate)(const T*, int, const T*, int, T*, int, int)) {
  const std::vector<T> x(1000);
  std::vector<T> y(3000);
  std::memset(static_cast<void*>(y.data()), 0xC9, y.size() * sizeof(T));
  allocator.requests = 0;
  allocator.failing = 1;
  const QvxStatus status = correlate(x.data(), 1000, x.data(), 1000, y.data(), 3000, -1500);
  allocator.failing = 0;
  const auto* bytes = reinterpret_cast<const uint8_t*>(y.data());
  const bool isUntouched = std::all_of(bytes, bytes + y.size() * sizeof(T), [](uint8_t byte) { return byte == 0xC9; });
  return status != qvxStatNoMem || !isUntouched;
}

TEST_F(EveryCall, WritesNoZerosBesideSumsWithoutMemory) {
  EXPECT_FALSE(writesWithoutMemory(qvxsCrossCorr_32f));
  EXPECT_FALSE(writesWithoutMemory(qvxsCrossCorr_64f));
  EXPECT_FALSE(writesWithoutMemory(qvxsCrossCorr_32fc));
  EXPECT_FALSE(writesWithoutMemory(qvxsCrossCorr_64fc));
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

// Each call on a stack of its own, filled with a pattern: what it overwrites, it uses. Threads of audio programs have small
// stacks.
TEST_F(EveryCall, NeedsLittleStack) {
  if (tests::isSanitized()) GTEST_SKIP() << "sanitizers widen every frame, and lose track of such a stack";
  constexpr size_t kMost = 24 << 10;
  static constexpr uint8_t kPaint = 0xA5;
  static AnyCall* running;
  std::vector<uint8_t> stack(128 << 10);
  size_t most = 0;
  size_t calls = 0;
  qvxSetNumThreads(2);  // whatever processors there are
  forEach([&](const Export& e, const Choices& choices) {
    Surroundings around;
    if (++calls % 8 == 0) around.length = 5000;  // some ways are for long vectors
    // Sorts have ways for longer ones, and go on from range to range.
    if (calls % 8 == 4 && std::string_view(e.name).find("Sort") != std::string_view::npos) around.length = 70000;
    AnyCall call(e, choices, memory_, around);
    std::fill(stack.begin(), stack.end(), kPaint);
    ucontext_t here, there;
    getcontext(&there);
    there.uc_stack.ss_sp = stack.data();
    there.uc_stack.ss_size = stack.size();
    there.uc_link = &here;
    makecontext(
        &there, [] { running->run(); }, 0);
    running = &call;
    swapcontext(&here, &there);
    const auto lowest = std::find_if(stack.begin(), stack.end(), [](uint8_t byte) { return byte != kPaint; });
    const auto used = static_cast<size_t>(stack.end() - lowest);
    most = std::max(most, used);
    expect(used <= kMost, ("needed " + std::to_string(used) + " bytes of stack").c_str(), call);
  });
  qvxSetNumThreads(0);
  EXPECT_GT(most, 1U << 10);
}

}  // namespace
