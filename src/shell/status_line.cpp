#include "shell/status_line.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

#include "editor/editor_state.h"
#include "shell/mark_text.h"
#include "ui/theme.h"
#include "ui/twips.h"

namespace morlek {
namespace {

constexpr char kFileHeld[] = "a file is still open and blocks SAVE (Ctrl+O, Cancel)";
constexpr int kPixels = 11;
constexpr int kSmallestNameWidth = 60;

}  // namespace

StatusLine::StatusLine(QWidget* parent) : QLabel(parent) {
  setObjectName("labelStatus");
  setAccessibleName("status");
  setGeometry(8, 635, 388, 16);
  setFont(theme::Font(kPixels));
  setTextFormat(Qt::PlainText);
}

void StatusLine::Show(const EditorState& state) {
  const QString path = QString::fromStdU16String(state.scene.place.image.u16string());
  QStringList notes = {LeftBehindText(state)};
  if (state.scene.is_grid_shown) {
    notes << (state.is_file_held ? QString(kFileHeld) : SummaryOf(state.marks));
  }
  QString tail;
  for (const QString& note : notes) {
    if (!note.isEmpty()) tail += QString::fromUtf8(" \u00b7 ") + note;
  }
  const QFontMetrics metrics(font());
  const int room = std::max(width() - metrics.horizontalAdvance(tail), kSmallestNameWidth);
  const QString name = QFileInfo(path).fileName();
  setText(path.isEmpty() ? QString() : metrics.elidedText(name, Qt::ElideMiddle, room) + tail);
  setToolTip(PlainTip(QDir::toNativeSeparators(path)));
  setAccessibleDescription(path.isEmpty() ? QString() : name + tail);
}

}  // namespace morlek
