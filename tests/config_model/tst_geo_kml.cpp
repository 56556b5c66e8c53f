// KML read as other tools write it, and the import into zones.
#include "config_files.h"
#include "config_model/kml_reader.h"
#include "translations/catalogue.h"

#include <QtTest>

using namespace zrktest;

class tst_GeoKml : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QVERIFY(zrk::installCatalogue(QStringLiteral("ru"))); }
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

void tst_GeoKml::toolFixtures_data()
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

void tst_GeoKml::toolFixtures()
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

void tst_GeoKml::placemarkForms_data()
{
    QTest::addColumn<QByteArray>("body"); // inside <kml><Document>
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("lat");
    QTest::addColumn<double>("lon");
    QTest::addColumn<int>("radius");
    QTest::newRow("no point: 0.0,0.0")
        << QByteArray("<Placemark><name>A</name></Placemark>") << "A" << 0.0 << 0.0 << 0;
    QTest::newRow("empty coordinates")
        << QByteArray("<Placemark><name>A</name><Point><coordinates> </coordinates></Point></Placemark>")
        << "A" << 0.0 << 0.0 << 0;
    QTest::newRow("spaces around commas, alt") << QByteArray(
        "<Placemark><Point><coordinates>\n\t 37.5 ,\n 55.25 , 12 \n</coordinates></Point></Placemark>")
                                               << "" << 55.25 << 37.5 << 0;
    QTest::newRow("values past the altitude")
        << QByteArray("<Placemark><name>X</name><Point><coordinates>37.5,55.25,12,7</coordinates></Point>"
                      "</Placemark>")
        << "X" << 55.25 << 37.5 << 0;
    QTest::newRow("altitude not a number")
        << QByteArray("<Placemark><Point><coordinates>37.5,55.25,high</coordinates></Point></Placemark>")
        << "" << 55.25 << 37.5 << 0;
    QTest::newRow("first of several tuples")
        << QByteArray("<Placemark><Point><coordinates>1,2 3,4</coordinates></Point></Placemark>") << "" << 2.0
        << 1.0 << 0;
    QTest::newRow("point inside MultiGeometry with a line") << QByteArray(
        "<Placemark><name>M</name><MultiGeometry><LineString><coordinates>0,0 1,1</coordinates>"
        "</LineString><Point><coordinates>5,6</coordinates></Point></MultiGeometry></Placemark>")
                                                            << "M" << 6.0 << 5.0 << 0;
    QTest::newRow("our radius, CDATA name") << QByteArray(
        "<Placemark><name><![CDATA[Зона & <1>]]></name><ExtendedData><Data name=\"radius\"><value>"
        "350</value></Data></ExtendedData><Point><coordinates>10,20</coordinates></Point></Placemark>")
                                            << "Зона & <1>" << 20.0 << 10.0 << 350;
    QTest::newRow("other prefix") << QByteArray(
        "<g:Placemark xmlns:g=\"http://www.opengis.net/kml/2.2\"><g:name>P"
        "</g:name><g:Point><g:coordinates>-1.5,-2.5</g:coordinates></g:Point>"
        "</g:Placemark>") << "P" << -2.5
                                  << -1.5 << 0;
}

void tst_GeoKml::placemarkForms()
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

void tst_GeoKml::refused_data()
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

void tst_GeoKml::refused()
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

void tst_GeoKml::goodPlacemarksOfABadFile_data()
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
void tst_GeoKml::goodPlacemarksOfABadFile()
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

void tst_GeoKml::importIdsAndLimits()
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

void tst_GeoKml::writtenKmlReadsBack()
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

QTEST_GUILESS_MAIN(tst_GeoKml)
#include "tst_geo_kml.moc"
