#include "windows/qt_desktop.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMessageBox>
#include <QThread>
#include <QTimer>
#include <algorithm>
#include <functional>
#include <gtest/gtest.h>

#include "windows/janela.h"

namespace tamrix {
namespace {

// Lets events run for `milliseconds`, or until `done` holds.
void RunEventsFor(int milliseconds, const std::function<bool()>& done = [] { return false; }) {
  QElapsedTimer clock;
  clock.start();
  while (clock.elapsed() < milliseconds && !done()) {
    QCoreApplication::processEvents();
    QThread::msleep(1);
  }
}

// Acts on the message box as soon as it is up.
void OnceTheBoxIsUp(const std::function<void(QMessageBox&)>& act) {
  QTimer::singleShot(0, [act] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    act(*box);
  });
}

void PressKey(QWidget& target, int key) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
  QApplication::sendEvent(&target, &press);
}

class QtDesktopTest : public testing::Test {
 protected:
  QtDesktopTest() : desktop(janela) {}

  Janela janela;
  QtDesktop desktop;
};

TEST_F(QtDesktopTest, ALanguageTickComesWhileAnEarlierOneWaits) {
  int ticks = 0;
  int depth = 0;
  int deepest = 0;
  desktop.SetLanguageTickHandler([&] {
    ++ticks;
    ++depth;
    deepest = std::max(deepest, depth);
    if (ticks == 1) RunEventsFor(100);  // as a Wait inside a Timer_ subroutine
    --depth;
  });
  desktop.SetLanguageTimer(true);
  RunEventsFor(2000, [&] { return ticks >= 5 && depth == 0; });
  EXPECT_GE(deepest, 2);

  desktop.SetLanguageTimer(false);
  const int stoppedAt = ticks;
  RunEventsFor(60);
  EXPECT_EQ(ticks, stoppedAt);
}

TEST_F(QtDesktopTest, SleepLetsNoEventRunAndPumpDoes) {
  bool fired = false;
  QTimer::singleShot(0, [&] { fired = true; });
  desktop.Sleep(20);
  EXPECT_FALSE(fired);
  desktop.PumpEvents();
  EXPECT_TRUE(fired);
}

TEST_F(QtDesktopTest, YesNoBoxTakesNoOnEnter) {
  BoxRequest request;
  request.buttons = BoxButtons::YesNo;
  request.icon = BoxIcon::Question;
  request.title = "MYPROG";
  request.text = "Sure?\r\nReally\rsure?";
  request.defaultAnswer = BoxAnswer::No;
  QString shownText;
  QMessageBox::Icon shownIcon = QMessageBox::NoIcon;
  OnceTheBoxIsUp([&](QMessageBox& box) {
    shownText = box.text();
    shownIcon = box.icon();
    PressKey(box, Qt::Key_Return);
  });
  EXPECT_EQ(desktop.ShowBox(request), BoxAnswer::No);
  EXPECT_EQ(shownText, QStringLiteral("Sure?\nReally\nsure?"));
  EXPECT_EQ(shownIcon, QMessageBox::Question);
}

TEST_F(QtDesktopTest, OkCancelBoxGivesCancelOnEscapeAndOkOnEnter) {
  BoxRequest request;
  request.buttons = BoxButtons::OkCancel;
  OnceTheBoxIsUp([](QMessageBox& box) { PressKey(box, Qt::Key_Escape); });
  EXPECT_EQ(desktop.ShowBox(request), BoxAnswer::Cancel);
  OnceTheBoxIsUp([](QMessageBox& box) { PressKey(box, Qt::Key_Return); });
  EXPECT_EQ(desktop.ShowBox(request), BoxAnswer::Ok);
}

TEST_F(QtDesktopTest, BoxTextIsShownPlainAndInUnicode) {
  BoxRequest request;
  request.icon = BoxIcon::Critical;
  request.title = "T\xEDtulo";
  request.text = "<b>1 \x80</b>";
  QString title;
  QString text;
  Qt::TextFormat format = Qt::AutoText;
  OnceTheBoxIsUp([&](QMessageBox& box) {
    title = box.windowTitle();
    text = box.text();
    format = box.textFormat();
    box.button(QMessageBox::Ok)->click();
  });
  EXPECT_EQ(desktop.ShowBox(request), BoxAnswer::Ok);
  EXPECT_EQ(title, QString::fromUtf8("T\u00edtulo"));
  EXPECT_EQ(text, QString::fromUtf8("<b>1 \u20ac</b>"));
  EXPECT_EQ(format, Qt::PlainText);
}

TEST_F(QtDesktopTest, TimersRunWhileABoxIsUp) {
  int ticks = 0;
  desktop.SetLanguageTickHandler([&] { ++ticks; });
  desktop.SetLanguageTimer(true);
  QTimer::singleShot(150, [] {
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) box->accept();
  });
  desktop.ShowBox(BoxRequest{});
  desktop.SetLanguageTimer(false);
  EXPECT_GE(ticks, 3);
}

TEST_F(QtDesktopTest, OutputAndTheMainWindowAreJanelas) {
  EXPECT_EQ(&desktop.MainWindow(), static_cast<RunTimeWindow*>(&janela));
  EXPECT_EQ(&desktop.CurrentWindowWidget(), &janela);
  desktop.SetMainCaption("Tamrix - HELLO.ZRC");
  EXPECT_EQ(janela.windowTitle(), QStringLiteral("Tamrix - HELLO.ZRC"));
  desktop.ShowMainWindow();
  EXPECT_TRUE(janela.isVisible());
  int closings = 0;
  janela.SetClosingHandler([&] { ++closings; });
  desktop.CloseMainWindow();
  EXPECT_EQ(closings, 1);
  EXPECT_GT(desktop.ScreenWidth(), 0);
  EXPECT_GT(desktop.ScreenHeight(), 0);
}

}  // namespace
}  // namespace tamrix
