// Geo data, the geo file, GeoZones.cfg, zrk-tool geo, and KML as other tools write it.
#include "../common/tool_run.h"
#include "config_files.h"
#include "config_model/geo_fields.h"
#include "config_model/geo_file.h"
#include "config_model/kml_reader.h"
#include "translations/catalogue.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

using namespace zrktest;

namespace {

// Two zones (one Cyrillic, one with markup in its name), a route with three stops, two speed
// zones, two sounds and non-default defaults.
coreAinfData smallSet()
{
    coreAinfData d;
    coreGeoZone a;
    a.id = 1;
    a.name = QStringLiteral("Депо №1");
    a.lat = 55.751244;
    a.lon = 37.618423;
    a.size = 150;
    a.angle = 90;
    a.gob = 0x45;
    a.outputs = QStringLiteral("1000000000000001");
    a.spdmode = QStringLiteral("2");
    coreGeoZone b;
    b.id = 3;
    b.name = QStringLiteral("Stop <A> & \"B\"");
    b.lat = -33.5;
    b.lon = -70.25;
    d.zones = { a, b };
    coreGeoRoute r;
    r.id = 7;
    r.number = QStringLiteral("12");
    r.chr = QStringLiteral("А");
    r.begin = QStringLiteral("Депо");
    r.end = QStringLiteral("Вокзал");
    r.flags = 0x0B;
    r.setsnd = 2;
    r.stops = { { GeoStop_Terminal, 1, 1, QStringLiteral("Депо"), QStringLiteral("1,2") },
        { GeoStop_Stop, 3, 2, QStringLiteral("Рынок"), QStringLiteral("3") },
        { GeoStop_Waypoint, 1, 3, QString(), QString() } };
    d.routes = { r };
    coreSpeedZone s1;
    s1.id = 1;
    s1.title = QStringLiteral("Город");
    s1.limitsnd = 4;
    s1.delay = 3;
    coreSpeedZone s2;
    s2.id = 2;
    s2.title = QStringLiteral("Трасса");
    s2.speed = 90;
    s2.gap = 10;
    s2.activesnd = 5;
    s2.limitrep = 30;
    s2.activerep = 60;
    s2.limitbuzz = 1;
    d.speeds = { s1, s2 };
    d.sounds = { { 1, QStringLiteral("depo.wav") }, { 2, QStringLiteral("rynok.wav") } };
    d.defaults.routeNumber = QStringLiteral("1");
    d.defaults.routeChar = QStringLiteral("Б");
    d.defaults.routeBegin = QStringLiteral("Начало");
    d.defaults.routeEnd = QStringLiteral("Конец");
    d.defaults.routeSetSnd = 1;
    d.defaults.speedmode = 2;
    d.defaults.setDefRouteOptions(0x81);
    d.defaults.setDefSpeedsOptions(0x02);
    d.defaults.setDefGeoOptions(0x30);
    return d;
}

QByteArray golden(const char* name)
{
    return readFile(dataFile(name));
}

} // namespace

class tst_GeoFile : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QVERIFY(zrk::installCatalogue(QStringLiteral("ru"))); }
    void firstFreeId_data();
    void firstFreeId();
    void optionSets();
    void goldenFiles_data();
    void goldenFiles();
    void readOptionsByVersion_data();
    void readOptionsByVersion();
    void refusedFilesLeaveDataAlone_data();
    void refusedFilesLeaveDataAlone();
    void limits();
    void everyKeyIsWrittenReadAndChecked();
    void cardConfigFile();
    void tool();
    void toolFixtures_data();
    void toolFixtures();
    void placemarkForms_data();
    void placemarkForms();
    void refused_data();
    void refused();
    void goodPlacemarksOfABadFile_data();
    void goodPlacemarksOfABadFile();
    void importIdsAndLimits();
    void writtenKmlReadsBack();
};

void tst_GeoFile::firstFreeId_data()
{
    QTest::addColumn<QVector<int>>("ids");
    QTest::addColumn<int>("maxId");
    QTest::addColumn<int>("expected");
    QTest::newRow("empty") << QVector<int> {} << 65535 << 1;
    QTest::newRow("dense") << QVector<int> { 1, 2, 3 } << 65535 << 4;
    QTest::newRow("gap at start") << QVector<int> { 2, 3 } << 65535 << 1;
    QTest::newRow("unsorted gap") << QVector<int> { 5, 3, 1, 2 } << 65535 << 4;
    QTest::newRow("far ids") << QVector<int> { 1, 60000, 70000 } << 65535 << 2;
    QTest::newRow("zero and negative") << QVector<int> { 0, -4, 1 } << 65535 << 2;
    QTest::newRow("duplicates") << QVector<int> { 1, 1, 2, 2 } << 65535 << 3;
    QTest::newRow("all taken") << QVector<int> { 2, 1, 3 } << 3 << 0;
}

