#include <gtest/gtest.h>

#include <optional>
#include <utility>
#include <vector>

#include "image/failure.h"
#include "support/memory_disk.h"
#include "support/recording_messages.h"
#include "team/editor.h"

namespace morlek {
namespace {

using enum Editor::Opening;

std::vector<std::uint8_t> ImageWithIdentity(std::uint8_t byte) {
  std::vector<std::uint8_t> image(988297, 0x3C);
  image.back() = byte;
  return image;
}

class EditorOpeningTest : public ::testing::Test {
 protected:
  EditorOpeningTest() {
    disk.files["good"] = ImageWithIdentity(0x3C);
    disk.files["good too"] = ImageWithIdentity(0x3C);
    disk.files["3"] = ImageWithIdentity(0x03);
    disk.files["C3"] = ImageWithIdentity(0xC3);
    disk.files["short"] = std::vector<std::uint8_t>(988296, 0x3C);
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

TEST_F(EditorOpeningTest, TheFirstFileIsTakenWhenItsIdentityByteIsRight) {
  EXPECT_EQ(editor.OpenFirstImage("good"), kAccepted);
  ExpectImage("good", "3C");
  EXPECT_EQ(editor.image.team_base(), std::nullopt);
}

TEST_F(EditorOpeningTest, AnyOtherFirstFileIsRefused) {
  EXPECT_EQ(editor.OpenFirstImage("3"), kRefused);
  ExpectImage("", "3");
  EXPECT_EQ(editor.OpenFirstImage("C3"), kRefused);
  ExpectImage("", "C3");
  for (const char* path : {"short", "empty", "missing"}) {
    EXPECT_EQ(editor.OpenFirstImage(path), kRefused) << path;
    ExpectImage("", "0");
  }
  disk.failing_read = 1;
  EXPECT_EQ(editor.OpenFirstImage("good"), kRefused);
  ExpectImage("", "0");
}

TEST_F(EditorOpeningTest, ALaterFileTakesThePlaceOfTheImageOnlyWhenItPasses) {
  EXPECT_EQ(editor.OpenFirstImage("good"), kAccepted);
  editor.image.SetTeamBase(1278465);
  const std::vector<std::pair<const char*, const char*>> refused = {
      {"3", "3"}, {"C3", "C3"}, {"short", "0"}, {"empty", "0"}};
  for (const auto& [path, identity] : refused) {
    EXPECT_EQ(editor.OpenAnotherImage(path), kRefused);
    ExpectImage("good", identity);
  }
  EXPECT_EQ(editor.OpenAnotherImage("good too"), kAccepted);
  ExpectImage("good too", "3C");
  EXPECT_EQ(editor.image.team_base(), 1278465);
}

TEST_F(EditorOpeningTest, ALaterFileThatCannotBeOpenedChangesNothing) {
  (void)editor.OpenFirstImage("C3");
  EXPECT_THROW((void)editor.OpenAnotherImage("missing"), OperationFailed);
  ExpectImage("", "C3");
  EXPECT_EQ(editor.OpenAnotherImage("good"), kAccepted);
}

TEST_F(EditorOpeningTest, ALaterFileThatCannotBeReadBlocksTheNextOperations) {
  EXPECT_EQ(editor.OpenFirstImage("good"), kAccepted);
  disk.failing_read = 1;
  EXPECT_THROW((void)editor.OpenAnotherImage("C3"), OperationFailed);
  EXPECT_EQ(editor.image.path(), "good");
  EXPECT_EQ(editor.identity_text(), "3C");
  EXPECT_TRUE(editor.channel.is_open());
  EXPECT_THROW((void)editor.OpenAnotherImage("good too"), OperationFailed);
  EXPECT_FALSE(editor.image.Open());
  editor.channel.Close();
  EXPECT_EQ(editor.OpenAnotherImage("good too"), kAccepted);
}

}  // namespace
}  // namespace morlek
