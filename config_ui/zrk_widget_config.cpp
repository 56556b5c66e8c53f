#include "config_ui/zrk_widget_config.h"

#include "config_model/app_settings.h"
#include "config_model/config_document.h"
#include "config_model/config_keys.h"
#include "config_model/orba_fieldset.h"
#include "config_model/serialize.h"
#include "config_model/xml_workdata.h"
#include "config_ui/zrk_dialog_config_compare.h"
#include "config_ui/zrk_form_config_ainf.h"
#include "config_ui/zrk_widget_config_full.h"
#include "config_ui/zrk_widget_config_light.h"
#include "device/zrk_device_k7140.h"

#include "ui_zrk_widget_config.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QDateTime>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLocale>
#include <QMenu>
#include <QMessageBox>
#include <QRegularExpression>
#include <QScreen>
#include <QStyle>
#include <QToolBar>

#include <cstring>

namespace {

// Temporary file names of a write to the terminal: full editor and light editor.
constexpr char kFullTempPattern[] = "/zrk_K7140_%1.xml";
constexpr char kLightTempPattern[] = "/zrk_%1_%2.xml";
constexpr char kTempDateFormat[] = "d-MM-yy-H-m";
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
    //% "Отменить"
    QT_TRID_NOOP("wcfg_040"),
    //% "Отменить последнее изменение (Ctrl+Z)"
    QT_TRID_NOOP("wcfg_041"),
    //% "Повторить"
    QT_TRID_NOOP("wcfg_042"),
    //% "Повторить отменённое изменение (Ctrl+Shift+Z)"
    QT_TRID_NOOP("wcfg_043"),
    //% "Обзор перед записью"
    QT_TRID_NOOP("wcfg_044"),
    //% "Перед записью в терминал показывать, какие настройки в нём изменятся"
    QT_TRID_NOOP("wcfg_045"),
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
    m_full = new ZRK_Widget_Config_Full(&m_editing, ui->stackedWidget_Editors);
    m_light = new ZRK_Widget_Config_Light(&m_editing, ui->stackedWidget_Editors);
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
    compare->addAction(QString(), this, [this] {
        const QVector<zrk::ReadCopy> copies = readHistory();
        if (copies.isEmpty()) {
            //% "В папке данных XML нет сохранённых копий конфигураций, прочитанных из терминала."
            showMessage(qtTrId("wcfg_046"));
            return;
        }
        const QString path = chooseReadCopy(copies);
        bool ok = false;
        const auto differences = compareWithFile(path, &ok);
        if (ok)
            showDifferences(differences, QFileInfo(path).fileName());
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
    connect(ui->pushButton_Undo, &QPushButton::clicked, this, &ZRK_Widget_Config::undo);
    connect(ui->pushButton_Redo, &QPushButton::clicked, this, &ZRK_Widget_Config::redo);
    ui->checkBox_ReviewBeforeWrite->setChecked(reviewBeforeWrite());
    connect(ui->checkBox_ReviewBeforeWrite, &QCheckBox::toggled, this,
        &ZRK_Widget_Config::slot_toggled_ReviewBeforeWrite);
    // Ctrl+Z and Ctrl+Shift+Z anywhere in the window (Ctrl+Y too, where that is the habit).
    auto* undoAction = new QAction(this);
    undoAction->setShortcut(QKeySequence::Undo);
    connect(undoAction, &QAction::triggered, this, &ZRK_Widget_Config::undo);
    auto* redoAction = new QAction(this);
    redoAction->setShortcuts({ QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence::Redo });
    connect(redoAction, &QAction::triggered, this, &ZRK_Widget_Config::redo);
    addActions({ undoAction, redoAction });
    QUndoStack& stack = m_editing.undoStack();
    // The style's own arrows: a theme icon would be cached by the application beyond the plug-in's
    // unloading.
    ui->pushButton_Undo->setIcon(style()->standardIcon(QStyle::SP_ArrowBack));
    ui->pushButton_Redo->setIcon(style()->standardIcon(QStyle::SP_ArrowForward));
    ui->pushButton_Undo->setEnabled(false);
    ui->pushButton_Redo->setEnabled(false);
    connect(&stack, &QUndoStack::canUndoChanged, ui->pushButton_Undo, &QWidget::setEnabled);
    connect(&stack, &QUndoStack::canRedoChanged, ui->pushButton_Redo, &QWidget::setEnabled);
    connect(
        &m_editing.session(), &zrk::ConfigSession::modifiedChanged, this, &ZRK_Widget_Config::updateTitle);

    moveButtonsToToolBar();
    // Wide enough for the whole row of buttons where the screen allows it.
    const QRect screen = this->screen() ? this->screen()->availableGeometry() : QRect(0, 0, 1280, 800);
    resize(qBound(960, sizeHint().width(), screen.width() * 19 / 20), qMin(680, screen.height() * 9 / 10));
    translateForm();
    updateButtons();
}

void ZRK_Widget_Config::moveButtonsToToolBar()
{
    // The form lays the buttons out in a row; a tool bar keeps that row but lets a narrow screen
    // (a 1280- or 1366-pixel laptop) show what does not fit behind its » button instead of making
    // the whole window wider than the screen.
    auto* bar = new QToolBar(this);
    bar->setObjectName(QStringLiteral("toolBar_Buttons"));
    while (QLayoutItem* item = ui->horizontalLayout_Buttons->takeAt(0)) {
        if (QWidget* w = item->widget()) {
            bar->addWidget(w);
        } else if (item->spacerItem()) {
            auto* stretch = new QWidget(bar);
            stretch->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
            bar->addWidget(stretch);
        }
        delete item;
    }
    ui->verticalLayout_Main->insertWidget(0, bar);
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
    // Undo and redo show their arrows only, as editors do; the name stays for the tooltip and
    // screen readers.
    for (QPushButton* b : { ui->pushButton_Undo, ui->pushButton_Redo }) {
        b->setAccessibleName(b->text());
        b->setText(QString());
    }
    const QList<QAction*> actions = ui->pushButton_Compare->menu()->actions();
    //% "С файлом..."
    actions.at(0)->setText(qtTrId("wcfg_020"));
    //% "С последней прочитанной из терминала"
    actions.at(1)->setText(qtTrId("wcfg_021"));
    //% "С копией из истории чтений..."
    actions.at(2)->setText(qtTrId("wcfg_047"));
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
    setWindowTitle(isModified() ? base + QLatin1Char('*') : base);
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

bool ZRK_Widget_Config::loadConfiguration(const QString& path, zrk::ConfigSource source)
{
    applyHeader();
    zrk::ConfigSession& session = m_editing.session();
    QString error;
    //% "Открытие конфигурации"
    const bool ok = m_editing.documentStep(qtTrId("wcfg_048"), [&] {
        if (!session.loadFile(path, source, &error))
            return false;
        session.markSaved();
        return true;
    });
    if (!ok)
        showMessage(loadErrorText(path, error));
    return ok;
}

void ZRK_Widget_Config::openConfig(szConfigFile* file, szConfigParam& configParam)
{
    if (!file)
        return;
    const QString path
        = QString::fromLocal8Bit(file->path, static_cast<int>(strnlen(file->path, sizeof file->path)));
    if (path.isEmpty()) {
        newConfig();
    } else if (file->source == 1) {
        if (!loadConfiguration(path, zrk::ConfigSource::File)) {
            show();
            raise();
            return;
        }
        setTitleName(QFileInfo(path).fileName());
    } else {
        if (!loadConfiguration(path, zrk::ConfigSource::Terminal)) {
            // The message is out; the editing goes on as it was, unsaved edits and editor included.
            show();
            raise();
            return;
        }
        // What the terminal had is kept before anything can be written over it.
        keepReadCopy(path);
        QFile read(path);
        if (read.open(QIODevice::ReadOnly))
            m_editing.session().setLastRead(read.readAll(), terminalId());
        setTitleName(QLatin1String(kDeviceTitle));
    }
    // A configuration read from a file tells the telemetry view its protocol generation.
    if (!path.isEmpty())
        m_full->fillConfigParam(configParam);
    if (file->mode == 1)
        showWidgetConfigFull();
    else
        showWidgetConfigLight();
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
    const QDateTime now = QDateTime::currentDateTime();
    QString copy = QDir(dir).filePath(zrk::readCopyName(now));
    for (int n = 2; QFileInfo::exists(copy); ++n)
        copy = QDir(dir).filePath(zrk::readCopyName(now, n));
    if (QFile::copy(path, copy))
        m_lastReadCopy = copy;
}

QVector<zrk::ReadCopy> ZRK_Widget_Config::readHistory() const
{
    return zrk::listReadCopies(
        lpGlobalDevice ? lpGlobalDevice->getPathXML() : appDataDirectory() + QStringLiteral("/Data/XML/"));
}

bool ZRK_Widget_Config::openFile(const QString& path)
{
    if (!loadConfiguration(path, zrk::ConfigSource::File))
        return false;
    setTitleName(QFileInfo(path).fileName());
    return true;
}

void ZRK_Widget_Config::newConfig()
{
    applyHeader();
    zrk::ConfigSession& session = m_editing.session();
    //% "Новая конфигурация"
    m_editing.documentStep(qtTrId("wcfg_049"), [&session] {
        session.newDocument();
        session.markSaved();
        return true;
    });
    setTitleName(QLatin1String(kNewTitle));
}

void ZRK_Widget_Config::resetToDefaults()
{
    // The pages' settings only: what the terminal had beyond them stays.
    if (!isFullEditorShown()) {
        m_light->setDefaultValues();
        return;
    }
    zrk::ConfigSession& session = m_editing.session();
    //% "Значения по умолчанию"
    m_editing.documentStep(qtTrId("wcfg_050"), [&session] {
        session.resetToDefaults();
        return true;
    });
}

void ZRK_Widget_Config::undo()
{
    m_editing.undoStack().undo();
}

void ZRK_Widget_Config::redo()
{
    m_editing.undoStack().redo();
}

// ---- saving ----------------------------------------------------------------------------------

void ZRK_Widget_Config::applyHeader()
{
    QString model = QString::fromLatin1(zrk::cfg::kDefaultModel);
    QString vendor = QString::fromLatin1(zrk::cfg::kDefaultVendor);
    QString version = QString::fromLatin1(zrk::cfg::kVersionText);
    if (lpGlobalDevice) {
        szLibraryInfo info {};
        lpGlobalDevice->getModuleInfo(&info);
        model = lpGlobalDevice->getDeviceType();
        vendor = lpGlobalDevice->getDeviceVendor();
        version = QString::asprintf("%d.%d.%d", info.hostValues[0], info.hostValues[1], info.hostValues[2]);
    }
    m_editing.session().setHeader(model, version, vendor);
}

QByteArray ZRK_Widget_Config::currentXml()
{
    applyHeader();
    return m_editing.session().render();
}

bool ZRK_Widget_Config::openFileTitles(zrk::DeviceTitles* titles, QStringList* userParamTypes)
{
    return m_editing.session().telemetryTitles(titles, userParamTypes);
}

bool ZRK_Widget_Config::saveFile(const QString& path)
{
    applyHeader();
    QString error;
    if (!m_editing.session().saveFile(path, &error)) {
        //% "Не удалось записать файл «%1»:\n%2.\n\nПрежний файл не изменён."
        showMessage(qtTrId("wcfg_027").arg(QDir::toNativeSeparators(path), error));
        return false;
    }
    setTitleName(QFileInfo(path).fileName());
    return true;
}

void ZRK_Widget_Config::updateModified()
{
    updateTitle();
}

QString ZRK_Widget_Config::terminalId() const
{
    return lpGlobalDevice ? lpGlobalDevice->getDeviceImei() : QString();
}

QVector<zrk::ConfigDifference> ZRK_Widget_Config::pendingWrite() const
{
    const_cast<ZRK_Widget_Config*>(this)->applyHeader();
    return m_editing.session().pendingWrite(terminalId());
}

void ZRK_Widget_Config::saveConfigToDevice()
{
    if (!m_connected)
        return;
    if (reviewBeforeWrite()) {
        const bool fromTerminal = m_editing.session().hasLastReadFrom(terminalId());
        //% "конфигурация, прочитанная из этого терминала"
        const QString read = qtTrId("wcfg_051");
        //% "значения по умолчанию (из этого терминала конфигурация ещё не читалась)"
        const QString defaults = qtTrId("wcfg_052");
        if (!confirmWrite(pendingWrite(), fromTerminal ? read : defaults))
            return;
    }
    const QString stamp = QDateTime::currentDateTime().toString(QLatin1String(kTempDateFormat));
    QString path;
    if (isFullEditorShown()) {
        QDir().mkpath(appDataDirectory());
        path = appDataDirectory() + QString::fromLatin1(kFullTempPattern).arg(stamp);
    } else {
        path = QDir::currentPath() + QString::fromLatin1(kLightTempPattern).arg(deviceType(), stamp);
    }
    const QByteArray text = currentXml();
    QString error;
    ui->pushButton_Load->setEnabled(false);
    const bool ok = zrk::writeFileWhole(path, text, &error);
    ui->pushButton_Load->setEnabled(m_connected);
    if (!ok) {
        showMessage(qtTrId("wcfg_027").arg(QDir::toNativeSeparators(path), error));
        return;
    }
    sendToHost(ZRK_MSG_WRITE_FILE_TO_DEVICE, reinterpret_cast<unsigned long>(&path), 0);
    // What the terminal now holds is what the next review compares with.
    m_editing.session().setLastRead(text, terminalId());
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
    applyHeader();
    if (ok)
        *ok = true;
    return m_editing.session().differencesTo(other.doc->root());
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

// Both editors show the one configuration: switching moves nothing.
void ZRK_Widget_Config::changeConfigWidgetToFull()
{
    showWidgetConfigFull();
}

void ZRK_Widget_Config::changeConfigWidgetToLight()
{
    showWidgetConfigLight();
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
    name = currentFile();
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
        this, QString(), QFileInfo(currentFile()).absolutePath(), qtTrId("wcfg_035"));
}

QString ZRK_Widget_Config::chooseFileToSave()
{
    const QString proposal = currentFile().isEmpty()
        ? QDir(appDataDirectory()).filePath(QStringLiteral("zrk_K7140.xml"))
        : currentFile();
    return QFileDialog::getSaveFileName(this, QString(), proposal, qtTrId("wcfg_035"));
}

void ZRK_Widget_Config::showDifferences(
    const QVector<zrk::ConfigDifference>& differences, const QString& against)
{
    ZRK_Dialog_Config_Compare dialog(this);
    dialog.setDifferences(differences, against);
    dialog.exec();
}

bool ZRK_Widget_Config::confirmWrite(
    const QVector<zrk::ConfigDifference>& differences, const QString& against)
{
    ZRK_Dialog_Config_Compare dialog(this);
    dialog.setReview(differences, against);
    const bool write = dialog.exec() == QDialog::Accepted;
    if (!dialog.reviewAgain()) {
        setReviewBeforeWrite(false);
        ui->checkBox_ReviewBeforeWrite->setChecked(false);
    }
    return write;
}

QString ZRK_Widget_Config::chooseReadCopy(const QVector<zrk::ReadCopy>& copies)
{
    QStringList items;
    for (const zrk::ReadCopy& c : copies)
        items << QLocale().toString(c.when, QLocale::LongFormat) + QStringLiteral("  —  ")
                + QFileInfo(c.path).fileName();
    bool ok = false;
    //% "История чтений"
    const QString chosen = QInputDialog::getItem(this, qtTrId("wcfg_053"),
        //% "Конфигурация, прочитанная из терминала:"
        qtTrId("wcfg_054"), items, 0, false, &ok);
    const int i = items.indexOf(chosen);
    return ok && i >= 0 ? copies[i].path : QString();
}

bool ZRK_Widget_Config::confirmClose()
{
    if (!isVisible() || !isModified())
        return true;
    switch (askUnsavedChanges()) {
    case UnsavedAnswer::Discard:
        return true;
    case UnsavedAnswer::Cancel:
        return false;
    case UnsavedAnswer::Save:
        break;
    }
    const QString path = currentFile().isEmpty() ? chooseFileToSave() : currentFile();
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
    const QString path = currentFile().isEmpty() ? chooseFileToSave() : currentFile();
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

void ZRK_Widget_Config::slot_toggled_ReviewBeforeWrite(bool on)
{
    setReviewBeforeWrite(on);
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
