// One call of one exported function: images between guard pages, arguments, and what the call is expected to leave.
//
//   Call call(function, scenario);            // lays out and fills all memory
//   reference(call);                          // reads source(), mask and constants; writes destination()
//   const VemiStatus status = call.invoke();
//   const std::string fault = call.difference();
#pragma once

#include <functional>
#include <map>
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
  mixed,        // gaps in some images
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
  unsigned mixture = 0;                     // of mixed rows: a bit for each step with gaps; 0: what is written has them
  bool oneNaN = false;                      // all NaNs that are read have the same bits
  std::span<const std::byte> numbers = {};  // what the random numbers begin with

  std::string text() const;
};

/// Addresses of an image's elements. Coordinates outside of the size are legal where the image has a margin.
struct View {
  // Of each channel; sizes differ where planes do.
  std::byte* origin[4];
  ptrdiff_t step[4];
  VemiSize sizes[4];
  ptrdiff_t pixelBytes;
  Element element;
  int channels;
  VemiSize size;

  std::byte* at(int x, int y, int channel = 0) const { return origin[channel] + y * step[channel] + x * pixelBytes; }
};

/// Pixels around the region that belong to the image too.
struct Margin {
  int left = 0, top = 0, right = 0, bottom = 0;
};

/// An argument that is memory: an image, an array, a record or a buffer, with what the call may not change around it.
struct CallImage {
  int parameter = 0;
  int stepParameter = -1;  // -1: an array, which is one row
  Role role = Role::image;
  Element element = Element::none;
  Layout layout;
  bool written = false;
  VemiSize size = {0, 0};
  std::vector<VemiSize> planeSizes;  // where planes differ from the first one, which has `size`
  Margin margin;
  bool mayBeNull = false;  // of a buffer
  /// Of an array: its length; of an array of arrays: the length of each.
  std::vector<int> lengths;
  /// Of a record: the type of the floats that fill it, if it has floats.
  Element fields = Element::none;
  /// What the family's shape puts into the arrays, one after the other; filled at random where it is empty.
  std::vector<std::vector<std::byte>> contents;

  struct Plane {
    GuardedMemory memory;
    std::byte* first;  // where the caller's pointer points
    int step;
    std::vector<std::byte> before, expected;  // all bytes of the memory, before and after the call
  };
  std::vector<Plane> planes;
  std::vector<void*> pointers;  // the array of plane pointers

  bool isArray() const { return !lengths.empty(); }
  VemiSize sizeOf(size_t plane) const {
    if (isArray()) return {lengths[plane], 1};
    return plane < planeSizes.size() ? planeSizes[plane] : size;
  }
  View view(std::vector<std::byte> Plane::*bytes);
};

class Call {
 public:
  Call(const Export& function, const Scenario& scenario);

  const Export& function;
  const Scenario scenario;
  Random random;
  std::vector<Slot> arguments;
  std::vector<CallImage> images;  // in the order of the arguments

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
  CallImage& image(const std::string& parameter);
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
  /// Gives a number to an argument by value, to an element of an array, or to a field of a point, size or rectangle.
  void setNumber(const std::string& parameter, double number, int index = 0);
  /// Makes a record by its constructor, as that one's own family shapes the call, and passes it; it lives as long as
  /// this call does. The constructor's call tells what the record was made of. Without a name, the only function that
  /// makes records of this type; a shape that does not ask gets such a record too.
  Call& record(const std::string& parameter, const std::string& constructor = "");
  /// Frees the record that the function made, if it has made one, ahead of the call's own end.
  void freeNewRecord() { record_.reset(); }
  /// What a function of a record and a result, such as vemiFFTGetBufSize_R_32f, says of a record.
  int sizeBy(const std::string& query, const std::string& record);
  /// Working memory of just so many bytes, at an odd address; where it may be null, it sometimes is.
  void setBuffer(const std::string& parameter, int bytes, bool mayBeNull);

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
        for (int channel = 0; channel < written.channels; ++channel) {
          if (x < written.sizes[channel].width && y < written.sizes[channel].height) f(x, y, channel);
        }
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
  /// Gives all NaNs among the floats that were written the same bits: those of a NaN that it makes are the processor's.
  void unifyWrittenNaNs();
  /// Where memory differs from what is expected, over all bytes of all images; empty where it does not.
  std::string difference();
  std::string text() const;

 private:
  void fillRead(Element element, std::byte* place);
  void addArgument(const Parameter& parameter, int index);
  void addImage(const Parameter& parameter, int index);
  int stepFor(const CallImage& image, int64_t rowBytes, size_t plane) const;
  void layOut(CallImage& image);
  void fill(CallImage& image);
  void settle(CallImage& image);
  void pass(CallImage& image);
  CallImage& arrayOf(const std::string& parameter);
  void accept(CallImage& image);
  template <class F>
  void forEachFloat(CallImage& image, const F& f);
  void acceptFloats(CallImage& image);

  std::vector<Slot> goodArguments_;
  void* newRecord_ = nullptr;                                 // where the function stores a record that it makes
  std::unique_ptr<void, std::function<void(void*)>> record_;  // which is freed with the call
  std::map<std::string, std::unique_ptr<Call>> makers_;       // the calls that made the records of this one
  std::set<std::string> undecided_;                           // parameters that the family's shape must still set
  std::optional<View> mask_;
  const std::byte* constants_ = nullptr;
  int constantBytes_ = 0;
};

}  // namespace vemi::test
