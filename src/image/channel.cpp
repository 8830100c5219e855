#include "image/channel.h"

#include <fstream>
#include <string>
#include <system_error>
#include <utility>

#include "image/failure.h"

namespace morlek {
namespace {

using Traits = std::streambuf::traits_type;

/// Runs one read and returns its result. A device reports a failed read by an exception of the
/// standard library, and the end of the file by its end value.
template <typename Read>
std::optional<char> ReadOrEnd(Read read) {
  try {
    const Traits::int_type result = read();
    if (Traits::eq_int_type(result, Traits::eof())) return std::nullopt;
    return Traits::to_char_type(result);
  } catch (const std::ios_base::failure&) {
    throw OperationFailed("The file could not be read.");
  }
}

class DiskFile : public File {
 public:
  std::streambuf& bytes() override { return buffer; }
  bool Close() override { return buffer.close() != nullptr; }

  std::filebuf buffer;
};

}  // namespace

std::unique_ptr<File> OpenFile(const std::filesystem::path& path, std::ios_base::openmode mode) {
  std::error_code ignored;
  const auto type = std::filesystem::status(path, ignored).type();
  using enum std::filesystem::file_type;
  const bool is_read = (mode & std::ios_base::in) != 0;
  if (is_read ? type != regular : type == directory || type == fifo || type == socket) {
    return nullptr;
  }

  auto file = std::make_unique<DiskFile>();
  const bool is_text_input = (mode & (std::ios_base::out | std::ios_base::binary)) == 0;
  if (!is_text_input) file->buffer.pubsetbuf(nullptr, 0);
  if (file->buffer.open(path, mode | std::ios_base::binary) == nullptr) return nullptr;
  return file;
}

Channel::Channel(FileOpener opener) : opener_(std::move(opener)) {}

bool Channel::OpenBinary(const std::filesystem::path& path) {
  return Open(path, Mode::kBinary, std::ios_base::in | std::ios_base::out);
}

bool Channel::OpenBinaryForReading(const std::filesystem::path& path) {
  return Open(path, Mode::kBinary, std::ios_base::in | std::ios_base::binary);
}

bool Channel::OpenTextInput(const std::filesystem::path& path) {
  return Open(path, Mode::kTextInput, std::ios_base::in);
}

bool Channel::OpenTextOutput(const std::filesystem::path& path) {
  return Open(path, Mode::kTextOutput, std::ios_base::out | std::ios_base::trunc);
}

bool Channel::Close() {
  const bool closed = !is_open() || file_->Close();
  file_.reset();
  mode_ = Mode::kClosed;
  return closed;
}

std::uint8_t Channel::ReadByte(std::int64_t position) {
  Require(Mode::kBinary);
  if (!Seek(position)) throw OperationFailed("The position could not be reached.");
  const std::optional<char> byte = ReadOrEnd([this] { return file_->bytes().sgetc(); });
  return static_cast<std::uint8_t>(byte.value_or('\0'));
}

bool Channel::WriteByte(std::int64_t position, std::uint8_t value) {
  if (mode_ != Mode::kBinary || !Seek(position)) return false;
  const auto written = file_->bytes().sputc(static_cast<char>(value));
  return !Traits::eq_int_type(written, Traits::eof());
}

std::optional<char> Channel::ReadCharacter() {
  Require(Mode::kTextInput);
  return ReadOrEnd([this] { return file_->bytes().sbumpc(); });
}

std::optional<char> Channel::PeekCharacter() {
  Require(Mode::kTextInput);
  return ReadOrEnd([this] { return file_->bytes().sgetc(); });
}

void Channel::WriteLine(std::string_view text) {
  Require(Mode::kTextOutput);
  const std::string line = std::string(text) + "\r\n";
  const auto length = static_cast<std::streamsize>(line.size());
  std::streambuf& bytes = file_->bytes();
  if (bytes.sputn(line.data(), length) != length || bytes.pubsync() != 0) {
    throw OperationFailed("The file could not be written.");
  }
}

bool Channel::Open(const std::filesystem::path& path, Mode mode, std::ios_base::openmode flags) {
  if (is_open()) return false;
  file_ = opener_(path, flags);
  if (!is_open()) return false;
  mode_ = mode;
  return true;
}

bool Channel::Seek(std::int64_t position) {
  const std::streamoff offset = position - 1;
  return offset >= 0 && std::streamoff(file_->bytes().pubseekpos(offset)) == offset;
}

void Channel::Require(Mode mode) const {
  if (mode_ != mode) throw OperationFailed("The file is not open.");
}

}  // namespace morlek
