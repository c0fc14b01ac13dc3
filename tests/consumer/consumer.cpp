// A C++ program outside the project, in the common subset of C++98 to C++20: the overloads that take width and height.
#include <stdio.h>
#include <vemi/vemi.h>

int main() {
  int step = 0;
  Vemi32f* const image = vemiMalloc_32f_C1(100, 50, &step);
  if (image == 0 || step != 416) return 1;

  const VemiSize size = {100, 50};
  bool good = vemiSet_32f_C1R(1.5f, image, step, size) == vemiOk;
  good = good && vemiAddC_32f_C1IR(0.25f, image, step, size) == vemiOk && image[99] == 1.75f;
  vemiFree(image);
  if (!good) puts("consumer.cpp: the image is not what it should be");
  return good ? 0 : 1;
}
