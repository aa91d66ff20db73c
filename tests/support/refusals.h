// What each function refuses, in the order in which it looks.
#pragma once

#include <climits>

#include "support/exports.h"

namespace tests {

struct Wrong {
  enum Kind { kNull, kForeignRecord, kValue, kContent } kind;
  size_t index;  // of the parameter
  std::vector<double> values;
  QvxStatus status;  // qvxStatOk: it is taken, and must not come before what is wrong
};

// Pointers that may be null, and those of a half that is refused alone.
inline bool isOptional(const Export& e, const Parameter& p) {
  if (e.contains("CartToPolar")) return p.name.find("pDst") == 0;
  if (e.contains("FFT") && (p.name == "pBuffer" || p.name == "pInit")) return true;
  if (p.name == "pDlyLine") return p.type.find("const") == 0;
  return (p.name == "pIndx" && e.isOf({"MaxIndx", "MinIndx", "MaxAbsIndx", "MinAbsIndx"})) ||
         (p.name != "pDst" && e.isOf({"RealToCplx"}));
}

class Wrongs {
 public:
  explicit Wrongs(const Export& e) : e_(e) {
    if (e.contains("FFT")) ofTransforms();
    else if (e.contains("FIR")) ofFir();
    else if (e.contains("IIR")) ofIir();
    else ofVectors();
    for (size_t i = 0; i < e.parameters.size(); ++i) {
      const std::string& name = e.parameters[i].name;
      if (name == "pIndx" || name == "pBuffer" || name == "pDlyLine") add({Wrong::kNull, i, {}, qvxStatOk});
    }
    value("scaleFactor", {99, -99, INT_MIN}, qvxStatOk);
  }

  std::vector<Wrong> all;

 private:
  // Each counts where it stands first.
  void add(const Wrong& one) {
    const auto isKnown = [&](const Wrong& w) { return w.index == one.index && w.kind == one.kind; };
    if (std::none_of(all.begin(), all.end(), isKnown)) all.push_back(one);
  }
  template <class Which> void nulls(Which isMeant) {
    for (size_t i = 0; i < e_.parameters.size(); ++i) {
      const Parameter& p = e_.parameters[i];
      if (p.isPointer() && !isOptional(e_, p) && isMeant(p)) add({Wrong::kNull, i, {}, qvxStatNullPtr});
    }
  }
  void nulls() {
    nulls([](const Parameter&) { return true; });
  }
  void value(const char* name, std::vector<double> values, QvxStatus status) {
    if (e_.has(name)) add({Wrong::kValue, static_cast<size_t>(e_.indexOf(name)), std::move(values), status});
  }
  void below1(std::initializer_list<const char*> names, QvxStatus status) {
    for (const char* name : names) {
      const bool isUnsigned = e_.has(name) && e_.parameters[static_cast<size_t>(e_.indexOf(name))].type == "Qvx32u";
      value(name, isUnsigned ? std::vector<double>{0} : std::vector<double>{0, -1, INT_MIN}, status);
    }
  }
  void lengths() { below1({"len", "numIters", "tblLen", "chanLen"}, qvxStatBadSize); }
  void foreignRecords() {
    for (size_t i = 0; i < e_.parameters.size(); ++i) {
      const Parameter& p = e_.parameters[i];
      const bool isPlace = e_.contains("Init") || p.isArrayOfPointers() || e_.contains("Sparse");
      if (p.isRecord() && !isPlace) all.push_back({Wrong::kForeignRecord, i, {}, qvxStatContextMismatch});
    }
  }

