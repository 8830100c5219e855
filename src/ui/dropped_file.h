#pragma once

#include <QString>
#include <optional>

class QMimeData;

namespace morlek {

/// The path of the one file that is being dropped; nothing for a folder, several things, a remote
/// address or a text.
[[nodiscard]] std::optional<QString> DroppedFile(const QMimeData& data);

/// Whether files or folders of this machine are being dragged, however many.
[[nodiscard]] bool HoldsFiles(const QMimeData& data);

}  // namespace morlek
