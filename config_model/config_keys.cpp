#include "config_model/config_keys.h"

#include "config_model/orba_fieldset.h"
#include "config_model/parameters.h"
#include "config_model/xml_tag.h"
#include "config_model/xml_workdata.h"
#include "config_model/zrk_track_caps.h"

#include <QHash>
#include <QPair>
#include <QRegularExpression>

#include <algorithm>
#include <memory>

namespace zrk::cfg {

namespace {

using T = KeyType;
const QString kIntZero = QStringLiteral("0");
const QString kIntOne = QStringLiteral("1");
const QVector<int> kZeroOne { 0, 1 };
const QVector<int> kAveragingModes { 0, 1, 3 }; // 2 is never written

KeyDecl integer(
    const char* group, const char* key, int readDefault, int reset, int min, int max, const char* label)
{
    KeyDecl d;
    d.group = QLatin1String(group);
    d.key = QLatin1String(key);
    d.type = T::Integer;
    d.readDefault = QString::number(readDefault);
    d.resetValue = QString::number(reset);
    d.min = min;
    d.max = max;
    d.labelId = label;
    return d;
}

KeyDecl choice(
    const char* group, const char* key, int readDefault, int reset, QVector<int> choices, const char* label)
{
    KeyDecl d = integer(group, key, readDefault, reset, choices.first(), choices.last(), label);
    d.choices = std::move(choices);
    return d;
}

KeyDecl boolean(const char* group, const char* key, bool readDefault, bool reset, const char* label)
{
    KeyDecl d;
    d.group = QLatin1String(group);
    d.key = QLatin1String(key);
    d.type = T::Bool;
    d.readDefault = readDefault ? kIntOne : kIntZero;
    d.resetValue = reset ? kIntOne : kIntZero;
    d.min = 0;
    d.max = 1;
    d.labelId = label;
    return d;
}

KeyDecl text(
    const char* group, const char* key, const QString& readDefault, const QString& reset, const char* label)
{
    KeyDecl d;
    d.group = QLatin1String(group);
    d.key = QLatin1String(key);
    d.type = T::Text;
    d.readDefault = readDefault;
    d.resetValue = reset;
    d.labelId = label;
    return d;
}

KeyDecl flags(const char* group, const char* key, int length, const QString& readDefault,
    const QString& reset, const char* label)
{
    KeyDecl d = text(group, key, readDefault, reset, label);
    d.type = T::Flags;
    d.length = length;
    return d;
}

// The "%d" text of v, as QString::number gives it; text itself when it is that already.
QString integerText(int v, const QString& text)
{
    char digits[12];
    char* end = digits + sizeof digits;
    char* at = end;
    // Through unsigned, so that the most negative value has its digits too.
    unsigned int u = v < 0 ? 0u - static_cast<unsigned int>(v) : static_cast<unsigned int>(v);
    do {
        *--at = static_cast<char>('0' + u % 10);
        u /= 10;
    } while (u != 0);
    if (v < 0)
        *--at = '-';
    const QLatin1String written(at, static_cast<int>(end - at));
    return text == written ? text : QString(written);
}

QString oneDecimal(double value)
{
    return QString::number(value, 'f', 1);
}

// Flag strings are read padded on the right with "0" and cut to their length.
QString fitFlags(const QString& value, int length)
{
    return value.left(length).leftJustified(length, QLatin1Char('0'));
}

} // namespace

int BranchDecl::indexOf(const QString& group, const QString& key) const
{
    for (int i = 0; i < keys.size(); ++i) {
        if (keys[i].group == group && keys[i].key == key)
            return i;
    }
    return -1;
}

BranchDecl trackBranch(const ZRK_Track_Caps& caps)
{
    BranchDecl b;
    b.top = QStringLiteral("TRACK");
    b.groups = QStringList { QStringLiteral("POINTS"), QStringLiteral("LIMPOINT"), QStringLiteral("COORDFLT"),
        QStringLiteral("COORDAVER"), QStringLiteral("MOVESENS") };
    const QString hdop = oneDecimal(double(caps.maxHdopDefault));
    auto& k = b.keys;
    //% "Ставить точки только в движении (правило старт/стоп)"
    k << boolean("POINTS", "useMoveSens", true, true, QT_TRID_NOOP("cfgt3_007"));
    k.last().widget = QStringLiteral("Always_checkBox_StartStop");
    //% "Ставить точку при превышении скорости"
    k << boolean("POINTS", "useMaxSpeed", false, false, QT_TRID_NOOP("cfgt3_008"));
    k.last().widget = QStringLiteral("Always_checkBox_MaxSpeed");
    //% "Порог скорости, км/ч"
    k << integer("POINTS", "maxSpeed", 100, 100, 1, 180, QT_TRID_NOOP("cfgt3_009"));
    k.last().widget = QStringLiteral("Always_spinBox_MaxSpeed");
    //% "Правило поворота"
    k << integer("POINTS", "angleMode", 2, 2, 0, 2, QT_TRID_NOOP("cfgt3_010"));
    k.last().widget = QStringLiteral("Additional_checkBox_Corner:angleMode");
    //% "Угол поворота, °"
    k << integer("POINTS", "angle", 5, 5, 1, 90, QT_TRID_NOOP("cfgt3_013"));
    k.last().widget = QStringLiteral("Additional_spinBox_Corner");
    k.last().lightWidget = QStringLiteral("spinBox_Angle");
    //% "Ставить точку по расстоянию, м"
    k << boolean("POINTS", "useDist", true, true, QT_TRID_NOOP("cfgt3_014"));
    k.last().widget = QStringLiteral("Additional_checkBox_Distance");
    //% "Расстояние, м"
    k << integer("POINTS", "dist", 500, 500, 1, 10000, QT_TRID_NOOP("cfgt3_015"));
    k.last().widget = QStringLiteral("Additional_spinBox_Distance");
    k.last().lightWidget = QStringLiteral("spinBox_Dist");
    //% "Ставить точку по таймеру в движении, с"
    k << boolean("POINTS", "useTimer", true, true, QT_TRID_NOOP("cfgt3_016"));
    k.last().widget = QStringLiteral("Additional_checkBox_Timer");
    //% "Таймер в движении, с"
    k << integer("POINTS", "moveTimer", 60, 60, 0, 99999, QT_TRID_NOOP("cfgt3_017"));
    k.last().widget = QStringLiteral("Additional_spinBox_Timer");
    k.last().lightWidget = QStringLiteral("spinBox_MoveTimer");
    //% "Признаки движения для таймера"
    k << flags("POINTS", "moveTimerSens", 4, "0000", "0000", QT_TRID_NOOP("cfgt3_018"));
    k.last().widget = QStringLiteral("groupBox_TmrFlags:tmrFlags");
    //% "Таймер на стоянке, с"
    k << integer("POINTS", "stopTimer", 600, 600, 0, 99999, QT_TRID_NOOP("cfgt3_023"));
    k.last().widget = QStringLiteral("Additional_spinBox_StopTimer");
    k.last().lightWidget = QStringLiteral("spinBox_StopTimer");

    //% "Не ставить точки ближе, м"
    k << boolean("LIMPOINT", "blockDist", true, true, QT_TRID_NOOP("cfgt3_025"));
    k.last().widget = QStringLiteral("checkBox_BlockDist");
    //% "Минимальное расстояние между точками, м"
    k << integer("LIMPOINT", "dist", 10, 10, 1, 200, QT_TRID_NOOP("cfgt3_026"));
    k.last().widget = QStringLiteral("spinBox_BlockDist");
    //% "Не ставить точки чаще, с"
    k << boolean("LIMPOINT", "blockTimer", false, false, QT_TRID_NOOP("cfgt3_027"));
    k.last().widget = QStringLiteral("checkBox_BlockTimer");
    //% "Минимальный интервал между точками, с"
    k << integer("LIMPOINT", "timer", 5, 5, 1, 99999, QT_TRID_NOOP("cfgt3_028"));
    k.last().widget = QStringLiteral("spinBox_BlockTimer");

    //% "Фильтр координат"
    k << boolean("COORDFLT", "use", true, true, QT_TRID_NOOP("cfgt3_029"));
    k.last().widget = QStringLiteral("checkBox_CoordFlt_Use");
    //% "Минимум спутников"
    k << integer("COORDFLT", "minSats", 4, 4, 1, 255, QT_TRID_NOOP("cfgt3_031"));
    k.last().widget = QStringLiteral("spinBox_MinSats");
    KeyDecl maxHdop = text("COORDFLT", "maxHDOP", hdop, hdop,
        //% "Максимальный HDOP"
        QT_TRID_NOOP("cfgt3_032"));
    maxHdop.type = T::Decimal;
    maxHdop.min = 1; // 0.1
    maxHdop.max = 1000; // the widget's own upper bound, 100.0
    maxHdop.widget = QStringLiteral("doubleSpinBox_MaxHdop");
    k << maxHdop;
    //% "Максимальная скорость, км/ч"
    k << integer("COORDFLT", "maxSpeed", 200, 200, 1, 1500, QT_TRID_NOOP("cfgt3_033"));
    k.last().widget = QStringLiteral("spinBox_FltMaxSpeed");
    //% "Максимальное ускорение"
    k << integer("COORDFLT", "maxAccel", 25, 25, 1, 100, QT_TRID_NOOP("cfgt3_034"));
    k.last().widget = QStringLiteral("spinBox_MaxAccel");
    //% "Максимальный скачок, м"
    k << integer("COORDFLT", "maxDist", 100, 100, 1, 500, QT_TRID_NOOP("cfgt3_035"));
    k.last().widget = QStringLiteral("spinBox_MaxDist");
    //% "Отбраковок подряд, не более"
    k << integer("COORDFLT", "maxFilterCnt", 5, 5, 0, 250, QT_TRID_NOOP("cfgt3_036"));
    k.last().widget = QStringLiteral("spinBox_MaxFilterCnt");
    //% "Минимальная высота, м"
    k << integer("COORDFLT", "minAlt", -100, -100, -32768, 32767, QT_TRID_NOOP("cfgt3_037"));
    k.last().widget = QStringLiteral("spinBox_MinAlt:minAlt");
    //% "Максимальная высота, м"
    k << integer("COORDFLT", "maxAlt", 3000, 3000, -32768, 32767, QT_TRID_NOOP("cfgt3_038"));
    k.last().widget = QStringLiteral("spinBox_MaxAlt:maxAlt");
    if (caps.rejectDeltaNtp) {
        //% "Расхождение с временем сети, с"
        k << integer("COORDFLT", "deltaNTP", 5, 5, 1, 255, QT_TRID_NOOP("cfgt3_039"));
        k.last().zeroMeansOff = true;
        k.last().widget = QStringLiteral("spinBox_DeltaNtp:deltaNtp");
    }

    //% "Координаты на стоянке"
    k << choice("COORDAVER", "mode", 1, 1, kAveragingModes, QT_TRID_NOOP("cfgt3_040"));
    k.last().widget = QStringLiteral("Coord_groupBox_Stop:averageMode");
    const int sensorLength = caps.avgSensorCount >= 5 ? 5 : 4;
    //% "Признаки стоянки"
    k << flags("COORDAVER", "sensors", sensorLength, caps.avgSensorsDefault,
        fitFlags(caps.avgSensorsDefault, sensorLength), QT_TRID_NOOP("cfgt3_044"));
    k.last().widget = QStringLiteral("groupBox_SensorAverage:sensorAverage");

    //% "Режим стоянки"
    k << choice("MOVESENS", "mode", 1, 1, kZeroOne, QT_TRID_NOOP("cfgt3_051"));
    k.last().widget = QStringLiteral("groupBox_Parking:parkingMode");
    //% "Время до стоянки, с"
    k << integer("MOVESENS", "stopTimer", 30, 30, 0, 65535, QT_TRID_NOOP("cfgt3_056"));
    k.last().widget = QStringLiteral("spinBox_ParkingStopTimer");

    if (caps.gnssPresent) {
        b.groups << QStringLiteral("GNSS");
        //% "Спутниковые системы"
        k << text("GNSS", "mode", caps.gnssModeDefault, caps.gnssModeDefault, QT_TRID_NOOP("cfgt3_057"));
        k.last().widget = QStringLiteral("groupBox_GnssSystems:gnssMode");
        if (caps.gnssAgps) {
            //% "Помощь A-GPS"
            k << boolean("GNSS", "useAGPS", true, true, QT_TRID_NOOP("cfgt3_058"));
            k.last().widget = QStringLiteral("checkBox_Agps");
        }
        if (caps.gnssEpo) {
            //% "Прогноз орбит (EPO)"
            k << boolean("GNSS", "useEPO", false, false, QT_TRID_NOOP("cfgt3_059"));
            k.last().widget = QStringLiteral("checkBox_Epo");
        }
        if (caps.gnssAngle) {
            //% "Маска возвышения спутников, °"
            k << integer("GNSS", "angle", 5, 5, 0, 90, QT_TRID_NOOP("cfgt3_060"));
            k.last().widget = QStringLiteral("spinBox_Angle");
        }
        if (caps.gnssDatum) {
            //% "Система координат"
            k << choice("GNSS", "datum", 0, 0, kZeroOne, QT_TRID_NOOP("cfgt3_061"));
            k.last().widget = QStringLiteral("groupBox_Datum:gnssCoord");
        }
        if (caps.gnssReceiver) {
            //% "Приёмник"
            k << integer("GNSS", "receiver", 0, 0, 0, 255, QT_TRID_NOOP("cfgt3_064"));
            k.last().widget = QStringLiteral("comboBox_Receiver");
        }
        if (caps.coldRestartTimer) {
            //% "Таймер холодного рестарта приёмника"
            k << integer("GNSS", "coldRstTimer", 5, 0, 1, 255, QT_TRID_NOOP("cfgt3_067"));
            k.last().zeroMeansOff = true;
            k.last().widget = QStringLiteral("spinBox_ColdRstTimer:coldRstTimer");
        }
    }
    return b;
}

// The black list's rows as a fresh terminal has them: phone hotspots and the like.
const QStringList& blackListDefaults()
{
    static const QStringList rows { QStringLiteral("70mai"), QStringLiteral("galaxy"),
        QStringLiteral("iphone"), QStringLiteral("honor"), QStringLiteral("realme"), QStringLiteral("redmi"),
        QStringLiteral("vivo"), QStringLiteral("samsung"), QStringLiteral("xiaomi"), QStringLiteral("zte"),
        QString(), QString() };
    return rows;
}

BranchDecl locatorBranch(const ZRK_Track_Caps& caps)
{
    BranchDecl b;
    b.top = QStringLiteral("LOCATOR");
    auto& k = b.keys;
    // The two period widgets share their keys; only the timers' defaults and minimums differ.
    // Each group has a source widget and a period widget of its own ("widget_Tlm_Source", ...).
    auto period = [&k](const char* group, const char* widgets, int readMove, int resetMove, int minMove,
                      int minStop) {
        const QString periodWidget = QStringLiteral("widget_%1_Period.").arg(QLatin1String(widgets));
        //% "Период в движении, с"
        k << integer(group, "moveTimer", readMove, resetMove, minMove, 65535, QT_TRID_NOOP("cfgt3_071"));
        k.last().widget = periodWidget + QStringLiteral("moveTimer");
        //% "Признаки движения"
        k << flags(group, "moveSens", 4, "0000", "0000", QT_TRID_NOOP("cfgt3_072"));
        k.last().widget = periodWidget + QStringLiteral("moveSens");
        //% "Период на стоянке, с (0 — выключено)"
        KeyDecl stop = integer(group, "stopTimer", 0, 0, minStop, 65535, QT_TRID_NOOP("cfgt3_073"));
        stop.zeroMeansOff = true;
        stop.widget = periodWidget + QStringLiteral("stopTimer");
        k << stop;
    };
    //% "Источники"
    const char* sourceLabel = QT_TRID_NOOP("cfgt3_070");
    if (caps.locatorTlm) {
        b.groups << QStringLiteral("TLM");
        //% "Позиционирование для телеметрии"
        k << boolean("TLM", "use", false, false, QT_TRID_NOOP("cfgt3_069"));
        k.last().widget = QStringLiteral("checkBox_Tlm_Use");
        k << flags("TLM", "source", 2, "10", "10", sourceLabel);
        k.last().widget = QStringLiteral("widget_Tlm_Source.source");
        period("TLM", "Tlm", 60, 20, 10, 10);
    }
    if (caps.locatorGlobal) {
        b.groups << QStringLiteral("GLOBAL");
        //% "Сервис локации"
        k << boolean("GLOBAL", "use", false, false, QT_TRID_NOOP("cfgt3_074"));
        k.last().widget = QStringLiteral("checkBox_Loc_Use");
        //% "Ключ доступа"
        k << text("GLOBAL", "key", QString(), QString(), QT_TRID_NOOP("cfgt3_075"));
        k.last().widget = QStringLiteral("lineEdit_Loc_Key");
        //% "Условие"
        k << choice("GLOBAL", "condition", 0, 0, kZeroOne, QT_TRID_NOOP("cfgt3_076"));
        k.last().widget = QStringLiteral("comboBox_Loc_Condition:locCondition");
        if (caps.locatorAddTlm) {
            //% "Добавлять в телеметрию"
            KeyDecl add = integer("GLOBAL", "addTlm", 0, 0, 0, 2, QT_TRID_NOOP("cfgt3_077"));
            add.keptOnReset = true;
            add.widget = QStringLiteral("comboBox_Loc_AddTlm");
            k << add;
        }
        k << flags("GLOBAL", "source", 2, "10", "10", sourceLabel);
        k.last().widget = QStringLiteral("widget_Loc_Source.source");
        period("GLOBAL", "Loc", 60, 60, 20, 20);

        if (caps.locatorCoordFilter) {
            b.groups << QStringLiteral("COORDFILT");
            //% "Фильтр координат локатора"
            k << boolean("COORDFILT", "use", true, true, QT_TRID_NOOP("cfgt3_078"));
            k.last().widget = QStringLiteral("groupBox_CoordFlt_Use");
            //% "Предельная скорость, км/ч"
            k << integer("COORDFILT", "speed", 130, 130, 0, 255, QT_TRID_NOOP("cfgt3_079"));
            k.last().widget = QStringLiteral("spinBox_CoordFlt_Speed");
            //% "Отбраковок подряд до принятия"
            k << integer("COORDFILT", "rejCnt", 2, 2, 1, 255, QT_TRID_NOOP("cfgt3_080"));
            k.last().zeroMeansOff = true;
            k.last().widget = QStringLiteral("spinBox_CoordFlt_RejCnt:rejCnt");
            //% "Записывать отбракованные координаты"
            k << boolean("COORDFILT", "bbWrite", false, false, QT_TRID_NOOP("cfgt3_081"));
            k.last().widget = QStringLiteral("checkBox_CoordFlt_BbWrite");
            if (caps.locatorRecheckWifi) {
                //% "Перепроверять по Wi-Fi"
                k << boolean("COORDFILT", "recheckWiFi", true, true, QT_TRID_NOOP("cfgt3_082"));
                k.last().widget = QStringLiteral("checkBox_CoordFlt_RecheckWiFi");
            }
            //% "Перепроверять по GNSS"
            k << boolean("COORDFILT", "recheckGNSS", true, true, QT_TRID_NOOP("cfgt3_083"));
            k.last().widget = QStringLiteral("checkBox_CoordFlt_RecheckGnss");
        }
        if (caps.locatorApFilter) {
            b.groups << QStringLiteral("APFILT");
            //% "Фильтр точек доступа"
            k << boolean("APFILT", "use", true, true, QT_TRID_NOOP("cfgt3_084"));
            k.last().widget = QStringLiteral("groupBox_ApFLT_Use");
            //% "Минимальный уровень точки доступа, дБм"
            k << integer("APFILT", "rxLvl", -65, -65, -128, 127, QT_TRID_NOOP("cfgt3_085"));
            k.last().widget = QStringLiteral("spinBox_ApFlt_RxLvl");
        }
        if (caps.locatorBlackList) {
            b.groups << QStringLiteral("BLIST");
            const QStringList& rows = blackListDefaults();
            for (int i = 0; i < rows.size(); ++i) {
                const QByteArray key = "bm" + QByteArray::number(i + 1);
                //% "Чёрный список, строка %1"
                KeyDecl row = text("BLIST", "", rows[i], rows[i], QT_TRID_NOOP("cfgt3_087"));
                row.key = QString::fromLatin1(key);
                row.widget = QStringLiteral("pushButton_BlackList:blackList[%1]").arg(i);
                k << row;
            }
        }
    }
    return b;
}

namespace {

BranchDecl makeProtocolBranch(bool useState2, bool useReserv)
{
    namespace fs = fieldset;
    BranchDecl b;
    b.top = QLatin1String(fs::kProtocolNode);
    b.groups = QStringList { QLatin1String(fs::kOrbaNode) };
    // A fresh form shows the first entry of the generation box.
    const QString firstGeneration = fs::generationText(0);
    KeyDecl format
        = text(fs::kOrbaNode, fs::kFormatKey, QLatin1String(fs::kFormatReadDefault), firstGeneration,
            //% "Поколение протокола ORBA"
            QT_TRID_NOOP("cfgo_081"));
    format.choices = { 10, 20, 30 };
    format.lightWidget = QStringLiteral("comboBox_FlashFormat");
    b.keys << format;
    KeyDecl mask = flags(fs::kOrbaNode, fs::kMaskKey, fs::kMaskLength, fs::defaultMask(useState2),
        fs::defaultMask(useState2, useReserv),
        //% "Поля записи (маска)"
        QT_TRID_NOOP("cfgo_082"));
    mask.checkedApart = true;
    b.keys << mask;
    return b;
}

BranchDecl makeUserParamBranch()
{
    namespace fs = fieldset;
    BranchDecl b;
    b.top = QLatin1String(fs::kUserNode);
    for (int g = 0; g < 4; ++g) {
        const QString group = fs::userGroupNode(g);
        b.groups << group;
        const QString types(fs::kUserCounts[g], QLatin1Char('0'));
        //% "Типы пользовательских параметров (0 — без знака, 1 — со знаком, 2 — hex, 3 — float)"
        KeyDecl type = text("", fs::kUserTypeKey, types, types, QT_TRID_NOOP("cfgo_083"));
        type.group = group;
        b.keys << type;
        for (int i = 1; i <= fs::kUserCounts[g]; ++i) {
            //% "Название пользовательского параметра %1"
            KeyDecl name = text("", "", QString(), QString(), QT_TRID_NOOP("cfgo_084"));
            name.group = group;
            name.key = QStringLiteral("name%1").arg(i);
            b.keys << name;
        }
    }
    return b;
}

} // namespace

// Pages ask for their branches whenever they compare what they show; the rows are made once.
BranchDecl protocolBranch(bool useState2, bool useReserv)
{
    static const BranchDecl made[2][2]
        = { { makeProtocolBranch(false, false), makeProtocolBranch(false, true) },
              { makeProtocolBranch(true, false), makeProtocolBranch(true, true) } };
    return made[useState2 ? 1 : 0][useReserv ? 1 : 0];
}

BranchDecl userParamBranch()
{
    static const BranchDecl made = makeUserParamBranch();
    return made;
}

const QVector<BranchDecl>& declaredBranches()
{
    // Write order of the window: record field set ("PROTOCOL"), then track and locator.
    static const QVector<BranchDecl> branches = [] {
        const ZRK_Track_Caps caps = zrkTrackCaps();
        QVector<BranchDecl> list;
        list << protocolBranch(fieldset::kProfileState2, fieldset::kProfileReserv);
        list << trackBranch(caps);
        const BranchDecl locator = locatorBranch(caps);
        if (!locator.keys.isEmpty())
            list << locator;
        return list;
    }();
    return branches;
}

const BranchDecl* declaredBranch(const QString& top)
{
    for (const BranchDecl& b : declaredBranches()) {
        if (b.top == top)
            return &b;
    }
    return nullptr;
}

namespace {

// What findDeclaredKey walks: each branch (the user parameters last) with its keys by record node
// and key; of rows naming the same pair the first counts, as a walk of the rows in order finds it.
struct BranchKeys
{
    const BranchDecl* branch = nullptr;
    QHash<QPair<QString, QString>, const KeyDecl*> keys;
};

const QVector<BranchKeys>& branchKeys()
{
    static const BranchDecl user = userParamBranch();
    static const QVector<BranchKeys> index = [] {
        QVector<const BranchDecl*> branches;
        for (const BranchDecl& b : declaredBranches())
            branches << &b;
        branches << &user;
        QVector<BranchKeys> list;
        for (const BranchDecl* b : qAsConst(branches)) {
            BranchKeys k;
            k.branch = b;
            for (const KeyDecl& d : b->keys) {
                if (!k.keys.contains({ d.group, d.key }))
                    k.keys.insert({ d.group, d.key }, &d);
            }
            list << k;
        }
        return list;
    }();
    return index;
}

} // namespace

const KeyDecl* findDeclaredKey(const QString& node, const QString& key)
{
    const int slash = node.indexOf(QLatin1Char('/'));
    const QString top = slash < 0 ? QString() : node.left(slash);
    const QString group = slash < 0 ? node : node.mid(slash + 1);
    for (const BranchKeys& b : branchKeys()) {
        if (!top.isEmpty() && b.branch->top != top)
            continue;
        // A key on the top node itself is named by the top node alone.
        const QString g = (slash < 0 && group == b.branch->top) ? QString() : group;
        if (const KeyDecl* d = b.keys.value({ g, key }))
            return d;
    }
    return nullptr;
}

QString declaredKeyLabel(const KeyDecl& decl)
{
    if (!decl.labelId)
        return decl.key;
    const QString label = qtTrId(decl.labelId);
    if (!label.contains(QLatin1Char('%')) || !label.contains(QLatin1String("%1")))
        return label;
    // Numbered rows ("bm7") carry their number in the label.
    int digits = decl.key.size();
    while (digits > 0 && decl.key.at(digits - 1) >= QLatin1Char('0')
        && decl.key.at(digits - 1) <= QLatin1Char('9'))
        --digits;
    return label.arg(decl.key.mid(digits));
}

QString normalizedValue(const KeyDecl& decl, const QString& value)
{
    switch (decl.type) {
    case T::Integer: {
        const int v = value.toInt();
        if (decl.zeroMeansOff && v == 0)
            return integerText(0, value);
        return integerText(std::clamp(v, decl.min, decl.max), value);
    }
    case T::Bool:
        return value.toInt() != 0 ? kIntOne : kIntZero;
    case T::Flags:
        return fitFlags(value, decl.length);
    case T::Decimal:
        return oneDecimal(std::clamp(value.toDouble(), decl.min / 10.0, decl.max / 10.0));
    case T::Text:
        break;
    }
    return value;
}

QString readWholeValue(const CXMLWorkData* node, const QString& key, const QString& def)
{
    const CXmlTagV2* entry = node && node->tag() ? node->tag()->values.getTagFromName(key) : nullptr;
    return entry ? entry->value : def;
}

void writeWholeValue(CXMLWorkData* node, const QString& key, const QString& value)
{
    if (CXmlTagV2* entry = node && node->tag() ? node->tag()->values.getTagFromName(key) : nullptr)
        entry->value = value;
}

Values readBranch(const CXmlTagV2* root, const BranchDecl& branch)
{
    Values values;
    values.reserve(branch.keys.size());
    const CXmlTagV2* top = root ? root->children.getTagFromName(branch.top) : nullptr;
    const CXmlTagV2* node = nullptr;
    const QString* openGroup = nullptr;
    for (const KeyDecl& d : branch.keys) {
        if (!openGroup || d.group != *openGroup) {
            openGroup = &d.group;
            node = d.group.isEmpty() || !top ? top : top->children.getTagFromName(d.group);
        }
        const CTagParameters from(node);
        switch (d.type) {
        case T::Integer: {
            const CXmlTagV2* entry = from.entryOf(d.key);
            const int v = CTagParameters::integerOf(entry, d.readDefault.toInt());
            values << integerText(v, entry ? entry->value : QString());
            break;
        }
        case T::Bool:
            values << (from.readBool(d.key, d.readDefault != kIntZero) ? kIntOne : kIntZero);
            break;
        case T::Decimal:
            values << oneDecimal(double(from.readFloat(d.key, d.readDefault.toFloat())));
            break;
        case T::Text:
        case T::Flags: {
            // Read whole from the element's own attribute: the list would cut it.
            const CXmlTagV2* entry = node ? node->values.getTagFromName(d.key) : nullptr;
            values << (entry ? entry->value : d.readDefault);
            break;
        }
        }
    }
    return values;
}

Values readBranch(CXMLWorkData* root, const BranchDecl& branch)
{
    std::unique_ptr<CXMLWorkData> top(
        root ? root->createNode(branch.top.toLatin1().constData(), NodeFindOrCreate) : nullptr);
    if (!top) {
        Values values;
        for (const KeyDecl& d : branch.keys)
            values << d.readDefault;
        return values;
    }
    // Every page's reading makes the branch's missing nodes; the values are then read from the tree.
    QString openGroup;
    for (const KeyDecl& d : branch.keys) {
        if (!d.group.isEmpty() && d.group != openGroup)
            delete top->createNode(d.group.toLatin1().constData(), NodeFindOrCreate);
        openGroup = d.group;
    }
    return readBranch(root->tag(), branch);
}

void writeBranch(CXMLWorkData* root, const BranchDecl& branch, const Values& values)
{
    if (!root || branch.keys.isEmpty())
        return;
    std::unique_ptr<CXMLWorkData> top(root->createNode(branch.top.toLatin1().constData(), NodeFindOrCreate));
    if (!top)
        return;
    top->clearNode();
    top->writeString(kPageKey, branch.top);
    auto writeKey = [&values](CXMLWorkData* node, const KeyDecl& d, int i) {
        const QByteArray key = d.key.toLatin1();
        const QString value = i < values.size() ? values[i] : d.resetValue;
        switch (d.type) {
        case T::Integer:
            node->writeInteger(key.constData(), value.toInt());
            break;
        case T::Bool:
            node->writeBool(key.constData(), value.toInt() != 0);
            break;
        case T::Decimal:
        case T::Text:
        case T::Flags:
            node->writeString(key.constData(), value);
            break;
        }
    };
    // Committed lists hold at most kParamTextMax bytes of a value; longer texts go on whole.
    auto commit = [&branch, &values](CXMLWorkData* node, const QString& group) {
        node->writeParameters();
        for (int i = 0; i < branch.keys.size(); ++i) {
            const KeyDecl& d = branch.keys[i];
            if (d.group != group || (d.type != T::Text && d.type != T::Flags))
                continue;
            const QString value = i < values.size() ? values[i] : d.resetValue;
            if (value.toLocal8Bit().size() > kParamTextMax)
                writeWholeValue(node, d.key, value);
        }
    };
    for (int i = 0; i < branch.keys.size(); ++i) {
        if (branch.keys[i].group.isEmpty())
            writeKey(top.get(), branch.keys[i], i);
    }
    for (const QString& group : branch.groups) {
        std::unique_ptr<CXMLWorkData> node(top->createNode(group.toLatin1().constData(), NodeRecord));
        if (!node)
            continue;
        node->clearNode();
        for (int i = 0; i < branch.keys.size(); ++i) {
            if (branch.keys[i].group == group)
                writeKey(node.get(), branch.keys[i], i);
        }
        commit(node.get(), group);
    }
    commit(top.get(), QString());
}

Values resetValues(const BranchDecl& branch)
{
    Values values;
    values.reserve(branch.keys.size());
    for (const KeyDecl& d : branch.keys)
        values << d.resetValue;
    return values;
}

void writeConfigHeader(CXMLWorkData* root, const QString& model, const QString& vendor)
{
    if (!root)
        return;
    root->writeString(kHeaderModel, model);
    root->writeString(kHeaderVersion, QString::fromLatin1(kVersionText));
    root->writeString(kHeaderCreator, QString::fromLatin1(kCreatorText));
    root->writeString(kHeaderVendor, vendor);
}

QByteArray renderNewConfiguration(const QString& model, const QString& vendor)
{
    coreSzCreateMemo memo { 0, nullptr, nullptr };
    zrk_StartSZMemo(&memo);
    if (!memo.handle)
        return QByteArray();
    {
        CXMLWorkData root(memo.handle, kRootNode);
        root.clearNode();
        writeConfigHeader(&root, model, vendor);
        for (const BranchDecl& b : declaredBranches())
            writeBranch(&root, b, resetValues(b));
        fieldset::writeUserParams(&root, fieldset::defaultUserParams());
        root.writeParameters();
    }
    zrk_GetSZMemo(&memo);
    QByteArray bytes(memo.size, '\0');
    memo.data = reinterpret_cast<unsigned char*>(bytes.data());
    zrk_StopSZMemo(&memo);
    return bytes;
}

// ---- lint ----------------------------------------------------------------------------------------

namespace {

QString expectedText(const KeyDecl& d)
{
    switch (d.type) {
    case T::Integer:
        if (!d.choices.isEmpty()) {
            QStringList c;
            for (int v : d.choices)
                c << QString::number(v);
            return QStringLiteral("one of ") + c.join(QStringLiteral(", "));
        }
        if (d.zeroMeansOff)
            return QStringLiteral("0 or an integer %1..%2").arg(d.min).arg(d.max);
        return QStringLiteral("an integer %1..%2").arg(d.min).arg(d.max);
    case T::Bool:
        return QStringLiteral("0 or 1");
    case T::Flags:
        return QStringLiteral("%1 flags of 0/1").arg(d.length);
    case T::Decimal:
        return QStringLiteral("a number with one decimal, %1..%2")
            .arg(oneDecimal(d.min / 10.0), oneDecimal(d.max / 10.0));
    case T::Text:
        if (!d.choices.isEmpty()) {
            QStringList c;
            for (int v : d.choices)
                c << QString::number(v);
            return QStringLiteral("one of ") + c.join(QStringLiteral(", "));
        }
        break;
    }
    return QString();
}

bool valueFits(const KeyDecl& d, const QString& value)
{
    switch (d.type) {
    case T::Integer: {
        bool ok = false;
        const int v = value.toInt(&ok);
        if (!ok)
            return false;
        if (!d.choices.isEmpty())
            return d.choices.contains(v);
        return (d.zeroMeansOff && v == 0) || (v >= d.min && v <= d.max);
    }
    case T::Bool:
        return value == kIntZero || value == kIntOne;
    case T::Flags: {
        static const QRegularExpression bits(QStringLiteral("^[01]*$"));
        return value.size() == d.length && bits.match(value).hasMatch();
    }
    case T::Decimal: {
        static const QRegularExpression decimal(QStringLiteral("^\\d+\\.\\d$"));
        const double v = value.toDouble();
        return decimal.match(value).hasMatch() && v >= d.min / 10.0 - 1e-9 && v <= d.max / 10.0 + 1e-9;
    }
    case T::Text:
        // Exactly the decimal text of a choice: " 10" or "010" is not what the page writes.
        return d.choices.isEmpty()
            || (d.choices.contains(value.toInt()) && QString::number(value.toInt()) == value);
    }
    return true;
}

// The values an element holds as they would be written: attributes by name, the last one winning.
QVector<QPair<QString, QString>> attributesOf(const CXMLWorkData& node)
{
    QVector<QPair<QString, QString>> out;
    for (int i = 0; i < node.params.count; ++i) {
        const COneParameter& p = node.params.items[i];
        if (p.isNode)
            continue;
        const QString name = QString::fromLocal8Bit(p.name);
        QString value;
        p.asQString(value);
        auto it = std::find_if(out.begin(), out.end(), [&name](const auto& a) { return a.first == name; });
        if (it != out.end())
            it->second = value;
        else
            out.append({ name, value });
    }
    return out;
}

} // namespace

QVector<LintFinding> lintConfiguration(CXMLWorkData* root)
{
    QVector<LintFinding> findings;
    if (!root)
        return findings;
    for (int t = 0; t < root->params.count; ++t) {
        const COneParameter& topItem = root->params.items[t];
        const BranchDecl* branch
            = topItem.isNode ? declaredBranch(QString::fromLocal8Bit(topItem.name)) : nullptr;
        if (!branch || !topItem.tag)
            continue;
        CXMLWorkData top(root->serializer(), topItem.tag);
        for (const auto& [name, value] : attributesOf(top)) {
            if (name == QLatin1String(kPageKey)) {
                if (value != branch->top)
                    findings.append({ branch->top, name, value, branch->top });
            } else if (branch->indexOf(QString(), name) < 0) {
                findings.append({ branch->top, name, value, QStringLiteral("a declared key") });
            }
        }
        QStringList seen;
        for (int g = 0; g < top.params.count; ++g) {
            const COneParameter& groupItem = top.params.items[g];
            if (!groupItem.isNode || !groupItem.tag)
                continue;
            const QString group = QString::fromLocal8Bit(groupItem.name);
            const QString path = branch->top + QLatin1Char('/') + group;
            if (!branch->groups.contains(group)) {
                findings.append({ path, QString(), QString(), QStringLiteral("a declared node") });
                continue;
            }
            if (seen.contains(group)) {
                findings.append({ path, QString(), QString(), QStringLiteral("one node of this name") });
                continue;
            }
            seen << group;
            CXMLWorkData node(root->serializer(), groupItem.tag);
            const auto attributes = attributesOf(node);
            for (const auto& [name, value] : attributes) {
                const int i = branch->indexOf(group, name);
                if (i < 0)
                    findings.append({ path, name, value, QStringLiteral("a declared key") });
                else if (!branch->keys[i].checkedApart && !valueFits(branch->keys[i], value))
                    findings.append({ path, name, value, expectedText(branch->keys[i]) });
            }
            // The altitude window keeps 100 m between its ends.
            const int minAlt = branch->indexOf(group, QStringLiteral("minAlt"));
            const int maxAlt = branch->indexOf(group, QStringLiteral("maxAlt"));
            if (minAlt >= 0 && maxAlt >= 0) {
                QString lo, hi;
                for (const auto& [name, value] : attributes) {
                    if (name == QLatin1String("minAlt"))
                        lo = value;
                    else if (name == QLatin1String("maxAlt"))
                        hi = value;
                }
                if (!lo.isEmpty() && !hi.isEmpty() && lo.toInt() > hi.toInt() - 100)
                    findings.append({ path, QStringLiteral("minAlt"), lo,
                        QStringLiteral("at most maxAlt - 100 (%1)").arg(hi.toInt() - 100) });
            }
        }
    }
    // The record field set has rules of its own: length, the leading fields, the size limit.
    QString mask, format;
    if (fieldset::readStoredFieldSet(root, &mask, &format)) {
        for (const QString& fault : fieldset::checkMask(mask, fieldset::generationIndex(format)))
            findings.append(
                { QStringLiteral("PROTOCOL/ORBA"), QString::fromLatin1(fieldset::kMaskKey), mask, fault });
    }
    return findings;
}

} // namespace zrk::cfg
