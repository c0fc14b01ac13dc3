#include "support/families.h"

#include <limits.h>

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <set>

namespace vemi::test {
namespace {

double numberAt(Element element, const std::byte* place) {
  return element == Element::f32 ? load<float>(place) : static_cast<double>(loadInteger(element, place));
}

void byLessOrGreater(Call& call) { call.set("cmpOp", call.random.below(2) == 0 ? vemiCmpLess : vemiCmpGreater); }

/// Some of the pixels lie on a threshold.
void onThresholds(Call& call) {
  const bool isBand = call.function.indexOf("thresholdLT") >= 0;
  const View source = call.source();
  for (int x = 0; x < source.size.width; ++x) {
    if (call.random.below(4) != 0) continue;
    const std::string threshold = !isBand ? "threshold" : call.random.below(2) == 0 ? "thresholdLT" : "thresholdGT";
    for (int channel = 0; channel < source.channels; ++channel) {
      const int y = call.random.below(source.size.height);
      std::memcpy(source.at(x, y, channel), call.constant(threshold, channel),
                  static_cast<size_t>(bytesOf(source.element)));
    }
  }
}

/// The lower threshold is the lower one, or both are the same.
void inOrder(Call& call) {
  const View source = call.source();
  const auto bytes = static_cast<size_t>(bytesOf(source.element));
  for (int channel = 0; channel < source.channels; ++channel) {
    std::byte* const lower = call.constant("thresholdLT", channel);
    std::byte* const upper = call.constant("thresholdGT", channel);
    for (std::byte* const each : {lower, upper}) {
      if (std::isnan(numberAt(source.element, each))) storeNumber(source.element, each, 1);
    }
    if (numberAt(source.element, lower) > numberAt(source.element, upper))
      std::swap_ranges(lower, lower + bytes, upper);
    if (call.random.below(8) == 0) std::memcpy(lower, upper, bytes);
  }
  onThresholds(call);
}

template <int channel>
bool disorder(Call& call) {
  if (channel >= call.source().channels) return false;
  call.setNumber("thresholdLT", 100, channel);
  call.setNumber("thresholdGT", 99, channel);
  return true;
}

template <int channel>
bool noThreshold(Call& call) {
  if (call.source().element != Element::f32 || channel >= call.source().channels) return false;
  call.setNumber(channel == 1 ? "thresholdLT" : "thresholdGT", NAN, channel);
  return true;
}

void compared(Call& call) {
  call.image("pDst").layout = {1, 1, false};
  if (call.function.indexOf("cmpOp") >= 0) {
    call.set("cmpOp", call.random.below(5));
  } else {
    static const float tolerances[] = {0, -0.0f, 1e-40f, 0.5f, 1000, INFINITY};
    call.set("eps", tolerances[call.random.below(6)]);
  }
}

/// Most of the elements equal what they are compared with, or differ by just the tolerance; random ones hardly would.
void alike(Call& call) {
  const View first = call.source();
  const bool hasConstant = call.function.indexOf("value") >= 0;
  const bool hasTolerance = call.function.indexOf("eps") >= 0;
  const auto bytes = static_cast<size_t>(bytesOf(first.element));
  for (int y = 0; y < first.size.height; ++y) {
    for (int x = 0; x < first.size.width; ++x) {
      for (int channel = 0; channel < first.channels; ++channel) {
        const int kind = call.random.below(12);
        if (kind == 0) continue;
        std::byte* const element = first.at(x, y, channel);
        std::memcpy(element, hasConstant ? call.constant(channel) : call.source(1).at(x, y, channel), bytes);
        if (hasTolerance && kind < 4) store(element, load<float>(element) + call.get<float>("eps"));
        if (hasTolerance && kind == 4) store(element, load<float>(element) - 1.5f * call.get<float>("eps"));
        if (hasTolerance && call.scenario.oneNaN) unifyNaNs(first.element, element);  // of an infinite tolerance
      }
    }
  }
}

/// Any number but vemiRndNear truncates.
void withRoundMode(Call& call) { call.set("roundMode", call.random.below(4) - 1); }

/// Any number but vemiHintAccurate is fast.
void withHint(Call& call) { call.set("hint", call.random.below(5) - 1); }

/// Ranges that most elements miss, meet or fill, and some whose length or its reciprocal is infinite.
void withRange(Call& call) {
  const Vemi32f huge = FLT_MAX,
                ranges[][2] = {{0, 1},        {-1, 1},       {-100.5f, 37.25f}, {0, 255}, {1e9f, 1e9f + 64},
                               {-7e3f, 1e4f}, {-huge, huge}, {-1e-39f, 1e-38f}};
  const auto& range = ranges[call.random.below(std::size(ranges))];
  call.set("vMin", range[0]);
  call.set("vMax", range[1]);
}

/// vMax so that vMax - vMin is zero.
bool emptyRange(Call& call) {
  call.set("vMax", call.get<float>("vMin"));
  return true;
}

/// A bit image is as many bytes wide as its bits need, from its offset on.
void withBits(Call& call) {
  const bool isRead = call.function.indexOf("srcBitOffset") >= 0;
  const int offset = call.random.below(20);
  call.set(isRead ? "srcBitOffset" : "dstBitOffset", offset);
  call.image(isRead ? "pSrc" : "pDst").size.width = (offset % 8 + call.scenario.roiSize.width + 7) / 8;
}

/// Levels in and around the range of the pixels: in order, next to each other, turned round, with two of them exchanged
/// or equal, or up to the ends of integers. Those of cubics differ, and floats are short, so that determinants of their
/// differences are exact.
template <class V>
std::vector<V> randomLevels(Call& call, int lowest, int highest) {
  enum Kind { ordered, adjacent, turned, exchanged, equal, endless };
  const int lengths[] = {3, 5, 9, 9, 9, 40, 200};
  Random& random = call.random;
  const bool cubics = call.function.operation == "vemiLUT_Cubic";
  const auto kind = static_cast<Kind>(random.below(6));
  const int count = 2 + random.below(lengths[random.below(7)]);
  const int span = highest - lowest + 1, start = lowest + random.below(span);
  std::set<int> different;
  while (static_cast<int>(different.size()) < count) {
    const int next = start + static_cast<int>(different.size());
    different.insert(kind == adjacent ? next : lowest - span / 8 + random.below(span * 5 / 4));
  }
  std::vector<V> levels;
  for (const int level : different) levels.push_back(static_cast<V>(level));
  const auto any = [&] { return levels.begin() + random.below(count); };
  if (kind == turned) std::rotate(levels.begin(), any(), levels.end());
  if (kind == exchanged) std::iter_swap(any(), any());
  if (kind == equal && !cubics) *any() = *any();
  if constexpr (std::is_integral_v<V>) {
    if (kind == endless && !cubics) levels.front() = INT_MIN, levels.back() = INT_MAX;
  } else {
    for (V& level : levels) level /= 8;
  }
  return levels;
}

/// Values in and around the range of the pixels; for all but cubics, integers of all sizes too.
template <class V>
std::vector<V> randomValues(Call& call, int lowest, int highest, size_t count) {
  const int span = highest - lowest + 1;
  const bool cubics = call.function.operation == "vemiLUT_Cubic";
  const bool large = std::is_integral_v<V> && !cubics && call.random.below(4) == 0;
  std::vector<V> values(count);
  for (V& value : values) {
    value = static_cast<V>(lowest - span / 8 + call.random.below(span * 5 / 4));
    if (large) value = static_cast<V>(static_cast<int32_t>(call.random.next()));
  }
  return values;
}

template <class V>
void setLevels(Call& call, int lowest, int highest) {
  std::vector<std::vector<V>> levels, values;
  std::vector<int> counts;
  for (int channel = 0; channel < call.function.source.channels; ++channel) {
    levels.push_back(randomLevels<V>(call, lowest, highest));
    values.push_back(randomValues<V>(call, lowest, highest, levels.back().size()));
    counts.push_back(static_cast<int>(levels.back().size()));
  }
  call.setArrays("pLevels", levels);
  call.setArrays("pValues", values);
  if (counts.size() == 1) {
    call.set("nLevels", counts[0]);
  } else {
    call.setArray("nLevels", counts);
  }
}

void withLevels(Call& call) {
  switch (call.function.parameters[0].element) {
    case Element::u8:
      return setLevels<Vemi32s>(call, 0, 255);
    case Element::s16:
      return setLevels<Vemi32s>(call, -32768, 32767);
    default:
      return setLevels<Vemi32f>(call, -100, 100);
  }
}

/// Every index width. Pixels of 24 bits are three bytes.
void withPalette(Call& call) {
  const bool threeBytes = call.function.members.find("24u") != std::string::npos;
  const int bits = 1 + call.random.below(8 * bytesOf(call.function.parameters[0].element));
  if (threeBytes) call.image("pDst").layout = {3, 3, false};
  call.setLengths("pTable", {(threeBytes ? 3 : 1) << bits});
  call.set("nBitSize", bits);
}

void withGammaRange(Call& call) {
  static const float ranges[][2] = {{0, 1}, {0, 255}, {-1, 1}, {16, 235}, {-300, 4000}, {1e-30f, 3e-30f}};
  const auto& range = ranges[call.random.below(6)];
  call.set("vMin", range[0]);
  call.set("vMax", range[1]);
}

/// All dithers and numbers that are none, with the levels that lie at the ends of what lanes hold, and any others.
void withLevelCount(Call& call) {
  const int noises[] = {0, 0, 0, 1, 37, 50, 51, 100}, counts[] = {2, 2, 3, 4, 8, 17, 129, 182, 183, 255, 256};
  Random& random = call.random;
  call.set("noise", noises[random.below(8)]);
  call.set("ditherType", random.below(7) - 1);
  call.set("levels", random.below(2) == 0 ? 2 + random.below(255) : counts[random.below(11)]);
}

/// Most floats lie in the range that counts, 0 to 1, or just beside it.
void aroundUnit(Call& call) {
  const View source = call.source();
  if (source.element != Element::f32) return;
  for (int y = 0; y < source.size.height; ++y) {
    for (int x = 0; x < source.size.width; ++x) {
      for (int channel = 0; channel < source.channels; ++channel) {
        const float value = static_cast<float>(call.random.below(1 << 20)) / 950000 - 0.05f;
        if (call.random.below(8) != 0) store(source.at(x, y, channel), value);
      }
    }
  }
}

}  // namespace

std::vector<Family> mapFamilies() {
  return {
      {"vemiThreshold vemiThreshold_Val",
       ".*",
       "null size step arrays own",
       byLessOrGreater,
       {{"cmpOp", vemiCmpLessEq, "own", vemiErrUnsupportedMode},
        {"cmpOp", vemiCmpEq, "own", vemiErrUnsupportedMode},
        {"cmpOp", vemiCmpGreaterEq, "own", vemiErrUnsupportedMode},
        {"cmpOp", 5, "own", vemiErrUnsupportedMode},
        {"cmpOp", -1, "own", vemiErrUnsupportedMode}},
       onThresholds},
      {"vemiThreshold_LT vemiThreshold_GT vemiThreshold_LTVal vemiThreshold_GTVal",
       ".*",
       "null size step arrays",
       nullptr,
       {},
       onThresholds},
      {"vemiThreshold_LTValGTVal",
       ".*",
       "null size step arrays own",
       nullptr,
       {{"thresholdGT[0] below thresholdLT[0]", 0, "own", vemiErrThreshold, disorder<0>},
        {"thresholdGT[2] below thresholdLT[2]", 0, "own", vemiErrThreshold, disorder<2>},
        {"thresholdGT[0] not a number", 0, "own", vemiErrThreshold, noThreshold<0>},
        {"thresholdLT[1] not a number", 0, "own", vemiErrThreshold, noThreshold<1>}},
       inOrder},
      {"vemiCompare vemiCompareC", ".*", "null step size", compared, {}, alike},
      {"vemiCompareEqualEps vemiCompareEqualEpsC",
       ".*",
       "null step size own",
       compared,
       {{"eps", -0.001, "own", vemiErrEpsilon},
        {"eps", -INFINITY, "own", vemiErrEpsilon},
        {"eps", NAN, "own", vemiErrEpsilon}},
       alike},
      {"vemiConvert",
       "1u8u.*",
       "null size step own",
       withBits,
       {{"srcBitOffset", -1, "own", vemiErrSize}, {"srcBitOffset", INT_MIN, "own", vemiErrSize}}},
      {"vemiConvert",
       "8u1u.*",
       "null size",
       withBits,
       {{"dstBitOffset", -1, "size", vemiErrSize}, {"dstBitOffset", INT_MIN, "size", vemiErrSize}}},
      {"vemiConvert", "32f.*", "null size step", withRoundMode},
      {"vemiConvert", ".*", "null size step"},
      {"vemiScale",
       "(8u32f|32f8u).*",
       "own null size step",
       withRange,
       {{"vMax", 0, "own", vemiErrScaleRange, emptyRange},
        {"vMax", -INFINITY, "own", vemiErrScaleRange},
        {"vMax", NAN, "own", vemiErrScaleRange},
        {"vMin", INFINITY, "own", vemiErrScaleRange},
        {"vMin", NAN, "own", vemiErrScaleRange}}},
      {"vemiScale", "(16u8u|16s8u|32s8u).*", "null size step", withHint},
      {"vemiScale", ".*", "null size step"},
      {"vemiLUT vemiLUT_Linear vemiLUT_Cubic",
       ".*_C1R",
       "null size step own",
       withLevels,
       {{"nLevels", 1, "own", vemiErrLutLevels},
        {"nLevels", 0, "own", vemiErrLutLevels},
        {"nLevels", INT_MIN, "own", vemiErrLutLevels}}},
      {"vemiLUT vemiLUT_Linear vemiLUT_Cubic",
       ".*",
       "null channels size step",
       withLevels,
       {{"nLevels", 1, "channels", vemiErrLutLevels}, {"nLevels", INT_MIN, "channels", vemiErrLutLevels}}},
      {"vemiLUTPalette",
       "8u.*",
       "null step size own",
       withPalette,
       {{"nBitSize", 0, "own", vemiErrLutPaletteBits},
        {"nBitSize", INT_MIN, "own", vemiErrLutPaletteBits},
        {"nBitSize", 9, "own", vemiErrLutPaletteBits}}},
      {"vemiLUTPalette",
       "16u.*",
       "null step size own",
       withPalette,
       {{"nBitSize", 0, "own", vemiErrLutPaletteBits}, {"nBitSize", 17, "own", vemiErrLutPaletteBits}}},
      {"vemiGammaFwd vemiGammaInv",
       "32f.*",
       "own null size step",
       withGammaRange,
       {{"vMax", 0, "own", vemiErrGammaRange, emptyRange},
        {"vMax", -1e6, "own", vemiErrGammaRange},
        {"vMax", NAN, "own", vemiErrGammaRange},
        {"vMin", NAN, "own", vemiErrGammaRange},
        {"vMin", 1e6, "own", vemiErrGammaRange}}},
      {"vemiGammaFwd vemiGammaInv", ".*", "null size step"},
      {"vemiReduceBits",
       ".*",
       "null size step noise levels",
       withLevelCount,
       {{"noise", -1, "noise", vemiErrNoiseRange},
        {"noise", 101, "noise", vemiErrNoiseRange},
        {"noise", INT_MIN, "noise", vemiErrNoiseRange},
        {"levels", 1, "levels", vemiErrDitherLevels},
        {"levels", 257, "levels", vemiErrDitherLevels},
        {"levels", INT_MIN, "levels", vemiErrDitherLevels}},
       aroundUnit},
  };
}

}  // namespace vemi::test
