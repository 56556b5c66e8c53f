#include "config_ui/zrk_widget_config.h"

#include "config_model/app_settings.h"
#include "config_model/config_document.h"
#include "config_model/orba_fieldset.h"
#include "config_model/serialize.h"
#include "config_model/xml_workdata.h"
#include "config_ui/zrk_dialog_config_compare.h"
#include "config_ui/zrk_form_config_ainf.h"
#include "config_ui/zrk_widget_config_full.h"
#include "config_ui/zrk_widget_config_light.h"
#include "device/zrk_device_k7140.h"

#include "ui_zrk_widget_config.h"

#include <QCloseEvent>
#include <QDateTime>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QRegularExpression>

#include <cstring>

namespace {

// The pause after the last edit before the configuration is compared with the saved one.
constexpr int kEditPauseMs = 300;
// Temporary file names of a write to the terminal: full editor and light editor.
constexpr char kFullTempPattern[] = "/zrk_K7140_%1.xml";
constexpr char kLightTempPattern[] = "/zrk_%1_%2.xml";
constexpr char kTempDateFormat[] = "d-MM-yy-H-m";
// The dated copies of configurations read from the terminal.
constexpr char kReadCopyPattern[] = "zrk_K7140_read_%1%2.xml";
constexpr char kReadCopyDateFormat[] = "yyyy-MM-dd_HH-mm-ss";
constexpr char kDeviceTitle[] = "Device";
constexpr char kNewTitle[] = "New";

// The form's texts (the .ui carries their ids).
[[maybe_unused]] const char* const kFormTexts[] = {
    //% "Новая"
    QT_TRID_NOOP("wcfg_002"),
    //% "Новая конфигурация со значениями по умолчанию"
    QT_TRID_NOOP("wcfg_003"),
    //% "Открыть..."
    QT_TRID_NOOP("wcfg_004"),
    //% "Открыть файл конфигурации"
    QT_TRID_NOOP("wcfg_005"),
    //% "Сохранить"
    QT_TRID_NOOP("wcfg_006"),
    //% "Сохранить конфигурацию в её файл"
    QT_TRID_NOOP("wcfg_007"),
    //% "Сохранить как..."
    QT_TRID_NOOP("wcfg_008"),
    //% "Сохранить конфигурацию в другой файл"
    QT_TRID_NOOP("wcfg_009"),
    //% "Прочитать из терминала"
    QT_TRID_NOOP("wcfg_010"),
    //% "Прочитать конфигурацию из подключённого терминала"
    QT_TRID_NOOP("wcfg_011"),
    //% "Записать в терминал"
    QT_TRID_NOOP("wcfg_012"),
    //% "Записать конфигурацию в подключённый терминал"
    QT_TRID_NOOP("wcfg_013"),
    //% "По умолчанию"
    QT_TRID_NOOP("wcfg_014"),
    //% "Вернуть настройкам страниц значения по умолчанию; прочие настройки терминала остаются"
    QT_TRID_NOOP("wcfg_015"),
    //% "Сравнить"
    QT_TRID_NOOP("wcfg_016"),
    //% "Сравнить конфигурацию с файлом или с последней прочитанной из терминала"
    QT_TRID_NOOP("wcfg_017"),
    //% "Переключить полный и простой редактор"
    QT_TRID_NOOP("wcfg_019"),
};

void sendToHost(int msg, unsigned long w, unsigned long l)
{
    if (lpGlobalDevice)
        lpGlobalDevice->SendMessage(lpGlobalDevice, msg, w, l);
}

} // namespace

