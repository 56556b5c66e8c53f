// zrk-host: a reference configurator host. Loads one device plug-in through its four exports and
// talks to it with the host messages; with --demo it runs a scripted session and writes PNGs.
#include "demo_session.h"
#include "host_catalogue.h"
#include "host_dispatcher.h"
#include "host_window.h"
#include "plugin_loader.h"
#include "sim_config.h"
#include "sim_sdcard.h"
#include "sim_telemetry.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QTranslator>

#include <cstdio>

namespace {

// The plug-in built next to this program, else the one this program was built with.
QString defaultPlugin()
{
    const QString sibling
        = QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("../device/libzrk_k7140.so"));
    if (QFileInfo::exists(sibling))
        return QDir::cleanPath(sibling);
    return QStringLiteral(ZRK_DEFAULT_PLUGIN);
}

} // namespace

int main(int argc, char* argv[])
{
    // Plug-ins may bring web views, which need shared contexts set before the application exists.
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("zrk"));
    QCoreApplication::setApplicationName(QStringLiteral("zrk-host"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Reference host for Torvin K-7140 device plug-ins"));
    parser.addHelpOption();
    QCommandLineOption demo(QStringLiteral("demo"),
        QStringLiteral("Run the scripted session, write PNGs into DIR, exit."), QStringLiteral("DIR"));
    parser.addOption(demo);
    QCommandLineOption lang(QStringLiteral("lang"),
        QStringLiteral("The host's language: ru (default) or en."), QStringLiteral("LANG"),
        QStringLiteral("ru"));
    parser.addOption(lang);
    parser.addPositionalArgument(
        QStringLiteral("plugin"), QStringLiteral("The plug-in file (default: the one built)."));
    parser.process(app);
    const QStringList args = parser.positionalArguments();
    const QString plugin = args.isEmpty() ? defaultPlugin() : args.first();

    // The host's own texts; the plug-in installs its catalogue by itself. Installed before any
    // window is built, and outlives the windows, which read their texts once.
    const QString language = parser.value(lang);
    if (language != QLatin1String("ru") && language != QLatin1String("en")) {
        std::fprintf(stderr, "zrk-host: unknown language %s (ru or en)\n", qPrintable(language));
        return 2;
    }
    QTranslator hostTexts;
    if (!zrkLoadHostCatalogue(hostTexts, language))
        std::fprintf(stderr, "zrk-host: the host's catalogue cannot be loaded\n");
    QCoreApplication::installTranslator(&hostTexts);

    ZrkPluginLoader loader;
    int status = 0;
    {
        ZrkHostDispatcher dispatcher(loader);
        ZrkHostWindow window(loader, dispatcher);
        auto* configuration = new ZrkSimConfig(dispatcher, &window);
        auto* sdCard = new ZrkSimSdCard(dispatcher, &window);
        window.addDockWidget(Qt::RightDockWidgetArea, sdCard->createDock());
        ZrkSimTelemetry telemetry;
        telemetry.install(dispatcher);
        window.addSimulatorPanel(telemetry.createPanel());
        // A configuration written to the terminal sets the field set of the records it sends next.
        QObject::connect(configuration, &ZrkSimConfig::configurationWritten, &telemetry,
            &ZrkSimTelemetry::setConfigurationXml);
        telemetry.setConfigurationXml(configuration->storedConfiguration());
        if (parser.isSet(demo)) {
            ZrkDemoSession session(window, plugin, parser.value(demo));
            status = session.run();
            if (status != 0 && !loader.isLoaded())
                std::fprintf(stderr, "zrk-host: %s\n", qPrintable(loader.errorString()));
            for (const QString& file : session.writtenFiles())
                std::printf("%s\n", qPrintable(file));
        } else {
            window.show();
            window.loadPlugin(plugin);
            status = app.exec();
        }
        window.hide();
        // The plug-in's windows and texts go before the host's own objects do.
        loader.unload();
    }
    return status;
}
