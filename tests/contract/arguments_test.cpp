// The argument rules, held by every function: which status, in which order, and nothing written on an error.
#include <gtest/gtest.h>
#include <qvx/qvxs.h>

#include <climits>
#include <cstring>
#include <map>
#include <set>

#include "support/exports.h"

namespace {

using tests::Export;
using tests::Parameter;

bool isOf(const Export& e, const std::set<std::string>& stems) { return stems.count(e.name.substr(0, e.name.find('_'))) != 0; }

// The functions that test their length before their pointers.
bool testsLengthFirst(const Export& e) {
  const bool isComplex = e.name.find("c", e.name.find('_')) != std::string::npos;
  return isOf(e, {"qvxsMaxOrder"}) || (isComplex && isOf(e, {"qvxsAdd", "qvxsSub"}));
}

// Pointers that may be null.
bool isOptional(const Export& e, const Parameter& p) {
  static const std::set<std::string> stems = {"qvxsMaxIndx", "qvxsMinIndx", "qvxsMaxAbsIndx", "qvxsMinAbsIndx"};
  return (p.name == "pIndx" && isOf(e, stems)) || (p.name != "pDst" && isOf(e, {"qvxsRealToCplx"}));
}

// The lengths that a function has, each of which has to be 1 or more. An array of channel pointers is tested behind them, the
// interleaved vector before.
std::vector<std::string> lengthsOf(const Export& e) {
  std::vector<std::string> lengths;
  for (const char* name : {"len", "tblLen", "nChannels", "chanLen"}) {
    if (e.indexOf(name) >= 0) lengths.push_back(name);
  }
  return lengths;
}

bool refusesHalfAway(const Export& e) {
  static const std::set<std::string> names = {"qvxsConvert_32f16f", "qvxsConvert_16s16f", "qvxsConvert_16f16s_Sfs"};
  return names.count(e.name) != 0;
}

// A function of two halves, each with a status of its own: one refused, the other is written.
bool isInHalves(const Export& e) { return e.name.find("CartToPolar") != std::string::npos; }

bool refusesOtherModes(const Export& e) { return e.name.find("Div_Round") != std::string::npos; }

// Division by a constant, but for the one that takes a zero as a warning.
bool refusesZero(const Export& e) { return e.name.find("DivC_") != std::string::npos && e.name != "qvxsDivC_64s_ISfs"; }

bool isShift(const Export& e) { return e.name.find("ShiftC") != std::string::npos; }

// The functions that compare magnitudes and so refuse a negative level.
bool refusesNegativeLevel(const Export& e) {
  if (e.name.find("Threshold") == e.name.npos) return false;
  const bool isComplex = e.name.find("6sc") != e.name.npos || e.name.find("fc") != e.name.npos;
  return isComplex || e.name.find("Abs") != e.name.npos || e.name.find("Inv") != e.name.npos;
}

// Arguments of a call that succeeds, of which any may be replaced. Sources and destinations are separate blocks.
class Plain : public tests::Arguments {
 public:
  explicit Plain(const Export& e) : export_(e) {}

  Plain& set(const std::string& parameter, int64_t value) { return values_[parameter] = value, *this; }
  Plain& setLevel(const std::string& parameter, double value) {
    reals_[parameter] = value;
    return set(parameter, static_cast<int64_t>(value));
  }
  Plain& setNull(size_t index) { return nulls_.insert(index), *this; }

  void* pointer(size_t index, size_t, bool isConst, char kind) override {
    if (!isConst) outputs_.insert(index);
    if (kind == 'p' || kind == 'P') {
      if (kind == 'P') outputs_.insert(kChannels);
      return nulls_.count(index) != 0 ? nullptr : channels_;
    }
    return nulls_.count(index) != 0 ? nullptr : blocks_[index].data();
  }
  int64_t integer(size_t index) override {
    const std::string& name = export_.parameters[index].name;
    if (values_.count(name) != 0) return values_[name];
    static const std::set<std::string> lengths = {"len", "tblLen", "nChannels", "chanLen"};
    static const std::set<std::string> ones = {"val", "rndMode", "order", "numBq"};
    return lengths.count(name) != 0 ? kLength : ones.count(name) != 0 ? 1 : 0;
  }
  double real(size_t index) override {
    const std::string& name = export_.parameters[index].name;
    if (reals_.count(name) != 0) return reals_[name];
    return values_.count(name) != 0 ? static_cast<double>(values_[name]) : name == "rFreq" ? 0.25 : 1.5;
  }

