#include "telemetry/tmi_commands.h"

#include "zrk/zrk_host_api.h"

#include <QDateTime>
#include <QFileInfo>
#include <QTextCodec>

#include <iterator>

namespace zrk::tmi {

namespace {

using A = CommandArg;

// lParam of 2151 for sensor firmware.
constexpr unsigned long kFileSensorFirmware = 6;

const CommandRow kRows[] = {
    //% "Включить выход %1?"
    { "OutOn", ZRK_MSG_OUTPUT_ON, A::Value, 0, "OutNumber", QT_TRID_NOOP("tmiw_092"), false, true },
    //% "Выключить выход %1?"
    { "OutOff", ZRK_MSG_OUTPUT_OFF, A::Value, 0, "OutNumber", QT_TRID_NOOP("tmiw_093"), false, true },
    //% "Поставить терминал на охрану?"
    { "GuardOn", ZRK_MSG_GUARD_ENTER, A::None, 0, "", QT_TRID_NOOP("tmiw_094"), false, true },
    //% "Снять терминал с охраны?"
    { "GuardOff", ZRK_MSG_GUARD_LEAVE, A::None, 0, "", QT_TRID_NOOP("tmiw_095"), false, true },
    //% "Выполнить «%1»? Данные терминала будут удалены."
    { "Clear", ZRK_MSG_CLEAR, A::Value, 0, "ClearChoice", QT_TRID_NOOP("tmiw_096"), false, true },
    { "NmeaOutput", ZRK_MSG_SWITCH_NMEA_OUTPUT, A::Flag, 0, "NmeaOutput", nullptr, false, true },
    { "SetParam", ZRK_MSG_SET_PARAM_VALUE, A::Cp1251Text, 0, "ParamValue", nullptr, false, true },
    { "RunCommand", ZRK_MSG_RUN_COMMAND_NUMBER, A::Number, 0, "CommandNumber", nullptr, false, true },
    { "ReadTouch", ZRK_MSG_READ_TOUCH_MEMORY, A::None, 0, "", nullptr, true, true },
    { "ReadRfid", ZRK_MSG_READ_RFID_CARD, A::None, 0, "", nullptr, false, true },
    { "GetTouch", ZRK_MSG_REQUEST_KEY_CODE, A::Fixed, kKeyTouchMemory, "", nullptr, true, true },
    { "GetRfid", ZRK_MSG_REQUEST_KEY_CODE, A::Fixed, kKeyRfid, "", nullptr, false, true },
    { "SendFlsCommand", ZRK_MSG_FLS_USER_COMMAND, A::Text, 0, "FlsCommand", nullptr, false, true },
    //% "Записать прошивку %1 в датчик? Датчик будет недоступен до конца записи."
    { "FirmwareUpdate", ZRK_MSG_WRITE_FILE_TO_DEVICE, A::FirmwareFile, kFileSensorFirmware, "",
        QT_TRID_NOOP("tmiw_098"), false, true },
    { "TahoQuery", ZRK_MSG_TACHO_QUERY, A::Value, 0, "TahoQueryKind", nullptr, false, true },
    { "TahoFileRequest", ZRK_MSG_TACHO_FILE_REQUEST, A::TachoQuery, 0, "TahoFileKind,TahoFrom,TahoTo",
        nullptr, false, true },
    { "TahoFileRead", ZRK_MSG_TACHO_FILE_READ_REQUEST, A::Text, 0, "TahoFileName", nullptr, false, true },
    { "FlsData", ZRK_MSG_REQUEST_FLS_DATA, A::FlsQuery, 0, "FlsDataSensor,FlsDataQuery", nullptr, false,
        true },
    { "FlsDataFile", ZRK_MSG_REQUEST_FLS_DATA_FILE, A::Text, 0, "FlsDataFileName", nullptr, false, true },
};

template <typename T> unsigned long addr(T& v)
{
    return reinterpret_cast<unsigned long>(&v);
}

// The answers the log pane names: the bytes kind by its name, the result kind by its two lines.
struct ReplyRow
{
    int msg;
    const char* textId; // the name of a bytes answer, or the success line of a result
    const char* failId; // the failure line of a result; null for a bytes answer
};

const ReplyRow kReplies[] = {
    //% "Запрос режима проверки"
    { ZRK_MSG_TMI_TEST_MODE_QUERY, QT_TRID_NOOP("tmiw_084"), nullptr },
    //% "Ответ датчика топлива"
    { ZRK_MSG_FLS_USER_COMMAND_REPLY, QT_TRID_NOOP("tmiw_101"), nullptr },
    //% "Параметры прошивки датчика"
    { ZRK_MSG_FLS_FIRMWARE_PARAMS, QT_TRID_NOOP("tmiw_102"), nullptr },
    //% "Данные NMEA"
    { ZRK_MSG_NMEA_DATA, QT_TRID_NOOP("tmiw_119"), nullptr },
    //% "Значение параметра"
    { ZRK_MSG_COMMAND_PARAM_VALUE, QT_TRID_NOOP("tmiw_099"), nullptr },
    //% "Ответ на команду"
    { ZRK_MSG_COMMAND_REPLY, QT_TRID_NOOP("tmiw_100"), nullptr },
    //% "Ответ тахографа"
    { ZRK_MSG_TACHO_QUERY_REPLY, QT_TRID_NOOP("tmiw_107"), nullptr },
    { ZRK_MSG_TACHO_FILE_REPLY, QT_TRID_NOOP("tmiw_107"), nullptr },
    //% "Ответ на запрос файла данных датчика"
    { ZRK_MSG_FLS_DATA_FILE_REPLY, QT_TRID_NOOP("tmiw_110"), nullptr },
    //% "Файл тахографа прочитан"
    { ZRK_MSG_TACHO_FILE_READ, QT_TRID_NOOP("tmiw_108"),
        //% "Файл тахографа не прочитан"
        QT_TRID_NOOP("tmiw_109") },
    //% "Файл данных датчика прочитан"
    { ZRK_MSG_FLS_DATA_FILE_READ, QT_TRID_NOOP("tmiw_111"),
        //% "Файл данных датчика не прочитан"
        QT_TRID_NOOP("tmiw_112") },
};

const ReplyRow* findReply(int msg)
{
    for (const ReplyRow& r : kReplies)
        if (r.msg == msg)
            return &r;
    return nullptr;
}

} // namespace

const CommandRow* commandRows()
{
    return kRows;
}

int commandCount()
{
    return int(std::size(kRows));
}

const CommandRow* findCommand(const QString& control)
{
    for (const CommandRow& r : kRows)
        if (control == QLatin1String(r.control))
            return &r;
    return nullptr;
}

QString confirmationText(const CommandRow& row, const CommandInput& input)
{
    if (!row.confirmId)
        return QString();
    const QString text = qtTrId(row.confirmId);
    if (!text.contains(QLatin1String("%1")))
        return text;
    if (row.arg == CommandArg::FirmwareFile)
        return text.arg(QFileInfo(input.texts.value(0)).fileName());
    // A choice is asked by its name, a number by itself.
    return input.texts.isEmpty() ? text.arg(input.value) : text.arg(input.texts.first());
}

bool sendCommand(const CommandRow& row, const CommandInput& input, const CommandSender& send)
{
    const QString text = input.texts.value(0);
    switch (row.arg) {
    case CommandArg::None:
        send(row.msg, 0, 0);
        return true;
    case CommandArg::Fixed:
        send(row.msg, row.fixed, 0);
        return true;
    case CommandArg::Value:
        send(row.msg, static_cast<unsigned long>(input.value), 0);
        return true;
    case CommandArg::Flag: {
        bool on = input.flag;
        send(row.msg, addr(on), 0);
        return true;
    }
    case CommandArg::Number: {
        float value = float(input.number);
        send(row.msg, addr(value), 0);
        return true;
    }
    case CommandArg::Text: {
        if (text.isEmpty())
            return false;
        QString value = text;
        send(row.msg, addr(value), 0);
        return true;
    }
    case CommandArg::Cp1251Text: {
        QTextCodec* codec = QTextCodec::codecForName("windows-1251");
        QByteArray value = codec ? codec->fromUnicode(text) : text.toLatin1();
        send(row.msg, addr(value), 0);
        return true;
    }
    case CommandArg::TachoQuery: {
        if (!input.from.isValid() || !input.to.isValid())
            return false;
        szQueryTaho query;
        query.fileKind = qint32(input.value);
        query.fromUnix = QDateTime(input.from, QTime(0, 0), Qt::UTC).toSecsSinceEpoch();
        query.toUnix = QDateTime(input.to, QTime(23, 59, 59), Qt::UTC).toSecsSinceEpoch();
        send(row.msg, addr(query), 0);
        return true;
    }
    case CommandArg::FlsQuery: {
        szQueryFlsData query { text, input.texts.value(1) };
        send(row.msg, addr(query), 0);
        return true;
    }
    case CommandArg::FirmwareFile: {
        if (text.isEmpty())
            return false;
        QString path = text;
        send(row.msg, addr(path), row.fixed);
        return true;
    }
    }
    return false;
}

QString replyLogText(int msg, const QByteArray& data)
{
    const ReplyRow* row = findReply(msg);
    const QString name = row ? qtTrId(row->textId) : QString::number(msg);
    // Terminal texts are windows-1251; control bytes show as dots so a line stays one line.
    QTextCodec* codec = QTextCodec::codecForName("windows-1251");
    QString text = codec ? codec->toUnicode(data) : QString::fromLatin1(data);
    for (QChar& c : text)
        if (c.unicode() < 0x20)
            c = QLatin1Char('.');
    return QStringLiteral("%1 (%2): %3\n    %4")
        .arg(name)
        .arg(data.size())
        .arg(text, QString::fromLatin1(data.toHex(' ')));
}

QString resultLogText(int msg, bool ok)
{
    const ReplyRow* row = findReply(msg);
    if (!row || !row->failId)
        return QString::number(msg) + (ok ? QLatin1String(": 1") : QLatin1String(": 0"));
    return qtTrId(ok ? row->textId : row->failId);
}

QString valueLogText(int msg, quint64 value, quint64 extra)
{
    const QString code = QStringLiteral("%1").arg(value, 16, 16, QLatin1Char('0')).toUpper();
    switch (msg) {
    case ZRK_MSG_TOUCH_MEMORY_CODE:
        //% "Ключ ТМ: %1"
        return qtTrId("tmiw_103").arg(code);
    case ZRK_MSG_RFID_CARD:
        //% "RFID-карта: %1 (%2)"
        return qtTrId("tmiw_106").arg(code).arg(extra);
    case ZRK_MSG_CURRENT_DISPLAY_VALUE:
        //% "Текущее значение дисплея: %1"
        return qtTrId("tmiw_105").arg(value);
    case ZRK_MSG_AD_VALUES_UN:
        //% "Получены значения АЦП универсальных входов"
        return qtTrId("tmiw_104");
    default:
        return QStringLiteral("%1: %2").arg(msg).arg(value);
    }
}

} // namespace zrk::tmi
