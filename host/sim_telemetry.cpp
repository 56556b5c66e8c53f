#include "sim_telemetry.h"

#include "host_dispatcher.h"
#include "zrk/zrk_host_api.h"
#include "zrk/zrk_orba_format.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTextCodec>
#include <QXmlStreamReader>
#include <QtMath>

#include <cstring>

namespace {

// The published field table, as far as a terminal needs it: where each field sits among all
// fields and how wide it is.
struct FieldRow
{
    int no;
    int width;
    char type;
};

constexpr FieldRow kRows[] = {
#define ORBA_FIELD(no, name, width, type) { no, width, #type[0] },
#include "zrk/orba_fields.def"
};
static_assert(sizeof kRows / sizeof kRows[0] == ZRK_ORBA_FIELD_COUNT, "one row per field");

enum FieldNo
{
#define ORBA_FIELD(no, name, width, type) F_##name = no,
#include "zrk/orba_fields.def"
};

struct Layout
{
    int offset[ZRK_ORBA_FIELD_COUNT + 2] {};
};

constexpr Layout makeLayout()
{
    Layout l {};
    int at = 0;
    for (int n = 1; n <= ZRK_ORBA_FIELD_COUNT; ++n) {
        l.offset[n] = at;
        at += kRows[n - 1].width;
    }
    l.offset[ZRK_ORBA_FIELD_COUNT + 1] = at;
    return l;
}
constexpr Layout kLayout = makeLayout();
constexpr int kAllFieldsBytes = kLayout.offset[ZRK_ORBA_FIELD_COUNT + 1];
static_assert(kAllFieldsBytes == 734, "all fields of version 3 take 734 bytes");

constexpr int width(int no)
{
    return kRows[no - 1].width;
}

const unsigned char kVersionBytes[4] = { 0, ZRK_ORBA_VERSION_1, ZRK_ORBA_VERSION_2, ZRK_ORBA_VERSION_3 };

// Little-endian value of up to 8 bytes at byte `at` of field no.
void put(QByteArray& values, int no, quint64 v, int at = 0, int bytes = 0)
{
    const int w = bytes > 0 ? bytes : width(no);
    char* p = values.data() + kLayout.offset[no] + at;
    for (int i = 0; i < w; ++i, v >>= 8)
        p[i] = char(v & 0xFF);
}

void putFloat(QByteArray& values, int no, float f)
{
    quint32 bits;
    std::memcpy(&bits, &f, 4);
    put(values, no, bits);
}

void putDouble(QByteArray& values, int no, int at, double d)
{
    quint64 bits;
    std::memcpy(&bits, &d, 8);
    put(values, no, bits, at, 8);
}

quint64 get(const QByteArray& values, int no, int at = 0, int bytes = 0)
{
    const int w = bytes > 0 ? bytes : width(no);
    const auto* p = reinterpret_cast<const unsigned char*>(values.constData()) + kLayout.offset[no] + at;
    quint64 v = 0;
    for (int i = w - 1; i >= 0; --i)
        v = (v << 8) | p[i];
    return v;
}

void appendLE(QByteArray& out, quint64 v, int bytes)
{
    for (int i = 0; i < bytes; ++i, v >>= 8)
        out.append(char(v & 0xFF));
}

// The loop: a circle of kRadiusKm around the centre, one lap in kDriveRecords records after a
// stop of kStopRecords records (ignition off for the first half of the stop).
constexpr double kCentreLat = 55.7512;
constexpr double kCentreLon = 37.6184;
constexpr double kRadiusKm = 3.0;
constexpr int kStopRecords = 12;
constexpr int kDriveRecords = 168;
constexpr int kCycle = kStopRecords + kDriveRecords;
constexpr double kLapKm = 2 * M_PI * kRadiusKm;

// Event codes the terminal writes.
enum EventCode
{
    kEventByTime = 1,
    kEventByCourse = 3,
    kEventIgnitionOn = 10,
    kEventIgnitionOff = 11,
    kEventOutputOn = 20,
    kEventOutputOff = 21,
    kEventGuardOn = 30,
    kEventGuardOff = 31,
};

constexpr int kGuardShift = 3; // State bits 3-4: guard mode

template <typename T> T* fromWord(unsigned long word)
{
    return reinterpret_cast<T*>(word);
}

template <typename T> unsigned long toWord(T& v)
{
    return reinterpret_cast<unsigned long>(&v);
}

} // namespace

