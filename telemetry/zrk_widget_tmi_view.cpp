#include "telemetry/zrk_widget_tmi_view.h"

#include "config_ui/zrk_widget_config.h"
#include "device/zrk_device_k7140.h"
#include "map/zrk_dialog_map_track.h"
#include "telemetry/orba_field_labels.h"
#include "telemetry/orba_page.h"
#include "telemetry/tmi_file.h"
#include "telemetry/tmipage_orba3.h"
#include "telemetry/zrk_form_tmi_ext.h"
#include "telemetry/zrk_form_tmi_orba3.h"
#include "telemetry/zrk_form_tmi_production.h"
#include "telemetry/zrk_tmi_chart.h"
#include "telemetry/zrk_tmi_session.h"
#include "telemetry/zrk_widget_tmi_file.h"
#include "ui_zrk_widget_tmi_view.h"

#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QShowEvent>
#include <QTextCodec>

namespace {

// Bytes the host puts before a record in each reply.
constexpr int kCurrentPrefix = 3;
constexpr int kNumberPrefix = 3;
constexpr int kStepPrefix = 13;
constexpr int kExtendedPrefix = 2;
// A current-record reply shorter than this holds no record.
constexpr int kCurrentMinBytes = 101;
// Auto-request in the production modes: the display value is asked every fifth tick.
constexpr int kDisplayEveryTicks = 5;
// Key code kinds of 2311.
constexpr unsigned long kKeyTouchMemory = 1;
constexpr unsigned long kKeyRfid = 3;
// lParam of 2151 for sensor firmware.
constexpr unsigned long kFileSensorFirmware = 6;

template <typename T> unsigned long addr(T& v)
{
    return reinterpret_cast<unsigned long>(&v);
}

// The Russian texts of the ids the form file carries (uic passes the ids on as they are).
[[maybe_unused]] const char* const kFormTextIds[] = {
    //% "Текущая запись"
    QT_TRID_NOOP("tmiw_001"),
    //% "◀ Предыдущая"
    QT_TRID_NOOP("tmiw_002"),
    //% "Следующая ▶"
    QT_TRID_NOOP("tmiw_003"),
    //% "Показать"
    QT_TRID_NOOP("tmiw_004"),
    //% "Смещение от UTC:"
    QT_TRID_NOOP("tmiw_005"),
    //% "Автозапрос"
    QT_TRID_NOOP("tmiw_006"),
    //% "Период автозапроса, 1..60 с"
    QT_TRID_NOOP("tmiw_007"),
    //% "Скрывать отсутствующие поля"
    QT_TRID_NOOP("tmiw_008"),
    //% "Сохранить…"
    QT_TRID_NOOP("tmiw_009"),
    //% "На карте…"
    QT_TRID_NOOP("tmiw_116"),
    //% "Показать на карте трек записей этого сеанса"
    QT_TRID_NOOP("tmiw_117"),
    //% "График"
    QT_TRID_NOOP("tmiw_010"),
    //% "Команды"
    QT_TRID_NOOP("tmiw_011"),
    //% "Журнал"
    QT_TRID_NOOP("tmiw_012"),
    //% "Добавить"
    QT_TRID_NOOP("tmiw_013"),
    //% "Очистить"
    QT_TRID_NOOP("tmiw_014"),
    //% "Выход"
    QT_TRID_NOOP("tmiw_015"),
    //% "Включить"
    QT_TRID_NOOP("tmiw_016"),
    //% "Выключить"
    QT_TRID_NOOP("tmiw_017"),
    //% "Охрана"
    QT_TRID_NOOP("tmiw_018"),
    //% "Поставить"
    QT_TRID_NOOP("tmiw_019"),
    //% "Снять"
    QT_TRID_NOOP("tmiw_020"),
    //% "Очистка"
    QT_TRID_NOOP("tmiw_021"),
    //% "Очистить"
    QT_TRID_NOOP("tmiw_022"),
    //% "Вывод GNSS/NMEA"
    QT_TRID_NOOP("tmiw_023"),
    //% "Параметр"
    QT_TRID_NOOP("tmiw_024"),
    //% "Установить"
    QT_TRID_NOOP("tmiw_025"),
    //% "Команда с числом"
    QT_TRID_NOOP("tmiw_026"),
    //% "Выполнить"
    QT_TRID_NOOP("tmiw_027"),
    //% "Ключ / карта"
    QT_TRID_NOOP("tmiw_028"),
    //% "Прочитать ключ ТМ"
    QT_TRID_NOOP("tmiw_029"),
    //% "Прочитать RFID-карту"
    QT_TRID_NOOP("tmiw_030"),
    //% "Код ключа ТМ"
    QT_TRID_NOOP("tmiw_031"),
    //% "Код RFID"
    QT_TRID_NOOP("tmiw_032"),
    //% "ДУТ: команда"
    QT_TRID_NOOP("tmiw_033"),
    //% "Отправить"
    QT_TRID_NOOP("tmiw_034"),
    //% "Прошивка датчика"
    QT_TRID_NOOP("tmiw_035"),
    //% "Выбрать файл…"
    QT_TRID_NOOP("tmiw_036"),
    //% "Тахограф: запрос"
    QT_TRID_NOOP("tmiw_037"),
    //% "Запросить"
    QT_TRID_NOOP("tmiw_038"),
    //% "Тахограф: файл"
    QT_TRID_NOOP("tmiw_039"),
    //% "Тахограф: чтение файла"
    QT_TRID_NOOP("tmiw_045"),
    //% "Прочитать"
    QT_TRID_NOOP("tmiw_046"),
    //% "ДУТ: данные"
    QT_TRID_NOOP("tmiw_047"),
    //% "ДУТ: файл данных"
    QT_TRID_NOOP("tmiw_048"),
    //% "Память записей"
    QT_TRID_NOOP("tmiw_049"),
    //% "Счётчики"
    QT_TRID_NOOP("tmiw_050"),
    //% "Всё"
    QT_TRID_NOOP("tmiw_051"),
    //% "Бортовое устройство"
    QT_TRID_NOOP("tmiw_052"),
    //% "Карта водителя"
    QT_TRID_NOOP("tmiw_053"),
    //% "Номер выхода, 1..8"
    QT_TRID_NOOP("tmiw_054"),
    //% "Часы смещения от UTC, -12..14"
    QT_TRID_NOOP("tmiw_055"),
    //% "Минуты смещения, 0..45"
    QT_TRID_NOOP("tmiw_056"),
    //% "Номер показанной записи"
    QT_TRID_NOOP("tmiw_057"),
    //% "Число для команды"
    QT_TRID_NOOP("tmiw_058"),
    //% "Момент: показать ближайшую запись до него"
    QT_TRID_NOOP("tmiw_059"),
    //% "Числовое поле для графика"
    QT_TRID_NOOP("tmiw_060"),
    //% "Текст параметра, например «имя=значение»"
    QT_TRID_NOOP("tmiw_061"),
    //% "Команда датчику уровня топлива"
    QT_TRID_NOOP("tmiw_062"),
    //% "Вид запроса тахографа, 0..255"
    QT_TRID_NOOP("tmiw_063"),
    //% "Начало периода"
    QT_TRID_NOOP("tmiw_064"),
    //% "Конец периода"
    QT_TRID_NOOP("tmiw_065"),
    //% "Имя файла тахографа"
    QT_TRID_NOOP("tmiw_066"),
    //% "Датчик"
    QT_TRID_NOOP("tmiw_067"),
    //% "Запрос"
    QT_TRID_NOOP("tmiw_068"),
    //% "Имя файла данных датчика"
    QT_TRID_NOOP("tmiw_069"),
    //% "Запросите текущую запись"
    QT_TRID_NOOP("tmiw_070"),
    //% "Записи этого сеанса; щелчок показывает запись"
    QT_TRID_NOOP("tmiw_071"),
};

bool isProductionMode()
{
    const quint32 mode = lpGlobalDevice ? lpGlobalDevice->getConfiguratorMode() : 0;
    return mode == 1 || mode == 2;
}

QString hexByte(unsigned char b)
{
    return QStringLiteral("%1").arg(b, 2, 16, QLatin1Char('0')).toUpper();
}

} // namespace

