// Records of generators. They hold no regions, so that callers may build one right in memory of their own.
#pragma once

#include "frame/check.h"
#include "frame/record.h"

namespace qvx::generate {

template <class Record> QvxStatus checkRun(const void* dst, int len, const Record* record, uint32_t id) {
  const QvxStatus status = check(len, dst, record);
  return status == qvxStatOk ? checkRecord(record, id) : status;
}

// build(record) in memory of the library's.
template <class Record, class Build> QvxStatus allocate(Record** ppRecord, int64_t bytes, Build build) {
  return allocateRecord(ppRecord, bytes, [=](Record** made, void* block) {
    *made = static_cast<Record*>(block);
    build(**made);
    return qvxStatOk;
  });
}

template <class Record> QvxStatus release(Record* record, uint32_t id) {
  return releaseRecord(record, checkRecord(record, id), InCallersBlock::kUntouched);
}

}  // namespace qvx::generate
