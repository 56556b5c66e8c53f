#pragma once

#include <QWidget>

#include <memory>

class Ui_ZRK_Designer_Form_Param_About;

// The information form: a title and a text (plain or simple rich text), shown by the device
// object's showFormParamInfo. Owned by the device object.
class ZRK_Form_Param_About : public QWidget
{
    Q_OBJECT

public:
    explicit ZRK_Form_Param_About(QWidget* parent = nullptr);
    ~ZRK_Form_Param_About() override;

    Q_INVOKABLE void setParamInfo_Title(const QString& title);
    Q_INVOKABLE void setParamInfo_Text(const QString& text);
    Q_INVOKABLE void translateForm();

    QString paramInfoTitle() const;
    QString paramInfoText() const;

private:
    std::unique_ptr<Ui_ZRK_Designer_Form_Param_About> ui;
};
