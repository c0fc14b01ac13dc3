// vemiFilterBox.

#include "demo.h"
#include "pictures.h"

namespace demo {
namespace {

/// Fits the largest mask below, wherever its anchor is.
constexpr int border = 48;

void showSizes(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const Image8u wide = bordered(photo, border);
  Image8u soft(size, 3), blurred(size, 3), streaks(size, 3), plain(size, 3);
  page.show(soft, "Five by five",
            "Each pixel becomes the mean of 25. The source has a border around it, where the mask reaches beyond the "
            "picture.",
            {CALL(vemiFilterBox_8u_C3R(wide.at(border, border), wide.step(), soft.data(), soft.step(), size, {5, 5},
                                       {2, 2}))});
  page.show(blurred, "Forty-one by forty-one",
            "1681 pixels take as long as 25: the sum moves on by what enters and what leaves.",
            {CALL(vemiFilterBox_8u_C3R(wide.at(border, border), wide.step(), blurred.data(), blurred.step(), size,
                                       {41, 41}, {20, 20}))});
  page.show(streaks, "A flat mask",
            "Forty-one columns and two rows: as if the camera had been moved. With the anchor at its right end the "
            "mask looks to the left alone.",
            {CALL(vemiFilterBox_8u_C3R(wide.at(border, border), wide.step(), streaks.data(), streaks.step(), size,
                                       {41, 2}, {40, 0}))});
  CALL(vemiFilterBox_8u_C3R(wide.at(border, border), wide.step(), plain.data(), plain.step(), size, {9, 9}, {4, 4}));
  Image8u again = bordered(plain, border);
  const Call second = CALL(vemiFilterBox_8u_C3IR(again.at(border, border), again.step(), size, {9, 9}, {4, 4}));
  const Call third = CALL(vemiFilterBox_8u_C3IR(again.at(border, border), again.step(), size, {9, 9}, {4, 4}));
  page.show(
      plain, "Three times",
      "A mean of means of means is close to a Gaussian, and no square shows. The second and the third are taken "
      "in place.",
      {second, third, CALL(vemiCopy_8u_C3R(again.at(border, border), again.step(), plain.data(), plain.step(), size))});
}

void showFocus(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const Image8u wide = bordered(photo, border);
  const Image8u disc = maskOf(ellipseWithin(size, size.height / 5.0), size);
  Image8u focus(size, 3);
  page.show(
      focus, "In focus", "All is blurred but what an ellipse copies back.",
      {CALL(vemiFilterBox_8u_C3R(wide.at(border, border), wide.step(), focus.data(), focus.step(), size, {21, 21},
                                 {10, 10})),
       CALL(vemiCopy_8u_C3MR(photo.data(), photo.step(), focus.data(), focus.step(), size, disc.data(), disc.step()))});
}

void showDetail(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const Image<Vemi16s> wide = converted<Vemi16s>(bordered(photo, border));
  Image<Vemi16s> mean(size, 3), sharp(size, 3);
  const Vemi16s* const pixels = wide.at(border, border);
  const Call ofMean = CALL(vemiFilterBox_16s_C3R(pixels, wide.step(), mean.data(), mean.step(), size, {9, 9}, {4, 4}));
  const Call difference =
      CALL(vemiSub_16s_C3RSfs(mean.data(), mean.step(), pixels, wide.step(), sharp.data(), sharp.step(), size, 0));
  const Call sum = CALL(vemiAdd_16s_C3IRSfs(pixels, wide.step(), sharp.data(), sharp.step(), size, 0));
  page.show(converted<Vemi8u>(sharp), "Sharpened",
            "What the mean has lost is added once more, in 16 bits, where a difference may be negative.",
            {ofMean, difference, sum});
}

}  // namespace

void demoBox(const Demo& demo) {
  showSizes(demo.photo, demo.page);
  showFocus(demo.photo, demo.page);
  showDetail(demo.photo, demo.page);
}

}  // namespace demo