ZRK_Widget_Config::ZRK_Widget_Config(QWidget* parent)
    : QDialog(parent)
    , ui(new Ui::ZRK_Designer_Widget_Config)
{
    ui->setupUi(this);
    setObjectName(QStringLiteral("ZRK_Widget_Config"));
    setWindowFlags(windowFlags() | Qt::WindowMinMaxButtonsHint);
    m_full = new ZRK_Widget_Config_Full(ui->stackedWidget_Editors);
    m_light = new ZRK_Widget_Config_Light(ui->stackedWidget_Editors);
    ui->stackedWidget_Editors->addWidget(m_full);
    ui->stackedWidget_Editors->addWidget(m_light);
    ui->stackedWidget_Editors->setCurrentWidget(m_full);

    auto* compare = new QMenu(this);
    compare->setObjectName(QStringLiteral("menu_Compare"));
    compare->addAction(QString(), this, [this] {
        const QString path = chooseFileToOpen();
        bool ok = false;
        const auto differences = compareWithFile(path, &ok);
        if (ok)
            showDifferences(differences, QFileInfo(path).fileName());
    });
    compare->addAction(QString(), this, [this] {
        bool ok = false;
        const auto differences = compareWithLastRead(&ok);
        //% "последняя прочитанная из терминала"
        const QString against = qtTrId("wcfg_030");
        if (ok)
            showDifferences(differences, against);
    });
    ui->pushButton_Compare->setMenu(compare);

    connect(ui->pushButton_New, &QPushButton::pressed, this, &ZRK_Widget_Config::slot_pressed_New);
    connect(ui->pushButton_Open, &QPushButton::pressed, this, &ZRK_Widget_Config::slot_pressed_Open);
    connect(ui->pushButton_Save, &QPushButton::pressed, this, &ZRK_Widget_Config::slot_pressed_Save);
    connect(ui->pushButton_SaveAs, &QPushButton::pressed, this, &ZRK_Widget_Config::slot_pressed_SaveAs);
    connect(ui->pushButton_Read, &QPushButton::pressed, this, &ZRK_Widget_Config::slot_pressed_Read);
    connect(ui->pushButton_Load, &QPushButton::pressed, this, &ZRK_Widget_Config::slot_pressed_Load);
    connect(ui->pushButton_Defaults, &QPushButton::pressed, this, &ZRK_Widget_Config::slot_pressed_Defaults);
    connect(ui->pushButton_Editor, &QPushButton::pressed, this, &ZRK_Widget_Config::slot_pressed_Editor);
    connect(m_full, &ZRK_Widget_Config_Full::contentEdited, this, &ZRK_Widget_Config::slot_contentEdited);
    connect(m_light, &ZRK_Widget_Config_Light::contentEdited, this, &ZRK_Widget_Config::slot_contentEdited);
    m_editPause.setSingleShot(true);
    m_editPause.setInterval(kEditPauseMs);
    connect(&m_editPause, &QTimer::timeout, this, &ZRK_Widget_Config::updateModified);

    resize(960, 680);
    translateForm();
    m_savedXml = currentXml();
    updateButtons();
}

ZRK_Widget_Config::~ZRK_Widget_Config()
{
    delete ui;
}

QString ZRK_Widget_Config::deviceType() const
{
    return lpGlobalDevice ? lpGlobalDevice->getDeviceType() : QStringLiteral("K-7140");
}

void ZRK_Widget_Config::deviceConnect()
{
    m_connected = true;
    m_full->deviceConnect();
    updateButtons();
}

void ZRK_Widget_Config::deviceDisconnect()
{
    m_connected = false;
    m_full->deviceDisconnect();
    updateButtons();
}

void ZRK_Widget_Config::updateButtons()
{
    ui->pushButton_Read->setEnabled(m_connected);
    ui->pushButton_Load->setEnabled(m_connected);
}

void ZRK_Widget_Config::translateForm()
{
    ui->retranslateUi(this);
    const QList<QAction*> actions = ui->pushButton_Compare->menu()->actions();
    //% "С файлом..."
    actions.at(0)->setText(qtTrId("wcfg_020"));
    //% "С последней прочитанной из терминала"
    actions.at(1)->setText(qtTrId("wcfg_021"));
    m_full->translateForm();
    m_light->translateForm();
    updateTitle();
}

void ZRK_Widget_Config::setTitleName(const QString& name)
{
    m_titleName = name;
    updateTitle();
}

void ZRK_Widget_Config::updateTitle()
{
    //% "Конфигурация"
    const QString base
        = m_titleName.isEmpty() ? qtTrId("wcfg_001") : deviceType() + QStringLiteral(": ") + m_titleName;
    setWindowTitle(m_modified ? base + QLatin1Char('*') : base);
}

// ---- opening ---------------------------------------------------------------------------------

QString ZRK_Widget_Config::loadErrorText(const QString& path, const QString& reason) const
{
    QString why = reason;
    static const QRegularExpression where(QStringLiteral("^line (\\d+), column (\\d+): (.*)$"));
    const QRegularExpressionMatch m = where.match(reason);
    if (m.hasMatch())
        //% "строка %1, столбец %2: %3"
        why = qtTrId("wcfg_022").arg(m.captured(1), m.captured(2), m.captured(3));
    else if (reason == QLatin1String("no such file"))
        //% "файл не найден"
        why = qtTrId("wcfg_023");
    else if (reason == QLatin1String("the file is empty"))
        //% "файл пуст"
        why = qtTrId("wcfg_024");
    else if (reason.startsWith(QLatin1String("root element")) || reason == QLatin1String("no root element"))
        //% "это не файл конфигурации терминала (нет корневого элемента «DEVICE»)"
        why = qtTrId("wcfg_025");
    //% "Не удалось открыть файл конфигурации «%1»:\n%2.\n\nВ редакторе остаётся прежняя конфигурация."
    return qtTrId("wcfg_026").arg(QDir::toNativeSeparators(path), why);
}

