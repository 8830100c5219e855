#pragma once

#include <QFrame>
#include <QString>
#include <cstdint>
#include <optional>
#include <vector>

#include "art/stance_figure.h"

namespace morlek {

class StancePicture;

/// What distinguishes a chooser from the other two. The texts are string literals.
struct ChooserKind {
  StancePiece piece;
  const char* frame_name;
  const char* array_name;
  const char* label_name;
  const char* title;
  const char* tool_tip;
  const char* fitting;  // what the check at a picture means; null for pieces without a skin
};

/// A frame of pictures to choose a face, body or legs from, one for every code that has a picture.
/// At first none is marked.
class StanceChooser : public QFrame {
  Q_OBJECT

 public:
  /// `kind` outlives the chooser.
  StanceChooser(const ChooserKind& kind, QWidget* parent);

  /// Marks the picture of this code and no other; none for no code and for one without a picture.
  void Mark(std::optional<int> code);

  /// Puts a check at each picture whose skin is that of the other piece with this code, and says
  /// what it means; none for no code and for one without a picture.
  void ShowFitting(std::optional<int> other_code);

 signals:
  /// A picture was clicked; the text is its code in hexadecimal without a leading zero.
  void CodePicked(const QString& code_text);

  /// The pointer moved onto the picture of this code, or, without one, left it.
  void PointedAt(std::optional<int> code);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  const ChooserKind& kind_;
  std::optional<int> marked_;
  std::optional<int> fitted_;
  bool shows_fitting_ = false;
  std::vector<StancePicture*> pictures_;
};

}  // namespace morlek
