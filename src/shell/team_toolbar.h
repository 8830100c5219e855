#pragma once

#include <QWidget>
#include <string_view>
#include <vector>

namespace morlek {

class MarkedButton;
struct EditorState;

/// The team buttons, two rows of fourteen in the team directory's order. They take no keyboard
/// focus; Ctrl+Page Down and Ctrl+Page Up pick the next and the previous team instead.
class TeamToolbar : public QWidget {
  Q_OBJECT

 public:
  explicit TeamToolbar(QWidget* parent);

  /// Stands in the window once there is an image. The badge of the team on the screen has a ring.
  void Show(const EditorState& state);

 signals:
  /// The team with this toolbar key, which is one of the directory and lives on, was picked.
  void TeamPicked(std::string_view toolbar_key);

  /// A key asked for the next team (+1) or the previous one (-1).
  void StepRequested(int places);

 private:
  std::vector<MarkedButton*> buttons_;  // in the directory's order
};

}  // namespace morlek
