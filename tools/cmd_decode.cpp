// Placeholder until the decode commands are built.
#include "tools/commands.h"

const char* const kDecodeUsage = "  decode ...                        (not built yet)\n";

int runDecodeCommand(const QString&, const QStringList&, QTextStream&, QTextStream& err)
{
    err << "zrk-tool: decode is not built yet\n";
    return 3;
}

