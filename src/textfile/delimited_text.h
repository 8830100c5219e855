#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace morlek {

/// Gives the next character of a text, or nothing at its end.
using CharacterSource = std::function<std::optional<char>()>;

/// A source over a text, which outlives it.
[[nodiscard]] CharacterSource CharactersOf(std::string_view text);

/// One record of delimited text, and the line, from 1, on which it begins.
struct TextRecord {
  std::vector<std::string> fields;
  std::int64_t line = 0;

  /// True when there is no text in any field, as in an empty line.
  [[nodiscard]] bool is_empty() const;
};

/// Why a text cannot be read to its end.
enum class TextFault {
  kNul,               // it holds a NUL
  kUnendedQuotes,     // quotes that a field begins with do not end
  kTextBehindQuotes,  // something stands between the end of the quotes and that of the field
  kFieldTooLong,
  kTooManyFields,
};

/// The most that a reader takes, so that its memory stays bounded whatever the text.
struct TextLimits {
  std::size_t field_characters = 32767;
  std::size_t fields = 1024;  // of a record
};

/// Reads delimited text as a stream of records. Fields that begin with a quote end with one, and
/// may hold separators, line ends (read as line feeds) and quotes written twice (RFC 4180). A line
/// ends at CR LF, LF, CR or the end of the text. A mark of byte order at the beginning (of UTF-8)
/// is passed over.
class DelimitedReader {
 public:
  /// The separator is a comma, a semicolon or a tab: whichever comes first outside of quotes,
  /// unless one is given.
  explicit DelimitedReader(CharacterSource source, TextLimits limits = {},
                           std::optional<char> separator = std::nullopt);

  /// Reads the next record into `record`. False at the end of the text and at a fault; then what
  /// `record` holds is unfinished, but its line is that of the fault. Throws what the source
  /// throws.
  [[nodiscard]] bool Read(TextRecord& record);

  /// What ended the reading; nothing at the end of the text.
  [[nodiscard]] std::optional<TextFault> fault() const { return fault_; }

 private:
  enum class FieldEnd { kSeparator, kRecord, kFault };

  void PassByteOrderMark();
  /// The next character, in which every line end is a line feed; nothing at the end.
  [[nodiscard]] std::optional<char> Next();
  [[nodiscard]] bool IsSeparator(char character);
  /// Reads a field from behind its first quote on.
  [[nodiscard]] FieldEnd ReadQuoted(std::string& field);
  /// Reads on from a character that is no part of quotes.
  [[nodiscard]] FieldEnd ReadPlain(std::optional<char> character, std::string& field);
  [[nodiscard]] bool Append(std::string& field, char character);
  FieldEnd Fail(TextFault fault);

  CharacterSource source_;
  TextLimits limits_;
  std::optional<char> separator_;
  // Read ahead to know a mark of byte order or CR LF; given out before the source is asked again.
  std::string ahead_;
  std::int64_t line_ = 1;
  std::optional<TextFault> fault_;
};

/// The fields as one record, without a line end. A field stands in quotes when it holds a
/// separator, a quote or a line end.
[[nodiscard]] std::string JoinFields(std::span<const std::string> fields, char separator = ',');

}  // namespace morlek
