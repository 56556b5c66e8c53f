#include "config_model/serialize.h"

#include "config_model/common_routines.h"
#include "config_model/cp1251.h"
#include "config_model/xml_handler.h"

#include <QBuffer>
#include <QFileInfo>
#include <QXmlSimpleReader>

#include <algorithm>
#include <cstring>

namespace {

// Characters that may not stand in an element name, each written as "_<code>_". The two
// Cyrillic rows look for the UTF-8 bytes of the letter read as Latin-1, not for the letter: a
// real letter passes unchanged, and "_1095_" reads back as those two Latin-1 characters.
struct NameEscape
{
    const char16_t* text;
    const char* escape;
};
const NameEscape kNameEscapes[] = {
    { u" ", "_32_" },
    { u"&", "_38_" },
    { u">", "_62_" },
    { u"<", "_60_" },
    { u"\"", "_34_" },
    { u"'", "_39_" },
    { u"!", "_33_" },
    { u":", "_58_" },
    { u";", "_59_" },
    { u"%", "_37_" },
    { u"`", "_96_" },
    { u"~", "_126_" },
    { u"@", "_64_" },
    { u"#", "_35_" },
    { u"$", "_36_" },
    { u"^", "_94_" },
    { u"*", "_42_" },
    { u"(", "_40_" },
    { u")", "_41_" },
    { u"-", "_45_" },
    { u"+", "_43_" },
    { u"=", "_61_" },
    { u"|", "_124_" },
    { u"\\", "_92_" },
    { u"\u00D1\u0087", "_1095_" },
    { u"\u00D0\u00A7", "_1063_" },
    { u",", "_44_" },
    { u"/", "_47_" },
};

QString fromUtf16(const char16_t* s)
{
    return QString::fromUtf16(s);
}

// True when no row of the table can match, which is the case for almost every real name.
bool plainName(const QString& name)
{
    for (const QChar c : name) {
        const ushort u = c.unicode();
        const bool ok = (u >= 'a' && u <= 'z') || (u >= 'A' && u <= 'Z') || (u >= '0' && u <= '9') || u == '_'
            || u == '.' || u >= 0x0100;
        if (!ok)
            return false;
    }
    return true;
}

void copyText(char (&field)[kParamFieldSize], const QByteArray& text)
{
    const size_t n = std::min<size_t>(static_cast<size_t>(text.size()), kParamTextMax);
    std::memcpy(field, text.constData(), n);
    std::memset(field + n, 0, sizeof field - n);
}

// A field of a record that may come from outside: never read past its end.
QByteArray fieldBytes(const char (&field)[kParamFieldSize])
{
    return QByteArray(field, static_cast<int>(strnlen(field, sizeof field)));
}

// Files larger than this are not configuration files; refusing them keeps memory bounded.
constexpr qint64 kMaxDocumentBytes = 256 * 1024 * 1024;

} // namespace

// ---- XmlWriter -----------------------------------------------------------------------------

XmlWriter::XmlWriter(QIODevice* device)
    : m_device(device)
{
    m_buffer.reserve(64 * 1024);
    writeRaw(QStringLiteral("<?xml version=\"1.0\" encoding=\"windows-1251\"?>"));
    newLine();
}

XmlWriter::~XmlWriter()
{
    if (!m_atLineStart)
        newLine();
    flush();
}

bool XmlWriter::flush()
{
    if (!m_buffer.isEmpty()) {
        if (!m_device || m_device->write(m_buffer) != m_buffer.size())
            m_ok = false;
        m_buffer.clear();
    }
    return m_ok;
}

void XmlWriter::writeOut(QLatin1String text)
{
    m_buffer.append(text.data(), text.size());
}

void XmlWriter::writeOut(const QString& text)
{
    zrk::appendWindows1251(m_buffer, text);
    if (m_buffer.size() >= 64 * 1024)
        flush();
}

void XmlWriter::writePendingIndent()
{
    if (m_atLineStart) {
        writeOut(m_indent);
        m_atLineStart = false;
    }
}

void XmlWriter::newLine()
{
    m_buffer.append('\n');
    m_atLineStart = true;
}

void XmlWriter::endTag()
{
    if (m_autoNewLine)
        newLine();
}

void XmlWriter::writeOpenTag(const QString& name, const AttrMap& attrs)
{
    writePendingIndent();
    writeOut(QLatin1String("<"));
    writeOut(protectTag(name));
    writeAttributes(attrs);
    writeOut(QLatin1String(">"));
    m_indent += QLatin1Char('\t');
    endTag();
}

void XmlWriter::writeCloseTag(const QString& name)
{
    m_indent.chop(1);
    writePendingIndent();
    writeOut(QLatin1String("</") + protectTag(name) + QLatin1Char('>'));
    endTag();
}

