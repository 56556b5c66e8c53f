#pragma once

#include "telemetry/tmi_track.h"

#include <QDateTime>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVector>
#include <QWidget>

#include <functional>

class QLabel;
class QWebEngineView;
class QWebChannel;
class ZRK_Map_Bridge;

// One zone as the map shows it: a marker and a circle of its radius in metres, and for a zone that
// checks the heading of entry an arrow of that course.
struct ZrkMapZone
{
    int id = 0;
    QString name;
    double lat = 0.0;
    double lon = 0.0;
    int radius = 0;
    int course = -1; // degrees clockwise from north, 0..359; negative: the zone does not check it
};

// A route as a line through the centres of its stops' zones, in stop order.
struct ZrkMapRoute
{
    int id = 0;
    QString name;
    QVector<int> zoneIds;
};

// The map display: Leaflet in a web view, driven through a WebChannel. The page and its libraries
// come from the plug-in's resources, so nothing is fetched from outside; without a tile source the
// background is a coordinate grid drawn by the page. Zones go over in one batch (a JSON array),
// which keeps ten thousand of them quick; markers cluster at small scales and shapes are drawn on a
// canvas. Calls made before the page is ready are queued and run once it is.
//
// The web engine aborts the whole process when it cannot make an OpenGL context (a remote
// session, a virtual machine without a graphics driver, Qt's offscreen platform). So before the
// first web view the process is asked once whether it can make one; where it cannot, the map shows
// a message in its place, creates no web view, and takes every call without doing anything.
class ZRK_Widget_Map : public QWidget
{
    Q_OBJECT

public:
    explicit ZRK_Widget_Map(QWidget* parent = nullptr);
    ~ZRK_Widget_Map() override;

    // Whether this process can show the map; the answer is found once and kept. On "no", the
    // reason (in the user's language) goes into *reason.
    static bool isSupported(QString* reason = nullptr);
    // Tests: from now on answer "no" with this reason (an empty reason asks the system again).
    // Maps made before keep what they are.
    static void forceUnsupported(const QString& reason);

    // False when the map shows the "map unavailable" message instead of a web view.
    bool isAvailable() const { return m_view != nullptr; }
    // The message shown in place of the map, empty while the map is available.
    QString unavailableText() const;
    bool isReady() const { return m_ready; }

    void setZones(const QVector<ZrkMapZone>& zones);
    void updateZone(const ZrkMapZone& zone); // adds it when the map does not have it yet
    void removeZone(int id);
    // Makes the zone editable as a circle (centre and edge handles); 0 ends editing.
    void selectZone(int id, bool recentre = false);
    void setRoutes(const QVector<ZrkMapRoute>& routes);
    void setTrack(const QVector<ZrkMapTrackPoint>& points);
    void centreOn(double lat, double lon, int zoom = 0);
    void fitZones();
    // Empty: the coordinate grid. "http(s)://…{z}/{x}/{y}…": the user's tile server. Anything else
    // is a folder of z/x/y tiles served to the page through the plug-in's URL scheme.
    void setTileSource(const QString& source);
    QString tileSource() const { return m_tileSource; }

    // Runs a script in the page once it is ready; the result comes back to the callback. Without
    // a map the script is dropped and the callback never called.
    void runScript(const QString& script, const std::function<void(const QVariant&)>& result = {});
    // What the page shows (counts of zones, circles, route lines, track points, centre, zoom).
    void queryStats(const std::function<void(const QJsonObject&)>& result);

    // Null when the map is not available.
    QWebEngineView* view() const { return m_view; }

    // The script that selects the tile layer of a source (the URL template, or empty for the grid).
    static QString tileUrlFor(const QString& source);

signals:
    void mapReady();
    void loadStarted();
    void loadProgress(int percent);
    void loadFinished(bool ok);
    // A batch of zones has been drawn: how many, and how long the page took in milliseconds.
    void zonesShown(int count, int milliseconds);
    // A double click on the map, where a new zone goes (a single click stays free for panning).
    void mapClicked(double lat, double lon);
    void zoneClicked(int id);
    void zoneMoved(int id, double lat, double lon);
    void zoneResized(int id, int radius);

protected:
    void changeEvent(QEvent* event) override;

private:
    friend class ZRK_Map_Bridge;
    void pageReady();

    void showUnavailable();

    QWebEngineView* m_view = nullptr;
    QLabel* m_unavailable = nullptr;
    QWebChannel* m_channel = nullptr;
    ZRK_Map_Bridge* m_bridge = nullptr;
    bool m_ready = false;
    QString m_tileSource;
    QVector<QPair<QString, std::function<void(const QVariant&)>>> m_pending;
};
