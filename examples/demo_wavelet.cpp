// vemiWTFwd, vemiWTInv: three levels of wavelets as one picture, and the picture without what is small in them.

#include <algorithm>
#include <memory>
#include <vector>

#include "demo.h"
#include "pictures.h"

namespace demo {
namespace {

constexpr int levels = 3;
constexpr VemiSize square = {256, 256};

using Plane = Image<Vemi32f>;

/// The four quarters of a plane, or those of its upper left quarter, and so on.
struct Quarters {
  Vemi32f *approx, *detailX, *detailY, *detailXY;
  VemiSize size;

  Quarters(Plane& plane, int level) : size{square.width >> level, square.height >> level} {
    approx = plane.data();
    detailX = plane.at(0, size.height);
    detailY = plane.at(size.width, 0);
    detailXY = plane.at(size.width, size.height);
  }
};

/// With four of its pixels around it: those at the edge, repeated.
Plane withBorder(const Vemi32f* first, int step, VemiSize size) {
  constexpr int border = 4;
  Plane wide({size.width + 2 * border, size.height + 2 * border}, 1);
  // A border is made of pixels of four bytes, whatever they mean.
  CALL(vemiCopyReplicateBorder_32s_C1R(reinterpret_cast<const Vemi32s*>(first), step, size,
                                       reinterpret_cast<Vemi32s*>(wide.data()), wide.step(), wide.size(), border,
                                       border));
  return wide;
}

const Vemi32f forwardLow[5] = {-0.125f, 0.25f, 0.75f, 0.25f, -0.125f}, forwardHigh[3] = {-0.5f, 1, -0.5f};
const Vemi32f inverseLow[3] = {0.5f, 1, 0.5f}, inverseHigh[5] = {-0.125f, -0.25f, 0.75f, -0.25f, -0.125f};

template <class Spec>
using Owned = std::unique_ptr<Spec, VemiStatus (*)(Spec*)>;

/// Details around middle grey, four times as strong.
Image8u pictureOf(Plane& pyramid) {
  Plane drawn(square, 1);
  CALL(vemiMulC_32f_C1R(pyramid.data(), pyramid.step(), 4, drawn.data(), drawn.step(), square));
  CALL(vemiAddC_32f_C1IR(128, drawn.data(), drawn.step(), square));
  const VemiSize approx = Quarters(pyramid, levels).size;
  CALL(vemiCopy_32f_C1R(pyramid.data(), pyramid.step(), drawn.data(), drawn.step(), approx));
  Image8u picture(square, 1);
  CALL(vemiConvert_32f8u_C1R(drawn.data(), drawn.step(), picture.data(), picture.step(), square, vemiRndNear));
  return picture;
}

}  // namespace

void demoWavelet(const Demo& demo) {
  const Image8u grey = greenMiddleOf(demo.photo, square);
  Plane pyramid(square, 1);
  CALL(vemiConvert_8u32f_C1R(grey.data(), grey.step(), pyramid.data(), pyramid.step(), square));

  VemiWTFwdSpec_32f_C1R* forward = nullptr;
  VemiWTInvSpec_32f_C1R* inverse = nullptr;
  CALL(vemiWTFwdInitAlloc_32f_C1R(&forward, forwardLow, 5, 2, forwardHigh, 3, 2));
  const Owned<VemiWTFwdSpec_32f_C1R> ownsForward(forward, vemiWTFwdFree_32f_C1R);
  CALL(vemiWTInvInitAlloc_32f_C1R(&inverse, inverseLow, 3, 2, inverseHigh, 5, 2));
  const Owned<VemiWTInvSpec_32f_C1R> ownsInverse(inverse, vemiWTInvFree_32f_C1R);
  int bytes[2] = {};
  CALL(vemiWTFwdGetBufSize_C1R(forward, &bytes[0]));
  CALL(vemiWTInvGetBufSize_C1R(inverse, &bytes[1]));
  std::vector<Vemi8u> buffer(static_cast<size_t>(std::max(bytes[0], bytes[1])));

  Call call;
  const int step = pyramid.step();
  for (int level = 1; level <= levels; level++) {
    const Quarters to(pyramid, level);
    const Plane source = withBorder(pyramid.data(), step, {2 * to.size.width, 2 * to.size.height});
    call = CALL(vemiWTFwd_32f_C1R(source.at(4, 4), source.step(), to.approx, step, to.detailX, step, to.detailY, step,
                                  to.detailXY, step, to.size, forward, buffer.data()));
  }
  demo.page.show(
      pictureOf(pyramid), "Three levels",
      "The small picture is what is left after three levels; beside it stand the details that each level has "
      "split off, on grey.",
      {call});

  // Small details are noise as a rule, and zeros are cheap to keep.
  const VemiSize approx = Quarters(pyramid, levels).size;
  Plane kept(approx, 1), magnitudes(square, 1);
  Image8u isSmall(square, 1);
  CALL(vemiCopy_32f_C1R(pyramid.data(), step, kept.data(), kept.step(), approx));
  CALL(vemiAbs_32f_C1R(pyramid.data(), step, magnitudes.data(), magnitudes.step(), square));
  CALL(vemiCompareC_32f_C1R(magnitudes.data(), magnitudes.step(), 6, isSmall.data(), isSmall.step(), square,
                            vemiCmpLess));
  CALL(vemiSet_32f_C1MR(0, pyramid.data(), step, square, isSmall.data(), isSmall.step()));
  CALL(vemiCopy_32f_C1R(kept.data(), kept.step(), pyramid.data(), step, approx));
  demo.page.show(pictureOf(pyramid), "Without small details", "What is nearer to 0 than 6 has become 0.", {});

  for (int level = levels; level >= 1; level--) {
    const Quarters from(pyramid, level);
    const Plane a = withBorder(from.approx, step, from.size), x = withBorder(from.detailX, step, from.size);
    const Plane y = withBorder(from.detailY, step, from.size), xy = withBorder(from.detailXY, step, from.size);
    call = CALL(vemiWTInv_32f_C1R(a.at(4, 4), a.step(), x.at(4, 4), x.step(), y.at(4, 4), y.step(), xy.at(4, 4),
                                  xy.step(), from.size, pyramid.data(), step, inverse, buffer.data()));
  }
  Image8u result(square, 1);
  CALL(vemiConvert_32f8u_C1R(pyramid.data(), step, result.data(), result.step(), square, vemiRndNear));
  demo.page.show(result, "Together again", "Three inverse levels: edges are where they were, grain is gone.", {call});
}

}  // namespace demo
