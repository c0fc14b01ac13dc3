/* spectrum PICTURE.png SPECTRUM.png: how strong each frequency is, on a logarithmic scale, frequency 0 in the middle.
 */
#include "picture.h"

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  VemiSize size;
  int step, wavesStep, shiftedStep;
  Vemi32f most;
  VemiDFTSpec_R_32f* transform;
  Vemi8u* const picture = readPng(argv[1], 1, &size, &step);
  const VemiSize extended = {size.width + size.width / 2, size.height + size.height / 2};
  Vemi32f* const packed = vemiMalloc_32f_C1(size, &wavesStep);
  Vemi32f* const waves = vemiMalloc_32f_C1(size, &wavesStep); /* of the same size: the same step */
  Vemi32f* const shifted = vemiMalloc_32f_C1(extended, &shiftedStep);

  CHECK(vemiDFTInitAlloc_R_32f(&transform, size, vemiFftScaleSqrt, vemiHintNone));
  CHECK(vemiConvert_8u32f_C1R(picture, step, packed, wavesStep, size));
  CHECK(vemiDFTFwd_RToPack_32f_C1R(packed, wavesStep, packed, wavesStep, transform, NULL));
  CHECK(vemiMagnitudePack_32f_C1R(packed, wavesStep, waves, wavesStep, size));
  CHECK(vemiAddC_32f_C1IR(1, waves, wavesStep, size));
  CHECK(vemiLn_32f_C1IR(waves, wavesStep, size));
  CHECK(vemiMax_32f_C1R(waves, wavesStep, size, &most));
  /* A spectrum repeats itself: with half of it on the left and above, the middle comes where frequency 0 is. The copy
   * does not mind what its 32 bits mean. */
  CHECK(vemiCopyWrapBorder_32s_C1R((Vemi32s*)waves, wavesStep, size, (Vemi32s*)shifted, shiftedStep, extended,
                                   size.height / 2, size.width / 2));
  CHECK(vemiScale_32f8u_C1R(shifted, shiftedStep, picture, step, size, 0, most));
  writePng(argv[2], 1, picture, step, size);

  CHECK(vemiDFTFree_R_32f(transform));
  vemiFree(picture);
  vemiFree(packed);
  vemiFree(waves);
  vemiFree(shifted);
  return 0;
}
