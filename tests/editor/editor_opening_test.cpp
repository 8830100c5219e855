#include <gtest/gtest.h>

#include <functional>

#include "editor/editor.h"
#include "support/memory_disk.h"
#include "support/recording_messages.h"

namespace morlek {
namespace {

class EditorOpeningTest : public ::testing::Test {
 protected:
  EditorOpeningTest() {
    for (const char* path : {"good", "good too", "3", "C3"}) disk.files[path].assign(988297, 0x3C);
    disk.files["3"].back() = 0x03;
    disk.files["C3"].back() = 0xC3;
    disk.files["short"].assign(988296, 0x3C);
    disk.files["empty"] = {};
  }

  void ExpectImage(const char* path, const char* identity) {
    EXPECT_EQ(editor.state().scene.place.image, path);
    EXPECT_EQ(editor.state().identity, identity);
    EXPECT_TRUE(disk.writes.empty());
  }

  void ExpectMessage(const char* text) {
    EXPECT_EQ(messages.shown, (std::vector<Message>{{text, "Morlek Editor"}}));
    messages.shown.clear();
  }

  bool Exports() { return editor.ExportTeam("text") == ExportResult::kWritten; }

  MemoryDisk disk;
  RecordingMessages messages;
  Editor editor{messages, disk.Opener()};
};

constexpr char kMustOpen[] = "You must first open a Dale Harrow Baseball SNES rom.";
constexpr char kNotThisGame[] = "This is not a Dale Harrow Baseball SNES rom.";

TEST_F(EditorOpeningTest, TheFirstFileIsTakenOnlyWhenItsIdentityByteIsRight) {
  EXPECT_EQ(editor.OpenFirstImage("3"), OpenResult::kRefused);
  ExpectImage("", "3");
  ExpectMessage(kMustOpen);
  for (const auto& [path, result] : {std::pair("short", OpenResult::kRefused),
                                     {"empty", OpenResult::kRefused},
                                     {"missing", OpenResult::kNotOpened},
                                     {"", OpenResult::kNotOpened}}) {
    EXPECT_EQ(editor.OpenFirstImage(path), result) << path;
    ExpectImage("", "0");
    ExpectMessage(kMustOpen);
  }
  disk.failing_access = 2;
  EXPECT_EQ(editor.OpenFirstImage("good"), OpenResult::kNotOpened);
  ExpectImage("", "0");
  ExpectMessage(kMustOpen);
  EXPECT_EQ(editor.OpenFirstImage("good"), OpenResult::kOpened);
  ExpectImage("good", "3C");
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(EditorOpeningTest, ALaterFileThatIsAnotherGamesIsReportedAndTheImageStays) {
  editor.OpenFirstImage("good");
  for (const auto& [path, identity] : {std::pair("C3", "C3"), {"short", "0"}}) {
    EXPECT_EQ(editor.OpenAnotherImage(path), OpenResult::kRefused);
    ExpectImage("good", identity);
    ExpectMessage(kNotThisGame);
  }
  EXPECT_EQ(editor.OpenAnotherImage("good too"), OpenResult::kOpened);
  ExpectImage("good too", "3C");
}

TEST_F(EditorOpeningTest, AHeldChannelIsReportedByTheLoadAndFreedByIt) {
  disk.files["short.txt"] = {'A', ',', '\r'};
  disk.files["good"].resize(1300000, 0);
  const std::vector<std::function<void()>> ways_out = {
      [this] { editor.CancelDialog(); },
      [this] {
        EXPECT_EQ(editor.LoadTeam("Braves").outcome, LoadResult::Outcome::kNotOpened);
        ASSERT_EQ(messages.shown.size(), 1U);
        EXPECT_NE(messages.shown[0].text.find("a team file was still open"), std::string::npos);
        EXPECT_EQ(messages.shown[0].icon, Message::Icon::kCritical);
        messages.shown.clear();
      }};
  editor.OpenFirstImage("good");
  for (const auto& way_out : ways_out) {
    const ImportResult imported = editor.ImportTeam("short.txt");
    EXPECT_EQ(imported.outcome, ImportResult::Outcome::kEndedEarly);
    EXPECT_EQ(imported.lines, 1);
    EXPECT_TRUE(editor.state().is_file_held);
    EXPECT_FALSE(Exports());
    way_out();
    EXPECT_FALSE(editor.state().is_file_held);
    EXPECT_TRUE(Exports());
  }
  EXPECT_EQ(editor.LoadTeam("Braves").outcome, LoadResult::Outcome::kLoaded);
  EXPECT_TRUE(messages.shown.empty());
}

}  // namespace
}  // namespace morlek
