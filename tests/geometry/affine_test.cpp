// Affine warps against their definition, and the queries about them.

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <vector>

#include "geometry/warp_reference.h"
#include "support/check.h"
#include "support/guarded_row.h"

using namespace vemi::test;

namespace {

struct Matrix {
  double xx, xy, x, yx, yy, y;

  Spot operator()(Spot p) const { return {xx * p.x + xy * p.y + x, yx * p.x + yy * p.y + y}; }
  Matrix inverse() const {
    const double d = xx * yy - xy * yx, a = yy / d, b = -xy / d, c = -yx / d, e = xx / d;
    return {a, b, -(a * x + b * y), c, e, -(c * x + e * y)};
  }
};

Matrix coefficientsOf(Call& call) {
  const auto c = [&](int n) { return load<double>(call.constant("coeffs", n)); };
  return {c(0), c(1), c(2), c(3), c(4), c(5)};
}

double numberOf(Call& call, const char* name) { return load<double>(call.constant(name)); }

/// Pi has more places here than a double has.
Matrix rotationOf(double degrees, double xShift, double yShift) {
  const double a = std::fmod(std::fmod(degrees, 360) + 360, 360);
  const long double radians = a / 180 * 3.141592653589793;
  const double s = std::fmod(a, 180) == 0  ? 0
                   : std::fmod(a, 90) == 0 ? (a < 180 ? 1 : -1)
                                           : static_cast<double>(std::sin(radians));
  const double c = std::fmod(a, 180) == 90 ? 0
                   : std::fmod(a, 90) == 0 ? (a == 0 ? 1 : -1)
                                           : static_cast<double>(std::cos(radians));
  return {c, s, xShift, -s, c, yShift};
}

/// `map` leads to the destination, `back` to the source.
void warpBy(Call& call, const Matrix& map, const Matrix& back) {
  VemiRect region;
  call.expectedStatus = clipSource(call, region);
  if (call.expectedStatus != vemiOk) return;
  Corners quad;
  for (const Spot p : cornersOf(region)) quad.push_back(map(p));
  if (orientationOf(quad) == 0) {
    call.expectedStatus = vemiErrQuad;
    return;
  }
  warpByDefinition(call, region, {quad, {}, [=](Spot first, double i) {
                                    const Spot from = back(first);
                                    return Spot{from.x + i * back.xx, from.y + i * back.yx};
                                  }});
}

bool isSingular(const Matrix& m) {
  const double p = m.xx * m.yy, q = m.xy * m.yx;
  return std::fabs(p) > 1e-200 ? std::fabs((p - q) / p) <= 1e-12 : std::fabs(q) <= 1e-12;
}

void warpUnlessSingular(Call& call, const Matrix& given, const Matrix& map, const Matrix& back) {
  if (isSingular(given)) {
    call.expectedStatus = vemiErrQuad;
  } else {
    warpBy(call, map, back);
  }
}

void warped(Call& call) {
  const Matrix m = coefficientsOf(call);
  warpUnlessSingular(call, m, m, m.inverse());
}

void warpedBack(Call& call) {
  const Matrix m = coefficientsOf(call);
  warpUnlessSingular(call, m, m.inverse(), m);
}

void sheared(Call& call) {
  const Matrix m = {1, numberOf(call, "xShear"), numberOf(call, "xShift"), numberOf(call, "yShear"),
                    1, numberOf(call, "yShift")};
  warpUnlessSingular(call, m, m, m.inverse());
}

/// By quarter turns and whole shifts, pixels are moved.
void turn(Call& call, double angle, double xShift, double yShift) {
  const Matrix map = rotationOf(angle, xShift, yShift), back = map.inverse();
  const bool isCopy = std::fmod(angle, 90) == 0 && std::fmod(angle, 360) != 0 && std::floor(xShift) == xShift &&
                      std::floor(yShift) == yShift;
  if (!isCopy) return warpBy(call, map, back);
  VemiRect region;
  if (clipSource(call, region) == vemiWarnNoIntersection) return;
  const VemiRect dst = call.get<VemiRect>("dstRoi");
  const View source = call.source(), destination = call.destination();
  call.expectedStatus = vemiWarnNoOperation;
  for (int y = dst.y; y < dst.y + dst.height; ++y) {
    for (int x = dst.x; x < dst.x + dst.width; ++x) {
      const Spot from = back({double(x), double(y)});
      const int column = static_cast<int>(std::lround(from.x)), row = static_cast<int>(std::lround(from.y));
      if (column < region.x || column >= region.x + region.width || row < region.y || row >= region.y + region.height)
        continue;
      call.expectedStatus = vemiOk;
      for (int c = 0; c < destination.channels; ++c) {
        std::memcpy(destination.at(x, y, c), source.at(column, row, c), static_cast<size_t>(bytesOf(source.element)));
      }
    }
  }
}

void rotated(Call& call) { turn(call, numberOf(call, "angle"), numberOf(call, "xShift"), numberOf(call, "yShift")); }

void rotatedAboutCenter(Call& call) {
  const double angle = numberOf(call, "angle"), x = numberOf(call, "xCenter"), y = numberOf(call, "yCenter");
  const Matrix m = rotationOf(angle, 0, 0);
  turn(call, angle, x - m.xx * x - m.xy * y, y - m.yx * x - m.yy * y);
}

Corners quadOf(Call& call, const char* name) {
  Corners quad;
  for (int n = 0; n < 4; ++n) {
    quad.push_back({load<double>(call.constant(name, 2 * n)), load<double>(call.constant(name, 2 * n + 1))});
  }
  return quad;
}

/// Three corners to three others.
Matrix matrixOf(const Corners& from, const Corners& to) {
  const double ax = from[1].x - from[0].x, ay = from[1].y - from[0].y, bx = from[2].x - from[1].x,
               by = from[2].y - from[1].y;
  const double cx = to[1].x - to[0].x, cy = to[1].y - to[0].y, dx = to[2].x - to[1].x, dy = to[2].y - to[1].y;
  const double det = ax * by - ay * bx;
  const double xx = (cx * by - dx * ay) / det, xy = (dx * ax - cx * bx) / det;
  const double yx = (cy * by - dy * ay) / det, yy = (dy * ax - cy * bx) / det;
  return {xx, xy, to[0].x - (xx * from[0].x + xy * from[0].y), yx, yy, to[0].y - (yx * from[0].x + yy * from[0].y)};
}

void warpedQuad(Call& call) {
  const Corners from = quadOf(call, "srcQuad"), to = quadOf(call, "dstQuad");
  const int orientation = orientationOf(from);
  VemiRect region;
  if (orientation == 0 || orientationOf(to) == 0) {
    call.expectedStatus = vemiErrCoeff;
    return;
  }
  call.expectedStatus = clipSource(call, region);
  if (call.expectedStatus != vemiOk) return;
  const Matrix back = matrixOf(to, from);
  Corners common = to;
  const auto alsoIn = [&](Spot p) {  // right of the edges at the corner that three others do not settle
    const double least = -1e-9;
    return orientation * sideOf(from[2], from[3], back(p)) >= least &&
           orientation * sideOf(from[3], from[0], back(p)) >= least;
  };
  for (const size_t n : {2, 3}) {
    common = cut(common, [&](Spot p) { return orientation * sideOf(from[n], from[(n + 1) % 4], back(p)) + 1e-9; });
  }
  if (cutTo(from, region).empty() || !hasPixelInBox(cutTo(common, call.get<VemiRect>("dstRoi")))) {
    call.expectedStatus = vemiWarnQuadIntersection;
    return;
  }
  warpByDefinition(call, region,
                   {to, alsoIn,
                    [=](Spot first, double i) {
                      const Spot place = back(first);
                      return Spot{place.x + i * back.xx, place.y + i * back.yx};
                    },
                    true});
}

Matrix mapOf(Call& call) {
  if (call.function.indexOf("coeffs") >= 0) return coefficientsOf(call);
  const double x = numberOf(call, "xShift"), y = numberOf(call, "yShift");
  if (call.function.indexOf("xShear") >= 0) return {1, numberOf(call, "xShear"), x, numberOf(call, "yShear"), 1, y};
  call.tolerance = 1e-14 * 1000;  // two sines may differ in the last place
  return rotationOf(numberOf(call, "angle"), x, y);
}

Corners mappedRegion(Call& call) {
  const Matrix map = mapOf(call);
  Corners quad;
  for (const Spot p : cornersOf(call.get<VemiRect>("srcRoi"))) quad.push_back(map(p));
  return quad;
}

void storeNumbers(Call& call, const char* name, const std::vector<double>& numbers) {
  const View result = call.array(name);
  for (size_t n = 0; n < numbers.size(); ++n) store(result.at(static_cast<int>(n), 0), numbers[n]);
}

void quadOfRegion(Call& call) {
  const Corners quad = mappedRegion(call);
  if (orientationOf(quad) == 0) {
    call.expectedStatus = vemiErrQuad;
    return;
  }
  std::vector<double> numbers;
  for (const Spot p : quad) numbers.insert(numbers.end(), {p.x, p.y});
  storeNumbers(call, "quad", numbers);
}

void boundOfRegion(Call& call) {
  const Corners q = mappedRegion(call);
  const bool mayBeLine = call.function.operation == "vemiGetRotateBound";
  if (!mayBeLine && orientationOf(q) == 0) call.expectedStatus = vemiErrQuad;
  storeNumbers(call, "bound",
               {std::min({q[0].x, q[1].x, q[2].x, q[3].x}), std::min({q[0].y, q[1].y, q[2].y, q[3].y}),
                std::max({q[0].x, q[1].x, q[2].x, q[3].x}), std::max({q[0].y, q[1].y, q[2].y, q[3].y})});
}

void shiftOfRotation(Call& call) {
  const double angle = numberOf(call, "angle"), x = numberOf(call, "xCenter"), y = numberOf(call, "yCenter");
  const Matrix m = rotationOf(angle, 0, 0);
  const bool adds = call.function.operation == "vemiAddRotateShift";
  call.tolerance = std::fmod(angle, 90) == 0 ? 0 : 1e-13;
  const auto before = [&](const char* name) { return adds ? load<double>(call.array(name).at(0, 0)) : 0; };
  storeNumbers(call, "pxShift", {before("pxShift") + (x - m.xx * x - m.xy * y)});
  storeNumbers(call, "pyShift", {before("pyShift") + (y - m.yx * x - m.yy * y)});
}

void transformOfQuad(Call& call) {
  const VemiRect roi = call.get<VemiRect>("srcRoi");
  const Corners q = quadOf(call, "quad");
  if (orientationOf(q) == 0 || roi.width < 2 || roi.height < 2) {
    call.expectedStatus = orientationOf(q) == 0 ? vemiErrCoeff : vemiErrRect;
    return;
  }
  const double w = roi.width - 1, h = roi.height - 1;
  const double xx = (q[1].x - q[0].x) / w, xy = (q[2].x - q[1].x) / h, yx = (q[1].y - q[0].y) / w,
               yy = (q[2].y - q[1].y) / h;
  storeNumbers(call, "coeffs", {xx, xy, q[0].x - xx * roi.x - xy * roi.y, yx, yy, q[0].y - yx * roi.x - yy * roi.y});
  const double wrongX = q[0].x - q[1].x + q[2].x - q[3].x, wrongY = q[0].y - q[1].y + q[2].y - q[3].y;
  if (std::hypot(wrongX, wrongY) > 1e-9) call.expectedStatus = vemiWarnNotParallelogram;
}

}  // namespace

