#include "host_window.h"

#include "host_dispatcher.h"
#include "message_log.h"
#include "plugin_loader.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>

#include <cstring>
#include <memory>

namespace {

template <typename T> unsigned long addr(T& v)
{
    return reinterpret_cast<unsigned long>(&v);
}

QLabel* valueLabel()
{
    auto* label = new QLabel(QStringLiteral("—"));
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

ZrkHostWindow::ZrkHostWindow(ZrkPluginLoader& loader, ZrkHostDispatcher& dispatcher, QWidget* parent)
    : QMainWindow(parent)
    , m_loader(loader)
    , m_dispatcher(dispatcher)
{
    setWindowTitle(
        //% "zrk-host — эталонный хост модулей устройств"
        qtTrId("host_017"));
    setObjectName(QStringLiteral("ZrkHostWindow"));

    auto* top = new QWidget;
    auto* topLayout = new QHBoxLayout(top);
    topLayout->setContentsMargins(0, 0, 0, 0);
    topLayout->addWidget(buildInfoPanel(), 4);
    topLayout->addWidget(buildControls(), 6);

    auto* logBox = new QGroupBox(
        //% "Журнал сообщений"
        qtTrId("host_018"));
    auto* logLayout = new QVBoxLayout(logBox);
    m_log = new ZrkMessageLog;
    logLayout->addWidget(m_log);

    auto* splitter = new QSplitter(Qt::Vertical);
    splitter->addWidget(top);
    splitter->addWidget(logBox);
    splitter->setStretchFactor(0, 0);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);

    auto* central = new QWidget;
    auto* centralLayout = new QVBoxLayout(central);
    centralLayout->setContentsMargins(8, 8, 8, 4);
    centralLayout->addWidget(splitter);
    setCentralWidget(central);

    connect(&m_dispatcher, &ZrkHostDispatcher::messageLogged, m_log, &ZrkMessageLog::addMessage);
    connect(&m_dispatcher, &ZrkHostDispatcher::resultLogged, m_log, &ZrkMessageLog::setResult);
    connect(&m_dispatcher, &ZrkHostDispatcher::messageLogged, this, [this](const ZrkLoggedMessage& m) {
        if (m.direction == ZrkMessageDirection::PluginToHost)
            statusBar()->showMessage(
                //% "От модуля: %1 %2"
                qtTrId("host_019").arg(m.id).arg(m.name), 5000);
    });
    setControlsEnabled(false);
    statusBar()->showMessage(
        //% "Модуль не загружен"
        qtTrId("host_020"));
    resize(1240, 860);
}

QWidget* ZrkHostWindow::buildInfoPanel()
{
    auto* panel = new QWidget;
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);

    auto* infoBox = new QGroupBox(
        //% "Модуль устройства"
        qtTrId("host_021"));
    auto* form = new QFormLayout(infoBox);
    m_file = valueLabel();
    m_file->setWordWrap(true);
    m_type = valueLabel();
    m_name = valueLabel();
    QFont bold = m_name->font();
    bold.setBold(true);
    m_name->setFont(bold);
    m_values = valueLabel();
    m_firmwareWord = valueLabel();
    m_handle = valueLabel();
    form->addRow(
        //% "Файл:"
        qtTrId("host_022"), m_file);
    form->addRow(
        //% "Название:"
        qtTrId("host_023"), m_name);
    form->addRow(
        //% "Тип устройства:"
        qtTrId("host_024"), m_type);
    form->addRow(
        //% "Параметры хоста:"
        qtTrId("host_025"), m_values);
    form->addRow(
        //% "Версия прошивки:"
        qtTrId("host_026"), m_firmwareWord);
    form->addRow(
        //% "Описатель:"
        qtTrId("host_027"), m_handle);
    m_error = new QLabel;
    m_error->setWordWrap(true);
    m_error->setStyleSheet(QStringLiteral("color: #b00020;"));
    m_error->hide();
    form->addRow(m_error);
    auto* loadButton = new QPushButton(
        //% "Загрузить модуль…"
        qtTrId("host_028"));
    connect(loadButton, &QPushButton::clicked, this, &ZrkHostWindow::chooseAndLoadPlugin);
    form->addRow(QString(), loadButton);
    layout->addWidget(infoBox);

