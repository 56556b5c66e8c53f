#include "config_ui/zrk_widget_altnav_period.h"

#include "ui_zrk_widget_altnav_period.h"

namespace {
constexpr int kTimerMax = 65535;
}

ZRK_Widget_AltNav_Period::ZRK_Widget_AltNav_Period(QWidget* parent)
    : QWidget(parent)
    , ui(new Ui::ZRK_Designer_Widget_AltNav_Period)
{
    ui->setupUi(this);
    ui->spinBox_MoveTimer->setMaximum(kTimerMax);
    connect(ui->checkBox_Parking, &QCheckBox::stateChanged, this,
        &ZRK_Widget_AltNav_Period::slot_stateChanged_checkBox_Parking);
    setDefault();
}

ZRK_Widget_AltNav_Period::~ZRK_Widget_AltNav_Period()
{
    delete ui;
}

void ZRK_Widget_AltNav_Period::applyCaps(
    int defaultMoveTimer, int minMoveTimer, int defaultStopTimer, int minStopTimer)
{
    m_defaultMoveTimer = defaultMoveTimer;
    m_defaultStopTimer = defaultStopTimer;
    m_minStopTimer = minStopTimer;
    ui->spinBox_MoveTimer->setMinimum(minMoveTimer);
    ui->spinBox_MoveTimer->setValue(defaultMoveTimer);
    //% "Диапазон: %1..%2"
    ui->spinBox_MoveTimer->setToolTip(qtTrId("cfgt3_100").arg(minMoveTimer).arg(kTimerMax));
    //% "Диапазон: %1..%2; 0 — выключено"
    ui->spinBox_StopTimer->setToolTip(qtTrId("cfgt3_102").arg(minStopTimer).arg(kTimerMax));
    m_rememberedStop = defaultStopTimer;
}

void ZRK_Widget_AltNav_Period::translateForm()
{
    ui->retranslateUi(this);
}

int ZRK_Widget_AltNav_Period::getMoveTimer() const
{
    return ui->spinBox_MoveTimer->value();
}

void ZRK_Widget_AltNav_Period::setMoveTimer(int seconds)
{
    ui->spinBox_MoveTimer->setValue(seconds);
}

QString ZRK_Widget_AltNav_Period::getMoveSens() const
{
    const QCheckBox* boxes[] = { ui->checkBox_MoveSens_1, ui->checkBox_MoveSens_2, ui->checkBox_MoveSens_3,
        ui->checkBox_MoveSens_4 };
    QString flags(4, QLatin1Char('0'));
    for (int i = 0; i < 4; ++i) {
        if (boxes[i]->isChecked())
            flags[i] = QLatin1Char('1');
    }
    return flags;
}

void ZRK_Widget_AltNav_Period::setMoveSens(const QString& flags)
{
    const QString f = flags.leftJustified(4, QLatin1Char('0'));
    ui->checkBox_MoveSens_1->setChecked(f.at(0) == QLatin1Char('1'));
    ui->checkBox_MoveSens_2->setChecked(f.at(1) == QLatin1Char('1'));
    ui->checkBox_MoveSens_3->setChecked(f.at(2) == QLatin1Char('1'));
    ui->checkBox_MoveSens_4->setChecked(f.at(3) == QLatin1Char('1'));
}

int ZRK_Widget_AltNav_Period::getStopTimer() const
{
    return ui->checkBox_Parking->isChecked() ? ui->spinBox_StopTimer->value() : 0;
}

void ZRK_Widget_AltNav_Period::setStopTimer(int seconds)
{
    if (seconds != 0)
        m_rememberedStop = seconds;
    const QSignalBlocker block(ui->checkBox_Parking);
    ui->checkBox_Parking->setChecked(seconds != 0);
    applyParking(seconds != 0);
}

void ZRK_Widget_AltNav_Period::setDefault()
{
    ui->spinBox_MoveTimer->setValue(m_defaultMoveTimer);
    setMoveSens(QString());
    m_rememberedStop = m_defaultStopTimer;
    setStopTimer(0);
    m_rememberedStop = m_defaultStopTimer;
}

void ZRK_Widget_AltNav_Period::slot_stateChanged_checkBox_Parking(int state)
{
    applyParking(state != Qt::Unchecked);
}

void ZRK_Widget_AltNav_Period::applyParking(bool on)
{
    QSpinBox* spin = ui->spinBox_StopTimer;
    if (on) {
        spin->setRange(m_minStopTimer, kTimerMax);
        spin->setValue(m_rememberedStop);
    } else {
        if (spin->value() != 0)
            m_rememberedStop = spin->value();
        spin->setRange(0, 0);
    }
    spin->setEnabled(on);
}
