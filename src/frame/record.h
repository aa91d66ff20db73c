// What all state and specification records share: one block carved into aligned regions, an identity word in front, and an owner.
//
// A record's type derives from the struct that holds its fields, so that families with several record types write their code once
// over that struct. Its first word is tested on every use.
#pragma once

#include <qvx/qvxcore.h>

#include <cstdint>

#include "frame/check.h"

namespace qvx {

template <int64_t kAlign> constexpr int64_t up(int64_t bytes) { return (bytes + kAlign - 1) & -kAlign; }

// Places regions one behind the other, each at a multiple of kAlign from the block's first such multiple on.
template <int64_t kAlign> class Carver {
 public:
  explicit Carver(void* block) : at_(static_cast<uint8_t*>(block)) { skip(0); }

  template <class T> T* take(int64_t count) {
    auto* region = reinterpret_cast<T*>(at_);
    skip(count * int64_t{sizeof(T)});
    return region;
  }
  // The next region, whose length its user will know.
  uint8_t* rest() const { return at_; }

 private:
  void skip(int64_t bytes) {
    at_ += bytes;
    at_ += -reinterpret_cast<intptr_t>(at_) & (kAlign - 1);
  }

  uint8_t* at_;
};

template <int64_t kAlign, class T> T* alignedUp(T* p) { return Carver<kAlign>(p).template take<T>(0); }

// A record that may be used: there, and of one of these identities.
template <class Record, class... Id> QvxStatus checkRecord(const Record* record, Id... ids) {
  if (isNull(record)) return qvxStatNullPtr;
  return ((record->magic == static_cast<uint32_t>(ids)) || ...) ? qvxStatOk : qvxStatContextMismatch;
}

// A block that goes back unless somebody keeps it.
class Block {
 public:
  explicit Block(int64_t bytes) : p_(bytes > 0 ? qvxMalloc(bytes) : nullptr) {}
  Block(const Block&) = delete;
  Block& operator=(const Block&) = delete;
  ~Block() {
    if (!isNull(p_)) qvxFree(p_);
  }

  explicit operator bool() const { return p_ != nullptr; }
  Qvx8u* get() const { return static_cast<Qvx8u*>(p_); }
  void keep() { p_ = nullptr; }

 protected:
  void* p_;
};

// Working memory of one call: the caller's, or where it brings none, a block for the time of the call.
template <int64_t kAlign> class Scratch {
 public:
  Scratch(Qvx8u* callers, int64_t bytes) : own_(isNull(callers) ? bytes : 0), at_(isNull(callers) ? own_.get() : callers) {}

  bool isMissing(int64_t bytes) const { return bytes > 0 && isNull(at_); }
  Carver<kAlign> carver() const { return Carver<kAlign>(at_); }

 private:
  Block own_;
  Qvx8u* at_;
};

}  // namespace qvx