    auto* queryBox = new QGroupBox(
        //% "Ответы модуля на запросы"
        qtTrId("host_029"));
    m_queries = new QFormLayout(queryBox);
    const struct
    {
        int msg;
        QString text;
    } rows[] = {
        { ZRK_MSG_LIBRARY_ALIVE_QUERY,
            //% "Модуль отвечает (2001):"
            qtTrId("host_030") },
        { ZRK_MSG_FIRMWARE_VERSION_QUERY,
            //% "Версия прошивки (2002):"
            qtTrId("host_031") },
        { ZRK_MSG_PROTOCOL_NUMBER_QUERY,
            //% "Номер протокола (2003):"
            qtTrId("host_032") },
        { ZRK_MSG_LIBRARY_VERSION_QUERY,
            //% "Версия модуля (2006):"
            qtTrId("host_033") },
        { ZRK_MSG_CAPABILITY_QUERY_2010,
            //% "Возможности (2010):"
            qtTrId("host_034") },
        { ZRK_MSG_CAPABILITY_QUERY_2272,
            //% "Возможности (2272):"
            qtTrId("host_035") },
        { ZRK_MSG_CAPABILITY_QUERY_2399,
            //% "Возможности (2399):"
            qtTrId("host_036") },
        { ZRK_MSG_CONFIG_PARAM_QUERY,
            //% "Параметры конфигурации (2356):"
            qtTrId("host_037") },
    };
    for (const auto& row : rows) {
        QLabel* value = valueLabel();
        m_queryValues.insert(row.msg, value);
        m_queries->addRow(row.text, value);
    }
    auto* askButton = new QPushButton(
        //% "Опросить модуль"
        qtTrId("host_038"));
    connect(askButton, &QPushButton::clicked, this, &ZrkHostWindow::askQueries);
    m_pluginControls << askButton;
    m_queries->addRow(QString(), askButton);
    layout->addWidget(queryBox);
    layout->addStretch();
    return panel;
}

