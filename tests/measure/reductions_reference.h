// What the tests of reductions share: the values of a channel, and sums of them straight from the definitions.
#pragma once

#include <algorithm>
#include <cmath>
#include <functional>

#include "support/check.h"

namespace vemi::test {

inline bool isFloat(Call& call) { return call.source().element == Element::f32; }
inline bool isAccurate(Call& call) { return call.get<int>("hint") == vemiHintAccurate; }

/// Calls f(x, y) in the order of rows.
template <class F>
void forEachPixel(const Call& call, const F& f) {
  for (int y = 0; y < call.scenario.roiSize.height; ++y) {
    for (int x = 0; x < call.scenario.roiSize.width; ++x) f(x, y);
  }
}

/// The element of a channel at (x, y), as a double.
using Values = std::function<double(int x, int y)>;

inline Values valuesOf(Call& call, int channel, int source = 0) {
  return
      [view = call.source(source), channel](int x, int y) { return loadNumber(view.element, view.at(x, y, channel)); };
}

struct Sum {
  double value, ofMagnitudes;
};

/// Integers: exact. Floats: as the hint says, or, where the order of additions is the library's own business, nearly
/// exact.
inline Sum sumOf(Call& call, const Values& values) {
  long double sum = 0, magnitudes = 0;
  double inTurn[2] = {0, 0};
  int turn = 0;
  forEachPixel(call, [&](int x, int y) {
    const double value = values(x, y);
    sum += value;
    magnitudes += std::fabs(value);
    inTurn[turn] += value;
    if (call.source().channels == 1) turn = 1 - turn;
  });
  if (isFloat(call) && isAccurate(call)) sum = inTurn[0] + inTurn[1];
  return {static_cast<double>(sum), static_cast<double>(magnitudes)};
}

/// How far a fast sum may be off: a few units in the last place of single precision of the sum of magnitudes.
inline void allowFastSum(Call& call, double magnitudes, double result) {
  call.anyNaN = true;
  if (!isFloat(call) || isAccurate(call)) return;
  call.tolerance = std::max(call.tolerance, std::ldexp(magnitudes, -18) / std::max(1.0, std::fabs(result)));
}

/// Gives float sources numbers whose squares neither overflow nor underflow. Where rows overlap, any four bytes are
/// such one.
inline void makeModerate(Call& call) {
  for (CallImage& image : call.images) {
    if (image.role != Role::image || image.element != Element::f32) continue;
    CallImage::Plane& plane = image.planes[0];
    const View view = image.view(&CallImage::Plane::before);
    if (call.scenario.rows == Rows::overlapping) {
      for (std::byte& each : plane.before) each = static_cast<std::byte>(0x3e + call.random.below(3));
    } else {
      forEachPixel(call, [&](int x, int y) {
        for (int channel = 0; channel < view.channels; ++channel) {
          const float magnitude = std::fabs(load<float>(view.at(x, y, channel)));
          if (!(magnitude > 1e-5f && magnitude < 1e5f))
            store(view.at(x, y, channel), static_cast<float>(call.random.below(99)));
        }
      });
    }
    plane.expected = plane.before;
    std::copy(plane.before.begin(), plane.before.end(), plane.memory.begin());
  }
}

/// Floats are moderate in every other call, and in all calls of the fast way.
inline void prepareFloats(Call& call) {
  if (isFloat(call) && call.function.indexOf("hint") >= 0 && (!isAccurate(call) || call.scenario.seed % 2 == 0)) {
    makeModerate(call);
  }
}

template <class T>
void storeResult(Call& call, const std::string& parameter, int channel, T value) {
  store(call.array(parameter).at(channel, 0), value);
}

}  // namespace vemi::test
