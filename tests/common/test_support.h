#pragma once

// What the device and host tests share: a home of their own, and the address of a value as the
// message words carry it.
#include <QCoreApplication>
#include <QTemporaryDir>

namespace zrktest {

// Settings and data directories of the test never reach the user's.
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

template <typename T> unsigned long addr(T& v)
{
    return reinterpret_cast<unsigned long>(&v);
}

} // namespace zrktest
