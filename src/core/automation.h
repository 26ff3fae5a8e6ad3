// The automation hooks: the trace file and the scripted answers to boxes and
// dialogs. Both are read from the environment once at start.
#pragma once

#include <cstdio>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/desktop.h"

namespace tamrix {

// One event per line, fields joined by TAB, UTF-8.
class Trace {
 public:
  using Sink = std::function<void(const std::string& line)>;

  Trace() = default;
  explicit Trace(const std::string& path);
  // Lines go to `sink` (without their line end) instead of a file.
  explicit Trace(Sink sink) : sink_(std::move(sink)) {}
  ~Trace();
  Trace(const Trace&) = delete;
  Trace& operator=(const Trace&) = delete;

  bool Enabled() const { return file_ != nullptr || sink_ != nullptr; }
  // Fields are Windows-1252; they are escaped and converted here.
  void Write(const std::vector<std::string>& fields);

  static std::string Escape(const std::string& utf8);

 private:
  std::FILE* file_ = nullptr;
  Sink sink_;
};

// Answers given by TAMRIX_ANSWERS, taken in order.
class ScriptedAnswers {
 public:
  ScriptedAnswers() = default;
  explicit ScriptedAnswers(const std::string& list);

  // True when boxes are never shown on screen.
  bool Active() const { return active_; }
  // The next answer for a box; the default when the list has run out.
  BoxAnswer NextBoxAnswer(BoxButtons buttons, BoxAnswer defaultAnswer);
  // The next answer for a text dialog: a text, or nullopt for Cancel. With
  // the list run out, or a box answer in its place, the dialog takes `initial`.
  std::optional<std::string> NextText(const std::string& initial);

 private:
  bool active_ = false;
  std::deque<std::string> entries_;
};

std::string AnswerName(BoxAnswer answer);

}  // namespace tamrix
