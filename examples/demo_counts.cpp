// vemiHistogramEven and vemiHistogramRange as plots and shares; moments as centroids and invariants.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

#include "chart.h"
#include "demo.h"
#include "pictures.h"
#include "prepare.h"

namespace demo {
namespace {

/// Counts and levels of three channels, over all values of a byte.
struct Histogram {
  explicit Histogram(int binCount) : bins(binCount) {}
  Histogram(const Histogram&) = delete;  // a copy would point into the original
  Histogram& operator=(const Histogram&) = delete;

  int bins;
  std::vector<Vemi32s> memory = std::vector<Vemi32s>(static_cast<size_t>(3 * (bins + bins + 1)));
  Vemi32s* counts[3] = {&memory[0], counts[0] + bins, counts[1] + bins};
  Vemi32s* levels[3] = {counts[2] + bins, levels[0] + bins + 1, levels[1] + bins + 1};
  int nLevels[3] = {bins + 1, bins + 1, bins + 1};
  Vemi32s lower[3] = {0, 0, 0}, upper[3] = {256, 256, 256};
};

/// Three bar charts over each other, each in the light of its channel.
Image8u chartOf(const Histogram& histogram) {
  constexpr int width = 512, height = 200;
  Image8u chart = emptyChart({width, height});
  const int bar = width / histogram.bins;
  for (int channel = 0; channel < 3; channel++) {
    const Vemi32s* const counts = histogram.counts[channel];
    // The ends often tower above the rest.
    const Vemi32s highest = std::max(1, *std::max_element(counts + 1, counts + histogram.bins - 1));
    for (int bin = 0; bin < histogram.bins; bin++) {
      const int length = static_cast<int>(std::min<Vemi64s>(height, Vemi64s{counts[bin]} * height / highest));
      if (length == 0) continue;
      CALL(vemiSet_8u_C3CR(230, chart.at(bin * bar, height - length) + channel, chart.step(), {bar, length}));
    }
  }
  return chart;
}

void showHistograms(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  Histogram fourToABin(64), oneToABin(256);
  const auto count = [&](const Image8u& picture, Histogram& histogram) {
    return CALL(vemiHistogramEven_8u_C3R(picture.data(), picture.step(), size, histogram.counts, histogram.levels,
                                         histogram.nLevels, histogram.lower, histogram.upper));
  };
  const Call counted = count(photo, fourToABin);
  page.show(chartOf(fourToABin), "How often values occur",
            "Four values to a bin, from black on the left to white on the right, for red, green and blue; where two or "
            "three overlap, their light adds up.",
            {counted});

  const Vemi8u steep[3] = {51, 51, 51}, black[3] = {48, 48, 48};
  Image8u contrast(size, 3);
  const Call lowered =
      CALL(vemiSubC_8u_C3RSfs(photo.data(), photo.step(), black, contrast.data(), contrast.step(), size, 0));
  const Call raised = CALL(vemiMulC_8u_C3IRSfs(steep, contrast.data(), contrast.step(), size, 5));
  const Call recounted = count(contrast, oneToABin);
  page.show(chartOf(oneToABin), "Every value, with more contrast",
            "Fewer values are spread over the same range: gaps between them, and at both ends what was cut off.",
            {lowered, raised, recounted});
}

std::string text(const char* format, double number) {
  char buffer[40];
  std::snprintf(buffer, sizeof buffer, format, number);
  return buffer;
}

void showShares(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const Vemi32s limits[] = {0, 48, 112, 176, 256}, *const levels[3] = {limits, limits, limits};
  const int nLevels[3] = {5, 5, 5};
  Vemi32s counts[3][4], *const hist[3] = {counts[0], counts[1], counts[2]};
  CALL(vemiHistogramRange_8u_C3R(photo.data(), photo.step(), size, hist, levels, nLevels));
  std::vector<std::vector<std::string>> rows;
  for (int bin = 0; bin < 4; bin++) {
    rows.push_back({std::to_string(limits[bin]) + " to " + std::to_string(limits[bin + 1] - 1)});
    for (const auto& channel : counts) {
      rows.back().push_back(text("%.1f %%", 100.0 * channel[bin] / size.width / size.height));
    }
  }
  page.table({"vemiHistogramRange_8u_C3R", "red", "green", "blue"}, rows);
}

/// A 64f state that frees itself.
class Moments {
 public:
  Moments() { CALL(vemiMomentInitAlloc_64f(&state_, vemiHintFast)); }
  Moments(const Moments&) = delete;
  Moments& operator=(const Moments&) = delete;
  ~Moments() { vemiMomentFree_64f(state_); }

