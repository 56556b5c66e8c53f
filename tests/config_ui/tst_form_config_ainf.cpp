// The geo page's own rules, reached through its operations: zone ids after deletes, duplicates,
// limits and their messages, KML import counts, the geo file through the page, and the card write
// through 2400/2401 against a simulated card that answers inside the request's call.
#include "../map/web_test_main.h"
#include "config_model/geo_file.h"
#include "config_ui/zrk_form_config_ainf.h"
#include "config_ui/zrk_form_config_ainf_map.h"
#include "config_ui/zrk_form_config_ainf_route.h"
#include "device/zrk_device_k7140.h"
#include "translations/catalogue.h"

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QMap>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTimer>

namespace {

ZRK_Form_Config_Ainf* g_page = nullptr;
QMap<QString, QByteArray> g_card; // what the simulated card holds
QMap<QString, QByteArray> g_open; // files being written
int g_requests = 0;

// How the fake host answers the request that fails (the others it answers well, inside the call).
enum class Answer
{
    InsideCall, // result set and the 2401 reply sent before the request returns (zrk-host's card)
    Later, // result set; the reply comes from the event loop
    ResultOnly, // result set, no reply at all
    ReplyOnly, // result OK, the reply (inside the call) says what went wrong
};
qint32 g_failWith = ZRK_SD_OK; // what the card answers to g_failOperation
quint32 g_failOperation = ZRK_SD_WRITE;
Answer g_answer = Answer::InsideCall;

QByteArray reply(const szSDFile& r, qint32 result)
{
    const QByteArray name = r.fileName.toUtf8();
    szSDFileReplyHeader h { quint8(r.operation), qint8(result), quint16(name.size()), r.offset, 0, 0 };
    return QByteArray(reinterpret_cast<const char*>(&h), sizeof h) + name;
}

unsigned long hostCallback(void*, int msg, unsigned long w, unsigned long)
{
    if (msg != ZRK_MSG_SD_FILE_OPERATION)
        return 0;
    auto* r = reinterpret_cast<szSDFile*>(w);
    ++g_requests;
    qint32 result = ZRK_SD_OK;
    if (g_failWith != ZRK_SD_OK && r->operation == g_failOperation) {
        result = g_failWith;
    } else {
        switch (r->operation) {
        case ZRK_SD_OPEN:
            g_open[r->fileName].clear();
            break;
        case ZRK_SD_WRITE:
            if (int(r->size) != r->data.size() || r->data.size() > ZRK_SD_CHUNK_MAX)
                result = ZRK_SD_BAD_REQUEST;
            else
                g_open[r->fileName].replace(int(r->offset), r->data.size(), r->data);
            break;
        case ZRK_SD_CLOSE:
            g_card[r->fileName] = g_open.take(r->fileName);
            break;
        default:
            result = ZRK_SD_BAD_REQUEST;
        }
    }
    const Answer answer = result == ZRK_SD_OK ? Answer::InsideCall : g_answer;
    r->result = answer == Answer::ReplyOnly ? ZRK_SD_OK : result;
    QByteArray bytes = reply(*r, result);
    if (answer == Answer::InsideCall || answer == Answer::ReplyOnly) {
        g_page->receive_SD_File(&bytes);
    } else if (answer == Answer::Later) {
        QTimer::singleShot(0, g_page, [bytes]() mutable { g_page->receive_SD_File(&bytes); });
    }
    return 0;
}

coreGeoZone zone(int id, double lat = 55.75, double lon = 37.62)
{
    coreGeoZone z;
    z.id = id;
    z.name = QStringLiteral("Зона %1").arg(id);
    z.lat = lat;
    z.lon = lon;
    return z;
}

QVector<int> ids(const ZRK_Form_Config_Ainf& page)
{
    QVector<int> out;
    for (const coreGeoZone& z : page.data().zones)
        out << z.id;
    return out;
}

} // namespace

class TstFormConfigAinf : public QObject
{
    Q_OBJECT

