#include "zrk_widget_map.h"

#include "zrk_map_tiles.h"

#include <QEvent>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLabel>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QVBoxLayout>
#include <QWebChannel>
#include <QWebEnginePage>
#include <QWebEngineView>

#include <dlfcn.h>
#include <unistd.h>

static void zrkInitMapResources()
{
    // The resources live in a static library; the linker keeps them only when asked by name.
    Q_INIT_RESOURCE(zrk_map);
}

namespace {

// The web engine leaves objects of its own on the application (the default profile and its
// helpers). When the host unloads the plug-in, the engine's libraries, loaded for the plug-in,
// would go with it and leave those objects without their code; keep them loaded for the process.
void keepWebEngineLoaded()
{
    static bool done = false;
    if (done)
        return;
    done = true;
    for (const char* lib : { "libQt5WebEngineCore.so.5", "libQt5WebEngineWidgets.so.5",
             "libQt5WebChannel.so.5", "libQt5Quick.so.5", "libQt5Qml.so.5", "libQt5Positioning.so.5" })
        ::dlopen(lib, RTLD_NOW | RTLD_NOLOAD | RTLD_NODELETE);
}

// What the process answered when asked whether it can make an OpenGL context. Kept as a kind
// rather than a text, so that the message follows a change of language.
enum class GlAnswer
{
    Unknown,
    Yes,
    CannotCreate,
    CannotMakeCurrent,
    Forced
};

struct GlState
{
    GlAnswer answer = GlAnswer::Unknown;
    QString forcedReason;
};

GlState& glState()
{
    static GlState state;
    return state;
}

// Makes a context of the kind the web engine's compositor asks for, sharing with the application's
// global context when there is one, and makes it current on an offscreen surface. Whatever context
// was current before is current again afterwards.
GlAnswer probeOpenGL()
{
    QOpenGLContext* previous = QOpenGLContext::currentContext();
    QSurface* previousSurface = previous ? previous->surface() : nullptr;
    QSurfaceFormat format = QSurfaceFormat::defaultFormat();
    format.setDepthBufferSize(24);
    format.setStencilBufferSize(8);
    GlAnswer answer = GlAnswer::Yes;
    {
        QOpenGLContext context;
        context.setShareContext(QOpenGLContext::globalShareContext());
        context.setFormat(format);
        if (!context.create()) {
            answer = GlAnswer::CannotCreate;
        } else {
            QOffscreenSurface surface;
            surface.setFormat(context.format());
            surface.create();
            if (!surface.isValid() || !context.makeCurrent(&surface))
                answer = GlAnswer::CannotMakeCurrent;
            else
                context.doneCurrent();
        }
    }
    if (previous && previousSurface)
        previous->makeCurrent(previousSurface);
    return answer;
}

QString reasonText(const GlState& state)
{
    const QString platform = QGuiApplication::platformName();
    switch (state.answer) {
    case GlAnswer::CannotCreate:
        //% "не удалось создать контекст OpenGL (платформа «%1»)"
        return qtTrId("gmap_003").arg(platform);
    case GlAnswer::CannotMakeCurrent:
        //% "контекст OpenGL создан, но не становится текущим (платформа «%1»)"
        return qtTrId("gmap_004").arg(platform);
    case GlAnswer::Forced:
        return state.forcedReason;
    case GlAnswer::Unknown:
    case GlAnswer::Yes:
        break;
    }
    return {};
}

} // namespace

// The object the page calls through the WebChannel; its slots are the page's notifications.
class ZRK_Map_Bridge : public QObject
{
    Q_OBJECT

public:
    explicit ZRK_Map_Bridge(ZRK_Widget_Map* map)
        : QObject(map)
        , m_map(map)
    {
    }

public slots:
    void onReady() { m_map->pageReady(); }
    void onMapClicked(double lat, double lon) { emit m_map->mapClicked(lat, lon); }
    void onZoneClicked(int id) { emit m_map->zoneClicked(id); }
    void onZoneMoved(int id, double lat, double lon) { emit m_map->zoneMoved(id, lat, lon); }
    void onZoneResized(int id, int radius) { emit m_map->zoneResized(id, radius); }
    void onZonesProgress(int done, int total)
    {
        if (total > 0)
            emit m_map->loadProgress(done * 100 / total);
    }
    void onZonesShown(int count, int milliseconds) { emit m_map->zonesShown(count, milliseconds); }

private:
    ZRK_Widget_Map* m_map;
};

