#pragma once

#include "config_model/config_diff.h"

#include <QDialog>

namespace Ui {
class ZRK_Designer_Dialog_Config_Compare;
}

// The differences between the configuration in the editor and another one, grouped by branch:
// node, key, the key's label and both values.
class ZRK_Dialog_Config_Compare : public QDialog
{
    Q_OBJECT

public:
    explicit ZRK_Dialog_Config_Compare(QWidget* parent = nullptr);
    ~ZRK_Dialog_Config_Compare() override;

    void setDifferences(const QVector<zrk::ConfigDifference>& differences, const QString& against);
    int rowCount() const;

private:
    Ui::ZRK_Designer_Dialog_Config_Compare* ui;
};
