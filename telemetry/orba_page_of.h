#pragma once

#include "telemetry/orba_page.h"

#include <type_traits>

namespace orba {

// The all-fields structure of a record version.
template <int V>
using RecordOf = std::conditional_t<V == 1, szCurrentTMI_ORBA1,
    std::conditional_t<V == 2, szCurrentTMI_ORBA2, szCurrentTMI_ORBA3>>;

// A page that owns the all-fields structure of version V, with the constructors every version's
// page offers the telemetry view. The version's page class adds its accessors and its own way
// of reading a received buffer.
template <int V> class PageOf : public OrbaPage
{
public:
    using Record = RecordOf<V>;

    // A filled record (nothing is marked present: the page has no mask).
    explicit PageOf(const Record& record, QObject* parent = nullptr)
        : PageOf(parent)
    {
        setRecordFrom(&record);
    }
    // Empty pages the telemetry view names and marks.
    PageOf(const QString& name, bool flag, QObject* parent = nullptr)
        : PageOf(parent)
    {
        setViewTags(name, flag, 0, 0);
    }
    PageOf(int tag1, int tag2, const QString& name, const Record& record, QObject* parent = nullptr)
        : PageOf(parent)
    {
        setViewTags(name, false, tag1, tag2);
        setRecordFrom(&record);
    }

    const Record& currentTMI() const { return m_tmi; }

protected:
    explicit PageOf(QObject* parent)
        : OrbaPage(reinterpret_cast<unsigned char*>(&m_tmi), V, parent)
    {
    }
    Record& recordForWriting() { return m_tmi; }

private:
    Record m_tmi = {};
};

// Versions 2 and 3: a current record (kind 0xB0) by its own field mask, or an extended record
// (kind 0xB1).
template <int V> class CurrentOrExtPageOf : public PageOf<V>
{
public:
    using PageOf<V>::PageOf;

    // A received buffer, kind byte first.
    CurrentOrExtPageOf(const unsigned char* buf, int len, QObject* parent = nullptr)
        : PageOf<V>(parent)
    {
        this->keepBody(buf, len);
        setNewTMI(buf, len);
    }
    explicit CurrentOrExtPageOf(const QByteArray& buf, QObject* parent = nullptr)
        : CurrentOrExtPageOf(reinterpret_cast<const unsigned char*>(buf.constData()), buf.size(), parent)
    {
    }
    // A buffer that is an extended record whatever its kind byte says (the host's 2312).
    struct AsExtended
    {
    };
    CurrentOrExtPageOf(const unsigned char* buf, int len, AsExtended, QObject* parent = nullptr)
        : PageOf<V>(parent)
    {
        this->setExtendedRecord(buf, len);
    }
    explicit CurrentOrExtPageOf(const szExtTMI_ORBA3& ext, QObject* parent = nullptr)
        : PageOf<V>(parent)
    {
        this->setExtFrom(ext);
    }

    // Decodes buf anew: 0xB0 a current record, 0xB1 an extended record, anything else nothing.
    void setNewTMI(const unsigned char* buf, int len) { this->setNewCurrentOrExt(buf, len); }
    void setExtTMI(const unsigned char* buf, int len) { OrbaPage::setExtTMI(buf, len); }
    // The extended page as XML text.
    void getXmlPageExt(QTextStream& out) const { writeXmlPageExt(out, this->extRecord()); }
};

} // namespace orba
