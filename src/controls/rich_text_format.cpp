#include "controls/rich_text_format.h"

#include <QColor>
#include <QTextBlock>
#include <QTextCursor>
#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "core/codepage.h"

namespace tamrix {
namespace {

int IndexOf(std::vector<QString>& list, const QString& item) {
  for (std::size_t i = 0; i < list.size(); ++i) {
    if (list[i] == item) return static_cast<int>(i);
  }
  list.push_back(item);
  return static_cast<int>(list.size()) - 1;
}

std::string Escaped(const QString& text) {
  std::string out;
  for (const QChar c : text) {
    const char16_t u = c.unicode();
    if (u == '\\' || u == '{' || u == '}') {
      out += '\\';
      out += static_cast<char>(u);
    } else if (u == '\t') {
      out += "\\tab ";
    } else if (u < 0x80) {
      out += static_cast<char>(u);
    } else {
      const auto narrow = Utf8ToCp1252(QString(c).toStdString());
      char hex[8];
      if (narrow && narrow->size() == 1) {
        std::snprintf(hex, sizeof hex, "\\'%02x", static_cast<unsigned char>((*narrow)[0]));
        out += hex;
      } else {
        out += "\\u" + std::to_string(static_cast<std::int16_t>(u)) + "?";
      }
    }
  }
  return out;
}

}  // namespace

std::string WriteRichText(const QTextDocument& document) {
  std::vector<QString> fonts{document.defaultFont().family()};
  std::vector<QString> colours{QColor(Qt::black).name()};
  std::string body;
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    for (auto it = block.begin(); !it.atEnd(); ++it) {
      const QTextFragment fragment = it.fragment();
      const QTextCharFormat format = fragment.charFormat();
      const QFont font = format.font();
      const int fontIndex = IndexOf(fonts, font.family());
      const int colourIndex = IndexOf(colours, format.foreground().color().name());
      const double points = font.pointSizeF() > 0 ? font.pointSizeF() : 10;
      body += "{\\f" + std::to_string(fontIndex) + "\\fs" + std::to_string(std::lround(points * 2)) + "\\cf" +
              std::to_string(colourIndex + 1);
      if (font.bold()) body += "\\b";
      if (font.italic()) body += "\\i";
      if (font.underline()) body += "\\ul";
      body += " " + Escaped(fragment.text()) + "}";
    }
    if (block.next().isValid()) body += "\\par\r\n";
  }
  std::string out = "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl";
  for (std::size_t i = 0; i < fonts.size(); ++i) {
    out += "{\\f" + std::to_string(i) + "\\fnil " + Escaped(fonts[i]) + ";}";
  }
  out += "}\r\n{\\colortbl ;";
  for (const QString& name : colours) {
    const QColor colour(name);
    out += "\\red" + std::to_string(colour.red()) + "\\green" + std::to_string(colour.green()) + "\\blue" +
           std::to_string(colour.blue()) + ";";
  }
  out += "}\r\n\\pard " + body + "\r\n}\r\n";
  return out;
}

namespace {

struct Reader {
  const std::string& text;
  std::size_t at = 0;
  QTextCursor cursor;
  std::vector<QString> fonts;
  std::vector<QColor> colours;
  std::string pending;  // Windows-1252 bytes not yet inserted

  void Flush(const QTextCharFormat& format) {
    if (pending.empty()) return;
    cursor.insertText(QString::fromStdString(Cp1252ToUtf8(pending)), format);
    pending.clear();
  }

