// vemiSqr, vemiSqrt, vemiLn and vemiExp as curves; vemiMulScale, vemiMulCScale and vemiAbs as blends.

#include "chart.h"
#include "demo.h"
#include "pictures.h"

namespace demo {
namespace {

void showChart(Page& page) {
  constexpr VemiSize row = {256, 1};
  const Image8u ramp = byteRamp();
  Image8u square(row, 1), root(row, 1), logarithm(row, 1), chart = emptyChart();
  const Call squares = CALL(vemiSqr_8u_C1RSfs(ramp.data(), ramp.step(), square.data(), square.step(), row, 8));
  const Call roots = CALL(vemiSqrt_8u_C1RSfs(ramp.data(), ramp.step(), root.data(), root.step(), row, -4));
  const Call logarithms = CALL(vemiLn_8u_C1RSfs(ramp.data(), ramp.step(), logarithm.data(), logarithm.step(), row, -5));
  const Call stretched = CALL(vemiMulC_8u_C1IRSfs(23, logarithm.data(), logarithm.step(), row, 4));
  plot(ramp, grey, chart);
  plot(square, blue, chart);
  plot(root, orange, chart);
  plot(logarithm, green, chart);
  page.show(chart, "The curves",
            "Of a ramp from 0 to 255: the ramp itself grey, its square blue, its root orange, its logarithm green. The "
            "scale factors bring each of them to the range of 8 bits.",
            {squares, roots, logarithms, stretched});
}

void showCurves(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const Vemi8u stretch[3] = {23, 23, 23};
  Image8u square(size, 3), root(size, 3), logarithm(size, 3);
  page.show(square, "The square", "Divided by 256. White hardly changes, the middle tones get darker.",
            {CALL(vemiSqr_8u_C3RSfs(photo.data(), photo.step(), square.data(), square.step(), size, 8))});
  page.show(root, "The square root", "Times 16: a brightening that lifts the shadows most, and leaves white alone.",
            {CALL(vemiSqrt_8u_C3RSfs(photo.data(), photo.step(), root.data(), root.step(), size, -4))});
  page.show(
      logarithm, "The logarithm",
      "Times 32, then 23/16. Equal ratios become equal steps: shadows have as much to show as lights. Zero has no "
      "logarithm, and becomes 0 with a warning.",
      {CALL(vemiLn_8u_C3RSfs(photo.data(), photo.step(), logarithm.data(), logarithm.step(), size, -5)),
       CALL(vemiMulC_8u_C3IRSfs(stretch, logarithm.data(), logarithm.step(), size, 4))});
}

void showGeometricMean(const Image8u& photo, const Image8u& mirror, Page& page) {
  const VemiSize size = photo.size();
  const Vemi32f half[3] = {0.5f, 0.5f, 0.5f};
  Image<Vemi32f> mean = converted<Vemi32f>(photo), other = converted<Vemi32f>(mirror);
  const Call one = CALL(vemiLn_32f_C3IR(mean.data(), mean.step(), size));
  const Call two = CALL(vemiLn_32f_C3IR(other.data(), other.step(), size));
  const Call sum = CALL(vemiAdd_32f_C3IR(other.data(), other.step(), mean.data(), mean.step(), size));
  const Call halved = CALL(vemiMulC_32f_C3IR(half, mean.data(), mean.step(), size));
  const Call power = CALL(vemiExp_32f_C3IR(mean.data(), mean.step(), size));
  page.show(converted<Vemi8u>(mean), "The geometric mean",
            "Of the picture and its mirror image, as floats: logarithms, their mean, its exponential. Darkness goes "
            "further than in a sum: zero stays zero, through minus infinity and back.",
            {one, two, sum, halved, power});
}

void showProducts(const Image8u& photo, const Image8u& mirror, Page& page) {
  const VemiSize size = photo.size();
  Image8u product(size, 3), negative(size, 3), screen(size, 3), glass(size, 3);
  page.show(product, "Multiplied",
            "Two slides in one projector: the picture times its mirror image, with 255 as one. Never brighter than "
            "either.",
            {CALL(vemiMulScale_8u_C3R(photo.data(), photo.step(), mirror.data(), mirror.step(), product.data(),
                                      product.step(), size))});
  page.show(screen, "Screened",
            "Two projectors on one screen: the negative of the product of the negatives. Never darker than either.",
            {CALL(vemiNot_8u_C3R(photo.data(), photo.step(), negative.data(), negative.step(), size)),
             CALL(vemiNot_8u_C3R(mirror.data(), mirror.step(), screen.data(), screen.step(), size)),
             CALL(vemiMulScale_8u_C3IR(negative.data(), negative.step(), screen.data(), screen.step(), size)),
             CALL(vemiNot_8u_C3IR(screen.data(), screen.step(), size))});

  const Vemi8u amber[3] = {255, 196, 112};
  page.show(glass, "Coloured glass", "The picture times one colour: what the glass does not let through is gone.",
            {CALL(vemiMulCScale_8u_C3R(photo.data(), photo.step(), amber, glass.data(), glass.step(), size))});
}

void showUnlikeness(const Image8u& photo, const Image8u& mirror, Page& page) {
  const VemiSize size = photo.size();
  Image<Vemi16s> difference = converted<Vemi16s>(photo);
  const Image<Vemi16s> other = converted<Vemi16s>(mirror);
  const Call signedOne =
      CALL(vemiSub_16s_C3IRSfs(other.data(), other.step(), difference.data(), difference.step(), size, 0));
  const Call absolute = CALL(vemiAbs_16s_C3IR(difference.data(), difference.step(), size));
  page.show(converted<Vemi8u>(difference), "How unlike its mirror image",
            "Elements of 16 bits keep the sign of a difference; its absolute value fits 8 bits again. The axis is "
            "black.",
            {signedOne, absolute});
}

}  // namespace

void demoCurves(const Demo& demo) {
  showChart(demo.page);
  showCurves(demo.photo, demo.page);
  const Image8u mirror = mirrored(demo.photo);
  showGeometricMean(demo.photo, mirror, demo.page);
  showProducts(demo.photo, mirror, demo.page);
  showUnlikeness(demo.photo, mirror, demo.page);
}

}  // namespace demo
