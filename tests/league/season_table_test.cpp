#include <array>

#include "support/league_fixture.h"

namespace morlek {
namespace {

TEST_F(LeagueTest, AnExportHasEveryPlayerAsTheEditorShowsHim) {
  const std::string table = Exported();
  EXPECT_TRUE(table.starts_with(
      "Team,Slot,Name,P,#,Hand,Bt,Po,Sp,Fd,AVG,HR,RBI,ERA,Co,Fa,W,L,S,F,Bo,Legs\r\n"
      "Braves,1,A.BA,P,1,R,1,1,4,2,.250,30,60,,,,,,,20,40,0\r\n"));
  EXPECT_NE(table.find("\r\nBraves,16,P.BP,CF,16,LS>,,,6,,,,,2.00,7,1,105,135,165,2F,4F,F\r\n"),
            std::string::npos);
  EXPECT_EQ(std::ranges::count(table, '\n'), 701);
  EXPECT_LT(table.find("\nBlue Jays,25,"), table.size());
  EXPECT_TRUE(disk.writes.empty());
}

TEST_F(LeagueTest, WhatNoCodecKnowsIsEmptyAndStays) {
  // Position, side, both ratings, average and a letter of batter 2; marks of pitcher 16, whose hand
  // alone cannot be told.
  Poke({{1, 9, 0x17},
        {1, 13, 0x12},
        {1, 11, 0x3A},
        {1, 12, 0xB2},
        {1, 24, 0xFF},
        {1, 25, 0xFF},
        {1, 5, 0x25},
        {15, 23, 0x77}});
  const std::vector<std::uint8_t> before = file();
  const std::string table = Exported();
  EXPECT_NE(table.find("\r\nBraves,2,,,2,,4,,,3,,31,61,"), std::string::npos);
  EXPECT_NE(table.find("\r\nBraves,16,P.BP,CF,16,,,,6,"), std::string::npos);

  // What is unknown can be given, a pair of ratings together only.
  EXPECT_EQ(Import("Team,Slot,Bt,P\nBraves,2,5,C\n"), 1);
  EXPECT_EQ(
      messages_text,
      "-: line 2: Braves 2, Bt \"5\": Bt and Po share a byte, and Po is not 1 to 9; Bt takes 1 "
      "to 10\nmorlek-league: 1 cell is refused; the image is as it was\n");
  EXPECT_EQ(file(), before);
  EXPECT_EQ(Import("Team,Slot,Bt,Po,P,Hand\nBraves,2,5,6,C,L\nBraves,16,,,,RS\n"), 0);
  EXPECT_EQ(out, "5 cells of 2 players changed\n");
  EXPECT_EQ(ChangesSince(before), (std::vector<ByteAccess>{{kBraves + 32 + 9, 0x02},
                                                           {kBraves + 32 + 11, 0x45},
                                                           {kBraves + 32 + 13, 0x11},
                                                           {kBraves + 15 * 32 + 21, 0x02},
                                                           {kBraves + 15 * 32 + 23, 0x01}}));
}

TEST_F(LeagueTest, ColumnsAreFoundByTheirHeadsAndWhatIsMissingChangesNothing) {
  const std::vector<std::uint8_t> before = file();
  const std::vector<ByteAccess> changes = {{kBraves + 2 * 32 + 24, 0x2C},
                                           {kBraves + 2 * 32 + 25, 0x31},
                                           {kBraves + 16 * 32 + 28, 0x5E},
                                           {kBraves + 16 * 32 + 29, 0x21}};
  for (const char* table : {"AVG,Slot,ERA,Team\n.300,3,,Braves\n,17,3.5,Braves\n",
                            "\xEF\xBB\xBF"
                            "team;SLOT;avg;era;;Name\r\n\r\nBraves;3;0,3\r\n"
                            "Braves;17;;3,50;;Q.bq\r\n;;;;;;;\r\n",
                            "Slot\tTeam\tERA\tAVG\r17\t\"Braves\"\t3,5\t\r3\tBraves\t\t,3"}) {
    file() = before;
    EXPECT_EQ(Import(table), 0) << messages_text;
    EXPECT_EQ(ChangesSince(before), changes) << table;
    EXPECT_EQ(out, "2 cells of 2 players changed\n");
  }
}

TEST_F(LeagueTest, WhatTheGameCannotHoldIsListedAndNothingIsWritten) {
  const std::string table =
      "Team,Slot,Name,P,#,Hand,Bt,Po\n"
      "Braves,2,J..SMITH,XX,,X,,\n"
      "Braves,3,JSMITH,C,9,,10,10\n"
      "Braves,4,A.TOOLONGNAME,C,,,,\n"
      "Braves,5,O.K,1B,,,,\n"
      "Braves,16,\xC3\x91"
      ".PEA,,,RX,,\n";
  const std::string no_room = "the game cannot hold it";
  const std::string name = "an initial, a period and up to 8 letters A to Z";
  // clang-format off
  const std::vector<std::array<std::string, 5>> refused = {
      {"4: Braves 4 D.BD", "Name", "A.TOOLONGNAME", "the name is too long", name},
      {"2: Braves 2 B.BB", "Name", "J..SMITH", "a second period stands in the name", name},
      {"2: Braves 2 B.BB", "P", "XX", no_room, "P, C, 1B, 2B, 3B, SS, LF, CF, RF, IF, OF, DH"},
      {"2: Braves 2 B.BB", "Hand", "X", no_room, "R, L or S"},
      {"3: Braves 3 C.BC", "Name", "JSMITH", "no period follows the initial", name},
      {"3: Braves 3 C.BC", "Bt", "10", "Bt and Po share a byte, and Po is not 1 to 9", "1 to 10"},
      {"3: Braves 3 C.BC", "Po", "10", no_room, "1 to 9"},
      {"6: Braves 16 P.BP", "Name", "\xC3\x91" ".PEA",
       "character 1 is no letter that the game has", name},
      {"6: Braves 16 P.BP", "Hand", "RX", no_room,
       "R or L, alone or with S, S<, S>, < or > behind it"}};
  // clang-format on
  std::string expected;
  for (const auto& [player, column, text, why, takes] : refused) {
    expected += "-: line " + player + ", " + column + " \"" + text + "\": " + why + "; " + column +
                " takes " + takes + "\n";
  }
  const std::vector<std::uint8_t> before = file();
  EXPECT_EQ(Import(table), 1);
  EXPECT_EQ(messages_text,
            expected + "morlek-league: 9 cells are refused; the image is as it was\n");
  EXPECT_EQ(out, "");
  EXPECT_TRUE(disk.writes.empty());
  EXPECT_EQ(file(), before);
}

TEST_F(LeagueTest, WhatIsNoSeasonIsRefusedWithTheNumberOfTheLine) {
  const std::string headers = "Team,Slot,AVG,ERA\n";
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"", "line 1: the file holds no table"},
      {"\n\n", "line 3: the file holds no table"},
      {"Dear Sir,\nplease find\n",
       "line 1: this is no season: no columns are headed Team and Slot"},
      {"Team,AVG\n", "line 1: no column is headed Slot"},
      {"\nSlot\n", "line 2: no column is headed Team"},
      {"Team,Slot,AVG,slot\n", "line 1: two columns are headed \"slot\""},
      {"Team,Slot,Avg.\n", "line 1: no column of a season is headed \"Avg.\""},
      {headers + "Braves,26,.300,\n", "line 2: \"26\" is no slot; slots are 1 to 25"},
      {headers + "Braves,01,.300,\n", "line 2: \"01\" is no slot; slots are 1 to 25"},
      {headers + "\n,,,\nBrave,1,.300,\n", "line 4: no team is called \"Brave\""},
      {headers + "Braves,1,.300,\nCubs,1,.300,\nBraves,1,,\n",
       "line 4: Braves 1 stands on line 2 already"},
      {headers + "Braves,16,.300,3.00\n",
       "line 2: Braves 16 is a pitcher, who has no AVG; \".300\" "
       "stands there"},
      {headers + "Braves,1,.300,,x\n", "line 2: \"x\" stands in a column without a head"},
      {headers + "Braves,1,\".300,\nBraves,2,.300,\n",
       "line 2: quotes begin on this line and do not "
       "end"},
      {headers + "Braves,1,\".300\"0,\n", "line 2: something stands behind the end of quotes"},
      {headers + std::string("Braves,1,\0,\n", 12),
       "line 2: a NUL character stands here; save the table as text in UTF-8"},
      {headers + std::string(300, 'x'), "line 2: a cell is longer than 255 characters"},
      {headers + std::string(300, ','), "line 2: there are more than 256 columns"},
      {headers + "\x1B[2J" + std::string(60, 'x') + ",1\n",
       "line 2: no team is called \"?[2J" + std::string(36, 'x') + "...\""},
  };
  const std::vector<std::uint8_t> before = file();
  for (const auto& [table, message] : cases) {
    EXPECT_EQ(Import(table), 1) << table;
    EXPECT_EQ(messages_text, "-: " + message + "\n");
    EXPECT_EQ(out, "");
  }
  EXPECT_EQ(file(), before);

