// The run-time windows as Qt windows: border kinds, geometry in twips, the
// modal show, the key catcher and Enter as Tab.
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>
#include <gtest/gtest.h>

#include "windows/enter_as_tab.h"
#include "windows/form.h"

namespace tamrix {
namespace {

void PressKey(QWidget& target, int key) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
  QApplication::sendEvent(&target, &press);
}

TEST(FormTest, EachClassHasItsBorder) {
  Form sizable(WindowClass::Form1, "A");
  Form fixed(WindowClass::Form2, "B");
  Form withoutBox(WindowClass::Form3, "C");
  EXPECT_TRUE(sizable.windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
  EXPECT_TRUE(sizable.windowFlags().testFlag(Qt::WindowCloseButtonHint));
  EXPECT_NE(sizable.minimumSize(), sizable.maximumSize());
  EXPECT_FALSE(fixed.windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
  EXPECT_TRUE(fixed.windowFlags().testFlag(Qt::WindowCloseButtonHint));
  EXPECT_EQ(fixed.minimumSize(), fixed.maximumSize());
  EXPECT_FALSE(withoutBox.windowFlags().testFlag(Qt::WindowCloseButtonHint));
  EXPECT_EQ(withoutBox.windowTitle(), QStringLiteral("Tamrix"));
  EXPECT_EQ(withoutBox.Surface().Name(), "C");
}

// Outer sizes are twips with the classic frame; what comes back is snapped
// to whole pixels.
TEST(FormTest, OuterGeometryIsInTwips) {
  Form form(WindowClass::Form2, "W");
  form.SetOuter({1500, 2250, 7200, 5000});
  EXPECT_EQ(form.width(), 480 - 8);
  EXPECT_EQ(form.height(), 333 - 27);
  const TwipRect outer = form.Outer();
  EXPECT_EQ(outer.left, 1500);
  EXPECT_EQ(outer.top, 2250);
  EXPECT_EQ(outer.width, 7200);
  EXPECT_EQ(outer.height, 4995);
  form.SetBorderStyle(0);
  EXPECT_TRUE(form.windowFlags().testFlag(Qt::FramelessWindowHint));
  form.SetSizable(true);
  EXPECT_NE(form.minimumSize(), form.maximumSize());
}

TEST(FormTest, AModalShowReturnsWhenTheWindowCloses) {
  Form form(WindowClass::Form1, "W");
  bool modalWhileShown = false;
  QTimer::singleShot(20, [&] {
    modalWhileShown = form.isModal();
    form.close();
  });
  form.ShowModal();
  EXPECT_TRUE(modalWhileShown);
  EXPECT_FALSE(form.isVisible());
  EXPECT_FALSE(form.isModal());
}

TEST(FormTest, ChangingTheBorderDuringAModalShowKeepsTheWait) {
  Form form(WindowClass::Form1, "W");
  bool stillModal = false;
  QTimer::singleShot(10, [&] { form.SetBorderStyle(0); });
  QTimer::singleShot(40, [&] {
    stillModal = form.isVisible() && form.isModal();
    form.close();
  });
  form.ShowModal();
  EXPECT_TRUE(stillModal);
}

TEST(FormTest, ClosingLeavesABlankWindow) {
  Form form(WindowClass::Form1, "W");
  form.Show();
  form.Surface().SetPixel(3, 3, 255);
  form.close();
  EXPECT_FALSE(form.isVisible());
  EXPECT_NE(form.Surface().GetPixel(3, 3), 255);
}

TEST(FormTest, TheKeyCatcherWaitsBeyondTheRightEdge) {
  Form form(WindowClass::Form1, "W");
  form.Show();
  auto* catcher = form.findChild<QLineEdit*>();
  ASSERT_NE(catcher, nullptr);
  EXPECT_FALSE(catcher->isVisible());
  EXPECT_GE(catcher->x(), form.width() + 33);
  form.FocusKeyCatcher();
  EXPECT_TRUE(catcher->isVisible());
  EXPECT_EQ(form.focusWidget(), catcher);
}

class EnterAsTabTest : public testing::Test {
 protected:
  EnterAsTabTest() : form(WindowClass::Form1, "W"), first(new QLineEdit(&form)), second(new QLineEdit(&form)) {
    qApp->installEventFilter(&filter);
    form.Show();
    first->setFocus();
  }
  ~EnterAsTabTest() override { qApp->removeEventFilter(&filter); }

  EnterAsTab filter;
  Form form;
  QLineEdit* first;
  QLineEdit* second;
};

TEST_F(EnterAsTabTest, EnterMovesTheFocusOn) {
  PressKey(*first, Qt::Key_Return);
  EXPECT_EQ(form.focusWidget(), second);
}

TEST_F(EnterAsTabTest, WithoutKeyPreviewOrWithAButtonFocusedEnterStays) {
  form.SetKeyPreview(false);
  PressKey(*first, Qt::Key_Return);
  EXPECT_EQ(form.focusWidget(), first);
  form.SetKeyPreview(true);
  form.Flags().buttonHasFocus = true;
  PressKey(*first, Qt::Key_Enter);
  EXPECT_EQ(form.focusWidget(), first);
}

}  // namespace
}  // namespace tamrix
