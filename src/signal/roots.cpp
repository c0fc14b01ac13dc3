#include "signal/roots.h"

#include "core/lanes.h"
#include "signal/sine.h"

namespace vemi::signal {
namespace {

/// The sine of 2 pi k / 2^order for k from 0 to a quarter of a turn: of angles up to an eighth, or as a cosine.
double sineInQuarter(Vemi64s k, int order) {
  const Lanes<double> d;
  constexpr double turn = 6.283185307179586;
  const double unit = turn / static_cast<double>(Vemi64s{1} << order);
  const Vemi64s turn8 = Vemi64s{1} << order;
  if (8 * k <= turn8) return hn::GetLane(Sine()(d, hn::Set(d, static_cast<double>(k) * unit)));
  if (4 * k == turn8) return 1;
  return hn::GetLane(Cosine()(d, hn::Set(d, (static_cast<double>(turn8 - 4 * k) / 4) * unit)));
}

/// sine(k), for k in a quarter of a turn, continued to any k from 0 on.
template <class Quarter>
auto sineInTurn(Vemi64s k, Vemi64s turn, const Quarter& sine) {
  const Vemi64s quarter = turn / 4, within = k % quarter;
  switch (k / quarter % 4) {
    case 0:
      return sine(within);
    case 1:
      return sine(quarter - within);
    case 2:
      return -sine(within);
    default:
      return -sine(quarter - within);
  }
}

}  // namespace

Root unitRoot(Vemi64s k, int order) {
  // In units that divide a quarter of a turn.
  const int finer = std::max(order, 2);
  const Vemi64s turn = Vemi64s{1} << finer, at = (k << (finer - order)) % turn;
  const auto sine = [&](Vemi64s angle) { return sineInQuarter(angle, finer); };
  return {sineInTurn(at + turn / 4, turn, sine), -sineInTurn(at, turn, sine)};
}

Root rootOfLength(Vemi64s k, Vemi64s length) {
  const Lanes<double> d;
  constexpr double turn = 6.283185307179586;
  // The nearest quarter turn, and an angle of at most an eighth.
  const Vemi64s at = 4 * (k % length), quarters = (2 * at + length) / (2 * length);
  const double angle = static_cast<double>(at - quarters * length) * (turn / (4 * static_cast<double>(length)));
  const double s = hn::GetLane(Sine()(d, hn::Set(d, angle))), c = hn::GetLane(Cosine()(d, hn::Set(d, angle)));
  switch (quarters % 4) {
    case 0:
      return {c, -s};
    case 1:
      return {-s, -c};
    case 2:
      return {-c, s};
    default:
      return {s, c};
  }
}

Roots::Roots(int order) : order_(order) {
  if (order < firstOrder) return;
  const int inTables = std::min(order, lastInTables);
  factors_ = Scratch(arrayBytes<float>((firstBlock(inTables) + blocks(inTables)) * factorBlock));
  if (factors_.failed()) return;
  fillTables();
  if (order <= lastInTables) return;
  coarseOrder_ = (order - 4) / 2;
  fineOrder_ = order - 4 - coarseOrder_;
  const ptrdiff_t ofLevels = ptrdiff_t{3} * (order - lastInTables) * factorsAtOnce;
  products_ = Scratch(arrayBytes<Root>(ofLevels + (Vemi64s{1} << coarseOrder_) + (Vemi64s{1} << fineOrder_)));
  if (!products_.failed()) fillProducts();
}

void Roots::fillTables() {
  const int order = std::min(order_, lastInTables);
  const ptrdiff_t turn = ptrdiff_t{1} << order;
  float quarterWave[(1 << lastInTables) / 4 + 1];
  for (ptrdiff_t k = 0; k <= turn / 4; ++k) quarterWave[k] = static_cast<float>(sineInQuarter(k, order));
  const auto sine = [&](Vemi64s k) { return quarterWave[k]; };
  for (int level = firstOrder; level <= order; ++level) {
    float* block = factors_.as<float>() + firstBlock(level) * factorBlock;
    for (ptrdiff_t j = 0; j < blocks(level) * factorsAtOnce; ++j) {
      for (ptrdiff_t power = 1; power <= 3; ++power) {
        float* const factor = block + j / factorsAtOnce * factorBlock + (power - 1) * 2 * factorsAtOnce;
        const Vemi64s k = (j * power) << (order - level);
        factor[j % factorsAtOnce] = sineInTurn(k + turn / 4, turn, sine);
        factor[j % factorsAtOnce + factorsAtOnce] = -sineInTurn(k, turn, sine);
      }
    }
  }
}

void Roots::fillProducts() {
  for (int level = lastInTables + 1; level <= order_; ++level) {
    for (int power = 1; power <= 3; ++power) {
      for (int j = 0; j < factorsAtOnce; ++j) {
        ofLevel(level)[(power - 1) * factorsAtOnce + j] = unitRoot(Vemi64s{j} * power, level);
      }
    }
  }
  for (Vemi64s k = 0; k < Vemi64s{1} << coarseOrder_; ++k) coarse()[k] = unitRoot(k, coarseOrder_);
  for (Vemi64s k = 0; k < Vemi64s{1} << fineOrder_; ++k) fine()[k] = unitRoot(k, order_ - 4);
}

/// w^(power j) is that of 16 index, a product of the coarse and a fine one, times that of j - 16 index.
void Roots::form(int order, ptrdiff_t index, float* own) const {
  for (int power = 1; power <= 3; ++power, own += 2 * factorsAtOnce) {
    const Vemi64s k = (Vemi64s{index} * power) << (order_ - order);
    const Root c = coarse()[k >> fineOrder_], f = fine()[k & ((Vemi64s{1} << fineOrder_) - 1)];
    const Root first = {c.re * f.re - c.im * f.im, c.re * f.im + c.im * f.re};
    const Root* const w = ofLevel(order) + (power - 1) * factorsAtOnce;
    for (int j = 0; j < factorsAtOnce; ++j) {
      own[j] = static_cast<float>(first.re * w[j].re - first.im * w[j].im);
      own[j + factorsAtOnce] = static_cast<float>(first.re * w[j].im + first.im * w[j].re);
    }
  }
}

}  // namespace vemi::signal
