#pragma once

class QColor;
class QWindow;

namespace morlek {

/// Where an X server shows the windows: has it fill what a growing window uncovers with this colour
/// at once, instead of leaving white there until the window is painted. Elsewhere does nothing.
void SetWindowGround(const QWindow& window, const QColor& color);

}  // namespace morlek