    ZRK_Form_Config_Ainf* m_page = nullptr;
    QStringList m_messages;
    QTemporaryDir m_dir;

private slots:
    void initTestCase() { QVERIFY(zrk::installCatalogue(QStringLiteral("ru"))); }

    void init()
    {
        m_page = new ZRK_Form_Config_Ainf;
        g_page = m_page;
        m_messages.clear();
        m_page->setMessageSink([this](const QString& m) { m_messages << m; });
    }
    void cleanup()
    {
        delete m_page;
        g_page = nullptr;
    }

    void firstFreeIdAfterDeletesAndDuplicate()
    {
        for (int i = 0; i < 5; ++i)
            QCOMPARE(m_page->addGeoZone(
                         QStringLiteral("z"), 150, 10, 3, QStringLiteral("55.1"), QStringLiteral("37,2")),
                i + 1);
        QCOMPARE(m_page->deleteZones({ 3, 1, 3 }), 2); // ids 4 and 2; a repeated row counts once
        QCOMPARE(ids(*m_page), (QVector<int> { 1, 3, 5 }));
        QCOMPARE(m_page->addZoneAt(56.0, 38.0), 2);
        QCOMPARE(m_page->duplicateZone(m_page->rowOfZone(5)), 4);
        const coreGeoZone& copy = m_page->data().zones.last();
        QCOMPARE(copy.id, 4);
        QCOMPARE(copy.size, 150);
        QCOMPARE(copy.angle, 10);
        QCOMPARE(copy.gob, 3);
        QCOMPARE(copy.lon, 37.2);
        QCOMPARE(copy.outputs, QStringLiteral("0000000000000000"));
        QCOMPARE(m_page->addZoneAt(1, 1), 6);
        QCOMPARE(m_page->duplicateZone(99), 0); // no such row: nothing, no message
        QVERIFY(m_messages.isEmpty());
    }

    void refusedZones_data()
    {
        QTest::addColumn<QString>("lat");
        QTest::addColumn<QString>("lon");
        const auto row = [](const char* name, const char* lat, const char* lon) {
            QTest::newRow(name) << QString(lat) << QString(lon);
        };
        row("latitude past the pole", "90.5", "37");
        row("longitude past 180", "55", "-180.01");
        row("not a number", "55.x", "37");
        row("empty", "", "37");
    }
    void refusedZones()
    {
        QFETCH(QString, lat);
        QFETCH(QString, lon);
        QCOMPARE(m_page->addGeoZone(QStringLiteral("z"), 100, 0, 0, lat, lon), 0);
        QCOMPARE(m_page->data().zones.size(), 0);
        QCOMPARE(m_messages.size(), 1);
        QVERIFY(m_messages.first().contains(QStringLiteral("широта")));
    }

    void zoneLimit()
    {
        coreAinfData data;
        for (int i = 1; i <= m_page->caps().maxZones; ++i)
            data.zones << zone(i);
        m_page->setData(data);
        QCOMPARE(m_page->addZoneAt(55, 37), 0);
        QCOMPARE(m_page->duplicateZone(0), 0);
        QCOMPARE(m_messages.size(), 2);
        QVERIFY2(m_messages.first().contains(QString::number(m_page->caps().maxZones)),
            qPrintable(m_messages.first()));
        QCOMPARE(m_page->data().zones.size(), m_page->caps().maxZones);
        // Deleting many at once keeps the rest in order.
        QCOMPARE(m_page->deleteZones({ 0, 1, 9999 }), 3);
        QCOMPARE(m_page->data().zones.first().id, 3);
        QCOMPARE(m_page->addZoneAt(55, 37), 1);
    }