void XmlWriter::writeAtomTag(const QString& name, const AttrMap& attrs)
{
    // The record form keeps its name as it is.
    writePendingIndent();
    writeOut(QLatin1String("<"));
    writeOut(name);
    writeAttributes(attrs);
    writeOut(QLatin1String("/>"));
    endTag();
}

void XmlWriter::writeAttributes(const AttrMap& attrs)
{
    // Piece by piece into the output: records are most of a large file.
    for (auto it = attrs.constBegin(); it != attrs.constEnd(); ++it) {
        writeOut(QLatin1String(" "));
        writeOut(it.key());
        writeOut(QLatin1String("=\""));
        writeOut(protect(it.value()));
        writeOut(QLatin1String("\""));
    }
}

void XmlWriter::writeNewTag(const QString& name, const QString& text)
{
    const QString tag = protectTag(name);
    writePendingIndent();
    if (text.isEmpty())
        writeOut(QLatin1Char('<') + tag + QLatin1String(" />"));
    else
        writeOut(
            QLatin1Char('<') + tag + QLatin1Char('>') + text + QLatin1String("</") + tag + QLatin1Char('>'));
    endTag();
}

void XmlWriter::writeTaggedString(const QString& name, const QString& text, const AttrMap& attrs)
{
    writePendingIndent();
    writeOut(
        opening(name, attrs) + protect(text) + QLatin1String("</") + protectTag(name) + QLatin1Char('>'));
    endTag();
}

void XmlWriter::writeString(const QString& text)
{
    writePendingIndent();
    writeOut(protect(text));
}

void XmlWriter::writeRaw(const QString& text)
{
    writeOut(text);
}

QString XmlWriter::protect(const QString& text)
{
    bool plain = true;
    for (const QChar c : text) {
        const ushort u = c.unicode();
        if (u == '&' || u == '<' || u == '>' || u == '"' || u == '\'') {
            plain = false;
            break;
        }
    }
    if (plain)
        return text;
    return substituteEach(
        text, { { "&", "&amp;" }, { ">", "&gt;" }, { "<", "&lt;" }, { "\"", "&quot;" }, { "'", "&apos;" } });
}

QString XmlWriter::protectTag(const QString& name)
{
    if (plainName(name))
        return name;
    QString s = name;
    for (const NameEscape& e : kNameEscapes)
        s.replace(fromUtf16(e.text), QLatin1String(e.escape));
    return s;
}

QString XmlWriter::opening(const QString& name, const AttrMap& attrs)
{
    QString text = QLatin1Char('<') + protectTag(name);
    for (auto it = attrs.constBegin(); it != attrs.constEnd(); ++it)
        text += QLatin1Char(' ') + it.key() + QLatin1String("=\"") + protect(it.value()) + QLatin1Char('"');
    text += QLatin1Char('>');
    return text;
}

// ---- CXmlDefaultHandler --------------------------------------------------------------------

CXmlDefaultHandler::~CXmlDefaultHandler()
{
    reset();
}

void CXmlDefaultHandler::reset()
{
    delete m_root;
    m_root = nullptr;
    m_current = nullptr;
    m_lastStartHadAttributes = false;
    m_depth = 0;
}

CXmlTagV2* CXmlDefaultHandler::takeRoot()
{
    CXmlTagV2* root = m_root;
    m_root = nullptr;
    m_current = nullptr;
    return root;
}

bool CXmlDefaultHandler::startDocument()
{
    reset();
    m_error.clear();
    return true;
}

bool CXmlDefaultHandler::startElement(
    const QString&, const QString&, const QString& qName, const QXmlAttributes& atts)
{
    m_lastStartHadAttributes = false;
    if (++m_depth > kMaxXmlDepth) {
        m_error = QStringLiteral("elements nested deeper than %1").arg(kMaxXmlDepth);
        return false;
    }
    const QString name = protect(qName);
    CXmlTagV2* tag = nullptr;
    if (!m_root) {
        tag = new CXmlTagV2(name);
        m_root = tag;
    } else {
        if (!m_current) {
            m_error = QStringLiteral("a second root element");
            return false;
        }
        // Names may repeat: every element read is a new child.
        tag = new CXmlTagV2(name, QString(), m_current);
        m_current->children.addTag(tag);
    }
    m_current = tag;
    if (atts.count() > 0) {
        tag->type = CXmlTagV2::WithAttributes;
        for (int i = 0; i < atts.count(); ++i)
            tag->values.addTag(new CXmlTagV2(atts.qName(i), atts.value(i), tag));
        m_lastStartHadAttributes = true;
    }
    return true;
}

bool CXmlDefaultHandler::characters(const QString& text)
{
    const QString t = text.trimmed();
    if (!t.isEmpty() && m_current) {
        m_current->value = t;
        m_current->type = CXmlTagV2::Text;
    }
    return true;
}

