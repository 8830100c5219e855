#include <gtest/gtest.h>

#include <functional>

#include "editor/editor.h"
#include "support/memory_disk.h"
#include "support/recording_messages.h"
#include "support/recording_view.h"

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
    EXPECT_EQ(editor.image_path(), path);
    EXPECT_EQ(view.identity, identity);
    EXPECT_TRUE(disk.writes.empty());
  }

  void ExpectTold(const char* text) {
    EXPECT_EQ(messages.shown, (std::vector<Message>{{text, "Morlek Editor"}}));
    EXPECT_TRUE(view.calls.empty());
    messages.shown.clear();
  }

  MemoryDisk disk;
  RecordingMessages messages;
  RecordingView view;
  Editor editor{messages, disk.Opener()};
};

constexpr char kMustOpen[] = "You must first open a Dale Harrow Baseball SNES rom.";
constexpr char kNotThisGame[] = "This is not a Dale Harrow Baseball SNES rom.";

TEST_F(EditorOpeningTest, TheFirstFileIsTakenOnlyWhenItsIdentityByteIsRight) {
  editor.OpenFirstImage("3", view);
  ExpectImage("", "3");
  ExpectTold(kMustOpen);
  for (const char* chosen : {"short", "empty", "missing", ""}) {
    editor.OpenFirstImage(*chosen == 0 ? std::optional<std::filesystem::path>() : chosen, view);
    ExpectImage("", "0");
    ExpectTold(kMustOpen);
  }
  disk.failing_access = 2;
  editor.OpenFirstImage("good", view);
  ExpectImage("", "0");
  ExpectTold(kMustOpen);
  editor.OpenFirstImage("good", view);
  ExpectImage("good", "3C");
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_EQ(view.calls, std::vector<std::string>{"toolbar"});
}

TEST_F(EditorOpeningTest, ALaterFileThatCannotBeReadBlocksTheNextOperations) {
  editor.OpenFirstImage("good", view);
  view.calls.clear();
  disk.failing_access = 2;
  editor.OpenAnotherImage("C3", view);
  disk.opened.clear();
  editor.OpenAnotherImage("good too", view);
  editor.ImportTeam("good");
  EXPECT_FALSE(editor.ExportTeam("text"));
  EXPECT_TRUE(disk.opened.empty());
  EXPECT_FALSE(disk.files.contains("text"));
  ExpectImage("good", "3C");
  EXPECT_TRUE(view.calls.empty());
  EXPECT_TRUE(messages.shown.empty());

  // Cancelling any later dialog frees the channel.
  editor.OpenAnotherImage(std::nullopt, view);
  editor.OpenAnotherImage("short", view);
  ExpectImage("good", "0");
  ExpectTold(kNotThisGame);
  editor.OpenAnotherImage("good too", view);
  ExpectImage("good too", "3C");
  EXPECT_EQ(view.calls, (std::vector<std::string>{"toolbar", "hide", "narrow"}));
}

TEST_F(EditorOpeningTest, AHeldChannelIsToldByTheLoadAndFreedByIt) {
  disk.files["short.txt"] = {'A', ',', '\r'};
  disk.files["good"].resize(1300000, 0);
  const std::vector<std::function<void()>> cancels = {
      [this] { editor.OpenAnotherImage(std::nullopt, view); },
      [this] { editor.ImportTeam(std::nullopt); },
      [this] { EXPECT_FALSE(editor.ExportTeam(std::nullopt)); },
      [this] {
        editor.LoadTeam("Braves", view);
        ASSERT_EQ(messages.shown.size(), 1U);
        EXPECT_NE(messages.shown[0].text.find("a team file was still open"), std::string::npos);
        EXPECT_EQ(messages.shown[0].icon, Message::Icon::kCritical);
        messages.shown.clear();
      }};
  editor.OpenFirstImage("good", view);
  for (const auto& cancel : cancels) {
    editor.ImportTeam("short.txt");
    EXPECT_FALSE(editor.ExportTeam("text"));
    cancel();
    EXPECT_TRUE(editor.ExportTeam("text"));
  }
  editor.LoadTeam("Braves", view);
  EXPECT_TRUE(messages.shown.empty());
}

}  // namespace
}  // namespace morlek
