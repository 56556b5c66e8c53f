#include "config_ui/zrk_form_config_track.h"

#include "config_model/xml_workdata.h"
#include "config_ui/zrk_form_config_track_locator_blist.h"
#include "ui_zrk_form_config_track.h"

#include <algorithm>

using zrk::cfg::BranchDecl;
using zrk::cfg::KeyDecl;
using zrk::cfg::Values;

namespace {

constexpr int kGnssButtons = 6;
constexpr int kAltitudeGap = 100; // metres kept between the two ends of the altitude window
constexpr int kAltitudeMin = -32768;
constexpr int kAltitudeMax = 32767;
constexpr int kCounterMax = 255;
constexpr int kDeltaNtpOn = 5;
constexpr int kColdRstOn = 5;
constexpr int kRejCntOn = 2;
constexpr int kReceiverCapsBit = 21;
// Condition list labels: which of the two conditions applies ("GLOBAL"/"condition" 0 or 1).
const char* const kConditionIds[] = {
    //% "При отсутствии координат GNSS"
    QT_TRID_NOOP("cfgt3_065"),
    //% "Всегда"
    QT_TRID_NOOP("cfgt3_066"),
};

QString bit(bool on)
{
    return on ? QStringLiteral("1") : QStringLiteral("0");
}

bool flagAt(const QString& flags, int i)
{
    return i < flags.size() && flags.at(i) == QLatin1Char('1');
}

} // namespace

ZRK_Form_Config_Track::ZRK_Form_Config_Track(QWidget* parent)
    : ZRK_Form_Config_Track(zrkTrackCaps(), parent)
{
}

ZRK_Form_Config_Track::ZRK_Form_Config_Track(const ZRK_Track_Caps& caps, QWidget* parent)
    : ZRK_Form_Config_Page(parent)
    , m_caps(caps)
    , ui(new Ui::ZRK_Designer_Form_Config_Track)
    , m_trackDecl(zrk::cfg::trackBranch(caps))
    , m_locatorDecl(zrk::cfg::locatorBranch(caps))
{
    ui->setupUi(this);
    m_trackBind = bindBranch(m_trackDecl);
    m_locatorBind = bindBranch(m_locatorDecl);
    applyCaps();
    translateForm();
    initForm();
}

ZRK_Form_Config_Track::~ZRK_Form_Config_Track()
{
    delete ui;
}

// ---- binding the form to the declared keys -------------------------------------------------------

QVector<ZRK_Config_Binding> ZRK_Form_Config_Track::bindBranch(const BranchDecl& branch)
{
    QVector<ZRK_Config_Binding> out;
    for (const KeyDecl& d : branch.keys) {
        ZRK_Config_Binding b(this, d);
        if (!b.isValid())
            qWarning("track page: no widget for %s/%s", qPrintable(d.group), qPrintable(d.key));
        // Plain spin boxes take their range from the declaration.
        if (auto* spin = qobject_cast<QSpinBox*>(b.widget());
            spin && !b.byRule() && d.type == zrk::cfg::KeyType::Integer && !d.zeroMeansOff)
            spin->setRange(d.min, d.max);
        out << b;
    }
    return out;
}

// ---- the rules behind some keys (see the declarations' widgets) ---------------------------------

int ZRK_Form_Config_Track::getAngleMode() const
{
    if (ui->Additional_checkBox_Corner->isChecked())
        return 1;
    return ui->Additional_checkBox_Direction->isChecked() ? 2 : 0;
}

void ZRK_Form_Config_Track::setAngleMode(int mode)
{
    ui->Additional_checkBox_Corner->setChecked(mode == 1);
    ui->Additional_checkBox_Direction->setChecked(mode == 2);
}

int ZRK_Form_Config_Track::getMinAlt() const
{
    return ui->spinBox_MinAlt->value();
}

// The window is opened wide before "minAlt" is set, so that a file's pair is taken as it stands
// wherever the boxes were; the two slots then keep the gap.
void ZRK_Form_Config_Track::setMinAlt(int metres)
{
    ui->spinBox_MaxAlt->setMinimum(kAltitudeMin);
    ui->spinBox_MinAlt->setMaximum(kAltitudeMax);
    ui->spinBox_MinAlt->setValue(metres);
    slot_valueChanged_spinBox_MinAlt(ui->spinBox_MinAlt->value());
}

