// What holds for every element-wise function: an element gives the same in place and out of place, alone and among others.
#include "contract/every_call.h"

namespace {

using tests::AnyCall;
using tests::calls;
using tests::Choices;
using tests::EveryCall;
using tests::Export;

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

}  // namespace
