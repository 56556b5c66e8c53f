// The telemetry view against a recording host and against the simulated terminal: what each reply
// shows, what each action and command sends, what the connection state allows, and the time rule
// of a lookup by time in whatever zone the workstation is.
#include "../common/test_support.h"
#include "config_model/orba_fieldset.h"
#include "config_ui/zrk_widget_config.h"
#include "device/zrk_device_k7140.h"
#include "orba_records.h"
#include "sim_telemetry.h"
#include "telemetry/tmi_commands.h"
#include "telemetry/tmi_session.h"
#include "telemetry/zrk_form_tmi_ext.h"
#include "telemetry/zrk_form_tmi_orba3.h"
#include "telemetry/zrk_tmi_command_panel.h"
#include "telemetry/zrk_widget_tmi_view.h"
#include "translations/catalogue.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QTextCodec>
#include <QtTest>

using orbatest::RecordBuilder;
using zrktest::addr;

namespace {

struct Sent
{
    int msg;
    unsigned long w, l;
    QString payload; // what a pointer argument points to, as text
};
QVector<Sent> gSent;
// Answers the host gives from inside the callback, as a real host may.
std::function<void(int msg, unsigned long w, unsigned long l)> gAnswer;

QString payloadOf(int msg, unsigned long w)
{
    switch (msg) {
    case ZRK_MSG_REQUEST_TMI_BY_INDEX:
        return QString::number(*reinterpret_cast<quint32*>(w));
    case ZRK_MSG_REQUEST_TMI_BEFORE:
    case ZRK_MSG_REQUEST_TMI_AFTER:
        return QString::number(reinterpret_cast<QDateTime*>(w)->toSecsSinceEpoch());
    case ZRK_MSG_SWITCH_NMEA_OUTPUT:
        return *reinterpret_cast<bool*>(w) ? QStringLiteral("true") : QStringLiteral("false");
    case ZRK_MSG_SET_PARAM_VALUE:
        return QString::fromLatin1(reinterpret_cast<QByteArray*>(w)->toHex());
    case ZRK_MSG_RUN_COMMAND_NUMBER:
        return QString::number(double(*reinterpret_cast<float*>(w)));
    case ZRK_MSG_FLS_USER_COMMAND:
    case ZRK_MSG_TACHO_FILE_READ_REQUEST:
    case ZRK_MSG_REQUEST_FLS_DATA_FILE:
    case ZRK_MSG_WRITE_FILE_TO_DEVICE:
        return *reinterpret_cast<QString*>(w);
    case ZRK_MSG_TACHO_FILE_REQUEST: {
        const auto* q = reinterpret_cast<szQueryTaho*>(w);
        return QStringLiteral("%1 %2 %3").arg(q->fileKind).arg(q->fromUnix).arg(q->toUnix);
    }
    case ZRK_MSG_REQUEST_FLS_DATA: {
        const auto* q = reinterpret_cast<szQueryFlsData*>(w);
        return q->sensor + QLatin1Char('|') + q->query;
    }
    default:
        return QString();
    }
}

unsigned long hostCallback(void*, int msg, unsigned long w, unsigned long l)
{
    if (msg == ZRK_MSG_EVENT_CODE_TEXT)
        *reinterpret_cast<QString*>(l) = QStringLiteral("event %1").arg(w);
    gSent << Sent { msg, w, l, payloadOf(msg, w) };
    if (gAnswer)
        gAnswer(msg, w, l);
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

// A current record long enough to be one (101 bytes with the prefix).
QByteArray currentRecord(quint32 number)
{
    return record(number) + QByteArray(80, '\0');
}

// Control values a command row reads: object name, then the value (by the control's kind).
using Setup = QList<QPair<QString, QVariant>>;

} // namespace

Q_DECLARE_METATYPE(Setup)

class tst_TmiView : public QObject
{
    Q_OBJECT