int ZRK_Form_Config_Track::getMaxAlt() const
{
    return ui->spinBox_MaxAlt->value();
}

void ZRK_Form_Config_Track::setMaxAlt(int metres)
{
    ui->spinBox_MaxAlt->setValue(metres);
    slot_valueChanged_spinBox_MaxAlt(ui->spinBox_MaxAlt->value());
}

int ZRK_Form_Config_Track::getDeltaNtp() const
{
    return ui->spinBox_DeltaNtp->value();
}

void ZRK_Form_Config_Track::setDeltaNtp(int seconds)
{
    setCounter(ui->checkBox_DeltaNtp, ui->spinBox_DeltaNtp, seconds, kDeltaNtpOn);
}

int ZRK_Form_Config_Track::getColdRstTimer() const
{
    return ui->spinBox_ColdRstTimer->value();
}

void ZRK_Form_Config_Track::setColdRstTimer(int value)
{
    setCounter(ui->checkBox_ColdRstTimer, ui->spinBox_ColdRstTimer, value, kColdRstOn);
}

int ZRK_Form_Config_Track::getRejCnt() const
{
    return ui->spinBox_CoordFlt_RejCnt->value();
}

void ZRK_Form_Config_Track::setRejCnt(int count)
{
    setCounter(ui->checkBox_CoordFlt_RejCnt, ui->spinBox_CoordFlt_RejCnt, count, kRejCntOn);
}

int ZRK_Form_Config_Track::getAverageMode() const
{
    if (ui->Coord_Stop_radioButton_NotAverage->isChecked())
        return 0;
    // Mode 2 is never written: anything but "none" and "fixed" is averaging.
    return ui->Coord_Stop_radioButton_Fixed->isChecked() ? 3 : 1;
}

void ZRK_Form_Config_Track::setAverageMode(int mode)
{
    switch (mode) {
    case 0:
        ui->Coord_Stop_radioButton_NotAverage->setChecked(true);
        break;
    case 1:
        ui->Coord_Stop_radioButton_Average->setChecked(true);
        break;
    case 3:
        ui->Coord_Stop_radioButton_Fixed->setChecked(true);
        break;
    default: // unknown modes leave the choice as it was
        break;
    }
    enableSensorAverageForMode();
}

int ZRK_Form_Config_Track::getLocCondition() const
{
    return getLocConditionCode4Name(ui->comboBox_Loc_Condition->currentText());
}

void ZRK_Form_Config_Track::setLocCondition(int code)
{
    ui->comboBox_Loc_Condition->setCurrentText(getLocConditionName4Code(code));
}

QStringList ZRK_Form_Config_Track::getBlackList() const
{
    QStringList rows;
    for (int i = 0; m_blackList && i < ZRK_Form_Config_Track_Locator_BList::kRows; ++i)
        rows << m_blackList->getRow(i);
    return rows;
}

void ZRK_Form_Config_Track::setBlackList(const QStringList& rows)
{
    for (int i = 0; m_blackList && i < ZRK_Form_Config_Track_Locator_BList::kRows; ++i)
        m_blackList->setRow(i, rows.value(i));
}

void ZRK_Form_Config_Track::applyValues(
    const BranchDecl& branch, const QVector<ZRK_Config_Binding>& bindings, const Values& values, bool reset)
{
    for (int i = 0; i < branch.keys.size() && i < values.size(); ++i) {
        if (reset && branch.keys[i].keptOnReset)
            continue;
        bindings[i].set(values[i]);
    }
}

Values ZRK_Form_Config_Track::trackValues() const
{
    return ZRK_Config_Binding::getAll(m_trackBind);
}

Values ZRK_Form_Config_Track::locatorValues() const
{
    return ZRK_Config_Binding::getAll(m_locatorBind);
}

Values ZRK_Form_Config_Track::shownValues(int branch) const
{
    return branch == 0 ? trackValues() : locatorValues();
}

void ZRK_Form_Config_Track::showValues(int branch, const Values& values)
{
    if (branch == 0)
        applyValues(m_trackDecl, m_trackBind, values, false);
    else
        applyValues(m_locatorDecl, m_locatorBind, values, false);
    runDependentSlots();
}

