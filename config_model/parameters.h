#pragma once

#include <QString>

class CSerialize;
class CXmlTagV2;

// Plain records through which a node facade talks to the document serializer. Names and values
// are NUL-terminated byte texts in the local 8-bit encoding.

// Sizes of the fixed text fields of the records below, the NUL included.
constexpr int kParamFieldSize = 255; // a parameter's name or value
constexpr int kNodeNameSize = 260; // the name of a node to create
constexpr int kFileNameSize = 256; // the path of a document to open

// Bytes kept of a parameter's name or value (the field holds one more for the NUL).
constexpr int kParamTextMax = kParamFieldSize - 1;

// How createNode finds or makes a child node.
enum NodeMode : int
{
    NodeFindOrCreate = 0, // the first child of that name, made when missing
    NodeAppend = 1, // always a new child, written as an element with its own closing tag
    NodeRecord = 3, // always a new child, written as one self-closing record
};
constexpr bool isNodeMode(int mode)
{
    return mode == NodeFindOrCreate || mode == NodeAppend || mode == NodeRecord;
}

// Decimals in files always use the point, whatever the desktop's numeric locale (a Russian one
// writes a comma): "%f" text into buf, and strtod's reading of a text's leading number.
void formatFixedDecimal(char* buf, int size, double value);
double parseDecimalPrefix(const char* text);

// One parameter of a node.
struct coreSzItem
{
    char name[kParamFieldSize];
    char value[kParamFieldSize];
    int isNode; // 0: an attribute entry; 1: a child element (value is its text)
    CXmlTagV2* tag; // what it was read from; null for entries created by writes
};

// A heap array of items: both the record and items come from calloc and go back with free.
struct coreSzArrayItem
{
    int count;
    coreSzItem* items;
};

// The identity of a node.
struct coreSzNode
{
    CSerialize* serializer;
    CXmlTagV2* tag;
};

// Node creation; type is a NodeMode.
struct coreCreateNode
{
    CSerialize* serializer;
    CXmlTagV2* parent; // null: the root
    int type;
    char name[kNodeNameSize];
    CXmlTagV2* result;
};

struct coreSzCreate
{
    char fileName[kFileNameSize];
    CSerialize* handle;
};

struct coreSzCreateMemo
{
    int size;
    unsigned char* data;
    CSerialize* handle;
};

// One parameter with its conversions. Adds no data to the record, so that arrays of either
// share a layout and can be grown with realloc.
class COneParameter : public coreSzItem
{
public:
    COneParameter();
    COneParameter(coreSzItem& item);
    // Name only, standing for a child element. The value is left empty rather than undefined.
    explicit COneParameter(const char* name);
    COneParameter(const char* name, int value);
    COneParameter(const char* name, bool value);
    COneParameter(const char* name, float value);
    COneParameter(const char* name, const char* text, int);
    COneParameter(const char* name, QString& text);

    void inicParam(const coreSzItem& item);

    bool operator==(const char* otherName) const;

    // False for an empty value; otherwise parsed like strtol/strtod (unparsable text gives 0).
    bool asInt(int& out) const;
    bool asBool(bool& out) const;
    bool asFloat(float& out) const;
    bool asDouble(double& out) const;
    bool asString(char* buf, int len) const;
    bool asQString(QString& out) const;

    // Text helpers shared with the list: bounded copies into the record's fields.
    void setName(const char* text);
    void setValue(const char* text);
    void setValueInt(int v);
    void setValueFloat(float v);
};
static_assert(sizeof(COneParameter) == sizeof(coreSzItem), "arrays of both must share a layout");

// The flat, ordered list of one node's parameters.
class CListParameters
{
public:
    CListParameters();
    CListParameters(coreSzItem* items, int n);
    ~CListParameters();
    CListParameters(const CListParameters&) = delete;
    CListParameters& operator=(const CListParameters&) = delete;

    void inicParameters();
    int addData(const coreSzItem* data, int n);

    COneParameter* findParameter(const char* name, int from) const;
    COneParameter* getFirst(const char* name);
    COneParameter* getNext();

    int readInteger(const char* name, int def) const;
    bool readBool(const char* name, bool def) const;
    float readFloat(const char* name, float def) const;
    double readDouble(const char* name, double def) const;
    char* readString(const char* name, const char* def, char* buf, int len) const;
    QString& readString(const char* name, const QString& def, QString& out) const;

    int writeInteger(const char* name, int value);
    int writeFloat(const char* name, float value);
    int writeBool(const char* name, bool value);
    int writeString(const char* name, const char* text);
    int writeString(const char* name, QString& text);
    int writeTag(const char* name);

    // A calloc'ed copy of all items for the serializer; null when empty or out of memory.
    coreSzArrayItem* createOutPutData() const;

    COneParameter* items = nullptr;
    int count = 0;
    char findName[kParamFieldSize];
    int findIndex = 0;

private:
    // The first item of that name with a non-empty value, or null.
    const COneParameter* valued(const char* name) const;
    // The typed reads: the default unless that item has a value to convert.
    template <typename T> T readValued(const char* name, T def, bool (COneParameter::*as)(T&) const) const;
    int append(const COneParameter& item);
    // Rewrites the first item of that name with fresh's value and kind, or appends fresh.
    int store(const char* name, const COneParameter& fresh);
};
