#include "device/zrk_form_io_progress.h"

#include "ui_zrk_form_io_progress.h"

ZRK_Form_IO_Progress::ZRK_Form_IO_Progress(QWidget* parent)
    : QWidget(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint)
    , ui(std::make_unique<Ui_ZRK_Designer_Form_IO_Progress>())
{
    ui->setupUi(this);
    setObjectName(QStringLiteral("ZRK_Form_IO_Progress"));
    connect(ui->pushButton_Time, &QPushButton::clicked, this, &ZRK_Form_IO_Progress::timeButtonClicked);
    clearForm();
}

ZRK_Form_IO_Progress::~ZRK_Form_IO_Progress() = default;

void ZRK_Form_IO_Progress::showForm()
{
    show();
    raise();
}

void ZRK_Form_IO_Progress::closeForm()
{
    close();
}

void ZRK_Form_IO_Progress::clearForm()
{
    m_title.clear();
    applyTitle();
    ui->progressBar->setRange(0, 100);
    ui->progressBar->setValue(0);
    ui->label_FileLeft->clear();
    ui->label_Value_Cur->clear();
    ui->label_Value_All->clear();
    ui->label_Time->clear();
}

void ZRK_Form_IO_Progress::translateForm()
{
    ui->retranslateUi(this);
    applyTitle();
}

void ZRK_Form_IO_Progress::applyTitle()
{
    //% "Обмен данными с терминалом"
    ui->label_Title->setText(m_title.isEmpty() ? qtTrId("iopr_002") : m_title);
}

void ZRK_Form_IO_Progress::setText_Title(const QString& title)
{
    m_title = title;
    applyTitle();
}

void ZRK_Form_IO_Progress::setProgress_Min(int min)
{
    ui->progressBar->setMinimum(min);
}

void ZRK_Form_IO_Progress::setProgress_Max(int max)
{
    ui->progressBar->setMaximum(max);
}

void ZRK_Form_IO_Progress::setProgress_Value(int value)
{
    ui->progressBar->setValue(value);
}

void ZRK_Form_IO_Progress::setText_FileLeft(const QString& text)
{
    ui->label_FileLeft->setText(text);
}

void ZRK_Form_IO_Progress::setText_Value_Cur(const QString& text)
{
    ui->label_Value_Cur->setText(text);
}

void ZRK_Form_IO_Progress::setText_Value_All(const QString& text)
{
    ui->label_Value_All->setText(text);
}

void ZRK_Form_IO_Progress::setText_Time(const QString& text)
{
    ui->label_Time->setText(text);
}

void ZRK_Form_IO_Progress::setTextValue_Visible(bool visible)
{
    ui->widget_Value->setVisible(visible);
}

void ZRK_Form_IO_Progress::setTextTime_Visible(bool visible)
{
    ui->label_Caption_Time->setVisible(visible);
    ui->label_Time->setVisible(visible);
}

void ZRK_Form_IO_Progress::setBtnTextTime_Visible(bool visible)
{
    ui->pushButton_Time->setVisible(visible);
}

void ZRK_Form_IO_Progress::setText_Title_Visible(bool visible)
{
    ui->label_Title->setVisible(visible);
}

void ZRK_Form_IO_Progress::setProgress_Visible(bool visible)
{
    ui->progressBar->setVisible(visible);
}

void ZRK_Form_IO_Progress::setText_FileLeft_Visible(bool visible)
{
    ui->label_FileLeft->setVisible(visible);
}

QString ZRK_Form_IO_Progress::title() const
{
    return ui->label_Title->text();
}

int ZRK_Form_IO_Progress::progressMin() const
{
    return ui->progressBar->minimum();
}

int ZRK_Form_IO_Progress::progressMax() const
{
    return ui->progressBar->maximum();
}

int ZRK_Form_IO_Progress::progressValue() const
{
    return ui->progressBar->value();
}

QString ZRK_Form_IO_Progress::textFileLeft() const
{
    return ui->label_FileLeft->text();
}

QString ZRK_Form_IO_Progress::textValueCur() const
{
    return ui->label_Value_Cur->text();
}

QString ZRK_Form_IO_Progress::textValueAll() const
{
    return ui->label_Value_All->text();
}

QString ZRK_Form_IO_Progress::textTime() const
{
    return ui->label_Time->text();
}

bool ZRK_Form_IO_Progress::isTextValueVisible() const
{
    // Whether the part shows once the form does, so the answer holds while the form is hidden.
    return ui->widget_Value->isVisibleTo(this);
}

bool ZRK_Form_IO_Progress::isTextTimeVisible() const
{
    return ui->label_Time->isVisibleTo(this);
}

bool ZRK_Form_IO_Progress::isBtnTextTimeVisible() const
{
    return ui->pushButton_Time->isVisibleTo(this);
}
