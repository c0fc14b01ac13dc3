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

template <class T>
Fault badValue(const std::string& parameter, const std::string& text, const std::string& stage, VemiStatus status,
               T value) {
  return {parameter + " = " + text, stage, status, [=](Call& call) { call.set(parameter, value); }};
}

void addNullFaults(const Call& call, const Family& family, std::vector<Fault>& faults) {
  for (const Parameter& parameter : call.function.parameters) {
    if (parameter.role == Role::newRecord || parameter.role == Role::freedRecord) {
      faults.push_back(badValue<void*>(parameter.name, "null", "null", vemiErrNullPtr, nullptr));
    }
  }
  const bool byChannel = hasStage(family, "channels");
  for (size_t n = 0; n < call.images.size(); ++n) {
    const Image& image = call.images[n];
    const std::string name = call.function.parameters[static_cast<size_t>(image.parameter)].name;
    const std::string stage = image.isArray() && hasStage(family, "arrays") ? "arrays" : "null";
    faults.push_back(badValue<void*>(name, "null", stage, vemiErrNullPtr, nullptr));
    for (size_t plane = 0; plane < image.pointers.size(); ++plane) {
      faults.push_back({name + "[" + std::to_string(plane) + "] = null",
                        byChannel && image.isArray() ? "channels" : stage, vemiErrNullPtr,
                        [=](Call& spoiled) { spoiled.images[n].pointers[plane] = nullptr; }, static_cast<int>(plane)});
    }
  }
}

void addIntegerFaults(const Call& call, const Family& family, std::vector<Fault>& faults) {
  const char* const widthStage = hasStage(family, "width") ? "width" : "size";
  for (const Parameter& parameter : call.function.parameters) {
    const std::string& name = parameter.name;
    for (const int bad : {0, -1, INT_MIN}) {
      const std::string text = std::to_string(bad);
      if (parameter.role == Role::step) faults.push_back(badValue(name, text, "step", vemiErrStep, bad));
      if (parameter.role != Role::size) continue;
      faults.push_back({name + ".width = " + text, widthStage, vemiErrSize, [=](Call& spoiled) {
                          spoiled.set(name, VemiSize{bad, spoiled.get<VemiSize>(name).height});
                        }});
      faults.push_back({name + ".height = " + text, "size", vemiErrSize, [=](Call& spoiled) {
                          spoiled.set(name, VemiSize{spoiled.get<VemiSize>(name).width, bad});
                        }});
    }
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
    const bool isArray = call.function.parameters[static_cast<size_t>(index)].role == Role::array;
    const int count = isArray ? call.image(own.argument).size.width : 1;
    for (int n = 0; n < count; ++n) {
      std::string text = own.argument;
      if (isArray) text.append("[").append(std::to_string(n)).append("]");
      text.append(" = ").append(std::to_string(own.value));
      faults.push_back(
          {text, own.stage, own.status, [=](Call& spoiled) { spoiled.setNumber(own.argument, own.value, n); }, n});
    }
  }
}

}  // namespace

std::vector<Fault> faultsOf(Call& call) {
  const Family& family = familyOf(call.function);
  std::vector<Fault> all, ordered;
  addNullFaults(call, family, all);
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
