// Records that live between calls: a constructor makes one and hands it to the user, any number of calls read it, a
// Free function releases it. In the public header a record is an incomplete type; the family's source defines it:
//
//   struct VemiFFTSpec_R_32f {
//     int tag;                                    // first; tells what the record is, and is 0 when it is no more
//     int orderX, orderY;
//     vemi::Scratch tables;                       // further memory,
//     vemi::RecordPtr<SigFFTSpec> column;         // and records that it is made of, go with it
//   };
//
//   auto spec = makeRecord<VemiFFTSpec_R_32f>(26);
//   if (spec == nullptr) return vemiErrMemAlloc;
//   ...                                           // whatever fails here leaves nothing behind
//   return handOver(std::move(spec), ppSpec);
#pragma once

#include <cstring>
#include <memory>
#include <new>

#include "core/alloc.h"
#include "vemi/status.h"

namespace vemi {

struct ReleaseRecord {
  /// The tag of a freed record is 0, for as long as its memory stays what it was.
  template <class R>
  void operator()(R* record) const {
    record->~R();
    std::memset(static_cast<void*>(record), 0, sizeof(int));
    vemiAlignedFree(record);
  }
};

/// Owns a record.
template <class R>
using RecordPtr = std::unique_ptr<R, ReleaseRecord>;

/// All members but the tag are zero, or as R initialises them. Null where memory is short.
template <class R>
RecordPtr<R> makeRecord(int tag) {
  void* const block = alignedAllocBytes(sizeof(R));
  if (block == nullptr) return nullptr;
  RecordPtr<R> record(new (block) R{});
  record->tag = tag;
  return record;
}

/// The end of a constructor: the record is the user's, or, where there is none, memory was short.
template <class R>
VemiStatus handOver(RecordPtr<R> record, R** ppRecord) {
  if (record == nullptr) return vemiErrMemAlloc;
  *ppRecord = record.release();
  return vemiOk;
}

/// A record with one of these tags; a null pointer is looked at first, so that this stands in firstOf.
template <class R, class... Tag>
VemiStatus checkRecord(const R* record, Tag... tag) {
  if (record == nullptr) return vemiErrNullPtr;
  return ((record->tag == tag) || ...) ? vemiOk : vemiErrContext;
}

/// A Free function.
template <class R, class... Tag>
VemiStatus freeRecord(R* record, Tag... tag) {
  if (const VemiStatus bad = checkRecord(record, tag...)) return bad;
  ReleaseRecord()(record);
  return vemiOk;
}

/// A GetBufSize function, of a record that has the size.
template <class R>
VemiStatus tellBufSize(const R* record, int tag, int* pBufSize) {
  if (pBufSize == nullptr) return vemiErrNullPtr;
  if (const VemiStatus bad = checkRecord(record, tag)) return bad;
  *pBufSize = record->bufSize;
  return vemiOk;
}

}  // namespace vemi
