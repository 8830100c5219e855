#include "shell/hint_note.h"

#include <QFileInfo>

#include "editor/editor_state.h"
#include "ui/theme.h"

namespace morlek {
namespace {

QString ReasonOf(const EditorState& state) {
  if (state.refused->why != OpenResult::kRefused) return " could not be opened.";
  const auto* file = std::get_if<RefusedFile>(&state.note);
  const bool lacks_header = file != nullptr && file->lacks_header;
  return lacks_header ? " lacks the 512 bytes in front." : " is not this game's image.";
}

QString WhyRefused(const EditorState& state, const QFontMetrics& metrics, int room) {
  const QString path = QString::fromStdU16String(state.refused->path.u16string());
  const QString reason = ReasonOf(state);
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
    words += "\n\n" + WhyRefused(state, fontMetrics(), width());
  }
  setText(words);
  setAccessibleDescription(words);
  setVisible(state.scene.place.image.empty());
}

}  // namespace morlek
