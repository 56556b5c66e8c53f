#include "config_model/xml_tag.h"

// ---- CFxXmListlTag -------------------------------------------------------------------------

CFxXmListlTag::CFxXmListlTag(const CFxXmListlTag& other)
{
    *this = other;
}

CFxXmListlTag& CFxXmListlTag::operator=(const CFxXmListlTag& other)
{
    if (this == &other)
        return *this;
    freeList();
    for (CXmlTagV2* tag : other)
        addTag(new CXmlTagV2(*tag));
    return *this;
}

CFxXmListlTag::~CFxXmListlTag()
{
    freeList();
}

void CFxXmListlTag::addTag(CXmlTagV2* tag)
{
    if (!tag)
        return;
    Entry* e = new Entry { tag, m_last, nullptr };
    if (m_last)
        m_last->next = e;
    else
        m_first = e;
    m_last = e;
    ++m_count;
}

CXmlTagV2* CFxXmListlTag::getTagFromName(const QString& name) const
{
    for (Entry* e = m_first; e; e = e->next) {
        if (e->tag->name == name)
            return e->tag;
    }
    return nullptr;
}

CXmlTagV2* CFxXmListlTag::getNumTag(int n) const
{
    if (n < 0 || n >= m_count)
        return nullptr;
    Entry* e = m_first;
    while (n-- > 0)
        e = e->next;
    return e->tag;
}

bool CFxXmListlTag::exists(const QString& name) const
{
    return getTagFromName(name) != nullptr;
}

CFxXmListlTag::Entry* CFxXmListlTag::findEntry(const CXmlTagV2* tag) const
{
    if (!tag)
        return nullptr;
    for (Entry* e = m_first; e; e = e->next) {
        if (e->tag == tag)
            return e;
    }
    return nullptr;
}

bool CFxXmListlTag::deleteTag(CXmlTagV2* tag)
{
    Entry* e = findEntry(tag);
    if (!e)
        return false;
    (e->prev ? e->prev->next : m_first) = e->next;
    (e->next ? e->next->prev : m_last) = e->prev;
    delete e;
    --m_count;
    return true;
}

void CFxXmListlTag::setParent(const CXmlTagV2* parent)
{
    for (Entry* e = m_first; e; e = e->next)
        e->tag->parent = parent;
}

void CFxXmListlTag::freeList()
{
    for (Entry* e = m_first; e; e = e->next)
        delete e->tag;
    Entry* e = m_first;
    while (e) {
        Entry* next = e->next;
        delete e;
        e = next;
    }
    m_first = m_last = nullptr;
    m_count = 0;
}

bool CFxXmListlTag::isGoodTag(const CXmlTagV2* tag) const
{
    return findEntry(tag) != nullptr;
}

CXmlTagV2* CFxXmListlTag::const_iterator::operator*() const
{
    return static_cast<const Entry*>(m_node)->tag;
}

CFxXmListlTag::const_iterator& CFxXmListlTag::const_iterator::operator++()
{
    m_node = static_cast<const Entry*>(m_node)->next;
    return *this;
}

CFxXmListlTag::const_iterator CFxXmListlTag::begin() const
{
    return const_iterator(m_first);
}

// ---- CXmlTagV2 -----------------------------------------------------------------------------

CXmlTagV2::CXmlTagV2(const QString& name, const QString& value, const CXmlTagV2* parent)
    : name(name)
    , value(decodeText(value))
    , parent(parent)
{
}

CXmlTagV2::CXmlTagV2(const CXmlTagV2& other)
    : name(other.name)
    , value(other.value)
    , type(other.type)
    , children(other.children)
    , values(other.values)
{
    children.setParent(this);
    values.setParent(this);
}

CXmlTagV2& CXmlTagV2::operator=(const CXmlTagV2& other)
{
    if (this == &other)
        return *this;
    name = other.name;
    value = other.value;
    type = other.type;
    children = other.children;
    values = other.values;
    children.setParent(this);
    values.setParent(this);
    return *this;
}

QString CXmlTagV2::decodeText(const QString& text)
{
    // Nothing to decode in the common case: no entity and no "!" escape can be present.
    if (!text.contains(QLatin1Char('&')) && !text.contains(QLatin1String("_33_")))
        return text;
    QString s = text;
    s.replace(QLatin1String("&amp;"), QLatin1String("&"));
    s.replace(QLatin1String("&nbsp;"), QLatin1String(" "));
    s.replace(QLatin1String("&gt;"), QLatin1String(">"));
    s.replace(QLatin1String("&lt;"), QLatin1String("<"));
    s.replace(QLatin1String("&quot;"), QLatin1String("\""));
    s.replace(QLatin1String("&apos;"), QLatin1String("'"));
    s.replace(QLatin1String("_33_"), QLatin1String("!"));
    return s;
}
