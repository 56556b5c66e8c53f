// The telemetry view against a recording host: what each reply shows, what each action sends, and
// what the connection state allows.
#include "../common/test_support.h"
#include "config_model/orba_fieldset.h"
#include "device/zrk_device_k7140.h"
#include "map/zrk_widget_map.h"
#include "orba_records.h"
#include "telemetry/zrk_form_tmi_orba3.h"
#include "telemetry/zrk_tmi_session.h"
#include "telemetry/zrk_widget_tmi_view.h"
#include "translations/catalogue.h"

#include <QCheckBox>
#include <QDateTimeEdit>
#include <QDoubleSpinBox>
#include <QPushButton>
#include <QTextCodec>
#include <QtTest>

using orbatest::RecordBuilder;
using zrktest::addr;

namespace {

struct Sent
{
    int msg;
    unsigned long w, l;
    quint32 index = 0; // 2302
    QDateTime moment; // 2304, 2306
    float number = 0; // 2328
};
QVector<Sent> gSent;

unsigned long hostCallback(void*, int msg, unsigned long w, unsigned long l)
{
    Sent s;
    s.msg = msg;
    s.w = w;
    s.l = l;
    if (msg == ZRK_MSG_REQUEST_TMI_BY_INDEX)
        s.index = *reinterpret_cast<quint32*>(w);
    if (msg == ZRK_MSG_REQUEST_TMI_BEFORE || msg == ZRK_MSG_REQUEST_TMI_AFTER)
        s.moment = *reinterpret_cast<QDateTime*>(w);
    if (msg == ZRK_MSG_RUN_COMMAND_NUMBER)
        s.number = *reinterpret_cast<float*>(w);
    if (msg == ZRK_MSG_EVENT_CODE_TEXT)
        *reinterpret_cast<QString*>(l) = QStringLiteral("event %1").arg(w);
    gSent << s;
    return 0;
}

// The requests and commands sent; the text look-ups of the form are left out.
QList<int> sentIds(bool withTexts = false)
{
    QList<int> ids;
    for (const Sent& s : gSent)
        if (withTexts || (s.msg != ZRK_MSG_EVENT_CODE_TEXT && s.msg != ZRK_MSG_DIAGNOSTIC_CODE_TEXT))
            ids << s.msg;
    return ids;
}

QByteArray record(quint32 number, int version = 3)
{
    return RecordBuilder()
        .setNumber(orba::F_NumPage, number)
        .setNumber(orba::F_Code, 5)
        .setNumber(orba::F_Time, 1700000000)
        .setNumber(orba::F_LastTime, 1699999990)
        .setNumber(orba::F_Power, 12340)
        .record(version);
}

} // namespace

class tst_TmiView : public QObject
{
    Q_OBJECT

    QTemporaryDir home;
    ZRK_Device_K7140* dev = nullptr;
    ZRK_Widget_Tmi_View* view = nullptr;

    void setMode(quint32 mode) { dev->ZRK_ReceiveMessage(dev, 2004, addr(mode), 0); }
    void connectDevice()
    {
        szDeviceConnect rec { "K-7140", "861234567890123", "3.5.8", nullptr, 0, 0, 1 };
        dev->ZRK_ReceiveMessage(dev, 2051, addr(rec), 0);
        view->deviceConnect();
    }
    template <typename T> T* child(const char* name) { return view->findChild<T*>(QLatin1String(name)); }
    // A reply as the host sends it: prefix bytes, then the record.
    static QByteArray reply(int prefix, const QByteArray& rec) { return QByteArray(prefix, '\x55') + rec; }

private slots:
    void initTestCase()
    {
        QVERIFY(zrktest::useOwnHome(home, "tst_tmi_view"));
        QVERIFY(zrk::installCatalogue(QStringLiteral("ru")));
    }
    void init()
    {
        dev = new ZRK_Device_K7140(QStringLiteral("K-7140"), 3, 5, 8, 1, nullptr);
        dev->InitConfigurator(&hostCallback);
        view = new ZRK_Widget_Tmi_View;
        gSent.clear();
    }
    void cleanup()
    {
        delete view;
        delete dev;
    }

