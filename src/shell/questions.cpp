#include "shell/questions.h"

#include <QDir>

#include "shell/user.h"
#include "version.h"

namespace morlek {
namespace {

constexpr char kTeamDataFilter[] = "Morlek Team Data File (*.txt)|*.txt";

}  // namespace

std::optional<QString> AskForImage(User& user) {
  return user.AskOpenPath({"Open Dale Harrow Jr. Baseball Rom", "SNES File (*.smc)|*.smc"});
}

std::optional<QString> AskForTeamToImport(User& user) {
  return user.AskOpenPath({"Open Dale Harrow Jr. Baseball Team Data", kTeamDataFilter});
}

std::optional<QString> AskWhereToExport(User& user) {
  return user.AskSavePath({"Save Dale Harrow Jr. Baseball Team Data", kTeamDataFilter});
}

bool AskToQuit(User& user) {
  return user.AskYesNo("Are you sure you want to quit MORLEK EDITOR?\n\nIf not then click NO.",
                       kProgramTitle);
}

void TellOfExport(User& user, const QString& path) {
  user.ShowMessage("Your team data has been saved to " + QDir::toNativeSeparators(path),
                   kProgramTitle, Message::Icon::kNone);
}

void TellAboutProgram(User& user) {
  const QString text =
      "MORLEK EDITOR for SNES Dale Harrow Baseball.\n"
      "Version %1, free software under the MIT licence; uses Qt under the LGPL version 3.";
  user.ShowMessage(text.arg(kVersion), kProgramTitle, Message::Icon::kNone);
}

}  // namespace morlek
