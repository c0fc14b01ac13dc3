// What programs compile in: status values, enumerations, records; and the version record.

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "vemi/vemi.h"

TEST(Interface, StatusValues) {
  const struct {
    VemiStatus status;
    int value;
  } statuses[] = {
      {vemiOk, 0},
      {vemiWarnNoOperation, 1},
      {vemiWarnSqrtNegative, 3},
      {vemiWarnDivByZero, 6},
      {vemiWarnLnZero, 7},
      {vemiWarnLnNegative, 8},
      {vemiWarnNotParallelogram, 28},
      {vemiWarnNoIntersection, 29},
      {vemiWarnQuadIntersection, 30},
      {vemiErrGeneric, -1},
      {vemiErrNoMem, -4},
      {vemiErrBadArg, -5},
      {vemiErrSize, -6},
      {vemiErrRange, -7},
      {vemiErrNullPtr, -8},
      {vemiErrMemAlloc, -9},
      {vemiErrDivByZero, -10},
      {vemiErrLutPaletteBits, -11},
      {vemiErrScaleRange, -13},
      {vemiErrStep, -14},
      {vemiErrFftOrder, -15},
      {vemiErrFftFlag, -16},
      {vemiErrContext, -17},
      {vemiErrThreshold, -18},
      {vemiErrMomentZero, -20},
      {vemiErrMirrorFlip, -21},
      {vemiErrInterpolation, -22},
      {vemiErrResizeFactor, -23},
      {vemiErrMaskSize, -33},
      {vemiErrAnchor, -34},
      {vemiErrEpsilon, -36},
      {vemiErrStride, -37},
      {vemiErrChannelIndex, -47},
      {vemiErrGammaRange, -49},
      {vemiErrAlphaType, -50},
      {vemiErrDivisor, -51},
      {vemiErrChannelCount, -53},
      {vemiErrDitherLevels, -54},
      {vemiErrNoiseRange, -55},
      {vemiErrQuad, -56},
      {vemiErrRect, -57},
      {vemiErrCoeff, -58},
      {vemiErrZeroMask, -59},
      {vemiErrChannelOrder, -60},
      {vemiErrLutLevels, -106},
      {vemiErrHistogramLevels, -107},
      {vemiErrNoiseValue, -125},
      {vemiErrUnsupportedMode, -9999},
  };
  for (const auto& each : statuses) EXPECT_EQ(each.status, each.value);
}

TEST(Interface, Enumerations) {
  EXPECT_EQ(vemiCmpLess, 0);
  EXPECT_EQ(vemiCmpLessEq, 1);
  EXPECT_EQ(vemiCmpEq, 2);
  EXPECT_EQ(vemiCmpGreaterEq, 3);
  EXPECT_EQ(vemiCmpGreater, 4);
  EXPECT_EQ(vemiRndZero, 0);
  EXPECT_EQ(vemiRndNear, 1);
  EXPECT_EQ(vemiHintNone, 0);
  EXPECT_EQ(vemiHintFast, 1);
  EXPECT_EQ(vemiHintAccurate, 2);
}

TEST(Interface, RecordLayouts) {
  EXPECT_EQ(sizeof(Vemi16sc), 4u);
  EXPECT_EQ(sizeof(Vemi32sc), 8u);
  EXPECT_EQ(sizeof(Vemi32fc), 8u);
  EXPECT_EQ(offsetof(Vemi32fc, im), 4u);
  EXPECT_EQ(sizeof(VemiSize), 8u);
  EXPECT_EQ(offsetof(VemiRect, width), 8u);
  EXPECT_EQ(offsetof(VemiLibVersion, targetCpu), 16u);
  EXPECT_EQ(offsetof(VemiLibVersion, Name), 20 + (sizeof(void*) - 4));
  EXPECT_EQ(offsetof(VemiLibVersion, BuildDate), offsetof(VemiLibVersion, Name) + 2 * sizeof(void*));
}

TEST(Interface, VersionRecord) {
  const VemiLibVersion* const version = vemiGetLibVersion();
  EXPECT_EQ(version->major, 4);
  EXPECT_EQ(version->minor, 1);
  EXPECT_EQ(version->majorBuild, 11);
  EXPECT_EQ(version->build, 85);
  EXPECT_EQ(std::string(version->targetCpu, 4), std::string("q7\0\0", 4));
  EXPECT_STREQ(version->Name, "vemiq7.dll");
  EXPECT_STREQ(version->Version, "v4.1.2");
  EXPECT_STREQ(version->BuildDate, "Jan 19 2005");
  EXPECT_EQ(vemiGetLibVersion(), version);
}

// One version in the record, in the headers and in the packages, whose version is the build's.
TEST(Interface, VersionMacros) {
  const VemiLibVersion* const version = vemiGetLibVersion();
  EXPECT_EQ(VEMI_VERSION_MAJOR, version->major);
  EXPECT_EQ(VEMI_VERSION_MINOR, version->minor);
  const std::string text = std::to_string(VEMI_VERSION_MAJOR) + "." + std::to_string(VEMI_VERSION_MINOR) + "." +
                           std::to_string(VEMI_VERSION_PATCH);
  EXPECT_EQ("v" + text, version->Version);
  EXPECT_EQ(text, VEMI_PROJECT_VERSION);
  EXPECT_EQ(VEMI_VERSION_NUMBER, (version->major * 100 + version->minor) * 100 + VEMI_VERSION_PATCH);
#if VEMI_VERSION_NUMBER < 40102
#error "the preprocessor cannot compare versions"
#endif
}
