#pragma once

class QWindow;

namespace morlek {

/// Keeps a window above all others, or releases it again. Whether the system obeys is not checked;
/// Wayland has no such request.
class clsOnTop {
 public:
  /// The window is on the screen or about to be. It is not re-created.
  static void MakeTopmost(QWindow& window);
  /// Harmless for a window that is not topmost.
  static void MakeNotTopmost(QWindow& window);
};

}  // namespace morlek
