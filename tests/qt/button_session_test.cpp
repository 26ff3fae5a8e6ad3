// Buttons of a whole program on real widgets: clicks reach Wait CLICKBUTTON
// through the window layer, and two clicks that come together leave the
// second.
#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QThread>
#include <QTimer>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "controls/btn_esp.h"
#include "windows/program_session.h"
#include "windows/qt_object_controls.h"

namespace tamrix {
namespace {

void Click(QWidget& widget) {
  const QPointF centre(widget.width() / 2.0, widget.height() / 2.0);
  for (auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    QMouseEvent event(type, centre, widget.mapToGlobal(centre), Qt::LeftButton,
                      type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
  }
}

class ButtonSessionTest : public ::testing::Test {
 protected:
  ButtonSessionTest()
      : trace([this](const std::string& line) { lines.push_back(line); }), session(trace, answers, AutomationHooks{}) {}

  // Runs the program until it writes `writes` lines, at most two seconds.
  void Run(const std::string& program, std::size_t writes) {
    LaunchInfo launch;
    launch.codes[0] = program;
    launch.programName = "TEST.ZRC";
    launch.programPath = "/tmp/";
    session.Start(launch);
    QElapsedTimer clock;
    clock.start();
    while (Writes().size() < writes && clock.elapsed() < 2000) {
      QCoreApplication::processEvents();
      QThread::msleep(2);
    }
  }

  std::vector<std::string> Writes() const {
    std::vector<std::string> out;
    for (const auto& line : lines) {
      if (line.rfind("write\t", 0) == 0) out.push_back(line.substr(line.rfind('\t') + 1));
    }
    return out;
  }

  BtnEsp& ButtonWidget(std::size_t index) {
    ObjectControl* control = session.Core().Objects().Family(ObjectKind::Button).entries.at(index).control;
    return *qobject_cast<BtnEsp*>(QtObjectControls::WidgetOf(*control));
  }

  std::vector<std::string> lines;
  Trace trace;
  ScriptedAnswers answers{""};
  ProgramSession session;
};

TEST_F(ButtonSessionTest, TwoClicksThatComeTogetherLeaveTheSecondInRetStr) {
  QTimer::singleShot(50, [this] {
    Click(ButtonWidget(0));
    Click(ButtonWidget(1));
  });
  Run("Button One, 1, 1, 2, 10, \"One\"\r\nButton Two, TYPE1, 4, 1, \"Two\"\r\nWait CLICKBUTTON\r\n"
      "Write RetStr, \" \", TestButton, \" \", RefIndex",
      1);
  EXPECT_EQ(Writes(), std::vector<std::string>{"Two Two 1"});
  EXPECT_EQ(ButtonWidget(1).Style(), 1);
  EXPECT_EQ(ButtonWidget(1).size(), QSize(88, 28));  // a skin's size
  EXPECT_EQ(ButtonWidget(0).geometry(), QRect(8, 14, 80, 28));
  EXPECT_EQ(ButtonWidget(0).parentWidget(), &session.MainWindow());
}

TEST_F(ButtonSessionTest, FocusWritesItsVariablesAndLeavesEnterToTheButton) {
  QTimer::singleShot(50, [this] {
    ButtonWidget(0).setFocus();
    QCoreApplication::processEvents();
    ButtonWidget(1).setFocus();
    QCoreApplication::processEvents();
    Click(ButtonWidget(1));
  });
  Run("Button A, 1, 1\r\nButton B, 3, 1\r\nWait CLICKBUTTON\r\nWrite GotFocus, \" \", LostFocus", 1);
  EXPECT_EQ(Writes(), std::vector<std::string>{"B A"});
  EXPECT_TRUE(session.MainWindow().Flags().buttonHasFocus);
}

}  // namespace
}  // namespace tamrix
