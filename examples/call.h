// Calls that check their status and remember their own text, so that the page can show the very code that ran.
#pragma once

#include <vemi/vemi.h>
#include <stdexcept>
#include <string>

namespace demo {

/// Ends the program; the message is its one line on stderr.
struct Failure : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// A call that has been made.
struct Call {
  const char* text;   ///< as it stands in the source
  VemiStatus status;  ///< vemiOk or a warning
};

inline Call checked(const char* text, VemiStatus status) {
  if (status < vemiOk) throw Failure(std::string(text) + " returned status " + std::to_string(status));
  return {text, status};
}

inline std::string toText(VemiSize size) { return std::to_string(size.width) + " x " + std::to_string(size.height); }

}  // namespace demo

/// Makes the call; throws Failure when it reports an error.
#define CALL(call) demo::checked(#call, call)

/// The same in a loop: CALL_EACH(for (int y = 0; y < height; y++), vemiCopy...(...)). Has the last call's status.
#define CALL_EACH(loop, call)                        \
  [&] {                                              \
    VemiStatus status = vemiOk;                      \
    loop status = demo::checked(#call, call).status; \
    return demo::Call{#loop "\n  " #call, status};   \
  }()
