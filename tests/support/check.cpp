#include "support/check.h"

#include <gtest/gtest.h>
#include <limits.h>
#include <omp.h>

#include <algorithm>
#include <iterator>
#include <sstream>
#include <stdexcept>

#include "support/families.h"

namespace vemi::test {
namespace {

// ---- Results ----

const std::vector<int>& widths() {
  static const std::vector<int> all = [] {
    std::vector<int> list;
    for (int width = 1; width <= 70; ++width) list.push_back(width);
    for (const int width : {129, 257, 300}) list.push_back(width);
    return list;
  }();
  return all;
}

bool expectAllShapes(const Export& function, const Reference& reference, const std::vector<int>& scaleFactors) {
  Scenario scenario;
  for (const int width : widths()) {
    for (const Rows rows : allRows) {
      for (const Edge edge : {Edge::front, Edge::back}) {
        scenario.rows = rows;
        scenario.edge = edge;
        scenario.seed += 1;
        scenario.roiSize = {width, 1 + static_cast<int>(scenario.seed * 7 / 5 % 4)};
        scenario.scaleFactor = scaleFactors[scenario.seed % scaleFactors.size()];
        if (!expectCall(function, scenario, reference)) return false;
      }
    }
  }
  return true;
}

bool expectAllScaleFactors(const Export& function, const Reference& reference, const std::vector<int>& scaleFactors) {
  for (const int scaleFactor : scaleFactors) {
    const Scenario scenario = {{61, 2}, Rows::odd, Edge::back, 1, scaleFactor};
    if (!expectCall(function, scenario, reference)) return false;
  }
  return true;
}

/// Regions that are worth a team, with fewer and with more rows than it has members.
bool expectAllTeams(const Export& function, const Reference& reference, const std::vector<int>& scaleFactors) {
  const int former = omp_get_max_threads();
  bool good = true;
  Scenario scenario;
  for (const int team : {1, 2, 3, 5}) {
    omp_set_num_threads(team);
    for (const VemiSize size : {VemiSize{700, 1}, VemiSize{450, 4}, VemiSize{90, 83}}) {
      scenario.seed += 1;
      scenario.roiSize = size;
      scenario.scaleFactor = scaleFactors[scenario.seed * 5 % scaleFactors.size()];
      good = good && expectCall(function, scenario, reference);
    }
  }
  omp_set_num_threads(former);
  return good;
}

// ---- Statuses ----

struct Fault {
  std::string text, stage;
  VemiStatus status;
  std::function<void(Call&)> commit;
  int channel = 0;  // of faults at the stage `channels`
};

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

/// In the order of the family's stages; those of a stage that it does not have are left out.
std::vector<Fault> faultsOf(Call& call, const Family& family) {
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

}  // namespace

bool expectCall(const Export& function, const Scenario& scenario, const Reference& reference) {
  Call call(function, scenario);
  reference(call);
  const VemiStatus status = call.invoke();
  if (status != call.expectedStatus) {
    ADD_FAILURE() << call.text() << ": status " << status << ", not " << call.expectedStatus;
    return false;
  }
  const std::string difference = call.difference();
  if (!difference.empty()) ADD_FAILURE() << difference;
  return difference.empty();
}

void expectDefinition(const std::vector<const Export*>& members, const Reference& reference,
                      const std::vector<int>& scaleFactors) {
  for (const Export* function : members) {
    static_cast<void>(expectAllShapes(*function, reference, scaleFactors) &&
                      expectAllScaleFactors(*function, reference, scaleFactors) &&
                      expectAllTeams(*function, reference, scaleFactors));
  }
}

void expectStatusOrder(const Export& function) {
  Call call(function, {});
  const std::vector<Fault> faults = faultsOf(call, familyOf(function));
  for (size_t first = 0; first < faults.size(); ++first) {
    for (size_t second = first; second < faults.size(); ++second) {
      faults[first].commit(call);
      faults[second].commit(call);
      const VemiStatus status = call.invoke();
      const std::string difference = call.difference();
      call.restore();
      if (status == faults[first].status && difference.empty()) continue;
      ADD_FAILURE() << function.name << " with " << faults[first].text << " and " << faults[second].text << ": status "
                    << status << ", not " << faults[first].status << "; " << difference;
      return;
    }
  }
}

}  // namespace vemi::test
