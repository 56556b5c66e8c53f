#include "telemetry/zrk_form_tmi_production.h"

#include "telemetry/orba_page.h"
#include "ui_zrk_form_tmi_production.h"

#include <QLabel>

namespace {

// What a production line checks, in reading order: a field or one sub-value of it.
struct Item
{
    const char* labelId;
    int field;
    int sub; // -1: the field itself
};
const Item kItems[] = {
    //% "Питание"
    { QT_TRID_NOOP("tmio_041"), orba::F_Power, -1 },
    //% "Входы 1-8"
    { QT_TRID_NOOP("tmio_042"), orba::F_In1, -1 },
    //% "Аналоговый вход 1"
    { QT_TRID_NOOP("tmio_043"), orba::F_StateU_Ain1, -1 },
    //% "Аналоговый вход 2"
    { QT_TRID_NOOP("tmio_044"), orba::F_StateU_Ain2, -1 },
    //% "Выход 1"
    { QT_TRID_NOOP("tmio_045"), orba::F_Out1, orba::S_StateO1 },
    //% "Выход 2"
    { QT_TRID_NOOP("tmio_046"), orba::F_Out1, orba::S_StateO2 },
    //% "Спутники"
    { QT_TRID_NOOP("tmio_047"), orba::F_NaviState, orba::S_NaviStateSatelCount },
    //% "Навигация (фиксация)"
    { QT_TRID_NOOP("tmio_048"), orba::F_NaviState, orba::S_NaviStateMode },
    //% "Уровень GSM"
    { QT_TRID_NOOP("tmio_049"), orba::F_GSM, -1 },
    //% "Температура 1"
    { QT_TRID_NOOP("tmio_050"), orba::F_Temp1, -1 },
    //% "Температура 2"
    { QT_TRID_NOOP("tmio_051"), orba::F_Temp2, -1 },
    //% "Температура (точная) 1"
    { QT_TRID_NOOP("tmio_052"), orba::F_HPrecisionTemp1, -1 },
};

} // namespace

ZRK_Form_TMI_Production::ZRK_Form_TMI_Production(QWidget* parent)
    : QWidget(parent)
    , ui(new Ui::ZRK_Designer_Form_TMI_Production)
{
    ui->setupUi(this);
    setObjectName(QStringLiteral("ZRK_Form_TMI_Production"));
    int row = 0;
    for (const Item& item : kItems) {
        Q_UNUSED(item)
        auto* name = new QLabel;
        name->setProperty("role", "name");
        auto* value = new QLabel(orba::noDataText());
        value->setProperty("role", "value");
        value->setObjectName(QStringLiteral("Production_%1").arg(row));
        ui->Grid->addWidget(name, row / 2, (row % 2) * 2);
        ui->Grid->addWidget(value, row / 2, (row % 2) * 2 + 1);
        m_names << name;
        m_values << value;
        ++row;
    }
    translateForm();
}

ZRK_Form_TMI_Production::~ZRK_Form_TMI_Production() = default;

void ZRK_Form_TMI_Production::translateForm()
{
    for (int i = 0; i < m_names.size(); ++i)
        m_names[i]->setText(qtTrId(kItems[i].labelId));
}

void ZRK_Form_TMI_Production::setPage(const OrbaPage& page)
{
    for (int i = 0; i < m_values.size(); ++i) {
        const Item& item = kItems[i];
        QString text = item.sub < 0 ? page.fieldText(item.field) : page.subValueText(item.sub);
        if (item.field == orba::F_Out1 && page.isUsed(item.field))
            //% "ВКЛ"
            text = text == QLatin1String("1") ? qtTrId("tmio_053")
                                              //% "выкл"
                                              : qtTrId("tmio_054");
        if (m_values[i]->text() != text)
            m_values[i]->setText(text);
    }
}

QString ZRK_Form_TMI_Production::valueText(int i) const
{
    return m_values.value(i) ? m_values[i]->text() : QString();
}
