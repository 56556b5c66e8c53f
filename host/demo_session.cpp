#include "demo_session.h"

#include "host_window.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QPainter>
#include <QPixmap>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <cstdio>
#include <limits>

ZrkDemoSession::ZrkDemoSession(ZrkHostWindow& window, const QString& pluginFile, const QString& directory)
    : m_window(window)
    , m_plugin(pluginFile)
    , m_directory(directory)
{
}

void ZrkDemoSession::settle(int ms)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < ms)
        QApplication::processEvents(QEventLoop::AllEvents, 20);
}

QWidget* ZrkDemoSession::topLevel(const char* className)
{
    for (QWidget* w : QApplication::topLevelWidgets()) {
        if (qstrcmp(w->metaObject()->className(), className) == 0)
            return w;
    }
    return nullptr;
}

bool ZrkDemoSession::grab(QWidget* widget, const QString& name)
{
    settle();
    const QString file
        = QDir(m_directory)
              .filePath(QStringLiteral("%1_%2.png").arg(++m_step, 2, 10, QLatin1Char('0')).arg(name));
    if (!widget->grab().save(file)) {
        std::fprintf(stderr, "zrk-host: cannot write %s\n", qPrintable(file));
        return false;
    }
    m_written << file;
    return true;
}

// The visible windows painted where they stand, in the order they were shown (as an X server
// without a window manager stacks them) and the modal one on top: the screen as a person would
// see it, for platforms that cannot grab the screen (offscreen).
QPixmap ZrkDemoSession::composeWindows() const
{
    QList<QWidget*> windows;
    for (QWidget* w : QApplication::topLevelWidgets()) {
        if (w->isVisible() && !w->isMinimized())
            windows << w;
    }
    const auto rank = [this](QWidget* w) {
        return w == QApplication::activeModalWidget() ? std::numeric_limits<quint64>::max()
                                                      : m_shownOrder.value(w, 0);
    };
    std::stable_sort(
        windows.begin(), windows.end(), [&](QWidget* a, QWidget* b) { return rank(a) < rank(b); });
    QRect area;
    for (QWidget* w : qAsConst(windows))
        area |= w->geometry();
    if (area.isEmpty())
        return {};
    QPixmap canvas(area.size());
    canvas.fill(Qt::darkGray);
    QPainter painter(&canvas);
    for (QWidget* w : qAsConst(windows))
        painter.drawPixmap(w->geometry().topLeft() - area.topLeft(), w->grab());
    return canvas;
}

bool ZrkDemoSession::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show && watched->isWidgetType()
        && static_cast<QWidget*>(watched)->isWindow())
        m_shownOrder.insert(static_cast<QWidget*>(watched), ++m_shown);
    return false;
}

bool ZrkDemoSession::grabScreen(const QString& name)
{
    settle(300);
    QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen)
        return true;
    const QString file
        = QDir(m_directory)
              .filePath(QStringLiteral("%1_%2.png").arg(++m_step, 2, 10, QLatin1Char('0')).arg(name));
    QPixmap shot = screen->grabWindow(0);
    if (shot.isNull())
        shot = composeWindows();
    if (!shot.save(file)) {
        std::fprintf(stderr, "zrk-host: cannot write %s\n", qPrintable(file));
        return false;
    }
    m_written << file;
    return true;
}

int ZrkDemoSession::run()
{
    if (!QDir().mkpath(m_directory)) {
        std::fprintf(stderr, "zrk-host: cannot create %s\n", qPrintable(m_directory));
        return 1;
    }
    qApp->installEventFilter(this);
    m_window.move(10, 10);
    m_window.show();
    settle(300);

    // Load, identify, initialise; the queries follow by themselves.
    if (!m_window.loadPlugin(m_plugin)) {
        grab(&m_window, QStringLiteral("load_failed"));
        return 1;
    }
    bool ok = grab(&m_window, QStringLiteral("loaded"));

    const QString data = QDir::home().filePath(QStringLiteral("zrk-demo"));
    m_window.setDirectories(data + QStringLiteral("/tmi/"), QString(), data + QStringLiteral("/firmware/"),
        data + QStringLiteral("/sounds/"));
    m_window.sendDirectories();
    m_window.setMode(5);
    m_window.sendMode();
    ok = grab(&m_window, QStringLiteral("directories_and_mode")) && ok;

    m_window.setTerminal(
        QStringLiteral("K-7140"), QStringLiteral("861234567890123"), QStringLiteral("3.5.8"), 0);
    m_window.connectTerminal();
    m_window.askQueries();
    ok = grab(&m_window, QStringLiteral("connected")) && ok;

    m_window.openNewConfiguration();
    m_window.openTelemetryView();
    m_window.disconnectTerminal();
    ok = grab(&m_window, QStringLiteral("disconnected")) && ok;

    // The language round trip: English, then back to the default Russian.
    m_window.setLanguage(QStringLiteral("en"));
    if (QWidget* wait = topLevel("ZRK_Form_IO_Progress")) {
        wait->move(700, 120);
        wait->show();
        ok = grab(wait, QStringLiteral("wait_form_english")) && ok;
        wait->hide();
    }
    m_window.setLanguage(QStringLiteral("ru"));
    ok = grab(&m_window, QStringLiteral("language")) && ok;

    ok = runConfigSteps() && ok;

    // The plug-in's about form, as the plug-in fills it: its name, version and build.
    QWidget* about = topLevel("ZRK_Form_Param_About");
    if (!about) {
        std::fprintf(stderr, "zrk-host: the plug-in has no about form\n");
        return 1;
    }
    about->move(700, 80);
    about->show();
    ok = grab(about, QStringLiteral("about_form")) && ok;

    // The wait form as a transfer would show it.
    QWidget* wait = topLevel("ZRK_Form_IO_Progress");
    if (!wait) {
        std::fprintf(stderr, "zrk-host: the plug-in has no wait form\n");
        return 1;
    }
    QMetaObject::invokeMethod(wait, "clearForm");
    QMetaObject::invokeMethod(wait, "setProgress_Min", Q_ARG(int, 0));
    QMetaObject::invokeMethod(wait, "setProgress_Max", Q_ARG(int, 48));
    QMetaObject::invokeMethod(wait, "setProgress_Value", Q_ARG(int, 29));
    QMetaObject::invokeMethod(
        wait, "setText_FileLeft", Q_ARG(QString, QStringLiteral("zrk_K7140_21-11-26-14-5.xml")));
    QMetaObject::invokeMethod(wait, "setText_Value_Cur",
        Q_ARG(QString,
            //% "%1 КБ"
            qtTrId("host_078").arg(29)));
    QMetaObject::invokeMethod(wait, "setText_Value_All",
        Q_ARG(QString,
            //% "%1 КБ"
            qtTrId("host_078").arg(48)));
    QMetaObject::invokeMethod(wait, "setText_Time", Q_ARG(QString, QStringLiteral("00:00:12")));
    wait->move(700, 420);
    wait->show();
    ok = grab(wait, QStringLiteral("wait_form")) && ok;
    ok = grabScreen(QStringLiteral("screen")) && ok;
    about->hide();
    wait->hide();
    runTelemetrySteps();
    ok = runGeoSteps() && ok;
    return ok ? 0 : 1;
}
