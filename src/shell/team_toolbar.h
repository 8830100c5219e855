#pragma once

#include <QWidget>
#include <string_view>
#include <vector>

namespace morlek {

class MarkedButton;
struct EditorState;
struct Team;

/// The team buttons, two rows of fourteen in the team directory's order. They take no keyboard
/// focus; Ctrl+Page Down and Ctrl+Page Up pick the next and the previous team instead.
class TeamToolbar : public QWidget {
  Q_OBJECT

 public:
  explicit TeamToolbar(QWidget* parent);

  /// Shows the toolbar once there is an image, with a ring around the badge of the loaded team.
  void Show(const EditorState& state);

 signals:
  /// The team with this toolbar key was picked; the key belongs to the directory and stays valid.
  void TeamPicked(std::string_view toolbar_key);

  /// A key for the next team (+1) or the previous one (-1) was pressed.
  void StepRequested(int places);

 private:
  std::vector<MarkedButton*> buttons_;  // in the directory's order
  const Team* loaded_ = nullptr;        // whose button is marked
};

}  // namespace morlek
