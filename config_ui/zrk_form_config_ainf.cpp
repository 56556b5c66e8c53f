#include "config_ui/zrk_form_config_ainf.h"

#include "config_model/app_settings.h"
#include "config_model/geo_file.h"
#include "config_model/kml_reader.h"
#include "config_ui/zrk_ainf_zone_model.h"
#include "config_ui/zrk_form_config_ainf_geoparam.h"
#include "config_ui/zrk_form_config_ainf_kml.h"
#include "config_ui/zrk_form_config_ainf_map.h"
#include "config_ui/zrk_form_config_ainf_route.h"
#include "config_ui/zrk_form_config_ainf_speed.h"
#include "device/zrk_device_k7140.h"
#include "map/zrk_widget_map.h"
#include "ui_zrk_form_config_ainf.h"

#include <QDateTime>
#include <QFile>
#include <QFileDialog>
#include <QHeaderView>
#include <QMessageBox>
#include <QSet>
#include <QTimer>

#include <algorithm>

ZRK_Form_Config_Ainf::ZRK_Form_Config_Ainf(QWidget* parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui_ZRK_Designer_Form_Config_Ainf>())
    , m_caps(zrkAinfCaps())
{
    ui->setupUi(this);
    setObjectName(QStringLiteral("ZRK_Form_Config_Ainf"));
    applyCaps();
    translateForm();
    initForm();
}

ZRK_Form_Config_Ainf::~ZRK_Form_Config_Ainf()
{
    // The zone list's model reads m_data, which goes before the base class hides the table (a
    // shown page asks its model for rows as it closes).
    ui->tableView_ListGeo->setModel(nullptr);
}

void ZRK_Form_Config_Ainf::applyCaps()
{
    ui->splitter_Ainf->setStretchFactor(0, 2);
    ui->splitter_Ainf->setStretchFactor(1, 3);
}

void ZRK_Form_Config_Ainf::translateForm()
{
    ui->retranslateUi(this);
    ui->form_GeoParam->translateForm();
    ui->form_Route->translateForm();
    ui->form_Speed->translateForm();
    ui->form_Map->translateForm();
    ui->tableWidget_Sounds->setHorizontalHeaderLabels({
        //% "Номер"
        qtTrId("gain_270"),
        //% "Файл"
        qtTrId("gain_271"),
    });
    //% "Геоинформация"
    m_tabTitle = qtTrId("gain_272");
    updateState();
}