QWidget* ZrkHostWindow::buildControls()
{
    auto* panel = new QWidget;
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);

    // Directories and mode.
    auto* setupBox = new QGroupBox(
        //% "Настройки хоста"
        qtTrId("host_039"));
    auto* grid = new QGridLayout(setupBox);
    QStringList dirLabels;
    //% "Телеметрия:"
    dirLabels << qtTrId("host_040");
    //% "Конфигурации XML:"
    dirLabels << qtTrId("host_041");
    //% "Прошивки:"
    dirLabels << qtTrId("host_042");
    //% "Звуки:"
    dirLabels << qtTrId("host_043");
    for (int i = 0; i < 4; ++i) {
        m_dirs[i] = new QLineEdit;
        m_dirs[i]->setPlaceholderText(
            //% "по умолчанию модуля"
            qtTrId("host_044"));
        grid->addWidget(new QLabel(dirLabels[i]), i / 2, (i % 2) * 2);
        grid->addWidget(m_dirs[i], i / 2, (i % 2) * 2 + 1);
    }
    auto* dirButton = new QPushButton(
        //% "Передать каталоги (2049)"
        qtTrId("host_045"));
    connect(dirButton, &QPushButton::clicked, this, &ZrkHostWindow::sendDirectories);
    grid->addWidget(dirButton, 2, 3);
    m_mode = new QSpinBox;
    m_mode->setRange(0, 9);
    m_mode->setToolTip(
        //% "5 — сервисный режим с окном теста терминала"
        qtTrId("host_046"));
    auto* modeButton = new QPushButton(
        //% "Установить режим (2004)"
        qtTrId("host_047"));
    connect(modeButton, &QPushButton::clicked, this, &ZrkHostWindow::sendMode);
    grid->addWidget(new QLabel(
                        //% "Режим конфигуратора:"
                        qtTrId("host_048")),
        3, 0);
    grid->addWidget(m_mode, 3, 1);
    grid->addWidget(modeButton, 3, 3);
    m_language = new QComboBox;
    m_language->addItem(QStringLiteral("Русский"), QStringLiteral("ru"));
    m_language->addItem(QStringLiteral("English"), QStringLiteral("en"));
    auto* langButton = new QPushButton(
        //% "Сменить язык (2031)"
        qtTrId("host_049"));
    connect(langButton, &QPushButton::clicked, this,
        [this] { setLanguage(m_language->currentData().toString()); });
    grid->addWidget(new QLabel(
                        //% "Язык модуля:"
                        qtTrId("host_050")),
        4, 0);
    grid->addWidget(m_language, 4, 1);
    grid->addWidget(langButton, 4, 3);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    layout->addWidget(setupBox);
    m_pluginControls << dirButton << modeButton << langButton;

    // The simulated terminal.
    auto* termBox = new QGroupBox(
        //% "Терминал (имитация)"
        qtTrId("host_051"));
    auto* termGrid = new QGridLayout(termBox);
    m_termType = new QLineEdit(QStringLiteral("K-7140"));
    m_termImei = new QLineEdit(QStringLiteral("861234567890123"));
    m_termFirmware = new QLineEdit(QStringLiteral("3.5.8"));
    m_termConnect = new QComboBox;
    m_termConnect->addItem(QStringLiteral("USB"), 0u);
    m_termConnect->addItem(
        //% "Удалённо через сервер"
        qtTrId("host_052"), 1u);
    termGrid->addWidget(new QLabel(
                            //% "Тип:"
                            qtTrId("host_053")),
        0, 0);
    termGrid->addWidget(m_termType, 0, 1);
    termGrid->addWidget(new QLabel(QStringLiteral("IMEI:")), 0, 2);
    termGrid->addWidget(m_termImei, 0, 3);
    termGrid->addWidget(new QLabel(
                            //% "Прошивка:"
                            qtTrId("host_054")),
        1, 0);
    termGrid->addWidget(m_termFirmware, 1, 1);
    termGrid->addWidget(new QLabel(
                            //% "Связь:"
                            qtTrId("host_055")),
        1, 2);
    termGrid->addWidget(m_termConnect, 1, 3);
    auto* connectButton = new QPushButton(
        //% "Подключить (2051)"
        qtTrId("host_056"));
    auto* disconnectButton = new QPushButton(
        //% "Отключить (2052)"
        qtTrId("host_057"));
    connect(connectButton, &QPushButton::clicked, this, &ZrkHostWindow::connectTerminal);
    connect(disconnectButton, &QPushButton::clicked, this, &ZrkHostWindow::disconnectTerminal);
    m_termState = new QLabel(
        //% "Терминал не подключён"
        qtTrId("host_058"));
    termGrid->addWidget(m_termState, 2, 0, 1, 2);
    termGrid->addWidget(connectButton, 2, 2);
    termGrid->addWidget(disconnectButton, 2, 3);
    termGrid->setColumnStretch(1, 1);
    termGrid->setColumnStretch(3, 1);
    layout->addWidget(termBox);
    m_pluginControls << connectButton << disconnectButton;
    m_controlsLayout = layout;

    // The plug-in's windows.
    auto* winBox = new QGroupBox(
        //% "Окна модуля"
        qtTrId("host_059"));
    auto* winGrid = new QGridLayout(winBox);
    auto* newConfig = new QPushButton(
        //% "Новая конфигурация (2101)"
        qtTrId("host_060"));
    auto* tmiView = new QPushButton(
        //% "Телеметрия (2102)"
        qtTrId("host_061"));
    auto* tmiFile = new QPushButton(
        //% "Файл телеметрии… (2103)"
        qtTrId("host_062"));
    m_tmiKind = new QComboBox;
    m_tmiKind->addItem(
        //% "постранично"
        qtTrId("host_063"), 0u);
    m_tmiKind->addItem(
        //% "таблицей"
        qtTrId("host_064"), 1u);
    auto* openConfig = new QPushButton(
        //% "Открыть конфигурацию… (2101)"
        qtTrId("host_708"));
    connect(openConfig, &QPushButton::clicked, this, &ZrkHostWindow::chooseConfigurationFile);
    connect(newConfig, &QPushButton::clicked, this, &ZrkHostWindow::openNewConfiguration);
    connect(tmiView, &QPushButton::clicked, this, &ZrkHostWindow::openTelemetryView);
    connect(tmiFile, &QPushButton::clicked, this, &ZrkHostWindow::chooseTelemetryFile);
    winGrid->addWidget(newConfig, 0, 0);
    winGrid->addWidget(tmiView, 0, 1);
    winGrid->addWidget(tmiFile, 1, 0);
    winGrid->addWidget(m_tmiKind, 1, 1);
    winGrid->addWidget(openConfig, 2, 0);
    layout->addWidget(winBox);
    m_pluginControls << newConfig << tmiView << tmiFile << openConfig;
    layout->addStretch();
    return panel;
}

