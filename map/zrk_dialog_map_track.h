#pragma once

#include "zrk_widget_map.h"

#include <QDialog>

// A window with the map showing a track of telemetry points: "show on map" of the telemetry view
// and of the table of a saved file. One window is kept and reused; each call replaces the track.
class ZRK_Dialog_Map_Track : public QDialog
{
    Q_OBJECT

public:
    explicit ZRK_Dialog_Map_Track(QWidget* parent = nullptr);

    void setTrack(const QVector<ZrkMapTrackPoint>& points);
    ZRK_Widget_Map* map() const { return m_map; }

    // Shows the points in the shared track window and returns it.
    static ZRK_Dialog_Map_Track* showTrack(
        const QVector<ZrkMapTrackPoint>& points, QWidget* parent = nullptr);

private:
    ZRK_Widget_Map* m_map;
};
