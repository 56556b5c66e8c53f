#include "telemetry/zrk_widget_tmi_view.h"

#include "config_ui/zrk_widget_config.h"
#include "device/zrk_device_k7140.h"
#include "map/zrk_dialog_map_track.h"
#include "telemetry/orba_field_labels.h"
#include "telemetry/orba_page.h"
#include "telemetry/orba_plot.h"
#include "telemetry/tmi_commands.h"
#include "telemetry/tmi_requests.h"
#include "telemetry/tmi_session.h"
#include "telemetry/zrk_form_tmi_orba3.h"
#include "telemetry/zrk_tmi_chart.h"
#include "telemetry/zrk_tmi_command_panel.h"
#include "telemetry/zrk_tmi_record_area.h"
#include "ui_zrk_widget_tmi_view.h"

#include <QEvent>
#include <QFileDialog>
#include <QMessageBox>
#include <QShowEvent>

namespace {

template <typename T> unsigned long addr(T& v)
{
    return reinterpret_cast<unsigned long>(&v);
}

int configuratorMode()
{
    return lpGlobalDevice ? int(lpGlobalDevice->getConfiguratorMode()) : 0;
}

bool isProductionMode()
{
    const int mode = configuratorMode();
    return mode == 1 || mode == 2;
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

    m_session = new zrk::tmi::Session(500, this);
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

    m_record = new ZRK_Tmi_Record_Area(
        ui->PageArea, ui->UnknownPage, ui->UnknownText,
        [this](int msg, unsigned long w, unsigned long l) { return send(msg, w, l); }, this);
    m_commands = new ZRK_Tmi_Command_Panel(
        ui->CommandsContents, [this](int msg, unsigned long w, unsigned long l) { return send(msg, w, l); },
        [] {
            if (lpGlobalDevice)
                lpGlobalDevice->setWidgetWaitReceive(ZRK_WAIT_TMI_VIEW);
        },
        this);
    m_commands->setFileChooser([this] {
        //% "Файл прошивки датчика"
        return QFileDialog::getOpenFileName(
            this, qtTrId("tmiw_097"), lpGlobalDevice ? lpGlobalDevice->getPathFirmware() : QString());
    });

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

    ui->TahoFrom->setDate(QDate::currentDate().addDays(-7));
    ui->TahoTo->setDate(QDate::currentDate());
    translateForm();
}

ZRK_Widget_Tmi_View::~ZRK_Widget_Tmi_View() = default;

// ---- state ---------------------------------------------------------------------------------

void ZRK_Widget_Tmi_View::deviceConnect()
{
    m_connected = true;
    updateNavigation();
    m_commands->setConnected(m_connected);
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
    updateNavigation();
    m_commands->setConnected(m_connected);
}

void ZRK_Widget_Tmi_View::deviceDisconnectRCS()
{
    // The remote session is over: the terminal can no longer be reached through it.
    //% "Удалённый сеанс с терминалом завершён"
    logLine(qtTrId("tmiw_080"));
    deviceDisconnect();
}

void ZRK_Widget_Tmi_View::updateNavigation()
{
    const bool on = m_connected && ui->GetAutoTmi->checkState() == Qt::Unchecked;
    ui->GetCurrent->setEnabled(on);
    ui->Show->setEnabled(on);
    // Steps go from a shown record's number, and not past an end of the history found already.
    const qint64 shown = m_hasShownNumber ? qint64(shownNumber()) : -1;
    ui->GetNext->setEnabled(on && m_stepping.canStep(1, shown));
    ui->GetPrev->setEnabled(on && m_stepping.canStep(-1, shown));
    ui->GetAutoTmi->setEnabled(m_connected);
    if (m_connected)
        //% "Терминал подключён"
        ui->ConnectionState->setText(qtTrId("tmiw_081"));
    else
        //% "Терминал не подключён"
        ui->ConnectionState->setText(qtTrId("tmiw_082"));
}

void ZRK_Widget_Tmi_View::translateForm()
{
    ui->retranslateUi(this);
    //% "Телеметрия"
    setWindowTitle(qtTrId("wtmi_001"));
    updatePeriodLabel();
    m_record->translateForm();
    updateFreshness();
    updateNavigation();
    m_commands->setConnected(m_connected);
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
        logReply(ZRK_MSG_TMI_TEST_MODE_QUERY, data);
    const int mode = configuratorMode();
    const bool testing = mode == 1 || mode == 2 || mode == ZRK_CONFIGURATOR_MODE_SERVICE;
    return testing && m_Timer_Auto_TMI.isActive();
}

// ---- records --------------------------------------------------------------------------------

void ZRK_Widget_Tmi_View::setTmiCur(QByteArray* buf)
{
    if (!buf)
        return;
    if (buf->size() < zrk::tmi::kCurrentReplyMinBytes) {
        // Not a record, yet a reply came: the technician is told so.
        //% "Текущая запись из %1 байт пропущена: она короче 101 байта"
        logLine(qtTrId("tmiw_120").arg(buf->size()));
        return;
    }
    buf->remove(0, zrk::tmi::recordReplyPrefix(ZRK_MSG_TMI_CURRENT));
    setTmiPage(*buf, true, Origin::Live);
}

void ZRK_Widget_Tmi_View::setTmiCurNumber(QByteArray* buf)
{
    if (!buf)
        return;
    buf->remove(0, zrk::tmi::recordReplyPrefix(ZRK_MSG_TMI_BY_NUMBER));
    m_stepping.answered(setTmiPage(*buf, m_stepping.direction() == 0, Origin::ByNumber));
    updateNavigation();
}

void ZRK_Widget_Tmi_View::setTmiCurLeft(QByteArray* buf)
{
    if (!buf)
        return;
    buf->remove(0, zrk::tmi::recordReplyPrefix(ZRK_MSG_TMI_STEP_LEFT));
    setTmiPage(*buf, true, Origin::ByTime);
}

void ZRK_Widget_Tmi_View::setTmiCurRight(QByteArray* buf)
{
    if (!buf)
        return;
    buf->remove(0, zrk::tmi::recordReplyPrefix(ZRK_MSG_TMI_STEP_RIGHT));
    setTmiPage(*buf, true, Origin::ByTime);
}

void ZRK_Widget_Tmi_View::setTmiCurExt(QByteArray* buf)
{
    if (!buf)
        return;
    buf->remove(0, zrk::tmi::recordReplyPrefix(ZRK_MSG_TMI_EXTENDED));
    // The message says what the record is: it is read as extended whatever its first byte holds.
    if (orba::chooseForm(*buf, configuratorMode(), true) != orba::Form::Dropped)
        showRecord(*buf, orba::Form::Extended, Origin::Live);
}

bool ZRK_Widget_Tmi_View::setTmiPage(const QByteArray& buf, bool showUnknown, Origin origin)
{
    const auto* data = reinterpret_cast<const unsigned char*>(buf.constData());
    const orba::Form form = orba::chooseForm(data, buf.size(), configuratorMode(), showUnknown);
    if (form == orba::Form::Dropped)
        return false;
    if (form == orba::Form::Unknown) {
        m_record->showUnknown(buf);
        return false;
    }
    showRecord(buf, form, origin);
    return true;
}

void ZRK_Widget_Tmi_View::showRecord(const QByteArray& buf, orba::Form form, Origin origin)
{
    const std::shared_ptr<const OrbaPage> page
        = orba::buildPage(form, reinterpret_cast<const unsigned char*>(buf.constData()), buf.size());
    if (!page)
        return;
    const QDateTime now = QDateTime::currentDateTime();
    const bool dropped = m_session->append(buf, page, form, origin, now);
    m_chart->appendRecord(*page, now, dropped);
    m_freshness = zrk::tmi::freshnessOf(*page, now, origin);
    showDecoded(page, form);
}

void ZRK_Widget_Tmi_View::showDecoded(const std::shared_ptr<const OrbaPage>& shared, orba::Form form)
{
    m_record->show(shared, form);
    const OrbaPage& page = *shared;
    // A record without a number leaves nothing to step from.
    const zrk::tmi::RecordKeys keys = zrk::tmi::keysOf(page);
    m_hasShownNumber = keys.hasNumber;
    ui->NumPage->setText(keys.hasNumber ? QString::number(keys.number) : QString());
    updateFreshness();
    updateNavigation();
}

QWidget* ZRK_Widget_Tmi_View::currentPage() const
{
    return m_record->current();
}

QString ZRK_Widget_Tmi_View::unknownText() const
{
    return m_record->unknownText();
}

ZRK_Form_TMI_Orba3* ZRK_Widget_Tmi_View::formOrba3() const
{
    return m_record->formOrba3();
}

void ZRK_Widget_Tmi_View::showRecordAt(int row)
{
    if (row < 0 || row >= m_session->count())
        return;
    const zrk::tmi::SessionEntry& e = m_session->at(row);
    m_freshness = zrk::tmi::freshnessOf(*e.page, e.received, e.origin);
    showDecoded(e.page, e.form);
}

void ZRK_Widget_Tmi_View::updateFreshness()
{
    ui->Freshness->setText(zrk::tmi::freshnessText(m_freshness));
    const QString mark = zrk::tmi::historyMarkText(m_freshness.origin);
    ui->HistoryMark->setText(mark);
    ui->HistoryMark->setVisible(m_freshness.received.isValid() && !mark.isEmpty());
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
    // The key code comes back as 2241 to the window marked as waiting for it.
    if (lpGlobalDevice)
        lpGlobalDevice->setWidgetWaitReceive(ZRK_WAIT_TMI_VIEW);
    send(ZRK_MSG_REQUEST_KEY_CODE, zrk::tmi::kKeyTouchMemory);
}

void ZRK_Widget_Tmi_View::getTmiCur_RFID()
{
    send(ZRK_MSG_REQUEST_KEY_CODE, zrk::tmi::kKeyRfid);
}

// ---- user actions ---------------------------------------------------------------------------

int ZRK_Widget_Tmi_View::timeOffset() const
{
    return zrk::tmi::offsetSeconds(ui->TimeOffsetHours->value(), ui->TimeOffsetMinutes->value());
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
    m_stepping.current();
    getTmiCur();
}

void ZRK_Widget_Tmi_View::requestPrev()
{
    if (m_connected)
        getTmiIndex(m_stepping.step(shownNumber(), -1));
}

void ZRK_Widget_Tmi_View::requestNext()
{
    if (m_connected)
        getTmiIndex(m_stepping.step(shownNumber(), 1));
}

void ZRK_Widget_Tmi_View::requestByTime()
{
    if (!m_connected)
        return;
    getTmiTimeLeft(zrk::tmi::requestMoment(ui->TimeMoment->dateTime(), timeOffset()));
}

void ZRK_Widget_Tmi_View::setAutoRequest(int checkState)
{
    if (checkState == Qt::Unchecked || !m_connected) {
        m_Timer_Auto_TMI.stop();
        updateNavigation();
        return;
    }
    m_autoRequest.start();
    updateNavigation();
    getTmiCur();
    m_Timer_Auto_TMI.start(autoPeriod() * 1000);
}

void ZRK_Widget_Tmi_View::autoRequestTick()
{
    if (ui->GetAutoTmi->checkState() == Qt::Unchecked || !m_connected) {
        m_Timer_Auto_TMI.stop();
        return;
    }
    send(m_autoRequest.tick(isProductionMode()));
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
    m_record->setHideAbsent(hide);
}

// ---- replies the view logs ------------------------------------------------------------------

void ZRK_Widget_Tmi_View::logLine(const QString& line)
{
    ui->LogText->appendPlainText(QDateTime::currentDateTime().toString(QStringLiteral("HH:mm:ss ")) + line);
}

void ZRK_Widget_Tmi_View::logReply(int msg, const QByteArray* data)
{
    if (data)
        logLine(zrk::tmi::replyLogText(msg, *data));
}

QString ZRK_Widget_Tmi_View::logText() const
{
    return ui->LogText->toPlainText();
}

void ZRK_Widget_Tmi_View::setReceive_NMEA(QByteArray* data)
{
    logReply(ZRK_MSG_NMEA_DATA, data);
}

void ZRK_Widget_Tmi_View::setTmiCmndParamValue(QByteArray* data)
{
    logReply(ZRK_MSG_COMMAND_PARAM_VALUE, data);
}

void ZRK_Widget_Tmi_View::setTmiCmnd(QByteArray* data)
{
    logReply(ZRK_MSG_COMMAND_REPLY, data);
}

void ZRK_Widget_Tmi_View::setReceiveFls_UserCommand(QByteArray* data)
{
    logReply(ZRK_MSG_FLS_USER_COMMAND_REPLY, data);
}

void ZRK_Widget_Tmi_View::getParamFLSFirmwareSensor(QByteArray* data)
{
    logReply(ZRK_MSG_FLS_FIRMWARE_PARAMS, data);
}

void ZRK_Widget_Tmi_View::setReceiveTahoQuest(QByteArray* data)
{
    logReply(ZRK_MSG_TACHO_QUERY_REPLY, data);
}

void ZRK_Widget_Tmi_View::setReceiveFlsDataFile_Quest(QByteArray* data)
{
    logReply(ZRK_MSG_FLS_DATA_FILE_REPLY, data);
}

void ZRK_Widget_Tmi_View::setReceiveTahoFile_Read(bool ok)
{
    logLine(zrk::tmi::resultLogText(ZRK_MSG_TACHO_FILE_READ, ok));
}

void ZRK_Widget_Tmi_View::setReceiveFlsDataFile_Read(bool ok)
{
    logLine(zrk::tmi::resultLogText(ZRK_MSG_FLS_DATA_FILE_READ, ok));
}

void ZRK_Widget_Tmi_View::setToucheMemory(quint64 code)
{
    logLine(zrk::tmi::valueLogText(ZRK_MSG_TOUCH_MEMORY_CODE, code));
}

void ZRK_Widget_Tmi_View::setCurrentAnalogValue(szADValue_UN* value)
{
    // The record's layout belongs to the fuel-sensor form; the view only notes its arrival.
    if (value)
        logLine(zrk::tmi::valueLogText(ZRK_MSG_AD_VALUES_UN, 0));
}

void ZRK_Widget_Tmi_View::receiveCurrentDispValue(quint32 value)
{
    logLine(zrk::tmi::valueLogText(ZRK_MSG_CURRENT_DISPLAY_VALUE, value));
}

void ZRK_Widget_Tmi_View::setRFID(quint64 code, quint8 value)
{
    logLine(zrk::tmi::valueLogText(ZRK_MSG_RFID_CARD, code, value));
}

// ---- saving ---------------------------------------------------------------------------------

zrk::tmi::Header ZRK_Widget_Tmi_View::fileHeader() const
{
    zrk::tmi::Header header = m_titles;
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
    return header;
}

bool ZRK_Widget_Tmi_View::WriteTmiToFile(const QString& name, QString* error)
{
    return saveSessionAs(name, QString(), error);
}

bool ZRK_Widget_Tmi_View::saveSessionAs(const QString& name, const QString& selectedFilter, QString* error)
{
    return zrk::tmi::saveSession(zrk::tmi::saveTarget(name, selectedFilter), *m_session, fileHeader(), error);
}

void ZRK_Widget_Tmi_View::slot_pressed_ShowOnMap()
{
    const QVector<ZrkMapTrackPoint> points = m_session->track();
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
    const QString filters = qtTrId("tmiw_115");
    QString selected;
    const QString name = QFileDialog::getSaveFileName(this, title, dir, filters, &selected);
    if (name.isEmpty())
        return;
    QString error;
    if (!saveSessionAs(name, selected, &error))
        QMessageBox::warning(this, title, error);
}