    void stopZoneIsNotDeleted()
    {
        coreAinfData data;
        data.zones << zone(1) << zone(2) << zone(3);
        coreGeoRoute route;
        route.id = 1;
        route.stops << coreGeoStop { GeoStop_Stop, 2, 1, QStringLiteral("Вокзал"), QString() };
        data.routes << route;
        m_page->setData(data);
        QCOMPARE(m_page->deleteZones({ 0, 1, 2 }), 2);
        QCOMPARE(ids(*m_page), (QVector<int> { 2 }));
        QCOMPARE(m_messages.size(), 1);
        QVERIFY(m_messages.first().contains(QLatin1String("2")));
    }

    void routeAndStopLimits()
    {
        coreAinfData data;
        data.zones << zone(1);
        for (int i = 1; i <= m_page->caps().maxRoutes; ++i) {
            coreGeoRoute r;
            r.id = i;
            data.routes << r;
        }
        for (int i = 0; i < m_page->caps().maxStopsPerRoute; ++i)
            data.routes[0].stops << coreGeoStop { GeoStop_Stop, 1, i + 1, QString(), QString() };
        m_page->setData(data);
        QCOMPARE(m_page->routeForm()->addRoute(), 0);
        QVERIFY(!m_page->routeForm()->addStop(0, 1));
        QCOMPARE(m_messages.size(), 2);
        QVERIFY(m_messages.at(0).contains(QString::number(m_page->caps().maxRoutes)));
        QVERIFY(m_messages.at(1).contains(QString::number(m_page->caps().maxStopsPerRoute)));
    }

    // A stop names a zone of the list: the editor offers only those, a typed number of no zone is
    // refused, and saving or writing to the card refuses data whose stop names none (saying which),
    // so that a file the page saved always opens again.
    void stopsNameExistingZones()
    {
        coreAinfData data;
        data.zones << zone(1) << zone(4);
        coreGeoRoute route;
        route.id = 3;
        route.stops << coreGeoStop { GeoStop_Stop, 1, 1, QString(), QString() }
                    << coreGeoStop { GeoStop_Stop, 4, 2, QString(), QString() };
        data.routes << route;
        m_page->setData(data);
        m_page->show();
        auto* stops = m_page->findChild<QTableWidget*>(QStringLiteral("tableWidget_Stops"));
        QVERIFY(stops);
        QCOMPARE(stops->rowCount(), 2);

        // The editor of the zone cell lists the zones, nothing else.
        QTableWidgetItem* cell = stops->item(1, 1);
        stops->setCurrentItem(cell);
        stops->editItem(cell);
        auto* box = stops->findChild<QComboBox*>(QStringLiteral("comboBox_StopZone"));
        QVERIFY(box);
        QCOMPARE(box->count(), 2);
        QCOMPARE(box->itemData(0).toInt(), 1);
        QCOMPARE(box->itemData(1).toInt(), 4);
        QCOMPARE(box->currentIndex(), 1);
        box->setCurrentIndex(0);
        QTest::keyClick(box, Qt::Key_Return);
        QTRY_COMPARE(m_page->data().routes.at(0).stops.at(1).zoneid, 1);

        // A number that names no zone, typed or pasted, leaves the stop where it was.
        stops->item(1, 1)->setText(QStringLiteral("5"));
        QCOMPARE(m_page->data().routes.at(0).stops.at(1).zoneid, 1);
        QCOMPARE(m_messages.size(), 1);
        QVERIFY2(m_messages.last().contains(QLatin1String("5")), qPrintable(m_messages.last()));
        QVERIFY(!m_page->routeForm()->addStop(0, 9));
        QCOMPARE(m_page->data().routes.at(0).stops.size(), 2);
        QCOMPARE(m_messages.size(), 2);
        const QString path = m_dir.filePath(QStringLiteral("stops.xml"));
        QVERIFY(m_page->writeFileParamGeo(path, true));
        ZRK_Form_Config_Ainf other;
        QVERIFY(other.readFileParamGeo(path));

        // Data whose stop names no zone (a route built elsewhere) is neither saved nor sent.
        data.routes[0].stops[1].zoneid = 9;
        m_page->setData(data);
        m_messages.clear();
        const QString refused = m_dir.filePath(QStringLiteral("refused.xml"));
        QVERIFY(!m_page->writeFileParamGeo(refused, true));
        QVERIFY(!QFile::exists(refused));
        QCOMPARE(m_messages.size(), 1);
        QVERIFY2(m_messages.first().contains(QStringLiteral("Маршрут 3, остановка 2")),
            qPrintable(m_messages.first()));
        ZRK_Device_K7140 device(QStringLiteral("K-7140"), 3, 5, 8, 1);
        device.InitConfigurator(&hostCallback);
        g_requests = 0;
        m_page->deviceConnect();
        QVERIFY(!m_page->saveFileInDevice());
        QCOMPARE(g_requests, 0);
        QCOMPARE(m_messages.size(), 2);
        QCOMPARE(m_messages.last(), m_messages.first());
    }

