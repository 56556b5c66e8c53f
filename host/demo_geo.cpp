// The geo steps of the demo session: the configuration window's geo page with a few hundred zones
// imported from a KML file, a route through some of them, one zone being edited, and the geo files
// written to the simulated terminal's SD card. The page is reached through Qt's object model.
#include "demo_session.h"
#include "host_window.h"
#include "sim_sdcard.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QVariantList>

#include <cmath>
#include <cstdio>

namespace {

// Events on entry and exit, and the heading of entry checked (the map draws it as an arrow).
constexpr int kDemoZoneOptions = 0x01 | 0x02 | 0x40;

QWidget* findByClass(const char* className)
{
    for (QWidget* top : QApplication::topLevelWidgets()) {
        for (QWidget* w : top->findChildren<QWidget*>()) {
            if (qstrcmp(w->metaObject()->className(), className) == 0)
                return w;
        }
    }
    return nullptr;
}

// Brings the tab holding the widget to the front in every tab set above it.
void showTabOf(QWidget* widget)
{
    for (QWidget* a = widget->parentWidget(); a; a = a->parentWidget()) {
        if (auto* tabs = qobject_cast<QTabWidget*>(a)) {
            for (int i = 0; i < tabs->count(); ++i) {
                if (tabs->widget(i) == widget || tabs->widget(i)->isAncestorOf(widget))
                    tabs->setCurrentIndex(i);
            }
        }
    }
}

// Stops laid on a spiral around the city centre, as a mapping tool exports them, plus one line
// that the import reports rather than drops.
bool writeStopsKml(const QString& path, int count)
{
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly))
        return false;
    f.write("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<kml xmlns=\"http://www.opengis.net/kml/2.2\">"
            "<Document><Folder><name>Остановки</name>\n");
    for (int i = 0; i < count; ++i) {
        const double a = i * 0.35, r = 0.004 + i * 0.00025;
        f.write(QStringLiteral("<Placemark><name>Остановка %1</name><Point><coordinates>%2,%3,0</coordinates>"
                               "</Point></Placemark>\n")
                    .arg(i + 1)
                    .arg(37.62 + r * 1.8 * std::cos(a), 0, 'f', 6)
                    .arg(55.75 + r * std::sin(a), 0, 'f', 6)
                    .toUtf8());
    }
    f.write(
        "</Folder><Placemark><name>Трасса</name><LineString><coordinates>37.5,55.7 37.7,55.8</coordinates>"
        "</LineString></Placemark></Document></kml>\n");
    return true;
}

} // namespace

bool ZrkDemoSession::runGeoSteps()
{
    m_window.connectTerminal(); // the card is written only while a terminal is connected
    m_window.openNewConfiguration();
    settle(500);
    // The geo page is built when its tab is first opened.
    if (QWidget* holder = findByClass("ZRK_Widget_Config_Full")) {
        if (auto* tabs = holder->findChild<QTabWidget*>(QStringLiteral("tabWidget_Pages"))) {
            if (QWidget* tab = tabs->findChild<QWidget*>(QStringLiteral("ZRK_Form_Config_Ainf_Holder")))
                tabs->setCurrentWidget(tab);
        }
    }
    QWidget* page = findByClass("ZRK_Form_Config_Ainf");
    if (!page) {
        std::fprintf(
            stderr, "zrk-host: the configuration window has no geo page; the geo steps are skipped\n");
        return true;
    }
    QWidget* window = page->window();
    window->move(0, 0);
    window->resize(1280, 800);
    window->show();
    showTabOf(page);
    QMetaObject::invokeMethod(page, "deviceConnect");

    // The import reports the placemark that is not a point in a modal message box: a timer takes its
    // picture and closes it, as a user would read it and press the button.
    bool reported = false;
    QTimer::singleShot(1500, this, [this, &reported] {
        for (QWidget* w : QApplication::topLevelWidgets()) {
            if (w->inherits("QMessageBox") && w->isVisible()) {
                reported = grabScreen(QStringLiteral("geo_kml_import_report"));
                w->close();
            }
        }
    });
    QTemporaryDir temp;
    const QString kml = temp.filePath(QStringLiteral("stops.kml"));
    int added = 0;
    if (!writeStopsKml(kml, 300)
        || !QMetaObject::invokeMethod(page, "loadFileKML", Q_RETURN_ARG(int, added), Q_ARG(QString, kml),
            Q_ARG(int, 120), Q_ARG(int, 45), Q_ARG(int, kDemoZoneOptions))
        || added != 300) {
        std::fprintf(stderr, "zrk-host: the geo page imported %d of 300 zones\n", added);
        return false;
    }
    if (!reported)
        std::fprintf(stderr, "zrk-host: the geo page did not report the line placemark\n");
    int route = 0;
    QMetaObject::invokeMethod(page, "addRouteThroughZones", Q_RETURN_ARG(int, route),
        Q_ARG(QString, QStringLiteral("12")),
        Q_ARG(QVariantList, (QVariantList { 1, 40, 80, 120, 160, 200, 240 })));
    bool ok = reported && route > 0 && grabScreen(QStringLiteral("geo_zones_and_route"));

    QMetaObject::invokeMethod(page, "selectZone", Q_ARG(int, 200));
    ok = grabScreen(QStringLiteral("geo_zone_selected")) && ok;

    bool started = false;
    QMetaObject::invokeMethod(page, "saveFileInDevice", Q_RETURN_ARG(bool, started));
    settle(1500);
    auto* card = m_window.findChild<ZrkSimSdCard*>(QStringLiteral("ZrkSimSdCard"));
    if (!started || !card || !card->files().contains(QStringLiteral("GeoZones.cfg"))) {
        std::fprintf(stderr, "zrk-host: the geo files did not reach the SD card\n");
        ok = false;
    }
    window->hide();
    return grab(&m_window, QStringLiteral("geo_files_on_card")) && ok;
}
