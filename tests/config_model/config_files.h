#pragma once

// Whole files and memory documents for the configuration tests.
#include "config_model/serialize.h"
#include "config_model/xml_workdata.h"

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QtTest>

#include <memory>

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

// The document loaded from text in memory (empty text: an empty document), or null.
inline std::unique_ptr<CSerialize> parsed(const QByteArray& text = QByteArray())
{
    auto s
        = std::make_unique<CSerialize>(text.size(), reinterpret_cast<const unsigned char*>(text.constData()));
    return s->startSerialize() ? std::move(s) : nullptr;
}

inline QByteArray rendered(CSerialize& s)
{
    s.writeToFileV2Buf();
    return s.outputData();
}

// Loads text and renders it again; a null array when it does not load.
inline QByteArray normalize(const QByteArray& text)
{
    const auto s = parsed(text);
    return s ? rendered(*s) : QByteArray();
}

// Closes the file a root facade opened, saving it or not.
inline void closeFile(CXMLWorkData& root, bool save)
{
    coreSzNode node {};
    root.fillNodeData(node);
    zrk_StopSZ(node.serializer, save);
}

} // namespace zrktest
