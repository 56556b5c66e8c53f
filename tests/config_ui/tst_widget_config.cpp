// The configuration window as the host drives it: titles, the page table, the terminal's files,
// unsaved changes, the branches no page owns, and files that do not load or cannot be written.
#include "../common/test_support.h"
#include "../config_model/config_files.h"
#include "config_model/app_settings.h"
#include "config_model/config_diff.h"
#include "config_model/config_document.h"
#include "config_model/config_keys.h"
#include "config_model/serialize.h"
#include "config_model/xml_tag.h"
#include "config_ui/zrk_dialog_config_compare.h"
#include "config_ui/zrk_form_config_orba3.h"
#include "config_ui/zrk_form_config_other.h"
#include "config_ui/zrk_form_config_track.h"
#include "config_ui/zrk_widget_config.h"
#include "config_ui/zrk_widget_config_full.h"
#include "config_ui/zrk_widget_config_light.h"
#include "device/zrk_device_k7140.h"
#include "translations/catalogue.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QTabWidget>
#include <QUndoStack>
#include <QtTest>

#include <cstring>

using zrktest::addr;

namespace {

struct Sent
{
    int msg;
    QString path; // 2151: the file handed over
    unsigned long lParam;
};
QVector<Sent> gSent;

unsigned long hostCallback(void*, int msg, unsigned long w, unsigned long l)
{
    Sent s { msg, QString(), l };
    if (msg == ZRK_MSG_WRITE_FILE_TO_DEVICE && w)
        s.path = *reinterpret_cast<QString*>(w);
    gSent.append(s);
    return 0;
}

QVector<int> sentIds()
{
    QVector<int> ids;
    for (const Sent& s : gSent)
        ids << s.msg;
    return ids;
}

// The window with the user's answers scripted.
class TestWindow : public ZRK_Widget_Config
{
public:
    UnsavedAnswer answer = UnsavedAnswer::Cancel;
    int questions = 0;
    QStringList messages;
    QString saveAsPath;
    bool writeAnswer = true;
    QVector<QVector<zrk::ConfigDifference>> reviews; // what each review before a write showed
    QStringList reviewedAgainst;

protected:
    bool confirmWrite(const QVector<zrk::ConfigDifference>& differences, const QString& against) override
    {
        reviews << differences;
        reviewedAgainst << against;
        return writeAnswer;
    }
    UnsavedAnswer askUnsavedChanges() override { return ++questions, answer; }
    void showMessage(const QString& text) override { messages << text; }
    QString chooseFileToSave() override { return saveAsPath; }
    QString chooseFileToOpen() override { return QString(); }
};

class WindowFactory : public ZRK_Device_Windows
{
public:
    ZRK_Widget_Config* createConfig() override { return new TestWindow; }
};

szConfigFile configFile(int mode, int source, const QString& path)
{
    szConfigFile f {};
    f.mode = mode;
    f.source = source;
    const QByteArray local = path.toLocal8Bit();
    std::memcpy(f.path, local.constData(), static_cast<size_t>(local.size()));
    return f;
}

const QString kTerminalFile = QStringLiteral(ZRK_SOURCE_DIR "/host/data/terminal_config.xml");
const QStringList kUnowned { "TRANSFER", "CAN", "INPUTS", "OUTPUTS", "TEMPSENS", "PHONES", "SYSTEM",
    "GUARD" };

// One branch as the serializer writes it, to compare branches byte for byte.
QByteArray renderBranch(const CXmlTagV2* root, const QString& name)
{
    CSerialize doc(0, nullptr);
    doc.startSerialize();
    CXmlTagV2* holder = doc.createNodeV2(nullptr, QStringLiteral("DEVICE"), 0);
    if (const CXmlTagV2* branch = root->children.getTagFromName(name)) {
        auto* copy = new CXmlTagV2(*branch);
        copy->parent = holder;
        holder->children.addTag(copy);
    }
    return doc.render();
}

} // namespace

