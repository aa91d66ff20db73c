// A benchmark is one line: suite.row("Add_32f", qvxsAdd_32f, plain::Direct<plain::Sum>()).against("VOLK", volk::add);
#pragma once

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "frame/call.h"
#include "peers/plain_loop.h"

namespace bench {

// How the output of a peer has to agree with ours.
enum class Agreement {
  kBitwise,
  kFused,   // floats up to a few roundings: the peer's compiler fuses multiplications and additions, the library never does
  kSummed,  // sums in another order
  kDiffers  // another rule; only the work is comparable
};

struct Contender {
  std::string peer;
  std::function<void(const Vectors&)> once;
  std::function<void(benchmark::State&, const Vectors&)> timed;
  Agreement agreement;
  int threads = 1;
  bool isPeer = true;  // false: another way of our own
};

enum class Table { kAligned, kMisaligned, kLarge, kStream, kTeam, kTransforms };

inline const std::vector<int> kSizes = {16, 256, 4096, 65536, 4 << 20};
inline constexpr int kLongestBrief = 65537;
inline constexpr size_t kMostBrief = 16;
inline const std::vector<int> kStreamSizes = {64, 1024, 65536};
inline const std::vector<int> kTeamSizes = {512, 1024, 2048, 4096, 8192, 16384, 65536, 1 << 20};

struct Case {
  std::string name;
  std::string group;  // of the lengths, for the filter
  Table table = Table::kAligned;
  std::vector<int> sizes = kSizes;
  int misaligned = 0;
  int overlap = 0;
  std::function<void(const Vectors&)> fillSources;
  std::function<void(const Vectors&)> fillDestination;
  std::function<void(const Vectors&)> saveDestination;
  std::function<bool(const Vectors&, Agreement)> agrees;  // the saved destination with the present one
  std::vector<Contender> contenders;                      // ours first
  std::function<double(int n)> operations;                // of transforms and filters: what is counted in GFLOPS
  bool inRealTime = false;

  std::string title() const { return group.empty() ? name : name + ", " + group; }
};

template <class T> bool near(T ours, T peers) {
  // Products of elements up to 1000 cancel: the error is that of the largest product.
  return ours == peers || std::abs(ours - peers) <= std::numeric_limits<T>::epsilon() * T(4e6);
}

// Sums of n products of elements up to 1000: four roundings of their magnitudes, which come to n * 5e5 in complex numbers. 4 Mi
// of them, added in 16 lanes of 32 bits, were seen to be off by 6e5, where the magnitudes come to 2e12.
template <class T> bool nearSum(T ours, T peers, int n) {
  return ours == peers || std::abs(ours - peers) <= std::numeric_limits<T>::epsilon() * T(2e6) * T(n) + T(1e-5) * std::abs(ours);
}

// n: the number of elements that a result depends on.
template <class T> bool agree(const std::byte* ours, const std::byte* peers, size_t bytes, Agreement agreement, int n) {
  if (agreement == Agreement::kDiffers || std::memcmp(ours, peers, bytes) == 0) return true;
  if constexpr (std::is_floating_point_v<T>) {
    const auto* a = reinterpret_cast<const T*>(ours);
    if (agreement == Agreement::kSummed)
      return std::equal(a, a + bytes / sizeof(T), reinterpret_cast<const T*>(peers), [=](T x, T y) { return nearSum(x, y, n); });
    if (agreement != Agreement::kFused) return false;
    return std::equal(a, a + bytes / sizeof(T), reinterpret_cast<const T*>(peers), near<T>);
  }
  return false;
}

template <class F, Shape kShape, class Peer, class Scalars>
Contender contender(std::string name, Peer peer, Scalars scalars, Agreement agreement) {
  const auto once = [=](const Vectors& v) { std::apply(peer, Signature<F, kShape>::arguments(v, scalars)); };
  const auto timed = [=](benchmark::State& state, const Vectors& v) {
    std::apply(
        [&state, call = peer](auto... arguments) {
          for (auto _ : state) {
            call(arguments...);
            benchmark::ClobberMemory();
          }
        },
        Signature<F, kShape>::arguments(v, scalars));
  };
  return {std::move(name), once, timed, agreement};
}

// A handle of the line, to add peers and conditions.
template <class F, Shape kShape, class Scalars> class Row {
 public:
  Row(Case& row, Scalars scalars) : case_(row), scalars_(scalars) {}

  template <class Peer> Row& against(std::string name, Peer peer, Agreement agreement = Agreement::kBitwise) {
    case_.contenders.push_back(contender<F, kShape>(std::move(name), peer, scalars_, agreement));
    return *this;
  }
  // Adds our own function called in another way.
  template <class Other> Row& besides(std::string name, Other other, Agreement agreement) {
    against(std::move(name), other, agreement);
    case_.contenders.back().isPeer = false;
    return *this;
  }
  // Adds the plain loop of an operation for this signature.
  template <class Op> Row& plain(Op, Agreement agreement = Agreement::kBitwise) {
    return against("plain", plain::loopFor<Op, F>(), agreement);
  }
  Row& misaligned() {
    case_.table = Table::kMisaligned;
    case_.misaligned = 1;
    case_.name += ", misaligned";
    return *this;
  }
  Row& overlapping(int elements) {
    case_.overlap = elements;
    case_.name += ", overlapping";
    return *this;
  }
  Row& within(double least, double most) {
    case_.fillSources = [=](const Vectors& v) { Signature<F, kShape>::fillSourcesWithin(v, least, most); };
    return *this;
  }
  // The call with two threads beside the same with one, in real time: from where on do two pay?
  Row& inTeam() {
    case_.table = Table::kTeam;
    case_.inRealTime = true;
    case_.sizes = kTeamSizes;
    Contender alone = case_.contenders[0];
    alone.peer = "one thread";
    alone.isPeer = false;
    case_.contenders[0].threads = 2;
    case_.contenders.push_back(alone);
    return *this;
  }
  // A stream in blocks, for filters.
  Row& stream(const std::vector<int>& sizes = kStreamSizes) {
    case_.table = Table::kStream;
    case_.sizes = sizes;
    return *this;
  }
  Row& operations(double each) {
    case_.operations = [=](int n) { return each * n; };
    return *this;
  }
  Row& large(int n) {
    case_.table = Table::kLarge;
    case_.sizes = {n};
    return *this;
  }

 private:
  Case& case_;
  Scalars scalars_;
};

class Suite {
 public:
  // scalars: all scalar arguments but the length, in their order.
  template <class F, class... S> auto row(std::string name, F ours, S... scalars) {
    return add<Shape::kMap>(std::move(name), ours, scalars...);
  }
  template <class F, class... S> auto reduction(std::string name, F ours, S... scalars) {
    return add<Shape::kReduction>(std::move(name), ours, scalars...);
  }

