// The map page as the user sees it: what it draws for the zones, routes and tracks it is given,
// and what it reports when the user drags a zone's handles. Runs under Xvfb, and once more on the
// offscreen platform, where there is no OpenGL and the map must say so without taking the process
// down.
#include "map/zrk_dialog_map_track.h"
#include "map/zrk_map_tiles.h"
#include "map/zrk_widget_map.h"
#include "translations/catalogue.h"
#include "web_test_main.h"

#include <QDir>
#include <QFile>
#include <QJsonObject>
#include <QLabel>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <cmath>

// Metres between two points on a sphere of the Earth's mean radius (Leaflet's distanceTo).
static double distanceMetres(double lat1, double lon1, double lat2, double lon2)
{
    const double r = M_PI / 180, dLat = (lat2 - lat1) * r, dLon = (lon2 - lon1) * r;
    const double a = std::sin(dLat / 2) * std::sin(dLat / 2)
        + std::cos(lat1 * r) * std::cos(lat2 * r) * std::sin(dLon / 2) * std::sin(dLon / 2);
    return 6371000 * 2 * std::atan2(std::sqrt(a), std::sqrt(1 - a));
}

// The tests of what the page draws need the page.
#define REQUIRE_MAP()                                                                                        \
    if (!m_map)                                                                                              \
    QSKIP("no OpenGL in this process: the map shows its message instead")

class TstMapWidget : public QObject
{
    Q_OBJECT

    ZRK_Widget_Map* m_map = nullptr;

    QVariant eval(const QString& script)
    {
        return zrktest::waitFor([&](auto done) { m_map->runScript(script, done); });
    }
    QJsonObject stats()
    {
        return QJsonObject::fromVariantMap(eval(QStringLiteral("zrkMap.stats()")).toMap());
    }

    static QVector<ZrkMapZone> threeZones()
    {
        return { { 1, QStringLiteral("Депо"), 55.7500, 37.6200, 150 },
            { 2, QStringLiteral("Вокзал"), 55.7600, 37.6400, 300 },
            { 7, QStringLiteral("Рынок"), 55.7700, 37.6000, 80 } };
    }

private slots:
    void initTestCase()
    {
        QVERIFY(zrk::installCatalogue(QStringLiteral("ru")));
        QString reason;
        if (zrktest::offscreenWithoutDisplay()) {
            // The probe itself: this process cannot make a context, and says where.
            QVERIFY(!ZRK_Widget_Map::isSupported(&reason));
            QVERIFY2(reason.contains(QLatin1String("offscreen")), qPrintable(reason));
            return;
        }
        QVERIFY2(ZRK_Widget_Map::isSupported(&reason), qPrintable(reason));
        m_map = new ZRK_Widget_Map;
        QSignalSpy ready(m_map, &ZRK_Widget_Map::mapReady);
        QSignalSpy finished(m_map, &ZRK_Widget_Map::loadFinished);
        m_map->resize(800, 600);
        m_map->show();
        QTRY_COMPARE_WITH_TIMEOUT(ready.count(), 1, 20000);
        QCOMPARE(finished.count(), 1);
        QCOMPARE(finished.first().first().toBool(), true);
        QVERIFY(m_map->isReady());
    }
    void cleanupTestCase() { delete m_map; }

    void zonesRoutesAndRadii()
    {
        REQUIRE_MAP();
        QSignalSpy shown(m_map, &ZRK_Widget_Map::zonesShown);
        m_map->setZones(threeZones());
        // Zone 99 is not on the map: the line goes through the stops that are.
        m_map->setRoutes(
            { { 1, QStringLiteral("12"), { 1, 99, 2, 7 } }, { 2, QStringLiteral("single"), { 2 } } });
        QTRY_COMPARE_WITH_TIMEOUT(shown.count(), 1, 10000);
        QCOMPARE(shown.first().at(0).toInt(), 3);

        const QJsonObject s = stats();
        QCOMPARE(s.value("zones").toInt(), 3);
        QCOMPARE(s.value("circles").toInt(), 3);
        QCOMPARE(s.value("clusterMarkers").toInt(), 3);
        QCOMPARE(s.value("routeLines").toInt(), 1); // a single stop makes no line
        QCOMPARE(s.value("routePoints").toInt(), 3);
        const QVariantMap z2 = eval(QStringLiteral("zrkMap.zoneInfo(2)")).toMap();
        QCOMPARE(z2.value("r").toDouble(), 300.0);
        QCOMPARE(z2.value("name").toString(), QStringLiteral("Вокзал"));
        QVERIFY(qAbs(z2.value("lat").toDouble() - 55.76) < 1e-9);
    }

