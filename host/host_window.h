#pragma once

#include <QHash>
#include <QMainWindow>

class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QVBoxLayout;
class ZrkHostDispatcher;
class ZrkMessageLog;
class ZrkPluginLoader;

// The reference host's window: what the plug-in says about itself, the host messages a user needs
// at this stage, a simulated terminal to connect, and the live message log.
class ZrkHostWindow : public QMainWindow
{
    Q_OBJECT

public:
    ZrkHostWindow(ZrkPluginLoader& loader, ZrkHostDispatcher& dispatcher, QWidget* parent = nullptr);

    ZrkMessageLog* messageLog() const { return m_log; }

    // A simulator's own controls, placed under the terminal's.
    void addSimulatorPanel(QWidget* panel);

    // Loads, identifies and initialises the plug-in, then asks its queries. False with the reason
    // shown in the window when the file is not a plug-in of this family.
    bool loadPlugin(const QString& fileName);

public slots:
    void askQueries();
    void sendDirectories();
    void sendMode();
    void connectTerminal();
    void disconnectTerminal();
    void setLanguage(const QString& language);
    void openNewConfiguration();
    // 2101 with source 1: the configuration window opens the file.
    void openConfigurationFile(const QString& fileName);
    // 2383, 2382 and 2381 as the host's own menu sends them.
    void openConfigurationPage(quint32 page);
    void readConfigurationFromTerminal();
    void writeConfigurationToTerminal();
    void openTelemetryView();
    void openTelemetryFile(const QString& fileName, quint32 kind);

    // Demo helpers: fill the controls as a user would.
    void setDirectories(
        const QString& tmi, const QString& xml, const QString& firmware, const QString& sound);
    void setMode(int mode);
    void setTerminal(const QString& type, const QString& imei, const QString& firmware, quint32 connectType);

private slots:
    void chooseAndLoadPlugin();
    void chooseTelemetryFile();
    void chooseConfigurationFile();

private:
    QWidget* buildInfoPanel();
    QWidget* buildControls();
    void showLibraryInfo();
    void setControlsEnabled(bool enabled);
    void setQueryValue(int msg, const QString& value);

    ZrkPluginLoader& m_loader;
    ZrkHostDispatcher& m_dispatcher;
    ZrkMessageLog* m_log = nullptr;

    QLabel* m_file = nullptr;
    QLabel* m_type = nullptr;
    QLabel* m_name = nullptr;
    QLabel* m_values = nullptr;
    QLabel* m_firmwareWord = nullptr;
    QLabel* m_handle = nullptr;
    QLabel* m_error = nullptr;
    QFormLayout* m_queries = nullptr;
    QHash<int, QLabel*> m_queryValues;

    QLineEdit* m_dirs[4] = {};
    QSpinBox* m_mode = nullptr;
    QLineEdit* m_termType = nullptr;
    QLineEdit* m_termImei = nullptr;
    QLineEdit* m_termFirmware = nullptr;
    QComboBox* m_termConnect = nullptr;
    QLabel* m_termState = nullptr;
    QComboBox* m_language = nullptr;
    QComboBox* m_tmiKind = nullptr;
    QList<QWidget*> m_pluginControls;
    QVBoxLayout* m_controlsLayout = nullptr;
    int m_simulatorPanels = 0;
};
