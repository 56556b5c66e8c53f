// The simulated terminal's telemetry: its records decode, through the plug-in's own decoder, to
// what the terminal put in, in every version and field set; its replies carry the prefixes the
// host documents; outputs and guard reach the next record; a written configuration sets the
// field set.
#include "host_catalogue.h"
#include "sim_telemetry.h"
#include "telemetry/orba_dispatch.h"
#include "telemetry/orba_page.h"
#include "zrk/zrk_host_api.h"

#include <QTextCodec>
#include <QTranslator>
#include <QtTest>

#include <cstring>
#include <memory>

namespace {

const QDateTime kLast = QDateTime::fromSecsSinceEpoch(1700000000, Qt::UTC);

struct Sent
{
    int msg;
    QByteArray bytes; // QByteArray* replies
    quint64 value; // uint32*/uint64* replies
};

// A terminal whose replies are kept.
struct Terminal
{
    ZrkSimTelemetry sim { kLast };
    QVector<Sent> sent;
    Terminal()
    {
        sim.setSend([this](int msg, unsigned long w, unsigned long, const QString&) {
            Sent s { msg, {}, 0 };
            if (msg == ZRK_MSG_CURRENT_DISPLAY_VALUE)
                s.value = *reinterpret_cast<const quint32*>(w);
            else if (msg == ZRK_MSG_TOUCH_MEMORY_CODE || msg == ZRK_MSG_RFID_CARD)
                s.value = *reinterpret_cast<const quint64*>(w);
            else
                s.bytes = *reinterpret_cast<const QByteArray*>(w);
            sent.append(s);
        });
    }
    Sent ask(int msg, unsigned long w = 0, unsigned long l = 0)
    {
        QString result;
        sent.clear();
        sim.handle(msg, w, l, result);
        return sent.isEmpty() ? Sent { 0, {}, 0 } : sent.last();
    }
};

std::unique_ptr<OrbaPage> decode(const QByteArray& rec)
{
    const auto* p = reinterpret_cast<const unsigned char*>(rec.constData());
    return orba::buildPage(orba::chooseForm(rec, 0, false), p, rec.size());
}

QByteArray fieldBytes(const OrbaPage& page, int no)
{
    return QByteArray(
        reinterpret_cast<const char*>(page.recordBytes()) + orba::kOffsets[no], orba::kFields[no - 1].width);
}

quint32 le32(const QByteArray& b, int at)
{
    return quint32(quint8(b[at])) | quint32(quint8(b[at + 1])) << 8 | quint32(quint8(b[at + 2])) << 16
        | quint32(quint8(b[at + 3])) << 24;
}

QString maskOf(std::initializer_list<int> fields)
{
    QString m(255, QLatin1Char('0'));
    for (int n : fields)
        m[n - 1] = QLatin1Char('1');
    return m;
}

} // namespace

