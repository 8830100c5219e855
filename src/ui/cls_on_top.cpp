#include "ui/cls_on_top.h"

#include <QWindow>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace morlek {
namespace {

void SetTopmost(QWindow& window, bool topmost) {
#ifdef Q_OS_WIN
  SetWindowPos(reinterpret_cast<HWND>(window.winId()), topmost ? HWND_TOPMOST : HWND_NOTOPMOST, 0,
               0, 0, 0, SWP_NOSIZE | SWP_NOMOVE);
#else
  // This flag changes the existing window; the widget's flag would create a new one.
  window.setFlag(Qt::WindowStaysOnTopHint, topmost);
#endif
}

}  // namespace

void clsOnTop::MakeTopmost(QWindow& window) { SetTopmost(window, true); }

void clsOnTop::MakeNotTopmost(QWindow& window) { SetTopmost(window, false); }

}  // namespace morlek
