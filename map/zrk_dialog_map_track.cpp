#include "zrk_dialog_map_track.h"

#include <QPointer>
#include <QVBoxLayout>

ZRK_Dialog_Map_Track::ZRK_Dialog_Map_Track(QWidget* parent)
    : QDialog(parent)
    , m_map(new ZRK_Widget_Map(this))
{
    //% "Трек на карте"
    setWindowTitle(qtTrId("gmap_001"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_map);
    resize(900, 650);
}

void ZRK_Dialog_Map_Track::setTrack(const QVector<ZrkMapTrackPoint>& points)
{
    m_map->setTrack(points);
}

ZRK_Dialog_Map_Track* ZRK_Dialog_Map_Track::showTrack(
    const QVector<ZrkMapTrackPoint>& points, QWidget* parent)
{
    static QPointer<ZRK_Dialog_Map_Track> shared;
    if (!shared)
        shared = new ZRK_Dialog_Map_Track(parent);
    shared->setTrack(points);
    shared->show();
    shared->raise();
    return shared;
}
