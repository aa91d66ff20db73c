// The record of a recursive filter: three forms, written once over the type of its memory.
#pragma once

#include "frame/record.h"
#include "iir/cascade.h"
#include "iir/direct.h"
#include "iir/section.h"

namespace qvx::iir {

enum class Form { kDirect, kBiQuad, kDf1 };

struct Magics {
  uint32_t direct;
  uint32_t biQuad;
  uint32_t df1 = 0;  // few have that form

  uint32_t of(Form form) const { return form == Form::kDirect ? direct : form == Form::kBiQuad ? biQuad : df1; }
};

// How sections are filtered; kPlain: sample by sample, or the direct form by Direct.
enum class How : uint8_t { kPlain, kLookingAhead, kInLanes };

template <class T> struct Record : RecordHead {
  using Internal = T;

  int32_t order;  // the values of the delay line that callers see
  int32_t numBq;  // 0 in the direct form
  T* taps;        // b0..bN, a1..aN, or b0, b1, b2, a1, a2 for each section; normalised
  T* line;
  Section<T>* sections;             // of few, or complex ones; in the direct form up to order 2, one
  Direct<T>* direct;                // from order 3 on, while there is one
  Cascade<CascadeLane<T>> cascade;  // of real sections
  How how;

  bool isDirect() const { return numBq == 0; }
};

// What differs between stems: the samples' type and the identities.
template <class T, class DataType, uint32_t kDirect, uint32_t kBiQuad, uint32_t kDf1 = 0> struct Stem : Record<T> {
  using Data = DataType;
  static constexpr Magics kMagics{kDirect, kBiQuad, kDf1};
};

template <class State> using InternalOf = typename State::Internal;

// ---- sizes

// The bytes of a block for n sections, or for order n: fixed values of the interface; the layout below needs no more.
template <class State> constexpr int64_t stateSize(Form form, int64_t n) {
  using T = InternalOf<State>;
  constexpr bool kIsComplex = kParts<T> == 2;
  constexpr bool kIsFloat = sizeof(Part<T>) == 4;
  constexpr int64_t kWork = std::is_same_v<T, typename State::Data> ? 1024 : 2048;
  if (form == Form::kDirect) {
    if (kIsFloat && !kIsComplex) return ((8 * n + 19) & ~15) + ((4 * n + 19) & ~15) + 4 * (8 * n + 16 + kWork) + 40 + 128;
    if (kIsFloat) return ((16 * n + 39) & ~31) + ((8 * n + 39) & ~31) + 8 * (16 * n + 36 + kWork) + 80 + 128;
    if (!kIsComplex) return ((16 * n + 23) & ~15) + ((8 * n + 23) & ~15) + 8 * (6 * n + 14 + kWork) + 96 + 32;
    return 32 * n + 16 + 16 * (14 * n + 10 + kWork / 1024 * (n + 1024)) + 96 + 16 * n + 16 + 32;
  }
  if (form == Form::kBiQuad) {
    if (kIsFloat && !kIsComplex) return ((20 * n + 15) & ~15) + ((8 * n + 15) & ~15) + 4 * (40 * n + kWork) + 40 + 128;
    if (kIsFloat) return 32 * (((40 * n + 31) >> 5) + ((16 * n + 31) >> 5)) + 8 * (148 * n + kWork) + 160;
    if (!kIsComplex) return 16 * (((40 * n + 15) >> 4) + n) + 8 * (32 * n + kWork) + 96;
    return 16 * (5 * n + 64 * n + kWork) + 96 + 32 * n + 32;
  }
  if (kIsFloat) return 16 * (n + ((20 * n + 15) >> 4)) + 128;
  return ((40 * n + 15) & ~15) + 256 * n + 16384 + 96 + 48 * n;
}

template <class State, Form kForm> QvxStatus reportSize(int n, int* size) {
  if (isNull(size)) return qvxStatNullPtr;
  if (n < 1) return qvxStatBadIIROrder;
  return reportBytes(stateSize<State>(kForm, n), size);
}

// ---- the block

// _32f in the direct form I has no room for tables, and makes them as it filters.
template <class T> constexpr bool hasTables(Form form) { return form != Form::kDf1 || sizeof(T) == 8; }

// Values of a section's delay line.
constexpr int64_t lineOf(Form form) { return form == Form::kDf1 ? 4 : 2; }

template <class State> void layOut(State& state, Carver& carver, Form form, int n) {
  using T = InternalOf<State>;
  static_assert(sizeof(State) <= 96);  // what the smallest of the sizes leaves for it
  state.magic = State::kMagics.of(form);
  const auto placeSections = [&](int count) {
    constexpr bool kHasCascade = kParts<T> == 1;
    using Many = decltype(state.cascade);
    if (kHasCascade) {
      auto* table = carver.take<CascadeLane<T>>(Many::tableLanes(count));
      std::fill_n(table, Many::tableLanes(count), 0);
      state.cascade = {static_cast<size_t>(count), table};
    }
    const bool isFew = static_cast<size_t>(count) < Many::kFew;
    if (!kHasCascade || isFew) {
      state.sections = carver.take<Section<T>>(count);
      for (int i = 0; i < count; ++i) state.sections[i].looksAhead = false;
    }
  };
  if (form == Form::kDirect) {
    state.order = n;
    state.taps = carver.take<T>(2 * int64_t{n} + 1);
    state.line = carver.take<T>(int64_t{n} + 1);
    state.line[n] = T{};
    if (n <= 2) {
      placeSections(1);
    } else if (n <= int{Direct<T>::kMostOrder}) {
      state.direct = carver.take<Direct<T>>(1);
      state.direct->place(carver, n);
    }
  } else {
    state.numBq = n;
    state.order = static_cast<int32_t>(lineOf(form) * n);
    state.taps = carver.take<T>(5 * int64_t{n});
    state.line = carver.take<T>(lineOf(form) * n);
    if (hasTables<T>(form)) placeSections(n);
  }
}

}  // namespace qvx::iir

