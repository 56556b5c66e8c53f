#include "config_ui/zrk_form_config_track.h"

#include "ui_zrk_form_config_track.h"

#include <QRadioButton>

ZRK_Form_Config_Track::ZRK_Form_Config_Track(QWidget* parent)
    : QWidget(parent)
    , m_caps(zrkTrackCaps())
    , ui(new Ui::ZRK_Designer_Form_Config_Track)
{
    ui->setupUi(this);
    applyCaps();
    translateForm();
    initForm();
}

ZRK_Form_Config_Track::~ZRK_Form_Config_Track()
{
    delete ui;
}

void ZRK_Form_Config_Track::applyCaps() { }
void ZRK_Form_Config_Track::translateForm()
{
    //% "Трек"
    m_tabTitle = qtTrId("cfgt3_001");
}
void ZRK_Form_Config_Track::initForm() { }
void ZRK_Form_Config_Track::setDefaultParam() { }
void ZRK_Form_Config_Track::readFormParam(CXMLWorkData*) { }
void ZRK_Form_Config_Track::writeFormParam(CXMLWorkData*) { }
void ZRK_Form_Config_Track::deviceConnect() { }
void ZRK_Form_Config_Track::deviceDisconnect() { }
void ZRK_Form_Config_Track::setFormEnabled(bool) { }
QString ZRK_Form_Config_Track::getTmrFlags() const { return QString(); }
void ZRK_Form_Config_Track::setTmrFlags(const QString&) { }
QString ZRK_Form_Config_Track::getSensorAverage() const { return QString(); }
void ZRK_Form_Config_Track::setSensorAverage(const QString&) { }
int ZRK_Form_Config_Track::getParkingMode() const { return 1; }
void ZRK_Form_Config_Track::setParkingMode(int) { }
QString ZRK_Form_Config_Track::getGnssMode() const { return QString(); }
void ZRK_Form_Config_Track::setGnssMode(const QString&) { }
int ZRK_Form_Config_Track::getGnssCoord() const { return 0; }
void ZRK_Form_Config_Track::setGnssCoord(int) { }
int ZRK_Form_Config_Track::getLocConditionCode4Name(const QString&) const { return 0; }
QString ZRK_Form_Config_Track::getLocConditionName4Code(int) const { return QString(); }
QRadioButton* ZRK_Form_Config_Track::gnssButton(int) const { return nullptr; }
QString ZRK_Form_Config_Track::getFloatToStr(float value, int decimals) { return QString::number(double(value), 'f', decimals); }
void ZRK_Form_Config_Track::setRestrictionEnabled() { }
zrk::cfg::Values ZRK_Form_Config_Track::trackValues() const { return {}; }
zrk::cfg::Values ZRK_Form_Config_Track::locatorValues() const { return {}; }
void ZRK_Form_Config_Track::slot_stateChanged_Always_checkBox_MaxSpeed(int) { }
void ZRK_Form_Config_Track::slot_stateChanged_Additional_checkBox_Corner(int) { }
void ZRK_Form_Config_Track::slot_stateChanged_Additional_checkBox_Direction(int) { }
void ZRK_Form_Config_Track::slot_stateChanged_Additional_checkBox_Distance(int) { }
void ZRK_Form_Config_Track::slot_stateChanged_Additional_checkBox_Timer(int) { }
void ZRK_Form_Config_Track::slot_stateChanged_checkBox_BlockDist(int) { }
void ZRK_Form_Config_Track::slot_stateChanged_checkBox_BlockTimer(int) { }
void ZRK_Form_Config_Track::slot_stateChanged_checkBox_CoordFlt_Use(int) { }
void ZRK_Form_Config_Track::slot_valueChanged_spinBox_MinAlt(int) { }
void ZRK_Form_Config_Track::slot_valueChanged_spinBox_MaxAlt(int) { }
void ZRK_Form_Config_Track::slot_stateChanged_checkBox_DeltaNtp(int) { }
void ZRK_Form_Config_Track::slot_clicked_Coord_Stop_radioButton_NotAverage(bool) { }
void ZRK_Form_Config_Track::slot_clicked_Coord_Stop_radioButton_Average(bool) { }
void ZRK_Form_Config_Track::slot_clicked_Coord_Stop_radioButton_Fixed(bool) { }
void ZRK_Form_Config_Track::slot_clicked_radioButton_ParkingMode_1(bool) { }
void ZRK_Form_Config_Track::slot_clicked_radioButton_ParkingMode_2(bool) { }
void ZRK_Form_Config_Track::slot_pressed_pushButton_ParkingAccel() { emit openTabAccelRequested(); }
void ZRK_Form_Config_Track::slot_stateChanged_checkBox_ColdRstTimer(int) { }
void ZRK_Form_Config_Track::slot_stateChanged_checkBox_Tlm_Use(int) { }
void ZRK_Form_Config_Track::slot_stateChanged_checkBox_Loc_Use(int) { }
void ZRK_Form_Config_Track::slot_toggled_groupBox_CoordFlt_Use(bool) { }
void ZRK_Form_Config_Track::slot_stateChanged_checkBox_CoordFlt_RejCnt(int) { }
void ZRK_Form_Config_Track::slot_toggled_groupBox_ApFLT_Use(bool) { }
void ZRK_Form_Config_Track::slot_pressed_pushButton_BlackList() { }
