// Placeholder until the config commands are built.
#include "tools/commands.h"

const char* const kConfigUsage = "  config ...                        (not built yet)\n";

int runConfigCommand(const QString&, const QStringList&, QTextStream&, QTextStream& err)
{
    err << "zrk-tool: config is not built yet\n";
    return 3;
}