namespace {

QString json(const QJsonValue& value)
{
    if (value.isArray())
        return QString::fromUtf8(QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact));
    return QString::fromUtf8(QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact));
}

QJsonObject zoneJson(const ZrkMapZone& z)
{
    QJsonObject o { { QStringLiteral("id"), z.id }, { QStringLiteral("name"), z.name },
        { QStringLiteral("lat"), z.lat }, { QStringLiteral("lon"), z.lon },
        { QStringLiteral("r"), z.radius } };
    if (z.course >= 0)
        o.insert(QStringLiteral("c"), z.course);
    return o;
}

} // namespace

bool ZRK_Widget_Map::isSupported(QString* reason)
{
    GlState& state = glState();
    if (state.answer == GlAnswer::Unknown)
        state.answer = probeOpenGL();
    if (state.answer == GlAnswer::Yes)
        return true;
    if (reason)
        *reason = reasonText(state);
    return false;
}

void ZRK_Widget_Map::forceUnsupported(const QString& reason)
{
    GlState& state = glState();
    state.forcedReason = reason;
    state.answer = reason.isEmpty() ? GlAnswer::Unknown : GlAnswer::Forced;
}

QString ZRK_Widget_Map::unavailableText() const
{
    if (m_view)
        return {};
    QString reason;
    if (isSupported(&reason)) // only when a test lifted its "no" after this map was made
        reason = reasonText({ GlAnswer::CannotCreate, {} });
    //% "Карта недоступна: %1.\nВсё остальное работает как обычно; на рабочем месте с OpenGL здесь будет карта."
    return qtTrId("gmap_002").arg(reason);
}

void ZRK_Widget_Map::showUnavailable()
{
    m_unavailable = new QLabel(this);
    m_unavailable->setObjectName(QStringLiteral("label_MapUnavailable"));
    m_unavailable->setAlignment(Qt::AlignCenter);
    m_unavailable->setWordWrap(true);
    m_unavailable->setFrameShape(QFrame::StyledPanel);
    m_unavailable->setMargin(12);
    m_unavailable->setText(unavailableText());
    layout()->addWidget(m_unavailable);
}

void ZRK_Widget_Map::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange && m_unavailable)
        m_unavailable->setText(unavailableText());
    QWidget::changeEvent(event);
}

ZRK_Widget_Map::ZRK_Widget_Map(QWidget* parent)
    : QWidget(parent)
{
    // A map wants all the room its window can give.
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    if (!isSupported()) {
        showUnavailable();
        return;
    }
    zrkInitMapResources();
    keepWebEngineLoaded();
    // The web engine's sandbox cannot start for root; without this the view stays blank there.
    if (::geteuid() == 0 && qEnvironmentVariableIsEmpty("QTWEBENGINE_DISABLE_SANDBOX"))
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");

    m_view = new QWebEngineView(this);
    m_channel = new QWebChannel(this);
    m_bridge = new ZRK_Map_Bridge(this);
    m_channel->registerObject(QStringLiteral("bridge"), m_bridge);
    m_view->page()->setWebChannel(m_channel);
    layout->addWidget(m_view);

    connect(m_view, &QWebEngineView::loadStarted, this, &ZRK_Widget_Map::loadStarted);
    connect(m_view, &QWebEngineView::loadProgress, this, &ZRK_Widget_Map::loadProgress);
    connect(m_view, &QWebEngineView::loadFinished, this, [this](bool ok) {
        if (!ok)
            emit loadFinished(false);
    });
    m_view->setUrl(QUrl(QStringLiteral("qrc:/zrk/map/map.html")));
}

ZRK_Widget_Map::~ZRK_Widget_Map() = default;