bool ZRK_Widget_Config::loadConfiguration(const QString& path, szConfigParam& configParam)
{
    // Loaded once first, so that a file that does not load changes nothing.
    zrk::ConfigLoadResult loaded = zrk::loadConfigFile(path);
    if (!loaded.doc) {
        showMessage(loadErrorText(path, loaded.error));
        return false;
    }
    // One parse for both editors: the light editor takes a copy of the tree as it was read, since
    // reading the pages creates the nodes a file lacks.
    m_light->adoptDocument(zrk::copyDocument(loaded.doc->root()));
    m_full->initDefaultParam();
    m_full->readDocument(loaded.doc.get(), &configParam);
    return true;
}

void ZRK_Widget_Config::openConfig(szConfigFile* file, szConfigParam& configParam)
{
    if (!file)
        return;
    const QString path
        = QString::fromLocal8Bit(file->path, static_cast<int>(strnlen(file->path, sizeof file->path)));
    if (path.isEmpty()) {
        m_full->initDefaultParam();
        m_light->setDocument(m_full->renderXml());
        m_filePath.clear();
        setTitleName(QLatin1String(kNewTitle));
    } else if (loadConfiguration(path, configParam)) {
        if (file->source == 1) {
            m_filePath = path;
            setTitleName(QFileInfo(path).fileName());
        } else {
            // What the terminal had is kept before anything can be written over it.
            keepReadCopy(path);
            m_filePath.clear();
            setTitleName(QLatin1String(kDeviceTitle));
        }
    }
    if (file->mode == 1)
        showWidgetConfigFull();
    else
        showWidgetConfigLight();
    markSaved();
    show();
    raise();
    // The device object reports the opening to the host (2370) once this returns.
}

void ZRK_Widget_Config::keepReadCopy(const QString& path)
{
    const QString dir
        = lpGlobalDevice ? lpGlobalDevice->getPathXML() : appDataDirectory() + QStringLiteral("/Data/XML/");
    if (!QDir().mkpath(dir))
        return;
    const QString stamp = QDateTime::currentDateTime().toString(QLatin1String(kReadCopyDateFormat));
    QString copy = QDir(dir).filePath(QString::fromLatin1(kReadCopyPattern).arg(stamp, QString()));
    for (int n = 2; QFileInfo::exists(copy); ++n)
        copy = QDir(dir).filePath(
            QString::fromLatin1(kReadCopyPattern).arg(stamp, QStringLiteral("_%1").arg(n)));
    if (QFile::copy(path, copy))
        m_lastReadCopy = copy;
}

bool ZRK_Widget_Config::openFile(const QString& path)
{
    szConfigParam param {};
    if (!loadConfiguration(path, param))
        return false;
    m_filePath = path;
    setTitleName(QFileInfo(path).fileName());
    markSaved();
    return true;
}

void ZRK_Widget_Config::newConfig()
{
    m_full->initDefaultParam();
    m_light->setDocument(m_full->renderXml());
    m_filePath.clear();
    setTitleName(QLatin1String(kNewTitle));
    markSaved();
}

void ZRK_Widget_Config::resetToDefaults()
{
    // The pages' settings only: what the terminal had beyond them stays.
    if (isFullEditorShown()) {
        m_full->initDefaultParam(true);
    } else {
        m_light->setDefaultValues();
    }
    updateModified();
}

// ---- saving ----------------------------------------------------------------------------------

QByteArray ZRK_Widget_Config::currentXml()
{
    return isFullEditorShown() ? m_full->renderXml() : m_light->renderDocument();
}

bool ZRK_Widget_Config::openFileTitles(zrk::DeviceTitles* titles, QStringList* userParamTypes)
{
    const zrk::ConfigLoadResult loaded = zrk::loadConfigBytes(currentXml());
    if (!loaded.doc)
        return false;
    *titles = zrk::deviceTitles(loaded.doc->root());
    CXMLWorkData root(loaded.doc.get(), "DEVICE");
    *userParamTypes = zrk::fieldset::userParamTypes(&root);
    return true;
}

