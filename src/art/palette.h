#pragma once

#include <QColor>
#include <algorithm>
#include <array>

/// The colours of all pictures: few, and in keeping with the window's own.
namespace morlek::art {

/// A colour in light and in shadow. The light comes from the upper left.
struct Tone {
  QColor light;
  QColor shade;
};

inline constexpr QColor kInk{0x1b, 0x22, 0x2d};
inline constexpr QColor kWhite{0xff, 0xff, 0xff};
inline constexpr QColor kRed{0xd2, 0x3a, 0x34};
inline constexpr QColor kGlint{0x8f, 0xb8, 0xf5};

inline constexpr Tone kAccentCloth{{0x1f, 0x5f, 0xd0}, {0x17, 0x46, 0x9c}};
inline constexpr Tone kNavyCloth{{0x34, 0x41, 0x57}, {0x22, 0x2b, 0x3b}};
inline constexpr Tone kRedCloth{{0xd2, 0x3a, 0x34}, {0xa1, 0x27, 0x27}};
inline constexpr Tone kJersey{{0xff, 0xff, 0xff}, {0xcf, 0xd9, 0xe8}};
inline constexpr Tone kTrousers{{0xf4, 0xf6, 0xfa}, {0xc6, 0xd0, 0xdf}};
inline constexpr Tone kSock{{0xff, 0xff, 0xff}, {0xd3, 0xdb, 0xe6}};
inline constexpr Tone kShoe{{0x2a, 0x33, 0x42}, {0x14, 0x1a, 0x24}};
inline constexpr Tone kWood{{0xe0, 0xab, 0x66}, {0xb4, 0x79, 0x3c}};
inline constexpr Tone kHair{{0x38, 0x27, 0x20}, {0x24, 0x18, 0x13}};

/// The clothes that have the club's colours.
struct Kit {
  Tone main = kAccentCloth;
  /// The undershirts and ankle socks that are not of the main colour.
  Tone dark = kNavyCloth;
  Tone bright = kRedCloth;
  Tone bill = kNavyCloth;
  QColor gloss = kGlint;
  /// Bands round the stockings.
  QColor bands = kWhite;
};

/// Skin by the high digit of a code, 0 to 5: two neighbours are of one class.
[[nodiscard]] inline Tone SkinOf(int high_digit) {
  constexpr std::array<Tone, 6> kSkins = {{{{0xf9, 0xd3, 0xb3}, {0xe4, 0xac, 0x85}},
                                           {{0xf2, 0xc2, 0x9a}, {0xd7, 0x9d, 0x72}},
                                           {{0xd3, 0x99, 0x68}, {0xb0, 0x76, 0x4a}},
                                           {{0xc2, 0x84, 0x53}, {0x9d, 0x64, 0x3a}},
                                           {{0x94, 0x5e, 0x3e}, {0x72, 0x45, 0x2b}},
                                           {{0x7c, 0x4c, 0x33}, {0x5c, 0x35, 0x22}}}};
  return kSkins.at(static_cast<std::size_t>(std::clamp(high_digit, 0, 5)));
}

}  // namespace morlek::art
