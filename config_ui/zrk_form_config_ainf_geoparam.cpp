#include "config_ui/zrk_form_config_ainf_geoparam.h"

#include "ui_zrk_form_config_ainf_geoparam.h"

#include <QCheckBox>

ZRK_Form_Config_Ainf_GeoParam::ZRK_Form_Config_Ainf_GeoParam(QWidget* parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui_ZRK_Designer_Form_Config_Ainf_GeoParam>())
    , m_defaults(&m_ownDefaults)
{
    ui->setupUi(this);
    const ZRK_Ainf_Caps caps = zrkAinfCaps();
    ui->spinBox_Size->setRange(caps.minZoneSize, caps.maxZoneSize);
    ui->lineEdit_Name->setMaxLength(caps.maxNameLength);
    const auto edited = [this] {
        if (!m_filling && m_id > 0)
            emit zoneEdited();
    };
    for (QLineEdit* e :
        { ui->lineEdit_Name, ui->lineEdit_Lat, ui->lineEdit_Lon, ui->lineEdit_Outputs, ui->lineEdit_SpdMode })
        connect(e, &QLineEdit::textEdited, this, edited);
    for (QSpinBox* s : { ui->spinBox_Size, ui->spinBox_Angle })
        connect(s, QOverload<int>::of(&QSpinBox::valueChanged), this, edited);
    for (QCheckBox* c : findChildren<QCheckBox*>())
        connect(c, &QCheckBox::toggled, this, edited);
    connect(ui->BtnSetDefault, &QPushButton::clicked, this,
        &ZRK_Form_Config_Ainf_GeoParam::slot_pressed_BtnSetDefault);
    clearZone();
}

ZRK_Form_Config_Ainf_GeoParam::~ZRK_Form_Config_Ainf_GeoParam() = default;

void ZRK_Form_Config_Ainf_GeoParam::translateForm()
{
    ui->retranslateUi(this);
}

int ZRK_Form_Config_Ainf_GeoParam::gobFromBoxes() const
{
    int bits = 0;
    for (int i = 0; i < 8; ++i) {
        const auto* box = findChild<QCheckBox*>(QStringLiteral("checkBox_Gob%1").arg(i));
        if (box && box->isChecked())
            bits |= 1 << i;
    }
    return bits;
}

void ZRK_Form_Config_Ainf_GeoParam::setZone(const coreGeoZone& zone)
{
    m_filling = true;
    m_id = zone.id;
    ui->label_IdValue->setText(QString::number(zone.id));
    ui->lineEdit_Name->setText(zone.name);
    ui->lineEdit_Lat->setText(formatGeoCoordinate(zone.lat));
    ui->lineEdit_Lon->setText(formatGeoCoordinate(zone.lon));
    ui->spinBox_Size->setValue(zone.size);
    ui->spinBox_Angle->setValue(zone.angle);
    ui->lineEdit_Outputs->setText(zone.outputs);
    ui->lineEdit_SpdMode->setText(zone.spdmode);
    for (int i = 0; i < 8; ++i) {
        if (auto* box = findChild<QCheckBox*>(QStringLiteral("checkBox_Gob%1").arg(i)))
            box->setChecked(zone.gob & (1 << i));
    }
    ui->groupBox_GeoParam->setEnabled(true);
    m_filling = false;
}

void ZRK_Form_Config_Ainf_GeoParam::clearZone()
{
    // The position fields stay usable: the user types where "add" puts a new zone.
    m_filling = true;
    m_id = 0;
    ui->label_IdValue->clear();
    ui->lineEdit_Name->clear();
    ui->spinBox_Size->setValue(zrkAinfCaps().minZoneSize < 100 ? 100 : zrkAinfCaps().minZoneSize);
    m_filling = false;
}

bool ZRK_Form_Config_Ainf_GeoParam::typedPosition(double* lat, double* lon) const
{
    return parseGeoCoordinate(ui->lineEdit_Lat->text(), lat)
        && parseGeoCoordinate(ui->lineEdit_Lon->text(), lon) && qAbs(*lat) <= 90.0 && qAbs(*lon) <= 180.0;
}

bool ZRK_Form_Config_Ainf_GeoParam::readZone(coreGeoZone* zone, QString* error) const
{
    double lat = 0, lon = 0;
    if (!parseGeoCoordinate(ui->lineEdit_Lat->text(), &lat) || qAbs(lat) > 90.0) {
        //% "Широта должна быть числом от -90 до 90 градусов."
        *error = qtTrId("gain_201");
        return false;
    }
    if (!parseGeoCoordinate(ui->lineEdit_Lon->text(), &lon) || qAbs(lon) > 180.0) {
        //% "Долгота должна быть числом от -180 до 180 градусов."
        *error = qtTrId("gain_202");
        return false;
    }
    zone->id = m_id;
    zone->name = ui->lineEdit_Name->text();
    zone->lat = lat;
    zone->lon = lon;
    zone->size = ui->spinBox_Size->value();
    zone->angle = ui->spinBox_Angle->value();
    zone->gob = gobFromBoxes();
    zone->outputs = ui->lineEdit_Outputs->text().leftJustified(kGeoZoneOutputsLength, QLatin1Char('0'), true);
    zone->spdmode
        = ui->lineEdit_SpdMode->text().isEmpty() ? QStringLiteral("0") : ui->lineEdit_SpdMode->text();
    return true;
}

int ZRK_Form_Config_Ainf_GeoParam::getDefGeoOptions() const
{
    return m_defaults->getDefGeoOptions();
}

QString ZRK_Form_Config_Ainf_GeoParam::getDefGeoOptionsStr() const
{
    return m_defaults->getDefGeoOptionsStr();
}

void ZRK_Form_Config_Ainf_GeoParam::setDefGeoOptions(int bits)
{
    m_defaults->setDefGeoOptions(bits);
}

void ZRK_Form_Config_Ainf_GeoParam::setDefGeoOptionsStr(const QString& text)
{
    m_defaults->setDefGeoOptionsStr(text);
}

void ZRK_Form_Config_Ainf_GeoParam::slot_pressed_BtnSetDefault()
{
    setDefGeoOptions(gobFromBoxes());
}
