// A call made from a fuzzer's bytes: which function, the shape of its images, up to two faults of its arguments, and
// the numbers that its memory is filled with. Nothing outside of the images may be touched, an error leaves all memory
// as it was, and of two faults the one that is tested first decides.

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "support/families.h"
#include "support/faults.h"

using namespace vemi::test;

namespace {

/// Takes numbers from the front of the fuzzer's bytes; zeros when they have run out.
class Input {
 public:
  explicit Input(std::span<const std::byte> bytes) : bytes_(bytes) {}

  int below(int bound) {
    uint16_t number = 0;
    const size_t count = std::min(bytes_.size(), sizeof number);
    std::memcpy(&number, bytes_.data(), count);
    bytes_ = bytes_.subspan(count);
    return number % bound;
  }
  std::span<const std::byte> rest() const { return bytes_; }

 private:
  std::span<const std::byte> bytes_;
};

const std::vector<const Export*>& callable() {
  static const std::vector<const Export*> functions = [] {
    std::vector<const Export*> some;
    for (const Export& function : exports()) {
      if (function.call != nullptr) some.push_back(&function);
    }
    return some;
  }();
  return functions;
}

Scenario scenarioFrom(Input& input, const Exceptions& exceptions) {
  Scenario scenario;
  scenario.roiSize = {1 + input.below(300), 1 + input.below(9)};
  scenario.rows = allRows[input.below(std::size(allRows))];
  if (exceptions.wholeSteps && scenario.rows == Rows::odd) scenario.rows = Rows::padded;
  scenario.edge = input.below(2) == 0 ? Edge::front : Edge::back;
  scenario.scaleFactor = input.below(101) - 50;
  return scenario;
}

void expect(bool good, Call& call, VemiStatus status, const std::string& what) {
  if (good) return;
  std::fprintf(stderr, "%s: status %d; %s; %s\n", call.text().c_str(), status, what.c_str(), call.difference().c_str());
  std::abort();
}

/// False where the function refuses the scenario itself: windows want three pixels, a divisor may happen to be zero.
bool makeGoodCall(Call& call, const Exceptions& exceptions) {
  const VemiStatus status = call.invoke();
  if (status >= vemiOk || status == exceptions.lateError) call.acceptWritten();
  expect(call.difference().empty(), call, status, "good arguments");
  return status >= vemiOk;
}

void makeBadCall(Call& call, const Fault& first, const Fault& second) {
  first.commit(call);
  second.commit(call);
  const VemiStatus status = call.invoke();
  expect(status == first.status && call.difference().empty(), call, status, first.text + " and " + second.text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::byte* data, size_t size) {
  Input input({data, size});
  const Export& function = *callable()[static_cast<size_t>(input.below(static_cast<int>(callable().size())))];
  const Exceptions& exceptions = familyOf(function).exceptions;
  Scenario scenario = scenarioFrom(input, exceptions);
  const int choice = input.below(4), one = input.below(1 << 15), other = input.below(1 << 15);
  scenario.numbers = input.rest();
  Call good(function, scenario);
  if (!makeGoodCall(good, exceptions) || choice != 0) return 0;
  Call bad(function, scenario);
  const std::vector<Fault> faults = faultsOf(bad);
  if (faults.empty()) return 0;
  const size_t a = static_cast<size_t>(one) % faults.size(), b = static_cast<size_t>(other) % faults.size();
  makeBadCall(bad, faults[std::min(a, b)], faults[std::max(a, b)]);
  return 0;
}