void tst_GeoFile::firstFreeId()
{
    QFETCH(QVector<int>, ids);
    QFETCH(int, maxId);
    QFETCH(int, expected);
    QVector<coreGeoZone> zones;
    for (int id : ids) {
        coreGeoZone z;
        z.id = id;
        zones.append(z);
    }
    QCOMPARE(getFirstFreeGeoZoneId(zones, maxId), expected);
    ZRK_Ainf_Caps caps;
    caps.maxZoneId = maxId;
    const int added = addGeoZone(zones, QStringLiteral("n"), 120, 45, 3, 1.0, 2.0, caps);
    QCOMPARE(added, expected);
    if (expected) {
        QCOMPARE(zones.last().id, expected);
        QCOMPARE(zones.last().outputs, QStringLiteral("0000000000000000"));
        QCOMPARE(zones.last().size, 120);
        QCOMPARE(zones.last().angle, 45);
        QCOMPARE(zones.last().gob, 3);
    }
}

void tst_GeoFile::optionSets()
{
    coreAinfDefaults d;
    d.setDefRouteOptionsStr(QStringLiteral("10000001"));
    d.setDefSpeedsOptionsStr(QStringLiteral("01")); // short: the rest clear
    d.setDefGeoOptionsStr(QStringLiteral("x1x1xxxx1")); // only "1" sets, ninth char ignored
    QCOMPARE(d.getDefRouteOptions(), 0x81);
    QCOMPARE(d.getDefSpeedsOptions(), 0x02);
    QCOMPARE(d.getDefGeoOptions(), 0x0A);
    QCOMPARE(d.packedOptions(), 0x0A0281);
    QCOMPARE(d.packedOptionsStr(), QStringLiteral("100000010100000001010000"));
    coreAinfDefaults e;
    e.setPackedOptions(0x7F0A0281); // bits above the three sets are dropped
    QCOMPARE(e.packedOptions(), 0x0A0281);
    e.setPackedOptionsStr(QStringLiteral("000000"));
    QCOMPARE(e.packedOptions(), 0);
}

void tst_GeoFile::goldenFiles_data()
{
    QTest::addColumn<bool>("full");
    QTest::addColumn<QString>("file");
    QTest::newRow("full") << true << dataFile("geo/small_full.xml");
    QTest::newRow("lists only") << false << dataFile("geo/small_lists.xml");
}

void tst_GeoFile::goldenFiles()
{
    QFETCH(bool, full);
    QFETCH(QString, file);
    const coreAinfData set = smallSet();
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("AINF(01-02-24 10_00_00).xml"));
    QVERIFY(writeFileParamGeo(path, set, full));
    QCOMPARE(readFile(path), readFile(file));

    // Read back: the lists always, the defaults only from a full file.
    coreAinfData back;
    back.defaults.speedmode = 9;
    GeoFileReadInfo info;
    QString error;
    QVERIFY2(readFileParamGeo(file, &back, &error, &info), qPrintable(error));
    QCOMPARE(info.format, GeoFileFormat::New);
    QCOMPARE(info.version, 3);
    QCOMPARE(info.hasConfig, full);
    QCOMPARE(back.defaults.speedmode, full ? 2 : 9);
    if (!full) {
        QVERIFY(back.sounds.isEmpty());
        back.sounds = set.sounds;
        back.defaults = set.defaults;
    }
    QCOMPARE(renderFileParamGeo(back, true), renderFileParamGeo(set, true));
    QCOMPARE(back.zones[0].name, set.zones[0].name);
    QCOMPARE(back.zones[1].name, set.zones[1].name);
    QCOMPARE(back.routes[0].stops.size(), 3);
}

void tst_GeoFile::readOptionsByVersion_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("packed");
    QTest::newRow("ver 3 integer") << QByteArray("<AINF ver=\"3\"><Config options=\"655489\"/></AINF>")
                                   << 0x0A0081;
    QTest::newRow("ver 2 text") << QByteArray(
        "<AINF ver=\"2\"><Config options=\"100000010100000001010000\"/></AINF>")
                                << 0x0A0281;
    QTest::newRow("no ver: text default") << QByteArray("<AINF><Config speedmode=\"1\"/></AINF>") << 0;
}

void tst_GeoFile::readOptionsByVersion()
{
    QFETCH(QByteArray, text);
    QFETCH(int, packed);
    coreAinfData d;
    QString error;
    QVERIFY2(readFileParamGeoText(text, QStringLiteral("t"), &d, &error), qPrintable(error));
    QCOMPARE(d.defaults.packedOptions(), packed);
}