ZRK_Widget_Tmi_View::ZRK_Widget_Tmi_View(QWidget* parent)
    : QWidget(parent)
    , ui(new Ui::ZRK_Designer_Widget_Tmi_View)
{
    ui->setupUi(this);
    setObjectName(QStringLiteral("ZRK_Widget_Tmi_View"));
    // The freshness line reads as a status line yet can be selected and copied; being an edit
    // rather than a label, its new text every record does not lay the window out again.
    QPalette status = ui->Freshness->palette();
    status.setColor(QPalette::Base, Qt::transparent);
    ui->Freshness->setPalette(status);
    m_connected = lpGlobalDevice && lpGlobalDevice->isDeviceConnected();

    m_session = new ZRK_Tmi_Session(500, this);
    ui->SessionList->setModel(m_session);
    m_chart = new ZRK_Tmi_Chart(ui->ChartHost, this);
    for (int no = 1; no <= orba::kFieldCount; ++no)
        if (orba::isPlottable(no))
            ui->ChartField->addItem(orba::fieldLabel(no), no);
    ui->ChartField->setCurrentIndex(ui->ChartField->findData(int(orba::F_Speed)));
    ui->MainSplitter->setStretchFactor(1, 3);
    ui->MainSplitter->setStretchFactor(2, 2);
    ui->TimeMoment->setDateTime(QDateTime::currentDateTime());
    ui->HistoryMark->hide();

    m_Timer_Auto_TMI.setSingleShot(true);
    connect(&m_Timer_Auto_TMI, &QTimer::timeout, this, &ZRK_Widget_Tmi_View::slot_timeout_m_Timer_Auto_TMI);
    connect(ui->GetCurrent, &QPushButton::clicked, this, &ZRK_Widget_Tmi_View::slot_pressed_GetCurrent);
    connect(ui->GetPrev, &QPushButton::clicked, this, &ZRK_Widget_Tmi_View::slot_pressed_GetPrev);
    connect(ui->GetNext, &QPushButton::clicked, this, &ZRK_Widget_Tmi_View::slot_pressed_GetNext);
    connect(ui->Show, &QPushButton::clicked, this, &ZRK_Widget_Tmi_View::slot_pressed_Show);
    connect(
        ui->GetAutoTmi, &QCheckBox::stateChanged, this, &ZRK_Widget_Tmi_View::slot_stateChanged_GetAutoTmi);
    connect(ui->Period, &QSlider::valueChanged, this, &ZRK_Widget_Tmi_View::slot_valueChanged_Period);
    connect(ui->SessionList, &QListView::clicked, this, &ZRK_Widget_Tmi_View::slot_activated_SessionList);
    connect(ui->SessionList, &QListView::activated, this, &ZRK_Widget_Tmi_View::slot_activated_SessionList);
    connect(ui->HideAbsent, &QCheckBox::toggled, this, &ZRK_Widget_Tmi_View::slot_toggled_HideAbsent);
    connect(ui->SaveFile, &QPushButton::clicked, this, &ZRK_Widget_Tmi_View::slot_pressed_SaveFile);
    connect(ui->ShowOnMap, &QPushButton::clicked, this, &ZRK_Widget_Tmi_View::slot_pressed_ShowOnMap);
    connect(ui->ChartAdd, &QPushButton::clicked, this,
        [this] { m_chart->addField(ui->ChartField->currentData().toInt(), *m_session); });
    connect(ui->ChartClear, &QPushButton::clicked, m_chart, &ZRK_Tmi_Chart::clearFields);
    connect(
        m_chart, &ZRK_Tmi_Chart::changed, this, [this] { ui->ChartMinMax->setText(m_chart->minMaxText()); });

    connect(ui->OutOn, &QPushButton::clicked, this, &ZRK_Widget_Tmi_View::slot_pressed_OutOn);
    connect(ui->OutOff, &QPushButton::clicked, this, &ZRK_Widget_Tmi_View::slot_pressed_OutOff);
    connect(ui->GuardOn, &QPushButton::clicked, this, &ZRK_Widget_Tmi_View::slot_pressed_GuardOn);
    connect(ui->GuardOff, &QPushButton::clicked, this, &ZRK_Widget_Tmi_View::slot_pressed_GuardOff);
    connect(ui->Clear, &QPushButton::clicked, this, &ZRK_Widget_Tmi_View::slot_pressed_Clear);
    connect(ui->NmeaOutput, &QCheckBox::toggled, this, &ZRK_Widget_Tmi_View::slot_toggled_NmeaOutput);
    connect(ui->SetParam, &QPushButton::clicked, this, &ZRK_Widget_Tmi_View::slot_pressed_SetParam);
    connect(ui->RunCommand, &QPushButton::clicked, this, &ZRK_Widget_Tmi_View::slot_pressed_RunCommand);
    connect(ui->ReadTouch, &QPushButton::clicked, this, &ZRK_Widget_Tmi_View::slot_pressed_ReadTouch);
    connect(ui->ReadRfid, &QPushButton::clicked, this, &ZRK_Widget_Tmi_View::slot_pressed_ReadRfid);
    connect(ui->GetTouch, &QPushButton::clicked, this, &ZRK_Widget_Tmi_View::slot_pressed_GetTouch);
    connect(ui->GetRfid, &QPushButton::clicked, this, &ZRK_Widget_Tmi_View::slot_pressed_GetRfid);
    connect(
        ui->SendFlsCommand, &QPushButton::clicked, this, &ZRK_Widget_Tmi_View::slot_pressed_SendFlsCommand);
    connect(
        ui->FirmwareUpdate, &QPushButton::clicked, this, &ZRK_Widget_Tmi_View::slot_pressed_FirmwareUpdate);
    connect(ui->TahoQuery, &QPushButton::clicked, this, &ZRK_Widget_Tmi_View::slot_pressed_TahoQuery);
    connect(
        ui->TahoFileRequest, &QPushButton::clicked, this, &ZRK_Widget_Tmi_View::slot_pressed_TahoFileRequest);
    connect(ui->TahoFileRead, &QPushButton::clicked, this, &ZRK_Widget_Tmi_View::slot_pressed_TahoFileRead);
    connect(ui->FlsData, &QPushButton::clicked, this, &ZRK_Widget_Tmi_View::slot_pressed_FlsData);
    connect(ui->FlsDataFile, &QPushButton::clicked, this, &ZRK_Widget_Tmi_View::slot_pressed_FlsDataFile);

    ui->TahoFrom->setDate(QDate::currentDate().addDays(-7));
    ui->TahoTo->setDate(QDate::currentDate());
    translateForm();
    setTerminalControlsEnabled();
}