  std::string much = headers;
  for (int line = 0; line < 100000; ++line) much += "nobody,1,,\n";
  EXPECT_EQ(Import(much), 1);
  EXPECT_EQ(std::ranges::count(messages_text, '\n'), 101);
}

TEST_F(LeagueTest, DifferencesAreNamedByTeamAndPlayer) {
  const std::vector<std::uint8_t> before = file();
  disk.files["other.smc"] = before;
  EXPECT_EQ(Run({"diff", kImage, "other.smc"}), 0);
  EXPECT_EQ(out, "");
  Poke({{4, 24, 0x2C}, {4, 25, 0x31}, {6, 0, 0x0B}, {6, 9, 0x17}, {8, 2, 0x36}, {8, 18, 0x01}});
  Poke({{20, 30, 0}}, kOrioles);
  const std::string changes =
      "Braves 5 E.BE: AVG .254 -> .300\n"
      "Braves 7 G.BG: name G.BG -> A.BG\n"
      "Braves 7 G.BG: P SS -> ?\n"
      "Braves 9 I.BI: name I.BI -> I.Bc\n"
      "Orioles 21 U.BU: S 170 -> 0\n";
  EXPECT_EQ(Run({"diff", "other.smc", kImage}), 1);
  EXPECT_EQ(out, changes);

  // Where a table says nothing, nothing differs.
  const std::string table = Exported();
  std::string known = changes;
  known.erase(known.find("Braves 7 G.BG: P"), 25);
  EXPECT_EQ(Run({"diff", "other.smc", "-"}, table), 1);
  EXPECT_EQ(out, known);
  EXPECT_EQ(Run({"diff", "-", kImage}, "Team,Slot,Name,P\nBraves,9,I.BC\nBraves,7,a.bg,C\n"), 1);
  EXPECT_EQ(out, "Braves 7 a.bg: P C -> ?\n");
  PutText(kSeason, "Team,Slot,AVG\nBraves,5,0.3\n");
  EXPECT_EQ(Run({"diff", kSeason, kImage}), 0);
  EXPECT_EQ(Run({"import", "--dry-run", kSeason, "other.smc"}), 0);
  EXPECT_EQ(out, "Braves 5 E.BE: AVG .254 -> .300\n1 cell of 1 player would change\n");
  EXPECT_EQ(disk.files.at("other.smc"), before);
}

