#include "config_model/xml_workdata.h"

#include "config_model/serialize.h"
#include "config_model/xml_tag.h"

#include <QStringList>

#include <cstdio>
#include <cstdlib>
#include <cstring>

// ---- The serializer's side of the records --------------------------------------------------

void zrk_StartSZ(coreSzCreate* create)
{
    if (!create)
        return;
    create->handle = nullptr;
    const QByteArray path(
        create->fileName, static_cast<int>(strnlen(create->fileName, sizeof create->fileName)));
    auto* serializer = new CSerialize(QString::fromLocal8Bit(path));
    if (!serializer->startSerialize()) {
        delete serializer;
        return;
    }
    create->handle = serializer;
}

void zrk_StopSZ(CSerialize* serializer, bool save)
{
    if (!serializer)
        return;
    if (save)
        serializer->writeToFileV2();
    delete serializer;
}

void zrk_StartSZMemo(coreSzCreateMemo* memo)
{
    if (!memo)
        return;
    memo->handle = nullptr;
    if (memo->size < 0 || (memo->size > 0 && !memo->data))
        return;
    auto* serializer = new CSerialize(memo->size, memo->data);
    if (!serializer->startSerialize()) {
        delete serializer;
        return;
    }
    memo->handle = serializer;
}

void zrk_GetSZMemo(coreSzCreateMemo* memo)
{
    if (!memo || !memo->handle)
        return;
    memo->size = memo->handle->writeToFileV2Buf();
}

void zrk_StopSZMemo(coreSzCreateMemo* memo)
{
    if (!memo || !memo->handle)
        return;
    // The caller's buffer holds memo->size bytes: the size GetSZMemo reported, or less.
    memo->size = memo->handle->getXmlData(memo->data, memo->size);
    delete memo->handle;
    memo->handle = nullptr;
}

void zrk_Create_Node(coreCreateNode* create)
{
    if (!create || !create->serializer)
        return;
    create->name[sizeof create->name - 1] = '\0';
    create->result
        = create->serializer->createNodeV2(create->parent, QString::fromLatin1(create->name), create->type);
}

void zrk_Get_Count_Data(coreSzNode* node, int* count)
{
    if (!node || !node->serializer || !count)
        return;
    *count = node->serializer->getCountTagNodeV2(node->tag);
}

void zrk_Get_Data(coreSzNode* node, coreSzArrayItem* data)
{
    if (!node || !node->serializer)
        return;
    node->serializer->getTagNodeV2(node->tag, data);
}

void zrk_Write_Data(coreSzNode* node, coreSzArrayItem* data)
{
    if (!node || !node->serializer)
        return;
    node->serializer->writeDataSZV2(node->tag, data);
}

void zrk_Clear_Node(coreSzNode* node)
{
    if (!node || !node->serializer)
        return;
    node->serializer->clearSZV2(node->tag);
}

// ---- CTagParameters ------------------------------------------------------------------------

bool CTagParameters::record(const CXmlTagV2* entry, COneParameter& out)
{
    if (!entry)
        return false;
    // A short ASCII value, as nearly all are, has the same bytes in any local encoding.
    const QString& v = entry->value;
    if (v.size() < kParamFieldSize) {
        int i = 0;
        for (; i < v.size() && v.at(i).unicode() < 0x80; ++i)
            out.value[i] = static_cast<char>(v.at(i).unicode());
        if (i == v.size()) {
            out.value[i] = '\0';
            return true;
        }
    }
    out.setValue(v.toLocal8Bit().constData());
    return true;
}

const CXmlTagV2* CTagParameters::entryOf(const QString& name) const
{
    if (!m_tag)
        return nullptr;
    const CXmlTagV2* e = m_tag->values.getTagFromName(name);
    return e ? e : m_tag->children.getTagFromName(name);
}

int CTagParameters::integerOf(const CXmlTagV2* entry, int def)
{
    COneParameter p;
    if (record(entry, p))
        p.asInt(def);
    return def;
}

bool CTagParameters::boolOf(const CXmlTagV2* entry, bool def)
{
    COneParameter p;
    if (record(entry, p))
        p.asBool(def);
    return def;
}

float CTagParameters::floatOf(const CXmlTagV2* entry, float def)
{
    COneParameter p;
    if (record(entry, p))
        p.asFloat(def);
    return def;
}

QString CTagParameters::stringOf(const CXmlTagV2* entry, const QString& def)
{
    QString out = def;
    COneParameter p;
    if (record(entry, p))
        p.asQString(out);
    return out;
}

// ---- CXMLWorkData --------------------------------------------------------------------------

