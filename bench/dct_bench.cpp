// Cosine transforms against FFTW's plans and OpenCV's dct, and of blocks, one call for each, against libjpeg-turbo's
// kernels and plain loops. Results agree within roundings, which differ.

#include <cmath>
#include <numbers>

#include "peers.h"

#ifdef VEMI_BENCH_JPEG
#include <cstdio>

#include <jpeglib.h>

extern "C" {
int jsimd_can_fdct_islow(void);
int jsimd_can_idct_islow(void);
int jsimd_can_convsamp(void);
void jsimd_fdct_islow(short* block);
void jsimd_fdct_float(float* block);
void jsimd_convsamp(JSAMPARRAY rows, JDIMENSION column, short* block);
void jsimd_idct_islow(j_decompress_ptr, jpeg_component_info*, JCOEFPTR block, JSAMPARRAY rows, JDIMENSION column);
}
#endif

namespace bench {
namespace {

// ---- Images ----

using Transform = VemiStatus(const Vemi32f*, int, Vemi32f*, int, const VemiDCTSpec_32f*, Vemi8u*);

template <Transform* transform, bool isForward>
std::function<VemiStatus()> oursOf(const Image<Vemi32f>& src, const Image<Vemi32f>& dst) {
  VemiDCTSpec_32f* made = nullptr;
  int bytes = 0;
  const VemiStatus status = isForward ? vemiDCTFwdInitAlloc_32f(&made, src.size, vemiHintNone)
                                      : vemiDCTInvInitAlloc_32f(&made, src.size, vemiHintNone);
  if (status != vemiOk) throw std::bad_alloc();
  isForward ? vemiDCTFwdGetBufSize_32f(made, &bytes) : vemiDCTInvGetBufSize_32f(made, &bytes);
  const std::shared_ptr<VemiDCTSpec_32f> spec(made, isForward ? vemiDCTFwdFree_32f : vemiDCTInvFree_32f);
  const auto buffer = std::make_shared<std::vector<Vemi8u>>(static_cast<size_t>(bytes));
  return [=] { return transform(src.data(), src.step, dst.data(), dst.step, spec.get(), buffer->data()); };
}

#ifdef VEMI_BENCH_FFTW
/// Planning spoils what images hold: they are filled again.
template <int channels, Transform* transform, bool isForward>
Contest againstFftw(VemiSize size) {
  const Image<Vemi32f> src = randomImage<Vemi32f>(size, channels), dst = blankImage<Vemi32f>(size, channels);
  const int extents[] = {size.height, size.width};
  const fftwf_r2r_kind kind = isForward ? FFTW_REDFT10 : FFTW_REDFT01, kinds[] = {kind, kind};
  const ptrdiff_t pixels = ptrdiff_t{1} * size.width * size.height;
  const unsigned effort = pixels < 100000 ? FFTW_PATIENT : FFTW_MEASURE;
  const std::shared_ptr<std::remove_pointer_t<fftwf_plan>> plan(
      fftwf_plan_many_r2r(2, extents, channels, src.data(), nullptr, channels, 1, dst.data(), nullptr, channels, 1,
                          kinds, effort),
      fftwf_destroy_plan);
  const Image<Vemi32f> fresh = randomImage<Vemi32f>(size, channels, peersAlone);
  std::memcpy(src.data(), fresh.data(), src.bytes().count);
  return {oursOf<transform, isForward>(src, dst), [=] { fftwf_execute(plan.get()); }, {}};
}
#endif

#ifdef VEMI_BENCH_OPENCV
template <Transform* transform, bool isForward>
Contest againstOpencv(VemiSize size) {
  const Image<Vemi32f> src = randomImage<Vemi32f>(size, 1), dst = blankImage<Vemi32f>(size, 1);
  return {oursOf<transform, isForward>(src, dst),
          [from = mat(src), to = mat(dst), src, dst]() mutable { cv::dct(from, to, isForward ? 0 : cv::DCT_INVERSE); },
          {}};
}
#endif

// ---- Blocks ----

/// As many blocks as an image of the size has, one after the other, and its pixels.
template <class T>
struct Blocks {
  Image<T> elements;
  ptrdiff_t count;

  explicit Blocks(VemiSize size, bool isSource)
      : elements(isSource ? randomImage<T>({64, size.width / 8 * (size.height / 8)}, 1)
                          : blankImage<T>({64, size.width / 8 * (size.height / 8)}, 1)),
        count(elements.size.height) {}

