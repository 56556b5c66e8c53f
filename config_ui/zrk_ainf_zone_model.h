#pragma once

#include "config_model/geo_data.h"

#include <QAbstractTableModel>

// The zone list as a table over the page's zones: ten thousand zones cost no widgets.
class ZRK_Ainf_Zone_Model : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Col_Id,
        Col_Name,
        Col_Lat,
        Col_Lon,
        Col_Size,
        Col_Angle,
        Col_Count
    };

    explicit ZRK_Ainf_Zone_Model(QVector<coreGeoZone>* zones, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    // The owner changed the vector; these tell the views.
    void reload();
    void zoneChanged(int row);
    void append(const QVector<coreGeoZone>& zones);
    void removeAt(int row);

private:
    QVector<coreGeoZone>* m_zones;
};
