#include "shell/help_text.h"

#include <QStringList>

namespace morlek {

QString HelpText() {
  const QStringList lines = {
      "::::::::::::::",
      "MORLEK EDITOR",
      "::::::::::::::",
      "Made by the Morlek Editor developers",
      "",
      "",
      "INTRODUCTION",
      "------------",
      "The Morlek Editor edits the cartridge image of Dale Harrow Jr. Baseball for the SNES. It "
      "can "
      "edit player names, numbers, positions, statistics, skin color and batting stances.",
      "",
      "KNOWN BUGS",
      "----------",
      "There are some bugs, so you should always keep a backup copy of the image that you are "
      "editing.",
      "",
      "HOW TO USE",
      "----------",
      "Using the Morlek Editor is simple.",
      "",
      "OPEN A ROM- When the editor starts it asks you for the image, whose extension is \".smc\".",
      "",
      "SELECT A TEAM- Click a team icon in the toolbar. The tool tip of each icon names its team.",
      "",
      "EDIT PLAYER NUMBER- Click a number and type a new one. The tab key moves through numbers "
      "and "
      "names.",
      "",
      "EDIT PLAYER NAME- Click a name and type a new one. Each team is allotted a certain number "
      "of "
      "characters for names, and if you exceed it the program tells you by how many letters to "
      "shorten the names. The tab key moves through numbers and names.",
      "",
      "EDIT BATTING STANCE- Click in the face, body and legs boxes, then click the picture of the "
      "face, body or legs that you want.",
      "",
      "SAVE EDITS- Click the \"SAVE\" button. Save often, and always before you select a different "
      "team, or your changes are lost.",
      "",
      "FILE MENU- Here you can open another image or exit. Opening a new image closes the current "
      "one. Only one image can be open at a time.",
      "",
      "Options Menu- In the Help menu you can view this help file, also with the hotkey CTRL-H. "
      "Use "
      "the scroll bars to navigate it. It closes with the close button at the bottom.",
      "",
      "IMPORT TEAM DATA- Imports a team from a text file whose data are separated by commas, each "
      "line ending in a comma. The suggested way is to export a team first, edit it in a text "
      "editor, and import it again.",
      "",
      "EXPORT TEAM DATA- Exports the current team to a text file.",
      "",
      "MINIMIZE PLAYER FEATURES- Minimizes the player features pictures on the right side of the "
      "program.",
      "",
      "ALWAYS ON TOP- Keeps the editor on top of all other applications. \"Not always on top\" in "
      "the menu undoes it.",
      "",
      "",
      "DOUBLE CLICK TO CLOSE HELP",
  };
  return lines.join("\r\n");
}

}  // namespace morlek
