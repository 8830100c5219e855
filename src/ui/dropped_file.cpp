#include "ui/dropped_file.h"

#include <QFileInfo>
#include <QMimeData>
#include <QUrl>
#include <algorithm>

namespace morlek {

std::optional<QString> DroppedFile(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  if (urls.size() != 1 || !urls.front().isLocalFile()) return std::nullopt;
  const QString path = urls.front().toLocalFile();
  if (!QFileInfo(path).isFile()) return std::nullopt;
  return path;
}

bool HoldsFiles(const QMimeData& data) {
  return std::ranges::any_of(data.urls(), &QUrl::isLocalFile);
}

}  // namespace morlek
