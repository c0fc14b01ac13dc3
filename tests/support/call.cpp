#include "support/call.h"

#include <omp.h>
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
  return exportNamed(name);
}

bool makes(const Export& function, const void* recordType) {
  return std::any_of(function.parameters.begin(), function.parameters.end(), [=](const Parameter& parameter) {
    return parameter.role == Role::newRecord && parameter.recordType == recordType;
  });
}

const Export& onlyMakerOf(const Export& function, const Parameter& parameter) {
  std::vector<const Export*> makers;
  for (const Export& each : exports()) {
    if (makes(each, parameter.recordType)) makers.push_back(&each);
  }
  if (makers.size() == 1) return *makers[0];
  throw std::logic_error(function.name + ": " + std::to_string(makers.size()) + " functions make " + parameter.name +
                         ", so that its family's shape must name one");
}

}  // namespace

std::string Scenario::text() const {
  static const char* const rowNames[] = {"contiguous", "padded", "odd", "mixed", "overlapping"};
  return std::to_string(roiSize.width) + "x" + std::to_string(roiSize.height) + ", " +
         rowNames[static_cast<int>(rows)] + " rows (" + std::to_string(mixture) + "), " +
         (edge == Edge::front ? "front" : "back") + " guard, seed " + std::to_string(seed) + ", scaleFactor " +
         std::to_string(scaleFactor);
}

std::string Call::text() const { return function.name + " (" + scenario.text() + ")"; }

View CallImage::view(std::vector<std::byte> Plane::*bytes) {
  View view = {};
  view.pixelBytes = bytesOf(element) * (layout.planar ? 1 : layout.elements);
  view.element = element;
  view.channels = layout.channels;
  view.size = size;
  for (int channel = 0; channel < layout.channels; ++channel) {
    const size_t n = layout.planar ? static_cast<size_t>(channel) : 0;
    Plane& plane = planes[n];
    view.origin[channel] =
        (plane.*bytes).data() + (plane.first - plane.memory.begin()) + (layout.planar ? 0 : channel * bytesOf(element));
    view.step[channel] = plane.step;
    view.sizes[channel] = sizeOf(n);
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
  for (const Parameter& parameter : function.parameters) {
    if (parameter.role == Role::record && undecided_.count(parameter.name) != 0) record(parameter.name);
  }
  if (!undecided_.empty()) {
    throw std::logic_error(function.name + ": its family's shape must set " + *undecided_.begin());
  }
  for (CallImage& each : images) {
    layOut(each);
    fill(each);
    pass(each);
    if (each.role == Role::mask) mask_ = each.view(&CallImage::Plane::before);
  }
  if (const int index = function.indexOf("value"); index >= 0) {
    constants_ = constant("value");
    constantBytes_ = bytesOf(function.parameters[static_cast<size_t>(index)].element);
  }
  if (family.retouch != nullptr) family.retouch(*this);
  for (CallImage& each : images) settle(each);
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
    case Role::steps:
      for (CallImage& each : images) {
        if (!each.isArray() && each.stepParameter < 0) each.stepParameter = index;
      }
      if (parameter.role == Role::steps) addImage(parameter, index);
      break;
    case Role::number:
      slot.put(parameter.name == "scaleFactor" ? scenario.scaleFactor : 0);
      if (parameter.name != "scaleFactor") undecided_.insert(parameter.name);
      break;
    case Role::image:
    case Role::mask:
    case Role::array:
    case Role::buffer:
      addImage(parameter, index);
      break;
    case Role::newRecord:
      slot.put(&newRecord_);
      break;
    case Role::freedRecord:
      record(parameter.name, partnerOf(function, "Free", "InitAlloc").name);
      break;
    case Role::rect:
    case Role::point:
    case Role::record:
    case Role::other:
      undecided_.insert(parameter.name);
      break;
  }
}

