#include "textfile/delimited_text.h"

#include <algorithm>
#include <utility>

namespace morlek {
namespace {

constexpr char kQuote = '"';

void AppendField(std::string& record, std::string_view field, char separator) {
  const bool is_quoted = field.find_first_of("\"\r\n") != std::string_view::npos ||
                         field.find(separator) != std::string_view::npos;
  if (!is_quoted) {
    record += field;
    return;
  }
  record += kQuote;
  for (const char character : field) {
    if (character == kQuote) record += kQuote;
    record += character;
  }
  record += kQuote;
}

}  // namespace

CharacterSource CharactersOf(std::string_view text) {
  return [text]() mutable -> std::optional<char> {
    if (text.empty()) return std::nullopt;
    const char first = text.front();
    text.remove_prefix(1);
    return first;
  };
}

bool TextRecord::is_empty() const {
  return std::ranges::all_of(fields, [](const std::string& field) { return field.empty(); });
}

DelimitedReader::DelimitedReader(CharacterSource source, TextLimits limits,
                                 std::optional<char> separator)
    : source_(std::move(source)), limits_(limits), separator_(separator) {
  PassByteOrderMark();
}

void DelimitedReader::PassByteOrderMark() {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  while (ahead_.size() < kMark.size()) {
    const std::optional<char> character = source_();
    if (!character) break;
    ahead_ += *character;
    if (!kMark.starts_with(ahead_)) break;
  }
  if (ahead_ == kMark) ahead_.clear();
}

std::optional<char> DelimitedReader::Next() {
  const auto take = [this]() -> std::optional<char> {
    if (ahead_.empty()) return source_();
    const char first = ahead_.front();
    ahead_.erase(0, 1);
    return first;
  };
  std::optional<char> character = take();
  if (character == '\r') {
    const std::optional<char> behind = take();
    if (behind && behind != '\n') ahead_.insert(0, 1, *behind);
    character = '\n';
  }
  if (character == '\n') ++line_;
  if (character == '\0') Fail(TextFault::kNul);
  return character;
}

bool DelimitedReader::Read(TextRecord& record) {
  record.line = line_;
  record.fields.clear();
  std::optional<char> first = Next();
  FieldEnd end = first ? FieldEnd::kSeparator : FieldEnd::kFault;
  while (end == FieldEnd::kSeparator) {
    if (record.fields.size() == limits_.fields) {
      end = Fail(TextFault::kTooManyFields);
      break;
    }
    std::string& field = record.fields.emplace_back();
    end = first == kQuote ? ReadQuoted(field) : ReadPlain(first, field);
    if (end == FieldEnd::kSeparator) first = Next();
  }
  return end == FieldEnd::kRecord;
}

bool DelimitedReader::IsSeparator(char character) {
  constexpr std::string_view kSeparators = ",;\t";
  if (!separator_ && kSeparators.find(character) != std::string_view::npos) separator_ = character;
  return separator_ == character;
}

DelimitedReader::FieldEnd DelimitedReader::ReadQuoted(std::string& field) {
  while (true) {
    const std::optional<char> character = Next();
    if (!character) return Fail(TextFault::kUnendedQuotes);
    if (character == kQuote) {
      const std::optional<char> behind = Next();
      if (behind != kQuote) {
        std::string rest;
        const FieldEnd end = ReadPlain(behind, rest);
        return rest.empty() ? end : Fail(TextFault::kTextBehindQuotes);
      }
    }
    // What is too long in quotes has most likely lost their end.
    if (!Append(field, *character)) return Fail(TextFault::kUnendedQuotes);
  }
}

DelimitedReader::FieldEnd DelimitedReader::ReadPlain(std::optional<char> character,
                                                     std::string& field) {
  for (; character && character != '\n'; character = Next()) {
    if (IsSeparator(*character)) return FieldEnd::kSeparator;
    if (!Append(field, *character)) return Fail(TextFault::kFieldTooLong);
  }
  return FieldEnd::kRecord;
}

bool DelimitedReader::Append(std::string& field, char character) {
  if (fault_ || field.size() == limits_.field_characters) return false;
  field += character;
  return true;
}

DelimitedReader::FieldEnd DelimitedReader::Fail(TextFault fault) {
  // The first one counts.
  if (!fault_) fault_ = fault;
  return FieldEnd::kFault;
}

std::string JoinFields(std::span<const std::string> fields, char separator) {
  std::string record;
  for (const std::string& field : fields) {
    if (&field != &fields.front()) record += separator;
    AppendField(record, field, separator);
  }
  return record;
}

}  // namespace morlek
