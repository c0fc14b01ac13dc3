/* thumbnail PHOTO.png SMALL.png: a grey picture of a quarter of the size. */
#include "picture.h"

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  VemiSize size;
  int step, greyStep, framedStep, softStep, smallStep;
  Vemi8u* const photo = readPng(argv[1], 3, &size, &step);
  const VemiSize framedSize = {size.width + 4, size.height + 4}, smallSize = {size.width / 4, size.height / 4};
  const VemiRect all = {0, 0, size.width, size.height};
  Vemi8u* const grey = vemiMalloc_8u_C1(size, &greyStep);
  Vemi8u* const framed = vemiMalloc_8u_C1(framedSize, &framedStep);
  Vemi8u* const soft = vemiMalloc_8u_C1(size, &softStep);
  Vemi8u* const small = vemiMalloc_8u_C1(smallSize, &smallStep);

  CHECK(vemiRGBToGray_8u_C3C1R(photo, step, grey, greyStep, size));
  /* A filter of 5x5 reads two pixels around its region: a frame of the outermost pixels. */
  CHECK(vemiCopyReplicateBorder_8u_C1R(grey, greyStep, size, framed, framedStep, framedSize, 2, 2));
  CHECK(vemiFilterGauss_8u_C1R(framed + 2 * framedStep + 2, framedStep, soft, softStep, size, vemiMask5x5));
  CHECK(vemiResize_8u_C1R(soft, size, softStep, all, small, smallStep, smallSize, 0.25, 0.25, vemiInterSuper));
  writePng(argv[2], 1, small, smallStep, smallSize);

  vemiFree(photo);
  vemiFree(grey);
  vemiFree(framed);
  vemiFree(soft);
  vemiFree(small);
  return 0;
}
