#include <gtest/gtest.h>

#include <optional>
#include <utility>
#include <vector>

#include "editor/editor.h"
#include "image/failure.h"
#include "support/memory_disk.h"
#include "support/recording_messages.h"

namespace morlek {
namespace {

using enum Editor::Opening;

class EditorOpeningTest : public ::testing::Test {
 protected:
  EditorOpeningTest() {
    const std::vector<std::pair<const char*, std::uint8_t>> identities = {
        {"good", 0x3C}, {"good too", 0x3C}, {"3", 0x03}, {"C3", 0xC3}};
    for (const auto& [path, identity] : identities) {
      disk.files[path].assign(988297, 0x3C);
      disk.files[path].back() = identity;
    }
    disk.files["short"].assign(988296, 0x3C);
    disk.files["empty"] = {};
  }

  void ExpectImage(const char* path, const char* identity) {
    EXPECT_EQ(editor.image.path(), path);
    EXPECT_EQ(editor.identity_text(), identity);
    EXPECT_FALSE(editor.channel.is_open());
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_TRUE(disk.writes.empty());
  }

  MemoryDisk disk;
  RecordingMessages messages;
  Editor editor{messages, disk.Opener()};
};

TEST_F(EditorOpeningTest, TheFirstFileIsTakenOnlyWhenItsIdentityByteIsRight) {
  EXPECT_EQ(editor.OpenFirstImage("3"), kRefused);
  ExpectImage("", "3");
  for (const char* path : {"short", "empty", "missing"}) {
    EXPECT_EQ(editor.OpenFirstImage(path), kRefused) << path;
    ExpectImage("", "0");
  }
  disk.failing_access = 2;
  EXPECT_EQ(editor.OpenFirstImage("good"), kRefused);
  ExpectImage("", "0");
  EXPECT_EQ(editor.OpenFirstImage("good"), kAccepted);
  ExpectImage("good", "3C");
}

TEST_F(EditorOpeningTest, ALaterFileThatCannotBeReadBlocksTheNextOperations) {
  EXPECT_EQ(editor.OpenFirstImage("good"), kAccepted);
  editor.image.SetTeamBase(1278465);
  disk.failing_access = 2;
  EXPECT_THROW((void)editor.OpenAnotherImage("C3"), OperationFailed);
  EXPECT_TRUE(editor.channel.is_open());
  EXPECT_THROW((void)editor.OpenAnotherImage("good too"), OperationFailed);
  EXPECT_FALSE(editor.image.Open());
  editor.channel.Close();
  ExpectImage("good", "3C");
  EXPECT_EQ(editor.OpenAnotherImage("short"), kRefused);
  ExpectImage("good", "0");
  EXPECT_EQ(editor.OpenAnotherImage("good too"), kAccepted);
  ExpectImage("good too", "3C");
  EXPECT_EQ(editor.image.team_base(), 1278465) << "the team stays the one to be saved";
}

}  // namespace
}  // namespace morlek
