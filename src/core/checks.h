// The argument checks that all families share. Each returns vemiOk or its status; firstOf gives the first failure in
// the order in which a family lists them, and that order is part of the family's contract.
#pragma once

#include "core/image.h"
#include "vemi/status.h"
#include "vemi/types.h"

namespace vemi {

template <class... Status>
VemiStatus firstOf(Status... status) {
  VemiStatus first = vemiOk;
  ((first = first != vemiOk ? first : status), ...);
  return first;
}

inline bool isNull(const void* pointer) { return pointer == nullptr; }

/// A plane array is null also where one of its planes is.
template <class T, int planeCount>
bool isNull(Planes<T, planeCount> planes) {
  if (planes.plane == nullptr) return true;
  for (int n = 0; n < planeCount; ++n) {
    if (planes.plane[n] == nullptr) return true;
  }
  return false;
}

template <class T>
bool isNull(Image<T> image) {
  return image.first == nullptr;
}

template <class... Pointer>
VemiStatus checkNull(Pointer... pointer) {
  return (isNull(pointer) || ...) ? vemiErrNullPtr : vemiOk;
}

template <class... Size>
VemiStatus checkSize(Size... size) {
  return ((size.width < 1 || size.height < 1) || ...) ? vemiErrSize : vemiOk;
}

/// Takes images and plane arrays.
template <class... Stepped>
VemiStatus checkStep(Stepped... image) {
  return ((image.step < 1) || ...) ? vemiErrStep : vemiOk;
}

}  // namespace vemi