// ---- the contract --------------------------------------------------------------------------------

void ZRK_Form_Config_Track::applyCaps()
{
    const ZRK_Track_Caps& c = m_caps;
    ui->checkBox_Average_Taho->setVisible(c.avgSensor4);
    ui->checkBox_Average_Accel_SH5->setVisible(c.avgSensorCount >= 5);

    ui->radioButton_ParkingMode_1->setVisible(c.parkingModeSelect);
    ui->radioButton_ParkingMode_2->setVisible(c.parkingModeSelect);
    ui->label_ParkingMode->setVisible(!c.parkingModeSelect);
    if (!c.parkingModeSelect)
        ui->pushButton_ParkingAccel->setEnabled(true);

    ui->checkBox_DeltaNtp->setVisible(c.rejectDeltaNtp);
    ui->spinBox_DeltaNtp->setVisible(c.rejectDeltaNtp);

    ui->groupBox_Gnss->setVisible(c.gnssPresent);
    for (int i = 0; i < kGnssButtons; ++i)
        gnssButton(i)->setVisible(i < c.gnssSystems.size() && !c.gnssSystems[i].mode.isEmpty());
    ui->groupBox_Datum->setVisible(c.gnssDatum);
    ui->checkBox_Epo->setVisible(c.gnssEpo);
    ui->checkBox_Agps->setVisible(c.gnssAgps);
    ui->groupBox_Assist->setVisible(c.gnssEpo || c.gnssAgps);
    ui->label_Angle->setVisible(c.gnssAngle);
    ui->spinBox_Angle->setVisible(c.gnssAngle);
    ui->checkBox_ColdRstTimer->setVisible(c.coldRestartTimer);
    ui->spinBox_ColdRstTimer->setVisible(c.coldRestartTimer);
    ui->frame_Receiver->setVisible(false);

    ui->groupBox_Tlm->setVisible(c.locatorTlm);
    ui->groupBox_Loc->setVisible(c.locatorGlobal);
    ui->label_Loc_AddTlm->setVisible(c.locatorAddTlm);
    ui->comboBox_Loc_AddTlm->setVisible(c.locatorAddTlm);
    ui->groupBox_CoordFlt_Use->setVisible(c.locatorCoordFilter);
    ui->checkBox_CoordFlt_RecheckWiFi->setVisible(c.locatorRecheckWifi);
    ui->groupBox_ApFLT_Use->setVisible(c.locatorApFilter);
    ui->pushButton_BlackList->setVisible(c.locatorBlackList);
    ui->tabWidget_Track->setTabVisible(
        ui->tabWidget_Track->indexOf(ui->tab_Locator), c.locatorTlm || c.locatorGlobal);

    ui->widget_Tlm_Source->applyCaps(c.altNavSources);
    ui->widget_Loc_Source->applyCaps(c.altNavSources);
    ui->widget_Tlm_Period->applyCaps(20, 10, 300, 10);
    ui->widget_Loc_Period->applyCaps(60, 20, 300, 20);
}

void ZRK_Form_Config_Track::translateForm()
{
    // The condition list is matched by its text, so its choice survives a change of language.
    const int condition = std::max(0, ui->comboBox_Loc_Condition->currentIndex());
    ui->retranslateUi(this);
    ui->widget_Tlm_Source->translateForm();
    ui->widget_Loc_Source->translateForm();
    ui->widget_Tlm_Period->translateForm();
    ui->widget_Loc_Period->translateForm();
    if (m_blackList)
        m_blackList->translateForm();
    for (int i = 0; i < kGnssButtons && i < m_caps.gnssSystems.size(); ++i) {
        const QString& id = m_caps.gnssSystems[i].labelId;
        gnssButton(i)->setText(id.isEmpty() ? QString() : qtTrId(id.toLatin1().constData()));
    }
    ui->comboBox_Loc_Condition->clear();
    for (const char* id : kConditionIds)
        ui->comboBox_Loc_Condition->addItem(qtTrId(id));
    ui->comboBox_Loc_Condition->setCurrentIndex(condition);
    setRangeTips();
    //% "Трек"
    m_tabTitle = qtTrId("cfgt3_001");
}

