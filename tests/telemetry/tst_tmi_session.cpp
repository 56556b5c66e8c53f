// The telemetry view's model without its window: the session and what is saved from it, the
// freshness line, chart values, and the terminal commands' arguments.
#include "orba_records.h"
#include "telemetry/orba_dispatch.h"
#include "telemetry/orba_page.h"
#include "telemetry/orba_plot.h"
#include "telemetry/tmi_commands.h"
#include "telemetry/tmi_session.h"
#include "telemetry/tmi_time.h"
#include "translations/catalogue.h"
#include "zrk/zrk_host_api.h"

#include <QtTest>

using orbatest::RecordBuilder;
using zrk::tmi::Origin;
using zrk::tmi::SaveFormat;
using zrk::tmi::Session;

Q_DECLARE_METATYPE(zrk::tmi::SaveFormat)

namespace {

std::shared_ptr<const OrbaPage> decoded(const QByteArray& rec, orba::Form form)
{
    return orba::buildPage(form, reinterpret_cast<const unsigned char*>(rec.constData()), rec.size());
}

QByteArray numbered(quint32 n)
{
    return RecordBuilder().setNumber(orba::F_NumPage, n).record(3);
}

void appendRecord(Session& s, const QByteArray& rec, Origin origin = Origin::Live)
{
    const orba::Form form = orba::chooseForm(rec, 0, false);
    s.append(rec, decoded(rec, form), form, origin, QDateTime::fromSecsSinceEpoch(1700000000, Qt::UTC));
}

} // namespace

