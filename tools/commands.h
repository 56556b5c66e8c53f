#pragma once

#include <QStringList>
#include <QTextStream>

// One entry per command group of zrk-tool. args holds what follows the group's own word; each
// returns the process exit code and writes a one-line error to err on bad input.
struct ToolCommand
{
    const char* name; // first word on the command line
    const char* usage; // lines for --help
    int (*run)(const QString& name, const QStringList& args, QTextStream& out, QTextStream& err);
};

int runPacketCommand(const QString& name, const QStringList& args, QTextStream& out, QTextStream& err);
int runCrcCommand(const QString& name, const QStringList& args, QTextStream& out, QTextStream& err);
int runDecodeCommand(const QString& name, const QStringList& args, QTextStream& out, QTextStream& err);
int runConfigCommand(const QString& name, const QStringList& args, QTextStream& out, QTextStream& err);
int runGeoCommand(const QString& name, const QStringList& args, QTextStream& out, QTextStream& err);

extern const char* const kPacketUsage;
extern const char* const kCrcUsage;
extern const char* const kDecodeUsage;
extern const char* const kConfigUsage;
extern const char* const kGeoUsage;
