// Medians of 16 bits by the counts of the values in a window that moves by single pixels, to and fro over the region,
// along its longer side, so that few pixels enter and leave. Values are counted whole, without their last four bits and
// without their last eight: the median is searched among the latter from the one before on, then in the others.

#include <algorithm>
#include <cstring>

#include "core/scratch.h"
#include "filter/median_counts.h"

namespace vemi::filter {
namespace {

template <class Count>
class Counts {
 public:
  static constexpr ptrdiff_t length = 0x10000 + 0x1000 + 0x100;

  explicit Counts(Count* memory) : whole_(memory), twelve_(memory + 0x10000), eight_(memory + 0x11000) {
    std::fill_n(memory, length, Count());
  }

  void enter(Vemi16s value) { change(value, 1); }
  void leave(Vemi16s value) { change(value, -1); }

  /// The value at a place of all in order.
  Vemi16s at(Vemi64s rank) {
    while (before_ > rank) before_ -= eight_[--high_];
    while (before_ + eight_[high_] <= rank) before_ += eight_[high_++];
    Vemi64s before = before_;
    ptrdiff_t value = high_ * 16;
    for (; before + twelve_[value] <= rank; ++value) before += twelve_[value];
    value *= 16;
    for (; before + whole_[value] <= rank; ++value) before += whole_[value];
    return static_cast<Vemi16s>(value - 0x8000);
  }

 private:
  Count *whole_, *twelve_, *eight_;
  Vemi64s before_ = 0;  // how many have less in their upper byte than
  ptrdiff_t high_ = 0;

  void change(Vemi16s value, int by) {
    const ptrdiff_t v = value + 0x8000;
    whole_[v] = static_cast<Count>(whole_[v] + by);
    twelve_[v >> 4] = static_cast<Count>(twelve_[v >> 4] + by);
    eight_[v >> 8] = static_cast<Count>(eight_[v >> 8] + by);
    before_ += v >> 8 < high_ ? by : 0;
  }
};

/// A direction of the walk: how far its pixels lie apart, in bytes, and how many the region and the window have.
struct Axis {
  ptrdiff_t srcStep, dstStep, length, window;
};

/// f(each of the pixels in one line of a window)
template <class F>
void forPixels(const char* src, ptrdiff_t step, ptrdiff_t count, const F& f) {
  for (ptrdiff_t i = 0; i < count; ++i) {
    Vemi16s value;
    std::memcpy(&value, src + i * step, sizeof value);
    f(value);
  }
}

template <class Count>
void medianAlong(Axis along, Axis across, const char* src, char* dst, Counts<Count> counts) {
  const Vemi64s rank = Vemi64s{along.window} * across.window / 2;
  // Of the window that begins at `from`.
  const auto line = [&](Axis direction, Axis other, const char* from, ptrdiff_t index, const auto& f) {
    forPixels(from + index * direction.srcStep, other.srcStep, other.window, f);
  };
  const auto enter = [&](Vemi16s value) { counts.enter(value); };
  const auto leave = [&](Vemi16s value) { counts.leave(value); };
  const auto store = [&] {
    const Vemi16s median = counts.at(rank);
    std::memcpy(dst, &median, sizeof median);
  };
  for (ptrdiff_t i = 0; i < along.window; ++i) line(along, across, src, i, enter);
  for (ptrdiff_t j = 0;; ++j) {
    store();
    const bool isForth = j % 2 == 0;
    for (ptrdiff_t i = 1; i < along.length; ++i) {
      line(along, across, src, isForth ? 0 : along.window - 1, leave);
      line(along, across, src, isForth ? along.window : -1, enter);
      src += isForth ? along.srcStep : -along.srcStep;
      dst += isForth ? along.dstStep : -along.dstStep;
      store();
    }
    if (j + 1 == across.length) return;
    line(across, along, src, 0, leave);
    line(across, along, src, across.window, enter);
    src += across.srcStep;
    dst += across.dstStep;
  }
}

}  // namespace

VemiStatus medianByCounts(const MedianCall<Vemi16s>& call) {
  return withCountsOf(call, [&]<class Count>(Count) {
    Pieces pieces;
    const auto memory = pieces.add<Count>(Counts<Count>::length);
    const Scratch scratch(pieces);
    if (scratch.failed()) return vemiErrMemAlloc;
    const ptrdiff_t pixelStep = call.pixel * ptrdiff_t{sizeof(Vemi16s)};
    const Axis right = {pixelStep, pixelStep, call.roiSize.width, call.mask.width};
    const Axis down = {call.src.step, call.dst.step, call.roiSize.height, call.mask.height};
    for (int channel = 0; channel < call.channels; ++channel) {
      const auto* const src = reinterpret_cast<const char*>(call.src.first + channel);
      auto* const dst = reinterpret_cast<char*>(call.dst.first + channel);
      const Counts<Count> counts(scratch[memory]);
      if (call.mask.width < call.mask.height) {
        medianAlong(down, right, src, dst, counts);
      } else {
        medianAlong(right, down, src, dst, counts);
      }
    }
    return vemiOk;
  });
}

}  // namespace vemi::filter
