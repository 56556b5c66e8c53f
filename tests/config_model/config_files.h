#pragma once

// Reading and writing whole files for the configuration tests.
#include <QByteArray>
#include <QFile>
#include <QString>
#include <QtTest>

namespace zrktest {

const QByteArray kDecl = "<?xml version=\"1.0\" encoding=\"windows-1251\"?>\n";

inline QByteArray readFile(const QString& path)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return QByteArray("<cannot open ") + path.toLocal8Bit() + ">";
    return f.readAll();
}

inline void writeFile(const QString& path, const QByteArray& bytes)
{
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QCOMPARE(f.write(bytes), qint64(bytes.size()));
}

inline QString dataFile(const char* name)
{
    return QStringLiteral(ZRK_TEST_DATA_DIR "/") + QLatin1String(name);
}

} // namespace zrktest