void ZRK_Form_Config_Ainf::initForm()
{
    m_sdWatchdog = new QTimer(this);
    m_sdWatchdog->setSingleShot(true);
    m_sdWatchdog->setInterval(15000);
    connect(m_sdWatchdog, &QTimer::timeout, this, [this] {
        //% "Терминал не ответил; запись на SD-карту прервана."
        finishSd(false, qtTrId("gain_292"));
    });
    m_model = new ZRK_Ainf_Zone_Model(&m_data.zones, this);
    ui->tableView_ListGeo->setModel(m_model);
    ui->tableView_ListGeo->horizontalHeader()->setStretchLastSection(true);
    ui->tableView_ListGeo->verticalHeader()->setDefaultSectionSize(20);
    ui->tableView_ListGeo->verticalHeader()->hide();
    ui->tableWidget_Sounds->setColumnCount(2);
    ui->tableWidget_Sounds->horizontalHeader()->setStretchLastSection(true);
    const auto message = [this](const QString& text) { showMessage(text); };
    ui->form_GeoParam->setDefaults(&m_data.defaults);
    ui->form_Route->setData(&m_data, message);
    ui->form_Speed->setData(&m_data, message);

    connect(ui->tableView_ListGeo->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
        &ZRK_Form_Config_Ainf::zoneSelectionChanged);
    connect(ui->tableView_ListGeo, &QTableView::doubleClicked, this, [this](const QModelIndex& index) {
        if (index.row() < m_data.zones.size())
            mapForm()->map()->selectZone(m_data.zones.at(index.row()).id, true);
    });
    connect(ui->form_GeoParam, &ZRK_Form_Config_Ainf_GeoParam::zoneEdited, this,
        &ZRK_Form_Config_Ainf::zoneEdited);
    connect(ui->form_Route, &ZRK_Form_Config_Ainf_Route::routesChanged, this,
        &ZRK_Form_Config_Ainf::updateMapRoutes);
    ZRK_Widget_Map* map = mapForm()->map();
    connect(map, &ZRK_Widget_Map::mapClicked, this, [this](double lat, double lon) { addZoneAt(lat, lon); });
    connect(map, &ZRK_Widget_Map::zoneClicked, this, &ZRK_Form_Config_Ainf::selectZone);
    connect(map, &ZRK_Widget_Map::zoneMoved, this, &ZRK_Form_Config_Ainf::moveZone);
    connect(map, &ZRK_Widget_Map::zoneResized, this, &ZRK_Form_Config_Ainf::resizeZone);
    connect(map, &ZRK_Widget_Map::zonesShown, this, [this] { mapForm()->zonesLoaded(); });

    connect(
        ui->ListGeo_BtnAdd, &QPushButton::clicked, this, &ZRK_Form_Config_Ainf::slot_pressed_ListGeo_BtnAdd);
    connect(ui->ListGeo_BtnAdd_FileKML, &QPushButton::clicked, this,
        &ZRK_Form_Config_Ainf::slot_pressed_ListGeo_BtnAdd_FileKML);
    connect(ui->ListGeo_BtnCopy, &QPushButton::clicked, this,
        &ZRK_Form_Config_Ainf::slot_pressed_ListGeo_BtnCopy);
    connect(
        ui->ListGeo_BtnDel, &QPushButton::clicked, this, &ZRK_Form_Config_Ainf::slot_pressed_ListGeo_BtnDel);
    connect(ui->BtnOpenFile, &QPushButton::clicked, this, &ZRK_Form_Config_Ainf::slot_pressed_BtnOpenFile);
    connect(ui->BtnSaveFile, &QPushButton::clicked, this, &ZRK_Form_Config_Ainf::slot_pressed_BtnSaveFile);
    connect(
        ui->BtnWriteDevice, &QPushButton::clicked, this, &ZRK_Form_Config_Ainf::slot_pressed_BtnWriteDevice);
    connect(
        ui->Sounds_BtnAdd, &QPushButton::clicked, this, &ZRK_Form_Config_Ainf::slot_pressed_Sounds_BtnAdd);
    connect(
        ui->Sounds_BtnDel, &QPushButton::clicked, this, &ZRK_Form_Config_Ainf::slot_pressed_Sounds_BtnDel);
    connect(ui->tableWidget_Sounds, &QTableWidget::itemChanged, this, [this](QTableWidgetItem* item) {
        if (m_fillingSounds || item->row() >= m_data.sounds.size())
            return;
        coreGeoSound& s = m_data.sounds[item->row()];
        if (item->column() == 0) {
            bool ok = false;
            const int id = item->text().toInt(&ok);
            if (ok && id > 0 && id <= 65535)
                s.id = id;
        } else {
            s.title = item->text().left(m_caps.maxNameLength);
        }
        refreshSounds();
    });
    refreshAll();
}

QString ZRK_Form_Config_Ainf::getTabTitle() const
{
    return m_tabTitle;
}

void ZRK_Form_Config_Ainf::setDefaultParam()
{
    m_data.defaults = coreAinfDefaults();
    ui->form_Route->refresh();
    ui->form_Speed->refresh();
}

void ZRK_Form_Config_Ainf::readFormParam(CXMLWorkData* root)
{
    Q_UNUSED(root) // the page's data travels in the geo file, not in the configuration
}

void ZRK_Form_Config_Ainf::writeFormParam(CXMLWorkData* root)
{
    Q_UNUSED(root)
}

void ZRK_Form_Config_Ainf::deviceConnect()
{
    m_connected = true;
    updateState();
}

void ZRK_Form_Config_Ainf::deviceDisconnect()
{
    m_connected = false;
    if (isWritingToDevice()) {
        //% "Терминал отключён; запись на SD-карту прервана."
        finishSd(false, qtTrId("gain_280"));
    }
    updateState();
}

void ZRK_Form_Config_Ainf::setFormEnabled(bool enabled)
{
    m_enabled = enabled;
    updateState();
}

