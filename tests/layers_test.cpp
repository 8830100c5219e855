#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>

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

/// Whether a file in `layer` may contain `line`; lines that include nothing always may stand.
bool MayStand(const std::string& layer, const std::string& line) {
  static const std::regex include(R"(\s*#\s*include\b\s*(["<][^">]*[">])?.*)");
  static const std::regex system("<(Q[A-Za-z]+|[a-z_]+)>");
  static const std::regex own("\"([a-z_]+)/[a-z_]+[.]h\"");
  std::smatch match;
  if (line.find('#') == std::string::npos || !std::regex_match(line, match, include)) return true;
  const std::string header = match[1];
  const auto special = kSpecial.find(header);
  if (special != kSpecial.end()) return special->second.contains(layer);
  if (std::regex_match(header, match, system)) {
    return header[1] != 'Q' || kKnowsQt.contains(layer);
  }
  return std::regex_match(header, match, own) &&
         (match[1] == layer || kBelow.at(layer).contains(match[1])) &&
         exists(kSources / header.substr(1, header.size() - 2));
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

}  // namespace
}  // namespace morlek
