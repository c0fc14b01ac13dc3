#include "support/faults.h"

#include <limits.h>

#include <algorithm>
#include <iterator>
#include <sstream>
#include <stdexcept>

#include "support/families.h"

namespace vemi::test {
namespace {

bool hasStage(const Family& family, const std::string& stage) {
  std::istringstream words(family.order);
  using Words = std::istream_iterator<std::string>;
  return std::find(Words(words), Words(), stage) != Words();
}

/// The parameter's own stage, or else the one of its kind.
std::string stageOf(const Family& family, const std::string& parameter, const std::string& kind) {
  return hasStage(family, parameter) ? parameter : kind;
}

auto imageOf(const Call& call, const std::string& parameter) {
  const int index = call.function.indexOf(parameter);
  return std::find_if(call.images.begin(), call.images.end(),
                      [=](const CallImage& image) { return image.parameter == index; });
}

template <class T>
Fault badValue(const std::string& parameter, const std::string& text, const std::string& stage, VemiStatus status,
               T value) {
  return {parameter + " = " + text, stage, status, [=](Call& call) { call.set(parameter, value); }};
}

void addNullFaults(const Call& call, const Family& family, std::vector<Fault>& faults) {
  for (const Parameter& parameter : call.function.parameters) {
    const bool isRecord = parameter.role == Role::record && call.images.end() == imageOf(call, parameter.name);
    if (isRecord || parameter.role == Role::newRecord || parameter.role == Role::freedRecord) {
      faults.push_back(
          badValue<void*>(parameter.name, "null", stageOf(family, parameter.name, "null"), vemiErrNullPtr, nullptr));
    }
  }
  const bool byChannel = hasStage(family, "channels");
  for (size_t n = 0; n < call.images.size(); ++n) {
    const CallImage& image = call.images[n];
    if (image.mayBeNull) continue;
    const std::string name = call.function.parameters[static_cast<size_t>(image.parameter)].name;
    const std::string stage = stageOf(family, name, image.isArray() && hasStage(family, "arrays") ? "arrays" : "null");
    faults.push_back(badValue<void*>(name, "null", stage, vemiErrNullPtr, nullptr));
    for (size_t plane = 0; plane < image.pointers.size(); ++plane) {
      const bool isOfChannel = byChannel && image.isArray();
      const std::string planeStage = isOfChannel ? "channels" : hasStage(family, "planes") ? "planes" : stage;
      faults.push_back({name + "[" + std::to_string(plane) + "] = null", planeStage, vemiErrNullPtr,
                        [=](Call& spoiled) { spoiled.images[n].pointers[plane] = nullptr; },
                        isOfChannel ? static_cast<int>(plane) : 0});
    }
  }
}

/// What begins with another tag than a record of the wanted kind, unless it is null already.
void addTagFaults(const Call& call, std::vector<Fault>& faults) {
  for (const Parameter& parameter : call.function.parameters) {
    if (parameter.role != Role::record && parameter.role != Role::freedRecord) continue;
    faults.push_back(
        {parameter.name + " = another record", "tag", vemiErrContext, [name = parameter.name](Call& spoiled) {
           static int noRecord[256] = {};
           if (spoiled.get<void*>(name) != nullptr) spoiled.set<void*>(name, noRecord);
         }});
  }
}

void addIntegerFaults(const Call& call, const Family& family, std::vector<Fault>& faults) {
  const auto add = [&](const Parameter& parameter, int field, const std::string& fieldName, int bad,
                       const std::string& kind) {
    const bool isStep = parameter.role == Role::step || parameter.role == Role::steps;
    faults.push_back({parameter.name + fieldName + " = " + std::to_string(bad), stageOf(family, parameter.name, kind),
                      isStep ? vemiErrStep : vemiErrSize,
                      [=, name = parameter.name](Call& spoiled) { spoiled.setNumber(name, bad, field); }});
  };
  const char* const widthStage = hasStage(family, "width") ? "width" : "size";
  for (const Parameter& parameter : call.function.parameters) {
    for (const int bad : {0, -1, INT_MIN}) {
      switch (parameter.role) {
        case Role::step:
          add(parameter, 0, "", bad, "step");
          break;
        case Role::steps:
          for (int n = 0; n < parameter.bound; ++n) {
            add(parameter, n, std::string("[").append(std::to_string(n)) + "]", bad, "step");
          }
          break;
        case Role::size:
          if (parameter.name == "maskSize") break;  // families refuse other masks each
          add(parameter, 0, ".width", bad, widthStage);
          add(parameter, 1, ".height", bad, "size");
          break;
        case Role::rect:
          if (bad != 0) add(parameter, 0, ".x", bad, "size");
          if (bad != 0) add(parameter, 1, ".y", bad, "size");
          add(parameter, 2, ".width", bad, "size");
          add(parameter, 3, ".height", bad, "size");
          break;
        default:
          break;
      }
    }
  }
}

/// How many numbers can be spoiled: the elements of an array, the fields of a point, size or rectangle.
int partsOf(Call& call, const Parameter& parameter) {
  switch (parameter.role) {
    case Role::array:
      return call.image(parameter.name).size.width;
    case Role::point:
    case Role::size:
      return 2;
    case Role::rect:
      return 4;
    default:
      return 1;
  }
}

void addOwnFaults(Call& call, const Family& family, std::vector<Fault>& faults) {
  for (const OwnFault& own : family.faults) {
    if (own.commit != nullptr) {
      const bool applies = own.commit(call);
      call.restore();
      if (applies) faults.push_back({own.argument, own.stage, own.status, own.commit});
      continue;
    }
    const int index = call.function.indexOf(own.argument);
    if (index < 0) throw std::logic_error(call.function.name + " has no argument " + own.argument);
    const Parameter& parameter = call.function.parameters[static_cast<size_t>(index)];
    const int count = partsOf(call, parameter);
    for (int n = 0; n < count; ++n) {
      std::string text = own.argument;
      if (count > 1 || parameter.role == Role::array) text.append("[").append(std::to_string(n)).append("]");
      text.append(" = ").append(std::to_string(own.value));
      faults.push_back({text, own.stage, own.status,
                        [=](Call& spoiled) { spoiled.setNumber(own.argument, own.value, n); },
                        parameter.role == Role::array ? n : 0});
    }
  }
}

}  // namespace

std::vector<Fault> faultsOf(Call& call) {
  const Family& family = familyOf(call.function);
  std::vector<Fault> all, ordered;
  addNullFaults(call, family, all);
  addTagFaults(call, all);
  addIntegerFaults(call, family, all);
  addOwnFaults(call, family, all);
  std::stable_sort(all.begin(), all.end(), [](const Fault& a, const Fault& b) { return a.channel < b.channel; });
  std::istringstream stages(family.order);
  for (std::string stage; stages >> stage;) {
    std::copy_if(all.begin(), all.end(), std::back_inserter(ordered),
                 [&](const Fault& fault) { return fault.stage == stage; });
  }
  return ordered;
}

Scenario randomScenario(const Export& function, Random& random) {
  Scenario scenario;
  scenario.roiSize = {1 + random.below(90), 1 + random.below(6)};
  scenario.rows = familyOf(function).exceptions.suited(allRows[random.below(std::size(allRows))]);
  scenario.mixture = static_cast<unsigned>(random.below(1 << function.steps()));
  scenario.edge = random.below(2) == 0 ? Edge::front : Edge::back;
  scenario.seed = static_cast<unsigned>(random.next());
  scenario.scaleFactor = random.below(4) == 0 ? random.below(81) - 40 : random.below(9) - 2;
  return scenario;
}

Outcome tryCall(Call& call) {
  const VemiStatus status = call.invoke();
  if (status >= vemiOk || status == familyOf(call.function).exceptions.lateError) call.acceptWritten();
  const std::string difference = call.difference();
  return {status, difference.empty() ? difference : difference + " after status " + std::to_string(status)};
}

std::string tryPair(Call& call, const Fault& first, const Fault& second) {
  first.commit(call);
  second.commit(call);
  const VemiStatus status = call.invoke();
  const std::string difference = call.difference();
  call.restore();
  if (status == first.status && difference.empty()) return {};
  return call.function.name + " with " + first.text + " and " + second.text + ": status " + std::to_string(status) +
         ", not " + std::to_string(first.status) + "; " + difference;
}

std::string tryFaults(const Export& function, FaultCount& count) {
  Call call(function, {});
  const std::vector<Fault> faults = faultsOf(call);
  for (size_t first = 0; first < faults.size(); ++first) {
    for (size_t second = first; second < faults.size(); ++second) {
      const std::string failure = tryPair(call, faults[first], faults[second]);
      (first == second ? count.single : count.pairs) += 1;
      if (!failure.empty()) return failure;
    }
  }
  return {};
}

}  // namespace vemi::test
