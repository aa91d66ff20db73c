// State and specification records: one block of memory, carved into regions, that begins with the record itself.
//
// A record's type derives from the struct that holds its fields, so that families with several record types write their code once
// over that struct. Its first word, the identity, is tested on every use.
#pragma once

#include <qvx/qvxcore.h>

#include <cstdint>
#include <limits>

#include "frame/check.h"

namespace qvx {

// The first fields of every record.
struct RecordHead {
  uint32_t magic;  // the record's identity
  bool ownsBlock;  // made by InitAlloc: Free releases it
};

template <int64_t kAlign> constexpr int64_t up(int64_t bytes) { return (bytes + kAlign - 1) & -kAlign; }

template <class T> T* alignedUp(T* p, int64_t alignment) {
  return reinterpret_cast<T*>((reinterpret_cast<intptr_t>(p) + alignment - 1) & -alignment);
}

// Places regions one after another in a block. The first begins at a multiple of kRecordAlignment: the reported sizes have room
// for no more.
class Carver {
 public:
  static constexpr int64_t kRecordAlignment = 32;
  static constexpr int64_t kLine = 64;  // a cache line, and the widest vector

  explicit Carver(void* block, int64_t alignment = kRecordAlignment) : at_(alignedUp(static_cast<uint8_t*>(block), alignment)) {}

  template <class T, int64_t kAlign = alignof(T)> T* take(int64_t count) {
    T* const region = alignedUp(reinterpret_cast<T*>(at_), kAlign);
    at_ = reinterpret_cast<uint8_t*>(region + count);
    return region;
  }
  template <class T> T* takeLines(int64_t count) { return take<T, kLine>(count); }
  // The next region, whose length is left to its user.
  uint8_t* rest() const { return at_; }

 private:
  uint8_t* at_;
};

// Tests that a record may be used: that there is one, and that it has one of these identities.
template <class Record, class... Id> QvxStatus checkRecord(const Record* record, Id... ids) {
  if (isNull(record)) return qvxStatNullPtr;
  return ((record->magic == static_cast<uint32_t>(ids)) || ...) ? qvxStatOk : qvxStatContextMismatch;
}

// Reports a size; one that no int holds is reported modulo 2^32.
inline QvxStatus reportBytes(int64_t bytes, int* pSize) {
  *pSize = static_cast<int>(static_cast<uint32_t>(bytes));
  return qvxStatOk;
}

// A block of memory that is released unless it is kept.
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

// Working memory of one call: the caller's, or a block for the time of the call where the caller brings none.
class Scratch {
 public:
  Scratch(Qvx8u* callers, int64_t bytes) : own_(isNull(callers) ? bytes : 0), at_(isNull(callers) ? own_.get() : callers) {}

  bool isMissing(int64_t bytes) const { return bytes > 0 && isNull(at_); }
  Carver carver() const { return Carver(at_); }

 private:
  Block own_;
  Qvx8u* at_;
};

// ---- the life of a record

// In a caller's block. build(record, carver) gives a status; the caller's pointer is stored last.
template <class Record, class Build> QvxStatus initRecord(Record** ppRecord, void* block, Build build) {
  Carver carver(block);
  auto* record = carver.take<Record>(1);
  *record = {};
  const QvxStatus status = build(*record, carver);
  if (status == qvxStatOk) *ppRecord = record;
  return status;
}

// In a block of its own. init(ppRecord, block) is the function for callers who bring a block; if it refuses after it has stored
// the pointer, the pointer becomes null, since the block is released.
template <class Record, class Init> QvxStatus allocateRecord(Record** ppRecord, int64_t bytes, Init init) {
  Block block(bytes > std::numeric_limits<int>::max() ? 0 : bytes);
  if (!block) return qvxStatNoMem;
  Record* record = nullptr;
  const QvxStatus status = init(&record, block.get());
  if (status != qvxStatOk) {
    if (!isNull(record)) *ppRecord = nullptr;
    return status;
  }
  record->ownsBlock = true;
  block.keep();
  *ppRecord = record;
  return qvxStatOk;
}

// For the time of a call that has no record: init as above, run(record) gives the status.
template <class Record, class Init, class Run> QvxStatus withTemporaryRecord(int64_t bytes, Init init, Run run) {
  const Block block(bytes);
  if (!block) return qvxStatNoMem;
  Record* record = nullptr;
  const QvxStatus status = init(&record, block.get());
  return status == qvxStatOk ? run(*record) : status;
}

// What Free does to a record in a caller's block: transforms forget it, filters leave it as it is.
enum class InCallersBlock { kForgotten, kUntouched };

// checked: the status of the tests before. A block's own address is that of its record: qvxMalloc aligns to more than a record
// needs.
template <class Record> QvxStatus releaseRecord(Record* record, QvxStatus checked, InCallersBlock inCallersBlock) {
  if (checked != qvxStatOk) return checked;
  const bool ownsBlock = record->ownsBlock;
  if (ownsBlock || inCallersBlock == InCallersBlock::kForgotten) record->magic = 0;
  if (ownsBlock) qvxFree(record);
  return qvxStatOk;
}

}  // namespace qvx
