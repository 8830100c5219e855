#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace morlek {

/// The answer of a codec.
struct CodecAnswer {
  /// Refers to the state of the codec: valid until its next call.
  std::string_view text;
  /// Whether `text` belongs to this very input.
  bool is_known = false;
};

/// The last result of a codec, kept for the whole run. For an input that it does not know, the
/// codec returns it again, whichever slot, field or team it came from. Empty before the first
/// result.
class LastResult {
 public:
  /// Answers with `result`, or with the last one when there is none.
  [[nodiscard]] CodecAnswer Answer(std::optional<std::string> result) {
    const bool is_known = result.has_value();
    if (is_known) text_ = *std::move(result);
    return {text_, is_known};
  }

 private:
  std::string text_;
};

}  // namespace morlek
