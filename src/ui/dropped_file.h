#pragma once

#include <QString>
#include <optional>

class QMimeData;

namespace morlek {

/// The path of the one file that is being dropped; nothing for a folder, several things, a remote
/// address or a text.
[[nodiscard]] std::optional<QString> DroppedFile(const QMimeData& data);

}  // namespace morlek