// Every bound number box tells its range, straight from the declaration.
void ZRK_Form_Config_Track::setRangeTips()
{
    auto tips = [](const BranchDecl& branch, const QVector<ZRK_Config_Binding>& bindings) {
        for (int i = 0; i < branch.keys.size(); ++i) {
            const KeyDecl& d = branch.keys[i];
            QWidget* w = bindings[i].widget();
            if (!w || !(qobject_cast<QSpinBox*>(w) || qobject_cast<QDoubleSpinBox*>(w)))
                continue;
            QString tip;
            if (d.type == zrk::cfg::KeyType::Decimal)
                tip = qtTrId("cfgt3_100").arg(d.min / 10.0, 0, 'f', 1).arg(d.max / 10.0, 0, 'f', 1);
            else if (d.zeroMeansOff)
                tip = qtTrId("cfgt3_102").arg(d.min).arg(d.max);
            else
                tip = qtTrId("cfgt3_100").arg(d.min).arg(d.max);
            w->setToolTip(zrk::cfg::declaredKeyLabel(d) + QLatin1Char('\n') + tip);
        }
    };
    tips(m_trackDecl, m_trackBind);
    tips(m_locatorDecl, m_locatorBind);
}

void ZRK_Form_Config_Track::initForm()
{
    m_blackList = new ZRK_Form_Config_Track_Locator_BList(this);
    m_blackList->translateForm();

    auto onState = [this](QCheckBox* box, void (ZRK_Form_Config_Track::*slot)(int)) {
        connect(box, &QCheckBox::stateChanged, this, slot);
    };
    auto onClick = [this](QRadioButton* button, void (ZRK_Form_Config_Track::*slot)(bool)) {
        connect(button, &QRadioButton::clicked, this, slot);
    };
    using F = ZRK_Form_Config_Track;
    onState(ui->Always_checkBox_MaxSpeed, &F::slot_stateChanged_Always_checkBox_MaxSpeed);
    onState(ui->Additional_checkBox_Corner, &F::slot_stateChanged_Additional_checkBox_Corner);
    onState(ui->Additional_checkBox_Direction, &F::slot_stateChanged_Additional_checkBox_Direction);
    onState(ui->Additional_checkBox_Distance, &F::slot_stateChanged_Additional_checkBox_Distance);
    onState(ui->Additional_checkBox_Timer, &F::slot_stateChanged_Additional_checkBox_Timer);
    onState(ui->checkBox_BlockDist, &F::slot_stateChanged_checkBox_BlockDist);
    onState(ui->checkBox_BlockTimer, &F::slot_stateChanged_checkBox_BlockTimer);
    onState(ui->checkBox_CoordFlt_Use, &F::slot_stateChanged_checkBox_CoordFlt_Use);
    onState(ui->checkBox_DeltaNtp, &F::slot_stateChanged_checkBox_DeltaNtp);
    onState(ui->checkBox_ColdRstTimer, &F::slot_stateChanged_checkBox_ColdRstTimer);
    onState(ui->checkBox_Tlm_Use, &F::slot_stateChanged_checkBox_Tlm_Use);
    onState(ui->checkBox_Loc_Use, &F::slot_stateChanged_checkBox_Loc_Use);
    onState(ui->checkBox_CoordFlt_RejCnt, &F::slot_stateChanged_checkBox_CoordFlt_RejCnt);
    connect(ui->spinBox_MinAlt, QOverload<int>::of(&QSpinBox::valueChanged), this,
        &F::slot_valueChanged_spinBox_MinAlt);
    connect(ui->spinBox_MaxAlt, QOverload<int>::of(&QSpinBox::valueChanged), this,
        &F::slot_valueChanged_spinBox_MaxAlt);
    onClick(ui->Coord_Stop_radioButton_NotAverage, &F::slot_clicked_Coord_Stop_radioButton_NotAverage);
    onClick(ui->Coord_Stop_radioButton_Average, &F::slot_clicked_Coord_Stop_radioButton_Average);
    onClick(ui->Coord_Stop_radioButton_Fixed, &F::slot_clicked_Coord_Stop_radioButton_Fixed);
    onClick(ui->radioButton_ParkingMode_1, &F::slot_clicked_radioButton_ParkingMode_1);
    onClick(ui->radioButton_ParkingMode_2, &F::slot_clicked_radioButton_ParkingMode_2);
    connect(
        ui->pushButton_ParkingAccel, &QPushButton::pressed, this, &F::slot_pressed_pushButton_ParkingAccel);
    connect(ui->pushButton_BlackList, &QPushButton::pressed, this, &F::slot_pressed_pushButton_BlackList);
    connect(ui->groupBox_CoordFlt_Use, &QGroupBox::toggled, this, &F::slot_toggled_groupBox_CoordFlt_Use);
    connect(ui->groupBox_ApFLT_Use, &QGroupBox::toggled, this, &F::slot_toggled_groupBox_ApFLT_Use);
    connect(
        ui->widget_Tlm_Source, &ZRK_Widget_AltNav_Source::openTabRSRequested, this, &F::openTabRSRequested);
    connect(
        ui->widget_Loc_Source, &ZRK_Widget_AltNav_Source::openTabRSRequested, this, &F::openTabRSRequested);
    setDefaultParam();
}

