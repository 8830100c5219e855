#pragma once

#include <QPointF>
#include <optional>

namespace morlek::art {

/// Half widths of the torso.
struct Girth {
  qreal shoulder;
  qreal chest;
  qreal waist;
};

namespace build {

inline constexpr Girth kSlim{21, 16.5, 14.5};
inline constexpr Girth kBroad{27, 21, 16.5};
inline constexpr Girth kStocky{25, 24.5, 22};

}  // namespace build

enum class Sleeves { kShort, kLongBlue, kLongNavy, kThreeQuarterRed, kVest };
enum class Extras { kNone, kGloves, kWristbands, kElbowGuard };

struct Outfit {
  Girth girth;
  Sleeves sleeves;
  Extras extras;
};

/// One way to hold the bat. Points are measured from the middle of the waist, y downwards.
struct BatHold {
  QPointF knob;
  /// The way from knob to tip in degrees, anticlockwise from the right.
  qreal angle;
  /// How far up the bat from the knob each hand grips; empty: that hand rests on the hip.
  std::optional<qreal> front_grip;
  std::optional<qreal> rear_grip;
  /// Where each elbow is.
  QPointF front_elbow;
  QPointF rear_elbow;
  /// Whether the bat passes behind head and torso.
  bool is_behind;
};

struct BodyLook {
  Outfit outfit;
  BatHold hold;
};

/// The look of a body code that has a picture.
[[nodiscard]] BodyLook BodyLookOf(int code);

}  // namespace morlek::art
