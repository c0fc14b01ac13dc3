#include "support/families.h"

#include <limits.h>

#include <algorithm>
#include <cmath>

namespace vemi::test {
namespace {

// ---- Luma and chroma ----

/// Of planes with a step each, the second and the third are smaller.
void sharePlanes(Call& call, int x, int y) {
  const VemiSize size = call.scenario.roiSize, shared = {(size.width + x - 1) / x, (size.height + y - 1) / y};
  const bool isSource = call.function.operation.rfind("vemiRGB", 0) != 0;
  if (!(isSource ? call.function.source : call.function.destination).planar) return;
  const std::string image = isSource ? "pSrc" : "pDst";
  if (call.function.indexOf("roiSize") >= 0) {
    call.image(image).planeSizes = {size, shared, shared};
  } else {
    const int chroma = shared.width * shared.height;
    call.setLengths(image, {size.width * size.height, chroma, chroma});
  }
}

/// Rows without a gap, and the size as two numbers.
void withoutSteps(Call& call) {
  const VemiSize size = call.scenario.roiSize;
  if (call.function.indexOf("width") < 0) return;
  const int pixels = size.width * size.height;
  const bool toRgb = call.function.operation.rfind("vemiRGB", 0) != 0;
  const bool planar = (toRgb ? call.function.destination : call.function.source).planar;
  call.setLengths(toRgb ? "pDst" : "pSrc", planar ? std::vector{pixels, pixels, pixels} : std::vector{3 * pixels});
  call.set("width", size.width);
  call.set("height", size.height);
}

/// A fourth channel is written.
void withFourth(Call& call) {
  if (call.function.destination.elements == 4) call.image("pDst").layout = {4, 4, false};
}

/// Of forms whose size is two numbers.
const std::vector<OwnFault> noSize = {{"width", 0, "size", vemiErrSize},
                                      {"width", -1, "size", vemiErrSize},
                                      {"height", 0, "size", vemiErrSize},
                                      {"height", -2147483648.0, "size", vemiErrSize}};

template <int x, int y>
void shared(Call& call) {
  sharePlanes(call, x, y);
  withoutSteps(call);
  withFourth(call);
}

/// Weights that add up to one, that leave the range, that are negative, and any floats.
void withWeights(Call& call) {
  const auto share = [&] { return static_cast<float>(call.random.below(1000)) / 1000; };
  const float w = share(), v = share() * (1 - w);
  switch (call.random.below(4)) {
    case 0:
      return call.setArray<float>("coeffs", {w, v, 1 - w - v});
    case 1:
      return call.setArray<float>("coeffs", {9 * w, 0.5f, 7 * v});
    case 2:
      return call.setArray<float>("coeffs", {1 + w, -w, v - 1});
    default:
      return;
  }
}

// ---- Perceptual and device spaces ----

/// Between layouts of four channels with planes among them the fourth is copied.
void withCopiedAlpha(Call& call) {
  if (!call.function.source.planar && !call.function.destination.planar) return;
  for (CallImage& image : call.images) image.layout.channels = image.layout.elements;
}

/// Pixels with channels that are equal, all of them or two, of black and white, and of floats that are colours.
void fewColours(Call& call) {
  const View source = call.source();
  const auto bytes = static_cast<size_t>(bytesOf(source.element));
  const bool isFloat = source.element == Element::f32;
  for (int y = 0; y < source.size.height; ++y) {
    for (int x = 0; x < source.size.width; ++x) {
      const int kind = call.random.below(12);
      for (int channel = 0; channel < 3; ++channel) {
        std::byte* const element = source.at(x, y, channel);
        if (isFloat && kind < 9) store(element, static_cast<float>(call.random.below(1400) - 150) * 0x1p-10f);
        if (kind == 0) std::memset(element, 0, bytes);
        if (kind == 1 && !isFloat) std::memset(element, 0xff, bytes);
      }
      const auto copy = [&](int from, int to) { std::memcpy(source.at(x, y, to), source.at(x, y, from), bytes); };
      if (kind >= 2 && kind <= 4) copy(kind - 2, (kind - 1) % 3);
      if (kind == 2) copy(1, 2);
    }
  }
}

// ---- Matrices of the user's ----

/// The gain of a mixture, sums that end in a half, any floats at all, and constants that bring a pixel's sum next to a
/// half.
void withTwist(Call& call) {
  enum Kind { mixture, halves, any, beside };
  Random& random = call.random;
  const bool isSquare = call.function.members.find("C4R") != std::string::npos && call.function.source.channels == 4;
  std::vector<Vemi32f> twist(isSquare ? 16 : 12);
  const auto kind = static_cast<Kind>(random.below(4));
  for (size_t k = 0; k < twist.size(); ++k) {
    const bool isConstant = k % 4 == 3 && !isSquare;
    const int size = isConstant ? 200 : 1;
    if (kind == mixture || kind == beside) {
      twist[k] = static_cast<Vemi32f>(random.below(3 << 20) - (1 << 20)) * 0x1p-21f * static_cast<Vemi32f>(size);
    } else if (kind == halves) {
      twist[k] = static_cast<Vemi32f>(random.below(33) - 16) * 0.125f * static_cast<Vemi32f>(size);
    } else {
      fillElement(Element::f32, reinterpret_cast<std::byte*>(&twist[k]), random);
      if (call.scenario.oneNaN) unifyNaNs(Element::f32, reinterpret_cast<std::byte*>(&twist[k]));
    }
    if (kind == beside && isConstant) {
      const double sum = 77.0 * twist[k - 3] + 128.0 * twist[k - 2] + 33.0 * twist[k - 1];
      twist[k] = static_cast<Vemi32f>(std::floor(sum) + 0.5 - sum);
    }
  }
  call.setArray("twist", twist);
}

/// Some pixels are the one whose sum lies next to a half.
void withPixelBesideHalf(Call& call) {
  const View source = call.source();
  for (int x = 0; x < source.size.width && source.channels >= 3; x += 3) {
    storeNumber(source.element, source.at(x, 0, 0), 77);
    storeNumber(source.element, source.at(x, 0, 1), 128);
    storeNumber(source.element, source.at(x, 0, 2), 33);
  }
}

// ---- Video layouts ----

/// Pixels that share chroma in a format of three digits.
VemiSize sampling(const std::string& digits) { return {digits == "411" ? 4 : 2, digits == "420" ? 2 : 1}; }

/// The formats of source and destination, and of how many columns and rows a region is a multiple.
struct VideoFormats {
  VemiSize source, destination, unit;
};

VideoFormats videoFormatsOf(const Export& function) {
  const std::string& name = function.operation;
  const VemiSize from = sampling(name.substr(name.find('4'), 3)), to = sampling(name.substr(name.rfind('4'), 3));
  VemiSize unit = {std::max(from.width, to.width), std::max(from.height, to.height)};
  const bool hasPairsOfRows = matches(function.name, "vemi(YUToYV|UYToYV|UYToYU|YUToYU)422_8u_C2P.R");
  if (hasPairsOfRows) unit.height = 2;
  if (matches(name, ".*422Filter")) unit.height = 8;
  return {from, to, unit};
}

/// Regions of any size, images of just what is worked on.
void asVideo(Call& call) {
  const auto [from, to, unit] = videoFormatsOf(call.function);
  VemiSize size = call.scenario.roiSize;
  size.width = std::max(size.width, unit.width);
  if (size.height < unit.height) size.height = unit.height + (unit.height - 1) * (size.height - 1);
  call.set("roiSize", size);
  size = {size.width / unit.width * unit.width, size.height / unit.height * unit.height};
  for (CallImage& image : call.images) {
    if (image.role != Role::image) continue;
    const VemiSize shared = image.written ? to : from,
                   chroma = {size.width / shared.width, size.height / shared.height};
    const std::string& name = call.function.parameters[static_cast<size_t>(image.parameter)].name;
    image.size = name.find("CbCr") != std::string::npos ? VemiSize{2 * chroma.width, chroma.height} : size;
    if (image.layout.planar) image.planeSizes = {size, chroma, chroma};
  }
}

/// All bands of a frame, whole frames and nothing. Around bands other than the first lie the rows of their neighbours.
void withLayer(Call& call) {
  asVideo(call);
  const int layers[] = {1, 4, 16, 21, -1, 5, 0};
  const int layer = layers[call.random.below(7)];
  call.set("layer", layer);
  if (layer != 4 && layer != 16) return;
  for (CallImage& image : call.images) {
    if (image.role != Role::image) continue;
    const std::string& name = call.function.parameters[static_cast<size_t>(image.parameter)].name;
    image.margin.top = name == "pSrcY" ? 3 : name == "pSrcCbCr" ? 1 : 2;
  }
}

bool tooNarrow(Call& call) {
  call.setNumber("roiSize", videoFormatsOf(call.function).unit.width - 1, 0);
  return true;
}

bool tooLow(Call& call) {
  const int least = videoFormatsOf(call.function).unit.height;
  call.setNumber("roiSize", least - 1, 1);
  return least > 1;
}

/// A step a byte shorter than its row, if it is not bad already: those of all planes, or the packed one.
bool shorten(Call& call, bool isPacked, int plane) {
  const int width = std::clamp(call.get<VemiSize>("roiSize").width, 0, 1 << 20) / 2 * 2;  // it may be bad as well
  const int row = isPacked ? 2 * width : plane == 0 ? width : width / 2;
  const std::string step = call.function.source.planar == isPacked ? "dstStep" : "srcStep";
  const int former = isPacked ? call.get<int>(step) : load<int>(call.image(step).planes[0].first + plane * 4);
  call.setNumber(step, std::min(former, std::max(row - 1, 1)), plane);
  return true;
}

template <int plane>
bool shortPlaneStep(Call& call) {
  return shorten(call, false, plane);
}

bool shortPackedStep(Call& call) { return shorten(call, true, 0); }

const std::vector<OwnFault> belowLeast = {{"width below its least", 0, "least", vemiErrSize, tooNarrow},
                                          {"height below its least", 0, "least", vemiErrSize, tooLow}};

// ---- Orders of channels ----

void withOrder(Call& call) {
  call.setArray<int>("dstOrder", {call.random.below(3), call.random.below(3), call.random.below(3)});
}

// ---- Packed 16-bit pixels ----

/// A destination pixel is one word, whatever its channels.
template <int x, int y>
void asWords(Call& call) {
  sharePlanes(call, x, y);
  call.image("pDst").layout = {1, 1, false};
}

#define ALL_WORDS(source, suffix)                                                                                 \
  source "ToRGB565" suffix " " source "ToBGR565" suffix " " source "ToRGB555" suffix " " source "ToBGR555" suffix \
         " " source "ToRGB444" suffix " " source "ToBGR444" suffix

}  // namespace

std::vector<Family> colorFamilies() {
  return {
      // Luma and chroma
      {"vemiRGBToYUV vemiYUVToRGB vemiRGBToYCbCr vemiYCbCrToRGB", ".*", "null size planes step"},
      {"vemiRGBToYUV422 vemiYUV422ToRGB vemiRGBToYCbCr422 vemiYCbCr422ToRGB vemiRGBToCbYCr422 vemiRGBToCbYCr422Gamma",
       ".*R", "null size planes step", shared<2, 1>},
      {"vemiRGBToYUV422 vemiYUV422ToRGB", ".*", "null size planes", shared<2, 1>, noSize},
      {"vemiRGBToYUV420 vemiYUV420ToRGB vemiYUV420ToBGR vemiRGBToYCbCr420 vemiYCbCr420ToRGB vemiYCbCr420ToBGR", ".*R",
       "null size planes step", shared<2, 2>},
      {"vemiRGBToYUV420 vemiYUV420ToRGB", ".*", "null size planes", shared<2, 2>, noSize},
      {"vemiYCbCr411ToBGR", ".*", "null size planes", shared<4, 1>},
      {"vemiBGRToCbYCr422 vemiCbYCr422ToRGB vemiCbYCr422ToBGR", ".*", "null size"},
      {"vemiRGBToYCC vemiYCCToRGB vemiRGBToGray", ".*", "null size step"},
      {"vemiColorToGray", ".*", "null size step", withWeights},

      // Perceptual and device spaces
      {"vemiRGBToHSV vemiHSVToRGB vemiRGBToHLS vemiHLSToRGB vemiBGRToHLS vemiHLSToBGR vemiBGRToLab vemiLabToBGR "
       "vemiRGBToXYZ vemiXYZToRGB vemiRGBToLUV vemiLUVToRGB",
       ".*",
       "null size step",
       withCopiedAlpha,
       {},
       fewColours},

      // Matrices of the user's
      {"vemiColorTwist vemiColorTwist32f", ".*", "null size step", withTwist, {}, withPixelBesideHalf},

      // Video layouts
      {"vemiJoin422 vemiSplit422",
       ".*",
       "null step size least own",
       asVideo,
       {{"width below its least", 0, "least", vemiErrSize, tooNarrow},
        {"short luma step", 0, "own", vemiErrStride, shortPlaneStep<0>},
        {"short Cb step", 0, "own", vemiErrStride, shortPlaneStep<1>},
        {"short Cr step", 0, "own", vemiErrStride, shortPlaneStep<2>},
        {"short packed step", 0, "own", vemiErrStride, shortPackedStep}}},
      {"vemiSplit420", ".*", "null size planes least", asVideo, belowLeast},
      {"vemiJoin420_Filter vemiSplit420_Filter", ".*", "null size least", withLayer, belowLeast},
      {"vemiYCbCr422ToYCbCr420 vemiYCrCb422ToYCbCr420 vemiCbYCr422ToYCbCr420 vemiYCbCr420ToYCbCr422 "
       "vemiYCrCb420ToYCbCr422 vemiYCbCr420ToYCbCr422Filter vemiYCrCb420ToYCbCr422Filter vemiYCbCr422ToYCbCr422 "
       "vemiYCrCb422ToYCbCr422 vemiCbYCr422ToYCbCr422 vemiYCbCr422ToYCrCb422 vemiYCbCr422ToYCbCr411 "
       "vemiCbYCr422ToYCbCr411 vemiYCrCb422ToYCbCr411 vemiYCbCr411ToYCbCr422 vemiYCbCr411ToYCrCb422 "
       "vemiYCbCr411ToYCbCr411 vemiYCbCr420ToYCbCr411 vemiYCrCb420ToYCbCr411 vemiYCbCr411ToYCbCr420 "
       "vemiYCbCr411ToYCrCb420 vemiYCbCr420ToYCbCr420 vemiJoin420 vemiYUToUY420 vemiYVToYU420 vemiYVToUY420 "
       "vemiYUToUY422 vemiUYToYU422 vemiYUToYV422 vemiUYToYV422 vemiYUToYU422",
       ".*", "null size least", asVideo, belowLeast},

      // Orders of channels
      {"vemiSwapChannels",
       ".*",
       "null size step own",
       withOrder,
       {{"dstOrder", 3, "own", vemiErrChannelOrder},
        {"dstOrder", -1, "own", vemiErrChannelOrder},
        {"dstOrder", INT_MIN, "own", vemiErrChannelOrder}}},

      // Packed 16-bit pixels
      {ALL_WORDS("vemiYCbCr", ""), ".*_C3R", "null size step", asWords<1, 1>},
      {ALL_WORDS("vemiYCbCr", "") " " ALL_WORDS("vemiYCbCr", "Dither"), ".*", "null size planes", asWords<1, 1>},
      {ALL_WORDS("vemiYCbCr422", "") " " ALL_WORDS("vemiYCbCr422", "Dither"), ".*", "null size planes", asWords<2, 1>},
      {ALL_WORDS("vemiYCbCr420", "") " " ALL_WORDS("vemiYCbCr420", "Dither"), ".*", "null size planes", asWords<2, 2>},
      {ALL_WORDS("vemiYUV420", "") " " ALL_WORDS("vemiYUV420", "Dither"), ".*", "null size planes", asWords<2, 2>},
  };
}

}  // namespace vemi::test
