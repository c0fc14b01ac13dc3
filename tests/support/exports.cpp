#include "support/exports.h"

#include <regex.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <sstream>
#include <stdexcept>

#include "support/signatures.h"

namespace vemi::test {
namespace {

// ---- From the prototype's text: parameter names, and the roles that they settle ----

struct Spelling {
  std::string name;
  int bound = 0;
};

/// The product of the bounds in [3] or [2][3].
int boundOf(const std::string& brackets) {
  int bound = brackets.empty() ? 0 : 1;
  for (size_t at = brackets.find('['); at != std::string::npos; at = brackets.find('[', at + 1)) {
    bound *= std::atoi(brackets.c_str() + at + 1);
  }
  return bound;
}

/// The last word of each parameter, and the bound of an array.
std::vector<Spelling> spellingsOf(const std::string& prototype) {
  std::vector<Spelling> spellings;
  std::istringstream parameters(prototype == "void" ? "" : prototype);
  for (std::string parameter; std::getline(parameters, parameter, ',');) {
    const size_t bracket = std::min(parameter.find('['), parameter.size());
    const int bound = boundOf(parameter.substr(bracket));
    parameter.erase(bracket);
    spellings.push_back({parameter.substr(parameter.find_last_of(" *") + 1), bound});
  }
  return spellings;
}

bool endsWith(const std::string& text, const std::string& end) {
  return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

bool isStep(const Parameter& parameter) {
  return parameter.element == Element::s32 && endsWith(parameter.name, "Step") &&
         (parameter.role == Role::constant || (parameter.role == Role::array && !parameter.isPlanes));
}

/// Of pSrcMagn, pSrcPhase, srcStep both pointers.
bool shareStep(const Parameter& first, const Parameter& second) {
  return first.role == Role::array && first.bound == 0 && first.name.rfind("pSrc", 0) == 0 &&
         second.name.rfind("pSrc", 0) == 0;
}

void settleRoles(Export& function) {
  Parameter* pointer = nullptr;
  for (Parameter& parameter : function.parameters) {
    if (parameter.name == "pBuffer") parameter.role = Role::buffer;
    if (parameter.role == Role::record && function.name.find("Free_") != std::string::npos) {
      parameter.role = Role::freedRecord;
    }
    if (pointer != nullptr && isStep(parameter)) {
      parameter.role = parameter.role == Role::array ? Role::steps : Role::step;
      pointer->role = pointer->name == "pMask" ? Role::mask : Role::image;
      if (pointer != function.parameters.data() && shareStep(pointer[-1], *pointer)) pointer[-1].role = Role::image;
    } else if (parameter.role == Role::array) {
      pointer = &parameter;
    } else if (parameter.role == Role::constant && parameter.element == Element::s32 && parameter.name != "value") {
      parameter.role = Role::number;
    }
  }
}

// ---- From the name: operation, layouts, letters ----

/// Takes a layout such as AC4 or P3 from the front of the descriptor.
bool takeLayout(std::string& descriptor, Layout& layout) {
  const size_t at = descriptor.rfind('A', 0) == 0 ? 1 : 0;
  if (descriptor.size() < at + 2 || (descriptor[at] != 'C' && descriptor[at] != 'P')) return false;
  if (std::isdigit(static_cast<unsigned char>(descriptor[at + 1])) == 0) return false;
  layout.elements = descriptor[at + 1] - '0';
  layout.channels = at == 1 && layout.elements == 4 ? 3 : layout.elements;
  layout.planar = descriptor[at] == 'P';
  descriptor.erase(0, at + 2);
  return true;
}

void parseDescriptor(Export& function, std::string descriptor) {
  std::string letters;
  bool sourceKnown = false;
  while (!descriptor.empty()) {
    Layout layout;
    if (takeLayout(descriptor, layout)) {
      if (!sourceKnown) function.source = layout;
      function.destination = layout;
      sourceKnown = true;
    } else {
      letters += descriptor.front();
      descriptor.erase(0, 1);
    }
  }
  function.inPlace = letters.find('I') != std::string::npos;
  function.scaled = endsWith(letters, "Sfs");
  const bool channelOfInterest = letters.find('C') != std::string::npos;
  // A copy between one channel and several moves one channel; other families with such layouts work on all of them.
  const bool oneChannel = function.operation == "vemiCopy" && !function.source.planar && !function.destination.planar &&
                          (function.source.elements == 1 || function.destination.elements == 1);
  if (channelOfInterest || oneChannel) function.source.channels = function.destination.channels = 1;
}

/// The operation ends at the underscore in front of the type, which is of digits and letters such as 8u16s.
void parseName(Export& function) {
  const std::string& name = function.name;
  function.operation = name;
  for (size_t at = name.find('_'); at != std::string::npos; at = name.find('_', at + 1)) {
    const size_t end = name.find('_', at + 1);
    const bool isType = name.find_first_not_of("0123456789usfc", at + 1) == end && std::isdigit(name[at + 1]) != 0;
    if (!isType) continue;
    function.operation = name.substr(0, at);
    function.members = name.substr(at + 1);
    if (end != std::string::npos) parseDescriptor(function, name.substr(end + 1));
    return;
  }
}

}  // namespace

Export exportOf(const Entry& entry) {
  Export described;
  for (auto parameter = entry.parameters; *parameter != nullptr; ++parameter) {
    described.parameters.push_back((*parameter)());
  }
  described.call = entry.call;
  described.allocate = entry.allocate;
  const std::vector<Spelling> spellings = spellingsOf(entry.prototype);
  if (spellings.size() != described.parameters.size()) {
    throw std::logic_error(std::string("exports.inc: the parameters of ") + entry.name + " are not those of its type");
  }
  for (size_t n = 0; n < spellings.size(); ++n) {
    described.parameters[n].name = spellings[n].name;
    described.parameters[n].bound = spellings[n].bound;
  }
  described.name = entry.name;
  described.function = entry.function;
  settleRoles(described);
  parseName(described);
  return described;
}

// The build writes exports.inc from the public headers: VEMI_EXPORT(name, parameters as the header spells them).
#define VEMI_EXPORT(name, ...) entryOf(#name, "" #__VA_ARGS__, &name),

namespace {

/// Has room for more, so that no export moves.
std::vector<Export>& allExports() {
  static std::vector<Export> all = [] {
    const Entry entries[] = {
#include "exports.inc"
    };
    std::vector<Export> list;
    list.reserve(std::size(entries) + 64);
    for (const Entry& entry : entries) list.push_back(exportOf(entry));
    return list;
  }();
  return all;
}

}  // namespace

const std::vector<Export>& exports() { return allExports(); }

const Export& exportNamed(const std::string& name) {
  for (const Export& each : exports()) {
    if (each.name == name) return each;
  }
  throw std::logic_error("no function " + name);
}

MoreExports::MoreExports(const std::vector<Export>& functions) : before_(exports().size()) {
  if (before_ + functions.size() > exports().capacity()) throw std::length_error("more exports than there is room for");
  allExports().insert(allExports().end(), functions.begin(), functions.end());
}

MoreExports::~MoreExports() { allExports().resize(before_); }

bool matches(const std::string& text, const std::string& pattern) {
  regex_t expression;
  if (regcomp(&expression, ("^(" + pattern + ")$").c_str(), REG_EXTENDED | REG_NOSUB) != 0) {
    throw std::logic_error("not a regular expression: " + pattern);
  }
  const bool found = regexec(&expression, text.c_str(), 0, nullptr, 0) == 0;
  regfree(&expression);
  return found;
}

int Export::indexOf(const std::string& parameter) const {
  for (size_t n = 0; n < parameters.size(); ++n) {
    if (parameters[n].name == parameter) return static_cast<int>(n);
  }
  return -1;
}

int Export::steps() const {
  int count = 0;
  for (const Parameter& parameter : parameters) {
    count += parameter.role == Role::step ? 1 : parameter.role == Role::steps ? parameter.bound : 0;
  }
  return count;
}

std::vector<const Export*> membersOf(const std::string& operation, const std::string& pattern) {
  std::vector<const Export*> members;
  for (const Export& function : exports()) {
    if (function.operation == operation && matches(function.members, pattern)) members.push_back(&function);
  }
  if (members.empty()) throw std::logic_error("no member of " + operation + " matches " + pattern);
  return members;
}

}  // namespace vemi::test
