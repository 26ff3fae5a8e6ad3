// The drawn scroll bar: the formula of the thumb, steps, pages, drags and
// presses, and the bar reporting its changes to mouse and keys.
#include "controls/scroll_bar.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QThread>
#include <gtest/gtest.h>
#include <vector>

namespace tamrix {
namespace {

// A bar of 200 pixels: buttons and thumb of 20, a track of 160.
ScrollBarModel Bar(std::int32_t max) {
  ScrollBarModel model;
  model.Layout(200, 20, 20);
  model.SetMax(max);
  model.SetSmallChange(1);
  model.SetLargeChange(10);
  return model;
}

TEST(ScrollBarModelTest, TheThumbFollowsTheOneFormula) {
  ScrollBarModel model = Bar(100);
  EXPECT_DOUBLE_EQ(model.Scale(), 1.4);
  EXPECT_EQ(model.ThumbStart(), 20);
  model.SetValue(100);
  EXPECT_EQ(model.ThumbStart(), 160);
  EXPECT_EQ(model.ThumbLimit(), 160);
  model.SetValue(25);  // 35 + 20, exact
  EXPECT_EQ(model.ThumbStart(), 55);
  ScrollBarModel halves = Bar(280);  // half a pixel per unit
  halves.SetValue(1);                // 20.5 goes to the even 20
  EXPECT_EQ(halves.ThumbStart(), 20);
  halves.SetValue(3);  // 21.5 goes to 22
  EXPECT_EQ(halves.ThumbStart(), 22);
}

TEST(ScrollBarModelTest, AMaxOfZeroReadsAsOneAndKeepsTheThumbAtTheStart) {
  ScrollBarModel model = Bar(0);
  EXPECT_DOUBLE_EQ(model.Scale(), 140);
  EXPECT_EQ(model.ThumbStart(), 20);
  model.StepUp();  // the value is not below Max
  EXPECT_EQ(model.Value(), 0);
}

TEST(ScrollBarModelTest, StepsAndPages) {
  ScrollBarModel model = Bar(10);
  model.SetSmallChange(4);
  model.StepUp();
  model.StepUp();
  model.StepUp();
  EXPECT_EQ(model.Value(), 12);  // passes Max by less than a step
  model.StepUp();
  EXPECT_EQ(model.Value(), 12);
  model.PageDown();
  EXPECT_EQ(model.Value(), 10);
  model.SetValue(1);
  model.SetLargeChange(1);
  model.PageUp();
  EXPECT_EQ(model.Value(), 0);
  model.SetValue(5);
  model.SetLargeChange(3);
  model.PageUp();
  EXPECT_EQ(model.Value(), 2);
  model.StepDown();
  EXPECT_EQ(model.Value(), -2);  // a step down is taken whole while above 0
  model.StepDown();
  EXPECT_EQ(model.Value(), -2);
}

TEST(ScrollBarModelTest, DragsClampAtTheEndsAndPressesPlaceTheThumb) {
  ScrollBarModel model = Bar(100);
  model.DragThumbTo(5);
  EXPECT_EQ(model.Value(), 0);
  EXPECT_EQ(model.DrawnThumbStart(), 20);
  model.DragThumbTo(400);
  EXPECT_EQ(model.Value(), 100);
  EXPECT_EQ(model.DrawnThumbStart(), 160);
  model.DragThumbTo(90);  // 70 / 1.4
  EXPECT_EQ(model.Value(), 50);
  model.EndDrag();
  model.PressTrack(190);
  EXPECT_EQ(model.Value(), 100);
  model.PressTrack(62);  // 42 / 1.4
  EXPECT_EQ(model.Value(), 30);
  // A value above Max set by the program stays until the next drag.
  model.SetValue(150);
  EXPECT_EQ(model.Value(), 150);
  model.DragThumbTo(159);
  EXPECT_LE(model.Value(), 100);
}

void RunEventsFor(int milliseconds) {
  QElapsedTimer clock;
  clock.start();
  while (clock.elapsed() < milliseconds) {
    QCoreApplication::processEvents();
    QThread::msleep(5);
  }
}

void Mouse(QWidget& target, QEvent::Type type, QPoint at) {
  QMouseEvent event(type, QPointF(at), target.mapToGlobal(QPointF(at)), Qt::LeftButton,
                    type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&target, &event);
}

void Key(QWidget& target, int key) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
  QCoreApplication::sendEvent(&target, &press);
}

TEST(ScrollBarTest, AHeldButtonRepeatsAfterHalfASecond) {
  ScrollBar bar;
  bar.resize(200, 20);
  bar.SetMax(1000);
  std::vector<std::int32_t> changes;
  QObject::connect(&bar, &ScrollBar::Changed, [&](std::int32_t v) { changes.push_back(v); });
  Mouse(bar, QEvent::MouseButtonPress, QPoint(190, 10));
  EXPECT_EQ(bar.Value(), 1);
  RunEventsFor(300);
  EXPECT_EQ(bar.Value(), 1);
  RunEventsFor(700);
  Mouse(bar, QEvent::MouseButtonRelease, QPoint(190, 10));
  EXPECT_GT(bar.Value(), 3);
  const std::int32_t held = bar.Value();
  RunEventsFor(200);
  EXPECT_EQ(bar.Value(), held);
  EXPECT_EQ(changes.back(), held);
}

TEST(ScrollBarTest, KeysAndTheTrackChangeTheValueOfAVerticalBar) {
  ScrollBar bar;
  bar.SetVertical(true);
  bar.resize(20, 200);
  EXPECT_EQ(bar.width(), 20);
  bar.SetMax(100);
  std::vector<std::int32_t> changes;
  QObject::connect(&bar, &ScrollBar::Changed, [&](std::int32_t v) { changes.push_back(v); });
  Key(bar, Qt::Key_Down);
  Key(bar, Qt::Key_PageDown);
  EXPECT_EQ(bar.Value(), 11);
  Key(bar, Qt::Key_Up);
  EXPECT_EQ(bar.Value(), 10);
  Mouse(bar, QEvent::MouseButtonPress, QPoint(10, 160));
  Mouse(bar, QEvent::MouseButtonRelease, QPoint(10, 160));
  EXPECT_EQ(bar.Value(), 100);
  EXPECT_EQ(changes, (std::vector<std::int32_t>{1, 11, 10, 100}));
}

TEST(ScrollBarTest, ADraggedThumbReportsAtTheRelease) {
  ScrollBar bar;
  bar.resize(200, 20);
  bar.SetMax(100);
  std::vector<std::int32_t> changes;
  QObject::connect(&bar, &ScrollBar::Changed, [&](std::int32_t v) { changes.push_back(v); });
  Mouse(bar, QEvent::MouseButtonPress, QPoint(25, 10));
  Mouse(bar, QEvent::MouseMove, QPoint(95, 10));
  Mouse(bar, QEvent::MouseButtonRelease, QPoint(95, 10));
  EXPECT_EQ(bar.Value(), 50);
  EXPECT_EQ(changes, std::vector<std::int32_t>{50});
}

}  // namespace
}  // namespace tamrix