TEST(WarpAffine, EveryMember) { expectDefinition(membersOf("vemiWarpAffine"), warped); }
TEST(WarpAffineBack, EveryMember) { expectDefinition(membersOf("vemiWarpAffineBack"), warpedBack); }
TEST(WarpAffineQuad, EveryMember) { expectDefinition(membersOf("vemiWarpAffineQuad"), warpedQuad); }
TEST(Shear, EveryMember) { expectDefinition(membersOf("vemiShear"), sheared); }
TEST(Rotate, EveryMember) { expectDefinition(membersOf("vemiRotate"), rotated); }
TEST(RotateCenter, EveryMember) { expectDefinition(membersOf("vemiRotateCenter"), rotatedAboutCenter); }

TEST(AffineQueries, EveryMember) {
  for (const char* name : {"vemiGetRotateQuad", "vemiGetShearQuad", "vemiGetAffineQuad"}) {
    expectDefinition(membersOf(name), quadOfRegion);
  }
  for (const char* name : {"vemiGetRotateBound", "vemiGetShearBound", "vemiGetAffineBound"}) {
    expectDefinition(membersOf(name), boundOfRegion);
  }
  expectDefinition(membersOf("vemiGetRotateShift"), shiftOfRotation);
  expectDefinition(membersOf("vemiAddRotateShift"), shiftOfRotation);
  expectDefinition(membersOf("vemiGetAffineTransform"), transformOfQuad);
}

