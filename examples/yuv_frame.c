/* yuv_frame FRAME.yuv WIDTH HEIGHT PICTURE.png: a camera's frame of 4:2:0, three planes behind each other, as RGB. */
#include "picture.h"

int main(int argc, char** argv) {
  if (argc != 5) return 2;
  const VemiSize size = {atoi(argv[2]), atoi(argv[3])};
  const int chromaWidth = (size.width + 1) / 2, chromaHeight = (size.height + 1) / 2;
  const size_t lumaBytes = (size_t)size.width * (size_t)size.height;
  const size_t chromaBytes = (size_t)chromaWidth * (size_t)chromaHeight, bytes = lumaBytes + 2 * chromaBytes;
  Vemi8u* const frame = malloc(bytes);
  FILE* const file = fopen(argv[1], "rb");
  if (frame == NULL || file == NULL || fread(frame, 1, bytes, file) != bytes) fail(argv[1], "no such frame");
  fclose(file);
  int step;
  Vemi8u* const picture = vemiMalloc_8u_C3(size, &step);

  /* Memory comes from anywhere, and each plane has a step of its own. */
  const Vemi8u* const planes[3] = {frame, frame + lumaBytes, frame + lumaBytes + chromaBytes};
  const int steps[3] = {size.width, chromaWidth, chromaWidth};
  CHECK(vemiYCbCr420ToRGB_8u_P3C3R(planes, steps, picture, step, size));
  writePng(argv[4], 3, picture, step, size);

  free(frame);
  vemiFree(picture);
  return 0;
}