void ZRK_Form_Config_Track::setDefaultParam()
{
    ui->widget_Tlm_Period->setDefault();
    ui->widget_Loc_Period->setDefault();
    ui->widget_Tlm_Source->setDefault();
    ui->widget_Loc_Source->setDefault();
    applyValues(m_trackDecl, m_trackBind, zrk::cfg::resetValues(m_trackDecl), true);
    applyValues(m_locatorDecl, m_locatorBind, zrk::cfg::resetValues(m_locatorDecl), true);
    runDependentSlots();
}

void ZRK_Form_Config_Track::readFormParam(CXMLWorkData* root)
{
    if (!root)
        return;
    applyValues(m_trackDecl, m_trackBind, zrk::cfg::readBranch(root, m_trackDecl), false);
    if (!m_locatorDecl.keys.isEmpty())
        applyValues(m_locatorDecl, m_locatorBind, zrk::cfg::readBranch(root, m_locatorDecl), false);
    runDependentSlots();
}

void ZRK_Form_Config_Track::writeFormParam(CXMLWorkData* root)
{
    if (!root)
        return;
    zrk::cfg::writeBranch(root, m_trackDecl, trackValues());
    zrk::cfg::writeBranch(root, m_locatorDecl, locatorValues());
}

void ZRK_Form_Config_Track::deviceConnect()
{
    if (m_caps.gnssReceiver && m_caps.deviceCapsQuery)
        ui->frame_Receiver->setVisible((m_caps.deviceCapsQuery() >> kReceiverCapsBit) & 1u);
}

void ZRK_Form_Config_Track::deviceDisconnect()
{
    ui->frame_Receiver->setVisible(false);
}

void ZRK_Form_Config_Track::setFormEnabled(bool) { }

// Brings every dependent widget in line with the values, as the user's own clicks would.
void ZRK_Form_Config_Track::runDependentSlots()
{
    slot_stateChanged_Always_checkBox_MaxSpeed(ui->Always_checkBox_MaxSpeed->checkState());
    slot_stateChanged_Additional_checkBox_Corner(ui->Additional_checkBox_Corner->checkState());
    slot_stateChanged_Additional_checkBox_Direction(ui->Additional_checkBox_Direction->checkState());
    slot_stateChanged_Additional_checkBox_Distance(ui->Additional_checkBox_Distance->checkState());
    slot_stateChanged_Additional_checkBox_Timer(ui->Additional_checkBox_Timer->checkState());
    slot_stateChanged_checkBox_BlockDist(ui->checkBox_BlockDist->checkState());
    slot_stateChanged_checkBox_BlockTimer(ui->checkBox_BlockTimer->checkState());
    enableSensorAverageForMode();
    slot_stateChanged_checkBox_CoordFlt_Use(ui->checkBox_CoordFlt_Use->checkState());
    slot_clicked_radioButton_ParkingMode_2(ui->radioButton_ParkingMode_2->isChecked());
    slot_stateChanged_checkBox_Tlm_Use(ui->checkBox_Tlm_Use->checkState());
    slot_stateChanged_checkBox_Loc_Use(ui->checkBox_Loc_Use->checkState());
    slot_toggled_groupBox_CoordFlt_Use(ui->groupBox_CoordFlt_Use->isChecked());
    slot_toggled_groupBox_ApFLT_Use(ui->groupBox_ApFLT_Use->isChecked());
}

