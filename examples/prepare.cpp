#include "prepare.h"

#include <algorithm>

namespace demo {
namespace {

constexpr int smallest = 64;
constexpr int largest = 480;

Image8u withAlpha(const Image8u& picture) {
  const VemiSize size = picture.size();
  Image8u rgba(size, 4);
  if (picture.channels() == 4) {
    CALL(vemiCopy_8u_C4R(picture.data(), picture.step(), rgba.data(), rgba.step(), size));
    return rgba;
  }
  CALL(vemiSet_8u_C4CR(255, rgba.data() + 3, rgba.step(), size));
  if (picture.channels() == 3) {
    CALL(vemiCopy_8u_C3AC4R(picture.data(), picture.step(), rgba.data(), rgba.step(), size));
    return rgba;
  }
  for (int channel = 0; channel < 3; channel++) {
    CALL(vemiCopy_8u_C1C4R(picture.data(), picture.step(), rgba.data() + channel, rgba.step(), size));
  }
  return rgba;
}

bool tooLarge(VemiSize size) { return size.width > largest || size.height > largest; }

Image8u topLeft(const Image8u& picture, VemiSize size) {
  Image8u part(size, 4);
  CALL(vemiCopy_8u_C4R(picture.data(), picture.step(), part.data(), part.step(), size));
  return part;
}

/// Pixels of four bytes are one 32-bit element each to a function that only copies.
Image8u repeated(const Image8u& picture, VemiSize size) {
  Image8u tiles(size, 4);
  CALL(vemiCopyWrapBorder_32s_C1R(reinterpret_cast<const Vemi32s*>(picture.data()), picture.step(), picture.size(),
                                  reinterpret_cast<Vemi32s*>(tiles.data()), tiles.step(), size, 0, 0));
  return tiles;
}

}  // namespace

Image8u halved(const Image8u& picture) {
  const VemiSize low = {picture.width(), picture.height() / 2};
  const VemiSize size = {low.width / 2, low.height};
  Image8u rows(low, 4);
  CALL(vemiAdd_8u_C4RSfs(picture.at(0, 0), 2 * picture.step(), picture.at(0, 1), 2 * picture.step(),  //
                         rows.data(), rows.step(), low, 1));
  // A row is also an image one pixel wide: with a step of two pixels it has every second of them.
  Image8u even(size, 4), odd(size, 4);
  for (int y = 0; y < size.height; y++) {
    CALL(vemiCopy_8u_C4R(rows.at(0, y), 2 * 4, even.at(0, y), 4, {1, size.width}));
    CALL(vemiCopy_8u_C4R(rows.at(1, y), 2 * 4, odd.at(0, y), 4, {1, size.width}));
  }
  Image8u half(size, 4);
  CALL(vemiAdd_8u_C4RSfs(even.data(), even.step(), odd.data(), odd.step(), half.data(), half.step(), size, 1));
  return half;
}

Image8u prepare(const Image8u& picture) {
  Image8u rgba = withAlpha(picture);
  while (tooLarge(rgba.size()) && std::min(rgba.width(), rgba.height()) > 1) rgba = halved(rgba);
  if (tooLarge(rgba.size())) {
    rgba = topLeft(rgba, {std::min(largest, rgba.width()), std::min(largest, rgba.height())});
  }
  return repeated(rgba, {std::max(smallest, rgba.width()), std::max(smallest, rgba.height())});
}

}  // namespace demo
