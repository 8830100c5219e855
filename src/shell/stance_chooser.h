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
};

/// A frame of pictures to choose a face, body or legs from, one for every code that has a picture.
/// At first none is marked.
class StanceChooser : public QFrame {
  Q_OBJECT

 public:
  StanceChooser(const ChooserKind& kind, QWidget* parent);

  /// Marks the picture of this code and no other; none for no code and for one without a picture.
  void Mark(std::optional<int> code);

 signals:
  /// A picture was clicked; the text is its code in hexadecimal without a leading zero.
  void CodePicked(const QString& code_text);

 private:
  std::vector<StancePicture*> pictures_;
};

}  // namespace morlek
