// What the benchmarks of Fourier transforms share: records with their buffers, and the peers' plans. All leave the same
// numbers, each in a layout and with roundings of its own.
#pragma once

#include "peers.h"

namespace bench {

/// A record with a buffer.
template <class Spec>
struct Prepared {
  std::shared_ptr<Spec> spec;
  std::shared_ptr<std::vector<Vemi8u>> buffer;

  template <class Make>
  Prepared(const Make& make, VemiStatus (*getBufSize)(const Spec*, int*), VemiStatus (*release)(Spec*)) {
    Spec* made = nullptr;
    int bytes = 0;
    if (make(&made) != vemiOk || getBufSize(made, &bytes) != vemiOk) throw std::bad_alloc();
    spec = {made, release};
    buffer = std::make_shared<std::vector<Vemi8u>>(static_cast<size_t>(bytes));
  }
};

template <class T, class Spec>
using Transform = VemiStatus(const T*, int, T*, int, const Spec*, Vemi8u*);
template <class Spec>
using IntegerTransform = VemiStatus(const Vemi8u*, int, Vemi32s*, int, const Spec*, int, Vemi8u*);

template <class T, class Spec>
std::function<VemiStatus()> oursOf(Transform<T, Spec>* transform, const Image<T>& src, const Image<T>& dst,
                                   const Prepared<Spec>& by) {
  return [=] { return transform(src.data(), src.step, dst.data(), dst.step, by.spec.get(), by.buffer->data()); };
}

// Contests of images of a size, by the record that prepared(size) makes.

#ifdef VEMI_BENCH_FFTW
/// A patient plan where that takes less than seconds. Planning spoils what images hold: they are filled again.
template <class Plan>
std::function<void()> planned(VemiSize size, const Image<Vemi32f>& src, const Plan& plan) {
  const unsigned effort = size.width * size.height < 100000 ? FFTW_PATIENT : FFTW_MEASURE;
  const std::shared_ptr<std::remove_pointer_t<fftwf_plan>> made(plan(effort), fftwf_destroy_plan);
  const Image<Vemi32f> fresh = randomImage<Vemi32f>(src.size, src.channels, peersAlone);
  std::memcpy(src.data(), fresh.data(), src.bytes().count);
  return [=] { fftwf_execute(made.get()); };
}

template <class Spec>
Contest realAgainstFftw(VemiSize size, int channels, bool isForward, Transform<Vemi32f, Spec>* transform,
                        const Prepared<Spec>& by) {
  const Image<Vemi32f> src = randomImage<Vemi32f>(size, channels), dst = blankImage<Vemi32f>(size, channels);
  // Theirs has W / 2 + 1 complex columns.
  const VemiSize wide = {2 * (size.width / 2 + 1), size.height};
  const Image<Vemi32f> spectrum = randomImage<Vemi32f>(wide, channels, peersAlone);
  const Image<Vemi32f> image = randomImage<Vemi32f>(size, channels, peersAlone);
  auto* const numbers = reinterpret_cast<fftwf_complex*>(spectrum.data());
  const int extents[] = {size.height, size.width};
  const auto peers = planned(size, isForward ? image : spectrum, [&](unsigned effort) {
    return isForward ? fftwf_plan_many_dft_r2c(2, extents, channels, image.data(), nullptr, channels, 1, numbers,
                                               nullptr, channels, 1, effort)
                     : fftwf_plan_many_dft_c2r(2, extents, channels, numbers, nullptr, channels, 1, image.data(),
                                               nullptr, channels, 1, effort);
  });
  return {oursOf(transform, src, dst, by), [peers, image, spectrum] { peers(); }, {}};
}

template <class Spec>
Contest complexAgainstFftw(VemiSize size, int sign, Transform<Vemi32fc, Spec>* transform, const Prepared<Spec>& by) {
  const VemiSize floats = {2 * size.width, size.height};
  const Image<Vemi32f> image = randomImage<Vemi32f>(floats, 1), result = blankImage<Vemi32f>(floats, 1);
  const auto peers = planned(size, image, [&](unsigned effort) {
    return fftwf_plan_dft_2d(size.height, size.width, reinterpret_cast<fftwf_complex*>(image.data()),
                             reinterpret_cast<fftwf_complex*>(result.data()), sign, effort);
  });
  return {[=] {
            return transform(reinterpret_cast<const Vemi32fc*>(image.data()), image.step,
                             reinterpret_cast<Vemi32fc*>(result.data()), result.step, by.spec.get(), by.buffer->data());
          },
          peers,
          {}};
}
#endif

#ifdef VEMI_BENCH_OPENCV
template <class Spec>
Contest realAgainstOpencv(VemiSize size, int flags, Transform<Vemi32f, Spec>* transform, const Prepared<Spec>& by) {
  const Image<Vemi32f> src = randomImage<Vemi32f>(size, 1), dst = blankImage<Vemi32f>(size, 1);
  return {oursOf(transform, src, dst, by),
          [from = mat(src), to = mat(dst), src, dst, flags]() mutable { cv::dft(from, to, flags); },
          {}};
}

template <class Spec>
Contest integersAgainstOpencv(VemiSize size, IntegerTransform<Spec>* transform, const Prepared<Spec>& by) {
  const Image<Vemi8u> src = randomImage<Vemi8u>(size, 1);
  const Image<Vemi32s> dst = blankImage<Vemi32s>(size, 1);
  const auto ours = [=] {
    return transform(src.data(), src.step, dst.data(), dst.step, by.spec.get(), 0, by.buffer->data());
  };
  const auto peers = [from = mat(src), to = mat(dst), src, dst, floats = cv::Mat()]() mutable {
    from.convertTo(floats, CV_32F);
    cv::dft(floats, floats);
    floats.convertTo(to, CV_32S);
  };
  return {ours, peers, {}};
}
#endif

}  // namespace bench
