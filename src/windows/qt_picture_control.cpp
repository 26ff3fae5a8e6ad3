#include "windows/qt_picture_control.h"

#include "windows/picture_files.h"
#include "windows/window_surface.h"

namespace tamrix {

QtPictureControl::QtPictureControl(int index, WindowLookup lookup)
    : QtObjectControl(nullptr, ObjectKind::Picture, index, std::move(lookup)) {}

void QtPictureControl::SetSource(const PictureSource& source) {
  sprite_ = BuildSprite(PictureOf(source));
  box_ = sprite_.picture.size();
}

void QtPictureControl::PaintOn(Surface& surface, int x, int y) {
  auto* window = dynamic_cast<WindowSurface*>(&surface);
  if (window == nullptr || sprite_.picture.isNull()) return;
  const QRect box = QRect(QPoint(0, 0), box_).intersected(sprite_.picture.rect());
  window->DrawSprite(x, y, sprite_.mask, sprite_.picture, box);
}

}  // namespace tamrix
