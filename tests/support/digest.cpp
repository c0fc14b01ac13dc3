#include "support/digest.h"

#include <set>
#include <stdexcept>

#include "support/call.h"

namespace vemi::test {
namespace {

/// 64-bit FNV-1a, on 64-bit words where there are some.
class Hash {
 public:
  void add(uint64_t word) {
    hash_ = (hash_ ^ word) * 0x100000001b3u;
    hash_ ^= hash_ >> 29;
  }
  void add(const std::byte* bytes, size_t count) {
    for (; count >= 8; bytes += 8, count -= 8) add(load<uint64_t>(bytes));
    for (; count > 0; ++bytes, --count) add(static_cast<uint64_t>(*bytes));
  }
  void add(const char* text) { add(reinterpret_cast<const std::byte*>(text), std::strlen(text)); }
  uint64_t value() const { return hash_; }

 private:
  uint64_t hash_ = 0xcbf29ce484222325u;
};

void addCall(const Export& function, const Scenario& scenario, Hash& hash) {
  Call call(function, scenario);
  hash.add(static_cast<uint64_t>(call.invoke()));
  call.unifyWrittenNaNs();
  for (const CallImage& image : call.images) {
    if (image.role == Role::buffer) continue;
    for (const CallImage::Plane& plane : image.planes) hash.add(plane.memory.begin(), plane.memory.size());
  }
}

/// Widths on either side of whole vectors of all lengths, and regions that are worth a team.
void addCalls(const Export& function, Hash& hash) {
  const std::vector<int> scaleFactors =
      function.scaled ? std::vector<int>{-17, -9, -3, 0, 1, 2, 8, 14} : std::vector{0};
  Scenario scenario;
  scenario.oneNaN = true;
  for (const int scaleFactor : scaleFactors) {
    for (const VemiSize size : {VemiSize{1, 1}, VemiSize{7, 3}, VemiSize{33, 5}, VemiSize{64, 2}, VemiSize{131, 4},
                                VemiSize{1027, 1}, VemiSize{97, 91}}) {
      scenario.seed += 1;
      scenario.roiSize = size;
      scenario.rows = allRows[scenario.seed % std::size(allRows)];
      if (function.members.find("32f") != std::string::npos) {
        // Floats that lie over each other would form NaNs of all kinds.
        if (scenario.rows == Rows::overlapping) scenario.rows = Rows::odd;
        // Where a step is cut to whole elements, NaNs would not be found.
        if (scenario.rows == Rows::odd && function.operation == "vemiSqrt") scenario.rows = Rows::padded;
      }
      scenario.scaleFactor = scaleFactor;
      addCall(function, scenario, hash);
    }
  }
}

/// NaNs of either sign, quiet and signalling, where sources are floats: conversions and comparisons treat all alike.
void addAnyNaNs(const Export& function, Hash& hash) {
  if (function.members.find("32f") == std::string::npos) return;
  Scenario scenario;
  scenario.rows = Rows::padded;
  for (const VemiSize size : {VemiSize{5, 3}, VemiSize{131, 4}}) {
    scenario.seed += 1;
    scenario.roiSize = size;
    addCall(function, scenario, hash);
  }
}

/// Of each kind of row that can bypass the caches one member, for a region that is large enough.
void addLargeCall(const Export& function, Hash& hash) {
  static const std::set<std::string> members = {"vemiCopy_32f_C4R", "vemiCopy_32f_C3P3R", "vemiCopy_32f_P4C4R",
                                                "vemiSet_32f_C3R",  "vemiAdd_32f_C4R",    "vemiCompare_32f_C3R"};
  Scenario scenario;
  scenario.oneNaN = true;
  scenario.roiSize = {1027, 800};
  if (members.count(function.name) != 0) addCall(function, scenario, hash);
}

void addAllocations(const Export& function, Hash& hash) {
  for (const VemiSize size : {VemiSize{0, 1}, VemiSize{1, 1}, VemiSize{33, 2}, VemiSize{333, 7}}) {
    int step = -1;
    void* const image = function.allocate(function.function, size, &step);
    hash.add(static_cast<uint64_t>(step));
    hash.add(reinterpret_cast<uintptr_t>(image) % 32);
    vemiFree(image);
  }
}

void addVersion(Hash& hash) {
  const VemiLibVersion* const version = vemiGetLibVersion();
  for (const int number : {version->major, version->minor, version->majorBuild, version->build}) {
    hash.add(static_cast<uint64_t>(number));
  }
  for (const char* const text : {version->targetCpu, version->Name, version->Version, version->BuildDate}) {
    hash.add(text);
  }
}

}  // namespace

uint64_t digestOf(const Export& function) {
  Hash hash;
  if (function.call != nullptr) {
    addCalls(function, hash);
    addAnyNaNs(function, hash);
    addLargeCall(function, hash);
  } else if (function.allocate != nullptr) {
    addAllocations(function, hash);
  } else if (function.name == "vemiGetLibVersion") {
    addVersion(hash);
  } else if (function.name != "vemiFree") {
    throw std::logic_error("no way to call " + function.name);
  }
  return hash.value();
}

}  // namespace vemi::test