ZRK_Form_Config_Ainf_Map* ZRK_Form_Config_Ainf::mapForm() const
{
    return ui->form_Map;
}

ZRK_Form_Config_Ainf_Route* ZRK_Form_Config_Ainf::routeForm() const
{
    return ui->form_Route;
}

void ZRK_Form_Config_Ainf::showMessage(const QString& text)
{
    if (m_sink)
        m_sink(text);
    else
        QMessageBox::warning(this, m_tabTitle, text);
}

void ZRK_Form_Config_Ainf::updateState()
{
    const bool rowSelected = ui->tableView_ListGeo->selectionModel()
        && ui->tableView_ListGeo->selectionModel()->currentIndex().isValid();
    ui->ListGeo_BtnCopy->setEnabled(rowSelected);
    ui->ListGeo_BtnDel->setEnabled(rowSelected);
    ui->BtnWriteDevice->setEnabled(m_connected && m_enabled && !isWritingToDevice());
    //% "Зон: %1 из %2, маршрутов: %3, скоростных зон: %4"
    ui->label_ZoneCount->setText(qtTrId("gain_281")
                                     .arg(m_data.zones.size())
                                     .arg(m_caps.maxZones)
                                     .arg(m_data.routes.size())
                                     .arg(m_data.speeds.size()));
}

// ---- zones

QString ZRK_Form_Config_Ainf::createNameMapCircle(const coreGeoZone& zone) const
{
    return zone.name.isEmpty() ? QString::number(zone.id)
                               : QStringLiteral("%1: %2").arg(zone.id).arg(zone.name);
}

ZrkMapZone ZRK_Form_Config_Ainf::mapZone(const coreGeoZone& zone) const
{
    const bool checksCourse = zone.gob & (1 << GeoOpt_CheckAngle);
    return { zone.id, createNameMapCircle(zone), zone.lat, zone.lon, zone.size,
        checksCourse ? zone.angle : -1 };
}

void ZRK_Form_Config_Ainf::createGeoMarker(const coreGeoZone& zone)
{
    mapForm()->map()->updateZone(mapZone(zone));
}

int ZRK_Form_Config_Ainf::appendZone(coreGeoZone zone)
{
    if (m_data.zones.size() >= m_caps.maxZones) {
        //% "Терминал хранит не более %1 геозон; новая зона не добавлена."
        showMessage(qtTrId("gain_282").arg(m_caps.maxZones));
        return 0;
    }
    zone.id = getFirstFreeGeoZoneId(m_data.zones, m_caps.maxZoneId);
    if (zone.id <= 0) {
        //% "Все номера зон от 1 до %1 заняты; новая зона не добавлена."
        showMessage(qtTrId("gain_283").arg(m_caps.maxZoneId));
        return 0;
    }
    m_model->append({ zone });
    createGeoMarker(zone);
    updateState();
    return zone.id;
}

int ZRK_Form_Config_Ainf::addGeoZone(
    const QString& name, int size, int angle, int gob, const QString& lat, const QString& lon)
{
    coreGeoZone zone;
    if (!parseGeoCoordinate(lat, &zone.lat) || !parseGeoCoordinate(lon, &zone.lon) || qAbs(zone.lat) > 90.0
        || qAbs(zone.lon) > 180.0) {
        //% "Координаты зоны заданы неверно: широта от -90 до 90, долгота от -180 до 180 градусов."
        showMessage(qtTrId("gain_284"));
        return 0;
    }
    zone.name = name.left(m_caps.maxNameLength);
    zone.size = qBound(m_caps.minZoneSize, size, m_caps.maxZoneSize);
    zone.angle = qBound(0, angle, 359);
    zone.gob = gob & 0xFF;
    zone.outputs = QString::fromLatin1(kGeoZoneOutputsDefault);
    return appendZone(zone);
}

int ZRK_Form_Config_Ainf::addZoneAt(double lat, double lon)
{
    const int id = addGeoZone(QString(), 100, 0, m_data.defaults.getDefGeoOptions(), formatGeoCoordinate(lat),
        formatGeoCoordinate(lon));
    if (id > 0) {
        const int row = rowOfZone(id);
        //% "Зона %1"
        m_data.zones[row].name = qtTrId("gain_285").arg(id);
        m_model->zoneChanged(row);
        createGeoMarker(m_data.zones.at(row));
        selectZone(id);
    }
    return id;
}

