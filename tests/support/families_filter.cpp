#include "support/families.h"
#include "vemi/filter.h"

#include <limits.h>

#include <algorithm>
#include <bit>
#include <cmath>

namespace vemi::test {
namespace {

/// A mask, an anchor in it, and the pixels that both reach.
void setMask(Call& call, VemiSize mask) {
  const VemiPoint anchor = {call.random.below(mask.width), call.random.below(mask.height)};
  call.set("maskSize", mask);
  call.set("anchor", anchor);
  Margin& margin = call.image(call.function.inPlace ? "pSrcDst" : "pSrc").margin;
  margin = {anchor.x, anchor.y, mask.width - 1 - anchor.x, mask.height - 1 - anchor.y};
}

/// value(old one) in place of all floats that may be read.
template <class F>
void replaceFloats(Call& call, const F& value) {
  const View source = call.source();
  if (source.element != Element::f32) return;
  const Margin margin = call.image(call.function.inPlace ? "pSrcDst" : "pSrc").margin;
  for (int y = -margin.top; y < source.size.height + margin.bottom; ++y) {
    for (int x = -margin.left; x < source.size.width + margin.right; ++x) {
      for (int channel = 0; channel < source.channels; ++channel) {
        std::byte* const place = source.at(x, y, channel);
        store(place, value(load<float>(place)));
      }
    }
  }
}

/// Numbers of moderate size, or infinities; no two zeros differ.
void takeNumbers(Call& call) {
  replaceFloats(call, [&](float) {
    const int value = call.random.below(4001) - 2000;
    return value == 2000 ? HUGE_VALF : static_cast<float>(value) / 7;
  });
}

/// A not-a-number would hide all that its windows share with it: mostly there is none.
void tameFloats(Call& call) {
  if (call.random.below(4) != 0) takeNumbers(call);
}

/// Small masks mostly; now and then one whose sums exceed 16 bits, or bytes' path of integers.
void drawBox(Call& call) {
  const int kind = call.random.below(256);
  const auto upTo = [&](int least, int most) { return least + call.random.below(most - least + 1); };
  setMask(call, kind < 64    ? VemiSize{3, 3}
                : kind < 200 ? VemiSize{upTo(2, 17), upTo(2, 9)}
                : kind < 250 ? VemiSize{upTo(2, 70), upTo(8, 20)}
                : kind < 255 ? VemiSize{upTo(60, 130), upTo(70, 130)}
                             : VemiSize{upTo(290, 320), upTo(230, 260)});
}

/// Full rectangles, lines, single bytes and anything.
void drawShape(Call& call) {
  const int large = call.random.below(16) == 0 ? 30 : 7;
  const VemiSize size = {1 + call.random.below(large), 1 + call.random.below(large)};
  setMask(call, size);
  std::vector<Vemi8u> mask(static_cast<size_t>(size.width * size.height));
  const int kind = call.random.below(5), row = call.random.below(size.height), column = call.random.below(size.width);
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      const bool selected = kind == 0   ? true
                            : kind == 1 ? call.random.below(8) != 0
                            : kind == 2 ? call.random.below(3) == 0
                            : kind == 3 ? y == row
                                        : y <= row && x >= column;
      const bool always = y == row && x == column;
      const auto byte = static_cast<Vemi8u>(1 + call.random.below(255));
      mask[static_cast<size_t>(y * size.width + x)] = selected || always ? byte : Vemi8u{0};
    }
  }
  call.setArray("pMask", mask);
}

/// Of a fixed kernel: those of the mask, if there is one. Some members take any number for the larger mask.
void drawFixedKernel(Call& call) {
  int reach = 1;
  if (call.function.indexOf("maskSize") >= 0) {
    const bool takesAny =
        call.function.name.find("Sobel") != std::string::npos && call.image("pSrc").element == Element::f32;
    const int masks[] = {33, 55, 33, 55, 7, 0, -33, INT_MIN};
    const int mask = masks[call.random.below(takesAny ? 8 : 4)];
    call.set("maskSize", mask);
    reach = mask == 33 ? 1 : 2;
  }
  call.image("pSrc").margin = {reach, reach, reach, reach};
}

void surroundRoberts(Call& call) {
  const bool up = call.function.name.find("Up") != std::string::npos;
  call.image("pSrc").margin = {up ? 0 : 1, 1, up ? 1 : 0, 0};
}

/// One pixel beside the region on all sides.
void surround3x3(Call& call) { call.image(call.function.inPlace ? "pSrcDst" : "pSrc").margin = {1, 1, 1, 1}; }

