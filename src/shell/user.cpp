#include "shell/user.h"

#include "shell/code_page_text.h"

namespace morlek {

void User::Show(const Message& message) {
  ShowMessage(FromCodePage(message.text), FromCodePage(message.title), message.icon);
}

}  // namespace morlek