    void currentRecordNeeds101Bytes_data()
    {
        QTest::addColumn<int>("length");
        QTest::addColumn<bool>("shown");
        QTest::newRow("100 bytes") << 100 << false;
        QTest::newRow("101 bytes") << 101 << true;
    }
    void currentRecordNeeds101Bytes()
    {
        QFETCH(int, length);
        QFETCH(bool, shown);
        QByteArray rec = record(42);
        rec += QByteArray(length - 3 - rec.size(), '\0');
        QByteArray buf = reply(3, rec);
        view->setTmiCur(&buf);
        QCOMPARE(view->session()->count(), shown ? 1 : 0);
        QCOMPARE(view->shownNumber(), shown ? 42u : 0u);
        if (shown)
            QCOMPARE(view->session()->at(0).bytes, rec);
    }

    void replyPrefixes_data()
    {
        QTest::addColumn<int>("op");
        QTest::addColumn<int>("prefix");
        QTest::addColumn<QByteArray>("rec");
        QTest::addColumn<quint32>("number");
        QTest::addColumn<bool>("history");
        QTest::newRow("current") << 0 << 3 << record(9) + QByteArray(80, '\0') << 9u << false;
        QTest::newRow("by number") << 1 << 3 << record(10) << 10u << true;
        QTest::newRow("step left") << 2 << 13 << record(11, 2) << 11u << true;
        QTest::newRow("step right") << 3 << 13 << record(12, 1) << 12u << true;
        QTest::newRow("extended") << 4 << 2 << orbatest::extRecord() << 12u << false;
    }
    void replyPrefixes()
    {
        QFETCH(int, op);
        QFETCH(int, prefix);
        QFETCH(QByteArray, rec);
        QFETCH(quint32, number);
        QFETCH(bool, history);
        QByteArray buf = reply(prefix, rec);
        using Fn = void (ZRK_Widget_Tmi_View::*)(QByteArray*);
        const Fn ops[] = { &ZRK_Widget_Tmi_View::setTmiCur, &ZRK_Widget_Tmi_View::setTmiCurNumber,
            &ZRK_Widget_Tmi_View::setTmiCurLeft, &ZRK_Widget_Tmi_View::setTmiCurRight,
            &ZRK_Widget_Tmi_View::setTmiCurExt };
        (view->*ops[op])(&buf);
        QCOMPARE(view->session()->count(), 1);
        QCOMPARE(view->session()->at(0).bytes, rec);
        QCOMPARE(view->shownNumber(), number);
        QCOMPARE(view->freshnessText().contains(qtTrId("tmiw_089"))
                || view->freshnessText().contains(qtTrId("tmiw_090")),
            history);
    }

    void unknownRecords_data()
    {
        QTest::addColumn<QByteArray>("rec");
        QTest::addColumn<bool>("byNumberStep");
        QTest::addColumn<QString>("unknown");
        QTest::addColumn<quint32>("number");
        QByteArray v40 = record(3) + QByteArray(60, '\0');
        v40[1] = char(40);
        QTest::newRow("version 40") << v40 << false << QStringLiteral("\n0xB0 0x28 / %1").arg(v40.size())
                                    << 0u;
        QByteArray kind7 = QByteArray(120, '\0');
        kind7[0] = char(0x07);
        kind7[1] = char(0xFF);
        QTest::newRow("kind 7") << kind7 << false << QStringLiteral("\n0x07 0xFF / 120") << 0u;
        QTest::newRow("stepping, dropped") << v40 << true << QString() << 0u;
        QByteArray fixed(128, '\0');
        fixed[0] = char(orba::kKindFixedPacket);
        fixed[1] = char(77);
        QTest::newRow("fixed packet, version 1") << fixed << false << QString() << 77u;
    }
    void unknownRecords()
    {
        QFETCH(QByteArray, rec);
        QFETCH(bool, byNumberStep);
        QFETCH(QString, unknown);
        QFETCH(quint32, number);
        connectDevice();
        QByteArray buf = reply(3, rec);
        if (byNumberStep) {
            view->requestNext();
            view->setTmiCurNumber(&buf);
        } else {
            view->setTmiCur(&buf);
        }
        QCOMPARE(view->unknownText(), unknown.isEmpty() ? QString() : qtTrId("tmiw_223") + unknown);
        QCOMPARE(view->shownNumber(), number);
        QCOMPARE(view->session()->count(), number ? 1 : 0);
    }

