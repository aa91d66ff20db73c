// Filters of 16-bit integers without a record, with integer taps in units of 2^-s.
//
// A sample on its own goes through 32-bit arithmetic that wraps. A vector goes through the filter of 32-bit floats, in a record
// for the time of the call.
#include <cmath>

#include "iir/filter.h"

using namespace qvx;
using namespace qvx::iir;

namespace {

// ---- one sample

Qvx32u bits(int v) { return static_cast<Qvx32u>(v); }

// acc / 2^s to nearest even, in 32 bits that wrap; s counts modulo 32, and 0 adds what 32 would.
int shifted(Qvx32u acc, int s) {
  const auto wrapped = static_cast<int>(acc);
  const int places = s & 31;
  const Qvx32u rounding = (bits(wrapped >> places) & 1) + (Qvx32u{1} << ((s + 31) & 31)) - 1;
  return static_cast<int>(acc + rounding) >> places;
}

QvxStatus directSample(Qvx16s src, Qvx16s* dst, const Qvx16s* taps, int order, Qvx32s* line) {
  const int s = taps[order + 1];
  if (s < 0) return qvxStatBadOrderIndex;
  const Qvx16s* a = taps + order + 1;
  const int y = shifted(bits(taps[0] * src) + bits(line[0]), s);
  for (int i = 0; i < order; ++i) {
    const Qvx32u next = i + 1 < order ? bits(line[i + 1]) : 0;
    line[i] = static_cast<int>(bits(taps[i + 1] * src) - bits(a[i + 1]) * bits(y) + next);
  }
  *dst = saturate<Qvx16s>(y);
  return qvxStatOk;
}

QvxStatus sectionsSample(Qvx16s src, Qvx16s* dst, const Qvx16s* taps, int sections, Qvx32s* line) {
  int x = src;
  for (int k = 0; k < sections; ++k, taps += 6, line += 2) {
    const int s = taps[3];
    if (s < 0) return qvxStatBadOrderIndex;
    const Qvx32u in = bits(x);
    const int y = shifted(bits(taps[0]) * in + bits(line[0]), s);
    line[0] = static_cast<int>(bits(taps[1]) * in + bits(line[1]) - bits(taps[4]) * bits(y));
    line[1] = static_cast<int>(bits(taps[2]) * in - bits(taps[5]) * bits(y));
    x = y;
  }
  *dst = saturate<Qvx16s>(x);
  return qvxStatOk;
}

// ---- vectors

using State = QvxsIIRState32f_16s;

Qvx32f scaledDown(int v, int s) { return static_cast<Qvx32f>(std::ldexp(static_cast<double>(v), -s)); }

// The delay line of a direct form rounds half away from zero, that of sections to even.
Qvx32s halfAway(double v) { return static_cast<Qvx32s>(static_cast<int64_t>(v < 0 ? v - 0.5 : v > 0 ? v + 0.5 : v)); }
Qvx32s halfToEven(double v) {
  const auto t = static_cast<int64_t>(v);
  const double fraction = v - static_cast<double>(t);
  if (fraction == 0.5) return static_cast<Qvx32s>(t + (t & 1));
  if (fraction == -0.5) return static_cast<Qvx32s>(t & ~int64_t{1});
  return halfAway(v);
}
template <class Round> Qvx32s scaledUp(Qvx32f line, int s, Round round) {
  const double v = std::ldexp(static_cast<double>(line), s);
  if (v > 0x1p31) return INT32_MAX;
  if (!(v >= -0x1p31)) return INT32_MIN;
  return round(v);
}

QvxStatus directBlock(const Qvx16s* src, Qvx16s* dst, int len, const Qvx16s* taps, int order, Qvx32s* line) {
  if (order < 1) return qvxStatBadIIROrder;
  if (isNull(src) || isNull(taps) || isNull(line) || isNull(dst)) return qvxStatNullPtr;
  const int s = taps[order + 1];
  if (s < 0) return qvxStatBadOrderIndex;
  if (len < 1) return qvxStatBadSize;
  const int64_t count = 2 * int64_t{order} + 2;
  const auto init = [=](State** ppState, Qvx8u* block) {
    return initRecord(ppState, block, [=](State& state, Carver& carver) {
      layOut(state, carver, Form::kDirect, order);
      auto* floats = carver.take<Qvx32f>(count);
      for (int i = 0; i < count; ++i) floats[i] = i == order + 1 ? 1.0F : scaledDown(taps[i], s);
      for (int i = 0; i < order; ++i) state.line[i] = scaledDown(line[i], s);
      return setTaps(state, floats);
    });
  };
  const int64_t bytes = stateSize<State>(Form::kDirect, order) + count * int64_t{sizeof(Qvx32f)};
  return withTemporaryRecord<State>(bytes, init, [=](State& state) {
    filterSamples(state, src, dst, elements(len), 0);
    for (int i = 0; i < order; ++i) line[i] = scaledUp(state.line[i], s, halfAway);
    return qvxStatOk;
  });
}

QvxStatus sectionsBlock(const Qvx16s* src, Qvx16s* dst, int len, const Qvx16s* taps, int sections, Qvx32s* line) {
  if (sections < 1) return qvxStatBadIIROrder;
  if (isNull(src) || isNull(taps) || isNull(line) || isNull(dst)) return qvxStatNullPtr;
  if (len < 1) return qvxStatBadSize;
  const auto init = [=](State** ppState, Qvx8u* block) {
    return initRecord(ppState, block, [=](State& state, Carver& carver) {
      layOut(state, carver, Form::kBiQuad, sections);
      for (int k = 0; k < sections; ++k) {
        const Qvx16s* t = taps + 6 * k;
        const int s = t[3];
        if (s < 0) return qvxStatBadOrderIndex;
        Qvx32f* scaled = state.taps + 5 * k;
        for (int i = 0; i < 5; ++i) scaled[i] = scaledDown(t[i < 3 ? i : i + 1], s);
        setSection(state, static_cast<size_t>(k), scaled);
        for (int i = 2 * k; i < 2 * k + 2; ++i) state.line[i] = scaledDown(line[i], s);
      }
      state.how = howOf(state);
      return qvxStatOk;
    });
  };
  return withTemporaryRecord<State>(stateSize<State>(Form::kBiQuad, sections), init, [=](State& state) {
    filterSamples(state, src, dst, elements(len), 0);
    for (int i = 0; i < 2 * sections; ++i) line[i] = scaledUp(state.line[i], taps[6 * (i / 2) + 3], halfToEven);
    return qvxStatOk;
  });
}

template <class One> QvxStatus checkedOne(Qvx16s src, Qvx16s* dst, const Qvx16s* taps, int n, Qvx32s* line, One one) {
  if (n < 1) return qvxStatBadIIROrder;
  if (isNull(dst) || isNull(taps) || isNull(line)) return qvxStatNullPtr;
  return one(src, dst, taps, n, line);
}
template <class One> QvxStatus checkedOne(Qvx16s* srcDst, const Qvx16s* taps, int n, Qvx32s* line, One one) {
  return checkedOne(isNull(srcDst) ? Qvx16s{0} : *srcDst, srcDst, taps, n, line, one);
}

}  // namespace