    void kmlImport()
    {
        const QString path = m_dir.filePath(QStringLiteral("points.kml"));
        QFile f(path);
        QVERIFY(f.open(QIODevice::WriteOnly));
        // A point in a folder, a line, a point, and a placemark without a point.
        f.write("<kml><Document><Folder><Placemark><name>Площадь</name><Point><coordinates>37.61,55.75"
                "</coordinates></Point></Placemark></Folder><Placemark><name>Дорога</name><LineString>"
                "<coordinates>37,55 38,56</coordinates></LineString></Placemark><Placemark><name>Мост</name>"
                "<Point><coordinates>37.7,55.8</coordinates></Point></Placemark>"
                "<Placemark><name>Без точки</name></Placemark></Document></kml>");
        f.close();
        coreAinfData data;
        data.zones << zone(1) << zone(3);
        m_page->setData(data);
        QCOMPARE(m_page->loadFileKML(path, 250, 90, 5), 3);
        QCOMPARE(ids(*m_page), (QVector<int> { 1, 3, 2, 4, 5 }));
        const coreGeoZone& bridge = m_page->data().zones.at(3);
        QCOMPARE(bridge.name, QStringLiteral("Мост"));
        QCOMPARE(bridge.size, 250);
        QCOMPARE(bridge.angle, 90);
        QCOMPARE(bridge.gob, 5);
        QCOMPARE(m_page->data().zones.at(4).lat, 0.0); // a placemark without a point sits at 0,0
        QCOMPARE(m_messages.size(), 1);
        QVERIFY2(m_messages.first().contains(QStringLiteral("Дорога")), qPrintable(m_messages.first()));

        // A broken file adds nothing and says so.
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write("<kml><Document><Placemark>");
        f.close();
        QCOMPARE(m_page->loadFileKML(path, 100, 0, 0), 0);
        QCOMPARE(m_page->data().zones.size(), 5);
        QCOMPARE(m_messages.size(), 2);
    }