bool ZRK_Widget_Config::saveFile(const QString& path)
{
    const QByteArray text = currentXml();
    QString error;
    if (!zrk::writeFileWhole(path, text, &error)) {
        //% "Не удалось записать файл «%1»:\n%2.\n\nПрежний файл не изменён."
        showMessage(qtTrId("wcfg_027").arg(QDir::toNativeSeparators(path), error));
        return false;
    }
    m_filePath = path;
    m_titleName = QFileInfo(path).fileName();
    m_savedXml = text;
    m_modified = false;
    updateTitle();
    return true;
}

void ZRK_Widget_Config::markSaved()
{
    m_editPause.stop();
    m_savedXml = currentXml();
    m_modified = false;
    updateTitle();
}

void ZRK_Widget_Config::updateModified()
{
    m_editPause.stop();
    const bool modified = currentXml() != m_savedXml;
    if (modified == m_modified)
        return;
    m_modified = modified;
    updateTitle();
}

void ZRK_Widget_Config::slot_contentEdited()
{
    m_editPause.start();
}

void ZRK_Widget_Config::saveConfigToDevice()
{
    if (!m_connected)
        return;
    const QString stamp = QDateTime::currentDateTime().toString(QLatin1String(kTempDateFormat));
    QString path;
    QString error;
    bool ok = false;
    if (isFullEditorShown()) {
        QDir().mkpath(appDataDirectory());
        path = appDataDirectory() + QString::fromLatin1(kFullTempPattern).arg(stamp);
        ui->pushButton_Load->setEnabled(false);
        ok = m_full->SaveFileXml(path, &error);
        ui->pushButton_Load->setEnabled(m_connected);
    } else {
        path = QDir::currentPath() + QString::fromLatin1(kLightTempPattern).arg(deviceType(), stamp);
        ok = m_light->saveConfigLight(path, &error);
    }
    if (!ok) {
        showMessage(qtTrId("wcfg_027").arg(QDir::toNativeSeparators(path), error));
        return;
    }
    sendToHost(ZRK_MSG_WRITE_FILE_TO_DEVICE, reinterpret_cast<unsigned long>(&path), 0);
}

void ZRK_Widget_Config::readConfigFromDevice()
{
    if (!m_connected)
        return;
    sendToHost(ZRK_MSG_READ_CONFIG_FILE, 0, 0);
}

// ---- comparing -------------------------------------------------------------------------------

QVector<zrk::ConfigDifference> ZRK_Widget_Config::compareWithFile(const QString& path, bool* ok)
{
    if (ok)
        *ok = false;
    if (path.isEmpty())
        return {};
    zrk::ConfigLoadResult other = zrk::loadConfigFile(path);
    if (!other.doc) {
        showMessage(loadErrorText(path, other.error));
        return {};
    }
    zrk::ConfigLoadResult mine = zrk::loadConfigBytes(currentXml());
    if (ok)
        *ok = mine.doc != nullptr;
    return zrk::diffConfigs(mine.doc ? mine.doc->root() : nullptr, other.doc->root());
}

QVector<zrk::ConfigDifference> ZRK_Widget_Config::compareWithLastRead(bool* ok)
{
    if (m_lastReadCopy.isEmpty()) {
        if (ok)
            *ok = false;
        //% "Конфигурация ещё не читалась из терминала: сравнивать не с чем."
        showMessage(qtTrId("wcfg_028"));
        return {};
    }
    return compareWithFile(m_lastReadCopy, ok);
}

// ---- editors ---------------------------------------------------------------------------------

bool ZRK_Widget_Config::isFullEditorShown() const
{
    return ui->stackedWidget_Editors->currentWidget() == m_full;
}

void ZRK_Widget_Config::showWidgetConfigFull()
{
    ui->stackedWidget_Editors->setCurrentWidget(m_full);
    //% "Простой редактор"
    ui->pushButton_Editor->setText(qtTrId("wcfg_018"));
}

void ZRK_Widget_Config::showWidgetConfigLight()
{
    ui->stackedWidget_Editors->setCurrentWidget(m_light);
    //% "Полный редактор"
    ui->pushButton_Editor->setText(qtTrId("wcfg_029"));
}

