// Copies of whole pixels, against copies of rows.

#include "peers.h"

namespace bench {
namespace {

template <class T>
using Copy = VemiStatus(const T*, int, T*, int, VemiSize);

template <class T, int channels, Copy<T>* copy>
Contest againstMemcpy(VemiSize size) {
  const Image<T> src = randomImage<T>(size, channels), dst = blankImage<T>(size, channels);
  const auto copyRows = [=] {
    const size_t step = static_cast<size_t>(src.step);
    for (size_t y = 0; y < static_cast<size_t>(size.height); ++y) {
      std::memcpy(reinterpret_cast<char*>(dst.data()) + y * step, reinterpret_cast<char*>(src.data()) + y * step, step);
    }
  };
  return {[=] { return copy(src.data(), src.step, dst.data(), dst.step, size); }, copyRows, {dst.bytes()}};
}

#ifdef VEMI_BENCH_PIXMAN
Contest c4AgainstPixman(VemiSize size) {
  const Image<Vemi8u> src = randomImage<Vemi8u>(size, 4), dst = blankImage<Vemi8u>(size, 4);
  const auto from = pixmanImage(src), to = pixmanImage(dst);
  return {[=] { return vemiCopy_8u_C4R(src.data(), src.step, dst.data(), dst.step, size); },
          [=] {
            pixman_image_composite32(PIXMAN_OP_SRC, from.get(), nullptr, to.get(), 0, 0, 0, 0, 0, 0, size.width,
                                     size.height);
          },
          {dst.bytes()}};
}
#endif

}  // namespace

Family copyFamily() {
  return {"copy",
          {
              {"Copy 8u C1", "memcpy", againstMemcpy<Vemi8u, 1, vemiCopy_8u_C1R>},
              {"Copy 8u C3", "memcpy", againstMemcpy<Vemi8u, 3, vemiCopy_8u_C3R>},
              {"Copy 16s C1", "memcpy", againstMemcpy<Vemi16s, 1, vemiCopy_16s_C1R>},
              {"Copy 32f C1", "memcpy", againstMemcpy<Vemi32f, 1, vemiCopy_32f_C1R>},
              {"Copy 32f C3", "memcpy", againstMemcpy<Vemi32f, 3, vemiCopy_32f_C3R>},
#ifdef VEMI_BENCH_PIXMAN
              {"Copy 8u C4", "pixman composite", c4AgainstPixman},
#endif
          }};
}

}  // namespace bench