int ZRK_Form_Config_Ainf::addRouteThroughZones(const QString& number, const QVariantList& zoneIds)
{
    ZRK_Form_Config_Ainf_Route* routes = routeForm();
    const int id = routes->addRoute();
    if (id <= 0)
        return 0;
    const int row = m_data.routes.size() - 1;
    if (!number.isEmpty())
        m_data.routes[row].number = number;
    for (const QVariant& zone : zoneIds) {
        if (rowOfZone(zone.toInt()) < 0 || !routes->addStop(row, zone.toInt()))
            break;
    }
    routes->refresh();
    updateMapRoutes();
    return id;
}

int ZRK_Form_Config_Ainf::duplicateZone(int row)
{
    if (row < 0 || row >= m_data.zones.size())
        return 0;
    const int id = appendZone(m_data.zones.at(row));
    if (id > 0)
        selectZone(id);
    return id;
}

int ZRK_Form_Config_Ainf::deleteZones(QList<int> rows)
{
    QSet<int> stopZones;
    for (const coreGeoRoute& r : qAsConst(m_data.routes)) {
        for (const coreGeoStop& s : r.stops)
            stopZones.insert(s.zoneid);
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    QSet<int> gone;
    QStringList kept;
    for (int row : qAsConst(rows)) {
        if (row < 0 || row >= m_data.zones.size())
            continue;
        const int id = m_data.zones.at(row).id;
        if (stopZones.contains(id))
            kept << QString::number(id);
        else
            gone.insert(row);
    }
    if (!kept.isEmpty()) {
        //% "Зоны %1 — остановки маршрутов и не удалены; сначала удалите эти остановки."
        showMessage(qtTrId("gain_286").arg(kept.join(QStringLiteral(", "))));
    }
    if (gone.isEmpty())
        return 0;
    mapForm()->map()->selectZone(0);
    if (gone.size() == 1) {
        const int row = *gone.begin();
        mapForm()->map()->removeZone(m_data.zones.at(row).id);
        m_model->removeAt(row);
    } else {
        QVector<coreGeoZone> left;
        left.reserve(m_data.zones.size() - gone.size());
        for (int row = 0; row < m_data.zones.size(); ++row) {
            if (!gone.contains(row))
                left.append(m_data.zones.at(row));
        }
        m_data.zones = left;
        m_model->reload();
        QVector<ZrkMapZone> zones;
        for (const coreGeoZone& z : qAsConst(m_data.zones))
            zones.append(mapZone(z));
        mapForm()->map()->setZones(zones);
    }
    ui->form_GeoParam->clearZone();
    updateState();
    return gone.size();
}

int ZRK_Form_Config_Ainf::rowOfZone(int id) const
{
    for (int row = 0; row < m_data.zones.size(); ++row) {
        if (m_data.zones.at(row).id == id)
            return row;
    }
    return -1;
}

void ZRK_Form_Config_Ainf::selectZone(int id)
{
    const int row = rowOfZone(id);
    if (row < 0)
        return;
    const QModelIndex index = m_model->index(row, 0);
    ui->tableView_ListGeo->setCurrentIndex(index);
    ui->tableView_ListGeo->scrollTo(index);
}

int ZRK_Form_Config_Ainf::selectedZoneId() const
{
    const int row = ui->tableView_ListGeo->currentIndex().row();
    return row >= 0 && row < m_data.zones.size() ? m_data.zones.at(row).id : 0;
}

void ZRK_Form_Config_Ainf::zoneSelectionChanged()
{
    const int id = selectedZoneId();
    const int row = rowOfZone(id);
    if (row >= 0)
        ui->form_GeoParam->setZone(m_data.zones.at(row));
    else
        ui->form_GeoParam->clearZone();
    ui->form_Route->setCurrentZoneId(id);
    mapForm()->map()->selectZone(id);
    updateState();
}

// Typing in the zone's fields moves and resizes its circle as the user types.
void ZRK_Form_Config_Ainf::zoneEdited()
{
    const int row = rowOfZone(ui->form_GeoParam->zoneId());
    if (row < 0)
        return;
    coreGeoZone zone = m_data.zones.at(row);
    QString error;
    if (!ui->form_GeoParam->readZone(&zone, &error))
        return; // half-typed coordinates: the zone keeps its last good position
    m_data.zones[row] = zone;
    m_model->zoneChanged(row);
    createGeoMarker(zone);
}

void ZRK_Form_Config_Ainf::moveZone(int id, double lat, double lon)
{
    const int row = rowOfZone(id);
    if (row < 0 || qAbs(lat) > 90.0 || qAbs(lon) > 180.0)
        return;
    m_data.zones[row].lat = lat;
    m_data.zones[row].lon = lon;
    m_model->zoneChanged(row);
    if (ui->form_GeoParam->zoneId() == id)
        ui->form_GeoParam->setZone(m_data.zones.at(row));
    updateMapRoutes();
}

void ZRK_Form_Config_Ainf::resizeZone(int id, int radius)
{
    const int row = rowOfZone(id);
    if (row < 0)
        return;
    const int size = qBound(m_caps.minZoneSize, radius, m_caps.maxZoneSize);
    m_data.zones[row].size = size;
    m_model->zoneChanged(row);
    if (ui->form_GeoParam->zoneId() == id)
        ui->form_GeoParam->setZone(m_data.zones.at(row));
    if (size != radius)
        createGeoMarker(m_data.zones.at(row)); // the circle snaps back into the allowed range
}

void ZRK_Form_Config_Ainf::updateMapRoutes()
{
    QVector<ZrkMapRoute> routes;
    for (const coreGeoRoute& r : qAsConst(m_data.routes)) {
        ZrkMapRoute line { r.id, r.number, {} };
        for (const coreGeoStop& s : r.stops)
            line.zoneIds.append(s.zoneid);
        routes.append(line);
    }
    mapForm()->map()->setRoutes(routes);
    updateState();
}

void ZRK_Form_Config_Ainf::refreshSounds()
{
    m_fillingSounds = true;
    ui->tableWidget_Sounds->setRowCount(m_data.sounds.size());
    for (int row = 0; row < m_data.sounds.size(); ++row) {
        ui->tableWidget_Sounds->setItem(
            row, 0, new QTableWidgetItem(QString::number(m_data.sounds.at(row).id)));
        ui->tableWidget_Sounds->setItem(row, 1, new QTableWidgetItem(m_data.sounds.at(row).title));
    }
    m_fillingSounds = false;
}

void ZRK_Form_Config_Ainf::refreshAll()
{
    m_model->reload();
    QVector<ZrkMapZone> zones;
    zones.reserve(m_data.zones.size());
    for (const coreGeoZone& z : qAsConst(m_data.zones))
        zones.append(mapZone(z));
    mapForm()->map()->setZones(zones);
    updateMapRoutes();
    ui->form_GeoParam->clearZone();
    ui->form_Route->refresh();
    ui->form_Speed->refresh();
    refreshSounds();
    updateState();
}

void ZRK_Form_Config_Ainf::setData(const coreAinfData& data)
{
    m_data = data;
    refreshAll();
}

// ---- files

bool ZRK_Form_Config_Ainf::readFileParamGeo(const QString& path, bool centreMap)
{
    coreAinfData read = m_data;
    QString error;
    if (!::readFileParamGeo(path, &read, &error)) {
        showMessage(error);
        return false;
    }
    m_data = read;
    // The sub-forms take the option sets in their text form, as the older files carry them.
    ui->form_Route->setDefRouteOptionsStr(read.defaults.getDefRouteOptionsStr());
    ui->form_Speed->setDefSpeedsOptionsStr(read.defaults.getDefSpeedsOptionsStr());
    ui->form_GeoParam->setDefGeoOptionsStr(read.defaults.getDefGeoOptionsStr());
    refreshAll();
    mapForm()->setMapCenterEnable(centreMap);
    return true;
}

bool ZRK_Form_Config_Ainf::writeFileParamGeo(const QString& path, bool full)
{
    // The checks opening runs: a file the page saves always opens again.
    const QString problem = checkAinf(m_data, m_caps);
    if (!problem.isEmpty()) {
        showMessage(problem);
        return false;
    }
    QString error;
    if (!::writeFileParamGeo(path, m_data, full, &error)) {
        showMessage(error);
        return false;
    }
    return true;
}

QString ZRK_Form_Config_Ainf::proposedFileName(const QDateTime& now)
{
    return appDataDirectory() + QStringLiteral("/Data/AINF(")
        + now.toString(QStringLiteral("dd-MM-yy hh_mm_ss")) + QStringLiteral(").xml");
}

int ZRK_Form_Config_Ainf::loadFileKML(const QString& file, int size, int angle, int gob)
{
    const KmlImportResult result = importKml(file, size, angle, gob, m_data.zones, m_caps);
    if (!result.ok()) {
        showMessage(result.error);
        return 0;
    }
    m_model->append(result.zones);
    QVector<ZrkMapZone> zones;
    zones.reserve(m_data.zones.size());
    for (const coreGeoZone& z : qAsConst(m_data.zones))
        zones.append(mapZone(z));
    mapForm()->setMapCenterEnable(true);
    mapForm()->map()->setZones(zones);
    updateMapRoutes();
    // What was left out, and why, so that the user can mend the file and import the rest.
    const auto some = [](QStringList items) {
        if (items.size() > 10) {
            items = items.mid(0, 10);
            items << QStringLiteral("…");
        }
        return items;
    };
    QStringList report;
    if (result.nonPoints > 0) {
        //% "Меток без точки (линии, полигоны): %1, они пропущены: %2"
        report << qtTrId("gain_298")
                      .arg(result.nonPoints)
                      .arg(some(result.nonPointNames).join(QStringLiteral(", ")));
    }
    if (!result.badPlacemarks.isEmpty()) {
        //% "Меток с неверными координатами: %1, зоны для них не добавлены:"
        report << qtTrId("gain_299").arg(result.badPlacemarks.size())
               << some(result.badPlacemarks).join(QLatin1Char('\n'));
    }
    if (!result.damage.isEmpty())
        report << result.damage;
    if (!report.isEmpty()) {
        //% "Добавлено зон: %1."
        report.prepend(qtTrId("gain_297").arg(result.zones.size()));
        showMessage(report.join(QLatin1Char('\n')));
    }
    return result.zones.size();
}

void ZRK_Form_Config_Ainf::slot_loadFileKML(const QString& file, int size, int angle, int gob)
{
    loadFileKML(file, size, angle, gob);
}

// ---- the SD card

QStringList ZRK_Form_Config_Ainf::cardFileNames()
{
    // The lists first, the configuration last: the terminal takes a new GeoZones.cfg as the sign
    // that the set is complete.
    return { QStringLiteral("GeoZones.xml"), QString::fromLatin1(kGeoCardConfigName) };
}

bool ZRK_Form_Config_Ainf::saveFileInDevice()
{
    if (!m_connected || isWritingToDevice())
        return false;
    const QString problem = checkAinf(m_data, m_caps);
    if (!problem.isEmpty()) {
        showMessage(problem);
        return false;
    }
    QString error;
    const QString cfg = createFileCFG(m_data.defaults, &error);
    QFile cfgFile(cfg);
    if (cfg.isEmpty() || !cfgFile.open(QIODevice::ReadOnly)) {
        showMessage(error);
        return false;
    }
    const QStringList names = cardFileNames();
    m_sdFiles = { { names.at(0), renderFileParamGeo(m_data, true) }, { names.at(1), cfgFile.readAll() } };
    cfgFile.close();
    QFile::remove(cfg);
    m_sdIndex = 0;
    ++m_sdTransfer;
    updateState();
    saveNextFileSD();
    return true;
}

void ZRK_Form_Config_Ainf::saveNextFileSD()
{
    if (!isWritingToDevice())
        return;
    if (m_sdIndex >= m_sdFiles.size()) {
        finishSd(true, QString());
        return;
    }
    m_sdOffset = -1;
    m_sdClosing = false;
    if (lpGlobalDevice) {
        //% "Запись на SD-карту: %1"
        lpGlobalDevice->formWait_Set_Text(qtTrId("gain_289").arg(m_sdFiles.at(m_sdIndex).first));
        lpGlobalDevice->formWait_Set_Progress_MinMax(0, m_sdFiles.size());
        lpGlobalDevice->formWait_Set_Progress_Value(m_sdIndex);
        lpGlobalDevice->formWait_Show();
    }
    sendSdStepOrFail();
}

QString ZRK_Form_Config_Ainf::sdFailureText(qint32 result, const QString& file)
{
    if (result == ZRK_SD_CARD_FULL)
        //% "На SD-карте терминала нет места для файла %1."
        return qtTrId("gain_290").arg(file);
    if (result == ZRK_SD_NO_CARD)
        //% "В терминале нет SD-карты; файл %1 не записан."
        return qtTrId("gain_291").arg(file);
    //% "Не удалось передать файл %1 на SD-карту терминала."
    return qtTrId("gain_288").arg(file);
}

// The host may answer inside the request's call and may end the transfer there (an error reply,
// a disconnect); whatever it did, the request's own result is looked at only while this same
// transfer is still on its way.
void ZRK_Form_Config_Ainf::sendSdStepOrFail()
{
    if (!isWritingToDevice() || m_sdIndex >= m_sdFiles.size())
        return;
    const quint64 transfer = m_sdTransfer;
    const QString file = m_sdFiles.at(m_sdIndex).first;
    const qint32 result = sendSdStep();
    if (result != ZRK_SD_OK && transfer == m_sdTransfer && isWritingToDevice())
        finishSd(false, sdFailureText(result, file));
}

qint32 ZRK_Form_Config_Ainf::sendSdStep()
{
    if (!lpGlobalDevice)
        return ZRK_SD_NO_CARD;
    const auto& file = m_sdFiles.at(m_sdIndex);
    szSDFile request;
    // A fresh copy: the host may keep the name after the plug-in (and its string literals) is gone.
    request.fileName = QString(file.first.constData(), file.first.size());
    if (m_sdOffset < 0) {
        request.operation = ZRK_SD_OPEN;
        request.size = 1; // create or truncate for writing
    } else if (m_sdOffset < file.second.size()) {
        request.operation = ZRK_SD_WRITE;
        request.offset = quint32(m_sdOffset);
        request.data = file.second.mid(m_sdOffset, ZRK_SD_CHUNK_MAX);
        request.size = quint32(request.data.size());
    } else {
        request.operation = ZRK_SD_CLOSE;
        m_sdClosing = true;
    }
    m_sdAwaiting = request.operation;
    m_sdAwaitingOffset = request.offset;
    m_sdWatchdog->start();
    lpGlobalDevice->SendMessage(
        lpGlobalDevice, ZRK_MSG_SD_FILE_OPERATION, reinterpret_cast<unsigned long>(&request), 0);
    return request.result;
}

void ZRK_Form_Config_Ainf::receive_SD_File(QByteArray* data)
{
    if (!data || !isWritingToDevice() || m_sdAwaiting == 0 || m_sdIndex >= m_sdFiles.size())
        return;
    szSDFileReplyHeader header;
    QString name;
    // Only the answer to the request on its way counts: a repeated or stray reply would otherwise
    // move the transfer on by a step it never made.
    if (!zrkParseSDFileReply(*data, &header, &name, nullptr) || name != m_sdFiles.at(m_sdIndex).first
        || header.operation != m_sdAwaiting || header.offset != m_sdAwaitingOffset)
        return;
    m_sdAwaiting = 0;
    m_sdWatchdog->stop();
    if (header.result != ZRK_SD_OK) {
        finishSd(false, sdFailureText(header.result, m_sdFiles.at(m_sdIndex).first));
        return;
    }
    // The next request goes out from the event loop: replies may arrive inside the request's call.
    if (m_sdClosing)
        ++m_sdIndex;
    else
        m_sdOffset = m_sdOffset < 0 ? 0 : m_sdOffset + ZRK_SD_CHUNK_MAX;
    const quint64 transfer = m_sdTransfer;
    const bool nextFile = m_sdClosing;
    QMetaObject::invokeMethod(
        this,
        [this, transfer, nextFile] {
            if (transfer != m_sdTransfer)
                return; // that transfer has ended (and another may have started) meanwhile
            if (nextFile)
                saveNextFileSD();
            else
                sendSdStepOrFail();
        },
        Qt::QueuedConnection);
}

void ZRK_Form_Config_Ainf::finishSd(bool ok, const QString& message)
{
    m_sdWatchdog->stop();
    m_sdIndex = -1;
    m_sdAwaiting = 0;
    ++m_sdTransfer;
    m_sdFiles.clear();
    if (lpGlobalDevice)
        lpGlobalDevice->formWait_Close();
    updateState();
    if (!message.isEmpty())
        showMessage(message);
    emit sdWriteFinished(ok);
}

// ---- buttons

void ZRK_Form_Config_Ainf::slot_pressed_ListGeo_BtnAdd()
{
    double lat = 0, lon = 0;
    if (!ui->form_GeoParam->typedPosition(&lat, &lon)) {
        //% "Введите широту (от -90 до 90) и долготу (от -180 до 180) новой зоны или сделайте двойной щелчок "
        //% "по карте."
        showMessage(qtTrId("gain_293"));
        return;
    }
    addZoneAt(lat, lon);
}

void ZRK_Form_Config_Ainf::slot_pressed_ListGeo_BtnAdd_FileKML()
{
    ZRK_Form_Config_Ainf_KML dialog(this);
    dialog.setGob(m_data.defaults.getDefGeoOptions());
    if (dialog.exec() == QDialog::Accepted)
        slot_loadFileKML(dialog.fileName(), dialog.size(), dialog.angle(), dialog.gob());
}

void ZRK_Form_Config_Ainf::slot_pressed_ListGeo_BtnCopy()
{
    duplicateZone(ui->tableView_ListGeo->currentIndex().row());
}

void ZRK_Form_Config_Ainf::slot_pressed_ListGeo_BtnDel()
{
    QList<int> rows;
    for (const QModelIndex& index : ui->tableView_ListGeo->selectionModel()->selectedRows())
        rows << index.row();
    if (rows.isEmpty() && ui->tableView_ListGeo->currentIndex().isValid())
        rows << ui->tableView_ListGeo->currentIndex().row();
    deleteZones(rows);
}

void ZRK_Form_Config_Ainf::slot_pressed_BtnOpenFile()
{
    //% "Открыть файл геоинформации"
    const QString path = QFileDialog::getOpenFileName(
        this, qtTrId("gain_294"), appDataDirectory() + QStringLiteral("/Data"), QStringLiteral("*.xml"));
    if (!path.isEmpty())
        readFileParamGeo(path, true);
}

void ZRK_Form_Config_Ainf::slot_pressed_BtnSaveFile()
{
    //% "Сохранить файл геоинформации"
    const QString path = QFileDialog::getSaveFileName(
        this, qtTrId("gain_295"), proposedFileName(QDateTime::currentDateTime()), QStringLiteral("*.xml"));
    if (!path.isEmpty())
        writeFileParamGeo(path, true);
}

void ZRK_Form_Config_Ainf::slot_pressed_BtnWriteDevice()
{
    saveFileInDevice();
}

void ZRK_Form_Config_Ainf::slot_pressed_Sounds_BtnAdd()
{
    if (m_data.sounds.size() >= m_caps.maxSounds) {
        //% "Терминал хранит не более %1 звуковых файлов."
        showMessage(qtTrId("gain_296").arg(m_caps.maxSounds));
        return;
    }
    coreGeoSound sound;
    sound.id = 1;
    for (const coreGeoSound& s : qAsConst(m_data.sounds))
        sound.id = qMax(sound.id, s.id + 1);
    sound.title = QStringLiteral("%1.mp3").arg(sound.id);
    m_data.sounds.append(sound);
    refreshSounds();
}

void ZRK_Form_Config_Ainf::slot_pressed_Sounds_BtnDel()
{
    const int row = ui->tableWidget_Sounds->currentRow();
    if (row < 0 || row >= m_data.sounds.size())
        return;
    m_data.sounds.remove(row);
    refreshSounds();
}
