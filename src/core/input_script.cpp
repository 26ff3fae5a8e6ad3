#include "core/input_script.h"

#include <charconv>

#include "core/text.h"

namespace tamrix {
namespace {

std::vector<std::string> Words(std::string_view line) {
  std::vector<std::string> words;
  std::size_t i = 0;
  while (i < line.size()) {
    while (i < line.size() && (line[i] == ' ' || line[i] == '\t')) ++i;
    const std::size_t start = i;
    while (i < line.size() && line[i] != ' ' && line[i] != '\t') ++i;
    if (i > start) words.emplace_back(line.substr(start, i - start));
  }
  return words;
}

std::optional<int> Integer(const std::string& word) {
  int value = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
  if (error != std::errc() || end != word.data() + word.size()) return std::nullopt;
  return value;
}

std::optional<MouseAction> MouseActionNamed(const std::string& word) {
  if (word == "down") return MouseAction::Down;
  if (word == "move") return MouseAction::Move;
  if (word == "up") return MouseAction::Up;
  return std::nullopt;
}

std::optional<int> ButtonNamed(const std::string& word) {
  if (word == "left") return kLeftButton;
  if (word == "right") return kRightButton;
  return std::nullopt;
}

std::optional<int> ShiftNamed(const std::string& word) {
  if (word == "shift") return kShiftMask;
  if (word == "ctrl") return kCtrlMask;
  return std::nullopt;
}

std::optional<InputAction> Fail(std::string& error, const std::string& what) {
  error = what;
  return std::nullopt;
}

}  // namespace

std::optional<InputAction> ParseInputAction(std::string_view line, std::string& error) {
  error.clear();
  if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
  const std::vector<std::string> words = Words(line);
  if (words.empty() || words[0][0] == '#') return std::nullopt;
  const std::string& verb = words[0];
  const std::size_t count = words.size();
  InputAction action;

  if (verb == "text" && count > 1) {
    // Everything after "text " is typed, blanks included.
    action.kind = InputAction::Kind::Text;
    action.text = std::string(line.substr(line.find("text") + 5));
    return action;
  }
  if ((verb == "click" || verb == "dblclick" || verb == "focus" || verb == "close") && count == 2) {
    action.kind = verb == "click"      ? InputAction::Kind::Click
                  : verb == "dblclick" ? InputAction::Kind::DoubleClick
                  : verb == "focus"    ? InputAction::Kind::Focus
                                       : InputAction::Kind::Close;
    action.target = words[1];
    return action;
  }
  if (verb == "click" && count == 4) {
    const auto x = Integer(words[2]);
    const auto y = Integer(words[3]);
    if (!x || !y) return Fail(error, "click: the position must be whole numbers");
    action.kind = InputAction::Kind::ClickAt;
    action.target = words[1];
    action.x = *x;
    action.y = *y;
    return action;
  }
  if (verb == "mouse" && (count == 5 || count == 6)) {
    const auto x = Integer(words[2]);
    const auto y = Integer(words[3]);
    const auto mouse = MouseActionNamed(words[4]);
    const auto button = count == 6 ? ButtonNamed(words[5]) : std::optional<int>(kLeftButton);
    if (!x || !y || !mouse || !button) return Fail(error, "mouse: <window> <x> <y> <down|move|up> [left|right]");
    action.kind = InputAction::Kind::Mouse;
    action.target = words[1];
    action.x = *x;
    action.y = *y;
    action.mouse = *mouse;
    action.button = *button;
    return action;
  }
  if (verb == "key" && (count == 2 || count == 3)) {
    const auto code = Integer(words[1]);
    const auto shift = count == 3 ? ShiftNamed(words[2]) : std::optional<int>(0);
    if (!code || !shift) return Fail(error, "key: <code> [shift|ctrl]");
    action.kind = InputAction::Kind::Key;
    action.code = *code;
    action.shift = *shift;
    return action;
  }
  if (verb == "sleep" && count == 2) {
    const auto milliseconds = Integer(words[1]);
    if (!milliseconds || *milliseconds < 0) return Fail(error, "sleep: <ms>");
    action.kind = InputAction::Kind::Sleep;
    action.milliseconds = *milliseconds;
    return action;
  }
  return Fail(error, "unknown action: " + std::string(line));
}

std::vector<InputAction> ParseInputScript(std::string_view text, std::vector<std::string>& errors) {
  std::vector<InputAction> actions;
  std::size_t start = 0;
  int number = 0;
  while (start < text.size()) {
    const auto end = text.find('\n', start);
    const std::string_view line = text.substr(start, end == std::string_view::npos ? npos : end - start);
    ++number;
    std::string error;
    if (auto action = ParseInputAction(line, error)) {
      actions.push_back(std::move(*action));
    } else if (!error.empty()) {
      errors.push_back("line " + std::to_string(number) + ": " + error);
    }
    if (end == std::string_view::npos) break;
    start = end + 1;
  }
  return actions;
}

}  // namespace tamrix
