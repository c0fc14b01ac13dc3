// The rows and operations that tests of row drivers share.
#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <tuple>
#include <vector>

#include "vemi/types.h"

#include "core/lanes.h"
#include "core/layout.h"
#include "support/for_types.h"
#include "support/guarded_row.h"

namespace vemi::test {

/// Calls f(width, place) for the widths that meet every way of cutting a row into blocks.
template <class F>
void forRows(ptrdiff_t blockItems, const F& f) {
  for (const Place place : places) {
    for (ptrdiff_t width = 0; width <= 3 * blockItems + 1; ++width) {
      f(width, place);
      if (::testing::Test::HasFatalFailure()) {
        FAIL() << "width " << width << ", end " << place.atEnd << ", slack " << place.slack;
      }
    }
  }
}

/// ~a & b on the bytes of two elements: tells its arguments apart, and works alike on all types.
template <class T>
T andNot(T a, T b) {
  unsigned char x[sizeof(T)], y[sizeof(T)];
  std::memcpy(x, &a, sizeof a);
  std::memcpy(y, &b, sizeof b);
  for (size_t i = 0; i < sizeof(T); ++i) y[i] = static_cast<unsigned char>(~x[i] & y[i]);
  std::memcpy(&b, y, sizeof b);
  return b;
}

constexpr auto andNotLanes = [](auto, auto a, auto b) { return hn::AndNot(a, b); };

/// Calls f(element, layout) for the layouts given.
template <class... L, class... T, class F>
void forLayouts(std::tuple<T...>, const F& f) {
  forTypes<T...>([&](auto element) { (f(element, L()), ...); });
}

/// Of one, two and four bytes.
using Elements = std::tuple<Vemi8u, Vemi16s, Vemi32f>;
using AlsoWide = std::tuple<Vemi8u, Vemi16s, Vemi32s, Vemi32f, int64_t>;  // complex elements are wide lanes

/// `old` with element i of each worked channel replaced by f(i).
template <class L, class T, class F>
std::vector<T> worked(std::vector<T> old, const F& f) {
  for (size_t i = 0; i < old.size(); ++i) {
    if (i % L::elements < L::channels) old[i] = f(i);
  }
  return old;
}

}  // namespace vemi::test