  VemiMomentState* state() const { return state_; }
  double spatial(int m, int n, int channel) const {
    Vemi64f value;
    CALL(vemiGetSpatialMoment_64f(state_, m, n, channel, 0, 0, &value));
    return value;
  }
  double central(int m, int n, int channel) const {
    Vemi64f value;
    CALL(vemiGetCentralMoment_64f(state_, m, n, channel, &value));
    return value;
  }

 private:
  VemiMomentState* state_ = nullptr;
};

/// The centre of each channel's light, and one standard deviation of it in x and y.
void showCentroids(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const Moments moments;
  const Call pass = CALL(vemiMoments64f_8u_C3R(photo.data(), photo.step(), size, moments.state()));
  const Vemi8u half[3] = {1, 1, 1};
  Image8u picture(size, 3);
  CALL(vemiMulC_8u_C3RSfs(photo.data(), photo.step(), half, picture.data(), picture.step(), size, 1));
  for (int channel = 0; channel < 3; channel++) {
    const double light = moments.spatial(0, 0, channel);
    if (light == 0) continue;  // a black channel has no centre
    const double x = moments.spatial(1, 0, channel) / light, y = moments.spatial(0, 1, channel) / light;
    const double spreadX = std::max(3.0, std::sqrt(std::max(0.0, moments.central(2, 0, channel) / light)));
    const double spreadY = std::max(3.0, std::sqrt(std::max(0.0, moments.central(0, 2, channel) / light)));
    const Ellipse outer = {x, y, spreadX, spreadY}, inner = {x, y, spreadX - 2, spreadY - 2};
    Image8u ring = maskOf(outer, size);
    const Image8u hole = maskOf(inner, size);
    CALL(vemiXor_8u_C1IR(hole.data(), hole.step(), ring.data(), ring.step(), size));
    Vemi8u colour[3] = {60, 60, 60};
    colour[channel] = 255;
    CALL(vemiSet_8u_C3MR(colour, picture.data(), picture.step(), size, ring.data(), ring.step()));
    const Image8u centre = maskOf({x, y, 4, 4}, size);
    CALL(vemiSet_8u_C3MR(colour, picture.data(), picture.step(), size, centre.data(), centre.step()));
  }
  page.show(picture, "Where the light is",
            "For each channel the centre of its values, S(1, 0) and S(0, 1) over S(0, 0), and around it an ellipse of "
            "one standard deviation, from the central moments of order 2.",
            {pass});
}

std::vector<std::string> invariantsOf(const char* title, const Moments& moments) {
  Vemi64f hu[7];
  const bool isBlack = vemiGetHuMoments_64f(moments.state(), 1, hu) == vemiErrMomentZero;
  std::vector<std::string> row = {title};
  for (const double h : hu) row.push_back(isBlack ? "none" : text("%.3g", h));
  return row;
}

void showInvariants(const Image8u& rgba, const Image8u& photo, Page& page) {
  const Image8u mirror = mirrored(photo), small = halved(rgba);
  const Moments asItIs, asMirrored, halfSize;
  CALL(vemiMoments64f_8u_C3R(photo.data(), photo.step(), photo.size(), asItIs.state()));
  CALL(vemiMoments64f_8u_C3R(mirror.data(), mirror.step(), mirror.size(), asMirrored.state()));
  CALL(vemiMoments64f_8u_AC4R(small.data(), small.step(), small.size(), halfSize.state()));
  page.table({"vemiGetHuMoments_64f, green", "h0", "h1", "h2", "h3", "h4", "h5", "h6"},
             {invariantsOf("the picture", asItIs), invariantsOf("at half the size", halfSize),
              invariantsOf("its mirror image", asMirrored)});
}

}  // namespace

void demoCounts(const Demo& demo) {
  showHistograms(demo.photo, demo.page);
  showShares(demo.photo, demo.page);
  showCentroids(demo.photo, demo.page);
  showInvariants(demo.rgba, demo.photo, demo.page);
}

}  // namespace demo
