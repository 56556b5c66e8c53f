#pragma once

#include <QByteArray>
#include <QString>

// Windows-1251, the code page of the terminal's command texts and of configuration files.
// Units below 128 are copied; every other unit becomes its byte in the upper half of the code
// page, or "_" when the code page has no such character. One UTF-16 unit gives one byte.
namespace zrk {

// The byte for one UTF-16 unit.
char windows1251Byte(char16_t unit);

// Appends the converted text to out.
void appendWindows1251(QByteArray& out, const QString& text);

QByteArray toWindows1251(const QString& text);

// The character of one byte of the code page (bytes below 128 are themselves).
QChar fromWindows1251Byte(unsigned char byte);

QString fromWindows1251(const QByteArray& bytes);

} // namespace zrk