// ---- the special rules ---------------------------------------------------------------------------

QString ZRK_Form_Config_Track::getTmrFlags() const
{
    return bit(ui->checkBox_TmrFlag_In1->isChecked()) + bit(ui->checkBox_TmrFlag_Engine->isChecked())
        + bit(ui->checkBox_TmrFlag_Taho->isChecked()) + bit(ui->checkBox_TmrFlag_Vibro->isChecked());
}

void ZRK_Form_Config_Track::setTmrFlags(const QString& flags)
{
    ui->checkBox_TmrFlag_In1->setChecked(flagAt(flags, 0));
    ui->checkBox_TmrFlag_Engine->setChecked(flagAt(flags, 1));
    ui->checkBox_TmrFlag_Taho->setChecked(flagAt(flags, 2));
    ui->checkBox_TmrFlag_Vibro->setChecked(flagAt(flags, 3));
}

QString ZRK_Form_Config_Track::getSensorAverage() const
{
    QString s = bit(ui->checkBox_Average_IN1->isChecked()) + bit(ui->checkBox_Average_Accel->isChecked())
        + bit(ui->checkBox_Average_Engine->isChecked());
    // A model without the fourth sensor writes "0" whatever the hidden box holds.
    s += bit(m_caps.avgSensor4 && ui->checkBox_Average_Taho->isChecked());
    if (m_caps.avgSensorCount >= 5)
        s += bit(ui->checkBox_Average_Accel_SH5->isChecked());
    return s;
}

void ZRK_Form_Config_Track::setSensorAverage(const QString& flags)
{
    ui->checkBox_Average_IN1->setChecked(flagAt(flags, 0));
    ui->checkBox_Average_Accel->setChecked(flagAt(flags, 1));
    ui->checkBox_Average_Engine->setChecked(flagAt(flags, 2));
    ui->checkBox_Average_Taho->setChecked(flagAt(flags, 3));
    ui->checkBox_Average_Accel_SH5->setChecked(flagAt(flags, 4));
}

int ZRK_Form_Config_Track::getParkingMode() const
{
    if (!m_caps.parkingModeSelect)
        return 1;
    return ui->radioButton_ParkingMode_2->isChecked() ? 1 : 0;
}

void ZRK_Form_Config_Track::setParkingMode(int mode)
{
    if (!m_caps.parkingModeSelect)
        return;
    (mode == 0 ? ui->radioButton_ParkingMode_1 : ui->radioButton_ParkingMode_2)->setChecked(true);
    slot_clicked_radioButton_ParkingMode_2(mode != 0);
}

QString ZRK_Form_Config_Track::getGnssMode() const
{
    for (int i = 0; i < kGnssButtons && i < m_caps.gnssSystems.size(); ++i) {
        if (!m_caps.gnssSystems[i].mode.isEmpty() && gnssButton(i)->isChecked())
            return m_caps.gnssSystems[i].mode;
    }
    return m_caps.gnssModeDefault;
}

void ZRK_Form_Config_Track::setGnssMode(const QString& mode)
{
    auto checkFirst = [this](const QString& wanted) {
        for (int i = 0; i < kGnssButtons && i < m_caps.gnssSystems.size(); ++i) {
            if (!m_caps.gnssSystems[i].mode.isEmpty() && m_caps.gnssSystems[i].mode == wanted) {
                gnssButton(i)->setChecked(true);
                return true;
            }
        }
        return false;
    };
    if (!checkFirst(mode))
        checkFirst(m_caps.gnssModeDefault);
}

int ZRK_Form_Config_Track::getGnssCoord() const
{
    return ui->radioButton_Coord_2->isChecked() ? 1 : 0;
}

void ZRK_Form_Config_Track::setGnssCoord(int datum)
{
    (datum == 1 ? ui->radioButton_Coord_2 : ui->radioButton_Coord_1)->setChecked(true);
}

int ZRK_Form_Config_Track::getLocConditionCode4Name(const QString& text) const
{
    return text == qtTrId(kConditionIds[1]) ? 1 : 0;
}

QString ZRK_Form_Config_Track::getLocConditionName4Code(int code) const
{
    return qtTrId(kConditionIds[code == 1 ? 1 : 0]);
}

