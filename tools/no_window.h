#pragma once

#include "editor/message_port.h"

namespace morlek {

/// For programs that use an editor without showing anything.
class SilentMessages : public MessagePort {
 public:
  void Show(const Message& /*message*/) override {}
};

}  // namespace morlek