// By the relative difference of products, of 1e-12 at most, down to products of 1e-200.
TEST(AffineQueries, QuadranglesThatAreNearlyParallelograms) {
  double coeffs[2][3];
  for (const double miss : {0x1p-40, 0x1p-39}) {
    const double quad[4][2] = {{0, 0}, {2, 1}, {3, 3}, {1, 2 + miss}};
    EXPECT_EQ(vemiGetAffineTransform({0, 0, 2, 2}, quad, coeffs), miss < 1e-12 ? vemiOk : vemiWarnNotParallelogram);
  }
  const auto transform = [&](double scale) {
    const double quad[4][2] = {{0, 0}, {2 * scale, scale}, {3 * scale, 4 * scale}, {0, 2 * scale}};
    return vemiGetAffineTransform({0, 0, 2, 2}, quad, coeffs);
  };
  EXPECT_EQ(transform(1e-60), vemiWarnNotParallelogram);
  EXPECT_EQ(transform(1e-99), vemiWarnNotParallelogram);
  EXPECT_EQ(transform(1e-101), vemiOk);
}

// Whole degrees mostly, and images in which spans are cut into several pieces.
TEST(Rotate, AllAngles) {
  for (unsigned seed = 1; seed <= 300; ++seed) {
    if (!expectCall(exportNamed("vemiRotate_8u_C1R"), {{61, 40}, Rows::padded, Edge::back, seed}, rotated)) return;
  }
  for (unsigned seed = 1; seed <= 30; ++seed) {
    if (!expectCall(exportNamed("vemiWarpAffine_8u_C3R"), {{1100, 3}, Rows::padded, Edge::back, seed}, warped)) return;
  }
}

