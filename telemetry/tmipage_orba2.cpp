#include "telemetry/tmipage_orba2.h"

#include <QTextStream>

TmiPage_Orba2::TmiPage_Orba2(const unsigned char* buf, int len, QObject* parent)
    : OrbaPage(reinterpret_cast<unsigned char*>(&m_tmi), 2, parent)
{
    keepBody(buf, len);
    setNewTMI(buf, len);
}

TmiPage_Orba2::TmiPage_Orba2(const QByteArray& buf, QObject* parent)
    : TmiPage_Orba2(reinterpret_cast<const unsigned char*>(buf.constData()), buf.size(), parent)
{
}

TmiPage_Orba2::TmiPage_Orba2(const szCurrentTMI_ORBA2& record, QObject* parent)
    : OrbaPage(reinterpret_cast<unsigned char*>(&m_tmi), 2, parent)
{
    setRecordFrom(&record);
}

TmiPage_Orba2::TmiPage_Orba2(const szExtTMI_ORBA2& ext, QObject* parent)
    : OrbaPage(reinterpret_cast<unsigned char*>(&m_tmi), 2, parent)
{
    setExtFrom(ext);
}

TmiPage_Orba2::TmiPage_Orba2(const QString& name, bool flag, QObject* parent)
    : OrbaPage(reinterpret_cast<unsigned char*>(&m_tmi), 2, parent)
{
    setViewTags(name, flag, 0, 0);
}

TmiPage_Orba2::TmiPage_Orba2(
    int tag1, int tag2, const QString& name, const szCurrentTMI_ORBA2& record, QObject* parent)
    : OrbaPage(reinterpret_cast<unsigned char*>(&m_tmi), 2, parent)
{
    setViewTags(name, false, tag1, tag2);
    setRecordFrom(&record);
}

void TmiPage_Orba2::setNewTMI(const unsigned char* buf, int len)
{
    setNewCurrentOrExt(buf, len);
}

void TmiPage_Orba2::getXmlPageExt(QTextStream& out) const
{
    orba::writeXmlPageExt(out, extRecord());
}
