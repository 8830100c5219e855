#pragma once

#include <QLabel>
#include <QStringList>
#include <filesystem>

namespace morlek {

struct EditorState;

/// The line at the foot of the window: the file name of the image, and what SAVE would do.
class StatusLine : public QLabel {
  Q_OBJECT

 public:
  explicit StatusLine(QWidget* parent);

  /// Shows the file name of the image (its whole path in the tool tip), followed by the outcome of
  /// the last step and the counts of marks. Where there is no room for all of it, the name goes
  /// first, then parts at the end, which the tool tip shows. Alerts screen readers when what
  /// follows the name changes.
  void Show(const EditorState& state);

 private:
  // What the line shows.
  std::filesystem::path::string_type image_;
  QStringList notes_;
  QString details_;
};

}  // namespace morlek