void ZRK_Widget_Map::pageReady()
{
    m_ready = true;
    const auto pending = std::move(m_pending);
    m_pending.clear();
    for (const auto& call : pending)
        runScript(call.first, call.second);
    emit mapReady();
    emit loadFinished(true);
}

void ZRK_Widget_Map::runScript(const QString& script, const std::function<void(const QVariant&)>& result)
{
    if (!m_view)
        return; // no map: the page's calls are taken and dropped
    if (!m_ready) {
        m_pending.append({ script, result });
        return;
    }
    if (result)
        m_view->page()->runJavaScript(script, result);
    else
        m_view->page()->runJavaScript(script);
}

void ZRK_Widget_Map::queryStats(const std::function<void(const QJsonObject&)>& result)
{
    runScript(QStringLiteral("zrkMap.stats()"),
        [result](const QVariant& v) { result(QJsonObject::fromVariantMap(v.toMap())); });
}

void ZRK_Widget_Map::setZones(const QVector<ZrkMapZone>& zones)
{
    QJsonArray list;
    for (const ZrkMapZone& z : zones)
        list.append(zoneJson(z));
    runScript(QStringLiteral("zrkMap.setZones(%1)").arg(json(list)));
}

void ZRK_Widget_Map::updateZone(const ZrkMapZone& zone)
{
    runScript(QStringLiteral("zrkMap.upsertZone(%1)").arg(json(zoneJson(zone))));
}

void ZRK_Widget_Map::removeZone(int id)
{
    runScript(QStringLiteral("zrkMap.removeZone(%1)").arg(id));
}

void ZRK_Widget_Map::selectZone(int id, bool recentre)
{
    if (id <= 0)
        runScript(QStringLiteral("zrkMap.deselect()"));
    else
        runScript(QStringLiteral("zrkMap.selectZone(%1, %2)").arg(id).arg(recentre ? "true" : "false"));
}

void ZRK_Widget_Map::setRoutes(const QVector<ZrkMapRoute>& routes)
{
    QJsonArray list;
    for (const ZrkMapRoute& r : routes) {
        QJsonArray ids;
        for (int id : r.zoneIds)
            ids.append(id);
        list.append(QJsonObject { { QStringLiteral("id"), r.id }, { QStringLiteral("name"), r.name },
            { QStringLiteral("zones"), ids } });
    }
    runScript(QStringLiteral("zrkMap.setRoutes(%1)").arg(json(list)));
}

void ZRK_Widget_Map::setTrack(const QVector<ZrkMapTrackPoint>& points)
{
    QJsonArray list;
    for (const ZrkMapTrackPoint& p : points) {
        list.append(QJsonArray { p.lat, p.lon, p.time.toString(QStringLiteral("dd.MM.yyyy hh:mm:ss")),
            QString::number(p.speed, 'f', 1) });
    }
    runScript(QStringLiteral("zrkMap.setTrack(%1)").arg(json(list)));
}

void ZRK_Widget_Map::centreOn(double lat, double lon, int zoom)
{
    runScript(QStringLiteral("zrkMap.centre(%1, %2, %3)")
                  .arg(QString::number(lat, 'f', 7), QString::number(lon, 'f', 7))
                  .arg(zoom));
}

void ZRK_Widget_Map::fitZones()
{
    runScript(QStringLiteral("zrkMap.fitAll()"));
}

QString ZRK_Widget_Map::tileUrlFor(const QString& source)
{
    const QString s = source.trimmed();
    if (s.isEmpty())
        return {};
    if (s.startsWith(QLatin1String("http://")) || s.startsWith(QLatin1String("https://")))
        return s;
    return ZRK_Map_TileHandler::serveFolder(s);
}

void ZRK_Widget_Map::setTileSource(const QString& source)
{
    m_tileSource = source.trimmed();
    if (!m_view)
        return; // the folder handler lives on the web engine's profile: leave the engine alone
    const QString url = tileUrlFor(m_tileSource);
    runScript(QStringLiteral("zrkMap.setTiles(%1)")
                  .arg(QString::fromUtf8(QJsonDocument(QJsonArray { url }).toJson(QJsonDocument::Compact))
                           .mid(1)
                           .chopped(1)));
}

#include "zrk_widget_map.moc"
