// Moments from the sums of a state: about another origin, about the centroid, normalised by the size, and Hu's seven.
//
// Checks: null, tag, order, channel; then the divisor S(0, 0) where there is one.

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

#include "core/checks.h"
#include "core/processor.h"
#include "core/rounding.h"
#include "measure/moment_state.h"

namespace vemi::measure {
namespace {

/// The sums of one channel in double precision.
struct Sums {
  double s[momentEntries];

  double operator()(int m, int n) const { return s[momentEntry(m, n)]; }
};

template <class Sum>
Sums sumsOf(const VemiMomentState* pState, int channel) {
  Sum entry[momentEntries];
  std::memcpy(entry, reinterpret_cast<const char*>(&pState->sum) + channel * ptrdiff_t{sizeof entry}, sizeof entry);
  Sums sums;
  std::transform(entry, entry + momentEntries, sums.s, [](Sum value) { return static_cast<double>(value); });
  return sums;
}

/// Of the picture whose first pixel stands at (X, Y).
double spatialMoment(const Sums& S, int m, int n, double X, double Y) {
  switch (momentEntry(m, n)) {
    case momentEntry(0, 0):
      return S(0, 0);
    case momentEntry(1, 0):
      return X * S(0, 0) + S(1, 0);
    case momentEntry(0, 1):
      return Y * S(0, 0) + S(0, 1);
    case momentEntry(2, 0):
      return 2 * X * S(1, 0) + S(2, 0) + X * X * S(0, 0);
    case momentEntry(1, 1):
      return X * S(0, 1) + S(1, 1) + Y * S(1, 0) + X * Y * S(0, 0);
    case momentEntry(0, 2):
      return 2 * Y * S(0, 1) + S(0, 2) + Y * Y * S(0, 0);
    case momentEntry(3, 0):
      return S(3, 0) + 3 * X * S(2, 0) + 3 * X * X * S(1, 0) + X * X * X * S(0, 0);
    case momentEntry(2, 1):
      return 2 * X * S(1, 1) + S(2, 1) + X * X * S(0, 1) + Y * S(2, 0) + 2 * X * Y * S(1, 0) + X * X * Y * S(0, 0);
    case momentEntry(1, 2):
      return X * S(0, 2) + S(1, 2) + 2 * Y * S(1, 1) + Y * Y * S(1, 0) + 2 * X * Y * S(0, 1) + Y * Y * X * S(0, 0);
    default:
      return S(0, 3) + 3 * Y * S(0, 2) + 3 * Y * Y * S(0, 1) + Y * Y * Y * S(0, 0);
  }
}

/// About the centroid (x, y).
double centralMoment(const Sums& S, int m, int n) {
  const double reciprocal = 1 / S(0, 0);
  const double x = S(1, 0) * reciprocal, y = S(0, 1) * reciprocal;
  switch (momentEntry(m, n)) {
    case momentEntry(0, 0):
      return S(0, 0);
    case momentEntry(1, 0):
    case momentEntry(0, 1):
      return 0;
    case momentEntry(2, 0):
      return S(2, 0) - x * S(1, 0);
    case momentEntry(1, 1):
      return S(1, 1) - x * S(0, 1);
    case momentEntry(0, 2):
      return S(0, 2) - y * S(0, 1);
    case momentEntry(3, 0):
      return S(3, 0) - 3 * x * S(2, 0) + 2 * x * x * S(1, 0);
    case momentEntry(2, 1):
      return S(2, 1) - 2 * x * S(1, 1) + 2 * x * x * S(0, 1) - y * S(2, 0);
    case momentEntry(1, 2):
      return S(1, 2) - x * S(0, 2) - 2 * y * S(1, 1) + 2 * y * y * S(1, 0);
    default:
      return S(0, 3) - 3 * y * S(0, 2) + 2 * y * y * S(0, 1);
  }
}

/// What a moment of order m + n is multiplied by to become independent of the size: S(0, 0)^(-(order + 2) / 2), as pow
/// defines it, but by operations whose bits do not depend on the C library. With the exponents of ExtendedFloat nothing
/// overflows.
double normalisation(const Sums& S, int order) {
  const bool isHalfPower = order % 2 == 1;
  if (isHalfPower && S(0, 0) == -std::numeric_limits<double>::infinity()) return 0;  // where a root would give NaN
  using std::sqrt;
  const ExtendedFloat s = S(0, 0), wholePower = order < 2 ? s : s * s;
  return static_cast<double>(ExtendedFloat(1) / (isHalfPower ? wholePower * sqrt(s) : wholePower));
}

bool vanishes(const Sums& S) { return std::fabs(S(0, 0)) <= std::numeric_limits<double>::epsilon(); }

void huMoments(const Sums& S, double (&h)[7]) {
  const double size2 = normalisation(S, 2), size3 = normalisation(S, 3);
  const double e20 = centralMoment(S, 2, 0) * size2, e11 = centralMoment(S, 1, 1) * size2,
               e02 = centralMoment(S, 0, 2) * size2, e30 = centralMoment(S, 3, 0) * size3,
               e21 = centralMoment(S, 2, 1) * size3, e12 = centralMoment(S, 1, 2) * size3,
               e03 = centralMoment(S, 0, 3) * size3;
  const double p = e30 + e12, q = e21 + e03, r = e12 + e03, s = e30 - 3 * e12, t = 3 * e21 - e03;
  h[0] = e20 + e02;
  h[1] = (e20 - e02) * (e20 - e02) + 4 * (e11 * e11);
  h[2] = t * t + s * s;
  h[3] = p * p + q * q;
  h[4] = s * p * (r * r - 3 * (q * q)) + t * q * (3 * (p * p) - q * q);  // r, where h[6] has p
  h[5] = (p * p - q * q) * (e20 - e02) + 4 * e11 * p * q;
  h[6] = t * p * (p * p - 3 * (q * q)) - q * s * (3 * (p * p) - q * q);
}

// ---- Results ------------------------------------------------------------------------------------------------------

/// value / 2^scaleFactor; beyond the clamp no double changes any more.
void put(double value, Vemi64s* pValue, int scaleFactor) {
  *pValue = roundedTo64(std::ldexp(value, -std::clamp(scaleFactor, -5000, 5000)));
}

void put(double value, Vemi64f* pValue, int /*scaleFactor*/ = 0) { *pValue = value; }

VemiStatus checkOrders(int m, int n) { return m < 0 || n < 0 || Vemi64s{m} + n > 3 ? vemiErrSize : vemiOk; }

VemiStatus checkChannel(const VemiMomentState* pState, int channel) {
  return channel < 0 || channel >= pState->nChannels ? vemiErrChannelIndex : vemiOk;
}

template <class Sum>
VemiStatus checkArguments(const VemiMomentState* pState, int m, int n, int channel, const Sum* pResult) {
  if (VemiStatus bad = firstOf(checkNull(pState, pResult), checkRecord(pState, momentTag<Sum>))) return bad;
  return firstOf(checkOrders(m, n), checkChannel(pState, channel));
}

/// In each of the functions below, a 64f state has a 64f result and no scale factor.
template <class Sum>
VemiStatus spatial(const VemiMomentState* pState, int m, int n, int channel, VemiPoint offset, Sum* pValue,
                   int scaleFactor = 0) {
  if (VemiStatus bad = checkArguments(pState, m, n, channel, pValue)) return bad;
  put(spatialMoment(sumsOf<Sum>(pState, channel), m, n, offset.x, offset.y), pValue, scaleFactor);
  return vemiOk;
}

/// Where the divisor vanishes, the spatial moment is what is left in *pValue.
template <class Sum>
VemiStatus normalizedSpatial(const VemiMomentState* pState, int m, int n, int channel, VemiPoint offset, Sum* pValue,
                             int scaleFactor = 0) {
  if (VemiStatus bad = spatial(pState, m, n, channel, offset, pValue, scaleFactor)) return bad;
  const Sums S = sumsOf<Sum>(pState, channel);
  if (vanishes(S)) return vemiErrMomentZero;
  put(spatialMoment(S, m, n, offset.x, offset.y) * normalisation(S, m + n), pValue, scaleFactor);
  return vemiOk;
}

enum class Size { asIs, normalised };

template <Size size, class Sum>
VemiStatus central(const VemiMomentState* pState, int m, int n, int channel, Sum* pValue, int scaleFactor = 0) {
  if (VemiStatus bad = checkArguments(pState, m, n, channel, pValue)) return bad;
  const Sums S = sumsOf<Sum>(pState, channel);
  if (vanishes(S)) return vemiErrMomentZero;
  const double moment = centralMoment(S, m, n);
  put(size == Size::normalised ? moment * normalisation(S, m + n) : moment, pValue, scaleFactor);
  return vemiOk;
}

template <class Sum>
VemiStatus hu(const VemiMomentState* pState, int channel, Sum* pHu, int scaleFactor = 0) {
  if (VemiStatus bad = checkArguments(pState, 0, 0, channel, pHu)) return bad;
  const Sums S = sumsOf<Sum>(pState, channel);
  if (vanishes(S)) return vemiErrMomentZero;
  double h[7];
  huMoments(S, h);
  for (int i = 0; i < 7; ++i) put(h[i], pHu + i, scaleFactor);
  return vemiOk;
}

}  // namespace
}  // namespace vemi::measure