namespace {

template <class T, class Function>
void expectQuarterTurns(Function* rotate, int elements, int channels) {
  const auto n = static_cast<size_t>(elements);
  for (const VemiSize size : {VemiSize{37, 300}, {270, 41}, {70, 5}, {4, 33}, {6, 40}, {7, 19}}) {
    for (const int run : {0, 1, 2, 3, 4, 5}) {
      const int turns = 1 + run % 3;
      const Place place = places[run / 3];
      const VemiSize to = turns == 2 ? size : VemiSize{size.height, size.width};
      std::vector<T> pixels(n * static_cast<size_t>(size.width * size.height)), expected(pixels.size(), T(7));
      for (size_t i = 0; i < pixels.size(); ++i) pixels[i] = static_cast<T>(i * 2654435761u >> 8);
      const GuardedRow<T> src(pixels, place), dst(expected, place);
      for (int y = 0; y < to.height; ++y) {
        for (int x = 0; x < to.width; ++x) {
          const int column = turns == 1 ? size.width - 1 - y : turns == 2 ? size.width - 1 - x : y;
          const int row = turns == 1 ? x : turns == 2 ? size.height - 1 - y : size.height - 1 - x;
          for (size_t c = 0; c < static_cast<size_t>(channels); ++c) {
            expected[n * static_cast<size_t>(y * to.width + x) + c] =
                pixels[n * static_cast<size_t>(row * size.width + column) + c];
          }
        }
      }
      const auto bytesIn = [&](int width) { return width * elements * static_cast<int>(sizeof(T)); };
      // No interpolation is one that does not exist.
      EXPECT_EQ(rotate(src.data(), size, bytesIn(size.width), {0, 0, size.width, size.height}, dst.data(),
                       bytesIn(to.width), {0, 0, to.width, to.height}, 90 * turns + (turns == 2 ? -360 : 720),
                       turns == 1 ? 0 : to.width - 1, turns == 3 ? 0 : to.height - 1, 77),
                vemiOk);
      EXPECT_TRUE(dst.holds(expected)) << turns << " turns of " << size.width << " columns, " << elements
                                       << " elements of " << sizeof(T) << " bytes";
    }
  }
}

}  // namespace

