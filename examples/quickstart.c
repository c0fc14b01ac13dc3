#include <stdio.h>
#include <vemi/vemi.h>

int main(void) {
  VemiSize size = {640, 480};
  int step;
  Vemi8u* image = vemiMalloc_8u_C3(size, &step);
  const Vemi8u orange[3] = {255, 128, 0}, light[3] = {40, 40, 40};
  VemiStatus status = vemiSet_8u_C3R(orange, image, step, size);
  if (status == vemiOk) status = vemiAddC_8u_C3IRSfs(light, image, step, size, 0);
  if (status == vemiOk) printf("first pixel %d %d %d\n", image[0], image[1], image[2]);
  printf("status %d\n", status);
  vemiFree(image);
  return status != vemiOk;
}
