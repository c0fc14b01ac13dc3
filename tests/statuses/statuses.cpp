// Prints a line `name status` for each status that an exported function was seen to return: of good arguments, of every
// bad one, and where there is no memory. tools/list-statuses.sh makes of them what stands in tools/statuses.txt.

#include <algorithm>
#include <cstdio>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "support/allocator.h"
#include "support/families.h"
#include "support/faults.h"

using namespace vemi::test;

namespace {

using Statuses = std::set<VemiStatus>;

void addGood(const Export& function, Statuses& statuses) {
  constexpr int calls = 40;
  Random random(1);
  for (int n = 0; n < calls; ++n) {
    Call call(function, randomScenario(function, random));
    statuses.insert(call.invoke());
  }
}

/// Until what others of the operation return was returned, with memory or without; most who do not do so never will.
void addWhatOthersReturn(const Export& function, const Statuses& others, Statuses& statuses) {
  constexpr int calls = 400;
  Random random(2);
  for (int n = 0; n < calls && statuses != others; ++n) {
    Scenario scenario = randomScenario(function, random);
    if (n % 16 == 0) scenario.roiSize = {331, 70};
    Call call(function, scenario), poor(function, scenario);
    statuses.insert(call.invoke());
    const NoMemory allocator;
    statuses.insert(poor.invoke());
  }
}

void addBad(const Export& function, Statuses& statuses) {
  Call call(function, {});
  for (const Fault& fault : faultsOf(call)) {
    fault.commit(call);
    statuses.insert(call.invoke());
    call.restore();
  }
}

/// For a small region, and one that scratch and tables pay for.
void addWithoutMemory(const Export& function, Statuses& statuses) {
  for (const VemiSize size : {VemiSize{61, 3}, VemiSize{331, 70}}) {
    Call call(function, {size, Rows::padded, Edge::back, 3, 1});
    const NoMemory allocator;
    statuses.insert(call.invoke());
  }
}

/// Nothing to divide by: neither in images nor in constants.
void addZeros(const Export& function, Statuses& statuses) {
  Call call(function, {});
  for (size_t n = 0; n < function.parameters.size(); ++n) {
    if (function.parameters[n].role == Role::constant) call.arguments[n] = {};
  }
  for (CallImage& image : call.images) {
    const bool isConstant = function.parameters[static_cast<size_t>(image.parameter)].name == "value";
    if (image.role != Role::image && !isConstant) continue;
    for (CallImage::Plane& plane : image.planes) std::fill(plane.memory.begin(), plane.memory.end(), std::byte{0});
  }
  statuses.insert(call.invoke());
}

/// A template, or a kernel, that no transform is long enough for, in an image that is a little longer. No such image
/// exists: nothing is read.
void addHuge(const Export& function, Statuses& statuses) {
  constexpr int width = (1 << 29) + 1;
  const bool isMatch = function.indexOf("tplRoiSize") >= 0;
  if (!isMatch && function.indexOf("src2Size") < 0) return;
  Call call(function, {});
  call.set(isMatch ? "srcRoiSize" : "src1Size", VemiSize{width + 100, 1});
  call.set(isMatch ? "tplRoiSize" : "src2Size", VemiSize{width, 1});
  statuses.insert(call.invoke());
}

}  // namespace

int main() {
  std::map<std::string, std::vector<const Export*>> operations;
  for (const Export& function : exports()) {
    if (function.call != nullptr) operations[function.operation].push_back(&function);
  }
  for (const auto& [operation, members] : operations) {
    std::vector<Statuses> seen;
    Statuses all;
    for (const Export* const function : members) {
      Statuses& statuses = seen.emplace_back();
      addGood(*function, statuses);
      addBad(*function, statuses);
      addWithoutMemory(*function, statuses);
      addZeros(*function, statuses);
      addHuge(*function, statuses);
      all.insert(statuses.begin(), statuses.end());
    }
    for (size_t n = 0; n < members.size(); ++n) {
      addWhatOthersReturn(*members[n], all, seen[n]);
      for (const VemiStatus status : seen[n]) std::printf("%s %d\n", members[n]->name.c_str(), status);
    }
  }
}
