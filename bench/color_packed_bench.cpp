// Video formats as words of 16 bits a pixel. Matrices are rounded otherwise by the peer, whose dither adds an offset of
// each place before bits are cut, and the peer sets the bits above 555 and 444: results are not compared.

#ifdef VEMI_BENCH_LIBYUV
#include <libyuv/convert_argb.h>
#endif

#include "peers.h"

namespace bench {
namespace {

using Pack = VemiStatus(const Vemi8u* const[3], const int[3], Vemi16u*, int, VemiSize);

#ifdef VEMI_BENCH_LIBYUV
using PeersPack = int(const uint8_t*, int, const uint8_t*, int, const uint8_t*, int, uint8_t*, int, int, int);

template <int chromaRows, Pack* pack, class Peer>
Contest contest(VemiSize size, const Peer& peer) {
  const VemiSize shared = {(size.width + 1) / 2, (size.height + chromaRows - 1) / chromaRows};
  const auto luma = randomImage<Vemi8u>(size, 1), u = randomImage<Vemi8u>(shared, 1),
             v = randomImage<Vemi8u>(shared, 1);
  const auto words = randomImage<Vemi16u>(size, 1);
  const auto ours = [=] {
    const Vemi8u* const planes[3] = {luma.data(), u.data(), v.data()};
    const int steps[3] = {luma.step, u.step, v.step};
    return pack(planes, steps, words.data(), words.step, size);
  };
  const auto peers = [=] {
    peer(luma.data(), luma.step, u.data(), u.step, v.data(), v.step, reinterpret_cast<uint8_t*>(words.data()),
         words.step, size.width, size.height);
  };
  return {ours, peers, {}};
}

template <int chromaRows, Pack* pack, PeersPack* peer>
Contest againstLibyuv(VemiSize size) {
  return contest<chromaRows, pack>(size, peer);
}

template <Pack* pack>
Contest ditherAgainstLibyuv(VemiSize size) {
  return contest<2, pack>(size, [](auto... arguments) {
    const auto call = [](auto y, int yStep, auto u, int uStep, auto v, int vStep, auto dst, int dstStep, int width,
                         int height) {
      libyuv::I420ToRGB565Dither(y, yStep, u, uStep, v, vStep, dst, dstStep, nullptr, width, height);
    };
    call(arguments...);
  });
}
#endif

}  // namespace

Family packedPixelsFamily() {
  return {"packed",
          {
#ifdef VEMI_BENCH_LIBYUV
              {"YCbCr420ToBGR565 8u16u P3", "libyuv I420ToRGB565",
               againstLibyuv<2, vemiYCbCr420ToBGR565_8u16u_P3C3R, libyuv::I420ToRGB565>},
              {"YCbCr420ToBGR565Dither 8u16u P3", "libyuv I420ToRGB565Dither",
               ditherAgainstLibyuv<vemiYCbCr420ToBGR565Dither_8u16u_P3C3R>},
              {"YCbCr420ToBGR555 8u16u P3", "libyuv I420ToARGB1555",
               againstLibyuv<2, vemiYCbCr420ToBGR555_8u16u_P3C3R, libyuv::I420ToARGB1555>},
              {"YCbCr420ToBGR444 8u16u P3", "libyuv I420ToARGB4444",
               againstLibyuv<2, vemiYCbCr420ToBGR444_8u16u_P3C3R, libyuv::I420ToARGB4444>},
              {"YCbCr422ToBGR565 8u16u P3", "libyuv I422ToRGB565",
               againstLibyuv<1, vemiYCbCr422ToBGR565_8u16u_P3C3R, libyuv::I422ToRGB565>},
              {"YUV420ToBGR565 8u16u P3", "libyuv J420ToRGB565",
               againstLibyuv<2, vemiYUV420ToBGR565_8u16u_P3C3R, libyuv::J420ToRGB565>},
#endif
          }};
}

}  // namespace bench
