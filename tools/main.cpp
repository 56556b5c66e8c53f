// zrk-tool: the command-line face of zrk_core.
#include "tools/commands.h"

#include <QCoreApplication>

#include <cstdio>

namespace {

const ToolCommand kCommands[] = {
    { "packet", kPacketUsage, runPacketCommand },
    { "crc8", kCrcUsage, runCrcCommand },
    { "crc16", nullptr, runCrcCommand },
    { "crc32", nullptr, runCrcCommand },
    { "decode", kDecodeUsage, runDecodeCommand },
    { "config", kConfigUsage, runConfigCommand },
    { "geo", kGeoUsage, runGeoCommand },
};

void printUsage(QTextStream& s)
{
    s << "usage: zrk-tool COMMAND [ARGS]\n\ncommands:\n";
    for (const ToolCommand& c : kCommands) {
        if (c.usage)
            s << c.usage;
    }
    s << "  --help                          this text\n";
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    QTextStream err(stderr);
    out.setCodec("UTF-8");
    err.setCodec("UTF-8");
    QStringList args = app.arguments().mid(1);
    if (args.isEmpty()) {
        printUsage(err);
        return 2;
    }
    if (args.first() == QLatin1String("--help") || args.first() == QLatin1String("-h")) {
        printUsage(out);
        return 0;
    }
    const QString name = args.takeFirst();
    for (const ToolCommand& c : kCommands) {
        if (name == QLatin1String(c.name))
            return c.run(name, args, out, err);
    }
    err << "zrk-tool: unknown command '" << name << "' (see zrk-tool --help)\n";
    return 2;
}
