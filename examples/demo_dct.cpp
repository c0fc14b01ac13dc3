// vemiDCT8x8, vemiZigzag: a block's coefficients, and the picture rebuilt from the first of them in the order of JPEG;
// vemiDCTFwd: a picture's size changed by way of its cosines.

#include <algorithm>
#include <memory>
#include <string>

#include "demo.h"
#include "pictures.h"

namespace demo {
namespace {

constexpr VemiSize square = {256, 256};

/// Each of 8 by 8 elements as a square of 24 by 24 pixels.
Image8u enlarged(const Vemi8u* elements, int step) {
  constexpr int side = 24;
  Image8u picture({8 * side, 8 * side}, 1);
  for (int y = 0; y < 8; y++) {
    for (int x = 0; x < 8; x++) {
      CALL(vemiSet_8u_C1R(elements[y * step + x], picture.at(side * x, side * y), picture.step(), {side, side}));
    }
  }
  return picture;
}

/// The block whose coefficients differ most from 0, the first one aside.
VemiPoint liveliest(Image8u& grey) {
  VemiPoint best = {0, 0};
  int most = -1;
  for (int y = 0; y < square.height; y += 8) {
    for (int x = 0; x < square.width; x += 8) {
      Vemi16s block[64];
      CALL(vemiDCT8x8FwdLS_8u16s_C1R(grey.at(x, y), grey.step(), block, -128));
      int sum = 0;
      for (int i = 1; i < 64; i++) sum += block[i] < 0 ? -block[i] : block[i];
      if (sum > most) best = {x, y};
      most = std::max(most, sum);
    }
  }
  return best;
}

void showBlock(const Demo& demo, Image8u& grey) {
  const VemiPoint at = liveliest(grey);
  demo.page.show(enlarged(grey.at(at.x, at.y), grey.step()), "A block",
                 "Eight by eight pixels of the picture, where most is going on.", {});
  Vemi16s block[64];
  const Call call = CALL(vemiDCT8x8FwdLS_8u16s_C1R(grey.at(at.x, at.y), grey.step(), block, -128));
  Vemi8u drawn[64];
  for (int i = 0; i < 64; i++) drawn[i] = static_cast<Vemi8u>(std::clamp(128 + block[i], 0, 255));
  demo.page.show(enlarged(drawn, 8), "Its 64 coefficients",
                 "On grey; waves become shorter to the right and downwards. The first one is the mean.", {call});
}

Image8u rebuilt(Image8u& grey, int count, Call* calls) {
  Image8u result(square, 1);
  for (int y = 0; y < square.height; y += 8) {
    for (int x = 0; x < square.width; x += 8) {
      Vemi16s block[64], scanned[64];
      CALL(vemiDCT8x8FwdLS_8u16s_C1R(grey.at(x, y), grey.step(), block, -128));
      calls[0] = CALL(vemiZigzagFwd8x8_16s_C1(block, scanned));
      std::fill(scanned + count, scanned + 64, Vemi16s{0});
      calls[1] = CALL(vemiZigzagInv8x8_16s_C1(scanned, block));
      calls[2] = CALL(vemiDCT8x8InvLSClip_16s8u_C1R(block, result.at(x, y), result.step(), 128, 0, 255));
    }
  }
  return result;
}

}  // namespace

void demoDct(const Demo& demo) {
  Image8u grey = greenMiddleOf(demo.photo, square);
  showBlock(demo, grey);
  for (const int count : {1, 3, 10, 64}) {
    Call calls[3];
    const Image8u picture = rebuilt(grey, count, calls);
    const std::string title = count == 1 ? "One coefficient" : std::to_string(count) + " coefficients";
    demo.page.show(picture, title,
                   count == 64 ? "All of them: the picture, but for rounding."
                               : "The first of each block in zigzag order; the others are 0.",
                   {calls[0], calls[1], calls[2]});
  }

  // Half the frequencies are half the size: an inverse transform of the low quarter.
  const VemiSize half = {square.width / 2, square.height / 2};
  Image<Vemi32f> spectrum(square, 1), small(half, 1);
  CALL(vemiConvert_8u32f_C1R(grey.data(), grey.step(), spectrum.data(), spectrum.step(), square));
  VemiDCTSpec_32f *forward = nullptr, *inverse = nullptr;
  CALL(vemiDCTFwdInitAlloc_32f(&forward, square, vemiHintNone));
  const std::unique_ptr<VemiDCTSpec_32f, VemiStatus (*)(VemiDCTSpec_32f*)> ownsForward(forward, vemiDCTFwdFree_32f);
  CALL(vemiDCTInvInitAlloc_32f(&inverse, half, vemiHintNone));
  const std::unique_ptr<VemiDCTSpec_32f, VemiStatus (*)(VemiDCTSpec_32f*)> ownsInverse(inverse, vemiDCTInvFree_32f);
  const Call there =
      CALL(vemiDCTFwd_32f_C1R(spectrum.data(), spectrum.step(), spectrum.data(), spectrum.step(), forward, nullptr));
  CALL(vemiMulC_32f_C1R(spectrum.data(), spectrum.step(), 0.5f, small.data(), small.step(), half));
  const Call back = CALL(vemiDCTInv_32f_C1R(small.data(), small.step(), small.data(), small.step(), inverse, nullptr));
  Image8u result(half, 1);
  CALL(vemiConvert_32f8u_C1R(small.data(), small.step(), result.data(), result.step(), half, vemiRndNear));
  demo.page.show(result, "Half the size",
                 "The transform of the whole picture, and back from a quarter of it, the low frequencies.",
                 {there, back});
}

}  // namespace demo
