/* denoise NOISY.png CLEAN.png: noise taken out of flat places; edges stay. */
#include "picture.h"

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  const VemiSize window = {5, 5};
  const VemiPoint middle = {2, 2};
  VemiSize size;
  int step, framedStep, cleanStep, bytes;
  Vemi8u* const noisy = readPng(argv[1], 3, &size, &step);
  const VemiSize framedSize = {size.width + 4, size.height + 4};
  Vemi8u* const framed = vemiMalloc_8u_C3(framedSize, &framedStep);
  Vemi8u* const clean = vemiMalloc_8u_C3(size, &cleanStep);
  CHECK(vemiFilterWienerGetBufferSize(size, window, 3, &bytes));
  Vemi8u* const buffer = malloc((size_t)bytes);

  /* How strong the noise is: 0 asks the filter for an estimate, which it leaves here, one for each channel. */
  Vemi32f noise[3] = {0, 0, 0};
  CHECK(vemiCopyReplicateBorder_8u_C3R(noisy, step, size, framed, framedStep, framedSize, 2, 2));
  CHECK(vemiFilterWiener_8u_C3R(framed + 2 * framedStep + 2 * 3, framedStep, clean, cleanStep, size, window, middle,
                                noise, buffer));
  writePng(argv[2], 3, clean, cleanStep, size);

  vemiFree(noisy);
  vemiFree(framed);
  vemiFree(clean);
  free(buffer);
  return 0;
}
