// vemiFFT: the spectrum of a picture, and pictures of parts of it.

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <memory>
#include <vector>

#include "demo.h"
#include "pictures.h"

namespace demo {
namespace {

constexpr int order = 8;
constexpr VemiSize square = {1 << order, 1 << order};

struct Part {
  float re, im;
};

/// F(u, v) out of the packed array, u and v from -128 to 127.
Part numberAt(const Image<Vemi32f>& packed, int u, int v) {
  const int n = 1 << order, half = n / 2;
  const bool isMirrored = u < 0;
  if (isMirrored) {
    u = -u;
    v = -v;
  }
  v = (v + n) % n;
  Part part;
  if (u > 0 && u < half) {
    part = {*packed.at(2 * u - 1, v), *packed.at(2 * u, v)};
  } else {
    const int column = u == 0 ? 0 : n - 1, k = std::min(v, n - v);
    if (k == 0 || k == half) return {*packed.at(column, k == 0 ? 0 : n - 1), 0};
    part = {*packed.at(column, 2 * k - 1), *packed.at(column, 2 * k)};
    if (v > half) part.im = -part.im;
  }
  if (isMirrored) part.im = -part.im;
  return part;
}

/// The logarithm of what is in each frequency, with none in the middle.
Image8u pictureOf(const Image<Vemi32f>& packed) {
  Image8u picture(square, 1);
  const int half = square.width / 2;
  for (int y = 0; y < square.height; y++) {
    for (int x = 0; x < square.width; x++) {
      const Part part = numberAt(packed, x - half, y - half);
      const double magnitude = std::sqrt(static_cast<double>(part.re * part.re + part.im * part.im));
      *picture.at(x, y) = static_cast<Vemi8u>(std::clamp(std::lround(40 * std::log1p(50 * magnitude)), 0l, 255l));
    }
  }
  return picture;
}

/// Multiplies all numbers of the packed array by what factor(distance from frequency 0) says.
template <class Factor>
void weigh(Image<Vemi32f>& packed, Factor factor) {
  const int n = 1 << order, half = n / 2;
  const auto along = [&](int place) { return (place + 1) / 2; };  // the frequency of an element of a packed line
  for (int y = 0; y < n; y++) {
    for (int x = 0; x < n; x++) {
      const bool isEdge = x == 0 || x == n - 1;
      const int u = along(x), v = isEdge ? along(y) : std::min(y, n - y);
      *packed.at(x, y) *= static_cast<float>(factor(std::hypot(u, v) / half));
    }
  }
}

}  // namespace

void demoFft(const Demo& demo) {
  const Image8u grey = greenMiddleOf(demo.photo, square);
  Image<Vemi32f> image(square, 1), packed(square, 1), part(square, 1);
  Image8u result(square, 1);
  VemiFFTSpec_R_32f* made = nullptr;
  const Call init = CALL(vemiFFTInitAlloc_R_32f(&made, order, order, vemiFftScaleFwd, vemiHintNone));
  const std::unique_ptr<VemiFFTSpec_R_32f, VemiStatus (*)(VemiFFTSpec_R_32f*)> owner(made, vemiFFTFree_R_32f);
  const VemiFFTSpec_R_32f* const spec = made;
  int bytes = 0;
  CALL(vemiFFTGetBufSize_R_32f(spec, &bytes));
  std::vector<Vemi8u> buffer(static_cast<size_t>(bytes));

  CALL(vemiConvert_8u32f_C1R(grey.data(), grey.step(), image.data(), image.step(), square));
  const Call forward =
      CALL(vemiFFTFwd_RToPack_32f_C1R(image.data(), image.step(), packed.data(), packed.step(), spec, buffer.data()));
  demo.page.show(grey, "256 by 256 pixels", "The middle of the picture, its green channel.", {});
  demo.page.show(pictureOf(packed), "What waves it is made of",
                 "The logarithm of the magnitude of each frequency, with the mean of the picture, frequency 0, in the "
                 "middle. Edges are lines across themselves; the cross is the picture's rim.",
                 {init, forward});

  const auto filtered = [&](const char* title, const char* text, float ground, auto factor) {
    CALL(vemiCopy_32f_C1R(packed.data(), packed.step(), part.data(), part.step(), square));
    weigh(part, factor);
    const Call inverse =
        CALL(vemiFFTInv_PackToR_32f_C1R(part.data(), part.step(), part.data(), part.step(), spec, buffer.data()));
    CALL(vemiAddC_32f_C1IR(ground, part.data(), part.step(), square));
    CALL(vemiConvert_32f8u_C1R(part.data(), part.step(), result.data(), result.step(), square, vemiRndNear));
    demo.page.show(result, title, text, {inverse});
  };
  filtered("Low frequencies alone", "A soft low-pass: each frequency is multiplied by a Gaussian of its distance.", 0,
           [](double distance) { return std::exp(-distance * distance * 60); });
  filtered("Cut off sharply", "The same number of frequencies, all or nothing: edges ring.", 0,
           [](double distance) { return distance < 0.12 ? 1.0 : 0.0; });
  filtered("High frequencies alone", "What the soft low-pass takes away, on grey.", 128,
           [](double distance) { return 1 - std::exp(-distance * distance * 60); });
}

}  // namespace demo
