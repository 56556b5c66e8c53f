#include "telemetry/zrk_widget_tmi_page.h"

ZRK_Widget_Tmi_Page::ZRK_Widget_Tmi_Page(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("ZRK_Widget_Tmi_Page"));
    resize(1000, 700);
    translateForm();
}

ZRK_Widget_Tmi_Page::~ZRK_Widget_Tmi_Page() = default;

void ZRK_Widget_Tmi_Page::showForm()
{
    show();
    raise();
}

// Reading the file and showing its records is built by the telemetry-view work.
void ZRK_Widget_Tmi_Page::setFileTmi(const QString&) { }

void ZRK_Widget_Tmi_Page::translateForm()
{
    //% "Просмотр записей телеметрии"
    setWindowTitle(qtTrId("wtmi_002"));
}