void tst_GeoFile::refusedFilesLeaveDataAlone_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("reason"); // a piece of the Russian message
    const QByteArray good = golden("geo/small_full.xml");
    const auto row = [](const char* name, const QByteArray& text, const QString& reason) {
        QTest::newRow(name) << text << reason;
    };
    const auto zones = [](const char* body) {
        return "<AINF ver=\"3\"><Zones count=\"1\">" + QByteArray(body) + "</Zones></AINF>";
    };
    row("old format", "<?xml version=\"1.0\"?>\n<PARAMAINF>\n<ZONE ID=\"1\"/>\n</PARAMAINF>\n",
        "старом формате");
    row("truncated", good.left(good.size() / 2), "правильным XML");
    row("empty", QByteArray(), "не файл геоинформации");
    row("other root", "<DEVICE><AINF ver=\"3\"/></DEVICE>", "не файл геоинформации");
    row("newer version", "<AINF ver=\"4\"/>", "версия файла 4");
    row("count disagrees",
        "<AINF ver=\"3\"><Zones count=\"2\"><Zone id=\"1\" lat=\"1\" lon=\"2\"/></Zones></AINF>",
        "объявляет записей: 2, а содержит: 1");
    row("stop count disagrees",
        "<AINF ver=\"3\"><Zones count=\"1\"><Zone id=\"1\" lat=\"1\" lon=\"2\"/></Zones><Routes "
        "count=\"1\"><Route id=\"1\" countStop=\"2\"><Stop zoneid=\"1\"/></Route></Routes></AINF>",
        "маршрут 1 объявляет остановок: 2");
    row("bad latitude", zones("<Zone id=\"5\" lat=\"north\" lon=\"2\"/>"),
        "Геозона 5: \"lat\" = \"north\" не является координатой");
    row("off the globe", zones("<Zone id=\"5\" lat=\"91\" lon=\"2\"/>"),
        "Геозона 5: \"lat\" = 91 вне диапазона -90..90.");
    row("duplicate id",
        "<AINF ver=\"3\"><Zones count=\"2\"><Zone id=\"5\" lat=\"1\" lon=\"2\"/>"
        "<Zone id=\"5\" lat=\"1\" lon=\"2\"/></Zones></AINF>",
        "встречается дважды");
    row("stop without zone",
        "<AINF ver=\"3\"><Routes count=\"1\"><Route id=\"2\" countStop=\"1\"><Stop zoneid=\"9\"/>"
        "</Route></Routes></AINF>",
        "Маршрут 2, остановка 1 ссылается на несуществующую геозону 9.");
    row("angle past 359", zones("<Zone id=\"4\" lat=\"1\" lon=\"2\" angle=\"360\"/>"),
        "Геозона 4: \"angle\" = 360 вне диапазона 0..359.");
    row("stop type unknown",
        "<AINF ver=\"3\"><Zones count=\"1\"><Zone id=\"1\" lat=\"1\" lon=\"2\"/></Zones><Routes count=\"1\">"
        "<Route id=\"3\" countStop=\"2\"><Stop zoneid=\"1\"/><Stop zoneid=\"1\" "
        "type=\"7\"/></Route></Routes></AINF>",
        "Маршрут 3, остановка 2: \"type\" = 7 вне диапазона 0..2.");
    row("radius below limit", zones("<Zone id=\"1\" lat=\"1\" lon=\"2\" size=\"9\"/>"),
        "Геозона 1: \"size\" = 9 вне диапазона 10..100000.");
    QByteArray routes = "<AINF ver=\"3\"><Routes count=\"101\">";
    for (int i = 0; i < 101; ++i)
        routes += "<Route id=\"" + QByteArray::number(i) + "\"/>";
    row("too many routes", routes + "</Routes></AINF>", "маршрутов: 101");
    row("entity bomb",
        "<!DOCTYPE AINF [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b "
        "\"&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;\">]><AINF ver=\"3\" x=\"&b;&b;\"/>",
        QString());
    row("deep", "<AINF>" + QByteArray("<a>").repeated(400) + QByteArray("</a>").repeated(400) + "</AINF>",
        "правильным XML");
}

void tst_GeoFile::refusedFilesLeaveDataAlone()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, reason);
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("bad.xml"));
    writeFile(path, text);
    coreAinfData data = smallSet();
    const QByteArray before = renderFileParamGeo(data, true);
    QString error;
    if (reason.isEmpty()) {
        // Entities may be accepted, but must stay small and leave a consistent result.
        if (readFileParamGeo(path, &data, &error))
            QVERIFY(data.zones.isEmpty());
        return;
    }
    QVERIFY(!readFileParamGeo(path, &data, &error));
    QVERIFY2(error.contains(reason), qPrintable(error));
    QVERIFY2(error.contains(QDir::toNativeSeparators(path)), qPrintable(error));
    QCOMPARE(renderFileParamGeo(data, true), before);
}