ZrkSimTelemetry::ZrkSimTelemetry(const QDateTime& lastTime, QObject* parent)
    : QObject(parent)
    , m_mask(defaultMask())
{
    const qint64 last = (lastTime.isValid() ? lastTime : QDateTime::currentDateTimeUtc()).toSecsSinceEpoch();
    const qint64 first = last - qint64(kStoredRecords - 1) * kPeriodSeconds;
    m_store.reserve(kStoredRecords);
    m_times.reserve(kStoredRecords);
    for (int i = 0; i < kStoredRecords; ++i) {
        m_times.append(first + qint64(i) * kPeriodSeconds);
        m_store.append(simulate(m_firstNumber + quint32(i), m_times.last()));
    }
}

ZrkSimTelemetry::Mask ZrkSimTelemetry::defaultMask()
{
    // The configuration's default field set (fields 1-15, 19, 20, 29, 31, 37, 71, 123-125, 139,
    // 200, 206) and, so that a technician sees a fuller record out of the box, satellites and
    // navigation state, analog input 1 and two temperatures. The default set alone would make a
    // current-record reply of 100 bytes, which the view ignores as too short.
    Mask m {};
    for (int no :
        std::initializer_list<int> { 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 19, 20, 29, 31, 37,
            71, 123, 124, 125, 139, 200, 206, F_StateU_Ain1, F_Temp1, F_Temp2, F_NaviInfo, F_NaviState })
        zrkOrbaSetMaskBit(m.data(), no, true);
    return m;
}

void ZrkSimTelemetry::setMask(const Mask& mask)
{
    m_mask = mask;
    m_mask[kMaskBytes - 1] &= 0xFE; // bit 256 is never used
    updatePanel();
    emit maskChanged();
}

bool ZrkSimTelemetry::setMaskText(const QString& text)
{
    if (text.size() != ZRK_ORBA_FIELD_COUNT)
        return false;
    Mask m {};
    for (int i = 0; i < ZRK_ORBA_FIELD_COUNT; ++i) {
        if (text[i] == QLatin1Char('1'))
            zrkOrbaSetMaskBit(m.data(), i + 1, true);
        else if (text[i] != QLatin1Char('0'))
            return false;
    }
    setMask(m);
    return true;
}

QString ZrkSimTelemetry::maskText() const
{
    QString text(ZRK_ORBA_FIELD_COUNT, QLatin1Char('0'));
    for (int n = 1; n <= ZRK_ORBA_FIELD_COUNT; ++n) {
        if (zrkOrbaMaskBit(m_mask.data(), n))
            text[n - 1] = QLatin1Char('1');
    }
    return text;
}

void ZrkSimTelemetry::setVersion(int version)
{
    if (version < 1 || version > 3 || version == m_version)
        return;
    m_version = version;
    updatePanel();
    emit versionChanged(version);
}

void ZrkSimTelemetry::setConfigurationXml(const QByteArray& fileBytes)
{
    QTextCodec* codec = QTextCodec::codecForName("windows-1251");
    QXmlStreamReader xml(codec ? codec->toUnicode(fileBytes) : QString::fromLatin1(fileBytes));
    QStringList path;
    QString mask;
    QString format;
    while (!xml.atEnd()) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::StartElement) {
            path.append(xml.name().toString());
            if (path.size() >= 2 && path.last() == QLatin1String("ORBA")
                && path.at(path.size() - 2) == QLatin1String("PROTOCOL")) {
                mask = xml.attributes().value(QLatin1String("mask")).toString();
                format = xml.attributes().value(QLatin1String("format")).toString();
            }
        } else if (token == QXmlStreamReader::EndElement && !path.isEmpty()) {
            path.removeLast();
        }
    }
    // A file cut short still gives what was read before the fault; a mask of the wrong length or
    // with other characters is not taken.
    setMaskText(mask);
    const int generation = format.toInt();
    if (generation == ZRK_ORBA_VERSION_1 || generation == ZRK_ORBA_VERSION_2
        || generation == ZRK_ORBA_VERSION_3)
        setVersion(generation / 10);
}