void ZrkHostWindow::addSimulatorPanel(QWidget* panel)
{
    // Right under the terminal group, in the order the simulators come.
    const int terminalAt = m_controlsLayout->indexOf(m_termState->parentWidget());
    m_controlsLayout->insertWidget(terminalAt + 1 + m_simulatorPanels++, panel);
}

void ZrkHostWindow::setControlsEnabled(bool enabled)
{
    for (QWidget* w : m_pluginControls)
        w->setEnabled(enabled);
}

bool ZrkHostWindow::loadPlugin(const QString& fileName)
{
    m_error->hide();
    const bool ok = m_loader.load(fileName);
    m_file->setText(QDir::toNativeSeparators(QFileInfo(fileName).absoluteFilePath()));
    if (!ok) {
        m_error->setText(m_loader.errorString());
        m_error->show();
        for (QLabel* l : { m_type, m_name, m_values, m_firmwareWord, m_handle })
            l->setText(QStringLiteral("—"));
        setControlsEnabled(false);
        statusBar()->showMessage(
            //% "Модуль не загружен"
            qtTrId("host_020"));
        return false;
    }
    showLibraryInfo();
    m_loader.initialize(&ZrkHostDispatcher::callback);
    setControlsEnabled(true);
    statusBar()->showMessage(
        //% "Модуль загружен и инициализирован"
        qtTrId("host_065"), 5000);
    askQueries();
    return true;
}

void ZrkHostWindow::showLibraryInfo()
{
    const szLibraryInfo& info = m_loader.info();
    m_type->setText(QString::fromUtf8(info.deviceType));
    m_name->setText(QString::fromLocal8Bit(info.displayName));
    m_values->setText(
        //% "%1, %2, %3, %4 (слово %5)"
        qtTrId("host_066")
            .arg(info.hostValues[0])
            .arg(info.hostValues[1])
            .arg(info.hostValues[2])
            .arg(info.hostValues[3])
            .arg(info.reserved));
    m_firmwareWord->setText(QString::number(info.firmwareVersion));
    m_handle->setText(QStringLiteral("0x%1").arg(reinterpret_cast<quintptr>(info.handle), 0, 16));
    setWindowTitle(QStringLiteral("zrk-host — %1").arg(QString::fromLocal8Bit(info.displayName)));
}

void ZrkHostWindow::setQueryValue(int msg, const QString& value)
{
    if (QLabel* label = m_queryValues.value(msg))
        label->setText(value);
}

