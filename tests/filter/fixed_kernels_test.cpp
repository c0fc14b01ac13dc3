// Filters with fixed kernels: vemiFilterSobelHoriz to vemiFilterLowpass.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "support/check.h"
#include "vemi/filter.h"

using namespace vemi::test;

namespace {

using Weights = std::vector<int>;

/// Floats are summed along the columns, then along the row of their sums; without weights for that, pixels and sums of
/// equal weights are added first. With a centre the sum is subtracted from so many times the pixel.
struct Kernel {
  Weights table;
  int divisor = 1;
  Weights column = {}, row = {};
  int centre = 0;

  int size() const { return table.size() == 9 ? 3 : 5; }
  int at(int i, int j) const { return table[static_cast<size_t>(j * size() + i)]; }
};

const std::map<std::string, Kernel>& kernels() {
  static const Weights ones3 = {1, 1, 1}, ones5 = {1, 1, 1, 1, 1}, bell3 = {1, 2, 1}, bell5 = {1, 4, 6, 4, 1};
  static const Weights minus8 = {-1, -1, -1, -1, 8, -1, -1, -1, -1};
  static const Weights minus24 = {-1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, 24,
                                  -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1};
  static const std::map<std::string, Kernel> all = {
      {"SobelHoriz3", {{-1, -2, -1, 0, 0, 0, 1, 2, 1}, 1, {-1, 0, 1}, bell3}},
      {"SobelHoriz5",
       {{-1, -4, -6, -4, -1, -2, -8, -12, -8, -2, 0, 0, 0, 0, 0, 2, 8, 12, 8, 2, 1, 4, 6, 4, 1},
        1,
        {-1, -2, 0, 2, 1},
        bell5}},
      {"SobelVert3", {{1, 0, -1, 2, 0, -2, 1, 0, -1}, 1, bell3, {1, 0, -1}}},
      {"SobelVert5",
       {{1, 2, 0, -2, -1, 4, 8, 0, -8, -4, 6, 12, 0, -12, -6, 4, 8, 0, -8, -4, 1, 2, 0, -2, -1},
        1,
        bell5,
        {1, 2, 0, -2, -1}}},
      {"SobelHorizSecond3", {{1, 2, 1, -2, -4, -2, 1, 2, 1}, 1, {1, -2, 1}, bell3}},
      {"SobelHorizSecond5",
       {{1, 4, 6, 4, 1, 0, 0, 0, 0, 0, -2, -8, -12, -8, -2, 0, 0, 0, 0, 0, 1, 4, 6, 4, 1}, 1, {1, 0, -2, 0, 1}, bell5}},
      {"SobelVertSecond3", {{1, -2, 1, 2, -4, 2, 1, -2, 1}, 1, bell3, {1, -2, 1}}},
      {"SobelVertSecond5",
       {{1, 0, -2, 0, 1, 4, 0, -8, 0, 4, 6, 0, -12, 0, 6, 4, 0, -8, 0, 4, 1, 0, -2, 0, 1}, 1, bell5, {1, 0, -2, 0, 1}}},
      {"SobelCross3", {{-1, 0, 1, 0, 0, 0, 1, 0, -1}, 1, {-1, 0, 1}, {1, 0, -1}}},
      {"SobelCross5",
       {{-1, -2, 0, 2, 1, -2, -4, 0, 4, 2, 0, 0, 0, 0, 0, 2, 4, 0, -4, -2, 1, 2, 0, -2, -1},
        1,
        {-1, -2, 0, 2, 1},
        {1, 2, 0, -2, -1}}},
      {"ScharrHoriz3", {{-3, -10, -3, 0, 0, 0, 3, 10, 3}, 1, {-1, 0, 1}, {3, 10, 3}}},
      {"ScharrVert3", {{-3, 0, 3, -10, 0, 10, -3, 0, 3}, 1, {3, 10, 3}, {-1, 0, 1}}},
      {"PrewittHoriz3", {{-1, -1, -1, 0, 0, 0, 1, 1, 1}, 1, {-1, 0, 1}, ones3}},
      {"PrewittVert3", {{1, 0, -1, 1, 0, -1, 1, 0, -1}, 1, ones3, {1, 0, -1}}},
      {"RobertsUp3", {{0, 0, -1, 0, 1, 0, 0, 0, 0}}},
      {"RobertsDown3", {{-1, 0, 0, 0, 1, 0, 0, 0, 0}}},
      {"Laplace3", {minus8, 1, ones3, ones3, 9}},
      {"Laplace5", {{-1, -3, -4, -3, -1, -3, 0, 6, 0, -3, -4, 6, 20, 6, -4, -3, 0, 6, 0, -3, -1, -3, -4, -3, -1}}},
      {"Hipass3", {minus8, 1, ones3, ones3, 9}},
      {"Hipass5", {minus24, 1, ones5, ones5, 25}},
      {"Sharpen3", {{-1, -1, -1, -1, 16, -1, -1, -1, -1}, 8, ones3, ones3, 17}},
      {"Gauss3", {{1, 2, 1, 2, 4, 2, 1, 2, 1}, 16, bell3, bell3}},
      {"Gauss5", {{2, 7, 12, 7, 2, 7, 31, 52, 31, 7, 12, 52, 127, 52, 12, 7, 31, 52, 31, 7, 2, 7, 12, 7, 2}, 571}},
      {"Lowpass3", {Weights(9, 1), 9, ones3, ones3}},
      {"Lowpass5", {Weights(25, 1), 25, ones5, ones5}},
  };
  return all;
}

const Kernel& kernelOf(const Call& call) {
  std::string name = call.function.name.substr(10);
  name = name.substr(0, name.find('_'));
  if (name.ends_with("Mask")) name.resize(name.size() - 4);
  const bool is3x3 = call.function.indexOf("maskSize") < 0 || call.get<int>("maskSize") == 33;
  return kernels().at(name + (is3x3 ? "3" : "5"));
}

/// In single precision, from the first term on that has a weight.
template <class At>
float sumOf(const Weights& weights, const At& at) {
  std::optional<float> sum;
  for (int j = 0; j < static_cast<int>(weights.size()); ++j) {
    const int weight = weights[static_cast<size_t>(j)];
    if (weight == 0) continue;
    const float term = static_cast<float>(weight) * at(j);
    sum = sum ? *sum + term : term;
  }
  return sum.value_or(0);
}

void filtered(Call& call) {
  call.anyNaN = true;
  const Kernel& kernel = kernelOf(call);
  const View source = call.source(), destination = call.destination();
  const int size = kernel.size(), reach = size / 2;
  call.forEachElement([&](int x, int y, int channel) {
    const auto place = [&](int i, int j) { return source.at(x + i - reach, y + j - reach, channel); };
    if (source.element == Element::f32) {
      const auto columnSum = [&](int i) {
        const auto pixel = [&](int j) { return load<float>(place(i, j)); };
        if (!kernel.column.empty()) return sumOf(kernel.column, pixel);
        const auto pair = [&](int j) { return j == 2 ? pixel(2) : pixel(j) + pixel(4 - j); };
        return sumOf({kernel.at(i, 0), kernel.at(i, 1), kernel.at(i, 2)}, pair);
      };
      const auto ofPairs = [&] { return columnSum(0) + columnSum(4) + (columnSum(1) + columnSum(3)) + columnSum(2); };
      float sum = kernel.column.empty() ? ofPairs() : sumOf(kernel.row, columnSum);
      if (kernel.centre != 0) sum = static_cast<float>(kernel.centre) * load<float>(place(reach, reach)) - sum;
      if (kernel.divisor != 1) sum *= 1.0f / static_cast<float>(kernel.divisor);
      store(destination.at(x, y, channel), sum);
      return;
    }
    int64_t sum = 0;
    for (int j = 0; j < size; ++j) {
      for (int i = 0; i < size; ++i) {
        if (kernel.at(i, j) != 0) sum += kernel.at(i, j) * loadInteger(source.element, place(i, j));
      }
    }
    const double quotient = std::nearbyint(static_cast<double>(sum) / kernel.divisor);
    storeSaturated(destination.element, destination.at(x, y, channel), static_cast<int64_t>(quotient));
  });
}

/// A pixel minus its neighbour, which is all that is read.
void difference(Call& call) {
  call.anyNaN = true;
  const View source = call.source(), destination = call.destination();
  const int side = call.function.name.find("Up") != std::string::npos ? 1 : -1;
  call.forEachElement([&](int x, int y, int channel) {
    const std::byte *const pixel = source.at(x, y, channel), *const other = source.at(x + side, y - 1, channel);
    if (source.element == Element::f32) {
      store(destination.at(x, y, channel), load<float>(pixel) - load<float>(other));
    } else {
      storeSaturated(source.element, destination.at(x, y, channel),
                     loadInteger(source.element, pixel) - loadInteger(source.element, other));
    }
  });
}

/// For each sum of the kernel's weights, those that it takes, a bit each; none where no weights add up to it.
std::vector<std::optional<unsigned>> subsets(const Kernel& kernel) {
  std::vector<std::optional<unsigned>> taps(static_cast<size_t>(kernel.divisor));
  taps[0] = 0;
  for (size_t tap = 0; tap < kernel.table.size(); ++tap) {
    const auto weight = static_cast<size_t>(kernel.table[tap]);
    for (size_t sum = taps.size(); sum-- > weight;) {
      if (!taps[sum] && taps[sum - weight]) taps[sum] = *taps[sum - weight] | 1u << tap;
    }
  }
  return taps;
}

/// Windows side by side, flat but for some pixels that are one more: for the flat values up to the type's largest one,
/// with each sum of weights that is at most `aroundHalf` from half of the divisor.
template <class T, class Filter>
void expectQuotients(const std::string& name, int aroundHalf, const Filter& filter) {
  const Kernel& kernel = kernels().at(name);
  const auto taps = subsets(kernel);
  const auto size = static_cast<size_t>(kernel.size());
  std::vector<T> rows[5];
  std::vector<double> expected;
  for (int flat = std::numeric_limits<T>::min(); flat < std::numeric_limits<T>::max(); ++flat) {
    for (int more = 0; more < kernel.divisor; ++more) {
      const auto& chosen = taps[static_cast<size_t>(more)];
      if (!chosen || std::abs(2 * more - kernel.divisor) > 2 * aroundHalf) continue;
      for (size_t tap = 0; tap < size * size; ++tap) {
        rows[tap / size].push_back(static_cast<T>(flat + static_cast<int>(*chosen >> tap & 1)));
      }
      expected.push_back(std::nearbyint(flat + static_cast<double>(more) / kernel.divisor));
    }
  }
  const size_t width = rows[0].size();
  std::vector<T> image, result(width - size + 1);
  for (size_t j = 0; j < size; ++j) image.insert(image.end(), rows[j].begin(), rows[j].end());
  const int step = static_cast<int>(width * sizeof(T));
  ASSERT_EQ(filter(&image[size / 2 * (width + 1)], step, result.data(), step, {static_cast<int>(result.size()), 1},
                   size == 3 ? vemiMask3x3 : vemiMask5x5),
            vemiOk);
  size_t wrong = 0;
  for (size_t n = 0; n < expected.size(); ++n) wrong += result[n * size] != expected[n];
  EXPECT_EQ(wrong, 0u) << name << " of " << expected.size() << " windows";
}

}  // namespace

