// One step of an adaptive filter without a record.
#include "convolution/elements.h"
#include "frame/map.h"
#include "frame/reduce.h"

using namespace qvx;
using namespace qvx::convolution;

namespace {

struct FloatProducts : Reduction {
  using Inner = Qvx32f;
  template <class A, class U> A start(A h, U x) const { return h * widened<Qvx32f>(x); }
  template <class A, class U> A add(A sum, A h, U x) const { return hn::MulAdd(h, widened<Qvx32f>(x), sum); }
  template <class A> Qvx32f total(A sum) const { return sumOfLanes(sum); }
};

// Sums of 64 bits that wrap.
struct LongProducts : Reduction {
  using Inner = int32_t;
  template <class A, class U> auto start(A h, U v) const {
    const A x = widened<int32_t>(v);
    return evenProducts(h, x) + evenProducts(hn::Shuffle2301(h), hn::Shuffle2301(x));
  }
  template <class A, class H, class U> A add(A sum, H h, U v) const { return sum + start(h, v); }
  template <class A> int64_t total(A sum) const { return sumOfLanes(sum); }
};

template <class T, class H> QvxStatus checkStep(const void* dst, const H* taps, int tapsLen, const T* line, const int* index) {
  if (isNull(dst) || isNull(taps) || isNull(line) || isNull(index)) return qvxStatNullPtr;
  if (tapsLen < 1) return qvxStatBadSize;
  return *index < 0 || *index >= tapsLen ? qvxStatBadDlyIndex : qvxStatOk;
}

// Takes a sample and gives the window.
template <class T> const T* push(T v, T* line, int tapsLen, int* index) {
  line[*index] = line[*index + int64_t{tapsLen}] = v;
  if (++*index == tapsLen) *index = 0;
  return line + *index;
}

template <class T> QvxStatus one(T src, T ref, Qvx32f mu, T* dst, Qvx32f* taps, int tapsLen, T* line, int* index) {
  const QvxStatus status = checkStep(dst, taps, tapsLen, line, index);
  if (status != qvxStatOk) return status;
  const T* window = push(src, line, tapsLen, index);
  const size_t n = elements(tapsLen);
  const Qvx32f y = reduce(FloatProducts(), n, source(static_cast<const Qvx32f*>(taps)), source(window));
  toSamples(&y, 1, dst, 0);
  const Qvx32f e = (static_cast<Qvx32f>(ref) - y) * (2 * mu);
  return loop([e](auto h, auto x) { return hn::MulAdd(same<decltype(h)>(e), widened<Qvx32f>(x), h); }, destination(taps), n,
              source(static_cast<const Qvx32f*>(taps)), source(window));
}

QvxStatus oneQ15(Qvx16s src, Qvx16s ref, int muQ15, Qvx16s* dst, Qvx32s* taps, int tapsLen, Qvx16s* line, int* index) {
  const QvxStatus status = checkStep(dst, taps, tapsLen, line, index);
  if (status != qvxStatOk) return status;
  const Qvx16s* window = push(src, line, tapsLen, index);
  const size_t n = elements(tapsLen);
  const auto y = scaled<Qvx16s>(reduce(LongProducts(), n, source(static_cast<const Qvx32s*>(taps)), source(window)), 15);
  *dst = y;
  const int64_t e = saturate<Qvx16s>(int32_t{ref} - y);
  const int64_t factor = 2 * int64_t{muQ15} * e;  // of 47 bits, times a sample and beside a tap times 2^30 of less than 63
  for (size_t i = 0; i < n; ++i) taps[i] = scaled<Qvx32s>(int64_t{taps[i]} * (1 << 30) + factor * window[i], 30);
  return qvxStatOk;
}

}  // namespace

// clang-format off
QvxStatus qvxsFIRLMSOne_Direct_32f   (Qvx32f x, Qvx32f r, Qvx32f mu, Qvx32f* d, Qvx32f* h, int n, Qvx32f* line, int* i) { return one(x, r, mu, d, h, n, line, i); }
QvxStatus qvxsFIRLMSOne_Direct32f_16s(Qvx16s x, Qvx16s r, Qvx32f mu, Qvx16s* d, Qvx32f* h, int n, Qvx16s* line, int* i) { return one(x, r, mu, d, h, n, line, i); }
QvxStatus qvxsFIRLMSOne_DirectQ15_16s(Qvx16s x, Qvx16s r, int mu,    Qvx16s* d, Qvx32s* h, int n, Qvx16s* line, int* i) { return oneQ15(x, r, mu, d, h, n, line, i); }
// clang-format on
