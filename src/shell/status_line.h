#pragma once

#include <QLabel>

namespace morlek {

/// The line at the foot of the window: the file name of the image, and how things stand with SAVE.
class StatusLine : public QLabel {
  Q_OBJECT

 public:
  explicit StatusLine(QWidget* parent);

  /// Shows the file name of a path (all of it in the tool tip), shortened where it has to be, and a
  /// summary behind it, which may be empty. Without a path the line is empty.
  void ShowImage(const QString& path, const QString& summary);
};

}  // namespace morlek
