#pragma once

#include <QPointF>

#include "art/body_look.h"
#include "art/palette.h"

class QPainter;

namespace morlek::art {

struct Arm {
  QPointF shoulder;
  QPointF elbow;
  QPointF hand;
  /// Whether it is the arm nearer to the pitcher, which wears the guard.
  bool is_front = false;
};

/// The shirt that shows below short sleeves and at the collar.
[[nodiscard]] Tone UndershirtOf(Sleeves sleeves, const Kit& kit);

void PaintArm(QPainter& painter, const Arm& arm, const Outfit& outfit, const Tone& skin,
              const Kit& kit);

/// Paints a hand closed round the bat, whose way is one unit long.
void PaintFist(QPainter& painter, QPointF place, QPointF bat_way, const Outfit& outfit,
               const Tone& skin, const Kit& kit);

}  // namespace morlek::art