void ZrkHostWindow::askQueries()
{
    for (int msg :
        { ZRK_MSG_LIBRARY_ALIVE_QUERY, ZRK_MSG_FIRMWARE_VERSION_QUERY, ZRK_MSG_PROTOCOL_NUMBER_QUERY,
            ZRK_MSG_CAPABILITY_QUERY_2010, ZRK_MSG_CAPABILITY_QUERY_2272, ZRK_MSG_CAPABILITY_QUERY_2399 }) {
        auto value = std::make_shared<quint32>(0);
        m_dispatcher.send(msg, addr(*value), 0,
            //% "%1 (результат)"
            qtTrId("host_067").arg(QStringLiteral("uint32*")), QString(), [this, msg, value] {
                setQueryValue(msg, QString::number(*value));
                return QString::number(*value);
            });
    }
    QString version;
    m_dispatcher.send(ZRK_MSG_LIBRARY_VERSION_QUERY, addr(version), 0,
        //% "%1 (результат)"
        qtTrId("host_067").arg(QStringLiteral("QString*")), QString(), [&] {
            setQueryValue(ZRK_MSG_LIBRARY_VERSION_QUERY, QStringLiteral("«%1»").arg(version));
            return QStringLiteral("«%1»").arg(version);
        });
    szConfigParam param;
    std::memset(&param, 0, sizeof param);
    m_dispatcher.send(ZRK_MSG_CONFIG_PARAM_QUERY, addr(param), 0,
        //% "%1 (результат)"
        qtTrId("host_067").arg(QStringLiteral("szConfigParam*")), QString(), [&] {
            param.text[sizeof param.text - 1] = '\0';
            const QString text = QString::fromLocal8Bit(param.text);
            //% "пусто"
            const QString shown = text.isEmpty() ? qtTrId("host_068") : QStringLiteral("«%1»").arg(text);
            setQueryValue(ZRK_MSG_CONFIG_PARAM_QUERY, shown);
            return shown;
        });
}

void ZrkHostWindow::setDirectories(
    const QString& tmi, const QString& xml, const QString& firmware, const QString& sound)
{
    const QString values[4] = { tmi, xml, firmware, sound };
    for (int i = 0; i < 4; ++i)
        m_dirs[i]->setText(values[i]);
}

void ZrkHostWindow::sendDirectories()
{
    szDirPath paths { m_dirs[0]->text(), m_dirs[1]->text(), m_dirs[2]->text(), m_dirs[3]->text() };
    QStringList shown;
    for (int i = 0; i < 4; ++i)
        shown << (m_dirs[i]->text().isEmpty() ? QStringLiteral("—") : m_dirs[i]->text());
    m_dispatcher.send(ZRK_MSG_SET_DIRECTORY_PATHS, addr(paths), 0,
        QStringLiteral("szDirPath: ") + shown.join(QStringLiteral("; ")));
}

void ZrkHostWindow::setMode(int mode)
{
    m_mode->setValue(mode);
}

void ZrkHostWindow::sendMode()
{
    quint32 mode = quint32(m_mode->value());
    m_dispatcher.send(ZRK_MSG_SET_CONFIGURATOR_MODE, addr(mode), 0, QStringLiteral("uint32* = %1").arg(mode));
}

void ZrkHostWindow::setTerminal(
    const QString& type, const QString& imei, const QString& firmware, quint32 connectType)
{
    m_termType->setText(type);
    m_termImei->setText(imei);
    m_termFirmware->setText(firmware);
    m_termConnect->setCurrentIndex(qMax(0, m_termConnect->findData(connectType)));
}

void ZrkHostWindow::connectTerminal()
{
    szDeviceConnect record { m_termType->text(), m_termImei->text(), m_termFirmware->text(), nullptr, 0, 0,
        m_termConnect->currentData().toUInt() };
    m_dispatcher.send(ZRK_MSG_DEVICE_CONNECTED, addr(record), 0,
        //% "тип «%1», IMEI %2, прошивка %3, связь %4"
        qtTrId("host_069")
            .arg(record.deviceType, record.imei, record.firmwareVersion)
            .arg(record.connectType));
    m_termState->setText(
        //% "Терминал %1 подключён (%2)"
        qtTrId("host_070").arg(record.deviceType, m_termConnect->currentText()));
}

void ZrkHostWindow::disconnectTerminal()
{
    m_dispatcher.send(ZRK_MSG_DEVICE_DISCONNECTED, 0, 0);
    m_termState->setText(
        //% "Терминал не подключён"
        qtTrId("host_058"));
}