  void ofTransforms() {
    const bool isInit = e_.contains("FFTInit_"), isSize = e_.contains("GetSize");
    if (isInit || !isSize) nulls([&](const Parameter& p) { return isInit ? p.isArrayOfPointers() : p.isRecord(); });
    if (isInit || isSize) value("order", {-1, 31, INT_MAX}, qvxStatBadFFTOrder);
    if (e_.contains("GetBufSize")) nulls();
    foreignRecords();
    nulls();
    value("order", {-1, 31, INT_MAX}, qvxStatBadFFTOrder);
    value("flag", {3, 0, -1, 16, INT_MIN}, qvxStatBadFFTFlag);
  }
  void ofFir() {
    // The forms without a record in the types of one kind look at their arguments in turn.
    const bool inTurn = e_.isOf({"FIR"}) && e_.contains("_Direct_") && !e_.has("scaleFactor");
    if (inTurn) nulls([](const Parameter& p) { return p.name.find("Src") != p.name.npos || p.name.find("Dst") != p.name.npos; });
    if (inTurn) lengths();
    if (inTurn) nulls([](const Parameter& p) { return p.name == "pTaps"; });
    else nulls();
    if (!inTurn) lengths();
    below1({"tapsLen"}, qvxStatBadTapsLen);
    nulls();
    if (e_.has("pDlyLineIndex")) {
      const auto index = static_cast<size_t>(e_.indexOf("pDlyLineIndex"));
      all.push_back({Wrong::kContent, index, {-1, 1000, INT_MIN, INT_MAX}, qvxStatBadDlyIndex});
    }
    foreignRecords();
  }
  void ofIir() {
    if (e_.contains("Direct_16s")) below1({"order", "numBq"}, qvxStatBadIIROrder);
    nulls();
    lengths();
    if (e_.contains("Direct_16s")) return;
    if (e_.contains("Gen")) return value("order", {13, 0, -1}, qvxStatBadGenOrder), ofDesign();
    below1({"order", "numBq"}, qvxStatBadIIROrder);
    // The second looks at the record of the first channel for them.
    below1({"nChannels"}, e_.contains("64f_32s") ? qvxStatContextMismatch : qvxStatBadChannels);
    value("nzTapsLenB", {0, -1, INT_MIN}, qvxStatBadIIROrder);
    value("nzTapsLenA", {-1, INT_MIN}, qvxStatBadIIROrder);
    for (const char* order : {"orderB", "orderA"}) value(order, {-1, INT_MIN}, qvxStatBadSparsePos);
    foreignRecords();
  }
  void ofDesign() {
    value("rFreq", {0.5, 0, -0.1, 0.7, NAN}, qvxStatBadCutoff);
    value("filterType", {2, -1}, qvxStatBadGenParam);
  }
  void ofVectors() {
    const bool isComplex = e_.name.find('c', e_.name.find('_')) != std::string::npos;
    if (e_.isOf({"MaxOrder"}) || (isComplex && e_.isOf({"Add", "Sub"}))) lengths(), nulls();
    nulls([](const Parameter& p) { return !p.isArrayOfPointers(); });
    lengths();
    below1({"nChannels"}, qvxStatBadSize);
    nulls();
    if (e_.contains("ShiftC")) value("val", {-1, INT_MIN}, qvxStatNegShift);
    if (e_.contains("DivC_") && e_.name != "qvxsDivC_64s_ISfs") value("val", {0}, qvxStatDivByZero);
    if (e_.contains("Div_Round")) value("rndMode", {3, -1, INT_MIN, INT_MAX}, qvxStatBadRoundMode);
    else if (e_.contains("Convert_32f16f") || e_.contains("Convert_16s16f") || e_.contains("Convert_16f16s"))
      value("rndMode", {qvxRoundHalfAway}, qvxStatBadRoundMode);
    else value("rndMode", {qvxRoundHalfAway}, qvxStatOk);
    value("relOp", {1, -1, 2, 3, 5, INT_MAX}, qvxStatBadArg);
    const bool comparesMagnitudes = isComplex || e_.contains("Abs") || e_.contains("Inv");
    value("level", {-1}, comparesMagnitudes ? qvxStatNegThreshold : qvxStatOk);
    const bool isShort = e_.contains("_16s");
    value("levelLT", {isShort ? INT16_MAX : double{INT_MAX}}, qvxStatBadLevels);
    for (const char* offset : {"srcBitOffset", "dstBitOffset"}) value(offset, {-1, INT_MIN}, qvxStatBadSize);
    if (e_.isOf({"PolarToCart"})) value("phaseFixedPoint", {-1, 32}, qvxStatBadSize);
  }

  const Export& e_;
};

}  // namespace tests
