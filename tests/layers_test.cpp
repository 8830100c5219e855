#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace morlek {
namespace {

namespace fs = std::filesystem;

const fs::path kSources = MORLEK_SOURCE_FOLDER;

// What each folder of src/ may include beside itself.
const std::map<std::string, std::set<std::string>> kBelow = {
    {"image", {}},
    {"codecs", {"image"}},
    {"team", {"image", "codecs"}},
    {"textfile", {"image", "codecs", "team"}},
    {"editor", {"image", "codecs", "team", "textfile"}},
    {"league", {"image", "codecs", "team", "textfile"}},
    {"cli", {"image", "codecs", "team", "textfile", "league"}},
    {"art", {}},
    {"ui", {}},
    {"shell", {"image", "codecs", "team", "textfile", "editor", "art", "ui"}}};
const std::set<std::string> kKnowsQt = {"art", "ui", "shell"};
// Headers that the build writes, or that only one system has.
const std::map<std::string, std::set<std::string>> kSpecial = {{"\"version.h\"", {"shell", "cli"}},
                                                               {"<CLI/CLI.hpp>", {"cli"}},
                                                               {"<fcntl.h>", {"cli"}},
                                                               {"<io.h>", {"cli"}},
                                                               {"<windows.h>", {"ui"}}};

std::string_view AfterBlanks(std::string_view text) {
  return text.substr(std::min(text.find_first_not_of(" \t"), text.size()));
}

/// The header that a line includes, between its quotes or brackets; empty when none follows,
/// nothing when the line includes nothing.
std::optional<std::string_view> Included(std::string_view line) {
  constexpr std::string_view kInclude = "include";
  std::string_view rest = AfterBlanks(line);
  if (!rest.starts_with('#')) return std::nullopt;
  rest = AfterBlanks(rest.substr(1));
  if (!rest.starts_with(kInclude)) return std::nullopt;
  rest = AfterBlanks(rest.substr(kInclude.size()));
  return rest.substr(0, rest.find_first_of(">\"", 1) + 1);
}

bool IsMadeOf(std::string_view text, std::string_view characters) {
  return !text.empty() && text.find_first_not_of(characters) == std::string_view::npos;
}

/// Whether a file in `layer` may contain `line`; lines that include nothing always may stand.
bool MayStand(const std::string& layer, std::string_view line) {
  const std::optional<std::string_view> header = Included(line);
  if (!header) return true;
  const auto special = kSpecial.find(std::string(*header));
  if (special != kSpecial.end()) return special->second.contains(layer);
  if (header->size() < 3) return false;
  const std::string_view name = header->substr(1, header->size() - 2);
  const std::string small_letters = "abcdefghijklmnopqrstuvwxyz";
  if (header->starts_with('<') && header->ends_with('>')) {
    const bool is_toolkit =
        name.starts_with('Q') && IsMadeOf(name, small_letters + "ABCDEFGHIJKLMNOPQRSTUVWXYZ");
    return IsMadeOf(name, small_letters + "_") || (is_toolkit && kKnowsQt.contains(layer));
  }
  const fs::path file = name;
  const std::string folder = file.parent_path().string();
  return header->starts_with('"') && header->ends_with('"') &&
         IsMadeOf(name, small_letters + "_/.") && file.extension() == ".h" &&
         (folder == layer || kBelow.at(layer).contains(folder)) && exists(kSources / file);
}

TEST(Layers, EveryIncludeFollowsTheArrows) {
  std::set<std::string> seen;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(kSources)) {
    const std::string extension = entry.path().extension().string();
    if (extension != ".h" && extension != ".cpp") continue;
    const fs::path file = entry.path().lexically_relative(kSources);
    const std::string layer = file.begin()->string();
    ASSERT_TRUE(kBelow.contains(layer)) << file << " stands in no layer";
    seen.insert(layer);
    std::ifstream text(entry.path());
    for (std::string line; std::getline(text, line);) {
      EXPECT_TRUE(MayStand(layer, line)) << file << " may not say " << line;
    }
  }
  EXPECT_EQ(seen.size(), kBelow.size());
}

TEST(Layers, ArrowsTurnedRoundAndOddIncludesAreRefused) {
  EXPECT_TRUE(MayStand("team", "#include \"image/channel.h\""));
  for (const std::string header :
       {"\"codecs/hex_text.h\"", "\"../team/roster_grid.h\"", "\"image/no_such_header.h\"",
        "\"channel.h\"", "HEADER", "<QString>", "<windows.h>", "<sys/stat.h>"}) {
    EXPECT_FALSE(MayStand("image", "  #  include " + header + " // only for now")) << header;
  }
}

}  // namespace
}  // namespace morlek