    void updateAndRemove()
    {
        REQUIRE_MAP();
        m_map->setZones(threeZones());
        m_map->setRoutes({ { 1, QStringLiteral("12"), { 1, 2, 7 } } });
        m_map->updateZone({ 2, QStringLiteral("Вокзал"), 55.7650, 37.6450, 420 });
        m_map->updateZone({ 9, QStringLiteral("Новая"), 55.7000, 37.5000, 50 });
        m_map->removeZone(7);
        m_map->removeZone(12345); // unknown: nothing happens
        const QJsonObject s = stats();
        QCOMPARE(s.value("zones").toInt(), 3);
        QCOMPARE(s.value("circles").toInt(), 3);
        QCOMPARE(s.value("routePoints").toInt(), 2); // the route lost its removed stop's zone
        const QVariantMap z2 = eval(QStringLiteral("zrkMap.zoneInfo(2)")).toMap();
        QCOMPARE(z2.value("r").toDouble(), 420.0);
        QVERIFY(qAbs(z2.value("lon").toDouble() - 37.645) < 1e-9);
        QVERIFY(eval(QStringLiteral("zrkMap.zoneInfo(7)")).isNull());
    }

    // A zone that checks its heading of entry shows that course as an arrow from its centre to its
    // edge; the arrow follows the zone and goes when the zone stops checking it.
    void entryCourse()
    {
        REQUIRE_MAP();
        QVector<ZrkMapZone> zones = threeZones();
        zones[0].course = 90; // east
        zones[1].course = 0; // north
        m_map->setZones(zones);
        QCOMPARE(stats().value("courses").toInt(), 2);
        const auto tip = [this](int id) {
            return eval(QStringLiteral("zrkMap.zoneInfo(%1).courseTip").arg(id)).toList();
        };
        // 150 m east of 55.75, 37.62: the latitude stays, the longitude grows by 150 m's worth.
        QList<QVariant> east = tip(1);
        QCOMPARE(east.size(), 2);
        QVERIFY(qAbs(east.at(0).toDouble() - 55.75) < 1e-9);
        const double metresPerDegreeLon = 111320 * std::cos(55.75 * M_PI / 180);
        QVERIFY2(qAbs((east.at(1).toDouble() - 37.62) * metresPerDegreeLon - 150) < 0.5,
            qPrintable(east.at(1).toString()));
        // 300 m north of zone 2.
        const QList<QVariant> north = tip(2);
        QVERIFY(qAbs((north.at(0).toDouble() - 55.76) * 111320 - 300) < 0.5);
        QVERIFY(qAbs(north.at(1).toDouble() - 37.64) < 1e-9);
        QVERIFY(eval(QStringLiteral("zrkMap.zoneInfo(7).courseTip")).isNull());

        // Moved, resized and turned to the south-west: the arrow follows.
        m_map->updateZone({ 1, QStringLiteral("Депо"), 55.80, 37.70, 400, 225 });
        east = tip(1);
        QVERIFY(east.at(0).toDouble() < 55.80 && east.at(1).toDouble() < 37.70);
        QVERIFY(qAbs(distanceMetres(55.80, 37.70, east.at(0).toDouble(), east.at(1).toDouble()) - 400) < 2);
        // No longer checked: no arrow.
        m_map->updateZone({ 2, QStringLiteral("Вокзал"), 55.76, 37.64, 300, -1 });
        QCOMPARE(stats().value("courses").toInt(), 1);
        m_map->removeZone(1);
        QCOMPARE(stats().value("courses").toInt(), 0);
    }

