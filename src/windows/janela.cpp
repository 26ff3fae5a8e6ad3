#include "windows/janela.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPainter>
#include <QPixmap>
#include <utility>

#include "windows/primary_screen.h"
#include "windows/window_metrics.h"

namespace tamrix {
namespace {

constexpr double kDefaultFontPoints = 10;

QFont DefaultFont() {
  QFont font(QStringLiteral("Courier New"));
  font.setStyleHint(QFont::TypeWriter);
  font.setHintingPreference(QFont::PreferFullHinting);
  font.setPixelSize(PointsToPixels(kDefaultFontPoints));
  return font;
}

bool IsClosingKey(const QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  const int key = static_cast<const QKeyEvent*>(event)->key();
  return key == Qt::Key_F6 || key == Qt::Key_Pause;
}

}  // namespace

Janela::Janela() : surface_(*this, "PARENT") {
  setWindowTitle(QStringLiteral("Tamrix - Window"));
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

  qApp->installEventFilter(this);
}

Janela::~Janela() { qApp->removeEventFilter(this); }

void Janela::SetClosingHandler(std::function<void()> handler) {
  closingHandler_ = std::move(handler);
}

void Janela::CloseAsUser() {
  if (closing_) return;
  closing_ = true;
  if (closingHandler_) closingHandler_();
}

void Janela::ShowNormal() {
  showNormal();
  raise();
  activateWindow();
}

bool Janela::SaveSnapshot(const QString& path) { return grab().save(path, "PNG"); }

void Janela::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), surface_.BackColor());
  painter.drawImage(0, 0, surface_.Image());
}

void Janela::resizeEvent(QResizeEvent* event) {
  surface_.Cover(width(), height());
  QWidget::resizeEvent(event);
}

void Janela::closeEvent(QCloseEvent* event) {
  CloseAsUser();
  event->accept();
}

bool Janela::eventFilter(QObject* watched, QEvent* event) {
  if (IsClosingKey(event) && ReceivesClosingKeys(watched)) {
    CloseAsUser();
    return true;
  }
  return QWidget::eventFilter(watched, event);
}

bool Janela::ReceivesClosingKeys(QObject* watched) const {
  const auto* widget = qobject_cast<const QWidget*>(watched);
  if (widget == nullptr) return false;
  const QWidget* top = widget->window();
  if (top == this) return true;
  return qobject_cast<const QMessageBox*>(top) != nullptr && top->parentWidget() == this;
}

}  // namespace tamrix