bool CXmlDefaultHandler::endElement(const QString&, const QString&, const QString&)
{
    --m_depth;
    if (!m_current)
        return true;
    if (!m_lastStartHadAttributes)
        m_current->type = CXmlTagV2::Text;
    m_current = const_cast<CXmlTagV2*>(m_current->parent);
    return true;
}

bool CXmlDefaultHandler::fatalError(const QXmlParseException& exception)
{
    m_error = QStringLiteral("line %1, column %2: %3")
                  .arg(exception.lineNumber())
                  .arg(exception.columnNumber())
                  .arg(exception.message());
    return false;
}

QString CXmlDefaultHandler::errorString() const
{
    return m_error.isEmpty() ? QXmlDefaultHandler::errorString() : m_error;
}

QString CXmlDefaultHandler::protect(const QString& name)
{
    if (!name.contains(QLatin1Char('_')))
        return name;
    QString s = name;
    for (const NameEscape& e : kNameEscapes)
        s.replace(QLatin1String(e.escape), fromUtf16(e.text));
    return s;
}

QString CXmlDefaultHandler::protectValue(const QString& value)
{
    return XmlWriter::protect(value);
}

// ---- CSerialize ----------------------------------------------------------------------------

CSerialize::CSerialize(const QString& fileName)
    : m_handler(new CXmlDefaultHandler)
    , m_fileName(fileName)
    , m_fileMode(true)
{
}

CSerialize::CSerialize(int size, const unsigned char* data)
    : m_handler(new CXmlDefaultHandler)
    , m_fileMode(false)
{
    if (size > 0 && data)
        m_input = QByteArray(reinterpret_cast<const char*>(data), size);
}

CSerialize::~CSerialize()
{
    m_writer.reset();
    delete m_root;
}

bool CSerialize::startSerialize()
{
    m_loadFailed = !load();
    return !m_loadFailed;
}

bool CSerialize::load()
{
    m_depthMarker.clear();
    delete m_root;
    m_root = nullptr;
    m_error.clear();
    if (m_fileMode) {
        const QFileInfo info(m_fileName);
        if (!info.exists()) {
            // A configuration that does not exist yet starts as an empty file.
            m_file.setFileName(m_fileName);
            if (m_file.open(QIODevice::ReadWrite))
                m_file.close();
            return true;
        }
        if (info.isFile() && info.size() == 0)
            return true;
        return readSerialize();
    }
    if (m_input.isEmpty())
        return true;
    return readSerialize();
}

bool CSerialize::readSerialize()
{
    if (!m_fileMode)
        return parse(m_input);
    m_file.setFileName(m_fileName);
    if (!m_file.open(QIODevice::ReadOnly)) {
        m_error = m_file.errorString();
        return false;
    }
    if (m_file.size() > kMaxDocumentBytes) {
        m_file.close();
        m_error = QStringLiteral("file too large");
        return false;
    }
    const QByteArray text = m_file.read(kMaxDocumentBytes + 1);
    m_file.close();
    if (text.size() > kMaxDocumentBytes) {
        m_error = QStringLiteral("file too large");
        return false;
    }
    return parse(text);
}

bool CSerialize::parse(const QByteArray& text)
{
    delete m_root;
    m_root = nullptr;
    m_handler->reset();
    QXmlSimpleReader reader;
    // Only qualified names are used: namespace processing would cost a lookup per name.
    reader.setFeature(QStringLiteral("http://xml.org/sax/features/namespaces"), false);
    reader.setFeature(QStringLiteral("http://xml.org/sax/features/namespace-prefixes"), true);
    reader.setContentHandler(m_handler.get());
    reader.setErrorHandler(m_handler.get());
    QXmlInputSource source;
    source.setData(text);
    const bool ok = reader.parse(&source, false);
    CXmlTagV2* root = m_handler->takeRoot();
    m_handler->reset();
    if (!ok || !root) {
        delete root;
        m_error = m_handler->lastError();
        if (m_error.isEmpty())
            m_error = ok ? QStringLiteral("no root element") : QStringLiteral("not well-formed");
        return false;
    }
    m_root = root;
    return true;
}

void CSerialize::writeTagInFileV2(const CXmlTagV2* tag)
{
    for (const CXmlTagV2* child : tag->children) {
        AttrMap attrs;
        if (child->type != CXmlTagV2::Text) {
            for (const CXmlTagV2* a : child->values)
                attrs.insert(a->name, a->value);
        }
        switch (child->type) {
        case CXmlTagV2::Ordinary:
        case CXmlTagV2::WithAttributes:
            m_depthMarker += QLatin1String("    ");
            m_writer->writeOpenTag(child->name, attrs);
            writeTagInFileV2(child);
            m_writer->writeCloseTag(child->name);
            m_depthMarker.chop(4);
            break;
        case CXmlTagV2::Record:
            m_writer->writeAtomTag(child->name, attrs);
            break;
        default:
            m_writer->writeNewTag(child->name, child->value);
            writeTagInFileV2(child);
            break;
        }
    }
}