    // The user drags the edge handle out and the centre handle away: the circle keeps its shape,
    // the radius follows the distance, and both changes come back to C++.
    void dragHandles()
    {
        REQUIRE_MAP();
        m_map->setZones(threeZones());
        m_map->selectZone(1, true);
        QCOMPARE(stats().value("selected").toInt(), 1);
        QSignalSpy resized(m_map, &ZRK_Widget_Map::zoneResized);
        QSignalSpy moved(m_map, &ZRK_Widget_Map::zoneMoved);
        // 0.01° of longitude at 55.75° is about 627 m.
        eval(QStringLiteral("(function(){var h=zrkMap.editHandles(); h.edge.setLatLng([55.75, 37.63]);"
                            "h.edge.fire('drag'); h.edge.fire('dragend'); return true;})()"));
        QTRY_COMPARE_WITH_TIMEOUT(resized.count(), 1, 5000);
        QCOMPARE(resized.first().at(0).toInt(), 1);
        const int r = resized.first().at(1).toInt();
        QVERIFY2(r > 620 && r < 635, qPrintable(QString::number(r)));
        QCOMPARE(eval(QStringLiteral("zrkMap.editHandles().edge.getTooltip().getContent()")).toString(),
            QStringLiteral("%1 м").arg(r));
        QCOMPARE(eval(QStringLiteral("zrkMap.zoneInfo(1).r")).toInt(), r);

        eval(QStringLiteral("(function(){var h=zrkMap.editHandles(); h.centre.setLatLng([55.8, 37.7]);"
                            "h.centre.fire('drag'); h.centre.fire('dragend'); return true;})()"));
        QTRY_COMPARE_WITH_TIMEOUT(moved.count(), 1, 5000);
        QCOMPARE(moved.first().at(0).toInt(), 1);
        QVERIFY(qAbs(moved.first().at(1).toDouble() - 55.8) < 1e-9);
        QVERIFY(qAbs(moved.first().at(2).toDouble() - 37.7) < 1e-9);
        // Still a circle of the same radius, now at the new centre.
        const QVariantMap z1 = eval(QStringLiteral("zrkMap.zoneInfo(1)")).toMap();
        QCOMPARE(z1.value("r").toInt(), r);
        QVERIFY(eval(QStringLiteral("zrkMap.editHandles() !== null && "
                                    "zrkMap.leaflet().hasLayer(zrkMap.editHandles().edge)"))
                    .toBool());
        m_map->selectZone(0);
        QCOMPARE(stats().value("selected").toInt(), 0);
    }

    void clickReportsPosition()
    {
        REQUIRE_MAP();
        QSignalSpy clicked(m_map, &ZRK_Widget_Map::mapClicked);
        eval(QStringLiteral("zrkMap.leaflet().fire('dblclick', {latlng: L.latLng(55.5, 37.25)}), true"));
        QTRY_COMPARE_WITH_TIMEOUT(clicked.count(), 1, 5000);
        QCOMPARE(clicked.first().at(0).toDouble(), 55.5);
        QCOMPARE(clicked.first().at(1).toDouble(), 37.25);
    }

    void trackAndTiles()
    {
        REQUIRE_MAP();
        QVector<ZrkMapTrackPoint> track;
        for (int i = 0; i < 5; ++i)
            track.append({ 56.0 + i * 0.001, 38.0, QDateTime(QDate(2026, 11, 1), QTime(10, i)), 40.0 + i });
        m_map->setTrack(track);
        QCOMPARE(stats().value("trackPoints").toInt(), 5);
        m_map->setTrack({});
        QCOMPARE(stats().value("trackPoints").toInt(), 0);

        m_map->setTileSource(QStringLiteral("https://tiles.example/{z}/{x}/{y}.png"));
        QCOMPARE(stats().value("tiles").toString(), QStringLiteral("https://tiles.example/{z}/{x}/{y}.png"));
        m_map->setTileSource(QString());
        QCOMPARE(stats().value("tiles").toString(), QString());
    }

