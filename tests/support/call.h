// One call of one exported function: images between guard pages, arguments, and what the call is expected to leave.
//
//   Call call(function, scenario);            // lays out and fills all memory
//   reference(call);                          // reads source(), mask and constants; writes destination()
//   const VemiStatus status = call.invoke();
//   const std::string fault = call.difference();
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "support/exports.h"
#include "support/guarded.h"

namespace vemi::test {

/// How far apart the rows of the images are.
enum class Rows {
  contiguous,   // all images without gaps
  padded,       // a gap of whole elements, different in each image
  odd,          // a step that is no multiple of the element, so that rows are misaligned
  mixed,        // gaps in what is written only
  overlapping,  // rows of sources that lie over each other, three bytes apart
};
inline constexpr Rows allRows[] = {Rows::contiguous, Rows::padded, Rows::odd, Rows::mixed, Rows::overlapping};

/// Which guard page each image touches.
enum class Edge { front, back };

struct Scenario {
  VemiSize roiSize = {13, 3};
  Rows rows = Rows::padded;
  Edge edge = Edge::back;
  unsigned seed = 1;
  int scaleFactor = 0;
  bool oneNaN = false;                      // all NaNs that are read have the same bits
  std::span<const std::byte> numbers = {};  // what the random numbers begin with

  std::string text() const;
};

/// Addresses of an image's elements. Coordinates outside of the size are legal where the image has a margin.
struct View {
  std::byte* origin[4];  // of each channel
  ptrdiff_t step, pixelBytes;
  Element element;
  int channels;
  VemiSize size;

  std::byte* at(int x, int y, int channel = 0) const { return origin[channel] + y * step + x * pixelBytes; }
};

/// Pixels around the region that belong to the image too.
struct Margin {
  int left = 0, top = 0, right = 0, bottom = 0;
};

struct Image {
  int parameter = 0;
  int stepParameter = -1;  // -1: an array, which is one row
  Role role = Role::image;
  Element element = Element::none;
  Layout layout;
  bool written = false;
  VemiSize size = {0, 0};
  Margin margin;
  int step = 0;
  /// Of an array: its length; of an array of arrays: the length of each.
  std::vector<int> lengths;
  /// What the family's shape puts into the arrays, one after the other; filled at random where it is empty.
  std::vector<std::vector<std::byte>> contents;

  struct Plane {
    GuardedMemory memory;
    std::byte* first;                         // where the caller's pointer points
    std::vector<std::byte> before, expected;  // all bytes of the memory, before and after the call
  };
  std::vector<Plane> planes;
  std::vector<void*> pointers;  // the array of plane pointers

  bool isArray() const { return !lengths.empty(); }
  /// Elements in a row of a plane.
  int widthOf(size_t plane) const { return isArray() ? lengths[plane] : size.width; }
  View view(std::vector<std::byte> Plane::*bytes);
};

class Call {
 public:
  Call(const Export& function, const Scenario& scenario);

  const Export& function;
  const Scenario scenario;
  Random random;
  std::vector<Slot> arguments;
  std::vector<Image> images;  // in the order of the arguments

  // For a family's shape, by the prototype's names.
  template <class T>
  T get(const std::string& parameter) const {
    return arguments.at(static_cast<size_t>(function.indexOf(parameter))).template get<T>();
  }
  template <class T>
  void set(const std::string& parameter, const T& value) {
    arguments.at(static_cast<size_t>(function.indexOf(parameter))).put(value);
    undecided_.erase(parameter);
  }
  Image& image(const std::string& parameter);
  /// What a pointer without a step points at: elements of the prototype's type, or anything where that is no element.
  template <class T>
  void setArray(const std::string& parameter, const std::vector<T>& elements) {
    setArrays(parameter, std::vector<std::vector<T>>{elements});
  }
  /// The same for an array of pointers, such as one of tables for each channel.
  template <class T>
  void setArrays(const std::string& parameter, const std::vector<std::vector<T>>& arrays) {
    std::vector<int> lengths;
    std::vector<std::vector<std::byte>> contents;
    const int elementBytes = bytesOf(arrayOf(parameter).element);
    for (const std::vector<T>& array : arrays) {
      lengths.push_back(static_cast<int>(array.size() * sizeof(T)) / elementBytes);
      contents.emplace_back(array.size() * sizeof(T));
      std::memcpy(contents.back().data(), array.data(), contents.back().size());
    }
    setLengths(parameter, lengths);
    arrayOf(parameter).contents = std::move(contents);
  }
  /// The same with random elements, or for results.
  void setLengths(const std::string& parameter, const std::vector<int>& lengths);
  /// Gives a number to an argument by value, or to an element of an array, in its own type.
  void setNumber(const std::string& parameter, double number, int index = 0);

  // For a reference. An image that is source and destination counts as the last source.
  View source(int index = 0);
  View destination();
  /// By the mask; true where there is none.
  bool isSelected(int x, int y) const { return !mask_ || *mask_->at(x, y) != std::byte{0}; }
  /// An argument by value, or an element of an array.
  std::byte* constant(const std::string& parameter, int channel = 0);
  const std::byte* constant(int channel = 0) const { return constants_ + channel * constantBytes_; }  // `value`
  /// The n-th of an array of arrays; a result that is written is reached through its expected bytes.
  View array(const std::string& parameter);
  /// Calls f(x, y, channel) for each element that the destination is to receive.
  template <class F>
  void forEachElement(F f) {
    const View written = destination();
    for (int y = 0; y < written.size.height; ++y) {
      for (int x = 0; x < written.size.width; ++x) {
        if (!isSelected(x, y)) continue;
        for (int channel = 0; channel < written.channels; ++channel) f(x, y, channel);
      }
    }
  }
  VemiStatus expectedStatus = vemiOk;
  /// Set by a reference that computes with floats: any NaN is as good as any other.
  bool anyNaN = false;
  /// Set by a reference whose floats need not be met to the bit: how far off they may be, relative to the larger of 1
  /// and the expected value.
  double tolerance = 0;

  VemiStatus invoke();
  /// Makes all arguments good again, and lays the memory out as it was before the call.
  void restore();
  /// Expects the elements that were written as they are: for callers that do not know what is computed.
  void acceptWritten();
  /// Where memory differs from what is expected, over all bytes of all images; empty where it does not.
  std::string difference();
  std::string text() const;

 private:
  void fillRead(Element element, std::byte* place);
  void addArgument(const Parameter& parameter, int index);
  void layOut(Image& image);
  void fill(Image& image);
  void settle(Image& image);
  void pass(Image& image);
  Image& arrayOf(const std::string& parameter);
  void acceptFloats(Image& image);

  std::vector<Slot> goodArguments_;
  void* newRecord_ = nullptr;                                 // where the function stores a record that it makes
  std::unique_ptr<void, std::function<void(void*)>> record_;  // which is freed with the call
  std::unique_ptr<Call> maker_;                               // the call that made the record which this one frees
  std::set<std::string> undecided_;                           // parameters that the family's shape must still set
  std::optional<View> mask_;
  const std::byte* constants_ = nullptr;
  int constantBytes_ = 0;
};

}  // namespace vemi::test
