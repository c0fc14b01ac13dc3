// Template matching: what all members share.
#pragma once

#include "measure/tiles.h"

namespace vemi::measure {

enum class Shape { valid, same, full };
enum class Measure { correlation, levelCorrelation, squaredDistance };

/// Checks: null, size, step; then those of the transforms.
VemiStatus match(Measure measure, Shape shape, float floor, const PixelRows& rows, Image<const char> src,
                 VemiSize srcSize, Image<const char> tpl, VemiSize tplSize, Image<char> dst, int scaleFactor);

/// Energies of whole numbers are at least 1.
template <Measure measure, Shape shape, class L, class S, class D>
VemiStatus matched(const S* pSrc, int srcStep, VemiSize srcRoiSize, const S* pTpl, int tplStep, VemiSize tplRoiSize,
                   D* pDst, int dstStep, int scaleFactor = 0) {
  const auto bytes = [](const S* first) { return reinterpret_cast<const char*>(first); };
  return match(measure, shape, std::is_same_v<S, float> ? 0.0005f : 1.0f, pixelRows<S, D, L>, {bytes(pSrc), srcStep},
               srcRoiSize, {bytes(pTpl), tplStep}, tplRoiSize, {reinterpret_cast<char*>(pDst), dstStep}, scaleFactor);
}

}  // namespace vemi::measure

#define VEMI_MATCH(S, D, ...)                                                                                  \
  VEMI_HEAD((const S* pSrc, int srcStep, VemiSize srcRoiSize, const S* pTpl, int tplStep, VemiSize tplRoiSize, \
             D* pDst, int dstStep),                                                                            \
            (pSrc, srcStep, srcRoiSize, pTpl, tplStep, tplRoiSize, pDst, dstStep), __VA_ARGS__)
