// BtnEsp on the offscreen platform: clicks by mouse and keys, the looks of
// style 1, the focus mark of style 0 and the transparency sampling.
#include "controls/btn_esp.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QThread>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tamrix {
namespace {

void RunEventsFor(int milliseconds) {
  QElapsedTimer clock;
  clock.start();
  while (clock.elapsed() < milliseconds) {
    QCoreApplication::processEvents();
    QThread::msleep(5);
  }
}

// A container that paints itself in one colour, as a window's drawing does.
class Backdrop : public QWidget {
 public:
  explicit Backdrop(QColor colour) : colour_(colour) { resize(300, 200); }

 protected:
  void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), colour_); }

 private:
  QColor colour_;
};

void Mouse(QWidget& target, QEvent::Type type, QPoint at) {
  QMouseEvent event(type, QPointF(at), target.mapToGlobal(QPointF(at)), Qt::LeftButton,
                    type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&target, &event);
}

void Key(QWidget& target, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  QKeyEvent press(QEvent::KeyPress, key, modifiers);
  QApplication::sendEvent(&target, &press);
}

QImage Picture(QColor colour) {
  QImage image(40, 20, QImage::Format_ARGB32);
  image.fill(colour);
  return image;
}

class BtnEspTest : public ::testing::Test {
 protected:
  BtnEspTest() : backdrop(QColor(200, 30, 30)), button(new BtnEsp(&backdrop)), other(new BtnEsp(&backdrop)) {
    button->setGeometry(10, 10, 80, 26);
    other->setGeometry(10, 50, 80, 26);
    QObject::connect(button, &BtnEsp::Click, [this] { events.push_back("click"); });
    QObject::connect(button, &BtnEsp::MouseDown, [this](int, int, int, int) { events.push_back("down"); });
    QObject::connect(button, &BtnEsp::MouseUp, [this](int, int, int, int) { events.push_back("up"); });
    QObject::connect(button, &BtnEsp::Released, [this] { events.push_back("released"); });
    QObject::connect(button, &BtnEsp::KeyDown, [this](int code, int shift) {
      events.push_back("key " + std::to_string(code) + " " + std::to_string(shift));
    });
    backdrop.show();
  }

  void GiveFocus(QWidget& widget) {
    backdrop.activateWindow();
    widget.setFocus();
    QCoreApplication::processEvents();
  }

  Backdrop backdrop;
  BtnEsp* button;
  BtnEsp* other;
  std::vector<std::string> events;
};

TEST_F(BtnEspTest, APressAndItsReleaseClickOnceEvenWhenTheReleaseIsOutside) {
  Mouse(*button, QEvent::MouseButtonPress, {5, 5});
  Mouse(*button, QEvent::MouseButtonRelease, {200, 150});
  Mouse(*button, QEvent::MouseButtonRelease, {5, 5});  // no press before it
  EXPECT_EQ(events, (std::vector<std::string>{"down", "up", "released", "click", "up", "released"}));
}

TEST_F(BtnEspTest, EnterAndSpaceClickOnceAndArrowsMoveTheFocus) {
  GiveFocus(*button);
  Key(*button, Qt::Key_Return);
  Key(*button, Qt::Key_Space);
  EXPECT_EQ(events, (std::vector<std::string>{"key 13 0", "click", "released", "key 32 0", "click", "released"}));
  Key(*button, Qt::Key_Down);
  EXPECT_TRUE(other->hasFocus());
  Key(*other, Qt::Key_Left);
  EXPECT_TRUE(button->hasFocus());
}

TEST_F(BtnEspTest, KeyDownsAreReportedAsVirtualKeyCodes) {
  GiveFocus(*button);
  Key(*button, Qt::Key_A, Qt::ShiftModifier);
  Key(*button, Qt::Key_F6);
  EXPECT_EQ(events, (std::vector<std::string>{"key 65 1", "key 117 0"}));
}

TEST_F(BtnEspTest, StyleOneShowsTheLookOfEachState) {
  button->SetStyle(1);
  for (int look = 0; look < BtnEsp::kLookCount; ++look) {
    button->SetLookPicture(static_cast<BtnEsp::Look>(look), Picture(QColor::fromHsv(look * 60, 200, 200)));
  }
  GiveFocus(*button);
  EXPECT_EQ(button->CurrentLook(), BtnEsp::Focus);
  Mouse(*button, QEvent::MouseButtonPress, {5, 5});
  EXPECT_EQ(button->CurrentLook(), BtnEsp::Down);
  EXPECT_EQ(button->grab().toImage().pixel(5, 5), QColor::fromHsv(3 * 60, 200, 200).rgb());
  Mouse(*button, QEvent::MouseButtonRelease, {5, 5});
  EXPECT_EQ(button->CurrentLook(), BtnEsp::Up);  // the pointer is not over it
  GiveFocus(*other);
  EXPECT_EQ(button->CurrentLook(), BtnEsp::Up);
  button->setEnabled(false);
  EXPECT_EQ(button->CurrentLook(), BtnEsp::Disabled);
}

TEST_F(BtnEspTest, StyleOneWithoutPicturesShowsAnEmptySurface) {
  button->SetStyle(1);
  button->SetCaption(QString());
  button->SetBackColor(QColor(10, 20, 30));
  const QImage shown = button->grab().toImage();
  for (int y = 0; y < shown.height(); ++y) {
    for (int x = 0; x < shown.width(); ++x) ASSERT_EQ(shown.pixelColor(x, y), QColor(10, 20, 30)) << x << "," << y;
  }
}

TEST_F(BtnEspTest, StyleZeroDrawsTheFocusMarkOnlyWithTheFocus) {
  button->SetCaption(QString());
  button->SetBackColor(QColor(240, 240, 240));
  const QColor mark(128, 128, 128);
  const auto markShown = [&] { return button->grab().toImage().pixelColor(4, 13) == mark; };
  EXPECT_FALSE(markShown());
  GiveFocus(*button);
  EXPECT_TRUE(markShown());
  GiveFocus(*other);
  EXPECT_FALSE(markShown());
}

TEST_F(BtnEspTest, StyleZeroLinesTurnBlackWhilePressed) {
  EXPECT_EQ(button->grab().toImage().pixelColor(0, 10), QColor(Qt::white));
  Mouse(*button, QEvent::MouseButtonPress, {5, 5});
  EXPECT_EQ(button->grab().toImage().pixelColor(0, 10), QColor(Qt::black));
  Mouse(*button, QEvent::MouseButtonRelease, {5, 5});
  EXPECT_EQ(button->grab().toImage().pixelColor(0, 10), QColor(Qt::white));
}

TEST_F(BtnEspTest, TheColourRightOfTheButtonIsSampledUnlessTransparentIsOff) {
  other->SetTransparent(false);
  const QColor before = other->BackColor();
  RunEventsFor(700);
  EXPECT_EQ(button->BackColor(), QColor(200, 30, 30));
  EXPECT_EQ(other->BackColor(), before);
}

}  // namespace
}  // namespace tamrix
