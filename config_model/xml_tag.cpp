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
    // A tag already linked somewhere cannot be owned twice.
    if (!tag || tag->m_list)
        return;
    tag->m_prev = m_last;
    tag->m_next = nullptr;
    tag->m_list = this;
    if (m_last)
        m_last->m_next = tag;
    else
        m_first = tag;
    m_last = tag;
    ++m_count;
}

CXmlTagV2* CFxXmListlTag::getTagFromName(const QString& name) const
{
    for (CXmlTagV2* t = m_first; t; t = t->m_next) {
        if (t->name == name)
            return t;
    }
    return nullptr;
}

CXmlTagV2* CFxXmListlTag::getNumTag(int n) const
{
    if (n < 0 || n >= m_count)
        return nullptr;
    CXmlTagV2* t = m_first;
    while (n-- > 0)
        t = t->m_next;
    return t;
}

bool CFxXmListlTag::exists(const QString& name) const
{
    return getTagFromName(name) != nullptr;
}

bool CFxXmListlTag::deleteTag(CXmlTagV2* tag)
{
    if (!isGoodTag(tag))
        return false;
    (tag->m_prev ? tag->m_prev->m_next : m_first) = tag->m_next;
    (tag->m_next ? tag->m_next->m_prev : m_last) = tag->m_prev;
    tag->m_prev = tag->m_next = nullptr;
    tag->m_list = nullptr;
    --m_count;
    return true;
}

void CFxXmListlTag::setParent(const CXmlTagV2* parent)
{
    for (CXmlTagV2* t = m_first; t; t = t->m_next)
        t->parent = parent;
}

void CFxXmListlTag::freeList()
{
    CXmlTagV2* t = m_first;
    m_first = m_last = nullptr;
    m_count = 0;
    while (t) {
        CXmlTagV2* next = t->m_next;
        t->m_list = nullptr;
        delete t;
        t = next;
    }
}

bool CFxXmListlTag::isGoodTag(const CXmlTagV2* tag) const
{
    return tag && tag->m_list == this;
}

CXmlTagV2* CFxXmListlTag::const_iterator::operator*() const
{
    return const_cast<CXmlTagV2*>(m_node);
}

CFxXmListlTag::const_iterator& CFxXmListlTag::const_iterator::operator++()
{
    m_node = m_node->m_next;
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

CXmlTagV2::~CXmlTagV2()
{
    if (m_list)
        const_cast<CFxXmListlTag*>(m_list)->deleteTag(this);
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
    return substituteEach(text,
        { { "&amp;", "&" }, { "&nbsp;", " " }, { "&gt;", ">" }, { "&lt;", "<" }, { "&quot;", "\"" },
            { "&apos;", "'" }, { "_33_", "!" } });
}

QString substituteEach(QString text, std::initializer_list<TextSubstitution> table)
{
    for (const TextSubstitution& t : table)
        text.replace(QLatin1String(t.from), QLatin1String(t.to));
    return text;
}
