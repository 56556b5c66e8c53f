#include "telemetry/zrk_tmi_record_area.h"

#include "telemetry/tmipage_orba3.h"
#include "telemetry/zrk_form_tmi_ext.h"
#include "telemetry/zrk_form_tmi_orba3.h"
#include "telemetry/zrk_form_tmi_production.h"
#include "zrk/zrk_host_api.h"

#include <QLabel>
#include <QStackedWidget>

namespace {

QString hexByte(unsigned char b)
{
    return QStringLiteral("%1").arg(b, 2, 16, QLatin1Char('0')).toUpper();
}

// The host's text for a code, asked once per code.
template <typename Code>
QString askOnce(QHash<Code, QString>& cache, int msg, Code code, const ZRK_Tmi_Record_Area::Send& send)
{
    auto it = cache.constFind(code);
    if (it != cache.constEnd())
        return *it;
    QString text;
    send(msg, code, reinterpret_cast<unsigned long>(&text));
    cache.insert(code, text);
    return text;
}

} // namespace

ZRK_Tmi_Record_Area::ZRK_Tmi_Record_Area(
    QStackedWidget* area, QWidget* unknownPage, QLabel* unknownText, Send send, QObject* parent)
    : QObject(parent)
    , m_area(area)
    , m_unknownPage(unknownPage)
    , m_unknownLabel(unknownText)
    , m_send(std::move(send))
{
}

void ZRK_Tmi_Record_Area::show(const std::shared_ptr<const OrbaPage>& page, orba::Form form)
{
    if (form == orba::Form::Extended) {
        if (!m_formExt) {
            m_formExt = new ZRK_Form_TMI_Ext;
            m_area->addWidget(m_formExt);
        }
        m_formExt->setPage(static_cast<const TmiPage_Orba3&>(*page));
        showWidget(m_formExt);
    } else if (form == orba::Form::Orba3Production) {
        if (!m_formProduction) {
            m_formProduction = new ZRK_Form_TMI_Production;
            m_area->addWidget(m_formProduction);
        }
        m_formProduction->setPage(*page);
        showWidget(m_formProduction);
    } else {
        if (!m_formOrba3) {
            m_formOrba3 = new ZRK_Form_TMI_Orba3;
            m_formOrba3->setTextSources([this](quint16 code) { return eventText(code); },
                [this](quint8 code) { return diagnosticText(code); });
            m_formOrba3->setHideAbsent(m_hideAbsent);
            m_area->addWidget(m_formOrba3);
        }
        m_formOrba3->setPage(page);
        showWidget(m_formOrba3);
    }
}

void ZRK_Tmi_Record_Area::showUnknown(const QByteArray& buf)
{
    const auto* data = reinterpret_cast<const unsigned char*>(buf.constData());
    //% "Неизвестный тип записи"
    m_unknownText = QStringLiteral("%1\n0x%2 0x%3 / %4")
                        .arg(qtTrId("tmiw_223"), hexByte(buf.size() > 0 ? data[0] : 0),
                            hexByte(buf.size() > 1 ? data[1] : 0))
                        .arg(buf.size());
    m_unknownLabel->setText(m_unknownText);
    showWidget(m_unknownPage);
}

QWidget* ZRK_Tmi_Record_Area::current() const
{
    return m_area->currentWidget();
}

void ZRK_Tmi_Record_Area::setHideAbsent(bool hide)
{
    m_hideAbsent = hide;
    if (m_formOrba3)
        m_formOrba3->setHideAbsent(hide);
}

void ZRK_Tmi_Record_Area::translateForm()
{
    if (m_formOrba3)
        m_formOrba3->translateForm();
    if (m_formProduction)
        m_formProduction->translateForm();
}

void ZRK_Tmi_Record_Area::showWidget(QWidget* w)
{
    if (m_area->currentWidget() != w)
        m_area->setCurrentWidget(w);
}

QString ZRK_Tmi_Record_Area::eventText(quint16 code)
{
    return askOnce(m_eventTexts, ZRK_MSG_EVENT_CODE_TEXT, code, m_send);
}

QString ZRK_Tmi_Record_Area::diagnosticText(quint8 code)
{
    return askOnce(m_diagnosticTexts, ZRK_MSG_DIAGNOSTIC_CODE_TEXT, code, m_send);
}