void tst_GeoFile::limits()
{
    ZRK_Ainf_Caps caps;
    caps.maxZones = 2;
    QVector<coreGeoZone> zones;
    QCOMPARE(addGeoZone(zones, QString(), 100, 0, 0, 0, 0, caps), 1);
    QCOMPARE(addGeoZone(zones, QString(), 100, 0, 0, 0, 0, caps), 2);
    QCOMPARE(addGeoZone(zones, QString(), 100, 0, 0, 0, 0, caps), 0);
    QCOMPARE(zones.size(), 2);

    coreAinfData d = smallSet();
    QVERIFY(checkAinfLimits(d).isEmpty());
    ZRK_Ainf_Caps tight;
    tight.maxStopsPerRoute = 2;
    QVERIFY(checkAinfLimits(d, tight).contains(QStringLiteral("В маршруте 7 остановок: 3")));
    tight = ZRK_Ainf_Caps();
    tight.maxSpeedZones = 1;
    QVERIFY(checkAinfLimits(d, tight).contains(QStringLiteral("скоростных зон: 2")));
}

namespace {

// Every row of one kind: a value at each end of its range is written and read back, one past it is
// refused by the check that opening, saving and the card write share, naming the record and key.
template <typename R, std::size_t N>
void walkKeys(const GeoKey<R> (&keys)[N], R& (*record)(coreAinfData&), const QString& who)
{
    for (const GeoKey<R>& k : keys) {
        const QString key = QLatin1String(k.key);
        if (k.type == GeoKeyType::Text) {
            coreAinfData d = smallSet();
            record(d).*k.text = QStringLiteral("«%1» & <x>").arg(key);
            coreAinfData back;
            QVERIFY2(readFileParamGeoText(renderFileParamGeo(d, true), key, &back), qPrintable(key));
            QCOMPARE(record(back).*k.text, record(d).*k.text);
            continue;
        }
        // Zone and stop ids are what the routes refer to: those rows move in step.
        if ((std::is_same_v<R, coreGeoZone> && key == QLatin1String("id")) || key == QLatin1String("zoneid"))
            continue;
        const auto withValue = [&](int value) {
            coreAinfData d = smallSet();
            if (k.type == GeoKeyType::Integer)
                record(d).*k.integer = value;
            else
                record(d).*k.coordinate = value;
            return d;
        };
        for (int end : { k.min, k.max }) {
            const coreAinfData d = withValue(end);
            QVERIFY2(checkAinf(d).isEmpty(), qPrintable(key + ": " + checkAinf(d)));
            coreAinfData back;
            QString error;
            QVERIFY2(
                readFileParamGeoText(renderFileParamGeo(d, true), key, &back, &error), qPrintable(error));
            QCOMPARE(renderFileParamGeo(back, true), renderFileParamGeo(d, true));
        }
        for (int past : { k.min - 1, k.max + 1 }) {
            coreAinfData d = withValue(past);
            const QString problem = checkAinf(d);
            QVERIFY2(
                problem.startsWith(who) && problem.contains(QStringLiteral("\"%1\" = %2").arg(key).arg(past)),
                qPrintable(key + ": " + problem));
            QVERIFY(!readFileParamGeoText(renderFileParamGeo(d, true), key, &d));
        }
    }
}

coreGeoZone& secondZone(coreAinfData& d)
{
    return d.zones[1];
}
coreGeoRoute& firstRoute(coreAinfData& d)
{
    return d.routes[0];
}
coreGeoStop& secondStop(coreAinfData& d)
{
    return d.routes[0].stops[1];
}
coreSpeedZone& secondSpeed(coreAinfData& d)
{
    return d.speeds[1];
}
coreGeoSound& firstSound(coreAinfData& d)
{
    return d.sounds[0];
}

} // namespace

void tst_GeoFile::everyKeyIsWrittenReadAndChecked()
{
    walkKeys(kGeoZoneKeys, &secondZone, QStringLiteral("Геозона 3"));
    walkKeys(kGeoRouteKeys, &firstRoute, QStringLiteral("Маршрут "));
    walkKeys(kGeoStopKeys, &secondStop, QStringLiteral("Маршрут 7, остановка 2"));
    walkKeys(kGeoSpeedKeys, &secondSpeed, QStringLiteral("Скоростная зона "));
    walkKeys(kGeoSoundKeys, &firstSound, QStringLiteral("Звуковой файл "));
}

