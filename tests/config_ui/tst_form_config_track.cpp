// The track page read from a file and written back, key by key, and its numbered rules.
#include "../config_model/config_files.h"
#include "config_model/config_keys.h"
#include "config_model/xml_workdata.h"
#include "config_ui/zrk_config_binding.h"
#include "config_ui/zrk_form_config_track.h"
#include "config_ui/zrk_form_config_track_locator_blist.h"
#include "config_ui/zrk_widget_altnav_period.h"
#include "translations/catalogue.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QSpinBox>
#include <QtTest>

using namespace zrktest;

namespace {

// A configuration holding just the given record attributes: "TRACK/POINTS" -> "k=\"v\" ...".
QByteArray configWith(const QMap<QString, QString>& records)
{
    QMap<QString, QStringList> byTop;
    for (auto it = records.begin(); it != records.end(); ++it) {
        const QString top = it.key().section('/', 0, 0);
        byTop[top] << QStringLiteral("<%1 %2/>").arg(it.key().section('/', 1), it.value());
    }
    QByteArray text = kDecl + "<DEVICE model=\"K-7140\">";
    for (auto it = byTop.begin(); it != byTop.end(); ++it)
        text
            += QStringLiteral("<%1 page=\"%1\">%2</%1>").arg(it.key(), it.value().join(QString())).toLatin1();
    return text + "</DEVICE>";
}

void readInto(ZRK_Form_Config_Track& page, const QByteArray& text)
{
    const auto doc = parsed(text);
    QVERIFY(doc);
    CXMLWorkData root(doc.get(), zrk::cfg::kRootNode);
    page.readFormParam(&root);
}

// What the page writes for one key, as raw text; "<none>" when the key is not written.
QString written(ZRK_Form_Config_Track& page, const QString& top, const QString& group, const QString& key)
{
    const auto doc = parsed();
    CXMLWorkData root(doc.get(), zrk::cfg::kRootNode);
    page.writeFormParam(&root);
    std::unique_ptr<CXMLWorkData> t(root.createNode(top.toLatin1().constData(), 0));
    std::unique_ptr<CXMLWorkData> g(t->createNode(group.toLatin1().constData(), 0));
    return g->readString(key.toLatin1().constData(), QStringLiteral("<none>"));
}

QByteArray savedBytes(ZRK_Form_Config_Track& page)
{
    const auto doc = parsed();
    {
        CXMLWorkData root(doc.get(), zrk::cfg::kRootNode);
        root.clearNode();
        zrk::cfg::writeConfigHeader(&root, QStringLiteral("K-7140"), QStringLiteral("ZIRKOMATIC"));
        page.writeFormParam(&root);
        root.writeParameters();
    }
    return rendered(*doc);
}

} // namespace

class tst_FormConfigTrack : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { zrk::installCatalogue(QStringLiteral("ru")); }
    // Each declared key names a widget of the page, and a value set through it reads back.
    void everyDeclaredKeyHasItsWidget()
    {
        ZRK_Form_Config_Track page;
        for (const zrk::cfg::BranchDecl& branch : page.shownBranches()) {
            for (const zrk::cfg::KeyDecl& d : branch.keys) {
                const ZRK_Config_Binding b(&page, d);
                QVERIFY2(b.isValid(), qPrintable(d.group + '/' + d.key + " -> " + d.widget));
                b.set(d.readDefault);
                if (d.group != "COORDAVER" || d.key != "mode")
                    QCOMPARE(b.get(), zrk::cfg::normalizedValue(d, d.readDefault));
            }
        }
        // A name the form does not have binds nothing.
        zrk::cfg::KeyDecl missing;
        missing.widget = QStringLiteral("spinBox_NoSuchBox");
        QVERIFY(!ZRK_Config_Binding(&page, missing).isValid());
        missing.widget = QStringLiteral("Additional_spinBox_Distance:noSuchRule");
        QVERIFY(!ZRK_Config_Binding(&page, missing).isValid());
    }
    void readWrite_data();
    void readWrite();
    void missingKeysYieldReadDefaults();
    void resetAfterReadRestoresDefaults();
    void sensorsByCaps_data();
    void sensorsByCaps();
    void withoutGlobalLocator();
    void altitudeWindow();
    void optionalCounters_data();
    void optionalCounters();
    void periodStopTimerRemembers();
    void enablement();
    void buttonsAskTheWindow();
};

