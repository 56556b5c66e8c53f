#pragma once

#include <QString>

#include <initializer_list>

class CXmlTagV2;

// One replacement of an escaping or decoding table.
struct TextSubstitution
{
    const char* from;
    const char* to;
};

// Applies each replacement in turn over the whole text; the order is the table's meaning
// (an escaping table replaces "&" first, a decoding table decodes "&amp;" first).
QString substituteEach(QString text, std::initializer_list<TextSubstitution> table);

// An ordered, owning list of elements (the children of one element, or its attribute entries).
// Doubly linked so that appending and unlinking never move the other entries. The links live in
// the tags themselves (a tag is in at most one list): a large file has hundreds of thousands of
// attribute entries, and one allocation per entry fewer is a third of the loading time saved.
class CFxXmListlTag
{
public:
    CFxXmListlTag() = default;
    CFxXmListlTag(const CFxXmListlTag& other);
    CFxXmListlTag& operator=(const CFxXmListlTag& other); // deep copy
    ~CFxXmListlTag();

    // Appends tag and takes ownership of it; a null tag is ignored.
    void addTag(CXmlTagV2* tag);
    // The first tag of that name from the front, or null.
    CXmlTagV2* getTagFromName(const QString& name) const;
    // The n-th tag (from 0), or null past the end.
    CXmlTagV2* getNumTag(int n) const;
    // Whether a tag of that name is in the list.
    bool exists(const QString& name) const;
    // Unlinks tag without destroying it; false if it is not in the list.
    bool deleteTag(CXmlTagV2* tag);
    // Sets the parent of every tag in the list.
    void setParent(const CXmlTagV2* parent);
    // Destroys every tag, then unlinks all entries.
    void freeList();
    // Whether tag is one of the entries of this list.
    bool isGoodTag(const CXmlTagV2* tag) const;

    int count() const { return m_count; }
    bool isEmpty() const { return m_count == 0; }

    // Forward iteration without the quadratic cost of getNumTag.
    class const_iterator
    {
    public:
        CXmlTagV2* operator*() const;
        const_iterator& operator++();
        bool operator!=(const const_iterator& o) const { return m_node != o.m_node; }

    private:
        friend class CFxXmListlTag;
        explicit const_iterator(const CXmlTagV2* node)
            : m_node(node)
        {
        }
        const CXmlTagV2* m_node;
    };
    const_iterator begin() const;
    const_iterator end() const { return const_iterator(nullptr); }

private:
    CXmlTagV2* m_first = nullptr;
    CXmlTagV2* m_last = nullptr;
    int m_count = 0;
};

// One element of a configuration tree, or one attribute entry of an element (name and value).
class CXmlTagV2
{
public:
    // Element kinds as they are written back.
    enum Type
    {
        Ordinary = 0, // opening tag with attributes, children, closing tag
        WithAttributes = 1, // read back from a tag that had attributes; written as Ordinary
        Text = 2, // text content; attributes not written, children follow at the same depth
        Record = 3, // self-closing tag with attributes; children not written
    };

    // The value is stored after decodeText (entities and the "!" escape).
    explicit CXmlTagV2(
        const QString& name = QString(), const QString& value = QString(), const CXmlTagV2* parent = nullptr);
    // Deep copy of name, value, type, children and attribute entries; the copy has no parent.
    CXmlTagV2(const CXmlTagV2& other);
    CXmlTagV2& operator=(const CXmlTagV2& other);
    // A tag destroyed while still linked leaves its list first.
    ~CXmlTagV2();

    // The decoding pass every constructor applies to its value, in this fixed order, each step
    // over the whole string: &amp; &nbsp; &gt; &lt; &quot; &apos; _33_. The order makes
    // "&amp;lt;" end up as "<": kept on purpose, files in the field rely on it.
    static QString decodeText(const QString& text);

    QString name;
    QString value;
    int type = Ordinary;
    CFxXmListlTag children;
    CFxXmListlTag values;
    const CXmlTagV2* parent = nullptr;

private:
    friend class CFxXmListlTag;
    // Links of the list the tag is in.
    CXmlTagV2* m_prev = nullptr;
    CXmlTagV2* m_next = nullptr;
    const CFxXmListlTag* m_list = nullptr;
};
