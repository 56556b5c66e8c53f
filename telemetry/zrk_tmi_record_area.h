#pragma once

#include "telemetry/orba_dispatch.h"

#include <QHash>
#include <QObject>

#include <functional>
#include <memory>

class OrbaPage;
class QLabel;
class QStackedWidget;
class QWidget;
class ZRK_Form_TMI_Ext;
class ZRK_Form_TMI_Orba3;
class ZRK_Form_TMI_Production;

// The record area of the telemetry view: a decoded record on the form of its kind (the record
// form, the compact production form, the extended record), each form made the first time it is
// needed, or the unknown-record text. The host's texts for event and diagnostic codes are asked
// once per code.
class ZRK_Tmi_Record_Area : public QObject
{
    Q_OBJECT

public:
    using Send = std::function<unsigned long(int msg, unsigned long w, unsigned long l)>;

    ZRK_Tmi_Record_Area(
        QStackedWidget* area, QWidget* unknownPage, QLabel* unknownText, Send send, QObject* parent);

    void show(const std::shared_ptr<const OrbaPage>& page, orba::Form form);
    // "Неизвестный тип записи" with the kind and version bytes and the length.
    void showUnknown(const QByteArray& buf);
    QString unknownText() const { return m_unknownText; }
    QWidget* current() const;
    ZRK_Form_TMI_Orba3* formOrba3() const { return m_formOrba3; }
    void setHideAbsent(bool hide);
    void translateForm();

private:
    void showWidget(QWidget* w);
    QString eventText(quint16 code);
    QString diagnosticText(quint8 code);

    QStackedWidget* m_area;
    QWidget* m_unknownPage;
    QLabel* m_unknownLabel;
    Send m_send;
    bool m_hideAbsent = false;
    QString m_unknownText;
    ZRK_Form_TMI_Orba3* m_formOrba3 = nullptr;
    ZRK_Form_TMI_Ext* m_formExt = nullptr;
    ZRK_Form_TMI_Production* m_formProduction = nullptr;
    QHash<quint16, QString> m_eventTexts;
    QHash<quint8, QString> m_diagnosticTexts;
};