ZrkSimTelemetry::Values ZrkSimTelemetry::simulate(quint32 number, qint64 time) const
{
    Values v(kAllFieldsBytes, '\0');
    const int k = int(number);
    const int lap = k / kCycle;
    const int phase = k % kCycle;
    const bool driving = phase >= kStopRecords;
    const bool ignition = phase >= kStopRecords / 2;
    const double along = driving ? double(phase - kStopRecords) / kDriveRecords : 0.0;
    const double theta = 2 * M_PI * along;
    const double lat = kCentreLat + kRadiusKm * std::cos(theta) / 111.32;
    const double lon
        = kCentreLon + kRadiusKm * std::sin(theta) / (111.32 * std::cos(qDegreesToRadians(kCentreLat)));
    const double speed = driving ? 40.0 + 15.0 * std::sin(4 * theta) + (k % 7) * 0.7 : 0.0;
    int course = qRound(qRadiansToDegrees(std::atan2(std::cos(theta), -std::sin(theta))));
    course = ((course % 360) + 360) % 360;
    const double run = lap * kLapKm + along * kLapKm;
    const int gps = 8 + k % 5;
    const int glonass = 6 + k % 3;
    const int satellites = gps + glonass;

    int code = kEventByTime;
    if (phase == 0)
        code = kEventIgnitionOff;
    else if (phase == kStopRecords / 2)
        code = kEventIgnitionOn;
    else if (driving && phase % 14 == 0)
        code = kEventByCourse;

    put(v, F_NumPage, number);
    put(v, F_Code, quint64(code));
    put(v, F_Time, quint64(time));
    put(v, F_State, 0);
    put(v, F_Module1, 0x04); // more than one satellite system
    put(v, F_Module2, 0x08 | 0x10); // coordinates fixed, accelerometer works
    put(v, F_GSM, quint64(18 + k % 10));
    put(v, F_StateNGauge, 1);
    put(v, F_LastTime, quint64(time - k % 3));
    put(v, F_Latitude, quint64(qint64(qRound64(lat * 600000.0))));
    put(v, F_Longitude, quint64(qint64(qRound64(lon * 600000.0))));
    put(v, F_Altitude, quint64(qint64(1500 + qRound(120 * std::sin(theta)))));
    putFloat(v, F_Speed, float(speed));
    put(v, F_Course, quint64(course));
    putFloat(v, F_Run, float(run));
    put(v, F_Way, quint64(qRound(along * kLapKm * 1000)));
    put(v, F_AllSeconds, quint64((k * kPeriodSeconds) & 0xFFFF));
    put(v, F_SecondsLast, quint64(k % 3));
    put(v, F_Power, quint64(ignition ? 13900 + (k % 9) * 25 : 12450 - (k % 5) * 10));
    put(v, F_Reserv, 4100);
    put(v, F_StateU_Ain1, quint64(4500 - (k % 900) * 1)); // fuel gauge, slowly falling
    put(v, F_StateU_Ain2, quint64(ignition ? 12000 : 0));
    put(v, F_In1, quint64((ignition ? 0x01 : 0) | (phase < kStopRecords / 2 ? 0x02 : 0)));
    put(v, F_In_Imp1, quint64(k) * 3);
    put(v, F_In_Imp2, quint64(k) / 4);
    put(v, F_Frequency1, quint64(ignition ? 800 + qRound(speed * 25) : 0));
    put(v, F_Motochas, quint64(1520 * 3600 + k * kPeriodSeconds));
    put(v, F_Temp1, quint64(quint8(ignition ? 22 + k % 4 : 17)));
    put(v, F_Temp2, quint64(quint8(qint8(-3 + (k / 60) % 6))));
    for (int t = F_Temp3; t <= F_Temp8; ++t)
        put(v, t, 0x80); // no sensor
    put(v, F_CanFuelLevel, quint64(620 - (k % 900) / 3));
    put(v, F_CanEngineTurns, quint64(ignition ? 800 + qRound(speed * 30) : 0));
    put(v, F_CanTemp, quint64(ignition ? 86 : 40));
    put(v, F_CanFullRun, quint64(qRound64(run * 1000)));
    put(v, F_CanSpeed, quint64(qRound(speed)));
    put(v, F_NaviInfo, quint64(glonass), 0, 1);
    put(v, F_NaviInfo, quint64(gps), 1, 1);
    put(v, F_NaviInfo, quint64(k % 4), 2, 1); // Galileo
    put(v, F_NaviError, quint64(8 + k % 6), 0, 1);
    put(v, F_NaviError, quint64(14 + k % 6), 1, 1);
    put(v, F_NaviState, quint64((satellites << 2) | 2));
    putDouble(v, F_NaviCoord, 0, lat);
    putDouble(v, F_NaviCoord, 8, lon);
    put(v, F_NaviAlt, quint64(qint64(1500 + qRound(120 * std::sin(theta)))));
    put(v, F_NaviCourse, quint64(course));
    putFloat(v, F_NaviSpeed, float(speed));
    put(v, F_State2, 0);
    put(v, F_Module3, 0x01);
    put(v, F_Cnct, 0x03);
    put(v, F_VAccelState, driving ? 1 : 0);
    put(v, F_HPrecisionTemp1, quint64(quint16(qint16(430 + (k % 20)))));
    put(v, F_HPrecisionHumidity1, quint64(45 + k % 10));
    put(v, F_MiliSec, quint64((k * 137) % 1000));
    put(v, F_MotochasLoadOn, quint64(k * kPeriodSeconds / 2));
    put(v, F_MotochasLoadOff, quint64(k * kPeriodSeconds / 3));
    return v;
}

