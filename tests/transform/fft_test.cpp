// The fast Fourier transforms of images against sums in double precision, element by element of their layouts.

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <complex>
#include <cstdint>
#include <cstring>
#include <memory>
#include <numbers>
#include <vector>

#include "support/check.h"
#include "vemi/transform.h"

using namespace vemi::test;

namespace {

using Complex = std::complex<double>;
using Plane = std::vector<Complex>;  // row after row

/// Sums of x(n) exp(sign 2 pi i n k / N) of `count` numbers, `stride` apart.
void sumLine(Complex* line, int count, int stride, int sign) {
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

Plane transformed(Plane plane, int width, int height, int sign) {
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

double scaleOf(int flag, bool isForward, double count) {
  return flag == (isForward ? 1 : 2) ? 1 / count : flag == 4 ? 1 / std::sqrt(count) : 1;
}

template <class Spec, VemiStatus (*initAlloc)(Spec**, int, int, int, vemiHint), VemiStatus (*release)(Spec*)>
std::shared_ptr<Spec> specOf(int orderX, int orderY, int flag) {
  Spec* spec = nullptr;
  EXPECT_EQ(initAlloc(&spec, orderX, orderY, flag, 0), vemiOk);
  return {spec, release};
}
const auto realSpec = specOf<VemiFFTSpec_R_32f, vemiFFTInitAlloc_R_32f, vemiFFTFree_R_32f>;
const auto complexSpec = specOf<VemiFFTSpec_C_32fc, vemiFFTInitAlloc_C_32fc, vemiFFTFree_C_32fc>;

Plane packedOf(const Plane& spectrum, int width, int height) {
  Plane packed(spectrum.size());
  forPacked(width, height, [&](int u, int v, PackedPlace at) {
    const Complex f = spectrum[static_cast<size_t>(v) * width + static_cast<size_t>(u)];
    packed[static_cast<size_t>(at.y) * width + static_cast<size_t>(at.x)] = at.isImaginary ? f.imag() : f.real();
  });
  return packed;
}

/// The real image of a packed array.
Plane unpacked(const Plane& packed, int width, int height) {
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

double rootMeanSquare(const Plane& plane) {
  double sum = 0;
  for (const Complex& z : plane) sum += std::norm(z);
  return std::sqrt(sum / static_cast<double>(plane.size()));
}

/// Errors grow with the root of the number of levels.
double boundOf(int orders) { return 6e-8 * std::sqrt(2.0 + orders) * 4; }

// ---- The library's transforms of planes of doubles ------------------------------------------------------------------

struct Size {
  int orderX, orderY, width = 1 << orderX, height = 1 << orderY;
};

Plane randomPlane(Size size, bool isComplex, unsigned seed) {
  Random random(seed);
  Plane plane(static_cast<size_t>(size.width) * static_cast<size_t>(size.height));
  const auto number = [&] { return static_cast<double>(static_cast<float>(random.below(200001) - 100000) / 1000); };
  for (Complex& z : plane) z = {number(), isComplex ? number() : 0};
  return plane;
}

void expectNear(const Plane& result, const Plane& expected, int orders, const std::string& where) {
  Plane error(result.size());
  double largest = 0;
  for (size_t i = 0; i < error.size(); ++i) {
    error[i] = result[i] - expected[i];
    largest = std::max(largest, std::abs(error[i]));
  }
  const double scale = rootMeanSquare(expected);
  EXPECT_LE(rootMeanSquare(error), scale * boundOf(orders) / 4) << where;
  EXPECT_LE(largest, scale * boundOf(orders) * 2) << where;
}

template <class F>
void forSizes(const F& f) {
  for (int orderY = 0; orderY <= 7; ++orderY) {
    for (int orderX = 0; orderX <= 9; ++orderX) f(Size{orderX, orderY});
  }
  for (const auto& [x, y] : {std::pair{10, 3}, {11, 2}, {0, 12}, {12, 0}, {1, 11}, {13, 1}}) f(Size{x, y});
}

std::string text(Size size, int flag) {
  return std::to_string(size.width) + "x" + std::to_string(size.height) + " flag " + std::to_string(flag);
}

TEST(FFT, RealImagesAgainstSums) {
  unsigned seed = 0;
  forSizes([&](Size size) {
    const int flag = 1 << ++seed % 4, count = size.width * size.height, step = size.width * 4;
    const auto spec = realSpec(size.orderX, size.orderY, flag);
    const Plane image = randomPlane(size, false, seed);
    std::vector<float> pixels, packed(image.size()), back(image.size());
    for (const Complex& z : image) pixels.push_back(static_cast<float>(z.real()));
    ASSERT_EQ(vemiFFTFwd_RToPack_32f_C1R(pixels.data(), step, packed.data(), step, spec.get(), nullptr), vemiOk);
    Plane expected = packedOf(transformed(image, size.width, size.height, -1), size.width, size.height);
    for (Complex& z : expected) z *= scaleOf(flag, true, count);
    expectNear({packed.begin(), packed.end()}, expected, size.orderX + size.orderY, "forward " + text(size, flag));

    // Any array is the pack of an image.
    ASSERT_EQ(vemiFFTInv_PackToR_32f_C1R(pixels.data(), step, back.data(), step, spec.get(), nullptr), vemiOk);
    expected = unpacked(image, size.width, size.height);
    for (Complex& z : expected) z *= scaleOf(flag, false, count);
    expectNear({back.begin(), back.end()}, expected, size.orderX + size.orderY, "inverse " + text(size, flag));
  });
}

TEST(FFT, ComplexImagesAgainstSums) {
  unsigned seed = 0;
  forSizes([&](Size size) {
    const int flag = 1 << ++seed % 4, count = size.width * size.height, step = size.width * 8;
    const auto spec = complexSpec(size.orderX, size.orderY, flag);
    const Plane image = randomPlane(size, true, seed);
    std::vector<std::complex<float>> pixels(image.begin(), image.end()), result(image.size());
    const auto* const src = reinterpret_cast<const Vemi32fc*>(pixels.data());
    auto* const dst = reinterpret_cast<Vemi32fc*>(result.data());
    for (const bool isForward : {true, false}) {
      const auto transform = isForward ? vemiFFTFwd_CToC_32fc_C1R : vemiFFTInv_CToC_32fc_C1R;
      ASSERT_EQ(transform(src, step, dst, step, spec.get(), nullptr), vemiOk);
      Plane expected = transformed(image, size.width, size.height, isForward ? -1 : 1);
      for (Complex& z : expected) z *= scaleOf(flag, isForward, count);
      expectNear({result.begin(), result.end()}, expected, size.orderX + size.orderY,
                 (isForward ? "forward " : "inverse ") + text(size, flag));
    }
  });
}

// ---- All members, as users call them --------------------------------------------------------------------------------

struct Made {
  Size size;
  int flag;
};

Made madeOf(Call& call) {
  const Call& maker = call.record("pSpec");
  return {{maker.get<int>("orderX"), maker.get<int>("orderY")}, maker.get<int>("flag")};
}

/// Each channel by itself. Complex ones hold pairs.
void floatsTransformed(Call& call) {
  const auto [size, flag] = madeOf(call);
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
    call.tolerance = std::max(call.tolerance, 2 * boundOf(size.orderX + size.orderY) * rootMeanSquare(plane));
    for (size_t i = 0; i < plane.size(); ++i) {
      const int x = static_cast<int>(i) % size.width, y = static_cast<int>(i) / size.width;
      store(destination.at(x, y, channel), static_cast<float>(plane[i].real()));
      if (!isReal) store(destination.at(x, y, channel) + 4, static_cast<float>(plane[i].imag()));
    }
  }
}

/// The transform of floats, rounded: what the integer forms are defined by.
void integersTransformed(Call& call) {
  const auto [size, flag] = madeOf(call);
  const bool isForward = call.function.name.find("Fwd") != std::string::npos;
  const View source = call.source(), destination = call.destination();
  const auto spec = realSpec(size.orderX, size.orderY, flag);
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
  const auto transform = isForward       ? elements == 1   ? vemiFFTFwd_RToPack_32f_C1R
                                           : elements == 3 ? vemiFFTFwd_RToPack_32f_C3R
                                                           : vemiFFTFwd_RToPack_32f_C4R
                         : elements == 1 ? vemiFFTInv_PackToR_32f_C1R
                         : elements == 3 ? vemiFFTInv_PackToR_32f_C3R
                                         : vemiFFTInv_PackToR_32f_C4R;
  ASSERT_EQ(transform(image.data(), step, image.data(), step, spec.get(), nullptr), vemiOk);
  const double factor = std::ldexp(1.0, -std::clamp(call.scenario.scaleFactor, -300, 300));
  for (size_t i = 0; i < image.size(); ++i) {
    const double value = std::clamp(static_cast<double>(image[i]) * factor, -0x1p40, 0x1p40);
    storeSaturated(destination.element,
                   at(destination, i / static_cast<size_t>(elements), static_cast<int>(i) % elements),
                   std::llrint(value));
  }
}

TEST(FFT, EveryMemberOfFloats) {
  expectDefinition(membersOf("vemiFFTFwd_RToPack", "32f_.*"), floatsTransformed);
  expectDefinition(membersOf("vemiFFTInv_PackToR", "32f_.*"), floatsTransformed);
  expectDefinition(membersOf("vemiFFTFwd_CToC"), floatsTransformed);
  expectDefinition(membersOf("vemiFFTInv_CToC"), floatsTransformed);
}

TEST(FFT, EveryMemberOfIntegers) {
  const std::vector<int> scaleFactors = {0, 1, 3, 10, 20, 40, -1, -8, -30, 150, -150, 300, INT_MAX, INT_MIN};
  expectDefinition(membersOf("vemiFFTFwd_RToPack", "8u32s_.*"), integersTransformed, scaleFactors);
  expectDefinition(membersOf("vemiFFTInv_PackToR", "32s8u_.*"), integersTransformed, scaleFactors);
}

/// In place, misaligned, with a buffer of just the stated bytes at any address: not a bit changes.
template <class T, class Spec>
void expectSameBits(VemiStatus (*transform)(const T*, int, T*, int, const Spec*, Vemi8u*), const Spec* spec,
                    VemiStatus (*getBufSize)(const Spec*, int*), Size size, int elements) {
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

TEST(FFT, SameBitsHoweverCalled) {
  for (const auto& [x, y] : {std::pair{0, 5},
                             {5, 0},
                             {1, 1},
                             {2, 6},
                             {6, 2},
                             {7, 3},
                             {8, 1},
                             {8, 8},
                             {9, 4},
                             {10, 5},
                             {10, 7},
                             {11, 1},
                             {12, 1},
                             {11, 9},
                             {13, 0},
                             {15, 0},
                             {3, 12}}) {
    const Size size{x, y};
    const auto real = realSpec(x, y, 4);
    const auto complex = complexSpec(x, y, 2);
    const auto ofReal = [&](auto transform, int elements) {
      expectSameBits<Vemi32f, VemiFFTSpec_R_32f>(transform, real.get(), vemiFFTGetBufSize_R_32f, size, elements);
    };
    ofReal(vemiFFTFwd_RToPack_32f_C1R, 1);
    ofReal(vemiFFTInv_PackToR_32f_C1R, 1);
    ofReal(vemiFFTFwd_RToPack_32f_C4R, 4);
    ofReal(vemiFFTInv_PackToR_32f_C3R, 3);
    expectSameBits<Vemi32fc, VemiFFTSpec_C_32fc>(vemiFFTFwd_CToC_32fc_C1R, complex.get(), vemiFFTGetBufSize_C_32fc,
                                                 size, 1);
    expectSameBits<Vemi32fc, VemiFFTSpec_C_32fc>(vemiFFTInv_CToC_32fc_C1R, complex.get(), vemiFFTGetBufSize_C_32fc,
                                                 size, 1);
  }
}

/// A constant image has one number in its spectrum, and small integers stay exact.
TEST(FFT, WhatIsExact) {
  for (const auto& [x, y] : {std::pair{1, 1}, {3, 4}, {7, 5}, {9, 6}, {5, 9}, {12, 0}}) {
    const Size size{x, y};
    const std::vector<float> image(static_cast<size_t>(size.width) * static_cast<size_t>(size.height), 3.0f);
    std::vector<float> packed(image.size());
    const auto spec = realSpec(x, y, vemiFftScaleNone);
    ASSERT_EQ(
        vemiFFTFwd_RToPack_32f_C1R(image.data(), size.width * 4, packed.data(), size.width * 4, spec.get(), nullptr),
        vemiOk);
    EXPECT_EQ(packed[0], 3.0f * static_cast<float>(image.size())) << text(size, 8);
    EXPECT_EQ(std::count(packed.begin(), packed.end(), 0.0f), static_cast<ptrdiff_t>(image.size() - 1))
        << text(size, 8);
  }
  const float square[] = {5, 7, 11, 13};
  float packed[4];
  ASSERT_EQ(vemiFFTFwd_RToPack_32f_C1R(square, 8, packed, 8, realSpec(1, 1, 8).get(), nullptr), vemiOk);
  EXPECT_EQ(std::vector<float>(packed, packed + 4), (std::vector<float>{36, -4, -12, 0}));
  const float line[] = {5, 7, 11, 2};
  ASSERT_EQ(vemiFFTFwd_RToPack_32f_C1R(line, 16, packed, 16, realSpec(2, 0, 8).get(), nullptr), vemiOk);
  EXPECT_EQ(std::vector<float>(packed, packed + 4), (std::vector<float>{25, -6, -5, 7}));
}

TEST(FFT, BufferSizesAreTheStatedOnes) {
  const auto realBytes = [](int x, int y) {
    int bytes = 0;
    EXPECT_EQ(vemiFFTGetBufSize_R_32f(realSpec(x, y, 1).get(), &bytes), vemiOk);
    return bytes;
  };
  EXPECT_EQ(realBytes(0, 0), 64 + 16);
  EXPECT_EQ(realBytes(3, 3), 64 * 8 + 16);
  EXPECT_EQ(realBytes(6, 6), 64 * 64 + 8 * 64 + 16 + 16);
  EXPECT_EQ(realBytes(10, 3), 16 * 1024 + 8 * 512 + 16 + 16);
  EXPECT_EQ(realBytes(12, 2), 16 * 4096 + 8208 + 16);
  EXPECT_EQ(realBytes(14, 0), 16 * 16384 + 32 * 32 + 8208 + 16);
  int bytes = 0;
  EXPECT_EQ(vemiFFTGetBufSize_C_32fc(complexSpec(9, 2, 1).get(), &bytes), vemiOk);
  EXPECT_EQ(bytes, 8 * 512 + 16 + 16);
  EXPECT_EQ(vemiFFTGetBufSize_C_32fc(complexSpec(4, 11, 1).get(), &bytes), vemiOk);
  EXPECT_EQ(bytes, 64 * 2048 + 8208 + 16);
  VemiFFTSpec_R_32s* integers = nullptr;
  ASSERT_EQ(vemiFFTInitAlloc_R_32s(&integers, 4, 5, 8, 0), vemiOk);
  EXPECT_EQ(vemiFFTGetBufSize_R_32s(integers, &bytes), vemiOk);
  EXPECT_EQ(bytes, realBytes(4, 5) + 4 * (4 * 16 + 4 * 16 * 32) + 16);
  EXPECT_EQ(vemiFFTFree_R_32s(integers), vemiOk);
  // Buffers of 2^31 bytes and more are none.
  VemiFFTSpec_R_32f* floats = nullptr;
  for (const auto& [x, y] : {std::pair{27, 0}, {0, 25}, {30, 30}}) {
    EXPECT_EQ(vemiFFTInitAlloc_R_32f(&floats, x, y, 8, 0), vemiErrMemAlloc);
  }
  EXPECT_EQ(floats, nullptr);
  EXPECT_EQ(vemiFFTInitAlloc_R_32s(&integers, 14, 13, 8, 0), vemiErrMemAlloc);
}

}  // namespace
