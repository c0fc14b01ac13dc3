// Geometry.

#include "support/families.h"

#include <limits.h>

#include <cmath>

#include "vemi/geometry.h"

namespace vemi::test {
namespace {

// ---- Another size ---------------------------------------------------------------------------------------------------

/// A size of 1 now and then, mostly small, sometimes larger than a few vectors.
int drawExtent(Call& call) {
  const int kind = call.random.below(8);
  return kind == 0 ? 1 + call.random.below(3) : kind < 7 ? 4 + call.random.below(24) : 30 + call.random.below(150);
}

/// A source and a region of it, which may reach beyond.
VemiRect drawSourceRegion(Call& call) {
  const VemiSize size = {drawExtent(call), drawExtent(call)};
  VemiRect region = {0, 0, size.width, size.height};
  if (call.random.below(2) == 0) {
    region.x = call.random.below(size.width);
    region.y = call.random.below(size.height);
    region.width = 1 + call.random.below(size.width);
    region.height = 1 + call.random.below(size.height);
  }
  call.set("srcSize", size);
  call.set("srcRoi", region);
  return region;
}

/// What fills the destination, twice and half of it, a factor near one, or anything up to 50; at most `most`.
double drawFactor(Call& call, int region, int destination, double most) {
  const double factors[] = {static_cast<double>(destination) / region,
                            1,
                            2,
                            0.5,
                            (1 + call.random.below(100)) / 50.0,
                            (1 + call.random.below(2000)) / (1.0 + call.random.below(2000))};
  const double factor = std::fmin(factors[call.random.below(6)], 50);
  return factor < 0.02 ? 0.02 : factor > most ? 1 / factor : factor;
}

void drawResize(Call& call) {
  const bool bySteps = call.function.indexOf("xFr") >= 0, isQuery = call.function.indexOf("pxFr") >= 0;
  const int kinds[] = {vemiInterNearest, vemiInterLinear, vemiInterCubic, vemiInterLanczos, vemiInterSuper};
  const int kind = kinds[call.random.below(bySteps || isQuery ? 4 : 5)];
  const VemiRect region = drawSourceRegion(call);
  const VemiSize size = call.scenario.roiSize;
  const double most = kind == vemiInterSuper ? 1 : 50;
  const bool halves = kind == vemiInterSuper && call.random.below(3) == 0;
  const double x = halves ? 0.5 : drawFactor(call, region.width, size.width, most);
  const double y = halves ? 0.5 : drawFactor(call, region.height, size.height, most);
  call.set("interpolation", kind);
  call.set(bySteps ? "xFr" : "xFactor", bySteps ? 1 / x : x);
  call.set(bySteps ? "yFr" : "yFactor", bySteps ? 1 / y : y);
  if (isQuery) return;
  call.image("pSrc").size = call.get<VemiSize>("srcSize");
  const auto any = [&](double reach) { return (call.random.below(2001) - 1000) * reach / 1000; };
  for (const char* const shift : {"xShift", "yShift"}) {
    if (bySteps) call.set(shift, call.random.below(3) == 0 ? 0 : any(call.random.below(8) == 0 ? 1e3 : 2));
  }
  if (call.function.indexOf("xCenter") < 0) return;
  call.set("xCenter", region.width / 2.0 + any(region.width / 2.0));
  call.set("yCenter", region.height / 2.0 + any(region.height / 2.0));
}

bool beginBeside(Call& call) {
  auto region = call.get<VemiRect>("srcRoi");
  if (region.width < 1 || region.height < 1 || region.x < 0 || region.y < 0) return true;
  (call.random.below(2) == 0 ? region.x : region.y) = INT_MAX;
  call.set("srcRoi", region);
  return true;
}

bool averageEnlarged(Call& call) {
  if (call.function.indexOf("xFactor") < 0) return false;
  if (call.get<double>("xFactor") > 0) call.set("xFactor", 1.0000001);
  call.set("interpolation", static_cast<int>(vemiInterSuper));
  return true;
}

std::vector<OwnFault> resizeFaults(const char* x, const char* y) {
  std::vector<OwnFault> faults = {{"srcRoi", 0, "beside", vemiWarnNoIntersection, beginBeside},
                                  {"vemiInterSuper", 0, "interpolation", vemiErrInterpolation, averageEnlarged}};
  for (const char* const factor : {x, y}) {
    for (const double bad : {0.0, -1.0, -HUGE_VAL, std::nan("")}) {
      faults.push_back({factor, bad, "factor", vemiErrResizeFactor});
    }
  }
  for (const int bad : {0, 3, 5, 17, INT_MIN | vemiInterLinear, INT_MAX}) {
    faults.push_back({"interpolation", static_cast<double>(bad), "interpolation", vemiErrInterpolation});
  }
  return faults;
}

// ---- Affine warps ---------------------------------------------------------------------------------------------------

struct Place {
  double x, y;
};

/// Of the middle of a region.
Place middleOf(VemiRect roi) { return {roi.x + (roi.width - 1) / 2.0, roi.y + (roi.height - 1) / 2.0}; }

/// From -1 to 1, in small binary fractions or in many places.
double fractionOf(Call& call) {
  return call.random.below(2) == 0 ? (call.random.below(17) - 8) / 8.0 : (call.random.below(200001) - 100000) / 1e5;
}

/// Images and regions of a warp: small sources among them, and regions that reach beyond their image.
void setWarp(Call& call) {
  constexpr int kinds[] = {vemiInterNearest, vemiInterLinear, vemiInterCubic};
  const bool small = call.random.below(8) == 0;
  const VemiSize size = {2 + call.random.below(small ? 3 : 40), 2 + call.random.below(small ? 3 : 16)};
  VemiRect src = {0, 0, size.width, size.height};
  if (call.random.below(2) == 0) {
    src = {call.random.below(size.width - 1), call.random.below(size.height - 1), 2 + call.random.below(size.width + 3),
           2 + call.random.below(size.height + 3)};
  }
  const VemiSize roi = call.scenario.roiSize;
  const VemiRect dst = {call.random.below(4), call.random.below(3), roi.width, roi.height};
  call.set("srcSize", size);
  call.set("srcRoi", src);
  call.set("dstRoi", dst);
  call.set("interpolation", kinds[call.random.below(3)] | (call.random.below(3) == 0 ? vemiSmoothEdge : 0));
  call.image("pSrc").size = size;
  call.image("pDst").size = {dst.x + dst.width, dst.y + dst.height};
}

/// The same in so many places that no edge meets a pixel's middle by accident. Where it may, all is in whole numbers
/// and halves.
double oddFractionOf(Call& call) { return (call.random.below(200001) - 100000) / 1e5 + 0.00000371; }

/// A map that takes the one region's middle to the other's, or near it; as a rule not a singular one.
std::vector<double> affineMap(Call& call, VemiRect from, VemiRect to) {
  const bool plain = call.random.below(4) == 0;
  const double scale = call.random.below(3) == 0 ? 4 : call.random.below(2) == 0 ? 0.5 : 1;
  const double xx = scale * (plain ? 1 : fractionOf(call)), xy = plain ? 0 : scale * fractionOf(call);
  const double yx = plain ? 0 : fractionOf(call), yy = plain ? 1 : fractionOf(call);
  const Place a = middleOf(from), b = middleOf(to);
  const auto shift = [&](double x) { return std::floor(x) + (plain ? 0 : oddFractionOf(call)); };
  const double x = shift(b.x - xx * a.x - xy * a.y), y = shift(b.y - yx * a.x - yy * a.y);
  return {xx, xy, x, yx, yy, y};
}

void setAffineMap(Call& call, VemiRect from, VemiRect to) { call.setArray("coeffs", affineMap(call, from, to)); }

void setWarpAffine(Call& call) {
  setWarp(call);
  setAffineMap(call, call.get<VemiRect>("srcRoi"), call.get<VemiRect>("dstRoi"));
}

void setWarpAffineBack(Call& call) {
  setWarp(call);
  setAffineMap(call, call.get<VemiRect>("dstRoi"), call.get<VemiRect>("srcRoi"));
}

/// Parallelograms about the regions' middles, now and then with a fourth corner that does not fit; or equal rectangles.
void setWarpQuad(Call& call) {
  setWarp(call);
  const bool plain = call.random.below(4) == 0;
  const VemiRect src = call.get<VemiRect>("srcRoi"), dst = call.get<VemiRect>("dstRoi");
  const auto setQuad = [&](const char* quad, VemiRect roi) {
    const Place middle = middleOf(roi);
    const double half = 1 + roi.width / 2.0, across = half * (1 + fractionOf(call)) / 2 + 0.75;
    const double lean = half * fractionOf(call) / 8, down = (roi.height + 1) * (1.25 + fractionOf(call)) / 2;
    const double tilt = oddFractionOf(call) / 4, x = middle.x + oddFractionOf(call) / 4;
    const double wrong = call.random.below(3) == 0 ? down / 8 * fractionOf(call) : 0;
    const double left = roi.x, top = roi.y, right = left + src.width - 1, bottom = top + src.height - 1;
    call.setArray<double>(quad,
                          plain ? std::vector<double>{left, top, right, top, right, bottom, left, bottom}
                                : std::vector<double>{x - across - lean, middle.y - down - tilt, x + across - lean,
                                                      middle.y - down + tilt, x + across + lean, middle.y + down + tilt,
                                                      x - across + lean, middle.y + down - tilt + wrong});
  };
  setQuad("srcQuad", src);
  setQuad("dstQuad", dst);
}

/// Whole quarter turns, whole degrees and others.
double angleOf(Call& call) {
  const int kind = call.random.below(4);
  return kind == 0 ? 90 * (call.random.below(9) - 4)
                   : call.random.below(1441) - 720 + (kind == 1 ? call.random.below(1000) / 1e3 : 0);
}

void setRotation(Call& call) {
  setWarp(call);
  const double angle = angleOf(call), turn = angle / 180 * 3.14159265;
  const Place from = middleOf(call.get<VemiRect>("srcRoi")), to = middleOf(call.get<VemiRect>("dstRoi"));
  const bool whole = std::fmod(angle, 90) == 0 && call.random.below(2) == 0;
  const double partX = whole ? 0 : oddFractionOf(call), partY = whole ? 0 : oddFractionOf(call);
  call.setNumber("angle", angle);
  call.setNumber("xShift", std::floor(to.x - std::cos(turn) * from.x - std::sin(turn) * from.y + 0.3) + partX);
  call.setNumber("yShift", std::floor(to.y + std::sin(turn) * from.x - std::cos(turn) * from.y + 0.3) + partY);
}

void setCenterRotation(Call& call) {
  setWarp(call);
  const Place center = middleOf(call.get<VemiRect>(call.random.below(2) == 0 ? "srcRoi" : "dstRoi"));
  const double angle = angleOf(call);
  const bool whole = std::fmod(angle, 90) == 0 && call.random.below(2) == 0;
  call.setNumber("angle", angle);
  call.setNumber("xCenter", center.x + (whole ? 0 : oddFractionOf(call)));
  call.setNumber("yCenter", center.y + (whole ? 0 : oddFractionOf(call)));
}

void setShear(Call& call) {
  setWarp(call);
  const Place from = middleOf(call.get<VemiRect>("srcRoi")), to = middleOf(call.get<VemiRect>("dstRoi"));
  const bool plain = call.random.below(4) == 0;
  const double xShear = plain ? call.random.below(5) / 2.0 - 1 : 2 * fractionOf(call);
  const double yShear = plain ? 0 : fractionOf(call) / 2;
  call.setNumber("xShear", xShear);
  call.setNumber("yShear", yShear);
  call.setNumber("xShift", std::floor(to.x - from.x - xShear * from.y) + (plain ? 0 : oddFractionOf(call)));
  call.setNumber("yShift", std::floor(to.y - yShear * from.x - from.y) + (plain ? 0 : oddFractionOf(call)));
}

/// The arguments of a query: a region, and maps that may well be singular.
void setAffineQuery(Call& call) {
  for (const Parameter& parameter : call.function.parameters) {
    if (parameter.role == Role::rect) {
      call.set(parameter.name, VemiRect{call.random.below(50), call.random.below(50), 1 + call.random.below(40),
                                        1 + call.random.below(40)});
    } else if (parameter.name == "angle") {
      call.setNumber("angle", angleOf(call));
    } else if (parameter.role == Role::constant) {
      call.setNumber(parameter.name, 8 * fractionOf(call));
    } else if (parameter.role == Role::array && parameter.isConst) {
      std::vector<double> numbers(static_cast<size_t>(parameter.bound));
      const bool isQuad = parameter.bound == 8;
      const double corners[] = {-1, -1, 1, -1, 1, 1, -1, 1};
      for (size_t n = 0; n < numbers.size(); ++n) numbers[n] = 3 * fractionOf(call) + (isQuad ? 4 * corners[n] : 0);
      if (isQuad && call.random.below(2) == 0) {
        for (const size_t n : {6, 7}) numbers[n] = numbers[n - 6] + numbers[n - 2] - numbers[n - 4];
      }
      call.setArray<double>(parameter.name, numbers);
    } else if (parameter.name == "pxShift" || parameter.name == "pyShift") {
      call.setArray<double>(parameter.name, {fractionOf(call)});
    }
  }
}

bool badInterpolation(Call& call) {
  if (call.function.indexOf("angle") >= 0) call.setNumber("angle", 30);  // a copy does not look at it
  call.set("interpolation", vemiInterLinear | vemiInterNearest | vemiSmoothEdge);
  return true;
}

bool noCoefficients(Call& call) {
  if (call.function.indexOf("coeffs") < 0) return false;
  for (int n = 0; n < 6; ++n) call.setNumber("coeffs", n == 2 ? 5 : 0, n);
  return true;
}

bool fullShear(Call& call) {
  call.set("xShear", 1.0);
  call.set("yShear", 1.0);
  return true;
}

bool crossedQuad(Call& call) {
  const bool both = call.function.indexOf("srcQuad") >= 0;
  const char* const quad = both ? "dstQuad" : "quad";
  constexpr double crossed[] = {0, 0, 5, 5, 5, 0, 0, 5};
  for (int n = 0; n < 8; ++n) call.setNumber(quad, crossed[n], n);
  return true;
}

bool sourceBeyond(Call& call) {
  if (call.function.indexOf("angle") >= 0) call.setNumber("angle", 30);
  VemiRect roi = call.get<VemiRect>("srcRoi");
  if (roi.y >= 0) roi.y = INT_MAX;
  call.set("srcRoi", roi);
  return true;
}

bool sourceColumn(Call& call) {
  if (call.function.indexOf("angle") >= 0) call.setNumber("angle", 30);
  VemiRect roi = call.get<VemiRect>("srcRoi");
  if (roi.width > 0) roi.width = 1;
  call.set("srcRoi", roi);
  return true;
}

// ---- Perspective and bilinear warps ---------------------------------------------------------------------------------

/// An affine map bent a little, or not at all, so that the plain ones stay in whole numbers. The denominators of
/// perspective maps are positive about the region as a rule.
template <bool perspective>
void setBentMap(Call& call, VemiRect from, VemiRect to) {
  const std::vector<double> c = affineMap(call, from, to);
  const bool plain = std::floor(c[2]) == c[2] && std::floor(c[5]) == c[5];
  const double x = plain ? 0 : fractionOf(call) / 2 / (from.x + from.width);
  const double y = plain ? 0 : fractionOf(call) / 2 / (from.y + from.height);
  if (perspective) {
    call.setArray<double>("coeffs", {c[0], c[1], c[2], c[3], c[4], c[5], x, y, 1});
  } else {
    call.setArray<double>("coeffs", {y * c[0], c[0], c[1], c[2], x * c[4], c[3], c[4], c[5]});
  }
}

template <bool perspective>
void setWarpBent(Call& call) {
  setWarp(call);
  setBentMap<perspective>(call, call.get<VemiRect>("srcRoi"), call.get<VemiRect>("dstRoi"));
}

template <bool perspective>
void setWarpBentBack(Call& call) {
  setWarp(call);
  setBentMap<perspective>(call, call.get<VemiRect>("dstRoi"), call.get<VemiRect>("srcRoi"));
}

/// Regions, maps and quadrangles, of which some are crossed or degenerate.
template <bool perspective>
void setBentQuery(Call& call) {
  const VemiRect roi = {call.random.below(50), call.random.below(50), 1 + call.random.below(40),
                        1 + call.random.below(40)};
  call.set("srcRoi", roi);
  if (call.function.indexOf("bound") < 0 && call.function.parameters[1].isConst) {
    std::vector<double> quad = {0, 0, 20, 0, 20, 15, 0, 15};
    const int kind = call.random.below(4);
    for (double& each : quad) each += kind == 0 ? roi.x : 6 * fractionOf(call);
    if (kind == 1) std::swap(quad[2], quad[4]);
    call.setArray("quad", quad);
  } else {
    setBentMap<perspective>(call, roi, {3, 4, 20, 20});
  }
}

bool noCoefficientC22(Call& call) {
  call.setNumber("coeffs", 1e-12, 8);
  return true;
}

bool noLinearPart(Call& call) {
  for (const int n : {1, 2, 5, 6}) call.setNumber("coeffs", 0, n);
  return true;
}

// ---- Maps and mirrors -----------------------------------------------------------------------------------------------

/// A source of its own size, maybe too small for the interpolation or with a region that reaches beyond it, and maps as
/// large as the destination.
void setRemap(Call& call) {
  constexpr int kinds[] = {vemiInterNearest, vemiInterLinear, vemiInterCubic};
  const VemiSize size = {1 + call.random.below(call.random.below(3) == 0 ? 4 : 40), 1 + call.random.below(9)};
  VemiRect roi = {0, 0, size.width, size.height};
  if (call.random.below(2) == 0) {
    roi = {call.random.below(size.width + 1), call.random.below(size.height + 1), 1 + call.random.below(size.width + 3),
           1 + call.random.below(size.height + 3)};
  }
  call.set("srcSize", size);
  call.set("srcRoi", roi);
  call.set("interpolation", kinds[call.random.below(3)]);
  call.set("dstRoiSize", call.scenario.roiSize);
  call.image("pSrc").size = size;
  for (const char* const map : {"pxMap", "pyMap"}) call.image(map).layout = {};
}

/// Places in the source and a few beyond it, whole ones among them; random floats, of all kinds, where these are.
void placesInMaps(Call& call) {
  if (call.random.below(8) == 0) return;
  const View images[] = {call.source(1), call.source(2)};
  const VemiSize size = call.get<VemiSize>("srcSize");
  const int pixels[] = {size.width, size.height};
  for (int axis = 0; axis < 2; ++axis) {
    const View map = images[axis];
    for (int y = 0; y < map.size.height; ++y) {
      for (int x = 0; x < map.size.width; ++x) {
        const int kind = call.random.below(16);
        const int part = kind < 4 ? 0 : call.random.below(1025);
        const auto place = static_cast<float>(call.random.below(pixels[axis]) * 1024 + part) / 1024;
        if (kind != 15) store(map.at(x, y), kind == 14 ? place - 1 : place);
      }
    }
  }
}

void setAxis(Call& call) { call.set("flip", call.random.below(3)); }

}  // namespace

std::vector<Family> geometryFamilies() {
  // What all warps find at the same stages.
  const std::vector<OwnFault> warpFaults = {
      {"interpolation", 0, "interpolation", vemiErrInterpolation, badInterpolation},
      {"intersection", 0, "intersection", vemiWarnNoIntersection, sourceBeyond},
      {"column", 0, "region", vemiErrRect, sourceColumn}};
  const auto with = [&](OwnFault fault) {
    std::vector<OwnFault> faults = warpFaults;
    faults.push_back(fault);
    return faults;
  };
  const std::vector<OwnFault> transformFaults = {{"quad", 0, "quad", vemiErrCoeff, crossedQuad},
                                                 {"column", 0, "region", vemiErrRect, sourceColumn}};
  const char* const warpOrder = "null size step interpolation planes map intersection region";
  return {
      {"vemiResize vemiResizeCenter", ".*", "null srcSize step srcRoi beside dstRoiSize factor interpolation",
       drawResize, resizeFaults("xFactor", "yFactor")},
      {"vemiResizeShift", ".*", "null srcSize step srcRoi beside dstRoiSize factor interpolation", drawResize,
       resizeFaults("xFr", "yFr")},
      {"vemiGetResizeFract", ".*", "size beside factor null interpolation", drawResize,
       resizeFaults("xFactor", "yFactor")},

      // Affine warps

      {"vemiWarpAffine", ".*", warpOrder, setWarpAffine, with({"coeffs", 0, "map", vemiErrQuad, noCoefficients})},
      {"vemiWarpAffineBack", ".*", warpOrder, setWarpAffineBack,
       with({"coeffs", 0, "map", vemiErrQuad, noCoefficients})},
      {"vemiWarpAffineQuad", ".*", warpOrder, setWarpQuad, with({"dstQuad", 0, "map", vemiErrCoeff, crossedQuad})},
      {"vemiRotate", ".*", warpOrder, setRotation, warpFaults},
      {"vemiRotateCenter", ".*", warpOrder, setCenterRotation, warpFaults},
      {"vemiShear", ".*", warpOrder, setShear, with({"xShear", 0, "map", vemiErrQuad, fullShear})},
      {"vemiGetRotateShift vemiAddRotateShift vemiGetRotateQuad vemiGetRotateBound vemiGetShearQuad vemiGetAffineQuad",
       ".*", "size null", setAffineQuery},
      {"vemiGetShearBound vemiGetAffineBound",
       ".*",
       "size null",
       setAffineQuery,
       {},
       nullptr,
       {.lateError = vemiErrQuad}},
      {"vemiGetAffineTransform", ".*", "size null quad region", setAffineQuery, transformFaults},

      // Perspective and bilinear warps

      {"vemiWarpPerspective", ".*", warpOrder, setWarpBent<true>,
       with({"coeffs", 0, "map", vemiErrQuad, noCoefficients})},
      {"vemiWarpPerspectiveBack", ".*", warpOrder, setWarpBentBack<true>,
       with({"coeffs", 0, "map", vemiErrQuad, noCoefficientC22})},
      {"vemiWarpBilinear", ".*", warpOrder, setWarpBent<false>, warpFaults},
      {"vemiWarpBilinearBack", ".*", warpOrder, setWarpBentBack<false>,
       with({"coeffs", 0, "map", vemiErrQuad, noLinearPart})},
      {"vemiWarpPerspectiveQuad vemiWarpBilinearQuad", ".*", warpOrder, setWarpQuad,
       with({"dstQuad", 0, "map", vemiErrCoeff, crossedQuad})},
      {"vemiGetPerspectiveQuad", ".*", "size null", setBentQuery<true>},
      {"vemiGetBilinearQuad", ".*", "size null", setBentQuery<false>},
      {"vemiGetPerspectiveBound", ".*", "size null", setBentQuery<true>, {}, nullptr, {.lateError = vemiErrQuad}},
      {"vemiGetBilinearBound", ".*", "size null", setBentQuery<false>, {}, nullptr, {.lateError = vemiErrQuad}},
      {"vemiGetPerspectiveTransform", ".*", "size null quad region", setBentQuery<true>, transformFaults},
      {"vemiGetBilinearTransform", ".*", "size null quad region", setBentQuery<false>, transformFaults},

      {"vemiRemap",
       ".*",
       "null size own step",
       setRemap,
       {{"interpolation", 0, "own", vemiErrInterpolation},
        {"interpolation", 3, "own", vemiErrInterpolation},
        {"interpolation", vemiInterSuper, "own", vemiErrInterpolation},
        {"interpolation", vemiSmoothEdge + vemiInterLinear, "own", vemiErrInterpolation}},
       placesInMaps},
      {"vemiMirror",
       ".*",
       "null step size own",
       setAxis,
       {{"flip", -1, "own", vemiErrMirrorFlip}, {"flip", 3, "own", vemiErrMirrorFlip}}},

  };
}

}  // namespace vemi::test
