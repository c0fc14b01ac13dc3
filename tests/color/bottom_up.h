// Images whose first row is the last one in memory, for members that do not look at their steps.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/check.h"

namespace vemi::test {

/// Makes the first row of all images the last one in memory.
inline void turnOver(Call& call) {
  for (CallImage& image : call.images) {
    if (image.role != Role::image) continue;
    for (size_t n = 0; n < image.planes.size(); ++n) {
      CallImage::Plane& plane = image.planes[n];
      plane.first += ptrdiff_t{image.sizeOf(n).height - 1} * plane.step;
      plane.step = -plane.step;
      const std::string step = call.function.parameters[static_cast<size_t>(image.stepParameter)].name;
      call.setNumber(step, plane.step, static_cast<int>(image.layout.planar ? n : 0));
      if (image.layout.planar) {
        image.pointers[n] = plane.first;
      } else {
        call.arguments[static_cast<size_t>(image.parameter)].put(plane.first);
      }
    }
  }
}

inline void expectBottomUp(const std::vector<const Export*>& members, const Reference& reference) {
  for (const Export* function : members) {
    for (const VemiSize size : {VemiSize{70, 5}, VemiSize{9, 40}}) {
      for (const Rows rows : {Rows::contiguous, Rows::padded}) {
        Scenario scenario;
        scenario.roiSize = size;
        scenario.rows = rows;
        Call call(*function, scenario);
        if (function->indexOf("layer") >= 0 && call.image("pSrcY").margin.top != 0) continue;
        turnOver(call);
        reference(call);
        EXPECT_EQ(call.invoke(), vemiOk) << call.text();
        EXPECT_EQ(call.difference(), "") << "bottom up";
      }
    }
  }
}

}  // namespace vemi::test
