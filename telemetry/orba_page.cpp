#include "telemetry/orba_page.h"

#include "config_model/common_routines.h"

#include <QDateTime>

#include <algorithm>

OrbaPage::OrbaPage(unsigned char* record, int version, QObject* parent)
    : QObject(parent)
    , m_rec(record)
    , m_version(version)
{
    // The offset the UTC-offset texts show is the one of the moment the page was made.
    m_utcOffset = QDateTime::currentDateTime().offsetFromUtc();
}

bool OrbaPage::isUsed(int no) const
{
    return no >= 1 && no <= lastField() && zrkOrbaMaskBit(m_head + orba::kMaskOffset, no);
}

QString OrbaPage::fieldText(int no) const
{
    return isUsed(no) ? orba::fieldText(no, m_rec) : orba::noDataText();
}

QString OrbaPage::subValueText(int id) const
{
    if (id < 0 || id >= orba::kSubCount || !isUsed(orba::kSubValues[id].field))
        return orba::noDataText();
    return orba::subValueText(id, m_rec);
}

QString OrbaPage::getStrDateTime() const
{
    return fieldText(orba::F_Time);
}

QString OrbaPage::getStrDateTimeUTC_Offset() const
{
    if (!isUsed(orba::F_Time))
        return orba::noDataText();
    return getStrDateTime() + QLatin1Char(' ') + orba::utcOffsetText(m_utcOffset);
}

void OrbaPage::setCurrentTMI(const unsigned char* data, int len)
{
    orba::decodeFields(m_head + orba::kMaskOffset, data, len, m_rec, lastField());
}

quint8 OrbaPage::getByteForNumber(quint8 byte, int n)
{
    return quint8(::getBitFromByte(byte, n));
}

quint8 OrbaPage::get2BitFromByte(quint8 byte, int n)
{
    return quint8(::get2BitFromByte(byte, n));
}

unsigned char OrbaPage::startNewRecord(const unsigned char* buf, int len)
{
    if (!buf || len < 0)
        len = 0;
    std::memset(m_head, 0, sizeof m_head);
    std::memset(m_raw, 0, sizeof m_raw);
    if (len > 0) {
        std::memcpy(m_head, buf, size_t(std::min<int>(len, sizeof m_head)));
        std::memcpy(m_raw, buf, size_t(std::min<int>(len, sizeof m_raw)));
    }
    m_rawLen = len;
    std::memset(m_rec, 0, size_t(orba::recordSize(m_version)));
    // No values of an earlier extended record survive into this one.
    std::memset(&m_ext, 0, sizeof m_ext);
    m_isExt = 0;
    return len > 0 ? buf[0] : 0;
}

void OrbaPage::setNewCurrentOrExt(const unsigned char* buf, int len)
{
    const unsigned char kind = startNewRecord(buf, len);
    if (kind == orba::kKindCurrent) {
        m_isExt = 0;
        setCurrentRecord(buf, len);
    } else if (kind == orba::kKindExtended) {
        m_isExt = 1;
        setExtTMI(buf, len);
    }
}

void OrbaPage::setCurrentRecord(const unsigned char* buf, int len)
{
    if (len > orba::kBodyOffset)
        setCurrentTMI(buf + orba::kBodyOffset, len - orba::kBodyOffset);
    else
        setCurrentTMI(nullptr, 0);
}

void OrbaPage::setExtTMI(const unsigned char* buf, int len)
{
    orba::decodeExt(buf, len, m_ext);
}

void OrbaPage::setExtendedRecord(const unsigned char* buf, int len)
{
    startNewRecord(buf, len);
    m_isExt = 1;
    setExtTMI(buf, len);
    m_body = buf && len > 1 ? QByteArray(reinterpret_cast<const char*>(buf) + 1, len - 1) : QByteArray();
}

void OrbaPage::keepBody(const unsigned char* buf, int len)
{
    if (!buf || len <= 0) {
        m_body.clear();
        return;
    }
    const int from = buf[0] == orba::kKindExtended ? 1 : orba::kBodyOffset;
    m_body = len > from ? QByteArray(reinterpret_cast<const char*>(buf) + from, len - from) : QByteArray();
}

void OrbaPage::setRecordFrom(const void* record)
{
    std::memcpy(m_rec, record, size_t(orba::recordSize(m_version)));
}

void OrbaPage::setExtFrom(const szExtTMI_ORBA3& ext)
{
    m_ext = ext;
    m_isExt = 1;
}

void OrbaPage::setViewTags(const QString& name, bool flag, int tag1, int tag2)
{
    m_name = name;
    m_flag = flag;
    m_tag1 = tag1;
    m_tag2 = tag2;
}

QString OrbaPage::extText(int id) const
{
    return m_isExt ? orba::extFieldText(id, m_ext) : orba::noDataText();
}

QString OrbaPage::extBitText(quint8 value) const
{
    return m_isExt ? QString::number(value) : orba::noDataText();
}
