// Calls with any good arguments, and all that can be wrong with them.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "support/call.h"

namespace vemi::test {

struct Fault {
  std::string text, stage;
  VemiStatus status;
  std::function<void(Call&)> commit;
  int channel = 0;  // of faults at the stage `channels`
};

/// In the order in which the function's family finds them; Call::restore undoes them. What the family does not test is
/// left out.
std::vector<Fault> faultsOf(Call& call);

/// A small region in rows of any kind.
Scenario randomScenario(const Export& function, Random& random);

/// What came of a call: its status, and what it did that it must not, or nothing.
struct Outcome {
  VemiStatus status;
  std::string failure;
};

/// An error leaves all memory as it was; anything else changes what is written and no byte beside it.
Outcome tryCall(Call& call);

/// A good call spoiled by both faults must give the status of the first one and leave all memory as it was. Returns
/// what went wrong, or nothing.
std::string tryPair(Call& call, const Fault& first, const Fault& second);

struct FaultCount {
  long single = 0, pairs = 0;
};

/// Every fault, alone and together with each other one, must give the status of the one that is found first and leave
/// all memory as it was. Returns what went wrong, or nothing.
std::string tryFaults(const Export& function, FaultCount& count);

}  // namespace vemi::test
