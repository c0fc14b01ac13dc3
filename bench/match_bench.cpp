// Template matching against OpenCV's and against a chain of FFTW's transforms, tile by tile, with an integral image;
// convolution against OpenCV's filter2D, which makes the border's results too. Images of up to 1920 x 1080, from 96 x
// 96 on: a template needs room to move.

#include <cmath>

#include "peers.h"

namespace bench {
namespace {

VemiSize fitting(VemiSize size) { return {std::clamp(size.width, 96, 1920), std::clamp(size.height, 96, 1080)}; }

VemiSize placesOf(VemiSize size, int tpl) { return {size.width - tpl + 1, size.height - tpl + 1}; }

/// From the image's middle.
template <class T>
Image<T> templateOf(const Image<T>& image, int side) {
  const Image<T> tpl = blankImage<T>({side, side}, image.channels, peersAlone);
  const int x = (image.size.width - side) / 2, y = (image.size.height - side) / 2;
  const auto rowElements = static_cast<size_t>(side) * static_cast<size_t>(image.channels);
  for (int row = 0; row < side; ++row) {
    const auto* const from = reinterpret_cast<const char*>(image.data()) + ptrdiff_t{image.step} * (y + row);
    auto* const to = reinterpret_cast<char*>(tpl.data()) + ptrdiff_t{tpl.step} * row;
    std::memcpy(to, from + static_cast<size_t>(x) * sizeof(T) * static_cast<size_t>(image.channels),
                rowElements * sizeof(T));
  }
  return tpl;
}

template <class T, auto match>
std::function<VemiStatus()> oursOf(const Image<T>& src, const Image<T>& tpl, const Image<Vemi32f>& dst) {
  return [=] { return match(src.data(), src.step, src.size, tpl.data(), tpl.step, tpl.size, dst.data(), dst.step); };
}

#ifdef VEMI_BENCH_OPENCV
template <class T, int channels, int side, auto match, int method>
Contest againstMatchTemplate(VemiSize most) {
  const VemiSize size = fitting(most);
  const Image<T> src = randomImage<T>(size, channels), tpl = templateOf(src, side);
  const Image<Vemi32f> dst = blankImage<Vemi32f>(placesOf(size, side), channels);
  return {oursOf<T, match>(src, tpl, dst),
          [src, tpl, from = mat(src), what = mat(tpl), to = cv::Mat()]() mutable {
            cv::matchTemplate(from, what, to, method);
          },
          {}};
}

template <int side>
Contest againstFilter2d(VemiSize most) {
  const VemiSize size = fitting(most);
  const Image<Vemi32f> src = randomImage<Vemi32f>(size, 1), kernel = templateOf(src, side);
  const Image<Vemi32f> dst = blankImage<Vemi32f>(placesOf(size, side), 1);
  return {oursOf<Vemi32f, vemiConvValid_32f_C1R>(src, kernel, dst),
          [src, kernel, from = mat(src), by = mat(kernel), to = cv::Mat()]() mutable {
            cv::filter2D(from, to, CV_32F, by, {-1, -1}, 0, cv::BORDER_CONSTANT);
          },
          {}};
}
#endif

#if defined(VEMI_BENCH_FFTW) && defined(VEMI_BENCH_OPENCV)
/// Normalised correlation with tiles of 256 x 256, plans and spectrum made ahead.
class FftwChain {
 public:
  FftwChain(const Image<Vemi8u>& src, const Image<Vemi8u>& tpl) : src_(src), side_(tpl.size.width) {
    tile_ = blankImage<Vemi32f>({tile, tile}, 1, peersAlone);
    numbers_ = blankImage<Vemi32f>({tile + 2, tile}, 1, peersAlone);
    forward_ = {fftwf_plan_dft_r2c_2d(tile, tile, tile_.data(), numbers(), FFTW_MEASURE), fftwf_destroy_plan};
    inverse_ = {fftwf_plan_dft_c2r_2d(tile, tile, numbers(), tile_.data(), FFTW_MEASURE), fftwf_destroy_plan};
    copy(tpl, 0, 0, side_, side_);
    fftwf_execute(forward_.get());
    ofTemplate_.assign(numbers_.data(), numbers_.data() + numbers_.elements());
    norm_ = static_cast<float>(cv::norm(mat(tpl)) * tile * tile);
  }

  void operator()() {
    const VemiSize places = placesOf(src_.size, side_);
    const int each = tile - side_ + 1;
    cv::integral(mat(src_), sums_, squares_, CV_32S, CV_64F);
    result_.create(places.height, places.width, CV_32F);
    for (int y = 0; y < places.height; y += each) {
      for (int x = 0; x < places.width; x += each) {
        copy(src_, x, y, std::min(tile, src_.size.width - x), std::min(tile, src_.size.height - y));
        fftwf_execute(forward_.get());
        float* const z = numbers_.data();
        for (size_t i = 0; i < ofTemplate_.size(); i += 2) {
          const float re = z[i], im = z[i + 1], c = ofTemplate_[i], s = ofTemplate_[i + 1];
          z[i] = re * c + im * s;
          z[i + 1] = im * c - re * s;
        }
        fftwf_execute(inverse_.get());
        divide(x, y, std::min(each, places.width - x), std::min(each, places.height - y));
      }
    }
  }

