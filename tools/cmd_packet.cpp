// Placeholder until the packet commands are built.
#include "tools/commands.h"

const char* const kPacketUsage = "  packet ...                        (not built yet)\n";

int runPacketCommand(const QString&, const QStringList&, QTextStream&, QTextStream& err)
{
    err << "zrk-tool: packet is not built yet\n";
    return 3;
}

const char* const kCrcUsage = "  crc8|crc16|crc32 FILE           (not built yet)\n";
int runCrcCommand(const QString& name, const QStringList&, QTextStream&, QTextStream& err)
{
    err << "zrk-tool: " << name << " is not built yet\n";
    return 3;
}
