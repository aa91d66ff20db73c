// Bytes to a call: which function, its lengths, scale factors, places in memory and data. The variants must agree, no call may
// touch what is not its own, and integer arithmetic must be what its definition says.
#include <cstdio>

#include "reference/scaled.h"
#include "support/variants.h"

namespace {

using namespace tests;

[[noreturn]] void fail(const AnyCall& call, const std::string& variant, const std::string& what) {
  std::fprintf(stderr, "%s, %s: %s\n", call.describe().c_str(), variant.c_str(), what.c_str());
  std::abort();
}

const std::vector<const Export*>& functions() {
  static const std::vector<const Export*> all = [] {
    std::vector<const Export*> withStatus;
    for (const Export& e : exportTable()) {
      if (e.call) withStatus.push_back(&e);
    }
    return withStatus;
  }();
  return all;
}

// Sums, differences and products of two vectors of integers, scaled: what each element must be.
bool isExactlyScaled(const Export& e, const AnyCall& before, const AnyCall& after) {
  const std::string tail = e.name.substr(e.name.find('_'));
  if (!contains(e.name, {"qvxsAdd_", "qvxsSub_", "qvxsMul_"}) || !contains(tail, {"Sfs"}) || contains(tail, {"Low"})) return true;
  if (!contains(tail, {"_8u_", "_16u_", "_16s_", "_32s_"})) return true;
  const bool isInPlace = contains(tail, {"_ISfs"});
  const std::vector<double> a = before.numbers(isInPlace ? "pSrc" : "pSrc1"), b = before.numbers(isInPlace ? "pSrcDst" : "pSrc2");
  const std::vector<double> result = after.numbers();
  const auto s = static_cast<int>(before.shape("scaleFactor"));
  for (size_t i = 0; i < result.size(); ++i) {
    const auto x = static_cast<reference::Wide>(a[i]), y = static_cast<reference::Wide>(b[i]);
    const reference::Wide exact = e.name[4] == 'A' ? x + y : e.name[4] == 'S' ? y - x : x * y;
    const double expected = contains(tail, {"_8u_"})    ? reference::scaled<uint8_t>(exact, s)
                            : contains(tail, {"_16u_"}) ? reference::scaled<uint16_t>(exact, s)
                            : contains(tail, {"_16s_"}) ? reference::scaled<int16_t>(exact, s)
                                                        : reference::scaled<int32_t>(exact, s);
    if (result[i] != expected) return false;
  }
  return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const std::vector<Variant> all = variants();
  static Memory memory;
  if (size < 4 || all.empty()) return -1;
  memory.reuse();
  Choices choices(std::span(data, size));
  const Export& e = *functions()[choices.bits(2) % functions().size()];
  const uint64_t manner = choices.bits(1);
  const Surroundings usual = {-1, 0, false};
  const Surroundings other = {static_cast<int>(manner & 31), 0xFF, (manner & 32) != 0};

  const AnyCall before(e, choices, memory, usual, all[0]);
  AnyCall first(e, choices, memory, usual, all[0]);
  const std::vector<Wrong> wrongs = Wrongs(e).all;
  const bool isSpoiled = manner >= 192 && !wrongs.empty();
  if (isSpoiled) first.spoil(wrongs[manner % wrongs.size()], choices.bits(1));
  const QvxStatus status = first.run();
  if (!first.isIntact()) fail(first, all[0].name, "wrote elsewhere");
  if (status < 0 && !refusesInTheMiddle(e) && !first.wroteNothing()) fail(first, all[0].name, "wrote in spite of an error");
  if (isSpoiled) return 0;
  if (status == qvxStatOk && !isExactlyScaled(e, before, first)) fail(first, all[0].name, "not what the definition says");

  for (const Variant& variant : all) {
    AnyCall again(e, choices, memory, usual, variant);
    if (again.run() != status) fail(again, variant.name, "another status");
    if (!again.isIntact()) fail(again, variant.name, "wrote elsewhere");
    if (status < 0) continue;
    const std::string apart = difference(e, first, again);
    if (!apart.empty()) fail(again, variant.name, apart);
    AnyCall elsewhere(e, choices, memory, other, variant);
    if (elsewhere.run() != status) fail(elsewhere, variant.name, "another status elsewhere");
    if (elsewhere.results() != again.results()) fail(elsewhere, variant.name, "another result elsewhere");
  }
  return 0;
}