TEST(Rotate, QuarterTurnsOfImages) {
  expectQuarterTurns<Vemi8u>(vemiRotate_8u_C1R, 1, 1);
  expectQuarterTurns<Vemi8u>(vemiRotate_8u_C3R, 3, 3);
  expectQuarterTurns<Vemi8u>(vemiRotate_8u_C4R, 4, 4);
  expectQuarterTurns<Vemi8u>(vemiRotate_8u_AC4R, 4, 3);
  expectQuarterTurns<Vemi16u>(vemiRotate_16u_C1R, 1, 1);
  expectQuarterTurns<Vemi16u>(vemiRotate_16u_C3R, 3, 3);
  expectQuarterTurns<Vemi16u>(vemiRotate_16u_C4R, 4, 4);
  expectQuarterTurns<Vemi16u>(vemiRotate_16u_AC4R, 4, 3);
  expectQuarterTurns<Vemi32f>(vemiRotate_32f_C1R, 1, 1);
  expectQuarterTurns<Vemi32f>(vemiRotate_32f_C3R, 3, 3);
  expectQuarterTurns<Vemi32f>(vemiRotate_32f_C4R, 4, 4);
  expectQuarterTurns<Vemi32f>(vemiRotate_32f_AC4R, 4, 3);
}

// Ahead of the interpolation, which copies do not look at, and with statuses of their own.
TEST(Rotate, QuarterTurnsHaveTheirOwnChecks) {
  const Vemi8u src[16] = {1};
  Vemi8u dst[16] = {};
  constexpr VemiRect all = {0, 0, 4, 4};
  const auto rotate = [&](double angle, VemiRect from, int step, const Vemi8u* last, VemiRect to) {
    const Vemi8u* const planes[] = {src, src, last};
    Vemi8u* const written[] = {dst, dst, dst};
    return vemiRotate_8u_P3R(planes, {4, 4}, step, from, written, 4, to, angle, 0, 3, 77);
  };
  EXPECT_EQ(rotate(90, all, 0, nullptr, all), vemiErrStep);
  EXPECT_EQ(rotate(90, {4, 0, 1, 1}, 4, nullptr, all), vemiErrNullPtr);
  EXPECT_EQ(rotate(90, {4, 0, 1, 1}, 4, src, all), vemiOk);
  EXPECT_EQ(rotate(90, {0, 4, 1, 1}, 4, src, {9, 9, 1, 1}), vemiOk);
  EXPECT_EQ(rotate(90, all, 4, src, {4, 0, 1, 1}), vemiWarnNoOperation);
  EXPECT_EQ(rotate(0, all, 4, nullptr, all), vemiErrInterpolation);
  for (const Vemi8u byte : dst) EXPECT_EQ(byte, 0);
  EXPECT_EQ(rotate(90, all, 4, src, all), vemiOk);
  EXPECT_EQ(dst[12], 1);
}

TEST(WarpAffine, WhatIsNoNumberMovesNothing) {
  constexpr double inf = std::numeric_limits<double>::infinity(), nan = std::numeric_limits<double>::quiet_NaN();
  const std::array<Vemi8u, 100> src = {};
  std::array<Vemi8u, 100> dst;
  dst.fill(3);
  constexpr VemiRect all = {0, 0, 10, 10};
  const auto warp = [&](const double(&c)[2][3]) {
    return vemiWarpAffine_8u_C1R(src.data(), {10, 10}, 10, all, dst.data(), 10, all, c, vemiInterLinear);
  };
  const auto rotate = [&](double angle, double shift) {
    return vemiRotate_8u_C1R(src.data(), {10, 10}, 10, all, dst.data(), 10, all, angle, shift, 0, vemiInterLinear);
  };
  EXPECT_EQ(warp({{nan, 0, 0}, {0, 1, 0}}), vemiErrQuad);
  EXPECT_EQ(warp({{1, 0, nan}, {0, 1, 0}}), vemiErrQuad);
  EXPECT_EQ(warp({{1, 0, inf}, {0, 1, 0}}), vemiErrQuad);
  EXPECT_EQ(warp({{1, 0, 1e30}, {0, 1, 0}}), vemiErrQuad);  // a shift beside which the image is a point
  EXPECT_EQ(warp({{1, 0, 1e12}, {0, 1, -1e12}}), vemiWarnQuadIntersection);
  EXPECT_EQ(rotate(90, inf), vemiWarnNoOperation);
  EXPECT_EQ(rotate(90, -1e300), vemiWarnNoOperation);
  EXPECT_EQ(rotate(nan, 0), vemiErrQuad);
  EXPECT_EQ(rotate(90, nan), vemiErrQuad);
  for (const Vemi8u byte : dst) EXPECT_EQ(byte, 3);
}