TEST(FixedKernels, Sobel) {
  for (const char* const name : {"Horiz", "Vert", "HorizMask", "VertMask", "HorizSecond", "VertSecond", "Cross"}) {
    expectDefinition(membersOf(std::string("vemiFilterSobel") + name), filtered);
  }
}

TEST(FixedKernels, ScharrAndPrewitt) {
  for (const char* const name : {"ScharrHoriz", "ScharrVert", "PrewittHoriz", "PrewittVert"}) {
    expectDefinition(membersOf(std::string("vemiFilter") + name), filtered);
  }
}

TEST(FixedKernels, Roberts) {
  expectDefinition(membersOf("vemiFilterRobertsUp"), difference);
  expectDefinition(membersOf("vemiFilterRobertsDown"), difference);
}

TEST(FixedKernels, LaplaceHipassSharpen) {
  for (const char* const name : {"Laplace", "Hipass", "Sharpen"}) {
    expectDefinition(membersOf(std::string("vemiFilter") + name), filtered);
  }
}

TEST(FixedKernels, GaussAndLowpass) {
  expectDefinition(membersOf("vemiFilterGauss"), filtered);
  expectDefinition(membersOf("vemiFilterLowpass"), filtered);
}

// All sums of bytes, and of 16 bits those at which the quotient changes.
TEST(FixedKernels, QuotientsOfAllValues) {
  for (const char* const name : {"Gauss3", "Gauss5"}) {
    expectQuotients<Vemi8u>(name, 571, vemiFilterGauss_8u_C1R);
    expectQuotients<Vemi16s>(name, 1, vemiFilterGauss_16s_C1R);
  }
  for (const char* const name : {"Lowpass3", "Lowpass5"}) {
    expectQuotients<Vemi8u>(name, 571, vemiFilterLowpass_8u_C1R);
    expectQuotients<Vemi16s>(name, 1, vemiFilterLowpass_16s_C1R);
  }
}
