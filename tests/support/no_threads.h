// Counts the threads that are made, and refuses them when a test says so, in place of the C library's function. For one file of a
// program, which exports it.
#pragma once

#include <dlfcn.h>
#include <pthread.h>

#include <atomic>
#include <cerrno>

namespace tests {

inline std::atomic<bool> refuseThreads{false};
inline std::atomic<int> threadsMade{0}, threadsRefused{0};

}  // namespace tests

extern "C" __attribute__((visibility("default"))) int pthread_create(pthread_t* thread, const pthread_attr_t* attributes,
                                                                     void* (*run)(void*), void* argument) {
  // A sanitizer's own stands in for the C library's, and has to know of every thread.
  static void* const sanitizers = dlsym(RTLD_DEFAULT, "__interceptor_pthread_create");
  static void* const next = sanitizers != nullptr ? sanitizers : dlsym(RTLD_NEXT, "pthread_create");
  static const auto make = reinterpret_cast<decltype(&pthread_create)>(next);
  if (tests::refuseThreads) return ++tests::threadsRefused, EAGAIN;
  ++tests::threadsMade;
  return make(thread, attributes, run, argument);
}
