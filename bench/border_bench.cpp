// Copies with a border of 16 pixels around.

#include "peers.h"

namespace bench {
namespace {

#ifdef VEMI_BENCH_OPENCV

constexpr int border = 16;

template <class T>
using Constant = VemiStatus(const T*, int, VemiSize, T*, int, VemiSize, int, int, T);
template <class T>
using Constants = VemiStatus(const T*, int, VemiSize, T*, int, VemiSize, int, int, const T*);
template <class T>
using Extended = VemiStatus(const T*, int, VemiSize, T*, int, VemiSize, int, int);

template <class T>
VemiStatus surround(Constant<T>* copy, const Image<T>& src, const Image<T>& dst) {
  return copy(src.data(), src.step, src.size, dst.data(), dst.step, dst.size, border, border, constants<T>[0]);
}
template <class T>
VemiStatus surround(Constants<T>* copy, const Image<T>& src, const Image<T>& dst) {
  return copy(src.data(), src.step, src.size, dst.data(), dst.step, dst.size, border, border, constants<T>);
}
template <class T>
VemiStatus surround(Extended<T>* copy, const Image<T>& src, const Image<T>& dst) {
  return copy(src.data(), src.step, src.size, dst.data(), dst.step, dst.size, border, border);
}

template <class T, int channels, auto copy, cv::BorderTypes type>
Contest contest(VemiSize size) {
  const Image<T> src = randomImage<T>(size, channels);
  const Image<T> dst = blankImage<T>({size.width + 2 * border, size.height + 2 * border}, channels);
  const auto peers = [from = mat(src), to = mat(dst)]() mutable {
    cv::copyMakeBorder(from, to, border, border, border, border, type, scalarConstants);
  };
  return {[=] { return surround<T>(copy, src, dst); }, peers, {dst.bytes()}};
}

std::vector<Row> rows() {
  const std::string peer = "OpenCV copyMakeBorder";
  using enum cv::BorderTypes;
  return {
      {"ConstBorder 8u C1", peer, contest<Vemi8u, 1, vemiCopyConstBorder_8u_C1R, BORDER_CONSTANT>},
      {"ConstBorder 8u C3", peer, contest<Vemi8u, 3, vemiCopyConstBorder_8u_C3R, BORDER_CONSTANT>},
      {"ConstBorder 8u C4", peer, contest<Vemi8u, 4, vemiCopyConstBorder_8u_C4R, BORDER_CONSTANT>},
      {"ConstBorder 16s C1", peer, contest<Vemi16s, 1, vemiCopyConstBorder_16s_C1R, BORDER_CONSTANT>},
      {"ConstBorder 32s C1", peer, contest<Vemi32s, 1, vemiCopyConstBorder_32s_C1R, BORDER_CONSTANT>},
      {"ReplicateBorder 8u C1", peer, contest<Vemi8u, 1, vemiCopyReplicateBorder_8u_C1R, BORDER_REPLICATE>},
      {"ReplicateBorder 8u C3", peer, contest<Vemi8u, 3, vemiCopyReplicateBorder_8u_C3R, BORDER_REPLICATE>},
      {"ReplicateBorder 8u C4", peer, contest<Vemi8u, 4, vemiCopyReplicateBorder_8u_C4R, BORDER_REPLICATE>},
      {"ReplicateBorder 16s C1", peer, contest<Vemi16s, 1, vemiCopyReplicateBorder_16s_C1R, BORDER_REPLICATE>},
      {"ReplicateBorder 32s C1", peer, contest<Vemi32s, 1, vemiCopyReplicateBorder_32s_C1R, BORDER_REPLICATE>},
      {"WrapBorder 32s C1", peer, contest<Vemi32s, 1, vemiCopyWrapBorder_32s_C1R, BORDER_WRAP>},
  };
}

#else
std::vector<Row> rows() { return {}; }
#endif

}  // namespace

Family borderFamily() { return {"border", rows()}; }

}  // namespace bench
