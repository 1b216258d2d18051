// Windows-1252 text of the model to and from the toolkit's Unicode. The only place where
// the system's one-byte text meets Unicode; every byte has exactly one character, so
// positions in the text are the same on both sides.
#pragma once

#include <QChar>
#include <QString>
#include <string>

namespace ui::qt {

QString ToQt(const std::string& text);
std::string FromQt(const QString& text);
// The Windows-1252 code of a character, or -1 when the code page has no such character.
int CodeOf(QChar c);

}  // namespace ui::qt
