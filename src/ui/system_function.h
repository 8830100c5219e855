#pragma once

#include <QLibrary>

namespace morlek {

/// A function of a library that the toolkit has loaded for itself, so that the program need not
/// depend on it as well; nothing where there is none.
template <typename Function>
[[nodiscard]] Function* SystemFunction(const char* library, int version, const char* name) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): nothing else names its type.
  return reinterpret_cast<Function*>(QLibrary::resolve(library, version, name));
}

}  // namespace morlek
