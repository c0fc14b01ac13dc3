/* straighten PHOTO.png PAGE.png X0 Y0 X1 Y1 X2 Y2 X3 Y3: the page with these corners in the photograph (clockwise from
 * its top left), seen from above. */
#include "picture.h"

int main(int argc, char** argv) {
  if (argc != 11) return 2;
  const VemiSize pageSize = {420, 594};
  const double right = pageSize.width - 1, bottom = pageSize.height - 1;
  const double page[4][2] = {{0, 0}, {right, 0}, {right, bottom}, {0, bottom}};
  double corners[4][2];
  for (int n = 0; n < 8; n++) corners[n / 2][n % 2] = atof(argv[3 + n]);
  VemiSize size;
  int step, pageStep;
  Vemi8u* const photo = readPng(argv[1], 3, &size, &step);
  Vemi8u* const straight = vemiMalloc_8u_C3(pageSize, &pageStep);
  const VemiRect all = {0, 0, size.width, size.height}, whole = {0, 0, pageSize.width, pageSize.height};
  const Vemi8u white[3] = {255, 255, 255};

  /* Pixels beyond the quadrangle stay as they are: those on the very edge may be such. */
  CHECK(vemiSet_8u_C3R(white, straight, pageStep, pageSize));
  CHECK(
      vemiWarpPerspectiveQuad_8u_C3R(photo, size, step, all, corners, straight, pageStep, whole, page, vemiInterCubic));
  writePng(argv[2], 3, straight, pageStep, pageSize);

  vemiFree(photo);
  vemiFree(straight);
  return 0;
}
