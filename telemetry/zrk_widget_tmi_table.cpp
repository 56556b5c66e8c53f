#include "telemetry/zrk_widget_tmi_table.h"

ZRK_Widget_Tmi_Table::ZRK_Widget_Tmi_Table(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("ZRK_Widget_Tmi_Table"));
    resize(1000, 700);
    translateForm();
}

ZRK_Widget_Tmi_Table::~ZRK_Widget_Tmi_Table() = default;

void ZRK_Widget_Tmi_Table::showForm()
{
    show();
    raise();
}

// Reading the file and showing its records is built by the telemetry-view work.
void ZRK_Widget_Tmi_Table::setFileTmi(const QString&) { }

void ZRK_Widget_Tmi_Table::translateForm()
{
    //% "Таблица записей телеметрии"
    setWindowTitle(qtTrId("wtmi_003"));
}
