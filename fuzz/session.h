#pragma once

#include <cstdint>
#include <span>

namespace morlek::fuzz {

/// Hands out bytes one after the other; zeros when they are used up.
class Script {
 public:
  explicit Script(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

  [[nodiscard]] bool is_over() const { return bytes_.empty(); }

  std::uint8_t Byte();
  std::span<const std::uint8_t> Bytes(std::size_t count);
  std::size_t Below(std::size_t count) { return (Byte() * 256U + Byte()) % count; }
  bool OneInTwo() { return Byte() % 2 == 1; }

 private:
  std::span<const std::uint8_t> bytes_;
};

/// Plays a session in an editor over two images in memory: steps of all kinds as bytes choose them,
/// with several teams, then back to the very beginning and on to the very end. Throws when a
/// promise that is checked on the way does not hold.
void PlaySession(std::span<const std::uint8_t> script);

}  // namespace morlek::fuzz