QRadioButton* ZRK_Form_Config_Track::gnssButton(int index) const
{
    QRadioButton* const buttons[kGnssButtons] = { ui->radioButton_Gnss_0, ui->radioButton_Gnss_1,
        ui->radioButton_Gnss_2, ui->radioButton_Gnss_3, ui->radioButton_Gnss_4, ui->radioButton_Gnss_5 };
    return index >= 0 && index < kGnssButtons ? buttons[index] : nullptr;
}

QString ZRK_Form_Config_Track::getFloatToStr(float value, int decimals)
{
    return QString::number(double(value), 'f', decimals);
}

void ZRK_Form_Config_Track::setRestrictionEnabled()
{
    ui->groupBox_LimPoint->setEnabled(ui->Additional_checkBox_Corner->isChecked()
        || ui->Additional_checkBox_Direction->isChecked() || ui->Additional_checkBox_Distance->isChecked()
        || ui->Additional_checkBox_Timer->isChecked());
}

void ZRK_Form_Config_Track::setCounter(QAbstractButton* box, QSpinBox* spin, int value, int onValue)
{
    {
        const QSignalBlocker block(box);
        box->setChecked(value != 0);
    }
    applyCounter(spin, value != 0, onValue);
    if (value != 0)
        spin->setValue(value);
}

// An optional counter: on, it counts 1..255 from its usual value; off, it is held at 0.
void ZRK_Form_Config_Track::applyCounter(QSpinBox* spin, bool on, int onValue)
{
    spin->setRange(on ? 1 : 0, on ? kCounterMax : 0);
    spin->setValue(on ? onValue : 0);
    spin->setEnabled(on);
}

void ZRK_Form_Config_Track::enableSensorAverageForMode()
{
    if (ui->Coord_Stop_radioButton_NotAverage->isChecked())
        ui->groupBox_SensorAverage->setEnabled(false);
    else if (ui->Coord_Stop_radioButton_Average->isChecked() || ui->Coord_Stop_radioButton_Fixed->isChecked())
        ui->groupBox_SensorAverage->setEnabled(ui->checkBox_CoordFlt_Use->isChecked());
}

// ---- slots ---------------------------------------------------------------------------------------

void ZRK_Form_Config_Track::slot_stateChanged_Always_checkBox_MaxSpeed(int state)
{
    ui->Always_spinBox_MaxSpeed->setEnabled(state != Qt::Unchecked);
    emit speedingParamChanged(state != Qt::Unchecked);
}

void ZRK_Form_Config_Track::slot_stateChanged_Additional_checkBox_Corner(int state)
{
    if (state != Qt::Unchecked)
        ui->Additional_checkBox_Direction->setChecked(false);
    ui->Additional_spinBox_Corner->setEnabled(state != Qt::Unchecked);
    setRestrictionEnabled();
}

void ZRK_Form_Config_Track::slot_stateChanged_Additional_checkBox_Direction(int state)
{
    if (state != Qt::Unchecked)
        ui->Additional_checkBox_Corner->setChecked(false);
    setRestrictionEnabled();
}

void ZRK_Form_Config_Track::slot_stateChanged_Additional_checkBox_Distance(int state)
{
    ui->Additional_spinBox_Distance->setEnabled(state != Qt::Unchecked);
    setRestrictionEnabled();
}

void ZRK_Form_Config_Track::slot_stateChanged_Additional_checkBox_Timer(int state)
{
    // Exactly these three: the other timer flags stay as they are.
    const bool on = state != Qt::Unchecked;
    ui->Additional_spinBox_Timer->setEnabled(on);
    ui->checkBox_TmrFlag_In1->setEnabled(on);
    ui->Additional_spinBox_StopTimer->setEnabled(on);
    setRestrictionEnabled();
}

void ZRK_Form_Config_Track::slot_stateChanged_checkBox_BlockDist(int state)
{
    ui->spinBox_BlockDist->setEnabled(state != Qt::Unchecked);
}

void ZRK_Form_Config_Track::slot_stateChanged_checkBox_BlockTimer(int state)
{
    ui->spinBox_BlockTimer->setEnabled(state != Qt::Unchecked);
}

