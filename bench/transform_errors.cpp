// Root mean square errors of transforms, relative to the root mean square of the result, beside those of FFTW's
// single-precision plans on the same numbers. What is true comes from its plans of double precision.

#include "transform_errors.h"

#include <cmath>
#include <cstdio>
#include <random>

#include "fourier.h"

namespace bench {

#ifdef VEMI_BENCH_FFTW
namespace {

using Floats = std::vector<float>;
using Doubles = std::vector<double>;

struct Errors {
  double ours, peers;
};

size_t pixelsOf(VemiSize size) { return static_cast<size_t>(size.width) * static_cast<size_t>(size.height); }

Floats randomNumbers(size_t count) {
  std::mt19937 generator(1);
  std::uniform_real_distribution<float> distribution(-1, 1);
  Floats numbers(count);
  for (float& number : numbers) number = distribution(generator);
  return numbers;
}

Doubles widened(const Floats& numbers) { return {numbers.begin(), numbers.end()}; }

double errorOf(const Floats& result, const Doubles& truth) {
  double error = 0, all = 0;
  for (size_t i = 0; i < truth.size(); ++i) {
    error += (result[i] - truth[i]) * (result[i] - truth[i]);
    all += truth[i] * truth[i];
  }
  return std::sqrt(error / all);
}

/// Planning spoils what the numbers are: `fill` writes them.
template <class Plan, class Fill>
void runFftw(const Plan& plan, const Fill& fill) {
  const std::shared_ptr<std::remove_pointer_t<fftwf_plan>> made(plan(), fftwf_destroy_plan);
  fill();
  fftwf_execute(made.get());
}

unsigned effortOf(VemiSize size) { return pixelsOf(size) < 100000 ? FFTW_PATIENT : FFTW_MEASURE; }

/// Forward, of complex numbers, in place.
void transformDoubles(VemiSize size, Doubles& pairs) {
  auto* const numbers = reinterpret_cast<fftw_complex*>(pairs.data());
  fftw_plan plan = fftw_plan_dft_2d(size.height, size.width, numbers, numbers, FFTW_FORWARD, FFTW_ESTIMATE);
  fftw_execute(plan);
  fftw_destroy_plan(plan);
}

template <class Spec>
Errors ofComplex(VemiSize size, Transform<Vemi32fc, Spec>* transform, const Prepared<Spec>& by) {
  const Floats numbers = randomNumbers(2 * pixelsOf(size));
  Doubles truth = widened(numbers);
  transformDoubles(size, truth);
  Floats src = numbers, dst(numbers.size());
  auto* const from = reinterpret_cast<fftwf_complex*>(src.data());
  auto* const to = reinterpret_cast<fftwf_complex*>(dst.data());
  runFftw([&] { return fftwf_plan_dft_2d(size.height, size.width, from, to, FFTW_FORWARD, effortOf(size)); },
          [&] { src = numbers; });
  const double peers = errorOf(dst, truth);
  const int step = 2 * size.width * int{sizeof(float)};
  transform(reinterpret_cast<const Vemi32fc*>(numbers.data()), step, reinterpret_cast<Vemi32fc*>(dst.data()), step,
            by.spec.get(), by.buffer->data());
  return {errorOf(dst, truth), peers};
}

/// Of the columns 0 to W / 2, which are all that FFTW makes.
template <class Spec>
Errors ofReal(VemiSize size, Transform<Vemi32f, Spec>* transform, const Prepared<Spec>& by) {
  const Floats numbers = randomNumbers(pixelsOf(size));
  const auto width = static_cast<size_t>(size.width), height = static_cast<size_t>(size.height);
  Doubles whole(2 * numbers.size());
  for (size_t i = 0; i < numbers.size(); ++i) whole[2 * i] = numbers[i];
  transformDoubles(size, whole);
  const auto leftHalf = [&](const auto& pairs) {
    std::remove_cvref_t<decltype(pairs)> half;
    for (size_t y = 0; y < height; ++y) {
      const auto row = pairs.begin() + static_cast<ptrdiff_t>(2 * width * y);
      half.insert(half.end(), row, row + static_cast<ptrdiff_t>(2 * (width / 2 + 1)));
    }
    return half;
  };
  const Doubles truth = leftHalf(whole);
  Floats src = numbers, half(truth.size()), packed(numbers.size()), pairs(2 * numbers.size());
  auto* const to = reinterpret_cast<fftwf_complex*>(half.data());
  runFftw([&] { return fftwf_plan_dft_r2c_2d(size.height, size.width, src.data(), to, effortOf(size)); },
          [&] { src = numbers; });
  const int step = size.width * int{sizeof(float)};
  transform(numbers.data(), step, packed.data(), step, by.spec.get(), by.buffer->data());
  vemiPackToCplxExtend_32f32fc_C1R(packed.data(), size, step, reinterpret_cast<Vemi32fc*>(pairs.data()), 2 * step);
  return {errorOf(leftHalf(pairs), truth), errorOf(half, truth)};
}

/// FFTW's numbers are ours but for a factor of each frequency and direction.
template <bool isForward>
Errors ofCosines(VemiSize size) {
  const Floats numbers = randomNumbers(pixelsOf(size));
  const auto scaled = [&](Doubles all) {
    const auto factor = [](int k, int length) {
      return std::sqrt((k == 0 ? 1.0 : 2.0) / length) / (k > 0 || isForward ? 2 : 1);
    };
    auto number = all.begin();
    for (int v = 0; v < size.height; ++v) {
      for (int u = 0; u < size.width; ++u) *number++ *= factor(u, size.width) * factor(v, size.height);
    }
    return all;
  };
  const auto transformed = [&](Doubles all) {
    const fftw_r2r_kind kind = isForward ? FFTW_REDFT10 : FFTW_REDFT01;
    fftw_plan plan = fftw_plan_r2r_2d(size.height, size.width, all.data(), all.data(), kind, kind, FFTW_ESTIMATE);
    fftw_execute(plan);
    fftw_destroy_plan(plan);
    return all;
  };
  const Doubles peersTruth = transformed(widened(numbers));
  const Doubles truth = isForward ? scaled(peersTruth) : transformed(scaled(widened(numbers)));
  Floats src = numbers, dst(numbers.size());
  const fftwf_r2r_kind kind = isForward ? FFTW_REDFT10 : FFTW_REDFT01;
  runFftw(
      [&] { return fftwf_plan_r2r_2d(size.height, size.width, src.data(), dst.data(), kind, kind, effortOf(size)); },
      [&] { src = numbers; });
  const double peers = errorOf(dst, peersTruth);
  const Prepared<VemiDCTSpec_32f> by(
      [&](VemiDCTSpec_32f** spec) {
        return (isForward ? vemiDCTFwdInitAlloc_32f : vemiDCTInvInitAlloc_32f)(spec, size, vemiHintNone);
      },
      isForward ? vemiDCTFwdGetBufSize_32f : vemiDCTInvGetBufSize_32f,
      isForward ? vemiDCTFwdFree_32f : vemiDCTInvFree_32f);
  const int step = size.width * int{sizeof(float)};
  (isForward ? vemiDCTFwd_32f_C1R : vemiDCTInv_32f_C1R)(numbers.data(), step, dst.data(), step, by.spec.get(),
                                                        by.buffer->data());
  return {errorOf(dst, truth), peers};
}

void print(const char* name, VemiSize size, Errors errors) {
  std::printf("%-16s %5d x %-5d %10.2e %10.2e  %5.2f\n", name, size.width, size.height, errors.ours, errors.peers,
              errors.ours / errors.peers);
  std::fflush(stdout);
}

}  // namespace

void printTransformErrors() {
  std::printf("Root mean square errors, relative to the result's, and their quotient\n%-16s %13s %10s %10s\n",
              "transform", "size", "ours", "FFTW");
  for (const int order : {6, 8, 10, 11}) {
    const VemiSize size = {1 << order, 1 << order};
    const auto make = [&](auto init) {
      return [=](auto** spec) { return init(spec, order, order, vemiFftScaleNone, vemiHintNone); };
    };
    print("FFT real", size,
          ofReal<VemiFFTSpec_R_32f>(size, vemiFFTFwd_RToPack_32f_C1R,
                                    {make(vemiFFTInitAlloc_R_32f), vemiFFTGetBufSize_R_32f, vemiFFTFree_R_32f}));
    print("FFT complex", size,
          ofComplex<VemiFFTSpec_C_32fc>(size, vemiFFTFwd_CToC_32fc_C1R,
                                        {make(vemiFFTInitAlloc_C_32fc), vemiFFTGetBufSize_C_32fc, vemiFFTFree_C_32fc}));
    print("DCT forward", size, ofCosines<true>(size));
    print("DCT inverse", size, ofCosines<false>(size));
  }
  for (const VemiSize size : {VemiSize{100, 100}, {480, 640}, {1000, 1000}, {1920, 1080}, {1021, 1021}}) {
    const auto make = [&](auto init) {
      return [=](auto** spec) { return init(spec, size, vemiFftScaleNone, vemiHintNone); };
    };
    print("DFT real", size,
          ofReal<VemiDFTSpec_R_32f>(size, vemiDFTFwd_RToPack_32f_C1R,
                                    {make(vemiDFTInitAlloc_R_32f), vemiDFTGetBufSize_R_32f, vemiDFTFree_R_32f}));
    print("DFT complex", size,
          ofComplex<VemiDFTSpec_C_32fc>(size, vemiDFTFwd_CToC_32fc_C1R,
                                        {make(vemiDFTInitAlloc_C_32fc), vemiDFTGetBufSize_C_32fc, vemiDFTFree_C_32fc}));
    print("DCT forward", size, ofCosines<true>(size));
    print("DCT inverse", size, ofCosines<false>(size));
  }
}

#else

void printTransformErrors() { std::puts("FFTW is not installed"); }

#endif

}  // namespace bench
