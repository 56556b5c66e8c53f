#include "service/zrk_widget_test.h"

ZRK_Widget_Test::ZRK_Widget_Test(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("ZRK_Widget_Test"));
    resize(800, 600);
    //% "Тест терминала"
    setWindowTitle(qtTrId("wtst_001"));
}

ZRK_Widget_Test::~ZRK_Widget_Test() = default;

void ZRK_Widget_Test::deviceConnect()
{
    m_connected = true;
}

void ZRK_Widget_Test::deviceDisconnect()
{
    m_connected = false;
}

// Showing the terminal's test answers is built by the service-tools work.
void ZRK_Widget_Test::receive_Device_Test(QByteArray*) { }
