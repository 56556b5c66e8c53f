// zrk-tool decode: telemetry records as the host delivers them (kind byte first), decoded by the
// plug-in's own pages and written one JSON object (or CSV row) per record.
#include "telemetry/orba_export.h"
#include "tools/commands.h"
#include "translations/catalogue.h"
#include "zrk/zrk_text.h"

#include <QFile>
#include <QJsonDocument>

const char* const kDecodeUsage
    = "  decode [--csv] [--lang ru|en] [--hex HEX | FILE | -]\n"
      "                                  decode telemetry records (kind byte first): one hex string,\n"
      "                                  a binary file, or lines of hex on standard input; one JSON\n"
      "                                  object per record (--csv: one row, with a header row);\n"
      "                                  texts in the catalogue's language (default ru)\n";

namespace {

QString decodeRecord(const QByteArray& record, bool csv)
{
    if (csv)
        return zrk::csvLine(orba::csvCells(record));
    return QString::fromUtf8(QJsonDocument(orba::recordJson(record)).toJson(QJsonDocument::Compact));
}

} // namespace

int runDecodeCommand(const QString& name, const QStringList& args, QTextStream& out, QTextStream& err)
{
    bool csv = false;
    QString hex, source;
    bool haveHex = false;
    QString language = QStringLiteral("ru");
    for (int i = 0; i < args.size(); ++i) {
        const QString& a = args[i];
        // The value after an option; false (and the error said) when there is none.
        const auto value = [&](QString& into, const char* needs) {
            if (i + 1 >= args.size()) {
                err << "zrk-tool " << name << ": " << a << " needs " << needs << "\n";
                return false;
            }
            into = args[++i];
            return true;
        };
        if (a == QLatin1String("--csv")) {
            csv = true;
        } else if (a == QLatin1String("--hex")) {
            if (!value(hex, "a hex string"))
                return 2;
            haveHex = true;
        } else if (a == QLatin1String("--lang")) {
            if (!value(language, "ru or en"))
                return 2;
        } else if (a.startsWith(QLatin1String("--"))) {
            err << "zrk-tool " << name << ": unknown option '" << a << "'\n";
            return 2;
        } else if (source.isEmpty()) {
            source = a;
        } else {
            err << "zrk-tool " << name << ": more than one input\n";
            return 2;
        }
    }
    if (haveHex && !source.isEmpty()) {
        err << "zrk-tool " << name << ": give either --hex or an input, not both\n";
        return 2;
    }
    // The unit texts of the display rules come from the catalogue, as in the plug-in.
    zrk::installCatalogue(language);
    if (csv)
        out << zrk::csvLine(orba::csvHeader()) << '\n';
    auto print = [&](const QByteArray& record) {
        out << decodeRecord(record, csv) << '\n';
        out.flush();
    };
    QString why;
    if (haveHex) {
        QByteArray record;
        if (!zrk::parseHex(hex, record, &why)) {
            err << "zrk-tool " << name << ": bad hex: " << why << '\n';
            return 1;
        }
        print(record);
        return 0;
    }
    if (!source.isEmpty() && source != QLatin1String("-")) {
        QFile f(source);
        if (!f.open(QIODevice::ReadOnly)) {
            err << "zrk-tool " << name << ": cannot read " << source << ": " << f.errorString() << '\n';
            return 1;
        }
        print(f.readAll());
        return 0;
    }
    QFile in;
    if (!in.open(stdin, QIODevice::ReadOnly)) {
        err << "zrk-tool " << name << ": cannot read standard input\n";
        return 1;
    }
    int lineNo = 0;
    while (!in.atEnd()) {
        const QString line = QString::fromLatin1(in.readLine());
        ++lineNo;
        if (line.trimmed().isEmpty())
            continue;
        QByteArray record;
        if (!zrk::parseHex(line, record, &why)) {
            err << "zrk-tool " << name << ": bad hex on line " << lineNo << ": " << why << '\n';
            return 1;
        }
        print(record);
    }
    return 0;
}
