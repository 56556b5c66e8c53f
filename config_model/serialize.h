#pragma once

#include "config_model/parameters.h"
#include "config_model/xml_tag.h"

#include <QByteArray>
#include <QFile>
#include <QMap>
#include <QObject>
#include <QString>

#include <memory>

class QIODevice;
class CXmlDefaultHandler;

// Deeper documents are refused: no configuration comes close, and every routine that walks the
// tree recurses once per level.
constexpr int kMaxXmlDepth = 256;

// Attribute entries of one element as written: one value per name, ordered by name.
using AttrMap = QMap<QString, QString>;

// Writes the configuration file's text: one tab per open element, "\n" line ends, Windows-1251.
class XmlWriter
{
public:
    // Writes the declaration line at once.
    explicit XmlWriter(QIODevice* device);
    ~XmlWriter(); // flushes, closing the last line if it was left open

    void setAutoNewLine(bool on) { m_autoNewLine = on; }

    void writeOpenTag(const QString& name, const AttrMap& attrs = AttrMap());
    void writeCloseTag(const QString& name);
    void writeAtomTag(const QString& name, const AttrMap& attrs = AttrMap());
    void writeNewTag(const QString& name, const QString& text);
    void writeTaggedString(const QString& name, const QString& text, const AttrMap& attrs = AttrMap());
    void writeString(const QString& text);
    void writeRaw(const QString& text);
    void newLine();
    void writePendingIndent();
    // Hands what is buffered to the device; false if the device refused some of it.
    bool flush();

    static QString protect(const QString& text);
    static QString protectTag(const QString& name);
    static QString opening(const QString& name, const AttrMap& attrs);

private:
    void writeOut(const QString& text);
    void writeOut(QLatin1String text); // ASCII markup: copied as it is
    void writeAttributes(const AttrMap& attrs);
    void endTag();

    QIODevice* m_device;
    QString m_indent;
    [[maybe_unused]] int m_indentSize = 4; // kept for the record; the text uses tabs
    bool m_autoNewLine = false;
    bool m_atLineStart = true;
    bool m_ok = true;
    QByteArray m_buffer;
};

// One open configuration document: its tree and its file or memory buffers.
class CSerialize : public QObject
{
public:
    explicit CSerialize(const QString& fileName);
    CSerialize(int size, const unsigned char* data);
    ~CSerialize() override;

    bool startSerialize();
    bool readSerialize();
    // Replaces the file as a whole, or leaves it as it was.
    bool writeToFileV2();
    // Renders the document into the output buffer; returns its length.
    int writeToFileV2Buf();
    // Copies at most capacity bytes of the last written text into out; returns how many.
    int getXmlData(unsigned char* out, int capacity) const;
    const QByteArray& outputData() const { return m_output; }
    // Writes the document to another path, whole or not at all.
    bool saveAs(const QString& path);

    CXmlTagV2* createNodeV2(CXmlTagV2* parent, const QString& name, int mode);
    int getCountTagNodeV2(const CXmlTagV2* tag) const;
    void getTagNodeV2(const CXmlTagV2* tag, coreSzArrayItem* out) const;
    void writeDataSZV2(void* tag, const coreSzArrayItem* data);
    void clearSZV2(CXmlTagV2* tag);
    bool deleteTagV2(CXmlTagV2* tag);

    CXmlTagV2* root() const { return m_root; }
    bool isFileMode() const { return m_fileMode; }
    QString fileName() const { return m_fileName; }
    // Why the last load failed, for diagnostics.
    QString lastError() const { return m_error; }

    // The text of the whole document.
    QByteArray render();

private:
    bool load();
    bool parse(const QByteArray& text);
    void writeTagInFileV2(const CXmlTagV2* tag);
    void writeDocument(QIODevice* device);

    QString m_depthMarker;
    std::unique_ptr<CXmlDefaultHandler> m_handler;
    QString m_fileName;
    QFile m_file;
    std::unique_ptr<XmlWriter> m_writer;
    CXmlTagV2* m_root = nullptr;
    QByteArray m_input;
    QByteArray m_output;
    bool m_fileMode;
    QString m_error;
    bool m_loadFailed = false;
};
