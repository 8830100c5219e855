#pragma once

#include <QObject>
#include <QString>

class QLineEdit;

namespace morlek {

/// Keeps the line breaks of what is typed, pasted or dropped out of a line edit. Those that the
/// program itself has put there stay when the text around them is edited.
class LineBreakFilter : public QObject {
  Q_OBJECT

 public:
  /// To be made before anything else watches the edit, which outlives the filter.
  explicit LineBreakFilter(QLineEdit& edit);

 private:
  void Filter();
  void NoteText();
  void NoteStart();

  QLineEdit& edit_;
  // As the edit is between two changes: its text, and where something that comes in would begin.
  QString text_;
  int start_ = 0;
};

}  // namespace morlek
