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
  // Measuring texts takes longer than all else that happens at a key.
  const std::filesystem::path& image = state.scene.place.image;
  const QString details = DetailsOf(state);
  if (image.native() == image_ && notes == notes_ && details == details_) return;
  const bool is_news = notes != std::exchange(notes_, notes);
  image_ = image.native();
  details_ = details;

  const QString path = QString::fromStdU16String(image.u16string());
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
  setToolTip(PlainTip(cut + details + QDir::toNativeSeparators(path)));
  QStringList spoken = notes;
  if (!name.isEmpty()) spoken.prepend(name);
  setAccessibleDescription(spoken.join(Separator()));
  // For who cannot see that the line has changed.
  QAccessibleEvent changed(this, QAccessible::Alert);
  if (is_news) QAccessible::updateAccessibility(&changed);
}

}  // namespace morlek
