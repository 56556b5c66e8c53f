#pragma once

#include <QStringList>
#include <QWidget>

namespace Ui {
class ZRK_Designer_Form_Config_Track_Locator_BList;
}

// The names of Wi-Fi access points the locator ignores (phone hotspots and the like): always
// exactly twelve rows, "bm1".."bm12".
class ZRK_Form_Config_Track_Locator_BList : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kRows = 12;

    explicit ZRK_Form_Config_Track_Locator_BList(QWidget* parent = nullptr);
    ~ZRK_Form_Config_Track_Locator_BList() override;

    void translateForm();
    QString getRow(int row) const;
    void setRow(int row, const QString& name);
    QStringList getRows() const;
    void setDefault();

private slots:
    void slot_pressed_pushButton_Default();
    void slot_pressed_pushButton_Close();

private:
    Ui::ZRK_Designer_Form_Config_Track_Locator_BList* ui;
};
