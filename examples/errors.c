/* Statuses told in words: zero is success, negative an error, positive a warning with the work done. */
#include <stdio.h>
#include <vemi/vemi.h>

/* The sign suffices to go on or to stop; the words are for those who read a log. */
static const char* statusText(VemiStatus status) {
  switch (status) {
    case vemiOk:
      return "done";
    case vemiErrNullPtr:
      return "a pointer is null";
    case vemiErrSize:
      return "a width or a height is out of range";
    case vemiErrStep:
      return "a step is below 1";
    case vemiErrMemAlloc:
      return "out of memory";
    case vemiWarnDivByZero:
      return "there were divisors of zero";
    default:
      return "see status.h";
  }
}

static VemiStatus tell(const char* what, VemiStatus status) {
  printf("%s: %s%s (%d)\n", what,
         status < vemiOk   ? "error, "
         : status > vemiOk ? "warning, "
                           : "",
         statusText(status), status);
  return status;
}

int main(void) {
  const VemiSize size = {4, 2}, none = {0, 2};
  const int step = 4;
  Vemi8u image[8] = {8, 16, 24, 32, 40, 48, 56, 64};
  const Vemi8u divisors[8] = {2, 2, 2, 2, 0, 4, 4, 4};

  tell("no image", vemiNot_8u_C1IR(NULL, step, size));
  tell("no pixels", vemiNot_8u_C1IR(image, step, none));
  tell("no step", vemiNot_8u_C1IR(image, 0, size));
  printf("first pixel: %d, for errors write nothing\n", image[0]);
  if (tell("divided", vemiDiv_8u_C1IRSfs(divisors, step, image, step, size, 0)) < vemiOk) return 1;
  printf("first pixel: %d, fifth: %d\n", image[0], image[4]);
  return 0;
}