// Singular are those of at most 1e-12 of the first product, or where that is at most 1e-200, of the second one alone.
TEST(WarpAffine, TinyDeterminants) {
  const Vemi8u src[4] = {1, 2, 3, 4};
  Vemi8u dst[4] = {};
  const auto warpBy = [&](const double(&map)[2][3]) {
    return vemiWarpAffine_8u_C1R(src, {2, 2}, 2, {0, 0, 2, 2}, dst, 2, {0, 0, 2, 2}, map, vemiInterLinear);
  };
  const auto warp = [&](double scale) { return warpBy({{scale, 0, 0}, {0, 1, 0}}); };
  EXPECT_EQ(warp(1e-201), vemiErrQuad);
  EXPECT_EQ(dst[0], 0);
  EXPECT_EQ(warp(1e-199), vemiOk);
  EXPECT_EQ(dst[0], 1);
  EXPECT_EQ(dst[1], 0);
  EXPECT_EQ(dst[2], 3);
  EXPECT_EQ(warpBy({{1, 1, 0}, {1, 1 + 0x1p-40, 0}}), vemiErrQuad);
  EXPECT_EQ(warpBy({{1, 1, 0}, {1, 1 + 0x1p-39, 0}}), vemiOk);
}

TEST(WarpAffine, RegionsOfOneColumnOrRow) {
  const Vemi8u src[16] = {};
  Vemi8u dst[16] = {};
  const double map[2][3] = {{1, 0, 0}, {0, 1, 0}};
  for (const VemiRect region : {VemiRect{0, 0, 4, 1}, {0, 0, 1, 4}, {0, 3, 4, 4}, {3, 0, 4, 4}}) {
    EXPECT_EQ(vemiWarpAffine_8u_C1R(src, {4, 4}, 4, region, dst, 4, {0, 0, 4, 4}, map, vemiInterNearest), vemiErrRect);
  }
}

// A map so steep that the place of the only pixel that it reaches lies behind the last column, by doubles' rounding.
TEST(WarpAffineBack, FetchesPlacesJustBehindTheRegion) {
  const Vemi8u src[14] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14};
  const double steep = 1851785216, back[2][3] = {{steep, 0, 6.000001 - 4 * steep}, {0, 1, 0}};
  for (const int interpolation : {vemiInterNearest, vemiInterLinear}) {
    Vemi8u dst[12] = {};
    EXPECT_EQ(vemiWarpAffineBack_8u_C1R(src, {7, 2}, 7, {0, 0, 7, 2}, dst, 6, {0, 0, 6, 2}, back, interpolation),
              vemiOk);
    for (int i = 0; i < 12; ++i) EXPECT_EQ(dst[i], i == 4 ? 7 : i == 10 ? 14 : 0) << i;
  }
}

// Half of a pixel on the edge is covered; the sides of the destination's region are no edges.
TEST(WarpAffine, SmoothEdgesMixHalves) {
  std::array<Vemi8u, 36> src;
  std::array<Vemi8u, 36> dst = {};
  src.fill(201);
  const double map[2][3] = {{1, 0, 2}, {0, 1, -1}};
  EXPECT_EQ(vemiWarpAffine_8u_C1R(src.data(), {6, 6}, 6, {0, 0, 6, 6}, dst.data(), 6, {0, 0, 6, 6}, map,
                                  vemiInterNearest | vemiSmoothEdge),
            vemiOk);
  for (size_t y = 0; y < 6; ++y) {
    for (size_t x = 0; x < 6; ++x) {
      EXPECT_EQ(dst[6 * y + x], y == 5 || x < 2 ? 0 : x == 2 || y == 4 ? 100 : 201) << x << ", " << y;
    }
  }
}
