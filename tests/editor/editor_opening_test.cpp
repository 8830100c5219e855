#include <gtest/gtest.h>

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

}  // namespace
}  // namespace morlek
