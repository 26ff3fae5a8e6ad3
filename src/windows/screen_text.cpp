#include "windows/screen_text.h"

#include "core/codepage.h"

namespace tamrix {

QString ScreenText(std::string_view cp1252) {
  QString text = QString::fromStdString(Cp1252ToUtf8(cp1252));
  text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  return text;
}

}  // namespace tamrix
