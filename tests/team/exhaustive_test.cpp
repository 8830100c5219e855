#include <array>
#include <map>
#include <span>
#include <sstream>

#include "support/editor_fixture.h"

namespace morlek {
namespace {

using Bytes = std::vector<std::uint8_t>;

/// Loads and saves teams with every value in every field, and compares the whole image with what
/// the rules, stated anew below, make of it.
class ExhaustiveTest : public TeamTest {
 protected:
  // Rows whose neighbour above keeps a value that every decoder knows.
  static constexpr std::array<int, 7> kBatterRows = {1, 3, 5, 7, 9, 11, 13};
  static constexpr std::array<int, 5> kPitcherRows = {16, 18, 20, 22, 24};

  static std::size_t At(int row, int offset) {
    return std::size_t{32} * static_cast<std::size_t>(row) + static_cast<std::size_t>(offset);
  }

  void PutRecord(const Bytes& record) { std::ranges::copy(record, file().begin() + kBraves - 1); }

  /// True when a load and a save leave `record` in its place and the rest of the image as it was.
  [[nodiscard]] bool LeavesRecord(const Bytes& record) {
    Load("Braves");
    Save();
    std::ranges::copy(record, expected_image_.begin() + kBraves - 1);
    return file() == expected_image_;
  }

  /// Puts every value into the field, several rows at a time, and asks `expect` for what stands in
  /// the record after a load and a save.
  template <typename Rows, typename Expect>
  void TryEveryValue(const Rows& rows, int offset, Expect expect) {
    for (int value = 0; value < 256;) {
      Bytes before = plain;
      Bytes after = plain;
      for (const int row : rows) {
        const int one = std::min(value++, 255);
        before[At(row, offset)] = static_cast<std::uint8_t>(one);
        after[At(row, offset)] = static_cast<std::uint8_t>(one);
        expect(after, row, one);
      }
      PutRecord(before);
      EXPECT_TRUE(LeavesRecord(after)) << "offset " << offset << ", values below " << value;
    }
  }

  /// The field takes the value where `knows` says so, and what the row above has where not.
  template <typename Rows, typename Knows>
  void TryKeptField(const Rows& rows, int offset, Knows knows) {
    TryEveryValue(rows, offset, [&](Bytes& after, int row, int value) {
      if (!knows(value)) after[At(row, offset)] = after[At(row - 1, offset)];
    });
  }

  const Bytes plain = PlainRecord();

