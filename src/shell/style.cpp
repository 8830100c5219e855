#include "shell/style.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

#include "shell/filled_button.h"
#include "shell/painted_icon.h"
#include "shell/roster_box.h"
#include "shell/theme.h"

namespace morlek {
namespace {

/// A flat button in its palette's colour. The default button has an outline of the accent colour,
/// and so has a filled one, which answers the mouse in shades of its own colour.
void PaintButton(QPainter& painter, const QStyleOption& option, bool filled) {
  constexpr qreal kRadius = 4;
  const bool pressed = option.state.testFlag(QStyle::State_Sunken);
  const bool hovered = option.state.testFlag(QStyle::State_MouseOver);
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
  const bool is_default =
      button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton);
  const bool focused = option.state.testFlag(QStyle::State_HasFocus);

  QColor fill = option.palette.color(QPalette::Button);
  if (filled) {
    if (pressed) {
      fill = fill.darker(120);
    } else if (hovered) {
      fill = fill.lighter(112);
    }
  } else if (pressed || hovered) {
    fill = theme::kHover;
  }

  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(is_default || filled ? theme::kAccent : theme::kLine);
  painter.setBrush(fill);
  const QRectF outline = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  painter.drawRoundedRect(outline, kRadius, kRadius);
  if (focused) {
    painter.setPen(filled ? theme::kBase : theme::kAccent);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(outline.adjusted(2, 2, -2, -2), kRadius - 1, kRadius - 1);
  }
  painter.restore();
}

/// A disc with one character in it.
QIcon MessageIcon(const QColor& disc, const QString& character) {
  return MakePaintedIcon([disc, character](QPainter& painter, const QRectF& target) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(disc);
    painter.drawEllipse(target.adjusted(1, 1, -1, -1));
    painter.setPen(theme::kBase);
    painter.setFont(theme::Font(qRound(target.height() * 0.6), QFont::Bold));
    painter.drawText(target, Qt::AlignCenter, character);
  });
}

}  // namespace

Style::Style() : QProxyStyle(QStyleFactory::create("Fusion")) {}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
  if (element == PE_PanelLineEdit) {
    if (const auto* box = qobject_cast<const RosterBox*>(widget)) {
      box->PaintPanel(*painter);
      return;
    }
  }
  if (element == PE_PanelButtonCommand) {
    PaintButton(*painter, *option, qobject_cast<const FilledButton*>(widget) != nullptr);
    return;
  }
  // The focus of a button is part of its panel.
  if (element == PE_FrameFocusRect && widget != nullptr && widget->inherits("QPushButton")) return;
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* result) const {
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  return QProxyStyle::styleHint(hint, option, widget, result);
}

QIcon Style::standardIcon(StandardPixmap icon, const QStyleOption* option,
                          const QWidget* widget) const {
  if (icon == SP_MessageBoxQuestion) return MessageIcon(theme::kAccent, "?");
  if (icon == SP_MessageBoxCritical) return MessageIcon(theme::kCritical, "!");
  // Every menu bar asks for it, for the case that it is too narrow, which ours is not.
  if (icon == SP_ToolBarHorizontalExtensionButton) return {};
  return QProxyStyle::standardIcon(icon, option, widget);
}

}  // namespace morlek