class tst_SimTelemetry : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(zrkLoadHostCatalogue(hostTexts, QStringLiteral("ru")));
        QCoreApplication::installTranslator(&hostTexts);
    }

    void roundTrip_data()
    {
        QTest::addColumn<int>("version");
        QTest::addColumn<QString>("mask");
        QString odd(255, QLatin1Char('0'));
        for (int i = 0; i < 255; i += 2)
            odd[i] = QLatin1Char('1');
        const QString all(255, QLatin1Char('1'));
        for (int v = 1; v <= 3; ++v) {
            QTest::addRow("v%d default", v) << v << QString();
            QTest::addRow("v%d all", v) << v << all;
            QTest::addRow("v%d odd", v) << v << odd;
            QTest::addRow("v%d wide fields only", v) << v << maskOf({ 3, 70, 73, 77, 97, 197, 255 });
            QTest::addRow("v%d head only", v) << v << maskOf({ 1, 2, 3 });
            QTest::addRow("v%d nothing", v) << v << QString(255, QLatin1Char('0'));
        }
        QTest::newRow("v3 latitude alone") << 3 << maskOf({ 10 });
    }

    void roundTrip()
    {
        QFETCH(int, version);
        QFETCH(QString, mask);
        // Every field present, for what the values mean.
        Terminal full;
        full.sim.setVersion(version);
        QVERIFY(full.sim.setMaskText(QString(255, QLatin1Char('1'))));
        Terminal t;
        t.sim.setVersion(version);
        if (!mask.isEmpty())
            QVERIFY(t.sim.setMaskText(mask));
        const QString set = t.sim.maskText();

        for (quint32 n : { t.sim.firstNumber(), t.sim.firstNumber() + 1234, t.sim.lastNumber() }) {
            const QByteArray rec = t.sim.record(n);
            const auto page = decode(rec);
            QVERIFY(page);
            QCOMPARE(page->version(), version);
            const QByteArray values = t.sim.fieldValues(n);
            QCOMPARE(values.size(), orba::recordSize(3));
            int bodyBytes = 0;
            for (int no = 1; no <= 255; ++no) {
                const bool wanted = set[no - 1] == QLatin1Char('1') && no <= page->lastField();
                QCOMPARE(page->isUsed(no), wanted);
                if (!wanted)
                    continue;
                bodyBytes += orba::kFields[no - 1].width;
                QVERIFY2(fieldBytes(*page, no) == values.mid(orba::kOffsets[no], orba::kFields[no - 1].width),
                    orba::kFields[no - 1].name);
            }
            // Nothing more and nothing less than the present fields follow the head.
            QCOMPARE(rec.size(), orba::kBodyOffset + bodyBytes);
        }

        // Whatever the version and field set, the current reply is long enough to be shown, and the
        // zeros after a short record are no fields.
        const Sent s = t.ask(ZRK_MSG_REQUEST_TMI_CURRENT, 0);
        QCOMPARE(s.msg, int(ZRK_MSG_TMI_CURRENT));
        QVERIFY(s.bytes.size() >= 101);
        const QByteArray last = t.sim.record(t.sim.lastNumber());
        QCOMPARE(int(quint8(s.bytes[1]) | quint8(s.bytes[2]) << 8), last.size());
        QCOMPARE(s.bytes.mid(3, last.size()), last);
        QCOMPARE(s.bytes.mid(3 + last.size()), QByteArray(qMax(0, 101 - 3 - last.size()), '\0'));
        QCOMPARE(decode(s.bytes.mid(3))->version(), version);

        // What the reference holds is the vehicle of the loop.
        const quint32 n = full.sim.lastNumber() - 7;
        const auto ref = decode(full.sim.record(n));
        const unsigned char* r = ref->recordBytes();
        const auto value = [r](int no) {
            return orba::signExtend(orba::readLE(r + orba::kOffsets[no], orba::kFields[no - 1].width),
                orba::kFields[no - 1].width);
        };
        QCOMPARE(value(orba::F_NumPage), qint64(n));
        QCOMPARE(value(orba::F_Time), kLast.toSecsSinceEpoch() - 7 * 10);
        QVERIFY(qAbs(value(orba::F_Latitude) / 600000.0 - 55.75) < 0.05);
        QVERIFY(qAbs(value(orba::F_Longitude) / 600000.0 - 37.62) < 0.08);
        float speed;
        std::memcpy(&speed, r + orba::kOffsets[orba::F_Speed], 4);
        QVERIFY(speed >= 0 && speed < 90);
        QVERIFY(quint16(value(orba::F_Course)) < 360);
        QVERIFY(quint16(value(orba::F_Power)) > 12000);
    }

    void replies_data()
    {
        QTest::addColumn<int>("request");
        QTest::addColumn<qint64>("arg"); // record number, or seconds after the record time
        QTest::addColumn<int>("reply");
        QTest::addColumn<int>("prefix");
        QTest::addColumn<qint64>("expected"); // record number, 0 for none

        // Each request has its one reply id and prefix length.
        const auto row = [](const char* name, int request, qint64 arg, qint64 expected) {
            const int reply = request == ZRK_MSG_REQUEST_TMI_CURRENT ? ZRK_MSG_TMI_CURRENT
                : request == ZRK_MSG_REQUEST_TMI_BY_INDEX            ? ZRK_MSG_TMI_BY_NUMBER
                : request == ZRK_MSG_REQUEST_TMI_BEFORE              ? ZRK_MSG_TMI_STEP_LEFT
                                                                     : ZRK_MSG_TMI_STEP_RIGHT;
            const int prefix = reply == ZRK_MSG_TMI_STEP_LEFT || reply == ZRK_MSG_TMI_STEP_RIGHT ? 13 : 3;
            QTest::newRow(name) << request << arg << reply << prefix << expected;
        };
        const qint64 last = ZrkSimTelemetry::kStoredRecords;
        row("current", ZRK_MSG_REQUEST_TMI_CURRENT, 0, last + 1);
        row("by number", ZRK_MSG_REQUEST_TMI_BY_INDEX, 17, 17);
        row("first", ZRK_MSG_REQUEST_TMI_BY_INDEX, 1, 1);
        row("last", ZRK_MSG_REQUEST_TMI_BY_INDEX, last, last);
        row("next past the last", ZRK_MSG_REQUEST_TMI_BY_INDEX, last + 1, 0);
        row("previous before the first", ZRK_MSG_REQUEST_TMI_BY_INDEX, 0, 0);
        // Moments are the time of record 100 plus an offset in seconds.
        row("before, between", ZRK_MSG_REQUEST_TMI_BEFORE, 5, 100);
        row("before, exact", ZRK_MSG_REQUEST_TMI_BEFORE, 0, 100);
        row("after, between", ZRK_MSG_REQUEST_TMI_AFTER, 5, 101);
        row("after, exact", ZRK_MSG_REQUEST_TMI_AFTER, 0, 100);
        row("before the first record", ZRK_MSG_REQUEST_TMI_BEFORE, -991, 0);
        row("after the last record", ZRK_MSG_REQUEST_TMI_AFTER, (last - 100) * 10 + 1, 0);
    }

    void replies()
    {
        QFETCH(int, request);
        QFETCH(qint64, arg);
        QFETCH(int, reply);
        QFETCH(int, prefix);
        QFETCH(qint64, expected);
        Terminal t;
        quint32 number = quint32(arg);
        const qint64 time100 = kLast.toSecsSinceEpoch() - (ZrkSimTelemetry::kStoredRecords - 100) * 10;
        QDateTime moment = QDateTime::fromSecsSinceEpoch(time100 + arg, Qt::UTC);
        const unsigned long w = request == ZRK_MSG_REQUEST_TMI_BY_INDEX
            ? reinterpret_cast<unsigned long>(&number)
            : request == ZRK_MSG_REQUEST_TMI_CURRENT ? 0ul
                                                     : reinterpret_cast<unsigned long>(&moment);
        const Sent s = t.ask(request, w);
        QCOMPARE(s.msg, reply);
        QVERIFY(s.bytes.size() >= prefix);
        QCOMPARE(int(s.bytes[0]), expected ? 1 : 0);
        const QByteArray rec = s.bytes.mid(prefix);
        if (!expected) {
            // The view strips the prefix and finds nothing to show.
            QCOMPARE(s.bytes.size(), prefix);
            QCOMPARE(orba::chooseForm(rec, 0, true), orba::Form::Dropped);
            return;
        }
        QCOMPARE(rec.left(t.sim.record(quint32(expected)).size()), t.sim.record(quint32(expected)));
        if (prefix == 3) {
            QCOMPARE(int(quint8(s.bytes[1]) | quint8(s.bytes[2]) << 8), rec.size());
        } else {
            QCOMPARE(le32(s.bytes, 1), quint32(moment.toSecsSinceEpoch()));
            QCOMPARE(le32(s.bytes, 5), quint32(expected));
            QCOMPARE(le32(s.bytes, 9), le32(rec, orba::kBodyOffset + 4 + 2)); // Time follows NumPage and Code
        }
        // Replies of the default field set pass the view's 101-byte threshold.
        QVERIFY(s.bytes.size() >= 101);
    }

    void outputsAndGuardInNextRecord()
    {
        Terminal t;
        const auto out1 = [&] {
            const auto page = decode(t.ask(ZRK_MSG_REQUEST_TMI_CURRENT).bytes.mid(3));
            return std::make_pair(quint8(fieldBytes(*page, orba::F_Out1)[0]),
                orba::readValue<2, orba::Type::U>(page->recordBytes() + orba::kOffsets[orba::F_Code]));
        };
        QCOMPARE(out1().first, quint8(0));
        t.ask(ZRK_MSG_OUTPUT_ON, 3);
        t.ask(ZRK_MSG_OUTPUT_ON, 17); // no such output
        t.ask(ZRK_MSG_OUTPUT_ON, 0);
        const auto lit = out1();
        QCOMPARE(lit.first, quint8(0x04));
        QCOMPARE(lit.second, quint16(20)); // written for the output switched on
        const quint32 litNumber = t.sim.lastNumber();
        t.ask(ZRK_MSG_OUTPUT_ON, 8);
        QCOMPARE(out1().first, quint8(0x84));
        t.ask(ZRK_MSG_OUTPUT_OFF, 3);
        QCOMPARE(out1().first, quint8(0x80));
        // A stored record keeps what it was written with.
        QCOMPARE(quint8(fieldBytes(*decode(t.sim.record(litNumber)), orba::F_Out1)[0]), quint8(0x04));

        t.sim.setVersion(3);
        QVERIFY(t.sim.setMaskText(maskOf({ 1, 2, 4 })));
        const auto guardBits = [&] {
            const auto page = decode(t.ask(ZRK_MSG_REQUEST_TMI_CURRENT).bytes.mid(3));
            return OrbaPage::get2BitFromByte(quint8(fieldBytes(*page, orba::F_State)[0]), 3);
        };
        t.ask(ZRK_MSG_GUARD_ENTER);
        QCOMPARE(guardBits(), quint8(1));
        QCOMPARE(guardBits(), quint8(1));
        t.ask(ZRK_MSG_GUARD_LEAVE);
        QCOMPARE(guardBits(), quint8(0));
    }

    void extendedRecord()
    {
        Terminal t;
        t.ask(ZRK_MSG_REQUEST_TMI_CURRENT);
        t.sent.clear();
        t.sim.sendExtended();
        QCOMPARE(t.sent.size(), 1);
        const QByteArray reply = t.sent[0].bytes;
        QCOMPARE(t.sent[0].msg, int(ZRK_MSG_TMI_EXTENDED));
        QCOMPARE(int(quint8(reply[0]) | quint8(reply[1]) << 8), reply.size() - 2);
        const QByteArray rec = reply.mid(2);
        QCOMPARE(orba::chooseForm(rec, 0, false), orba::Form::Extended);
        szExtTMI_ORBA3 ext {};
        orba::decodeExt(reinterpret_cast<const unsigned char*>(rec.constData()), rec.size(), ext);
        QCOMPARE(
            le32(QByteArray(reinterpret_cast<const char*>(ext.NumberTmiPage), 4), 0), t.sim.lastNumber());
        const QVector<orba::DynamicItem> items = orba::dynamicItems(ext);
        QCOMPARE(items.size(), 3);
        QCOMPARE(items[1].type, 2);
        QCOMPARE(items[1].text, QStringLiteral("K7140 SIM"));
        QCOMPARE(items[2].number, ZrkSimTelemetry::kTouchKeyCode);

        // The other answers: texts, the display value, the key readers.
        QString text;
        t.sim.handle(ZRK_MSG_EVENT_CODE_TEXT, 10, reinterpret_cast<unsigned long>(&text), text);
        QCOMPARE(text, QStringLiteral("Включение зажигания"));
        t.sim.handle(ZRK_MSG_DIAGNOSTIC_CODE_TEXT, 0x1FE, reinterpret_cast<unsigned long>(&text), text);
        QVERIFY(text.endsWith(QLatin1String("254"))); // the low 8 bits of the code
        QCOMPARE(t.ask(ZRK_MSG_REQUEST_KEY_CODE, 1).value, ZrkSimTelemetry::kTouchKeyCode);
        QCOMPARE(t.ask(ZRK_MSG_REQUEST_KEY_CODE, 3).msg, int(ZRK_MSG_RFID_CARD));
        QCOMPARE(t.ask(ZRK_MSG_REQUEST_KEY_CODE, 2).msg, 0);
        QCOMPARE(t.ask(ZRK_MSG_REQUEST_DISPLAY_VALUE).msg, int(ZRK_MSG_CURRENT_DISPLAY_VALUE));
    }

    void configuration_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<bool>("maskTaken");
        QTest::addColumn<int>("version");
        const QString mask = maskOf({ 1, 2, 3, 10, 11, 31, 70, 255 });
        const QString head = QStringLiteral(
            "<?xml version=\"1.0\" encoding=\"windows-1251\"?>\r\n<DEVICE model=\"K-7140\">\r\n"
            "\t<NAME>Грузовик №7</NAME>\r\n");
        const QString orba
            = QStringLiteral("\t<PROTOCOL page=\"PROTOCOL\">\r\n\t\t<ORBA format=\"%1\" mask=\"%2\">\r\n"
                             "\t\t</ORBA>\r\n\t</PROTOCOL>\r\n");
        const QString tail = QStringLiteral("</DEVICE>\r\n");
        QTest::newRow("format 20") << head + orba.arg(QStringLiteral("20"), mask) + tail << true << 2;
        QTest::newRow("format 10") << head + orba.arg(QStringLiteral("10"), mask) + tail << true << 1;
        QTest::newRow("unknown format keeps the version")
            << head + orba.arg(QStringLiteral("40"), mask) + tail << true << 3;
        QTest::newRow("short mask") << head + orba.arg(QStringLiteral("20"), mask.left(254)) + tail << false
                                    << 2;
        QTest::newRow("foreign character")
            << head + orba.arg(QStringLiteral("30"), QStringLiteral("2") + mask.mid(1)) + tail << false << 3;
        QTest::newRow("ORBA elsewhere") << head
                + orba.arg(QStringLiteral("20"), mask)
                      .replace(QStringLiteral("PROTOCOL"), QStringLiteral("TRACK"))
                + tail << false << 3;
        QTest::newRow("no protocol") << head + tail << false << 3;
        QTest::newRow("cut short after the node") << head + orba.arg(QStringLiteral("20"), mask) << true << 2;
        QTest::newRow("not XML") << QStringLiteral("\x01\x02garbage") << false << 3;
    }

    void configuration()
    {
        QFETCH(QString, xml);
        QFETCH(bool, maskTaken);
        QFETCH(int, version);
        Terminal t;
        const QString before = t.sim.maskText();
        QSignalSpy versions(&t.sim, &ZrkSimTelemetry::versionChanged);
        t.sim.setConfigurationXml(QTextCodec::codecForName("windows-1251")->fromUnicode(xml));
        QCOMPARE(t.sim.maskText(), maskTaken ? maskOf({ 1, 2, 3, 10, 11, 31, 70, 255 }) : before);
        QCOMPARE(t.sim.version(), version);
        QCOMPARE(versions.count(), version == 3 ? 0 : 1);
        // The next record is built in that field set.
        const auto page = decode(t.ask(ZRK_MSG_REQUEST_TMI_CURRENT).bytes.mid(3));
        QVERIFY(page);
        QCOMPARE(page->isUsed(31), true);
        QCOMPARE(page->isUsed(4), !maskTaken);
    }

private:
    QTranslator hostTexts;
};

QTEST_MAIN(tst_SimTelemetry)
#include "tst_sim_telemetry.moc"
