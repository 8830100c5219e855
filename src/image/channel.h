#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <ios>
#include <memory>
#include <optional>
#include <streambuf>
#include <string_view>

namespace morlek {

/// An open file: its bytes, and closing it, which can fail as well. Destroying it closes it.
class File {
 public:
  virtual ~File() = default;

  /// The bytes, for as long as the file lives.
  [[nodiscard]] virtual std::streambuf& bytes() = 0;

  /// False when the system reports that something written may be lost. Either way the file is
  /// closed.
  [[nodiscard]] virtual bool Close() = 0;
};

/// Opens `path` in `mode`; null when that fails. Tests replace it by one that fails.
using FileOpener = std::function<std::unique_ptr<File>(const std::filesystem::path& path,
                                                       std::ios_base::openmode mode)>;

/// The opener of the real program. It reads regular files only and never writes to a folder, a pipe
/// or a socket, which might block the program. Only text that is read is buffered; a file that is
/// only read is text unless `mode` says binary.
[[nodiscard]] std::unique_ptr<File> OpenFile(const std::filesystem::path& path,
                                             std::ios_base::openmode mode);

/// File channel 1, through which the program does all its file access, one file at a time.
/// Opening it while it is open fails, so an operation that ends without closing it makes the later
/// ones fail until something closes it. This is intended.
class Channel {
 public:
  /// A closed channel that opens its files by `opener`.
  explicit Channel(FileOpener opener = OpenFile);

  /// Opens an existing file for reading and writing single bytes. Never creates a file.
  /// False when the channel is open already or the file cannot be opened for both.
  [[nodiscard]] bool OpenBinary(const std::filesystem::path& path);

  /// Opens an existing file for reading single bytes alone; false as above. It may be one that may
  /// not be written.
  [[nodiscard]] bool OpenBinaryForReading(const std::filesystem::path& path);

  /// Opens an existing file for reading text; false as above.
  [[nodiscard]] bool OpenTextInput(const std::filesystem::path& path);

  /// Creates or empties a file for writing text; false as above, and then nothing is created.
  [[nodiscard]] bool OpenTextOutput(const std::filesystem::path& path);

  /// Closes the channel; harmless when nothing is open. False when that failed, as a file in a
  /// network can fail to take what was written; the channel is closed even then.
  bool Close();

  [[nodiscard]] bool is_open() const { return file_ != nullptr; }
  [[nodiscard]] bool is_open_for_text() const {
    return mode_ == Mode::kTextInput || mode_ == Mode::kTextOutput;
  }

  /// The byte at a 1-based position of a binary file; 0 past the end of the file.
  /// Throws OperationFailed when the channel is not open for bytes or the read fails.
  [[nodiscard]] std::uint8_t ReadByte(std::int64_t position);

  /// Writes the byte at a 1-based position of a binary file; false when that fails. Past the end
  /// the file grows, and the bytes in between read as 0, as they did before.
  [[nodiscard]] bool WriteByte(std::int64_t position, std::uint8_t value);

  /// The next character of a text file, or nothing at its end. Throws OperationFailed when the
  /// channel is not open for reading text or the read fails.
  [[nodiscard]] std::optional<char> ReadCharacter();

  /// The character that ReadCharacter would return next, which stays unread; fails as it does.
  [[nodiscard]] std::optional<char> PeekCharacter();

  /// Writes the text and a carriage return and line feed, all the way to the system.
  /// Throws OperationFailed when the channel is not open for writing text or the write fails.
  void WriteLine(std::string_view text);

 private:
  enum class Mode { kClosed, kBinary, kTextInput, kTextOutput };

  [[nodiscard]] bool Open(const std::filesystem::path& path, Mode mode,
                          std::ios_base::openmode flags);
  [[nodiscard]] bool Seek(std::int64_t position);
  void Require(Mode mode) const;

  FileOpener opener_;
  Mode mode_ = Mode::kClosed;
  std::unique_ptr<File> file_;
};

}  // namespace morlek
