#include "shell/player_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include "shell/code_page_text.h"
#include "textfile/player_text.h"

namespace morlek {
namespace {

constexpr char kPlayerType[] = "application/x-morlek-player";

}  // namespace

void CopyPlayer(const Player& player) {
  auto* data = new QMimeData;
  data->setText(FromCodePage(LineOf(player)));
  data->setData(kPlayerType, QByteArray::fromStdString(PackPlayer(player)));
  QGuiApplication::clipboard()->setMimeData(data);
}

std::optional<Player> CopiedPlayer(const Block& block) {
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  if (data == nullptr) return std::nullopt;
  if (data->hasFormat(kPlayerType)) return UnpackPlayer(data->data(kPlayerType).toStdString());
  return PlayerFromLine(block, ToCodePage(data->text()));
}

void CopyTeam(const RosterGrid& grid) {
  QGuiApplication::clipboard()->setText(FromCodePage(LinesOf(grid)));
}

}  // namespace morlek