ZRK_Widget_Tmi_View::~ZRK_Widget_Tmi_View() = default;

// ---- state ---------------------------------------------------------------------------------

void ZRK_Widget_Tmi_View::deviceConnect()
{
    m_connected = true;
    m_rcsEnded = false;
    setTerminalControlsEnabled();
}

void ZRK_Widget_Tmi_View::deviceDisconnect()
{
    m_connected = false;
    // Auto-request ends with the connection; the box is cleared so that it does not restart.
    m_Timer_Auto_TMI.stop();
    if (ui->GetAutoTmi->checkState() != Qt::Unchecked) {
        const QSignalBlocker block(ui->GetAutoTmi);
        ui->GetAutoTmi->setCheckState(Qt::Unchecked);
    }
    setTerminalControlsEnabled();
}

void ZRK_Widget_Tmi_View::deviceDisconnectRCS()
{
    // The remote session is over: the terminal can no longer be reached through it.
    //% "Удалённый сеанс с терминалом завершён"
    logLine(qtTrId("tmiw_080"));
    m_rcsEnded = true;
    deviceDisconnect();
}

void ZRK_Widget_Tmi_View::setTerminalControlsEnabled()
{
    const bool on = m_connected;
    const bool automatic = ui->GetAutoTmi->checkState() != Qt::Unchecked;
    for (QWidget* w : { static_cast<QWidget*>(ui->GetCurrent), static_cast<QWidget*>(ui->GetPrev),
             static_cast<QWidget*>(ui->GetNext), static_cast<QWidget*>(ui->Show) })
        w->setEnabled(on && !automatic);
    ui->GetAutoTmi->setEnabled(on);
    ui->TabCommands->setEnabled(on);
    if (on)
        //% "Терминал подключён"
        ui->ConnectionState->setText(qtTrId("tmiw_081"));
    else
        //% "Терминал не подключён"
        ui->ConnectionState->setText(qtTrId("tmiw_082"));
}

void ZRK_Widget_Tmi_View::setNavigationEnabled(bool enabled)
{
    for (QWidget* w : { static_cast<QWidget*>(ui->GetCurrent), static_cast<QWidget*>(ui->GetPrev),
             static_cast<QWidget*>(ui->GetNext), static_cast<QWidget*>(ui->Show) })
        w->setEnabled(enabled && m_connected);
}

void ZRK_Widget_Tmi_View::translateForm()
{
    ui->retranslateUi(this);
    //% "Телеметрия"
    setWindowTitle(qtTrId("wtmi_001"));
    updatePeriodLabel();
    if (m_formOrba3)
        m_formOrba3->translateForm();
    if (m_formProduction)
        m_formProduction->translateForm();
    updateFreshness();
    if (ui)
        setTerminalControlsEnabled();
}

