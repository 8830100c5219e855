#include "league/season_reader.h"

#include <algorithm>
#include <string>
#include <utility>

#include "codecs/code_page.h"
#include "league/season_columns.h"
#include "textfile/average_form.h"

namespace morlek {
namespace {

// Far longer than any cell of a season; some 14,000 of this length still need little memory.
constexpr TextLimits kLimits = {.field_characters = 255, .fields = 256};

// With that many complaints it is the wrong file.
constexpr std::size_t kMostComplaints = 100;

/// What a column of the file stands for, by its header.
struct FileColumn {
  enum class Kind { kNone, kTeam, kSlot, kCell };
  Kind kind = Kind::kNone;
  const SeasonColumn* column = nullptr;

  friend bool operator==(const FileColumn&, const FileColumn&) = default;
};

/// Nothing for a header that no season has.
std::optional<FileColumn> ColumnOfHeader(const std::string& header) {
  using enum FileColumn::Kind;
  const auto is_header = [&header](std::string_view known) {
    return UpperCase(header) == UpperCase(known);
  };
  if (header.empty()) return FileColumn{kNone};
  if (is_header(kTeamHeader)) return FileColumn{kTeam};
  if (is_header(kSlotHeader)) return FileColumn{kSlot};
  const auto found = std::ranges::find_if(kSeasonColumns, is_header, &SeasonColumn::header);
  if (found == kSeasonColumns.end()) return std::nullopt;
  return FileColumn{kCell, &*found};
}

/// The row, 0 to 24, of a slot, 1 to 25.
std::optional<int> RowOfSlot(const std::string& slot) {
  for (int row = 0; row < kSlotCount; ++row) {
    if (std::to_string(row + 1) == slot) return row;
  }
  return std::nullopt;
}

std::string FaultText(TextFault fault) {
  switch (fault) {
    case TextFault::kNul:
      return "a NUL character stands here; save the table as text in UTF-8";
    case TextFault::kUnendedQuotes:
      return "quotes begin on this line and do not end";
    case TextFault::kTextBehindQuotes:
      return "something stands behind the end of quotes";
    case TextFault::kFieldTooLong:
      return "a cell is longer than " + std::to_string(kLimits.field_characters) + " characters";
    case TextFault::kTooManyFields:
      return "there are more than " + std::to_string(kLimits.fields) + " columns";
  }
  return {};
}

class SeasonReader {
 public:
  SeasonReader(const CharacterSource& source, Complaints& complaints)
      : reader_(source, kLimits), complaints_(complaints) {}

  std::optional<Season> Read() {
    const std::size_t before = complaints_.size();
    if (ReadHeaders()) {
      while (reader_.Read(record_) && complaints_.size() - before < kMostComplaints) TakeLine();
      if (complaints_.size() - before >= kMostComplaints) {
        Complain("here the reading ended, because so much is wrong");
      }
    }
    if (const auto fault = reader_.fault()) Complain(FaultText(*fault));
    if (complaints_.size() > before) return std::nullopt;
    return std::move(season_);
  }

 private:
  /// False when no line can be read by these headers.
  [[nodiscard]] bool ReadHeaders();
  void TakeHeader(const std::string& header);
  void TakeLine();
  void TakeCell(const Team& team, int row, const SeasonColumn& column, const std::string& text);

  /// The field of the column of this kind; empty when the record has none.
  [[nodiscard]] std::string FieldOf(FileColumn::Kind kind) const {
    const auto found = std::ranges::find(columns_, kind, &FileColumn::kind);
    const auto place = static_cast<std::size_t>(found - columns_.begin());
    return place < record_.fields.size() ? record_.fields.at(place) : std::string();
  }

  void Complain(const std::string& what) {
    complaints_.push_back("line " + std::to_string(record_.line) + ": " + what);
  }

  DelimitedReader reader_;
  Complaints& complaints_;
  TextRecord record_;
  std::vector<FileColumn> columns_;
  Season season_;
};

bool SeasonReader::ReadHeaders() {
  using enum FileColumn::Kind;
  do {
    if (reader_.Read(record_)) continue;
    if (!reader_.fault()) Complain("the file holds no table");
    return false;
  } while (record_.is_empty());

  const std::size_t before = complaints_.size();
  for (const std::string& header : record_.fields) TakeHeader(header);
  const auto has = [this](FileColumn::Kind kind) {
    return std::ranges::find(columns_, kind, &FileColumn::kind) != columns_.end();
  };
  if (!has(kTeam) && !has(kSlot)) {
    complaints_.resize(before);
    Complain("this is no season: no columns are headed Team and Slot");
    return false;
  }
  if (!has(kTeam)) Complain("no column is headed Team");
  if (!has(kSlot)) Complain("no column is headed Slot");
  return complaints_.size() == before;
}

void SeasonReader::TakeHeader(const std::string& header) {
  std::optional<FileColumn> column = ColumnOfHeader(header);
  if (!column) {
    Complain("no column of a season is headed " + Quoted(header));
    column.emplace();
  } else if (*column != FileColumn() && std::ranges::find(columns_, *column) != columns_.end()) {
    Complain("two columns are headed " + Quoted(header));
  }
  columns_.push_back(*column);
}

void SeasonReader::TakeLine() {
  if (record_.is_empty()) return;
  const std::string key = FieldOf(FileColumn::Kind::kTeam);
  const std::string slot = FieldOf(FileColumn::Kind::kSlot);
  const Team* team = FindTeam(key);
  const std::optional<int> row = RowOfSlot(slot);
  if (team == nullptr) Complain("no team is called " + Quoted(key));
  if (!row) Complain(Quoted(slot) + " is no slot; slots are 1 to " + std::to_string(kSlotCount));
  if (team == nullptr || !row) return;

  std::int64_t& line = season_.teams.at(PlaceOf(*team)).lines.at(static_cast<std::size_t>(*row));
  if (line != 0) {
    Complain(PlayerOf(*team, *row, {}) + " stands on line " + std::to_string(line) + " already");
    return;
  }
  line = record_.line;
  for (std::size_t place = 0; place < record_.fields.size(); ++place) {
    const std::string& text = record_.fields.at(place);
    if (text.empty()) continue;
    const FileColumn column = place < columns_.size() ? columns_.at(place) : FileColumn();
    if (column.kind == FileColumn::Kind::kNone) {
      Complain(Quoted(text) + " stands in a column without a head");
    } else if (column.column != nullptr) {
      TakeCell(*team, *row, *column.column, text);
    }
  }
}

void SeasonReader::TakeCell(const Team& team, int row, const SeasonColumn& column,
                            const std::string& text) {
  if (const std::optional<Column> shown = column.For(row)) {
    season_.teams.at(PlaceOf(team)).texts.SetText({*shown, row}, InAverageForm(*shown, text));
    return;
  }
  Complain(PlayerOf(team, row, {}) + " is a " + std::string(BlockOf(row).player) + ", who has no " +
           std::string(column.header) + "; " + Quoted(text) + " stands there");
}

}  // namespace

std::optional<Season> ReadSeason(const CharacterSource& source, Complaints& complaints) {
  return SeasonReader(source, complaints).Read();
}

}  // namespace morlek
