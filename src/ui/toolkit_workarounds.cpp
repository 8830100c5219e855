#include "ui/toolkit_workarounds.h"

#include <QColor>
#include <QGuiApplication>
#include <QLibrary>
#include <QSettings>
#include <QWindow>
#include <cstdint>

namespace morlek {

void KeepNoSettings() {
  // No file can be below this path.
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, "/dev/null");
}

#if QT_CONFIG(xcb)

namespace {

/// A function of a library that the toolkit has loaded for itself, so that the program need not
/// depend on it as well; null where there is none.
template <typename Function>
Function* SystemFunction(const char* library, const char* name) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): nothing else names its type.
  return reinterpret_cast<Function*>(QLibrary::resolve(library, 1, name));
}

}  // namespace

std::jthread ReadSystemFonts() {
  auto* const read = SystemFunction<int()>("fontconfig", "FcInit");
  return read == nullptr ? std::jthread() : std::jthread(read);
}

void SetWindowBackground(const QWindow& window, const QColor& color) {
  // A platform without a screen can offer this as well, but its windows are not the server's.
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  if (x11 == nullptr || QGuiApplication::platformName() != "xcb") return;
  struct Cookie {
    unsigned sequence;
  };
  using ChangeAttributes = Cookie(xcb_connection_t * connection, std::uint32_t window,
                                  std::uint32_t which, const std::uint32_t* values);
  auto* const change_attributes =
      SystemFunction<ChangeAttributes>("xcb", "xcb_change_window_attributes");
  if (change_attributes == nullptr) return;
  constexpr std::uint32_t kBackPixel = 2;
  const std::uint32_t pixel = color.rgb();
  change_attributes(x11->connection(), static_cast<std::uint32_t>(window.winId()), kBackPixel,
                    &pixel);
}

#else

std::jthread ReadSystemFonts() { return {}; }

void SetWindowBackground(const QWindow& /*window*/, const QColor& /*color*/) {}

#endif

}  // namespace morlek