void Call::addImage(const Parameter& parameter, int index) {
  const bool hasStep = parameter.role == Role::image || parameter.role == Role::mask;
  CallImage added;
  added.parameter = index;
  added.role = parameter.role;
  added.element = parameter.element;
  added.written = !parameter.isConst && parameter.role != Role::steps;
  if (parameter.role == Role::image) {
    added.layout = added.written ? function.destination : function.source;
    // A plane that is an argument by itself.
    if (added.layout.planar && !parameter.isPlanes) added.layout = {1, 1, false};
  }
  if (hasStep) added.size = scenario.roiSize;
  images.push_back(std::move(added));
  if (hasStep) return;
  // A result without bounds is a single one; the lengths of other arrays are the family's to say.
  if (!parameter.isPlanes && parameter.role != Role::buffer && (parameter.bound > 0 || images.back().written)) {
    setLengths(parameter.name, {std::max(parameter.bound, 1)});
  } else {
    undecided_.insert(parameter.name);
  }
}

CallImage& Call::image(const std::string& parameter) {
  for (CallImage& each : images) {
    if (each.parameter == function.indexOf(parameter)) return each;
  }
  throw std::logic_error(function.name + " has no image " + parameter);
}

/// A pointer to something that is no element gets its memory when its contents are set.
CallImage& Call::arrayOf(const std::string& parameter) {
  const int index = function.indexOf(parameter);
  const Parameter& described = function.parameters.at(static_cast<size_t>(index));
  for (CallImage& each : images) {
    if (each.parameter == index) return each;
  }
  CallImage added;
  added.parameter = index;
  added.role = Role::array;
  added.element = described.element == Element::none ? Element::u8 : described.element;
  added.written = !described.isConst;
  images.push_back(std::move(added));
  return images.back();
}

void Call::setLengths(const std::string& parameter, const std::vector<int>& lengths) {
  CallImage& array = arrayOf(parameter);
  const int count = static_cast<int>(lengths.size());
  const bool isPlanes = function.parameters[static_cast<size_t>(array.parameter)].isPlanes;
  array.lengths = lengths;
  if (isPlanes) array.layout = {count, count, true};
  array.size = {*std::max_element(lengths.begin(), lengths.end()), 1};
  undecided_.erase(parameter);
}

Call& Call::record(const std::string& parameter, const std::string& constructor) {
  std::unique_ptr<Call>& maker = makers_[parameter];
  if (maker == nullptr) {
    const Parameter& described = function.parameters.at(static_cast<size_t>(function.indexOf(parameter)));
    maker = std::make_unique<Call>(constructor.empty() ? onlyMakerOf(function, described) : exportNamed(constructor),
                                   scenario);
    if (maker->invoke() < vemiOk) throw std::logic_error(function.name + " needs a record from " + maker->text());
    set(parameter, maker->record_.get());
  }
  return *maker;
}

int Call::sizeBy(const std::string& query, const std::string& record) {
  const Export& asked = exportNamed(query);
  int bytes = -1;
  Slot slots[2];
  slots[0].put(get<void*>(record));
  slots[1].put(&bytes);
  if (asked.parameters.size() != 2 || asked.call(asked.function, slots) != vemiOk) {
    throw std::logic_error(query + " does not tell the size for " + function.name);
  }
  return bytes;
}

void Call::setBuffer(const std::string& parameter, int bytes, bool mayBeNull) {
  setLengths(parameter, {bytes});
  image(parameter).mayBeNull = mayBeNull;
}

void Call::setNumber(const std::string& parameter, double number, int index) {
  const int at = function.indexOf(parameter);
  const Parameter& described = function.parameters.at(static_cast<size_t>(at));
  undecided_.erase(parameter);
  if (described.role != Role::array && described.role != Role::steps) {
    const bool hasFields = described.element == Element::none;
    const Element element = hasFields ? Element::s32 : described.element;
    storeNumber(element, arguments[static_cast<size_t>(at)].bytes + index * bytesOf(element), number);
    return;
  }
  CallImage::Plane& plane = image(parameter).planes.at(0);
  const ptrdiff_t offset = plane.first - plane.memory.begin() + index * bytesOf(described.element);
  storeNumber(described.element, plane.memory.begin() + offset, number);
  storeNumber(described.element, plane.expected.data() + offset, number);
}

