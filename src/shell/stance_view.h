#pragma once

#include <QWidget>
#include <optional>

#include "art/stance_figure.h"

namespace morlek {

/// What is shown of one player.
struct ShownPlayer {
  QString name;
  QString number;
  QString position;
  StanceCodes codes;

  friend bool operator==(const ShownPlayer&, const ShownPlayer&) = default;
};

/// A card with one player: his face, body and legs put together in his club's colours, and a plate
/// with his number, position and name, which is below the figure on a card that is higher than
/// wide, and beside it otherwise.
class StanceView : public QWidget {
  Q_OBJECT

 public:
  explicit StanceView(QWidget* parent);

  /// Shows a player; a code without a picture becomes a question mark, an empty one is left blank.
  void ShowPlayer(const ShownPlayer& player);

  /// Dresses the player in these colours; without a club, in the blue of the single pieces.
  void ShowClub(const std::optional<ClubColors>& club);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  ShownPlayer player_;
  std::optional<ClubColors> club_;
};

}  // namespace morlek
