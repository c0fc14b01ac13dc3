// One level of a wavelet transform against its formulas in double precision, rows and columns apart.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

#include "support/check.h"
#include "vemi/transform.h"

using namespace vemi::test;

namespace {

/// The sum of taps, and of their magnitudes, which bounds what its rounding may be.
struct Value {
  double sum = 0, magnitude = 0;

  void add(double tap, Value value) {
    sum += tap * value.sum;
    magnitude += std::fabs(tap) * value.magnitude;
  }
};

struct Filter {
  std::vector<float> taps;
  int anchor;

  /// s(i) gives an element; from the region's first pixel on.
  template <class S>
  Value forward(int x, const S& s) const {
    Value value;
    for (int k = 0; k < size(); ++k) value.add(taps[static_cast<size_t>(k)], s(2 * x + anchor - k));
    return value;
  }
  template <class S>
  void addInverse(Value& value, int i, const S& c) const {
    for (int m = (i + anchor - size()) / 2 - 1; m <= (i + anchor) / 2; ++m) {
      const int k = i + anchor - 1 - 2 * m;
      if (k >= 0 && k < size()) value.add(taps[static_cast<size_t>(k)], c(m));
    }
  }
  int size() const { return static_cast<int>(taps.size()); }
};

Filter filterOf(Call& maker, const std::string& which) {
  Filter filter = {std::vector<float>(static_cast<size_t>(maker.get<int>("len" + which))),
                   maker.get<int>("anchor" + which)};
  const std::byte* const taps = maker.constant("pTaps" + which);
  for (size_t k = 0; k < filter.taps.size(); ++k) filter.taps[k] = load<float>(taps + 4 * k);
  return filter;
}

const std::string quarters[2][2] = {{"pApprox", "pDetailY"}, {"pDetailX", "pDetailXY"}};  // [vertical][horizontal]

void forward(Call& call) {
  Call& maker = call.record("pSpec");
  const Filter filters[2] = {filterOf(maker, "Low"), filterOf(maker, "High")};
  const CallImage& image = call.image("pSrc");
  const View source = call.source();
  const int left = image.margin.left, columns = left + image.size.width + image.margin.right;
  double largest = 0;
  for (int y = 0; y < call.scenario.roiSize.height; ++y) {
    for (int channel = 0; channel < source.channels; ++channel) {
      for (const int vertical : {0, 1}) {
        std::vector<Value> row(static_cast<size_t>(columns));
        for (int x = -left; x < columns - left; ++x) {
          row[static_cast<size_t>(x + left)] = filters[vertical].forward(y, [&](int i) {
            const double pixel = load<float>(source.at(x, i, channel));
            return Value{pixel, std::fabs(pixel)};
          });
        }
        for (const int horizontal : {0, 1}) {
          const View result = call.image(quarters[vertical][horizontal]).view(&CallImage::Plane::expected);
          for (int x = 0; x < call.scenario.roiSize.width; ++x) {
            const Value value =
                filters[horizontal].forward(x, [&](int i) { return row[static_cast<size_t>(i + left)]; });
            store(result.at(x, y, channel), static_cast<float>(value.sum));
            largest = std::max(largest, value.magnitude);
          }
        }
      }
    }
  }
  call.tolerance = 1e-6 * largest;
}

void inverse(Call& call) {
  Call& maker = call.record("pSpec");
  const Filter filters[2] = {filterOf(maker, "Low"), filterOf(maker, "High")};
  const VemiSize size = call.scenario.roiSize;
  const int left = call.image("pApprox").margin.left, right = call.image("pApprox").margin.right;
  const View destination = call.destination();
  double largest = 0;
  for (int y = 0; y < 2 * size.height; ++y) {
    for (int channel = 0; channel < destination.channels; ++channel) {
      std::vector<Value> rows[2];  // of each horizontal filter
      for (const int horizontal : {0, 1}) {
        for (int x = -left; x < size.width + right; ++x) {
          Value value;
          for (const int vertical : {0, 1}) {
            const View quarter = call.image(quarters[vertical][horizontal]).view(&CallImage::Plane::before);
            filters[vertical].addInverse(value, y, [&](int m) {
              const double pixel = load<float>(quarter.at(x, m, channel));
              return Value{pixel, std::fabs(pixel)};
            });
          }
          rows[horizontal].push_back(value);
        }
      }
      for (int x = 0; x < 2 * size.width; ++x) {
        Value value;
        for (const int horizontal : {0, 1}) {
          filters[horizontal].addInverse(value, x,
                                         [&](int m) { return rows[horizontal][static_cast<size_t>(m + left)]; });
        }
        store(destination.at(x, y, channel), static_cast<float>(value.sum));
        largest = std::max(largest, value.magnitude);
      }
    }
  }
  call.tolerance = 1e-6 * largest;
}

TEST(Wavelet, EveryMember) {
  expectDefinition(membersOf("vemiWTFwd"), forward);
  expectDefinition(membersOf("vemiWTInv"), inverse);
}

// ---- Filters of the textbooks ---------------------------------------------------------------------------------------

struct Bank {
  const char* name;
  Filter forwardLow, forwardHigh, inverseLow, inverseHigh;
};

std::vector<Bank> banks() {
  const float r = std::sqrt(0.5f);
  const float d[4] = {0.48296291f, 0.83651630f, 0.22414387f, -0.12940952f};
  const float a[5] = {0.6029490182f, 0.2668641184f, -0.0782232665f, -0.0168641184f, 0.0267487574f};
  const float b[4] = {1.1150870525f, -0.5912717631f, -0.0575435263f, 0.0912717631f};
  return {
      {"Haar", {{r, r}, 1}, {{r, -r}, 1}, {{r, r}, 1}, {{-r, r}, 1}},
      {"5/3",
       {{-0.125f, 0.25f, 0.75f, 0.25f, -0.125f}, 2},
       {{-0.5f, 1, -0.5f}, 2},
       {{0.5f, 1, 0.5f}, 2},
       {{-0.125f, -0.25f, 0.75f, -0.25f, -0.125f}, 2}},
      {"9/7",
       {{a[4], a[3], a[2], a[1], a[0], a[1], a[2], a[3], a[4]}, 4},
       {{b[3], b[2], b[1], b[0], b[1], b[2], b[3]}, 4},
       {{-b[3], b[2], -b[1], b[0], -b[1], b[2], -b[3]}, 4},
       {{a[4], -a[3], a[2], -a[1], a[0], -a[1], a[2], -a[3], a[4]}, 4}},
      {"Daubechies",
       {{d[3], d[2], d[1], d[0]}, 1},
       {{-d[0], d[1], -d[2], d[3]}, 3},
       {{d[0], d[1], d[2], d[3]}, 3},
       {{d[3], -d[2], d[1], -d[0]}, 1}},
  };
}

struct Plane {
  int width, height, margin;
  std::vector<float> pixels = std::vector<float>(static_cast<size_t>((width + 2 * margin) * (height + 2 * margin)));