void tst_FormConfigTrack::readWrite_data()
{
    QTest::addColumn<QString>("node"); // "TRACK/POINTS"
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("before"); // read first; empty: nothing
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("expected");

    auto row
        = [](const char* name, const char* node, const char* key, const char* before, const char* value,
              const char* expected) { QTest::newRow(name) << node << key << before << value << expected; };
    row("timer flags short", "TRACK/POINTS", "moveTimerSens", "", "1", "1000");
    row("timer flags long", "TRACK/POINTS", "moveTimerSens", "", "11111", "1111");
    row("timer flags empty", "TRACK/POINTS", "moveTimerSens", "1111", "", "0000");
    row("angle mode 1", "TRACK/POINTS", "angleMode", "", "1", "1");
    row("angle mode 0", "TRACK/POINTS", "angleMode", "", "0", "0");
    row("angle mode unknown", "TRACK/POINTS", "angleMode", "", "7", "0");
    row("max speed above", "TRACK/POINTS", "maxSpeed", "", "500", "180");
    row("max speed below", "TRACK/POINTS", "maxSpeed", "", "0", "1");
    row("move timer text", "TRACK/POINTS", "moveTimer", "", "12abc", "12");
    row("limit dist", "TRACK/LIMPOINT", "dist", "", "201", "200");
    row("filter use 2", "TRACK/COORDFLT", "use", "", "2", "1");
    row("hdop whole", "TRACK/COORDFLT", "maxHDOP", "", "10", "10.0");
    row("hdop rounded", "TRACK/COORDFLT", "maxHDOP", "", "2.57", "2.6");
    row("hdop below", "TRACK/COORDFLT", "maxHDOP", "", "0", "0.1");
    row("delta ntp off", "TRACK/COORDFLT", "deltaNTP", "", "0", "0");
    row("delta ntp on", "TRACK/COORDFLT", "deltaNTP", "", "17", "17");
    row("delta ntp above", "TRACK/COORDFLT", "deltaNTP", "", "300", "255");
    row("averaging none", "TRACK/COORDAVER", "mode", "", "0", "0");
    row("averaging fixed", "TRACK/COORDAVER", "mode", "", "3", "3");
    row("averaging 2 keeps fixed", "TRACK/COORDAVER", "mode", "3", "2", "3");
    row("averaging 2 keeps none", "TRACK/COORDAVER", "mode", "0", "2", "0");
    row("sensors short", "TRACK/COORDAVER", "sensors", "", "1", "10000");
    row("sensors long", "TRACK/COORDAVER", "sensors", "", "0101111", "01011");
    row("parking 0", "TRACK/MOVESENS", "mode", "", "0", "0");
    row("parking unknown", "TRACK/MOVESENS", "mode", "0", "5", "1");
    row("parking timer above", "TRACK/MOVESENS", "stopTimer", "", "70000", "65535");
    row("gnss unknown mode", "TRACK/GNSS", "mode", "10000", "00100", "11000");
    row("gnss gap entry", "TRACK/GNSS", "mode", "", "", "11000");
    row("gnss glonass", "TRACK/GNSS", "mode", "", "01000", "01000");
    row("gnss second", "TRACK/GNSS", "mode", "", "10001", "10001");
    row("cold restart off", "TRACK/GNSS", "coldRstTimer", "", "0", "0");
    row("cold restart on", "TRACK/GNSS", "coldRstTimer", "", "9", "9");
    row("elevation above", "TRACK/GNSS", "angle", "", "91", "90");
    row("tlm source short", "LOCATOR/TLM", "source", "", "1", "10");
    row("tlm source cells", "LOCATOR/TLM", "source", "", "01", "01");
    row("tlm source long", "LOCATOR/TLM", "source", "", "111", "11");
    row("tlm move timer below", "LOCATOR/TLM", "moveTimer", "", "5", "10");
    row("tlm stop off", "LOCATOR/TLM", "stopTimer", "400", "0", "0");
    row("tlm stop below", "LOCATOR/TLM", "stopTimer", "", "5", "10");
    row("tlm stop on", "LOCATOR/TLM", "stopTimer", "", "400", "400");
    row("tlm sensors", "LOCATOR/TLM", "moveSens", "", "01", "0100");
    row("global move timer below", "LOCATOR/GLOBAL", "moveTimer", "", "5", "20");
    row("global stop below", "LOCATOR/GLOBAL", "stopTimer", "", "5", "20");
    row("global condition 1", "LOCATOR/GLOBAL", "condition", "", "1", "1");
    row("global condition unknown", "LOCATOR/GLOBAL", "condition", "1", "7", "0");
    row("global key", "LOCATOR/GLOBAL", "key", "", "a&b c", "a&b c");
    row("global add to telemetry", "LOCATOR/GLOBAL", "addTlm", "", "2", "2");
    row("rejections off", "LOCATOR/COORDFILT", "rejCnt", "", "0", "0");
    row("rejections on", "LOCATOR/COORDFILT", "rejCnt", "", "7", "7");
    row("level below", "LOCATOR/APFILT", "rxLvl", "", "-200", "-128");
    row("black list row", "LOCATOR/BLIST", "bm3", "", "home", "home");
    row("black list empty row", "LOCATOR/BLIST", "bm1", "", "", "");
}

