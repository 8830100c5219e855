#include "shell/identity_label.h"

#include "shell/code_page_text.h"
#include "ui/twips.h"

namespace morlek {

IdentityLabel::IdentityLabel(QWidget* parent) : QLabel(parent) {
  setObjectName("Label3");
  setAccessibleName("identity byte");
  setToolTip("identity byte of the last file opened");
  setGeometry(FromTwips(6060), 635, FromTwips(555), 16);
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  setForegroundRole(QPalette::PlaceholderText);
}

void IdentityLabel::ShowByte(std::string_view byte_text) {
  setText(FromCodePage(byte_text));
  setAccessibleDescription(text());
}

}  // namespace morlek
