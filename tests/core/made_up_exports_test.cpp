// The registry on arguments of every kind, by functions that no header declares. Each is right as it stands, and wrong
// in one way or another on demand: the checks must tell.

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "support/check.h"
#include "support/digest.h"
#include "support/families.h"
#include "support/faults.h"
#include "support/signatures.h"

using namespace vemi::test;

namespace {

enum class Defect {
  none,
  oneStepForAllPlanes,
  mergesRows,
  oddColumnForgotten,
  lastStepUnchecked,
  stepsBeforeSize,
  wholeImage,
  transposedMatrix,
  boundUnwritten,
  emptyRectAccepted,
  anchorUnchecked,
  recordUnchecked,
  sizeOfAnotherRecord,
  bufferTooShort,
  bufferMisaligned,
  bufferReadFirst,
};
Defect defect;

bool is(Defect which) { return defect == which; }

// ---- Planes of different sizes, with a step each ----

VemiStatus joinPlanes(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi8u* pDst, int dstStep, VemiSize roiSize) {
  if (pSrc == nullptr || srcStep == nullptr || pDst == nullptr) return vemiErrNullPtr;
  const bool badSize = roiSize.width < 1 || roiSize.height < 1;
  if (badSize && !is(Defect::stepsBeforeSize)) return vemiErrSize;
  for (int n = 0; n < 3; ++n) {
    if (pSrc[n] == nullptr) return vemiErrNullPtr;
  }
  for (int n = 0; n < (is(Defect::lastStepUnchecked) ? 2 : 3); ++n) {
    if (srcStep[n] < 1) return vemiErrStep;
  }
  if (dstStep < 1) return vemiErrStep;
  if (badSize) return vemiErrSize;
  const int whole[3] = {roiSize.width, (roiSize.width + 1) / 2, (roiSize.width + 1) / 2};
  const bool merges =
      is(Defect::mergesRows) && dstStep == 3 * whole[0] && srcStep[0] == whole[0] && srcStep[1] == whole[1];
  for (int y = 0; y < roiSize.height; ++y) {
    for (int x = 0; x < roiSize.width; ++x) {
      for (int n = 0; n < 3; ++n) {
        const int step = merges ? whole[n] : srcStep[is(Defect::oneStepForAllPlanes) ? 1 : n];
        const int half = n > 0 ? 2 : 1;
        const bool forgotten = is(Defect::oddColumnForgotten) && x == roiSize.width - 1 && x % 2 == 0 && x > 0;
        pDst[y * dstStep + 3 * x + n] = pSrc[n][y / half * step + (x - forgotten) / half];
      }
    }
  }
  return vemiOk;
}

void halveChroma(Call& call) {
  const VemiSize size = call.scenario.roiSize, half = {(size.width + 1) / 2, (size.height + 1) / 2};
  call.image("pSrc").planeSizes = {size, half, half};
}

const Family joinFamily = {"vemiMadeUpJoin", ".*", "null size planes step", halveChroma};

void joined(Call& call) {
  const View source = call.source(), destination = call.destination();
  call.forEachElement([&](int x, int y, int channel) {
    const int half = channel > 0 ? 2 : 1;
    *destination.at(x, y, channel) = *source.at(x / half, y / half, channel);
  });
}

// ---- A rectangle, a point, a matrix and what is told of them ----

VemiStatus cutOut(const Vemi16s* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi, Vemi16s* pDst, int dstStep,
                  const double coeffs[2][3], VemiPoint anchor, double bound[2][2]) {
  if (pSrc == nullptr || pDst == nullptr || coeffs == nullptr || bound == nullptr) return vemiErrNullPtr;
  if (srcSize.width < 1 || srcSize.height < 1) return vemiErrSize;
  if (srcStep < 1 || dstStep < 1) return vemiErrStep;
  const bool empty = srcRoi.width < 1 || srcRoi.height < 1;
  if (srcRoi.x < 0 || srcRoi.y < 0 || (empty && !is(Defect::emptyRectAccepted))) return vemiErrSize;
  if (anchor.x < 0 || (anchor.y < 0 && !is(Defect::anchorUnchecked))) return vemiErrAnchor;
  if (is(Defect::wholeImage)) srcRoi = {0, 0, srcRoi.width, srcRoi.height};
  const double sum = is(Defect::transposedMatrix) ? coeffs[1][0] : coeffs[0][1];
  for (int y = 0; y < srcRoi.height; ++y) {
    const auto* const from = reinterpret_cast<const std::byte*>(pSrc) + (srcRoi.y + y) * srcStep;
    auto* const to = reinterpret_cast<std::byte*>(pDst) + y * dstStep;
    for (int x = 0; x < srcRoi.width; ++x) {
      Vemi16s value;
      std::memcpy(&value, from + 2 * (srcRoi.x + x), 2);
      value = static_cast<Vemi16s>(value ^ (static_cast<int>(sum) + anchor.x + 2 * anchor.y));
      std::memcpy(to + 2 * x, &value, 2);
    }
  }
  const double corners[2][2] = {{1.0 * srcRoi.x, 1.0 * srcRoi.y},
                                {1.0 * srcRoi.x + srcRoi.width, 1.0 * srcRoi.y + srcRoi.height}};
  std::memcpy(bound, corners, is(Defect::boundUnwritten) ? 16 : 32);
  return vemiOk;
}

void aroundTheCut(Call& call) {
  const VemiSize region = call.scenario.roiSize;
  const VemiRect cut = {call.random.below(5), call.random.below(3), region.width, region.height};
  const VemiSize whole = {cut.x + cut.width + call.random.below(4), cut.y + cut.height + call.random.below(4)};
  call.set("srcSize", whole);
  call.set("srcRoi", cut);
  call.image("pSrc").size = whole;
  call.image("pDst").size = region;
  call.setArray<double>("coeffs", {1, 20, 300, 4000, 5, 6});
  call.set("anchor", VemiPoint{call.random.below(9), call.random.below(9)});
}

const Family cutFamily = {
    "vemiMadeUpCut", ".*", "null size step srcRoi anchor", aroundTheCut, {{"anchor", -1, "anchor", vemiErrAnchor}}};

void cut(Call& call) {
  const View source = call.source(), destination = call.destination();
  const auto rect = call.get<VemiRect>("srcRoi");
  const auto anchor = call.get<VemiPoint>("anchor");
  const int flip = static_cast<int>(load<double>(call.constant("coeffs", 1))) + anchor.x + 2 * anchor.y;
  call.forEachElement([&](int x, int y, int) {
    store(destination.at(x, y), static_cast<Vemi16s>(load<Vemi16s>(source.at(rect.x + x, rect.y + y)) ^ flip));
  });
  const View bound = call.array("bound");
  store(bound.at(0, 0), static_cast<double>(rect.x));
  store(bound.at(1, 0), static_cast<double>(rect.y));
  store(bound.at(2, 0), static_cast<double>(rect.x + rect.width));
  store(bound.at(3, 0), static_cast<double>(rect.y + rect.height));
}

// ---- A record that settles the size, and working memory ----

struct Turning {
  int tag, order;
};

VemiStatus turningInitAlloc(Turning** ppSpec, int order) {
  if (ppSpec == nullptr) return vemiErrNullPtr;
  if (order < 0 || order > 30) return vemiErrFftOrder;
  *ppSpec = new Turning{77, order};
  return vemiOk;
}

VemiStatus turningFree(Turning* pSpec) {
  if (pSpec == nullptr) return vemiErrNullPtr;
  if (pSpec->tag != 77) return vemiErrContext;
  delete pSpec;
  return vemiOk;
}

VemiStatus turningGetBufSize(const Turning* pSpec, int* pSize) {
  if (pSpec == nullptr || pSize == nullptr) return vemiErrNullPtr;
  if (pSpec->tag != 77) return vemiErrContext;
  *pSize = (1 << pSpec->order) * 4 + (is(Defect::bufferTooShort) ? 0 : 16);
  return vemiOk;
}

/// Turns the rows of a square image round.
VemiStatus turn(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, const Turning* pSpec, Vemi8u* pBuffer) {
  if (pSpec == nullptr) return vemiErrNullPtr;
  if (pSpec->tag != 77 && !is(Defect::recordUnchecked)) return vemiErrContext;
  if (pSrc == nullptr || pDst == nullptr) return vemiErrNullPtr;
  if (srcStep < 1 || dstStep < 1) return vemiErrStep;
  const int size = (1 << pSpec->order) / (is(Defect::sizeOfAnotherRecord) ? 2 : 1);
  std::vector<Vemi8u> own(pBuffer == nullptr ? static_cast<size_t>(4 * size + 16) : 0);
  Vemi8u* work = pBuffer == nullptr ? own.data() : pBuffer;
  if (!is(Defect::bufferMisaligned)) work += -reinterpret_cast<uintptr_t>(work) % 16;
  auto* const row = reinterpret_cast<Vemi32f*>(work);
  if (is(Defect::bufferReadFirst) && pBuffer != nullptr && *pBuffer < 0x20) return vemiErrGeneric;
  if (reinterpret_cast<uintptr_t>(row) % 16 != 0) return vemiErrGeneric;
  for (int y = 0; y < size; ++y) {
    std::memcpy(row, reinterpret_cast<const std::byte*>(pSrc) + y * srcStep, static_cast<size_t>(4 * size));
    std::reverse(row, row + size);
    std::memcpy(reinterpret_cast<std::byte*>(pDst) + y * dstStep, row, static_cast<size_t>(4 * size));
  }
  return vemiOk;
}

void pickOrder(Call& call) {
  int order = 0;
  while (2 << order <= call.scenario.roiSize.width && order < 6) ++order;
  call.set("order", order);
}

void sizeByRecord(Call& call) {
  const int size = 1 << call.record("pSpec").get<int>("order");
  call.image("pSrc").size = call.image("pDst").size = {size, size};
  call.setBuffer("pBuffer", call.sizeBy("vemiMadeUpTurnGetBufSize_32f", "pSpec"), true);
}

const Family makeFamily = {
    "vemiMadeUpTurnInitAlloc", ".*", "null order", pickOrder, {{"order", 31, "order", vemiErrFftOrder}}};
const Family freeFamily = {"vemiMadeUpTurnFree vemiMadeUpTurnGetBufSize", ".*", "null tag"};
const Family turnFamily = {"vemiMadeUpTurn", ".*", "pSpec tag null step", sizeByRecord};

void turned(Call& call) {
  const View source = call.source(), destination = call.destination();
  call.forEachElement(
      [&](int x, int y, int) { std::memcpy(destination.at(x, y), source.at(source.size.width - 1 - x, y), 4); });
}

// ---- All of them as exports ----

Export exportOf(const Entry& entry, const Family& family) {
  Export described = vemi::test::exportOf(entry);
  described.family = &family;
  return described;
}

#define VEMI_MADE_UP(name, family, function, ...) exportOf(entryOf(name, #__VA_ARGS__, function), family)

class MadeUp : public testing::Test {
 protected:
  MadeUp()
      : exports_({
            VEMI_MADE_UP("vemiMadeUpJoin_8u_P3C3R", joinFamily, joinPlanes, const Vemi8u* const pSrc[3],
                         const int srcStep[3], Vemi8u* pDst, int dstStep, VemiSize roiSize),
            VEMI_MADE_UP("vemiMadeUpCut_16s_C1R", cutFamily, cutOut, const Vemi16s* pSrc, VemiSize srcSize, int srcStep,
                         VemiRect srcRoi, Vemi16s* pDst, int dstStep, const double coeffs[2][3], VemiPoint anchor,
                         double bound[2][2]),
            VEMI_MADE_UP("vemiMadeUpTurnInitAlloc_32f", makeFamily, turningInitAlloc, Turning * *ppSpec, int order),
            VEMI_MADE_UP("vemiMadeUpTurnFree_32f", freeFamily, turningFree, Turning * pSpec),
            VEMI_MADE_UP("vemiMadeUpTurnGetBufSize_32f", freeFamily, turningGetBufSize, const Turning* pSpec,
                         int* pSize),
            VEMI_MADE_UP("vemiMadeUpTurn_32f_C1R", turnFamily, turn, const Vemi32f* pSrc, int srcStep, Vemi32f* pDst,
                         int dstStep, const Turning* pSpec, Vemi8u* pBuffer),
        }) {
    defect = Defect::none;
  }

