#pragma once

#include <QPointF>

namespace morlek::art {

/// What shows below the trousers.
enum class Hose { kLongTrousers, kHighSocks, kStirrups, kStripedSocks, kAnkleSocks };

/// One leg, from the ground's height, y downwards.
struct LegPose {
  QPointF knee;
  QPointF ankle;
  /// How much of the foot is seen from the side: 1 points right, -1 left.
  qreal foot_width;
  /// The foot's turn in degrees, clockwise: toe down when it points right.
  qreal foot_turn;
};

struct LegsLook {
  QPointF waist;
  LegPose rear;
  LegPose front;
  Hose hose;
};

/// The look of a legs code that has a picture.
[[nodiscard]] LegsLook LegsLookOf(int code);

/// Where the waist of a batter without legs would be.
inline constexpr QPointF kStandingWaist{0, -88};

}  // namespace morlek::art
