// Fills with a constant, against filling the same rows with a byte and against fills of the peers.

#include "peers.h"

namespace bench {
namespace {

template <int channels, auto set, class T>
std::function<VemiStatus()> filler(const Image<T>& dst) {
  return [=] { return set(argument<channels>(constants<T>), dst.data(), dst.step, dst.size); };
}

template <class T, int channels, auto set>
Contest againstMemset(VemiSize size) {
  const Image<T> dst = blankImage<T>(size, channels);
  const auto fillRows = [=] {
    const size_t step = static_cast<size_t>(dst.step);
    for (size_t y = 0; y < static_cast<size_t>(size.height); ++y) {
      std::memset(reinterpret_cast<char*>(dst.data()) + y * step, constants<Vemi8u>[0], step);
    }
  };
  constexpr bool sameBytes = sizeof(T) == 1 && channels == 1;
  return {filler<channels, set>(dst), fillRows, sameBytes ? std::vector{dst.bytes()} : std::vector<Bytes>{}};
}

#ifdef VEMI_BENCH_OPENCV
template <class T, int channels, auto set>
Contest againstSetTo(VemiSize size) {
  const Image<T> dst = blankImage<T>(size, channels);
  return {filler<channels, set>(dst), [to = mat(dst)]() mutable { to.setTo(scalarConstants); }, {dst.bytes()}};
}
#endif

#ifdef VEMI_BENCH_PIXMAN
Contest c4AgainstPixman(VemiSize size) {
  const Image<Vemi8u> dst = blankImage<Vemi8u>(size, 4);
  uint32_t word;
  std::memcpy(&word, constants<Vemi8u>, sizeof word);
  return {filler<4, vemiSet_8u_C4R>(dst),
          [=] {
            pixman_fill(reinterpret_cast<uint32_t*>(dst.data()), size.width, 32, 0, 0, size.width, size.height, word);
          },
          {dst.bytes()}};
}
#endif

}  // namespace

Family setFamily() {
  return {"set",
          {
              {"Set 8u C1", "memset", againstMemset<Vemi8u, 1, vemiSet_8u_C1R>},
              {"Set 8u C3", "memset", againstMemset<Vemi8u, 3, vemiSet_8u_C3R>},
              {"Set 16s C1", "memset", againstMemset<Vemi16s, 1, vemiSet_16s_C1R>},
              {"Set 16s C3", "memset", againstMemset<Vemi16s, 3, vemiSet_16s_C3R>},
              {"Set 32f C1", "memset", againstMemset<Vemi32f, 1, vemiSet_32f_C1R>},
              {"Set 32f C3", "memset", againstMemset<Vemi32f, 3, vemiSet_32f_C3R>},
#ifdef VEMI_BENCH_OPENCV
              {"Set 8u C1", "OpenCV setTo", againstSetTo<Vemi8u, 1, vemiSet_8u_C1R>},
              {"Set 8u C3", "OpenCV setTo", againstSetTo<Vemi8u, 3, vemiSet_8u_C3R>},
              {"Set 16s C1", "OpenCV setTo", againstSetTo<Vemi16s, 1, vemiSet_16s_C1R>},
              {"Set 16s C3", "OpenCV setTo", againstSetTo<Vemi16s, 3, vemiSet_16s_C3R>},
              {"Set 32f C1", "OpenCV setTo", againstSetTo<Vemi32f, 1, vemiSet_32f_C1R>},
              {"Set 32f C3", "OpenCV setTo", againstSetTo<Vemi32f, 3, vemiSet_32f_C3R>},
#endif
#ifdef VEMI_BENCH_PIXMAN
              {"Set 8u C4", "pixman fill", c4AgainstPixman},
#endif
          }};
}

}  // namespace bench
