#pragma once

// A record (kind byte first) as the exports show it: a JSON object for zrk-tool decode and
// tmi read, and a CSV row for decode --csv and the saved-file exports. One shape everywhere.

#include <QByteArray>
#include <QJsonObject>
#include <QStringList>

namespace orba {

// Integers a JSON reader holds exactly (as doubles); wider ones are written as decimal strings.
constexpr quint64 kJsonExactInteger = quint64(1) << 53;

QJsonObject recordJson(const QByteArray& record);

// The header row and one record's cells (unquoted): kind, version, length, page, format, then
// the display text of every field 1..255 (empty where the record's version has no such field).
QStringList csvHeader();
QStringList csvCells(const QByteArray& record);

} // namespace orba
