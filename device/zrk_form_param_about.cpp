#include "device/zrk_form_param_about.h"

#include "ui_zrk_form_param_about.h"

ZRK_Form_Param_About::ZRK_Form_Param_About(QWidget* parent)
    : QWidget(parent, Qt::Dialog)
    , ui(std::make_unique<Ui_ZRK_Designer_Form_Param_About>())
{
    ui->setupUi(this);
    setObjectName(QStringLiteral("ZRK_Form_Param_About"));
    connect(ui->pushButton_Close, &QPushButton::clicked, this, &QWidget::close);
}

ZRK_Form_Param_About::~ZRK_Form_Param_About() = default;

void ZRK_Form_Param_About::setParamInfo_Title(const QString& title)
{
    ui->label_Title->setText(title);
}

void ZRK_Form_Param_About::setParamInfo_Text(const QString& text)
{
    ui->textBrowser_Text->setText(text);
}

void ZRK_Form_Param_About::translateForm()
{
    ui->retranslateUi(this);
}

QString ZRK_Form_Param_About::paramInfoTitle() const
{
    return ui->label_Title->text();
}

QString ZRK_Form_Param_About::paramInfoText() const
{
    return ui->textBrowser_Text->toPlainText();
}