class tst_TmiSession : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(zrk::installCatalogue(QStringLiteral("ru"))); }

    void saveTarget_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("path");
        QTest::addColumn<SaveFormat>("format");
        const QString csv = QStringLiteral("CSV (*.csv)"), kml = QStringLiteral("KML (*.kml)");
        const QString tmi = QStringLiteral("Телеметрия (*.tmi)"), xml = QStringLiteral("XML (*.xml)");
        QTest::newRow("csv filter, no extension") << "/d/day" << csv << "/d/day.csv" << SaveFormat::Csv;
        QTest::newRow("kml filter, no extension") << "/d/day" << kml << "/d/day.kml" << SaveFormat::Kml;
        QTest::newRow("tmi filter, no extension") << "/d/day" << tmi << "/d/day.tmi" << SaveFormat::Tmi;
        QTest::newRow("xml filter, no extension") << "/d/day" << xml << "/d/day.xml" << SaveFormat::Tmi;
        QTest::newRow("csv filter, extension typed")
            << "/d/day.CSV" << csv << "/d/day.CSV" << SaveFormat::Csv;
        QTest::newRow("csv filter, other extension")
            << "/d/day.kml" << csv << "/d/day.kml.csv" << SaveFormat::Csv;
        QTest::newRow("kml filter, dotted name") << "/d/v1.2" << kml << "/d/v1.2.kml" << SaveFormat::Kml;
        QTest::newRow("xml filter keeps .tmi") << "/d/day.tmi" << xml << "/d/day.tmi" << SaveFormat::Tmi;
        QTest::newRow("no filter, csv name") << "/d/day.csv" << QString() << "/d/day.csv" << SaveFormat::Csv;
        QTest::newRow("no filter, kml name") << "/d/day.kml" << QString() << "/d/day.kml" << SaveFormat::Kml;
        QTest::newRow("no filter, other name")
            << "/d/day.txt" << QString() << "/d/day.txt" << SaveFormat::Tmi;
        QTest::newRow("filter of two patterns")
            << "/d/day" << QStringLiteral("Таблица (*.csv *.txt)") << "/d/day.csv" << SaveFormat::Csv;
    }
    void saveTarget()
    {
        QFETCH(QString, name);
        QFETCH(QString, filter);
        QFETCH(QString, path);
        QFETCH(SaveFormat, format);
        const zrk::tmi::SaveTarget t = zrk::tmi::saveTarget(name, filter);
        QCOMPARE(t.path, path);
        QCOMPARE(t.format, format);
    }

    // A record the host sent as extended is kept as received and saved as an extended record, so
    // that the file shows it as the view did.
    void extendedRecordSavedAsExtended()
    {
        QByteArray rec = orbatest::extRecord();
        rec[0] = char(orba::kKindCurrent);
        Session s;
        s.append(rec, decoded(rec, orba::Form::Extended), orba::Form::Extended, Origin::Live,
            QDateTime::currentDateTime());
        QCOMPARE(s.at(0).bytes, rec);
        QVERIFY(s.at(0).hasNumber);
        QCOMPARE(s.at(0).number, 12u);
        const QVector<zrk::tmi::Record> records = s.records();
        QCOMPARE(records[0].bytes, orbatest::extRecord());
        QCOMPARE(orba::decodeRecord(records[0].bytes).form, orba::Form::Extended);
    }

    void sessionBoundAndTrack()
    {
        Session s(3);
        const QByteArray placed = RecordBuilder()
                                      .setNumber(orba::F_NumPage, 7)
                                      .setNumber(orba::F_Latitude, 33000000)
                                      .setNumber(orba::F_Longitude, 22200000)
                                      .record(3);
        appendRecord(s, numbered(5));
        appendRecord(s, placed);
        appendRecord(s, numbered(8), Origin::ByTime);
        QCOMPARE(s.track().size(), 1);
        QCOMPARE(s.track()[0].lat, 55.0);
        QCOMPARE(s.track()[0].lon, 37.0);
        QVERIFY(s.label(2).endsWith(QStringLiteral("#8  [история]")));
        // A full session drops its oldest record for a new one, and says so.
        const orba::Form form = orba::Form::Orba3;
        QVERIFY(s.append(numbered(9), decoded(numbered(9), form), form, Origin::Live, QDateTime()));
        QCOMPARE(s.count(), 3);
        QCOMPARE(s.at(0).number, 7u);
        QCOMPARE(s.at(2).number, 9u);
    }

    void freshness_data()
    {
        QTest::addColumn<QByteArray>("rec");
        QTest::addColumn<bool>("extended");
        QTest::addColumn<QString>("tail");
        const auto rec = [](quint32 time, quint32 fix) {
            RecordBuilder b;
            b.setNumber(orba::F_Time, time);
            b.setNumber(orba::F_LastTime, fix);
            return b.record(3);
        };
        QTest::newRow("fix 10 s old") << rec(1700000000, 1699999990) << false << "возраст координат: 10 с";
        QTest::newRow("no fix yet") << rec(1700000000, 0) << false << "координат нет";
        QTest::newRow("no time field")
            << RecordBuilder().setNumber(orba::F_NumPage, 1).record(3) << false << "14.11.2023 00:00:00";
        QTest::newRow("extended") << orbatest::extRecord() << true << "возраст координат: 10 с";
    }
    void freshness()
    {
        QFETCH(QByteArray, rec);
        QFETCH(bool, extended);
        QFETCH(QString, tail);
        const auto page = decoded(rec, extended ? orba::Form::Extended : orba::Form::Orba3);
        const QDateTime received(QDate(2023, 11, 14), QTime(0, 0));
        const zrk::tmi::Freshness f = zrk::tmi::freshnessOf(*page, received, Origin::ByTime);
        const QString text = zrk::tmi::freshnessText(f);
        QVERIFY2(text.startsWith(QStringLiteral("Получена: 14.11.2023 00:00:00")), qPrintable(text));
        QVERIFY2(text.endsWith(tail), qPrintable(text));
        QCOMPARE(zrk::tmi::historyMarkText(f.origin), QStringLiteral("ИЗ ИСТОРИИ (по времени)"));
        QVERIFY(zrk::tmi::freshnessText({}).isEmpty());
    }

    void chartNumbers_data()
    {
        QTest::addColumn<int>("field");
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<bool>("plotted");
        QTest::addColumn<double>("number");
        QTest::newRow("power in volts") << int(orba::F_Power) << orbatest::le(12340, 2) << true << 12.34;
        QTest::newRow("altitude in metres")
            << int(orba::F_Altitude) << orbatest::le(quint32(-1234), 4) << true << -123.0;
        QTest::newRow("temperature") << int(orba::F_Temp1) << orbatest::le(quint8(-20), 1) << true << -20.0;
        QTest::newRow("no temperature sensor") << int(orba::F_Temp1) << orbatest::le(0x80, 1) << false << 0.0;
        QTest::newRow("precise temperature")
            << int(orba::F_HPrecisionTemp1) << orbatest::le(quint16(-50), 2) << true << -2.5;
        QTest::newRow("no precise sensor")
            << int(orba::F_HPrecisionTemp1) << orbatest::le(0x8000, 2) << false << 0.0;
        QTest::newRow("time is no number")
            << int(orba::F_Time) << orbatest::le(1700000000, 4) << false << 0.0;
    }
    void chartNumbers()
    {
        QFETCH(int, field);
        QFETCH(QByteArray, value);
        QFETCH(bool, plotted);
        QFETCH(double, number);
        const QByteArray rec = RecordBuilder().set(field, value).record(3);
        const auto page = decoded(rec, orba::Form::Orba3);
        double v = 0;
        QCOMPARE(orba::fieldNumber(*page, field, &v), plotted);
        if (plotted)
            QCOMPARE(v, number);
        // Absent, or beyond the version: no value.
        const auto other
            = decoded(RecordBuilder().setNumber(orba::F_NumPage, 1).record(1), orba::Form::Orba1);
        QVERIFY(!orba::fieldNumber(*other, field, &v));
    }

    void replyLines()
    {
        QCOMPARE(zrk::tmi::replyLogText(ZRK_MSG_COMMAND_REPLY, QByteArray("OK\r\n\xc4\xe0", 6)),
            QStringLiteral("Ответ на команду (6): OK..Да\n    4f 4b 0d 0a c4 e0"));
        QCOMPARE(zrk::tmi::resultLogText(ZRK_MSG_TACHO_FILE_READ, false),
            QStringLiteral("Файл тахографа не прочитан"));
        QCOMPARE(zrk::tmi::resultLogText(ZRK_MSG_FLS_DATA_FILE_READ, true),
            QStringLiteral("Файл данных датчика прочитан"));
    }
};

QTEST_MAIN(tst_TmiSession)
#include "tst_tmi_session.moc"