    QTemporaryDir home;
    ZRK_Device_K7140* dev = nullptr;
    ZRK_Widget_Tmi_View* view = nullptr;
    QStringList questions; // what the view asked before a command
    bool answerYes = true;

    void setMode(quint32 mode) { dev->ZRK_ReceiveMessage(dev, 2004, addr(mode), 0); }
    void connectDevice()
    {
        szDeviceConnect rec { "K-7140", "861234567890123", "3.5.8", nullptr, 0, 0, 1 };
        dev->ZRK_ReceiveMessage(dev, ZRK_MSG_DEVICE_CONNECTED, addr(rec), 0);
        view->deviceConnect();
    }
    template <typename T> T* child(const char* name) { return view->findChild<T*>(QLatin1String(name)); }
    QAbstractButton* button(const QString& name) { return view->findChild<QAbstractButton*>(name); }
    // A reply as the host sends it: prefix bytes, then the record.
    static QByteArray reply(int prefix, const QByteArray& rec) { return QByteArray(prefix, '\x55') + rec; }
    void useDeviceView()
    {
        delete view;
        dev->initWidgetTMI();
        view = dev->widgetTmiView();
        view->commandPanel()->setConfirmer([this](const QString& q) {
            questions << q;
            return answerYes;
        });
    }
    void apply(const Setup& setup)
    {
        for (const auto& [name, value] : setup) {
            QWidget* w = view->findChild<QWidget*>(name);
            QVERIFY2(w, qPrintable(name));
            if (auto* box = qobject_cast<QComboBox*>(w))
                box->setCurrentIndex(value.toInt());
            else if (auto* spin = qobject_cast<QSpinBox*>(w))
                spin->setValue(value.toInt());
            else if (auto* number = qobject_cast<QDoubleSpinBox*>(w))
                number->setValue(value.toDouble());
            else if (auto* check = qobject_cast<QCheckBox*>(w))
                check->setChecked(value.toBool());
            else if (auto* edit = qobject_cast<QLineEdit*>(w))
                edit->setText(value.toString());
            else if (auto* date = qobject_cast<QDateEdit*>(w))
                date->setDate(value.toDate());
        }
    }

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
        view->commandPanel()->setConfirmer([this](const QString& q) {
            questions << q;
            return answerYes;
        });
        gSent.clear();
        gAnswer = nullptr;
        questions.clear();
        answerYes = true;
    }
    void cleanup()
    {
        gAnswer = nullptr;
        if (view != dev->widgetTmiView())
            delete view;
        delete dev; // the device's own windows live until the library goes; a test's go with it
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
        // A reply too short to be a record is not shown, yet the log says that one came.
        QCOMPARE(view->logText().contains(QStringLiteral("Текущая запись из 100 байт пропущена")), !shown);
    }

    // Every record reply reaches the view through the device object with its prefix removed.
    void recordRepliesThroughDevice_data()
    {
        QTest::addColumn<int>("msg");
        QTest::addColumn<int>("prefix");
        QTest::addColumn<QByteArray>("rec");
        QTest::addColumn<quint32>("number");
        QTest::addColumn<bool>("history");
        QTest::addColumn<bool>("extended");
        QTest::newRow("2301 current") << 2301 << 3 << currentRecord(9) << 9u << false << false;
        QTest::newRow("2303 by number") << 2303 << 3 << record(10) << 10u << true << false;
        QTest::newRow("2305 step left") << 2305 << 13 << record(11, 2) << 11u << true << false;
        QTest::newRow("2307 step right") << 2307 << 13 << record(12, 1) << 12u << true << false;
        QTest::newRow("2312 extended") << 2312 << 2 << orbatest::extRecord() << 12u << false << true;
        QByteArray odd = orbatest::extRecord();
        odd[0] = char(orba::kKindCurrent);
        QTest::newRow("2312 whatever its kind byte") << 2312 << 2 << odd << 12u << false << true;
        odd[0] = char(0x07);
        QTest::newRow("2312 unknown kind byte") << 2312 << 2 << odd << 12u << false << true;
    }
    void recordRepliesThroughDevice()
    {
        QFETCH(int, msg);
        QFETCH(int, prefix);
        QFETCH(QByteArray, rec);
        QFETCH(quint32, number);
        QFETCH(bool, history);
        QFETCH(bool, extended);
        useDeviceView();
        QByteArray buf = reply(prefix, rec);
        dev->ZRK_ReceiveMessage(dev, msg, addr(buf), 0);
        QCOMPARE(view->session()->count(), 1);
        QCOMPARE(view->session()->at(0).bytes, rec);
        QCOMPARE(view->shownNumber(), number);
        QCOMPARE(!qobject_cast<ZRK_Form_TMI_Ext*>(view->currentPage()), !extended);
        QCOMPARE(view->freshnessText().contains(QStringLiteral("ИЗ ИСТОРИИ")), history);
    }

