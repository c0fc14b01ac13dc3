// Erosion and dilation by rectangles and by other shapes.

#include "peers.h"

namespace bench {
namespace {

#ifdef VEMI_BENCH_OPENCV

template <class T>
using By3x3 = VemiStatus(const T*, int, T*, int, VemiSize);
template <class T>
using ByMask = VemiStatus(const T*, int, T*, int, VemiSize, const Vemi8u*, VemiSize, VemiPoint);

// Both sides read the same pixels around the region.
template <class T>
struct Pictures {
  int reach;
  Image<T> src, dst;

  Pictures(VemiSize size, int channels, int side)
      : reach(side / 2),
        src(randomImage<T>({size.width + side - 1, size.height + side - 1}, channels)),
        dst(blankImage<T>(size, channels)) {}

  const T* inner() const { return src.data() + (src.size.width * reach + reach) * src.channels; }

  std::function<void()> peers(const cv::Mat& element, bool dilates) const {
    const cv::Rect region(reach, reach, dst.size.width, dst.size.height);
    return [=, from = mat(src)(region), to = mat(dst), keep = src]() mutable {
      if (dilates) {
        cv::dilate(from, to, element, {-1, -1}, 1, cv::BORDER_REPLICATE);
      } else {
        cv::erode(from, to, element, {-1, -1}, 1, cv::BORDER_REPLICATE);
      }
    };
  }
};

template <class T, int channels, By3x3<T>* morph>
Contest threeByThree(VemiSize size) {
  const Pictures<T> p(size, channels, 3);
  const auto ours = [=] { return morph(p.inner(), p.src.step, p.dst.data(), p.dst.step, p.dst.size); };
  return {ours, p.peers(cv::Mat::ones(3, 3, CV_8U), false), {p.dst.bytes()}};
}

template <class T, int channels, ByMask<T>* morph, cv::MorphShapes shape, int side, bool dilates = false>
Contest byMask(VemiSize size) {
  const Pictures<T> p(size, channels, side);
  const cv::Mat element = cv::getStructuringElement(shape, {side, side});
  const auto ours = [=] {
    return morph(p.inner(), p.src.step, p.dst.data(), p.dst.step, p.dst.size, element.data, VemiSize{side, side},
                 VemiPoint{p.reach, p.reach});
  };
  return {ours, p.peers(element, dilates), {p.dst.bytes()}};
}

std::vector<Row> rows() {
  const std::string erode = "OpenCV erode", dilate = "OpenCV dilate";
  using enum cv::MorphShapes;
  return {
      {"Erode3x3 8u C1", erode, threeByThree<Vemi8u, 1, vemiErode3x3_8u_C1R>},
      {"Erode3x3 8u C3", erode, threeByThree<Vemi8u, 3, vemiErode3x3_8u_C3R>},
      {"Erode3x3 8u C4", erode, threeByThree<Vemi8u, 4, vemiErode3x3_8u_C4R>},
      {"Erode3x3 32f C1", erode, threeByThree<Vemi32f, 1, vemiErode3x3_32f_C1R>},
      {"Erode3x3 32f C3", erode, threeByThree<Vemi32f, 3, vemiErode3x3_32f_C3R>},
      {"Erode 8u C1 5x5", erode, byMask<Vemi8u, 1, vemiErode_8u_C1R, MORPH_RECT, 5>},
      {"Dilate 8u C1 9x9", dilate, byMask<Vemi8u, 1, vemiDilate_8u_C1R, MORPH_RECT, 9, true>},
      {"Erode 8u C1 31x31", erode, byMask<Vemi8u, 1, vemiErode_8u_C1R, MORPH_RECT, 31>},
      {"Dilate 8u C3 9x9", dilate, byMask<Vemi8u, 3, vemiDilate_8u_C3R, MORPH_RECT, 9, true>},
      {"Erode 32f C1 9x9", erode, byMask<Vemi32f, 1, vemiErode_32f_C1R, MORPH_RECT, 9>},
      {"Erode 32f C4 5x5", erode, byMask<Vemi32f, 4, vemiErode_32f_C4R, MORPH_RECT, 5>},
      {"Erode 8u C1 cross 3", erode, byMask<Vemi8u, 1, vemiErode_8u_C1R, MORPH_CROSS, 3>},
      {"Erode 8u C1 cross 15", erode, byMask<Vemi8u, 1, vemiErode_8u_C1R, MORPH_CROSS, 15>},
      {"Dilate 8u C1 ellipse 5", dilate, byMask<Vemi8u, 1, vemiDilate_8u_C1R, MORPH_ELLIPSE, 5, true>},
      {"Erode 8u C1 ellipse 15", erode, byMask<Vemi8u, 1, vemiErode_8u_C1R, MORPH_ELLIPSE, 15>},
      {"Erode 8u C3 ellipse 9", erode, byMask<Vemi8u, 3, vemiErode_8u_C3R, MORPH_ELLIPSE, 9>},
      {"Dilate 32f C1 ellipse 5", dilate, byMask<Vemi32f, 1, vemiDilate_32f_C1R, MORPH_ELLIPSE, 5, true>},
      {"Erode 32f C3 ellipse 9", erode, byMask<Vemi32f, 3, vemiErode_32f_C3R, MORPH_ELLIPSE, 9>},
  };
}

#else
std::vector<Row> rows() { return {}; }
#endif

}  // namespace

Family morphologyFamily() { return {"morphology", rows()}; }

}  // namespace bench
