// Paints the program's icon as files in all the sizes that packages need.

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <iostream>

#include "art/title_art.h"

int main(int argument_count, char** argument_values) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argument_count, argument_values);
  const QStringList arguments = QGuiApplication::arguments();
  if (arguments.size() != 2) {
    std::cerr << "usage: paint_icons OUTPUT_DIR\n";
    return 2;
  }
  for (const int size : {16, 32, 48, 64, 128, 256}) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    morlek::PaintAppIcon(painter, image.rect());
    painter.end();
    const QString path = QDir(arguments[1]).filePath(QString("%1.png").arg(size));
    if (!image.save(path)) {
      std::cerr << "paint_icons: cannot write " << path.toStdString() << '\n';
      return 1;
    }
  }
  return 0;
}
