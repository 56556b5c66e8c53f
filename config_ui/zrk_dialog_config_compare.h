#pragma once

#include "config_model/config_diff.h"

#include <QDialog>

class QCheckBox;

namespace Ui {
class ZRK_Designer_Dialog_Config_Compare;
}

// The differences between the configuration in the editor and another one, grouped by branch:
// node, key, the key's label and both values. The same list reviews a write to the terminal.
class ZRK_Dialog_Config_Compare : public QDialog
{
    Q_OBJECT

public:
    explicit ZRK_Dialog_Config_Compare(QWidget* parent = nullptr);
    ~ZRK_Dialog_Config_Compare() override;

    void setDifferences(const QVector<zrk::ConfigDifference>& differences, const QString& against);
    // Before a write to the terminal: what it holds now (left) and what will be written (right),
    // with "write" and "cancel", and a box to stop showing the review.
    void setReview(const QVector<zrk::ConfigDifference>& differences, const QString& against);
    bool reviewAgain() const;
    int rowCount() const;
    QString summary() const;

private:
    void fill(const QVector<zrk::ConfigDifference>& differences);

    Ui::ZRK_Designer_Dialog_Config_Compare* ui;
    QCheckBox* m_reviewAgain = nullptr;
};
