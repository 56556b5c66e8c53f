// The configuration steps of the scripted session. The plug-in's windows are found by class and
// object name, never through its headers.
#include "demo_session.h"
#include "host_window.h"
#include "sim_config.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QHash>
#include <QTabWidget>
#include <QTimer>

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

// The record page's field boxes ("checkBox_Field_NNN", NNN the field number).
QList<QCheckBox*> fieldBoxes(QWidget* config)
{
    QList<QCheckBox*> boxes;
    for (QCheckBox* box : config->findChildren<QCheckBox*>())
        if (box->objectName().startsWith(QLatin1String("checkBox_Field_")))
            boxes << box;
    return boxes;
}

} // namespace

// The record page: every field ticked goes past the 512-byte limit; then the terminal's own field
// set plus navigation details and temperatures, which the telemetry steps show after the write.
bool ZrkDemoSession::runFieldSetSteps(QWidget* config)
{
    if (!selectTab(config, "ZRK_Form_Config_Orba3")) {
        std::fprintf(stderr, "zrk-host: the configuration window has no record page\n");
        return false;
    }
    if (auto* generation = config->findChild<QComboBox*>(QStringLiteral("FlashFormat")))
        generation->setCurrentIndex(2);
    const QList<QCheckBox*> boxes = fieldBoxes(config);
    QHash<QCheckBox*, bool> before;
    for (QCheckBox* box : boxes) {
        before.insert(box, box->isChecked());
        if (box->isEnabled())
            box->setChecked(true);
    }
    bool ok = grab(config, QStringLiteral("config_fieldset_over_512"));
    const QStringList extra { QStringLiteral("071"), QStringLiteral("073"), QStringLiteral("074"),
        QStringLiteral("075"), QStringLiteral("076"), QStringLiteral("047"), QStringLiteral("048") };
    for (QCheckBox* box : boxes) {
        const bool wanted = extra.contains(box->objectName().mid(15, 3));
        if (box->isEnabled())
            box->setChecked(before.value(box) || wanted);
    }
    return grab(config, QStringLiteral("config_fieldset_chosen")) && ok;
}

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
    config->resize(1200, 760);
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
    ok = runFieldSetSteps(config) && ok;

    // Writing back: 2381, the plug-in first shows what will change on the terminal; once that is
    // confirmed it saves and hands the file over with 2151; the simulated terminal's records take
    // the new field set.
    if (auto* review = config->findChild<QCheckBox*>(QStringLiteral("checkBox_ReviewBeforeWrite")))
        review->setChecked(true);
    bool reviewed = false;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [this, &poll, &reviewed, &ok] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog || dialog->objectName() != QLatin1String("ZRK_Designer_Dialog_Config_Compare"))
            return;
        poll.stop();
        dialog->resize(1180, 520);
        settle(200);
        ok = grab(dialog, QStringLiteral("config_review_before_write")) && ok;
        reviewed = true;
        dialog->accept(); // "write to terminal"
    });
    poll.start(100);
    const int writesBefore = terminal ? terminal->writesReceived() : 0;
    m_window.writeConfigurationToTerminal();
    poll.stop();
    if (!reviewed) {
        std::fprintf(stderr, "zrk-host: no review came up before the write\n");
        ok = false;
    }
    ok = grab(&m_window, QStringLiteral("config_written_to_terminal")) && ok;
    if (terminal && terminal->writesReceived() != writesBefore + 1) {
        std::fprintf(stderr, "zrk-host: the configuration did not reach the terminal\n");
        ok = false;
    }
    config->hide();
    m_window.disconnectTerminal();
    return ok;
}
