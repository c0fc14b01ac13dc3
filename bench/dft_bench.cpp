// Fourier transforms of any size against FFTW's plans and OpenCV's dft: of fifteen sixteenths of a power of two, 60 by
// 60 and 3840 by 3840, and other sizes as they are.

#include "fourier.h"

namespace bench {
namespace {

VemiSize sizeWithin(VemiSize size) {
  const auto extent = [](int length) { return (length & (length - 1)) == 0 ? length - length / 16 : length; };
  return {extent(size.width), extent(size.height)};
}

Prepared<VemiDFTSpec_R_32f> realOf(VemiSize size) {
  const auto make = [&](VemiDFTSpec_R_32f** spec) {
    return vemiDFTInitAlloc_R_32f(spec, size, vemiFftScaleNone, vemiHintNone);
  };
  return {make, vemiDFTGetBufSize_R_32f, vemiDFTFree_R_32f};
}
Prepared<VemiDFTSpec_C_32fc> complexOf(VemiSize size) {
  const auto make = [&](VemiDFTSpec_C_32fc** spec) {
    return vemiDFTInitAlloc_C_32fc(spec, size, vemiFftScaleNone, vemiHintNone);
  };
  return {make, vemiDFTGetBufSize_C_32fc, vemiDFTFree_C_32fc};
}
Prepared<VemiDFTSpec_R_32s> integersOf(VemiSize size) {
  const auto make = [&](VemiDFTSpec_R_32s** spec) {
    return vemiDFTInitAlloc_R_32s(spec, size, vemiFftScaleNone, vemiHintNone);
  };
  return {make, vemiDFTGetBufSize_R_32s, vemiDFTFree_R_32s};
}

#ifdef VEMI_BENCH_FFTW
template <int channels, Transform<Vemi32f, VemiDFTSpec_R_32f>* transform, bool isForward>
Contest real(VemiSize most) {
  const VemiSize size = sizeWithin(most);
  return realAgainstFftw(size, channels, isForward, transform, realOf(size));
}

template <Transform<Vemi32fc, VemiDFTSpec_C_32fc>* transform, int sign>
Contest complex(VemiSize most) {
  const VemiSize size = sizeWithin(most);
  return complexAgainstFftw(size, sign, transform, complexOf(size));
}
#endif

#ifdef VEMI_BENCH_OPENCV
template <Transform<Vemi32f, VemiDFTSpec_R_32f>* transform, int flags>
Contest againstOpencv(VemiSize most) {
  const VemiSize size = sizeWithin(most);
  return realAgainstOpencv(size, flags, transform, realOf(size));
}

template <IntegerTransform<VemiDFTSpec_R_32s>* transform>
Contest integers(VemiSize most) {
  const VemiSize size = sizeWithin(most);
  return integersAgainstOpencv(size, transform, integersOf(size));
}
#endif

}  // namespace

Family dftFamily() {
  return {"DFT",
          {
#ifdef VEMI_BENCH_FFTW
              {"Forward 32f C1", "FFTW", real<1, vemiDFTFwd_RToPack_32f_C1R, true>},
              {"Inverse 32f C1", "FFTW", real<1, vemiDFTInv_PackToR_32f_C1R, false>},
              {"Forward 32f C3", "FFTW", real<3, vemiDFTFwd_RToPack_32f_C3R, true>},
              {"Inverse 32f C3", "FFTW", real<3, vemiDFTInv_PackToR_32f_C3R, false>},
              {"Forward 32f C4", "FFTW", real<4, vemiDFTFwd_RToPack_32f_C4R, true>},
              {"Forward 32fc", "FFTW", complex<vemiDFTFwd_CToC_32fc_C1R, FFTW_FORWARD>},
              {"Inverse 32fc", "FFTW", complex<vemiDFTInv_CToC_32fc_C1R, FFTW_BACKWARD>},
#endif
#ifdef VEMI_BENCH_OPENCV
              {"Forward 32f C1", "OpenCV dft", againstOpencv<vemiDFTFwd_RToPack_32f_C1R, 0>},
              {"Inverse 32f C1", "OpenCV dft",
               againstOpencv<vemiDFTInv_PackToR_32f_C1R, cv::DFT_INVERSE | cv::DFT_REAL_OUTPUT>},
              {"Forward 8u32s C1", "OpenCV convertTo, dft, convertTo", integers<vemiDFTFwd_RToPack_8u32s_C1RSfs>},
#endif
          }};
}

}  // namespace bench
