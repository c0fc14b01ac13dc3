// The checks that every family's test is made of.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "support/call.h"

namespace vemi::test {

/// Writes what the call must leave into call.destination(), straight from the definition.
using Reference = std::function<void(Call&)>;

/// Runs one call and compares status and all bytes with the reference's; false after a failure.
bool expectCall(const Export& function, const Scenario& scenario, const Reference& reference);

/// Runs members over widths, row distances, guard sides and team sizes, and against all the scale factors.
void expectDefinition(const std::vector<const Export*>& members, const Reference& reference,
                      const std::vector<int>& scaleFactors = {0});

}  // namespace vemi::test
