// Rows of transforms: ours, with a record and working memory of its own, beside the plans of others.
#pragma once

#include <memory>

#include "frame/suite.h"

namespace bench {

template <class T> T* sourceOf(const Vectors& v, bool inPlace = false) {
  return reinterpret_cast<T*>(inPlace ? v.slabs.destination() : v.slabs.source(0));
}
template <class T> T* destinationOf(const Vectors& v) { return reinterpret_cast<T*>(v.slabs.destination()); }

// F: a function of the library. Complex numbers are given to it as twice as many real ones.
template <class F, class Record> class Own {
 public:
  template <class InitAlloc>
  Own(F f, InitAlloc initAlloc, QvxStatus (*free)(Record*), QvxStatus (*getBufSize)(const Record*, int*)) : f_(f), free_(free) {
    initAlloc(&record_);
    int bytes = 0;
    getBufSize(record_, &bytes);
    buffer_ = bytes > 0 ? qvxsMalloc_8u(bytes) : nullptr;
  }
  ~Own() {
    free_(record_);
    qvxsFree(buffer_);
  }
  Own(const Own&) = delete;
  Own& operator=(const Own&) = delete;
  template <class S, class D, class... More> void run(const S* src, D* dst, More... more) const {
    call(f_, src, dst, record_, more..., buffer_);
  }

 private:
  template <class C, class E, class... Rest, class S, class D, class... Given>
  static void call(QvxStatus (*f)(const C*, E*, Rest...), const S* src, D* dst, Given... given) {
    f(reinterpret_cast<const C*>(src), reinterpret_cast<E*>(dst), given...);
  }

  F f_;
  QvxStatus (*free_)(Record*);
  Record* record_ = nullptr;
  Qvx8u* buffer_ = nullptr;
};

// What makes an object to run(src, dst) of a size and these two: ours, whose record has the given flags, or a plan.
template <class F, class Record, class... Flags>
auto maker(F f, QvxStatus (*initAlloc)(Record**, int, Flags...), QvxStatus (*free)(Record*),
           QvxStatus (*getBufSize)(const Record*, int*), std::type_identity_t<Flags>... flags) {
  return [=](int size, const void*, void*) {
    const auto init = [=](Record** made) { initAlloc(made, size, flags...); };
    return std::make_shared<Own<F, Record>>(f, init, free, getBufSize);
  };
}
template <class Plan> auto planner() {
  return [](int n, const auto* src, auto* dst) { return std::make_shared<Plan>(n, src, dst); };
}

// Planning writes both vectors, so the source is kept. The timed data are zeros, which transforms in place leave as they are.
template <class T, class Make> Contender transformer(std::string name, Make make, bool inPlace = false, int threads = 1) {
  const auto once = [=](const Vectors& v) {
    T* src = sourceOf<T>(v, inPlace);
    const std::vector<T> kept(src, src + 2 * static_cast<size_t>(v.n));
    const auto plan = make(v.n, src, destinationOf<T>(v));
    std::copy(kept.begin(), kept.end(), src);
    plan->run(src, destinationOf<T>(v));
  };
  const auto timed = [=](benchmark::State& state, const Vectors& v) {
    T* src = sourceOf<T>(v, inPlace);
    T* dst = destinationOf<T>(v);
    const auto plan = make(v.n, src, dst);
    std::fill_n(src, 2 * static_cast<size_t>(v.n), T(0));
    for (auto _ : state) {
      plan->run(src, dst);
      benchmark::ClobberMemory();
    }
  };
  return {std::move(name), once, timed, Agreement::kDiffers, threads};
}

// Two transforms agree up to rounding.
template <class T> bool areClose(const T* ours, const T* peers, size_t count) {
  double error = 0;
  double size = 0;
  for (size_t i = 0; i < count; ++i) {
    error += std::pow(static_cast<double>(ours[i]) - static_cast<double>(peers[i]), 2);
    size += std::pow(static_cast<double>(ours[i]), 2);
  }
  return std::sqrt(error / size) < 20 * std::numeric_limits<T>::epsilon();
}

// numbers(n): those of the longer vector. A transform of n points takes perStep * n * log2(n) operations.
template <class T>
Case transformCase(std::string name, std::vector<int> sizes, size_t (*numbers)(int), double perStep, bool inPlace = false) {
  Case c;
  c.name = std::move(name);
  c.table = Table::kTransforms;
  c.sizes = std::move(sizes);
  c.fillSources = [=](const Vectors& v) { fillFloats(sourceOf<T>(v, inPlace), numbers(v.n), 1); };
  c.fillDestination = [=](const Vectors& v) {
    if (!inPlace) fillFloats(destinationOf<T>(v), numbers(v.n), 2);
  };
  c.saveDestination = [=](const Vectors& v) { std::memcpy(v.slabs.saved(), v.slabs.destination(), numbers(v.n) * sizeof(T)); };
  c.agrees = [=](const Vectors& v, Agreement) {
    return areClose(reinterpret_cast<const T*>(v.slabs.saved()), destinationOf<T>(v), numbers(v.n));
  };
  c.operations = [=](int n) { return perStep * n * std::log2(n); };
  return c;
}
template <class T, bool kReal> Case fourierCase(std::string name, std::vector<int> sizes, bool inPlace = false) {
  const auto numbers = [](int n) { return 2 * static_cast<size_t>(kReal ? n / 2 + 1 : n); };
  return transformCase<T>(std::move(name), std::move(sizes), numbers, kReal ? 2.5 : 5, inPlace);
}

// Ours beside the time to make and to release its record.
template <class T, class Make> void addRecord(Suite& suite, Case c, Make make) {
  c.agrees = [](const Vectors&, Agreement) { return true; };
  c.contenders.push_back(transformer<T>("ours", make));
  Contender made = c.contenders[0];
  made.peer = "record";
  made.isPeer = false;
  made.timed = [=](benchmark::State& state, const Vectors& v) {
    for (auto _ : state) benchmark::DoNotOptimize(make(v.n, nullptr, nullptr));
  };
  c.contenders.push_back(std::move(made));
  suite.add(std::move(c));
}

}  // namespace bench