// clang-format off
struct QvxsIIRState_32f       : qvx::iir::Stem<Qvx32f,  Qvx32f,  0x49493031, 0x49493032, 0x49493239> {};
struct QvxsIIRState_32fc      : qvx::iir::Stem<Qvx32fc, Qvx32fc, 0x49493033, 0x49493034> {};
struct QvxsIIRState32f_16s    : qvx::iir::Stem<Qvx32f,  Qvx16s,  0x49493035, 0x49493036> {};
struct QvxsIIRState32fc_16sc  : qvx::iir::Stem<Qvx32fc, Qvx16sc, 0x49493037, 0x49493038> {};
struct QvxsIIRState32s_16s    : qvx::iir::Stem<Qvx32f,  Qvx16s,  0x49493039, 0x49493130> {};
struct QvxsIIRState32sc_16sc  : qvx::iir::Stem<Qvx32fc, Qvx16sc, 0x49493131, 0x49493132> {};
struct QvxsIIRState_64f       : qvx::iir::Stem<Qvx64f,  Qvx64f,  0x49493133, 0x49493134> {};
struct QvxsIIRState_64fc      : qvx::iir::Stem<Qvx64fc, Qvx64fc, 0x49493135, 0x49493136> {};
struct QvxsIIRState64f_32f    : qvx::iir::Stem<Qvx64f,  Qvx32f,  0x49493137, 0x49493138> {};
struct QvxsIIRState64fc_32fc  : qvx::iir::Stem<Qvx64fc, Qvx32fc, 0x49493139, 0x49493230> {};
struct QvxsIIRState64f_32s    : qvx::iir::Stem<Qvx64f,  Qvx32s,  0x49493231, 0x49493232, 0x49493330> {};
struct QvxsIIRState64fc_32sc  : qvx::iir::Stem<Qvx64fc, Qvx32sc, 0x49493233, 0x49493234> {};
struct QvxsIIRState64f_16s    : qvx::iir::Stem<Qvx64f,  Qvx16s,  0x49493235, 0x49493236> {};
struct QvxsIIRState64fc_16sc  : qvx::iir::Stem<Qvx64fc, Qvx16sc, 0x49493237, 0x49493238> {};
// clang-format on
