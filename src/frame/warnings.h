// Warnings: a kernel that declares a kWarning takes a Flag as its first argument, and raises it in the lanes that have no proper
// result. The loop then returns that warning.
#pragma once

#include <bit>

#include "frame/sources.h"

namespace qvx {

class Flag {
 public:
  template <class D, class M> void raise(D d, M mask) { lanes_ |= maskBits(d, mask); }
  bool isRaised() const { return lanes_ != 0; }

 private:
  uint64_t lanes_ = 0;
};

// For kernels with two kinds of warning: the first element that has one decides. They declare this class as their type `Watch`.
// Both ends of a vector are computed before its middle, so elements are compared by index.
class FirstFlag {
 public:
  // kind(lane) is the warning for a raised lane.
  template <class Kind> void raise(Place place, uint64_t lanes, Kind kind) {
    if (lanes == 0) return;
    const auto lane = static_cast<size_t>(std::countr_zero(lanes));
    if (place.at + lane >= at_) return;
    at_ = place.at + lane;
    status_ = kind(lane);
  }
  QvxStatus status() const { return status_; }

 private:
  size_t at_ = ~size_t{0};
  QvxStatus status_ = qvxStatOk;
};

template <QvxStatus kStatus, class Kernel> struct Warns : Kernel { static constexpr QvxStatus kWarning = kStatus; };
template <QvxStatus kStatus, class Kernel> Warns<kStatus, Kernel> warns(Kernel kernel) { return {kernel}; }
template <class Type, class Kernel> struct Watched : Kernel { using Watch = Type; };
template <class Type, class Kernel> Watched<Type, Kernel> watched(Kernel kernel) { return {kernel}; }

template <class Kernel> inline constexpr bool kWarnsOfFirst = requires { typename Kernel::Watch; };
template <class Kernel> inline constexpr bool kWarns = kWarnsOfFirst<Kernel> || requires { Kernel::kWarning; };

template <class Kernel> struct WatchFor { using Type = Flag; };
template <class Kernel>
requires kWarnsOfFirst<Kernel>
struct WatchFor<Kernel> {
  using Type = typename Kernel::Watch;
};

template <class Kernel, class Watch, class... V> auto call(const Kernel& kernel, [[maybe_unused]] Watch& watch, V... v) {
  if constexpr (kWarns<Kernel>) return kernel(watch, v...);
  else return kernel(v...);
}

template <class Kernel, class Watch> QvxStatus statusOf([[maybe_unused]] const Watch& watch) {
  if constexpr (kWarnsOfFirst<Kernel>) return watch.status();
  else if constexpr (kWarns<Kernel>) return watch.isRaised() ? Kernel::kWarning : qvxStatOk;
  else return qvxStatOk;
}

// Calls op with its arguments passed through `prepare`, and keeps its warnings.
template <class Op, class Prepare> auto prepared(Prepare prepare, Op op) {
  if constexpr (kWarnsOfFirst<Op>) {
    using Watch = typename Op::Watch;
    return watched<Watch>([=](Watch& watch, auto... v) { return op(watch, prepare(v)...); });
  } else if constexpr (kWarns<Op>) {
    return warns<Op::kWarning>([=](Flag& flag, auto... v) { return op(flag, prepare(v)...); });
  } else {
    return [=](auto... v) { return op(prepare(v)...); };
  }
}

}  // namespace qvx
