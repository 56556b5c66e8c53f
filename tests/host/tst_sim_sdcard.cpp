// The simulated terminal's SD card: 2400 requests and their 2401 replies.
#include "host_dispatcher.h"
#include "plugin_loader.h"
#include "sim_sdcard.h"

#include <QtTest>

namespace {

struct Step
{
    quint32 op;
    QString name;
    QByteArray data;
    quint32 offset;
    quint32 size;
    qint32 result;
    quint32 fileSize;
    QByteArray payload;
};

} // namespace

Q_DECLARE_METATYPE(QVector<Step>)

class tst_SimSdCard : public QObject
{
    Q_OBJECT
private slots:
    void sequences_data()
    {
        QTest::addColumn<QVector<Step>>("steps");
        const QString cfg = QStringLiteral("GeoZones.cfg");
        QTest::newRow("write in chunks with a gap, read back, list")
            << QVector<Step> { { ZRK_SD_OPEN, cfg, {}, 0, 1, ZRK_SD_OK, 0, {} },
                   { ZRK_SD_WRITE, cfg, "abc", 0, 0, ZRK_SD_OK, 3, {} },
                   { ZRK_SD_WRITE, cfg, "xy", 5, 0, ZRK_SD_OK, 7, {} },
                   { ZRK_SD_CLOSE, cfg, {}, 0, 0, ZRK_SD_OK, 7, {} },
                   { ZRK_SD_READ, cfg, {}, 2, 4, ZRK_SD_OK, 7, QByteArray("c\0\0x", 4) },
                   { ZRK_SD_READ, cfg, {}, 6, 100, ZRK_SD_OK, 7, "y" },
                   { ZRK_SD_READ, cfg, {}, 9, 1, ZRK_SD_OK, 7, {} },
                   { ZRK_SD_OPEN, QStringLiteral("Звук/1.wav"), {}, 0, 1, ZRK_SD_OK, 0, {} },
                   { ZRK_SD_LIST, {}, {}, 0, 0, ZRK_SD_OK, 2,
                       "GeoZones.cfg\t7\n" + QStringLiteral("Звук/1.wav\t0\n").toUtf8() } };
        QTest::newRow("open for writing truncates, delete, then missing")
            << QVector<Step> { { ZRK_SD_WRITE, cfg, "12345", 0, 0, ZRK_SD_OK, 5, {} },
                   { ZRK_SD_OPEN, cfg, {}, 0, 0, ZRK_SD_OK, 5, {} },
                   { ZRK_SD_OPEN, cfg, {}, 0, 1, ZRK_SD_OK, 0, {} },
                   { ZRK_SD_DELETE, cfg, {}, 0, 0, ZRK_SD_OK, 0, {} },
                   { ZRK_SD_DELETE, cfg, {}, 0, 0, ZRK_SD_NOT_FOUND, 0, {} },
                   { ZRK_SD_READ, cfg, {}, 0, 1, ZRK_SD_NOT_FOUND, 0, {} },
                   { ZRK_SD_OPEN, cfg, {}, 0, 0, ZRK_SD_NOT_FOUND, 0, {} },
                   { ZRK_SD_LIST, {}, {}, 0, 0, ZRK_SD_OK, 0, {} } };
        QTest::newRow("bad requests change nothing")
            << QVector<Step> { { ZRK_SD_WRITE, QString(), "a", 0, 0, ZRK_SD_BAD_REQUEST, 0, {} },
                   { ZRK_SD_WRITE, QString(256, 'n'), "a", 0, 0, ZRK_SD_BAD_REQUEST, 0, {} },
                   { ZRK_SD_WRITE, cfg, QByteArray(4097, 'a'), 0, 0, ZRK_SD_BAD_REQUEST, 0, {} },
                   { ZRK_SD_READ, cfg, {}, 0, 4097, ZRK_SD_BAD_REQUEST, 0, {} },
                   { ZRK_SD_OPEN, cfg, {}, 0, 2, ZRK_SD_BAD_REQUEST, 0, {} },
                   { 99, cfg, {}, 0, 0, ZRK_SD_BAD_REQUEST, 0, {} },
                   { ZRK_SD_LIST, {}, {}, 0, 0, ZRK_SD_OK, 0, {} } };
        QTest::newRow("card full: nothing written")
            << QVector<Step> { { ZRK_SD_WRITE, cfg, QByteArray(60, 'a'), 0, 0, ZRK_SD_OK, 60, {} },
                   { ZRK_SD_WRITE, cfg, QByteArray(40, 'b'), 60, 0, ZRK_SD_OK, 100, {} },
                   { ZRK_SD_WRITE, QStringLiteral("b"), "c", 0, 0, ZRK_SD_CARD_FULL, 0, {} },
                   { ZRK_SD_WRITE, cfg, "zz", 0, 0, ZRK_SD_OK, 100, {} },
                   { ZRK_SD_LIST, {}, {}, 0, 0, ZRK_SD_OK, 1, "GeoZones.cfg\t100\n" } };
    }

    void sequences()
    {
        QFETCH(QVector<Step>, steps);
        ZrkPluginLoader loader;
        ZrkHostDispatcher dispatcher(loader);
        ZrkSimSdCard card(dispatcher);
        card.setCapacity(100);
        int i = 0;
        for (const Step& s : steps) {
            szSDFile r;
            r.operation = s.op;
            r.fileName = s.name;
            r.data = s.data;
            r.offset = s.offset;
            r.size = s.size;
            const QByteArray reply = card.handle(r);
            szSDFileReplyHeader h {};
            QString name;
            QByteArray payload;
            QVERIFY(zrkParseSDFileReply(reply, &h, &name, &payload));
            const QByteArray where = "step " + QByteArray::number(i++);
            QVERIFY2(r.result == s.result, where);
            QVERIFY2(h.result == s.result, where);
            QVERIFY2(h.operation == quint8(s.op), where);
            QVERIFY2(h.offset == s.offset, where);
            QVERIFY2(h.fileSize == s.fileSize, where + " size " + QByteArray::number(h.fileSize));
            QVERIFY2(payload == s.payload, where + " " + payload.toHex());
            QVERIFY2(s.op == ZRK_SD_LIST || name == s.name.left(255), where);
        }
        card.setCardPresent(false);
        szSDFile r;
        r.operation = ZRK_SD_LIST;
        card.handle(r);
        QCOMPARE(r.result, qint32(ZRK_SD_NO_CARD));
    }

    void replyParser()
    {
        szSDFileReplyHeader h {};
        h.nameLength = 3;
        h.payloadLength = 2;
        QByteArray good(reinterpret_cast<const char*>(&h), sizeof h);
        good += "abcXY";
        QString name;
        QByteArray payload;
        QVERIFY(zrkParseSDFileReply(good, nullptr, &name, &payload));
        QCOMPARE(name, QStringLiteral("abc"));
        QCOMPARE(payload, QByteArray("XY"));
        // Shorter than the header says, or than a header: refused, outputs untouched.
        for (int cut : { 0, 15, 16, 20 }) {
            name = QStringLiteral("keep");
            QVERIFY(!zrkParseSDFileReply(good.left(cut), nullptr, &name, nullptr));
            QCOMPARE(name, QStringLiteral("keep"));
        }
    }
};

QTEST_MAIN(tst_SimSdCard)
#include "tst_sim_sdcard.moc"
