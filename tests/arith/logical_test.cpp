// vemiAnd, vemiOr, vemiXor, their forms with constants, and vemiNot.

#include <gtest/gtest.h>

#include <functional>
#include <utility>

#include "support/check.h"

using namespace vemi::test;

namespace {

using OnBits = std::function<std::byte(std::byte, std::byte)>;

const std::pair<const char*, OnBits> operations[] = {
    {"vemiAnd", [](std::byte a, std::byte b) { return a & b; }},
    {"vemiOr", [](std::byte a, std::byte b) { return a | b; }},
    {"vemiXor", [](std::byte a, std::byte b) { return a ^ b; }},
};

/// Bits do not see elements: each byte of an element by itself.
void storeBytes(const View& result, int x, int y, int channel, const std::byte* a, const std::byte* b,
                const OnBits& operation) {
  for (int n = 0; n < bytesOf(result.element); ++n) result.at(x, y, channel)[n] = operation(a[n], b[n]);
}

}  // namespace

TEST(Logical, EveryMemberWithTwoSources) {
  for (const auto& [name, operation] : operations) {
    expectDefinition(membersOf(name), [&onBits = operation](Call& call) {
      const View a = call.source(0), b = call.source(1), result = call.destination();
      call.forEachElement([&](int x, int y, int channel) {
        storeBytes(result, x, y, channel, a.at(x, y, channel), b.at(x, y, channel), onBits);
      });
    });
  }
}

TEST(Logical, EveryMemberWithConstants) {
  for (const auto& [name, operation] : operations) {
    expectDefinition(membersOf(std::string(name) + "C"), [&onBits = operation](Call& call) {
      const View a = call.source(), result = call.destination();
      call.forEachElement([&](int x, int y, int channel) {
        storeBytes(result, x, y, channel, a.at(x, y, channel), call.constant(channel), onBits);
      });
    });
  }
}

TEST(Logical, EveryMemberOfNot) {
  expectDefinition(membersOf("vemiNot"), [](Call& call) {
    const View a = call.source(), result = call.destination();
    call.forEachElement([&](int x, int y, int channel) { *result.at(x, y, channel) = ~*a.at(x, y, channel); });
  });
}
