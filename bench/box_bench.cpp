// Means over rectangles. The peer rounds all quotients to nearest and keeps sums of floats in doubles, so the results
// differ in the last bit and are not compared.

#include "peers.h"

namespace bench {
namespace {

#ifdef VEMI_BENCH_OPENCV

template <class T>
using Box = VemiStatus(const T*, int, T*, int, VemiSize, VemiSize, VemiPoint);

// Both sides read the same pixels around the region.
template <class T, int channels, Box<T>* box, int side>
Contest contest(VemiSize size) {
  constexpr int reach = side / 2;
  const Image<T> src = randomImage<T>({size.width + side - 1, size.height + side - 1}, channels);
  const Image<T> dst = blankImage<T>(size, channels);
  const T* const inner = src.data() + static_cast<size_t>(reach) * static_cast<size_t>(src.step) / sizeof(T) +
                         static_cast<size_t>(reach * channels);
  const auto ours = [=] {
    return box(inner, src.step, dst.data(), dst.step, size, VemiSize{side, side}, VemiPoint{reach, reach});
  };
  const auto peers = [from = mat(src)(cv::Rect(reach, reach, size.width, size.height)), to = mat(dst), src]() mutable {
    cv::boxFilter(from, to, -1, {side, side}, {-1, -1}, true, cv::BORDER_REPLICATE);
  };
  return {ours, peers, {}};
}

std::vector<Row> rows() {
  const std::string peer = "OpenCV boxFilter";
  return {
      {"Box 8u C1 3x3", peer, contest<Vemi8u, 1, vemiFilterBox_8u_C1R, 3>},
      {"Box 8u C1 5x5", peer, contest<Vemi8u, 1, vemiFilterBox_8u_C1R, 5>},
      {"Box 8u C1 15x15", peer, contest<Vemi8u, 1, vemiFilterBox_8u_C1R, 15>},
      {"Box 8u C1 41x41", peer, contest<Vemi8u, 1, vemiFilterBox_8u_C1R, 41>},
      {"Box 8u C1 101x101", peer, contest<Vemi8u, 1, vemiFilterBox_8u_C1R, 101>},
      {"Box 8u C3 3x3", peer, contest<Vemi8u, 3, vemiFilterBox_8u_C3R, 3>},
      {"Box 8u C3 15x15", peer, contest<Vemi8u, 3, vemiFilterBox_8u_C3R, 15>},
      {"Box 8u C3 41x41", peer, contest<Vemi8u, 3, vemiFilterBox_8u_C3R, 41>},
      {"Box 8u C4 3x3", peer, contest<Vemi8u, 4, vemiFilterBox_8u_C4R, 3>},
      {"Box 8u C4 15x15", peer, contest<Vemi8u, 4, vemiFilterBox_8u_C4R, 15>},
      {"Box 16s C1 3x3", peer, contest<Vemi16s, 1, vemiFilterBox_16s_C1R, 3>},
      {"Box 16s C1 15x15", peer, contest<Vemi16s, 1, vemiFilterBox_16s_C1R, 15>},
      {"Box 16s C3 15x15", peer, contest<Vemi16s, 3, vemiFilterBox_16s_C3R, 15>},
      {"Box 32f C1 3x3", peer, contest<Vemi32f, 1, vemiFilterBox_32f_C1R, 3>},
      {"Box 32f C1 15x15", peer, contest<Vemi32f, 1, vemiFilterBox_32f_C1R, 15>},
      {"Box 32f C3 15x15", peer, contest<Vemi32f, 3, vemiFilterBox_32f_C3R, 15>},
      {"Box 32f C4 5x5", peer, contest<Vemi32f, 4, vemiFilterBox_32f_C4R, 5>},
  };
}

#else
std::vector<Row> rows() { return {}; }
#endif

}  // namespace

Family boxFamily() { return {"box", rows()}; }

}  // namespace bench
