#pragma once

#include <QIcon>
#include <QStyle>

namespace morlek {

namespace theme {
struct Shades;
}

/// An icon of the toolkit's dialogs, all painted in one style: those of the file dialog, of files
/// and folders, of a question and of an error. Nothing for any other.
[[nodiscard]] QIcon DialogIcon(QStyle::StandardPixmap icon, const theme::Shades& shades);

}  // namespace morlek
