#pragma once

class QPainter;

namespace morlek {

/// A line edit that paints its own panel where the style would paint one, so that the style need
/// not know the widgets that use it.
class OwnPanel {
 public:
  OwnPanel(const OwnPanel&) = delete;
  OwnPanel& operator=(const OwnPanel&) = delete;
  virtual ~OwnPanel() = default;

  /// Paints frame and background of the widget, as they are now.
  virtual void PaintPanel(QPainter& painter) const = 0;

 protected:
  OwnPanel() = default;
};

}  // namespace morlek
