#include "config_ui/zrk_ainf_zone_model.h"

ZRK_Ainf_Zone_Model::ZRK_Ainf_Zone_Model(QVector<coreGeoZone>* zones, QObject* parent)
    : QAbstractTableModel(parent)
    , m_zones(zones)
{
}

int ZRK_Ainf_Zone_Model::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_zones->size();
}

int ZRK_Ainf_Zone_Model::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : Col_Count;
}

QVariant ZRK_Ainf_Zone_Model::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_zones->size()
        || (role != Qt::DisplayRole && role != Qt::UserRole))
        return {};
    const coreGeoZone& z = m_zones->at(index.row());
    switch (index.column()) {
    case Col_Id:
        return z.id;
    case Col_Name:
        return z.name;
    case Col_Lat:
        return formatGeoCoordinate(z.lat);
    case Col_Lon:
        return formatGeoCoordinate(z.lon);
    case Col_Size:
        return z.size;
    case Col_Angle:
        return z.angle;
    default:
        return {};
    }
}

QVariant ZRK_Ainf_Zone_Model::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case Col_Id:
        //% "Номер"
        return qtTrId("gain_260");
    case Col_Name:
        //% "Название"
        return qtTrId("gain_261");
    case Col_Lat:
        //% "Широта"
        return qtTrId("gain_262");
    case Col_Lon:
        //% "Долгота"
        return qtTrId("gain_263");
    case Col_Size:
        //% "Радиус, м"
        return qtTrId("gain_264");
    case Col_Angle:
        //% "Курс, °"
        return qtTrId("gain_265");
    default:
        return {};
    }
}

void ZRK_Ainf_Zone_Model::reload()
{
    beginResetModel();
    endResetModel();
}

void ZRK_Ainf_Zone_Model::zoneChanged(int row)
{
    emit dataChanged(index(row, 0), index(row, Col_Count - 1));
}

void ZRK_Ainf_Zone_Model::append(const QVector<coreGeoZone>& zones)
{
    if (zones.isEmpty())
        return;
    beginInsertRows({}, m_zones->size(), m_zones->size() + zones.size() - 1);
    *m_zones += zones;
    endInsertRows();
}

void ZRK_Ainf_Zone_Model::removeAt(int row)
{
    beginRemoveRows({}, row, row);
    m_zones->remove(row);
    endRemoveRows();
}