  int step() const { return (width + 2 * margin) * 4; }
  float& at(int x, int y) { return pixels[static_cast<size_t>((y + margin) * (width + 2 * margin) + x + margin)]; }
};

/// All coefficients that the inverse reads are made, so that the whole image comes back.
TEST(Wavelet, BanksGiveTheImageBack) {
  for (const Bank& bank : banks()) {
    Plane image{48, 20, 16}, back{48, 20, 0};
    Plane parts[4] = {{24, 10, 4}, {24, 10, 4}, {24, 10, 4}, {24, 10, 4}};
    Random random(11);
    for (float& pixel : image.pixels) pixel = static_cast<float>(random.below(256));
    const auto data = [](const Filter& filter) { return filter.taps.data(); };
    VemiWTFwdSpec_32f_C1R* forwardSpec = nullptr;
    VemiWTInvSpec_32f_C1R* inverseSpec = nullptr;
    ASSERT_EQ(
        vemiWTFwdInitAlloc_32f_C1R(&forwardSpec, data(bank.forwardLow), bank.forwardLow.size(), bank.forwardLow.anchor,
                                   data(bank.forwardHigh), bank.forwardHigh.size(), bank.forwardHigh.anchor),
        vemiOk);
    ASSERT_EQ(
        vemiWTInvInitAlloc_32f_C1R(&inverseSpec, data(bank.inverseLow), bank.inverseLow.size(), bank.inverseLow.anchor,
                                   data(bank.inverseHigh), bank.inverseHigh.size(), bank.inverseHigh.anchor),
        vemiOk);
    int bytes[2] = {};
    vemiWTFwdGetBufSize_C1R(forwardSpec, &bytes[0]);
    vemiWTInvGetBufSize_C1R(inverseSpec, &bytes[1]);
    std::vector<Vemi8u> buffer(static_cast<size_t>(std::max(bytes[0], bytes[1])));
    const int step = parts[0].step();
    EXPECT_EQ(
        vemiWTFwd_32f_C1R(&image.at(-8, -8), image.step(), &parts[0].at(-4, -4), step, &parts[1].at(-4, -4), step,
                          &parts[2].at(-4, -4), step, &parts[3].at(-4, -4), step, {32, 18}, forwardSpec, buffer.data()),
        vemiOk);
    EXPECT_EQ(
        vemiWTInv_32f_C1R(&parts[0].at(0, 0), step, &parts[1].at(0, 0), step, &parts[2].at(0, 0), step,
                          &parts[3].at(0, 0), step, {24, 10}, &back.at(0, 0), back.step(), inverseSpec, buffer.data()),
        vemiOk);
    float largest = 0;
    for (int y = 0; y < 20; ++y) {
      for (int x = 0; x < 48; ++x) largest = std::max(largest, std::fabs(back.at(x, y) - image.at(x, y)));
    }
    EXPECT_LT(largest, 1e-3f) << bank.name;
    EXPECT_EQ(vemiWTFwdFree_32f_C1R(forwardSpec), vemiOk);
    EXPECT_EQ(vemiWTInvFree_32f_C1R(inverseSpec), vemiOk);
  }
}

TEST(Wavelet, BuffersAndAnchors) {
  const float taps[9] = {};
  VemiWTFwdSpec_32f_C3R* forwardSpec = nullptr;
  VemiWTInvSpec_32f_C1R* inverseSpec = nullptr;
  int bytes = 0;
  ASSERT_EQ(vemiWTFwdInitAlloc_32f_C3R(&forwardSpec, taps, 9, 4, taps, 7, 4), vemiOk);
  EXPECT_EQ(vemiWTFwdGetBufSize_C3R(forwardSpec, &bytes), vemiOk);
  EXPECT_EQ(bytes, (512 + 4 + 3) * 4 + 2080);
  EXPECT_EQ(vemiWTFwdFree_32f_C3R(forwardSpec), vemiOk);
  // Two anchors of 0 make a record, and a buffer size, but no transform.
  ASSERT_EQ(vemiWTInvInitAlloc_32f_C1R(&inverseSpec, taps, 2, 0, taps, 3, 0), vemiOk);
  EXPECT_EQ(vemiWTInvGetBufSize_C1R(inverseSpec, &bytes), vemiOk);
  EXPECT_EQ(bytes, (256 + 2 - 1) * 4 + 1056);
  float pixels[64] = {};
  EXPECT_EQ(vemiWTInv_32f_C1R(pixels, 4, pixels, 4, pixels, 4, pixels, 4, {1, 1}, pixels + 32, 8, inverseSpec,
                              reinterpret_cast<Vemi8u*>(pixels)),
            vemiErrContext);
  EXPECT_EQ(vemiWTInvFree_32f_C1R(inverseSpec), vemiOk);
  EXPECT_EQ(vemiWTFwdInitAlloc_32f_C3R(&forwardSpec, taps, 1 << 29, 4, taps, 7, 4), vemiErrMemAlloc);
}

}  // namespace
