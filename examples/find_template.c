/* find_template SCENE.png TEMPLATE.png: tells where in the scene the template is, and how well it matches. */
#include "picture.h"

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  VemiSize size, templateSize;
  int step, templateStep, matchStep, x, y;
  Vemi32f best;
  Vemi8u* const scene = readPng(argv[1], 1, &size, &step);
  Vemi8u* const template = readPng(argv[2], 1, &templateSize, &templateStep);
  /* A result for each place where the whole template lies within the scene. */
  const VemiSize places = {size.width - templateSize.width + 1, size.height - templateSize.height + 1};
  Vemi32f* const match = vemiMalloc_32f_C1(places, &matchStep);

  /* From -1 to 1, whatever the light: neither brightness nor contrast counts. */
  CHECK(vemiCrossCorrValid_NormLevel_8u32f_C1R(scene, step, size, template, templateStep, templateSize, match,
                                               matchStep));
  CHECK(vemiMaxIndx_32f_C1R(match, matchStep, places, &best, &x, &y));
  printf("at %d, %d with %.3f\n", x, y, best);

  vemiFree(scene);
  vemiFree(template);
  vemiFree(match);
  return 0;
}
