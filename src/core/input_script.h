// The replayed input of TAMRIX_INPUT: one action a line, read here into
// what the window layer then delivers as real events.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/window_events.h"

namespace tamrix {

struct InputAction {
  enum class Kind {
    Click,        // click <object>
    DoubleClick,  // dblclick <object>
    ClickAt,      // click <window> <x> <y>
    Mouse,        // mouse <window> <x> <y> <down|move|up> [left|right]
    Focus,        // focus <object>
    Key,          // key <code> [shift|ctrl]
    Text,         // text <characters>
    Close,        // close <window>
    Sleep,        // sleep <ms>
  };
  Kind kind = Kind::Sleep;
  std::string target;  // object or window name, as written (UTF-8)
  int x = 0;
  int y = 0;
  MouseAction mouse = MouseAction::Down;
  int button = kLeftButton;
  int code = 0;        // virtual key code
  int shift = 0;       // kShiftMask, kCtrlMask or 0
  std::string text;    // the characters to type, UTF-8
  int milliseconds = 0;
};

// The action of one line; nothing for an empty line or a "#" comment.
// A line that is no action gives nothing and sets `error`.
std::optional<InputAction> ParseInputAction(std::string_view line, std::string& error);

// The actions of a whole file's text, lines ending in LF or CR LF; the
// errors of bad lines are collected as "line <n>: <what>".
std::vector<InputAction> ParseInputScript(std::string_view text, std::vector<std::string>& errors);

}  // namespace tamrix