    void unknownRecords_data()
    {
        QTest::addColumn<QByteArray>("rec");
        QTest::addColumn<bool>("byNumberStep");
        QTest::addColumn<QString>("unknown");
        QTest::addColumn<quint32>("number");
        QByteArray v40 = currentRecord(3);
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

    // A step past an end of the history disables that step only, until a record is shown that is
    // not that end; showing the end again keeps it disabled.
    void stepButtonsFollowTheEnds_data()
    {
        QTest::addColumn<int>("direction");
        QTest::addColumn<int>("againMsg");
        QTest::addColumn<int>("againPrefix");
        QTest::newRow("next, then a new current record") << 1 << 2301 << 3;
        QTest::newRow("next, then by number") << 1 << 2303 << 3;
        QTest::newRow("next, then by time") << 1 << 2305 << 13;
        QTest::newRow("previous, then a new current record") << -1 << 2301 << 3;
        QTest::newRow("previous, then by time") << -1 << 2307 << 13;
    }
    void stepButtonsFollowTheEnds()
    {
        QFETCH(int, direction);
        QFETCH(int, againMsg);
        QFETCH(int, againPrefix);
        useDeviceView();
        connectDevice();
        auto* next = child<QPushButton>("GetNext");
        auto* prev = child<QPushButton>("GetPrev");
        QVERIFY(!next->isEnabled() && !prev->isEnabled()); // nothing shown to step from
        QByteArray cur = reply(3, currentRecord(7));
        dev->ZRK_ReceiveMessage(dev, ZRK_MSG_TMI_CURRENT, addr(cur), 0);
        QVERIFY(next->isEnabled() && prev->isEnabled());
        QAbstractButton* step = direction > 0 ? next : prev;
        QAbstractButton* other = direction > 0 ? prev : next;
        step->click();
        QCOMPARE(view->direction(), direction);
        QCOMPARE(gSent.last().payload, QString::number(7 + direction));
        QByteArray none = reply(3, QByteArray());
        dev->ZRK_ReceiveMessage(dev, ZRK_MSG_TMI_BY_NUMBER, addr(none), 0);
        QCOMPARE(view->direction(), 0);
        QVERIFY(!step->isEnabled());
        QVERIFY(other->isEnabled());
        QCOMPARE(view->shownNumber(), 7u);
        // The same end shown again (the terminal wrote nothing new): still the end.
        QByteArray same = reply(3, currentRecord(7));
        dev->ZRK_ReceiveMessage(dev, ZRK_MSG_TMI_CURRENT, addr(same), 0);
        QVERIFY(!step->isEnabled());
        // Another record: the step is offered again.
        QByteArray again = reply(againPrefix, againMsg == 2301 ? currentRecord(8) : record(5));
        dev->ZRK_ReceiveMessage(dev, againMsg, addr(again), 0);
        QVERIFY(step->isEnabled());
        QVERIFY(other->isEnabled());
    }

    // The moment sent is the chosen instant less the terminal clock's offset from UTC.
    void byTimeSubtractsOffset_data()
    {
        QTest::addColumn<int>("hours");
        QTest::addColumn<int>("minutes");
        QTest::addColumn<qint64>("shift"); // sent minus chosen, seconds
        QTest::newRow("UTC terminal") << 0 << 0 << Q_INT64_C(0);
        QTest::newRow("+3:30") << 3 << 30 << Q_INT64_C(-12600);
        QTest::newRow("-3:30") << -3 << 30 << Q_INT64_C(12600);
        QTest::newRow("-5:00") << -5 << 0 << Q_INT64_C(18000);
        QTest::newRow("+14:45") << 14 << 45 << Q_INT64_C(-53100);
    }
    void byTimeSubtractsOffset()
    {
        QFETCH(int, hours);
        QFETCH(int, minutes);
        QFETCH(qint64, shift);
        connectDevice();
        child<QSpinBox>("TimeOffsetHours")->setValue(hours);
        child<QSpinBox>("TimeOffsetMinutes")->setValue(minutes);
        const QDateTime moment(QDate(2024, 5, 1), QTime(12, 0));
        child<QDateTimeEdit>("TimeMoment")->setDateTime(moment);
        child<QPushButton>("Show")->click();
        QCOMPARE(sentIds(), QList<int> { ZRK_MSG_REQUEST_TMI_BEFORE });
        QCOMPARE(gSent[0].payload, QString::number(moment.toSecsSinceEpoch() + shift));
        // The saved file's head carries the same offset.
        QCOMPARE(view->fileHeader().timezoneOffset, int(-shift));
    }

    // Against the simulated terminal, in the zone this test runs in: a shown record's time typed
    // into the editor finds that very record.
    void byTimeFindsTheShownRecord()
    {
        useDeviceView();
        ZrkSimTelemetry terminal(QDateTime(QDate(2024, 3, 31), QTime(1, 30), Qt::UTC));
        terminal.setSend([this](int msg, unsigned long w, unsigned long l, const QString&) {
            dev->ZRK_ReceiveMessage(dev, msg, w, l);
        });
        gAnswer = [&terminal](int msg, unsigned long w, unsigned long l) {
            QString result;
            terminal.handle(msg, w, l, result);
        };
        connectDevice();
        child<QPushButton>("GetCurrent")->click();
        for (int i = 0; i < 40; ++i)
            child<QPushButton>("GetPrev")->click();
        const quint32 wanted = view->shownNumber();
        QVERIFY(wanted > 0 && wanted < terminal.lastNumber());
        // The form shows the local time with the workstation's offset after it: the time is typed.
        const QString shownTime = view->formOrba3()->shownText(orba::F_Time);
        const QDateTime typed = QDateTime::fromString(
            shownTime.section(QStringLiteral(" ("), 0, 0), QStringLiteral("dd.MM.yyyy H:mm:ss"));
        QVERIFY2(typed.isValid(), qPrintable(shownTime));
        child<QDateTimeEdit>("TimeMoment")->setDateTime(typed);
        child<QPushButton>("GetCurrent")->click(); // elsewhere first, so that the lookup shows something new
        QVERIFY(view->shownNumber() != wanted);
        child<QPushButton>("Show")->click();
        QCOMPARE(view->shownNumber(), wanted);
        QVERIFY(view->freshnessText().contains(QStringLiteral("по времени")));
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
        child<QSlider>("Period")->setValue(7);
        child<QCheckBox>("GetAutoTmi")->setCheckState(Qt::PartiallyChecked);
        QVERIFY(!child<QPushButton>("GetCurrent")->isEnabled());
        QVERIFY(view->autoTimer().isActive());
        QVERIFY(view->autoTimer().isSingleShot());
        QCOMPARE(view->autoTimer().interval(), 7000);
        for (int tick = 0; tick < 6; ++tick) {
            view->autoRequestTick();
            QVERIFY(view->autoTimer().isActive()); // started again after each tick
        }
        QCOMPARE(sentIds(), sent);
        QCOMPARE(view->autoCounter(), mode ? 2 : 1);
        child<QCheckBox>("GetAutoTmi")->setCheckState(Qt::Unchecked);
        QVERIFY(!view->autoTimer().isActive());
        QVERIFY(child<QPushButton>("GetCurrent")->isEnabled());
        gSent.clear();
        view->autoRequestTick();
        QVERIFY(gSent.isEmpty());
        // Closing the window stops it too.
        child<QCheckBox>("GetAutoTmi")->setCheckState(Qt::Checked);
        QVERIFY(view->autoTimer().isActive());
        view->closeForm();
        QVERIFY(!view->autoTimer().isActive());
        QCOMPARE(child<QCheckBox>("GetAutoTmi")->checkState(), Qt::Unchecked);
    }

    // Each command of the commands tab: what it sends, what it asks first, and that it waits for
    // the connection. The expectations are written out here, not taken from the command table.
    void commands_data()
    {
        QTest::addColumn<QString>("control");
        QTest::addColumn<Setup>("setup");
        QTest::addColumn<int>("msg");
        QTest::addColumn<long long>("w"); // -1: an address
        QTest::addColumn<unsigned long>("l");
        QTest::addColumn<QString>("payload");
        QTest::addColumn<QString>("question"); // empty: sent at once
        const QString clearQ = QStringLiteral("Выполнить «%1»? Данные терминала будут удалены.");
        auto row = [](const char* name) -> QTestData& { return QTest::newRow(name); };
        row("output 3 on") << "OutOn" << Setup { { "OutNumber", 3 } } << 2326 << 3LL << 0ul << QString()
                           << "Включить выход 3?";
        row("output 5 off") << "OutOff" << Setup { { "OutNumber", 5 } } << 2327 << 5LL << 0ul << QString()
                            << "Выключить выход 5?";
        row("guard on") << "GuardOn" << Setup {} << 2323 << 0LL << 0ul << QString()
                        << "Поставить терминал на охрану?";
        row("guard off") << "GuardOff" << Setup {} << 2322 << 0LL << 0ul << QString()
                         << "Снять терминал с охраны?";
        row("clear records") << "Clear" << Setup { { "ClearChoice", 0 } } << 2321 << 1LL << 0ul << QString()
                             << clearQ.arg(QStringLiteral("Память записей"));
        row("clear counters") << "Clear" << Setup { { "ClearChoice", 1 } } << 2321 << 2LL << 0ul << QString()
                              << clearQ.arg(QStringLiteral("Счётчики"));
        row("clear all") << "Clear" << Setup { { "ClearChoice", 2 } } << 2321 << 3LL << 0ul << QString()
                         << clearQ.arg(QStringLiteral("Всё"));
        row("GNSS output on") << "NmeaOutput" << Setup { { "NmeaOutput", false } } << 2314 << -1LL << 0ul
                              << "true" << QString();
        row("GNSS output off") << "NmeaOutput" << Setup { { "NmeaOutput", true } } << 2314 << -1LL << 0ul
                               << "false" << QString();
        row("parameter") << "SetParam" << Setup { { "ParamValue", QStringLiteral("имя=5") } } << 2316 << -1LL
                         << 0ul << "e8ecff3d35" << QString();
        row("numbered command") << "RunCommand" << Setup { { "CommandNumber", 2.5 } } << 2328 << -1LL << 0ul
                                << "2.5" << QString();
        row("read key") << "ReadTouch" << Setup {} << 2240 << 0LL << 0ul << QString() << QString();
        row("read card") << "ReadRfid" << Setup {} << 2266 << 0LL << 0ul << QString() << QString();
        row("key code") << "GetTouch" << Setup {} << 2311 << 1LL << 0ul << QString() << QString();
        row("card code") << "GetRfid" << Setup {} << 2311 << 3LL << 0ul << QString() << QString();
        row("sensor command") << "SendFlsCommand" << Setup { { "FlsCommand", QStringLiteral("GET LEVEL") } }
                              << 2082 << -1LL << 0ul << "GET LEVEL" << QString();
        row("sensor firmware")
            << "FirmwareUpdate" << Setup {} << 2151 << -1LL << 6ul << "/fw/sensor v2.bin"
            << "Записать прошивку sensor v2.bin в датчик? Датчик будет недоступен до конца записи.";
        row("tachograph query") << "TahoQuery" << Setup { { "TahoQueryKind", 7 } } << 2350 << 7LL << 0ul
                                << QString() << QString();
        row("tachograph card file") << "TahoFileRequest"
                                    << Setup { { "TahoFileKind", 1 }, { "TahoFrom", QDate(2024, 5, 1) },
                                           { "TahoTo", QDate(2024, 5, 7) } }
                                    << 2352 << -1LL << 0ul << "2 1714521600 1715126399" << QString();
        row("tachograph file read") << "TahoFileRead"
                                    << Setup { { "TahoFileName", QStringLiteral("C_2024.ddd") } } << 2354
                                    << -1LL << 0ul << "C_2024.ddd" << QString();
        row("sensor data") << "FlsData"
                           << Setup { { "FlsDataSensor", QStringLiteral("1") },
                                  { "FlsDataQuery", QStringLiteral("LVL") } }
                           << 2410 << -1LL << 0ul << "1|LVL" << QString();
        row("sensor data file") << "FlsDataFile" << Setup { { "FlsDataFileName", QStringLiteral("fls.dat") } }
                                << 2413 << -1LL << 0ul << "fls.dat" << QString();
    }
    void commands()
    {
        QFETCH(QString, control);
        QFETCH(Setup, setup);
        QFETCH(int, msg);
        QFETCH(long long, w);
        QFETCH(unsigned long, l);
        QFETCH(QString, payload);
        QFETCH(QString, question);
        view->commandPanel()->setFileChooser([] { return QStringLiteral("/fw/sensor v2.bin"); });
        apply(setup);
        QAbstractButton* b = button(control);
        QVERIFY(b);
        // Disconnected: offered to nobody, sends nothing.
        QVERIFY(!b->isEnabled());
        QVERIFY(!view->commandPanel()->run(control));
        QVERIFY(gSent.isEmpty());

        connectDevice();
        apply(setup);
        QVERIFY(b->isEnabled());
        if (!question.isEmpty()) {
            answerYes = false;
            b->click();
            QCOMPARE(questions, QStringList { question });
            QVERIFY(gSent.isEmpty()); // cancelled: nothing sent
            apply(setup);
            answerYes = true;
            questions.clear();
        }
        b->click();
        QCOMPARE(questions, question.isEmpty() ? QStringList() : QStringList { question });
        QCOMPARE(sentIds(), QList<int> { msg });
        if (w >= 0)
            QCOMPARE(gSent[0].w, static_cast<unsigned long>(w));
        QCOMPARE(gSent[0].l, l);
        QCOMPARE(gSent[0].payload, payload);
    }

    // A command that needs a text is offered once the text is there.
    void textCommandsWaitForTheirText()
    {
        connectDevice();
        for (const char* name : { "SendFlsCommand", "TahoFileRead", "FlsDataFile" }) {
            const zrk::tmi::CommandRow* row = zrk::tmi::findCommand(QLatin1String(name));
            QVERIFY(row);
            auto* edit = view->findChild<QLineEdit*>(QString::fromLatin1(row->inputs));
            QVERIFY(edit);
            edit->clear();
            QVERIFY2(!button(QLatin1String(name))->isEnabled(), name);
            edit->setText(QStringLiteral("x"));
            QVERIFY2(button(QLatin1String(name))->isEnabled(), name);
        }
        // No firmware file chosen: nothing asked, nothing sent.
        view->commandPanel()->setFileChooser([] { return QString(); });
        QVERIFY(!view->commandPanel()->run(QStringLiteral("FirmwareUpdate")));
        QVERIFY(questions.isEmpty());
        QVERIFY(gSent.isEmpty());
    }

    // The answers routed by "who waits for a key" reach the view even when the configuration window
    // was the last to ask; the others reach it directly.
    void keyAnswersReachTheView_data()
    {
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("logged");
        QTest::newRow("read key (2240)") << "ReadTouch"
                                         << "Ключ ТМ: 0100001A2B3C4D01";
        QTest::newRow("key code (2311 with 1)") << "GetTouch"
                                                << "Ключ ТМ: 0100001A2B3C4D01";
        QTest::newRow("read card (2266)") << "ReadRfid"
                                          << "RFID-карта: 00000000C0FFEE42 (1)";
        QTest::newRow("card code (2311 with 3)") << "GetRfid"
                                                 << "RFID-карта: 00000000C0FFEE42 (1)";
    }
    void keyAnswersReachTheView()
    {
        QFETCH(QString, control);
        QFETCH(QString, logged);
        useDeviceView();
        dev->initWidgetConfig();
        dev->setWidgetWaitReceive(ZRK_WAIT_CONFIG); // the configuration window asked last
        gAnswer = [this](int msg, unsigned long w, unsigned long) {
            quint64 key = Q_UINT64_C(0x0100001A2B3C4D01), card = Q_UINT64_C(0xC0FFEE42);
            quint8 reader = 1;
            const bool touch
                = msg == ZRK_MSG_READ_TOUCH_MEMORY || (msg == ZRK_MSG_REQUEST_KEY_CODE && w == 1);
            if (touch)
                dev->ZRK_ReceiveMessage(dev, ZRK_MSG_TOUCH_MEMORY_CODE, addr(key), 0);
            else
                dev->ZRK_ReceiveMessage(dev, ZRK_MSG_RFID_CARD, addr(card), addr(reader));
        };
        connectDevice();
        QVERIFY(button(control)->isEnabled());
        button(control)->click();
        QVERIFY2(view->logText().contains(logged), qPrintable(view->logText()));
    }

    void formRowsFollowVersionAndPresence()
    {
        QByteArray v3 = reply(3, currentRecord(5));
        view->setTmiCur(&v3);
        ZRK_Form_TMI_Orba3* form = view->formOrba3();
        QVERIFY(form);
        QCOMPARE(form->shownText(orba::F_Power), QStringLiteral("12.34"));
        QCOMPARE(form->shownText(orba::F_Code), QStringLiteral("5 — event 5"));
        QCOMPARE(form->shownText(orba::F_GSM), QStringLiteral("n/a"));
        QVERIFY2(form->rawText().contains(QLatin1String("\n0000  05 00 00 00 05 00")),
            qPrintable(form->rawText()));
        QVERIFY(!form->isRowHidden(orba::F_GSM));
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
        // A click on an older record shows its page again without decoding it anew.
        const OrbaPage* first = view->session()->at(0).page.get();
        QMetaObject::invokeMethod(
            view, "slot_activated_SessionList", Q_ARG(QModelIndex, view->session()->index(0)));
        QCOMPARE(view->formOrba3()->isRowHidden(orba::F_NaviInfo), false);
        QCOMPARE(view->session()->at(0).page.get(), first);
    }

    // The save dialog's filter decides the format, and the extension is added when missing.
    void savedFormatFollowsTheFilter_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("starts");
        QTest::newRow("CSV") << "CSV (*.csv)"
                             << "day.csv" << QByteArray("\xEF\xBB\xBFkind,version,");
        QTest::newRow("KML") << "KML (*.kml)"
                             << "day.kml" << QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"");
        QTest::newRow("tmi") << "Телеметрия (*.tmi)"
                             << "day.tmi"
                             << QByteArray("<?xml version=\"1.0\" encoding=\"windows-1251\"?>\r\n<TMI ");
    }
    void savedFormatFollowsTheFilter()
    {
        QFETCH(QString, filter);
        QFETCH(QString, file);
        QFETCH(QByteArray, starts);
        QTemporaryDir dir;
        QByteArray cur = reply(3, currentRecord(21));
        view->setTmiCur(&cur);
        QString error;
        QVERIFY2(view->saveSessionAs(dir.filePath(QStringLiteral("day")), filter, &error), qPrintable(error));
        QFile out(dir.filePath(file));
        QVERIFY2(out.open(QIODevice::ReadOnly), qPrintable(file));
        const QByteArray text = out.readAll();
        QVERIFY2(text.startsWith(starts), text.left(80).constData());
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files), QStringList { file });
    }

    void savedFileKeepsTheSession()
    {
        QByteArray cur = reply(3, currentRecord(21));
        view->setTmiCur(&cur);
        QByteArray old = reply(13, record(20, 2));
        view->setTmiCurLeft(&old);
        child<QSpinBox>("TimeOffsetHours")->setValue(-5);
        zrk::tmi::Header titles;
        titles.inTitles = QStringList { QStringLiteral("Зажигание") };
        view->setFileTitles(titles);
        const QString path = home.filePath(QStringLiteral("session.tmi"));
        QString error;
        QVERIFY2(view->WriteTmiToFile(path, &error), qPrintable(error));
        const zrk::tmi::ReadResult back = zrk::tmi::read(path);
        QVERIFY2(back.error.isEmpty(), qPrintable(back.error));
        QCOMPARE(back.header.model, QStringLiteral("K-7140"));
        QCOMPARE(back.header.vendor, QStringLiteral("ZIRKOMATIC"));
        QCOMPARE(back.header.timezoneOffset, -18000);
        QCOMPARE(back.header.inTitles.value(0), QStringLiteral("Зажигание"));
        QCOMPARE(back.records.size(), 2);
        QCOMPARE(back.records[0].bytes, currentRecord(21));
        QCOMPARE(back.records[1].fromHistory, true);
        QVERIFY(!view->WriteTmiToFile(home.filePath(QStringLiteral("no/such/dir/x.tmi")), &error));
        QVERIFY(!error.isEmpty());
    }

    // The head takes the names and user-parameter types of the configuration open in the
    // configuration window, shown or hidden.
    void savedFileTitlesFromTheOpenConfiguration_data()
    {
        QTest::addColumn<bool>("hidden");
        QTest::newRow("window shown") << false;
        QTest::newRow("window hidden") << true;
    }
    void savedFileTitlesFromTheOpenConfiguration()
    {
        QFETCH(bool, hidden);
        QByteArray cur = reply(3, currentRecord(21));
        view->setTmiCur(&cur);
        QVERIFY(view->fileHeader().userParamTypes.join(QString()).isEmpty());
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
        QWidget* window = dev->widgetConfig();
        QVERIFY(window);
        if (hidden)
            window->hide();
        const QString path = home.filePath(QStringLiteral("titled.tmi"));
        QString error;
        QVERIFY2(view->WriteTmiToFile(path, &error), qPrintable(error));
        const zrk::tmi::Header h = zrk::tmi::read(path).header;
        QCOMPARE(h.inTitles, QStringList({ {}, QStringLiteral("Дверь"), {}, {}, {}, {} }));
        QCOMPARE(h.outTitles, QStringList({ {}, {}, {}, QStringLiteral("Сирена & свет") }));
        QCOMPARE(h.tempTitles, QStringList({ QStringLiteral("Кузов"), {}, {}, {} }));
        const zrk::fieldset::UserParams defaults = zrk::fieldset::defaultUserParams();
        QCOMPARE(h.userParamTypes,
            QStringList({ QStringLiteral("12").leftJustified(defaults.types[0].size(), QLatin1Char('0')),
                defaults.types[1], defaults.types[2], defaults.types[3] }));
    }
};

QTEST_MAIN(tst_TmiView)
#include "tst_tmi_view.moc"
