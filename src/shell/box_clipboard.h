#pragma once

#include <QClipboard>
#include <optional>
#include <string>

class QKeyEvent;
class QMouseEvent;

namespace morlek {

/// What a clipboard holds for a text box.
struct ClipboardText {
  std::string text;       // in the code page
  bool is_block = false;  // of cells, unchanged; else one value, without the line break at its end
};

/// What a paste from a clipboard brings; an empty text when there is none.
[[nodiscard]] ClipboardText ReadClipboard(QClipboard::Mode clipboard);

/// The clipboard from which a key that is pressed pastes, or nothing when it does not paste.
[[nodiscard]] std::optional<QClipboard::Mode> PastingClipboard(const QKeyEvent& key);

/// The clipboard from which a mouse button that is released pastes, or nothing when it does not
/// paste.
[[nodiscard]] std::optional<QClipboard::Mode> PastingClipboard(const QMouseEvent& release);

}  // namespace morlek
