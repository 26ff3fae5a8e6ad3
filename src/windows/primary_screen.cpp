#include "windows/primary_screen.h"

#include <QGuiApplication>
#include <QScreen>

namespace tamrix {

PixelSize PrimaryScreenSize() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return {};
  return {screen->geometry().width(), screen->geometry().height()};
}

}  // namespace tamrix
