// The record writer of zrk-tool decode and the exports against the JSON document and string list
// shapes it replaces, byte for byte; and the number and date texts it makes in place against Qt's.
#include "orba_records.h"
#include "telemetry/orba_export.h"
#include "telemetry/orba_writer.h"
#include "translations/catalogue.h"
#include "zrk/zrk_text.h"

#include <QDateTime>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>
#include <QRandomGenerator>
#include <QtTest>

#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <time.h>

using namespace orbatest;

namespace {

void setTimeZone(const QByteArray& tz)
{
    qputenv("TZ", tz);
    tzset();
}

QByteArray floatBytes(float f)
{
    QByteArray b(4, '\0');
    std::memcpy(b.data(), &f, 4);
    return b;
}

QByteArray doubleBytes(double d)
{
    QByteArray b(8, '\0');
    std::memcpy(b.data(), &d, 8);
    return b;
}

// Values that a formatter gets wrong first: ties, signed zero, the ends of the ranges.
const float kFloats[] = { 394946.125f, 0.125f, -0.375f, 2.5f, -0.0f, 0.0f, 1e20f, 1e-30f, 16777216.f,
    std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(),
    -std::numeric_limits<float>::infinity(), std::numeric_limits<float>::max(),
    std::numeric_limits<float>::denorm_min(), 0.1f, -60.25f };

QByteArray randomBytes(QRandomGenerator& rng, int n)
{
    QByteArray b(n, '\0');
    for (char& c : b)
        c = char(rng.bounded(256));
    return b;
}

// A current record of any version byte with a random field set; some values set to the cases above,
// the body sometimes cut short or followed by bytes no field asks for.
QByteArray randomCurrent(QRandomGenerator& rng)
{
    RecordBuilder b;
    const int density = 1 + int(rng.bounded(8));
    for (int no = 1; no <= orba::kFieldCount; ++no) {
        if (rng.bounded(density) != 0)
            continue;
        const orba::FieldInfo& f = orba::kFields[no - 1];
        QByteArray v = randomBytes(rng, f.width);
        if (f.type == orba::Type::F && rng.bounded(2))
            v = floatBytes(kFloats[rng.bounded(int(std::size(kFloats)))]);
        if (f.width == 8 && rng.bounded(2)) {
            const quint64 edges[]
                = { quint64(1) << 53, (quint64(1) << 53) + 1, quint64(1) << 63, ~quint64(0) };
            v = le(edges[rng.bounded(4)], 8);
        }
        if (no == orba::F_NaviCoord && rng.bounded(2))
            v = doubleBytes(55.0078125) + doubleBytes(-0.5 - std::ldexp(1.0, -7));
        b.set(no, v);
    }
    const int versions[] = { 10, 20, 30, 30, 30, 40 };
    QByteArray r = b.record(3);
    r[1] = char(versions[rng.bounded(6)]);
    if (rng.bounded(5) == 0)
        r.chop(int(rng.bounded(std::min(r.size(), 40) + 1)));
    else if (rng.bounded(5) == 0)
        r += randomBytes(rng, int(rng.bounded(20)));
    return r;
}

// An extended record with random dynamic items: texts with quotes, backslashes, control
// characters and bytes of the code page's upper half; sometimes a size that lies.
QByteArray randomExtended(QRandomGenerator& rng)
{
    QByteArray dynamic;
    const int items = int(rng.bounded(6));
    for (int i = 0; i < items; ++i) {
        const int type = int(rng.bounded(5));
        if (type == 2) {
            QByteArray text = randomBytes(rng, 16);
            text[int(rng.bounded(16))] = '"';
            text[int(rng.bounded(16))] = '\\';
            if (rng.bounded(2))
                text[int(rng.bounded(16))] = '\0';
            dynamic += item(2, 16, text);
        } else {
            dynamic += item(type, 8, randomBytes(rng, 8));
        }
    }
    QByteArray r = extRecord(dynamic);
    if (rng.bounded(4) == 0)
        r[1] = char(rng.bounded(256));
    if (rng.bounded(4) == 0)
        r.chop(int(rng.bounded(r.size())));
    return r;
}

QByteArray randomRecord(QRandomGenerator& rng)
{
    switch (rng.bounded(8)) {
    case 0:
        return randomExtended(rng);
    case 1: {
        QByteArray packet = randomBytes(rng, int(rng.bounded(140)));
        if (!packet.isEmpty())
            packet[0] = char(orba::kKindFixedPacket);
        return packet;
    }
    case 2:
        return randomBytes(rng, int(rng.bounded(4)));
    default:
        return randomCurrent(rng);
    }
}

QByteArray oldJson(const QByteArray& record)
{
    return QJsonDocument(orba::recordJson(record)).toJson(QJsonDocument::Compact) + '\n';
}

QByteArray oldCsv(const QByteArray& record)
{
    return zrk::csvLine(orba::csvCells(record)).toUtf8() + '\n';
}

QByteArray written(orba::RecordWriter& w, const QByteArray& record)
{
    zrk::TextBuffer out;
    w.write(record, out);
    return QByteArray(out.data(), int(out.size()));
}

} // namespace

