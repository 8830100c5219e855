#pragma once

#include <QLabel>
#include <string_view>

namespace morlek {

/// The identity byte of the last file opened, in the lower right corner of the grid area.
class IdentityLabel : public QLabel {
  Q_OBJECT

 public:
  explicit IdentityLabel(QWidget* parent);

  /// Shows a text of the code page.
  void ShowByte(std::string_view byte_text);
};

}  // namespace morlek