  static void expectDefinitions() {
    expectDefinition(membersOf("vemiMadeUpJoin"), joined);
    expectDefinition(membersOf("vemiMadeUpCut"), cut);
    expectDefinition(membersOf("vemiMadeUpTurn"), turned);
  }

  /// What all faults of all functions come to.
  static std::string faultsFound() {
    FaultCount count;
    for (const Export& function : exports()) {
      if (function.family == nullptr) continue;
      const long before = count.single;
      const std::string failure = tryFaults(function, count);
      if (!failure.empty()) return failure;
      if (count.single == before) return function.name + " has no faults";
    }
    return {};
  }

 private:
  const MoreExports exports_;
};

TEST_F(MadeUp, FunctionsPassWhereTheyAreRight) {
  expectDefinitions();
  EXPECT_EQ(faultsFound(), "");
  for (const Export& function : exports()) {
    if (function.family == nullptr) continue;
    EXPECT_EQ(digestOf(function), digestOf(function)) << function.name;
  }
}

TEST_F(MadeUp, RolesAreUnderstood) {
  const auto roleOf = [](const char* name, const char* parameter) {
    const Export& function = exportNamed(name);
    return function.parameters.at(static_cast<size_t>(function.indexOf(parameter))).role;
  };
  EXPECT_EQ(roleOf("vemiMadeUpJoin_8u_P3C3R", "srcStep"), Role::steps);
  EXPECT_EQ(exportNamed("vemiMadeUpJoin_8u_P3C3R").steps(), 4);
  EXPECT_EQ(roleOf("vemiMadeUpCut_16s_C1R", "srcRoi"), Role::rect);
  EXPECT_EQ(roleOf("vemiMadeUpCut_16s_C1R", "anchor"), Role::point);
  EXPECT_EQ(roleOf("vemiMadeUpCut_16s_C1R", "coeffs"), Role::array);
  EXPECT_EQ(exportNamed("vemiMadeUpCut_16s_C1R").parameters[6].bound, 6);
  EXPECT_EQ(roleOf("vemiMadeUpTurnInitAlloc_32f", "ppSpec"), Role::newRecord);
  EXPECT_EQ(roleOf("vemiMadeUpTurnFree_32f", "pSpec"), Role::freedRecord);
  EXPECT_EQ(roleOf("vemiMadeUpTurn_32f_C1R", "pSpec"), Role::record);
  EXPECT_EQ(roleOf("vemiMadeUpTurn_32f_C1R", "pBuffer"), Role::buffer);
}

TEST_F(MadeUp, BuffersAreNullOrAtOddAddresses) {
  int given = 0;
  for (unsigned seed = 0; seed < 40; ++seed) {
    const Call call(exportNamed("vemiMadeUpTurn_32f_C1R"), {{9, 9}, Rows::padded, Edge::back, seed});
    const auto address = call.get<uintptr_t>("pBuffer");
    given += address != 0;
    EXPECT_TRUE(address == 0 || address % 2 == 1);
  }
  EXPECT_GT(given, 10);
  EXPECT_LT(given, 40);
}

// The slack for alignment forgotten: in front of a page such a buffer just does, behind one it does not.
TEST_F(MadeUp, BuffersOfTheWrongSizeAreSeen) {
  static const Export& function = exportNamed("vemiMadeUpTurn_32f_C1R");
  static Scenario scenario = {{9, 9}, Rows::padded, Edge::front};
  while (Call(function, scenario).get<void*>("pBuffer") == nullptr) ++scenario.seed;
  defect = Defect::bufferTooShort;
  EXPECT_NONFATAL_FAILURE(expectCall(function, scenario, turned), "pBuffer");
}

TEST_F(MadeUp, WrongResultsAreSeen) {
  for (const Defect each : {Defect::oneStepForAllPlanes, Defect::mergesRows, Defect::oddColumnForgotten,
                            Defect::wholeImage, Defect::transposedMatrix, Defect::boundUnwritten,
                            Defect::sizeOfAnotherRecord, Defect::bufferMisaligned, Defect::bufferReadFirst}) {
    SCOPED_TRACE(static_cast<int>(each));
    defect = each;
    EXPECT_NONFATAL_FAILURE(expectDefinitions(), "vemiMadeUp");
  }
}

TEST_F(MadeUp, MissingChecksAreSeen) {
  for (const Defect each : {Defect::lastStepUnchecked, Defect::stepsBeforeSize, Defect::emptyRectAccepted,
                            Defect::anchorUnchecked, Defect::recordUnchecked}) {
    defect = each;
    EXPECT_NE(faultsFound(), "") << static_cast<int>(each);
  }
}

}  // namespace
