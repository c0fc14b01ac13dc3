/* hide_region PHOTO.png HIDDEN.png X Y WIDTH HEIGHT: a rectangle of a photograph made unrecognisable, in place. */
#include "picture.h"

int main(int argc, char** argv) {
  if (argc != 7) return 2;
  const VemiRect hide = {atoi(argv[3]), atoi(argv[4]), atoi(argv[5]), atoi(argv[6])};
  const VemiSize window = {15, 15}, regionSize = {hide.width, hide.height};
  const VemiPoint middle = {7, 7};
  VemiSize size;
  int step;
  Vemi8u* const photo = readPng(argv[1], 3, &size, &step);

  /* The filter reads seven pixels around its region; the library does not know where the image ends, so this must. */
  if (hide.x < 7 || hide.y < 7 || hide.x > size.width - 7 - hide.width || hide.y > size.height - 7 - hide.height) {
    fail(argv[1], "the rectangle comes too near to an edge");
  }
  /* A region is a pointer further in, the image's own step, and a size. No pixel outside of it changes. */
  Vemi8u* const region = photo + (ptrdiff_t)hide.y * step + 3 * hide.x;
  for (int n = 0; n < 3; n++) CHECK(vemiFilterBox_8u_C3IR(region, step, regionSize, window, middle));
  writePng(argv[2], 3, photo, step, size);

  vemiFree(photo);
  return 0;
}
