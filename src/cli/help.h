#pragma once

#include <string_view>

namespace morlek::cli {

// What --help shows: at most 24 lines of 80 characters each, so that it fits any screen.

inline constexpr std::string_view kHelp =
    R"(Carries the teams of a Dale Harrow Jr. Baseball image to one table and back.

  morlek-league export IMAGE [FILE]   write the season to a table
  morlek-league import FILE IMAGE     take the season from a table
  morlek-league diff ONE OTHER        show what differs

  morlek-league COMMAND --help        what a command does in detail
  morlek-league --version             the version

The table has a line for each of the 700 players and can be edited in any
spreadsheet. Examples:

  morlek-league export game.smc season.csv
  morlek-league diff game.smc season.csv
  morlek-league import season.csv game.smc

The exit status is 0 when all is done, 1 when something is refused (or, for
diff, differs), 2 when the arguments are wrong, and 3 when a file cannot be
opened, read or written.
)";

inline constexpr std::string_view kExportHelp =
    R"(morlek-league export [--force] IMAGE [FILE]

Writes all 28 teams of IMAGE to FILE as a table: comma-separated, in UTF-8, with
a line of headers and then one line for each player. Without FILE, or when it is
"-", the table goes to standard output. IMAGE is only read.

A cell is empty when the player has no such column, and when the game's byte
there means nothing that is known.

  --force   replace FILE when it exists already
  --help    show this

Example:

  morlek-league export game.smc season.csv
)";

inline constexpr std::string_view kImportHelp =
    R"(morlek-league import [--dry-run] FILE IMAGE

Writes into IMAGE what the table FILE changes, and nothing else. When FILE is
"-", the table comes from standard input. Columns are found by their headers, in
any order; commas, semicolons or tabs may separate them. A column or line that
is missing, or an empty cell, changes nothing.

When the game cannot hold a text, nothing at all is written, and every such cell
is listed with its line. A write that fails is put back.

  --dry-run   list what would change, and write nothing
  --help      show this

Keep a backup copy of the image. Example:

  cp game.smc backup.smc
  morlek-league import --dry-run season.csv game.smc
  morlek-league import season.csv game.smc
)";

inline constexpr std::string_view kDiffHelp =
    R"(morlek-league diff ONE OTHER

Shows what differs between two seasons, one line for each cell. ONE and OTHER
are each an image or a table; one of them may be "-", a table from standard
input. Where a table says nothing, nothing differs. A "?" stands for a byte of
an image that means nothing that is known.

The exit status is 0 when nothing differs and 1 when something does.

  --help   show this

Example:

  morlek-league diff last-year.smc this-year.smc
  Braves 5 W.DELGADO: AVG .211 -> .250
)";

}  // namespace morlek::cli
