#include "textfile/delimited_text.h"

#include <gtest/gtest.h>

#include "textfile/average_form.h"

namespace morlek {
namespace {

/// The records as one text, and what ended them: fields in brackets, each record with its line.
std::string Read(std::string_view text, TextLimits limits = {},
                 std::optional<char> separator = std::nullopt) {
  DelimitedReader reader(CharactersOf(text), limits, separator);
  TextRecord record;
  std::string read;
  while (reader.Read(record)) {
    read += std::to_string(record.line) + ":";
    for (const std::string& field : record.fields) read += "[" + field + "]";
    read += ' ';
  }
  if (reader.fault()) {
    read += "fault " + std::to_string(static_cast<int>(*reader.fault())) + " in line " +
            std::to_string(record.line);
  }
  return read;
}

TEST(DelimitedText, EndsOfLinesAndSeparators) {
  for (const std::string separator : {",", ";", "\t"}) {
    for (const std::string end : {"\r\n", "\n", "\r"}) {
      EXPECT_EQ(Read("a" + separator + "b" + end + end + separator + "c" + end),
                "1:[a][b] 2:[] 3:[][c] ");
    }
  }
  EXPECT_EQ(Read(""), "");
  EXPECT_EQ(Read("\xEF\xBB\xBF"
                 "a"),
            "1:[a] ");
  EXPECT_EQ(Read("\xEF\xBB"
                 "a"),
            "1:[\xEF\xBB"
            "a] ");
  EXPECT_EQ(Read("a;b,c\nd,e;f"), "1:[a][b,c] 2:[d,e][f] ") << "the first one counts";
  EXPECT_EQ(Read("\",;\"\tb"), "1:[,;][b] ") << "but not in quotes";
  EXPECT_EQ(Read("a,b\tc", {}, '\t'), "1:[a,b][c] ");
  EXPECT_EQ(Read("a\r\rb\n\rc"), "1:[a] 2:[] 3:[b] 4:[] 5:[c] ");
}

TEST(DelimitedText, Quotes) {
  EXPECT_EQ(Read("\"a\"\"b\",\"\",\"c\r\nd\"\nx\"y\",\"z\""), "1:[a\"b][][c\nd] 3:[x\"y\"][z] ");
  EXPECT_EQ(Read("a\n\"b\n\nc"), "1:[a] fault 1 in line 2");
  EXPECT_EQ(Read("\"a\"b"), "fault 2 in line 1");
  EXPECT_EQ(Read("\"a\" ,b"), "fault 2 in line 1");
}

TEST(DelimitedText, NothingGrowsBeyondItsLimits) {
  EXPECT_EQ(Read(std::string("a\nb\0c", 5)), "1:[a] fault 0 in line 2");
  EXPECT_EQ(Read(std::string("a,\"\0\"", 5)), "fault 0 in line 1");
  const TextLimits limits = {.field_characters = 3, .fields = 2};
  EXPECT_EQ(Read("abc,abc\nabcd", limits), "1:[abc][abc] fault 3 in line 2");
  EXPECT_EQ(Read("\"abcd\"", limits), "fault 1 in line 1") << "their end is most likely missing";
  EXPECT_EQ(Read("a,b\n\na,b,", limits), "1:[a][b] 2:[] fault 4 in line 3");
}

TEST(DelimitedText, WhatNeedsQuotesIsWrittenInThem) {
  const std::vector<std::string> fields = {"",     "a",  "b,c",  "d\"e", "f;g",
                                           "h\ti", "\"", "j\nk", " "};
  EXPECT_EQ(JoinFields(fields), ",a,\"b,c\",\"d\"\"e\",f;g,h\ti,\"\"\"\",\"j\nk\", ");
}

TEST(AverageForm, WhatASpreadsheetHasShortened) {
  using enum Column;
  for (const char* text : {"0.25", ",25", ".25", "0,250", ".250", "00.2500"}) {
    EXPECT_EQ(InAverageForm(kBattingAverage, text), ".250") << text;
  }
  EXPECT_EQ(InAverageForm(kBattingAverage, "0"), ".000");
  EXPECT_EQ(InAverageForm(kEarnedRunAverage, "3.5"), "3.50");
  EXPECT_EQ(InAverageForm(kEarnedRunAverage, "3"), "3.00");
  EXPECT_EQ(InAverageForm(kEarnedRunAverage, ",07"), "0.07");
  for (const char* text :
       {"", ".", ",", "1.25", ".2504", ".999", "300", "x", "-.25", ".2.5", " .25", "1e-1"}) {
    EXPECT_EQ(InAverageForm(kBattingAverage, text), text);
  }
  for (const char* text : {"", "12", "10.25", "3.456", "3 "}) {
    EXPECT_EQ(InAverageForm(kEarnedRunAverage, text), text);
  }
  EXPECT_EQ(InAverageForm(kHomeRuns, "3.5"), "3.5");
}

}  // namespace
}  // namespace morlek
