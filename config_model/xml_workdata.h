#pragma once

#include "config_model/parameters.h"

#include <QColor>
#include <QFont>
#include <QString>

// The facade's only way into a document: plain records in, plain records out.
void zrk_StartSZ(coreSzCreate* create);
void zrk_StopSZ(CSerialize* serializer, bool save);
void zrk_StartSZMemo(coreSzCreateMemo* memo);
void zrk_GetSZMemo(coreSzCreateMemo* memo);
void zrk_StopSZMemo(coreSzCreateMemo* memo);
void zrk_Create_Node(coreCreateNode* create);
void zrk_Get_Count_Data(coreSzNode* node, int* count);
void zrk_Get_Data(coreSzNode* node, coreSzArrayItem* data);
void zrk_Write_Data(coreSzNode* node, coreSzArrayItem* data);
void zrk_Clear_Node(coreSzNode* node);

// Typed reads of one element's parameters straight from the tree, giving what a CXMLWorkData bound
// to the element reads (the first entry of the name, its attributes before its child elements, the
// value as a parameter record keeps it) without copying every entry into a list first.
class CTagParameters
{
public:
    explicit CTagParameters(const CXmlTagV2* tag)
        : m_tag(tag)
    {
    }
    int readInteger(const QString& name, int def) const { return integerOf(entryOf(name), def); }
    bool readBool(const QString& name, bool def) const { return boolOf(entryOf(name), def); }
    float readFloat(const QString& name, float def) const { return floatOf(entryOf(name), def); }
    QString readString(const QString& name, const QString& def = QString()) const
    {
        return stringOf(entryOf(name), def);
    }
    // The entry those reads take the value of: an attribute or a child element; null when none.
    const CXmlTagV2* entryOf(const QString& name) const;
    // The reads of one entry (null: the default).
    static int integerOf(const CXmlTagV2* entry, int def);
    static bool boolOf(const CXmlTagV2* entry, bool def);
    static float floatOf(const CXmlTagV2* entry, float def);
    static QString stringOf(const CXmlTagV2* entry, const QString& def);

private:
    // The record the list would hold for the entry; false for none.
    static bool record(const CXmlTagV2* entry, COneParameter& out);

    const CXmlTagV2* m_tag;
};

// A short-lived handle on one element of an open document, with a snapshot of its parameters.
// It owns only that list: the element belongs to the tree, the serializer to whoever opened it.
class CXMLWorkData
{
public:
    CXMLWorkData();
    CXMLWorkData(void* serializer, void* tag);
    CXMLWorkData(void* serializer, const char* rootName);
    CXMLWorkData(void* serializer, const QString& rootName);
    // Opens the file and binds to its root; on failure the node has no serializer and is inert.
    CXMLWorkData(const QString& path, const QString& rootName);
    ~CXMLWorkData() = default;
    CXMLWorkData(const CXMLWorkData&) = delete;
    CXMLWorkData& operator=(const CXMLWorkData&) = delete;

    void inicParameters(void* serializer, void* tag);
    void inicParameters(void* serializer, const char* rootName);
    void inicParameters(void* serializer, const QString& rootName);

    void fillNodeData(coreSzNode& node) const;
    void readParameters();
    void writeParameters();
    int getCountParamsInTag();

    // Heap facades owned by the caller.
    CXMLWorkData* createNode(const char* name, int mode);
    CXMLWorkData* getFirstNode(const char* name);
    CXMLWorkData* getNextNode();
    void moveToNextNode(CXMLWorkData*& cursor);
    void clearNode();

    CXMLWorkData* createNodeZRK(const char* name, const QString& text);
    CXMLWorkData* createNodeZRK(const char* name, int value);
    CXMLWorkData* createNodeZRK(const char* name, float value);
    void writeStringZRK(const char* name, const char* text);
    void writeStringZRK(const char* name, const QString& text);
    void writeIntegerZRK(const char* name, int value);
    void writeIntegerZRK(const char* name, Qt::CheckState state);
    void writeFloatZRK(const char* name, float value);

    // Typed access to the snapshot list.
    int readInteger(const char* name, int def) const { return params.readInteger(name, def); }
    bool readBool(const char* name, bool def) const { return params.readBool(name, def); }
    float readFloat(const char* name, float def) const { return params.readFloat(name, def); }
    double readDouble(const char* name, double def) const { return params.readDouble(name, def); }
    char* readString(const char* name, const char* def, char* buf, int len) const
    {
        return params.readString(name, def, buf, len);
    }
    QString& readString(const char* name, const QString& def, QString& out) const
    {
        return params.readString(name, def, out);
    }
    QString readString(const char* name, const QString& def = QString()) const
    {
        QString out;
        return params.readString(name, def, out);
    }
    int writeInteger(const char* name, int value) { return params.writeInteger(name, value); }
    int writeFloat(const char* name, float value) { return params.writeFloat(name, value); }
    int writeBool(const char* name, bool value) { return params.writeBool(name, value); }
    int writeString(const char* name, const char* text) { return params.writeString(name, text); }
    int writeString(const char* name, QString text) { return params.writeString(name, text); }

    void writeColor(const char* name, const QColor& color);
    QColor readColor(const char* name, const QColor& def) const;
    QColor readColorString(const char* name, const QColor& def) const;
    void writeFont(const char* name, const QFont& font);
    QFont readFont(const char* name, const QFont& def);

    CSerialize* serializer() const { return m_serializer; }
    CXmlTagV2* tag() const { return m_tag; }

    CListParameters params;

private:
    void bindRoot(void* serializer, const QByteArray& name);
    coreSzNode node() const { return coreSzNode { m_serializer, m_tag }; }
    CXMLWorkData* nodeFor(COneParameter* item) const;

    CSerialize* m_serializer = nullptr;
    CXmlTagV2* m_tag = nullptr;
};
