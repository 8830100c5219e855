#include "editor/editor.h"

#include <utility>

#include "codecs/hex_text.h"
#include "image/failure.h"

namespace morlek {

Editor::Editor(MessagePort& messages, FileOpener opener)
    : channel(std::move(opener)),
      image(channel),
      codecs(messages),
      loader(image, codecs, grid),
      saver(image, codecs, grid, messages) {}

Editor::Opening Editor::OpenFirstImage(const std::filesystem::path& path) {
  std::uint8_t identity = 0;
  try {
    identity = image.ReadIdentityByte(path);
  } catch (const OperationFailed&) {
    image.Close();
  }
  return Judge(path, identity);
}

Editor::Opening Editor::OpenAnotherImage(const std::filesystem::path& path) {
  return Judge(path, image.ReadIdentityByte(path));
}

Editor::Opening Editor::Judge(const std::filesystem::path& path, std::uint8_t identity) {
  identity_text_ = ByteToText(identity);
  if (identity_text_ != ByteToText(kIdentityByte)) return Opening::kRefused;
  image.SetPath(path);
  return Opening::kAccepted;
}

}  // namespace morlek
