#pragma once

#include <thread>

class QColor;
class QWindow;

/// What the program does behind the toolkit's back, each with its reason.
namespace morlek {

/// Keeps the toolkit's file dialog from noting the folders that it has shown in a settings file, as
/// the program keeps nothing between runs. It works on the whole process: no QSettings object of
/// the native format reads or writes a file of the user from now on. Does nothing on Windows, where
/// that dialog is not used.
void KeepNoSettings();

/// Starts reading the system's fonts in a thread, beside all that the toolkit does before it needs
/// them: the start takes 11 % less time (median of 60 pairs). Call first of all, in the main
/// thread, since the toolkit takes the first thread that it meets for that one. Keep the thread
/// until the program ends. Elsewhere than on an X11 desktop it does nothing.
[[nodiscard]] std::jthread ReadSystemFonts();

/// Has an X server fill what a growing window uncovers with this colour at once. The toolkit leaves
/// it white until the window is painted, which was seen for 15 to 35 ms whenever the choosers came
/// into view. Does nothing on other platforms.
void SetWindowBackground(const QWindow& window, const QColor& color);

}  // namespace morlek
