// What the C++ face returns: a status, or an object or the status that tells why there is none.
#ifndef QVX_QVXS_RESULT_HPP
#define QVX_QVXS_RESULT_HPP

#include <qvx/qvxs.h>

#include <cstdlib>
#include <stdexcept>
#include <utility>

#include <qvx/qvxs_names.hpp>

namespace qvx {

// A refusal, for those who asked for an exception.
class Error : public std::runtime_error {
 public:
  explicit Error(QvxStatus status) : std::runtime_error(describe(status)), status_(status) {}
  QvxStatus status() const { return status_; }

 private:
  QvxStatus status_;
};

namespace detail {

[[noreturn]] inline void refuse(QvxStatus status) {
#if defined(__cpp_exceptions)
  throw Error(status);
#else
  static_cast<void>(status);
  std::abort();
#endif
}

}  // namespace detail

// A QvxStatus that cannot be overlooked. Negative: refused. Positive: done, but some element had no proper result.
class [[nodiscard]] Status {
 public:
  constexpr Status(QvxStatus code) : code_(code) {}

  constexpr operator QvxStatus() const { return code_; }
  constexpr bool refused() const { return code_ < 0; }
  constexpr bool warned() const { return code_ > 0; }
  // Its name in qvxdefs.h and what that says of it.
  const char* describe() const { return qvx::describe(code_); }

  // Throws an Error if the call was refused, or ends a program without exceptions. Says whether there was a warning.
  bool orThrow() const {
    if (refused()) [[unlikely]] {
      detail::refuse(code_);
    }
    return warned();
  }

 private:
  QvxStatus code_;
};

// A T or a refusal, with the names of std::expected<T, Status>, which GCC 12 and Clang 14 lack.
template <class T> class [[nodiscard]] Result {
 public:
  Result(T&& value) : value_(std::move(value)) {}
  Result(Status status) : status_(status) {}

  bool has_value() const { return !status_.refused(); }
  explicit operator bool() const { return has_value(); }
  Status error() const { return status_; }

  T& operator*() { return value_; }
  const T& operator*() const { return value_; }
  T* operator->() { return &value_; }
  const T* operator->() const { return &value_; }

  T& value() & {
    status_.orThrow();
    return value_;
  }
  T&& value() && {
    status_.orThrow();
    return std::move(value_);
  }

 private:
  Status status_ = qvxStatOk;
  T value_;  // empty if refused
};

}  // namespace qvx

#endif