void tst_FormConfigTrack::readWrite()
{
    QFETCH(QString, node);
    QFETCH(QString, key);
    QFETCH(QString, before);
    QFETCH(QString, value);
    QFETCH(QString, expected);
    ZRK_Form_Config_Track page;
    if (!before.isEmpty())
        readInto(page, configWith({ { node, QStringLiteral("%1=\"%2\"").arg(key, before) } }));
    QString escaped = value;
    escaped.replace(QLatin1String("&"), QLatin1String("&amp;"));
    readInto(page, configWith({ { node, QStringLiteral("%1=\"%2\"").arg(key, escaped) } }));
    QCOMPARE(written(page, node.section('/', 0, 0), node.section('/', 1), key), expected);
}

void tst_FormConfigTrack::missingKeysYieldReadDefaults()
{
    ZRK_Form_Config_Track page;
    // Move the form away from its reset state first, so that each default must come from reading.
    readInto(page,
        configWith({ { "LOCATOR/TLM", "moveTimer=\"999\" stopTimer=\"77\"" },
            { "TRACK/GNSS", "coldRstTimer=\"0\" mode=\"01000\"" }, { "LOCATOR/GLOBAL", "key=\"k\"" } }));
    readInto(page, kDecl + "<DEVICE/>");
    for (const zrk::cfg::BranchDecl& b : zrk::cfg::declaredBranches()) {
        if (b.top != QLatin1String("TRACK") && b.top != QLatin1String("LOCATOR"))
            continue;
        for (const zrk::cfg::KeyDecl& d : b.keys) {
            if (d.keptOnReset)
                continue;
            QCOMPARE(written(page, b.top, d.group, d.key) + " " + d.group + "/" + d.key,
                zrk::cfg::normalizedValue(d, d.readDefault) + " " + d.group + "/" + d.key);
        }
    }
    // The read defaults that differ from a fresh form: a 60 s locator period, cold restart at 5.
    QCOMPARE(written(page, "LOCATOR", "TLM", "moveTimer"), QStringLiteral("60"));
    QCOMPARE(written(page, "TRACK", "GNSS", "coldRstTimer"), QStringLiteral("5"));
}

void tst_FormConfigTrack::resetAfterReadRestoresDefaults()
{
    ZRK_Form_Config_Track page;
    const QByteArray fresh = savedBytes(page);
    readInto(page,
        configWith({ { "TRACK/POINTS", "angleMode=\"1\" moveTimerSens=\"1111\" useMaxSpeed=\"1\"" },
            { "TRACK/COORDFLT", "deltaNTP=\"0\" minAlt=\"2000\" maxAlt=\"2500\"" },
            { "LOCATOR/GLOBAL", "stopTimer=\"900\" condition=\"1\"" }, { "LOCATOR/BLIST", "bm1=\"x\"" } }));
    QVERIFY(savedBytes(page) != fresh);
    page.setDefaultParam();
    QCOMPARE(savedBytes(page), fresh);
}

void tst_FormConfigTrack::sensorsByCaps_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("fourth");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, int count, bool fourth, const char* value, const char* expected) {
        QTest::newRow(name) << count << fourth << QString(value) << QString(expected);
    };
    row("five", 5, true, "11111", "11111");
    row("five, no fourth", 5, false, "11111", "11101");
    row("four", 4, true, "11111", "1111");
    row("four, no fourth", 4, false, "1111", "1110");
}

void tst_FormConfigTrack::sensorsByCaps()
{
    QFETCH(int, count);
    QFETCH(bool, fourth);
    QFETCH(QString, value);
    QFETCH(QString, expected);
    ZRK_Track_Caps caps = zrkTrackCaps();
    caps.avgSensorCount = count;
    caps.avgSensor4 = fourth;
    ZRK_Form_Config_Track page(caps);
    readInto(page, configWith({ { "TRACK/COORDAVER", QStringLiteral("sensors=\"%1\"").arg(value) } }));
    QCOMPARE(written(page, "TRACK", "COORDAVER", "sensors"), expected);
    QCOMPARE(!page.findChild<QCheckBox*>("checkBox_Average_Taho")->isHidden(), fourth);
}

