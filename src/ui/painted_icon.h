#pragma once

#include <QIcon>
#include <functional>

class QPainter;
class QRectF;

namespace morlek {

/// Paints a picture into a target rectangle at any size. It lives as long as the icon and its
/// copies, and so holds what it paints by value.
using PicturePainter = std::function<void(QPainter& painter, const QRectF& target)>;

/// An icon that is painted for every size and scale, and so is never blurred.
[[nodiscard]] QIcon MakePaintedIcon(PicturePainter paint);

}  // namespace morlek