void ZRK_Form_Config_Track::slot_stateChanged_checkBox_CoordFlt_Use(int state)
{
    const bool on = state != Qt::Unchecked;
    ui->groupBox_RejectCoord->setEnabled(on);
    ui->Coord_groupBox_Stop->setEnabled(on);
    if (!on)
        ui->groupBox_SensorAverage->setEnabled(false);
    else if (ui->Coord_Stop_radioButton_Average->isChecked() || ui->Coord_Stop_radioButton_Fixed->isChecked())
        ui->groupBox_SensorAverage->setEnabled(true);
}

void ZRK_Form_Config_Track::slot_valueChanged_spinBox_MinAlt(int value)
{
    ui->spinBox_MaxAlt->setMinimum(std::min(value + kAltitudeGap, kAltitudeMax));
}

void ZRK_Form_Config_Track::slot_valueChanged_spinBox_MaxAlt(int value)
{
    ui->spinBox_MinAlt->setMaximum(std::max(value - kAltitudeGap, kAltitudeMin));
}

void ZRK_Form_Config_Track::slot_stateChanged_checkBox_DeltaNtp(int state)
{
    applyCounter(ui->spinBox_DeltaNtp, state != Qt::Unchecked, kDeltaNtpOn);
}

void ZRK_Form_Config_Track::slot_clicked_Coord_Stop_radioButton_NotAverage(bool)
{
    ui->groupBox_SensorAverage->setEnabled(false);
}

void ZRK_Form_Config_Track::slot_clicked_Coord_Stop_radioButton_Average(bool)
{
    ui->groupBox_SensorAverage->setEnabled(true);
}

void ZRK_Form_Config_Track::slot_clicked_Coord_Stop_radioButton_Fixed(bool)
{
    ui->groupBox_SensorAverage->setEnabled(true);
}

void ZRK_Form_Config_Track::slot_clicked_radioButton_ParkingMode_1(bool)
{
    slot_clicked_radioButton_ParkingMode_2(ui->radioButton_ParkingMode_2->isChecked());
}

void ZRK_Form_Config_Track::slot_clicked_radioButton_ParkingMode_2(bool)
{
    ui->pushButton_ParkingAccel->setEnabled(
        !m_caps.parkingModeSelect || ui->radioButton_ParkingMode_2->isChecked());
}

void ZRK_Form_Config_Track::slot_pressed_pushButton_ParkingAccel()
{
    emit openTabAccelRequested();
}

void ZRK_Form_Config_Track::slot_stateChanged_checkBox_ColdRstTimer(int state)
{
    applyCounter(ui->spinBox_ColdRstTimer, state != Qt::Unchecked, kColdRstOn);
}

void ZRK_Form_Config_Track::slot_stateChanged_checkBox_Tlm_Use(int state)
{
    ui->frame_Tlm->setVisible(state != Qt::Unchecked);
}

void ZRK_Form_Config_Track::slot_stateChanged_checkBox_Loc_Use(int state)
{
    ui->frame_Loc->setVisible(state != Qt::Unchecked);
}

void ZRK_Form_Config_Track::slot_toggled_groupBox_CoordFlt_Use(bool on)
{
    ui->spinBox_CoordFlt_Speed->setEnabled(on);
    ui->checkBox_CoordFlt_RejCnt->setEnabled(on);
    ui->spinBox_CoordFlt_RejCnt->setEnabled(on && ui->checkBox_CoordFlt_RejCnt->isChecked());
    ui->checkBox_CoordFlt_BbWrite->setEnabled(on);
    ui->checkBox_CoordFlt_RecheckWiFi->setEnabled(on);
    ui->checkBox_CoordFlt_RecheckGnss->setEnabled(on);
}

void ZRK_Form_Config_Track::slot_stateChanged_checkBox_CoordFlt_RejCnt(int state)
{
    applyCounter(ui->spinBox_CoordFlt_RejCnt, state != Qt::Unchecked, kRejCntOn);
}

void ZRK_Form_Config_Track::slot_toggled_groupBox_ApFLT_Use(bool on)
{
    ui->spinBox_ApFlt_RxLvl->setEnabled(on);
}

void ZRK_Form_Config_Track::slot_pressed_pushButton_BlackList()
{
    m_blackList->show();
    m_blackList->raise();
    m_blackList->activateWindow();
}
