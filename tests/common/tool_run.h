#pragma once

// Runs the built zrk-tool (tests registered with zrk_add_qtest(... TOOL)) as a user would.
#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>

namespace zrktest {

struct ToolRun
{
    int code = -1; // -1: did not start or finish, -2: crashed
    QByteArray out;
    QByteArray err;
};

// The time zone is pinned so that local date-time texts do not depend on the machine.
inline ToolRun runZrkTool(const QStringList& args, const QByteArray& input = QByteArray())
{
    QProcess p;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("TZ"), QStringLiteral("UTC0"));
    p.setProcessEnvironment(env);
    p.start(QStringLiteral(ZRK_TOOL_PATH), args);
    ToolRun r;
    if (!p.waitForStarted())
        return r;
    p.write(input);
    p.closeWriteChannel();
    if (!p.waitForFinished(30000))
        return r;
    r.code = p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -2;
    r.out = p.readAllStandardOutput();
    r.err = p.readAllStandardError();
    return r;
}

} // namespace zrktest
