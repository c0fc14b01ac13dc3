// Perspective and bilinear warps against their definition, their inverses against the maps, and the queries about them.

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "geometry/warp_reference.h"
#include "support/check.h"

using namespace vemi::test;

namespace {

std::vector<double> numbersOf(Call& call, const char* name, int count) {
  std::vector<double> numbers;
  for (int n = 0; n < count; ++n) numbers.push_back(load<double>(call.constant(name, n)));
  return numbers;
}

Corners quadOf(Call& call, const char* name) {
  const std::vector<double> n = numbersOf(call, name, 8);
  return {{n[0], n[1]}, {n[2], n[3]}, {n[4], n[5]}, {n[6], n[7]}};
}

/// Coordinates of corners, as the transforms take them.
struct Axes {
  double x[4], y[4];

  explicit Axes(const Corners& quad) : x(), y() {
    for (size_t n = 0; n < 4; ++n) {
      x[n] = quad[n].x;
      y[n] = quad[n].y;
    }
  }
};

struct Perspective {
  double c[9];

  Spot operator()(Spot p) const {
    const double z = c[6] * p.x + c[7] * p.y + c[8];
    return {(c[0] * p.x + c[1] * p.y + c[2]) / z, (c[3] * p.x + c[4] * p.y + c[5]) / z};
  }
  Perspective inverse() const {
    return {{c[4] * c[8] - c[5] * c[7], c[2] * c[7] - c[1] * c[8], c[1] * c[5] - c[2] * c[4], c[5] * c[6] - c[3] * c[8],
             c[0] * c[8] - c[2] * c[6], c[2] * c[3] - c[0] * c[5], c[3] * c[7] - c[4] * c[6], c[1] * c[6] - c[0] * c[7],
             c[0] * c[4] - c[1] * c[3]}};
  }
  Perspective operator*(const Perspective& first) const {
    Perspective product = {};
    for (int n = 0; n < 9; ++n) {
      for (int k = 0; k < 3; ++k) product.c[n] += c[n / 3 * 3 + k] * first.c[3 * k + n % 3];
    }
    return product;
  }
  Spot placeOf(Spot first, double i) const {
    const auto at = [&](int n) { return c[n] * first.x + (c[n + 1] * first.y + c[n + 2]) + i * c[n]; };
    return {at(0) / at(6), at(3) / at(6)};
  }
};

Perspective perspectiveTo(const Corners& quad, double left, double top, double right, double bottom) {
  const auto [x, y] = Axes(quad);
  const double w = 1 / (right - left), h = 1 / (bottom - top);
  const double dx1 = x[1] - x[2], dx2 = x[3] - x[2], dxs = x[0] - x[1] + x[2] - x[3];
  const double dy1 = y[1] - y[2], dy2 = y[3] - y[2], dys = y[0] - y[1] + y[2] - y[3];
  const double d = 1 / (dx1 * dy2 - dx2 * dy1), g = (dxs * dy2 - dx2 * dys) * d, k = (dx1 * dys - dxs * dy1) * d;
  Perspective map = {};
  map.c[0] = (x[1] - x[0] + g * x[1]) * w;
  map.c[1] = (x[3] - x[0] + k * x[3]) * h;
  map.c[2] = x[0] - map.c[0] * left - map.c[1] * top;
  map.c[3] = (y[1] - y[0] + g * y[1]) * w;
  map.c[4] = (y[3] - y[0] + k * y[3]) * h;
  map.c[5] = y[0] - map.c[3] * left - map.c[4] * top;
  map.c[6] = g * w;
  map.c[7] = k * h;
  map.c[8] = 1 - map.c[6] * left - map.c[7] * top;
  return map;
}

struct Bilinear {
  double c[8];

