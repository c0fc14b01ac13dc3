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
  const double x = drawFactor(call, region.width, size.width, most);
  const double y = drawFactor(call, region.height, size.height, most);
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

// ---- Perspective and bilinear warps ---------------------------------------------------------------------------------

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
  return {
      {"vemiResize vemiResizeCenter", ".*", "null srcSize step srcRoi beside dstRoiSize factor interpolation",
       drawResize, resizeFaults("xFactor", "yFactor")},
      {"vemiResizeShift", ".*", "null srcSize step srcRoi beside dstRoiSize factor interpolation", drawResize,
       resizeFaults("xFr", "yFr")},
      {"vemiGetResizeFract", ".*", "size beside factor null interpolation", drawResize,
       resizeFaults("xFactor", "yFactor")},

      // Affine warps

      // Perspective and bilinear warps

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
