#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

/// The one look of the program: light whatever the system's colours are, in a font that it brings
/// along, so that widths do not depend on the machine.
namespace morlek::theme {

inline constexpr QColor kWindow{0xf1, 0xf3, 0xf6};
inline constexpr QColor kBase{0xff, 0xff, 0xff};
inline constexpr QColor kOddRow{0xf7, 0xf9, 0xfc};
inline constexpr QColor kLine{0xcb, 0xd2, 0xdc};
inline constexpr QColor kHeaderBand{0xe4, 0xe9, 0xf0};
inline constexpr QColor kHeaderText{0x47, 0x55, 0x69};
inline constexpr QColor kText{0x1b, 0x22, 0x2d};
inline constexpr QColor kFaintText{0x64, 0x70, 0x82};
inline constexpr QColor kAccent{0x1f, 0x5f, 0xd0};
inline constexpr QColor kHover{0xdb, 0xe8, 0xff};
inline constexpr QColor kHoverRing{0x7d, 0xa4, 0xe6};
inline constexpr QColor kFocusRow{0xee, 0xf4, 0xff};
inline constexpr QColor kStanceRow{0xff, 0xf5, 0xdb};
inline constexpr QColor kUnsavedText = kAccent;
inline constexpr QColor kUnkeptMark{0xd3, 0x2f, 0x2f};
inline constexpr QColor kCritical{0xc6, 0x28, 0x28};

/// Colours for every part of every window, dialogs and menus included.
[[nodiscard]] QPalette Palette();

/// Makes the embedded font known to the program; call once, before Font. Should that fail, texts
/// stand in a font of the system.
void LoadFonts();

/// The program's font at a size in logical pixels, 1 or more.
[[nodiscard]] QFont Font(int pixel_size, QFont::Weight weight = QFont::Normal);

}  // namespace morlek::theme