void ZRK_Widget_Config::changeConfigWidgetToFull()
{
    if (isFullEditorShown())
        return;
    updateModified();
    const bool wasModified = m_modified;
    zrk::ConfigLoadResult doc = zrk::loadConfigBytes(m_light->renderDocument());
    if (doc.doc) {
        m_full->initDefaultParam();
        m_full->readDocument(doc.doc.get());
    }
    showWidgetConfigFull();
    // The two editors write the same settings in different layouts: edits stay edits.
    m_savedXml = wasModified ? QByteArray() : currentXml();
    updateModified();
}

void ZRK_Widget_Config::changeConfigWidgetToLight()
{
    if (!isFullEditorShown())
        return;
    updateModified();
    const bool wasModified = m_modified;
    m_light->setDocument(m_full->renderXml());
    showWidgetConfigLight();
    m_savedXml = wasModified ? QByteArray() : currentXml();
    updateModified();
}

// ---- pages -----------------------------------------------------------------------------------

void ZRK_Widget_Config::openConfigPage(quint32 page)
{
    // Only a page of this model is worth leaving the light editor for.
    if (!m_full->pageForValue(page))
        return;
    changeConfigWidgetToFull();
    m_full->openPage(page);
}

void ZRK_Widget_Config::getFileConfigure(QString& name)
{
    name = m_filePath;
}

// ---- closing ---------------------------------------------------------------------------------

ZRK_Widget_Config::UnsavedAnswer ZRK_Widget_Config::askUnsavedChanges()
{
    QMessageBox box(QMessageBox::Question, windowTitle(),
        //% "Конфигурация изменена. Сохранить изменения?"
        qtTrId("wcfg_031"), QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    //% "Сохранить"
    box.button(QMessageBox::Save)->setText(qtTrId("wcfg_032"));
    //% "Не сохранять"
    box.button(QMessageBox::Discard)->setText(qtTrId("wcfg_033"));
    //% "Отмена"
    box.button(QMessageBox::Cancel)->setText(qtTrId("wcfg_034"));
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec()) {
    case QMessageBox::Save:
        return UnsavedAnswer::Save;
    case QMessageBox::Discard:
        return UnsavedAnswer::Discard;
    default:
        return UnsavedAnswer::Cancel;
    }
}

void ZRK_Widget_Config::showMessage(const QString& text)
{
    QMessageBox::warning(this, windowTitle(), text);
}

QString ZRK_Widget_Config::chooseFileToOpen()
{
    //% "Файлы конфигурации (*.xml)"
    return QFileDialog::getOpenFileName(
        this, QString(), QFileInfo(m_filePath).absolutePath(), qtTrId("wcfg_035"));
}

QString ZRK_Widget_Config::chooseFileToSave()
{
    const QString proposal = m_filePath.isEmpty()
        ? QDir(appDataDirectory()).filePath(QStringLiteral("zrk_K7140.xml"))
        : m_filePath;
    return QFileDialog::getSaveFileName(this, QString(), proposal, qtTrId("wcfg_035"));
}

void ZRK_Widget_Config::showDifferences(
    const QVector<zrk::ConfigDifference>& differences, const QString& against)
{
    ZRK_Dialog_Config_Compare dialog(this);
    dialog.setDifferences(differences, against);
    dialog.exec();
}

bool ZRK_Widget_Config::confirmClose()
{
    if (!isVisible())
        return true;
    updateModified();
    if (!m_modified)
        return true;
    switch (askUnsavedChanges()) {
    case UnsavedAnswer::Discard:
        return true;
    case UnsavedAnswer::Cancel:
        return false;
    case UnsavedAnswer::Save:
        break;
    }
    const QString path = m_filePath.isEmpty() ? chooseFileToSave() : m_filePath;
    return !path.isEmpty() && saveFile(path);
}

bool ZRK_Widget_Config::closeWidgetConfig()
{
    // This model's editor has no complex-event page, so nothing else can refuse the close.
    if (!confirmClose())
        return false;
    m_closeConfirmed = true;
    close();
    m_closeConfirmed = false;
    sendToHost(ZRK_MSG_CONFIG_WINDOW_CLOSED, 0, 0);
    return true;
}

void ZRK_Widget_Config::closeEvent(QCloseEvent* event)
{
    if (m_closeConfirmed) {
        event->accept();
        return;
    }
    if (!confirmClose()) {
        event->ignore();
        return;
    }
    event->accept();
    sendToHost(ZRK_MSG_CONFIG_WINDOW_CLOSED, 0, 0);
}

void ZRK_Widget_Config::reject()
{
    close(); // Esc asks about unsaved changes like any other close
}

// ---- buttons ---------------------------------------------------------------------------------