void ZrkSimTelemetry::append()
{
    const qint64 time = m_times.last() + kPeriodSeconds;
    const quint32 number = lastNumber() + 1;
    Values v = simulate(number, time);
    // The outputs and guard as the terminal holds them now; a change since the previous record is
    // the event this record is written for.
    const Values& previous = m_store.last();
    const quint32 before = quint32(get(previous, F_Out1) | (get(previous, F_Out2) << 8));
    const bool guardBefore = ((get(previous, F_State) >> kGuardShift) & 3) != 0;
    put(v, F_Out1, m_outputs & 0xFF);
    put(v, F_Out2, (m_outputs >> 8) & 0xFF);
    put(v, F_State, (get(v, F_State) & ~quint64(3 << kGuardShift)) | (m_guard ? 1u << kGuardShift : 0u));
    if (m_guard != guardBefore)
        put(v, F_Code, m_guard ? kEventGuardOn : kEventGuardOff);
    else if (m_outputs != before)
        put(v, F_Code, (m_outputs & ~before) ? kEventOutputOn : kEventOutputOff);
    m_store.append(v);
    m_times.append(time);
    if (m_store.size() > kMaxRecords) {
        m_store.removeFirst();
        m_times.removeFirst();
        ++m_firstNumber;
    }
}

QByteArray ZrkSimTelemetry::encode(const Values& values) const
{
    const int lastField = zrkOrbaLastField(kVersionBytes[m_version]);
    QByteArray out;
    out.reserve(ZRK_ORBA_BODY_OFFSET + kAllFieldsBytes);
    out.append(char(ZRK_ORBA_KIND_CURRENT));
    out.append(char(kVersionBytes[m_version]));
    // Fields past the version's last are not in its records at all.
    Mask mask {};
    for (int n = 1; n <= lastField; ++n)
        zrkOrbaSetMaskBit(mask.data(), n, zrkOrbaMaskBit(m_mask.data(), n));
    out.append(reinterpret_cast<const char*>(mask.data()), kMaskBytes);
    for (int n = 1; n <= lastField; ++n) {
        if (zrkOrbaMaskBit(mask.data(), n))
            out.append(values.constData() + kLayout.offset[n], width(n));
    }
    return out;
}

QByteArray ZrkSimTelemetry::record(quint32 number) const
{
    if (number < m_firstNumber || number > lastNumber())
        return QByteArray();
    return encode(m_store.at(int(number - m_firstNumber)));
}

QByteArray ZrkSimTelemetry::fieldValues(quint32 number) const
{
    if (number < m_firstNumber || number > lastNumber())
        return QByteArray();
    return m_store.at(int(number - m_firstNumber));
}

