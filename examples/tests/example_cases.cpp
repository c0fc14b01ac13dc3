// example_cases NAME PROGRAM FOLDER: makes pictures for the example of this name, runs the program on them in the
// folder, and holds what it wrote or told against what must come of it.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "../png_file.h"
#include "../scene.h"

namespace {

using demo::Failure;
using demo::Image8u;

void expect(bool holds, const std::string& what) {
  if (!holds) throw Failure(what);
}

/// The middle of the demo's scene.
Image8u photo(VemiSize size) {
  const Image8u scene = demo::drawScene();
  Image8u part(size, 3);
  const Vemi8u* const first = scene.at((scene.width() - size.width) / 2, (scene.height() - size.height) / 2);
  CALL(vemiCopy_8u_C3R(first, scene.step(), part.data(), part.step(), size));
  return part;
}

/// f(x, y, channel) for all elements.
template <class F>
void forEach(const Image8u& image, F f) {
  for (int y = 0; y < image.height(); y++) {
    for (int x = 0; x < image.width(); x++) {
      for (int channel = 0; channel < image.channels(); channel++) f(x, y, channel);
    }
  }
}

/// Root of the mean square.
double distance(const Image8u& a, const Image8u& b) {
  expect(a.width() == b.width() && a.height() == b.height() && a.channels() == b.channels(), "another size");
  double sum = 0, count = 0;
  forEach(a, [&](int x, int y, int channel) {
    const double difference = a.at(x, y)[channel] - b.at(x, y)[channel];
    sum += difference * difference;
    ++count;
  });
  return std::sqrt(sum / count);
}

/// The pixel that is meant, or the nearest one where the image ends.
const Vemi8u* nearest(const Image8u& image, int x, int y) {
  return image.at(std::clamp(x, 0, image.width() - 1), std::clamp(y, 0, image.height() - 1));
}

/// The mean of 5 by 5 pixels with the filter's weights, not rounded.
double softened(const Image8u& image, int x, int y, int channel) {
  constexpr int weights[5][5] = {
      {2, 7, 12, 7, 2}, {7, 31, 52, 31, 7}, {12, 52, 127, 52, 12}, {7, 31, 52, 31, 7}, {2, 7, 12, 7, 2}};
  double sum = 0;
  for (int j = 0; j < 5; j++) {
    for (int i = 0; i < 5; i++) sum += weights[j][i] * nearest(image, x + i - 2, y + j - 2)[channel];
  }
  return sum / 571;
}

std::string program;

/// Runs the example and returns what it printed.
std::string run(const std::string& arguments) {
  const int code = std::system((program + " " + arguments + " >told").c_str());
  expect(code == 0, "it failed");
  std::ifstream told("told");
  return {std::istreambuf_iterator<char>(told), {}};
}

// Luma of each pixel, softened; then means of 4 by 4. Two roundings on the way.
void thumbnail() {
  const Image8u colour = photo({403, 302});
  demo::writePng(colour, "photo.png");
  run("photo.png small.png");
  const Image8u small = demo::readPng("small.png");
  expect(small.width() == 100 && small.height() == 75 && small.channels() == 1, "another size");
  Image8u grey(colour.size(), 1);
  forEach(grey, [&](int x, int y, int) {
    const Vemi8u* const pixel = colour.at(x, y);
    *grey.at(x, y) = static_cast<Vemi8u>(std::lround(0.299 * pixel[0] + 0.587 * pixel[1] + 0.114 * pixel[2]));
  });
  forEach(small, [&](int x, int y, int) {
    double sum = 0;
    for (int n = 0; n < 16; n++) sum += softened(grey, 4 * x + n % 4, 4 * y + n / 4, 0);
    expect(std::abs(*small.at(x, y) - sum / 16) < 2, "a pixel is not the mean of those that it covers");
  });
}

// Darker and flatter than where it was cut out: the top of a ball, in a grey scene.
void findTemplate() {
  const Image8u colour = photo({1200, 800});
  Image8u scene(colour.size(), 1), part({90, 45}, 1);
  CALL(vemiCopy_8u_C3C1R(colour.data(), colour.step(), scene.data(), scene.step(), scene.size()));
  forEach(part, [&](int x, int y, int) { *part.at(x, y) = static_cast<Vemi8u>(*scene.at(x + 157, y + 431) / 2 + 20); });
  demo::writePng(scene, "scene.png");
  demo::writePng(part, "template.png");
  const std::string told = run("scene.png template.png");
  int x = 0, y = 0;
  double match = 0;
  expect(std::sscanf(told.c_str(), "at %d, %d with %lf", &x, &y, &match) == 3, "told '" + told + "'");
  expect(x == 157 && y == 431 && match > 0.99 && match < 1.01, "found it " + told);
}

// A page of fields on a dark table. (x, y) of the page is ((0.9 x + 0.1 y + 40) / z, (0.05 x + 0.8 y + 30) / z) of the
// photograph, with z = 1 + 0.0003 x + 0.0004 y, which is solved for x and y.
void straighten() {
  const auto fields = [](double x, double y) {
    return (static_cast<int>(x) / 42 + static_cast<int>(y) / 54) % 2 != 0 ? 210.0 : 60.0 + x / 7;
  };
  Image8u table({480, 480}, 3);
  forEach(table, [&](int x, int y, int channel) {
    const double a = 0.9 - 0.0003 * x, b = 0.1 - 0.0004 * x, c = x - 40;
    const double d = 0.05 - 0.0003 * y, e = 0.8 - 0.0004 * y, f = y - 30;
    const double u = (c * e - b * f) / (a * e - b * d), v = (a * f - c * d) / (a * e - b * d);
    const bool isPage = u > -1 && v > -1 && u < 420 && v < 594;
    table.at(x, y)[channel] = static_cast<Vemi8u>(isPage ? fields(std::max(u, 0.0), std::max(v, 0.0)) : 20);
  });
  demo::writePng(table, "photo.png");
  std::string arguments = "photo.png page.png";
  constexpr double corners[4][2] = {{0, 0}, {419, 0}, {419, 593}, {0, 593}};
  for (const auto& [x, y] : corners) {
    const double z = 1 + 0.0003 * x + 0.0004 * y;
    for (const double seen : {(0.9 * x + 0.1 * y + 40) / z, (0.05 * x + 0.8 * y + 30) / z}) {
      arguments.append(" ").append(std::to_string(seen));
    }
  }
  run(arguments);
  const Image8u page = demo::readPng("page.png");
  expect(page.width() == 420 && page.height() == 594, "another size");
  forEach(page, [&](int x, int y, int channel) {
    const auto edge = [](int n, int side) { return std::min(n % side, side - 1 - n % side); };
    if (edge(x, 42) < 8 || edge(y, 54) < 8) return;
    expect(std::abs(page.at(x, y)[channel] - fields(x, y)) < 4, "a field is not where it was");
  });
}

void denoise() {
  const Image8u clean = photo({400, 300});
  Image8u noise(clean.size(), 1), noisy(clean.size(), 3);
  Vemi32u seed = 7;
  forEach(noisy, [&](int x, int y, int channel) {
    int sum = -510;  // of four bytes: near enough to a bell, with a deviation of 12
    for (int n = 0; n < 4; n++) sum += static_cast<int>((seed = seed * 1664525u + 1013904223u) >> 24);
    noisy.at(x, y)[channel] = static_cast<Vemi8u>(std::clamp(clean.at(x, y)[channel] + sum / 12, 0, 255));
  });
  demo::writePng(noisy, "noisy.png");
  run("noisy.png clean.png");
  const double before = distance(noisy, clean), after = distance(demo::readPng("clean.png"), clean);
  expect(before > 8 && after < before / 2,
         "off by " + std::to_string(after) + " after, by " + std::to_string(before) + " before");
}

// Waves of 21 periods across and 12 down: two bright points beside the middle, on a line with it.
void spectrum() {
  Image8u waves({250, 181}, 1);
  forEach(waves, [&](int x, int y, int) {
    const double turns = 21.0 * x / waves.width() + 12.0 * y / waves.height();
    *waves.at(x, y) = static_cast<Vemi8u>(std::lround(128 + 100 * std::cos(6.283185307179586 * turns)));
  });
  demo::writePng(waves, "waves.png");
  run("waves.png spectrum.png");
  const Image8u picture = demo::readPng("spectrum.png");
  expect(picture.width() == 250 && picture.height() == 181 && picture.channels() == 1, "another size");
  forEach(picture, [&](int x, int y, int) {
    const int u = x - 125, v = y - 90;
    const bool isMiddle = u == 0 && v == 0, isWave = (u == 21 && v == 12) || (u == -21 && v == -12);
    const int value = *picture.at(x, y);
    expect(isMiddle ? value == 255
           : isWave ? value > 200
                    : value < 100,
           "frequency " + std::to_string(u) + ", " + std::to_string(v) + " is " + std::to_string(value));
  });
}

// Quarters of four colours, in the numbers of the standard for cameras.
void yuvFrame() {
  const VemiSize size = {98, 66};
  constexpr int colours[4][3] = {{200, 30, 40}, {20, 160, 60}, {30, 60, 210}, {240, 235, 220}};
  const auto colourOf = [&](int x, int y) { return colours[(x >= 48) + 2 * (y >= 32)]; };
  std::ofstream file("frame.yuv", std::ios::binary);
  constexpr double weights[3][4] = {
      {16, 0.257, 0.504, 0.098}, {128, -0.148, -0.291, 0.439}, {128, 0.439, -0.368, -0.071}};
  for (int plane = 0; plane < 3; plane++) {
    const int every = plane == 0 ? 1 : 2;
    for (int y = 0; y < size.height; y += every) {
      for (int x = 0; x < size.width; x += every) {
        double value = weights[plane][0];
        for (int n = 0; n < 3; n++) value += weights[plane][n + 1] * colourOf(x, y)[n];
        file.put(static_cast<char>(std::lround(value)));
      }
    }
  }
  file.close();
  run("frame.yuv 98 66 picture.png");
  const Image8u picture = demo::readPng("picture.png");
  expect(picture.width() == size.width && picture.height() == size.height, "another size");
  forEach(picture, [&](int x, int y, int channel) {
    expect(std::abs(picture.at(x, y)[channel] - colourOf(x, y)[channel]) <= 4, "another colour");
  });
}

// Nothing beside the rectangle; less contrast in it.
void hideRegion() {
  Image8u before = photo({320, 240});
  for (int x = 130; x < 190; x += 12) {  // upright bars
    const Vemi8u black[3] = {0, 0, 0};
    CALL(vemiSet_8u_C3R(black, before.at(x, 85), before.step(), {5, 38}));
  }
  demo::writePng(before, "photo.png");
  run("photo.png hidden.png 130 80 64 48");
  const Image8u after = demo::readPng("hidden.png");
  double contrast[2] = {};
  forEach(before, [&](int x, int y, int channel) {
    const bool inside = x >= 130 && x < 194 && y >= 80 && y < 128;
    expect(inside || before.at(x, y)[channel] == after.at(x, y)[channel], "a pixel beside the rectangle has changed");
    if (!inside || x == 193) return;
    contrast[0] += std::abs(before.at(x + 1, y)[channel] - before.at(x, y)[channel]);
    contrast[1] += std::abs(after.at(x + 1, y)[channel] - after.at(x, y)[channel]);
  });
  expect(contrast[0] > 0 && contrast[1] < contrast[0] / 10, "it can still be seen");
}

void errors() {
  const std::string told = run("");
  const std::string expected =
      "no image: error, a pointer is null (-8)\nno pixels: error, a width or a height is out of range (-6)\n"
      "no step: error, a step is below 1 (-14)\nfirst pixel: 8, for errors write nothing\n"
      "divided: warning, there were divisors of zero (6)\nfirst pixel: 4, fifth: 255\n";
  expect(told == expected, "told '" + told + "'");
}

void threads() {
  const Image8u before = photo({300, 500});
  std::string names;
  for (int n = 0; n < 6; n++) names += "picture" + std::to_string(n) + ".png ";
  for (int n = 0; n < 6; n++) demo::writePng(before, "picture" + std::to_string(n) + ".png");
  run(names);
  for (int n = 0; n < 6; n++) {
    const Image8u after = demo::readPng("picture" + std::to_string(n) + ".png");
    forEach(before, [&](int x, int y, int channel) {
      const double brighter = std::min(255.0, std::nearbyint(before.at(x, y)[channel] * 181 / 128.0));
      expect(after.at(x, y)[channel] == brighter, "a pixel is not brighter by half a stop");
    });
  }
}

// The same as without tiles, at their edges as well.
void tiles() {
  const Image8u before = photo({300, 270});
  demo::writePng(before, "photo.png");
  run("photo.png crisp.png");
  const Image8u after = demo::readPng("crisp.png");
  expect(after.width() == 300 && after.height() == 270, "another size");
  forEach(before, [&](int x, int y, int channel) {
    const int value = before.at(x, y)[channel];
    const int details = std::max(0, value - static_cast<int>(std::nearbyint(softened(before, x, y, channel))));
    expect(after.at(x, y)[channel] == std::min(255, value + details), "a pixel is not the unsharp mask's");
  });
}

struct Case {
  const char* name;
  void (*check)();
};

constexpr Case cases[] = {
    {"thumbnail", thumbnail},    {"find_template", findTemplate},
    {"straighten", straighten},  {"denoise", denoise},
    {"spectrum", spectrum},      {"yuv_frame", yuvFrame},
    {"hide_region", hideRegion}, {"errors", errors},
    {"threads", threads},        {"tiles", tiles},
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) return 2;
  program = argv[2];
  for (const Case& c : cases) {
    if (c.name != std::string(argv[1])) continue;
    try {
      std::filesystem::create_directories(argv[3]);
      std::filesystem::current_path(argv[3]);
      c.check();
    } catch (const std::exception& failure) {
      std::fprintf(stderr, "%s: %s\n", c.name, failure.what());
      return 1;
    }
    return 0;
  }
  std::fprintf(stderr, "no case for %s\n", argv[1]);
  return 1;
}
