#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace morlek::fuzz {

/// Imports a table into an image. It is refused with a reason, and nothing is written; or an export
/// shows the edits and nothing else, and what has changed are the bytes that SAVE writes for them.
/// True when it was taken. A promise that is broken throws.
bool ImportSeason(std::vector<std::uint8_t>& image, const std::string& table);

/// The table of all teams of an image. Imported again, it has to change nothing.
[[nodiscard]] std::string ExportSeason(std::vector<std::uint8_t>& image);

}  // namespace morlek::fuzz