// clang-format off
QvxStatus qvxsIIR_Direct_16s(const Qvx16s* a, Qvx16s* b, int len, const Qvx16s* t, int order, Qvx32s* d) { return directBlock(a, b, len, t, order, d); }
QvxStatus qvxsIIR_Direct_16s_I(Qvx16s* b, int len, const Qvx16s* t, int order, Qvx32s* d) { return directBlock(b, b, len, t, order, d); }
QvxStatus qvxsIIROne_Direct_16s(Qvx16s a, Qvx16s* b, const Qvx16s* t, int order, Qvx32s* d) { return checkedOne(a, b, t, order, d, directSample); }
QvxStatus qvxsIIROne_Direct_16s_I(Qvx16s* b, const Qvx16s* t, int order, Qvx32s* d) { return checkedOne(b, t, order, d, directSample); }
QvxStatus qvxsIIR_BiQuadDirect_16s(const Qvx16s* a, Qvx16s* b, int len, const Qvx16s* t, int n, Qvx32s* d) { return sectionsBlock(a, b, len, t, n, d); }
QvxStatus qvxsIIR_BiQuadDirect_16s_I(Qvx16s* b, int len, const Qvx16s* t, int n, Qvx32s* d) { return sectionsBlock(b, b, len, t, n, d); }
QvxStatus qvxsIIROne_BiQuadDirect_16s(Qvx16s a, Qvx16s* b, const Qvx16s* t, int n, Qvx32s* d) { return checkedOne(a, b, t, n, d, sectionsSample); }
QvxStatus qvxsIIROne_BiQuadDirect_16s_I(Qvx16s* b, const Qvx16s* t, int n, Qvx32s* d) { return checkedOne(b, t, n, d, sectionsSample); }
// clang-format on