int Call::stepFor(const CallImage& image, int64_t rowBytes, size_t plane) const {
  if (scenario.rows == Rows::overlapping && !image.written) return 3;
  // Its number among all steps, and the last of the images that share it.
  unsigned number = static_cast<unsigned>(plane);
  for (int n = 0; n < image.stepParameter; ++n) {
    const Parameter& before = function.parameters[static_cast<size_t>(n)];
    number += before.role == Role::step ? 1 : before.role == Role::steps ? static_cast<unsigned>(before.bound) : 0;
  }
  int index = image.parameter;
  for (const CallImage& each : images) {
    if (each.stepParameter == image.stepParameter && image.stepParameter >= 0) index = each.parameter;
  }
  index += static_cast<int>(plane);
  const int elementBytes = bytesOf(image.element);
  const bool inMixture = scenario.mixture == 0 ? image.written : (scenario.mixture >> number & 1) != 0;
  const bool gaps = scenario.rows != Rows::contiguous && (scenario.rows != Rows::mixed || inMixture);
  const int64_t gap = scenario.rows == Rows::odd ? elementBytes * index + 1 : elementBytes * (index + 1);
  return static_cast<int>(rowBytes + (gaps ? gap : 0));
}

/// What the call may touch, from the first byte to the last, lies against a guard page; a buffer begins at an odd
/// address.
void Call::layOut(CallImage& image) {
  const Parameter& parameter = function.parameters[static_cast<size_t>(image.parameter)];
  const bool isBuffer = image.role == Role::buffer;
  if (image.size.width < (isBuffer ? 0 : 1)) {
    throw std::logic_error(function.name + ": its family's shape must give a size to " + parameter.name);
  }
  const bool hasSteps =
      image.stepParameter >= 0 && function.parameters[static_cast<size_t>(image.stepParameter)].role == Role::steps;
  const Margin& margin = image.margin;
  const int64_t elementBytes = bytesOf(image.element);
  const int64_t pixelBytes = elementBytes * (image.layout.planar ? 1 : image.layout.elements);
  // Of a channel of interest the call may touch its own elements only; an alpha channel belongs to the last pixel.
  const int64_t lastBytes = image.layout.channels == 1 ? elementBytes : pixelBytes;
  const int planeCount = image.layout.planar ? image.layout.elements : 1;
  for (size_t n = 0; n < static_cast<size_t>(planeCount); ++n) {
    const int64_t width = margin.left + image.sizeOf(n).width + margin.right;
    const int64_t height = margin.top + image.sizeOf(n).height + margin.bottom;
    const int step = stepFor(image, width * pixelBytes, hasSteps ? n : 0);
    const int64_t extent = (height - 1) * step + (width - 1) * pixelBytes + lastBytes;
    const int64_t first = margin.top * int64_t{step} + margin.left * pixelBytes;
    GuardedMemory memory(static_cast<size_t>(extent + (isBuffer ? 1 : 0)));
    std::byte* begin = scenario.edge == Edge::front ? memory.begin() : memory.end() - extent;
    if (isBuffer && reinterpret_cast<uintptr_t>(begin) % 2 == 0) begin += scenario.edge == Edge::front ? 1 : -1;
    image.planes.push_back({std::move(memory), begin + first, step, {}, {}});
  }
  if (parameter.role == Role::steps) {
    std::vector<int> steps;
    for (const CallImage& each : images) {
      if (each.stepParameter != image.parameter) continue;
      for (const CallImage::Plane& plane : each.planes) steps.push_back(plane.step);
    }
    const auto* const bytes = reinterpret_cast<const std::byte*>(steps.data());
    image.contents = {{bytes, bytes + steps.size() * sizeof(int)}};
  }
}

