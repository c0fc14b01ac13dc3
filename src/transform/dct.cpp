// vemiDCTFwd, vemiDCTInv of images of any size: lines along x, then lines along y.
// Checks: null record, tag, null images, step, memory; of constructors null, size, the size of the buffer, memory; for
// existing records null, tag.

#include <algorithm>
#include <limits>
#include <utility>

#include "core/checks.h"
#include "core/exports.h"
#include "core/record.h"
#include "core/scratch.h"
#include "signal/dct.h"
#include "transform/block_float.h"
#include "transform/fft_spec.h"
#include "transform/short_rows.h"
#include "vemi/transform.h"

/// The lines along x and y; equal lengths share a record, and the one of y is null. Blocks of 8 by 8 have neither.
struct VemiDCTSpec_32f {
  int tag, width, height, hint, bufSize, is8x8;
  vemi::RecordPtr<vemi::signal::SigDCTSpec> rowSpec, colSpec;

  const vemi::signal::SigDCTSpec& lineX() const { return *rowSpec; }
  const vemi::signal::SigDCTSpec& lineY() const { return colSpec == nullptr ? *rowSpec : *colSpec; }
};

namespace vemi::transform {
namespace {

using signal::ColumnGroups;
using signal::SigDCTSpec;

constexpr int forwardTag = 31, inverseTag = 32;
constexpr ptrdiff_t vectorLanes = ColumnGroups::N;

// ---- Records --------------------------------------------------------------------------------------------------------

/// Four lines and what one of them works in; of blocks, four planes.
Vemi64s bufferBytes(VemiSize size, int hint) {
  const auto ofLines = [&](int length) { return Vemi64s{16} * length + signal::workBytesOfDCT(length, hint); };
  const bool is8x8 = size.width == 8 && size.height == 8;
  return (is8x8 ? Vemi64s{16} * 64 : std::max(ofLines(size.width), ofLines(size.height))) + bufferSlack;
}

template <bool isForward>
VemiStatus initAlloc(VemiDCTSpec_32f** ppSpec, VemiSize roiSize, int hint) {
  if (const VemiStatus bad = firstOf(checkNull(ppSpec), checkSize(roiSize))) return bad;
  const Vemi64s bytes = bufferBytes(roiSize, hint);
  if (bytes > std::numeric_limits<int>::max()) return vemiErrMemAlloc;
  auto spec = makeRecord<VemiDCTSpec_32f>(isForward ? forwardTag : inverseTag);
  if (spec == nullptr) return vemiErrMemAlloc;
  spec->width = roiSize.width;
  spec->height = roiSize.height;
  spec->hint = hint;
  spec->bufSize = static_cast<int>(bytes);
  spec->is8x8 = roiSize.width == 8 && roiSize.height == 8;
  constexpr int lineTag = isForward ? signal::forwardCosineTag : signal::inverseCosineTag;
  if (spec->is8x8 == 0) {
    if (const VemiStatus bad = sigDCTInitAlloc_32f(spec->rowSpec, lineTag, roiSize.width, hint)) return bad;
    if (roiSize.width != roiSize.height) {
      if (const VemiStatus bad = sigDCTInitAlloc_32f(spec->colSpec, lineTag, roiSize.height, hint)) return bad;
    }
  }
  return handOver(std::move(spec), ppSpec);
}

// ---- Blocks of 8 by 8 -----------------------------------------------------------------------------------------------

template <bool isForward, class L>
void block(Image<const float> src, Image<float> dst) {
  alignas(laneAlignment) float plane[L::channels][64];
  const auto forElements = [](const auto& f) {
    for (int i = 0; i < 64; ++i) {
      for (int channel = 0; channel < L::channels; ++channel) f(i / 8, i % 8 * L::elements + channel, channel, i);
    }
  };
  forElements([&](int y, int e, int channel, int i) { plane[channel][i] = elementOf(src.row(y) + e); });
  for (float* each : plane) transformed<isForward>(FloatBlock::of(each)).storeTo(each);
  forElements([&](int y, int e, int channel, int i) { setElement(dst.row(y) + e, plane[channel][i]); });
}

// ---- Lines side by side ---------------------------------------------------------------------------------------------

/// Where the lines of a call stand: an octet is eight of them. Lines of odd length need two octets, of even length two
/// are better than one, as they are what a cache line holds.
class Lines {
 public:
  Lines(const SigDCTSpec& spec, float* memory)
      : spec_(spec),
        data_{memory},
        in_(spec.in),
        out_(spec.out),
        distance_(spec.isEven() ? spec.lines.groups() * data_.stride : vectorLanes),
        octetsAtOnce_(!spec.isEven() || 2 * spec.lines.groups() <= signal::cosineGroupsOnStack ? 2 : 1) {}