void tst_GeoFile::cardConfigFile()
{
    QTemporaryDir dir;
    const QString folder = dir.filePath(QStringLiteral("Localization/Temp"));
    QString error;
    const QString path = createFileCFG(smallSet().defaults, &error, folder);
    QVERIFY2(!path.isEmpty(), qPrintable(error));
    QCOMPARE(QFileInfo(path).fileName(), QStringLiteral("GeoZones.cfg"));
    QVERIFY(!QFile::exists(folder + QStringLiteral("/write.lst")));
    QByteArray expected = kDecl
        + "<AINF version=\"3\">\n\t<Config begin=\"\xcd\xe0\xf7\xe0\xeb\xee\" char=\"\xc1\" "
          "end=\"\xca\xee\xed\xe5\xf6\" number=\"1\" options=\"3146369\" setsnd=\"1\" "
          "speedmode=\"2\"/>\n</AINF>\n";
    QCOMPARE(readFile(path), expected);

    // A folder that cannot be made: no file, a message.
    writeFile(dir.filePath(QStringLiteral("plain")), "x");
    QVERIFY(createFileCFG(coreAinfDefaults(), &error, dir.filePath(QStringLiteral("plain/sub"))).isEmpty());
    QVERIFY(error.contains(QStringLiteral("Не удалось создать папку")));
}

void tst_GeoFile::tool()
{
    QTemporaryDir dir;
    const QString geo = dataFile("geo/small_full.xml");
    ToolRun r = runZrkTool({ "geo", "check", geo });
    QCOMPARE(r.code, 0);
    QCOMPARE(r.out,
        QByteArray("format: AINF ver 3 (full)\nzones: 2 of 10000\nroutes: 1 of 100, stops 3 (at most 3 "
                   "in a route, limit 200)\nspeed zones: 2 of 100\nsounds: 2 of 500\noptions: 3146369 "
                   "(routes 10000001, speeds 01000000, zones 00001100)\n"));

    // Normalizing keeps what the file had: a full file stays full, lists stay lists; --full adds
    // the sections (the model's defaults, no sounds) to a file without them.
    const QString out = dir.filePath(QStringLiteral("out.xml"));
    QCOMPARE(runZrkTool({ "geo", "normalize", geo, out }).code, 0);
    QCOMPARE(readFile(out), golden("geo/small_full.xml"));
    QCOMPARE(runZrkTool({ "geo", "normalize", geo, out, "--full" }).code, 0);
    QCOMPARE(readFile(out), golden("geo/small_full.xml"));
    const QString lists = dataFile("geo/small_lists.xml");
    QCOMPARE(runZrkTool({ "geo", "normalize", lists, out }).code, 0);
    QCOMPARE(readFile(out), golden("geo/small_lists.xml"));
    QCOMPARE(runZrkTool({ "geo", "normalize", lists, out, "--full" }).code, 0);
    coreAinfData listsOnly = smallSet();
    listsOnly.sounds.clear();
    listsOnly.defaults = coreAinfDefaults();
    QCOMPARE(readFile(out), renderFileParamGeo(listsOnly, true));
    // A file with sounds but no defaults is a full one too: its sounds stay.
    coreAinfData soundsOnly = smallSet();
    writeFile(out, renderFileParamGeo(soundsOnly, true).replace(QByteArray("\t<Config"), QByteArray("\t<X")));
    const QString again = dir.filePath(QStringLiteral("again.xml"));
    QCOMPARE(runZrkTool({ "geo", "normalize", out, again }).code, 0);
    coreAinfData read;
    GeoFileReadInfo info;
    QVERIFY(readFileParamGeo(again, &read, nullptr, &info));
    QVERIFY(info.hasSounds && info.hasConfig);
    QCOMPARE(read.sounds.size(), 2);

    // geo -> KML -> geo keeps names, positions and radii.
    const QString kml = dir.filePath(QStringLiteral("zones.kml"));
    r = runZrkTool({ "geo", "to-kml", geo, kml });
    QCOMPARE(r.code, 0);
    QCOMPARE(r.out, QByteArray("placemarks: 2, lines: 1\n"));
    const QString back = dir.filePath(QStringLiteral("back.xml"));
    r = runZrkTool({ "geo", "from-kml", kml, back });
    QCOMPARE(r.code, 0);
    QCOMPARE(r.out, QByteArray("zones: 2\nnot points (skipped): 1 (12А Депо - Вокзал)\n"));
    coreAinfData a = smallSet(), b;
    QVERIFY(readFileParamGeo(back, &b));
    QCOMPARE(b.zones.size(), 2);
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(b.zones[i].name, a.zones[i].name);
        QCOMPARE(formatGeoCoordinate(b.zones[i].lat), formatGeoCoordinate(a.zones[i].lat));
        QCOMPARE(formatGeoCoordinate(b.zones[i].lon), formatGeoCoordinate(a.zones[i].lon));
        QCOMPARE(b.zones[i].size, a.zones[i].size);
        QCOMPARE(b.zones[i].outputs, QStringLiteral("0000000000000000"));
    }
    QCOMPARE(b.zones[1].id, 2); // import hands out first free ids

    // Failures: one line on stderr, non-zero exit, nothing written.
    const QString old = dir.filePath(QStringLiteral("old.xml"));
    writeFile(old, "<PARAMAINF></PARAMAINF>");
    const QString none = dir.filePath(QStringLiteral("none.xml"));
    r = runZrkTool({ "geo", "normalize", old, none });
    QCOMPARE(r.code, 1);
    QCOMPARE(r.err.count('\n'), 1);
    QVERIFY(QString::fromUtf8(r.err).contains(QStringLiteral("PARAMAINF")));
    QVERIFY(!QFile::exists(none));
    QCOMPARE(runZrkTool({ "geo", "check" }).code, 2);
    QCOMPARE(runZrkTool({ "geo", "check", geo, "--full" }).code, 2);
}

