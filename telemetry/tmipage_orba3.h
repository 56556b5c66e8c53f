#pragma once

#include "telemetry/orba_page.h"

class QTextStream;

// One decoded record of ORBA version 3: a current record (kind 0xB0) by its own field mask, or
// an extended record (kind 0xB1).
class TmiPage_Orba3 : public OrbaPage
{
    Q_OBJECT
public:
    // A received buffer, kind byte first.
    TmiPage_Orba3(const unsigned char* buf, int len, QObject* parent = nullptr);
    explicit TmiPage_Orba3(const QByteArray& buf, QObject* parent = nullptr);
    // A filled record (nothing is marked present: the page has no mask) or extended record.
    explicit TmiPage_Orba3(const szCurrentTMI_ORBA3& record, QObject* parent = nullptr);
    explicit TmiPage_Orba3(const szExtTMI_ORBA3& ext, QObject* parent = nullptr);
    // Empty pages the telemetry view names and marks.
    TmiPage_Orba3(const QString& name, bool flag, QObject* parent = nullptr);
    TmiPage_Orba3(
        int tag1, int tag2, const QString& name, const szCurrentTMI_ORBA3& record, QObject* parent = nullptr);

    // Decodes buf anew: 0xB0 a current record, 0xB1 an extended record, anything else nothing.
    void setNewTMI(const unsigned char* buf, int len);
    void setExtTMI(const unsigned char* buf, int len) { OrbaPage::setExtTMI(buf, len); }

    const szCurrentTMI_ORBA3& currentTMI() const { return m_tmi; }
    QString getStrFormatOrba3() const { return formatText(); }
    // The extended page as XML text.
    void getXmlPageExt(QTextStream& out) const;

#define ORBA_PAGE_VERSION 3
#include "telemetry/orba_accessors.inc"
#include "telemetry/orba_ext_accessors.inc"

private:
    szCurrentTMI_ORBA3 m_tmi = {};
};