  ptrdiff_t groups() const { return spec_.lines.groups() * (spec_.isEven() ? octetsAtOnce_ : 1); }
  ptrdiff_t octetsAtOnce() const { return octetsAtOnce_; }
  /// Where `left` lines are left. Behind the last octet it stands once more.
  ptrdiff_t octetsFor(ptrdiff_t left, ptrdiff_t linesOfOctet) const {
    return spec_.isEven() ? std::min(octetsAtOnce_, (left + linesOfOctet - 1) / linesOfOctet) : 2;
  }

  void transform(ptrdiff_t octets) const {
    for (ptrdiff_t octet = 0; octet < (spec_.isEven() ? octets : 1); ++octet) {
      signal::transformCosineLines(spec_, {data_.first + octet * distance_});
    }
  }

  /// Vectors k of element n, and of result n.
  HWY_INLINE float* element(ptrdiff_t octet, ptrdiff_t n, ptrdiff_t k) const {
    return data_.first + octet * distance_ + in_[n] + 2 * vectorLanes * k;
  }
  HWY_INLINE const float* result(ptrdiff_t octet, ptrdiff_t n, ptrdiff_t k) const {
    return data_.first + octet * distance_ + out_[n] + 2 * vectorLanes * k;
  }

 private:
  const SigDCTSpec& spec_;
  ColumnGroups data_;
  const Vemi32s *in_, *out_;
  ptrdiff_t distance_, octetsAtOnce_;
};

/// Eight columns of floats. The last ones of an image overlap those before them, which stay. There are copies of fewer
/// than eight, and of the last ones of three channels, as an overlap would shift the channels.
struct ColumnOctet {
  ptrdiff_t x, count;
  bool keeps;
  uint32_t kept[8];  // all bits set where a column stays

  template <class L>
  static ColumnOctet at(ptrdiff_t first, ptrdiff_t floats) {
    if (L::elements == 3) return {first, std::clamp<ptrdiff_t>(floats - first, 0, 8), false, {}};
    ColumnOctet octet = {
        std::max<ptrdiff_t>(0, std::min(first, floats - 8)), std::min<ptrdiff_t>(floats, 8), false, {}};
    for (ptrdiff_t i = 0; i < 8; ++i) {
      const bool stays = octet.x + i < first || (L::keepsAlpha && (octet.x + i) % 4 == 3);
      octet.kept[i] = stays ? ~uint32_t{0} : 0;
      octet.keeps = octet.keeps || stays;
    }
    return octet;
  }

  HWY_INLINE void load(const float* row, const Lines& lines, ptrdiff_t octet, ptrdiff_t y) const {
    const ColumnGroups::D d;
    float copied[8] = {};
    const float* from = row + x;
    if (count < 8)
      from = static_cast<const float*>(std::memcpy(copied, from, static_cast<size_t>(count) * sizeof(float)));
    unrolled<ColumnGroups::vectors>(
        [&](auto k) HWY_ATTR { hn::StoreU(hn::LoadU(d, from + k * vectorLanes), d, lines.element(octet, y, k)); });
  }

