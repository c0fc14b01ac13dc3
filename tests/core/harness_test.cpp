// The tests' own instruments: a fault that they cannot see would never be found.

#include <gtest/gtest.h>
#include <omp.h>

#include <string>

#include "support/check.h"

using namespace vemi::test;

namespace {

const Export& function(const char* operation, const char* members) { return *membersOf(operation, members).front(); }

}  // namespace

TEST(Harness, GuardPagesStopAnyAccess) {
  const GuardedMemory memory(5000);
  volatile std::byte* const begin = memory.begin();
  volatile std::byte* const end = memory.end();
  *begin = *(end - 1);
  EXPECT_DEATH(*(begin - 1) = std::byte{1}, "");
  EXPECT_DEATH(*end = std::byte{1}, "");
  EXPECT_DEATH(static_cast<void>(*end), "");
}

// The rows that a team's other thread works on lie behind the images.
TEST(Harness, AFaultInATeamNamesTheCall) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto callBeyondTheImages = [] {
    omp_set_num_threads(2);
    Call call(function("vemiAdd", "8u_C1RSfs"), {{700, 4}, Rows::contiguous, Edge::back, 1, 0});
    call.set("roiSize", VemiSize{700, 8});
    call.invoke();
  };
  EXPECT_DEATH(callBeyondTheImages(), "touched by vemiAdd_8u_C1RSfs");
}

TEST(Harness, ImagesTouchTheGuardPages) {
  Call back(function("vemiCopy", "16s_C3MR"), {{5, 3}, Rows::odd, Edge::back, 1, 0});
  for (CallImage& image : back.images) {
    const View view = image.view(&CallImage::Plane::before);
    EXPECT_EQ(view.at(4, 2, view.channels - 1) + bytesOf(view.element),
              image.planes[0].before.data() + image.planes[0].before.size());
  }
  Call front(function("vemiCopy", "8u_C4P4R"), {{5, 3}, Rows::odd, Edge::front, 1, 0});
  for (CallImage& image : front.images) {
    for (CallImage::Plane& plane : image.planes) EXPECT_EQ(plane.first, plane.memory.begin());
  }
}

TEST(Harness, EveryByteCounts) {
  Call call(function("vemiCopy", "8u_AC4R"), {{5, 3}, Rows::padded, Edge::front, 1, 0});
  EXPECT_EQ(call.difference(), "");
  for (const char* const name : {"pSrc", "pDst"}) {
    const GuardedMemory& memory = call.image(name).planes[0].memory;
    for (size_t n = 0; n < memory.size(); n += 7) {
      memory.begin()[n] ^= std::byte{1};
      EXPECT_NE(call.difference(), "") << name << ", byte " << n;
      memory.begin()[n] ^= std::byte{1};
    }
  }
}

TEST(Harness, NamesAndPrototypesAreUnderstood) {
  const Export& copy = function("vemiCopy", "16s_C3AC4R");
  EXPECT_EQ(copy.source.elements, 3);
  EXPECT_EQ(copy.destination.elements, 4);
  EXPECT_EQ(copy.destination.channels, 3);
  EXPECT_EQ(function("vemiCopy", "8u_C4C1R").source.channels, 1);
  EXPECT_TRUE(function("vemiCopy", "32f_P3C3R").source.planar);
  EXPECT_TRUE(function("vemiAdd", "8u_C3IRSfs").inPlace);
  EXPECT_TRUE(function("vemiAdd", "8u_C3IRSfs").scaled);

  const Export& border = function("vemiCopyConstBorder", "32s_C1R");
  const auto role = [&](const char* name) { return border.parameters[static_cast<size_t>(border.indexOf(name))].role; };
  EXPECT_EQ(role("pSrc"), Role::image);
  EXPECT_EQ(role("srcStep"), Role::step);
  EXPECT_EQ(role("dstRoiSize"), Role::size);
  EXPECT_EQ(role("topBorderHeight"), Role::number);
  EXPECT_EQ(role("value"), Role::constant);
  EXPECT_EQ(function("vemiSet", "32f_C3MR").parameters[0].role, Role::array);
  EXPECT_EQ(function("vemiSet", "32f_C3MR").parameters[4].role, Role::mask);
}