    // Without OpenGL the map is a message; every call of the pages is taken and nothing answers, and
    // the telemetry track window shows the same message.
    void unavailableMapTakesEveryCall()
    {
        zrktest::NoOpenGL noGl;
        ZRK_Widget_Map map;
        map.resize(500, 300);
        map.show();
        QVERIFY(!map.isAvailable());
        QVERIFY(!map.view());
        auto* label = map.findChild<QLabel*>(QStringLiteral("label_MapUnavailable"));
        QVERIFY(label);
        QVERIFY(label->isVisible());
        QCOMPARE(label->text(), map.unavailableText());
        QVERIFY2(label->text().startsWith(QStringLiteral("Карта недоступна: ")), qPrintable(label->text()));
        if (noGl.forced())
            QVERIFY(label->text().contains(QLatin1String(zrktest::NoOpenGL::kForcedReason)));

        QSignalSpy ready(&map, &ZRK_Widget_Map::mapReady);
        QSignalSpy finished(&map, &ZRK_Widget_Map::loadFinished);
        QSignalSpy shown(&map, &ZRK_Widget_Map::zonesShown);
        bool answered = false;
        map.setZones(threeZones());
        map.updateZone({ 9, QStringLiteral("Новая"), 55.7, 37.5, 50 });
        map.removeZone(7);
        map.selectZone(1, true);
        map.selectZone(0);
        map.setRoutes({ { 1, QStringLiteral("12"), { 1, 2 } } });
        map.setTrack({ { 56.0, 38.0, QDateTime::currentDateTime(), 40.0 } });
        map.centreOn(55.0, 37.0, 12);
        map.fitZones();
        QTemporaryDir tiles;
        map.setTileSource(tiles.path());
        map.runScript(QStringLiteral("1"), [&](const QVariant&) { answered = true; });
        map.queryStats([&](const QJsonObject&) { answered = true; });
        QTest::qWait(200);
        QVERIFY(!answered);
        QVERIFY(!map.isReady());
        QCOMPARE(ready.count() + finished.count() + shown.count(), 0);
        QCOMPARE(map.tileSource(), tiles.path());

        // The message follows the language.
        QVERIFY(zrk::installCatalogue(QStringLiteral("en")));
        QTRY_VERIFY2(
            label->text().startsWith(QStringLiteral("Map unavailable: ")), qPrintable(label->text()));
        QVERIFY(zrk::installCatalogue(QStringLiteral("ru")));
        QTRY_VERIFY(label->text().startsWith(QStringLiteral("Карта недоступна: ")));

        QPointer<ZRK_Dialog_Map_Track> track
            = ZRK_Dialog_Map_Track::showTrack({ { 56.0, 38.0, QDateTime::currentDateTime(), 40.0 },
                { 56.1, 38.1, QDateTime::currentDateTime(), 0 } });
        QVERIFY(track);
        QVERIFY(track->isVisible());
        QVERIFY(!track->map()->isAvailable());
        QVERIFY(track->findChild<QLabel*>(QStringLiteral("label_MapUnavailable"))->isVisible());
        delete track;
    }

    void tileFile_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("found");
        QTest::newRow("z/x/y") << "/3/4/5" << true;
        QTest::newRow("with extension") << "/3/4/5.png" << true;
        QTest::newRow("host in path") << "//local/3/4/5" << true;
        QTest::newRow("missing tile") << "/3/4/6" << false;
        QTest::newRow("escape attempt") << "/../../etc/passwd" << false;
        QTest::newRow("dots as numbers") << "/3/../5" << false;
        QTest::newRow("negative") << "/3/-4/5" << false;
        QTest::newRow("too short") << "/4/5" << false;
        QTest::newRow("empty") << "" << false;
    }
    void tileFile()
    {
        QFETCH(QString, path);
        QFETCH(bool, found);
        QTemporaryDir dir;
        QVERIFY(QDir(dir.path()).mkpath(QStringLiteral("3/4")));
        QFile tile(dir.filePath(QStringLiteral("3/4/5.png")));
        QVERIFY(tile.open(QIODevice::WriteOnly));
        tile.write("png");
        tile.close();
        const QString file = ZRK_Map_TileHandler::tileFile(dir.path(), path);
        QCOMPARE(!file.isEmpty(), found);
        if (found)
            QCOMPARE(QFileInfo(file).canonicalFilePath(), QFileInfo(tile.fileName()).canonicalFilePath());
    }
};

ZRK_WEB_TEST_MAIN(TstMapWidget)
#include "tst_map_widget.moc"