class tst_OrbaWriter : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QVERIFY(zrk::installCatalogue(QStringLiteral("ru"))); }
    void cleanupTestCase() { setTimeZone("UTC0"); }

    void sameAsDocument_data()
    {
        QTest::addColumn<QByteArray>("tz");
        QTest::addColumn<QList<QByteArray>>("records");
        const QDir corpus(QStringLiteral(ZRK_SOURCE_DIR "/fuzz/corpus"));
        for (const QString& target : corpus.entryList({ QStringLiteral("fuzz_orba*") }, QDir::Dirs)) {
            const QDir dir(corpus.filePath(target));
            for (const QString& name : dir.entryList(QDir::Files)) {
                QFile f(dir.filePath(name));
                QVERIFY(f.open(QIODevice::ReadOnly));
                QTest::newRow(qPrintable(target + QLatin1Char('/') + name))
                    << QByteArray("UTC0") << QList<QByteArray> { f.readAll() };
            }
        }
        // Zones with summer time and with a half-hour offset, for dates on both sides of 2038.
        for (const char* tz : { "UTC0", "America/New_York", "Australia/Lord_Howe" }) {
            QRandomGenerator rng(77);
            QList<QByteArray> records;
            for (int i = 0; i < 600; ++i)
                records << randomRecord(rng);
            QTest::newRow(qPrintable(QStringLiteral("random records, %1").arg(QLatin1String(tz))))
                << QByteArray(tz) << records;
        }
    }

    // JSON lines and CSV rows as the document and the string list write them, with the same
    // writer used for record after record.
    void sameAsDocument()
    {
        QFETCH(QByteArray, tz);
        QFETCH(QList<QByteArray>, records);
        setTimeZone(tz);
        orba::RecordWriter json(orba::RecordWriter::Format::JsonLines);
        orba::RecordWriter csv(orba::RecordWriter::Format::Csv);
        for (const QByteArray& r : records) {
            QCOMPARE(written(json, r), oldJson(r));
            QCOMPARE(written(csv, r), oldCsv(r));
        }
    }

    // What the document cannot write exactly is written as a decimal string.
    void wideIntegers_data()
    {
        QTest::addColumn<quint64>("value");
        QTest::addColumn<QByteArray>("json");
        QTest::newRow("2^53") << (quint64(1) << 53) << QByteArray("9007199254740992");
        QTest::newRow("2^53 + 1") << (quint64(1) << 53) + 1 << QByteArray("\"9007199254740993\"");
        QTest::newRow("largest") << ~quint64(0) << QByteArray("\"18446744073709551615\"");
    }

    void wideIntegers()
    {
        QFETCH(quint64, value);
        QFETCH(QByteArray, json);
        orba::RecordWriter w(orba::RecordWriter::Format::JsonLines);
        const QByteArray current = RecordBuilder().setNumber(orba::F_User8Byte1, value).record();
        QVERIFY(written(w, current)
                    .contains("\"name\":\"User8Byte1\",\"no\":253,\"present\":true,\"text\":\""
                        + QByteArray::number(value) + "\",\"value\":" + json + '}'));
        const QByteArray ext = extRecord(item(3, 8, le(value, 8)));
        QVERIFY(written(w, ext).startsWith("{\"dynamic\":[{\"size\":8,\"type\":3,\"value\":" + json + "}]"));
        QCOMPARE(written(w, current), oldJson(current));
        QCOMPARE(written(w, ext), oldJson(ext));
    }

    void fixedDecimals_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("decimals");
        const double nan = std::numeric_limits<double>::quiet_NaN();
        const double inf = std::numeric_limits<double>::infinity();
        const struct
        {
            const char* name;
            double value;
            int decimals;
        } rows[] = { { "tie rounds away from zero", 394946.125, 2 }, { "negative tie", -0.375, 2 },
            { "tie at the 7th decimal", 0.0078125, 6 }, { "tie carried through", 99.5, 0 },
            { "tie on an even digit", 2.5, 0 }, { "near a tie", 0.045, 2 }, { "negative zero", -0.0, 2 },
            { "negative, shown as zero", -0.001, 2 }, { "not a number", nan, 2 },
            { "minus infinity", -inf, 6 }, { "huge", 1e300, 6 }, { "denormal", 5e-324, 6 } };
        for (const auto& r : rows)
            QTest::newRow(r.name) << r.value << r.decimals;
        QRandomGenerator rng(5);
        for (int i = 0; i < 40; ++i) {
            const quint64 bits = rng.generate64();
            double d;
            std::memcpy(&d, &bits, 8);
            const float f = float(rng.generateDouble() * std::ldexp(1.0, int(rng.bounded(40))) - 1e5);
            QTest::newRow(qPrintable(QStringLiteral("random double %1").arg(i))) << d << 6;
            QTest::newRow(qPrintable(QStringLiteral("random float %1").arg(i))) << double(f) << 2;
        }
    }

    void fixedDecimals()
    {
        QFETCH(double, value);
        QFETCH(int, decimals);
        zrk::TextBuffer b;
        b.appendFixed(value, decimals);
        QCOMPARE(b.toString(), QString::number(value, 'f', decimals));
    }

    // Every float a record can hold, through its shortest text, as the JSON document writes it;
    // and doubles of every magnitude.
    void jsonNumbers()
    {
        QRandomGenerator rng(9);
        auto check = [](double d) {
            if (!std::isfinite(d))
                return true;
            zrk::TextBuffer b;
            b.appendJsonNumber(d);
            const QByteArray qt = QJsonDocument(QJsonArray { d }).toJson(QJsonDocument::Compact);
            const QByteArray ours(b.data(), int(b.size()));
            if (qt.mid(1, qt.size() - 2) == ours)
                return true;
            qWarning("%.17g: Qt %s, ours %s", d, qt.constData(), ours.constData());
            return false;
        };
        for (int i = 0; i < 20000; ++i) {
            const quint64 bits = rng.generate64();
            double d;
            std::memcpy(&d, &bits, 8);
            QVERIFY(check(d));
            float f;
            std::memcpy(&f, &bits, 4);
            char text[32];
            const char* end = std::to_chars(text, text + sizeof text, f).ptr;
            std::from_chars(text, end, d);
            QVERIFY(check(d));
            QVERIFY(check(std::ldexp(rng.generateDouble(), int(rng.bounded(160)) - 80)));
        }
        for (int e = -30; e <= 30; ++e) {
            QVERIFY(check(std::pow(10.0, e)));
            QVERIFY(check(-1.5 * std::pow(10.0, e)));
        }
        QVERIFY(check(-0.0));
        QVERIFY(check(18446744073709551616.0));
    }

    void localTimes_data()
    {
        QTest::addColumn<QByteArray>("tz");
        for (const char* tz : { "UTC0", "Europe/Moscow", "America/New_York", "Australia/Lord_Howe",
                 "Asia/Kathmandu", "Europe/London", "IST-5:30" })
            QTest::newRow(tz) << QByteArray(tz);
    }

    // One clock over times that walk across summer-time changes, 2038 and leap days, and jump:
    // each as QDateTime shows it.
    void localTimes()
    {
        QFETCH(QByteArray, tz);
        setTimeZone(tz);
        zrk::LocalClock clock;
        QRandomGenerator rng(11);
        qint64 t = 1700000000;
        for (int i = 0; i < 30000; ++i) {
            switch (rng.bounded(4)) {
            case 0:
                t = rng.generate(); // anywhere from 1970 to 2106
                break;
            case 1:
                t = 2145916799 + qint64(rng.bounded(3)) - 1; // the end of 2037
                break;
            default:
                t += qint64(rng.bounded(7200)) - 3000; // nearby, often across an hour
            }
            t = qBound<qint64>(0, t, 0xFFFFFFFF);
            zrk::TextBuffer b;
            orba::appendDateTime(b, quint32(t), clock);
            const QString qt = QLocale::c().toString(
                QDateTime::fromSecsSinceEpoch(t, Qt::LocalTime), QStringLiteral("dd.MM.yyyy H:mm:ss"));
            QVERIFY2(b.toString() == qt,
                qPrintable(QStringLiteral("%1: %2, not %3").arg(t).arg(b.toString(), qt)));
        }
        // 29 February of 2040, 2060 and 2096: shown with the zone's rules of 28 February 2037.
        for (const qint64 leap : { 2214129600LL, 2845321200LL, 3981315600LL })
            QCOMPARE(orba::dateTimeText(quint32(leap)),
                QLocale::c().toString(QDateTime::fromSecsSinceEpoch(leap, Qt::LocalTime),
                    QStringLiteral("dd.MM.yyyy H:mm:ss")));
    }

    void lineEnds()
    {
        orba::RecordWriter csv(orba::RecordWriter::Format::Csv, "\r\n");
        zrk::TextBuffer out;
        csv.writeHeader(out);
        csv.write(QByteArray("\xff", 1), out);
        const QByteArray text(out.data(), int(out.size()));
        QCOMPARE(text,
            zrk::csvLine(orba::csvHeader()).toUtf8() + "\r\n" + oldCsv(QByteArray("\xff", 1)).trimmed()
                + "\r\n");
        zrk::TextBuffer none;
        orba::RecordWriter(orba::RecordWriter::Format::JsonLines).writeHeader(none);
        QVERIFY(none.isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_OrbaWriter)
#include "tst_orba_writer.moc"