void ZrkHostWindow::setLanguage(const QString& language)
{
    // The language is an application setting that host and plug-in share; 2031 says it changed.
    QSettings().setValue(QStringLiteral(ZRK_SETTINGS_LANGUAGE_KEY), language);
    m_language->setCurrentIndex(qMax(0, m_language->findData(language)));
    m_dispatcher.send(ZRK_MSG_LANGUAGE_CHANGED, 0, 0,
        //% "язык «%1»"
        qtTrId("host_071").arg(language));
}

void ZrkHostWindow::openNewConfiguration()
{
    szConfigFile file;
    std::memset(&file, 0, sizeof file);
    file.mode = 1; // the full editor, a new configuration
    file.source = 0;
    m_dispatcher.send(ZRK_MSG_OPEN_CONFIGURATION, addr(file), 0,
        //% "%1: полный редактор, новая"
        qtTrId("host_072").arg(QStringLiteral("szConfigFile")));
}

void ZrkHostWindow::openConfigurationFile(const QString& fileName)
{
    szConfigFile file;
    std::memset(&file, 0, sizeof file);
    file.mode = 1;
    file.source = 1; // from a file: the window titles it with the file name
    const QByteArray local = fileName.toLocal8Bit().left(ZRK_CONFIG_PATH_SIZE - 1);
    std::memcpy(file.path, local.constData(), static_cast<size_t>(local.size()));
    m_dispatcher.send(ZRK_MSG_OPEN_CONFIGURATION, addr(file), 0,
        //% "%1: полный редактор, файл «%2»"
        qtTrId("host_709").arg(QStringLiteral("szConfigFile"), fileName));
}

void ZrkHostWindow::chooseConfigurationFile()
{
    const QString file = QFileDialog::getOpenFileName(this,
        //% "Файл конфигурации"
        qtTrId("host_710"), QString(),
        //% "Конфигурации (*.xml)"
        qtTrId("host_711"));
    if (!file.isEmpty())
        openConfigurationFile(file);
}

void ZrkHostWindow::openConfigurationPage(quint32 page)
{
    m_dispatcher.send(ZRK_MSG_OPEN_CONFIG_PAGE, addr(page), 0, QStringLiteral("uint32* = %1").arg(page));
}

void ZrkHostWindow::readConfigurationFromTerminal()
{
    m_dispatcher.send(ZRK_MSG_READ_CONFIG_FROM_DEVICE, 0, 0);
}

void ZrkHostWindow::writeConfigurationToTerminal()
{
    m_dispatcher.send(ZRK_MSG_WRITE_CONFIG_TO_DEVICE, 0, 0);
}

void ZrkHostWindow::openTelemetryView()
{
    QString text;
    m_dispatcher.send(ZRK_MSG_OPEN_TELEMETRY_VIEW, addr(text), 0, QStringLiteral("QString* «»"));
}

void ZrkHostWindow::openTelemetryFile(const QString& fileName, quint32 kind)
{
    QString name = fileName;
    m_dispatcher.send(ZRK_MSG_OPEN_TELEMETRY_FILE, addr(name), addr(kind), QStringLiteral("«%1»").arg(name),
        QStringLiteral("uint32* = %1").arg(kind));
}

void ZrkHostWindow::chooseAndLoadPlugin()
{
    const QString file = QFileDialog::getOpenFileName(this,
        //% "Модуль устройства"
        qtTrId("host_021"), QString(),
        //% "Модули (*.so);;Все файлы (*)"
        qtTrId("host_073"));
    if (!file.isEmpty())
        loadPlugin(file);
}

void ZrkHostWindow::chooseTelemetryFile()
{
    const QString file = QFileDialog::getOpenFileName(this,
        //% "Файл телеметрии"
        qtTrId("host_074"), QString(),
        //% "Телеметрия (*.tmi *.xml);;Все файлы (*)"
        qtTrId("host_075"));
    if (!file.isEmpty())
        openTelemetryFile(file, m_tmiKind->currentData().toUInt());
}