namespace {

constexpr const char* kFontFamily = "Family";
constexpr const char* kFontSize = "Size";
constexpr const char* kFontBold = "Bold";
constexpr const char* kFontItalic = "Italic";
constexpr const char* kFontStrikeout = "Strikeout";
constexpr const char* kFontUnderline = "Underline";

// Weights above this count as bold, the midpoint between normal (50) and demibold (63).
constexpr int kBoldThreshold = 57;

} // namespace

CXMLWorkData::CXMLWorkData() = default;

CXMLWorkData::CXMLWorkData(void* serializer, void* tag)
{
    inicParameters(serializer, tag);
}

CXMLWorkData::CXMLWorkData(void* serializer, const char* rootName)
{
    inicParameters(serializer, rootName);
}

CXMLWorkData::CXMLWorkData(void* serializer, const QString& rootName)
{
    inicParameters(serializer, rootName);
}

CXMLWorkData::CXMLWorkData(const QString& path, const QString& rootName)
{
    coreSzCreate create {};
    const QByteArray local = path.toLocal8Bit();
    // A path that does not fit would name another file: such a document is not opened at all.
    if (local.size() >= static_cast<int>(sizeof create.fileName))
        return;
    std::memcpy(create.fileName, local.constData(), static_cast<size_t>(local.size()));
    zrk_StartSZ(&create);
    if (create.handle)
        inicParameters(create.handle, rootName);
}

void CXMLWorkData::inicParameters(void* serializer, void* tag)
{
    m_serializer = static_cast<CSerialize*>(serializer);
    m_tag = static_cast<CXmlTagV2*>(tag);
    readParameters();
}

void CXMLWorkData::inicParameters(void* serializer, const char* rootName)
{
    bindRoot(serializer, QByteArray(rootName ? rootName : ""));
}

void CXMLWorkData::inicParameters(void* serializer, const QString& rootName)
{
    bindRoot(serializer, rootName.toLatin1());
}

void CXMLWorkData::bindRoot(void* serializer, const QByteArray& name)
{
    m_serializer = static_cast<CSerialize*>(serializer);
    m_tag = nullptr;
    coreCreateNode create {};
    create.serializer = m_serializer;
    create.parent = nullptr;
    create.type = NodeFindOrCreate;
    std::snprintf(create.name, sizeof create.name, "%s", name.constData());
    zrk_Create_Node(&create);
    m_tag = create.result;
    readParameters();
}

void CXMLWorkData::fillNodeData(coreSzNode& out) const
{
    out.serializer = m_serializer;
    out.tag = m_tag;
}

void CXMLWorkData::readParameters()
{
    coreSzNode n = node();
    int count = 0;
    zrk_Get_Count_Data(&n, &count);
    if (count < 1)
        return;
    coreSzArrayItem data {};
    data.items = static_cast<coreSzItem*>(std::calloc(static_cast<size_t>(count), sizeof(coreSzItem)));
    if (!data.items)
        return;
    data.count = count;
    zrk_Get_Data(&n, &data);
    params.inicParameters();
    params.addData(data.items, data.count);
    std::free(data.items);
}

void CXMLWorkData::writeParameters()
{
    coreSzArrayItem* data = params.createOutPutData();
    if (!data)
        return;
    coreSzNode n = node();
    zrk_Write_Data(&n, data);
    std::free(data->items);
    std::free(data);
}

int CXMLWorkData::getCountParamsInTag()
{
    coreSzNode n = node();
    int count = 0;
    zrk_Get_Count_Data(&n, &count);
    return count;
}

CXMLWorkData* CXMLWorkData::createNode(const char* name, int mode)
{
    if (!m_serializer || !isNodeMode(mode))
        return nullptr;
    coreCreateNode create {};
    create.serializer = m_serializer;
    create.parent = m_tag;
    create.type = mode;
    std::snprintf(create.name, sizeof create.name, "%s", name ? name : "");
    zrk_Create_Node(&create);
    if (!create.result)
        return nullptr;
    return new CXMLWorkData(m_serializer, static_cast<void*>(create.result));
}

CXMLWorkData* CXMLWorkData::nodeFor(COneParameter* item) const
{
    if (!item || !item->tag)
        return nullptr;
    return new CXMLWorkData(m_serializer, static_cast<void*>(item->tag));
}

CXMLWorkData* CXMLWorkData::getFirstNode(const char* name)
{
    return nodeFor(params.getFirst(name));
}

CXMLWorkData* CXMLWorkData::getNextNode()
{
    return nodeFor(params.getNext());
}

