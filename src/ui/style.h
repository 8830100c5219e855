#pragma once

#include <QPalette>
#include <QProxyStyle>

class QPainter;

namespace morlek {

/// A line edit that paints its own panel where the style would paint one, so that the style does
/// not depend on the widgets that use it.
class OwnPanel {
 public:
  virtual ~OwnPanel() = default;

  /// Paints frame and background of the widget in its current state.
  virtual void PaintPanel(QPainter& painter) const = 0;
};

/// Fusion in the program's own shades, with flat buttons, one sheet of grid boxes, plain scroll
/// bars and menu bar, and icons in one style.
class Style : public QProxyStyle {
 public:
  Style();

  /// Replaces the desktop's colours by our light or dark shades. The toolkit calls this again when
  /// the desktop changes.
  void polish(QPalette& palette) override;
  void polish(QWidget* widget) override;
  using QProxyStyle::polish;

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
  [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                              QStyleHintReturn* result) const override;
  [[nodiscard]] QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                                   const QWidget* widget) const override;

 private:
  QPalette first_guess_;
};

}  // namespace morlek
