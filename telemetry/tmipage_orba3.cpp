#include "telemetry/tmipage_orba3.h"

#include <QTextStream>

TmiPage_Orba3::TmiPage_Orba3(const unsigned char* buf, int len, QObject* parent)
    : OrbaPage(reinterpret_cast<unsigned char*>(&m_tmi), 3, parent)
{
    keepBody(buf, len);
    setNewTMI(buf, len);
}

TmiPage_Orba3::TmiPage_Orba3(const QByteArray& buf, QObject* parent)
    : TmiPage_Orba3(reinterpret_cast<const unsigned char*>(buf.constData()), buf.size(), parent)
{
}

TmiPage_Orba3::TmiPage_Orba3(const szCurrentTMI_ORBA3& record, QObject* parent)
    : OrbaPage(reinterpret_cast<unsigned char*>(&m_tmi), 3, parent)
{
    setRecordFrom(&record);
}

TmiPage_Orba3::TmiPage_Orba3(const szExtTMI_ORBA3& ext, QObject* parent)
    : OrbaPage(reinterpret_cast<unsigned char*>(&m_tmi), 3, parent)
{
    setExtFrom(ext);
}

TmiPage_Orba3::TmiPage_Orba3(const QString& name, bool flag, QObject* parent)
    : OrbaPage(reinterpret_cast<unsigned char*>(&m_tmi), 3, parent)
{
    setViewTags(name, flag, 0, 0);
}

TmiPage_Orba3::TmiPage_Orba3(
    int tag1, int tag2, const QString& name, const szCurrentTMI_ORBA3& record, QObject* parent)
    : OrbaPage(reinterpret_cast<unsigned char*>(&m_tmi), 3, parent)
{
    setViewTags(name, false, tag1, tag2);
    setRecordFrom(&record);
}

void TmiPage_Orba3::setNewTMI(const unsigned char* buf, int len)
{
    setNewCurrentOrExt(buf, len);
}

void TmiPage_Orba3::getXmlPageExt(QTextStream& out) const
{
    orba::writeXmlPageExt(out, extRecord());
}
