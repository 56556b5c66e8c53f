#include "telemetry/zrk_widget_tmi_file.h"

ZRK_Widget_Tmi_File::ZRK_Widget_Tmi_File(const char* objectName, QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QString::fromLatin1(objectName));
    resize(1000, 700);
}

ZRK_Widget_Tmi_File::~ZRK_Widget_Tmi_File() = default;

void ZRK_Widget_Tmi_File::showForm()
{
    show();
    raise();
}

// Reading the file and showing its records is built by the telemetry-view work.
void ZRK_Widget_Tmi_File::setFileTmi(const QString&) { }

// Each view titles itself in its own constructor: the base one cannot reach the override.
ZRK_Widget_Tmi_Page::ZRK_Widget_Tmi_Page(QWidget* parent)
    : ZRK_Widget_Tmi_File("ZRK_Widget_Tmi_Page", parent)
{
    translateForm();
}

void ZRK_Widget_Tmi_Page::translateForm()
{
    //% "Просмотр записей телеметрии"
    setWindowTitle(qtTrId("wtmi_002"));
}

ZRK_Widget_Tmi_Table::ZRK_Widget_Tmi_Table(QWidget* parent)
    : ZRK_Widget_Tmi_File("ZRK_Widget_Tmi_Table", parent)
{
    translateForm();
}

void ZRK_Widget_Tmi_Table::translateForm()
{
    //% "Таблица записей телеметрии"
    setWindowTitle(qtTrId("wtmi_003"));
}
