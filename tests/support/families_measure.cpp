#include "support/families.h"

#include <limits.h>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace vemi::test {
namespace {

void setHint(Call& call) {
  if (call.function.indexOf("hint") >= 0) call.set("hint", call.random.below(5));
}

/// A lower limit that is not above the upper one, and often meets it.
template <class T>
void setLimits(Call& call, int highest) {
  const bool arrays = call.function.parameters[static_cast<size_t>(call.function.indexOf("lower"))].role == Role::array;
  std::vector<T> lower(3), upper(3);
  for (size_t n = 0; n < 3; ++n) {
    const int low = call.random.below(highest), span = call.random.below(3);
    lower[n] = static_cast<T>(low);
    upper[n] = static_cast<T>(span == 0 ? low : span == 1 ? highest : low + call.random.below(highest - low + 1));
  }
  if (arrays) {
    call.setArray("lower", lower);
    call.setArray("upper", upper);
  } else {
    call.set("lower", lower[0]);
    call.set("upper", upper[0]);
  }
}

/// Whether the name speaks of a state, or of sums, of 64-bit floats.
bool hasDoubles(const Call& call) { return call.function.name.find("64f") != std::string::npos; }

/// A state, as it lies in memory.
struct MomentState {
  int tag, hint, nChannels, reserved;
  union {
    Vemi64f f[3][16];
    Vemi64s s[3][16];
  } sum;
};

/// A state of three channels, with sums as of a picture of some size.
void setMomentState(Call& call) {
  MomentState state = {hasDoubles(call) ? 33 : 34, call.random.below(3), 3, 0, {}};
  for (int channel = 0; channel < 3; ++channel) {
    for (int entry = 0; entry < 16; ++entry) {
      const Vemi64s sum = 1 + Vemi64s{call.random.below(1 << 20)} * (1 + entry % 4 * 50) * (1 + entry / 4 * 30);
      if (hasDoubles(call)) {
        state.sum.f[channel][entry] = static_cast<double>(sum) / 16;
      } else {
        state.sum.s[channel][entry] = sum;
      }
    }
  }
  call.setArray("pState", std::vector{state});
  if (hasDoubles(call)) call.image("pState").fields = Element::f64;
}

void momentHint(Call& call) {
  call.set("hint", call.random.below(4));
  if (call.function.operation == "vemiMomentInit") setMomentState(call);
}

void momentGetter(Call& call) {
  setMomentState(call);
  call.set("nChannel", call.random.below(3));
  for (const char* const number : {"offsetX", "offsetY"}) {
    if (call.function.indexOf(number) >= 0) call.set(number, call.random.below(2001) - 1000);
  }
  if (call.function.indexOf("scaleFactor") >= 0) call.set("scaleFactor", call.random.below(81) - 60);
  if (call.function.indexOf("mOrd") < 0) return;
  const int mOrd = call.random.below(4);
  call.set("mOrd", mOrd);
  call.set("nOrd", call.random.below(4 - mOrd));
}

bool shortStep(Call& call) {
  const View image = call.source();
  if (call.get<int>("srcStep") > 0) call.set("srcStep", static_cast<int>(image.pixelBytes) * image.size.width - 1);
  return true;
}

/// A vanishing sum to divide by. Normalised spatial moments then leave something behind, and are tested by themselves.
bool noDivisor(Call& call) {
  if (call.function.operation.find("Spatial") != std::string::npos) return false;
  const MomentState cleared = {hasDoubles(call) ? 33 : 34, 0, 3, 0, {}};
  for (CallImage::Plane& plane : call.image("pState").planes) {
    const ptrdiff_t offset = plane.first - plane.memory.begin();
    std::memcpy(plane.memory.begin() + offset, &cleared, sizeof cleared);
    std::memcpy(plane.expected.data() + offset, &cleared, sizeof cleared);
  }
  return true;
}

/// Levels of each channel: few or many, rising or in any order, among the values of pixels or around them.
template <class Level>
std::vector<Level> randomLevels(Call& call, Element pixels) {
  const int count = 2 + (call.random.below(2) == 0 ? call.random.below(9) : call.random.below(150));
  const bool rising = call.random.below(3) != 0;
  std::vector<Level> levels;
  while (static_cast<int>(levels.size()) < count) {
    std::byte place[4];
    fillElement(pixels, place, call.random);
    if (pixels == Element::f32) unifyNaNs(pixels, place);
    Level level = pixels == Element::f32 ? static_cast<Level>(load<float>(place))
                                         : static_cast<Level>(loadInteger(pixels, place) + call.random.below(3) - 1);
    if (call.random.below(20) == 0) level *= 1000;
    if (!std::isnan(static_cast<double>(level)) || !rising) levels.push_back(level);
  }
  if (rising) {
    std::sort(levels.begin(), levels.end());
    levels.erase(std::unique(levels.begin(), levels.end()), levels.end());
    if (levels.size() < 2) levels.push_back(levels[0] + 1);
  }
  return levels;
}

void setBins(Call& call, const std::vector<int>& levelCounts) {
  std::vector<int> bins;
  for (const int count : levelCounts) bins.push_back(count - 1);
  call.setLengths("pHist", bins);
  if (call.function.source.elements == 1) {
    call.set("nLevels", levelCounts[0]);
  } else {
    call.setArray("nLevels", levelCounts);
  }
}

template <class Level>
void setLevels(Call& call, Element pixels) {
  std::vector<std::vector<Level>> levels;
  std::vector<int> counts;
  for (int channel = 0; channel < call.function.source.channels; ++channel) {
    levels.push_back(randomLevels<Level>(call, pixels));
    counts.push_back(static_cast<int>(levels.back().size()));
  }
  call.setArrays("pLevels", levels);
  setBins(call, counts);
}

void setEvenLevels(Call& call) {
  const int channels = call.function.source.channels;
  const int extent = call.image("pSrc").element == Element::u8 ? 300 : 70000;
  std::vector<Vemi32s> lower, upper;
  std::vector<int> counts;
  const bool even = call.random.below(2) == 0;
  for (int channel = 0; channel < channels; ++channel) {
    const int bins = 1 + call.random.below(call.random.below(2) == 0 ? 8 : 300);
    lower.push_back(call.random.below(extent) - extent / 2);
    upper.push_back(even ? lower.back() + bins * call.random.below(1 + extent / bins)
                         : call.random.below(extent) - extent / 3);
    counts.push_back(1 + bins);
  }
  call.setLengths("pLevels", counts);
  setBins(call, counts);
  if (call.function.source.elements == 1) {
    call.set("lowerLevel", lower[0]);
    call.set("upperLevel", upper[0]);
  } else {
    call.setArray("lowerLevel", lower);
    call.setArray("upperLevel", upper);
  }
}

void setHistograms(Call& call) {
  const Element pixels = call.image("pSrc").element;
  if (call.function.indexOf("lowerLevel") >= 0) {
    setEvenLevels(call);
  } else if (pixels == Element::f32) {
    setLevels<Vemi32f>(call, pixels);
  } else {
    setLevels<Vemi32s>(call, pixels);
  }
}

/// Images that are alike, with flat parts in one of them or in both. Most floats are numbers that go together.
void alikeImages(Call& call) {
  const View first = call.source(0), second = call.source(1);
  const bool anyFloats = call.random.below(8) == 0;
  const int flatFrom = call.random.below(2 * first.size.height);
  const int flatImages = call.random.below(4);
  const auto bytes = static_cast<size_t>(bytesOf(first.element));
  for (int y = 0; y < first.size.height; ++y) {
    for (int x = 0; x < first.size.width; ++x) {
      for (int channel = 0; channel < first.channels; ++channel) {
        std::byte* const a = first.at(x, y, channel);
        std::byte* const b = second.at(x, y, channel);
        if (first.element == Element::f32 && !anyFloats) {
          store(a, static_cast<float>(call.random.below(4000)) / 7 - 20);
          store(b, static_cast<float>(call.random.below(4000)) / 7 - 20);
        }
        if (call.random.below(4) != 0) std::memcpy(b, a, bytes);
        if (y >= flatFrom && flatImages % 2 == 1) storeNumber(first.element, a, 7 * channel);
        if (y >= flatFrom && flatImages / 2 == 1) storeNumber(first.element, b, 9 * channel);
      }
    }
  }
}

// ---- Templates ------------------------------------------------------------------------------------------------------

/// One of the sizes up to the largest: often 1, the whole, or few.
int partOf(Call& call, int largest) {
  const int kind = call.random.below(8);
  if (kind == 0) return largest;
  return kind == 1 ? 1 : 1 + call.random.below(std::min(largest, kind < 6 ? 12 : 40));
}

void setTemplate(Call& call) {
  const VemiSize image = call.scenario.roiSize;
  const VemiSize tpl = {partOf(call, image.width), partOf(call, image.height)};
  call.set("srcRoiSize", image);
  call.set("tplRoiSize", tpl);
  call.image("pTpl").size = tpl;
  VemiSize& result = call.image("pDst").size;
  if (call.function.name.find("Full") != std::string::npos) {
    result = {image.width + tpl.width - 1, image.height + tpl.height - 1};
  } else if (call.function.name.find("Valid") != std::string::npos) {
    result = {image.width - tpl.width + 1, image.height - tpl.height + 1};
  }
}

/// Bytes that are floats from 2^-7 to 2^9 of either sign, wherever they begin: rows may overlap.
void moderateFloats(Call& call) {
  for (int n = 0; n < 2; ++n) {
    const View source = call.source(n);
    if (source.element != Element::f32) return;
    for (int y = 0; y < source.size.height; ++y) {
      for (int x = 0; x < source.size.width; ++x) {
        for (ptrdiff_t i = 0; i < source.pixelBytes; ++i) {
          source.at(x, y)[i] = static_cast<std::byte>(0x3c + call.random.below(8) + 0x80 * call.random.below(2));
        }
      }
    }
  }
}

// ---- Convolution of images ------------------------------------------------------------------------------------------

/// An image and a part of it, either way round.
void setOperands(Call& call) {
  const VemiSize image = call.scenario.roiSize;
  const VemiSize kernel = {partOf(call, image.width), partOf(call, image.height)};
  const bool isSwapped = call.random.below(3) == 0;
  const VemiSize first = isSwapped ? kernel : image, second = isSwapped ? image : kernel;
  call.set("src1Size", first);
  call.set("src2Size", second);
  call.image("pSrc1").size = first;
  call.image("pSrc2").size = second;
  const bool isFull = call.function.name.find("Full") != std::string::npos;
  call.image("pDst").size = isFull ? VemiSize{image.width + kernel.width - 1, image.height + kernel.height - 1}
                                   : VemiSize{image.width - kernel.width + 1, image.height - kernel.height + 1};
  if (call.function.indexOf("divisor") < 0) return;
  static const int divisors[] = {1, 2, 3, -7, 64, 99};
  call.set("divisor", divisors[call.random.below(6)]);
}

/// Of the valid form: images of which neither holds the other.
bool crossingImages(Call& call) {
  const VemiSize other = call.get<VemiSize>("src2Size");
  if (call.function.name.find("Full") != std::string::npos || other.width < 2) return false;
  call.set("src1Size", VemiSize{other.width - 1, other.height + 1});
  return true;
}

/// Whole numbers whose sums of products are whole numbers in single precision.
void moderateNumbers(Call& call) {
  for (int n = 0; n < 2; ++n) {
    const View source = call.source(n);
    for (int y = 0; y < source.size.height; ++y) {
      for (int x = 0; x < source.size.width; ++x) {
        for (int channel = 0; channel < source.channels; ++channel) {
          const int number = call.random.below(31);
          storeNumber(source.element, source.at(x, y, channel), source.element == Element::s16 ? number - 12 : number);
        }
      }
    }
  }
}

}  // namespace

