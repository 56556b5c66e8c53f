#pragma once

#include <QHash>
#include <QObject>
#include <QPixmap>
#include <QString>
#include <QStringList>

#include <functional>

class QWidget;
class ZrkHostWindow;

// The scripted session of `zrk-host --demo DIR PLUGIN`: load, identify, initialise, directories,
// mode, connect, disconnect, language, then the plug-in's about and wait forms; after every step a
// PNG of what the user would see goes into DIR. The plug-in's forms are found through Qt's object
// model by class name, never through the plug-in's headers.
class ZrkDemoSession : public QObject
{
    Q_OBJECT

public:
    ZrkDemoSession(ZrkHostWindow& window, const QString& pluginFile, const QString& directory);

    // Runs the whole session; returns the process exit code.
    int run();

    QStringList writtenFiles() const { return m_written; }

private:
    void runTelemetrySteps(); // demo_telemetry.cpp
    // The configuration window: new, the track page, the black list, reading from the terminal,
    // the other settings, writing to the terminal.
    bool runConfigSteps();
    bool runFieldSetSteps(QWidget* config);
    void settle(int ms = 150);
    bool grab(QWidget* widget, const QString& name);
    // The screen; where the platform cannot grab it (offscreen), the visible windows composed.
    bool grabScreen(const QString& name);
    QPixmap composeWindows() const;
    bool eventFilter(QObject* watched, QEvent* event) override;
    static QWidget* topLevel(const char* className);
    bool runGeoSteps();

    ZrkHostWindow& m_window;
    QString m_plugin;
    QString m_directory;
    QStringList m_written;
    int m_step = 0;
    QHash<QWidget*, quint64> m_shownOrder; // when each window was last shown
    quint64 m_shown = 0;
};
