// A record that its maker allocates and its own function frees.
#pragma once

#include <gtest/gtest.h>
#include <qvx/qvxdefs.h>

#include <type_traits>

namespace tests {

template <class Spec> class Owned {
 public:
  template <class... A>
  Owned(QvxStatus (*free)(Spec*), QvxStatus (*initAlloc)(Spec**, A...), std::type_identity_t<A>... arguments) : free_(free) {
    EXPECT_EQ(initAlloc(&spec_, arguments...), qvxStatOk);
  }
  ~Owned() { EXPECT_EQ(free_(spec_), qvxStatOk); }
  Owned(const Owned&) = delete;
  Owned& operator=(const Owned&) = delete;
  const Spec* get() const { return spec_; }

 private:
  QvxStatus (*free_)(Spec*);
  Spec* spec_ = nullptr;
};

}  // namespace tests