void tst_GeoFile::toolFixtures_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("firstLonLat");
    QTest::addColumn<int>("nonPoints");
    const QStringList three { QStringLiteral("Красная площадь"), QStringLiteral("Дворцовая площадь"),
        QStringLiteral("Sydney Opera") };
    QTest::newRow("gpsbabel") << dataFile("kml/gpsbabel_points.kml") << three << "37.618423,55.751244" << 0;
    QTest::newRow("ogr KML") << dataFile("kml/ogr_kml.kml") << three << "37.618423,55.751244" << 0;
    QTest::newRow("ogr LIBKML") << dataFile("kml/ogr_libkml.kml") << three << "37.618423,55.751244" << 0;
    QTest::newRow("fastkml kml: prefix, folders")
        << dataFile("kml/fastkml_prefixed.kml")
        << QStringList { QStringLiteral("Вокзал"), QStringLiteral("Рынок"), QStringLiteral("Депо") }
        << "37.657000,55.776000" << 1;
}

void tst_GeoFile::toolFixtures()
{
    QFETCH(QString, file);
    QFETCH(QStringList, names);
    QFETCH(QString, firstLonLat);
    QFETCH(int, nonPoints);
    const KmlReadResult r = readKmlFile(file);
    QVERIFY2(r.ok(), qPrintable(r.error));
    QStringList got;
    for (const KmlPlacemark& p : r.points)
        got.append(p.name);
    QCOMPARE(got, names);
    QCOMPARE(formatGeoCoordinate(r.points[0].lon) + ',' + formatGeoCoordinate(r.points[0].lat), firstLonLat);
    QCOMPARE(r.nonPoints, nonPoints);
    QCOMPARE(r.nonPointNames.size(), nonPoints);

    const KmlImportResult imp = importKml(file, 250, 30, 5);
    QVERIFY(imp.ok());
    QCOMPARE(imp.zones.size(), names.size());
    QCOMPARE(imp.zones.last().id, names.size());
    QCOMPARE(imp.zones[0].size, 250);
    QCOMPARE(imp.zones[0].angle, 30);
    QCOMPARE(imp.zones[0].gob, 5);
    QCOMPARE(imp.nonPoints, nonPoints);
}

void tst_GeoFile::placemarkForms_data()
{
    QTest::addColumn<QByteArray>("body"); // inside <kml><Document>
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("lat");
    QTest::addColumn<double>("lon");
    QTest::addColumn<int>("radius");
    const auto row
        = [](const char* name, const char* body, const QString& mark, double lat, double lon,
              int radius = 0) { QTest::newRow(name) << QByteArray(body) << mark << lat << lon << radius; };
    row("no point: 0.0,0.0", "<Placemark><name>A</name></Placemark>", "A", 0.0, 0.0);
    row("empty coordinates",
        "<Placemark><name>A</name><Point><coordinates> </coordinates></Point></Placemark>", "A", 0.0, 0.0);
    row("spaces around commas, alt",
        "<Placemark><Point><coordinates>\n\t 37.5 ,\n 55.25 , 12 \n</coordinates></Point></Placemark>", "",
        55.25, 37.5);
    row("values past the altitude",
        "<Placemark><name>X</name><Point><coordinates>37.5,55.25,12,7</coordinates></Point></Placemark>", "X",
        55.25, 37.5);
    row("altitude not a number",
        "<Placemark><Point><coordinates>37.5,55.25,high</coordinates></Point></Placemark>", "", 55.25, 37.5);
    row("first of several tuples", "<Placemark><Point><coordinates>1,2 3,4</coordinates></Point></Placemark>",
        "", 2.0, 1.0);
    row("point inside MultiGeometry with a line",
        "<Placemark><name>M</name><MultiGeometry><LineString><coordinates>0,0 1,1</coordinates>"
        "</LineString><Point><coordinates>5,6</coordinates></Point></MultiGeometry></Placemark>",
        "M", 6.0, 5.0);
    row("our radius, CDATA name",
        "<Placemark><name><![CDATA[Зона & <1>]]></name><ExtendedData><Data name=\"radius\"><value>"
        "350</value></Data></ExtendedData><Point><coordinates>10,20</coordinates></Point></Placemark>",
        QStringLiteral("Зона & <1>"), 20.0, 10.0, 350);
    row("other prefix",
        "<g:Placemark xmlns:g=\"http://www.opengis.net/kml/2.2\"><g:name>P</g:name><g:Point>"
        "<g:coordinates>-1.5,-2.5</g:coordinates></g:Point></g:Placemark>",
        "P", -2.5, -1.5);
}

