#include "fuzz/session.h"

#include <gtest/gtest.h>

#include <random>

namespace morlek {
namespace {

TEST(SessionTest, RandomStepsOverTeamsAndImagesKeepEveryPromise) {
  constexpr unsigned kSessions = 100;
  for (unsigned seed = 1; seed <= kSessions; ++seed) {
    std::mt19937 random(seed);
    std::vector<std::uint8_t> script(1500);
    for (std::uint8_t& byte : script) byte = static_cast<std::uint8_t>(random());
    ASSERT_NO_THROW(fuzz::PlaySession(script)) << seed;
  }
}

}  // namespace
}  // namespace morlek