  double at(int n, Spot p) const { return c[n] * p.x * p.y + c[n + 1] * p.x + c[n + 2] * p.y + c[n + 3]; }
  Spot operator()(Spot p) const { return {at(0, p), at(4, p)}; }
};

Bilinear bilinearTo(const Corners& quad, double left, double top, double right, double bottom) {
  const double unit = 1 / ((right - left) * (bottom - top));
  Bilinear map = {};
  const auto [xs, ys] = Axes(quad);
  for (int axis = 0; axis < 2; ++axis) {
    const double* const p = axis == 0 ? xs : ys;
    double* const c = map.c + 4 * axis;
    c[0] = -(p[1] - p[0] + p[3] - p[2]) * unit;
    c[1] = ((p[1] - p[0]) * bottom + (p[3] - p[2]) * top) * unit;
    c[2] = ((p[0] - p[3]) * -right + (p[2] - p[1]) * -left) * unit;
    c[3] = p[0] - c[1] * left - c[2] * top - c[0] * left * top;
  }
  return map;
}

/// From the unit square: differences of the corners.
Bilinear fromSquare(const Corners& q) {
  return {{q[0].x - q[1].x + q[2].x - q[3].x, q[1].x - q[0].x, q[3].x - q[0].x, q[0].x,
           q[0].y - q[1].y + q[2].y - q[3].y, q[1].y - q[0].y, q[3].y - q[0].y, q[0].y}};
}

/// One of the roots of a t^2 + b t + c: the one at which the parabola has this slope.
double rootWithSlope(double a, double b, double c, double slope) {
  return b * slope >= 0 ? -(c + c) / (b + slope) : (slope - b) / (a + a);
}

/// A pixel of quadrangle `to` in quadrangle `from`, through the unit square.
Spot bilinearBetween(const Corners& to, const Corners& from, Spot first, double i) {
  const auto [a, b, c, x0, d, e, f, y0] = fromSquare(to).c;
  const double x = first.x - x0, y = first.y - y0, cross = b * f - e * c;
  const double linear = (d * x - a * y) + i * d, constant = (f * x - c * y) + i * f;
  const double uSquare = a * e - d * b, vSquare = a * f - d * c;
  const double root = std::sqrt(std::max((linear - cross) * (linear - cross) - 4 * uSquare * constant, 0.0));
  const double slope = orientationOf(to) * root;
  const double u = rootWithSlope(uSquare, linear - cross, constant, -slope);
  const double v = rootWithSlope(vSquare, linear + cross, (e * x - b * y) + i * e, slope);
  const Bilinear onwards = fromSquare(from);
  const auto place = [&](const double* n) { return (n[0] * u + n[2]) * v + n[1] * u + n[3]; };
  return {place(onwards.c), place(onwards.c + 4)};
}

template <class Map>
Corners mapped(VemiRect region, const Map& map) {
  Corners quad;
  for (const Spot p : cornersOf(region)) quad.push_back(map(p));
  return quad;
}

/// placeOf(quadrangle, the region's corners, first pixel of a span, i)
template <class PlaceOf>
void warpRegion(Call& call, const std::function<Spot(Spot)>& map, const PlaceOf& placeOf) {
  VemiRect region;
  call.expectedStatus = clipSource(call, region);
  if (call.expectedStatus != vemiOk) return;
  const Corners quad = mapped(region, map), corners = cornersOf(region);
  if (orientationOf(quad) == 0) {
    call.expectedStatus = vemiErrQuad;
    return;
  }
  warpByDefinition(call, region, {quad, {}, [=](Spot first, double i) { return placeOf(quad, corners, first, i); }});
}

Spot perspectiveBetween(const Corners& to, const Corners& from, Spot first, double i) {
  return (perspectiveTo(from, 0, 0, 1, 1) * perspectiveTo(to, 0, 0, 1, 1).inverse()).placeOf(first, i);
}

bool vanishes(double p, double q) {
  return std::fabs(p) > 1e-200 ? std::fabs((p - q) / p) <= 1e-12 : std::fabs(q) <= 1e-12;
}

Perspective perspectiveOf(Call& call) {
  Perspective map;
  const std::vector<double> numbers = numbersOf(call, "coeffs", 9);
  std::copy(numbers.begin(), numbers.end(), map.c);
  return map;
}

Bilinear bilinearOf(Call& call) {
  Bilinear map;
  const std::vector<double> numbers = numbersOf(call, "coeffs", 8);
  std::copy(numbers.begin(), numbers.end(), map.c);
  return map;
}

bool isRefused(Call& call, const Perspective& map) {
  if (!vanishes(map.c[0] * map.c[4], map.c[1] * map.c[3]) && std::fabs(map.c[8]) > 1e-12) return false;
  call.expectedStatus = vemiErrQuad;
  return true;
}

void warpedPerspective(Call& call) {
  const Perspective map = perspectiveOf(call);
  if (!isRefused(call, map)) warpRegion(call, map, perspectiveBetween);
}

void warpedPerspectiveBack(Call& call) {
  const Perspective back = perspectiveOf(call);
  if (isRefused(call, back)) return;
  warpRegion(call, back.inverse(),
             [=](const Corners&, const Corners&, Spot first, double i) { return back.placeOf(first, i); });
  if (call.expectedStatus == vemiWarnQuadIntersection) call.expectedStatus = vemiOk;
}

void warpedBilinear(Call& call) { warpRegion(call, bilinearOf(call), bilinearBetween); }

void warpedBilinearBack(Call& call) {
  const Bilinear back = bilinearOf(call);
  VemiRect region;
  if (vanishes(back.c[1] * back.c[6], back.c[2] * back.c[5])) {
    call.expectedStatus = vemiErrQuad;
    return;
  }
  call.expectedStatus = clipSource(call, region);
  if (call.expectedStatus != vemiOk) return;
  const Corners edges = cornersOf(region);
  const auto placeOf = [=](Spot first, double i) {
    const auto at = [&](const double* c) {
      const double perPixel = c[0] * first.y + c[1];
      return perPixel * first.x + (c[2] * first.y + c[3]) + i * perPixel;
    };
    return Spot{at(back.c), at(back.c + 4)};
  };
  const auto coverage = [=](Spot p) {
    const auto within = [&](int n, double low, double high) {
      const double perX = back.c[n] * p.y + back.c[n + 1], perY = back.c[n] * p.x + back.c[n + 2];
      const double place = back.at(n, p);
      return 0.5 + std::min(place - low, high - place) / std::max(std::fabs(perX), std::fabs(perY));
    };
    return std::min(within(0, edges[0].x, edges[2].x), within(4, edges[0].y, edges[2].y));
  };
  warpByDefinition(call, region, {cornersOf(call.get<VemiRect>("dstRoi")), {}, placeOf, true, coverage});
}

template <class PlaceOf>
void warpQuads(Call& call, const PlaceOf& placeOf) {
  const Corners from = quadOf(call, "srcQuad"), to = quadOf(call, "dstQuad");
  VemiRect region;
  if (orientationOf(from) == 0 || orientationOf(to) == 0) {
    call.expectedStatus = vemiErrCoeff;
    return;
  }
  call.expectedStatus = clipSource(call, region);
  if (call.expectedStatus != vemiOk) return;
  if (cutTo(from, region).empty()) {
    call.expectedStatus = vemiWarnQuadIntersection;
    return;
  }
  warpByDefinition(call, region, {to, {}, [=](Spot first, double i) { return placeOf(to, from, first, i); }, true});
}

void storeNumbers(Call& call, const char* name, const std::vector<double>& numbers) {
  const View result = call.array(name);
  for (size_t n = 0; n < numbers.size(); ++n) store(result.at(static_cast<int>(n), 0), numbers[n]);
}

Corners mappedRegion(Call& call) {
  const VemiRect roi = call.get<VemiRect>("srcRoi");
  const bool isPerspective = call.function.name.find("Perspective") != std::string::npos;
  return isPerspective ? mapped(roi, perspectiveOf(call)) : mapped(roi, bilinearOf(call));
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
  if (orientationOf(q) == 0) call.expectedStatus = vemiErrQuad;
  storeNumbers(call, "bound",
               {std::min({q[0].x, q[1].x, q[2].x, q[3].x}), std::min({q[0].y, q[1].y, q[2].y, q[3].y}),
                std::max({q[0].x, q[1].x, q[2].x, q[3].x}), std::max({q[0].y, q[1].y, q[2].y, q[3].y})});
}

void transformOfQuad(Call& call) {
  const VemiRect roi = call.get<VemiRect>("srcRoi");
  const Corners quad = quadOf(call, "quad"), corners = cornersOf(roi);
  if (orientationOf(quad) == 0 || roi.width < 2 || roi.height < 2) {
    call.expectedStatus = orientationOf(quad) == 0 ? vemiErrCoeff : vemiErrRect;
    return;
  }
  const double left = corners[0].x, top = corners[0].y, right = corners[2].x, bottom = corners[2].y;
  if (call.function.name.find("Perspective") != std::string::npos) {
    const Perspective map = perspectiveTo(quad, left, top, right, bottom);
    storeNumbers(call, "coeffs", {map.c, map.c + 9});
  } else {
    const Bilinear map = bilinearTo(quad, left, top, right, bottom);
    storeNumbers(call, "coeffs", {map.c, map.c + 8});
  }
}

}  // namespace

