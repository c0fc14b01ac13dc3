/* threads PICTURE.png...: makes pictures brighter where they are, several at the same time. */
#include <omp.h>
#include "picture.h"

/* By half a stop: 181 / 128 is the square root of 2. */
static void brighten(const char* path) {
  const Vemi8u factor[3] = {181, 181, 181};
  VemiSize size;
  int step;
  Vemi8u* const picture = readPng(path, 3, &size, &step);
  CHECK(vemiMulC_8u_C3IRSfs(factor, picture, step, size, 7));
  writePng(path, 3, picture, step, size);
  vemiFree(picture);
}

int main(int argc, char** argv) {
  if (argc < 2) return 2;
    /* Many callers: calls share nothing, so each thread calls as if it were alone. Inside of such a region no call has
     * a team of its own. */
#pragma omp parallel for schedule(dynamic)
  for (int n = 2; n < argc; n++) brighten(argv[n]);

  /* One caller: a function whose description says so shares its rows among a team, of as many threads as the runtime
   * is told. The result does not depend on the number. */
  omp_set_num_threads(2);
  brighten(argv[1]);
  return 0;
}
