#pragma once

class QWindow;

namespace morlek {

/// Keeps a window above all others, or releases it again. Whether the system obeys is not checked;
/// Wayland knows no such request.
class clsOnTop {
 public:
  static void MakeTopmost(QWindow& window);
  static void MakeNotTopmost(QWindow& window);
};

}  // namespace morlek
