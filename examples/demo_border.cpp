// vemiCopyConstBorder, vemiCopyReplicateBorder, vemiCopyWrapBorder.

#include "demo.h"
#include "shapes.h"

namespace demo {
namespace {

/// The middle of a picture, as a source for a destination of the picture's size.
struct Middle {
  int x, y;
  VemiSize size;
};

Middle middleOf(VemiSize whole, double share) {
  const VemiSize size = {static_cast<int>(whole.width * share), static_cast<int>(whole.height * share)};
  return {(whole.width - size.width) / 2, (whole.height - size.height) / 2, size};
}

void showThree(const Demo& demo) {
  const auto& [rgba, photo, page] = demo;
  const VemiSize size = photo.size();
  const auto [left, top, part] = middleOf(size, 0.4);
  const Vemi8u blue[3] = {58, 84, 120};
  Image8u surrounded(size, 3), spread(size, 3), tiled(size, 4);
  page.show(surrounded, "Constant", "The middle of the picture, and one colour around it.",
            {CALL(vemiCopyConstBorder_8u_C3R(photo.at(left, top), photo.step(), part, surrounded.data(),
                                             surrounded.step(), size, top, left, blue))});
  page.show(spread, "Replicated", "The source's outermost pixels are repeated outward.",
            {CALL(vemiCopyReplicateBorder_8u_C3R(photo.at(left, top), photo.step(), part, spread.data(), spread.step(),
                                                 size, top, left))});
  page.show(tiled, "Wrapped",
            "The source repeats in all directions. The function takes one channel of 32 bits, and a pixel of four "
            "bytes fits it.",
            {CALL(vemiCopyWrapBorder_32s_C1R((const Vemi32s*)rgba.at(left, top), rgba.step(), part,
                                             (Vemi32s*)tiled.data(), tiled.step(), size, top, left))});
}

void showFrame(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const int edge = size.width / 24, plank = 12;
  const VemiSize paper = {size.width + 2 * edge, size.height + 5 * edge};
  const VemiSize frame = {paper.width + 2 * plank, paper.height + 2 * plank};
  const Vemi8u white[3] = {247, 244, 236}, wood[3] = {122, 88, 62};
  Image8u print(paper, 3), framed(frame, 3);
  page.show(framed, "Framed", "White paper around the picture, broader below; then wood around the paper.",
            {CALL(vemiCopyConstBorder_8u_C3R(photo.data(), photo.step(), size, print.data(), print.step(), paper, edge,
                                             edge, white)),
             CALL(vemiCopyConstBorder_8u_C3R(print.data(), print.step(), paper, framed.data(), framed.step(), frame,
                                             plank, plank, wood))});
}

void showKeptAlpha(const Image8u& rgba, Page& page) {
  const VemiSize size = rgba.size();
  const auto [left, top, part] = middleOf(size, 0.6);
  const Image8u disc = maskOf(ellipseWithin(size, 8), size);
  Image8u badge(size, 4);
  page.show(badge, "Replicated, alpha kept",
            "AC4 copies and fills three channels; the fourth was a disc before, and still is one.",
            {CALL(vemiCopy_8u_C1C4R(disc.data(), disc.step(), badge.data() + 3, badge.step(), size)),
             CALL(vemiCopyReplicateBorder_8u_AC4R(rgba.at(left, top), rgba.step(), part, badge.data(), badge.step(),
                                                  size, top, left))});
}

void showInPlace(const Image8u& rgba, Page& page) {
  const VemiSize size = rgba.size();
  const auto [left, top, part] = middleOf(size, 0.5);
  Image8u image(size, 4);
  page.show(image, "Wrapped in place",
            "The source lies in the middle of the image already, and only what surrounds it is written.",
            {CALL(vemiCopy_8u_C4R(rgba.at(left, top), rgba.step(), image.at(left, top), image.step(), part)),
             CALL(vemiCopyWrapBorder_32s_C1IR((Vemi32s*)image.at(left, top), image.step(), part, size, top, left))});
}

}  // namespace

void demoBorder(const Demo& demo) {
  showThree(demo);
  showFrame(demo.photo, demo.page);
  showInPlace(demo.rgba, demo.page);
  showKeptAlpha(demo.rgba, demo.page);
}

}  // namespace demo