  QvxStatus call() { return export_.call(export_.address, *this); }
  bool wrote() const {
    for (size_t index : outputs_) {
      for (uint8_t byte : blocks_[index]) {
        if (byte != 0x5A) return true;
      }
    }
    return false;
  }

 private:
  static constexpr int kLength = 3;
  static constexpr size_t kBytes = 256;
  static constexpr size_t kChannels = 7;  // the block of all channels
  const Export& export_;
  std::vector<std::vector<uint8_t>> blocks_{8, std::vector<uint8_t>(kBytes, 0x5A)};
  void* channels_[kLength] = {blocks_[kChannels].data(), blocks_[kChannels].data() + 64, blocks_[kChannels].data() + 128};
  std::map<std::string, int64_t> values_;
  std::map<std::string, double> reals_;
  std::set<size_t> nulls_;
  std::set<size_t> outputs_;
};

void expectRefused(Plain call, QvxStatus status, const std::string& what) {
  EXPECT_EQ(call.call(), status) << what;
  EXPECT_FALSE(call.wrote()) << what;
}

class Contract : public testing::TestWithParam<Export> {};

TEST_P(Contract, NullPointers) {
  const Export& e = GetParam();
  for (size_t i = 0; i < e.parameters.size(); ++i) {
    if (!e.parameters[i].isPointer() || (isInHalves(e) && e.parameters[i].name.find("pDst") == 0)) continue;
    if (isOptional(e, e.parameters[i])) {
      EXPECT_EQ(Plain(e).setNull(i).call(), qvxStatOk);
      expectRefused(Plain(e).setNull(i).set("len", 0), qvxStatBadSize, e.parameters[i].name);
      continue;
    }
    expectRefused(Plain(e).setNull(i), qvxStatNullPtr, e.parameters[i].name);
    const bool isLater = testsLengthFirst(e) || e.parameters[i].isArrayOfPointers();
    const QvxStatus first = isLater ? qvxStatBadSize : qvxStatNullPtr;
    for (const std::string& len : lengthsOf(e)) {
      expectRefused(Plain(e).setNull(i).set(len, 0), first, e.parameters[i].name + ", " + len + " 0");
    }
    if (isShift(e)) expectRefused(Plain(e).setNull(i).set("val", -1), qvxStatNullPtr, "negative shift");
    if (isShift(e)) expectRefused(Plain(e).setNull(i).set("val", 0), qvxStatNullPtr, "shift by 0");
    if (refusesZero(e)) expectRefused(Plain(e).setNull(i).set("val", 0), qvxStatNullPtr, "division by 0");
    if (refusesOtherModes(e)) expectRefused(Plain(e).setNull(i).set("rndMode", 3), qvxStatNullPtr, "bad mode");
  }
}

TEST_P(Contract, Lengths) {
  const Export& e = GetParam();
  for (const std::string& name : lengthsOf(e)) {
    for (const int64_t len : {0, -1, INT_MIN}) {
      if (len < 0 && e.parameters[e.indexOf(name)].type == "Qvx32u") continue;
      expectRefused(Plain(e).set(name, len), qvxStatBadSize, name + " " + std::to_string(len));
    }
  }
  if (e.indexOf("len") < 0) return;
  for (const int64_t len : {0, -1, INT_MIN}) {
    if (len < 0 && e.parameters[e.indexOf("len")].type == "Qvx32u") continue;
    if (e.indexOf("relOp") >= 0) expectRefused(Plain(e).set("len", len).set("relOp", 1), qvxStatBadSize, "bad relation");
    if (refusesNegativeLevel(e)) expectRefused(Plain(e).set("len", len).setLevel("level", -1), qvxStatBadSize, "negative level");
    if (isShift(e)) expectRefused(Plain(e).set("len", len).set("val", -1), qvxStatBadSize, "negative shift");
    if (isShift(e)) expectRefused(Plain(e).set("len", len).set("val", 99), qvxStatBadSize, "shift beyond the width");
    if (e.indexOf("scaleFactor") >= 0) {
      expectRefused(Plain(e).set("len", len).set("scaleFactor", 99), qvxStatBadSize, "scale factor with zeros only");
    }
    if (refusesHalfAway(e)) expectRefused(Plain(e).set("len", len).set("rndMode", 2), qvxStatBadSize, "bad mode");
    if (refusesOtherModes(e)) expectRefused(Plain(e).set("len", len).set("rndMode", 3), qvxStatBadSize, "bad mode");
    if (refusesZero(e)) expectRefused(Plain(e).set("len", len).set("val", 0), qvxStatBadSize, "division by 0");
  }
}

TEST_P(Contract, Success) {
  const Export& e = GetParam();
  Plain call(e);
  EXPECT_EQ(call.call(), e.name == "qvxsPackBits_32u8u" ? qvxWarnBadBitLen : qvxStatOk);  // its lengths are 0x5A5A5A5A
}

INSTANTIATE_TEST_SUITE_P(All, Contract, testing::ValuesIn([] {
                           std::vector<Export> withStatus;
                           for (const Export& e : tests::exportTable()) {
                             if (e.call && !handlesRecords(e)) withStatus.push_back(e);
                           }
                           return withStatus;
                         }()),
                         [](const auto& info) { return info.param.name; });

TEST(Refusals, OfTheFamilies) {
  for (const Export& e : tests::exportTable()) {
    if (!e.call || handlesRecords(e)) continue;
    if (isShift(e)) {
      expectRefused(Plain(e).set("val", -1), qvxStatNegShift, e.name);
      expectRefused(Plain(e).set("val", INT_MIN), qvxStatNegShift, e.name);
    }
    if (refusesZero(e)) expectRefused(Plain(e).set("val", 0), qvxStatDivByZero, e.name);
    if (refusesOtherModes(e)) {
      for (const int mode : {-1, 3, INT_MIN, INT_MAX}) expectRefused(Plain(e).set("rndMode", mode), qvxStatBadRoundMode, e.name);
    }
    if (refusesHalfAway(e)) {
      expectRefused(Plain(e).set("rndMode", qvxRoundHalfAway), qvxStatBadRoundMode, e.name);
    } else if (e.indexOf("rndMode") >= 0) {
      EXPECT_EQ(Plain(e).set("rndMode", qvxRoundHalfAway).call(), qvxStatOk) << e.name;
    }
    if (e.indexOf("relOp") >= 0) {
      for (const int relOp : {-1, 1, 2, 3, 5, INT_MAX}) {
        expectRefused(Plain(e).set("relOp", relOp).setLevel("level", -1), qvxStatBadArg, e.name + ", and a negative level");
      }
    }
    if (refusesNegativeLevel(e)) {
      expectRefused(Plain(e).setLevel("level", -1), qvxStatNegThreshold, e.name);
      EXPECT_EQ(Plain(e).setLevel("level", 0).call(), qvxStatOk) << e.name;
    } else if (e.indexOf("level") >= 0) {
      EXPECT_EQ(Plain(e).setLevel("level", -1).call(), qvxStatOk) << e.name;
    }
    if (e.indexOf("levelLT") >= 0) {
      expectRefused(Plain(e).setLevel("levelLT", 3).setLevel("levelGT", 2), qvxStatBadLevels, e.name);
      EXPECT_EQ(Plain(e).setLevel("levelLT", 3).setLevel("levelGT", 3).call(), qvxStatOk) << e.name;
    }
    for (const char* offset : {"srcBitOffset", "dstBitOffset"}) {
      if (e.indexOf(offset) >= 0) expectRefused(Plain(e).set(offset, -1), qvxStatBadSize, e.name);
    }
  }
}

// An unsigned length lets a negative argument through, but a call that comes down to a copy or to zeros meets their own test.
TEST(Refusals, OfUnsignedLengthsByWayOfCopyAndZero) {
  Qvx64s v[1] = {5};
  EXPECT_EQ(qvxsAddC_64s_Sfs(v, 0, v, static_cast<Qvx32u>(-1), 0, 0), qvxStatBadSize);
  EXPECT_EQ(qvxsAddC_64s_Sfs(v, 1, v, static_cast<Qvx32u>(-1), 70, 0), qvxStatBadSize);
  EXPECT_EQ(v[0], 5);
}

}  // namespace