 private:
  static constexpr int tile = 256;
  Image<Vemi8u> src_;
  int side_;
  Image<Vemi32f> tile_, numbers_;
  std::shared_ptr<std::remove_pointer_t<fftwf_plan>> forward_, inverse_;
  std::vector<float> ofTemplate_;
  cv::Mat sums_, squares_, result_;
  float norm_ = 0;

  fftwf_complex* numbers() const { return reinterpret_cast<fftwf_complex*>(numbers_.data()); }

  void copy(const Image<Vemi8u>& from, int x, int y, int width, int height) {
    cv::Mat whole = mat(tile_);
    whole.setTo(0);
    mat(from)(cv::Rect(x, y, width, height)).convertTo(whole(cv::Rect(0, 0, width, height)), CV_32F);
  }
  void divide(int x, int y, int width, int height) {
    for (int j = 0; j < height; ++j) {
      const auto* const above = squares_.ptr<double>(y + j) + x;
      const auto* const below = squares_.ptr<double>(y + j + side_) + x;
      const float* const c = tile_.data() + ptrdiff_t{tile} * j;
      auto* const to = result_.ptr<float>(y + j) + x;
      for (int i = 0; i < width; ++i) {
        const double energy = below[i + side_] - below[i] - above[i + side_] + above[i];
        to[i] = c[i] / (norm_ * std::sqrt(std::max(static_cast<float>(energy), 1.0f)));
      }
    }
  }
};

template <int side>
Contest againstFftw(VemiSize most) {
  const VemiSize size = fitting(most);
  const Image<Vemi8u> src = randomImage<Vemi8u>(size, 1), tpl = templateOf(src, side);
  const Image<Vemi32f> dst = blankImage<Vemi32f>(placesOf(size, side), 1);
  return {oursOf<Vemi8u, vemiCrossCorrValid_Norm_8u32f_C1R>(src, tpl, dst),
          [chain = std::make_shared<FftwChain>(src, tpl)] { (*chain)(); },
          {}};
}
#endif

}  // namespace

Family matchFamily() {
  return {"templates and convolution",
          {
#ifdef VEMI_BENCH_OPENCV
              {"CrossCorrValid_Norm 8u32f C1 16x16", "OpenCV matchTemplate",
               againstMatchTemplate<Vemi8u, 1, 16, vemiCrossCorrValid_Norm_8u32f_C1R, cv::TM_CCORR_NORMED>},
              {"CrossCorrValid_Norm 8u32f C1 64x64", "OpenCV matchTemplate",
               againstMatchTemplate<Vemi8u, 1, 64, vemiCrossCorrValid_Norm_8u32f_C1R, cv::TM_CCORR_NORMED>},
              {"CrossCorrValid_NormLevel 8u32f C1 32x32", "OpenCV matchTemplate",
               againstMatchTemplate<Vemi8u, 1, 32, vemiCrossCorrValid_NormLevel_8u32f_C1R, cv::TM_CCOEFF_NORMED>},
              {"CrossCorrValid_NormLevel 32f C1 7x7", "OpenCV matchTemplate",
               againstMatchTemplate<Vemi32f, 1, 7, vemiCrossCorrValid_NormLevel_32f_C1R, cv::TM_CCOEFF_NORMED>},
              {"SqrDistanceValid_Norm 8u32f C1 32x32", "OpenCV matchTemplate",
               againstMatchTemplate<Vemi8u, 1, 32, vemiSqrDistanceValid_Norm_8u32f_C1R, cv::TM_SQDIFF_NORMED>},
              {"SqrDistanceValid_Norm 32f C1 64x64", "OpenCV matchTemplate",
               againstMatchTemplate<Vemi32f, 1, 64, vemiSqrDistanceValid_Norm_32f_C1R, cv::TM_SQDIFF_NORMED>},
              {"ConvValid 32f C1 5x5", "OpenCV filter2D", againstFilter2d<5>},
              {"ConvValid 32f C1 15x15", "OpenCV filter2D", againstFilter2d<15>},
              {"ConvValid 32f C1 64x64", "OpenCV filter2D", againstFilter2d<64>},
#endif
#if defined(VEMI_BENCH_FFTW) && defined(VEMI_BENCH_OPENCV)
              {"CrossCorrValid_Norm 8u32f C1 16x16", "FFTW tiles", againstFftw<16>},
              {"CrossCorrValid_Norm 8u32f C1 64x64", "FFTW tiles", againstFftw<64>},
#endif
          }};
}

}  // namespace bench
