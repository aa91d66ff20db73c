// The members of a family of one source, each with its in-place form, against an oracle of one element.
#pragma once

#include <cfenv>

#include "support/elementwise.h"

namespace tests {

template <class T> inline QvxStatus (*noInPlaceOf)(T*, int, int) = nullptr;

// What an element asks to be reported: nothing, or that it is below 0.
inline constexpr auto kSilent = [](auto) { return qvxStatOk; };
template <QvxStatus kStatus> inline constexpr auto kBelow0 = [](auto x) { return x < 0 ? kStatus : qvxStatOk; };

template <class D, class S, class Oracle, class Warning = decltype(kSilent)>
void unary(QvxStatus (*f)(const S*, D*, int), QvxStatus (*inPlace)(D*, int), std::vector<S> sources, Oracle oracle,
           Warning warning = kSilent) {
  Elementwise<D, S> trial(std::make_tuple(sources), oracle);
  trial.warns(warning);
  trial.run(f);
  trial.run([=](const S*, D* d, int n) { return inPlace(d, n); }, 0);
}

// Every scale factor once over all the sources, and a few at every length and alignment.
template <class D, class S, class Oracle, class Warning = decltype(kSilent)>
void scaledUnary(QvxStatus (*f)(const S*, D*, int, int), QvxStatus (*inPlace)(D*, int, int), const std::vector<S>& sources,
                 Oracle oracle, std::vector<int> scales, std::vector<int> pathScales, Warning warning = kSilent) {
  const auto at = [&](int s, const std::vector<S>& given, auto run) {
    SCOPED_TRACE("scale factor " + std::to_string(s));
    Elementwise<D, S> trial(std::make_tuple(given), [=](S x) { return oracle(x, s); });
    trial.warns(warning);
    run(
        trial, [=](const S* a, D* d, int n) { return f(a, d, n, s); }, kOutOfPlace);
    if constexpr (std::is_same_v<S, D>) {
      if (inPlace != nullptr)
        run(
            trial, [=](const S*, D* d, int n) { return inPlace(d, n, s); }, 0);
    }
  };
  for (const int s : scales) at(s, sources, [](auto& trial, auto call, int place) { trial.runOnce(call, place); });
  std::vector<S> few;  // with the bad ones far behind, too
  for (size_t i = 0; i < std::min<size_t>(sources.size(), 700); ++i) few.push_back(sources[i * 7919 % sources.size()]);
  for (const int s : pathScales) {
    at(s, few, [](auto& trial, auto call, int place) { trial.run(call, place); });
    if (testing::Test::HasFailure()) return;
  }
}

// All values of a narrow type.
template <class T> std::vector<T> allOf() {
  std::vector<T> all;
  for (int64_t x = std::numeric_limits<T>::min(); x <= std::numeric_limits<T>::max(); ++x) all.push_back(static_cast<T>(x));
  return all;
}

inline std::vector<int> range(int from, int to, std::vector<int> more = {}) {
  for (int s = from; s <= to; ++s) more.push_back(s);
  return more;
}

// The call in each rounding mode of the caller, which must come back from it.
template <class Call> auto inMode(int mode, Call call) {
  return [=](auto... arguments) {
    std::fesetround(mode);
    const QvxStatus status = call(arguments...);
    EXPECT_EQ(std::fegetround(), mode) << "the rounding mode was changed";
    std::fesetround(FE_TONEAREST);
    return status;
  };
}
inline constexpr int kModes[] = {FE_TONEAREST, FE_DOWNWARD, FE_UPWARD, FE_TOWARDZERO};

}  // namespace tests
