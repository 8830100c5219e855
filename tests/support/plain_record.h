#pragma once

#include <cstdint>
#include <vector>

namespace morlek {

/// A team record in which every row differs from its neighbours in every field, that a load shows
/// exactly and a save gives back byte for byte. The bytes that the editor leaves to the game hold
/// 0xEE, which no decoder knows.
///
/// Row r shows, by its texts 1 to 14: the letter r of the alphabet as initial and after a B
/// ("C.BC"), position r modulo 12, number r + 1, ratings r % 10 + 1 and r % 9 + 1, face 20 + r,
/// body 40 + r, legs r (hexadecimal). A batter, besides: side R, L or S by r % 3, ratings
/// (r + 3) % 10 + 1 and (r + 1) % 9 + 1, average 250 + r, 30 + r home runs, 60 + r batted in. A
/// pitcher: left hand when r is odd, marks by r % 6, rating r - 14, 90 + r wins, 120 + r losses,
/// earned run average 50 + 10 r (a hundredth each), 150 + r saves.
[[nodiscard]] std::vector<std::uint8_t> PlainRecord();

}  // namespace morlek
