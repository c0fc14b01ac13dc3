// The checks of arguments, each with the last value that passes and the first that does not.

#include "core/checks.h"

#include <gtest/gtest.h>

#include <climits>

using namespace vemi;

namespace {

constexpr Vemi8u pixel[1024] = {};

TEST(Checks, TheFirstFailureCounts) {
  EXPECT_EQ(firstOf(vemiOk, vemiErrSize, vemiErrNullPtr), vemiErrSize);
  EXPECT_EQ(firstOf(vemiOk, vemiWarnNoIntersection, vemiErrStep), vemiWarnNoIntersection);
  EXPECT_EQ(firstOf(vemiOk, vemiOk), vemiOk);
}

TEST(Checks, AnArrayAndItsPlanes) {
  using One = Planes<const Vemi8u, 3>;
  using Each = SteppedPlanes<const Vemi8u, 3>;
  const Vemi8u* const all[] = {pixel, pixel, pixel};
  const Vemi8u* const lastMissing[] = {pixel, pixel, nullptr};
  const int good[] = {1, 1, 1}, bad[] = {1, 1, 0};
  struct Case {
    Each planes;
    VemiStatus array, null, step;
  };
  const Case cases[] = {
      {{all, good}, vemiOk, vemiOk, vemiOk},
      {{all, bad}, vemiOk, vemiOk, vemiErrStep},
      {{lastMissing, good}, vemiOk, vemiErrNullPtr, vemiOk},
      {{nullptr, good}, vemiErrNullPtr, vemiErrNullPtr, vemiOk},
      {{all, nullptr}, vemiErrNullPtr, vemiErrNullPtr, vemiErrStep},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(checkNullArray(c.planes), c.array);
    EXPECT_EQ(checkNull(c.planes), c.null);
    EXPECT_EQ(checkStep(c.planes), c.step);
    if (c.planes.step == nullptr) continue;
    const One one = {c.planes.plane, c.planes.step[2]};
    EXPECT_EQ(checkNullArray(one), c.array);
    EXPECT_EQ(checkNull(one), c.null);
    EXPECT_EQ(checkStep(one), c.step);
  }
  const Image<const Vemi8u> image = {pixel, 1}, missing = {nullptr, 1};
  EXPECT_EQ(checkNull(image, Each{all, good}, missing), vemiErrNullPtr);
  EXPECT_EQ(checkStep(image, Each{all, bad}), vemiErrStep);
}

TEST(Checks, RowsHaveRoomForTheirPixels) {
  const auto image = [](int step) { return Image<const Vemi16s>{nullptr, step}; };
  EXPECT_EQ(checkRowFits<C3>(image(60), 10, vemiErrStep), vemiOk);
  EXPECT_EQ(checkRowFits<C3>(image(59), 10, vemiErrStep), vemiErrStep);
  EXPECT_EQ(checkRowFits<AC4>(image(79), 10, vemiErrStride), vemiErrStride);
  EXPECT_EQ(checkRowFits<C1>(image(-1), 1, vemiErrStride), vemiErrStride);
  EXPECT_EQ(checkRowFits<C4>(image(INT_MAX), INT_MAX, vemiErrStride), vemiErrStride) << "more than 32 bits";
}

TEST(Checks, RectanglesWithinAnImage) {
  constexpr VemiSize size = {10, 20};
  EXPECT_EQ(checkRect({0, 0, 1, 1}), vemiOk);
  for (const VemiRect bad : {VemiRect{-1, 0, 1, 1}, {0, -1, 1, 1}, {0, 0, 0, 1}, {0, 0, 1, 0}}) {
    EXPECT_EQ(checkRect(bad), vemiErrSize);
  }
  EXPECT_EQ(checkIntersection({9, 19, 5, 5}, size), vemiOk);
  EXPECT_EQ(checkIntersection({10, 0, 5, 5}, size), vemiWarnNoIntersection);
  EXPECT_EQ(checkIntersection({0, 20, 5, 5}, size), vemiWarnNoIntersection);
  const VemiSize clipped = clippedSize({7, 15, 5, 3}, size);
  EXPECT_EQ(clipped.width, 3);
  EXPECT_EQ(clipped.height, 3);
  EXPECT_EQ(clippedSize({7, 18, INT_MAX, INT_MAX}, size).height, 2);
  const Image<const Vemi8u> image = {pixel, 100};
  EXPECT_EQ((imageOf<C3>({2, 5, 1, 1}, image).first), pixel + 506);
  EXPECT_EQ((imageOf<C3>({2, 5, 1, 1}, image).step), 100);
}

TEST(Checks, MasksAndAnchors) {
  EXPECT_EQ(checkMaskSize({1, 1}), vemiOk);
  EXPECT_EQ(checkMaskSize({0, 1}), vemiErrMaskSize);
  EXPECT_EQ(checkMaskSize({1, 0}), vemiErrMaskSize);
  EXPECT_EQ(checkMaskSize({2, 2}, 2), vemiOk);
  EXPECT_EQ(checkMaskSize({2, 1}, 2), vemiErrMaskSize);
  constexpr VemiSize mask = {3, 5};
  for (const VemiPoint good : {VemiPoint{0, 0}, {2, 4}}) EXPECT_EQ(checkAnchor(good, mask), vemiOk);
  for (const VemiPoint bad : {VemiPoint{-1, 0}, {0, -1}, {3, 0}, {0, 5}}) {
    EXPECT_EQ(checkAnchor(bad, mask), vemiErrAnchor);
  }
}

TEST(Checks, MarginsOfAWindow) {
  const Margins margins = marginsOf({7, 5}, {1, 3});
  EXPECT_EQ(margins.left, 1);
  EXPECT_EQ(margins.top, 3);
  EXPECT_EQ(margins.right, 5);
  EXPECT_EQ(margins.bottom, 1);
  const Margins other = turned(margins);
  EXPECT_EQ(other.left, 5);
  EXPECT_EQ(other.top, 1);
  EXPECT_EQ(other.right, 1);
  EXPECT_EQ(other.bottom, 3);
}

}  // namespace
