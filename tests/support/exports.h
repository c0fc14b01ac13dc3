// The registry of all exported functions: what names and prototypes say, and a way to call each function with arguments
// that are held as data. It needs the public headers only.
#pragma once

#include <string>
#include <vector>

#include "support/elements.h"
#include "vemi/vemi.h"

namespace vemi::test {

/// `elements` of memory to a pixel, of which the first `channels` are worked on. A channel of interest is one channel,
/// counted from the pointer.
struct Layout {
  int elements = 1;
  int channels = 1;
  bool planar = false;
};

/// The value of one argument, whatever its type.
struct Slot {
  alignas(16) std::byte bytes[16] = {};

  template <class T>
  void put(const T& value) {
    static_assert(sizeof value <= sizeof bytes);
    std::memcpy(bytes, &value, sizeof value);
  }
  template <class T>
  T get() const {
    return load<T>(bytes);
  }
};

enum class Role {
  image,        // a pointer, or an array of plane pointers, that a step belongs to
  mask,         // pMask: an image of bytes
  array,        // a pointer without a step: constants, matrices, tables, results
  buffer,       // pBuffer: working memory
  step,         // the step of the last pointer in front of it, and of a pSrc in front of that which has none
  steps,        // an array of steps, one for each plane of the pointers in front of it
  size,         // a VemiSize
  rect,         // a VemiRect
  point,        // a VemiPoint
  constant,     // an element by value
  number,       // any other integer
  newRecord,    // of an InitAlloc function: where it stores the address of the record that it makes
  record,       // a pointer to such a record
  freedRecord,  // of a Free function: such a record
  other
};

struct Parameter {
  std::string name;
  Role role = Role::other;
  Element element = Element::none;   // of the value, or of what is pointed at
  bool isConst = false;              // what is pointed at
  bool isPlanes = false;             // an array of pointers
  int bound = 0;                     // of an array, where the prototype says it; of a matrix, all of its elements
  const void* recordType = nullptr;  // the same for all parameters that lead to records of one type
};

using AnyFunction = void (*)();

struct Family;

struct Export {
  std::string name;
  std::string operation;  // with the mode word: vemiThreshold_LTVal
  std::string members;    // what follows: 8u_C1R
  std::vector<Parameter> parameters;
  Layout source, destination;
  bool inPlace = false;
  bool scaled = false;

  AnyFunction function = nullptr;
  VemiStatus (*call)(AnyFunction, const Slot* arguments) = nullptr;     // null where no status is returned
  void* (*allocate)(AnyFunction, VemiSize size, int* pStep) = nullptr;  // vemiMalloc alone
  const Family* family = nullptr;                                       // of a function that no header declares

  int indexOf(const std::string& parameter) const;  // -1 where there is none
  int steps() const;                                // how many it takes, each of an array by itself
};

const std::vector<Export>& exports();

/// Throws where there is none.
const Export& exportNamed(const std::string& name);

/// Puts functions that no header declares behind the exports while it lives: for tests of the tests.
class MoreExports {
 public:
  explicit MoreExports(const std::vector<Export>& functions);
  ~MoreExports();
  MoreExports(const MoreExports&) = delete;
  MoreExports& operator=(const MoreExports&) = delete;

 private:
  size_t before_;
};

/// Whether the whole text matches an extended regular expression.
bool matches(const std::string& text, const std::string& pattern);

/// The members of one operation, or those of them whose type and descriptor match a regular expression: never none.
std::vector<const Export*> membersOf(const std::string& operation, const std::string& pattern = ".*");

}  // namespace vemi::test
