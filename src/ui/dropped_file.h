#pragma once

#include <QString>
#include <optional>

class QMimeData;

namespace morlek {

/// The path of the dropped file; nothing if it is a folder, a remote address or a text, or if there
/// are several.
[[nodiscard]] std::optional<QString> DroppedFile(const QMimeData& data);

}  // namespace morlek
