#pragma once

class QWindow;

namespace morlek {

/// Keeps a window above all others, or releases it again. Whether the system obeys is not checked;
/// Wayland knows no such request.
class clsOnTop {
 public:
  /// The window stands on the screen, or is about to, and is not made anew.
  static void MakeTopmost(QWindow& window);
  /// Back to its place among the others; does no harm to a window that is there already.
  static void MakeNotTopmost(QWindow& window);
};

}  // namespace morlek