using namespace vemi;
using namespace vemi::measure;

VemiStatus vemiGetSpatialMoment_64f(const VemiMomentState* pState, int mOrd, int nOrd, int nChannel, int offsetX,
                                    int offsetY, Vemi64f* pValue) {
  return spatial(pState, mOrd, nOrd, nChannel, {offsetX, offsetY}, pValue);
}
VemiStatus vemiGetSpatialMoment_64s(const VemiMomentState* pState, int mOrd, int nOrd, int nChannel, int offsetX,
                                    int offsetY, Vemi64s* pValue, int scaleFactor) {
  return spatial(pState, mOrd, nOrd, nChannel, {offsetX, offsetY}, pValue, scaleFactor);
}

VemiStatus vemiGetNormalizedSpatialMoment_64f(const VemiMomentState* pState, int mOrd, int nOrd, int nChannel,
                                              int offsetX, int offsetY, Vemi64f* pValue) {
  return normalizedSpatial(pState, mOrd, nOrd, nChannel, {offsetX, offsetY}, pValue);
}
VemiStatus vemiGetNormalizedSpatialMoment_64s(const VemiMomentState* pState, int mOrd, int nOrd, int nChannel,
                                              int offsetX, int offsetY, Vemi64s* pValue, int scaleFactor) {
  return normalizedSpatial(pState, mOrd, nOrd, nChannel, {offsetX, offsetY}, pValue, scaleFactor);
}