    void nextFromLastDisablesNextOnly()
    {
        connectDevice();
        QByteArray cur = reply(3, record(7) + QByteArray(80, '\0'));
        view->setTmiCur(&cur);
        view->requestNext();
        QCOMPARE(sentIds(), QList<int> { ZRK_MSG_REQUEST_TMI_BY_INDEX });
        QCOMPARE(gSent.last().index, 8u);
        QCOMPARE(view->direction(), 1);
        QByteArray none = reply(3, QByteArray());
        view->setTmiCurNumber(&none);
        QCOMPARE(view->direction(), 0);
        QVERIFY(!child<QPushButton>("GetNext")->isEnabled());
        QVERIFY(child<QPushButton>("GetPrev")->isEnabled());
        QCOMPARE(view->shownNumber(), 7u);

        gSent.clear();
        view->requestPrev();
        QCOMPARE(gSent.last().index, 6u);
        QByteArray six = reply(3, record(6));
        view->setTmiCurNumber(&six);
        QVERIFY(child<QPushButton>("GetNext")->isEnabled());
        QCOMPARE(view->shownNumber(), 6u);
    }

    void byTimeSubtractsOffset()
    {
        connectDevice();
        child<QSpinBox>("TimeOffsetHours")->setValue(-3);
        child<QSpinBox>("TimeOffsetMinutes")->setValue(30);
        const QDateTime moment(QDate(2024, 5, 1), QTime(12, 0));
        child<QDateTimeEdit>("TimeMoment")->setDateTime(moment);
        view->requestByTime();
        QCOMPARE(sentIds(), QList<int> { ZRK_MSG_REQUEST_TMI_BEFORE });
        QCOMPARE(gSent[0].moment, moment.addSecs(3 * 3600 + 1800));
    }

    void autoRequestTicks_data()
    {
        QTest::addColumn<quint32>("mode");
        QTest::addColumn<QList<int>>("sent");
        const int cur = ZRK_MSG_REQUEST_TMI_CURRENT, disp = ZRK_MSG_REQUEST_DISPLAY_VALUE;
        // The check itself asks at once; then six ticks.
        QTest::newRow("mode 0") << 0u << QList<int> { cur, cur, cur, cur, cur, cur, cur };
        QTest::newRow("mode 1") << 1u << QList<int> { cur, cur, cur, cur, cur, disp, cur };
        QTest::newRow("mode 2") << 2u << QList<int> { cur, cur, cur, cur, cur, disp, cur };
    }
    void autoRequestTicks()
    {
        QFETCH(quint32, mode);
        QFETCH(QList<int>, sent);
        setMode(mode);
        connectDevice();
        child<QCheckBox>("GetAutoTmi")->setCheckState(Qt::PartiallyChecked);
        QVERIFY(!child<QPushButton>("GetCurrent")->isEnabled());
        for (int tick = 0; tick < 6; ++tick)
            view->autoRequestTick();
        QCOMPARE(sentIds(), sent);
        QCOMPARE(view->autoCounter(), mode ? 2 : 1);
        child<QCheckBox>("GetAutoTmi")->setCheckState(Qt::Unchecked);
        QVERIFY(child<QPushButton>("GetCurrent")->isEnabled());
        gSent.clear();
        view->autoRequestTick();
        QVERIFY(gSent.isEmpty());
    }

