#pragma once

// Gives a test program a home of its own, so that settings and data directories never reach the
// user's.
#include <QCoreApplication>
#include <QTemporaryDir>

namespace zrktest {

inline bool useOwnHome(const QTemporaryDir& home, const char* application)
{
    if (!home.isValid())
        return false;
    qputenv("HOME", home.path().toLocal8Bit());
    qputenv("XDG_DATA_HOME", (home.path() + "/data").toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", (home.path() + "/config").toLocal8Bit());
    QCoreApplication::setOrganizationName(QStringLiteral("zrk-tests"));
    QCoreApplication::setApplicationName(QString::fromLatin1(application));
    return true;
}

} // namespace zrktest