TEST_F(LeagueTest, AnotherGamesImageIsRefused) {
  const std::string identity =
      "game.smc: this is not the image of the game: the byte at position "
      "988297 is 5A and not 3C";
  file().at(988296) = 0x5A;
  PutText(kSeason, "Team,Slot,AVG\nBraves,5,0.3\n");
  const auto expect_refusals = [&](const std::string& message) {
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"export", kImage},
                                                      {"import", kSeason, kImage},
                                                      {"diff", kSeason, kImage}}) {
      EXPECT_EQ(Run(arguments), 1);
      EXPECT_EQ(messages_text, message);
      EXPECT_TRUE(disk.writes.empty());
    }
  };
  expect_refusals(identity + "\n");
  file().resize(file().size() - 512);
  expect_refusals(identity +
                  "; by its size the 512 bytes in front are missing that a copier puts there\n");

  // An import never makes an image longer.
  file().at(988296) = 0x3C;
  file().resize(1289663);
  EXPECT_EQ(Run({"import", kSeason, kImage}), 1);
  EXPECT_EQ(messages_text,
            "game.smc: the image ends at byte 1289663, before the last team does at "
            "1289664\n");
  file().push_back(0);
  EXPECT_EQ(Run({"import", kSeason, kImage}), 0);
}

}  // namespace
}  // namespace morlek
