// Rows of pixels between layouts, against one sample at a time.

#include "core/pixels.h"

#include <cstring>
#include <utility>
#include <vector>

#include "pixel_rows.h"

using namespace vemi;
using namespace vemi::test;

namespace {

template <class T>
void expectAllLayouts() {
  const auto into = []<class DL, class... SL>(DL, SL...) { (expectMixed<T, DL, SL>(), ...); };
  constexpr InterleavedPixels<C1> c1;
  constexpr InterleavedPixels<C2> c2;
  constexpr InterleavedPixels<C3> c3;
  constexpr InterleavedPixels<C4> c4;
  constexpr InterleavedPixels<AC4> ac4;
  constexpr PlanarPixels<2> p2;
  constexpr PlanarPixels<3> p3;
  constexpr PlanarPixels<4> p4;
  into(c1, c3, ac4);
  into(c2, c2, p2);
  into(c3, c1, c3, ac4, p3);
  into(c4, c1, c3, c4);
  into(ac4, c3, ac4);
  into(p2, c2);
  into(p3, ac4, p3);
  into(p4, c4);
}

TEST(Pixels, OfBytesBetweenLayouts) { expectAllLayouts<uint8_t>(); }

template <class DL, class SL>
void expectMoved(ptrdiff_t item) {
  forPixelRows(2 * laneCount<uint8_t>, item, [&](ptrdiff_t width, Place place) {
    const RowMemory<uint8_t, SL> src(width, place);
    const RowMemory<uint8_t, DL> dst(width, place);
    movePixels(width, dst.destination(), src.source());
    ASSERT_TRUE(dst.holds(movedRow(width, DL::channels, dst.original(), SL::channels, src.original())));
    ASSERT_TRUE(src.untouched());
  });
}

TEST(Pixels, ShareChromaInPlanesInPairsAndPacked) {
  const auto betweenAll = []<class... L>(ptrdiff_t item, L...) {
    const auto into = [=]<class DL>(DL) { (expectMoved<DL, L>(item), ...); };
    (into(L()), ...);
  };
  betweenAll(2, LumaChromaPlanes<2>(), LumaChromaPairs<2>(), PackedLumaFirst(), PackedChromaFirst());
  betweenAll(4, LumaChromaPlanes<4>(), LumaChromaPairs<4>());
}

TEST(Pixels, OfThreeInFourChannelsMoveAsBytes) {
  expectMoved<InterleavedPixels<C3>, InterleavedPixels<AC4>>(1);
  expectMoved<InterleavedPixels<AC4>, InterleavedPixels<C3>>(1);
}

TEST(Pixels, TakeOneChannelForAllOfThem) {
  forRows(laneCount<uint16_t>, [](ptrdiff_t width, Place place) {
    const GuardedRow<uint16_t> grey(width, place), pixels(4 * width, place);
    auto expected = pixels.original();
    for (size_t i = 0; i < expected.size(); ++i) {
      if (i % 4 != 3) expected[i] = grey.original()[i / 4];
    }
    const uint16_t* const values = grey.data();
    mapPixels(width, RepeatedChannel<3>(), pixelRow<AC4>(pixels.data()), planeRow(values));
    ASSERT_TRUE(pixels.holds(expected));
  });
}

// A row of one channel ends with that channel's last element, which lies against the unmapped page.
template <int channels, class T>
void singleChannels() {
  forRows(laneCount<T>, [](ptrdiff_t width, Place place) {
    if (width == 0) return;
    const ptrdiff_t spread = channels * (width - 1) + 1;
    const GuardedRow<T> pixels(spread, place), plane(width, place), extracted(width, place);
    const GuardedRow<T> inserted(spread, place), moved(spread, place);
    std::vector<T> wanted;
    for (size_t i = 0; i < static_cast<size_t>(spread); i += channels) wanted.push_back(pixels.original()[i]);
    const auto insertedInto = [&](const GuardedRow<T>& dst, const std::vector<T>& elements) {
      auto expected = dst.original();
      for (size_t x = 0; x < elements.size(); ++x) expected[x * channels] = elements[x];
      return expected;
    };
    extractChannelRow<channels>(width, pixels.data(), extracted.data());
    ASSERT_TRUE(extracted.holds(wanted));
    copyChannelRow<1, channels>(width, plane.data(), inserted.data());
    ASSERT_TRUE(inserted.holds(insertedInto(inserted, plane.original())));
    copyChannelRow<channels, channels>(width, pixels.data(), moved.data());
    ASSERT_TRUE(moved.holds(insertedInto(moved, wanted)) && pixels.untouched());
  });
}

TEST(Pixels, OneChannelMovesAlone) {
  forTypes<Vemi8u, Vemi16s, Vemi32f>([](auto element) {
    singleChannels<3, decltype(element)>();
    singleChannels<4, decltype(element)>();
  });
}

}  // namespace
