// The widgets behind Text, Mask and Calendar: typing into a mask, the
// numeric filter of a tagged text box, the rich text written and read back,
// and the date field's picker.
#include <QApplication>
#include <QKeyEvent>
#include <QTextCursor>
#include <gtest/gtest.h>

#include "controls/calendario.h"
#include "controls/mask_box.h"
#include "controls/rich_text_format.h"
#include "controls/text_box.h"

namespace tamrix {
namespace {

void Press(QWidget& target, int key, const QString& text = QString()) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
  QCoreApplication::sendEvent(&target, &press);
  QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
  QCoreApplication::sendEvent(&target, &release);
}

void Type(QWidget& target, const QString& text) {
  for (const QChar c : text) Press(target, c.unicode(), QString(c));
}

TEST(MaskBoxTest, TypingKeepsTheFormAndRefusesWhatDoesNotFit) {
  MaskBox box;
  int edits = 0;
  QObject::connect(&box, &MaskBox::Edited, [&] { ++edits; });
  box.SetMask("(###) ###-####");
  EXPECT_EQ(box.Content(), "(___) ___-____");
  Type(box, QStringLiteral("20a2-5550143999"));
  EXPECT_EQ(box.Content(), "(202) 555-0143");
  Press(box, Qt::Key_Backspace);
  Press(box, Qt::Key_Backspace);
  EXPECT_EQ(box.Content(), "(202) 555-01__");
  EXPECT_EQ(edits, 12);
  box.SetMask("");
  Type(box, QStringLiteral("free"));
  EXPECT_EQ(box.Content(), "free");
}

TEST(TextBoxTest, OnlyTheTagNumericoTurnsTheNumericFilterOn) {
  TextBox box;
  Type(box.Line(), QStringLiteral("a1.5"));
  EXPECT_EQ(box.Text(), QStringLiteral("a1.5"));
  box.SetText(QString());
  box.SetTag(QStringLiteral("NUMERIC0"));  // what the command writes: no filter
  Type(box.Line(), QStringLiteral("b2"));
  EXPECT_EQ(box.Text(), QStringLiteral("b2"));
  box.SetText(QString());
  box.SetTag(QStringLiteral("NUMERICO"));
  Type(box.Line(), QStringLiteral("x12.345y"));
  EXPECT_EQ(box.Text(), QStringLiteral("12.34"));
}

TEST(TextBoxTest, AMultiLineBoxKeepsLineBreaksAsCrLf) {
  TextBox box;
  box.SetMultiLine(true);
  box.SetText(QStringLiteral("one\r\ntwo"));
  EXPECT_EQ(box.Rich().toPlainText(), QStringLiteral("one\ntwo"));
  EXPECT_EQ(box.Text(), QStringLiteral("one\r\ntwo"));
}

TEST(RichTextTest, LooksSurviveAWriteAndARead) {
  QTextDocument document;
  QTextCursor cursor(&document);
  QTextCharFormat plain;
  plain.setFontPointSize(10);
  cursor.insertText(QStringLiteral("Plain "), plain);
  QTextCharFormat bold = plain;
  bold.setFontWeight(QFont::Bold);
  bold.setForeground(QColor(255, 0, 0));
  cursor.insertText(QStringLiteral("bold {red} \u00e9"), bold);
  cursor.insertBlock();
  cursor.insertText(QStringLiteral("line two"), plain);
  const std::string rtf = WriteRichText(document);
  EXPECT_EQ(rtf.rfind("{\\rtf1", 0), 0u);
  EXPECT_NE(rtf.find("\\'e9"), std::string::npos);

  QTextDocument back;
  ReadRichText(rtf, back);
  EXPECT_EQ(back.toPlainText(), QStringLiteral("Plain bold {red} \u00e9\nline two"));
  QTextCursor at(&back);
  at.setPosition(8);
  EXPECT_EQ(at.charFormat().fontWeight(), QFont::Bold);
  EXPECT_EQ(at.charFormat().foreground().color(), QColor(255, 0, 0));
  EXPECT_DOUBLE_EQ(at.charFormat().fontPointSize(), 10);
}

TEST(RichTextTest, UnknownGroupsAreSkippedAndPlainTextIsTakenAsItIs) {
  QTextDocument document;
  ReadRichText("{\\rtf1{\\*\\generator x;}\\u8364?uro \\{x\\}\\par end", document);
  EXPECT_EQ(document.toPlainText(), QStringLiteral("\u20acuro {x}\nend"));
  ReadRichText("just text", document);
  EXPECT_EQ(document.toPlainText(), QStringLiteral("just text"));
  ReadRichText("{\\rtf1 \\'zz\\fs99999999999 broken", document);  // never a crash
}

TEST(CalendarioTest, APickedDateClosesThePickerAndIsReported) {
  Calendario field;
  field.resize(120, 22);
  field.show();
  std::vector<QDate> changes;
  QObject::connect(&field, &Calendario::Changed, [&](const QDate& d) { changes.push_back(d); });
  EXPECT_EQ(field.Value(), QDate::currentDate());
  field.SetValue(QDate(2024, 2, 29));
  field.OpenPicker();
  EXPECT_TRUE(field.PickerOpen());
  EXPECT_GE(field.height(), 172);
  auto* picker = field.findChild<QCalendarWidget*>();
  ASSERT_NE(picker, nullptr);
  picker->setSelectedDate(QDate(2024, 3, 1));
  Press(*picker, Qt::Key_Return);
  EXPECT_FALSE(field.PickerOpen());
  EXPECT_EQ(field.height(), 22);
  EXPECT_EQ(field.Value(), QDate(2024, 3, 1));
  EXPECT_EQ(changes, (std::vector<QDate>{QDate(2024, 2, 29), QDate(2024, 3, 1)}));
  EXPECT_EQ(picker->minimumDate(), Calendario::FirstDay());
}

}  // namespace
}  // namespace tamrix
