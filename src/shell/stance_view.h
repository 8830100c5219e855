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
  std::optional<ClubColors> club;  // without one he wears the blue of the single pieces

  friend bool operator==(const ShownPlayer&, const ShownPlayer&) = default;
};

/// A picture that is tried on a player.
struct TriedPicture {
  StancePiece piece;
  int code;

  friend bool operator==(const TriedPicture&, const TriedPicture&) = default;
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

  /// Shows the player with another piece; without one, as he is.
  void Try(const std::optional<TriedPicture>& picture);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  ShownPlayer player_;
  std::optional<TriedPicture> tried_;
};

}  // namespace morlek