  HWY_INLINE void store(float* row, const Lines& lines, ptrdiff_t octet, ptrdiff_t y) const {
    const ColumnGroups::D d;
    const hn::RebindToUnsigned<ColumnGroups::D> dBits;
    unrolled<ColumnGroups::vectors>([&](auto k) HWY_ATTR {
      const auto v = hn::LoadU(d, lines.result(octet, y, k));
      float* const to = row + x + k * vectorLanes;
      if (count < 8) {
        float element[vectorLanes];
        hn::StoreU(v, d, element);
        for (ptrdiff_t i = 0; i < vectorLanes && k * vectorLanes + i < count; ++i) {
          if (kept[k * vectorLanes + i] == 0) setElement(to + i, element[i]);
        }
      } else if (keeps) {
        const auto mask = hn::MaskFromVec(hn::BitCast(d, hn::LoadU(dBits, kept + k * vectorLanes)));
        hn::StoreU(hn::IfThenElse(mask, hn::LoadU(d, to), v), d, to);
      } else {
        hn::StoreU(v, d, to);
      }
    });
  }
};

template <class L>
HWY_NOINLINE HWY_FLATTEN void columns(Image<const float> src, Image<float> dst, const SigDCTSpec& spec,
                                      ptrdiff_t floats, float* memory) {
  // Octets that are one complex column have the same channels: of three, they lie 24 columns apart, and three pairs of
  // octets follow each other before both are passed.
  const Lines lines(spec, memory);
  const ptrdiff_t apart = L::elements == 3 && !spec.isEven() ? 24 : 8, together = apart * lines.octetsAtOnce();
  for (ptrdiff_t x = 0; x < floats; x += x % together == apart - 8 ? together - apart + 8 : 8) {
    const ColumnOctet octet[2] = {ColumnOctet::at<L>(x, floats), ColumnOctet::at<L>(x + apart, floats)};
    const ptrdiff_t octets = lines.octetsFor(floats - x, 8);
    for (ptrdiff_t y = 0; y < spec.length; ++y) {
      askForRow(src, y + rowsAhead, x);
      for (ptrdiff_t i = 0; i < octets; ++i) octet[i].load(src.row(y), lines, i, y);
    }
    lines.transform(octets);
    for (ptrdiff_t y = 0; y < spec.length; ++y) {
      askForRow(dst, y + rowsAhead, x);
      for (ptrdiff_t i = 0; i < octets; ++i) octet[i].store(dst.row(y), lines, i, y);
    }
  }
}

/// Eight rows of single elements, transposed.
template <class L>
struct RowOctet {
  static constexpr ptrdiff_t rows = 8;

