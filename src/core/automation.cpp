#include "core/automation.h"

#include "core/codepage.h"
#include "core/text.h"

namespace tamrix {

Trace::Trace(const std::string& path) : file_(std::fopen(path.c_str(), "ab")) {}

Trace::~Trace() {
  if (file_ != nullptr) std::fclose(file_);
}

std::string Trace::Escape(const std::string& utf8) {
  std::string out;
  out.reserve(utf8.size());
  for (char c : utf8) {
    switch (c) {
      case '\\': out += "\\\\"; break;
      case '\r': out += "\\r"; break;
      case '\n': out += "\\n"; break;
      case '\t': out += "\\t"; break;
      default: out += c;
    }
  }
  return out;
}

void Trace::Write(const std::vector<std::string>& fields) {
  if (!Enabled()) return;
  std::string line;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (i > 0) line += '\t';
    line += Escape(Cp1252ToUtf8(fields[i]));
  }
  if (sink_) {
    sink_(line);
    return;
  }
  line += '\n';
  std::fwrite(line.data(), 1, line.size(), file_);
  std::fflush(file_);
}

ScriptedAnswers::ScriptedAnswers(const std::string& list) : active_(true) {
  std::size_t start = 0;
  while (start <= list.size() && !list.empty()) {
    const auto comma = list.find(',', start);
    const auto end = comma == std::string::npos ? list.size() : comma;
    entries_.push_back(list.substr(start, end - start));
    if (comma == std::string::npos) break;
    start = comma + 1;
  }
}

BoxAnswer ScriptedAnswers::NextBoxAnswer(BoxButtons buttons, BoxAnswer defaultAnswer) {
  if (entries_.empty()) return defaultAnswer;
  const std::string entry = Upper(Trim(entries_.front()));
  entries_.pop_front();
  BoxAnswer answer = defaultAnswer;
  if (entry == "OK") answer = BoxAnswer::Ok;
  if (entry == "CANCEL") answer = BoxAnswer::Cancel;
  if (entry == "YES") answer = BoxAnswer::Yes;
  if (entry == "NO") answer = BoxAnswer::No;
  // An answer that the box has no button for takes the default.
  const bool fits = (buttons == BoxButtons::Ok && answer == BoxAnswer::Ok) ||
                    (buttons == BoxButtons::OkCancel &&
                     (answer == BoxAnswer::Ok || answer == BoxAnswer::Cancel)) ||
                    (buttons == BoxButtons::YesNo &&
                     (answer == BoxAnswer::Yes || answer == BoxAnswer::No));
  return fits ? answer : defaultAnswer;
}

std::optional<std::string> ScriptedAnswers::NextText(const std::string& initial) {
  if (entries_.empty()) return initial;
  const std::string entry = entries_.front();
  entries_.pop_front();
  if (StartsWith(entry, "=")) return Utf8ToCp1252Lossy(entry.substr(1));
  if (EqualsNoCase(Trim(entry), "CANCEL")) return std::nullopt;
  return initial;
}

std::string AnswerName(BoxAnswer answer) {
  switch (answer) {
    case BoxAnswer::Ok: return "OK";
    case BoxAnswer::Cancel: return "Cancel";
    case BoxAnswer::Yes: return "Yes";
    case BoxAnswer::No: return "No";
  }
  return "OK";
}

}  // namespace tamrix
