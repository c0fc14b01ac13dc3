// vemiResize, vemiResizeCenter, vemiResizeShift, vemiGetResizeFract.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "support/check.h"
#include "vemi/geometry.h"

using namespace vemi::test;

namespace {

/// One direction of a call, from its arguments.
struct Direction {
  int image, regionFirst, region, destination;
  double factor, step, shift;  // one of factor and step is 0
  // Where the result lies in the destination.
  int first = 0;

  /// What vemiResizeCenter makes of it; false where the region misses the destination.
  bool centre(double at) {
    const double left = destination / 2.0 - at * factor;
    first = static_cast<int>(std::clamp(std::ceil(left), 0.0, 1e6));
    const double end = std::floor(std::min<double>(destination, region * factor + left));
    if (end <= first) return false;
    destination = static_cast<int>(end) - first;
    const double position = (first - left) / factor;
    const int skipped = std::min(static_cast<int>(position), region - 1);
    regionFirst += skipped;
    region -= skipped;
    shift = position - skipped;
    return true;
  }
};

int reduced(VemiSize image, int kind) {
  const int least = std::min(image.width, image.height);
  if (kind == vemiInterLanczos && least < 8) kind = vemiInterCubic;
  if (kind == vemiInterCubic && least < 4) kind = vemiInterLinear;
  return least < 2 ? static_cast<int>(vemiInterNearest) : kind;
}

/// Samples and weights of one column or row.
struct Taps {
  std::vector<int> index;
  std::vector<float> weight;
  double fraction = 0;
};

float lanczos(float distance) {
  if (distance <= -3 || distance >= 3) return 0;
  const float a = std::fabs(distance) * 100;
  const int i = static_cast<int>(a);
  const auto entry = [](int n) {
    if (n >= 300 || n == 100 || n == 200) return 0.0f;
    const double x = n * 3.14159265358979323846 / 100;
    return n == 0 ? 1.0f : static_cast<float>(std::sin(x) / x * (std::sin(x / 3) / (x / 3)));
  };
  return entry(i) + (entry(i + 1) - entry(i)) * (a - static_cast<float>(i));
}

Taps tapsAt(double p, int kind, int image) {
  Taps taps;
  const int last = image - 1;
  double t = std::trunc(p + 1e-7) < 0 ? 0.0 : std::trunc(p + 1e-7) > last ? last : p;
  int i = std::clamp(static_cast<int>(t + 1e-7), 0, last);
  const auto range = [&](int first, int count) {
    for (int k = 0; k < count; ++k) taps.index.push_back(std::clamp(first + k, 0, last));
  };
  if (kind == vemiInterNearest) {
    range(i, 1);
  } else if (kind == vemiInterLinear) {
    taps.fraction = i == last ? 1 : t - i;
    range(i == last ? i - 1 : i, 2);
  } else if (kind == vemiInterCubic) {
    taps.fraction = i == 0 ? t - 1 : i == last ? 2 : i == last - 1 ? t - (last - 2) : t - i;
    range(i == 0 ? 0 : i == last ? last - 3 : i == last - 1 ? last - 3 : i - 1, 4);
  } else {
    taps.fraction = t - i;
    range(i - 2, 6);
    for (int k = -2; k <= 3; ++k) taps.weight.push_back(lanczos(static_cast<float>(k) - static_cast<float>(t - i)));
  }
  return taps;
}

Taps areaAt(double p, double length, int image) {
  Taps taps;
  const auto add = [&](int index, double weight) {
    if (weight < 1e-7) return;
    taps.index.push_back(index);
    taps.weight.push_back(static_cast<float>(weight));
  };
  int i = std::min(static_cast<int>(p), image - 1);
  double rest = length;
  if (i < image - 1) {
    add(i, 1 - (p - i));
    rest = length - (1 - (p - i));
    ++i;
  }
  while (i < image - 1 && rest >= 1) {
    add(i++, 1);
    rest -= 1;
  }
  add(i, rest);
  return taps;
}

std::vector<Taps> tapsOf(const Direction& x, int kind) {
  const bool nearest = kind == vemiInterNearest, area = kind == vemiInterSuper;
  double step = x.step, count;
  if (x.factor > 0) {
    count = std::trunc(x.region * x.factor + 1e-7);
    const bool single = x.region * x.factor <= 1;
    step = nearest || area ? 1 / x.factor : single ? 0 : (x.region - 1) / (x.region * x.factor - 1);
  } else {
    count = nearest ? std::trunc(x.region / step + 1e-7) : std::trunc((x.region - 1) / step + 1e-7) + 1;
  }
  count = std::clamp<double>(count, 1, x.destination);
  double p = x.shift;
  if (nearest) p = 0.5 * step + x.shift;
  p += x.regionFirst;
  std::vector<Taps> all;
  for (int i = 0; i < count; ++i, p += step) all.push_back(area ? areaAt(p, step, x.image) : tapsAt(p, kind, x.image));
  return all;
}

/// Of floats in a row or column of an interpolation.
float interpolated(const Taps& taps, int kind, const std::vector<float>& p) {
  const auto t = static_cast<float>(taps.fraction);
  if (kind == vemiInterLinear) return (1 - t) * p[0] + t * p[1];
  if (kind == vemiInterCubic) {
    const float a = 1 + t, b = t * a / 2, c = (t - 1) * b / 3;
    const float d1 = p[1] - p[0], d2 = (p[2] - p[1]) - d1, d3 = p[1] - 2 * p[2] + p[3] - d2;
    return p[0] + a * d1 + b * d2 + c * d3;
  }
  float sum = kind == vemiInterSuper ? 0.0f : taps.weight[0] * p[0];
  for (size_t k = kind == vemiInterSuper ? 0 : 1; k < p.size(); ++k) sum += taps.weight[k] * p[k];
  return sum;
}

void resized(Call& call) {
  call.anyNaN = true;
  const View source = call.source(), destination = call.destination();
  const bool bySteps = call.function.indexOf("xFr") >= 0;
  const auto region = call.get<VemiRect>("srcRoi");
  const auto number = [&](const char* name) { return call.function.indexOf(name) < 0 ? 0 : call.get<double>(name); };
  Direction x = {source.size.width,      region.x,          std::min(region.width, source.size.width - region.x),
                 destination.size.width, number("xFactor"), number("xFr"),
                 number("xShift")};
  Direction y = {source.size.height,      region.y,          std::min(region.height, source.size.height - region.y),
                 destination.size.height, number("yFactor"), number("yFr"),
                 number("yShift")};
  if (call.function.indexOf("xCenter") >= 0 && !(x.centre(number("xCenter")) && y.centre(number("yCenter")))) {
    call.expectedStatus = vemiWarnNoIntersection;
    return;
  }
  ASSERT_EQ(bySteps, x.factor == 0);
  const int kind = reduced(source.size, call.get<int>("interpolation"));
  const std::vector<Taps> columns = tapsOf(x, kind), rows = tapsOf(y, kind);
  const auto scale = static_cast<float>(x.factor * y.factor);
  for (int channel = 0; channel < destination.channels; ++channel) {
    for (size_t j = 0; j < rows.size(); ++j) {
      const Taps& row = rows[j];
      for (size_t i = 0; i < columns.size(); ++i) {
        const Taps& column = columns[i];
        std::byte* const out = destination.at(x.first + static_cast<int>(i), y.first + static_cast<int>(j), channel);
        const auto at = [&](int cx, int cy) { return source.at(cx, cy, channel); };
        const auto floatAt = [&](int cx, int cy) { return static_cast<float>(loadNumber(source.element, at(cx, cy))); };
        if (kind == vemiInterNearest) {
          std::memcpy(out, at(column.index[0], row.index[0]), static_cast<size_t>(bytesOf(source.element)));
          continue;
        }
        if (kind == vemiInterLinear && source.element == Element::u8) {
          const auto w = static_cast<int>(column.fraction * 16384 + 1e-7);
          const auto v = static_cast<int>(row.fraction * 16384 + 1e-7);
          int h[2];
          for (size_t k = 0; k < 2; ++k) {
            const auto byte = [&](size_t n) {
              return static_cast<int>(loadInteger(Element::u8, at(column.index[n], row.index[k])));
            };
            h[k] = ((16384 - w) * byte(0) + w * byte(1) + 128) >> 8;
          }
          storeSaturated(Element::u8, out, ((16384 - v) * h[0] + v * h[1] + 0x80000) >> 20);
          continue;
        }
        // Areas add up their rows first, the others their columns.
        const bool rowsFirst = kind == vemiInterSuper;
        const Taps &inner = rowsFirst ? row : column, &outer = rowsFirst ? column : row;
        std::vector<float> lines;
        for (const int o : outer.index) {
          std::vector<float> samples;
          for (const int n : inner.index) samples.push_back(rowsFirst ? floatAt(o, n) : floatAt(n, o));
          lines.push_back(interpolated(inner, kind, samples));
        }
        float value = interpolated(outer, kind, lines);
        if (rowsFirst) value *= scale;
        if (source.element == Element::f32) {
          store(out, value);
        } else {
          storeSaturated(source.element, out, std::llrint(value));
        }
      }
    }
  }
}

/// Taller results than the general shapes have, from sources of any size.
void expectTall(const char* operation) {
  for (const Export* function : membersOf(operation)) {
    for (unsigned seed = 1; seed <= 60; ++seed) {
      const int width = 1 + static_cast<int>(seed * 29 % 70), height = 1 + static_cast<int>(seed * 37 % 90);
      if (!expectCall(*function, {{width, height}, allRows[seed % 5], Edge::back, 1000 + seed}, resized)) return;
    }
  }
}

/// Calls of all members with these numbers in place of those that a call draws, in all combinations.
struct Choice {
  const char *name, *alike;  // parameters that take the same
  std::vector<double> numbers;
};

void expectChosen(const char* operation, int interpolation, const Choice& first, const Choice& second) {
  unsigned seed = 1;
  for (const Export* function : membersOf(operation)) {
    for (const double one : first.numbers) {
      for (const double other : second.numbers) {
        for (int n = 0; n < 8; ++n, ++seed) {
          const auto reference = [&](Call& call) {
            call.set("interpolation", interpolation);
            for (const char* const name : {first.name, first.alike}) call.set(name, one);
            for (const char* const name : {second.name, second.alike}) call.set(name, other);
            resized(call);
          };
          const VemiSize size = {1 + static_cast<int>(seed * 29 % 70), 1 + static_cast<int>(seed * 37 % 30)};
          if (!expectCall(*function, {size, allRows[seed % 5], Edge::back, seed}, reference)) return;
        }
      }
    }
  }
}

}  // namespace

