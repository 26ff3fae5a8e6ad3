// The lines of a TAMRIX_INPUT file.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/input_script.h"
#include "core_sandbox.h"

namespace tamrix::testing {
namespace {

using Kind = InputAction::Kind;

InputAction Parse(const std::string& line) {
  std::string error;
  const auto action = ParseInputAction(line, error);
  EXPECT_TRUE(action.has_value()) << line << ": " << error;
  return action.value_or(InputAction());
}

TEST(InputScriptTest, ObjectsAndWindowsAreNamedAsWritten) {
  EXPECT_EQ(Parse("click Ok").kind, Kind::Click);
  EXPECT_EQ(Parse("click Ok").target, "Ok");
  EXPECT_EQ(Parse("dblclick List1").kind, Kind::DoubleClick);
  EXPECT_EQ(Parse("focus Name").kind, Kind::Focus);
  EXPECT_EQ(Parse("close PARENT").kind, Kind::Close);
  const InputAction at = Parse("click W 12 30\r");
  EXPECT_EQ(at.kind, Kind::ClickAt);
  EXPECT_EQ(at.target, "W");
  EXPECT_EQ(at.x, 12);
  EXPECT_EQ(at.y, 30);
}

TEST(InputScriptTest, MouseActionsTakeLeftUnlessTold) {
  const InputAction down = Parse("mouse PARENT 5 6 down");
  EXPECT_EQ(down.kind, Kind::Mouse);
  EXPECT_EQ(down.mouse, MouseAction::Down);
  EXPECT_EQ(down.button, kLeftButton);
  const InputAction up = Parse("mouse PARENT 5 6 up right");
  EXPECT_EQ(up.mouse, MouseAction::Up);
  EXPECT_EQ(up.button, kRightButton);
  EXPECT_EQ(Parse("mouse PARENT 1 2 move").mouse, MouseAction::Move);
}

TEST(InputScriptTest, KeysTextAndSleep) {
  const InputAction key = Parse("key 65 shift");
  EXPECT_EQ(key.kind, Kind::Key);
  EXPECT_EQ(key.code, 65);
  EXPECT_EQ(key.shift, kShiftMask);
  EXPECT_EQ(Parse("key 13 ctrl").shift, kCtrlMask);
  EXPECT_EQ(Parse("key 37").shift, 0);
  const InputAction text = Parse("text Hello,  world ");
  EXPECT_EQ(text.kind, Kind::Text);
  EXPECT_EQ(text.text, "Hello,  world ");
  EXPECT_EQ(Parse("sleep 250").milliseconds, 250);
}

TEST(InputScriptTest, CommentsAndEmptyLinesAreNoActionsAndNoErrors) {
  std::string error;
  for (const std::string line : {"", "   ", "# click Ok", "\r"}) {
    EXPECT_FALSE(ParseInputAction(line, error).has_value()) << line;
    EXPECT_TRUE(error.empty()) << line;
  }
}

TEST(InputScriptTest, BadLinesAreReportedWithTheirNumbers) {
  std::vector<std::string> errors;
  const auto actions = ParseInputScript(
      "click Ok\nclick W x 3\nmouse W 1 2 sideways\nkey A\nsleep -5\npress Ok\r\n# fine\nkey 9 alt\nclose W\n", errors);
  ASSERT_EQ(actions.size(), 2u);
  EXPECT_EQ(actions[1].kind, Kind::Close);
  ASSERT_EQ(errors.size(), 6u);
  EXPECT_EQ(errors[0].rfind("line 2: ", 0), 0u);
  EXPECT_EQ(errors[5].rfind("line 8: ", 0), 0u);
}

}  // namespace
}  // namespace tamrix::testing