    void disconnectedSendsNothing()
    {
        QVERIFY(!child<QPushButton>("GetCurrent")->isEnabled());
        QVERIFY(!child<QWidget>("TabCommands")->isEnabled());
        view->requestCurrent();
        view->requestNext();
        view->requestByTime();
        child<QCheckBox>("GetAutoTmi")->setCheckState(Qt::Checked);
        view->autoRequestTick();
        QMetaObject::invokeMethod(view, "slot_pressed_RunCommand");
        QVERIFY(gSent.isEmpty());

        connectDevice();
        QVERIFY(child<QWidget>("TabCommands")->isEnabled());
        child<QDoubleSpinBox>("CommandNumber")->setValue(2.5);
        QMetaObject::invokeMethod(view, "slot_pressed_RunCommand");
        QCOMPARE(sentIds(), QList<int> { ZRK_MSG_RUN_COMMAND_NUMBER });
        QCOMPARE(gSent[0].number, 2.5f);

        // Auto-request stops with the connection.
        child<QCheckBox>("GetAutoTmi")->setCheckState(Qt::Checked);
        view->deviceDisconnect();
        QCOMPARE(child<QCheckBox>("GetAutoTmi")->checkState(), Qt::Unchecked);
        QVERIFY(!child<QWidget>("TabCommands")->isEnabled());

        // Without the device object nothing leaves the view at all.
        view->deviceConnect();
        delete dev;
        dev = nullptr;
        gSent.clear();
        view->requestCurrent();
        view->getTmiCur_RFID();
        QVERIFY(gSent.isEmpty());
    }

    void formRowsFollowVersionAndPresence()
    {
        QByteArray v3 = reply(3, record(5) + QByteArray(80, '\0'));
        view->setTmiCur(&v3);
        ZRK_Form_TMI_Orba3* form = view->formOrba3();
        QVERIFY(form);
        QCOMPARE(form->shownText(orba::F_Power), QStringLiteral("12.34"));
        QCOMPARE(form->shownText(orba::F_Code), QStringLiteral("5 — event 5"));
        QCOMPARE(form->shownText(orba::F_GSM), QStringLiteral("n/a"));
        QVERIFY2(form->rawText().contains(QLatin1String("\n0000  05 00 00 00 05 00")),
            qPrintable(form->rawText()));
        QVERIFY(!form->isRowHidden(orba::F_GSM));
        QVERIFY(!form->isRowHidden(orba::F_User8Byte3));
        child<QCheckBox>("HideAbsent")->setChecked(true);
        QVERIFY(form->isRowHidden(orba::F_GSM));
        QVERIFY(!form->isRowHidden(orba::F_Power));
        child<QCheckBox>("HideAbsent")->setChecked(false);

        // Version 1 shows only its fields; the same record again changes no text.
        QByteArray v1 = reply(3, record(5, 1) + QByteArray(80, '\0'));
        view->setTmiCur(&v1);
        QVERIFY(form->isRowHidden(orba::F_NaviInfo));
        QVERIFY(!form->isRowHidden(orba::F_GSM));
        QByteArray again = reply(3, record(5, 1) + QByteArray(80, '\0'));
        view->setTmiCur(&again);
        QCOMPARE(form->lastChangedCount(), 0);
        // Event texts are asked once per code.
        QCOMPARE(sentIds(true).count(ZRK_MSG_EVENT_CODE_TEXT), 1);
    }

