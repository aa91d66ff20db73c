// Makes a call from bytes: the function, its lengths, scale factors, addresses and data. The variants must agree, no call may
// touch memory that is not its own, and integer arithmetic must follow its definition.
#include <cstdio>

#include "reference/scaled.h"
#include "support/variants.h"

namespace {

using namespace tests;

[[noreturn]] void fail(const AnyCall& call, const std::string& variant, const std::string& what) {
  std::fprintf(stderr, "%s, %s: %s\n", call.describe().c_str(), variant.c_str(), what.c_str());
  std::abort();
}

// The function with the next hash from this one on, so that a new function takes over only a few inputs.
const Export& functionOf(uint32_t hash) {
  static const auto all = [] {
    std::map<uint32_t, const Export*> byHash;
    for (const Export& e : exportTable()) {
      uint32_t h = 0x811C9DC5;
      for (const char c : e.name) h = (h ^ static_cast<uint8_t>(c)) * 0x01000193;
      if (e.call != nullptr) byHash[h] = &e;
    }
    return byHash;
  }();
  const auto found = all.lower_bound(hash);
  return *(found == all.end() ? all.begin() : found)->second;
}

// Sums, differences and products of two vectors of integers, scaled: what each element must be.
bool isExactlyScaled(const Export& e, const AnyCall& before, const AnyCall& after) {
  const std::string& how = traitsOf(e).exact;
  if (how.empty()) return true;
  const bool isInPlace = e.has("pSrcDst");
  const std::vector<double> a = before.numbers(isInPlace ? "pSrc" : "pSrc1"), b = before.numbers(isInPlace ? "pSrcDst" : "pSrc2");
  const std::vector<double> result = after.numbers();
  const auto s = static_cast<int>(before.shape("scaleFactor"));
  const PartType type(e.parameters.at(0).pointee());
  for (size_t i = 0; i < result.size(); ++i) {
    const auto x = static_cast<reference::Wide>(a[i]), y = static_cast<reference::Wide>(b[i]);
    const reference::Wide exact = how == "sum" ? x + y : how == "difference" ? y - x : x * y;
    const double expected = type.bytes == 1   ? reference::scaled<uint8_t>(exact, s)
                            : type.bytes == 4 ? reference::scaled<int32_t>(exact, s)
                            : type.isSigned   ? reference::scaled<int16_t>(exact, s)
                                              : reference::scaled<uint16_t>(exact, s);
    if (result[i] != expected) return false;
  }
  return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const std::vector<Variant> all = variants();
  static Memory memory;
  if (size < 6 || all.empty()) return -1;
  memory.reuse();
  Choices choices(std::span(data, size));
  const Export& e = functionOf(static_cast<uint32_t>(choices.bits(4)));
  const uint64_t manner = choices.bits(1);
  using enum Destinations;
  const Surroundings usual = {-1, 0};
  const Surroundings other = {static_cast<int>(manner & 31), 0xFF,
                              (manner & 32) == 0   ? kApart
                              : (manner & 64) == 0 ? kOnFirst
                                                   : kOnLast};

  const AnyCall before(e, choices, memory, usual, all[0]);
  AnyCall first(e, choices, memory, usual, all[0]);
  const std::vector<Wrong> wrongs = Wrongs(e).all;
  const bool isSpoiled = manner >= 192 && !wrongs.empty();
  if (isSpoiled) first.spoil(wrongs[manner % wrongs.size()], choices.bits(1));
  const QvxStatus status = first.run();
  if (!first.isIntact()) fail(first, all[0].name, "wrote elsewhere");
  if (status < 0 && !traitsOf(e).is("midway") && !first.wroteNothing()) fail(first, all[0].name, "wrote in spite of an error");
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
