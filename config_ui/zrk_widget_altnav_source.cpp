#include "config_ui/zrk_widget_altnav_source.h"

#include "ui_zrk_widget_altnav_source.h"

ZRK_Widget_AltNav_Source::ZRK_Widget_AltNav_Source(QWidget* parent)
    : QWidget(parent)
    , ui(new Ui::ZRK_Designer_Widget_AltNav_Source)
{
    ui->setupUi(this);
    connect(ui->pushButton_WiFi, &QPushButton::pressed, this,
        &ZRK_Widget_AltNav_Source::slot_pressed_pushButton_WiFi);
    setDefault();
}

ZRK_Widget_AltNav_Source::~ZRK_Widget_AltNav_Source()
{
    delete ui;
}

void ZRK_Widget_AltNav_Source::applyCaps(int sources)
{
    m_sources = sources;
    setVisible(sources >= 1);
    ui->checkBox_Lbs->setVisible(sources == 2);
}

void ZRK_Widget_AltNav_Source::translateForm()
{
    ui->retranslateUi(this);
}

QString ZRK_Widget_AltNav_Source::getSource() const
{
    if (m_sources == 0)
        return QStringLiteral("10");
    const bool cells = m_sources == 2 && ui->checkBox_Lbs->isChecked();
    return QString(QLatin1Char(ui->checkBox_WiFi->isChecked() ? '1' : '0')) + QLatin1Char(cells ? '1' : '0');
}

void ZRK_Widget_AltNav_Source::setSource(const QString& flags)
{
    const QString f = flags.leftJustified(2, QLatin1Char('0'));
    ui->checkBox_WiFi->setChecked(f.at(0) == QLatin1Char('1'));
    ui->checkBox_Lbs->setChecked(f.at(1) == QLatin1Char('1'));
}

void ZRK_Widget_AltNav_Source::setDefault()
{
    setSource(QStringLiteral("10"));
}

void ZRK_Widget_AltNav_Source::slot_pressed_pushButton_WiFi()
{
    emit openTabRSRequested();
}
