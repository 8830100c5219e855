#pragma once

#include <QWidget>
#include <optional>
#include <string_view>
#include <vector>

namespace morlek {

class MarkedButton;

/// The team buttons, two rows of fourteen in the team directory's order. They take no keyboard
/// focus; Ctrl+Page Down and Ctrl+Page Up pick the next and the previous team instead.
class TeamToolbar : public QWidget {
  Q_OBJECT

 public:
  explicit TeamToolbar(QWidget* parent);

  /// Begins anew with the first team, for another image.
  void Restart();

  /// Whether the team that was picked last is on the screen: its badge then has a ring.
  void ShowPicked(bool on_screen);

 signals:
  /// The team with this toolbar key, which is one of the directory and lives on, was picked by its
  /// button or by key.
  void TeamPicked(std::string_view toolbar_key);

 private:
  void Pick(int place);

  /// Picks the next team, or the previous one, going round.
  void Step(int places);

  std::vector<MarkedButton*> buttons_;  // in the directory's order
  std::optional<int> picked_;           // place in the directory
};

}  // namespace morlek