std::vector<Family> measureFamilies() {
  return {
      {"vemiSum vemiMean vemiMin vemiMax vemiMinMax vemiMinIndx vemiMaxIndx vemiNorm_Inf vemiNorm_L1 vemiNorm_L2 "
       "vemiNormDiff_Inf vemiNormDiff_L1 vemiNormDiff_L2 vemiNormRel_Inf vemiNormRel_L1 vemiNormRel_L2",
       ".*", "null size step", setHint},
      {"vemiQualityIndex", ".*", "null size step", nullptr, {}, alikeImages},
      {"vemiCountInRange",
       "8u.*",
       "null step size own",
       [](Call& call) { setLimits<Vemi8u>(call, 254); },
       {{"lower", 255, "own", vemiErrRange}}},
      {"vemiCountInRange",
       "32f.*",
       "null step size own",
       [](Call& call) { setLimits<Vemi32f>(call, 10000); },
       {{"lower", 10001, "own", vemiErrRange}}},
      {"vemiMomentInitAlloc vemiMomentInit vemiMomentGetStateSize", ".*", "null", momentHint},
      {"vemiMomentFree", ".*", "null tag"},
      {"vemiMoments64f vemiMoments64s",
       ".*",
       "null tag step size own",
       setMomentState,
       {{"srcStep", 0, "own", vemiErrStride, shortStep}}},
      {"vemiGetSpatialMoment vemiGetNormalizedSpatialMoment vemiGetCentralMoment vemiGetNormalizedCentralMoment",
       ".*",
       "null tag order channel divisor",
       momentGetter,
       {{"mOrd", 4, "order", vemiErrSize},
        {"mOrd", INT_MAX, "order", vemiErrSize},
        {"mOrd", -1, "order", vemiErrSize},
        {"nOrd", INT_MAX, "order", vemiErrSize},
        {"nOrd", INT_MIN, "order", vemiErrSize},
        {"nChannel", 3, "channel", vemiErrChannelIndex},
        {"nChannel", -1, "channel", vemiErrChannelIndex},
        {"S(0, 0)", 0, "divisor", vemiErrMomentZero, noDivisor}}},
      {"vemiGetHuMoments",
       ".*",
       "null tag channel divisor",
       momentGetter,
       {{"nChannel", 3, "channel", vemiErrChannelIndex},
        {"nChannel", INT_MIN, "channel", vemiErrChannelIndex},
        {"S(0, 0)", 0, "divisor", vemiErrMomentZero, noDivisor}}},

      {"vemiHistogramRange vemiHistogramEven",
       ".*_C1R",
       "null size step own",
       setHistograms,
       {{"nLevels", 1, "own", vemiErrHistogramLevels},
        {"nLevels", 0, "own", vemiErrHistogramLevels},
        {"nLevels", INT_MIN, "own", vemiErrHistogramLevels}}},
      {"vemiHistogramRange vemiHistogramEven",
       ".*",
       "null channels size step",
       setHistograms,
       {{"nLevels", 1, "channels", vemiErrHistogramLevels},
        {"nLevels", 0, "channels", vemiErrHistogramLevels},
        {"nLevels", INT_MIN, "channels", vemiErrHistogramLevels}}},

      {"vemiCrossCorrFull_Norm vemiCrossCorrSame_Norm vemiCrossCorrValid_Norm vemiCrossCorrFull_NormLevel "
       "vemiCrossCorrSame_NormLevel vemiCrossCorrValid_NormLevel vemiSqrDistanceFull_Norm vemiSqrDistanceSame_Norm "
       "vemiSqrDistanceValid_Norm",
       ".*",
       "null size step",
       setTemplate,
       {{"tplRoiSize", 100000, "size", vemiErrSize}, {"tplRoiSize", INT_MAX, "size", vemiErrSize}},
       moderateFloats},

      {"vemiConvFull vemiConvValid",
       "32f_.*",
       "null size step result",
       setOperands,
       {{"src1Size", 0, "result", vemiErrSize, crossingImages}},
       moderateFloats},
      {"vemiConvFull vemiConvValid",
       ".*",
       "null size step divisor result",
       setOperands,
       {{"divisor", 0, "divisor", vemiErrDivisor}, {"src1Size", 0, "result", vemiErrSize, crossingImages}},
       moderateNumbers},

  };
}

}  // namespace vemi::test
