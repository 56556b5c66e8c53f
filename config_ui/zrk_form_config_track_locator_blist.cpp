#include "config_ui/zrk_form_config_track_locator_blist.h"

#include "config_model/config_keys.h"
#include "ui_zrk_form_config_track_locator_blist.h"

#include <QTableWidgetItem>

ZRK_Form_Config_Track_Locator_BList::ZRK_Form_Config_Track_Locator_BList(QWidget* parent)
    : QWidget(parent, Qt::Window)
    , ui(new Ui::ZRK_Designer_Form_Config_Track_Locator_BList)
{
    ui->setupUi(this);
    ui->tableWidget_BList->setRowCount(kRows);
    for (int i = 0; i < kRows; ++i)
        ui->tableWidget_BList->setItem(i, 0, new QTableWidgetItem);
    connect(ui->pushButton_Default, &QPushButton::pressed, this,
        &ZRK_Form_Config_Track_Locator_BList::slot_pressed_pushButton_Default);
    connect(ui->pushButton_Close, &QPushButton::pressed, this,
        &ZRK_Form_Config_Track_Locator_BList::slot_pressed_pushButton_Close);
    setDefault();
}

ZRK_Form_Config_Track_Locator_BList::~ZRK_Form_Config_Track_Locator_BList()
{
    delete ui;
}

void ZRK_Form_Config_Track_Locator_BList::translateForm()
{
    ui->retranslateUi(this);
}

QString ZRK_Form_Config_Track_Locator_BList::getRow(int row) const
{
    const QTableWidgetItem* item = ui->tableWidget_BList->item(row, 0);
    return item ? item->text() : QString();
}

void ZRK_Form_Config_Track_Locator_BList::setRow(int row, const QString& name)
{
    if (QTableWidgetItem* item = ui->tableWidget_BList->item(row, 0))
        item->setText(name);
}

QStringList ZRK_Form_Config_Track_Locator_BList::getRows() const
{
    QStringList rows;
    for (int i = 0; i < kRows; ++i)
        rows << getRow(i);
    return rows;
}

void ZRK_Form_Config_Track_Locator_BList::setDefault()
{
    const QStringList& rows = zrk::cfg::blackListDefaults();
    for (int i = 0; i < kRows; ++i)
        setRow(i, rows.value(i));
}

void ZRK_Form_Config_Track_Locator_BList::slot_pressed_pushButton_Default()
{
    setDefault();
}

void ZRK_Form_Config_Track_Locator_BList::slot_pressed_pushButton_Close()
{
    hide();
}
