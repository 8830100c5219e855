#include "art/legs_look.h"

#include <array>

#include "art/picture_codes.h"

namespace morlek::art {

LegsLook LegsLookOf(int code) {
  using enum Hose;
  static constexpr std::array<LegsLook, kLegsCodes.count()> kLegsLooks = {{
      // Narrow and upright.
      {{0, -90}, {{-10, -47}, {-11, -7}, -0.6, 0}, {{11, -47}, {12, -7}, 0.7, 0}, kLongTrousers},
      // Shoulder wide, knees bent.
      {{-1, -83}, {{-23, -48}, {-21, -7}, -0.7, 0}, {{22, -47}, {23, -7}, 0.8, 0}, kHighSocks},
      // Wide crouch.
      {{0, -70}, {{-35, -45}, {-36, -7}, -0.8, 0}, {{35, -44}, {38, -7}, 0.9, 0}, kStirrups},
      // Closed: the front foot nearer to the plate.
      {{0, -86}, {{-18, -54}, {-26, -18}, -0.7, 0}, {{15, -44}, {12, -5}, -0.6, 0}, kAnkleSocks},
      // Open: the front foot pulled back towards the bench.
      {{0, -86}, {{-13, -45}, {-14, -5}, -0.6, 0}, {{24, -56}, {35, -20}, 1, 0}, kStripedSocks},
      // High leg kick.
      {{-4, -88}, {{-11, -46}, {-10, -7}, -0.7, 0}, {{30, -74}, {23, -38}, 0.9, 12}, kHighSocks},
      // Toe tap, feet together.
      {{-4, -86}, {{-19, -47}, {-15, -7}, -0.7, 0}, {{20, -52}, {8, -17}, 0.8, 48}, kStirrups},
      // Long stride, rear heel up.
      {{3, -76}, {{-17, -38}, {-39, -17}, 0.8, 42}, {{31, -48}, {40, -12}, 1, -20}, kLongTrousers},
      // Knees in, feet turned in.
      {{0, -84}, {{-9, -46}, {-27, -7}, 0.7, 0}, {{10, -46}, {28, -7}, -0.7, 0}, kStripedSocks},
      // Weight back, front leg straight.
      {{-8, -76}, {{-29, -44}, {-21, -7}, -0.8, 0}, {{15, -42}, {39, -9}, 0.9, -20}, kAnkleSocks},
  }};
  return kLegsLooks.at(static_cast<std::size_t>(kLegsCodes.PlaceOf(code)));
}

}  // namespace morlek::art
