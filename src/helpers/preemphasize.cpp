// Pre-emphasis: each sample less a part of the one before.
#include "frame/map.h"
#include "frame/rounding.h"
#include "frame/to_int.h"

using namespace qvx;

namespace {

// In place: y[n] = f(x[n], x[n - 1]) for n from 1 on, N at a time and from the end, so that what comes before is still as it was.
template <size_t N, class T, class F> void afterFirst(T* p, size_t n, F f) {
  const Lanes<T, N> d;
  size_t end = n;
  for (; end > N; end -= N) store(f(load(d, p + end - N), load(d, p + end - N - 1)), d, p + end - N);
  storeFirst(f(loadFirst(d, p + 1, end - 1), loadFirst(d, p, end - 1)), d, p + 1, end - 1);
}

template <class T, class F> QvxStatus preemphasize(T* p, int len, F f) {
  const QvxStatus status = check(len, p);
  if (status != qvxStatOk) return status;
  afterFirst<kVectorBytes / sizeof(Qvx32f)>(p, elements(len), f);
  return qvxStatOk;
}

}  // namespace

QvxStatus qvxsPreemphasize_32f(Qvx32f* p, int len, Qvx32f val) {
  return preemphasize(p, len, [val](auto x, auto before) { return x - same<decltype(x)>(val) * before; });
}

QvxStatus qvxsPreemphasize_16s(Qvx16s* p, int len, Qvx32f val) {
  const RoundingScope nearest(Rounding::kNearest);
  return preemphasize(p, len, [val](auto x, auto before) {
    const auto wide = convertLanes<float>(x);
    const auto y = wide - same<std::remove_const_t<decltype(wide)>>(val) * convertLanes<float>(before);
    return convertLanes<Qvx16s>(toIntsBelow<Qvx16s>(y, ToInt<qvxRoundNearestEven>()));
  });
}
