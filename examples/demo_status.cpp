// What calls answer to arguments that they cannot work with.

#include "demo.h"

namespace demo {
namespace {

std::vector<std::string> answer(const char* call, VemiStatus status, const char* name, VemiStatus expected,
                                const char* reason) {
  if (status != expected) throw Failure(std::string(call) + " returned status " + std::to_string(status));
  return {escaped(call), std::to_string(status), name, reason};
}

}  // namespace

/// A line of the table: the call, the status that it returned, and why.
#define ANSWER(call, expected, reason) answer(#call, call, #expected, expected, reason)

void demoStatus(const Demo& demo) {
  const Image8u& photo = demo.photo;
  const VemiSize size = photo.size();
  Image8u copy(size, 3);
  demo.page.table(
      {"call", "status", "name", "because"},
      {
          ANSWER(vemiCopy_8u_C3R(photo.data(), photo.step(), copy.data(), copy.step(), size), vemiOk, "all was done"),
          ANSWER(vemiCopy_8u_C3R(photo.data(), photo.step(), nullptr, copy.step(), size), vemiErrNullPtr,
                 "a pointer is null"),
          ANSWER(vemiCopy_8u_C3R(photo.data(), photo.step(), copy.data(), copy.step(), {0, 9}), vemiErrSize,
                 "a width or a height is below 1"),
          ANSWER(vemiCopy_8u_C3R(photo.data(), -1, copy.data(), copy.step(), size), vemiErrStep, "a step is below 1"),
          ANSWER(vemiCopy_8u_C3R(photo.data(), -1, nullptr, copy.step(), {0, 9}), vemiErrNullPtr,
                 "the first test that fails decides: null, size, step"),
          ANSWER(vemiDrawText_8u_C3R(1, 2, 3, 4, 5, 6, 7, 8, 9), vemiWarnNoOperation,
                 "above 0 is a warning; this function has nothing to do"),
      });
}

}  // namespace demo