TEST(WarpPerspective, EveryMember) { expectDefinition(membersOf("vemiWarpPerspective"), warpedPerspective); }
TEST(WarpPerspectiveBack, EveryMember) {
  expectDefinition(membersOf("vemiWarpPerspectiveBack"), warpedPerspectiveBack);
}
TEST(WarpBilinear, EveryMember) { expectDefinition(membersOf("vemiWarpBilinear"), warpedBilinear); }
TEST(WarpBilinearBack, EveryMember) { expectDefinition(membersOf("vemiWarpBilinearBack"), warpedBilinearBack); }
TEST(WarpPerspectiveQuad, EveryMember) {
  expectDefinition(membersOf("vemiWarpPerspectiveQuad"), [](Call& call) { warpQuads(call, perspectiveBetween); });
}
TEST(WarpBilinearQuad, EveryMember) {
  expectDefinition(membersOf("vemiWarpBilinearQuad"), [](Call& call) { warpQuads(call, bilinearBetween); });
}

TEST(QuadQueries, EveryMember) {
  for (const char* const map : {"Perspective", "Bilinear"}) {
    const std::string get = std::string("vemiGet") + map;
    expectDefinition(membersOf(get + "Quad"), quadOfRegion);
    expectDefinition(membersOf(get + "Bound"), boundOfRegion);
    expectDefinition(membersOf(get + "Transform"), transformOfQuad);
  }
}

