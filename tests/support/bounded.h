// Vectors beside unreadable pages.
#pragma once

#include <vector>

#include "support/blocks.h"

namespace tests {

// A vector that ends where its block does, so that reading past it is seen.
template <class T> class Bounded {
 public:
  explicit Bounded(const std::vector<T>& data) : block_(data.size() * sizeof(T)), p_(place(data.size())) {
    std::copy(data.begin(), data.end(), p_);
  }
  explicit Bounded(size_t n) : block_(n * sizeof(T)), p_(place(n)) {}
  operator T*() { return p_; }
  bool isIntact() const { return block_.isIntact(); }

 private:
  T* place(size_t n) { return reinterpret_cast<T*>(block_.atEnd(n * sizeof(T))); }
  Block block_;
  T* p_;
};

}  // namespace tests
