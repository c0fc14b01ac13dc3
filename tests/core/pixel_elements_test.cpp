// Rows of pixels of elements wider than bytes, and between elements of different widths.

#include <vector>

#include "core/pixels.h"
#include "pixel_rows.h"

using namespace vemi;
using namespace vemi::test;

namespace {

TEST(PixelElements, OfTwoAndFourBytes) {
  forTypes<uint16_t, uint32_t>([](auto element) {
    using T = decltype(element);
    expectMixed<T, InterleavedPixels<C3>, InterleavedPixels<C3>>();
    expectMixed<T, InterleavedPixels<AC4>, InterleavedPixels<AC4>>();
    expectMixed<T, InterleavedPixels<C4>, PlanarPixels<4>>();
    expectMixed<T, PlanarPixels<3>, InterleavedPixels<C3>>();
    expectMixed<T, PlanarPixels<2>, InterleavedPixels<C2>>();
  });
}

/// The low bytes of elements of another width.
template <class To>
struct InWidth {
  template <class D, class... V>
  HWY_INLINE auto operator()([[maybe_unused]] D d, V... v) const {
    const hn::Rebind<To, D> dTo;
    if constexpr (sizeof(To) > sizeof(hn::TFromD<D>)) {
      return std::tuple(hn::PromoteTo(dTo, v)...);
    } else {
      const hn::RebindToSigned<D> dSigned;
      return std::tuple(hn::DemoteTo(dTo, hn::BitCast(dSigned, hn::And(v, hn::Set(d, 255))))...);
    }
  }
};

template <class To, class From, class DL, class SL>
void expectInWidth() {
  forPixelRows(laneCount<uint8_t>, 1, [&](ptrdiff_t width, Place place) {
    const RowMemory<From, SL> src(width, place);
    const RowMemory<To, DL> dst(width, place), streamed(width, place);
    const auto isMoved = [&](const RunsInMemory<To>& memory) {
      return memory.holds(movedRow(width, DL::channels, memory.original(), SL::channels, src.original()));
    };
    mapPixels(width, InWidth<To>(), dst.destination(), src.source());
    ASSERT_TRUE(isMoved(dst) && src.untouched());
    if constexpr (canStreamPixels<InWidth<To>, decltype(dst.destination()), decltype(src.source())>) {
      streamPixels(width, InWidth<To>(), streamed.destination(), src.source());
      ASSERT_TRUE(isMoved(streamed)) << "streamed";
    }
  });
}

TEST(PixelElements, OfDifferentWidths) {
  expectInWidth<uint16_t, uint8_t, InterleavedPixels<C3>, InterleavedPixels<C3>>();
  expectInWidth<uint16_t, uint8_t, PlanarPixels<3>, InterleavedPixels<AC4>>();
  expectInWidth<uint32_t, uint8_t, InterleavedPixels<AC4>, PlanarPixels<3>>();
  expectInWidth<uint8_t, uint16_t, InterleavedPixels<C3>, InterleavedPixels<C3>>();
  expectInWidth<uint8_t, uint16_t, InterleavedPixels<AC4>, InterleavedPixels<C3>>();
}

}  // namespace
