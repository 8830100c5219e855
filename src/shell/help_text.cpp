#include "shell/help_text.h"

#include <QFile>

namespace morlek {

QString HelpText() {
  QFile file(":/help.txt");
  // It is part of the program. As text, whatever line ends it was built from.
  if (!file.open(QFile::ReadOnly | QFile::Text)) return {};
  return QString::fromUtf8(file.readAll()).chopped(1).replace('\n', "\r\n");
}

}  // namespace morlek
