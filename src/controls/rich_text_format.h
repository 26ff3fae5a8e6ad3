// Rich Text Format for the multi-line Text box: the document written as RTF
// with its fonts, sizes, bold, italic, underline and colours, and such a
// text read back. Reading knows the common words; groups it doesn't know
// that are marked "\*" are skipped, other unknown words are passed over.
#pragma once

#include <QTextDocument>
#include <string>

namespace tamrix {

// The RTF text, Windows-1252, characters beyond it as \u escapes.
std::string WriteRichText(const QTextDocument& document);
// Replaces the document's content with what the text says; a text that
// doesn't start with "{\rtf" is taken as plain text.
void ReadRichText(const std::string& rtf, QTextDocument& document);

}  // namespace tamrix
