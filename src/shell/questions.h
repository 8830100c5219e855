#pragma once

#include <QString>
#include <optional>

namespace morlek {

class User;

/// What the main window asks and reports, word for word. Where a path is asked for, nothing means
/// that the dialog was cancelled.
[[nodiscard]] std::optional<QString> AskForImage(User& user);
[[nodiscard]] std::optional<QString> AskForTeamToImport(User& user);
[[nodiscard]] std::optional<QString> AskWhereToExport(User& user);

/// True when the person is sure.
[[nodiscard]] bool AskToQuit(User& user);

void TellOfExport(User& user, const QString& path);
void TellAboutProgram(User& user);

}  // namespace morlek