    void savedFileKeepsTheSession()
    {
        QByteArray cur = reply(3, record(21) + QByteArray(80, '\0'));
        view->setTmiCur(&cur);
        QByteArray old = reply(13, record(20, 2));
        view->setTmiCurLeft(&old);
        zrk::tmi::Header titles;
        titles.inTitles = QStringList { QStringLiteral("Зажигание") };
        view->setFileTitles(titles);
        const QString path = home.filePath(QStringLiteral("session.tmi"));
        QString error;
        QVERIFY2(view->WriteTmiToFile(path, &error), qPrintable(error));
        const zrk::tmi::ReadResult back = zrk::tmi::read(path);
        QVERIFY2(back.error.isEmpty(), qPrintable(back.error));
        QCOMPARE(back.header.model, QStringLiteral("K-7140"));
        QCOMPARE(back.header.inTitles.value(0), QStringLiteral("Зажигание"));
        QCOMPARE(back.records.size(), 2);
        QCOMPARE(back.records[0].bytes, record(21) + QByteArray(80, '\0'));
        QCOMPARE(back.records[1].fromHistory, true);
        QVERIFY(!view->WriteTmiToFile(home.filePath(QStringLiteral("no/such/dir/x.tmi")), &error));
        QVERIFY(!error.isEmpty());

        // With a configuration open, the header takes its names and user-parameter types, the
        // names of its own branches kept through the editor.
        QVERIFY(back.header.userParamTypes.join(QString()).isEmpty());
        const QString configPath = home.filePath(QStringLiteral("named.xml"));
        QFile config(configPath);
        QVERIFY(config.open(QIODevice::WriteOnly));
        config.write(
            QTextCodec::codecForName("windows-1251")
                ->fromUnicode(QStringLiteral("<?xml version=\"1.0\" encoding=\"windows-1251\"?>\r\n<DEVICE>"
                                             "<INPUTS><IN2 name=\"Дверь\"/><IN9 name=\"лишний\"/></INPUTS>"
                                             "<OUTPUTS><OUT4 name=\"Сирена &amp; свет\"/></OUTPUTS>"
                                             "<TEMPSENS><TEMP1 name=\"Кузов\"/></TEMPSENS>"
                                             "<USERPARAM><PARAM1 type=\"12\"/></USERPARAM></DEVICE>\r\n")));
        config.close();
        szConfigFile named {};
        named.mode = 1;
        named.source = 1;
        qstrncpy(named.path, QFile::encodeName(configPath).constData(), sizeof named.path);
        dev->ZRK_ReceiveMessage(dev, ZRK_MSG_OPEN_CONFIGURATION, addr(named), 0);
        QVERIFY(view->WriteTmiToFile(path, &error));
        const zrk::tmi::Header h = zrk::tmi::read(path).header;
        QCOMPARE(h.inTitles, QStringList({ {}, QStringLiteral("Дверь"), {}, {}, {}, {} }));
        QCOMPARE(h.outTitles, QStringList({ {}, {}, {}, QStringLiteral("Сирена & свет") }));
        QCOMPARE(h.tempTitles, QStringList({ QStringLiteral("Кузов"), {}, {}, {} }));
        const zrk::fieldset::UserParams defaults = zrk::fieldset::defaultUserParams();
        QCOMPARE(h.userParamTypes,
            QStringList({ QStringLiteral("12").leftJustified(defaults.types[0].size(), QLatin1Char('0')),
                defaults.types[1], defaults.types[2], defaults.types[3] }));
    }

    // "On the map" takes the session's records that have a position, in order.
    void sessionTrackSkipsRecordsWithoutPosition()
    {
        const QByteArray placed = RecordBuilder()
                                      .setNumber(orba::F_NumPage, 7)
                                      .setNumber(orba::F_Latitude, 33000000)
                                      .setNumber(orba::F_Longitude, 22200000)
                                      .record(3)
            + QByteArray(80, '\0');
        QByteArray a = reply(3, record(6) + QByteArray(80, '\0')), b = reply(3, placed);
        view->setTmiCur(&a);
        view->setTmiCur(&b);
        const QVector<ZrkMapTrackPoint> track = view->sessionTrack();
        QCOMPARE(track.size(), 1);
        QCOMPARE(track[0].lat, 55.0);
        QCOMPARE(track[0].lon, 37.0);
    }

    void sessionDropsOldestFirst()
    {
        ZRK_Tmi_Session session(3);
        for (quint32 n = 1; n <= 4; ++n)
            session.append(record(n), nullptr, 0, QDateTime::currentDateTime());
        QCOMPARE(session.count(), 3);
        QCOMPARE(session.at(0).bytes, record(2));
        QCOMPARE(session.at(2).bytes, record(4));
    }
};

QTEST_MAIN(tst_TmiView)
#include "tst_tmi_view.moc"
