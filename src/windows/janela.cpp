#include "windows/janela.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPixmap>
#include <utility>

namespace tamrix {
namespace {

bool IsClosingKey(const QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  const int key = static_cast<const QKeyEvent*>(event)->key();
  return key == Qt::Key_F6 || key == Qt::Key_Pause;
}

}  // namespace

Janela::Janela() : RunTimeWidget(WindowClass::Janela, "PARENT") {
  // Moves count without a button held, too.
  setMouseTracking(true);
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

bool Janela::SaveSnapshot(const QString& path) { return grab().save(path, "PNG"); }

void Janela::OnMouse(MouseAction action, int buttons, int x, int y) {
  Deliver([=](Interpreter& in) { OnMainWindowMouse(in, action, buttons, x, y); });
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
