/* Regions, masks and borders on memory of one's own: arrays of characters, printed as text. */
#include <stdio.h>
#include <string.h>
#include <vemi/vemi.h>

enum { columns = 48, rows = 12 };

static Vemi8u canvas[rows][columns];
static Vemi8u mask[rows][columns];

/* The step of an array of rows is the size of a row. */
static const int step = columns;

static VemiStatus draw(void) {
  const VemiSize whole = {columns, rows}, box = {14, 6}, small = {4, 2}, bordered = {16, 6};
  VemiStatus status = vemiSet_8u_C1R('.', canvas[0], step, whole);

  /* A region: a pointer further in, the same step, the region's size. */
  if (status == vemiOk) status = vemiSet_8u_C1R('#', &canvas[2][3], step, box);

  /* A mask selects where it is not zero; its diagonal lets a line of stars through. */
  memset(mask, 0, sizeof mask);
  for (int n = 0; n < rows; n++) mask[n][2 * n] = 1;
  if (status == vemiOk) status = vemiSet_8u_C1MR('*', canvas[0], step, whole, mask[0], step);

  /* A corner of the box goes elsewhere, with two rows and six columns of dashes around it. */
  if (status == vemiOk) {
    status = vemiCopyConstBorder_8u_C1R(&canvas[2][3], step, small, &canvas[4][28], step, bordered, 2, 6, '-');
  }
  return status;
}

int main(void) {
  const VemiSize none = {0, rows};
  const VemiStatus status = draw();
  for (int y = 0; y < rows; y++) printf("%.*s\n", columns, (const char*)canvas[y]);

  /* Every argument is tested before anything is written. */
  printf("drawn: status %d\n", status);
  printf("width 0: status %d, as vemiErrSize is\n", vemiSet_8u_C1R(' ', canvas[0], step, none));
  return status != vemiOk;
}