void ZRK_Widget_Config::slot_pressed_New()
{
    if (confirmClose())
        newConfig();
}

void ZRK_Widget_Config::slot_pressed_Open()
{
    if (!confirmClose())
        return;
    const QString path = chooseFileToOpen();
    if (!path.isEmpty())
        openFile(path);
}

void ZRK_Widget_Config::slot_pressed_Save()
{
    const QString path = m_filePath.isEmpty() ? chooseFileToSave() : m_filePath;
    if (!path.isEmpty())
        saveFile(path);
}

void ZRK_Widget_Config::slot_pressed_SaveAs()
{
    const QString path = chooseFileToSave();
    if (!path.isEmpty())
        saveFile(path);
}

void ZRK_Widget_Config::slot_pressed_Read()
{
    // What the terminal sends replaces the editor's configuration.
    if (confirmClose())
        readConfigFromDevice();
}

void ZRK_Widget_Config::slot_pressed_Load()
{
    saveConfigToDevice();
}

void ZRK_Widget_Config::slot_pressed_Defaults()
{
    resetToDefaults();
}

void ZRK_Widget_Config::slot_pressed_Editor()
{
    if (isFullEditorShown())
        changeConfigWidgetToLight();
    else
        changeConfigWidgetToFull();
}

// ---- forwards --------------------------------------------------------------------------------

// This model's editor has no complex-event page: its program information, window and user
// parameters have nobody to go to.
void ZRK_Widget_Config::setCE_ProgramInfo(QByteArray*) { }
void ZRK_Widget_Config::setWindowCEClosed() { }
void ZRK_Widget_Config::addUserParamCE(const QString&) { }
void ZRK_Widget_Config::addUserParamListCE(const QString&) { }
void ZRK_Widget_Config::delUserParamCE(const QString&) { }
void ZRK_Widget_Config::delUserParamListCE(const QString&) { }

void ZRK_Widget_Config::setWindowFocus()
{
    if (!isVisible())
        return;
    raise();
    activateWindow();
}

// Device replies for pages this model's editor does not have (system test, crash detector, touch
// memory, analogue inputs, fuel sensors, accelerometer, Bluetooth, display, CAN log, camera):
// nobody asked, so nothing is routed.
void ZRK_Widget_Config::receiveDataTest(QByteArray*) { }
void ZRK_Widget_Config::receiveDtpTest(szDtpKRAI*) { }
void ZRK_Widget_Config::receiveDtpProtection(quint8) { }
void ZRK_Widget_Config::receiveDtpFileRead_V3(bool) { }
void ZRK_Widget_Config::receiveTM(quint64) { }
void ZRK_Widget_Config::receiveAnalogValue(szAnalogValue*) { }
void ZRK_Widget_Config::receiveAdValueFuel(szADValue*) { }
void ZRK_Widget_Config::receiveAdValueFuel_UN(szADValue_UN*) { }
void ZRK_Widget_Config::receiveAccelParam(szAccelParam*) { }
void ZRK_Widget_Config::receiveAccelBrake(quint8, quint8) { }
void ZRK_Widget_Config::receiveAccelReset(szAccelReset*) { }
void ZRK_Widget_Config::receiveAccelAclC(szCmdAccelParam*) { }
void ZRK_Widget_Config::receiveBluetoothCancelRez(quint8) { }
void ZRK_Widget_Config::receiveBluetoothRez(quint8) { }
void ZRK_Widget_Config::receiveBluetoothDevice(szBluetoothDevice*) { }
void ZRK_Widget_Config::receiveCurrentDispValue(quint32) { }
void ZRK_Widget_Config::receive_CanlogCurNum(qint32) { }
void ZRK_Widget_Config::receive_TM_File_Info_V3(quint32, quint8) { }
void ZRK_Widget_Config::receive_TM_ReadFile_V3(bool, const QString&) { }
void ZRK_Widget_Config::receive_TM_WriteFile_V3(bool) { }
void ZRK_Widget_Config::receive_CurCanFile(QByteArray*, const QString&) { }
void ZRK_Widget_Config::receive_Camera_Info(QByteArray*) { }
void ZRK_Widget_Config::receive_PhotoInfo_SD_File(QByteArray*) { }
// The geo-information page writes its files to the card and waits for this reply; before the page
// was ever opened nobody can have asked.
void ZRK_Widget_Config::receive_SD_File(QByteArray* data)
{
    if (ZRK_Form_Config_Ainf* geo = m_full->geoPage())
        geo->receive_SD_File(data);
}
