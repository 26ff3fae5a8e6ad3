#include "windows/run_time_widget.h"

#include <QApplication>
#include <QEventLoop>
#include <QFile>
#include <QHideEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

#include "controls/virtual_keys.h"
#include "data/paths.h"
#include "windows/built_in_images.h"
#include "windows/colour_ref.h"
#include "windows/key_catcher.h"
#include "windows/picture_files.h"
#include "windows/primary_screen.h"
#include "windows/window_metrics.h"

namespace tamrix {
namespace {

constexpr double kDefaultFontPoints = 10;
// TxtAux stands this far beyond the right edge.
constexpr int kKeyCatcherOffsetTwips = 500;

QFont DefaultFont() {
  QFont font(QStringLiteral("Courier New"));
  font.setStyleHint(QFont::TypeWriter);
  font.setHintingPreference(QFont::PreferFullHinting);
  font.setPixelSize(PointsToPixels(kDefaultFontPoints));
  return font;
}

QString FileName(const std::string& path) { return QFile::decodeName(OsPath(path).c_str()); }

int ButtonsHeld(Qt::MouseButtons buttons) {
  return (buttons.testFlag(Qt::LeftButton) ? 1 : 0) | (buttons.testFlag(Qt::RightButton) ? 2 : 0) |
         (buttons.testFlag(Qt::MiddleButton) ? 4 : 0);
}

}  // namespace

RunTimeWidget::RunTimeWidget(WindowClass kind, std::string name)
    : kind_(kind),
      surface_(*this, std::move(name)),
      keyCatcher_(new KeyCatcher(this)),
      sizable_(kind == WindowClass::Janela || kind == WindowClass::Form1),
      minMaxButtons_(sizable_),
      controlBox_(kind != WindowClass::Form3) {
  setWindowTitle(kind == WindowClass::Janela ? QStringLiteral("Tamrix - Window") : QStringLiteral("Tamrix"));
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFocusPolicy(Qt::StrongFocus);

  const QPalette colours = QApplication::palette();
  surface_.SetBackColor(colours.color(QPalette::Button));
  surface_.SetForeColor(colours.color(QPalette::ButtonText));
  surface_.SetFont(DefaultFont());
  setFont(surface_.Font());

  const PixelRect client =
      CentredClientRect(kMainWindowWidthTwips, kMainWindowHeightTwips, PrimaryScreenSize());
  setGeometry(client.left, client.top, client.width, client.height);
  surface_.Cover(client.width, client.height);
  ApplyWindowFlags();
  ApplySizeLimits();
  PlaceKeyCatcher();
}

void RunTimeWidget::SetRelay(const EventRelay* relay) {
  relay_ = relay;
  keyCatcher_->SetRelay(relay);
}

void RunTimeWidget::Show() {
  if (!isActiveWindow()) ownActivationPending_ = true;
  showNormal();
  raise();
  activateWindow();
}

void RunTimeWidget::ShowModal() {
  QPointer<RunTimeWidget> self(this);
  if (isVisible()) hide();  // modality can only change while hidden
  setWindowModality(Qt::ApplicationModal);
  Show();
  if (isVisible()) {
    QEventLoop loop;
    connect(this, &RunTimeWidget::Hidden, &loop, &QEventLoop::quit);
    connect(this, &QObject::destroyed, &loop, &QEventLoop::quit);
    loop.exec();
  }
  if (self) setWindowModality(Qt::NonModal);
}

TwipRect RunTimeWidget::Outer() const {
  const QRect client = geometry();
  return {(client.x() - kFrameBorderPixels) * kTwipsPerPixel,
          (client.y() - kFrameBorderPixels - kTitleBarPixels) * kTwipsPerPixel,
          (client.width() + 2 * kFrameBorderPixels) * kTwipsPerPixel,
          (client.height() + 2 * kFrameBorderPixels + kTitleBarPixels) * kTwipsPerPixel};
}

void RunTimeWidget::SetOuter(const TwipRect& rect) {
  const PixelSize client = ClientSizeForOuter(rect.width, rect.height);
  const int left = TwipsToPixels(rect.left) + kFrameBorderPixels;
  const int top = TwipsToPixels(rect.top) + kFrameBorderPixels + kTitleBarPixels;
  if (!sizable_) setFixedSize(client.width, client.height);
  setGeometry(left, top, client.width, client.height);
}

void RunTimeWidget::SetSizable(bool sizable) {
  sizable_ = sizable;
  minMaxButtons_ = sizable;
  ApplyWindowFlags();
  ApplySizeLimits();
}

void RunTimeWidget::SetControlBox(bool on) {
  controlBox_ = on;
  ApplyWindowFlags();
}

void RunTimeWidget::SetBorderStyle(int style) {
  frameless_ = style == 0;
  sizable_ = false;
  ApplyWindowFlags();
  ApplySizeLimits();
}

// Qt reads icons but no cursor files (.cur, .ani).
void RunTimeWidget::SetMouseIcon(const std::string& path) {
  const QPixmap icon = path.empty() ? QPixmap() : QPixmap(FileName(path));
  if (icon.isNull()) {
    unsetCursor();
  } else {
    setCursor(QCursor(icon));
  }
}

void RunTimeWidget::SetBackColor(std::int32_t colour) {
  surface_.SetBackColor(ScreenColour(colour));
  surface_.Clear();
}

bool RunTimeWidget::SetPicture(const std::string& path) {
  const QImage picture = path.empty() ? QImage() : ReadPictureFile(path);
  if (!path.empty() && picture.isNull()) return false;
  surface_.SetPicture(picture);
  surface_.Clear();
  return true;
}

bool RunTimeWidget::PaintPicture(const std::string& path, int x, int y) {
  const QImage picture = ReadPictureFile(path);
  if (picture.isNull()) return false;
  surface_.DrawPicture(x, y, picture);
  return true;
}

bool RunTimeWidget::SetBuiltInPicture(int number) {
  const QImage picture = BuiltInImage(number);
  if (picture.isNull()) return false;
  surface_.SetPicture(picture);
  surface_.Clear();
  return true;
}

void RunTimeWidget::FocusKeyCatcher() {
  keyCatcher_->show();
  keyCatcher_->setFocus(Qt::OtherFocusReason);
}

void RunTimeWidget::Deliver(const EventRelay::Event& event) const {
  if (relay_ != nullptr) relay_->Deliver(event);
}

void RunTimeWidget::OnMouse(MouseAction /*action*/, int /*buttons*/, int /*x*/, int /*y*/) {}

bool RunTimeWidget::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) {
    if (ownActivationPending_) {
      ownActivationPending_ = false;
    } else {
      Deliver([this](Interpreter& in) { OnWindowFocus(in, *this); });
    }
  }
  return QWidget::event(event);
}

void RunTimeWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), surface_.BackColor());
  painter.drawImage(0, 0, surface_.Image());
}

void RunTimeWidget::resizeEvent(QResizeEvent* event) {
  surface_.Cover(width(), height());
  PlaceKeyCatcher();
  QWidget::resizeEvent(event);
  Deliver([this](Interpreter& in) { OnWindowResize(in, *this); });
}

void RunTimeWidget::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  if (!event->spontaneous() && !changingFlags_) emit Hidden();
}

// A press on a window that is not active makes it active, as the window
// system does for a click of the user.
void RunTimeWidget::mousePressEvent(QMouseEvent* event) {
  ownActivationPending_ = false;
  if (!isActiveWindow()) activateWindow();
  if (event->button() == Qt::LeftButton) leftPressed_ = true;
  const QPoint at = event->position().toPoint();
  OnMouse(MouseAction::Down, MouseButtonCode(event->button()), at.x(), at.y());
}

void RunTimeWidget::mouseMoveEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  OnMouse(MouseAction::Move, ButtonsHeld(event->buttons()), at.x(), at.y());
}

// The click comes with the release of the left button that was pressed
// here; the release after a double click makes none.
void RunTimeWidget::mouseReleaseEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  OnMouse(MouseAction::Up, MouseButtonCode(event->button()), at.x(), at.y());
  if (event->button() != Qt::LeftButton) return;
  const bool click = leftPressed_ && !afterDoubleClick_ && rect().contains(at);
  leftPressed_ = false;
  afterDoubleClick_ = false;
  if (click) Deliver([](Interpreter& in) { OnWindowClick(in, false); });
}

void RunTimeWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  afterDoubleClick_ = true;
  Deliver([](Interpreter& in) { OnWindowClick(in, true); });
}

// A window without border has no title bar, so none of its buttons either.
void RunTimeWidget::ApplyWindowFlags() {
  Qt::WindowFlags flags = Qt::Window | Qt::CustomizeWindowHint;
  if (frameless_) {
    flags |= Qt::FramelessWindowHint;
  } else {
    flags |= Qt::WindowTitleHint;
    if (controlBox_) flags |= Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    if (minMaxButtons_) flags |= Qt::WindowMinMaxButtonsHint;
  }
  if (flags == windowFlags()) return;
  const bool shown = isVisible();
  // Qt hides the window to change its flags; that is no hiding of the
  // program's, and a modal wait on the window goes on.
  changingFlags_ = true;
  setWindowFlags(flags);
  changingFlags_ = false;
  if (shown) Show();
}

void RunTimeWidget::ApplySizeLimits() {
  if (sizable_) {
    setMinimumSize(0, 0);
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  } else {
    setFixedSize(size());
  }
}

void RunTimeWidget::PlaceKeyCatcher() {
  keyCatcher_->move(width() + TwipsToPixels(kKeyCatcherOffsetTwips), 0);
}

}  // namespace tamrix
