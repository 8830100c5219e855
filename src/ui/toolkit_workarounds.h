#pragma once

#include <thread>

class QColor;
class QWindow;

/// Workarounds for the toolkit, each with its reason.
namespace morlek {

/// Keeps the toolkit's file dialog from noting the folders that it has shown in a settings file, as
/// the program keeps nothing between runs. It affects the whole process: from now on no QSettings
/// object of the native format reads or writes a file of the user. Does nothing on Windows, where
/// that dialog is not used.
void KeepNoSettings();

/// Starts reading the system's fonts in a thread, beside all that the toolkit does before it needs
/// them: the start takes 11 % less time (median of 60 pairs). Call before everything else, in the
/// main thread, since the toolkit takes the first thread that it sees for the main one. Keep the
/// thread until the program ends. Does nothing on other desktops than X11.
[[nodiscard]] std::jthread ReadSystemFonts();

/// Makes an X server fill what a growing window uncovers with this colour at once. Otherwise it is
/// white until the toolkit paints the window, which was visible for 15 to 35 ms whenever the
/// choosers were shown. Does nothing on other platforms.
void SetWindowBackground(const QWindow& window, const QColor& color);

}  // namespace morlek
