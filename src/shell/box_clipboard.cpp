#include "shell/box_clipboard.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include "shell/code_page_text.h"
#include "team/roster_grid.h"
#include "textfile/pasted_block.h"

namespace morlek {
namespace {

/// The clipboard of the last selection, on desktops that have one.
std::optional<QClipboard::Mode> SelectionClipboard() {
  if (!QGuiApplication::clipboard()->supportsSelection()) return std::nullopt;
  return QClipboard::Selection;
}

}  // namespace

ClipboardText ReadClipboard(QClipboard::Mode clipboard) {
  std::string text = ToCodePage(QGuiApplication::clipboard()->text(clipboard));
  if (IsBlock(text)) return {.text = std::move(text), .is_block = true};
  return {.text = std::string(WithoutLastLineBreak(text).substr(0, kLongestText))};
}

std::optional<QClipboard::Mode> PastingClipboard(const QKeyEvent& key) {
  const bool is_selection_key =
      key.key() == Qt::Key_Insert && key.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
  if (is_selection_key && SelectionClipboard()) return SelectionClipboard();
  if (key.matches(QKeySequence::Paste)) return QClipboard::Clipboard;
  return std::nullopt;
}

std::optional<QClipboard::Mode> PastingClipboard(const QMouseEvent& release) {
  return release.button() == Qt::MiddleButton ? SelectionClipboard() : std::nullopt;
}

}  // namespace morlek
