#include "ui/window_ground.h"

#include <QColor>
#include <QGuiApplication>
#include <QWindow>
#include <cstdint>

#include "ui/system_function.h"

namespace morlek {

#if QT_CONFIG(xcb)

void SetWindowGround(const QWindow& window, const QColor& color) {
  // A platform without a screen can offer this as well, but its windows are not the server's.
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  if (x11 == nullptr || QGuiApplication::platformName() != "xcb") return;
  struct Cookie {
    unsigned sequence;
  };
  using ChangeAttributes = Cookie(xcb_connection_t * connection, std::uint32_t window,
                                  std::uint32_t which, const std::uint32_t* values);
  auto* const change_attributes =
      SystemFunction<ChangeAttributes>("xcb", 1, "xcb_change_window_attributes");
  if (change_attributes == nullptr) return;
  constexpr std::uint32_t kBackPixel = 2;
  const std::uint32_t pixel = color.rgb();
  change_attributes(x11->connection(), static_cast<std::uint32_t>(window.winId()), kBackPixel,
                    &pixel);
}

#else

void SetWindowGround(const QWindow& /*window*/, const QColor& /*color*/) {}

#endif

}  // namespace morlek
