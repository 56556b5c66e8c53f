#pragma once

#include "config_model/geo_data.h"

#include <QWidget>

#include <functional>
#include <memory>

class Ui_ZRK_Designer_Form_Config_Ainf_Route;
class QTableWidgetItem;

// Routes, the stops of the selected route, its option flags, and the defaults of new routes.
class ZRK_Form_Config_Ainf_Route : public QWidget
{
    Q_OBJECT

public:
    explicit ZRK_Form_Config_Ainf_Route(QWidget* parent = nullptr);
    ~ZRK_Form_Config_Ainf_Route() override;

    void translateForm();
    void setData(coreAinfData* data, std::function<void(const QString&)> message);
    void refresh();
    // The zone a new stop goes to: the one selected in the zone list or on the map.
    void setCurrentZoneId(int id) { m_currentZoneId = id; }

    int addRoute(); // the new id, or 0 (limit message shown)
    bool addStop(int routeRow, int zoneId);
    int currentRouteRow() const;

    int getDefRouteOptions() const { return m_data->defaults.getDefRouteOptions(); }
    QString getDefRouteOptionsStr() const { return m_data->defaults.getDefRouteOptionsStr(); }
    void setDefRouteOptionsStr(const QString& text);

signals:
    void routesChanged();

private slots:
    void slot_pressed_Routes_BtnAdd();
    void slot_pressed_Routes_BtnDel();
    void slot_pressed_Stops_BtnAdd();
    void slot_pressed_Stops_BtnDel();

private:
    void showStops();
    void routeItemChanged(QTableWidgetItem* item);
    void stopItemChanged(QTableWidgetItem* item);

    std::unique_ptr<Ui_ZRK_Designer_Form_Config_Ainf_Route> ui;
    coreAinfData m_own;
    coreAinfData* m_data = &m_own;
    std::function<void(const QString&)> m_message;
    int m_currentZoneId = 0;
    bool m_filling = false;
};
