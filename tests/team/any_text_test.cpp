#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "support/editor_fixture.h"

namespace morlek {
namespace {

// clang-format off
const std::vector<std::string> kAnyTexts = {
    "", " ", ".", "+", "-", "&", "&H", "&HFF", "&H8000", "1e2", "1e999", "1e-999", "-5", "0", "10",
    "255", "256", "8000", "FFFF", "80000000", "FFFFFFFF", "123456789", "\x80\xFF", "S", "RS", "l>",
    "nan", "inf", "0x1F", "\"a,b\"", "a\r\nb\x1A", ".512", "99999999999999999999",
    std::string(1, '\0'), std::string(200, 'A'), std::string(200, '9'), std::string(10000, '.')};
// clang-format on

class AnyTextTest : public EditorTest {
 protected:
  void FillAll(const std::string& text) {
    for (int row = 0; row < 25; ++row) {
      for (int column = 1; column <= 14; ++column) Type({{row, column, text}});
    }
  }

  void ExpectSaveKeepsToTheRecord() {
    Save();
    const std::string last = messages.shown.empty() ? "" : messages.shown.back().text;
    EXPECT_TRUE(last == kSaved || last == kNameTooLong) << last;
    EXPECT_FALSE(editor.channel.is_open());
    for (const ByteAccess& write : disk.writes) {
      ASSERT_TRUE(saved_positions.contains(write.position)) << write.position - kBraves;
    }
  }

  /// Where a save of good texts writes.
  std::set<std::int64_t> saved_positions;
};

TEST_F(AnyTextTest, IsSavedWithinTheRecord) {
  Load("Braves");
  Save();
  for (const ByteAccess& write : disk.writes) saved_positions.insert(write.position);
  for (const std::string& text : kAnyTexts) {
    SCOPED_TRACE(text.substr(0, 20));
    for (const int row : {0, 14, 15, 24}) {
      for (int column = 1; column <= 14; ++column) {
        const std::string before = Text(column, row);
        Type({{row, column, text}});
        ExpectSaveKeepsToTheRecord();
        Type({{row, column, before}});
      }
    }
    FillAll(text);
    for (int row = 0; row < 25; ++row) Type({{row, 1, text.substr(0, 10)}});
    ExpectSaveKeepsToTheRecord();
  }
}

TEST_F(AnyTextTest, ThatIsEmptyEverywhereWritesTheSFlagsAlone) {
  Load("Braves");
  FillAll("");
  Save();
  std::vector<ByteAccess> expected;
  for (int row = 15; row < 25; ++row) {
    expected.push_back({kBraves + std::int64_t{32} * row + 17, 0});
  }
  EXPECT_EQ(disk.writes, expected);
  EXPECT_EQ(messages.shown.size(), 26U);  // an unknown letter a name, and the end
}

}  // namespace
}  // namespace morlek