void Call::fill(CallImage& image) {
  for (CallImage::Plane& plane : image.planes) {
    plane.before.resize(plane.memory.size());
    // Of a buffer by numbers of their own: its size, which may depend on the team, leaves all else as it is.
    Random ofBuffer(scenario.seed);
    (image.role == Role::buffer ? ofBuffer : random).fill(plane.before.data(), plane.before.size());
  }
  const View view = image.view(&CallImage::Plane::before);
  const Margin& margin = image.margin;
  const bool isRead = !image.written || function.inPlace;  // what is only written may hold anything
  for (size_t n = 0; n < image.contents.size(); ++n) {
    CallImage::Plane& plane = image.planes[n];
    std::copy(image.contents[n].begin(), image.contents[n].end(),
              plane.before.begin() + (plane.first - plane.memory.begin()));
  }
  for (int y = -margin.top; isRead && image.contents.empty() && y < image.size.height + margin.bottom; ++y) {
    for (int x = -margin.left; x < image.size.width + margin.right; ++x) {
      for (int channel = 0; channel < view.channels; ++channel) {
        const VemiSize size = view.sizes[channel];
        if (x >= size.width + margin.right || y >= size.height + margin.bottom) continue;
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

void Call::settle(CallImage& image) {
  for (CallImage::Plane& plane : image.planes) {
    plane.expected = plane.before;
    std::memcpy(plane.memory.begin(), plane.before.data(), plane.before.size());
  }
}

void Call::pass(CallImage& image) {
  Slot& pointer = arguments[static_cast<size_t>(image.parameter)];
  if (image.layout.planar) {
    for (const CallImage::Plane& plane : image.planes) image.pointers.push_back(plane.first);
    pointer.put(image.pointers.data());
  } else {
    const bool isNull = image.mayBeNull && random.below(3) == 0;
    pointer.put(isNull ? nullptr : image.planes.front().first);
  }
  if (image.stepParameter < 0) return;
  if (function.parameters[static_cast<size_t>(image.stepParameter)].role == Role::step) {
    arguments[static_cast<size_t>(image.stepParameter)].put(image.planes.front().step);
  }
}

// ---- What references read and write ----

View Call::source(int index) {
  for (CallImage& each : images) {
    const bool isSource = each.role == Role::image && (!each.written || function.inPlace);
    if (isSource && index-- == 0) return each.view(&CallImage::Plane::before);
  }
  throw std::logic_error(function.name + " has fewer sources");
}

View Call::destination() {
  for (CallImage& each : images) {
    if (each.role == Role::image && each.written) return each.view(&CallImage::Plane::expected);
  }
  throw std::logic_error(function.name + " has no destination");
}

std::byte* Call::constant(const std::string& parameter, int channel) {
  const int index = function.indexOf(parameter);
  const Parameter& described = function.parameters.at(static_cast<size_t>(index));
  if (described.role != Role::array) return arguments[static_cast<size_t>(index)].bytes;
  return image(parameter).view(&CallImage::Plane::before).at(channel, 0);
}

View Call::array(const std::string& parameter) {
  CallImage& found = image(parameter);
  return found.view(found.written ? &CallImage::Plane::expected : &CallImage::Plane::before);
}

// ---- Calling and comparing ----

VemiStatus Call::invoke() {
  noteCall(text());
  const int threads = omp_get_max_threads();
  const bool countsThreads = familyOf(function).exceptions.countsThreads;
  if (countsThreads) omp_set_num_threads(1);
  const VemiStatus status = function.call(function.function, arguments.data());
  if (countsThreads) omp_set_num_threads(threads);
  forgetCall();
  if (newRecord_ != nullptr) {
    const Export& destructor = partnerOf(function, "InitAlloc", "Free");
    record_ = {std::exchange(newRecord_, nullptr), [&](void* record) {
                 Slot argument;
                 argument.put(record);
                 destructor.call(destructor.function, &argument);
               }};
  }
  for (const Parameter& parameter : function.parameters) {
    if (parameter.role == Role::freedRecord && status == vemiOk) makers_[parameter.name]->record_.release();
  }
  return status;
}

void Call::acceptWritten() {
  for (CallImage& image : images) {
    if (image.written) accept(image);
  }
}

void Call::accept(CallImage& image) {
  const View view = image.view(&CallImage::Plane::expected);
  const Margin& margin = image.margin;
  for (int channel = 0; channel < view.channels; ++channel) {
    const VemiSize size = view.sizes[channel];
    const CallImage::Plane& plane = image.planes[image.layout.planar ? static_cast<size_t>(channel) : 0];
    const ptrdiff_t bytes = bytesOf(image.element);
    for (int y = -margin.top; y < size.height + margin.bottom; ++y) {
      for (int x = -margin.left; x < size.width + margin.right; ++x) {
        std::byte* const expected = view.at(x, y, channel);
        const std::byte* const actual = plane.memory.begin() + (expected - plane.expected.data());
        std::copy(actual, actual + bytes, expected);
      }
    }
  }
}

void Call::restore() {
  arguments = goodArguments_;
  for (CallImage& image : images) {
    for (size_t n = 0; n < image.planes.size(); ++n) {
      CallImage::Plane& plane = image.planes[n];
      if (n < image.pointers.size()) image.pointers[n] = plane.first;
      if (image.isArray()) {  // images are never spoiled
        plane.expected = plane.before;
        std::copy(plane.before.begin(), plane.before.end(), plane.memory.begin());
      }
    }
  }
}

/// Calls f(expected, actual, part) for each float of an image's region, or of a record.
template <class F>
void Call::forEachFloat(CallImage& image, const F& f) {
  const bool isRecord = image.fields != Element::none;
  const Element part = isRecord ? image.fields : partOf(image.element);
  if (part != Element::f32 && part != Element::f64) return;
  const View view = image.view(&CallImage::Plane::expected);
  const int partBytes = bytesOf(part), elementBytes = std::max(bytesOf(image.element), partBytes);
  for (int channel = 0; channel < view.channels; ++channel) {
    CallImage::Plane& plane = image.planes[image.layout.planar ? static_cast<size_t>(channel) : 0];
    const int width = view.sizes[channel].width * bytesOf(image.element) / elementBytes;
    for (int y = 0; y < view.sizes[channel].height; ++y) {
      for (int x = 0; x < width; ++x) {
        for (int offset = 0; offset < elementBytes; offset += partBytes) {
          std::byte* const expected = view.at(isRecord ? x * partBytes : x, y, channel) + offset;
          f(expected, plane.memory.begin() + (expected - plane.expected.data()), part);
        }
      }
    }
  }
}

void Call::unifyWrittenNaNs() {
  for (CallImage& image : images) {
    if (!image.written) continue;
    forEachFloat(image, [](std::byte*, std::byte* actual, Element part) { unifyNaNs(part, actual); });
  }
}

/// Expects the float that is there wherever it will do.
void Call::acceptFloats(CallImage& image) {
  forEachFloat(image, [&](std::byte* expected, const std::byte* actual, Element part) {
    const bool accepted = part == Element::f32 ? isAccepted<float>(expected, actual, anyNaN, tolerance)
                                               : isAccepted<double>(expected, actual, anyNaN, tolerance);
    if (accepted) std::copy(actual, actual + bytesOf(part), expected);
  });
}

std::string Call::difference() {
  for (CallImage& image : images) {
    if (image.role == Role::buffer) accept(image);
    const std::string name = function.parameters[static_cast<size_t>(image.parameter)].name;
    for (size_t n = 0; n < image.planes.size(); ++n) {
      CallImage::Plane& plane = image.planes[n];
      const auto isEqual = [&] {
        return std::equal(plane.expected.begin(), plane.expected.end(), plane.memory.begin());
      };
      if (isEqual()) continue;
      if ((anyNaN || tolerance > 0) && image.written) acceptFloats(image);
      if (isEqual()) continue;
      const auto at = std::mismatch(plane.expected.begin(), plane.expected.end(), plane.memory.begin()).first -
                      plane.expected.begin();
      const ptrdiff_t offset = at - (plane.first - plane.memory.begin());
      const ptrdiff_t row = plane.step > 0 ? offset / plane.step : 0;
      return text() + ": " + name + (image.layout.planar ? " plane " + std::to_string(n) : "") + ", byte " +
             std::to_string(offset - row * plane.step) + " of row " + std::to_string(row) + " is " +
             std::to_string(static_cast<int>(plane.memory.begin()[at])) + ", not " +
             std::to_string(static_cast<int>(plane.expected[static_cast<size_t>(at)]));
    }
  }
  return {};
}

}  // namespace vemi::test