class TestWidgetConfig : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_home;
    ZRK_Device_K7140* m_device = nullptr;
    WindowFactory m_factory;
    TestWindow* window() { return static_cast<TestWindow*>(m_device->widgetConfig()); }
    ZRK_Widget_Config_Full* full() { return window()->widgetFull(); }
    QSpinBox* distanceBox()
    {
        return full()->trackPage()->findChild<QSpinBox*>("Additional_spinBox_Distance");
    }
    void open(int mode, int source, const QString& path)
    {
        szConfigFile f = configFile(mode, source, path);
        m_device->ZRK_ReceiveMessage(m_device, ZRK_MSG_OPEN_CONFIGURATION, addr(f), 0);
    }
    void setConnected(bool on)
    {
        if (on) {
            szDeviceConnect record {};
            record.deviceType = QStringLiteral("K-7140");
            m_device->ZRK_ReceiveMessage(m_device, ZRK_MSG_DEVICE_CONNECTED, addr(record), 0);
        } else {
            m_device->ZRK_ReceiveMessage(m_device, ZRK_MSG_DEVICE_DISCONNECTED, 0, 0);
        }
    }

private slots:
    void initTestCase()
    {
        QVERIFY(zrktest::useOwnHome(m_home, "tst_widget_config"));
        zrk::installCatalogue(QStringLiteral("ru"));
        m_device = new ZRK_Device_K7140(QStringLiteral("K-7140"), 3, 5, 8, 1);
        m_device->setWindowFactory(&m_factory);
        m_device->InitConfigurator(&hostCallback);
        m_device->initWidgetConfig();
    }
    void init()
    {
        window()->answer = TestWindow::UnsavedAnswer::Discard;
        window()->closeWidgetConfig();
        gSent.clear();
        window()->messages.clear();
        window()->questions = 0;
    }
    void cleanupTestCase() { m_device->setWindowFactory(nullptr); }

    void titleAndEditor_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("source");
        QTest::addColumn<bool>("withPath");
        QTest::addColumn<QString>("title");
        QTest::addColumn<bool>("full");
        QTest::newRow("new, full") << 1 << 1 << false << "K-7140: New" << true;
        QTest::newRow("new, light") << 0 << 1 << false << "K-7140: New" << false;
        QTest::newRow("file, full") << 1 << 1 << true << "K-7140: terminal_config.xml" << true;
        QTest::newRow("file, mode 2 is light") << 2 << 1 << true << "K-7140: terminal_config.xml" << false;
        QTest::newRow("device") << 1 << 0 << true << "K-7140: Device" << true;
        QTest::newRow("device, source 2") << 0 << 2 << true << "K-7140: Device" << false;
    }
    void titleAndEditor()
    {
        QFETCH(int, mode);
        QFETCH(int, source);
        QFETCH(bool, withPath);
        QFETCH(QString, title);
        QFETCH(bool, full);
        open(mode, source, withPath ? kTerminalFile : QString());
        QCOMPARE(window()->windowTitle(), title);
        QCOMPARE(window()->isFullEditorShown(), full);
        QVERIFY(window()->isVisible());
        QVERIFY(!window()->isModified());
        // The host hears of the opening once.
        QCOMPARE(sentIds(), QVector<int>({ ZRK_MSG_CONFIG_WINDOW_OPENED }));
        // Only a file from the terminal is kept as read.
        QCOMPARE(!window()->lastReadCopy().isEmpty() && source != 1 && withPath, source != 1 && withPath);
    }

    void newConfigurationIsDefaults()
    {
        open(1, 1, kTerminalFile);
        open(1, 1, QString());
        // The window's own "new" and save, against the file kept in the tests.
        const QString saved = m_home.filePath(QStringLiteral("new.xml"));
        QVERIFY(window()->saveFile(saved));
        QCOMPARE(zrktest::readFile(saved),
            zrktest::readFile(QStringLiteral(ZRK_SOURCE_DIR "/tests/config_model/data/new_config.xml")));
        // Nothing of the terminal's file survives a new configuration.
        QVERIFY(window()->widgetFull()->otherPage()->keptBranchNames().isEmpty());
    }

    void pageTable_data()
    {
        QTest::addColumn<quint32>("value");
        QTest::addColumn<QString>("page"); // empty: nothing changes
        QTest::newRow("0") << 0u << "";
        QTest::newRow("transfer: not in this model") << 1u << "";
        QTest::newRow("field set") << 2u << "fieldset";
        QTest::newRow("track") << 3u << "track";
        QTest::newRow("accelerometer: not in this model") << 9u << "";
        QTest::newRow("12") << 12u << "";
        QTest::newRow("13") << 13u << "";
        QTest::newRow("19") << 19u << "";
        QTest::newRow("200") << 200u << "";
        QTest::newRow("field-set tab 201") << 201u << "fieldset";
        QTest::newRow("field-set tab 210") << 210u << "fieldset";
        QTest::newRow("211") << 211u << "";
        QTest::newRow("accelerometer tab 901") << 901u << "";
        QTest::newRow("904") << 904u << "";
    }
    void pageTable()
    {
        QFETCH(quint32, value);
        QFETCH(QString, page);
        for (int mode : { 1, 0 }) {
            open(mode, 1, QString());
            QTabWidget* tabs = window()->widgetFull()->tabWidget();
            tabs->setCurrentWidget(window()->widgetFull()->otherPage());
            quint32 v = value;
            m_device->ZRK_ReceiveMessage(m_device, ZRK_MSG_OPEN_CONFIG_PAGE, addr(v), 0);
            QWidget* expected = page == "track" ? static_cast<QWidget*>(window()->widgetFull()->trackPage())
                : page == "fieldset" ? static_cast<QWidget*>(window()->widgetFull()->fieldSetPage())
                                     : static_cast<QWidget*>(window()->widgetFull()->otherPage());
            QCOMPARE(tabs->currentWidget(), expected);
            // The light editor gives way only to a page that exists.
            QCOMPARE(window()->isFullEditorShown(), mode == 1 || !page.isEmpty());
        }
    }

    void terminalRequests_data()
    {
        QTest::addColumn<bool>("connected");
        QTest::addColumn<int>("mode");
        QTest::newRow("disconnected") << false << 1;
        QTest::newRow("connected, full") << true << 1;
        QTest::newRow("connected, light") << true << 0;
    }
    void terminalRequests()
    {
        QFETCH(bool, connected);
        QFETCH(int, mode);
        setConnected(connected);
        open(mode, 1, kTerminalFile);
        gSent.clear();
        m_device->ZRK_ReceiveMessage(m_device, ZRK_MSG_WRITE_CONFIG_TO_DEVICE, 0, 0);
        m_device->ZRK_ReceiveMessage(m_device, ZRK_MSG_READ_CONFIG_FROM_DEVICE, 0, 0);
        setConnected(false);
        if (!connected) {
            QVERIFY(gSent.isEmpty());
            return;
        }
        QCOMPARE(sentIds(), QVector<int>({ ZRK_MSG_WRITE_FILE_TO_DEVICE, ZRK_MSG_READ_CONFIG_FILE }));
        QCOMPARE(gSent[0].lParam, 0ul);
        const QFileInfo written(gSent[0].path);
        const QString dir
            = mode == 1 ? QFileInfo(appDataDirectory()).absoluteFilePath() : QDir::currentPath();
        QCOMPARE(written.absolutePath(), dir);
        const QRegularExpression name(mode == 1
                ? QStringLiteral("^zrk_K7140_\\d{1,2}-\\d\\d-\\d\\d-\\d{1,2}-\\d{1,2}\\.xml$")
                : QStringLiteral("^zrk_K-7140_\\d{1,2}-\\d\\d-\\d\\d-\\d{1,2}-\\d{1,2}\\.xml$"));
        QVERIFY2(name.match(written.fileName()).hasMatch(), qPrintable(written.fileName()));
        // What goes to the terminal still holds every branch it had.
        const auto doc = zrk::loadConfigFile(gSent[0].path);
        QVERIFY(doc.doc);
        for (const QString& branch : kUnowned)
            QVERIFY2(doc.doc->root()->children.exists(branch), qPrintable(branch));
        QFile::remove(gSent[0].path);
    }

    void unsavedChangesOnClose_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("closed");
        QTest::newRow("cancel keeps the window") << int(TestWindow::UnsavedAnswer::Cancel) << false;
        QTest::newRow("discard") << int(TestWindow::UnsavedAnswer::Discard) << true;
        QTest::newRow("save") << int(TestWindow::UnsavedAnswer::Save) << true;
    }
    void unsavedChangesOnClose()
    {
        QFETCH(int, answer);
        QFETCH(bool, closed);
        const QString path = m_home.filePath(QStringLiteral("edited.xml"));
        QFile::remove(path);
        QVERIFY(QFile::copy(kTerminalFile, path));
        open(1, 1, path);
        QVERIFY(window()->widgetFull()->otherPage()->setKeptValue("PHONES/PHONE2", "number", "+79990000000"));
        window()->updateModified();
        QCOMPARE(window()->windowTitle(), QStringLiteral("K-7140: edited.xml*"));
        window()->answer = static_cast<TestWindow::UnsavedAnswer>(answer);
        gSent.clear();
        bool result = true;
        m_device->ZRK_ReceiveMessage(m_device, ZRK_MSG_HOST_CLOSES_PLUGIN, addr(result), 0);
        QCOMPARE(result, closed);
        QCOMPARE(window()->questions, 1);
        QCOMPARE(window()->isVisible(), !closed);
        QCOMPARE(sentIds().contains(ZRK_MSG_CONFIG_WINDOW_CLOSED), closed);
        const auto saved = zrk::loadConfigFile(path);
        QVERIFY(saved.doc);
        QCOMPARE(zrk::keyValue(zrk::childAt(saved.doc->root(), "PHONES/PHONE2"), "number"),
            answer == int(TestWindow::UnsavedAnswer::Save) ? QStringLiteral("+79990000000")
                                                           : QStringLiteral("+79007654321"));
    }

    // Every branch no page owns comes back byte for byte, after the pages' branches.
    void unownedBranchesRoundTrip()
    {
        open(1, 0, kTerminalFile);
        const QString out = m_home.filePath(QStringLiteral("roundtrip.xml"));
        QVERIFY(window()->saveFile(out));
        const auto before = zrk::loadConfigFile(kTerminalFile);
        const auto after = zrk::loadConfigFile(out);
        QVERIFY(before.doc && after.doc);
        QCOMPARE(window()->widgetFull()->otherPage()->keptBranchNames(), kUnowned);
        for (const QString& branch : kUnowned)
            QCOMPARE(renderBranch(after.doc->root(), branch), renderBranch(before.doc->root(), branch));
        // Pages first, then what the terminal had beyond them, and the user parameters last.
        QCOMPARE(zrk::topNodeNames(after.doc->root()),
            QStringList({ "PROTOCOL", "TRACK", "LOCATOR" }) + kUnowned + QStringList { "USERPARAM" });
        // The root's own keys beyond the header stay too.
        QCOMPARE(zrk::keyValue(after.doc->root(), "imei"), QStringLiteral("861234567890123"));
        QCOMPARE(zrk::keyValue(after.doc->root(), "creator"), QStringLiteral("config"));
        // The light editor shows the same configuration: its save differs only by its own edit.
        open(0, 0, kTerminalFile);
        window()->widgetLight()->setValue("moveTimer", "120");
        const QString light = m_home.filePath(QStringLiteral("light.xml"));
        QVERIFY(window()->widgetLight()->saveConfigLight(light));
        const auto lightDoc = zrk::loadConfigFile(light);
        QVERIFY(lightDoc.doc);
        const auto differences = zrk::diffConfigs(after.doc->root(), lightDoc.doc->root());
        QCOMPARE(differences.size(), 1);
        QCOMPARE(differences[0].node + '/' + differences[0].key, QStringLiteral("TRACK/POINTS/moveTimer"));
        QCOMPARE(differences[0].right, QStringLiteral("120"));
    }

    void badFilesLoseNothing_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("reason");
        QTest::newRow("broken") << QByteArray("<?xml version=\"1.0\"?>\n<DEVICE>\n<TRACK></DEVICE>")
                                << "строка 3";
        QTest::newRow("empty") << QByteArray() << "файл пуст";
        QTest::newRow("another root") << QByteArray("<AINF ver=\"3\"/>") << "DEVICE";
    }
    void badFilesLoseNothing()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, reason);
        open(1, 1, kTerminalFile);
        window()->widgetFull()->otherPage()->setKeptValue("GUARD/ALARM", "timer", "90");
        const QByteArray editing = window()->currentXml();
        const QString title = window()->windowTitle();
        const QString bad = m_home.filePath(QStringLiteral("bad.xml"));
        QFile f(bad);
        QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        f.write(content);
        f.close();
        QVERIFY(!window()->openFile(bad));
        QCOMPARE(window()->messages.size(), 1);
        QVERIFY2(window()->messages[0].contains("bad.xml") && window()->messages[0].contains(reason),
            qPrintable(window()->messages[0]));
        QCOMPARE(window()->currentXml(), editing);
        QCOMPARE(window()->windowTitle(), title);
        QCOMPARE(zrktest::readFile(bad), content);
        // A destination that cannot be written: a message, and the old file as it was.
        const QString dirAsFile = m_home.filePath(QStringLiteral("no-such-dir/x.xml"));
        QVERIFY(!window()->saveFile(dirAsFile));
        QCOMPARE(window()->messages.size(), 2);
        QVERIFY(!QFileInfo::exists(dirAsFile));
        QCOMPARE(window()->windowTitle(), title);
    }

    // A file that does not open through the host leaves the editing as it was, unsaved mark included.
    void failedOpenByHostChangesNothing_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("source");
        QTest::newRow("full editor asked") << 1 << 1;
        QTest::newRow("light editor asked") << 0 << 1;
        QTest::newRow("from the terminal") << 0 << 0;
    }
    void failedOpenByHostChangesNothing()
    {
        QFETCH(int, mode);
        QFETCH(int, source);
        open(1, 1, kTerminalFile);
        distanceBox()->setValue(250);
        window()->updateModified();
        const QByteArray editing = window()->currentXml();
        const QString title = window()->windowTitle();
        QVERIFY(title.endsWith('*'));
        const QString lastRead = window()->lastReadCopy();
        open(mode, source, m_home.filePath(QStringLiteral("no-such-file.xml")));
        QCOMPARE(window()->messages.size(), 1);
        QVERIFY(window()->isModified());
        QCOMPARE(window()->windowTitle(), title);
        QVERIFY(window()->isFullEditorShown());
        QCOMPARE(window()->currentXml(), editing);
        QCOMPARE(window()->lastReadCopy(), lastRead);
        // Closing still asks about the edits.
        window()->answer = TestWindow::UnsavedAnswer::Cancel;
        QVERIFY(!window()->closeWidgetConfig());
        QCOMPARE(window()->questions, 1);
    }

    void otherSettingsFilter_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QStringList>("shown"); // "node|key" rows expected visible
        QTest::addColumn<QStringList>("hidden");
        QTest::newRow("none") << "" << QStringList { "PHONES/PHONE1|number", "CAN/CAN1|baud" }
                              << QStringList();
        QTest::newRow("by node shows its rows")
            << "phone1" << QStringList { "PHONES/PHONE1|number", "PHONES/PHONE1|rights" }
            << QStringList { "PHONES/PHONE2|number", "CAN/CAN1|baud" };
        QTest::newRow("by key") << "baud" << QStringList { "CAN/CAN1|baud", "CAN/CAN2|baud" }
                                << QStringList { "CAN/CAN1|use", "INPUTS/IN1|name" };
        QTest::newRow("by Cyrillic value, any case")
            << "ЗАЖИГАНИЕ" << QStringList { "INPUTS/IN1|name" } << QStringList { "INPUTS/IN2|name" };
        QTest::newRow("nothing matches")
            << "no-such-text" << QStringList() << QStringList { "GUARD/ALARM|timer" };
    }
    void otherSettingsFilter()
    {
        QFETCH(QString, filter);
        QFETCH(QStringList, shown);
        QFETCH(QStringList, hidden);
        open(1, 0, kTerminalFile);
        ZRK_Form_Config_Other* other = window()->widgetFull()->otherPage();
        other->setFilter(filter);
        for (const QString& row : shown)
            QVERIFY2(other->isRowShown(row.section('|', 0, 0), row.section('|', 1)), qPrintable(row));
        for (const QString& row : hidden)
            QVERIFY2(!other->isRowShown(row.section('|', 0, 0), row.section('|', 1)), qPrintable(row));
        other->setFilter(QString());
        QVERIFY(!window()->isModified());
    }

    // Both editors work on one document: a value set in the light editor reaches the track page.
    void editorsShareTheDocument()
    {
        open(0, 1, kTerminalFile);
        window()->widgetLight()->setValue("dist", "750");
        window()->updateModified();
        QVERIFY(window()->isModified());
        quint32 trackPage = 3;
        m_device->ZRK_ReceiveMessage(m_device, ZRK_MSG_OPEN_CONFIG_PAGE, addr(trackPage), 0);
        QVERIFY(window()->isFullEditorShown());
        QCOMPARE(distanceBox()->value(), 750);
        QVERIFY(window()->isModified());
        QVERIFY(window()->widgetFull()->otherPage()->keptBranchNames().contains("PHONES"));
    }

    // Every kind of edit is one step that undo takes back to the very bytes, and redo brings again.
    void undoEachKindOfEdit_data()
    {
        QTest::addColumn<QString>("kind");
        for (const char* kind :
            { "track number", "track box", "turn rule (two boxes)", "light editor", "kept value",
                "record field", "generation", "user parameter name", "defaults", "new", "open another file" })
            QTest::newRow(kind) << kind;
    }
    void undoEachKindOfEdit()
    {
        QFETCH(QString, kind);
        open(1, 1, kTerminalFile);
        window()->undoStack().clear();
        const QByteArray before = window()->currentXml();
        ZRK_Widget_Config_Full* full = window()->widgetFull();
        auto* orba = full->fieldSetPage();
        if (kind == "track number")
            distanceBox()->setValue(777);
        else if (kind == "track box")
            full->trackPage()->findChild<QCheckBox*>("checkBox_BlockTimer")->toggle();
        else if (kind == "turn rule (two boxes)")
            full->trackPage()->findChild<QCheckBox*>("Additional_checkBox_Corner")->toggle();
        else if (kind == "light editor")
            window()->widgetLight()->setValue("angle", "45");
        else if (kind == "kept value")
            QVERIFY(full->otherPage()->setKeptValue("CAN/CAN1", "baud", "500"));
        else if (kind == "record field")
            orba->tabNavi()->box(10)->toggle();
        else if (kind == "generation")
            orba->flashFormat()->setCurrentIndex(0);
        else if (kind == "user parameter name")
            QTest::keyClicks(orba->tabUser()->nameEdit(230), "Brake");
        else if (kind == "defaults")
            window()->resetToDefaults();
        else if (kind == "new")
            window()->newConfig();
        else
            QVERIFY(
                window()->openFile(QStringLiteral(ZRK_SOURCE_DIR "/tests/config_model/data/track_page.xml")));
        const QByteArray after = window()->currentXml();
        QVERIFY(after != before);
        QCOMPARE(window()->undoStack().count(), 1); // typing a name is one step too
        window()->undo();
        QCOMPARE(window()->currentXml(), before);
        QVERIFY(!window()->isModified());
        QVERIFY(!window()->windowTitle().endsWith('*'));
        window()->redo();
        QCOMPARE(window()->currentXml(), after);
        // The pages show what was brought back: saving them again changes nothing.
        window()->undo();
        QCOMPARE(full->trackPage()->trackValues(),
            window()->session().branchValues(zrk::cfg::trackBranch(full->trackPage()->caps())));
    }

    // "Write to the terminal" shows what will change there and writes only when confirmed.
    void reviewBeforeWrite()
    {
        setConnected(true);
        open(1, 0, kTerminalFile); // read from the terminal
        window()->reviews.clear();
        window()->reviewedAgainst.clear();
        window()->writeAnswer = false;
        gSent.clear();
        m_device->ZRK_ReceiveMessage(m_device, ZRK_MSG_WRITE_CONFIG_TO_DEVICE, 0, 0);
        QCOMPARE(window()->reviews.size(), 1);
        QVERIFY(gSent.isEmpty()); // refused: nothing written
        // As read, a write changes only what this editor normalises.
        const int normalised = window()->reviews[0].size();
        distanceBox()->setValue(250);
        QVERIFY(full()->otherPage()->setKeptValue("GUARD/ALARM", "timer", "90"));
        window()->writeAnswer = true;
        m_device->ZRK_ReceiveMessage(m_device, ZRK_MSG_WRITE_CONFIG_TO_DEVICE, 0, 0);
        QCOMPARE(window()->reviews.size(), 2);
        QCOMPARE(window()->reviews[1].size(), normalised + 2);
        QStringList changed;
        for (const zrk::ConfigDifference& d : window()->reviews[1])
            changed << d.node + '/' + d.key + '=' + d.left + '>' + d.right;
        QVERIFY2(changed.contains("TRACK/POINTS/dist=300>250"), qPrintable(changed.join(' ')));
        QVERIFY2(changed.contains("GUARD/ALARM/timer=60>90"), qPrintable(changed.join(' ')));
        QCOMPARE(sentIds(), QVector<int>({ ZRK_MSG_WRITE_FILE_TO_DEVICE }));
        QFile::remove(gSent[0].path);
        // The terminal now holds what was written: nothing differs.
        m_device->ZRK_ReceiveMessage(m_device, ZRK_MSG_WRITE_CONFIG_TO_DEVICE, 0, 0);
        QVERIFY(window()->reviews[2].isEmpty());
        QFile::remove(gSent[1].path);
        // An experienced user turned the review off.
        setReviewBeforeWrite(false);
        gSent.clear();
        m_device->ZRK_ReceiveMessage(m_device, ZRK_MSG_WRITE_CONFIG_TO_DEVICE, 0, 0);
        QCOMPARE(window()->reviews.size(), 3);
        QCOMPARE(sentIds(), QVector<int>({ ZRK_MSG_WRITE_FILE_TO_DEVICE }));
        QFile::remove(gSent[0].path);
        setReviewBeforeWrite(true);
        setConnected(false);
    }

    // The review lists every difference once, says how many, and says so when there is none.
    void reviewDialog()
    {
        ZRK_Dialog_Config_Compare dialog;
        const QVector<zrk::ConfigDifference> two { { "TRACK/POINTS", "dist", "", "300", "250" },
            { "GUARD/ALARM", "timer", "", "60", "90" } };
        dialog.setReview(two, "x");
        QCOMPARE(dialog.rowCount(), 2);
        QVERIFY2(dialog.summary().contains(": 2."), qPrintable(dialog.summary()));
        QVERIFY(dialog.reviewAgain());
        dialog.findChild<QCheckBox*>("checkBox_ReviewAgain")->setChecked(false);
        QVERIFY(!dialog.reviewAgain());
        dialog.setReview({}, "x");
        QCOMPARE(dialog.rowCount(), 0);
        QVERIFY2(dialog.summary().contains("ничего не изменится"), qPrintable(dialog.summary()));
    }

    // A read from the terminal is kept dated; comparing with it shows the key's label and values.
    // The dated copies are listed newest first, and any of them compares with the editor.
    void compareWithLastRead()
    {
        open(1, 0, kTerminalFile);
        open(1, 0, kTerminalFile);
        const QVector<zrk::ReadCopy> copies = window()->readHistory();
        QVERIFY(copies.size() >= 2);
        for (int i = 1; i < copies.size(); ++i)
            QVERIFY(copies[i - 1].when >= copies[i].when);
        const QString copy = window()->lastReadCopy();
        QCOMPARE(copies[0].path, copy);
        QVERIFY(copy.startsWith(m_device->getPathXML()));
        QCOMPARE(zrktest::readFile(copy), zrktest::readFile(kTerminalFile));
        distanceBox()->setValue(250);
        bool ok = false;
        const auto differences = window()->compareWithLastRead(&ok);
        QVERIFY(ok);
        bool found = false;
        for (const zrk::ConfigDifference& d : differences) {
            if (d.node == "TRACK/POINTS" && d.key == "dist") {
                found = true;
                QCOMPARE(d.left, QStringLiteral("250"));
                QCOMPARE(d.right, QStringLiteral("300"));
                QVERIFY(!d.label.isEmpty());
            }
            // The header and the kept branches are the same on both sides.
            QVERIFY2(!kUnowned.contains(d.node.section('/', 0, 0)), qPrintable(d.node));
        }
        QVERIFY(found);
        QVERIFY(!window()->compareWithFile(copies[1].path, &ok).isEmpty());
        QVERIFY(ok);
    }
};

QTEST_MAIN(TestWidgetConfig)
#include "tst_widget_config.moc"