void ZRK_Widget_Tmi_View::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (m_splitterSized)
        return;
    m_splitterSized = true;
    // Most of the width for the record; the session list narrow; chart and commands beside.
    const int w = width();
    ui->MainSplitter->setSizes({ w * 14 / 100, w * 52 / 100, w * 34 / 100 });
}

void ZRK_Widget_Tmi_View::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        translateForm();
    QWidget::changeEvent(event);
}

void ZRK_Widget_Tmi_View::showForm(const QString& text, const szConfigParam& configParam)
{
    const QString param
        = QString::fromLocal8Bit(configParam.text, int(qstrnlen(configParam.text, sizeof configParam.text)));
    if (!param.isEmpty())
        //% "Параметры конфигурации: %1"
        logLine(qtTrId("tmiw_083").arg(param));
    //% "Телеметрия"
    setWindowTitle(text.isEmpty() ? qtTrId("wtmi_001") : qtTrId("wtmi_001") + QStringLiteral(" — ") + text);
    show();
    raise();
    activateWindow();
}

void ZRK_Widget_Tmi_View::closeForm()
{
    m_Timer_Auto_TMI.stop();
    if (ui->GetAutoTmi->checkState() != Qt::Unchecked)
        ui->GetAutoTmi->setCheckState(Qt::Unchecked);
    close();
}

bool ZRK_Widget_Tmi_View::isTestMode(QByteArray* data)
{
    // The host asks whether the view is polling the terminal for a line test: auto-request on in
    // a production or service mode.
    if (data && !data->isEmpty())
        //% "Запрос режима проверки"
        logBytes(qtTrId("tmiw_084"), *data);
    const quint32 mode = lpGlobalDevice ? lpGlobalDevice->getConfiguratorMode() : 0;
    const bool testing = mode == 1 || mode == 2 || mode == ZRK_CONFIGURATOR_MODE_SERVICE;
    return testing && m_Timer_Auto_TMI.isActive();
}

// ---- records --------------------------------------------------------------------------------

void ZRK_Widget_Tmi_View::setTmiCur(QByteArray* buf)
{
    if (!buf || buf->size() < kCurrentMinBytes)
        return;
    buf->remove(0, kCurrentPrefix);
    setTmiPage(*buf, true, Origin::Live);
}

void ZRK_Widget_Tmi_View::setTmiCurNumber(QByteArray* buf)
{
    if (!buf)
        return;
    buf->remove(0, kNumberPrefix);
    const int direction = m_direction;
    m_direction = 0;
    const bool shown = setTmiPage(*buf, direction == 0, Origin::ByNumber);
    if (!shown && direction == 1)
        ui->GetNext->setEnabled(false);
    else if (!shown && direction == -1)
        ui->GetPrev->setEnabled(false);
    else if (shown && ui->GetAutoTmi->checkState() == Qt::Unchecked)
        setNavigationEnabled(true);
}

void ZRK_Widget_Tmi_View::setTmiCurLeft(QByteArray* buf)
{
    if (!buf)
        return;
    buf->remove(0, kStepPrefix);
    setTmiPage(*buf, true, Origin::ByTime);
}

void ZRK_Widget_Tmi_View::setTmiCurRight(QByteArray* buf)
{
    if (!buf)
        return;
    buf->remove(0, kStepPrefix);
    setTmiPage(*buf, true, Origin::ByTime);
}

void ZRK_Widget_Tmi_View::setTmiCurExt(QByteArray* buf)
{
    if (!buf)
        return;
    buf->remove(0, kExtendedPrefix);
    setTmiPage(*buf, true, Origin::Live);
}

bool ZRK_Widget_Tmi_View::setTmiPage(const QByteArray& buf, bool showUnknown, Origin origin)
{
    const quint32 mode = lpGlobalDevice ? lpGlobalDevice->getConfiguratorMode() : 0;
    const auto* data = reinterpret_cast<const unsigned char*>(buf.constData());
    const orba::Form form = orba::chooseForm(data, buf.size(), int(mode), showUnknown);
    if (form == orba::Form::Dropped)
        return false;
    if (form == orba::Form::Unknown) {
        //% "Неизвестный тип записи"
        m_unknownText = QStringLiteral("%1\n0x%2 0x%3 / %4")
                            .arg(qtTrId("tmiw_223"), hexByte(data[0]), hexByte(data[1]))
                            .arg(buf.size());
        ui->UnknownText->setText(m_unknownText);
        showPage(ui->UnknownPage);
        return false;
    }
    const std::shared_ptr<const OrbaPage> page = orba::buildPage(form, data, buf.size());
    if (!page)
        return false;
    const QDateTime now = QDateTime::currentDateTime();
    const bool full = m_session->count() >= m_session->capacity();
    m_session->append(buf, page.get(), int(origin), now);
    m_chart->appendRecord(*page, now, full);
    m_shownReceived = now;
    m_shownOrigin = origin;
    showDecoded(page, form);
    return true;
}

void ZRK_Widget_Tmi_View::showDecoded(const std::shared_ptr<const OrbaPage>& shared, orba::Form form)
{
    const OrbaPage& page = *shared;
    if (form == orba::Form::Extended) {
        if (!m_formExt) {
            m_formExt = new ZRK_Form_TMI_Ext;
            ui->PageArea->addWidget(m_formExt);
        }
        m_formExt->setPage(static_cast<const TmiPage_Orba3&>(page));
        showPage(m_formExt);
        const auto& ext = static_cast<const TmiPage_Orba3&>(page);
        ui->NumPage->setText(QString::number(ext.getNumberTmiPage_Ext()));
        m_shownHasTime = m_shownHasFix = true;
        m_shownTime = ext.getEventTime_Ext();
        m_shownLastFix = ext.getLastTime_Ext();
        updateFreshness();
        return;
    }
    if (form == orba::Form::Orba3Production) {
        if (!m_formProduction) {
            m_formProduction = new ZRK_Form_TMI_Production;
            ui->PageArea->addWidget(m_formProduction);
        }
        m_formProduction->setPage(page);
        showPage(m_formProduction);
    } else {
        if (!m_formOrba3) {
            m_formOrba3 = new ZRK_Form_TMI_Orba3;
            m_formOrba3->setTextSources([this](quint16 code) { return eventText(code); },
                [this](quint8 code) { return diagnosticText(code); });
            m_formOrba3->setHideAbsent(ui->HideAbsent->isChecked());
            ui->PageArea->addWidget(m_formOrba3);
        }
        m_formOrba3->setPage(shared);
        showPage(m_formOrba3);
    }
    const unsigned char* rec = page.recordBytes();
    if (page.isUsed(orba::F_NumPage))
        ui->NumPage->setText(QString::number(orba::readLE(rec + orba::kOffsets[orba::F_NumPage], 4)));
    m_shownHasTime = page.isUsed(orba::F_Time);
    m_shownTime = quint32(orba::readLE(rec + orba::kOffsets[orba::F_Time], 4));
    m_shownHasFix = page.isUsed(orba::F_LastTime);
    m_shownLastFix = quint32(orba::readLE(rec + orba::kOffsets[orba::F_LastTime], 4));
    updateFreshness();
}

