// zrk-tool packet build|find and crc8|crc16|crc32: the terminal's command packets and the check
// sums of files.
#include "tools/commands.h"

#include "config_model/common_routines.h"
#include "config_model/cp1251.h"
#include "device/common_functions.h"
#include "zrk/zrk_text.h"

#include <QFile>

#include <limits>

const char* const kPacketUsage
    = "  packet build TEXT [--args HEX]  the command packet for TEXT (binary arguments in HEX) as hex\n"
      "  packet find FILE                every complete packet of a raw capture, as a receiver takes\n"
      "                                  them: offset, length, payload check (ok/bad), reply kind\n"
      "                                  number and name, payload text (tab-separated)\n";

const char* const kCrcUsage = "  crc8|crc16|crc32 FILE           the file's check sum in hex\n";

namespace {

// The whole file, or an error text.
bool readFile(const QString& path, QByteArray& data, QString& error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error = QStringLiteral("cannot open '%1': %2").arg(path, file.errorString());
        return false;
    }
    if (file.size() > std::numeric_limits<int>::max() / 2) {
        error = QStringLiteral("'%1' is too large").arg(path);
        return false;
    }
    data = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        error = QStringLiteral("cannot read '%1': %2").arg(path, file.errorString());
        return false;
    }
    return true;
}

// Payload text on one line: code-page characters as themselves, everything else as \xNN.
QString printable(const char* data, int size)
{
    QString out;
    out.reserve(size);
    for (int i = 0; i < size; ++i) {
        const unsigned char b = static_cast<unsigned char>(data[i]);
        const QChar c = zrk::fromWindows1251Byte(b);
        if (b != '\\' && b != '\t' && c.isPrint())
            out += c;
        else
            out += QStringLiteral("\\x%1").arg(b, 2, 16, QLatin1Char('0'));
    }
    return out;
}

int fail(QTextStream& err, const QString& message, int code = 1)
{
    err << "zrk-tool: " << message << '\n';
    return code;
}

int packetBuild(const QStringList& args, QTextStream& out, QTextStream& err)
{
    if (args.size() != 1 && args.size() != 3)
        return fail(err, QStringLiteral("usage: zrk-tool packet build TEXT [--args HEX]"), 2);
    QByteArray binary;
    if (args.size() == 3) {
        if (args.at(1) != QLatin1String("--args"))
            return fail(err, QStringLiteral("unexpected '%1' (expected --args HEX)").arg(args.at(1)), 2);
        QString why;
        if (!zrk::parseHex(args.at(2), binary, &why))
            return fail(err, QStringLiteral("--args: bad hex: %1").arg(why));
    }
    QByteArray packet;
    if (!commonFunctions::getHeaderCommand(args.at(0), binary, packet)) {
        return fail(err,
            QStringLiteral("payload of %1 bytes is longer than %2")
                .arg(args.at(0).size() + binary.size())
                .arg(commonFunctions::kMaxPayload));
    }
    out << packet.toHex() << '\n';
    return 0;
}

int packetFind(const QStringList& args, QTextStream& out, QTextStream& err)
{
    if (args.size() != 1)
        return fail(err, QStringLiteral("usage: zrk-tool packet find FILE"), 2);
    QByteArray capture;
    QString error;
    if (!readFile(args.at(0), capture, error))
        return fail(err, error);
    // A receiver's buffer: taking a packet drops everything up to its end, so the window always
    // starts right after the last packet taken.
    int consumed = 0;
    int offset = 0, length = 0, flag = 0;
    for (;;) {
        const char* window = capture.constData() + consumed;
        const int size = capture.size() - consumed;
        if (!commonFunctions::isGoodPacket(window, size, offset, length, flag))
            break;
        const QByteArray packet = QByteArray::fromRawData(window + offset, length);
        const int kind = commonFunctions::getTypeReceivePacket(packet);
        out << (consumed + offset) << '\t' << length << '\t' << (flag ? "ok" : "bad") << '\t' << kind << '\t'
            << commonFunctions::replyKindName(kind) << '\t'
            << printable(
                   packet.constData() + commonFunctions::kHeaderSize, length - commonFunctions::kHeaderSize)
            << '\n';
        consumed += offset + length;
    }
    return 0;
}

} // namespace

int runPacketCommand(const QString&, const QStringList& args, QTextStream& out, QTextStream& err)
{
    if (args.isEmpty())
        return fail(err, QStringLiteral("packet needs 'build' or 'find' (see zrk-tool --help)"), 2);
    const QString sub = args.first();
    if (sub == QLatin1String("build"))
        return packetBuild(args.mid(1), out, err);
    if (sub == QLatin1String("find"))
        return packetFind(args.mid(1), out, err);
    return fail(err, QStringLiteral("unknown packet command '%1' (see zrk-tool --help)").arg(sub), 2);
}

int runCrcCommand(const QString& name, const QStringList& args, QTextStream& out, QTextStream& err)
{
    if (args.size() != 1)
        return fail(err, QStringLiteral("usage: zrk-tool %1 FILE").arg(name), 2);
    QByteArray data;
    QString error;
    if (!readFile(args.at(0), data, error))
        return fail(err, error);
    auto* bytes = reinterpret_cast<unsigned char*>(data.data());
    if (name == QLatin1String("crc8")) {
        out << QStringLiteral("%1").arg(
            SummCRC8(bytes, static_cast<unsigned int>(data.size())), 2, 16, QLatin1Char('0'));
    } else if (name == QLatin1String("crc16")) {
        // The 32-bit continuation: the 16-bit length would stop at 65,535 bytes.
        out << QStringLiteral("%1").arg(
            eval_crc16(0xFFFF, bytes, static_cast<unsigned int>(data.size())), 4, 16, QLatin1Char('0'));
    } else {
        ::crc32 crc;
        out << QStringLiteral("%1").arg(crc.ProcessCRC(bytes, data.size()), 8, 16, QLatin1Char('0'));
    }
    out << '\n';
    return 0;
}
