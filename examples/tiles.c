/* tiles PHOTO.png CRISP.png: an unsharp mask in several steps, a tile at a time, so that what lies between the steps
 * never leaves the cache. */
#include "picture.h"

enum { tile = 128, reach = 2 };

static int least(int a, int b) { return a < b ? a : b; }

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  const VemiSize tileSize = {tile, tile};
  VemiSize size;
  int step, framedStep, crispStep, tileStep;
  Vemi8u* const photo = readPng(argv[1], 3, &size, &step);
  const VemiSize framedSize = {size.width + 2 * reach, size.height + 2 * reach};
  Vemi8u* const framed = vemiMalloc_8u_C3(framedSize, &framedStep);
  Vemi8u* const crisp = vemiMalloc_8u_C3(size, &crispStep);
  Vemi8u* const soft = vemiMalloc_8u_C3(tileSize, &tileStep);
  Vemi8u* const details = vemiMalloc_8u_C3(tileSize, &tileStep);
  CHECK(vemiCopyReplicateBorder_8u_C3R(photo, step, size, framed, framedStep, framedSize, reach, reach));

  for (int y = 0; y < size.height; y += tile) {
    for (int x = 0; x < size.width; x += tile) {
      /* The same place in all images. Beside it the filter reads what the tile's neighbours have. */
      const VemiSize part = {least(tile, size.width - x), least(tile, size.height - y)};
      const Vemi8u* const source = framed + (ptrdiff_t)(y + reach) * framedStep + 3 * (x + reach);
      Vemi8u* const result = crisp + (ptrdiff_t)y * crispStep + 3 * x;
      CHECK(vemiFilterGauss_8u_C3R(source, framedStep, soft, tileStep, part, vemiMask5x5));
      CHECK(vemiSub_8u_C3RSfs(soft, tileStep, source, framedStep, details, tileStep, part, 0)); /* source - soft */
      CHECK(vemiAdd_8u_C3RSfs(source, framedStep, details, tileStep, result, crispStep, part, 0));
    }
  }
  writePng(argv[2], 3, crisp, crispStep, size);

  vemiFree(photo);
  vemiFree(framed);
  vemiFree(crisp);
  vemiFree(soft);
  vemiFree(details);
  return 0;
}