void ZRK_Widget_Tmi_View::showPage(QWidget* page)
{
    if (ui->PageArea->currentWidget() != page)
        ui->PageArea->setCurrentWidget(page);
}

QWidget* ZRK_Widget_Tmi_View::currentPage() const
{
    return ui->PageArea->currentWidget();
}

QString ZRK_Widget_Tmi_View::unknownText() const
{
    return m_unknownText;
}

void ZRK_Widget_Tmi_View::showRecordAt(int row)
{
    if (row < 0 || row >= m_session->count())
        return;
    const ZRK_Tmi_Session::Entry& e = m_session->at(row);
    const quint32 mode = lpGlobalDevice ? lpGlobalDevice->getConfiguratorMode() : 0;
    const auto* data = reinterpret_cast<const unsigned char*>(e.bytes.constData());
    const orba::Form form = orba::chooseForm(data, e.bytes.size(), int(mode), false);
    const std::shared_ptr<const OrbaPage> page = orba::buildPage(form, data, e.bytes.size());
    if (!page)
        return;
    m_shownReceived = e.received;
    m_shownOrigin = Origin(e.origin);
    showDecoded(page, form);
}

void ZRK_Widget_Tmi_View::updateFreshness()
{
    if (!m_shownReceived.isValid()) {
        ui->Freshness->clear();
        ui->HistoryMark->hide();
        return;
    }
    //% "Получена: %1"
    QString text = qtTrId("tmiw_085").arg(m_shownReceived.toString(QStringLiteral("dd.MM.yyyy HH:mm:ss")));
    if (m_shownHasTime)
        //% "время записи: %1"
        text += QStringLiteral(" · ") + qtTrId("tmiw_086").arg(orba::dateTimeText(m_shownTime));
    if (m_shownHasFix && m_shownHasTime && m_shownLastFix != 0) {
        const qint64 age = qint64(m_shownTime) - qint64(m_shownLastFix);
        //% "возраст координат: %1 %2"
        text += QStringLiteral(" · ") + qtTrId("tmiw_087").arg(age).arg(qtTrId("abbr_003"));
    } else if (m_shownHasFix) {
        //% "координат нет"
        text += QStringLiteral(" · ") + qtTrId("tmiw_088");
    }
    ui->Freshness->setText(text);
    if (m_shownOrigin == Origin::Live) {
        ui->HistoryMark->hide();
    } else {
        if (m_shownOrigin == Origin::ByNumber)
            //% "ИЗ ИСТОРИИ (по номеру)"
            ui->HistoryMark->setText(qtTrId("tmiw_089"));
        else
            //% "ИЗ ИСТОРИИ (по времени)"
            ui->HistoryMark->setText(qtTrId("tmiw_090"));
        ui->HistoryMark->show();
    }
}

QString ZRK_Widget_Tmi_View::freshnessText() const
{
    return ui->Freshness->text()
        + (ui->HistoryMark->isHidden() ? QString() : QLatin1Char(' ') + ui->HistoryMark->text());
}

// ---- requests -------------------------------------------------------------------------------

unsigned long ZRK_Widget_Tmi_View::send(int msg, unsigned long w, unsigned long l)
{
    if (!lpGlobalDevice)
        return 0;
    return lpGlobalDevice->SendMessage(lpGlobalDevice, msg, w, l);
}

void ZRK_Widget_Tmi_View::getTmiCur()
{
    send(ZRK_MSG_REQUEST_TMI_CURRENT);
}

void ZRK_Widget_Tmi_View::getTmiIndex(quint32 number)
{
    send(ZRK_MSG_REQUEST_TMI_BY_INDEX, addr(number));
}

void ZRK_Widget_Tmi_View::getTmiTimeLeft(const QDateTime& moment)
{
    QDateTime m = moment;
    send(ZRK_MSG_REQUEST_TMI_BEFORE, addr(m));
}

void ZRK_Widget_Tmi_View::getTmiTimeRight(const QDateTime& moment)
{
    QDateTime m = moment;
    send(ZRK_MSG_REQUEST_TMI_AFTER, addr(m));
}

void ZRK_Widget_Tmi_View::getTmiCur_Touch()
{
    send(ZRK_MSG_REQUEST_KEY_CODE, kKeyTouchMemory);
}

void ZRK_Widget_Tmi_View::getTmiCur_RFID()
{
    send(ZRK_MSG_REQUEST_KEY_CODE, kKeyRfid);
}

QString ZRK_Widget_Tmi_View::eventText(quint16 code)
{
    auto it = m_eventTexts.constFind(code);
    if (it != m_eventTexts.constEnd())
        return *it;
    QString text;
    send(ZRK_MSG_EVENT_CODE_TEXT, code, addr(text));
    m_eventTexts.insert(code, text);
    return text;
}

