// The argument checks that all families share. Each returns vemiOk or its status; firstOf gives the first failure in
// the order in which a family lists them, and that order is part of the family's contract.
#pragma once

#include <algorithm>

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

template <class T>
bool isNull(Image<T> image) {
  return image.first == nullptr;
}

/// An array of planes or of their steps, whatever the planes are.
template <class T, int planeCount>
bool isNullArray(Planes<T, planeCount> planes) {
  return planes.plane == nullptr;
}
template <class T, int planeCount>
bool isNullArray(SteppedPlanes<T, planeCount> planes) {
  return planes.plane == nullptr || planes.step == nullptr;
}

/// A plane array is null also where one of its planes is.
template <class T, int planeCount>
bool isNull(Planes<T, planeCount> planes) {
  return isNullArray(planes) ||
         std::any_of(planes.plane, planes.plane + planeCount, [](const void* plane) { return isNull(plane); });
}
template <class T, int planeCount>
bool isNull(SteppedPlanes<T, planeCount> planes) {
  return isNullArray(planes) || isNull(Planes<T, planeCount>{planes.plane, 0});
}

template <class... Pointer>
VemiStatus checkNull(Pointer... pointer) {
  return (isNull(pointer) || ...) ? vemiErrNullPtr : vemiOk;
}

/// For families that look at the planes later than at what carries them.
template <class... PlaneArray>
VemiStatus checkNullArray(PlaneArray... planes) {
  return (isNullArray(planes) || ...) ? vemiErrNullPtr : vemiOk;
}

template <class... Size>
VemiStatus checkSize(Size... size) {
  return ((size.width < 1 || size.height < 1) || ...) ? vemiErrSize : vemiOk;
}

template <class Stepped>
bool hasStepBelow1(Stepped image) {
  return image.step < 1;
}
template <class T, int planeCount>
bool hasStepBelow1(SteppedPlanes<T, planeCount> planes) {
  if (planes.step == nullptr) return true;
  return std::any_of(planes.step, planes.step + planeCount, [](int step) { return step < 1; });
}

/// Takes images and plane arrays.
template <class... Stepped>
VemiStatus checkStep(Stepped... image) {
  return (hasStepBelow1(image) || ...) ? vemiErrStep : vemiOk;
}

/// `status` where the rows of an image lie closer than `width` pixels, those of margins included.
template <class L, class T>
VemiStatus checkRowFits(Image<T> image, Vemi64s width, VemiStatus status) {
  return width * pixelBytes<T, L> > image.step ? status : vemiOk;
}

/// A rectangle that does not begin within an image, wherever that ends, or is empty.
inline VemiStatus checkRect(VemiRect rect) {
  return rect.x < 0 || rect.y < 0 || rect.width < 1 || rect.height < 1 ? vemiErrSize : vemiOk;
}

/// A rectangle that begins beyond the image's end.
inline VemiStatus checkIntersection(VemiRect rect, VemiSize size) {
  return rect.x >= size.width || rect.y >= size.height ? vemiWarnNoIntersection : vemiOk;
}

inline VemiStatus checkMaskSize(VemiSize mask, int least = 1) {
  return mask.width < least || mask.height < least ? vemiErrMaskSize : vemiOk;
}

/// An anchor outside of its mask.
inline VemiStatus checkAnchor(VemiPoint anchor, VemiSize mask) {
  const bool isWithin = anchor.x >= 0 && anchor.x < mask.width && anchor.y >= 0 && anchor.y < mask.height;
  return isWithin ? vemiOk : vemiErrAnchor;
}

}  // namespace vemi