  T* at(ptrdiff_t i) const { return elements.data() + 64 * i; }
};

template <class T, class Peer>
Contest blockContest(VemiSize size, VemiStatus (*transform)(const T*, T*), const Peer& peer) {
  const Blocks<T> src(size, true), dst(size, false);
  return {[=] {
            VemiStatus status = vemiOk;
            for (ptrdiff_t i = 0; i < src.count; ++i) status = transform(src.at(i), dst.at(i));
            return status;
          },
          [=] {
            for (ptrdiff_t i = 0; i < src.count; ++i) peer(src.at(i), dst.at(i));
          },
          {}};
}

/// The classic factorisation with its factors behind it or ahead of it.
template <bool isForward>
[[gnu::noinline]] void plainFloats(const float* src, float* dst) {
  static const auto factors = [] {
    struct {
      float f[64];
    } table;
    const auto g = [](int k) { return (k == 0 ? std::sqrt(0.125) : 0.25 / std::cos(std::numbers::pi * k / 16)); };
    for (int i = 0; i < 64; ++i) table.f[i] = static_cast<float>(g(i / 8) * g(i % 8));
    return table;
  }();
  float block[64];
  for (int i = 0; i < 64; ++i) block[i] = isForward ? src[i] : src[i] * factors.f[i];
  for (int pass = 0; pass < 2; ++pass) {
    const int step = pass == 0 ? 8 : 1, next = pass == 0 ? 1 : 8;
    for (int i = 0; i < 8; ++i) {
      float* const x = block + i * next;
      const auto at = [&](int k) -> float& { return x[k * step]; };
      if constexpr (isForward) {
        const float s0 = at(0) + at(7), d0 = at(0) - at(7), s1 = at(1) + at(6), d1 = at(1) - at(6);
        const float s2 = at(2) + at(5), d2 = at(2) - at(5), s3 = at(3) + at(4), d3 = at(3) - at(4);
        const float a = s0 + s3, b = s0 - s3, c = s1 + s2, d = (s1 - s2 + b) * 0.70710678f;
        at(0) = a + c;
        at(4) = a - c;
        at(2) = b + d;
        at(6) = b - d;
        const float p = d3 + d2, q = (d2 + d1) * 0.70710678f, r = d1 + d0, z = (p - r) * 0.38268343f;
        const float u = 0.54119610f * p + z, v = 1.30656296f * r + z, e = d0 + q, f = d0 - q;
        at(5) = f + u;
        at(3) = f - u;
        at(1) = e + v;
        at(7) = e - v;
      } else {
        const float a = at(0) + at(4), b = at(0) - at(4), c = at(2) + at(6), d = (at(2) - at(6)) * 1.41421356f - c;
        const float s0 = a + c, s3 = a - c, s1 = b + d, s2 = b - d;
        const float e = at(5) + at(3), f = at(5) - at(3), g = at(1) + at(7), h = at(1) - at(7);
        const float d0 = g + e, z = (f + h) * 1.84775907f, u = z - h * 1.08239220f, v = z - f * 2.61312593f;
        const float d1 = v - d0, d2 = (g - e) * 1.41421356f - d1, d3 = u - d2;
        at(0) = s0 + d0;
        at(7) = s0 - d0;
        at(1) = s1 + d1;
        at(6) = s1 - d1;
        at(2) = s2 + d2;
        at(5) = s2 - d2;
        at(3) = s3 + d3;
        at(4) = s3 - d3;
      }
    }
  }
  for (int i = 0; i < 64; ++i) dst[i] = isForward ? block[i] * factors.f[i] : block[i];
}

constexpr unsigned char zigzag[64] = {0,  1,  8,  16, 9,  2,  3,  10, 17, 24, 32, 25, 18, 11, 4,  5,
                                      12, 19, 26, 33, 40, 48, 41, 34, 27, 20, 13, 6,  7,  14, 21, 28,
                                      35, 42, 49, 56, 57, 50, 43, 36, 29, 22, 15, 23, 30, 37, 44, 51,
                                      58, 59, 52, 45, 38, 31, 39, 46, 53, 60, 61, 54, 47, 55, 62, 63};

template <bool isForward>
[[gnu::noinline]] void plainZigzag(const Vemi16s* src, Vemi16s* dst) {
  for (int i = 0; i < 64; ++i) dst[isForward ? i : zigzag[i]] = src[isForward ? zigzag[i] : i];
}

template <VemiStatus (*transform)(const Vemi32f*, Vemi32f*), bool isForward>
Contest floatsAgainstLoop(VemiSize size) {
  return blockContest<Vemi32f>(size, transform, plainFloats<isForward>);
}
template <VemiStatus (*transform)(const Vemi16s*, Vemi16s*), bool isForward>
Contest zigzagAgainstLoop(VemiSize size) {
  return blockContest<Vemi16s>(size, transform, plainZigzag<isForward>);
}

#ifdef VEMI_BENCH_JPEG
/// Their kernels work in place; ours do so here, too.
Contest forwardAgainstJpeg(VemiSize size) {
  const Blocks<Vemi16s> own(size, true), theirs(size, true);
  jsimd_can_fdct_islow();
  return {[=] {
            VemiStatus status = vemiOk;
            for (ptrdiff_t i = 0; i < own.count; ++i) status = vemiDCT8x8Fwd_16s_C1I(own.at(i));
            return status;
          },
          [=] {
            for (ptrdiff_t i = 0; i < theirs.count; ++i) jsimd_fdct_islow(theirs.at(i));
          },
          {}};
}

/// Rows of an image's blocks.
struct Pixels {
  Image<Vemi8u> image;
  std::shared_ptr<std::vector<JSAMPROW>> rows = std::make_shared<std::vector<JSAMPROW>>();