QString ZRK_Widget_Tmi_View::diagnosticText(quint8 code)
{
    auto it = m_diagnosticTexts.constFind(code);
    if (it != m_diagnosticTexts.constEnd())
        return *it;
    QString text;
    send(ZRK_MSG_DIAGNOSTIC_CODE_TEXT, code, addr(text));
    m_diagnosticTexts.insert(code, text);
    return text;
}

// ---- user actions ---------------------------------------------------------------------------

int ZRK_Widget_Tmi_View::timeOffset() const
{
    const int h = ui->TimeOffsetHours->value();
    const int m = ui->TimeOffsetMinutes->value();
    return h * 3600 + (h < 0 ? -m : m) * 60;
}

int ZRK_Widget_Tmi_View::autoPeriod() const
{
    return ui->Period->value();
}

quint32 ZRK_Widget_Tmi_View::shownNumber() const
{
    return ui->NumPage->text().toUInt();
}

void ZRK_Widget_Tmi_View::requestCurrent()
{
    if (!m_connected)
        return;
    m_direction = 0;
    getTmiCur();
}

void ZRK_Widget_Tmi_View::requestPrev()
{
    if (!m_connected)
        return;
    const quint32 number = shownNumber();
    m_direction = -1;
    getTmiIndex(number - 1);
}

void ZRK_Widget_Tmi_View::requestNext()
{
    if (!m_connected)
        return;
    const quint32 number = shownNumber();
    m_direction = 1;
    getTmiIndex(number + 1);
}

void ZRK_Widget_Tmi_View::requestByTime()
{
    if (!m_connected)
        return;
    getTmiTimeLeft(ui->TimeMoment->dateTime().addSecs(-timeOffset()));
}

void ZRK_Widget_Tmi_View::setAutoRequest(int checkState)
{
    if (checkState == Qt::Unchecked || !m_connected) {
        m_Timer_Auto_TMI.stop();
        setNavigationEnabled(true);
        return;
    }
    m_autoCounter = 1;
    setNavigationEnabled(false);
    getTmiCur();
    m_Timer_Auto_TMI.start(autoPeriod() * 1000);
}

void ZRK_Widget_Tmi_View::autoRequestTick()
{
    if (ui->GetAutoTmi->checkState() == Qt::Unchecked || !m_connected) {
        m_Timer_Auto_TMI.stop();
        return;
    }
    if (!isProductionMode()) {
        getTmiCur();
    } else if (m_autoCounter < kDisplayEveryTicks) {
        getTmiCur();
        ++m_autoCounter;
    } else {
        send(ZRK_MSG_REQUEST_DISPLAY_VALUE);
        m_autoCounter = 1;
    }
    m_Timer_Auto_TMI.start(autoPeriod() * 1000);
}

void ZRK_Widget_Tmi_View::updatePeriodLabel()
{
    //% "с"
    ui->PeriodLabel->setText(QStringLiteral("%1 %2").arg(ui->Period->value()).arg(qtTrId("abbr_003")));
}

void ZRK_Widget_Tmi_View::slot_pressed_GetCurrent()
{
    requestCurrent();
}

void ZRK_Widget_Tmi_View::slot_pressed_GetPrev()
{
    requestPrev();
}

void ZRK_Widget_Tmi_View::slot_pressed_GetNext()
{
    requestNext();
}

void ZRK_Widget_Tmi_View::slot_pressed_Show()
{
    requestByTime();
}

void ZRK_Widget_Tmi_View::slot_stateChanged_GetAutoTmi(int state)
{
    setAutoRequest(state);
}

void ZRK_Widget_Tmi_View::slot_valueChanged_Period(int)
{
    updatePeriodLabel();
}

void ZRK_Widget_Tmi_View::slot_timeout_m_Timer_Auto_TMI()
{
    autoRequestTick();
}

void ZRK_Widget_Tmi_View::slot_activated_SessionList(const QModelIndex& index)
{
    showRecordAt(index.row());
}

void ZRK_Widget_Tmi_View::slot_toggled_HideAbsent(bool hide)
{
    if (m_formOrba3)
        m_formOrba3->setHideAbsent(hide);
}

// ---- commands -------------------------------------------------------------------------------