void tst_GeoFile::placemarkForms()
{
    QFETCH(QByteArray, body);
    QFETCH(QString, name);
    QFETCH(double, lat);
    QFETCH(double, lon);
    QFETCH(int, radius);
    const KmlReadResult r = readKml("<kml xmlns=\"http://www.opengis.net/kml/2.2\"><Document><Folder>" + body
        + "</Folder></Document></kml>");
    QVERIFY2(r.ok(), qPrintable(r.error));
    QCOMPARE(r.points.size(), 1);
    QCOMPARE(r.points[0].name, name);
    QCOMPARE(r.points[0].lat, lat);
    QCOMPARE(r.points[0].lon, lon);
    QCOMPARE(r.points[0].radius, radius);
    QCOMPARE(r.nonPoints, 0);
}

void tst_GeoFile::refused_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("reason");
    QTest::newRow("empty") << QByteArray() << QStringLiteral("файл пуст");
    QTest::newRow("not kml") << QByteArray("<gpx><wpt/></gpx>") << QStringLiteral("не \"kml\"");
    QTest::newRow("not XML before the root") << QByteArray("<<kml>") << QStringLiteral("строка 1");
    QTest::newRow("entity bomb") << QByteArray(
        "<?xml version=\"1.0\"?><!DOCTYPE kml [<!ENTITY a \"aaaaaaaa\">"
        "<!ENTITY b \"&a;&a;&a;&a;&a;&a;&a;&a;\">]><kml><Placemark><name>&b;"
        "</name></Placemark></kml>")
                                 << QStringLiteral("DTD");
    QTest::newRow("external entity") << QByteArray("<!DOCTYPE kml SYSTEM \"file:///etc/passwd\"><kml/>")
                                     << QStringLiteral("DTD");
}

void tst_GeoFile::refused()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, reason);
    const KmlReadResult r = readKml(text, QStringLiteral("x.kml"));
    QVERIFY(!r.ok());
    QVERIFY2(r.error.contains(reason), qPrintable(r.error));
    QVERIFY(r.error.contains(QStringLiteral("x.kml")));
    QVERIFY(r.points.isEmpty());
    const KmlImportResult imp = importKmlText(text, QStringLiteral("x.kml"), 100, 0, 0);
    QVERIFY(!imp.ok());
    QVERIFY(imp.zones.isEmpty());
}

void tst_GeoFile::goodPlacemarksOfABadFile_data()
{
    QTest::addColumn<QByteArray>("body"); // after <kml><Document>
    QTest::addColumn<QStringList>("imported");
    QTest::addColumn<QStringList>("bad"); // a piece of each bad placemark's line, in order
    QTest::addColumn<QString>("damage"); // a piece of the damage line, empty when none
    const QByteArray good
        = "<Placemark><name>A</name><Point><coordinates>37,55</coordinates></Point></Placemark>"
          "<Placemark><name>C</name><Point><coordinates>38,56,0</coordinates></Point></Placemark>";
    const auto point = [](const char* name, const char* coordinates) {
        return QByteArray("<Placemark><name>") + name + "</name><Point><coordinates>" + coordinates
            + "</coordinates></Point></Placemark>";
    };
    const QStringList ac { QStringLiteral("A"), QStringLiteral("C") };
    QTest::newRow("text") << point("B", "east,north") + good << ac
                          << QStringList { QStringLiteral(
                                 "метка \"B\": координаты \"east,north\" не прочитаны: "
                                 "долгота или широта не число") }
                          << QString();
    QTest::newRow("one value") << good + point("B", "37.5") << ac
                               << QStringList { QStringLiteral(
                                      "\"B\": координаты \"37.5\" не прочитаны: нужны") }
                               << QString();
    QTest::newRow("latitude off the globe")
        << good + point("B", "10,95") + point("D", "-181,0") << ac
        << QStringList { QStringLiteral("\"B\": координаты \"10,95\" не прочитаны: широта вне"),
               QStringLiteral("\"D\"") }
        << QString();
    QTest::newRow("not finite") << good + point("B", "nan,1") + point("E", "1,inf") << ac
                                << QStringList { QStringLiteral("\"B\""), QStringLiteral("\"E\"") }
                                << QString();
    QTest::newRow("cut in a placemark") << good + "<Placemark><name>B</na" << ac << QStringList()
                                        << QStringLiteral("файл повреждён (строка 1:");
    QTest::newRow("deep after the good ones")
        << good + QByteArray("<Folder>").repeated(100) + QByteArray("</Folder>").repeated(100) << ac
        << QStringList() << QStringLiteral("глубже 64");
    QTest::newRow("cut before any placemark") << QByteArray("<Placemark><name>B</na") << QStringList()
                                              << QStringList() << QStringLiteral("строка 1");
}

