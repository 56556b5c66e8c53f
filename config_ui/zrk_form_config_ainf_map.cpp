#include "config_ui/zrk_form_config_ainf_map.h"

#include "map/zrk_widget_map.h"
#include "ui_zrk_form_config_ainf_map.h"

#include <QSettings>

namespace {
const QString kTileSetting = QStringLiteral("map/tileSource");
}

ZRK_Form_Config_Ainf_Map::ZRK_Form_Config_Ainf_Map(QWidget* parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui_ZRK_Designer_Form_Config_Ainf_Map>())
{
    ui->setupUi(this);
    ui->widget_Map->setMinimumSize(320, 240);
    const QString source = QSettings().value(kTileSetting).toString();
    ui->lineEdit_TileSource->setText(source);
    if (!source.isEmpty())
        ui->widget_Map->setTileSource(source);
    connect(ui->BtnApplyTiles, &QPushButton::clicked, this,
        &ZRK_Form_Config_Ainf_Map::slot_pressed_BtnApplyTiles);
    connect(ui->lineEdit_TileSource, &QLineEdit::returnPressed, this,
        &ZRK_Form_Config_Ainf_Map::slot_pressed_BtnApplyTiles);
    connect(ui->BtnCentre, &QPushButton::clicked, this, &ZRK_Form_Config_Ainf_Map::slot_pressed_BtnCentre);
    // Without a map its own controls have nothing to act on; the message says why.
    if (!ui->widget_Map->isAvailable()) {
        for (QWidget* w : { static_cast<QWidget*>(ui->lineEdit_TileSource),
                 static_cast<QWidget*>(ui->BtnApplyTiles), static_cast<QWidget*>(ui->BtnCentre) })
            w->setEnabled(false);
        ui->label_MapHint->hide();
    }
}

ZRK_Form_Config_Ainf_Map::~ZRK_Form_Config_Ainf_Map() = default;

void ZRK_Form_Config_Ainf_Map::translateForm()
{
    ui->retranslateUi(this);
}

ZRK_Widget_Map* ZRK_Form_Config_Ainf_Map::map() const
{
    return ui->widget_Map;
}

void ZRK_Form_Config_Ainf_Map::setMapCenterEnable(bool enable)
{
    m_centre = enable;
}

void ZRK_Form_Config_Ainf_Map::zonesLoaded()
{
    if (!m_centre)
        return;
    m_centre = false;
    ui->widget_Map->fitZones();
}

void ZRK_Form_Config_Ainf_Map::slot_pressed_BtnApplyTiles()
{
    const QString source = ui->lineEdit_TileSource->text().trimmed();
    QSettings().setValue(kTileSetting, source);
    ui->widget_Map->setTileSource(source);
}

void ZRK_Form_Config_Ainf_Map::slot_pressed_BtnCentre()
{
    ui->widget_Map->fitZones();
}