void tst_FormConfigTrack::withoutGlobalLocator()
{
    ZRK_Track_Caps caps = zrkTrackCaps();
    caps.locatorGlobal = false;
    ZRK_Form_Config_Track page(caps);
    const QByteArray bytes = savedBytes(page);
    QVERIFY(bytes.contains("<TLM "));
    for (const char* absent : { "<GLOBAL", "<COORDFILT", "<APFILT", "<BLIST" })
        QVERIFY2(!bytes.contains(absent), absent);

    caps.locatorTlm = false;
    ZRK_Form_Config_Track none(caps);
    QVERIFY(!savedBytes(none).contains("LOCATOR"));
}

void tst_FormConfigTrack::altitudeWindow()
{
    ZRK_Form_Config_Track page;
    auto* minAlt = page.findChild<QSpinBox*>("spinBox_MinAlt");
    auto* maxAlt = page.findChild<QSpinBox*>("spinBox_MaxAlt");
    QCOMPARE(maxAlt->minimum(), 0); // -100 + 100
    QCOMPARE(minAlt->maximum(), 2900); // 3000 - 100

    readInto(page, configWith({ { "TRACK/COORDFLT", "minAlt=\"2950\" maxAlt=\"3000\"" } }));
    QCOMPARE(minAlt->value(), 2950);
    QCOMPARE(maxAlt->value(), 3050);

    // A pair far from the boxes' last state is taken as it stands.
    readInto(page, configWith({ { "TRACK/COORDFLT", "minAlt=\"-5000\" maxAlt=\"-4000\"" } }));
    QCOMPARE(minAlt->value(), -5000);
    QCOMPARE(maxAlt->value(), -4000);
    readInto(page, configWith({ { "TRACK/COORDFLT", "minAlt=\"20000\" maxAlt=\"32767\"" } }));
    QCOMPARE(written(page, "TRACK", "COORDFLT", "minAlt"), QStringLiteral("20000"));
    QCOMPARE(written(page, "TRACK", "COORDFLT", "maxAlt"), QStringLiteral("32767"));

    maxAlt->setValue(-32768);
    QCOMPARE(maxAlt->value(), 20100);
    QCOMPARE(minAlt->maximum(), 20000);
    maxAlt->setValue(32767);
    minAlt->setValue(32767);
    QCOMPARE(minAlt->value(), 32667);
    QCOMPARE(maxAlt->minimum(), 32767);
}

void tst_FormConfigTrack::optionalCounters_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("spin");
    QTest::addColumn<int>("onValue");
    const auto row = [](const char* name, const char* box, const char* spin, int onValue) {
        QTest::newRow(name) << QString(box) << QString(spin) << onValue;
    };
    row("deltaNTP", "checkBox_DeltaNtp", "spinBox_DeltaNtp", 5);
    row("rejCnt", "checkBox_CoordFlt_RejCnt", "spinBox_CoordFlt_RejCnt", 2);
    row("coldRstTimer", "checkBox_ColdRstTimer", "spinBox_ColdRstTimer", 5);
}

void tst_FormConfigTrack::optionalCounters()
{
    QFETCH(QString, box);
    QFETCH(QString, spin);
    QFETCH(int, onValue);
    ZRK_Form_Config_Track page;
    auto* b = page.findChild<QCheckBox*>(box);
    auto* s = page.findChild<QSpinBox*>(spin);
    QVERIFY(b && s);
    b->setChecked(false);
    QCOMPARE(s->minimum(), 0);
    QCOMPARE(s->maximum(), 0);
    QCOMPARE(s->value(), 0);
    QVERIFY(!s->isEnabled());
    b->setChecked(true);
    QCOMPARE(s->minimum(), 1);
    QCOMPARE(s->maximum(), 255);
    QCOMPARE(s->value(), onValue);
    QVERIFY(s->isEnabled());
    s->setValue(0);
    QCOMPARE(s->value(), 1);
}

