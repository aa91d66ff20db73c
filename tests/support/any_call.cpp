// What a call is drawn from: numbers, vectors and their contents, records.
#include "support/any_call.h"

#include <algorithm>
#include <cmath>

namespace tests {

// ---- arguments that are numbers

int64_t AnyCall::drawInteger(const Parameter& p, Choices& choices) {
  static const std::set<std::string> lengths = {"len", "numIters", "chanLen", "tblLen"};
  if (const std::string* bound = traits_.boundOf(p.name)) return choices.between(0, std::max<int64_t>(shape(*bound), 1) - 1);
  const Range* range = traits_.rangeOf(p.name);
  if (around_.length > 0 && lengths.count(p.name) != 0)
    return std::max<int64_t>(around_.length, static_cast<int64_t>(range->least));
  if (range == nullptr) return choices.oneIn(2) ? choices.between(-20, 20) : static_cast<int64_t>(choices.bits());
  if (range->isChoice)
    return range->choices[static_cast<size_t>(choices.between(1, static_cast<int64_t>(range->choices.size())) - 1)];
  const bool isSeldom = choices.oneIn(5);
  return choices.between(static_cast<int64_t>(isSeldom ? range->seldomLeast : range->least),
                         static_cast<int64_t>(isSeldom ? range->seldomMost : range->most));
}

double AnyCall::drawReal(const Parameter& p, Choices& choices) {
  const double unit = static_cast<double>(static_cast<int32_t>(choices.bits(4))) * 0x1p-31;
  const Range* range = traits_.rangeOf(p.name);
  if (range == nullptr) return unit * (choices.oneIn(4) ? 1e4 : 4);
  const bool isSeldom = choices.oneIn(5);
  const double least = isSeldom ? range->seldomLeast : range->least, most = isSeldom ? range->seldomMost : range->most;
  return least + (most - least) * (unit + 1) / 2;
}

// ---- vectors

// How many elements a vector has.
size_t AnyCall::extent(const Parameter& p) const {
  const int64_t count = evaluate(traits_.extentOf(p.name), [this](const std::string& name) { return shape(name); });
  return static_cast<size_t>(std::max<int64_t>(count, 0));
}

uint8_t* AnyCall::vector(size_t bytes, Role role, size_t index, const Fill& fill) {
  Block& block = memory_.take();
  if (bytes + 512 > Memory::kCapacity) std::abort();
  const bool isAtEnd = around_.offset < 0;
  uint8_t* at = isAtEnd ? block.atEnd(bytes) : block.atOffset(static_cast<size_t>(around_.offset) * (index + 1), bytes);
  std::memset(at, around_.garbage, bytes);
  if (fill) fill(at);
  markWritten(at, bytes, fill != nullptr);
  const Parameter& p = export_.parameters[index];
  vectors_.push_back({&block, at, bytes, role, p.name, PartType(p.pointee()), std::vector<uint8_t>(at, at + bytes)});
  return at;
}

namespace {

// Numbers that are small, large, extreme, between two others or none.
template <class T> void drawNumbers(T* p, size_t count, bool isTame, Choices& choices) {
  const uint64_t style = choices.bits(1);
  const double scale = std::ldexp(1, -63 + (isTame ? 0 : static_cast<int>(style & 15)));
  for (size_t i = 0; i < count; ++i) {
    const uint64_t bits = choices.bits();
    if constexpr (std::is_floating_point_v<T>) {
      double x = static_cast<double>(static_cast<int64_t>(bits)) * scale;
      if (!isTame && (bits & 3) == 0) x = std::trunc(x) + 0.5;
      if (!isTame && style >= 128 && (bits & 28) == 4) {
        constexpr double kSpecial[] = {INFINITY, -INFINITY, NAN, -0.0, 0, 1e-40, 3e38, -1e-310};
        x = kSpecial[bits >> 5 & 7];
      }
      p[i] = static_cast<T>(x);
    } else {
      uint64_t v = style % 3 == 0 ? static_cast<uint64_t>(static_cast<int64_t>(bits) >> (bits & 31) >> 30) : bits;
      if ((bits & 15) == 3) v = uint64_t{1} << (8 * sizeof(T) - 1);
      if ((bits & 15) == 5) v = (uint64_t{1} << (8 * sizeof(T) - 1)) - 1;
      if ((bits & 15) == 7) v = 0;
      p[i] = static_cast<T>(v);
    }
  }
}

}  // namespace

void AnyCall::fill(uint8_t* p, size_t bytes, const Parameter& parameter, Choices& choices) {
  const PartType type(parameter.pointee());
  const size_t part = type.bytes;
  // Longer vectors repeat this many numbers: a prime, so that no two slices or blocks are alike.
  constexpr size_t kMost = 1021;
  alignas(8) uint8_t drawn[8 * kMost];
  const size_t count = std::min(bytes / part, kMost);
  const auto draw = [&](auto number) {
    using T = decltype(number);
    drawNumbers(reinterpret_cast<T*>(drawn), count, traits_.is("tame"), choices);
  };
  if (type.isFloat) part == 4 ? draw(float()) : draw(double());
  else if (part <= 2) part == 1 ? draw(uint8_t()) : draw(uint16_t());
  else part == 4 ? draw(uint32_t()) : draw(uint64_t());
  const size_t whole = bytes / part * part;
  for (size_t at = 0; at < whole; at += count * part) std::memcpy(p + at, drawn, std::min(count * part, whole - at));
  const auto found = traits_.fills.find(parameter.name);
  const std::string how = found == traits_.fills.end() ? "" : found->second;
  if (how == "sorted") std::sort(reinterpret_cast<uint16_t*>(p), reinterpret_cast<uint16_t*>(p + bytes));
  if (how == "index") *reinterpret_cast<int*>(p) = static_cast<int>(choices.between(0, shape("tapsLen") - 1));
  if (how == "phase") *reinterpret_cast<int*>(p) = static_cast<int>(shape_["phase"] = choices.between(0, shape("factor") - 1));
  if (how == "bitLengths") {
    for (size_t i = 0; i < bytes / sizeof(int); ++i) {
      auto& length = reinterpret_cast<int*>(p)[i];
      length = static_cast<int>(choices.between(0, 32));
      shape_["totalBits"] += length;
    }
  }
  if (how == "unit") {
    for (size_t i = 0; i < bytes; i += part) type.put(p + i, static_cast<double>(choices.bits(4)) * 0x1p-32);
  }
  if (how == "positions") {
    auto* position = reinterpret_cast<int32_t*>(p);
    using Counted = std::pair<const char*, const char*>;
    for (const auto& [count, order] :
         {Counted("nzTapsLenB", "orderB"), Counted("nzTapsLenA", "orderA"), Counted("nzTapsLen", "order")}) {
      if (shape(count) == 0) continue;
      // Feedback begins at 1, and so does a filter of one tap, whose size is that of a tap at 1.
      int at = order == std::string("orderB") || (order == std::string("order") && shape(count) > 1) ? 0 : 1;
      for (int64_t i = 0; i < shape(count); ++i, at += static_cast<int>(choices.between(1, 9))) shape_[order] = *position++ = at;
    }
  }
  if (how == "subsets") {  // any four points, and any two columns of four, have labels of their own
    for (size_t i = 0; i < bytes; ++i) p[i] = static_cast<uint8_t>((p[i] & 0xF8) | (2 * (i / 4) + (i & 1)));
  }
  if (how == "frequencies") {  // relative, or in units of 2^-15
    for (size_t i = 0; i < bytes; i += part) type.put(p + i, std::fabs(std::fmod(type.get(p + i), type.isFloat ? 1 : 32768)));
  }
  if (how == "stable") fillTaps(p, parameter, choices);
}

// Taps of a recursive filter that is stable: the feedback's magnitudes sum up to less than 1.
void AnyCall::fillTaps(uint8_t* p, const Parameter& parameter, Choices& choices) {
  const PartType type(parameter.pointee());
  const size_t parts = type.isComplex ? 2 : 1;
  const bool hasSections = shape("numBq") > 0;
  const auto order = static_cast<size_t>(hasSections ? 2 : shape("order"));
  const auto unit = [&] { return static_cast<double>(static_cast<int32_t>(choices.bits(4))) * 0x1p-31; };
  const auto put = [&](size_t i, double v) {
    for (size_t k = 0; k < parts; ++k, v = k == 1 ? v / 3 : v) {
      const int places = type.isFloat ? 0 : type.bytes == 4 ? static_cast<int>(shape("tapsFactor")) : 10;
      type.put(p + (parts * i + k) * type.bytes, std::ldexp(v, places));
    }
  };
  if (parameter.name == "pNZTaps") {
    for (int64_t i = 0; i < shape("nzTapsLenA") + shape("nzTapsLenB"); ++i) put(static_cast<size_t>(i), unit() * 0.19);
    return;
  }
  for (size_t section = 0; section < static_cast<size_t>(hasSections ? shape("numBq") : 1); ++section) {
    const size_t base = 6 * section;
    for (size_t i = 1; i <= order; ++i) put(base + i, unit());
    put(base, 1);  // 0 is refused
    for (size_t i = 1; i <= order; ++i) put(base + order + 1 + i, unit() * 0.6 / static_cast<double>(order));
    put(base + order + 1, 1);
    const bool isDirect = contains(export_.name, {"Direct_"});
    if (isDirect) reinterpret_cast<int16_t*>(p)[base + order + 1] = 10;  // the shift stands in the place of a[0]
  }
}

// ---- records

// The size reported by the function that belongs to a maker.
int AnyCall::sizeFor(const std::string& maker, const std::string& which) {
  const char* init = maker.find("InitAlloc") != maker.npos ? "InitAlloc" : "Init";
  const Export* e = findExport(replaced(maker, init, "GetStateSize"));
  if (e == nullptr) e = findExport(replaced(maker, init, "GetSize"));
  if (e == nullptr) e = findExport(replaced(maker, init, "GetBufSize"));  // of the record, where that is all there is
  if (e == nullptr) std::abort();
  struct Sizes : Arguments {
    const Export* e;
    const AnyCall* call;
    std::map<std::string, int> sizes;
    void* pointer(size_t index, size_t, bool, char) override {
      return e->parameters[index].isRecord() ? call->record() : &sizes[e->parameters[index].name];
    }
    int64_t integer(size_t index) override { return call->shape(e->parameters[index].name); }
    double real(size_t) override { return 0; }
  } arguments;
  arguments.e = e;
  arguments.call = this;
  if (e->call(library_(*e), arguments) != qvxStatOk) return 0;
  return arguments.sizes[which];
}

namespace {

const std::vector<const Export*>& makersOf(const std::string& type, bool allocates) {
  static const auto all = [] {
    std::map<std::pair<std::string, bool>, std::vector<const Export*>> byType;
    for (const Export& e : exportTable()) {
      const bool makes = e.name.find("Init") != e.name.npos && !e.parameters.empty() && e.parameters[0].isRecord();
      if (makes) byType[{e.parameters[0].pointee(), contains(e.name, {"InitAlloc"})}].push_back(&e);
    }
    return byType;
  }();
  static const std::vector<const Export*> none;
  const auto found = all.find({type, allocates});
  return found == all.end() ? none : found->second;
}

}  // namespace

// A record of this type from one of its makers, whose numbers and extents become part of the shape.
void* AnyCall::recordOf(std::string type, bool isConst, Choices& choices) {
  if (type == "QvxsFIRState_32s") type = "QvxsFIRState64f_32s";  // one record by two names
  const bool allocates = makersOf(type, false).empty() || (contains(export_.name, {"Free"}) && choices.oneIn(2));
  std::vector<const Export*> makers = makersOf(type, allocates);
  const auto isStranger = [&](const Export* maker) {
    const auto& strangers = traits_.strangers;
    return std::any_of(strangers.begin(), strangers.end(),
                       [&](const std::string& s) { return contains(maker->name, {s.c_str()}); });
  };
  makers.erase(std::remove_if(makers.begin(), makers.end(), isStranger), makers.end());
  if (makers.empty()) return recordOf(type, isConst, choices);  // none that allocates
  maker_ = makers[static_cast<size_t>(choices.between(0, static_cast<int64_t>(makers.size()) - 1))];
  AnyCall made(*maker_, choices, memory_, around_, library_);
  choices.bits();
  if (made.run() < 0) {  // it may still be looked at
    for (const Vector& v : made.vectors_) markWritten(v.at, v.bytes);
  }
  void* record = made.pointers_[0];  // in the caller's memory, or where a maker leaves its address
  if (maker_->parameters[0].isArrayOfPointers()) record = *static_cast<void**>(record);
  for (const auto& [name, value] : made.shape_) {
    if (!export_.has(name)) shape_[name] = value;
  }
  for (const Parameter& p : maker_->parameters) {
    if (p.isPointer() && !p.isArrayOfPointers()) shape_["made." + p.name] = static_cast<int64_t>(made.extent(p));
  }
  made.status_ = qvxStatBadArg;  // what it made is this call's from here on
  for (Vector& v : made.vectors_) {
    if (v.role != Role::kWork) continue;
    vectors_.push_back(v);
    if (!isConst) continue;  // else as good as a source, as it stands now
    vectors_.back().role = Role::kSource;
    vectors_.back().copy.assign(v.at, v.at + v.bytes);
  }
  records_.push_back({type, record, allocates});
  return record;
}

void AnyCall::release() {
  if (contains(export_.name, {"InitAlloc"}) && status_ == qvxStatOk) {
    records_.push_back({export_.parameters[0].pointee(), *static_cast<void**>(pointers_[0]), true});
  }
  for (const Record& r : records_) {
    if (!r.isAllocated || r.address == nullptr) continue;
    for (const Export& e : exportTable()) {
      if (e.name.find("Free") == e.name.npos || e.parameters.size() != 1 || e.parameters[0].pointee() != r.type) continue;
      reinterpret_cast<QvxStatus (*)(void*)>(library_(e))(r.address);
    }
  }
}

// ---- the arguments of one call

// The source that a destination may lie on: all its elements are of the same type, and no other destination lies there.
void* AnyCall::sourceInPlace(const Parameter& destination) {
  if (around_.destinations == Destinations::kApart || traits_.is("apart") || destination.name.rfind("pDst", 0) != 0)
    return nullptr;
  auto source = vectors_.end();
  for (const Parameter& p : export_.parameters) {
    if (p.name.rfind("pSrc", 0) != 0 || p.pointee() != destination.pointee() || extent(p) != extent(destination)) continue;
    const auto isFree = [&](const Vector& v) { return v.parameter == p.name && v.role == Role::kSource; };
    const auto found = std::find_if(vectors_.begin(), vectors_.end(), isFree);
    if (source == vectors_.end() || (found != vectors_.end() && around_.destinations == Destinations::kOnLast)) source = found;
  }
  if (source == vectors_.end()) return nullptr;
  source->role = Role::kDestination;
  std::rotate(source, source + 1, vectors_.end());  // results come in the order of the destinations
  return vectors_.back().at;
}

void AnyCall::spoil(const Wrong& wrong, size_t which) {
  const auto value = [&] { return wrong.values[which % wrong.values.size()]; };
  const auto whole = [&] {
    return static_cast<int64_t>(std::isnan(value()) ? wrong.values[0] : value());
  };  // a row for both types
  if (wrong.kind == Refusal::kForeignRecord) pointers_[wrong.index] = vector(4096, Role::kWork, wrong.index);
  if (wrong.kind == Refusal::kNull) pointers_[wrong.index] = nullptr;
  if (wrong.kind == Refusal::kValue && integers_.count(wrong.index) != 0) integers_[wrong.index] = whole();
  if (wrong.kind == Refusal::kValue && reals_.count(wrong.index) != 0) reals_[wrong.index] = value();
  if (wrong.kind == Refusal::kContent && pointers_[wrong.index] != nullptr) {
    for (Vector& v : vectors_) {
      if (v.at != pointers_[wrong.index]) continue;
      for (size_t part = 0; part < (v.part.isComplex ? 2 : 1); ++part) v.part.put(v.at + part * v.part.bytes, value());
      v.copy.assign(v.at, v.at + v.bytes);
    }
  }
}

void* AnyCall::pointerFor(size_t index, size_t elementSize, bool isConst, char kind, Choices& choices) {
  const Parameter& p = export_.parameters[index];
  const std::string& name = export_.name;
  const std::string type = p.pointee();
  const auto work = traits_.work.find(p.name);
  if (kind == 'r' && work == traits_.work.end()) return recordOf(type, isConst, choices);
  const bool isState = p.isRecord();
  if (p.isArrayOfPointers()) {
    if (isState && contains(name, {"Init"})) {  // where a maker leaves its record
      return vector(sizeof(void*), Role::kHandle, index);
    }
    std::vector<void*>& array = arrays_.emplace_back();
    const bool isSource = p.name.find("Dst") == p.name.npos;
    for (int64_t c = 0; c < shape("nChannels"); ++c) {
      if (isState) {
        array.push_back(recordOf(type, false, choices));
        continue;
      }
      const size_t bytes = PartType(type).bytes * extent(p);
      const bool isRead = isSource || p.name.find("Src") != p.name.npos;
      const Fill numbers = [&](uint8_t* at) { fill(at, bytes, p, choices); };
      array.push_back(vector(bytes, isSource ? Role::kSource : Role::kDestination, index, isRead ? numbers : nullptr));
    }
    markWritten(array.data(), array.size() * sizeof(void*));
    return array.data();
  }
  const auto taken = [&](const Refusal& r) {
    return r.kind == Refusal::kNull && r.status == qvxStatOk && r.parameters[0] == p.name;
  };
  const std::vector<Refusal>& refusals = traits_.refusals;
  if (std::any_of(refusals.begin(), refusals.end(), taken) && choices.oneIn(3)) return nullptr;
  if (work != traits_.work.end()) {
    const int bytes = sizeFor(maker_ != nullptr ? maker_->name : name, work->second);
    return vector(static_cast<size_t>(bytes), Role::kWork, index);
  }
  if (traits_.scratch.count(p.name) != 0) return vector(elementSize * extent(p), Role::kWork, index);
  if (void* source = sourceInPlace(p)) return source;
  // The first byte and the last keep the bits beside those written.
  const bool isRead = isConst || contains(p.name, {"Src", "DlyLine"}) || traits_.fills.count(p.name) != 0;
  const size_t bytes = elementSize * extent(p);
  const Fill numbers = [&](uint8_t* at) { fill(at, bytes, p, choices); };
  return vector(bytes, isConst ? Role::kSource : Role::kDestination, index, isRead ? numbers : nullptr);
}

// Looks at the types of the arguments of a call that is not made.
struct AnyCall::Drawing : Arguments {
  struct Seen {
    size_t size;
    bool isConst;
    char kind;
  };
  std::map<size_t, Seen> pointers;
  std::set<size_t> integers, reals;
  void* pointer(size_t index, size_t size, bool isConst, char kind) override {
    return pointers[index] = {size, isConst, kind}, nullptr;
  }
  int64_t integer(size_t index) override { return integers.insert(index), 0; }
  double real(size_t index) override { return reals.insert(index), 0; }
};

void AnyCall::prepare(Choices& choices) {
  Drawing seen;
  export_.look(seen);
  for (const size_t i : seen.integers) {
    shape_[export_.parameters[i].name] = integers_[i] = drawInteger(export_.parameters[i], choices);
  }
  for (const size_t i : seen.reals) reals_[i] = drawReal(export_.parameters[i], choices);
  // Records first, whose orders are the other vectors' lengths, then phases, on which these depend too.
  const auto turnOf = [&](const Parameter& p) {
    const auto fill = traits_.fills.find(p.name);
    if (p.isRecord() && !contains(export_.name, {"Init"})) return 0;
    return fill != traits_.fills.end() && fill->second == "phase" ? 1 : 2;
  };
  for (int turn = 0; turn < 3; ++turn) {
    for (const auto& [i, p] : seen.pointers) {
      if (turnOf(export_.parameters[i]) == turn) pointers_[i] = pointerFor(i, p.size, p.isConst, p.kind, choices);
    }
  }
}

}  // namespace tests
