#include "shell/drop_text.h"

#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>

#include "editor/editor.h"
#include "shell/code_page_text.h"
#include "ui/dropped_file.h"

namespace morlek {
namespace {

/// "BOSTON RED SOX" as "Boston Red Sox".
QString MixedCase(const QString& capitals) {
  QStringList words = capitals.toLower().split(' ');
  for (QString& word : words) word.replace(0, 1, word.first(1).toUpper());
  return words.join(' ');
}

QString WhatItDoes(const QString& path, const EditorState& state) {
  if (state.is_file_held) return "Nothing can be opened: a file is still open (Ctrl+O, Cancel)";
  const Scene& scene = state.scene;
  if (Editor::IsTeamFile(QFileInfo(path).filesystemFilePath())) {
    return QString("Import into %1")
        .arg(scene.is_grid_shown ? MixedCase(FromCodePage(scene.place.team->display_name))
                                 : "the grid");
  }
  const int changes = state.marks.modified_count();
  if (changes == 0) return "Open this image";
  return QString("Open this image; %1 behind Ctrl+Z")
      .arg(changes == 1 ? QString("1 change stays") : QString("%1 changes stay").arg(changes));
}

}  // namespace

DropText DropTextOf(const QDropEvent& drag, const EditorState& state) {
  const QMimeData& data = *drag.mimeData();
  if (!data.hasUrls()) return {};
  const std::optional<QString> path = DroppedFile(data);
  if (drag.isAccepted()) {
    // Without a file it is a box that takes a text.
    return path ? DropText{WhatItDoes(*path, state), !state.is_file_held} : DropText{};
  }
  if (data.urls().size() > 1) return {"Not taken: one file at a time"};
  if (!path) return {"Not taken: not a file"};
  if (!drag.possibleActions().testFlag(Qt::CopyAction)) return {"Not taken: only copies are"};
  return {};
}

}  // namespace morlek
