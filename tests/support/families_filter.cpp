#include "support/families.h"

#include <limits.h>

namespace vemi::test {
namespace {

/// A mask, an anchor in it, and the pixels that both reach.
void setMask(Call& call, VemiSize mask) {
  const VemiPoint anchor = {call.random.below(mask.width), call.random.below(mask.height)};
  call.set("maskSize", mask);
  call.set("anchor", anchor);
  Margin& margin = call.image(call.function.inPlace ? "pSrcDst" : "pSrc").margin;
  margin = {anchor.x, anchor.y, mask.width - 1 - anchor.x, mask.height - 1 - anchor.y};
}

/// A not-a-number would hide all that its windows share with it: mostly there is none, nor any huge number.
void tameFloats(Call& call) {
  const View source = call.source();
  if (source.element != Element::f32 || call.random.below(4) == 0) return;
  const Margin margin = call.image(call.function.inPlace ? "pSrcDst" : "pSrc").margin;
  for (int y = -margin.top; y < source.size.height + margin.bottom; ++y) {
    for (int x = -margin.left; x < source.size.width + margin.right; ++x) {
      for (int channel = 0; channel < source.channels; ++channel) {
        store(source.at(x, y, channel), static_cast<float>(call.random.below(4001) - 2000) / 7);
      }
    }
  }
}

/// Small masks mostly; now and then one whose sums exceed 16 bits, or bytes' path of integers.
void drawBox(Call& call) {
  const int kind = call.random.below(256);
  const auto upTo = [&](int least, int most) { return least + call.random.below(most - least + 1); };
  setMask(call, kind < 64    ? VemiSize{3, 3}
                : kind < 200 ? VemiSize{upTo(2, 17), upTo(2, 9)}
                : kind < 250 ? VemiSize{upTo(2, 70), upTo(8, 20)}
                : kind < 255 ? VemiSize{upTo(60, 130), upTo(70, 130)}
                             : VemiSize{upTo(290, 320), upTo(230, 260)});
}

}  // namespace

std::vector<Family> filterFamilies() {
  return {
      {"vemiFilterBox",
       ".*",
       "null step size mask anchor",
       drawBox,
       {{"maskSize", 1, "mask", vemiErrMaskSize},
        {"maskSize", 0, "mask", vemiErrMaskSize},
        {"maskSize", INT_MIN, "mask", vemiErrMaskSize},
        {"anchor", -1, "anchor", vemiErrAnchor},
        {"anchor", 1000, "anchor", vemiErrAnchor},
        {"anchor", INT_MAX, "anchor", vemiErrAnchor}},
       tameFloats},
  };
}

}  // namespace vemi::test