bool selectNothing(Call& call) {
  for (CallImage::Plane& plane : call.image("pMask").planes) {
    const auto length = static_cast<size_t>(call.image("pMask").size.width);
    std::fill_n(plane.first, length, std::byte{0});
    std::fill_n(plane.expected.begin() + (plane.first - plane.memory.begin()), length, std::byte{0});
  }
  return true;
}

/// A byte less than the row that is read.
bool shortSource(Call& call) {
  const char* const image = call.function.inPlace ? "pSrcDst" : "pSrc";
  const char* const step = call.function.inPlace ? "srcDstStep" : "srcStep";
  const Margin margin = call.image(image).margin;
  const int pixels = call.scenario.roiSize.width + margin.left + margin.right;
  if (call.get<int>(step) > 0) call.set(step, pixels * static_cast<int>(call.source().pixelBytes) - 1);
  return true;
}

bool shortDestination(Call& call) {
  if (call.function.inPlace) return false;
  const int bytes = call.scenario.roiSize.width * static_cast<int>(call.destination().pixelBytes);
  if (call.get<int>("dstStep") > 0) call.set("dstStep", bytes - 1);
  return true;
}

/// More pixels than any step has bytes, so that 32 bits do not hold the bytes of a row.
bool endlessRows(Call& call) {
  const VemiSize size = call.get<VemiSize>("roiSize");  // it may be bad
  if (size.width > 0) call.set("roiSize", VemiSize{INT_MAX, size.height});
  return true;
}

// ---- Kernels of the user's ------------------------------------------------------------------------------------------

bool isIn(const Call& call, const char* word) { return call.function.name.find(word) != std::string::npos; }

int kernelWidth(const Call& call) {
  if (isIn(call, "Column")) return 1;
  return isIn(call, "Row") ? call.get<int>("kernelSize") : call.get<VemiSize>("kernelSize").width;
}

/// A byte less than the windows of a row.
bool shortWindows(Call& call) {
  const int pixels = call.scenario.roiSize.width + std::clamp(kernelWidth(call), 1, 1 << 20) - 1;  // it may be bad
  if (call.get<int>("srcStep") > 0) call.set("srcStep", pixels * static_cast<int>(call.source().pixelBytes) - 1);
  return true;
}

/// Which of two NaNs a sum hands on is the compiler's choice: there is but the one that the processor makes.
void tameSums(Call& call) {
  if (call.random.below(4) != 0) return takeNumbers(call);
  const auto made = std::bit_cast<float>(0xffc00000u);  // as x86 makes them
  replaceFloats(call, [=](float value) { return value == value ? value : made; });
}

/// Windows beside their pixel too. Integer taps: what sums of 16 bits hold, what pairs of 16 bits do, and any.
void drawLinear(Call& call) {
  const bool isRow = isIn(call, "Row"), isColumn = isIn(call, "Column");
  const int most = call.random.below(32) == 0 ? 40 : 7;
  const VemiSize size = {isColumn ? 1 : 1 + call.random.below(most), isRow ? 1 : 1 + call.random.below(most)};
  const auto anchorIn = [&](int length, bool moves) {
    return moves ? call.random.below(call.random.below(4) == 0 ? 3 * length : length) - (length > 4 ? length / 4 : 0)
                 : 0;
  };
  const VemiPoint anchor = {anchorIn(size.width, !isColumn), anchorIn(size.height, !isRow)};
  if (isRow || isColumn) {
    call.set("kernelSize", isRow ? size.width : size.height);
    call.set(isRow ? "xAnchor" : "yAnchor", isRow ? anchor.x : anchor.y);
  } else {
    call.set("kernelSize", size);
    call.set("anchor", anchor);
  }
  const auto reach = [](int pixels) { return std::max(pixels, 0); };
  call.image("pSrc").margin = {reach(size.width - 1 - anchor.x), reach(size.height - 1 - anchor.y), reach(anchor.x),
                               reach(anchor.y)};
  const int count = size.width * size.height, kind = call.random.below(4);
  const int range = kind == 0 ? std::max(1, 257 / count) : kind == 1 ? 40 : 32767;
  std::vector<Vemi32s> taps;
  std::vector<Vemi32f> floats;
  for (int i = 0; i < count; ++i) {
    const bool zero = call.random.below(8) == 0;
    taps.push_back(zero        ? 0
                   : kind == 3 ? static_cast<int>(call.random.next())
                               : call.random.below(2 * range + 1) - range);
    floats.push_back(static_cast<float>(call.random.below(2001) - (zero ? 2000 : 1000)) / (kind == 0 ? 7000 : 300));
  }
  if (call.image("pKernel").element == Element::s32) {
    const int divisors[] = {
        1, 2, 16, 256, 1 << 30, 3, 9, -1, -2, -9, 571, -256, INT_MIN, INT_MAX, call.random.below(2000) + 1};
    call.set("divisor", divisors[call.random.below(15)]);
    call.setArray("pKernel", taps);
  } else {
    call.setArray("pKernel", floats);
  }
}

