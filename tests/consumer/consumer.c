/* A C99 program outside the project: allocates an image, works on a region inside it, looks at the bytes. */
#include <stddef.h>
#include <stdio.h>
#include <vemi/vemi.h>

int main(void) {
  const VemiSize size = {40, 30};
  const VemiSize inner = {20, 10};
  const Vemi8u white[3] = {255, 255, 255};
  const Vemi8u blue[3] = {0, 0, 200};
  const Vemi8u* corner;
  int step = 0;
  int failed;
  Vemi8u* image = vemiMalloc_8u_C3(size, &step);
  if (image == NULL || step != 128) return 1;

  failed = vemiSet_8u_C3R(white, image, step, size) != vemiOk ||
           vemiSet_8u_C3R(blue, image + (ptrdiff_t)5 * step + 10 * 3, step, inner) != vemiOk ||
           vemiSet_8u_C3R(blue, image, 0, inner) != vemiErrStep;
  corner = image + (ptrdiff_t)14 * step + 29 * 3;
  failed = failed || corner[0] != 0 || corner[2] != 200 || corner[3] != 255;
  vemiFree(image);
  if (failed) puts("consumer.c: the image is not what it should be");
  return failed;
}
