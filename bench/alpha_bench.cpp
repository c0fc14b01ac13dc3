// Compositing and premultiplication of 8u pixels. Products are rounded down here and to nearest by all peers, so the
// results differ in the last bit and are not compared.

#include "peers.h"

namespace bench {
namespace {

struct Work {
  Image<Vemi8u> src, dst;
};

Work images(VemiSize size, Passes overDst) {
  return {randomImage<Vemi8u>(size, 4), randomImage<Vemi8u>(size, 4, overDst)};
}

// The source over what the destination holds.
std::function<VemiStatus()> over(const Work& work) {
  return [=] {
    const auto& [src, dst] = work;
    return vemiAlphaComp_8u_AC4R(src.data(), src.step, dst.data(), dst.step, dst.data(), dst.step, dst.size,
                                 vemiAlphaOverPremul);
  };
}

std::function<VemiStatus()> premultiply(const Work& work) {
  return [=] {
    const auto& [src, dst] = work;
    return vemiAlphaPremul_8u_AC4R(src.data(), src.step, dst.data(), dst.step, dst.size);
  };
}

#ifdef VEMI_BENCH_PIXMAN
std::function<void()> pixmanComposite(pixman_op_t op, const Work& work, std::shared_ptr<pixman_image_t> from,
                                      std::shared_ptr<pixman_image_t> mask) {
  return [=, to = pixmanImage(work.dst), size = work.dst.size] {
    pixman_image_composite32(op, from.get(), mask.get(), to.get(), 0, 0, 0, 0, 0, 0, size.width, size.height);
  };
}

Contest overAgainstPixman(VemiSize size) {
  const Work work = images(size, inPlace);
  return {over(work), pixmanComposite(PIXMAN_OP_OVER, work, pixmanImage(work.src), nullptr), {}};
}

// The colours alone as an opaque source, under their own pixels as a mask.
Contest premulAgainstPixman(VemiSize size) {
  const Work work = images(size, once);
  const std::shared_ptr<pixman_image_t> colours(
      pixman_image_create_bits(PIXMAN_x8r8g8b8, size.width, size.height, reinterpret_cast<uint32_t*>(work.src.data()),
                               work.src.step),
      pixman_image_unref);
  return {premultiply(work), pixmanComposite(PIXMAN_OP_SRC, work, colours, pixmanImage(work.src)), {}};
}
#endif

#ifdef VEMI_BENCH_LIBYUV
Contest overAgainstLibyuv(VemiSize size) {
  const Work work = images(size, inPlace);
  return {over(work),
          [=] {
            const auto& [src, dst] = work;
            libyuv::ARGBBlend(src.data(), src.step, dst.data(), dst.step, dst.data(), dst.step, size.width,
                              size.height);
          },
          {}};
}

Contest premulAgainstLibyuv(VemiSize size) {
  const Work work = images(size, once);
  return {premultiply(work),
          [=] {
            const auto& [src, dst] = work;
            libyuv::ARGBAttenuate(src.data(), src.step, dst.data(), dst.step, size.width, size.height);
          },
          {}};
}
#endif

#ifdef VEMI_BENCH_OPENCV
Contest premulAgainstOpencv(VemiSize size) {
  const Work work = images(size, once);
  const auto peers = [from = mat(work.src), to = mat(work.dst)]() mutable {
    cv::cvtColor(from, to, cv::COLOR_RGBA2mRGBA);
  };
  return {premultiply(work), peers, {}};
}
#endif

}  // namespace

Family alphaFamily() {
  return {"alpha",
          {
#ifdef VEMI_BENCH_PIXMAN
              {"AlphaComp 8u AC4 over", "pixman composite", overAgainstPixman},
              {"AlphaPremul 8u AC4", "pixman composite", premulAgainstPixman},
#endif
#ifdef VEMI_BENCH_LIBYUV
              {"AlphaComp 8u AC4 over", "libyuv blend", overAgainstLibyuv},
              {"AlphaPremul 8u AC4", "libyuv attenuate", premulAgainstLibyuv},
#endif
#ifdef VEMI_BENCH_OPENCV
              {"AlphaPremul 8u AC4", "OpenCV cvtColor", premulAgainstOpencv},
#endif
          }};
}

}  // namespace bench
