#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "image/team_directory.h"
#include "sample_image.h"
#include "support/form_columns.h"
#include "support/memory_disk.h"
#include "support/plain_record.h"
#include "support/recording_messages.h"
#include "team/team_loader.h"
#include "team/team_saver.h"

namespace morlek {

inline constexpr char kImage[] = "game.smc";
inline constexpr std::int64_t kBraves = 1278465;
inline constexpr std::int64_t kOrioles = 1264385;

/// What FieldByte holds for a byte that is not written at all.
inline constexpr int kNotWritten = -1;

/// A byte of a record by roster row and offset in the row.
struct FieldByte {
  int row;
  int offset;
  int byte;

  friend bool operator==(const FieldByte&, const FieldByte&) = default;
  friend std::ostream& operator<<(std::ostream& out, const FieldByte& field) {
    return out << "row " << field.row << " offset " << field.offset << ": " << field.byte;
  }
};

/// The nine bytes of a name, which blanks fill up.
inline std::vector<FieldByte> Name(int row, std::vector<int> codes) {
  codes.resize(9);
  std::vector<FieldByte> bytes;
  for (const int code : codes) bytes.push_back({row, static_cast<int>(bytes.size()), code});
  return bytes;
}

/// What a case of a table is called among the tests.
inline constexpr auto kCaseName = [](const auto& info) { return std::string(info.param.name); };

/// A cell by roster row and the number of its text box array, and its text.
struct CellText {
  int row;
  int column;
  std::string text;

  [[nodiscard]] Cell cell() const { return CellOfArray(column, row); }
};

/// Notes what the encoder reports: the row and letter of each unknown letter, and the row of a name
/// that is too long, as "too long".
class RecordingListener : public EncodingListener {
 public:
  using Report = std::pair<int, std::string>;

  void UnknownLetter(int row, std::string_view letter) override { heard.emplace_back(row, letter); }
  void NameTooLong(int row) override { heard.emplace_back(row, "too long"); }

  std::vector<Report> heard;
};

/// Loader and saver over an image in memory, in which the Braves and the Orioles have the plain
/// record.
class TeamTest : public ::testing::Test {
 protected:
  TeamTest() {
    static const std::vector<std::uint8_t> sample = MakeSampleImage();
    disk.files[kImage] = sample;
    for (const std::int64_t base : {kBraves, kOrioles}) {
      std::ranges::copy(PlainRecord(), file().begin() + (base - 1));
    }
  }

  std::vector<std::uint8_t>& file() { return disk.files.at(kImage); }

  void Poke(const std::vector<FieldByte>& bytes, std::int64_t base = kBraves) {
    for (const auto& [row, offset, byte] : bytes) {
      const auto index = static_cast<std::size_t>(base - 1 + std::int64_t{32} * row + offset);
      file().at(index) = static_cast<std::uint8_t>(byte);
    }
  }

  void Load(const char* key) {
    disk.reads.clear();
    location.base = FindTeam(key)->base;
    load = LoadTeam(image, location, codec_state, grid);
  }

  [[nodiscard]] const std::string& Text(int column, int row) const {
    return grid.Text(CellOfArray(column, row));
  }

  void Type(const std::vector<CellText>& cells) {
    for (const CellText& each : cells) grid.SetText(each.cell(), each.text);
  }

  /// Saves; what was heard and written is then of this save alone.
  void Save() {
    disk.writes.clear();
    listener.heard.clear();
    saved = SaveTeam(image, location, grid, codec_state, listener);
  }

  void ExpectShown(const std::vector<CellText>& cells) {
    for (const auto& [row, column, text] : cells) {
      EXPECT_EQ(Text(column, row), text) << "Text" << column << " row " << row;
    }
  }

  /// What the last save wrote, of which other bytes are left out.
  void ExpectWritten(const std::vector<FieldByte>& bytes, std::int64_t base = kBraves) {
    for (const FieldByte& expected : bytes) {
      FieldByte actual = {expected.row, expected.offset, kNotWritten};
      for (const ByteAccess& write : disk.writes) {
        const std::int64_t place = std::int64_t{32} * actual.row + actual.offset;
        if (write.position == base + place) actual.byte = write.byte;
      }
      EXPECT_EQ(actual, expected);
    }
  }

  MemoryDisk disk;
  RecordingMessages messages;
  Channel channel{disk.Opener()};
  CartridgeImage image{channel};
  RecordLocation location{kImage, std::nullopt};
  CodecState codec_state;
  RosterGrid grid;
  RecordingListener listener;
  LoadResult load;
  SaveResult saved;
};

}  // namespace morlek
