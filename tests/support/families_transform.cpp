// Transforms.

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

void sizeByFFT(Call& call) {
  const Call& maker = call.record("pSpec");
  call.image("pSrc").size = call.image("pDst").size = {1 << maker.get<int>("orderX"), 1 << maker.get<int>("orderY")};
  const std::string type = call.function.name.find("32fc") != std::string::npos  ? "C_32fc"
                           : call.function.name.find("32s") != std::string::npos ? "R_32s"
                                                                                 : "R_32f";
  call.setBuffer("pBuffer", call.sizeBy("vemiFFTGetBufSize_" + type, "pSpec"), true);
}

/// Bytes that are floats from 2^-7 to 2^9 of either sign, wherever they begin: rows may overlap.
void moderateFloats(Call& call) {
  const View source = call.source();
  if (source.element == Element::u8 || source.element == Element::s32) return;
  for (int y = 0; y < source.size.height; ++y) {
    for (int x = 0; x < source.size.width; ++x) {
      for (ptrdiff_t i = 0; i < source.pixelBytes; ++i) {
        source.at(x, y)[i] = static_cast<std::byte>(0x3c + call.random.below(8) + 0x80 * call.random.below(2));
      }
    }
  }
}

// ---- Fourier transforms of any size ---------------------------------------------------------------------------------

// ---- Cosine transforms ----------------------------------------------------------------------------------------------

// ---- Wavelets -------------------------------------------------------------------------------------------------------

// ---- Packed spectra -------------------------------------------------------------------------------------------------

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

      // Fourier transforms of any size

      // Cosine transforms

      // Wavelets

      // Packed spectra

  };
}

}  // namespace vemi::test
