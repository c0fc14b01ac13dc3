// XYZ, LUV, Lab, HSV and HLS. All sides compute the same models of linear light, each with roundings of its own, so
// that results are not compared.

#include "peers.h"

namespace bench {
namespace {

#ifdef VEMI_BENCH_OPENCV
/// Integers from the lowest to the highest, or floats from 0 to 1.
template <class T>
Image<T> colours(VemiSize size, Passes passes = once) {
  const Image<T> image = randomImage<T>(size, 3, passes);
  if constexpr (std::is_same_v<T, Vemi32f>) {
    for (size_t i = 0; i < image.elements(); ++i) image.data()[i] /= 65536;
  }
  return image;
}

template <class S, class T>
using Conversion = VemiStatus(const S*, int, T*, int, VemiSize);

/// The peer's source is made by `code` out of colours of type P; a code below 0 leaves them as they are.
template <class P>
std::function<void()> cvtColor(VemiSize size, int sourceCode, int code) {
  const Image<P> image = colours<P>(size, peersAlone);
  cv::Mat src = mat(image);
  if (sourceCode >= 0) cv::cvtColor(src, src, sourceCode);
  return [=, owner = image, dst = cv::Mat()]() mutable { cv::cvtColor(src, dst, code); };
}

template <class T, Conversion<T, T>* convert, int code, class P = T>
Contest toModel(VemiSize size) {
  const Image<T> src = colours<T>(size), dst = blankImage<T>(size, 3);
  return {[=] { return convert(src.data(), src.step, dst.data(), dst.step, size); }, cvtColor<P>(size, -1, code), {}};
}

/// From what ours and the peer's make of the same colours.
template <class T, Conversion<T, T>* there, Conversion<T, T>* back, int codeThere, int codeBack, class P = T>
Contest fromModel(VemiSize size) {
  const Image<T> rgb = colours<T>(size, peersAlone), src = blankImage<T>(size, 3), dst = blankImage<T>(size, 3);
  there(rgb.data(), rgb.step, src.data(), src.step, size);
  return {[=] { return back(src.data(), src.step, dst.data(), dst.step, size); },
          cvtColor<P>(size, codeThere, codeBack),
          {}};
}

/// Bytes into planes, against the peer's conversion of pixels.
template <Conversion<Vemi8u, Vemi8u>* there, auto convert, int codeThere, int code>
Contest intoPlanes(VemiSize size) {
  const Image<Vemi8u> rgb = colours<Vemi8u>(size, peersAlone), src = colours<Vemi8u>(size);
  const Image<Vemi8u> planes = blankImage<Vemi8u>({size.width, 3 * size.height}, 1);
  if (codeThere >= 0) there(rgb.data(), rgb.step, src.data(), src.step, size);
  return {[=] {
            const ptrdiff_t plane = ptrdiff_t{planes.step} * size.height;
            Vemi8u* const to[3] = {planes.data(), planes.data() + plane, planes.data() + 2 * plane};
            return convert(src.data(), src.step, to, planes.step, size);
          },
          cvtColor<Vemi8u>(size, codeThere, code),
          {}};
}
#endif

}  // namespace

Family perceptualFamily() {
  return {
      "perceptual",
      {
#ifdef VEMI_BENCH_OPENCV
          {"RGBToXYZ 8u C3", "OpenCV", toModel<Vemi8u, vemiRGBToXYZ_8u_C3R, cv::COLOR_RGB2XYZ>},
          {"RGBToXYZ 16u C3", "OpenCV", toModel<Vemi16u, vemiRGBToXYZ_16u_C3R, cv::COLOR_RGB2XYZ>},
          {"RGBToXYZ 32f C3", "OpenCV", toModel<Vemi32f, vemiRGBToXYZ_32f_C3R, cv::COLOR_RGB2XYZ>},
          {"XYZToRGB 8u C3", "OpenCV", toModel<Vemi8u, vemiXYZToRGB_8u_C3R, cv::COLOR_XYZ2RGB>},
          {"XYZToRGB 16u C3", "OpenCV", toModel<Vemi16u, vemiXYZToRGB_16u_C3R, cv::COLOR_XYZ2RGB>},
          {"XYZToRGB 32f C3", "OpenCV", toModel<Vemi32f, vemiXYZToRGB_32f_C3R, cv::COLOR_XYZ2RGB>},
          {"RGBToLUV 8u C3", "OpenCV", toModel<Vemi8u, vemiRGBToLUV_8u_C3R, cv::COLOR_LRGB2Luv>},
          {"RGBToLUV 32f C3", "OpenCV", toModel<Vemi32f, vemiRGBToLUV_32f_C3R, cv::COLOR_LRGB2Luv>},
          {"LUVToRGB 8u C3", "OpenCV",
           fromModel<Vemi8u, vemiRGBToLUV_8u_C3R, vemiLUVToRGB_8u_C3R, cv::COLOR_LRGB2Luv, cv::COLOR_Luv2LRGB>},
          {"LUVToRGB 32f C3", "OpenCV",
           fromModel<Vemi32f, vemiRGBToLUV_32f_C3R, vemiLUVToRGB_32f_C3R, cv::COLOR_LRGB2Luv, cv::COLOR_Luv2LRGB>},
          {"BGRToLab 8u C3", "OpenCV", toModel<Vemi8u, vemiBGRToLab_8u_C3R, cv::COLOR_LBGR2Lab>},
          {"LabToBGR 8u C3", "OpenCV",
           fromModel<Vemi8u, vemiBGRToLab_8u_C3R, vemiLabToBGR_8u_C3R, cv::COLOR_LBGR2Lab, cv::COLOR_Lab2LBGR>},
          {"RGBToHSV 8u C3", "OpenCV FULL", toModel<Vemi8u, vemiRGBToHSV_8u_C3R, cv::COLOR_RGB2HSV_FULL>},
          {"HSVToRGB 8u C3", "OpenCV FULL",
           fromModel<Vemi8u, vemiRGBToHSV_8u_C3R, vemiHSVToRGB_8u_C3R, cv::COLOR_RGB2HSV_FULL, cv::COLOR_HSV2RGB_FULL>},
          {"RGBToHLS 8u C3", "OpenCV FULL", toModel<Vemi8u, vemiRGBToHLS_8u_C3R, cv::COLOR_RGB2HLS_FULL>},
          {"RGBToHLS 32f C3", "OpenCV FULL", toModel<Vemi32f, vemiRGBToHLS_32f_C3R, cv::COLOR_RGB2HLS_FULL>},
          {"HLSToRGB 8u C3", "OpenCV FULL",
           fromModel<Vemi8u, vemiRGBToHLS_8u_C3R, vemiHLSToRGB_8u_C3R, cv::COLOR_RGB2HLS_FULL, cv::COLOR_HLS2RGB_FULL>},
          {"HLSToRGB 32f C3", "OpenCV FULL",
           fromModel<Vemi32f, vemiRGBToHLS_32f_C3R, vemiHLSToRGB_32f_C3R, cv::COLOR_RGB2HLS_FULL,
                     cv::COLOR_HLS2RGB_FULL>},
          {"BGRToHLS 8u C3P3", "OpenCV FULL",
           intoPlanes<vemiRGBToHLS_8u_C3R, vemiBGRToHLS_8u_C3P3R, -1, cv::COLOR_BGR2HLS_FULL>},
          {"HLSToBGR 8u C3P3", "OpenCV FULL",
           intoPlanes<vemiRGBToHLS_8u_C3R, vemiHLSToBGR_8u_C3P3R, cv::COLOR_RGB2HLS_FULL, cv::COLOR_HLS2BGR_FULL>},
#endif
      }};
}

}  // namespace bench
