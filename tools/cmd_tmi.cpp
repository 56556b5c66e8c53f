// zrk-tool tmi: saved telemetry files, through the same reader and writer the viewers use.
#include "telemetry/tmi_file.h"
#include "tools/commands.h"
#include "translations/catalogue.h"
#include "zrk/zrk_text.h"

#include <QFile>

const char* const kTmiUsage
    = "  tmi write OUT [--model M] [--vendor V] [--timezone S] [HEX... | -]\n"
      "                                  a .tmi file of the records given as hex (kind byte first,\n"
      "                                  without the host's reply prefix, as decode takes them), or\n"
      "                                  lines of hex on standard input\n"
      "  tmi read FILE                   the file's records as JSON lines, the shape of decode\n"
      "  tmi export FILE --csv OUT | --kml OUT\n"
      "                                  the records as CSV (the columns of decode --csv) or KML\n";

namespace {

// The device a file names when the command line does not say.
const char kModel[] = "K-7140";
const char kVendor[] = "ZIRKOMATIC";

int fail(QTextStream& err, const QString& text, int code = 1)
{
    err << "zrk-tool tmi: " << text << '\n';
    return code;
}

int tmiWrite(const QStringList& args, QTextStream& err)
{
    zrk::tmi::Header header;
    header.model = QString::fromLatin1(kModel);
    header.vendor = QString::fromLatin1(kVendor);
    QStringList hex;
    bool fromStdin = false;
    for (int i = 1; i < args.size(); ++i) {
        const QString& a = args[i];
        const bool option = a == QLatin1String("--model") || a == QLatin1String("--vendor")
            || a == QLatin1String("--timezone");
        if (option && i + 1 >= args.size())
            return fail(err, QStringLiteral("%1 needs a value").arg(a), 2);
        if (a == QLatin1String("--model")) {
            header.model = args[++i];
        } else if (a == QLatin1String("--vendor")) {
            header.vendor = args[++i];
        } else if (a == QLatin1String("--timezone")) {
            bool ok = false;
            header.timezoneOffset = args[++i].toInt(&ok);
            if (!ok)
                return fail(
                    err, QStringLiteral("--timezone: '%1' is not a number of seconds").arg(args[i]), 2);
        } else if (a == QLatin1String("-")) {
            fromStdin = true;
        } else if (a.startsWith(QLatin1String("--"))) {
            return fail(err, QStringLiteral("unknown option '%1'").arg(a), 2);
        } else {
            hex << a;
        }
    }
    if (fromStdin && !hex.isEmpty())
        return fail(err, QStringLiteral("give either hex arguments or -, not both"), 2);
    QVector<zrk::tmi::Record> records;
    auto add = [&](const QString& text, const QString& where) {
        zrk::tmi::Record r;
        QString why;
        if (!zrk::parseHex(text, r.bytes, &why) || r.bytes.isEmpty()) {
            err << "zrk-tool tmi: bad hex " << where << ": "
                << (why.isEmpty() ? QStringLiteral("empty record") : why) << '\n';
            return false;
        }
        records.append(r);
        return true;
    };
    for (int i = 0; i < hex.size(); ++i) {
        if (!add(hex[i], QStringLiteral("in argument %1").arg(i + 1)))
            return 1;
    }
    if (fromStdin) {
        QFile in;
        if (!in.open(stdin, QIODevice::ReadOnly))
            return fail(err, QStringLiteral("cannot read standard input"));
        for (int lineNo = 1; !in.atEnd(); ++lineNo) {
            const QString line = QString::fromLatin1(in.readLine());
            if (!line.trimmed().isEmpty() && !add(line, QStringLiteral("on line %1").arg(lineNo)))
                return 1;
        }
    }
    QString error;
    if (!zrk::tmi::write(args[0], header, records, &error))
        return fail(err, error);
    return 0;
}

int tmiRead(const QStringList& args, QTextStream& out, QTextStream& err)
{
    if (args.size() != 1)
        return fail(err, QStringLiteral("usage: zrk-tool tmi read FILE"), 2);
    // What decode does with a saved file: the good records before a fault are printed, and the
    // fault still fails the command.
    return runDecodeCommand(
        QStringLiteral("tmi"), { QStringLiteral("--input"), QStringLiteral("tmi"), args[0] }, out, err);
}

int tmiExport(const QStringList& args, QTextStream& err)
{
    const bool csv = args.value(1) == QLatin1String("--csv");
    if (args.size() != 3 || (!csv && args.value(1) != QLatin1String("--kml")))
        return fail(err, QStringLiteral("usage: zrk-tool tmi export FILE --csv OUT | --kml OUT"), 2);
    const zrk::tmi::ReadResult r = zrk::tmi::read(args[0]);
    if (!r.error.isEmpty())
        return fail(err, r.error);
    QString error;
    const bool ok = csv ? zrk::tmi::exportCsv(args[2], r.records, &error)
                        : zrk::tmi::exportKml(args[2], r.records, &error);
    return ok ? 0 : fail(err, error);
}

} // namespace

int runTmiCommand(const QString&, const QStringList& args, QTextStream& out, QTextStream& err)
{
    // Display texts of the records and the file messages come from the catalogue, as in the plug-in.
    zrk::installCatalogue(QStringLiteral("ru"));
    const QString sub = args.value(0);
    const QStringList rest = args.mid(1);
    if (sub == QLatin1String("write") && !rest.isEmpty())
        return tmiWrite(rest, err);
    if (sub == QLatin1String("read"))
        return tmiRead(rest, out, err);
    if (sub == QLatin1String("export"))
        return tmiExport(rest, err);
    return fail(err, QStringLiteral("expected write OUT, read FILE or export FILE (see zrk-tool --help)"), 2);
}