namespace {

constexpr VemiSize coordinateImage = {200, 150};
constexpr int backWidth = 140;

double areaOf(const Corners& corners) {
  double area = 0;
  for (size_t n = 0; n < corners.size(); ++n) {
    const Spot a = corners[n], b = corners[(n + 1) % corners.size()];
    area += (a.x * b.y - b.x * a.y) / 2;
  }
  return std::fabs(area);
}

/// warp(image, result) of images of coordinates: there, the map leads to the pixel.
template <class Warp, class Map>
void expectBack(const Warp& warp, const Map& map, VemiRect region, const Corners& corners) {
  const Corners mappedCorners = mapped(region, map);
  for (size_t n = 0; n < 4; ++n) {
    ASSERT_NEAR(mappedCorners[n].x, corners[n].x, 1e-9);
    ASSERT_NEAR(mappedCorners[n].y, corners[n].y, 1e-9);
  }
  std::vector<Vemi32f> columns, rows, u(backWidth * backWidth, -1), v = u;
  for (int i = 0; i < coordinateImage.width * coordinateImage.height; ++i) {
    columns.push_back(static_cast<float>(i % coordinateImage.width));
    rows.push_back(static_cast<float>(i / coordinateImage.width));
  }
  ASSERT_EQ(warp(columns.data(), u.data()), vemiOk);
  ASSERT_EQ(warp(rows.data(), v.data()), vemiOk);
  int count = 0;
  for (size_t i = 0; i < u.size(); ++i) {
    if (u[i] < 0) continue;
    ++count;
    const Spot there = map({u[i], v[i]});
    ASSERT_NEAR(there.x, static_cast<double>(i % backWidth), 0.005) << "from " << u[i] << ", " << v[i];
    ASSERT_NEAR(there.y, static_cast<double>(i / backWidth), 0.005) << "from " << u[i] << ", " << v[i];
  }
  ASSERT_NEAR(count, areaOf(corners), 150);
}

}  // namespace

// Quadrangles of any shape, both ways round, of a region far away from (0, 0).
TEST(QuadWarps, LeadBackWhereTheMapComesFrom) {
  constexpr VemiRect region = {100, 60, 64, 64}, all = {0, 0, backWidth, backWidth};
  Random random(5);
  for (int trial = 0; trial < 300; ++trial) {
    const auto anywhere = [&] { return random.below(trial % 2 == 0 ? 3000 : 6000) / 100.0; };
    Corners corners = {{5, 5}, {70, 5}, {70, 70}, {5, 70}};
    for (Spot& corner : corners) corner = {corner.x + anywhere(), corner.y + anywhere()};
    if (trial % 3 == 0) std::swap(corners[1], corners[3]);
    double quad[4][2], c33[3][3], c24[2][4];
    for (size_t n = 0; n < 4; ++n) {
      quad[n][0] = corners[n].x;
      quad[n][1] = corners[n].y;
    }
    const bool isGood = orientationOf(corners) != 0;
    ASSERT_EQ(vemiGetPerspectiveTransform(region, quad, c33), isGood ? vemiOk : vemiErrCoeff);
    ASSERT_EQ(vemiGetBilinearTransform(region, quad, c24), isGood ? vemiOk : vemiErrCoeff);
    if (!isGood) continue;
    Perspective perspective;
    Bilinear bilinear;
    std::memcpy(perspective.c, c33, sizeof c33);
    std::memcpy(bilinear.c, c24, sizeof c24);
    const auto bySight = [&](const Vemi32f* src, Vemi32f* dst) {
      return vemiWarpPerspective_32f_C1R(src, coordinateImage, 4 * coordinateImage.width, region, dst, 4 * backWidth,
                                         all, c33, vemiInterLinear);
    };
    const auto byForm = [&](const Vemi32f* src, Vemi32f* dst) {
      return vemiWarpBilinear_32f_C1R(src, coordinateImage, 4 * coordinateImage.width, region, dst, 4 * backWidth, all,
                                      c24, vemiInterLinear);
    };
    expectBack(bySight, perspective, region, corners);
    expectBack(byForm, bilinear, region, corners);
    ASSERT_FALSE(HasFatalFailure()) << trial;
  }
}