  // One group from after its "{" to its "}"; `format` is the group's look.
  void Group(QTextCharFormat format, int destination) {
    int skipUnicode = 1;
    int toSkip = 0;
    while (at < text.size()) {
      const char c = text[at++];
      if (c == '{') {
        Flush(format);
        Group(format, destination);
      } else if (c == '}') {
        Flush(format);
        return;
      } else if (c == '\\') {
        if (at >= text.size()) return;
        const char next = text[at];
        if (next == '\\' || next == '{' || next == '}') {
          ++at;
          if (destination == 0) pending += next;
        } else if (next == '\'') {
          const int value = static_cast<int>(std::strtol(text.substr(at + 1, 2).c_str(), nullptr, 16));
          at += 3;
          if (toSkip > 0) {
            --toSkip;
          } else if (destination == 0) {
            pending += static_cast<char>(value);
          }
        } else if (next == '*') {
          ++at;
          SkipGroup();
          return;
        } else {
          std::string word;
          while (at < text.size() && std::isalpha(static_cast<unsigned char>(text[at]))) word += text[at++];
          std::string number;
          if (at < text.size() && (text[at] == '-' || std::isdigit(static_cast<unsigned char>(text[at])))) {
            number += text[at++];
            while (at < text.size() && std::isdigit(static_cast<unsigned char>(text[at]))) number += text[at++];
          }
          if (at < text.size() && text[at] == ' ') ++at;
          const bool hasNumber = !number.empty() && number != "-";
          const int value = hasNumber ? static_cast<int>(std::clamp(std::strtol(number.c_str(), nullptr, 10), -65536L, 65536L)) : 1;
          Flush(format);
          if (word == "fonttbl") destination = 1;
          else if (word == "colortbl") destination = 2;
          else if (destination == 1 && word == "f") fonts.resize(static_cast<std::size_t>(std::max(value + 1, 0)));
          else if (destination == 2 && word == "red") colours.back().setRed(value);
          else if (destination == 2 && word == "green") colours.back().setGreen(value);
          else if (destination == 2 && word == "blue") colours.back().setBlue(value);
          else if (word == "par" || word == "line") cursor.insertBlock();
          else if (word == "tab") pending += '\t';
          else if (word == "b") format.setFontWeight(value != 0 ? QFont::Bold : QFont::Normal);
          else if (word == "i") format.setFontItalic(value != 0);
          else if (word == "ul") format.setFontUnderline(value != 0);
          else if (word == "ulnone") format.setFontUnderline(false);
          else if (word == "fs" && value > 0) format.setFontPointSize(value / 2.0);
          else if (word == "f" && value >= 0 && static_cast<std::size_t>(value) < fonts.size() &&
                   !fonts[static_cast<std::size_t>(value)].isEmpty())
            format.setFontFamilies({fonts[static_cast<std::size_t>(value)]});
          else if (word == "cf" && value > 0 && static_cast<std::size_t>(value) < colours.size())
            format.setForeground(colours[static_cast<std::size_t>(value)]);
          else if (word == "plain") format = QTextCharFormat();
          else if (word == "uc") skipUnicode = value;
          else if (word == "u" && destination == 0) {
            cursor.insertText(QString(QChar(static_cast<char16_t>(value < 0 ? value + 65536 : value))), format);
            toSkip = skipUnicode;
          }
        }
      } else if (c == '\r' || c == '\n') {
        continue;
      } else if (toSkip > 0) {
        --toSkip;
      } else if (destination == 0) {
        pending += c;
      } else if (destination == 1 && c != ';' && !fonts.empty()) {
        fonts.back() += QChar(static_cast<char16_t>(static_cast<unsigned char>(c)));
      } else if (destination == 2 && c == ';') {
        colours.emplace_back(0, 0, 0);
      }
    }
    Flush(format);
  }

  void SkipGroup() {
    int depth = 1;
    while (at < text.size() && depth > 0) {
      const char c = text[at++];
      if (c == '\\') {
        ++at;
      } else if (c == '{') {
        ++depth;
      } else if (c == '}') {
        --depth;
      }
    }
  }
};

}  // namespace

void ReadRichText(const std::string& rtf, QTextDocument& document) {
  document.clear();
  QTextCursor cursor(&document);
  if (rtf.rfind("{\\rtf", 0) != 0) {
    cursor.insertText(QString::fromStdString(Cp1252ToUtf8(rtf)));
    return;
  }
  Reader reader{rtf, 1, cursor, {}, {QColor(0, 0, 0)}, {}};
  reader.Group(QTextCharFormat(), 0);
}

}  // namespace tamrix