  HWY_INLINE static void load(Image<const float> src, ptrdiff_t y, ptrdiff_t height, const Lines& lines,
                              ptrdiff_t octet, ptrdiff_t width) {
    const ColumnGroups::D d;
    const EightRows<const float> eight(y, height, [&](ptrdiff_t i) { return src.row(i); });
    eight.load(width, [&](ptrdiff_t x, auto first, auto v)
                          HWY_ATTR { hn::StoreU(v, d, lines.element(octet, x, first / vectorLanes)); });
  }
  HWY_INLINE static void store(Image<float> dst, ptrdiff_t y, ptrdiff_t height, const Lines& lines, ptrdiff_t octet,
                               ptrdiff_t width) {
    const EightRows<float> eight(y, height, [&](ptrdiff_t i) { return dst.row(i); });
    eight.template store<Alpha::none>(width, [&](auto d, ptrdiff_t x, auto first) HWY_ATTR {
      return hn::LoadU(d, lines.result(octet, x, first / vectorLanes) + first % vectorLanes);
    });
  }
};

/// Two rows of pixels with several elements: each pixel is half an octet as it stands. The fourth lane of three
/// channels is the next pixel's first one; it is written, too, ahead of that pixel.
template <class L>
requires(L::elements > 1) struct RowOctet<L> {
  static constexpr ptrdiff_t rows = 2;
  using Pixel = hn::CappedTag<float, 4>;

  HWY_INLINE static void load(Image<const float> src, ptrdiff_t y, ptrdiff_t height, const Lines& lines,
                              ptrdiff_t octet, ptrdiff_t width) {
    const Pixel d;
    for (ptrdiff_t half = 0; half < 2; ++half) {
      const float* const row = src.row(std::min(y + half, height - 1));
      for (ptrdiff_t x = 0; x < width; ++x) {
        float copied[4] = {};
        const float* from = row + x * L::elements;
        if (L::elements < 4 && x == width - 1)
          from = static_cast<const float*>(std::memcpy(copied, from, 3 * sizeof(float)));
        hn::StoreU(hn::LoadU(d, from), d, element(lines, octet, x, half));
      }
    }
  }
  HWY_INLINE static void store(Image<float> dst, ptrdiff_t y, ptrdiff_t height, const Lines& lines, ptrdiff_t octet,
                               ptrdiff_t width) {
    const Pixel d;
    for (ptrdiff_t half = 0; half < 2; ++half) {
      float* const row = dst.row(std::min(y + half, height - 1));
      for (ptrdiff_t x = 0; x < width; ++x) {
        float* const to = row + x * L::elements;
        const float* const from = result(lines, octet, x, half);
        auto v = hn::LoadU(d, from);
        if constexpr (L::keepsAlpha) v = hn::IfThenElse(colourLanes(d), v, hn::LoadU(d, to));
        if (L::elements < 4 && x == width - 1) {
          std::memcpy(to, from, 3 * sizeof(float));
        } else {
          hn::StoreU(v, d, to);
        }
      }
    }
  }

 private:
  /// Lanes 4 half and on.
  HWY_INLINE static float* element(const Lines& lines, ptrdiff_t octet, ptrdiff_t x, ptrdiff_t half) {
    return lines.element(octet, x, 4 * half / vectorLanes) + 4 * half % vectorLanes;
  }
  HWY_INLINE static const float* result(const Lines& lines, ptrdiff_t octet, ptrdiff_t x, ptrdiff_t half) {
    return lines.result(octet, x, 4 * half / vectorLanes) + 4 * half % vectorLanes;
  }
};

template <class L>
HWY_NOINLINE HWY_FLATTEN void rows(Image<const float> src, Image<float> dst, const SigDCTSpec& spec, ptrdiff_t height,
                                   float* memory) {
  const Lines lines(spec, memory);
  constexpr ptrdiff_t atOnce = RowOctet<L>::rows;
  for (ptrdiff_t y = 0; y < height; y += atOnce * lines.octetsAtOnce()) {
    const ptrdiff_t octets = lines.octetsFor(height - y, atOnce);
    for (ptrdiff_t i = 0; i < octets; ++i) {
      RowOctet<L>::load(src, y + i * atOnce, height, lines, i, spec.length);
    }
    lines.transform(octets);
    for (ptrdiff_t i = 0; i < octets; ++i) {
      RowOctet<L>::store(dst, y + i * atOnce, height, lines, i, spec.length);
    }
  }
}

// ---- Long lines -----------------------------------------------------------------------------------------------------

/// Those of a channel, four at a time in the buffer. at(image, line, n) is element n of a line.
template <class At>
void longLines(Image<const float> src, Image<float> dst, const SigDCTSpec& spec, ptrdiff_t count, float* buffer,
               const At& at) {
  const ptrdiff_t length = spec.length;
  float* const work = buffer + 4 * length;
  for (ptrdiff_t first = 0; first < count; first += 4) {
    const ptrdiff_t lines = std::min<ptrdiff_t>(4, count - first);
    for (ptrdiff_t n = 0; n < length; ++n) {
      for (ptrdiff_t i = 0; i < lines; ++i) buffer[i * length + n] = elementOf(at(src, first + i, n));
    }
    const ptrdiff_t atOnce = spec.isEven() ? 1 : 2;
    for (ptrdiff_t i = 0; i < lines; i += atOnce) {
      // Behind a last line that stands alone there is room for another one, which is 0.
      float* const own = buffer + i * length;
      if (atOnce == 2 && i + 1 == lines) std::fill_n(own + length, length, 0.0f);
      signal::transformLongCosineLine(spec, own, own + length, work);
    }
    for (ptrdiff_t n = 0; n < length; ++n) {
      for (ptrdiff_t i = 0; i < lines; ++i) setElement(at(dst, first + i, n), buffer[i * length + n]);
    }
  }
}

template <ptrdiff_t groups, class Work>
HWY_NOINLINE void onStack(const Work& work) {
  alignas(laneAlignment) float memory[groups * ColumnGroups{}.stride];
  work(memory);
}

/// work(memory) with the groups that lines side by side need: on the stack, or in the buffer.
template <class Work>
void withGroups(const SigDCTSpec& spec, float* buffer, const Work& work) {
  const ptrdiff_t groups = Lines(spec, nullptr).groups();
  constexpr ptrdiff_t most = signal::cosineGroupsOnStack;
  if (groups > most) return work(alignedToVectors(buffer));
  groups > most / 2 ? onStack<most>(work) : onStack<most / 2>(work);
}

template <class L>
void linesAlongX(Image<const float> src, Image<float> dst, const SigDCTSpec& spec, ptrdiff_t height, float* buffer) {
  if (spec.isSideBySide()) {
    return withGroups(spec, buffer, [&](float* memory) { rows<L>(src, dst, spec, height, memory); });
  }
  for (int channel = 0; channel < L::channels; ++channel) {
    longLines(src, dst, spec, height, buffer,
              [&](auto image, ptrdiff_t y, ptrdiff_t x) { return image.row(y) + x * L::elements + channel; });
  }
}

template <class L>
void linesAlongY(Image<const float> src, Image<float> dst, const SigDCTSpec& spec, ptrdiff_t width, float* buffer) {
  if (spec.isSideBySide()) {
    return withGroups(spec, buffer, [&](float* memory) { columns<L>(src, dst, spec, width * L::elements, memory); });
  }
  for (int channel = 0; channel < L::channels; ++channel) {
    longLines(src, dst, spec, width, buffer,
              [&](auto image, ptrdiff_t x, ptrdiff_t y) { return image.row(y) + x * L::elements + channel; });
  }
}

template <bool isForward, class L>
VemiStatus ofImage(Image<const float> src, Image<float> dst, const VemiDCTSpec_32f* spec, Vemi8u* buffer) {
  if (const VemiStatus bad =
          firstOf(checkRecord(spec, isForward ? forwardTag : inverseTag), checkNull(src, dst), checkStep(src, dst))) {
    return bad;
  }
  if (spec->is8x8 != 0) {
    block<isForward, L>(src, dst);
    return vemiOk;
  }
  const Scratch scratch(spec->bufSize, buffer);
  if (scratch.failed()) return vemiErrMemAlloc;
  float* const memory = scratch.as<float>();
  if (spec->width == 1) {
    linesAlongY<L>(src, dst, spec->lineY(), 1, memory);
  } else {
    linesAlongX<L>(src, dst, spec->lineX(), spec->height, memory);
    if (spec->height > 1) linesAlongY<L>({dst.first, dst.step}, dst, spec->lineY(), spec->width, memory);
  }
  return vemiOk;
}

}  // namespace
}  // namespace vemi::transform

