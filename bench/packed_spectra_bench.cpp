// Packed spectra, magnitudes and phases against OpenCV, whose packed layout is the same, and against the C library's
// vector functions, on processors with AVX2.

#include "peers.h"

#if defined(VEMI_BENCH_MVEC) && defined(__x86_64__)
#include <immintrin.h>
extern "C" {
__m256 _ZGVdN8vv_atan2f(__m256 y, __m256 x);
__m256 _ZGVdN8v_sinf(__m256 x);
__m256 _ZGVdN8v_cosf(__m256 x);
}
#endif

namespace bench {
namespace {

using Floats = Image<Vemi32f>;

Floats pairsOf(VemiSize size) { return randomImage<Vemi32f>({2 * size.width, size.height}, 1); }

const Vemi32fc* numbers(const Floats& pairs) { return reinterpret_cast<const Vemi32fc*>(pairs.data()); }

#ifdef VEMI_BENCH_OPENCV
template <bool isConjugate>
Contest productAgainstOpencv(VemiSize size) {
  const Floats a = randomImage<Vemi32f>(size, 1), b = randomImage<Vemi32f>(size, 1), dst = blankImage<Vemi32f>(size, 1);
  const auto ours = [=] {
    return isConjugate ? vemiMulPackConj_32f_C1IR(a.data(), a.step, dst.data(), dst.step, size)
                       : vemiMulPack_32f_C1R(a.data(), a.step, b.data(), b.step, dst.data(), dst.step, size);
  };
  const auto peers = [=, first = mat(a), second = mat(isConjugate ? dst : b), to = mat(dst)]() mutable {
    cv::mulSpectrums(first, second, to, 0, isConjugate);
    (void)b;
  };
  return {ours, peers, {}};
}

/// Theirs takes the parts in planes.
Contest magnitudeAgainstOpencv(VemiSize size) {
  const Floats pairs = pairsOf(size), dst = blankImage<Vemi32f>(size, 1);
  const Floats re = randomImage<Vemi32f>(size, 1, peersAlone), im = randomImage<Vemi32f>(size, 1, peersAlone);
  return {[=] { return vemiMagnitude_32fc32f_C1R(numbers(pairs), pairs.step, dst.data(), dst.step, size); },
          [=, x = mat(re), y = mat(im), to = mat(dst)]() mutable {
            cv::magnitude(x, y, to);
            (void)re, (void)im;
          },
          {}};
}
#endif

#if defined(VEMI_BENCH_MVEC) && defined(__x86_64__)
/// f(8 of each of two sources, where they go) over planes of whole vectors.
template <class F>
void forEights(VemiSize size, const F& f) {
  const ptrdiff_t count = ptrdiff_t{size.width} * size.height / 8 * 8;
  for (ptrdiff_t i = 0; i < count; i += 8) f(i);
}

__attribute__((target("avx2,fma"))) void phaseOf(const float* re, const float* im, float* to) {
  _mm256_storeu_ps(to, _ZGVdN8vv_atan2f(_mm256_loadu_ps(im), _mm256_loadu_ps(re)));
}

__attribute__((target("avx2,fma"))) void cartesianOf(const float* magnitude, const float* phase, float* re, float* im) {
  const __m256 m = _mm256_loadu_ps(magnitude), p = _mm256_loadu_ps(phase);
  _mm256_storeu_ps(re, _mm256_mul_ps(m, _ZGVdN8v_cosf(p)));
  _mm256_storeu_ps(im, _mm256_mul_ps(m, _ZGVdN8v_sinf(p)));
}

/// Theirs has the parts in planes too.
Contest phaseAgainstMvec(VemiSize size) {
  const Floats pairs = pairsOf(size), dst = blankImage<Vemi32f>(size, 1);
  const Floats re = randomImage<Vemi32f>(size, 1, peersAlone), im = randomImage<Vemi32f>(size, 1, peersAlone);
  return {[=] { return vemiPhase_32fc32f_C1R(numbers(pairs), pairs.step, dst.data(), dst.step, size); },
          [=] { forEights(size, [&](ptrdiff_t i) { phaseOf(re.data() + i, im.data() + i, dst.data() + i); }); },
          {}};
}

Contest cartesianAgainstMvec(VemiSize size) {
  const Floats magnitude = randomImage<Vemi32f>(size, 1), phase = randomImage<Vemi32f>(size, 1), pairs = pairsOf(size);
  const Floats re = blankImage<Vemi32f>(size, 1, peersAlone), im = blankImage<Vemi32f>(size, 1, peersAlone);
  vemiMulC_32f_C1IR(1e-4f, phase.data(), phase.step, size);  // turns that a phase has
  return {[=] {
            return vemiPolarToCart_32f32fc_P2C1R(magnitude.data(), phase.data(), phase.step,
                                                 reinterpret_cast<Vemi32fc*>(pairs.data()), pairs.step, size);
          },
          [=] {
            forEights(size, [&](ptrdiff_t i) {
              cartesianOf(magnitude.data() + i, phase.data() + i, re.data() + i, im.data() + i);
            });
          },
          {}};
}
#endif

}  // namespace

Family packedSpectraFamily() {
  return {"Packed spectra",
          {
#ifdef VEMI_BENCH_OPENCV
              {"MulPack 32f C1", "OpenCV mulSpectrums", productAgainstOpencv<false>},
              {"MulPackConj 32f C1I", "OpenCV mulSpectrums", productAgainstOpencv<true>},
              {"Magnitude 32fc32f C1", "OpenCV magnitude of planes", magnitudeAgainstOpencv},
#endif
#if defined(VEMI_BENCH_MVEC) && defined(__x86_64__)
              {"Phase 32fc32f C1", "the C library's vectors of planes", phaseAgainstMvec},
              {"PolarToCart 32f32fc", "the C library's vectors to planes", cartesianAgainstMvec},
#endif
          }};
}

}  // namespace bench