TEST(QuadWarps, RectanglesOntoThemselves) {
  const double quad[4][2] = {{3, 4}, {12, 4}, {12, 9}, {3, 9}};
  double perspective[3][3], bilinear[2][4];
  EXPECT_EQ(vemiGetPerspectiveTransform({3, 4, 10, 6}, quad, perspective), vemiOk);
  EXPECT_EQ(vemiGetBilinearTransform({3, 4, 10, 6}, quad, bilinear), vemiOk);
  for (int n = 0; n < 9; ++n) EXPECT_DOUBLE_EQ(perspective[n / 3][n % 3], n % 4 == 0 ? 1 : 0) << n;
  for (int n = 0; n < 8; ++n) EXPECT_DOUBLE_EQ(bilinear[n / 4][n % 4], n == 1 || n == 6 ? 1 : 0) << n;
}

TEST(QuadWarps, BackFormsThatMissEverything) {
  const std::vector<Vemi8u> src(100, 1);
  std::vector<Vemi8u> dst(100, 3);
  constexpr VemiRect all = {0, 0, 10, 10};
  const double perspective[3][3] = {{1, 0, 50}, {0, 1, 0}, {0, 0, 1}}, bilinear[2][4] = {{0, 1, 0, 50}, {0, 0, 1, 0}};
  const auto warp = [&](auto function, const auto& coeffs) {
    return function(src.data(), VemiSize{10, 10}, 10, all, dst.data(), 10, all, coeffs, vemiInterLinear);
  };
  EXPECT_EQ(warp(vemiWarpPerspective_8u_C1R, perspective), vemiWarnQuadIntersection);
  EXPECT_EQ(warp(vemiWarpBilinear_8u_C1R, bilinear), vemiWarnQuadIntersection);
  EXPECT_EQ(warp(vemiWarpPerspectiveBack_8u_C1R, perspective), vemiOk);
  EXPECT_EQ(warp(vemiWarpBilinearBack_8u_C1R, bilinear), vemiOk);
  EXPECT_EQ(dst, std::vector<Vemi8u>(100, 3));
}

TEST(QuadWarps, WithoutBendingTheyAreAffine) {
  constexpr VemiSize size = {40, 30};
  constexpr VemiRect all = {0, 0, 40, 30};
  std::vector<Vemi32f> src;
  for (int i = 0; i < 1200; ++i) src.push_back(static_cast<float>(i * i % 1009));
  const double affine[2][3] = {{0.9, 0.2, 3.3}, {-0.3, 1.1, 7.7}};
  const double perspective[3][3] = {{0.9, 0.2, 3.3}, {-0.3, 1.1, 7.7}, {0, 0, 1}};
  const double bilinear[2][4] = {{0, 0.9, 0.2, 3.3}, {0, -0.3, 1.1, 7.7}};
  const auto result = [&](auto warp, const auto& coeffs) {
    std::vector<Vemi32f> dst(1200, -1);
    EXPECT_EQ(warp(src.data(), size, 160, all, dst.data(), 160, all, coeffs, vemiInterCubic), vemiOk);
    return dst;
  };
  const std::vector<Vemi32f> expected = result(vemiWarpAffine_32f_C1R, affine);
  const std::vector<Vemi32f> others[] = {result(vemiWarpPerspective_32f_C1R, perspective),
                                         result(vemiWarpBilinear_32f_C1R, bilinear)};
  for (const std::vector<Vemi32f>& other : others) {
    for (size_t i = 0; i < 1200; ++i) ASSERT_NEAR(other[i], expected[i], 0.02) << i;
  }
}
