#include "cli/run.h"

#include <string_view>

#include "support/league_fixture.h"

namespace morlek {
namespace {

TEST_F(LeagueTest, EveryHelpFitsAScreenAndShowsAnExample) {
  for (const std::vector<std::string>& arguments : {std::vector<std::string>{"--help"},
                                                    {"export", "--help"},
                                                    {"import", "x", "-h"},
                                                    {"diff", "--help"}}) {
    EXPECT_EQ(Run(arguments), 0);
    EXPECT_EQ(messages_text, "");
    EXPECT_NE(out.find("xample"), std::string::npos);
    EXPECT_LE(std::ranges::count(out, '\n'), 23);  // and the prompt
    std::istringstream lines(out);
    for (std::string line; std::getline(lines, line);) EXPECT_LT(line.size(), 81U) << line;
  }
  EXPECT_EQ(Run({"--version"}), 0);
  EXPECT_TRUE(out.starts_with("morlek-league ")) << out;
  EXPECT_TRUE(out.ends_with("\n") && !out.ends_with("\n\n"));
}

TEST_F(LeagueTest, WrongCallsSayWhy) {
  const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
      {{}, "a command is missing"},
      {{"improt", "a"}, "no command is called improt"},
      {{"export"}, "IMAGE is required"},
      {{"import", "a"}, "IMAGE is required"},
      {{"diff", "a"}, "OTHER is required"},
      {{"diff", "a", "b", "c"}, "The following argument was not expected: c"},
      {{"export", "a", "--fore"}, "The following argument was not expected: --fore"},
      {{"diff", "-", "-"}, "standard input can be read only once"},
  };
  for (const auto& [arguments, why] : cases) {
    EXPECT_EQ(Run(arguments), 2) << why;
    EXPECT_EQ(messages_text,
              "morlek-league: " + why + "\nmorlek-league --help shows how it is called.\n");
    EXPECT_EQ(out, "");
  }
}

TEST_F(LeagueTest, FilesThatCannotBeOpenedAreNamed) {
  for (const std::vector<std::string>& arguments : {std::vector<std::string>{"export", "none"},
                                                    {"diff", "none", kImage},
                                                    {"diff", kImage, "none"},
                                                    {"import", "none", kImage}}) {
    EXPECT_EQ(Run(arguments), 3);
    EXPECT_EQ(messages_text, "morlek-league: none: could not be opened for reading\n");
  }
  // It vanishes, or cannot be written, once it has been read.
  whole_files.open = [open = disk.Opener()](const auto& path, auto mode) {
    return (mode & std::ios_base::out) != 0 ? nullptr : open(path, mode);
  };
  EXPECT_EQ(Import("Team,Slot,AVG\nBraves,1,.300\n"), 3);
  EXPECT_EQ(messages_text, "morlek-league: game.smc: could not be opened for writing\n");
  EXPECT_EQ(Run({"export", kImage, "a.csv"}), 3);
  EXPECT_EQ(messages_text, "morlek-league: a.csv: could not be created\n");
  EXPECT_EQ(Run({"export", kImage}), 0) << "nothing is written into what is exported";
}

TEST_F(LeagueTest, StandardOutputThatIsFullIsReported) {
  std::istringstream in;
  std::ostringstream full;
  full.setstate(std::ios_base::badbit);
  std::ostringstream messages_stream;
  EXPECT_EQ(cli::Run({"export", kImage}, whole_files, {in, full, messages_stream}),
            cli::ExitStatus::kFileFailure);
  EXPECT_EQ(messages_stream.str(), "morlek-league: standard output could not be written\n");
}

}  // namespace
}  // namespace morlek
