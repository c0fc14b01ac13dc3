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

Scenario scenarioFrom(Input& input, const Export& function) {
  Scenario scenario;
  scenario.roiSize = {1 + input.below(300), 1 + input.below(9)};
  scenario.rows = familyOf(function).exceptions.suited(allRows[input.below(std::size(allRows))]);
  scenario.mixture = static_cast<unsigned>(input.below(1 << function.steps()));
  scenario.edge = input.below(2) == 0 ? Edge::front : Edge::back;
  scenario.scaleFactor = input.below(101) - 50;
  return scenario;
}

void expectNone(const std::string& failure, const Call& call) {
  if (failure.empty()) return;
  std::fprintf(stderr, "%s: %s\n", call.text().c_str(), failure.c_str());
  std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::byte* data, size_t size) {
  Input input({data, size});
  const Export& function = *callable()[static_cast<size_t>(input.below(static_cast<int>(callable().size())))];
  Scenario scenario = scenarioFrom(input, function);
  const int choice = input.below(4), one = input.below(1 << 15), other = input.below(1 << 15);
  scenario.numbers = input.rest();
  Call good(function, scenario);
  const Outcome outcome = tryCall(good);
  expectNone(outcome.failure, good);
  // A scenario may be refused itself: windows want three pixels, a divisor may happen to be zero.
  if (choice != 0 || outcome.status < vemiOk) return 0;
  Call bad(function, scenario);
  const std::vector<Fault> faults = faultsOf(bad);
  if (faults.empty()) return 0;
  const size_t a = static_cast<size_t>(one) % faults.size(), b = static_cast<size_t>(other) % faults.size();
  expectNone(tryPair(bad, faults[std::min(a, b)], faults[std::max(a, b)]), bad);
  return 0;
}