// ---- Ranks ----------------------------------------------------------------------------------------------------------

/// Floats among which the order is one of values, also where rows lie over each other: there, any four bytes are one.
void takeOrdered(Call& call) {
  if (call.scenario.rows != Rows::overlapping) return takeNumbers(call);
  const View source = call.source();
  if (source.element != Element::f32) return;
  const Margin margin = call.image("pSrc").margin;
  for (int y = -margin.top; y < source.size.height + margin.bottom; ++y) {
    const std::byte* const end = source.at(source.size.width + margin.right, y);
    for (std::byte* byte = source.at(-margin.left, y); byte < end; ++byte) *byte = std::byte(call.random.below(64));
  }
}

/// Masks by number: the pixels that they reach, of the first digit in a row, of the second in a column.
void drawMask(Call& call, std::initializer_list<int> masks) {
  const int mask = *(masks.begin() + call.random.below(2));
  call.set("maskSize", mask);
  const int across = mask / 10 / 2, down = mask % 10 / 2;
  call.image("pSrc").margin = {across, down, across, down};
}

void drawLine(Call& call) { drawMask(call, {31, 51}); }
void drawColumn(Call& call) { drawMask(call, {13, 15}); }
void drawSquare(Call& call) { drawMask(call, {33, 55}); }

/// Ties need colours that come again; all others are left at random, floats as they may be.
void takeFewColours(Call& call) {
  const int kind = call.random.below(4);
  if (kind == 0) return;
  if (kind == 1) return tameFloats(call);
  const View source = call.source();
  const Margin margin = call.image("pSrc").margin;
  for (int y = -margin.top; y < source.size.height + margin.bottom; ++y) {
    for (int x = -margin.left; x < source.size.width + margin.right; ++x) {
      for (int channel = 0; channel < source.channels; ++channel) {
        storeNumber(source.element, source.at(x, y, channel), call.random.below(kind));
      }
    }
  }
}

/// Small rectangles mostly, some of them long.
void drawRectangle(Call& call) {
  const int large = call.random.below(32) == 0 ? 40 : 7;
  setMask(call, {1 + call.random.below(large), 1 + call.random.below(large)});
}

/// Each of the masks that have a way of their own, and others, some of them long.
void drawOddRectangle(Call& call) {
  const VemiSize own[] = {{1, 1}, {3, 1}, {5, 1}, {1, 3}, {1, 5}, {3, 3}, {5, 5}};
  const int kind = call.random.below(16), most = kind == 15 ? 11 : 5;
  const auto odd = [&] { return 2 * call.random.below(most) + 1; };
  setMask(call, kind < 7 ? own[kind] : kind == 7 ? VemiSize{1, 7 + odd() / 2 * 2} : VemiSize{odd(), odd()});
}

// ---- Noise ----------------------------------------------------------------------------------------------------------

void drawWiener(Call& call) {
  const int most = call.random.below(16) == 0 ? 40 : 8;
  setMask(call, {2 + call.random.below(most), 2 + call.random.below(most)});
  Margin& margin = call.image("pSrc").margin;
  std::swap(margin.left, margin.right);
  std::swap(margin.top, margin.bottom);
  const int channels = call.function.destination.channels, kind = call.random.below(3);
  std::vector<float> noise;
  for (int c = 0; c < channels; ++c) {
    const bool estimated = kind == 0 || (kind == 1 && call.random.below(2) == 0);
    noise.push_back(estimated ? 0.0f : static_cast<float>(1 + call.random.below(999)) / (kind == 1 ? 1e3f : 1e5f));
  }
  call.setArray("pNoise", noise);
  int size = 0;
  vemiFilterWienerGetBufferSize(call.scenario.roiSize, call.get<VemiSize>("maskSize"),
                                channels == 1 ? 1 : call.function.destination.elements, &size);
  call.setBuffer("pBuffer", size, false);
}

void drawWienerSize(Call& call) {
  call.set("maskSize", VemiSize{2 + call.random.below(90), 2 + call.random.below(90)});
  call.set("channels", 1 + call.random.below(2) * (2 + call.random.below(2)));
}

}  // namespace