    // A workstation without OpenGL: the page is built with a message where the map would be, and
    // zones are added, moved, selected, saved and opened again as anywhere else.
    void withoutMap()
    {
        zrktest::NoOpenGL noGl;
        ZRK_Form_Config_Ainf page;
        page.setMessageSink([this](const QString& m) { m_messages << m; });
        page.resize(1000, 700);
        page.show();
        ZRK_Widget_Map* map = page.mapForm()->map();
        QVERIFY(!map->isAvailable());
        auto* label = page.findChild<QLabel*>(QStringLiteral("label_MapUnavailable"));
        QVERIFY(label);
        QTRY_VERIFY(label->isVisible());
        QVERIFY(label->text().startsWith(QStringLiteral("Карта недоступна")));
        // The map's own controls have nothing to act on.
        QVERIFY(!page.mapForm()->findChild<QPushButton*>(QStringLiteral("BtnCentre"))->isEnabled());
        QVERIFY(!page.mapForm()->findChild<QPushButton*>(QStringLiteral("BtnApplyTiles"))->isEnabled());

        coreAinfData defaults;
        defaults.defaults.setDefRouteOptions(0x81);
        page.setData(defaults);
        QCOMPARE(page.addZoneAt(55.75, 37.62), 1);
        QCOMPARE(page.addGeoZone(
                     QStringLiteral("Склад"), 300, 45, 1, QStringLiteral("55.8"), QStringLiteral("37.7")),
            2);
        page.selectZone(2);
        QCOMPARE(page.selectedZoneId(), 2);
        page.moveZone(2, 55.9, 37.8);
        page.resizeZone(2, 400);
        QCOMPARE(page.addRouteThroughZones(QStringLiteral("7"), { 1, 2 }), 1);
        QCOMPARE(page.deleteZones({ page.rowOfZone(1) }), 0); // a stop of the route stays
        const QString path = m_dir.filePath(QStringLiteral("nomap.xml"));
        QVERIFY(page.writeFileParamGeo(path, true));
        QCOMPARE(m_messages.size(), 1);

        ZRK_Form_Config_Ainf other;
        QVERIFY(other.readFileParamGeo(path));
        QCOMPARE(ids(other), (QVector<int> { 1, 2 }));
        QCOMPARE(other.data().zones.at(1).lat, 55.9);
        QCOMPARE(other.data().zones.at(1).size, 400);
        QCOMPARE(other.data().routes.size(), 1);
        QCOMPARE(other.data().defaults.getDefRouteOptions(), 0x81);

        // The old format is recognised and refused; the page keeps what it had.
        const QString old = m_dir.filePath(QStringLiteral("old.xml"));
        QFile f(old);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write("<?xml version=\"1.0\"?>\n<PARAMAINF><ZONE/></PARAMAINF>\n");
        f.close();
        QVERIFY(!page.readFileParamGeo(old));
        QCOMPARE(m_messages.size(), 2);
        QCOMPARE(ids(page), (QVector<int> { 1, 2 }));
    }

    void proposedName()
    {
        const QString name
            = ZRK_Form_Config_Ainf::proposedFileName(QDateTime(QDate(2026, 3, 7), QTime(9, 5, 4)));
        QVERIFY2(name.endsWith(QStringLiteral("/Data/AINF(07-03-26 09_05_04).xml")), qPrintable(name));
    }

