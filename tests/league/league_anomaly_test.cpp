#include <cstdlib>

#include "league/image_writer.h"
#include "support/league_fixture.h"

namespace morlek {
namespace {

/// Runs the program again and again with one access to a file failing: that access alone, or all
/// from that one on. There are some 60,000 of them, most of which read a byte of a record or write
/// a character of a line: of these one in `kStride` stands for its neighbours.
class LeagueAnomalyTest : public LeagueTest {
 protected:
  template <typename Check>
  void FailEachAccess(const std::vector<std::string>& arguments, int reads, Check check) {
    constexpr int kStride = 4999;
    constexpr int kEdge = 35;
    const auto files = disk.files;
    disk.failing_access = kMany;
    Run(arguments);
    const int accesses = kMany - disk.failing_access;
    ASSERT_GT(accesses, reads);
    for (int access = 1; access <= accesses; ++access) {
      const bool is_edge =
          access < kEdge || std::abs(access - reads) < kEdge || access > accesses - kEdge;
      if (!is_edge && access % kStride != 0) continue;
      for (const bool from_then_on : {false, true}) {
        SCOPED_TRACE(testing::Message() << "access " << access << ", later too: " << from_then_on);
        disk.files = files;
        disk.failures = 0;
        disk.failing_access = access;
        disk.fails_from_then_on = from_then_on;
        EXPECT_EQ(Run(arguments), 3);
        EXPECT_GT(disk.failures, 0);
        disk.failing_access = 0;
        EXPECT_EQ(disk.open_files, 0);
        EXPECT_EQ(out, "");
        EXPECT_TRUE(messages_text.starts_with("morlek-league: ")) << messages_text;
        check();
        if (HasFailure()) return;
      }
    }
  }

  static constexpr int kMany = 1000000;
};

TEST_F(LeagueAnomalyTest, AnExportLeavesTheOldFileOrAWholeNewOne) {
  Exported();
  const int reads = static_cast<int>(disk.reads.size());
  for (const bool is_there : {false, true}) {
    disk.files.erase(kSeason);
    if (is_there) PutText(kSeason, "old");
    FailEachAccess({"export", "--force", kImage, kSeason}, reads, [&] {
      // Nothing is left beside it either.
      EXPECT_EQ(disk.files.size(), is_there ? 2U : 1U);
      EXPECT_TRUE(!is_there || TextOf(kSeason) == "old");
    });
  }
}

TEST_F(LeagueAnomalyTest, AnImportIsPutBackOrSaysWhatIsNot) {
  PutText(kSeason,
          "Team,Slot,Name,AVG,F\nBraves,2,Z.ZZZ,.300,1\nCubs,3,,.301,\nOrioles,16,Y.YY,,77\n");
  const std::vector<std::uint8_t> before = file();
  ASSERT_EQ(Run({"import", kSeason, kImage}), 0);
  ASSERT_GT(ChangesSince(before).size(), 10U);
  const int reads = static_cast<int>(disk.reads.size());
  file() = before;
  int left = 0;
  FailEachAccess({"import", kSeason, kImage}, reads, [&] {
    for (const ByteAccess& each : ChangesSince(before)) {
      ++left;
      const std::string named = "position " + std::to_string(each.position) + " was ";
      EXPECT_NE(messages_text.find(named), std::string::npos) << messages_text;
    }
    // One failure alone is always made good.
    EXPECT_TRUE(disk.fails_from_then_on || file() == before);
  });
  EXPECT_GT(left, 0) << "nothing was left half written";
}

TEST_F(LeagueAnomalyTest, WhatCannotBePutBackIsNamedByteByByte) {
  const Team* braves = FindTeam("Braves");
  const std::vector<ByteChange> changes = {
      {braves, 0, 0, 0x0B, 0x20}, {braves, 0, 1, 0x0C, 0x21}, {braves, 0, 2, 0x0B, 0x22}};
  // The disk takes the first two bytes, and from then on nothing; but it can be read again.
  disk.failing_access = 4;
  disk.fails_from_then_on = true;
  int opened = 0;
  whole_files.open = [&, open = disk.Opener()](const auto& path, auto mode) {
    if (++opened == 3) disk.failing_access = 0;
    return opened == 2 ? nullptr : open(path, mode);
  };
  const ImageWriteResult result = WriteIntoImage(whole_files, kImage, changes);
  EXPECT_EQ(result.left, (std::vector<LeftByte>{{kBraves, 0x0B, 0x20}, {kBraves + 1, 0x0C, 0x21}}));
}

TEST_F(LeagueAnomalyTest, ThePlaceOfAFileIsTakenByNothingElse) {
  PutText(kSeason, "old");
  EXPECT_EQ(Run({"export", kImage, kSeason}), 1);
  EXPECT_EQ(messages_text, "season.csv: this exists already; --force replaces it\n");
  EXPECT_EQ(TextOf(kSeason), "old");
  EXPECT_EQ(Run({"export", kImage, kSeason, "--force"}), 0);
  EXPECT_EQ(TextOf(kSeason), Exported());

  whole_files.look = [](const auto& /*path*/) { return Disk::Entry::kOther; };
  EXPECT_EQ(Run({"export", kImage, kSeason, "--force"}), 3) << "a device, say";

  // It comes into being while the image is read.
  int looks = 0;
  whole_files.look = [&looks](const auto& /*path*/) {
    return ++looks > 2 ? Disk::Entry::kFile : Disk::Entry::kNone;
  };
  PutText(kSeason, "new");
  EXPECT_EQ(Run({"export", kImage, kSeason}), 1);
  EXPECT_EQ(TextOf(kSeason), "new");
  EXPECT_EQ(disk.files.size(), 2U);
}

}  // namespace
}  // namespace morlek
