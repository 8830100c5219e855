#include "shell/status_line.h"

#include <QAccessible>
#include <QDir>
#include <QFileInfo>
#include <utility>

#include "editor/editor_state.h"
#include "shell/mark_text.h"
#include "ui/theme.h"
#include "ui/twips.h"

namespace morlek {
namespace {

constexpr char kFileHeld[] = "a file is still open and blocks SAVE (Ctrl+O, Cancel)";
constexpr int kPixels = 11;
constexpr int kSmallestNameWidth = 60;

const QString& Separator() {
  static const QString separator = QString::fromUtf8(" \u00b7 ");
  return separator;
}

/// As many of the parts as there is room for; an ellipsis stands for the rest.
QString Fitted(QStringList parts, const QFontMetrics& metrics, int width) {
  const auto elided = [&](const QString& text) {
    return metrics.elidedText(text, Qt::ElideRight, width);
  };
  QString fitted = parts.join(Separator());
  while (elided(fitted) != fitted && parts.size() > 1) {
    parts.removeLast();
    fitted = parts.join(Separator()) + Separator() + QChar(0x2026);
  }
  return elided(fitted);
}

}  // namespace

StatusLine::StatusLine(QWidget* parent) : QLabel(parent) {
  setObjectName("labelStatus");
  setAccessibleName("status");
  setGeometry(8, 635, 388, 16);
  setFont(theme::Font(kPixels));
  setTextFormat(Qt::PlainText);
}

void StatusLine::Show(const EditorState& state) {
  QStringList notes = {NoteOf(state)};
  if (state.scene.is_grid_shown) {
    notes << (state.is_file_held ? QString(kFileHeld) : SummaryOf(state.marks));
  }
  notes.removeAll(QString());
  const QString path = QString::fromStdU16String(state.scene.place.image.u16string());
  const QString tip = DetailsOf(state) + QDir::toNativeSeparators(path);
  // Measuring texts takes longer than all else that happens at a key.
  if (notes == notes_ && tip == tip_) return;
  const bool is_news = notes != std::exchange(notes_, notes);
  tip_ = tip;

  const QString name = QFileInfo(path).fileName();
  const QString said = notes.join(Separator());
  const QFontMetrics metrics(font());
  const int room = width() - metrics.horizontalAdvance(Separator() + said);
  QStringList shown = said.split(Separator(), Qt::SkipEmptyParts);
  // What is said comes before the name, which its tip shows as well.
  if (room >= kSmallestNameWidth) {
    shown.prepend(metrics.elidedText(name, Qt::ElideMiddle, notes.isEmpty() ? width() : room));
  }
  shown.removeAll(QString());
  setText(Fitted(shown, metrics, width()));
  const QString cut = text().endsWith(said) ? QString() : said + '\n';
  setToolTip(PlainTip(cut + tip));
  QStringList spoken = notes;
  if (!name.isEmpty()) spoken.prepend(name);
  setAccessibleDescription(spoken.join(Separator()));
  // For who cannot see that the line has changed.
  QAccessibleEvent changed(this, QAccessible::Alert);
  if (is_news) QAccessible::updateAccessibility(&changed);
}

}  // namespace morlek
