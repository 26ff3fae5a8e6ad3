#include "windows/janela.h"

#include <QApplication>
#include <QFontInfo>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace tamrix {
namespace {

void PressKey(QWidget& target, int key) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
  QApplication::sendEvent(&target, &press);
}

class JanelaTest : public testing::Test {
 protected:
  JanelaTest() {
    janela.SetClosingHandler([this] { ++closings; });
  }

  Janela janela;
  int closings = 0;
};

TEST_F(JanelaTest, StartsHiddenWithTheMainWindowClientArea) {
  EXPECT_FALSE(janela.isVisible());
  EXPECT_EQ(janela.width(), 632);
  EXPECT_EQ(janela.height(), 386);
  EXPECT_EQ(janela.windowTitle(), QStringLiteral("Tamrix - Window"));
  EXPECT_EQ(janela.Surface().Name(), "PARENT");
  EXPECT_EQ(janela.Surface().ClientWidth(), 632);
}

TEST_F(JanelaTest, UsesTheButtonColoursOfTheDesktop) {
  EXPECT_EQ(janela.Surface().BackColor(), QApplication::palette().color(QPalette::Button));
  EXPECT_EQ(janela.Surface().ForeColor(), QApplication::palette().color(QPalette::ButtonText));
}

TEST_F(JanelaTest, FontIsAFixedPitchFaceEightPixelsWide) {
  const QFont& font = janela.Surface().Font();
  EXPECT_EQ(font.pixelSize(), 13);
  EXPECT_TRUE(QFontInfo(font).fixedPitch());
  // One column of text is one default column of the language.
  EXPECT_EQ(QFontMetrics(font).horizontalAdvance(QStringLiteral("MMMMMMMMMM")), 80);
}

TEST_F(JanelaTest, F6AndPauseCloseItOnce) {
  PressKey(janela, Qt::Key_F6);
  EXPECT_EQ(closings, 1);
  PressKey(janela, Qt::Key_Pause);
  janela.CloseAsUser();
  EXPECT_EQ(closings, 1);
}

TEST_F(JanelaTest, PauseOnAControlOfTheWindowClosesIt) {
  auto* entry = new QLineEdit(&janela);
  PressKey(*entry, Qt::Key_Pause);
  EXPECT_EQ(closings, 1);
}

TEST_F(JanelaTest, F6InAMessageBoxOverTheWindowClosesIt) {
  QMessageBox box(&janela);
  PressKey(box, Qt::Key_F6);
  EXPECT_EQ(closings, 1);
}

TEST_F(JanelaTest, OtherKeysAndOtherWindowsLeaveItOpen) {
  PressKey(janela, Qt::Key_F5);
  PressKey(janela, Qt::Key_Escape);
  QWidget otherWindow;
  PressKey(otherWindow, Qt::Key_F6);
  QMessageBox boxOfAnotherWindow(&otherWindow);
  PressKey(boxOfAnotherWindow, Qt::Key_Pause);
  EXPECT_EQ(closings, 0);
}

TEST_F(JanelaTest, TheCloseBoxRunsTheClosingHandler) {
  janela.show();
  janela.close();
  EXPECT_EQ(closings, 1);
}

TEST_F(JanelaTest, SnapshotHoldsTheClientAreaWithItsText) {
  janela.Surface().PrintText(0, 0, "MMMM");
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("shot.png"));
  ASSERT_TRUE(janela.SaveSnapshot(path));
  const QImage shot(path);
  ASSERT_EQ(shot.size(), QSize(632, 386));
  const QColor paper = janela.Surface().BackColor();
  int inked = 0;
  for (int y = 0; y < 14; ++y) {
    for (int x = 0; x < 32; ++x) inked += shot.pixelColor(x, y) != paper ? 1 : 0;
  }
  EXPECT_GT(inked, 40);
  EXPECT_EQ(shot.pixelColor(300, 200), janela.Surface().BackColor());
}

}  // namespace
}  // namespace tamrix