  Pixels(VemiSize size, bool isSource) : image(isSource ? randomImage<Vemi8u>(size, 1) : blankImage<Vemi8u>(size, 1)) {
    for (int y = 0; y < size.height; ++y) rows->push_back(image.data() + ptrdiff_t{1} * y * image.step);
  }
  template <class F>
  void forBlocks(const F& f) const {
    ptrdiff_t i = 0;
    for (int y = 0; y + 8 <= image.size.height; y += 8) {
      for (int x = 0; x + 8 <= image.size.width; x += 8) f(x, y, i++);
    }
  }
};

Contest shiftedAgainstJpeg(VemiSize size) {
  const Pixels src(size, true);
  const Blocks<Vemi16s> dst(size, false);
  jsimd_can_fdct_islow();
  jsimd_can_convsamp();
  return {[=] {
            VemiStatus status = vemiOk;
            src.forBlocks([&](int x, int y, ptrdiff_t i) {
              status =
                  vemiDCT8x8FwdLS_8u16s_C1R((*src.rows)[static_cast<size_t>(y)] + x, src.image.step, dst.at(i), -128);
            });
            return status;
          },
          [=] {
            src.forBlocks([&](int x, int y, ptrdiff_t i) {
              jsimd_convsamp(src.rows->data() + y, static_cast<JDIMENSION>(x), dst.at(i));
              jsimd_fdct_islow(dst.at(i));
            });
          },
          {}};
}

Contest inverseAgainstJpeg(VemiSize size) {
  const Blocks<Vemi16s> src(size, true);
  const Pixels dst(size, false);
  jsimd_can_idct_islow();
  const auto ones = std::make_shared<std::vector<short>>(64, 1);
  return {[=] {
            VemiStatus status = vemiOk;
            dst.forBlocks([&](int x, int y, ptrdiff_t i) {
              status = vemiDCT8x8InvLSClip_16s8u_C1R(src.at(i), (*dst.rows)[static_cast<size_t>(y)] + x, dst.image.step,
                                                     128, 0, 255);
            });
            return status;
          },
          [=] {
            jpeg_component_info component = {};
            component.dct_table = ones->data();
            dst.forBlocks([&](int x, int y, ptrdiff_t i) {
              jsimd_idct_islow(nullptr, &component, src.at(i), dst.rows->data() + y, static_cast<JDIMENSION>(x));
            });
          },
          {}};
}
#endif

}  // namespace

Family dctFamily() {
  return {"DCT",
          {
#ifdef VEMI_BENCH_FFTW
              {"Forward 32f C1", "FFTW", againstFftw<1, vemiDCTFwd_32f_C1R, true>},
              {"Inverse 32f C1", "FFTW", againstFftw<1, vemiDCTInv_32f_C1R, false>},
              {"Forward 32f C3", "FFTW", againstFftw<3, vemiDCTFwd_32f_C3R, true>},
              {"Inverse 32f C4", "FFTW", againstFftw<4, vemiDCTInv_32f_C4R, false>},
#endif
#ifdef VEMI_BENCH_OPENCV
              {"Forward 32f C1", "OpenCV dct", againstOpencv<vemiDCTFwd_32f_C1R, true>},
              {"Inverse 32f C1", "OpenCV dct", againstOpencv<vemiDCTInv_32f_C1R, false>},
#endif
#ifdef VEMI_BENCH_JPEG
              {"8x8 Fwd 16s C1I", "libjpeg-turbo", forwardAgainstJpeg},
              {"8x8 FwdLS 8u16s", "libjpeg-turbo", shiftedAgainstJpeg},
              {"8x8 InvLSClip 16s8u", "libjpeg-turbo", inverseAgainstJpeg},
#endif
              {"8x8 Fwd 32f C1", "plain loop", floatsAgainstLoop<vemiDCT8x8Fwd_32f_C1, true>},
              {"8x8 Inv 32f C1", "plain loop", floatsAgainstLoop<vemiDCT8x8Inv_32f_C1, false>},
              {"Zigzag Fwd 16s", "plain loop", zigzagAgainstLoop<vemiZigzagFwd8x8_16s_C1, true>},
              {"Zigzag Inv 16s", "plain loop", zigzagAgainstLoop<vemiZigzagInv8x8_16s_C1, false>},
          }};
}

}  // namespace bench
