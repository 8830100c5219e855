#include "ui/style.h"

#include <QGuiApplication>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QWidget>
#include <algorithm>

#include "ui/dialog_icons.h"
#include "ui/filled_button.h"
#include "ui/snapped_lines.h"
#include "ui/theme.h"

namespace morlek {
namespace {

/// A flat button in its palette's colour. The default button has an outline of the accent colour. A
/// filled button has an outline of its own colour and gets lighter or darker under the mouse.
void PaintButton(QPainter& painter, const QStyleOption& option, bool filled) {
  constexpr qreal kRadius = 4;
  const bool pressed = option.state.testFlag(QStyle::State_Sunken);
  const bool hovered = option.state.testFlag(QStyle::State_MouseOver);
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
  const bool is_default =
      button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton);
  const bool focused = option.state.testFlag(QStyle::State_HasFocus);

  const theme::Shades& shades = theme::ShadesOf(option.palette);
  QColor fill = option.palette.color(QPalette::Button);
  if (filled) {
    if (pressed) {
      fill = fill.darker(120);
    } else if (hovered) {
      fill = fill.lighter(112);
    }
  } else if (pressed || hovered) {
    fill = shades.hover;
  }

  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(filled ? fill : is_default ? shades.accent : shades.line);
  painter.setBrush(fill);
  const QRectF outline = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  painter.drawRoundedRect(outline, kRadius, kRadius);
  if (focused) {
    painter.setPen(filled ? shades.on_fill : shades.accent);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(outline.adjusted(2, 2, -2, -2), kRadius - 1, kRadius - 1);
  }
  painter.restore();
}

/// A groove with a handle that contrasts with it.
void PaintScrollBar(QPainter& painter, const QStyleOptionSlider& option, const QRect& slider) {
  constexpr qreal kMargin = 3.5;
  const theme::Shades& shades = theme::ShadesOf(option.palette);
  painter.save();
  painter.fillRect(option.rect, shades.header_band);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  const bool is_held = option.state.testFlag(QStyle::State_Sunken) &&
                       option.activeSubControls.testFlag(QStyle::SC_ScrollBarSlider);
  painter.setBrush(is_held ? shades.accent : shades.faint_text);
  const QRectF handle = QRectF(slider).adjusted(kMargin, kMargin, -kMargin, -kMargin);
  const qreal radius = std::min(handle.width(), handle.height()) / 2;
  painter.drawRoundedRect(handle, radius, radius);
  painter.restore();
}

/// An item of the menu bar, without the line below that Fusion draws for each by itself, which
/// leaves gaps at fractional scale factors.
void PaintMenuBarItem(QPainter& painter, const QStyleOptionMenuItem& item, const QStyle& style) {
  const theme::Shades& shades = theme::ShadesOf(item.palette);
  const bool is_open = item.state.testFlag(QStyle::State_Sunken);
  const bool is_lit = item.state.testFlag(QStyle::State_Selected);
  painter.fillRect(item.rect, is_lit && is_open ? shades.fill
                              : is_lit          ? shades.hover
                                                : shades.window);
  style.drawItemText(&painter, item.rect,
                     Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextSingleLine, item.palette,
                     item.state.testFlag(QStyle::State_Enabled), item.text,
                     is_lit && is_open ? QPalette::HighlightedText : QPalette::WindowText);
}

}  // namespace

Style::Style() : QProxyStyle(QStyleFactory::create("Fusion")), first_guess_(standardPalette()) {}

void Style::polish(QPalette& palette) {
  // Where the desktop only says that it is dark, the toolkit works out a palette once and hands it
  // out for good, but what Fusion works out follows a change.
  const bool is_guess = palette.window() == first_guess_.window();
  palette = theme::PaletteOf(theme::ShadesOf(is_guess ? standardPalette() : palette));
}

void Style::polish(QWidget* widget) {
  QProxyStyle::polish(widget);
  // Some desktops replace the program's font by their own, which the grid has no room for.
  if (widget->isWindow()) widget->setFont(theme::Font(theme::kFontPixels));
  // Some desktops have colours of their own for tips, which bypass the palette.
  if (widget->inherits("QTipLabel")) widget->setPalette(QPalette());
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
  if (element == PE_PanelLineEdit) {
    if (const auto* panel = dynamic_cast<const OwnPanel*>(widget)) {
      panel->PaintPanel(*painter);
      return;
    }
  }
  if (element == PE_PanelButtonCommand) {
    PaintButton(*painter, *option, qobject_cast<const FilledButton*>(widget) != nullptr);
    return;
  }
  if (element == PE_Frame) {
    FrameSnapped(*painter, option->rect, 1, theme::ShadesOf(option->palette).line);
    return;
  }
  if (element == PE_PanelTipLabel) {
    const theme::Shades& shades = theme::ShadesOf(option->palette);
    FrameSnapped(*painter, option->rect, 1, shades.faint_text, shades.tip);
    return;
  }
  // The focus of a button is part of its panel.
  if (element == PE_FrameFocusRect && widget != nullptr && widget->inherits("QPushButton")) return;
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const {
  if (element == CE_MenuBarEmptyArea) {
    painter->fillRect(option->rect, option->palette.window());
    return;
  }
  const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
  if (element == CE_MenuBarItem && item != nullptr) {
    PaintMenuBarItem(*painter, *item, *proxy());
    return;
  }
  QProxyStyle::drawControl(element, option, painter, widget);
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                               QPainter* painter, const QWidget* widget) const {
  const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
  if (control == CC_ScrollBar && bar != nullptr) {
    const auto place_of = [&](SubControl part) {
      return subControlRect(control, option, part, widget);
    };
    PaintScrollBar(*painter, *bar, place_of(SC_ScrollBarSlider));
    const bool upright = bar->orientation == Qt::Vertical;
    QStyleOption arrow;
    arrow.palette = option->palette;
    arrow.state = option->state;
    arrow.rect = place_of(SC_ScrollBarSubLine);
    drawPrimitive(upright ? PE_IndicatorArrowUp : PE_IndicatorArrowLeft, &arrow, painter, widget);
    arrow.rect = place_of(SC_ScrollBarAddLine);
    drawPrimitive(upright ? PE_IndicatorArrowDown : PE_IndicatorArrowRight, &arrow, painter,
                  widget);
    return;
  }
  QProxyStyle::drawComplexControl(control, option, painter, widget);
}

int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* result) const {
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  // The caret at the end of a selection would be painted in its complementary colour.
  if (hint == SH_BlinkCursorWhenTextSelected) return 0;
  return QProxyStyle::styleHint(hint, option, widget, result);
}

QIcon Style::standardIcon(StandardPixmap icon, const QStyleOption* option,
                          const QWidget* widget) const {
  const QPalette colors = widget == nullptr ? QGuiApplication::palette() : widget->palette();
  QIcon own = DialogIcon(icon, theme::ShadesOf(colors));
  if (!own.isNull()) return own;
  // Every menu bar asks for it in case it is too narrow, which ours is not.
  if (icon == SP_ToolBarHorizontalExtensionButton) return {};
  return QProxyStyle::standardIcon(icon, option, widget);
}

}  // namespace morlek
