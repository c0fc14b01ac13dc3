// Copies and fills of the pixels that a mask selects.

#include "peers.h"

namespace bench {
namespace {

#ifdef VEMI_BENCH_OPENCV

template <class T>
using MaskedCopy = VemiStatus(const T*, int, T*, int, VemiSize, const Vemi8u*, int);
template <class T>
using MaskedSetOne = VemiStatus(T, T*, int, VemiSize, const Vemi8u*, int);
template <class T>
using MaskedSetEach = VemiStatus(const T*, T*, int, VemiSize, const Vemi8u*, int);

// An ellipse in the middle that covers half of the region.
Image<Vemi8u> discMask(VemiSize size) {
  const Image<Vemi8u> mask = blankImage<Vemi8u>(size, 1);
  constexpr double halfAxes = 0.39894228;  // sqrt(1 / 2 pi), in widths and heights
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      const double u = ((x + 0.5) / size.width - 0.5) / halfAxes, v = ((y + 0.5) / size.height - 0.5) / halfAxes;
      mask.data()[y * mask.step + x] = u * u + v * v < 1 ? 255 : 0;
    }
  }
  return mask;
}

Image<Vemi8u> randomMask(VemiSize size) {
  const Image<Vemi8u> mask = randomImage<Vemi8u>(size, 1);
  for (size_t i = 0; i < mask.elements(); ++i) mask.data()[i] = mask.data()[i] < 128 ? 0 : 255;
  return mask;
}

Image<Vemi8u> fullMask(VemiSize size) {
  const Image<Vemi8u> mask = blankImage<Vemi8u>(size, 1);
  std::memset(mask.data(), 255, mask.elements());
  return mask;
}

struct Mask {
  const char* name;
  Image<Vemi8u> (*draw)(VemiSize);
};
constexpr Mask masks[] = {{"disc", discMask}, {"random", randomMask}, {"full", fullMask}};

template <class T>
void addCopyRows(std::vector<Row>& rows, const std::string& name, int channels, MaskedCopy<T>* copy) {
  for (const Mask& kind : masks) {
    rows.push_back({name + " " + kind.name, "OpenCV copyTo", [=](VemiSize size) -> Contest {
                      const Image<T> src = randomImage<T>(size, channels), dst = blankImage<T>(size, channels);
                      const Image<Vemi8u> mask = kind.draw(size);
                      const auto ours = [=] {
                        return copy(src.data(), src.step, dst.data(), dst.step, size, mask.data(), mask.step);
                      };
                      const auto peers = [from = mat(src), to = mat(dst), where = mat(mask)]() mutable {
                        from.copyTo(to, where);
                      };
                      return {ours, peers, {dst.bytes()}};
                    }});
  }
}

template <class T>
std::function<VemiStatus()> filler(MaskedSetOne<T>* set, const Image<T>& dst, const Image<Vemi8u>& mask) {
  return [=] { return set(constants<T>[0], dst.data(), dst.step, dst.size, mask.data(), mask.step); };
}
template <class T>
std::function<VemiStatus()> filler(MaskedSetEach<T>* set, const Image<T>& dst, const Image<Vemi8u>& mask) {
  return [=] { return set(constants<T>, dst.data(), dst.step, dst.size, mask.data(), mask.step); };
}

template <class T, class MaskedSet>
void addSetRows(std::vector<Row>& rows, const std::string& name, int channels, MaskedSet* set) {
  for (const Mask& kind : masks) {
    rows.push_back({name + " " + kind.name, "OpenCV setTo", [=](VemiSize size) -> Contest {
                      const Image<T> dst = blankImage<T>(size, channels);
                      const Image<Vemi8u> mask = kind.draw(size);
                      const auto peers = [to = mat(dst), where = mat(mask)]() mutable {
                        to.setTo(scalarConstants, where);
                      };
                      return {filler<T>(set, dst, mask), peers, {dst.bytes()}};
                    }});
  }
}

#endif

}  // namespace

Family maskedCopyFamily() {
  std::vector<Row> rows;
#ifdef VEMI_BENCH_OPENCV
  addCopyRows(rows, "Copy 8u C1M", 1, vemiCopy_8u_C1MR);
  addCopyRows(rows, "Copy 8u C3M", 3, vemiCopy_8u_C3MR);
  addCopyRows(rows, "Copy 8u C4M", 4, vemiCopy_8u_C4MR);
  addCopyRows(rows, "Copy 16s C1M", 1, vemiCopy_16s_C1MR);
  addCopyRows(rows, "Copy 16s C3M", 3, vemiCopy_16s_C3MR);
  addCopyRows(rows, "Copy 16s C4M", 4, vemiCopy_16s_C4MR);
  addCopyRows(rows, "Copy 32f C1M", 1, vemiCopy_32f_C1MR);
  addCopyRows(rows, "Copy 32f C3M", 3, vemiCopy_32f_C3MR);
  addCopyRows(rows, "Copy 32f C4M", 4, vemiCopy_32f_C4MR);
#endif
  return {"masked copy", rows};
}

Family maskedSetFamily() {
  std::vector<Row> rows;
#ifdef VEMI_BENCH_OPENCV
  addSetRows<Vemi8u>(rows, "Set 8u C1M", 1, vemiSet_8u_C1MR);
  addSetRows<Vemi8u>(rows, "Set 8u C3M", 3, vemiSet_8u_C3MR);
  addSetRows<Vemi8u>(rows, "Set 8u C4M", 4, vemiSet_8u_C4MR);
  addSetRows<Vemi16s>(rows, "Set 16s C1M", 1, vemiSet_16s_C1MR);
  addSetRows<Vemi16s>(rows, "Set 16s C3M", 3, vemiSet_16s_C3MR);
  addSetRows<Vemi16s>(rows, "Set 16s C4M", 4, vemiSet_16s_C4MR);
  addSetRows<Vemi32f>(rows, "Set 32f C1M", 1, vemiSet_32f_C1MR);
  addSetRows<Vemi32f>(rows, "Set 32f C3M", 3, vemiSet_32f_C3MR);
  addSetRows<Vemi32f>(rows, "Set 32f C4M", 4, vemiSet_32f_C4MR);
#endif
  return {"masked set", rows};
}

}  // namespace bench