QByteArray ZrkSimTelemetry::extendedRecord() const
{
    const Values& v = m_store.last();
    // The visible part is offsets 5..41 and the hidden part 44..57; the dynamic items follow.
    constexpr int kVisibleSize = ZRK_ORBA_EXT_HIDDEN_VER - ZRK_ORBA_EXT_NUMBER;
    constexpr int kHiddenSize = ZRK_ORBA_EXT_HEAD_BYTES - ZRK_ORBA_EXT_STATE;
    QByteArray dynamic;
    dynamic.append(char(1)).append(char(8));
    appendLE(dynamic, get(v, F_CanFuelConsumption) + 152340, 8);
    QByteArray text("K7140 SIM");
    text.resize(16);
    dynamic.append(char(2)).append(char(16)).append(text);
    dynamic.append(char(3)).append(char(8));
    appendLE(dynamic, kTouchKeyCode, 8);

    QByteArray out;
    out.append(char(ZRK_ORBA_KIND_EXTENDED));
    appendLE(out, quint64(ZRK_ORBA_EXT_HEAD_BYTES - 3 + dynamic.size()), 2);
    out.append(char(1)).append(char(kVisibleSize));
    appendLE(out, get(v, F_NumPage), 4);
    appendLE(out, get(v, F_Code), 2);
    appendLE(out, get(v, F_Time), 4);
    appendLE(out, get(v, F_StateNGauge), 1);
    appendLE(out, get(v, F_LastTime), 4);
    appendLE(out, get(v, F_Latitude), 4);
    appendLE(out, get(v, F_Longitude), 4);
    appendLE(out, get(v, F_Altitude), 4);
    appendLE(out, get(v, F_Speed), 4);
    appendLE(out, get(v, F_Course), 2);
    appendLE(out, get(v, F_Run), 4);
    out.append(char(1)).append(char(kHiddenSize));
    appendLE(out, get(v, F_State) | 1, 1); // bit 0: the terminal is at work
    appendLE(out, get(v, F_Out1), 1);
    appendLE(out, get(v, F_In_Imp1), 4);
    appendLE(out, get(v, F_In_Imp2), 4);
    appendLE(out, get(v, F_Motochas), 4);
    Q_ASSERT(out.size() == ZRK_ORBA_EXT_HEAD_BYTES);
    out.append(dynamic);
    return out;
}

int ZrkSimTelemetry::indexAtOrBefore(qint64 time) const
{
    const auto it = std::upper_bound(m_times.cbegin(), m_times.cend(), time);
    return int(it - m_times.cbegin()) - 1;
}

int ZrkSimTelemetry::indexAtOrAfter(qint64 time) const
{
    const auto it = std::lower_bound(m_times.cbegin(), m_times.cend(), time);
    return it == m_times.cend() ? -1 : int(it - m_times.cbegin());
}

void ZrkSimTelemetry::sendRecord(
    int msg, const QByteArray& prefix, const QByteArray& record, const QString& text)
{
    if (!m_send)
        return;
    QByteArray reply = prefix + record;
    m_send(msg, toWord(reply), 0, text);
}

void ZrkSimTelemetry::sendCurrent()
{
    append();
    const QByteArray rec = record(lastNumber());
    QByteArray prefix;
    prefix.append(kStatusRecord);
    appendLE(prefix, quint64(rec.size()), 2);
    const int fill = kCurrentReplyMinBytes - prefix.size() - rec.size();
    sendRecord(ZRK_MSG_TMI_CURRENT, prefix, fill > 0 ? rec + QByteArray(fill, '\0') : rec,
        QStringLiteral("#%1, v%2, %3 B").arg(lastNumber()).arg(m_version).arg(rec.size()));
    updatePanel();
}

void ZrkSimTelemetry::replyByNumber(quint32 number)
{
    const QByteArray rec = record(number);
    QByteArray prefix;
    prefix.append(rec.isEmpty() ? kStatusNone : kStatusRecord);
    appendLE(prefix, quint64(rec.size()), 2);
    sendRecord(ZRK_MSG_TMI_BY_NUMBER, prefix, rec, QStringLiteral("#%1, %2 B").arg(number).arg(rec.size()));
}

void ZrkSimTelemetry::replyByTime(int msg, const QDateTime* moment, bool before)
{
    const qint64 t = moment->toSecsSinceEpoch();
    const int index = before ? indexAtOrBefore(t) : indexAtOrAfter(t);
    QByteArray prefix;
    QByteArray rec;
    prefix.append(index >= 0 ? kStatusRecord : kStatusNone);
    appendLE(prefix, quint64(quint32(t)), 4);
    if (index >= 0) {
        rec = encode(m_store.at(index));
        appendLE(prefix, m_firstNumber + quint32(index), 4);
        appendLE(prefix, quint64(quint32(m_times.at(index))), 4);
    } else {
        appendLE(prefix, 0, 8);
    }
    sendRecord(msg, prefix, rec,
        QStringLiteral("%1: #%2, %3 B")
            .arg(moment->toString(QStringLiteral("dd.MM.yyyy H:mm:ss")))
            .arg(index >= 0 ? m_firstNumber + quint32(index) : 0)
            .arg(rec.size()));
}

