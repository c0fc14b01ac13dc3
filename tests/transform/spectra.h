// What the tests of Fourier transforms share: sums in double precision, the packed layout, references of all members.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <complex>
#include <cstdint>
#include <cstring>
#include <numbers>
#include <string>
#include <vector>

#include "support/check.h"
#include "vemi/transform.h"

namespace vemi::test {

using Complex = std::complex<double>;
using Plane = std::vector<Complex>;  // row after row

/// Sums of x(n) exp(sign 2 pi i n k / N) of `count` numbers, `stride` apart.
inline void sumLine(Complex* line, int count, int stride, int sign) {
  std::vector<Complex> sums(static_cast<size_t>(count)), w(static_cast<size_t>(count));
  for (int k = 0; k < count; ++k) {
    const long double turn = 2 * std::numbers::pi_v<long double> * k / count;
    w[static_cast<size_t>(k)] = {static_cast<double>(std::cos(turn)), static_cast<double>(sign * std::sin(turn))};
  }
  for (int k = 0; k < count; ++k) {
    for (int n = 0; n < count; ++n) {
      sums[static_cast<size_t>(k)] += line[ptrdiff_t{n} * stride] * w[static_cast<size_t>((int64_t{n} * k) % count)];
    }
  }
  for (int k = 0; k < count; ++k) line[ptrdiff_t{k} * stride] = sums[static_cast<size_t>(k)];
}

inline Plane transformed(Plane plane, int width, int height, int sign) {
  for (int y = 0; y < height; ++y) sumLine(&plane[static_cast<size_t>(y) * width], width, 1, sign);
  for (int x = 0; x < width; ++x) sumLine(&plane[static_cast<size_t>(x)], height, width, sign);
  return plane;
}

/// Where F(u, v) of a real image stands in its packed array, for u up to W / 2: of columns 0 and W - 1 for v up to H
/// / 2.
struct PackedPlace {
  int x, y;
  bool isImaginary;
};

template <class F>
void forPacked(int width, int height, const F& f) {
  const auto along = [](int k, int length, bool isImaginary) {
    return k == 0 ? 0 : 2 * k == length ? length - 1 : 2 * k - (isImaginary ? 0 : 1);
  };
  for (int u = 0; u <= width / 2; ++u) {
    const bool isReal = u == 0 || 2 * u == width;
    for (int v = 0; v < (isReal ? height / 2 + 1 : height); ++v) {
      for (const bool isImaginary : {false, true}) {
        if (isReal && isImaginary && (v == 0 || 2 * v == height)) continue;
        f(u, v,
          isReal ? PackedPlace{along(u, width, false), along(v, height, isImaginary), isImaginary}
                 : PackedPlace{along(u, width, isImaginary), v, isImaginary});
      }
    }
  }
}

inline double scaleOf(int flag, bool isForward, double count) {
  return flag == (isForward ? 1 : 2) ? 1 / count : flag == 4 ? 1 / std::sqrt(count) : 1;
}

inline Plane packedOf(const Plane& spectrum, int width, int height) {
  Plane packed(spectrum.size());
  forPacked(width, height, [&](int u, int v, PackedPlace at) {
    const Complex f = spectrum[static_cast<size_t>(v) * width + static_cast<size_t>(u)];
    packed[static_cast<size_t>(at.y) * width + static_cast<size_t>(at.x)] = at.isImaginary ? f.imag() : f.real();
  });
  return packed;
}

/// The real image of a packed array.
inline Plane unpacked(const Plane& packed, int width, int height) {
  Plane spectrum(packed.size());
  const auto at = [&](int u, int v) -> Complex& {
    return spectrum[static_cast<size_t>((v + height) % height) * width + static_cast<size_t>((u + width) % width)];
  };
  forPacked(width, height, [&](int u, int v, PackedPlace place) {
    const double value = packed[static_cast<size_t>(place.y) * width + static_cast<size_t>(place.x)].real();
    at(u, v) += place.isImaginary ? Complex{0, value} : Complex{value, 0};
  });
  forPacked(width, height, [&](int u, int v, PackedPlace) { at(-u, -v) = std::conj(at(u, v)); });
  return transformed(spectrum, width, height, 1);
}

inline double rootMeanSquare(const Plane& plane) {
  double sum = 0;
  for (const Complex& z : plane) sum += std::norm(z);
  return std::sqrt(sum / static_cast<double>(plane.size()));
}

inline Plane randomPlane(int width, int height, bool isComplex, unsigned seed) {
  Random random(seed);
  Plane plane(static_cast<size_t>(width) * static_cast<size_t>(height));
  const auto number = [&] { return static_cast<double>(static_cast<float>(random.below(200001) - 100000) / 1000); };
  for (Complex& z : plane) z = {number(), isComplex ? number() : 0};
  return plane;
}

/// To within a bound for single elements, relative to the root mean square of all, and an eighth of it for theirs.
inline void expectNear(const Plane& result, const Plane& expected, double bound, const std::string& where) {
  Plane error(result.size());
  double largest = 0;
  for (size_t i = 0; i < error.size(); ++i) {
    error[i] = result[i] - expected[i];
    largest = std::max(largest, std::abs(error[i]));
  }
  const double scale = rootMeanSquare(expected);
  EXPECT_LE(rootMeanSquare(error), scale * bound / 8) << where;
  EXPECT_LE(largest, scale * bound) << where;
}

inline std::string text(VemiSize size, int flag) {
  return std::to_string(size.width) + "x" + std::to_string(size.height) + " flag " + std::to_string(flag);
}

template <class Spec, class T = Vemi32f>
using Transform = VemiStatus (*)(const T*, int, T*, int, const Spec*, Vemi8u*);

/// Both directions of a random image. Any array is the pack of an image.
template <class Spec>
void expectRealImages(Transform<Spec> forward, Transform<Spec> inverse, const Spec* spec, VemiSize size, int flag,
                      double bound) {
  const int count = size.width * size.height, step = size.width * 4;
  const Plane image = randomPlane(size.width, size.height, false, static_cast<unsigned>(count + flag));
  std::vector<float> pixels, result(image.size());
  for (const Complex& z : image) pixels.push_back(static_cast<float>(z.real()));
  for (const bool isForward : {true, false}) {
    ASSERT_EQ((isForward ? forward : inverse)(pixels.data(), step, result.data(), step, spec, nullptr), vemiOk);
    Plane expected = isForward ? packedOf(transformed(image, size.width, size.height, -1), size.width, size.height)
                               : unpacked(image, size.width, size.height);
    for (Complex& z : expected) z *= scaleOf(flag, isForward, count);
    expectNear({result.begin(), result.end()}, expected, bound,
               (isForward ? "forward " : "inverse ") + text(size, flag));
  }
}

template <class Spec>
void expectComplexImages(Transform<Spec, Vemi32fc> forward, Transform<Spec, Vemi32fc> inverse, const Spec* spec,
                         VemiSize size, int flag, double bound) {
  const int count = size.width * size.height, step = size.width * 8;
  const Plane image = randomPlane(size.width, size.height, true, static_cast<unsigned>(count + flag));
  std::vector<std::complex<float>> pixels(image.begin(), image.end()), result(image.size());
  for (const bool isForward : {true, false}) {
    ASSERT_EQ((isForward ? forward : inverse)(reinterpret_cast<const Vemi32fc*>(pixels.data()), step,
                                              reinterpret_cast<Vemi32fc*>(result.data()), step, spec, nullptr),
              vemiOk);
    Plane expected = transformed(image, size.width, size.height, isForward ? -1 : 1);
    for (Complex& z : expected) z *= scaleOf(flag, isForward, count);
    expectNear({result.begin(), result.end()}, expected, bound,
               (isForward ? "forward " : "inverse ") + text(size, flag));
  }
}

inline const std::vector<int> allScaleFactors = {0, 1, 3, 10, 20, 40, -1, -8, -30, 150, -150, 300, INT_MAX, INT_MIN};

/// Each channel by itself. Complex ones hold pairs.
inline void floatsTransformed(Call& call, VemiSize size, int flag, double bound) {
  const std::string& name = call.function.name;
  const bool isForward = name.find("Fwd") != std::string::npos, isReal = name.find("CToC") == std::string::npos;
  const View source = call.source(), destination = call.destination();
  for (int channel = 0; channel < destination.channels; ++channel) {
    Plane plane(static_cast<size_t>(size.width) * static_cast<size_t>(size.height));
    for (size_t i = 0; i < plane.size(); ++i) {
      const int x = static_cast<int>(i) % size.width, y = static_cast<int>(i) / size.width;
      const std::byte* const at = source.at(x, y, channel);
      plane[i] = {load<float>(at), isReal ? 0 : load<float>(at + 4)};
    }
    if (!isReal) {
      plane = transformed(plane, size.width, size.height, isForward ? -1 : 1);
    } else if (isForward) {
      plane = packedOf(transformed(plane, size.width, size.height, -1), size.width, size.height);
    } else {
      plane = unpacked(plane, size.width, size.height);
    }
    for (Complex& z : plane) z *= scaleOf(flag, isForward, size.width * size.height);
    call.tolerance = std::max(call.tolerance, bound * rootMeanSquare(plane));
    for (size_t i = 0; i < plane.size(); ++i) {
      const int x = static_cast<int>(i) % size.width, y = static_cast<int>(i) / size.width;
      store(destination.at(x, y, channel), static_cast<float>(plane[i].real()));
      if (!isReal) store(destination.at(x, y, channel) + 4, static_cast<float>(plane[i].imag()));
    }
  }
}

/// Of C1, C3 and C4.
template <class Spec>
struct Transforms {
  Transform<Spec> forward[3], inverse[3];
};

/// The transform of floats, rounded: what the integer forms are defined by.
template <class Spec>
void integersTransformed(Call& call, VemiSize size, const Spec* spec, const Transforms<Spec>& transforms) {
  const bool isForward = call.function.name.find("Fwd") != std::string::npos;
  const View source = call.source(), destination = call.destination();
  const auto at = [&](const View& view, size_t i, int channel) {
    return view.at(static_cast<int>(i) % size.width, static_cast<int>(i) / size.width, channel);
  };
  const int elements = destination.channels;
  std::vector<float> image(static_cast<size_t>(size.width) * static_cast<size_t>(size.height) * elements);
  for (size_t i = 0; i < image.size(); ++i) {
    const size_t pixel = i / static_cast<size_t>(elements);
    const int channel = static_cast<int>(i) % elements;
    image[i] = static_cast<float>(loadInteger(source.element, at(source, pixel, channel)));
  }
  const int step = size.width * elements * 4;
  const auto transform = (isForward ? transforms.forward : transforms.inverse)[elements == 1   ? 0
                                                                               : elements == 3 ? 1
                                                                                               : 2];
  ASSERT_EQ(transform(image.data(), step, image.data(), step, spec, nullptr), vemiOk);
  const double factor = std::ldexp(1.0, -std::clamp(call.scenario.scaleFactor, -300, 300));
  for (size_t i = 0; i < image.size(); ++i) {
    const double value = std::clamp(static_cast<double>(image[i]) * factor, -0x1p40, 0x1p40);
    storeSaturated(destination.element,
                   at(destination, i / static_cast<size_t>(elements), static_cast<int>(i) % elements),
                   std::llrint(value));
  }
}

/// In place, misaligned, with a buffer of just the stated bytes at any address: not a bit changes.
template <class T, class Spec>
void expectSameBits(VemiStatus (*transform)(const T*, int, T*, int, const Spec*, Vemi8u*), const Spec* spec,
                    VemiStatus (*getBufSize)(const Spec*, int*), VemiSize size, int elements) {
  int bufSize = 0;
  ASSERT_EQ(getBufSize(spec, &bufSize), vemiOk);
  const size_t count = static_cast<size_t>(size.width) * static_cast<size_t>(size.height) * elements;
  std::vector<Vemi8u> image(count * sizeof(T) + 16), result(image.size()), buffer(static_cast<size_t>(bufSize) + 64);
  const int step = size.width * elements * static_cast<int>(sizeof(T));
  Random random(7);
  for (size_t i = 0; i < count * sizeof(T) / 4; ++i) {
    store(reinterpret_cast<std::byte*>(image.data() + 4 * i), static_cast<float>(random.below(2001) - 1000));
  }
  const auto as = [](std::vector<Vemi8u>& bytes, ptrdiff_t offset) {
    return reinterpret_cast<T*>(bytes.data() + offset);
  };
  ASSERT_EQ(transform(as(image, 0), step, as(result, 0), step, spec, nullptr), vemiOk);
  for (const int offset : {1, 4, 13}) {
    std::vector<Vemi8u> moved(image.size()), other(image.size());
    std::copy(image.begin(), image.end() - 16, moved.begin() + offset);
    std::fill(buffer.begin(), buffer.end(), Vemi8u{0xa5});
    const auto buffered = [&](T* dst) {
      ASSERT_EQ(transform(as(moved, offset), step, dst, step, spec, buffer.data() + 16 + offset), vemiOk);
    };
    buffered(as(other, offset));
    EXPECT_EQ(std::memcmp(result.data(), other.data() + offset, count * sizeof(T)), 0) << text(size, offset);
    buffered(as(moved, offset));
    EXPECT_EQ(std::memcmp(result.data(), moved.data() + offset, count * sizeof(T)), 0) << text(size, offset);
    for (int i = 0; i < 64; ++i) {
      const int at = i < 16 + offset ? i : bufSize + i;
      ASSERT_EQ(buffer[static_cast<size_t>(at)], 0xa5) << "beside the buffer, " << text(size, offset);
    }
  }
}

}  // namespace vemi::test