void CSerialize::writeDocument(QIODevice* device)
{
    m_writer.reset(new XmlWriter(device));
    m_writer->setAutoNewLine(true);
    if (m_root) {
        AttrMap attrs;
        for (const CXmlTagV2* a : m_root->values)
            attrs.insert(a->name, a->value);
        m_writer->writeOpenTag(m_root->name, attrs);
        writeTagInFileV2(m_root);
        m_writer->writeCloseTag(m_root->name);
    }
    // The device lives only as long as this write; flush now rather than at the writer's end.
    m_writer.reset();
}

QByteArray CSerialize::render()
{
    QByteArray text;
    QBuffer buffer(&text);
    buffer.open(QIODevice::WriteOnly);
    writeDocument(&buffer);
    buffer.close();
    return text;
}

bool CSerialize::saveAs(const QString& path)
{
    return saveWholeFile(path, render());
}

bool CSerialize::writeToFileV2()
{
    // A file that did not load is never overwritten: the user's bytes would be lost for good.
    if (!m_fileMode || m_loadFailed)
        return false;
    if (m_file.isOpen())
        m_file.close();
    return saveAs(m_fileName);
}

int CSerialize::writeToFileV2Buf()
{
    m_output = render();
    return m_output.size();
}

int CSerialize::getXmlData(unsigned char* out, int capacity) const
{
    const int n = qMin(capacity, static_cast<int>(m_output.size()));
    if (!out || n <= 0)
        return 0;
    std::memcpy(out, m_output.constData(), static_cast<size_t>(n));
    return n;
}

CXmlTagV2* CSerialize::createNodeV2(CXmlTagV2* parent, const QString& name, int mode)
{
    if (!isNodeMode(mode))
        return nullptr;
    if (!parent) {
        if (m_root && m_root->name == name)
            return m_root;
        delete m_root;
        m_root = new CXmlTagV2(name);
        return m_root;
    }
    if (mode == NodeFindOrCreate) {
        if (CXmlTagV2* existing = parent->children.getTagFromName(name))
            return existing;
    }
    auto* tag = new CXmlTagV2(name, QString(), parent);
    if (mode == NodeRecord)
        tag->type = CXmlTagV2::Record;
    parent->children.addTag(tag);
    return tag;
}

int CSerialize::getCountTagNodeV2(const CXmlTagV2* tag) const
{
    return tag ? tag->values.count() + tag->children.count() : 0;
}

void CSerialize::getTagNodeV2(const CXmlTagV2* tag, coreSzArrayItem* out) const
{
    if (!tag || !out || !out->items)
        return;
    // Attributes first, then children, as far as the array reaches.
    int i = 0;
    for (const CFxXmListlTag* list : { &tag->values, &tag->children }) {
        for (CXmlTagV2* t : *list) {
            if (i >= out->count)
                return;
            coreSzItem& item = out->items[i++];
            copyText(item.name, t->name.toLocal8Bit());
            copyText(item.value, t->value.toLocal8Bit());
            item.isNode = list == &tag->children ? 1 : 0;
            item.tag = t;
        }
    }
}

void CSerialize::writeDataSZV2(void* tagPtr, const coreSzArrayItem* data)
{
    auto* tag = static_cast<CXmlTagV2*>(tagPtr);
    if (!tag || !data || !data->items)
        return;
    for (int i = 0; i < data->count; ++i) {
        const coreSzItem& item = data->items[i];
        const QString name = QString::fromLatin1(fieldBytes(item.name));
        const QByteArray value = fieldBytes(item.value);
        if (CXmlTagV2* child = tag->children.getTagFromName(name))
            child->value = QString::fromLatin1(value);
        else
            tag->values.addTag(new CXmlTagV2(name, QString::fromLocal8Bit(value), tag));
    }
}

void CSerialize::clearSZV2(CXmlTagV2* tag)
{
    if (!tag || !m_root)
        return;
    if (tag != m_root && tag->parent != m_root)
        return;
    tag->children.freeList();
    tag->values.freeList();
}

bool CSerialize::deleteTagV2(CXmlTagV2* tag)
{
    if (!tag)
        return false;
    if (tag == m_root) {
        delete m_root;
        m_root = nullptr;
        return true;
    }
    auto* parent = const_cast<CXmlTagV2*>(tag->parent);
    if (!parent || !(parent->children.deleteTag(tag) || parent->values.deleteTag(tag)))
        return false;
    delete tag;
    return true;
}