void ZrkSimTelemetry::sendExtended()
{
    const QByteArray rec = extendedRecord();
    QByteArray prefix;
    appendLE(prefix, quint64(rec.size()), 2);
    sendRecord(
        ZRK_MSG_TMI_EXTENDED, prefix, rec, QStringLiteral("#%1, %2 B").arg(lastNumber()).arg(rec.size()));
}

bool ZrkSimTelemetry::handle(int msg, unsigned long wParam, unsigned long lParam, QString& result)
{
    switch (msg) {
    case ZRK_MSG_REQUEST_TMI_CURRENT:
        sendCurrent();
        return true;
    case ZRK_MSG_REQUEST_TMI_BY_INDEX:
        if (wParam)
            replyByNumber(*fromWord<const quint32>(wParam));
        return true;
    case ZRK_MSG_REQUEST_TMI_BEFORE:
    case ZRK_MSG_REQUEST_TMI_AFTER:
        if (wParam)
            replyByTime(msg == ZRK_MSG_REQUEST_TMI_BEFORE ? ZRK_MSG_TMI_STEP_LEFT : ZRK_MSG_TMI_STEP_RIGHT,
                fromWord<const QDateTime>(wParam), msg == ZRK_MSG_REQUEST_TMI_BEFORE);
        return true;
    case ZRK_MSG_EVENT_CODE_TEXT:
        if (lParam)
            result = *fromWord<QString>(lParam) = eventText(int(wParam & 0xFFFF));
        return true;
    case ZRK_MSG_DIAGNOSTIC_CODE_TEXT:
        if (lParam)
            result = *fromWord<QString>(lParam) = diagnosticText(int(wParam & 0xFF));
        return true;
    case ZRK_MSG_REQUEST_DISPLAY_VALUE: {
        quint32 value = quint32(get(m_store.last(), F_StateU_Ain1));
        if (m_send)
            m_send(
                ZRK_MSG_CURRENT_DISPLAY_VALUE, toWord(value), 0, QStringLiteral("uint32* = %1").arg(value));
        return true;
    }
    case ZRK_MSG_REQUEST_KEY_CODE:
        if (!m_send)
            return true;
        if (wParam == 1) {
            quint64 code = kTouchKeyCode;
            m_send(ZRK_MSG_TOUCH_MEMORY_CODE, toWord(code), 0,
                QStringLiteral("uint64* = 0x%1").arg(code, 16, 16, QLatin1Char('0')));
        } else if (wParam == 3) {
            quint64 code = kRfidCardCode;
            quint8 reader = kRfidReader;
            m_send(ZRK_MSG_RFID_CARD, toWord(code), toWord(reader),
                QStringLiteral("uint64* = 0x%1").arg(code, 16, 16, QLatin1Char('0')));
        }
        return true;
    case ZRK_MSG_OUTPUT_ON:
    case ZRK_MSG_OUTPUT_OFF:
        if (wParam >= 1 && wParam <= 16) {
            const quint32 bit = 1u << (wParam - 1);
            m_outputs = msg == ZRK_MSG_OUTPUT_ON ? (m_outputs | bit) : (m_outputs & ~bit);
        }
        return true;
    case ZRK_MSG_GUARD_ENTER:
    case ZRK_MSG_GUARD_LEAVE:
        m_guard = msg == ZRK_MSG_GUARD_ENTER;
        return true;
    default:
        return false;
    }
}

void ZrkSimTelemetry::install(ZrkHostDispatcher& dispatcher)
{
    m_send = [&dispatcher](int msg, unsigned long wParam, unsigned long lParam, const QString& text) {
        dispatcher.send(msg, wParam, lParam, text);
    };
    for (int msg : std::initializer_list<int> { ZRK_MSG_REQUEST_TMI_CURRENT, ZRK_MSG_REQUEST_TMI_BY_INDEX,
             ZRK_MSG_REQUEST_TMI_BEFORE, ZRK_MSG_REQUEST_TMI_AFTER, ZRK_MSG_EVENT_CODE_TEXT,
             ZRK_MSG_DIAGNOSTIC_CODE_TEXT, ZRK_MSG_REQUEST_DISPLAY_VALUE, ZRK_MSG_REQUEST_KEY_CODE,
             ZRK_MSG_OUTPUT_ON, ZRK_MSG_OUTPUT_OFF, ZRK_MSG_GUARD_ENTER, ZRK_MSG_GUARD_LEAVE }) {
        dispatcher.setHandler(msg, [this, msg](unsigned long wParam, unsigned long lParam, QString& result) {
            handle(msg, wParam, lParam, result);
            return 0ul;
        });
    }
}