TEST(Resize, AboutAHalf) {
  const std::vector<double> about = {0.5, 0.4999, 0.5001, 0.51};
  for (const int interpolation : {vemiInterLinear, vemiInterSuper}) {
    expectChosen("vemiResize", interpolation, {"xFactor", "xFactor", about}, {"yFactor", "yFactor", about});
  }
}

TEST(ResizeShift, ByStepsOfAboutTwo) {
  expectChosen("vemiResizeShift", vemiInterLinear, {"xFr", "yFr", {2, 1.999, 2.001}},
               {"xShift", "yShift", {0.5, 0.499, 0.501, 0, 1, 2.5, -0.5}});
}

// A column that is missing 1e-7 of a pixel or less is written.
TEST(Resize, NearlyWholeCounts) {
  const Vemi8u src[4] = {200, 200, 200, 200};
  const auto expectCount = [&](int expected, const auto& resizeInto) {
    Vemi8u dst[12] = {};
    EXPECT_EQ(resizeInto(dst), vemiOk);
    EXPECT_EQ(std::count(dst, dst + 12, 200), expected);
  };
  for (const int kind : {vemiInterNearest, vemiInterLinear}) {
    for (const double missing : {0.4e-7, 2e-7}) {
      const double size = 10 - missing;
      const int count = missing < 1e-7 ? 10 : 9;
      expectCount(count, [&](Vemi8u* dst) {
        return vemiResize_8u_C1R(src, {2, 2}, 2, {0, 0, 2, 2}, dst, 12, {12, 1}, size / 2, 1, kind);
      });
      const bool nearest = kind == vemiInterNearest;
      expectCount(nearest ? count : count + 1, [&](Vemi8u* dst) {
        return vemiResizeShift_8u_C1R(src, {2, 2}, 2, {0, 0, 2, 2}, dst, 12, {12, 1}, (nearest ? 2 : 1) / size, 1, 0, 0,
                                      kind);
      });
    }
  }
}

TEST(Resize, EveryMember) {
  expectDefinition(membersOf("vemiResize"), resized);
  expectTall("vemiResize");
}

TEST(ResizeCenter, EveryMember) {
  expectDefinition(membersOf("vemiResizeCenter"), resized);
  expectTall("vemiResizeCenter");
}

TEST(ResizeShift, EveryMember) {
  expectDefinition(membersOf("vemiResizeShift"), resized);
  expectTall("vemiResizeShift");
}

TEST(GetResizeFract, Values) {
  expectDefinition(membersOf("vemiGetResizeFract"), [](Call& call) {
    const auto size = call.get<VemiSize>("srcSize");
    const auto region = call.get<VemiRect>("srcRoi");
    const bool nearest = call.get<int>("interpolation") == vemiInterNearest;
    const auto step = [&](int width, double factor) {
      if (nearest) return 1 / factor;
      return width * factor > 1 ? (width - 1) / (width * factor - 1) : 0.0;
    };
    store(call.array("pxFr").at(0, 0),
          step(std::min(region.width, size.width - region.x), call.get<double>("xFactor")));
    store(call.array("pyFr").at(0, 0),
          step(std::min(region.height, size.height - region.y), call.get<double>("yFactor")));
  });
}