void CXMLWorkData::moveToNextNode(CXMLWorkData*& cursor)
{
    CXMLWorkData* next = getNextNode();
    delete cursor;
    cursor = next;
}

void CXMLWorkData::clearNode()
{
    coreSzNode n = node();
    zrk_Clear_Node(&n);
    params.inicParameters();
}

CXMLWorkData* CXMLWorkData::createNodeZRK(const char* name, const QString& text)
{
    CXMLWorkData* child = createNode(name, NodeFindOrCreate);
    if (child && child->m_tag) {
        child->m_tag->value = text;
        child->m_tag->type = CXmlTagV2::Text;
    }
    return child;
}

CXMLWorkData* CXMLWorkData::createNodeZRK(const char* name, int value)
{
    return createNodeZRK(name, QString::number(value));
}

CXMLWorkData* CXMLWorkData::createNodeZRK(const char* name, float value)
{
    char text[512];
    formatFixedDecimal(text, sizeof text, static_cast<double>(value));
    return createNodeZRK(name, QString::fromLocal8Bit(text));
}

void CXMLWorkData::writeStringZRK(const char* name, const char* text)
{
    writeStringZRK(name, QString::fromLocal8Bit(text ? text : ""));
}

void CXMLWorkData::writeStringZRK(const char* name, const QString& text)
{
    if (CXMLWorkData* child = createNodeZRK(name, text)) {
        child->writeParameters();
        delete child;
    }
}

void CXMLWorkData::writeIntegerZRK(const char* name, int value)
{
    if (CXMLWorkData* child = createNodeZRK(name, value)) {
        child->writeParameters();
        delete child;
    }
}

void CXMLWorkData::writeIntegerZRK(const char* name, Qt::CheckState state)
{
    switch (state) {
    case Qt::Unchecked:
        writeIntegerZRK(name, 0);
        break;
    case Qt::PartiallyChecked:
    case Qt::Checked:
        writeIntegerZRK(name, 1);
        break;
    default:
        break;
    }
}

void CXMLWorkData::writeFloatZRK(const char* name, float value)
{
    if (CXMLWorkData* child = createNodeZRK(name, value)) {
        child->writeParameters();
        delete child;
    }
}

void CXMLWorkData::writeColor(const char* name, const QColor& color)
{
    writeInteger(name, static_cast<int>(color.rgba()));
}

QColor CXMLWorkData::readColor(const char* name, const QColor& def) const
{
    QColor c;
    c.setRgb(static_cast<QRgb>(readInteger(name, static_cast<int>(def.rgba()))));
    return c;
}

QColor CXMLWorkData::readColorString(const char* name, const QColor& def) const
{
    const QString text = readString(name, QString());
    if (text.isEmpty())
        return def;
    const QStringList fields = text.split(QLatin1Char(','));
    int rgb[3] = { 0, 0, 0 };
    for (int i = 0; i < 3 && i < fields.size(); ++i)
        rgb[i] = static_cast<int>(std::strtol(fields.at(i).toLocal8Bit().constData(), nullptr, 10));
    // Components outside 0..255 would leave an invalid colour; keep them in range instead.
    for (int& v : rgb)
        v = qBound(0, v, 255);
    return QColor(rgb[0], rgb[1], rgb[2], 255);
}

void CXMLWorkData::writeFont(const char* name, const QFont& font)
{
    CXMLWorkData* child = createNode(name, NodeFindOrCreate);
    if (!child)
        return;
    child->writeString(kFontFamily, font.family());
    child->writeInteger(kFontSize, font.pointSize());
    child->writeBool(kFontBold, font.weight() > kBoldThreshold);
    child->writeBool(kFontItalic, font.style() != QFont::StyleNormal);
    child->writeBool(kFontStrikeout, font.strikeOut());
    child->writeBool(kFontUnderline, font.underline());
    child->writeParameters();
    delete child;
}

QFont CXMLWorkData::readFont(const char* name, const QFont& def)
{
    CXMLWorkData* child = createNode(name, NodeFindOrCreate);
    if (!child)
        return def;
    QFont font;
    font.setFamily(child->readString(kFontFamily, def.family()));
    const int size = child->readInteger(kFontSize, def.pointSize());
    if (size > 0)
        font.setPointSize(size);
    font.setWeight(child->readBool(kFontBold, def.bold()) ? QFont::Bold : QFont::Normal);
    font.setStyle(child->readBool(kFontItalic, def.italic()) ? QFont::StyleItalic : QFont::StyleNormal);
    font.setStrikeOut(child->readBool(kFontStrikeout, def.strikeOut()));
    font.setUnderline(child->readBool(kFontUnderline, def.underline()));
    delete child;
    return font;
}