QString ZrkSimTelemetry::eventText(int code)
{
    switch (code) {
    case kEventByTime:
        //% "Запись по времени"
        return qtTrId("host_301");
    case kEventByCourse:
        //% "Запись по изменению курса"
        return qtTrId("host_302");
    case kEventIgnitionOn:
        //% "Включение зажигания"
        return qtTrId("host_303");
    case kEventIgnitionOff:
        //% "Выключение зажигания"
        return qtTrId("host_304");
    case kEventOutputOn:
        //% "Включение выхода"
        return qtTrId("host_305");
    case kEventOutputOff:
        //% "Выключение выхода"
        return qtTrId("host_306");
    case kEventGuardOn:
        //% "Постановка на охрану"
        return qtTrId("host_307");
    case kEventGuardOff:
        //% "Снятие с охраны"
        return qtTrId("host_308");
    default:
        //% "Событие %1"
        return qtTrId("host_309").arg(code);
    }
}

QString ZrkSimTelemetry::diagnosticText(int code)
{
    switch (code) {
    case 0:
        //% "Нет ошибок"
        return qtTrId("host_310");
    case 1:
        //% "Нет связи с навигационным приёмником"
        return qtTrId("host_311");
    case 2:
        //% "Низкое напряжение питания"
        return qtTrId("host_312");
    case 3:
        //% "Ошибка SIM-карты"
        return qtTrId("host_313");
    case 4:
        //% "Ошибка памяти"
        return qtTrId("host_314");
    default:
        //% "Диагностический код %1"
        return qtTrId("host_315").arg(code);
    }
}

QWidget* ZrkSimTelemetry::createPanel()
{
    auto* box = new QGroupBox(
        //% "Терминал: телеметрия"
        qtTrId("host_316"));
    box->setObjectName(QStringLiteral("SimTelemetry"));
    auto* grid = new QGridLayout(box);
    m_versionBox = new QComboBox;
    m_versionBox->setObjectName(QStringLiteral("SimTmiVersion"));
    for (int v = 1; v <= 3; ++v)
        m_versionBox->addItem(QStringLiteral("ORBA %1 (%2)").arg(v).arg(int(kVersionBytes[v])), v);
    m_versionBox->setToolTip(
        //% "Версия записей, которые отдаёт терминал; её меняет и записанная конфигурация"
        qtTrId("host_317"));
    connect(m_versionBox, QOverload<int>::of(&QComboBox::activated), this,
        [this](int index) { setVersion(m_versionBox->itemData(index).toInt()); });
    auto* extButton = new QPushButton(
        //% "Передать расширенную запись (2312)"
        qtTrId("host_318"));
    extButton->setObjectName(QStringLiteral("SimTmiSendExt"));
    connect(extButton, &QPushButton::clicked, this, &ZrkSimTelemetry::sendExtended);
    m_fieldsLabel = new QLabel;
    m_fieldsLabel->setWordWrap(true);
    grid->addWidget(new QLabel(
                        //% "Версия записей:"
                        qtTrId("host_319")),
        0, 0);
    grid->addWidget(m_versionBox, 0, 1);
    grid->addWidget(extButton, 0, 2);
    grid->addWidget(m_fieldsLabel, 1, 0, 1, 3);
    grid->setColumnStretch(1, 1);
    updatePanel();
    return box;
}

void ZrkSimTelemetry::updatePanel()
{
    if (m_versionBox)
        m_versionBox->setCurrentIndex(m_version - 1);
    if (m_fieldsLabel) {
        const QByteArray rec = encode(m_store.last());
        const int fields
            = int(maskText().left(zrkOrbaLastField(kVersionBytes[m_version])).count(QLatin1Char('1')));
        m_fieldsLabel->setText(
            //% "Записей: %1 (№ %2–%3); полей в записи: %4, %5 байт"
            qtTrId("host_320")
                .arg(m_store.size())
                .arg(m_firstNumber)
                .arg(lastNumber())
                .arg(fields)
                .arg(rec.size()));
    }
}
