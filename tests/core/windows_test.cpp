// Rows with neighbours: filters that are built on them, against sums over single pixels, at every width, with rows
// between unmapped pages, windows beside the pixel, in place and in bands.

#include "core/windows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <vector>

#include "support/elements.h"
#include "support/fenced_rows.h"
#include "window_filters.h"

using namespace vemi;
using namespace vemi::test;

namespace {

/// The pixels that the windows of a region reach, as they were before the call.
template <class T>
struct Picture {
  ptrdiff_t elements, channels;
  std::vector<T> element;

  /// Pixel (i, j) of the window of (x, y), the y-th channel of it.
  T at(ptrdiff_t x, ptrdiff_t y, ptrdiff_t channel) const {
    return element[static_cast<size_t>(y * elements + x * channels + channel)];
  }
};

template <class T>
Picture<T> pictureOf(const FencedRows& rows, ptrdiff_t elements, ptrdiff_t channels) {
  const std::vector<std::byte> bytes = rows.contents();
  Picture<T> picture = {elements, channels, std::vector<T>(bytes.size() / sizeof(T))};
  std::memcpy(picture.element.data(), bytes.data(), bytes.size());
  return picture;
}

template <class T>
using Filter = std::function<void(const FilterCall<T>&, ptrdiff_t first, ptrdiff_t count)>;

/// The element that a filter gives, from pixelAt(i, j) of its window.
template <class T>
using Definition = std::function<T(const std::function<T(int, int)>& pixelAt)>;

struct Scene {
  VemiSize roiSize;
  Window window;
  bool atEnd, inPlace;
  int bandRows;
};

template <class L, class T>
void expectScene(const Scene& scene, const Filter<T>& filter, const Definition<T>& definition) {
  const auto [size, window, atEnd, inPlace, bandRows] = scene;
  const ptrdiff_t reach = (size.width + window.width - 1) * L::elements;
  const int rows = size.height + window.height - 1;
  Random random(static_cast<uint64_t>(size.width * 8 + size.height));
  const auto fill = [&](std::byte* bytes, ptrdiff_t count) {
    for (ptrdiff_t i = 0; i < count; i += ptrdiff_t{sizeof(T)}) store(bytes + i, static_cast<T>(random.below(256)));
  };
  FencedRows src(rows, reach * ptrdiff_t{sizeof(T)}, atEnd);
  FencedRows dst(size.height, size.width * pixelBytes<T, L>, atEnd);
  src.fill(fill);
  dst.fill(fill);
  const Picture<T> before = pictureOf<T>(src, reach, L::elements);

  // The region's first pixel may lie far from the pixels that are read.
  T* const region = reinterpret_cast<T*>(src.row(0) + window.above * src.step()) + window.left * L::elements;
  const Image<T> inside = {region, src.step()}, outside = {reinterpret_cast<T*>(dst.row(0)), dst.step()};
  const Image<T> written = inPlace ? inside : outside;
  const FilterCall<T> call = {{region, src.step()}, written, size, window};
  Picture<T> expected = inPlace ? before : pictureOf<T>(dst, size.width * L::elements, L::elements);
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      for (int c = 0; c < L::channels; ++c) {
        const auto pixelAt = [&](int i, int j) { return before.at(x + i, y + j, c); };
        const ptrdiff_t row = inPlace ? y + window.above : y, pixel = inPlace ? x + window.left : x;
        expected.element[static_cast<size_t>(row * expected.elements + pixel * L::elements + c)] = definition(pixelAt);
      }
    }
  }
  for (int y = 0; y < size.height; y += bandRows) filter(call, y, std::min(bandRows, size.height - y));
  const FencedRows& result = inPlace ? src : dst;
  ASSERT_EQ(pictureOf<T>(result, expected.elements, L::elements).element, expected.element);
  if (!inPlace) {
    ASSERT_EQ(pictureOf<T>(src, reach, L::elements).element, before.element);
  }
}

template <class L, class T>
void expectFilter(VemiSize kernel, const Filter<T>& filter, const Definition<T>& definition) {
  const auto expect = [&](const Scene& scene) {
    expectScene<L, T>(scene, filter, definition);
    if (::testing::Test::HasFatalFailure()) {
      FAIL() << scene.roiSize.width << "x" << scene.roiSize.height << ", window at " << scene.window.left << ","
             << scene.window.above << ", end " << scene.atEnd << ", in place " << scene.inPlace << ", bands of "
             << scene.bandRows;
    }
  };
  std::vector<int> widths = {127, 128, 129, 191, 192, 193, 257};
  for (int width = 1; width <= 70; ++width) widths.push_back(width);
  for (const int width : widths) {
    const VemiSize size = {width, 1 + width % 5};
    const VemiPoint middle = {kernel.width / 2, kernel.height / 2}, corner = {kernel.width - 1, 0};
    for (const bool atEnd : {false, true}) {
      expect({size, Window::fromFirst(kernel, middle), atEnd, false, size.height});
      expect({size, Window::fromFirst(kernel, corner), atEnd, true, size.height});
    }
    expect({size, Window::fromFirst(kernel, {0, kernel.height - 1}), true, true, size.height});
    expect({size, Window::fromLast(kernel, {-3, kernel.height + 4}), true, false, 1});
    expect({size, Window::fromLast(kernel, corner), false, false, 2});
    if (::testing::Test::HasFatalFailure()) return;
  }
}

