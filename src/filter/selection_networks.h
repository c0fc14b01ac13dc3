// Medians by networks: exchanges of two values by a minimum and a maximum, in lanes, whatever the values are. Of an
// exchange the compiler computes what becomes of use.
#pragma once

#include <array>

#include "core/lanes.h"

namespace vemi::filter {

/// After it, the value at place `lower` is not above the one at `upper`.
struct Exchange {
  int lower, upper;
};

template <size_t count>
using Network = std::array<Exchange, count>;

template <size_t... count>
constexpr auto joined(const Network<count>&... network) {
  Network<(count + ...)> all = {};
  size_t k = 0;
  const auto add = [&](const auto& exchanges) {
    for (const Exchange& exchange : exchanges) all[k++] = exchange;
  };
  (add(network), ...);
  return all;
}

template <const auto& network, class V, int count>
HWY_INLINE void exchange(Vectors<V, count>& values) {
  unrolled<static_cast<int>(network.size())>([&](auto k) HWY_ATTR {
    constexpr Exchange pair = network[k];
    const V a = values.v[pair.lower], b = values.v[pair.upper];
    values.v[pair.lower] = hn::Min(a, b);
    values.v[pair.upper] = hn::Max(a, b);
  });
}

template <const auto& network, class V, int count>
HWY_INLINE V selected(Vectors<V, count> values) {
  exchange<network>(values);
  return values.v[network[network.size() - 1].lower];
}

/// So many values in order.
template <int count>
inline constexpr auto sorting = nullptr;
template <>
inline constexpr Network<3> sorting<3> = {{{0, 1}, {1, 2}, {0, 1}}};
template <>
inline constexpr Network<9> sorting<5> = {{{0, 3}, {1, 4}, {0, 2}, {1, 3}, {0, 1}, {2, 4}, {1, 2}, {3, 4}, {2, 3}}};

// Of what follows, the last exchange has the median as its lower value.

/// Of a square whose columns are sorted: value j of column i stands at place j * side + i.
template <int side>
inline constexpr auto medianOfColumns = nullptr;

/// The greatest of the least, the middle of the middle and the least of the greatest, and the middle of these.
template <>
inline constexpr Network<10> medianOfColumns<3> = {
    {{0, 1}, {1, 2}, {7, 8}, {6, 7}, {3, 4}, {3, 5}, {4, 5}, {2, 4}, {2, 6}, {4, 6}}};

/// First the rows, as far as they count: with sorted columns and rows, thirteen values on and beside the diagonal can
/// be the median, and six lie surely above it and six below. Then these, in an order that a search has found.
template <>
inline constexpr Network<69> medianOfColumns<5> = {
    {{0, 3},   {3, 2},   {2, 4},   {4, 1},   {0, 3},   {3, 2},   {2, 4},   {9, 6},   {6, 7},   {7, 8},
     {8, 5},   {9, 6},   {6, 7},   {7, 8},   {9, 6},   {6, 7},   {12, 14}, {10, 11}, {12, 13}, {10, 14},
     {12, 10}, {13, 11}, {10, 13}, {14, 11}, {13, 14}, {16, 19}, {15, 18}, {16, 17}, {15, 19}, {16, 15},
     {17, 18}, {15, 17}, {19, 18}, {17, 19}, {20, 22}, {24, 20}, {23, 24}, {21, 23}, {20, 22}, {24, 20},
     {23, 24}, {17, 5},  {23, 14}, {5, 14},  {7, 4},   {16, 7},  {10, 16}, {23, 5},  {21, 17}, {1, 17},
     {17, 5},  {4, 21},  {7, 4},   {1, 16},  {13, 16}, {8, 16},  {16, 23}, {17, 15}, {15, 23}, {13, 4},
     {17, 21}, {8, 17},  {15, 21}, {21, 16}, {17, 21}, {4, 15},  {15, 21}, {17, 4},  {15, 4}}};

/// So many values.
template <int count>
inline constexpr auto median = nullptr;
template <>
inline constexpr Network<3> median<3> = {{{0, 1}, {0, 2}, {1, 2}}};
template <>
inline constexpr Network<7> median<5> = {{{0, 1}, {3, 4}, {0, 3}, {1, 4}, {1, 2}, {1, 3}, {2, 3}}};
template <>
inline constexpr auto median<9> =
    joined(Network<9>{{{0, 3}, {1, 4}, {2, 5}, {3, 6}, {4, 7}, {5, 8}, {0, 3}, {1, 4}, {2, 5}}}, medianOfColumns<3>);

}  // namespace vemi::filter
