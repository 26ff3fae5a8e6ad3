// Keys on the Qt windows reach the core's key tables: TxtAux takes downs
// and ups, a Form's own key up writes the older codes, and Enter at TxtAux
// is a key down before it moves the focus on.
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <gtest/gtest.h>

#include "core/interpreter.h"
#include "windows/form.h"
#include "windows/janela.h"
#include "windows/qt_desktop.h"

namespace tamrix {
namespace {

void SendKey(QWidget& target, QEvent::Type type, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  QKeyEvent event(type, key, modifiers);
  QApplication::sendEvent(&target, &event);
}

class WindowKeysTest : public testing::Test {
 protected:
  WindowKeysTest() : desktop(janela), core(desktop, trace, answers) {
    desktop.Relay().Attach(core, [](const std::function<void()>& work) { work(); });
    StartWindowSystem(core);
  }

  const std::string& KeyState(std::size_t i) { return core.Input().keys.keyState[i]; }
  const std::string& CodeState(std::size_t code) { return core.Input().keys.codeState[code]; }

  Janela janela;
  QtDesktop desktop;
  Trace trace;
  ScriptedAnswers answers;
  Interpreter core;
};

TEST_F(WindowKeysTest, TheKeyCatcherWritesDownsAndUps) {
  janela.FocusKeyCatcher();
  QWidget* catcher = janela.focusWidget();
  ASSERT_NE(catcher, nullptr);
  SendKey(*catcher, QEvent::KeyPress, Qt::Key_A, Qt::ShiftModifier);
  EXPECT_EQ(core.Mail().lastKey, "65SHIFT");
  EXPECT_EQ(CodeState(65), "65+");
  SendKey(*catcher, QEvent::KeyPress, Qt::Key_Left);
  EXPECT_EQ(KeyState(0), "L+");
  SendKey(*catcher, QEvent::KeyRelease, Qt::Key_Left);
  EXPECT_EQ(KeyState(0), "L-");
  EXPECT_EQ(CodeState(37), "37-");
}

TEST_F(WindowKeysTest, AFormsOwnKeyUpWritesTheOlderCodes) {
  RunTimeWindow& window = desktop.CreateWindow(WindowClass::Form1, "W");
  QWidget& form = QtDesktop::WidgetOf(window);
  SendKey(form, QEvent::KeyRelease, Qt::Key_Left);
  SendKey(form, QEvent::KeyRelease, Qt::Key_Space);
  SendKey(form, QEvent::KeyRelease, Qt::Key_B);
  EXPECT_EQ(KeyState(0), "E-");
  EXPECT_EQ(KeyState(6), "#-");
  EXPECT_EQ(CodeState(66), "(066)-");
  // The main window has no such handler.
  SendKey(janela, QEvent::KeyRelease, Qt::Key_Right);
  EXPECT_EQ(KeyState(1), "R-");
  desktop.DestroyWindow(window);
}

TEST_F(WindowKeysTest, EnterAtTheKeyCatcherIsAKeyDownAndMovesTheFocus) {
  janela.Show();
  janela.FocusKeyCatcher();
  QWidget* catcher = janela.focusWidget();
  ASSERT_NE(catcher, nullptr);
  SendKey(*catcher, QEvent::KeyPress, Qt::Key_Return);
  EXPECT_EQ(core.Mail().lastEventKey, "13");
  EXPECT_NE(janela.focusWidget(), catcher);
}

}  // namespace
}  // namespace tamrix
