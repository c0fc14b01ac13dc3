// Template matching against sums in double precision.

#include <gtest/gtest.h>
#include <omp.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <vector>

#include "measure/plane.h"
#include "support/check.h"
#include "vemi/measure.h"

using namespace vemi::test;

namespace {

bool has(const Call& call, const char* word) { return call.function.name.find(word) != std::string::npos; }

struct Sums {
  double ofProducts = 0, ofSquares = 0, ofValues = 0;
};

Sums sumsAt(const Plane& image, const Plane& tpl, double level, int x0, int y0) {
  Sums sums;
  for (int j = 0; j < tpl.height; ++j) {
    for (int i = 0; i < tpl.width; ++i) {
      const double p = image.at(x0 + i, y0 + j);
      sums.ofProducts += p * (tpl.at(i, j) - level);
      sums.ofSquares += p * p;
      sums.ofValues += p;
    }
  }
  return sums;
}

/// Unscaled, and how far off a result may be: an error of all pixels is divided by the energy of the window.
void matched(Call& call) {
  const View source = call.source(0), destination = call.destination();
  const bool isFull = has(call, "Full"), isSame = has(call, "Same"), isLevel = has(call, "Level");
  const double floor = source.element == Element::f32 ? 0.0005f : 1;
  for (int channel = 0; channel < destination.channels; ++channel) {
    const Plane image(source, channel), tpl(call.source(1), channel);
    const int n = tpl.width * tpl.height;
    const int padX = isFull ? tpl.width - 1 : isSame ? tpl.width / 2 : 0;
    const int padY = isFull ? tpl.height - 1 : isSame ? tpl.height / 2 : 0;
    const Sums ofTemplate = sumsAt(tpl, tpl, 0, 0, 0);
    const double norm = std::sqrt(ofTemplate.ofSquares), mean = ofTemplate.ofValues / n;
    const double deviations = std::max(ofTemplate.ofSquares - mean * n * mean, floor);
    for (int y = 0; y < destination.size.height; ++y) {
      for (int x = 0; x < destination.size.width; ++x) {
        const Sums sums = sumsAt(image, tpl, isLevel ? mean : 0, x - padX, y - padY);
        double numerator = sums.ofProducts, energy = sums.ofSquares;
        if (isLevel) energy -= sums.ofValues * sums.ofValues * (1.0f / static_cast<float>(n));
        if (has(call, "Sqr")) numerator = energy + ofTemplate.ofSquares - 2 * numerator;
        energy = std::max(energy, floor);
        const double result =
            numerator / (isLevel ? std::sqrt(deviations * energy) : std::max(norm, floor) * std::sqrt(energy));
        store(destination.at(x, y, channel), static_cast<float>(result));
        // Products are off by their share of both norms, energies by some units of the sums that they are made of.
        const double off = std::sqrt(image.energy / energy) + sums.ofSquares / energy;
        call.tolerance = std::max(call.tolerance, 4e-7 * off);
      }
    }
  }
}

/// The result of floats, rounded.
void matchedInBytes(Call& call) {
  std::string name = call.function.name;
  name.replace(name.find("_8u_"), 4, "_8u32f_").resize(name.size() - 3);
  const auto floats = reinterpret_cast<decltype(&vemiCrossCorrFull_Norm_8u32f_C1R)>(exportNamed(name).function);
  const View destination = call.destination();
  const auto elements = static_cast<int>(destination.pixelBytes);
  std::vector<float> results(static_cast<size_t>(destination.size.width) * destination.size.height * elements);
  const int step = destination.size.width * elements * 4;
  ASSERT_EQ(floats(call.get<Vemi8u*>("pSrc"), call.get<int>("srcStep"), call.get<VemiSize>("srcRoiSize"),
                   call.get<Vemi8u*>("pTpl"), call.get<int>("tplStep"), call.get<VemiSize>("tplRoiSize"),
                   results.data(), step),
            vemiOk);
  const double factor = std::ldexp(1.0, -call.scenario.scaleFactor);
  call.forEachElement([&](int x, int y, int channel) {
    const double value = results[(static_cast<size_t>(y) * destination.size.width + x) * elements + channel];
    storeSaturated(Element::u8, destination.at(x, y, channel), std::llrint(std::clamp(value * factor, -1e9, 1e9)));
  });
}

const std::vector<VemiSize> sizes = {{1, 1},  {2, 1},   {3, 5},  {7, 8},  {16, 4},   {17, 17},
                                     {33, 6}, {40, 31}, {70, 9}, {9, 70}, {131, 12}, {20, 90}};

/// Members with templates of random sizes, over all kinds of rows.
void expectMatches(const std::string& members, const Reference& reference, const std::vector<int>& scaleFactors) {
  for (const char* const operation :
       {"vemiCrossCorrFull_Norm", "vemiCrossCorrSame_Norm", "vemiCrossCorrValid_Norm", "vemiCrossCorrFull_NormLevel",
        "vemiCrossCorrSame_NormLevel", "vemiCrossCorrValid_NormLevel", "vemiSqrDistanceFull_Norm",
        "vemiSqrDistanceSame_Norm", "vemiSqrDistanceValid_Norm"}) {
    unsigned seed = 0;
    for (const Export* const member : membersOf(operation, members)) {
      bool good = true;
      for (const VemiSize size : sizes) {
        for (const Edge edge : {Edge::front, Edge::back}) {
          const unsigned n = ++seed;
          const Scenario scenario = {size, allRows[n % 5], edge, n, scaleFactors[n % scaleFactors.size()], 1 + n % 7};
          good = good && expectCall(*member, scenario, reference);
        }
      }
    }
  }
}

TEST(Match, EveryMemberOfFloats) { expectMatches("(32f|8u32f|8s32f)_.*", matched, {0}); }

TEST(Match, EveryMemberOfBytes) { expectMatches("8u_.*", matchedInBytes, {0, -8, -6, 1, 3, -12, 40, -60}); }

// Several tiles of both kinds: parts side by side, and one below the other; tiles that grow, and one that wraps round.
TEST(Match, Tiles) {
  for (const char* const name : {"vemiCrossCorrValid_NormLevel_8u32f_C1R", "vemiSqrDistanceFull_Norm_8s32f_AC4R",
                                 "vemiCrossCorrSame_Norm_32f_C3R"}) {
    unsigned seed = 0;
    for (const VemiSize size : {VemiSize{300, 40}, {40, 300}, {180, 170}, {520, 1}, {1, 400}}) {
      const Export& member = exportNamed(name);
      for (int i = 0; i < 4; ++i) EXPECT_TRUE(expectCall(member, {size, Rows::odd, Edge::back, ++seed}, matched));
    }
  }
}

template <class T, class Match>
std::vector<float> matchOf(const Match& match, const std::vector<T>& image, VemiSize size, const std::vector<T>& tpl,
                           VemiSize tplSize) {
  const int bytes = sizeof(T), width = size.width - tplSize.width + 1, height = size.height - tplSize.height + 1;
  std::vector<float> result(static_cast<size_t>(width) * static_cast<size_t>(height));
  EXPECT_EQ(match(image.data(), size.width * bytes, size, tpl.data(), tplSize.width * bytes, tplSize, result.data(),
                  width * 4),
            vemiOk);
  return result;
}

TEST(Match, SpecialImages) {
  const VemiSize size = {50, 40}, tplSize = {9, 7};
  std::vector<float> image(2000), flat(2000, 200), tpl(63), zeros(63);
  Random random(3);
  for (float& each : image) each = static_cast<float>(random.below(256));
  for (int y = 0; y < 7; ++y) std::copy_n(image.begin() + (y + 20) * 50 + 30, 9, tpl.begin() + y * 9);
  const size_t place = 20 * 42 + 30;
  EXPECT_NEAR(matchOf(vemiCrossCorrValid_Norm_32f_C1R, image, size, tpl, tplSize)[place], 1, 1e-5);
  EXPECT_NEAR(matchOf(vemiCrossCorrValid_NormLevel_32f_C1R, image, size, tpl, tplSize)[place], 1, 1e-5);
  EXPECT_NEAR(matchOf(vemiSqrDistanceValid_Norm_32f_C1R, image, size, tpl, tplSize)[place], 0, 1e-5);
  EXPECT_NEAR(matchOf(vemiCrossCorrValid_Norm_32f_C1R, image, size, image, size)[0], 1, 1e-5);
  for (const float each : matchOf(vemiCrossCorrValid_NormLevel_32f_C1R, flat, size, tpl, tplSize)) {
    EXPECT_NEAR(each, 0, 0.05);
  }
  for (const float each : matchOf(vemiCrossCorrValid_Norm_32f_C1R, image, size, zeros, tplSize)) EXPECT_EQ(each, 0);
  const double energy = 63.0 * 200 * 200;
  for (const float each : matchOf(vemiSqrDistanceValid_Norm_32f_C1R, flat, size, zeros, tplSize)) {
    EXPECT_NEAR(each, std::sqrt(energy) / 0.0005, 1);
  }
  // The template's own norm enters the numerator, not the one that is at least 1.
  const std::vector<Vemi8u> ones(2000, 1), noTemplate(63);
  for (const float each : matchOf(vemiSqrDistanceValid_Norm_8u32f_C1R, ones, size, noTemplate, tplSize)) {
    EXPECT_NEAR(each, std::sqrt(63.0), 1e-4);
  }
  Vemi8u byte = 0;  // 1 is 256, and 2^-126 underflows in the root
  const std::vector<Vemi8u> bytes(2000, 9);
  const auto matchScaled = [&](int scaleFactor) {
    return vemiCrossCorrValid_Norm_8u_C1RSfs(bytes.data(), 50, size, bytes.data(), 50, size, &byte, 1, scaleFactor);
  };
  for (const auto& [scaleFactor, expected] :
       {std::pair{-8, 255}, {-7, 128}, {0, 1}, {1, 0}, {-127, 255}, {127, 0}, {128, 1}, {-135, 128}, {INT_MIN, 1}}) {
    EXPECT_EQ(matchScaled(scaleFactor), vemiOk);
    EXPECT_EQ(byte, expected) << scaleFactor;
  }
}

// A NaN in an alpha reaches nothing; orders beyond the transforms' are refused before anything is read.
TEST(Match, AlphaAndOrders) {
  std::vector<float> image(4 * 400, 3), tpl(4 * 12, 2), result(4 * 400, -1);
  for (size_t i = 3; i < image.size(); i += 4) image[i] = NAN;
  for (size_t i = 3; i < tpl.size(); i += 4) tpl[i] = INFINITY;
  EXPECT_EQ(vemiCrossCorrSame_Norm_32f_AC4R(image.data(), 320, {20, 20}, tpl.data(), 64, {4, 3}, result.data(), 320),
            vemiOk);
  for (size_t i = 0; i < result.size(); ++i) {
    EXPECT_TRUE(i % 4 == 3 ? result[i] == -1 : result[i] > 0 && result[i] < 1.001f) << i;
  }
  const VemiSize size = {(1 << 29) + 1, 1};
  EXPECT_EQ(vemiCrossCorrFull_Norm_32f_C1R(image.data(), 1, size, tpl.data(), 1, size, result.data(), 1),
            vemiErrFftOrder);
}

TEST(Match, TeamsOfAnySize) {
  const VemiSize size = {300, 200};
  Random random(8);
  std::vector<Vemi8u> image(3 * 300 * 200), tpl(3 * 12 * 9);
  random.fill(reinterpret_cast<std::byte*>(image.data()), image.size());
  random.fill(reinterpret_cast<std::byte*>(tpl.data()), tpl.size());
  const int former = omp_get_max_threads();
  std::vector<float> alone(image.size()), together(image.size());
  for (const int team : {1, 2, 3, 7}) {
    omp_set_num_threads(team);
    for (const auto match : {vemiCrossCorrSame_Norm_8u32f_C3R, vemiCrossCorrSame_NormLevel_8u32f_C3R}) {
      omp_set_num_threads(1);
      EXPECT_EQ(match(image.data(), 900, size, tpl.data(), 36, {12, 9}, alone.data(), 3600), vemiOk);
      omp_set_num_threads(team);
      EXPECT_EQ(match(image.data(), 900, size, tpl.data(), 36, {12, 9}, together.data(), 3600), vemiOk);
      EXPECT_EQ(alone, together) << team;
    }
  }
  omp_set_num_threads(former);
}

}  // namespace
