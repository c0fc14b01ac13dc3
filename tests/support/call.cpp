#include "support/call.h"

#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <functional>
#include <stdexcept>
#include <utility>

#include "support/families.h"

namespace vemi::test {
namespace {

// ---- Naming the call that touched a guard page ----

thread_local char currentCall[512];
/// A thread of the library's teams has noted no call: its fault is laid at the latest one that any thread has begun.
std::atomic<const char*> latestCall = nullptr;
struct sigaction formerAction;

void reportCall(int signal) {
  const char* const latest = latestCall;
  const char* const call = currentCall[0] != '\0' || latest == nullptr ? currentCall : latest;
  if (write(STDERR_FILENO, call, std::strlen(call)) < 0) _exit(1);
  sigaction(signal, &formerAction, nullptr);  // returning repeats the access, and the former action ends the program
}

void noteCall(const std::string& text) {
  static const bool installed = [] {
    struct sigaction action = {};
    action.sa_handler = reportCall;
    return sigaction(SIGSEGV, &action, &formerAction) == 0;
  }();
  const std::string line = installed ? "\nmemory outside of the images was touched by " + text + "\n" : "";
  currentCall[line.copy(currentCall, sizeof currentCall - 1)] = '\0';
  latestCall = currentCall;
}

void forgetCall() {
  const char* own = currentCall;
  latestCall.compare_exchange_strong(own, nullptr);
  currentCall[0] = '\0';
}

uint64_t hashOf(const std::string& text) {
  uint64_t hash = 0xcbf29ce484222325u;
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3u;
  return hash;
}

int stepFor(const Image& image, Rows rows, int64_t rowBytes, int index) {
  const int elementBytes = bytesOf(image.element);
  if (rows == Rows::overlapping && !image.written) return 3;
  const bool gaps = rows != Rows::contiguous && (rows != Rows::mixed || image.written);
  const int64_t gap = rows == Rows::odd ? elementBytes * index + 1 : elementBytes * (index + 1);
  return static_cast<int>(rowBytes + (gaps ? gap : 0));
}

/// Whether one float will do for another.
template <class T>
bool isAccepted(const std::byte* expected, const std::byte* actual, bool anyNaN, double tolerance) {
  const double e = load<T>(expected), a = load<T>(actual);
  if (std::isnan(e) || std::isnan(a)) return anyNaN && std::isnan(e) && std::isnan(a);
  return tolerance > 0 && std::fabs(a - e) <= tolerance * std::max(1.0, std::fabs(e));
}

/// The function that makes or frees what this one frees or makes: their names differ in one word.
const Export& partnerOf(const Export& function, const std::string& word, const std::string& otherWord) {
  std::string name = function.name;
  name.replace(name.find(word), word.size(), otherWord);
  for (const Export& each : exports()) {
    if (each.name == name) return each;
  }
  throw std::logic_error("no function " + name);
}

}  // namespace

std::string Scenario::text() const {
  static const char* const rowNames[] = {"contiguous", "padded", "odd", "mixed", "overlapping"};
  return std::to_string(roiSize.width) + "x" + std::to_string(roiSize.height) + ", " +
         rowNames[static_cast<int>(rows)] + " rows, " + (edge == Edge::front ? "front" : "back") + " guard, seed " +
         std::to_string(seed) + ", scaleFactor " + std::to_string(scaleFactor);
}

std::string Call::text() const { return function.name + " (" + scenario.text() + ")"; }

View Image::view(std::vector<std::byte> Plane::*bytes) {
  View view = {};
  view.step = step;
  view.pixelBytes = bytesOf(element) * (layout.planar ? 1 : layout.elements);
  view.element = element;
  view.channels = layout.channels;
  view.size = size;
  for (int channel = 0; channel < layout.channels; ++channel) {
    Plane& plane = planes[static_cast<size_t>(layout.planar ? channel : 0)];
    view.origin[channel] =
        (plane.*bytes).data() + (plane.first - plane.memory.begin()) + (layout.planar ? 0 : channel * bytesOf(element));
  }
  return view;
}

// ---- Building the arguments ----

Call::Call(const Export& called, const Scenario& how)
    : function(called),
      scenario(how),
      random(how.seed ^ hashOf(called.name), how.numbers),
      arguments(called.parameters.size()) {
  if (function.call == nullptr) throw std::logic_error(function.name + " returns no status");
  for (size_t n = 0; n < function.parameters.size(); ++n) addArgument(function.parameters[n], static_cast<int>(n));
  const Family& family = familyOf(function);
  if (family.shape != nullptr) family.shape(*this);
  if (!undecided_.empty()) {
    throw std::logic_error(function.name + ": its family's shape must set " + *undecided_.begin());
  }
  for (Image& each : images) {
    layOut(each);
    fill(each);
    pass(each);
    if (each.role == Role::mask) mask_ = each.view(&Image::Plane::before);
  }
  if (const int index = function.indexOf("value"); index >= 0) {
    constants_ = constant("value");
    constantBytes_ = bytesOf(function.parameters[static_cast<size_t>(index)].element);
  }
  if (family.retouch != nullptr) family.retouch(*this);
  for (Image& each : images) settle(each);
  goodArguments_ = arguments;
}

void Call::fillRead(Element element, std::byte* place) {
  fillElement(element, place, random);
  if (scenario.oneNaN) unifyNaNs(element, place);
}

void Call::addArgument(const Parameter& parameter, int index) {
  Slot& slot = arguments[static_cast<size_t>(index)];
  switch (parameter.role) {
    case Role::size:
      slot.put(scenario.roiSize);
      break;
    case Role::constant:
      fillRead(parameter.element, slot.bytes);
      break;
    case Role::step:
      images.back().stepParameter = index;
      break;
    case Role::number:
      slot.put(parameter.name == "scaleFactor" ? scenario.scaleFactor : 0);
      if (parameter.name != "scaleFactor") undecided_.insert(parameter.name);
      break;
    case Role::image:
    case Role::mask:
    case Role::array: {
      Image added;
      added.parameter = index;
      added.role = parameter.role;
      added.element = parameter.element;
      added.written = !parameter.isConst;
      if (parameter.role == Role::image) added.layout = added.written ? function.destination : function.source;
      if (parameter.role != Role::array) added.size = scenario.roiSize;
      images.push_back(std::move(added));
      // A result without bounds is a single one; the lengths of other arrays are the family's to say.
      if (parameter.role != Role::array) break;
      if (parameter.isPlanes) {
        undecided_.insert(parameter.name);
      } else if (parameter.bound > 0 || images.back().written) {
        setLengths(parameter.name, {std::max(parameter.bound, 1)});
      } else {
        undecided_.insert(parameter.name);
      }
      break;
    }
    case Role::newRecord:
      slot.put(&newRecord_);
      break;
    case Role::freedRecord: {
      maker_ = std::make_unique<Call>(partnerOf(function, "Free", "InitAlloc"), scenario);
      maker_->invoke();
      slot.put(maker_->record_.get());
      break;
    }
    case Role::other:
      undecided_.insert(parameter.name);
      break;
  }
}

Image& Call::image(const std::string& parameter) {
  for (Image& each : images) {
    if (each.parameter == function.indexOf(parameter)) return each;
  }
  throw std::logic_error(function.name + " has no image " + parameter);
}

/// A pointer to something that is no element gets its memory when its contents are set.
Image& Call::arrayOf(const std::string& parameter) {
  const int index = function.indexOf(parameter);
  const Parameter& described = function.parameters.at(static_cast<size_t>(index));
  for (Image& each : images) {
    if (each.parameter == index) return each;
  }
  Image added;
  added.parameter = index;
  added.role = Role::array;
  added.element = described.element == Element::none ? Element::u8 : described.element;
  added.written = !described.isConst;
  images.push_back(std::move(added));
  return images.back();
}

void Call::setLengths(const std::string& parameter, const std::vector<int>& lengths) {
  Image& array = arrayOf(parameter);
  const int count = static_cast<int>(lengths.size());
  const bool isPlanes = function.parameters[static_cast<size_t>(array.parameter)].isPlanes;
  array.lengths = lengths;
  if (isPlanes) array.layout = {count, count, true};
  array.size = {*std::max_element(lengths.begin(), lengths.end()), 1};
  undecided_.erase(parameter);
}

void Call::setNumber(const std::string& parameter, double number, int index) {
  const int at = function.indexOf(parameter);
  const Parameter& described = function.parameters.at(static_cast<size_t>(at));
  undecided_.erase(parameter);
  if (described.role != Role::array) {
    storeNumber(described.element, arguments[static_cast<size_t>(at)].bytes, number);
    return;
  }
  Image::Plane& plane = image(parameter).planes.at(0);
  const ptrdiff_t offset = plane.first - plane.memory.begin() + index * bytesOf(described.element);
  storeNumber(described.element, plane.memory.begin() + offset, number);
  storeNumber(described.element, plane.expected.data() + offset, number);
}

/// What the call may touch, from the first byte to the last, lies against a guard page.
void Call::layOut(Image& image) {
  if (image.size.width < 1) {
    throw std::logic_error(function.name + ": its family's shape must give a size to " +
                           function.parameters[static_cast<size_t>(image.parameter)].name);
  }
  const Margin& margin = image.margin;
  const int64_t elementBytes = bytesOf(image.element);
  const int64_t pixelBytes = elementBytes * (image.layout.planar ? 1 : image.layout.elements);
  // Of a channel of interest the call may touch its own elements only; an alpha channel belongs to the last pixel.
  const int64_t lastBytes = image.layout.channels == 1 ? elementBytes : pixelBytes;
  const int64_t height = margin.top + image.size.height + margin.bottom;
  const int planeCount = image.layout.planar ? image.layout.elements : 1;
  for (int n = 0; n < planeCount; ++n) {
    const int64_t width = margin.left + image.widthOf(static_cast<size_t>(n)) + margin.right;
    image.step = stepFor(image, scenario.rows, width * pixelBytes, image.parameter);
    const int64_t extent = (height - 1) * image.step + (width - 1) * pixelBytes + lastBytes;
    const int64_t first = margin.top * int64_t{image.step} + margin.left * pixelBytes;
    GuardedMemory memory(static_cast<size_t>(extent));
    std::byte* const begin = scenario.edge == Edge::front ? memory.begin() : memory.end() - extent;
    image.planes.push_back({std::move(memory), begin + first, {}, {}});
  }
}

void Call::fill(Image& image) {
  for (Image::Plane& plane : image.planes) {
    plane.before.resize(plane.memory.size());
    random.fill(plane.before.data(), plane.before.size());
  }
  const View view = image.view(&Image::Plane::before);
  const Margin& margin = image.margin;
  const bool isRead = !image.written || function.inPlace;  // what is only written may hold anything
  for (size_t n = 0; n < image.contents.size(); ++n) {
    Image::Plane& plane = image.planes[n];
    std::copy(image.contents[n].begin(), image.contents[n].end(),
              plane.before.begin() + (plane.first - plane.memory.begin()));
  }
  for (int y = -margin.top; isRead && image.contents.empty() && y < image.size.height + margin.bottom; ++y) {
    for (int x = -margin.left; x < image.size.width + margin.right; ++x) {
      for (int channel = 0; channel < view.channels; ++channel) {
        if (image.isArray() && x >= image.widthOf(static_cast<size_t>(channel))) continue;
        fillRead(image.element, view.at(x, y, channel));
      }
    }
    if (image.role != Role::mask) continue;
    // Runs of eight that are all clear, all set or neither, since kernels may look at several mask bytes at a time.
    for (int x = 0, kind = 0; x < image.size.width; ++x) {
      if (x % 8 == 0) kind = random.below(3);
      const int value = kind == 0 || (kind == 1 && random.below(2) == 0) ? 0 : 1 + random.below(255);
      *view.at(x, y) = static_cast<std::byte>(value);
    }
  }
}

void Call::settle(Image& image) {
  for (Image::Plane& plane : image.planes) {
    plane.expected = plane.before;
    std::memcpy(plane.memory.begin(), plane.before.data(), plane.before.size());
  }
}

void Call::pass(Image& image) {
  Slot& pointer = arguments[static_cast<size_t>(image.parameter)];
  if (image.layout.planar) {
    for (const Image::Plane& plane : image.planes) image.pointers.push_back(plane.first);
    pointer.put(image.pointers.data());
  } else {
    pointer.put(image.planes.front().first);
  }
  if (image.stepParameter >= 0) arguments[static_cast<size_t>(image.stepParameter)].put(image.step);
}

// ---- What references read and write ----

View Call::source(int index) {
  for (Image& each : images) {
    const bool isSource = each.role == Role::image && (!each.written || function.inPlace);
    if (isSource && index-- == 0) return each.view(&Image::Plane::before);
  }
  throw std::logic_error(function.name + " has fewer sources");
}

View Call::destination() {
  for (Image& each : images) {
    if (each.role == Role::image && each.written) return each.view(&Image::Plane::expected);
  }
  throw std::logic_error(function.name + " has no destination");
}

std::byte* Call::constant(const std::string& parameter, int channel) {
  const int index = function.indexOf(parameter);
  const Parameter& described = function.parameters.at(static_cast<size_t>(index));
  if (described.role != Role::array) return arguments[static_cast<size_t>(index)].bytes;
  return image(parameter).view(&Image::Plane::before).at(channel, 0);
}

View Call::array(const std::string& parameter) {
  Image& found = image(parameter);
  return found.view(found.written ? &Image::Plane::expected : &Image::Plane::before);
}

// ---- Calling and comparing ----

VemiStatus Call::invoke() {
  noteCall(text());
  const VemiStatus status = function.call(function.function, arguments.data());
  forgetCall();
  if (newRecord_ != nullptr) {
    const Export& destructor = partnerOf(function, "InitAlloc", "Free");
    record_ = {std::exchange(newRecord_, nullptr), [&](void* record) {
                 Slot argument;
                 argument.put(record);
                 destructor.call(destructor.function, &argument);
               }};
  }
  if (maker_ != nullptr && status == vemiOk) maker_->record_.release();
  return status;
}

void Call::acceptWritten() {
  for (Image& image : images) {
    if (!image.written) continue;
    const View view = image.view(&Image::Plane::expected);
    const Margin& margin = image.margin;
    for (int channel = 0; channel < view.channels; ++channel) {
      const size_t plane = image.layout.planar ? static_cast<size_t>(channel) : 0;
      const std::byte* const memory = image.planes[plane].memory.begin();
      const ptrdiff_t bytes = bytesOf(image.element);
      for (int y = -margin.top; y < image.size.height + margin.bottom; ++y) {
        for (int x = -margin.left; x < image.widthOf(plane) + margin.right; ++x) {
          std::byte* const expected = view.at(x, y, channel);
          const std::byte* const actual = memory + (expected - image.planes[plane].expected.data());
          std::copy(actual, actual + bytes, expected);
        }
      }
    }
  }
}

void Call::restore() {
  arguments = goodArguments_;
  for (Image& image : images) {
    for (size_t n = 0; n < image.planes.size(); ++n) {
      Image::Plane& plane = image.planes[n];
      if (n < image.pointers.size()) image.pointers[n] = plane.first;
      if (image.isArray()) {  // images are never spoiled
        plane.expected = plane.before;
        std::copy(plane.before.begin(), plane.before.end(), plane.memory.begin());
      }
    }
  }
}

/// Expects the float that is there wherever it will do.
void Call::acceptFloats(Image& image) {
  const View view = image.view(&Image::Plane::expected);
  const Element part = partOf(view.element);
  const int parts = partsIn(view.element), bytes = bytesOf(part);
  for (int y = 0; y < image.size.height; ++y) {
    for (int n = 0; n < view.channels * parts; ++n) {
      Image::Plane& plane = image.planes[image.layout.planar ? static_cast<size_t>(n / parts) : 0];
      for (int x = 0; x < image.widthOf(image.layout.planar ? static_cast<size_t>(n / parts) : 0); ++x) {
        std::byte* const expected = view.at(x, y, n / parts) + n % parts * bytes;
        const std::byte* const actual = plane.memory.begin() + (expected - plane.expected.data());
        const bool accepted = part == Element::f32 ? isAccepted<float>(expected, actual, anyNaN, tolerance)
                                                   : isAccepted<double>(expected, actual, anyNaN, tolerance);
        if (accepted) std::copy(actual, actual + bytes, expected);
      }
    }
  }
}

std::string Call::difference() {
  for (Image& image : images) {
    const std::string name = function.parameters[static_cast<size_t>(image.parameter)].name;
    for (size_t n = 0; n < image.planes.size(); ++n) {
      Image::Plane& plane = image.planes[n];
      const auto isEqual = [&] {
        return std::equal(plane.expected.begin(), plane.expected.end(), plane.memory.begin());
      };
      if (isEqual()) continue;
      const Element part = partOf(image.element);
      const bool isFloat = part == Element::f32 || part == Element::f64;
      if ((anyNaN || tolerance > 0) && image.written && isFloat) acceptFloats(image);
      if (isEqual()) continue;
      const auto at = std::mismatch(plane.expected.begin(), plane.expected.end(), plane.memory.begin()).first -
                      plane.expected.begin();
      const ptrdiff_t offset = at - (plane.first - plane.memory.begin());
      const ptrdiff_t row = image.step > 0 ? offset / image.step : 0;
      return text() + ": " + name + (image.layout.planar ? " plane " + std::to_string(n) : "") + ", byte " +
             std::to_string(offset - row * image.step) + " of row " + std::to_string(row) + " is " +
             std::to_string(static_cast<int>(plane.memory.begin()[at])) + ", not " +
             std::to_string(static_cast<int>(plane.expected[static_cast<size_t>(at)]));
    }
  }
  return {};
}

}  // namespace vemi::test