using namespace vemi;
using namespace vemi::transform;

VemiStatus vemiDCTFwdInitAlloc_32f(VemiDCTSpec_32f** ppSpec, VemiSize roiSize, vemiHint hint) {
  return initAlloc<true>(ppSpec, roiSize, hint);
}
VemiStatus vemiDCTInvInitAlloc_32f(VemiDCTSpec_32f** ppSpec, VemiSize roiSize, vemiHint hint) {
  return initAlloc<false>(ppSpec, roiSize, hint);
}
VemiStatus vemiDCTFwdFree_32f(VemiDCTSpec_32f* pSpec) { return freeRecord(pSpec, forwardTag); }
VemiStatus vemiDCTInvFree_32f(VemiDCTSpec_32f* pSpec) { return freeRecord(pSpec, inverseTag); }
VemiStatus vemiDCTFwdGetBufSize_32f(const VemiDCTSpec_32f* pSpec, int* pSize) {
  return tellBufSize(pSpec, forwardTag, pSize);
}
VemiStatus vemiDCTInvGetBufSize_32f(const VemiDCTSpec_32f* pSpec, int* pSize) {
  return tellBufSize(pSpec, inverseTag, pSize);
}

#define IMAGES_SPEC                                                                                               \
  ((const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, const VemiDCTSpec_32f* pSpec, Vemi8u* pBuffer), \
   (Image<const Vemi32f>{pSrc, srcStep}, Image<Vemi32f>{pDst, dstStep}, pSpec, pBuffer))

VEMI_DEFINE(vemiDCTFwd_32f_C1R, IMAGES_SPEC, ofImage<true, C1>)
VEMI_DEFINE(vemiDCTFwd_32f_C3R, IMAGES_SPEC, ofImage<true, C3>)
VEMI_DEFINE(vemiDCTFwd_32f_C4R, IMAGES_SPEC, ofImage<true, C4>)
VEMI_DEFINE(vemiDCTFwd_32f_AC4R, IMAGES_SPEC, ofImage<true, AC4>)

VEMI_DEFINE(vemiDCTInv_32f_C1R, IMAGES_SPEC, ofImage<false, C1>)
VEMI_DEFINE(vemiDCTInv_32f_C3R, IMAGES_SPEC, ofImage<false, C3>)
VEMI_DEFINE(vemiDCTInv_32f_C4R, IMAGES_SPEC, ofImage<false, C4>)
VEMI_DEFINE(vemiDCTInv_32f_AC4R, IMAGES_SPEC, ofImage<false, AC4>)