// A file from another program with a few bad placemarks: the good ones come in, each bad one is
// named with its reason, and a damaged tail says where reading stopped.
void tst_GeoFile::goodPlacemarksOfABadFile()
{
    QFETCH(QByteArray, body);
    QFETCH(QStringList, imported);
    QFETCH(QStringList, bad);
    QFETCH(QString, damage);
    const QByteArray text = "<kml xmlns=\"http://www.opengis.net/kml/2.2\"><Document>" + body
        + (damage.isEmpty() ? QByteArray("</Document></kml>") : QByteArray());
    const KmlImportResult r = importKmlText(text, QStringLiteral("x.kml"), 100, 0, 0);
    QVERIFY2(r.ok(), qPrintable(r.error));
    QStringList names;
    for (const coreGeoZone& z : r.zones)
        names << z.name;
    QCOMPARE(names, imported);
    QCOMPARE(r.badPlacemarks.size(), bad.size());
    for (int i = 0; i < bad.size(); ++i)
        QVERIFY2(r.badPlacemarks.at(i).contains(bad.at(i)), qPrintable(r.badPlacemarks.at(i)));
    QCOMPARE(r.damage.isEmpty(), damage.isEmpty());
    QVERIFY2(r.damage.contains(damage), qPrintable(r.damage));
    QCOMPARE(r.nonPoints, 0);
}

void tst_GeoFile::importIdsAndLimits()
{
    QByteArray kml = "<kml>";
    for (int i = 0; i < 4; ++i)
        kml += "<Placemark><name>p" + QByteArray::number(i) + "</name></Placemark>";
    kml += "<Placemark><name>line</name><LineString><coordinates>0,0 "
           "1,1</coordinates></LineString></Placemark></kml>";
    QVector<coreGeoZone> existing(3);
    existing[0].id = 2;
    existing[1].id = 5;
    existing[2].id = 3;
    KmlImportResult r = importKmlText(kml, QStringLiteral("k"), 100, 0, 0, existing);
    QVERIFY(r.ok());
    QVector<int> ids;
    for (const coreGeoZone& z : r.zones)
        ids.append(z.id);
    QCOMPARE(ids, (QVector<int> { 1, 4, 6, 7 }));
    QCOMPARE(r.nonPointNames, QStringList { QStringLiteral("line") });

    ZRK_Ainf_Caps caps;
    caps.maxZones = 6; // 3 + 4 does not fit: nothing comes in
    r = importKmlText(kml, QStringLiteral("k"), 100, 0, 0, existing, caps);
    QVERIFY(!r.ok());
    QVERIFY(r.zones.isEmpty());
    QVERIFY(r.error.contains(QStringLiteral("Ничего не добавлено")));
}

void tst_GeoFile::writtenKmlReadsBack()
{
    coreAinfData d;
    addGeoZone(d.zones, QStringLiteral("Север & <юг>"), 500, 0, 0, 89.999999, -179.5);
    addGeoZone(d.zones, QStringLiteral("B"), 10, 0, 0, -0.000001, 0.5);
    coreGeoRoute route;
    route.number = QStringLiteral("7");
    route.stops = { { GeoStop_Stop, 1, 1, {}, {} }, { GeoStop_Stop, 2, 2, {}, {} } };
    d.routes = { route };
    const KmlReadResult r = readKml(renderKml(d));
    QVERIFY2(r.ok(), qPrintable(r.error));
    QCOMPARE(r.points.size(), 2);
    QCOMPARE(r.nonPoints, 1);
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(r.points[i].name, d.zones[i].name);
        QCOMPARE(formatGeoCoordinate(r.points[i].lat), formatGeoCoordinate(d.zones[i].lat));
        QCOMPARE(formatGeoCoordinate(r.points[i].lon), formatGeoCoordinate(d.zones[i].lon));
        QCOMPARE(r.points[i].radius, d.zones[i].size);
    }
    QVERIFY(renderKml(d).contains("<coordinates>-179.500000,89.999999,0 0.500000,-0.000001,0</coordinates>"));
}

QTEST_GUILESS_MAIN(tst_GeoFile)
#include "tst_geo_file.moc"
