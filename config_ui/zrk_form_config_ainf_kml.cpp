#include "config_ui/zrk_form_config_ainf_kml.h"

#include "config_model/kml_reader.h"
#include "ui_zrk_form_config_ainf_kml.h"

#include <QFileDialog>
#include <QPushButton>

ZRK_Form_Config_Ainf_KML::ZRK_Form_Config_Ainf_KML(QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui_ZRK_Designer_Form_Config_Ainf_KML>())
{
    ui->setupUi(this);
    const ZRK_Ainf_Caps caps = zrkAinfCaps();
    ui->spinBox_Size->setRange(caps.minZoneSize, caps.maxZoneSize);
    ui->spinBox_Size->setValue(kKmlDefaultSize);
    ui->spinBox_Angle->setValue(kKmlDefaultAngle);
    ui->spinBox_Gob->setValue(kmlDefaultGob());
    connect(ui->BtnBrowse, &QPushButton::clicked, this, &ZRK_Form_Config_Ainf_KML::slot_pressed_BtnBrowse);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    const auto update = [this] {
        ui->buttonBox->button(QDialogButtonBox::Ok)
            ->setEnabled(!ui->lineEdit_File->text().trimmed().isEmpty());
    };
    connect(ui->lineEdit_File, &QLineEdit::textChanged, this, update);
    update();
}

ZRK_Form_Config_Ainf_KML::~ZRK_Form_Config_Ainf_KML() = default;

void ZRK_Form_Config_Ainf_KML::translateForm()
{
    ui->retranslateUi(this);
}

QString ZRK_Form_Config_Ainf_KML::fileName() const
{
    return ui->lineEdit_File->text().trimmed();
}

int ZRK_Form_Config_Ainf_KML::size() const
{
    return ui->spinBox_Size->value();
}

int ZRK_Form_Config_Ainf_KML::angle() const
{
    return ui->spinBox_Angle->value();
}

int ZRK_Form_Config_Ainf_KML::gob() const
{
    return ui->spinBox_Gob->value();
}

void ZRK_Form_Config_Ainf_KML::setGob(int gob)
{
    ui->spinBox_Gob->setValue(gob & 0xFF);
}

void ZRK_Form_Config_Ainf_KML::slot_pressed_BtnBrowse()
{
    //% "Файл KML"
    const QString file
        = QFileDialog::getOpenFileName(this, qtTrId("gain_250"), fileName(), QStringLiteral("*.kml"));
    if (!file.isEmpty())
        ui->lineEdit_File->setText(file);
}
