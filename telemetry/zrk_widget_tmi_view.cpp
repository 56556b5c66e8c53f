#include "telemetry/zrk_widget_tmi_view.h"

ZRK_Widget_Tmi_View::ZRK_Widget_Tmi_View(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("ZRK_Widget_Tmi_View"));
    resize(1000, 700);
    translateForm();
}

ZRK_Widget_Tmi_View::~ZRK_Widget_Tmi_View() = default;

void ZRK_Widget_Tmi_View::deviceConnect()
{
    m_connected = true;
}

void ZRK_Widget_Tmi_View::deviceDisconnect()
{
    m_connected = false;
}

void ZRK_Widget_Tmi_View::translateForm()
{
    //% "Телеметрия"
    setWindowTitle(qtTrId("wtmi_001"));
}

void ZRK_Widget_Tmi_View::closeForm()
{
    close();
}

// Requesting, decoding and showing records is built by the telemetry-view work; until then the
// operations below accept their message and do nothing.
void ZRK_Widget_Tmi_View::deviceDisconnectRCS() { }
void ZRK_Widget_Tmi_View::showForm(const QString&, const szConfigParam&) { }
bool ZRK_Widget_Tmi_View::isTestMode(QByteArray*)
{
    return false;
}
void ZRK_Widget_Tmi_View::setTmiCur(QByteArray*) { }
void ZRK_Widget_Tmi_View::setTmiCurNumber(QByteArray*) { }
void ZRK_Widget_Tmi_View::setTmiCurLeft(QByteArray*) { }
void ZRK_Widget_Tmi_View::setTmiCurRight(QByteArray*) { }
void ZRK_Widget_Tmi_View::setTmiCurExt(QByteArray*) { }
void ZRK_Widget_Tmi_View::setReceive_NMEA(QByteArray*) { }
void ZRK_Widget_Tmi_View::setTmiCmndParamValue(QByteArray*) { }
void ZRK_Widget_Tmi_View::setTmiCmnd(QByteArray*) { }
void ZRK_Widget_Tmi_View::setReceiveFls_UserCommand(QByteArray*) { }
void ZRK_Widget_Tmi_View::getParamFLSFirmwareSensor(QByteArray*) { }
void ZRK_Widget_Tmi_View::setToucheMemory(quint64) { }
void ZRK_Widget_Tmi_View::setCurrentAnalogValue(szADValue_UN*) { }
void ZRK_Widget_Tmi_View::receiveCurrentDispValue(quint32) { }
void ZRK_Widget_Tmi_View::setRFID(quint64, quint8) { }
void ZRK_Widget_Tmi_View::setReceiveTahoQuest(QByteArray*) { }
void ZRK_Widget_Tmi_View::setReceiveTahoFile_Read(bool) { }
void ZRK_Widget_Tmi_View::setReceiveFlsDataFile_Quest(QByteArray*) { }
void ZRK_Widget_Tmi_View::setReceiveFlsDataFile_Read(bool) { }