  // A case that is no map or reduction.
  void add(Case c) { cases_.push_back(std::move(c)); }

  const std::vector<Case>& cases() const { return cases_; }

  // Keeps what can be shown beside peers. Transforms above 2^20 are left out: FFTW takes minutes to plan them.
  void keepPeers() {
    for (Case& c : cases_) {
      std::erase_if(c.contenders, [](const Contender& other) { return !other.isPeer; });
      if (c.table == Table::kTransforms) std::erase_if(c.sizes, [](int n) { return n > 1 << 20; });
    }
    std::erase_if(cases_, [](const Case& c) { return c.contenders.size() < 2; });
  }
  // Keeps what differs between variants: no vectors that only wait for memory, and no plans that take longer than their
  // transforms.
  void keepBrief() {
    for (Case& c : cases_) {
      std::erase_if(c.contenders, [](const Contender& other) { return other.peer == "FFTW, patient"; });
      std::erase_if(c.sizes, [](int n) { return n > kLongestBrief; });
      // One in four of the transforms of any length, some with large primes among them.
      if (c.sizes.size() > kMostBrief) std::erase_if(c.sizes, [i = 0](int) mutable { return i++ % 4 != 0; });
    }
    std::erase_if(cases_, [](const Case& c) { return c.sizes.empty(); });
  }

 private:
  template <Shape kShape, class R, class... P, class... S> auto add(std::string name, R (*ours)(P...), S... scalars) {
    using F = R (*)(P...);
    using Call = Signature<F, kShape>;
    using T = typename Call::Destination;
    constexpr size_t kAt = Call::destinationAt();
    static_assert(sizeof...(S) == Call::scalarsBefore(sizeof...(P)));
    const std::tuple given(scalars...);
    Case& c = cases_.emplace_back();
    c.name = std::move(name);
    c.fillSources = Call::fillSources;
    c.fillDestination = [](const Vectors& v) { fill<T>(Call::template pointer<kAt>(v), Call::results(v), 99); };
    c.saveDestination = [](const Vectors& v) {
      std::memcpy(v.slabs.saved(), Call::template pointer<kAt>(v), bytesOf<T>(Call::results(v)));
    };
    c.agrees = [](const Vectors& v, Agreement agreement) {
      const auto* peers = reinterpret_cast<const std::byte*>(Call::template pointer<kAt>(v));
      return agree<Part<T>>(v.slabs.saved(), peers, bytesOf<T>(Call::results(v)), agreement,
                            kShape == Shape::kReduction ? v.n : 1);
    };
    c.contenders.push_back(contender<F, kShape>("ours", ours, given, Agreement::kBitwise));
    return Row<F, kShape, std::tuple<S...>>(c, given);
  }

  std::vector<Case> cases_;
};

}  // namespace bench
