#include "windows/input_replay.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>
#include <cstdio>
#include <fstream>
#include <sstream>

#include "controls/virtual_keys.h"
#include "core/codepage.h"
#include "windows/qt_desktop.h"

namespace tamrix {
namespace {

constexpr int kActionMilliseconds = 20;
// How long an action waits for its object or window to appear: a script may
// run ahead of a program that is slow to build its windows.
constexpr qint64 kPatienceMilliseconds = 5000;

Qt::MouseButton QtButton(int button) { return button == kRightButton ? Qt::RightButton : Qt::LeftButton; }

void SendMouse(QWidget& widget, QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons held) {
  QMouseEvent event(type, QPointF(at), QPointF(widget.mapToGlobal(at)), button, held, Qt::NoModifier);
  QCoreApplication::sendEvent(&widget, &event);
}

QEvent::Type MouseEventType(MouseAction action) {
  switch (action) {
    case MouseAction::Down: return QEvent::MouseButtonPress;
    case MouseAction::Move: return QEvent::MouseMove;
    case MouseAction::Up: return QEvent::MouseButtonRelease;
  }
  return QEvent::MouseMove;
}

// The key that types a character on a plain keyboard.
int QtKeyOfCharacter(QChar c) {
  const QChar upper = c.toUpper();
  if (upper >= QLatin1Char('A') && upper <= QLatin1Char('Z')) return Qt::Key_A + (upper.unicode() - 'A');
  if (c.unicode() >= 0x20 && c.unicode() < 0x7F) return c.unicode();  // Qt's codes for ASCII are the characters
  return Qt::Key_unknown;
}

// The text a key types: letters in lower case unless Shift is held.
QString TypedText(int qtKey, Qt::KeyboardModifiers modifiers) {
  if (modifiers.testFlag(Qt::ControlModifier)) return QString();
  if (qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z) {
    const QChar letter(static_cast<char16_t>('a' + (qtKey - Qt::Key_A)));
    return modifiers.testFlag(Qt::ShiftModifier) ? QString(letter.toUpper()) : QString(letter);
  }
  if (qtKey >= Qt::Key_Space && qtKey < 0x7F) return QString(QChar(static_cast<char16_t>(qtKey)));
  if (qtKey == Qt::Key_Return || qtKey == Qt::Key_Enter) return QStringLiteral("\r");
  return QString();
}

void Warn(const std::string& what) { std::fprintf(stderr, "tamrix: TAMRIX_INPUT: %s\n", what.c_str()); }

// While a modal window is up, the window system lets no input reach the
// others.
bool Blocked(const QWidget& widget) {
  const QWidget* modal = QApplication::activeModalWidget();
  return modal != nullptr && widget.window() != modal;
}

}  // namespace

InputReplay::InputReplay(QtDesktop& desktop, std::vector<InputAction> actions)
    : desktop_(desktop), pending_(actions.begin(), actions.end()) {
  timer_.setInterval(kActionMilliseconds);
  QObject::connect(&timer_, &QTimer::timeout, [this] { Tick(); });
}

void InputReplay::Start() {
  if (pending_.empty()) return;
  clock_.start();
  timer_.start();
}

void InputReplay::Tick() {
  if (clock_.elapsed() < nextAt_) return;
  if (pending_.empty()) {
    timer_.stop();
    return;
  }
  if (!TargetExists(pending_.front())) {
    if (waitingSince_ < 0) waitingSince_ = clock_.elapsed();
    if (clock_.elapsed() - waitingSince_ < kPatienceMilliseconds) return;
  }
  waitingSince_ = -1;
  const InputAction action = pending_.front();
  pending_.pop_front();
  if (action.kind == InputAction::Kind::Sleep) {
    nextAt_ = clock_.elapsed() + action.milliseconds;
    return;
  }
  // Restarting first lets the next action come while this one waits, as a
  // click that the program answers with a nested wait does.
  timer_.start();
  desktop_.Relay().Run([&] { Perform(action); });
}

bool InputReplay::TargetExists(const InputAction& action) const {
  const std::string name = Utf8ToCp1252Lossy(action.target);
  switch (action.kind) {
    case InputAction::Kind::Click:
    case InputAction::Kind::DoubleClick:
    case InputAction::Kind::Focus: return desktop_.ObjectWidget(name) != nullptr;
    case InputAction::Kind::ClickAt:
    case InputAction::Kind::Mouse:
    case InputAction::Kind::Close: return desktop_.WindowWidget(name) != nullptr;
    default: return true;
  }
}

void InputReplay::Perform(const InputAction& action) {
  const std::string name = Utf8ToCp1252Lossy(action.target);
  switch (action.kind) {
    case InputAction::Kind::Click:
    case InputAction::Kind::DoubleClick:
    case InputAction::Kind::Focus: {
      QWidget* control = desktop_.ObjectWidget(name);
      if (control == nullptr) return Warn("no object named " + action.target);
      if (Blocked(*control)) return Warn(action.target + " is behind a modal window");
      if (action.kind == InputAction::Kind::Focus) {
        control->window()->activateWindow();
        control->setFocus(Qt::OtherFocusReason);
        return;
      }
      return Click(*control, control->rect().center(), action.kind == InputAction::Kind::DoubleClick);
    }
    case InputAction::Kind::ClickAt:
    case InputAction::Kind::Mouse:
    case InputAction::Kind::Close: {
      QWidget* window = desktop_.WindowWidget(name);
      if (window == nullptr) return Warn("no window named " + action.target);
      if (Blocked(*window)) return Warn(action.target + " is behind a modal window");
      if (action.kind == InputAction::Kind::Close) {
        window->close();
        return;
      }
      QPoint at(action.x, action.y);
      QWidget& target = TargetAt(*window, at);
      if (action.kind == InputAction::Kind::ClickAt) return Click(target, at, false);
      const Qt::MouseButton button = QtButton(action.button);
      const bool move = action.mouse == MouseAction::Move;
      const bool held = action.mouse != MouseAction::Up;
      SendMouse(target, MouseEventType(action.mouse), at, move ? Qt::NoButton : button,
                held ? Qt::MouseButtons(button) : Qt::MouseButtons(Qt::NoButton));
      return;
    }
    case InputAction::Kind::Key: {
      Qt::KeyboardModifiers modifiers = Qt::NoModifier;
      if (action.shift == kShiftMask) modifiers = Qt::ShiftModifier;
      if (action.shift == kCtrlMask) modifiers = Qt::ControlModifier;
      const int key = QtKeyOf(action.code);
      return PressKey(key, modifiers, TypedText(key, modifiers));
    }
    case InputAction::Kind::Text:
      for (const QChar c : QString::fromStdString(action.text)) {
        const bool upper = c.isUpper();
        PressKey(QtKeyOfCharacter(c), upper ? Qt::ShiftModifier : Qt::NoModifier, QString(c));
      }
      return;
    case InputAction::Kind::Sleep: return;
  }
}

void InputReplay::Click(QWidget& widget, QPoint at, bool doubleClick) {
  SendMouse(widget, QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton);
  SendMouse(widget, QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton);
  if (!doubleClick) return;
  SendMouse(widget, QEvent::MouseButtonDblClick, at, Qt::LeftButton, Qt::LeftButton);
  SendMouse(widget, QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton);
}

void InputReplay::PressKey(int qtKey, Qt::KeyboardModifiers modifiers, const QString& text) {
  QWidget* target = KeyTarget();
  if (target == nullptr) return;
  QKeyEvent press(QEvent::KeyPress, qtKey, modifiers, text);
  QCoreApplication::sendEvent(target, &press);
  // The press may have moved the focus on (Enter as Tab): the key goes up
  // where it now is.
  target = KeyTarget();
  if (target == nullptr) return;
  QKeyEvent release(QEvent::KeyRelease, qtKey, modifiers, text);
  QCoreApplication::sendEvent(target, &release);
}

QWidget& InputReplay::TargetAt(QWidget& window, QPoint& at) {
  QWidget* child = window.childAt(at);
  if (child == nullptr) return window;
  at = child->mapFrom(&window, at);
  return *child;
}

// The control that has the focus, in the active window or else in the
// Current Window.
QWidget* InputReplay::KeyTarget() {
  if (QWidget* focus = QApplication::focusWidget()) return focus;
  QWidget* window = QApplication::activeWindow();
  if (window == nullptr) window = &desktop_.CurrentWindowWidget();
  QWidget* focus = window->focusWidget();
  return focus != nullptr ? focus : window;
}

std::vector<InputAction> ReadInputFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    Warn("can't read " + path);
    return {};
  }
  std::ostringstream text;
  text << file.rdbuf();
  std::vector<std::string> errors;
  std::vector<InputAction> actions = ParseInputScript(text.str(), errors);
  for (const std::string& error : errors) Warn(error);
  return actions;
}

}  // namespace tamrix