std::vector<Family> filterFamilies() {
  const std::vector<OwnFault> fixedMasks = {{"maskSize", 7, "mask", vemiErrMaskSize},
                                            {"maskSize", 0, "mask", vemiErrMaskSize},
                                            {"maskSize", 53, "mask", vemiErrMaskSize},
                                            {"maskSize", INT_MIN, "mask", vemiErrMaskSize}};
  const std::vector<OwnFault> notHoriz = {{"maskSize", 13, "mask", vemiErrMaskSize},
                                          {"maskSize", 33, "mask", vemiErrMaskSize},
                                          {"maskSize", INT_MIN, "mask", vemiErrMaskSize}};
  const std::vector<OwnFault> notVert = {{"maskSize", 31, "mask", vemiErrMaskSize},
                                         {"maskSize", 55, "mask", vemiErrMaskSize},
                                         {"maskSize", INT_MIN, "mask", vemiErrMaskSize}};
  const std::vector<OwnFault> kernelSteps = {{"step of the source", 0, "step", vemiErrStep, shortWindows},
                                             {"step of the destination", 0, "step", vemiErrStep, shortDestination},
                                             {"width", INT_MAX, "step", vemiErrStep, endlessRows}};
  const std::vector<OwnFault> shortRows = {{"step of the source", 0, "stride", vemiErrStride, shortSource},
                                           {"step of the destination", 0, "stride", vemiErrStride, shortDestination},
                                           {"width", INT_MAX, "stride", vemiErrStride, endlessRows}};
  const std::vector<OwnFault> noDivisor = {{"divisor", 0, "divisor", vemiErrDivisor}};
  const auto with = [](std::vector<OwnFault> faults, const std::vector<OwnFault>& more) {
    faults.insert(faults.end(), more.begin(), more.end());
    return faults;
  };
  const auto noTaps = [](const char* stage) {
    std::vector<OwnFault> faults;
    for (const double size : {0., -1., double{INT_MIN}}) faults.push_back({"kernelSize", size, stage, vemiErrSize});
    return faults;
  };
  const auto rowFaults = with(kernelSteps, noTaps("size")), earlyRowFaults = with(kernelSteps, noTaps("kernelSize"));
  return {
      {"vemiFilterSobelHoriz vemiFilterSobelVert vemiFilterSobelHorizSecond vemiFilterSobelVertSecond "
       "vemiFilterSobelCross",
       "8.16s_.*", "null size step mask", drawFixedKernel, fixedMasks},
      {"vemiFilterLaplace vemiFilterGauss vemiFilterHipass vemiFilterLowpass", ".*", "null size step mask",
       drawFixedKernel, fixedMasks, tameFloats},
      {"vemiFilterSobelHoriz vemiFilterSobelVert vemiFilterSobelHorizMask vemiFilterSobelVertMask "
       "vemiFilterSobelHorizSecond vemiFilterSobelVertSecond vemiFilterSobelCross vemiFilterScharrHoriz "
       "vemiFilterScharrVert vemiFilterPrewittHoriz vemiFilterPrewittVert vemiFilterSharpen",
       ".*",
       "null size step",
       drawFixedKernel,
       {},
       tameFloats},
      {"vemiFilterRobertsUp vemiFilterRobertsDown", ".*", "null size step", surroundRoberts, {}, tameFloats},
      {"vemiFilterBox",
       ".*",
       "null step size mask anchor",
       drawBox,
       {{"maskSize", 1, "mask", vemiErrMaskSize},
        {"maskSize", 0, "mask", vemiErrMaskSize},
        {"maskSize", INT_MIN, "mask", vemiErrMaskSize},
        {"anchor", -1, "anchor", vemiErrAnchor},
        {"anchor", 1000, "anchor", vemiErrAnchor},
        {"anchor", INT_MAX, "anchor", vemiErrAnchor}},
       tameFloats},
      {"vemiErode3x3 vemiDilate3x3", ".*", "null step size stride", surround3x3, shortRows, takeNumbers},
      {"vemiErode vemiDilate", ".*", "null step size mask zero anchor stride", drawShape,
       with(shortRows, {{"maskSize", 0, "mask", vemiErrMaskSize},
                        {"maskSize", INT_MIN, "mask", vemiErrMaskSize},
                        {"pMask of zeros", 0, "zero", vemiErrZeroMask, selectNothing},
                        {"anchor", -1, "anchor", vemiErrAnchor},
                        {"anchor", 1000, "anchor", vemiErrAnchor},
                        {"anchor", INT_MAX, "anchor", vemiErrAnchor}}),
       takeNumbers},

      // Kernels of the user's
      {"vemiFilter", "8u_.*", "null size divisor step", drawLinear, with(kernelSteps, noDivisor)},
      {"vemiFilterRow", "8u_.*", "null size divisor step", drawLinear, with(rowFaults, noDivisor)},
      {"vemiFilterColumn", "8u_C[34]R", "width null size divisor step", drawLinear, with(rowFaults, noDivisor)},
      {"vemiFilterColumn", "8u_.*", "null size divisor step", drawLinear, with(rowFaults, noDivisor)},
      {"vemiFilter", "16s_.*", "pKernel kernelSize divisor null size step", drawLinear, with(kernelSteps, noDivisor)},
      {"vemiFilterRow", "16s_.*", "pKernel kernelSize divisor null size step", drawLinear,
       with(earlyRowFaults, noDivisor)},
      {"vemiFilterColumn", "16s_C[34]R", "width pKernel kernelSize divisor null size step", drawLinear,
       with(earlyRowFaults, noDivisor)},
      {"vemiFilterColumn", "16s_.*", "pKernel kernelSize divisor null size step", drawLinear,
       with(earlyRowFaults, noDivisor)},
      {"vemiFilter vemiFilter32f", ".*", "null size step", drawLinear, kernelSteps, tameSums},
      {"vemiFilterColumn vemiFilterColumn32f", ".*_C[34]R", "width null size step", drawLinear, rowFaults, tameSums},
      {"vemiFilterRow vemiFilterRow32f vemiFilterColumn vemiFilterColumn32f", ".*", "null size step", drawLinear,
       rowFaults, tameSums},

      // Ranks
      {"vemiFilterMin vemiFilterMax",
       ".*",
       "null size step mask anchor",
       drawRectangle,
       {{"maskSize", 0, "mask", vemiErrMaskSize},
        {"maskSize", INT_MIN, "mask", vemiErrMaskSize},
        {"anchor", -1, "anchor", vemiErrAnchor},
        {"anchor", 1000, "anchor", vemiErrAnchor},
        {"anchor", INT_MAX, "anchor", vemiErrAnchor}},
       takeOrdered},
      {"vemiFilterMedian",
       ".*",
       "null size step mask anchor",
       drawOddRectangle,
       {{"maskSize", 0, "mask", vemiErrMaskSize},
        {"maskSize", -1, "mask", vemiErrMaskSize},
        {"maskSize", 4, "mask", vemiErrMaskSize},
        {"maskSize", INT_MIN, "mask", vemiErrMaskSize},
        {"anchor", -1, "anchor", vemiErrAnchor},
        {"anchor", 1000, "anchor", vemiErrAnchor},
        {"anchor", INT_MAX, "anchor", vemiErrAnchor}}},
      {"vemiFilterMedianHoriz", ".*", "null size step mask", drawLine, notHoriz},
      {"vemiFilterMedianVert", ".*", "null size step mask", drawColumn, notVert},
      {"vemiFilterMedianCross", ".*", "null size step mask", drawSquare, fixedMasks},
      {"vemiFilterMedianColor", ".*", "null size step mask", drawSquare, fixedMasks, takeFewColours},

      // Noise
      {"vemiFilterWiener",
       ".*",
       "null size mask anchor step noise",
       drawWiener,
       {{"maskSize", 1, "mask", vemiErrMaskSize},
        {"maskSize", INT_MIN, "mask", vemiErrMaskSize},
        {"anchor", -1, "anchor", vemiErrAnchor},
        {"anchor", 1000, "anchor", vemiErrAnchor},
        {"anchor", INT_MAX, "anchor", vemiErrAnchor},
        {"pNoise", -1e-9, "noise", vemiErrNoiseValue},
        {"pNoise", 1, "noise", vemiErrNoiseValue},
        {"pNoise", NAN, "noise", vemiErrNoiseValue}},
       tameSums},
      {"vemiFilterWienerGetBufferSize",
       ".*",
       "null size count mask",
       drawWienerSize,
       {{"channels", 0, "count", vemiErrChannelCount},
        {"channels", 2, "count", vemiErrChannelCount},
        {"channels", 5, "count", vemiErrChannelCount},
        {"channels", INT_MIN, "count", vemiErrChannelCount},
        {"maskSize", 1, "mask", vemiErrMaskSize},
        {"maskSize", INT_MIN, "mask", vemiErrMaskSize}},
       nullptr,
       {.countsThreads = true}},

  };
}

}  // namespace vemi::test