 private:
  Bytes expected_image_ = file();
};

bool IsCount(int value) { return value <= 200; }
bool IsPosition(int value) { return value % 2 == 0 && value <= 0x16; }
bool IsSide(int value) { return value == 0x00 || value == 0x11 || value == 0x20; }
void LeaveAsItIs(Bytes& /*after*/, int /*row*/, int /*value*/) {}

TEST_F(ExhaustiveTest, FieldsOfOneByte) {
  TryKeptField(kBatterRows, 9, IsPosition);
  TryKeptField(kPitcherRows, 9, IsPosition);
  TryKeptField(kBatterRows, 13, IsSide);
  for (const int offset : {10, 26, 28}) TryKeptField(kBatterRows, offset, IsCount);
  for (const int offset : {10, 24, 26, 30}) TryKeptField(kPitcherRows, offset, IsCount);
}

TEST_F(ExhaustiveTest, BytesThatComeBackWhateverTheyAre) {
  for (const int offset : {14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 27, 29, 30, 31}) {
    TryEveryValue(kBatterRows, offset, LeaveAsItIs);
  }
  for (const int offset : {13, 15, 16, 18, 19, 20, 22, 25, 27, 31}) {
    TryEveryValue(kPitcherRows, offset, LeaveAsItIs);
  }
}

TEST_F(ExhaustiveTest, PitchersFaceHandAndMarks) {
  TryEveryValue(kPitcherRows, 14, [](Bytes& after, int row, int value) {
    std::uint8_t& hand = after[At(row, 21)];
    // Single digits are padded with a zero in front, the letters A to F are not.
    const int first_digit = value < 10 ? 0 : value < 16 ? value : value / 16;
    hand = static_cast<std::uint8_t>(hand / 16 * 16 + first_digit);
  });
  TryEveryValue(kPitcherRows, 21, [](Bytes& after, int row, int value) {
    after[At(row, 21)] =
        static_cast<std::uint8_t>((value < 0x10 ? 0x00 : 0x10) + after[At(row, 14)] / 16);
  });
  TryEveryValue(kPitcherRows, 17, [this](Bytes& after, int row, int /*value*/) {
    after[At(row, 17)] = plain[At(row, 17)];
  });
  TryEveryValue(kPitcherRows, 23, [](Bytes& after, int row, int value) {
    const std::map<int, int> written = {{0x00, 0x00}, {0x01, 0x01}, {0x02, 0x01},
                                        {0x10, 0x10}, {0x11, 0x11}, {0x12, 0x11},
                                        {0x20, 0x20}, {0x21, 0x21}, {0x22, 0x21}};
    const auto known = written.find(value);
    const int marks = known == written.end() ? after[At(row - 1, 23)] : known->second;
    after[At(row, 23)] = static_cast<std::uint8_t>(marks);
    after[At(row, 17)] = marks % 16 == 1 ? 1 : 0;
  });
}

TEST_F(ExhaustiveTest, Ratings) {
  const auto try_field = [&](int row, int offset, bool is_pair) {
    for (int value = 0; value < 256; ++value) {
      Bytes after = plain;
      after[At(row, offset)] = static_cast<std::uint8_t>(value);
      PutRecord(after);
      if (value / 16 > 9 || value % 16 > 9) {
        Load("Braves");
        EXPECT_EQ(load.outcome, LoadResult::Outcome::kEndedEarly) << value;
        image.Close();
        continue;
      }
      // A second rating of ten spoils the pair: 0x09 becomes 0x99, and larger ones have no byte.
      if (is_pair && value == 0x09) after[At(row, offset)] = 0x99;
      EXPECT_TRUE(LeavesRecord(after)) << "row " << row << " offset " << offset << ": " << value;
    }
  };
  try_field(3, 11, true);
  try_field(3, 12, true);
  try_field(17, 11, true);
  try_field(17, 12, false);
}

TEST_F(ExhaustiveTest, NameLetters) {
  // The plain names end in blanks, so nothing is kept from the row above but the code that it has
  // written for its initial.
  const auto expect = [](Bytes& after, int row, int /*value*/) {
    const auto name = std::span(after).subspan(At(row, 0), 9);
    std::string last;
    std::string letters;
    for (const int code : name) {
      if (code == 0x00 || code == 0x0A) last.clear();
      if (code >= 0x0B && code <= 0x24) last = std::string(1, static_cast<char>('A' + code - 0x0B));
      if (code == 0x36) last = "C";
      letters += last;
    }
    std::ranges::fill(name, 0);
    if (letters.empty()) name[0] = after[At(row - 1, 0)];
    std::ranges::transform(letters, name.begin(), [](char letter) { return letter - 'A' + 0x0B; });
  };
  for (int place = 0; place < 9; ++place) {
    TryEveryValue(kBatterRows, place, expect);
    TryEveryValue(kPitcherRows, place, expect);
  }
}

/// One kind of average: what its decoder keeps while rows go by.
class AverageModel {
 public:
  explicit AverageModel(int marker) : marker_(marker) {
    for (int number = 0; number < 512; ++number) {
      numbers_[Key(number % 256, marker + number / 256)] = number;
    }
  }

  void Decode(int low, int high) {
    const auto found = numbers_.find(Key(low, high));
    if (found != numbers_.end()) kept_ = found->second;
  }

  void PutKept(Bytes& record, std::size_t at) const {
    record[at] = static_cast<std::uint8_t>(kept_ % 256);
    record[at + 1] = static_cast<std::uint8_t>(marker_ + kept_ / 256);
  }

 private:
  /// Both bytes in hexadecimal without leading zeros, one behind the other.
  static std::string Key(int low, int high) {
    std::ostringstream key;
    key << std::hex << low << high;
    return key.str();
  }

  int marker_;
  int kept_ = 0;
  std::map<std::string, int> numbers_;
};

TEST_F(ExhaustiveTest, AllPairsOfBytesInBothAverages) {
  AverageModel batting(0x30);
  AverageModel earned_runs(0x20);
  const auto after = [&](const Bytes& before) {
    Bytes bytes = before;
    for (int row = 0; row < 25; ++row) {
      batting.Decode(before[At(row, 24)], before[At(row, 25)]);
      if (row < 15) batting.PutKept(bytes, At(row, 24));
      earned_runs.Decode(before[At(row, 28)], before[At(row, 29)]);
      if (row >= 15) earned_runs.PutKept(bytes, At(row, 28));
    }
    return bytes;
  };
  ASSERT_TRUE(LeavesRecord(after(plain)));

  // Fifteen batters and ten pitchers take a pair each at a time.
  int batting_pair = 0;
  int earned_pair = 0;
  while (earned_pair < 65536) {
    Bytes record = plain;
    for (int row = 0; row < 25; ++row) {
      int& pair = row < 15 ? batting_pair : earned_pair;
      const std::size_t at = At(row, row < 15 ? 24 : 28);
      record[at] = static_cast<std::uint8_t>(pair % 256);
      record[at + 1] = static_cast<std::uint8_t>(pair / 256 % 256);
      ++pair;
    }
    PutRecord(record);
    ASSERT_TRUE(LeavesRecord(after(record)))
        << "pairs below " << batting_pair << ", " << earned_pair;
  }
}

}  // namespace
}  // namespace morlek
