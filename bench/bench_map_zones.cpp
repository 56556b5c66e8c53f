// How long the map takes to show 10,000 zones, against loading the empty map in the same run, and
// how long a frame takes while the user pans over them. The web engine needs an X server: without
// a display the program runs itself again under xvfb-run.
#include "map/zrk_widget_map.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QVariant>

#include <cstdio>
#include <unistd.h>

namespace {

constexpr int kZones = 10000;
constexpr int kGoalMs = 2000;

bool waitSignal(QSignalSpy& spy, int timeoutMs)
{
    QElapsedTimer t;
    t.start();
    while (spy.isEmpty() && t.elapsed() < timeoutMs)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    return !spy.isEmpty();
}

QVariant eval(ZRK_Widget_Map& map, const QString& script)
{
    QVariant result;
    bool done = false;
    map.runScript(script, [&](const QVariant& v) {
        result = v;
        done = true;
    });
    QElapsedTimer t;
    t.start();
    while (!done && t.elapsed() < 30000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    return result;
}

// An animated pan of 400 px, as dragging or the arrow keys move the map: the mean and worst frame
// in milliseconds, and the redraw when the pan ends.
QVariantMap pan(ZRK_Widget_Map& map)
{
    eval(map,
        QStringLiteral("window.__pan = null; (function(){ var m = zrkMap.leaflet(), t = [], busy = true;"
                       "function step(now){ t.push(now); if (busy) requestAnimationFrame(step); }"
                       "m.once('moveend', function(){ var e = performance.now();"
                       " requestAnimationFrame(function(after){ busy = false; var d = [];"
                       " for (var i = 1; i < t.length; ++i) d.push(t[i]-t[i-1]);"
                       " window.__pan = { mean: d.reduce(function(a,b){return a+b;},0)/Math.max(1,d.length),"
                       " worst: Math.max.apply(null, d), end: after - e }; }); });"
                       "requestAnimationFrame(function(now){ t.push(now);"
                       " m.panBy([400, 0], {animate: true, duration: 1.0}); requestAnimationFrame(step); });"
                       "return true; })()"));
    for (int i = 0; i < 100; ++i) {
        const QVariant v = eval(map, QStringLiteral("window.__pan"));
        if (v.isValid() && !v.isNull())
            return v.toMap();
        QEventLoop loop;
        QTimer::singleShot(100, &loop, &QEventLoop::quit);
        loop.exec();
    }
    return {};
}

} // namespace

int main(int argc, char* argv[])
{
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("ZRK_BENCH_UNDER_XVFB")) {
        qputenv("ZRK_BENCH_UNDER_XVFB", "1");
        std::vector<char*> args { const_cast<char*>("xvfb-run"), const_cast<char*>("-a"),
            const_cast<char*>("-s"), const_cast<char*>("-screen 0 1280x1024x24") };
        for (int i = 0; i < argc; ++i)
            args.push_back(argv[i]);
        args.push_back(nullptr);
        execvp("xvfb-run", args.data());
        std::perror("bench_map_zones: xvfb-run");
        return 1;
    }
    QTemporaryDir home;
    for (const char* var :
        { "HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR" })
        qputenv(var, home.path().toLocal8Bit());
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);

    QVector<ZrkMapZone> zones;
    zones.reserve(kZones);
    for (int i = 0; i < kZones; ++i) {
        // A 100 x 100 grid about 1.1 km apart around the default centre.
        zones.append({ i + 1, QStringLiteral("Зона %1").arg(i + 1), 55.2 + (i / 100) * 0.01,
            37.0 + (i % 100) * 0.018, 50 + (i % 10) * 40 });
    }

    // Reference: the empty map, from creation until the page reports an empty batch painted.
    QElapsedTimer timer;
    timer.start();
    ZRK_Widget_Map map;
    map.resize(1200, 800);
    map.show();
    QSignalSpy shown(&map, &ZRK_Widget_Map::zonesShown);
    map.setZones({});
    if (!waitSignal(shown, 60000)) {
        std::fprintf(stderr, "bench_map_zones: the map page did not load\n");
        return 1;
    }
    const qint64 emptyMs = qMax<qint64>(1, timer.elapsed());

    shown.clear();
    timer.restart();
    map.setZones(zones);
    if (!waitSignal(shown, 60000)) {
        std::fprintf(stderr, "bench_map_zones: %d zones were not shown within 60 s\n", kZones);
        return 1;
    }
    const qint64 zonesMs = timer.elapsed();
    const int pageMs = shown.first().at(1).toInt();
    const int drawn = eval(map, QStringLiteral("zrkMap.stats().circles")).toInt();

    std::printf("empty map loaded:          %6lld ms\n", static_cast<long long>(emptyMs));
    std::printf("%d zones shown:         %6lld ms (page %d ms), ratio %.2f to the empty map\n", drawn,
        static_cast<long long>(zonesMs), pageMs, double(zonesMs) / double(emptyMs));
    std::printf("goal under %d ms:         %s\n", kGoalMs, zonesMs < kGoalMs ? "met" : "NOT met");

    for (int zoom : { 10, 14 }) {
        map.centreOn(55.7, 37.9, zoom);
        QEventLoop settle; // the zoom animation and the clusters of the new scale
        QTimer::singleShot(1500, &settle, &QEventLoop::quit);
        settle.exec();
        const QVariantMap p = pan(map);
        std::printf("panning at zoom %2d:        mean frame %.1f ms, worst %.1f ms, redraw after %.1f ms\n",
            zoom, p.value(QStringLiteral("mean")).toDouble(), p.value(QStringLiteral("worst")).toDouble(),
            p.value(QStringLiteral("end")).toDouble());
    }
    return drawn == kZones ? 0 : 1;
}
