#pragma once

#include "config_model/geo_data.h"

#include <QWidget>

#include <functional>
#include <memory>

class Ui_ZRK_Designer_Form_Config_Ainf_Speed;
class QTableWidgetItem;

// The speed zones (one table row each, the ten keys as columns) and the speed defaults.
class ZRK_Form_Config_Ainf_Speed : public QWidget
{
    Q_OBJECT

public:
    explicit ZRK_Form_Config_Ainf_Speed(QWidget* parent = nullptr);
    ~ZRK_Form_Config_Ainf_Speed() override;

    void translateForm();
    // The page's data; the form edits its speed zones and speed defaults in place.
    void setData(coreAinfData* data, std::function<void(const QString&)> message);
    void refresh();

    int addSpeedZone(); // the new id, or 0 (limit message shown)
    void deleteSpeedZone(int row);

    int getDefSpeedsOptions() const { return m_data->defaults.getDefSpeedsOptions(); }
    QString getDefSpeedsOptionsStr() const { return m_data->defaults.getDefSpeedsOptionsStr(); }
    void setDefSpeedsOptionsStr(const QString& text);

private slots:
    void slot_pressed_Speeds_BtnAdd();
    void slot_pressed_Speeds_BtnDel();

private:
    void itemChanged(QTableWidgetItem* item);

    std::unique_ptr<Ui_ZRK_Designer_Form_Config_Ainf_Speed> ui;
    coreAinfData m_own;
    coreAinfData* m_data = &m_own;
    std::function<void(const QString&)> m_message;
    bool m_filling = false;
};