    void writeToCard_data()
    {
        QTest::addColumn<int>("zones");
        QTest::addColumn<int>("failWith");
        QTest::addColumn<uint>("failOperation");
        QTest::addColumn<int>("answer");
        QTest::addColumn<QString>("message");
        const auto row = [](const char* name, int zones, int failWith, uint failOperation, Answer answer,
                             const char* message) {
            QTest::newRow(name) << zones << failWith << failOperation << int(answer) << QString(message);
        };
        const char* noCard = "нет SD-карты";
        const char* full = "нет места";
        const char* refused = "Не удалось передать";
        row("small set", 3, ZRK_SD_OK, ZRK_SD_OPEN, Answer::InsideCall, "");
        row("many chunks", 400, ZRK_SD_OK, ZRK_SD_OPEN, Answer::InsideCall, "");
        // zrk-host's card when it is taken out: the result and the reply, both inside the call.
        row("card removed, inside the call", 3, ZRK_SD_NO_CARD, ZRK_SD_OPEN, Answer::InsideCall, noCard);
        row("card full at a write, inside the call", 400, ZRK_SD_CARD_FULL, ZRK_SD_WRITE, Answer::InsideCall,
            full);
        row("close refused, inside the call", 3, ZRK_SD_BAD_REQUEST, ZRK_SD_CLOSE, Answer::InsideCall,
            refused);
        row("card removed, answered later", 3, ZRK_SD_NO_CARD, ZRK_SD_OPEN, Answer::Later, noCard);
        row("card full at a write, answered later", 400, ZRK_SD_CARD_FULL, ZRK_SD_WRITE, Answer::Later, full);
        row("close refused, answered later", 3, ZRK_SD_BAD_REQUEST, ZRK_SD_CLOSE, Answer::Later, refused);
        row("card removed, result only", 3, ZRK_SD_NO_CARD, ZRK_SD_OPEN, Answer::ResultOnly, noCard);
        row("card full, result only", 400, ZRK_SD_CARD_FULL, ZRK_SD_WRITE, Answer::ResultOnly, full);
        row("write refused, reply only", 3, ZRK_SD_BAD_REQUEST, ZRK_SD_WRITE, Answer::ReplyOnly, refused);
        row("not found at close, reply only", 3, ZRK_SD_NOT_FOUND, ZRK_SD_CLOSE, Answer::ReplyOnly, refused);
    }
    // The card write against a host that answers each error synchronously or later: one message
    // naming the file, the page free for the next write, which then succeeds.
    void writeToCard()
    {
        QFETCH(int, zones);
        QFETCH(int, failWith);
        QFETCH(uint, failOperation);
        QFETCH(int, answer);
        QFETCH(QString, message);
        ZRK_Device_K7140 device(QStringLiteral("K-7140"), 3, 5, 8, 1);
        device.InitConfigurator(&hostCallback);
        g_card.clear();
        g_open.clear();
        g_requests = 0;
        g_failWith = failWith;
        g_failOperation = failOperation;
        g_answer = Answer(answer);
        coreAinfData data;
        for (int i = 1; i <= zones; ++i)
            data.zones << zone(i);
        m_page->setData(data);

        QVERIFY(!m_page->saveFileInDevice()); // not connected: nothing goes out
        QCOMPARE(g_requests, 0);
        m_page->deviceConnect();
        QSignalSpy done(m_page, &ZRK_Form_Config_Ainf::sdWriteFinished);
        QVERIFY(m_page->saveFileInDevice());
        QTRY_COMPARE(done.count(), 1);
        QCOMPARE(done.first().first().toBool(), failWith == ZRK_SD_OK);
        QVERIFY(!m_page->isWritingToDevice());
        const QByteArray geo = renderFileParamGeo(data, true);
        if (failWith != ZRK_SD_OK) {
            QVERIFY(!g_card.contains(QStringLiteral("GeoZones.cfg")));
            QCOMPARE(m_messages.size(), 1);
            QVERIFY2(m_messages.first().contains(message), qPrintable(m_messages.first()));
            QVERIFY2(
                m_messages.first().contains(QStringLiteral("GeoZones.xml")), qPrintable(m_messages.first()));
            // Nothing more goes out once the write has ended, and a late reply changes nothing.
            const int requests = g_requests;
            QTest::qWait(50);
            QCOMPARE(g_requests, requests);
            QCOMPARE(done.count(), 1);
            QCOMPARE(m_messages.size(), 1);
            // The card is back: the page writes again.
            g_failWith = ZRK_SD_OK;
            g_requests = 0;
            m_messages.clear();
            QVERIFY(m_page->saveFileInDevice());
            QTRY_COMPARE(done.count(), 2);
            QVERIFY(done.last().first().toBool());
        }
        QCOMPARE(
            g_card.keys(), (QStringList { QStringLiteral("GeoZones.cfg"), QStringLiteral("GeoZones.xml") }));
        QCOMPARE(g_card.value(QStringLiteral("GeoZones.xml")), geo);
        QCOMPARE(g_card.value(QStringLiteral("GeoZones.cfg")), renderFileCFG(data.defaults));
        // open + writes of 4 KB at most + close, per file
        const int cfgChunks = (renderFileCFG(data.defaults).size() + ZRK_SD_CHUNK_MAX - 1) / ZRK_SD_CHUNK_MAX;
        QCOMPARE(g_requests, 2 + (geo.size() + ZRK_SD_CHUNK_MAX - 1) / ZRK_SD_CHUNK_MAX + 2 + cfgChunks);
        QVERIFY(m_messages.isEmpty());
    }
};

ZRK_WEB_TEST_MAIN(TstFormConfigAinf)
#include "tst_form_config_ainf.moc"