template <class F>
void forAllLayouts(const F& f) {
  f(C1());
  f(C3());
  f(C4());
  f(AC4());
}

int weightOf(int taps, int i) {
  constexpr int three[] = {1, 2, 1}, five[] = {1, 4, 6, 4, 1};
  return taps == 3 ? three[i] : five[i];
}

template <int taps>
Vemi8u binomialOfWindow(const std::function<Vemi8u(int, int)>& pixelAt) {
  int sum = 0;
  for (int j = 0; j < taps; ++j) {
    for (int i = 0; i < taps; ++i) sum += weightOf(taps, i) * weightOf(taps, j) * pixelAt(i, j);
  }
  return static_cast<Vemi8u>(std::nearbyint(sum / (taps == 3 ? 16.0 : 256.0)));
}

TEST(Windows, ColumnStageThenRowStage) {
  forAllLayouts([](auto layout) {
    using L = decltype(layout);
    expectFilter<L, Vemi8u>({3, 3}, binomialFilter<L, 3>, binomialOfWindow<3>);
    expectFilter<L, Vemi8u>({5, 5}, binomialFilter<L, 5>, binomialOfWindow<5>);
  });
}

// Rows that enter as they are, and rows that are converted when they enter.
TEST(Windows, FloatKernelsAddInTheOrderOfTheWindow) {
  forAllLayouts([](auto layout) {
    using L = decltype(layout);
    for (const VemiSize size : {VemiSize{1, 1}, VemiSize{4, 3}, VemiSize{3, 6}}) {
      std::vector<float> kernel(static_cast<size_t>(size.width * size.height));
      for (size_t i = 0; i < kernel.size(); ++i) {
        kernel[i] = 0.3f / static_cast<float>(i + 1) * (i % 3 == 2 ? -1.0f : 1.0f);
      }
      const auto sum = [&](const auto& pixelAt) {
        float total = 0;
        for (int j = 0; j < size.height; ++j) {
          for (int i = 0; i < size.width; ++i) {
            const int tap = (size.height - 1 - j) * size.width + size.width - 1 - i;
            const float product = static_cast<float>(pixelAt(i, j)) * kernel[static_cast<size_t>(tap)];
            total += product;
          }
        }
        return total;
      };
      const auto inBytes = [&](const auto& pixelAt) {
        return static_cast<Vemi8u>(std::nearbyint(std::clamp(sum(pixelAt), 0.0f, 255.0f)));
      };
      const auto filter = [&](const auto& call, ptrdiff_t first, ptrdiff_t count) {
        floatFilter<L>(call, kernel.data(), first, count);
      };
      expectFilter<L, Vemi32f>(size, filter, sum);
      expectFilter<L, Vemi8u>(size, filter, inBytes);
    }
  });
}

TEST(RowRing, RowsStandInOrderWhetherOwnOrNot) {
  constexpr int rows = 3;
  constexpr ptrdiff_t elements = 5;
  RowRing<Vemi16s> ring(rows, elements);
  std::vector<char> memory(static_cast<size_t>(ring.bytes()), 0x55);
  ring.place(memory.data());
  const Vemi16s elsewhere[elements] = {};
  std::vector<const Vemi16s*> entered;
  for (int i = 0; i < 10; ++i) {
    if (i % 4 == 3) {
      ring.enter(elsewhere);
      entered.push_back(elsewhere);
    } else {
      Vemi16s* const row = ring.turn();
      for (ptrdiff_t x = 0; x < slackElements; ++x) ASSERT_EQ(row[elements + x], 0);
      std::fill_n(row, elements, static_cast<Vemi16s>(i));
      entered.push_back(row);
    }
    for (int j = 0; i >= rows - 1 && j < rows; ++j) {
      const auto age = static_cast<size_t>(i - (rows - 1) + j);
      ASSERT_EQ(ring.rows()[j], entered[age]);
      ASSERT_EQ(*ring.rows()[j], age % 4 == 3 ? 0 : static_cast<Vemi16s>(age));
    }
  }
}

}  // namespace
