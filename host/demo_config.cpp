// The configuration steps of the scripted session. The plug-in's windows are found by class and
// object name, never through its headers.
#include "demo_session.h"
#include "host_window.h"
#include "sim_config.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTabWidget>

#include <cstdio>

namespace {

constexpr quint32 kTrackPage = 3;

// The tab of the configuration window whose page is of that class.
bool selectTab(QWidget* config, const char* pageClass)
{
    auto* tabs = config->findChild<QTabWidget*>(QStringLiteral("tabWidget_Pages"));
    if (!tabs)
        return false;
    for (int i = 0; i < tabs->count(); ++i) {
        if (qstrcmp(tabs->widget(i)->metaObject()->className(), pageClass) == 0) {
            tabs->setCurrentIndex(i);
            return true;
        }
    }
    return false;
}

} // namespace

bool ZrkDemoSession::runConfigSteps()
{
    auto* terminal = m_window.findChild<ZrkSimConfig*>(QStringLiteral("ZrkSimConfig"));
    m_window.setTerminal(
        QStringLiteral("K-7140"), QStringLiteral("861234567890123"), QStringLiteral("3.5.8"), 0);
    m_window.connectTerminal();

    m_window.openNewConfiguration();
    QWidget* config = topLevel("ZRK_Widget_Config");
    if (!config) {
        std::fprintf(stderr, "zrk-host: the plug-in has no configuration window\n");
        return false;
    }
    config->move(40, 40);
    config->resize(1100, 760);
    bool ok = grab(config, QStringLiteral("config_new"));

    m_window.openConfigurationPage(kTrackPage);
    ok = grab(config, QStringLiteral("config_track")) && ok;

    if (auto* button = config->findChild<QAbstractButton*>(QStringLiteral("pushButton_BlackList"))) {
        button->click();
        if (QWidget* list = topLevel("ZRK_Form_Config_Track_Locator_BList")) {
            list->move(300, 120);
            ok = grab(list, QStringLiteral("config_black_list")) && ok;
            list->hide();
        }
    }

    // Reading from the terminal: 2382, the simulator answers with 2101 and the stored file.
    m_window.readConfigurationFromTerminal();
    settle(300);
    ok = grab(config, QStringLiteral("config_read_from_terminal")) && ok;
    if (selectTab(config, "ZRK_Form_Config_Other"))
        ok = grab(config, QStringLiteral("config_other_settings")) && ok;

    // Writing back: 2381, the plug-in saves and hands the file over with 2151.
    const int writesBefore = terminal ? terminal->writesReceived() : 0;
    m_window.writeConfigurationToTerminal();
    ok = grab(&m_window, QStringLiteral("config_written_to_terminal")) && ok;
    if (terminal && terminal->writesReceived() != writesBefore + 1) {
        std::fprintf(stderr, "zrk-host: the configuration did not reach the terminal\n");
        ok = false;
    }
    config->hide();
    m_window.disconnectTerminal();
    return ok;
}
