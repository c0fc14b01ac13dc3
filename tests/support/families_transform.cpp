// Transforms.

#include <algorithm>
#include <utility>

#include "support/families.h"

namespace vemi::test {
namespace {

// ---- Fourier transforms of powers of two --------------------------------------------------------------------------

/// The widest and highest powers of two that the scenario's size holds, up to 2^9: beyond 2^7 rows are made otherwise.
void pickFFT(Call& call) {
  const auto order = [&](int length) {
    int n = 0;
    while (2 << n <= length && n < 9) ++n;
    return call.random.below(8) == 0 ? call.random.below(n + 1) : n;
  };
  const int orders[] = {order(call.scenario.roiSize.width), order(call.scenario.roiSize.height)};
  const int turned = call.random.below(4) == 0 ? 1 : 0;
  call.set("orderX", orders[turned]);
  call.set("orderY", orders[1 - turned]);
  call.set("flag", 1 << call.random.below(4));
  call.set("hint", call.random.below(4));
}

/// Images, and a buffer as vemiFFTGetBufSize or vemiDFTGetBufSize tells.
void setImages(Call& call, VemiSize size) {
  call.image("pSrc").size = call.image("pDst").size = size;
  const std::string type = call.function.name.find("32fc") != std::string::npos  ? "C_32fc"
                           : call.function.name.find("32s") != std::string::npos ? "R_32s"
                                                                                 : "R_32f";
  const std::string query = call.function.name.substr(0, 7) + "GetBufSize_" + type;
  call.setBuffer("pBuffer", call.sizeBy(query, "pSpec"), true);
}

void sizeByFFT(Call& call) {
  const Call& maker = call.record("pSpec");
  setImages(call, {1 << maker.get<int>("orderX"), 1 << maker.get<int>("orderY")});
}

/// Bytes that are floats from 2^-7 to 2^9 of either sign, wherever they begin: rows may overlap.
void moderateFloats(Call& call) {
  for (CallImage& each : call.images) {
    if (each.role != Role::image || each.written || each.element == Element::u8 || each.element == Element::s32)
      continue;
    const View view = each.view(&CallImage::Plane::before);
    for (int y = -each.margin.top; y < view.size.height + each.margin.bottom; ++y) {
      for (int x = -each.margin.left; x < view.size.width + each.margin.right; ++x) {
        for (ptrdiff_t i = 0; i < view.pixelBytes; ++i) {
          view.at(x, y)[i] = static_cast<std::byte>(0x3c + call.random.below(8) + 0x80 * call.random.below(2));
        }
      }
    }
  }
}

// ---- Fourier transforms of any size ---------------------------------------------------------------------------------

/// The scenario's size, or one that is as high as that one is wide.
void pickDFT(Call& call) {
  const VemiSize size = call.scenario.roiSize;
  if (call.random.below(4) == 0) call.set("roiSize", VemiSize{size.height, size.width});
  call.set("flag", 1 << call.random.below(4));
  call.set("hint", call.random.below(4));
}

void sizeByDFT(Call& call) { setImages(call, call.record("pSpec").get<VemiSize>("roiSize")); }

// ---- Cosine transforms ----------------------------------------------------------------------------------------------

/// The scenario's size, either way; squares, blocks, and now and then lines of all methods that short ones do not take.
void pickDCT(Call& call) {
  VemiSize size = call.scenario.roiSize;
  const int longest = std::max(size.width, size.height);
  const int kind = call.random.below(200);
  if (kind < 50) size = {size.height, size.width};
  if (kind >= 50 && kind < 70) size = {8, 8};
  if (kind >= 70 && kind < 100 && longest <= 70) size = {longest, longest};
  if (kind >= 198) {
    constexpr int lengths[] = {1031, 2062, 4096, 5000};
    size = {lengths[call.random.below(4)], 1 + call.random.below(2)};
    if (kind == 199) std::swap(size.width, size.height);
  }
  call.set("roiSize", size);
  call.set("hint", call.random.below(4));
}

std::string directionOf(const Call& call) {
  return call.function.name.find("Fwd") != std::string::npos ? "vemiDCTFwd" : "vemiDCTInv";
}

void nameDCT(Call& call) { call.record("pSpec", directionOf(call) + "InitAlloc_32f"); }

void sizeByDCT(Call& call) {
  const Call& maker = call.record("pSpec", directionOf(call) + "InitAlloc_32f");
  call.image("pSrc").size = call.image("pDst").size = maker.get<VemiSize>("roiSize");
  call.setBuffer("pBuffer", call.sizeBy(directionOf(call) + "GetBufSize_32f", "pSpec"), true);
}

void moderateBlock(Call& call) {
  const char* const block = call.function.inPlace ? "pSrcDst" : "pSrc";
  for (int i = 0; i < 64; ++i)
    storeNumber(Element::f32, call.constant(block, i), (call.random.below(20001) - 10000) / 32.0);
}

void sizeByBlock(Call& call) {
  for (CallImage& image : call.images) {
    if (image.role == Role::image) image.size = {8, 8};
  }
}

// ---- Wavelets -------------------------------------------------------------------------------------------------------

/// Of a few taps as a rule; of so many now and then that channels are worked on one by one.
void pickFilters(Call& call) {
  const bool isLong = call.random.below(40) == 0;
  for (const std::string which : {"Low", "High"}) {
    const int length = 2 + call.random.below(isLong ? 300 : 11);
    std::vector<float> taps(static_cast<size_t>(length));
    for (float& tap : taps) tap = static_cast<float>(call.random.below(513) - 256) / 256;
    call.setArray("pTaps" + which, taps);
    call.set("len" + which, length);
    call.set("anchor" + which, call.random.below(length));
  }
  // Anchors of 0 in both filters are legal here, but not in a transform.
  if (call.get<int>("anchorLow") == 0 && call.get<int>("anchorHigh") == 0) call.set("anchorLow", 1);
}

void surroundByFilters(Call& call) {
  const Call& maker = call.record("pSpec");
  const bool isForward = call.function.name.find("Fwd") != std::string::npos;
  int before = 0, behind = 0;
  for (const std::string which : {"Low", "High"}) {
    const int length = maker.get<int>("len" + which), anchor = maker.get<int>("anchor" + which);
    before = std::max(before, isForward ? length - 1 - anchor : (length - anchor) / 2);
    behind = std::max(behind, isForward ? anchor - 1 : anchor / 2);
  }
  const VemiSize size = call.scenario.roiSize, doubled = {2 * size.width, 2 * size.height};
  if (isForward) call.image("pSrc").size = doubled;
  if (!isForward) call.image("pDst").size = doubled;
  for (CallImage& each : call.images) {
    if (each.role == Role::image && !each.written) each.margin = {before, before, behind, behind};
  }
  const std::string query = std::string("vemiWT") + (isForward ? "Fwd" : "Inv") + "GetBufSize_C";
  call.setBuffer("pBuffer", call.sizeBy(query + (call.function.source.elements == 1 ? "1R" : "3R"), "pSpec"), false);
}

}  // namespace

std::vector<Family> transformFamilies() {
  return {
      {"vemiFFTInitAlloc_R vemiFFTInitAlloc_C",
       ".*",
       "null order flag",
       pickFFT,
       {{"orderX", 31, "order", vemiErrFftOrder},
        {"orderX", -1, "order", vemiErrFftOrder},
        {"orderY", 31, "order", vemiErrFftOrder},
        {"orderY", -1, "order", vemiErrFftOrder},
        {"flag", 0, "flag", vemiErrFftFlag},
        {"flag", 3, "flag", vemiErrFftFlag},
        {"flag", 16, "flag", vemiErrFftFlag}}},
      {"vemiFFTFree_R vemiFFTFree_C vemiFFTGetBufSize_R vemiFFTGetBufSize_C", ".*", "null tag"},
      {"vemiFFTFwd_RToPack vemiFFTInv_PackToR vemiFFTFwd_CToC vemiFFTInv_CToC",
       ".*",
       "pSpec tag null step",
       sizeByFFT,
       {},
       moderateFloats},

      {"vemiDFTInitAlloc_R vemiDFTInitAlloc_C",
       ".*",
       "null size flag",
       pickDFT,
       {{"flag", 0, "flag", vemiErrFftFlag},
        {"flag", 3, "flag", vemiErrFftFlag},
        {"flag", 16, "flag", vemiErrFftFlag}}},
      {"vemiDFTFree_R vemiDFTFree_C vemiDFTGetBufSize_R vemiDFTGetBufSize_C", ".*", "null tag"},
      {"vemiDFTFwd_RToPack vemiDFTInv_PackToR vemiDFTFwd_CToC vemiDFTInv_CToC",
       ".*",
       "pSpec tag null step",
       sizeByDFT,
       {},
       moderateFloats},

      // Cosine transforms
      {"vemiDCTFwdInitAlloc vemiDCTInvInitAlloc", ".*", "null size", pickDCT},
      {"vemiDCTFwdFree vemiDCTInvFree", ".*", "null tag"},
      {"vemiDCTFwdGetBufSize vemiDCTInvGetBufSize", ".*", "null tag", nameDCT},
      {"vemiDCTFwd vemiDCTInv", ".*", "pSpec tag null step", sizeByDCT, {}, moderateFloats},
      {"vemiDCT8x8Fwd vemiDCT8x8Inv", "32f.*", "null", nullptr, {}, moderateBlock},
      {"vemiDCT8x8Fwd vemiDCT8x8Inv vemiDCT8x8FwdLS vemiDCT8x8InvLSClip", ".*", "null step", sizeByBlock},
      {"vemiDCT8x8Inv_4x4 vemiDCT8x8Inv_2x2 vemiZigzagFwd8x8 vemiZigzagInv8x8", ".*", "null", sizeByBlock},

      {"vemiWTFwdInitAlloc vemiWTInvInitAlloc",
       ".*",
       "null size anchor",
       pickFilters,
       {{"lenLow", 1, "size", vemiErrSize},
        {"lenLow", INT_MIN, "size", vemiErrSize},
        {"lenHigh", 1, "size", vemiErrSize},
        {"anchorLow", -1, "anchor", vemiErrAnchor},
        {"anchorLow", 602, "anchor", vemiErrAnchor},
        {"anchorHigh", -1, "anchor", vemiErrAnchor},
        {"anchorHigh", INT_MAX, "anchor", vemiErrAnchor}}},
      {"vemiWTFwdFree vemiWTInvFree", ".*", "null tag"},
      {"vemiWTFwdGetBufSize_C1R vemiWTFwdGetBufSize_C3R vemiWTInvGetBufSize_C1R vemiWTInvGetBufSize_C3R", ".*",
       "null tag"},
      {"vemiWTFwd vemiWTInv", ".*", "pSpec tag null size step", surroundByFilters, {}, moderateFloats},

      {"vemiMulPack vemiMulPackConj", ".*", "null step size"},
      {"vemiMagnitudePack vemiPhasePack", ".*", "null size step", nullptr, {}, nullptr, {.noMemory = vemiErrNullPtr}},
      {"vemiMagnitude vemiPhase vemiPackToCplxExtend vemiPolarToCart", ".*", "null size step"},

  };
}

}  // namespace vemi::test