bool ZRK_Widget_Tmi_View::confirm(const QString& question)
{
    //% "Команда терминалу"
    return QMessageBox::question(
               this, qtTrId("tmiw_091"), question, QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
        == QMessageBox::Yes;
}

void ZRK_Widget_Tmi_View::slot_pressed_OutOn()
{
    const unsigned long out = ui->OutNumber->value();
    //% "Включить выход %1?"
    if (m_connected && confirm(qtTrId("tmiw_092").arg(out)))
        send(ZRK_MSG_OUTPUT_ON, out);
}

void ZRK_Widget_Tmi_View::slot_pressed_OutOff()
{
    const unsigned long out = ui->OutNumber->value();
    //% "Выключить выход %1?"
    if (m_connected && confirm(qtTrId("tmiw_093").arg(out)))
        send(ZRK_MSG_OUTPUT_OFF, out);
}

void ZRK_Widget_Tmi_View::slot_pressed_GuardOn()
{
    //% "Поставить терминал на охрану?"
    if (m_connected && confirm(qtTrId("tmiw_094")))
        send(ZRK_MSG_GUARD_ENTER);
}

void ZRK_Widget_Tmi_View::slot_pressed_GuardOff()
{
    //% "Снять терминал с охраны?"
    if (m_connected && confirm(qtTrId("tmiw_095")))
        send(ZRK_MSG_GUARD_LEAVE);
}

void ZRK_Widget_Tmi_View::slot_pressed_Clear()
{
    const unsigned long choice = ui->ClearChoice->currentIndex() + 1;
    //% "Выполнить «%1»? Данные терминала будут удалены."
    if (m_connected && confirm(qtTrId("tmiw_096").arg(ui->ClearChoice->currentText())))
        send(ZRK_MSG_CLEAR, choice);
}

void ZRK_Widget_Tmi_View::slot_toggled_NmeaOutput(bool on)
{
    if (!m_connected)
        return;
    bool value = on;
    send(ZRK_MSG_SWITCH_NMEA_OUTPUT, addr(value));
}

void ZRK_Widget_Tmi_View::slot_pressed_SetParam()
{
    if (!m_connected)
        return;
    QTextCodec* codec = QTextCodec::codecForName("windows-1251");
    QByteArray value = codec ? codec->fromUnicode(ui->ParamValue->text()) : ui->ParamValue->text().toLatin1();
    send(ZRK_MSG_SET_PARAM_VALUE, addr(value));
}

void ZRK_Widget_Tmi_View::slot_pressed_RunCommand()
{
    if (!m_connected)
        return;
    float value = float(ui->CommandNumber->value());
    send(ZRK_MSG_RUN_COMMAND_NUMBER, addr(value));
}

void ZRK_Widget_Tmi_View::slot_pressed_ReadTouch()
{
    if (!m_connected)
        return;
    // The key code comes back as 2241 to the window that waits for it.
    if (lpGlobalDevice)
        lpGlobalDevice->setWidgetWaitReceive(1);
    send(ZRK_MSG_READ_TOUCH_MEMORY);
}

void ZRK_Widget_Tmi_View::slot_pressed_ReadRfid()
{
    if (m_connected)
        send(ZRK_MSG_READ_RFID_CARD);
}

void ZRK_Widget_Tmi_View::slot_pressed_GetTouch()
{
    if (m_connected)
        getTmiCur_Touch();
}

void ZRK_Widget_Tmi_View::slot_pressed_GetRfid()
{
    if (m_connected)
        getTmiCur_RFID();
}

void ZRK_Widget_Tmi_View::slot_pressed_SendFlsCommand()
{
    if (!m_connected || ui->FlsCommand->text().isEmpty())
        return;
    QString command = ui->FlsCommand->text();
    send(ZRK_MSG_FLS_USER_COMMAND, addr(command));
}

void ZRK_Widget_Tmi_View::slot_pressed_FirmwareUpdate()
{
    if (!m_connected || !lpGlobalDevice)
        return;
    //% "Файл прошивки датчика"
    QString path = QFileDialog::getOpenFileName(this, qtTrId("tmiw_097"), lpGlobalDevice->getPathFirmware());
    //% "Записать прошивку %1 в датчик? Датчик будет недоступен до конца записи."
    if (path.isEmpty() || !confirm(qtTrId("tmiw_098").arg(QFileInfo(path).fileName())))
        return;
    send(ZRK_MSG_WRITE_FILE_TO_DEVICE, addr(path), kFileSensorFirmware);
}

void ZRK_Widget_Tmi_View::slot_pressed_TahoQuery()
{
    if (m_connected)
        send(ZRK_MSG_TACHO_QUERY, ui->TahoQueryKind->value());
}

void ZRK_Widget_Tmi_View::slot_pressed_TahoFileRequest()
{
    if (!m_connected)
        return;
    szQueryTaho query;
    query.fileKind = ui->TahoFileKind->currentIndex() + 1;
    query.fromUnix = QDateTime(ui->TahoFrom->date(), QTime(0, 0), Qt::UTC).toSecsSinceEpoch();
    query.toUnix = QDateTime(ui->TahoTo->date(), QTime(23, 59, 59), Qt::UTC).toSecsSinceEpoch();
    send(ZRK_MSG_TACHO_FILE_REQUEST, addr(query));
}

void ZRK_Widget_Tmi_View::slot_pressed_TahoFileRead()
{
    if (!m_connected)
        return;
    QString name = ui->TahoFileName->text();
    send(ZRK_MSG_TACHO_FILE_READ_REQUEST, addr(name));
}

void ZRK_Widget_Tmi_View::slot_pressed_FlsData()
{
    if (!m_connected)
        return;
    szQueryFlsData query { ui->FlsDataSensor->text(), ui->FlsDataQuery->text() };
    send(ZRK_MSG_REQUEST_FLS_DATA, addr(query));
}

void ZRK_Widget_Tmi_View::slot_pressed_FlsDataFile()
{
    if (!m_connected)
        return;
    QString name = ui->FlsDataFileName->text();
    send(ZRK_MSG_REQUEST_FLS_DATA_FILE, addr(name));
}

// ---- replies the view logs ------------------------------------------------------------------

void ZRK_Widget_Tmi_View::logLine(const QString& line)
{
    ui->LogText->appendPlainText(QDateTime::currentDateTime().toString(QStringLiteral("HH:mm:ss ")) + line);
}

void ZRK_Widget_Tmi_View::logBytes(const QString& what, const QByteArray& data)
{
    // Terminal texts are windows-1251; control bytes show as dots so a line stays one line.
    QTextCodec* codec = QTextCodec::codecForName("windows-1251");
    QString text = codec ? codec->toUnicode(data) : QString::fromLatin1(data);
    for (QChar& c : text)
        if (c.unicode() < 0x20)
            c = QLatin1Char('.');
    logLine(QStringLiteral("%1 (%2): %3\n    %4")
                .arg(what)
                .arg(data.size())
                .arg(text, QString::fromLatin1(data.toHex(' '))));
}

QString ZRK_Widget_Tmi_View::logText() const
{
    return ui->LogText->toPlainText();
}

void ZRK_Widget_Tmi_View::setReceive_NMEA(QByteArray* data)
{
    if (data)
        logBytes(QStringLiteral("NMEA"), *data);
}

void ZRK_Widget_Tmi_View::setTmiCmndParamValue(QByteArray* data)
{
    //% "Значение параметра"
    if (data)
        logBytes(qtTrId("tmiw_099"), *data);
}

void ZRK_Widget_Tmi_View::setTmiCmnd(QByteArray* data)
{
    //% "Ответ на команду"
    if (data)
        logBytes(qtTrId("tmiw_100"), *data);
}

void ZRK_Widget_Tmi_View::setReceiveFls_UserCommand(QByteArray* data)
{
    //% "Ответ датчика топлива"
    if (data)
        logBytes(qtTrId("tmiw_101"), *data);
}

void ZRK_Widget_Tmi_View::getParamFLSFirmwareSensor(QByteArray* data)
{
    //% "Параметры прошивки датчика"
    if (data)
        logBytes(qtTrId("tmiw_102"), *data);
}

void ZRK_Widget_Tmi_View::setToucheMemory(quint64 code)
{
    //% "Ключ ТМ: %1"
    logLine(qtTrId("tmiw_103").arg(code, 16, 16, QLatin1Char('0')).toUpper());
}

void ZRK_Widget_Tmi_View::setCurrentAnalogValue(szADValue_UN* value)
{
    // The record's layout belongs to the fuel-sensor form; the view only notes its arrival.
    //% "Получены значения АЦП универсальных входов"
    if (value)
        logLine(qtTrId("tmiw_104"));
}

void ZRK_Widget_Tmi_View::receiveCurrentDispValue(quint32 value)
{
    //% "Текущее значение дисплея: %1"
    logLine(qtTrId("tmiw_105").arg(value));
}

void ZRK_Widget_Tmi_View::setRFID(quint64 code, quint8 value)
{
    //% "RFID-карта: %1 (%2)"
    logLine(qtTrId("tmiw_106")
                .arg(QStringLiteral("%1").arg(code, 16, 16, QLatin1Char('0')).toUpper())
                .arg(value));
}

void ZRK_Widget_Tmi_View::setReceiveTahoQuest(QByteArray* data)
{
    //% "Ответ тахографа"
    if (data)
        logBytes(qtTrId("tmiw_107"), *data);
}

void ZRK_Widget_Tmi_View::setReceiveTahoFile_Read(bool ok)
{
    if (ok)
        //% "Файл тахографа прочитан"
        logLine(qtTrId("tmiw_108"));
    else
        //% "Файл тахографа не прочитан"
        logLine(qtTrId("tmiw_109"));
}

void ZRK_Widget_Tmi_View::setReceiveFlsDataFile_Quest(QByteArray* data)
{
    //% "Ответ на запрос файла данных датчика"
    if (data)
        logBytes(qtTrId("tmiw_110"), *data);
}

void ZRK_Widget_Tmi_View::setReceiveFlsDataFile_Read(bool ok)
{
    if (ok)
        //% "Файл данных датчика прочитан"
        logLine(qtTrId("tmiw_111"));
    else
        //% "Файл данных датчика не прочитан"
        logLine(qtTrId("tmiw_112"));
}

// ---- saving ---------------------------------------------------------------------------------

void ZRK_Widget_Tmi_View::setFileTitles(const zrk::tmi::Header& titles)
{
    m_titles = titles;
}

bool ZRK_Widget_Tmi_View::WriteTmiToFile(const QString& name, QString* error)
{
    QVector<zrk::tmi::Record> records;
    records.reserve(m_session->count());
    for (const ZRK_Tmi_Session::Entry& e : m_session->entries())
        records.append({ e.bytes, e.received, e.origin != int(Origin::Live) });
    QString fault;
    bool ok;
    const QString suffix = QFileInfo(name).suffix().toLower();
    if (suffix == QLatin1String("csv")) {
        ok = zrk::tmi::exportCsv(name, records, &fault);
    } else if (suffix == QLatin1String("kml")) {
        ok = zrk::tmi::exportKml(name, records, &fault);
    } else {
        zrk::tmi::Header header = m_titles;
        // The names and user-parameter types of the configuration open in the configuration
        // window, if any.
        zrk::DeviceTitles titles;
        QStringList types;
        ZRK_Widget_Config* config = lpGlobalDevice ? lpGlobalDevice->widgetConfig() : nullptr;
        if (config && config->openFileTitles(&titles, &types)) {
            header.inTitles = titles.inputs;
            header.outTitles = titles.outputs;
            header.tempTitles = titles.temperatures;
            header.userParamTypes = types;
        }
        header.model = lpGlobalDevice ? lpGlobalDevice->getDeviceType() : QString();
        header.vendor = lpGlobalDevice ? lpGlobalDevice->getDeviceVendor() : QString();
        header.timezoneOffset = timeOffset();
        ok = zrk::tmi::write(name, header, records, &fault);
    }
    if (!ok && error)
        *error = fault;
    return ok;
}

QVector<ZrkMapTrackPoint> ZRK_Widget_Tmi_View::sessionTrack() const
{
    QVector<ZrkMapTrackPoint> points;
    ZrkMapTrackPoint p;
    for (const ZRK_Tmi_Session::Entry& e : m_session->entries())
        if (zrkTrackPointOf(e.bytes, &p))
            points.append(p);
    return points;
}

void ZRK_Widget_Tmi_View::slot_pressed_ShowOnMap()
{
    const QVector<ZrkMapTrackPoint> points = sessionTrack();
    if (points.isEmpty()) {
        //% "Ни в одной записи сеанса нет координат."
        QMessageBox::information(this, windowTitle(), qtTrId("tmiw_118"));
        return;
    }
    ZRK_Dialog_Map_Track::showTrack(points, this);
}

void ZRK_Widget_Tmi_View::slot_pressed_SaveFile()
{
    const QString dir = lpGlobalDevice ? lpGlobalDevice->getPathTMI() : QString();
    //% "Сохранить записи телеметрии"
    const QString title = qtTrId("tmiw_114");
    //% "Телеметрия (*.tmi);;XML (*.xml);;CSV (*.csv);;KML (*.kml)"
    const QString filter = qtTrId("tmiw_115");
    const QString name = QFileDialog::getSaveFileName(this, title, dir, filter);
    if (name.isEmpty())
        return;
    QString error;
    if (!WriteTmiToFile(name, &error))
        QMessageBox::warning(this, qtTrId("tmiw_114"), error);
}
