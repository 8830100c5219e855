#include "shell/hint_note.h"

#include <QFileInfo>

#include "editor/editor_state.h"
#include "ui/theme.h"

namespace morlek {
namespace {

QString WhyRefused(const RefusedImage& refused, const QFontMetrics& metrics, int room) {
  const QString path = QString::fromStdU16String(refused.path.u16string());
  const bool is_other_game = refused.why == OpenResult::kRefused;
  const QString reason = is_other_game ? " is not this game's image." : " could not be opened.";
  const int left = room - metrics.horizontalAdvance(reason);
  return metrics.elidedText(QFileInfo(path).fileName(), Qt::ElideMiddle, left) + reason;
}

}  // namespace

HintNote::HintNote(const QRect& area, QWidget* parent) : QLabel(parent) {
  constexpr int kPixels = 13;
  setObjectName("labelHintNote");
  setAccessibleName("more about what to do next");
  setGeometry(area);
  setFont(theme::Font(kPixels));
  setTextFormat(Qt::PlainText);
  setAlignment(Qt::AlignHCenter | Qt::AlignTop);
  setForegroundRole(QPalette::PlaceholderText);
  hide();
}

void HintNote::Show(const EditorState& state) {
  QString words = "or drop it here";
  // No path was chosen where the dialog was cancelled.
  if (state.refused && !state.refused->path.empty()) {
    words += "\n\n" + WhyRefused(*state.refused, fontMetrics(), width());
  }
  setText(words);
  setAccessibleDescription(words);
  setVisible(state.scene.place.image.empty() && !state.scene.is_grid_shown);
}

}  // namespace morlek
