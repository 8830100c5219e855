#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

/// The one look of the program, light or dark as the desktop is, in a font that it brings along, so
/// that widths do not depend on the machine.
namespace morlek::theme {

/// The colours of everything that the program paints.
struct Shades {
  QColor window;
  QColor base;
  QColor odd_row;
  QColor line;
  QColor header_band;
  QColor header_text;
  QColor text;
  QColor faint_text;
  QColor accent;  // for rings and texts
  QColor fill;    // for what is filled with the accent colour, and selections
  QColor on_fill;
  QColor hover;
  QColor hover_ring;
  QColor focus_row;
  QColor stance_row;
  QColor lossy_mark;
  QColor critical;
  QColor tip;
  QColor tip_text;
  // Pictures are painted for a light background, which they keep in a dark window.
  QColor tile;
  QColor tile_text;
  QColor tile_faint_text;
  QColor marked_tile;
  QColor marked_tile_text;
  QColor badge_rim;
};

inline constexpr Shades kLight{
    .window = {0xf1, 0xf3, 0xf6},
    .base = {0xff, 0xff, 0xff},
    .odd_row = {0xf7, 0xf9, 0xfc},
    .line = {0xcb, 0xd2, 0xdc},
    .header_band = {0xe4, 0xe9, 0xf0},
    .header_text = {0x47, 0x55, 0x69},
    .text = {0x1b, 0x22, 0x2d},
    .faint_text = {0x5b, 0x67, 0x79},
    .accent = {0x1f, 0x5f, 0xd0},
    .fill = {0x1f, 0x5f, 0xd0},
    .on_fill = {0xff, 0xff, 0xff},
    .hover = {0xdb, 0xe8, 0xff},
    .hover_ring = {0x50, 0x7f, 0xd2},
    .focus_row = {0xee, 0xf4, 0xff},
    .stance_row = {0xff, 0xf5, 0xdb},
    .lossy_mark = {0xd3, 0x2f, 0x2f},
    .critical = {0xc6, 0x28, 0x28},
    .tip = {0x1b, 0x22, 0x2d},
    .tip_text = {0xff, 0xff, 0xff},
    .tile = {0xff, 0xff, 0xff},
    .tile_text = {0x1b, 0x22, 0x2d},
    .tile_faint_text = {0x47, 0x55, 0x69},
    .marked_tile = {0xdb, 0xe8, 0xff},
    .marked_tile_text = {0x1f, 0x5f, 0xd0},
    .badge_rim = {0x00, 0x00, 0x00, 0x00},
};

inline constexpr Shades kDark{
    .window = {0x1b, 0x20, 0x29},
    .base = {0x24, 0x2b, 0x36},
    .odd_row = {0x29, 0x31, 0x3d},
    .line = {0x3f, 0x4a, 0x5b},
    .header_band = {0x31, 0x3b, 0x4a},
    .header_text = {0xb6, 0xc2, 0xd2},
    .text = {0xe8, 0xed, 0xf4},
    .faint_text = {0x9d, 0xab, 0xbd},
    .accent = {0x7f, 0xb0, 0xff},
    .fill = {0x2f, 0x66, 0xc9},
    .on_fill = {0xff, 0xff, 0xff},
    .hover = {0x2c, 0x40, 0x68},
    .hover_ring = {0x6a, 0x93, 0xdc},
    .focus_row = {0x26, 0x36, 0x5a},
    .stance_row = {0x45, 0x3b, 0x1d},
    .lossy_mark = {0xff, 0x6b, 0x64},
    .critical = {0xd0, 0x33, 0x2f},
    .tip = {0x3d, 0x48, 0x58},
    .tip_text = {0xf2, 0xf5, 0xf9},
    .tile = {0xd3, 0xdb, 0xe6},
    .tile_text = {0x1b, 0x22, 0x2d},
    .tile_faint_text = {0x36, 0x44, 0x57},
    .marked_tile = {0xee, 0xf4, 0xff},
    .marked_tile_text = {0x1b, 0x55, 0xbd},
    .badge_rim = {0x8a, 0x98, 0xac},
};

/// The shades that go with a palette: the dark ones where its windows are dark.
[[nodiscard]] const Shades& ShadesOf(const QPalette& palette);

/// The shades as the colours of every part of every window, dialogs and menus included.
[[nodiscard]] QPalette PaletteOf(const Shades& shades);

/// Makes the embedded font known to the program; call once, before Font. If that fails, texts are
/// shown in a font of the system.
void LoadFonts();

/// The size of texts that have no reason for another, in logical pixels.
inline constexpr int kFontPixels = 12;

/// The program's font at a size in logical pixels, 1 or more.
[[nodiscard]] QFont Font(int pixel_size, QFont::Weight weight = QFont::Normal);

}  // namespace morlek::theme
