// Shows the geo page on its own with a few hundred zones imported from a generated KML file and a
// route, and writes PNGs of the page into the folder given (run under xvfb-run without a display).
#include "config_ui/zrk_form_config_ainf.h"
#include "config_ui/zrk_form_config_ainf_map.h"
#include "map/zrk_widget_map.h"
#include "translations/catalogue.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QScreen>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QWindow>

#include <cmath>
#include <cstdio>

namespace {

void settle(int ms)
{
    QElapsedTimer t;
    t.start();
    while (t.elapsed() < ms)
        QApplication::processEvents(QEventLoop::AllEvents, 20);
}

bool shot(QWidget* w, const QString& file)
{
    settle(1500);
    // The web view draws through GL: take the screen's pixels rather than the widget's.
    const QPixmap pixmap = QGuiApplication::primaryScreen()->grabWindow(w->winId());
    const bool ok = pixmap.save(file);
    std::printf("%s %s\n", ok ? "wrote" : "FAILED", qPrintable(file));
    return ok;
}

} // namespace

int main(int argc, char* argv[])
{
    QTemporaryDir home;
    for (const char* var :
        { "HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR" })
        qputenv(var, home.path().toLocal8Bit());
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    const QString out = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("screenshots");
    QDir().mkpath(out);
    zrk::installCatalogue(QStringLiteral("ru"));

    // 300 stops on a spiral around the centre, written as a tool would write them.
    const QString kml = home.filePath(QStringLiteral("stops.kml"));
    QFile f(kml);
    if (!f.open(QIODevice::WriteOnly))
        return 1;
    f.write("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<kml "
            "xmlns=\"http://www.opengis.net/kml/2.2\"><Document>\n");
    for (int i = 0; i < 300; ++i) {
        const double a = i * 0.35, r = 0.004 + i * 0.00025;
        f.write(QStringLiteral(
            "<Placemark><name>Остановка %1</name><Point><coordinates>%2,%3,0</coordinates></Point>"
            "</Placemark>\n")
                    .arg(i + 1)
                    .arg(37.62 + r * 1.8 * std::cos(a), 0, 'f', 6)
                    .arg(55.75 + r * std::sin(a), 0, 'f', 6)
                    .toUtf8());
    }
    f.write("<Placemark><name>Трасса</name><LineString><coordinates>37.5,55.7 "
            "37.7,55.8</coordinates></LineString>"
            "</Placemark>\n</Document></kml>\n");
    f.close();

    ZRK_Form_Config_Ainf page;
    page.setMessageSink([](const QString& m) { std::printf("message: %s\n", qPrintable(m)); });
    page.resize(1280, 760);
    page.move(0, 0);
    page.show();
    settle(1500);
    bool ok = shot(&page, QDir(out).filePath(QStringLiteral("01_geo_page_empty.png")));

    page.loadFileKML(kml, 120, 0, 3);
    page.addRouteThroughZones(QStringLiteral("12"), { 1, 40, 80, 120, 160, 200, 240 });
    ok = shot(&page, QDir(out).filePath(QStringLiteral("02_geo_page_zones_route.png"))) && ok;

    page.selectZone(200);
    page.mapForm()->map()->selectZone(200, true);
    ok = shot(&page, QDir(out).filePath(QStringLiteral("03_geo_page_zone_selected.png"))) && ok;

    if (auto* tabs = page.findChild<QTabWidget*>(QStringLiteral("tabWidget_Ainf")))
        tabs->setCurrentIndex(1);
    page.mapForm()->map()->fitZones();
    ok = shot(&page, QDir(out).filePath(QStringLiteral("04_geo_page_routes.png"))) && ok;
    return ok ? 0 : 1;
}
