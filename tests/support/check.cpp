#include "support/check.h"

#include <gtest/gtest.h>
#include <omp.h>

#include <array>
#include <cstdlib>
#include <fstream>
#include <set>

namespace vemi::test {
namespace {

const std::vector<int>& widths() {
  static const std::vector<int> all = [] {
    std::vector<int> list;
    for (int width = 1; width <= 70; ++width) list.push_back(width);
    for (const int width : {127, 128, 129, 256, 257, 300, 512}) list.push_back(width);
    return list;
  }();
  return all;
}

/// The n-th mixture of images with and without gaps, where at least one has some.
unsigned mixtureOf(const Export& function, unsigned n) {
  const unsigned mixtures = (1u << function.steps()) - 1;
  return mixtures == 0 ? 0 : 1 + n % mixtures;
}

bool expectAllShapes(const Export& function, const Reference& reference, const std::vector<int>& scaleFactors) {
  Scenario scenario;
  unsigned mixtures = 0;
  for (const int width : widths()) {
    for (const Rows rows : allRows) {
      for (const Edge edge : {Edge::front, Edge::back}) {
        scenario.rows = rows;
        scenario.mixture = rows == Rows::mixed ? mixtureOf(function, mixtures++) : 0;
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
      scenario.rows = std::array{Rows::padded, Rows::contiguous, Rows::mixed, Rows::odd}[scenario.seed % 4];
      scenario.mixture = mixtureOf(function, scenario.seed);
      scenario.scaleFactor = scaleFactors[scenario.seed * 5 % scaleFactors.size()];
      good = good && expectCall(function, scenario, reference);
    }
  }
  omp_set_num_threads(former);
  return good;
}

/// Tells the references.* tests, where ctest asks for it, that a test holds the function against a reference.
void noteReference(const Export& function) {
  const char* const folder = std::getenv("VEMI_REFERENCES");
  static std::set<std::string> noted;
  if (folder == nullptr || !noted.insert(function.name).second) return;
  const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
  static std::ofstream file(std::string(folder) + "/" + test.test_suite_name() + "." + test.name());
  file << function.name << std::endl;
}

}  // namespace

bool expectCall(const Export& function, const Scenario& scenario, const Reference& reference) {
  noteReference(function);
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

}  // namespace vemi::test