VemiStatus vemiGetCentralMoment_64f(const VemiMomentState* pState, int mOrd, int nOrd, int nChannel, Vemi64f* pValue) {
  return central<Size::asIs>(pState, mOrd, nOrd, nChannel, pValue);
}
VemiStatus vemiGetCentralMoment_64s(const VemiMomentState* pState, int mOrd, int nOrd, int nChannel, Vemi64s* pValue,
                                    int scaleFactor) {
  return central<Size::asIs>(pState, mOrd, nOrd, nChannel, pValue, scaleFactor);
}

VemiStatus vemiGetNormalizedCentralMoment_64f(const VemiMomentState* pState, int mOrd, int nOrd, int nChannel,
                                              Vemi64f* pValue) {
  return central<Size::normalised>(pState, mOrd, nOrd, nChannel, pValue);
}
VemiStatus vemiGetNormalizedCentralMoment_64s(const VemiMomentState* pState, int mOrd, int nOrd, int nChannel,
                                              Vemi64s* pValue, int scaleFactor) {
  return central<Size::normalised>(pState, mOrd, nOrd, nChannel, pValue, scaleFactor);
}

VemiStatus vemiGetHuMoments_64f(const VemiMomentState* pState, int nChannel, Vemi64f pHu[7]) {
  return hu(pState, nChannel, pHu);
}
VemiStatus vemiGetHuMoments_64s(const VemiMomentState* pState, int nChannel, Vemi64s pHu[7], int scaleFactor) {
  return hu(pState, nChannel, pHu, scaleFactor);
}