void tst_FormConfigTrack::periodStopTimerRemembers()
{
    ZRK_Widget_AltNav_Period period;
    period.applyCaps(60, 20, 300, 20);
    QCOMPARE(period.getMoveTimer(), 60);
    QCOMPARE(period.getStopTimer(), 0);
    auto* parking = period.findChild<QCheckBox*>("checkBox_Parking");
    auto* stop = period.findChild<QSpinBox*>("spinBox_StopTimer");
    parking->setChecked(true);
    QCOMPARE(stop->minimum(), 20);
    QCOMPARE(stop->value(), 300);
    stop->setValue(450);
    parking->setChecked(false);
    QCOMPARE(period.getStopTimer(), 0);
    QCOMPARE(stop->maximum(), 0);
    parking->setChecked(true);
    QCOMPARE(period.getStopTimer(), 450);
    period.setMoveTimer(1);
    QCOMPARE(period.getMoveTimer(), 20);
}

void tst_FormConfigTrack::enablement()
{
    ZRK_Form_Config_Track page;
    auto check = [&page](const char* name) { return page.findChild<QCheckBox*>(name); };
    auto widget = [&page](const char* name) { return page.findChild<QWidget*>(name); };

    // The timer box drives exactly three widgets; the other flags keep their state.
    check("Additional_checkBox_Timer")->setChecked(false);
    QVERIFY(!widget("Additional_spinBox_Timer")->isEnabled());
    QVERIFY(!widget("checkBox_TmrFlag_In1")->isEnabled());
    QVERIFY(!widget("Additional_spinBox_StopTimer")->isEnabled());
    QVERIFY(widget("checkBox_TmrFlag_Engine")->isEnabled());

    // The density limits are on while any point rule is.
    check("Additional_checkBox_Direction")->setChecked(false);
    check("Additional_checkBox_Distance")->setChecked(false);
    QVERIFY(!widget("groupBox_LimPoint")->isEnabled());
    check("Additional_checkBox_Corner")->setChecked(true);
    QVERIFY(widget("groupBox_LimPoint")->isEnabled());
    check("Additional_checkBox_Direction")->setChecked(true);
    QVERIFY(!check("Additional_checkBox_Corner")->isChecked());

    // The coordinate filter governs the stop group and the sensor flags.
    check("checkBox_CoordFlt_Use")->setChecked(false);
    QVERIFY(!widget("Coord_groupBox_Stop")->isEnabled());
    QVERIFY(!widget("groupBox_SensorAverage")->isEnabled());
    check("checkBox_CoordFlt_Use")->setChecked(true);
    QVERIFY(widget("groupBox_SensorAverage")->isEnabled()); // averaging is the reset mode
    readInto(page, configWith({ { "TRACK/COORDAVER", "mode=\"0\"" } }));
    QVERIFY(!widget("groupBox_SensorAverage")->isEnabled());

    // Frames follow their use boxes; the receiver frame stays hidden with no way to ask the device.
    QVERIFY(widget("frame_Loc")->isHidden());
    check("checkBox_Loc_Use")->setChecked(true);
    QVERIFY(!widget("frame_Loc")->isHidden());
    page.deviceConnect();
    QVERIFY(widget("frame_Receiver")->isHidden());

    // Only the usable satellite-system buttons show.
    const bool shown[] = { true, true, false, true, true, false };
    for (int i = 0; i < 6; ++i)
        QCOMPARE(!page.gnssButton(i)->isHidden(), shown[i]);
}

void tst_FormConfigTrack::buttonsAskTheWindow()
{
    ZRK_Form_Config_Track page;
    QSignalSpy accel(&page, &ZRK_Form_Config_Track::openTabAccelRequested);
    QSignalSpy serial(&page, &ZRK_Form_Config_Track::openTabRSRequested);
    QSignalSpy speeding(&page, &ZRK_Form_Config_Track::speedingParamChanged);
    page.setParkingMode(0);
    QVERIFY(!page.findChild<QWidget*>("pushButton_ParkingAccel")->isEnabled());
    page.setParkingMode(1);
    QTest::mouseClick(page.findChild<QAbstractButton*>("pushButton_ParkingAccel"), Qt::LeftButton);
    QCOMPARE(accel.count(), 1);
    QTest::mouseClick(
        page.findChild<QWidget*>("widget_Loc_Source")->findChild<QAbstractButton*>("pushButton_WiFi"),
        Qt::LeftButton);
    QCOMPARE(serial.count(), 1);
    page.findChild<QCheckBox*>("Always_checkBox_MaxSpeed")->setChecked(true);
    QCOMPARE(speeding.count(), 1);
    QCOMPARE(speeding.first().first().toBool(), true);
}

QTEST_MAIN(tst_FormConfigTrack)
#include "tst_form_config_track.moc"
