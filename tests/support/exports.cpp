#include "support/exports.h"

#include <regex.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <sstream>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace vemi::test {
namespace {

// ---- From types: which element, how to pass it ----

template <class T>
Parameter parameterOf() {
  Parameter result;
  if constexpr (std::is_same_v<T, VemiSize>) {
    result.role = Role::size;
  } else if constexpr (std::is_pointer_v<T>) {
    using Pointee = std::remove_pointer_t<T>;
    result.isPlanes = std::is_pointer_v<Pointee>;
    using Target = std::conditional_t<std::is_pointer_v<Pointee>, std::remove_pointer_t<Pointee>, Pointee>;
    result.element = elementOf<std::remove_const_t<Target>>;
    result.isConst = std::is_const_v<Target>;
    result.role = result.element == Element::none ? Role::other : Role::array;
  } else if constexpr (elementOf<T> != Element::none) {
    result.element = elementOf<T>;
    result.role = Role::constant;
  }
  return result;
}

/// What the compiler knows of a function. A plain record, made by calls that are not inlined: there are hundreds of
/// signatures and thousands of functions, all of them in one list.
struct Entry {
  const char* name;
  const char* prototype;
  AnyFunction function;
  Parameter (*const* parameters)();  // one after the other, then null
  decltype(Export::call) call = nullptr;
  decltype(Export::allocate) allocate = nullptr;
};

template <class... A>
constexpr Parameter (*parametersOf[])() = {parameterOf<A>..., nullptr};

template <class... A>
VemiStatus callWith(AnyFunction function, const Slot* arguments) {
  return [&]<size_t... n>(std::index_sequence<n...>) {
    return reinterpret_cast<VemiStatus (*)(A...)>(function)(arguments[n].template get<A>()...);
  }
  (std::index_sequence_for<A...>());
}

template <class... A>
[[gnu::noinline]] Entry entryOf(const char* name, const char* prototype, VemiStatus (*function)(A...)) {
  return {name, prototype, reinterpret_cast<AnyFunction>(function), parametersOf<A...>, callWith<A...>};
}

template <class T>
void* allocateBy(AnyFunction function, VemiSize size, int* pStep) {
  return reinterpret_cast<T* (*)(VemiSize, int*)>(function)(size, pStep);
}

template <class T>
[[gnu::noinline]] Entry entryOf(const char* name, const char* prototype, T* (*function)(VemiSize, int*)) {
  return {name,    prototype,    reinterpret_cast<AnyFunction>(function), parametersOf<VemiSize, int*>,
          nullptr, allocateBy<T>};
}

template <class R, class... A>
[[gnu::noinline]] Entry entryOf(const char* name, const char* prototype, R (*function)(A...)) {
  return {name, prototype, reinterpret_cast<AnyFunction>(function), parametersOf<A...>};
}

// ---- From the prototype's text: parameter names, and the roles that they settle ----

struct Spelling {
  std::string name;
  int bound = 0;
};

/// The last word of each parameter, and the bound of an array.
std::vector<Spelling> spellingsOf(const std::string& prototype) {
  std::vector<Spelling> spellings;
  std::istringstream parameters(prototype == "void" ? "" : prototype);
  for (std::string parameter; std::getline(parameters, parameter, ',');) {
    const size_t bracket = std::min(parameter.find('['), parameter.size());
    const int bound = std::atoi(parameter.substr(std::min(bracket + 1, parameter.size())).c_str());
    parameter.erase(bracket);
    spellings.push_back({parameter.substr(parameter.find_last_of(" *") + 1), bound});
  }
  return spellings;
}

bool endsWith(const std::string& text, const std::string& end) {
  return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

void settleRoles(Export& function) {
  Parameter* pointer = nullptr;
  for (Parameter& parameter : function.parameters) {
    if (parameter.role == Role::array) pointer = &parameter;
    if (parameter.role == Role::other && parameter.isPlanes) parameter.role = Role::newRecord;
    if (parameter.role == Role::other && function.name.find("Free_") != std::string::npos) {
      parameter.role = Role::freedRecord;
    }
    if (parameter.element != Element::s32 || parameter.role != Role::constant) continue;
    if (endsWith(parameter.name, "Step") && pointer != nullptr) {
      parameter.role = Role::step;
      pointer->role = pointer->name == "pMask" ? Role::mask : Role::image;
    } else if (parameter.name != "value") {
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

}  // namespace

// The build writes exports.inc from the public headers: VEMI_EXPORT(name, parameters as the header spells them).
#define VEMI_EXPORT(name, ...) entryOf(#name, "" #__VA_ARGS__, &name),

const std::vector<Export>& exports() {
  static const std::vector<Export> all = [] {
    const Entry entries[] = {
#include "exports.inc"
    };
    std::vector<Export> list;
    for (const Entry& entry : entries) list.push_back(exportOf(entry));
    return list;
  }();
  return all;
}

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

std::vector<const Export*> membersOf(const std::string& operation, const std::string& pattern) {
  std::vector<const Export*> members;
  for (const Export& function : exports()) {
    if (function.operation == operation && matches(function.members, pattern)) members.push_back(&function);
  }
  if (members.empty()) throw std::logic_error("no member of " + operation + " matches " + pattern);
  return members;
}

}  // namespace vemi::test
