#include <iterator>

#include "editor/editor.h"
#include "support/editor_fixture.h"
#include "textfile/team_export.h"
#include "textfile/team_import.h"

namespace morlek {
namespace {

constexpr char kText[] = "team.txt";

/// Runs an operation again and again, with its first, second, ... file access failing, until it
/// gets through; each time that access alone and then all from that one on.
class AnomalyTest : public TeamTest {
 protected:
  template <typename Prepare, typename Operation, typename Check>
  void FailEachAccess(Prepare prepare, Operation operation, Check check) {
    for (const bool from_then_on : {false, true}) {
      access = 0;
      int failed_closes = 0;
      do {
        ++access;
        SCOPED_TRACE(testing::Message() << "access " << access << ", later too: " << from_then_on);
        prepare();
        disk.writes.clear();
        messages.shown.clear();
        disk.failures = 0;
        disk.failed_closes = 0;
        disk.failing_access = access;
        disk.fails_from_then_on = from_then_on;
        operation();
        disk.failing_access = 0;
        check();
        failed_closes += disk.failed_closes;
      } while (disk.failures > 0 && !HasFailure());
      EXPECT_GT(access, 2) << "nothing was made to fail";
      EXPECT_GT(failed_closes, 0) << "no close was made to fail";
    }
  }

  /// What has been read is there, even if the close fails then.
  [[nodiscard]] bool read_failed() const { return disk.failures > disk.failed_closes; }

  int access = 0;
};

TEST_F(AnomalyTest, IdentityCheck) {
  Editor editor(messages, disk.Opener());
  OpenResult result{};
  const auto exports = [&] { return editor.ExportTeam(kText) == ExportResult::kWritten; };
  for (const bool is_first : {true, false}) {
    FailEachAccess([] {},
                   [&] {
                     result =
                         is_first ? editor.OpenFirstImage(kImage) : editor.OpenAnotherImage(kImage);
                   },
                   [&] {
                     const bool failed = read_failed();
                     const bool is_held = !is_first && failed && access > 1;
                     EXPECT_EQ(result, failed ? OpenResult::kNotOpened : OpenResult::kOpened);
                     EXPECT_EQ(messages.shown.empty(), !is_first || !failed);
                     EXPECT_EQ(editor.state().identity, is_first && failed ? "0" : "3C");
                     EXPECT_EQ(editor.state().is_file_held, is_held);
                     EXPECT_EQ(exports(), !is_held);
                     editor.CancelDialog();
                     disk.files.erase(kText);
                   });
  }
}

TEST_F(AnomalyTest, Load) {
  Load("Braves");
  const std::vector<ByteAccess> reads = disk.reads;
  FailEachAccess(
      [] {}, [this] { Load("Braves"); },
      [this, &reads] {
        EXPECT_EQ(load.outcome == LoadResult::Outcome::kLoaded, !read_failed());
        EXPECT_EQ(channel.is_open(), read_failed() && access > 1);
        EXPECT_TRUE(disk.writes.empty());
        // The first access opens the image; a read that fails is reported with its place.
        if (channel.is_open()) {
          const std::int64_t place =
              reads.at(static_cast<std::size_t>(access) - 2).position - kBraves;
          const std::string where = "offset " + std::to_string(place % 32) + " of player slot " +
                                    std::to_string(place / 32) + " ";
          EXPECT_NE(load.failure.find(where), std::string::npos) << where << load.failure;
        }
        image.Close();
      });
}

TEST_F(AnomalyTest, Save) {
  Load("Braves");
  Save();
  const std::vector<ByteAccess> all = disk.writes;
  FailEachAccess([] {}, [this] { saved = SaveTeam(image, location, grid, codec_state, listener); },
                 [this, &all] {
                   EXPECT_FALSE(channel.is_open());
                   // The first access opens the image; without it nothing is written.
                   std::vector<ByteAccess> made = all;
                   if (access == 1) made.clear();
                   const auto failing =
                       made.begin() + std::min<std::ptrdiff_t>(access - 2, std::ssize(made));
                   if (access > 1 && failing < made.end()) {
                     made.erase(failing, disk.fails_from_then_on ? made.end() : failing + 1);
                   }
                   EXPECT_EQ(disk.writes, made);
                 });
}

TEST_F(AnomalyTest, Export) {
  std::string lines;
  for (int row = 0; row < 25; ++row) lines += ",,,,,,,,,,,,,,\r\n";
  ExportResult exported{};
  FailEachAccess([] {}, [&] { exported = ExportTeamData(channel, kText, grid); },
                 [this, &lines, &exported] {
                   EXPECT_EQ(exported == ExportResult::kWritten, disk.failures == 0);
                   const std::vector<std::uint8_t>& file = disk.files[kText];
                   EXPECT_TRUE(lines.starts_with(std::string(file.begin(), file.end())));
                   EXPECT_EQ(file.size() == lines.size(), !read_failed());
                   EXPECT_EQ(channel.is_open(), read_failed() && access > 1);
                   image.Close();
                   disk.files[kText].clear();
                 });
}

TEST_F(AnomalyTest, Import) {
  std::string lines;
  for (int row = 0; row < 25; ++row) lines += "A,\r\n";
  disk.files[kText].assign(lines.begin(), lines.end());
  bool succeeded = false;
  FailEachAccess(
      [this] {
        ClearRosterGrid(grid);
        Type({{24, 2, "old"}});
      },
      [&] {
        succeeded = ImportTeamData(channel, kText, grid).outcome == ImportResult::Outcome::kRead;
      },
      [&] {
        EXPECT_EQ(succeeded, !read_failed());
        EXPECT_TRUE(Text(1, 24) == "A" || !succeeded);
        EXPECT_EQ(channel.is_open(), read_failed() && access > 1);
        // The grid is emptied only when the file has been opened.
        EXPECT_EQ(Text(2, 24), !succeeded && !channel.is_open() ? "old" : "");
        image.Close();
      });
  EXPECT_TRUE(disk.writes.empty());
}

}  // namespace
}  // namespace morlek
