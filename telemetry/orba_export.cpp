#include "telemetry/orba_export.h"

#include "telemetry/orba_dispatch.h"
#include "telemetry/tmipage_orba3.h"

#include <QJsonArray>
#include <QTextStream>

#include <cmath>

namespace orba {

namespace {

// An integer as its decimal text: a number while a JSON reader holds it exactly, else the text.
QJsonValue integerJson(const QString& decimal)
{
    const bool negative = decimal.startsWith(QLatin1Char('-'));
    bool ok = false;
    const quint64 magnitude = decimal.mid(negative ? 1 : 0).toULongLong(&ok);
    if (ok && magnitude <= kJsonExactInteger)
        return QJsonValue(negative ? -qint64(magnitude) : qint64(magnitude));
    return decimal;
}

// A stored value: numbers for values of up to 8 bytes (null for a float that is not a number),
// a lower-case hex string of the bytes for wider ones.
QJsonValue jsonValue(Type type, int width, const unsigned char* p)
{
    const QString text = numberText(type, width, p);
    if (type == Type::B)
        return text;
    if (type == Type::F || type == Type::D) {
        // From the shortest text, so 0.1f is written 0.1 and not as its double expansion.
        const double d = text.toDouble();
        return std::isfinite(d) ? QJsonValue(d) : QJsonValue(QJsonValue::Null);
    }
    return integerJson(text);
}

QJsonValue byteOrNull(const QByteArray& record, int i)
{
    return i < record.size() ? QJsonValue(int(quint8(record[i]))) : QJsonValue(QJsonValue::Null);
}

QJsonObject pageJson(int kind, const OrbaPage& page, const char* className)
{
    QJsonArray fields;
    for (int no = 1; no <= page.lastField(); ++no) {
        const FieldInfo& f = kFields[no - 1];
        fields.append(QJsonObject { { QStringLiteral("no"), no },
            { QStringLiteral("name"), QLatin1String(f.name) }, { QStringLiteral("present"), page.isUsed(no) },
            { QStringLiteral("value"), jsonValue(f.type, f.width, page.recordBytes() + kOffsets[no]) },
            { QStringLiteral("text"), page.fieldText(no) } });
    }
    return QJsonObject { { QStringLiteral("kind"), kind }, { QStringLiteral("version"), page.headBytes()[1] },
        { QStringLiteral("page"), QLatin1String(className) }, { QStringLiteral("format"), page.formatText() },
        { QStringLiteral("fields"), fields } };
}

QJsonObject extendedJson(const QByteArray& record, const TmiPage_Orba3& page)
{
    const szExtTMI_ORBA3& ext = page.extTMI();
    const auto* bytes = reinterpret_cast<const unsigned char*>(&ext);
    QJsonObject head;
    for (int id = E_Kind + 1; id < kExtCount; ++id) {
        const ExtInfo& e = kExtFields[id];
        head.insert(QLatin1String(e.name), jsonValue(e.type, e.width, bytes + e.offset));
    }
    QJsonArray dynamic;
    for (const DynamicItem& item : page.getDynamicItems_Ext()) {
        dynamic.append(
            QJsonObject { { QStringLiteral("type"), item.type }, { QStringLiteral("size"), item.size },
                { QStringLiteral("value"),
                    item.type == 2 ? QJsonValue(item.text) : integerJson(QString::number(item.number)) } });
    }
    QString xml;
    QTextStream xs(&xml);
    page.getXmlPageExt(xs);
    xs.flush();
    return QJsonObject { { QStringLiteral("kind"), byteOrNull(record, 0) },
        { QStringLiteral("version"), byteOrNull(record, 1) }, { QStringLiteral("length"), record.size() },
        { QStringLiteral("page"), QStringLiteral("TmiPage_Orba3") }, { QStringLiteral("extended"), true },
        { QStringLiteral("head"), head }, { QStringLiteral("dynamicSize"), page.getDynamicDataSize_Ext() },
        { QStringLiteral("dynamic"), dynamic }, { QStringLiteral("xml"), xml } };
}

} // namespace

QJsonObject recordJson(const QByteArray& record)
{
    const Decoded d = decodeRecord(record);
    if (!d.page) {
        return QJsonObject { { QStringLiteral("kind"), byteOrNull(record, 0) },
            { QStringLiteral("version"), byteOrNull(record, 1) }, { QStringLiteral("length"), record.size() },
            { QStringLiteral("page"), QStringLiteral("unknown") } };
    }
    if (d.form == Form::Extended)
        return extendedJson(record, static_cast<const TmiPage_Orba3&>(*d.page));
    return pageJson(quint8(record[0]), *d.page, d.className);
}

QStringList csvHeader()
{
    QStringList cells { QStringLiteral("kind"), QStringLiteral("version"), QStringLiteral("length"),
        QStringLiteral("page"), QStringLiteral("format") };
    for (const FieldInfo& f : kFields)
        cells << QLatin1String(f.name);
    return cells;
}

// An extended record fills the fields its head shares by name.
QStringList csvCells(const QByteArray& record)
{
    const Decoded d = decodeRecord(record);
    const OrbaPage* page = d.page.get();
    const bool ext = d.form == Form::Extended;
    auto byteOrEmpty
        = [&](int i) { return i < record.size() ? QString::number(quint8(record[i])) : QString(); };
    QStringList cells { byteOrEmpty(0), byteOrEmpty(1), QString::number(record.size()),
        QLatin1String(d.className), page && !ext ? page->formatText() : QString() };
    cells.reserve(cells.size() + kFieldCount);
    for (int no = 1; no <= kFieldCount; ++no)
        cells << (page && !ext && no <= page->lastField() ? page->fieldText(no) : QString());
    if (ext) {
        const szExtTMI_ORBA3& e = static_cast<const TmiPage_Orba3*>(page)->extTMI();
        for (int id = 0; id < kExtCount; ++id) {
            const QLatin1String xml(kExtFields[id].xml);
            for (int no = 1; no <= kFieldCount && xml.size() > 0; ++no) {
                if (xml == QLatin1String(kFields[no - 1].name))
                    cells[5 + no - 1] = extFieldText(id, e);
            }
        }
    }
    return cells;
}

} // namespace orba
