#include "config_ui/zrk_form_config_ainf_route.h"

#include "config_model/geo_fields.h"
#include "ui_zrk_form_config_ainf_route.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QStyledItemDelegate>

#include <algorithm>

namespace {

enum RouteColumn
{
    RC_Id,
    RC_Number,
    RC_Char,
    RC_Begin,
    RC_End,
    RC_SetSnd,
    RC_Stops,
    RC_Count
};
enum StopColumn
{
    SC_Type,
    SC_Zone,
    SC_Number,
    SC_Title,
    SC_Sounds,
    SC_Count
};

QTableWidgetItem* readOnly(const QString& text)
{
    auto* item = new QTableWidgetItem(text);
    item->setFlags(item->flags() & ~Qt::ItemIsEditable);
    return item;
}

// An integer cell: a value outside the range the geo file allows for the key keeps the old one.
template <typename R, std::size_t N>
void takeInt(QTableWidgetItem* item, R& record, const GeoKey<R> (&keys)[N], const char* key)
{
    const GeoKey<R>* k = findGeoKey(keys, key);
    bool ok = false;
    const int v = item->text().trimmed().toInt(&ok);
    if (k && ok && v >= k->min && v <= k->max)
        record.*k->integer = v;
}

bool hasZone(const QVector<coreGeoZone>& zones, int id)
{
    return std::any_of(zones.begin(), zones.end(), [id](const coreGeoZone& z) { return z.id == id; });
}

// A stop's zone is picked from the zones in the list, never typed: a stop always names a zone that
// exists, so what the page saves opens again.
class ZRK_Stop_Zone_Delegate : public QStyledItemDelegate
{
public:
    ZRK_Stop_Zone_Delegate(std::function<const QVector<coreGeoZone>&()> zones, QObject* parent)
        : QStyledItemDelegate(parent)
        , m_zones(std::move(zones))
    {
    }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex&) const override
    {
        auto* box = new QComboBox(parent);
        box->setObjectName(QStringLiteral("comboBox_StopZone"));
        for (const coreGeoZone& z : m_zones())
            box->addItem(
                z.name.isEmpty() ? QString::number(z.id) : QStringLiteral("%1: %2").arg(z.id).arg(z.name),
                z.id);
        return box;
    }
    void setEditorData(QWidget* editor, const QModelIndex& index) const override
    {
        auto* box = static_cast<QComboBox*>(editor);
        box->setCurrentIndex(box->findData(index.data().toString().toInt()));
    }
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override
    {
        const auto* box = static_cast<QComboBox*>(editor);
        if (box->currentIndex() >= 0)
            model->setData(index, QString::number(box->currentData().toInt()));
    }

private:
    std::function<const QVector<coreGeoZone>&()> m_zones;
};

} // namespace

ZRK_Form_Config_Ainf_Route::ZRK_Form_Config_Ainf_Route(QWidget* parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui_ZRK_Designer_Form_Config_Ainf_Route>())
{
    ui->setupUi(this);
    ui->tableWidget_Routes->setColumnCount(RC_Count);
    ui->tableWidget_Stops->setColumnCount(SC_Count);
    ui->tableWidget_Routes->horizontalHeader()->setStretchLastSection(true);
    ui->tableWidget_Stops->horizontalHeader()->setStretchLastSection(true);
    connect(ui->tableWidget_Routes, &QTableWidget::itemChanged, this,
        &ZRK_Form_Config_Ainf_Route::routeItemChanged);
    connect(ui->tableWidget_Stops, &QTableWidget::itemChanged, this,
        &ZRK_Form_Config_Ainf_Route::stopItemChanged);
    ui->tableWidget_Stops->setItemDelegateForColumn(SC_Zone,
        new ZRK_Stop_Zone_Delegate([this]() -> const QVector<coreGeoZone>& { return m_data->zones; }, this));
    connect(ui->tableWidget_Routes, &QTableWidget::currentCellChanged, this, [this] { showStops(); });
    connect(ui->Routes_BtnAdd, &QPushButton::clicked, this,
        &ZRK_Form_Config_Ainf_Route::slot_pressed_Routes_BtnAdd);
    connect(ui->Routes_BtnDel, &QPushButton::clicked, this,
        &ZRK_Form_Config_Ainf_Route::slot_pressed_Routes_BtnDel);
    connect(ui->Stops_BtnAdd, &QPushButton::clicked, this,
        &ZRK_Form_Config_Ainf_Route::slot_pressed_Stops_BtnAdd);
    connect(ui->Stops_BtnDel, &QPushButton::clicked, this,
        &ZRK_Form_Config_Ainf_Route::slot_pressed_Stops_BtnDel);
    for (int i = 0; i < 8; ++i) {
        auto* box = findChild<QCheckBox*>(QStringLiteral("checkBox_RouteFlag%1").arg(i));
        connect(box, &QCheckBox::toggled, this, [this, i](bool on) {
            const int row = currentRouteRow();
            if (m_filling || row < 0)
                return;
            int& flags = m_data->routes[row].flags;
            flags = on ? (flags | (1 << i)) : (flags & ~(1 << i));
        });
    }
    // The defaults of new routes are edited in place.
    const auto text = [this](QLineEdit* e, QString coreAinfDefaults::*field) {
        connect(e, &QLineEdit::textEdited, this,
            [this, field](const QString& t) { m_data->defaults.*field = t; });
    };
    text(ui->lineEdit_DefNumber, &coreAinfDefaults::routeNumber);
    text(ui->lineEdit_DefChar, &coreAinfDefaults::routeChar);
    text(ui->lineEdit_DefBegin, &coreAinfDefaults::routeBegin);
    text(ui->lineEdit_DefEnd, &coreAinfDefaults::routeEnd);
    connect(ui->spinBox_DefSetSnd, QOverload<int>::of(&QSpinBox::valueChanged), this, [this](int v) {
        if (!m_filling)
            m_data->defaults.routeSetSnd = v;
    });
    connect(ui->lineEdit_DefRouteOptions, &QLineEdit::textEdited, this,
        [this](const QString& t) { m_data->defaults.setDefRouteOptionsStr(t); });
    translateForm();
}

ZRK_Form_Config_Ainf_Route::~ZRK_Form_Config_Ainf_Route() = default;

void ZRK_Form_Config_Ainf_Route::translateForm()
{
    ui->retranslateUi(this);
    ui->tableWidget_Routes->setHorizontalHeaderLabels({
        //% "Номер"
        qtTrId("gain_230"),
        //% "Маршрут"
        qtTrId("gain_231"),
        //% "Литера"
        qtTrId("gain_232"),
        //% "Начало"
        qtTrId("gain_233"),
        //% "Конец"
        qtTrId("gain_234"),
        //% "Звуки"
        qtTrId("gain_235"),
        //% "Остановок"
        qtTrId("gain_236"),
    });
    ui->tableWidget_Stops->setHorizontalHeaderLabels({
        //% "Тип"
        qtTrId("gain_237"),
        //% "Зона"
        qtTrId("gain_238"),
        //% "Номер"
        qtTrId("gain_230"),
        //% "Название"
        qtTrId("gain_239"),
        //% "Звуки (номера через запятую)"
        qtTrId("gain_240"),
    });
    //% "Тип остановки: 0 — остановка, 1 — путевая точка, 2 — конечная"
    ui->tableWidget_Stops->horizontalHeaderItem(SC_Type)->setToolTip(qtTrId("gain_244"));
    //% "Зона остановки: одна из зон списка"
    ui->tableWidget_Stops->horizontalHeaderItem(SC_Zone)->setToolTip(qtTrId("gain_247"));
}

void ZRK_Form_Config_Ainf_Route::setData(coreAinfData* data, std::function<void(const QString&)> message)
{
    m_data = data;
    m_message = std::move(message);
    refresh();
}

int ZRK_Form_Config_Ainf_Route::currentRouteRow() const
{
    const int row = ui->tableWidget_Routes->currentRow();
    return row >= 0 && row < m_data->routes.size() ? row : -1;
}

void ZRK_Form_Config_Ainf_Route::refresh()
{
    m_filling = true;
    QTableWidget* t = ui->tableWidget_Routes;
    const int keep = t->currentRow();
    t->setRowCount(m_data->routes.size());
    for (int row = 0; row < m_data->routes.size(); ++row) {
        const coreGeoRoute& r = m_data->routes.at(row);
        t->setItem(row, RC_Id, readOnly(QString::number(r.id)));
        t->setItem(row, RC_Number, new QTableWidgetItem(r.number));
        t->setItem(row, RC_Char, new QTableWidgetItem(r.chr));
        t->setItem(row, RC_Begin, new QTableWidgetItem(r.begin));
        t->setItem(row, RC_End, new QTableWidgetItem(r.end));
        t->setItem(row, RC_SetSnd, new QTableWidgetItem(QString::number(r.setsnd)));
        t->setItem(row, RC_Stops, readOnly(QString::number(r.stops.size())));
    }
    if (t->rowCount() > 0)
        t->setCurrentCell(qBound(0, keep, t->rowCount() - 1), RC_Number);
    const coreAinfDefaults& d = m_data->defaults;
    ui->lineEdit_DefNumber->setText(d.routeNumber);
    ui->lineEdit_DefChar->setText(d.routeChar);
    ui->lineEdit_DefBegin->setText(d.routeBegin);
    ui->lineEdit_DefEnd->setText(d.routeEnd);
    ui->spinBox_DefSetSnd->setValue(d.routeSetSnd);
    ui->lineEdit_DefRouteOptions->setText(d.getDefRouteOptionsStr());
    m_filling = false;
    showStops();
}

void ZRK_Form_Config_Ainf_Route::showStops()
{
    const int row = currentRouteRow();
    m_filling = true;
    QTableWidget* t = ui->tableWidget_Stops;
    const QVector<coreGeoStop> stops = row >= 0 ? m_data->routes.at(row).stops : QVector<coreGeoStop>();
    t->setRowCount(stops.size());
    for (int i = 0; i < stops.size(); ++i) {
        const coreGeoStop& s = stops.at(i);
        t->setItem(i, SC_Type, new QTableWidgetItem(QString::number(s.type)));
        t->setItem(i, SC_Zone, new QTableWidgetItem(QString::number(s.zoneid)));
        t->setItem(i, SC_Number, new QTableWidgetItem(QString::number(s.number)));
        t->setItem(i, SC_Title, new QTableWidgetItem(s.title));
        t->setItem(i, SC_Sounds, new QTableWidgetItem(s.soundsids));
    }
    const int flags = row >= 0 ? m_data->routes.at(row).flags : 0;
    for (int i = 0; i < 8; ++i) {
        auto* box = findChild<QCheckBox*>(QStringLiteral("checkBox_RouteFlag%1").arg(i));
        box->setChecked(flags & (1 << i));
        box->setEnabled(row >= 0);
    }
    ui->Stops_BtnAdd->setEnabled(row >= 0);
    ui->Stops_BtnDel->setEnabled(row >= 0);
    ui->Routes_BtnDel->setEnabled(row >= 0);
    m_filling = false;
}

void ZRK_Form_Config_Ainf_Route::routeItemChanged(QTableWidgetItem* item)
{
    if (m_filling || item->row() >= m_data->routes.size())
        return;
    coreGeoRoute& r = m_data->routes[item->row()];
    const QString text = item->text().left(zrkAinfCaps().maxNameLength);
    switch (item->column()) {
    case RC_Number:
        r.number = text;
        break;
    case RC_Char:
        r.chr = text;
        break;
    case RC_Begin:
        r.begin = text;
        break;
    case RC_End:
        r.end = text;
        break;
    case RC_SetSnd:
        takeInt(item, r, kGeoRouteKeys, "setsnd");
        m_filling = true;
        item->setText(QString::number(r.setsnd));
        m_filling = false;
        break;
    default:
        break;
    }
}

void ZRK_Form_Config_Ainf_Route::stopItemChanged(QTableWidgetItem* item)
{
    const int row = currentRouteRow();
    if (m_filling || row < 0 || item->row() >= m_data->routes.at(row).stops.size())
        return;
    coreGeoStop& s = m_data->routes[row].stops[item->row()];
    switch (item->column()) {
    case SC_Type:
        takeInt(item, s, kGeoStopKeys, "type");
        break;
    case SC_Zone: {
        bool ok = false;
        const int id = item->text().trimmed().toInt(&ok);
        if (ok && hasZone(m_data->zones, id))
            s.zoneid = id;
        else if (m_message)
            //% "Зоны \"%1\" нет в списке зон; остановка осталась у зоны %2."
            m_message(qtTrId("gain_246").arg(item->text().trimmed()).arg(s.zoneid));
        break;
    }
    case SC_Number:
        takeInt(item, s, kGeoStopKeys, "number");
        break;
    case SC_Title:
        s.title = item->text().left(zrkAinfCaps().maxNameLength);
        break;
    case SC_Sounds:
        s.soundsids = item->text().simplified().remove(QLatin1Char(' '));
        break;
    default:
        break;
    }
    // Showing the stops again makes new items: the one edited is gone after it.
    const bool zoneChanged = item->column() == SC_Zone;
    showStops();
    if (zoneChanged)
        emit routesChanged();
}

int ZRK_Form_Config_Ainf_Route::addRoute()
{
    const int max = zrkAinfCaps().maxRoutes;
    if (m_data->routes.size() >= max) {
        if (m_message)
            //% "Терминал хранит не более %1 маршрутов."
            m_message(qtTrId("gain_241").arg(max));
        return 0;
    }
    int id = 1;
    for (const coreGeoRoute& r : qAsConst(m_data->routes))
        id = qMax(id, r.id + 1);
    const coreAinfDefaults& d = m_data->defaults;
    coreGeoRoute r;
    r.id = id;
    r.number = d.routeNumber.isEmpty() ? QString::number(id) : d.routeNumber;
    r.chr = d.routeChar;
    r.begin = d.routeBegin;
    r.end = d.routeEnd;
    r.setsnd = d.routeSetSnd;
    r.flags = d.getDefRouteOptions();
    m_data->routes.append(r);
    refresh();
    ui->tableWidget_Routes->setCurrentCell(m_data->routes.size() - 1, RC_Number);
    emit routesChanged();
    return id;
}

bool ZRK_Form_Config_Ainf_Route::addStop(int routeRow, int zoneId)
{
    if (routeRow < 0 || routeRow >= m_data->routes.size())
        return false;
    const int max = zrkAinfCaps().maxStopsPerRoute;
    coreGeoRoute& r = m_data->routes[routeRow];
    if (r.stops.size() >= max) {
        if (m_message)
            //% "Маршрут может иметь не более %1 остановок."
            m_message(qtTrId("gain_242").arg(max));
        return false;
    }
    if (zoneId <= 0) {
        if (m_message)
            //% "Выберите зону остановки в списке зон или на карте."
            m_message(qtTrId("gain_243"));
        return false;
    }
    if (!hasZone(m_data->zones, zoneId)) {
        if (m_message)
            //% "Зоны %1 нет в списке зон."
            m_message(qtTrId("gain_248").arg(zoneId));
        return false;
    }
    coreGeoStop s;
    s.zoneid = zoneId;
    s.number = r.stops.size() + 1;
    for (const coreGeoZone& z : qAsConst(m_data->zones)) {
        if (z.id == zoneId)
            s.title = z.name;
    }
    r.stops.append(s);
    refresh();
    emit routesChanged();
    return true;
}

void ZRK_Form_Config_Ainf_Route::setDefRouteOptionsStr(const QString& text)
{
    m_data->defaults.setDefRouteOptionsStr(text);
    refresh();
}

void ZRK_Form_Config_Ainf_Route::slot_pressed_Routes_BtnAdd()
{
    addRoute();
}

void ZRK_Form_Config_Ainf_Route::slot_pressed_Routes_BtnDel()
{
    const int row = currentRouteRow();
    if (row < 0)
        return;
    m_data->routes.remove(row);
    refresh();
    emit routesChanged();
}

void ZRK_Form_Config_Ainf_Route::slot_pressed_Stops_BtnAdd()
{
    addStop(currentRouteRow(), m_currentZoneId);
}

void ZRK_Form_Config_Ainf_Route::slot_pressed_Stops_BtnDel()
{
    const int row = currentRouteRow();
    const int stop = ui->tableWidget_Stops->currentRow();
    if (row < 0 || stop < 0 || stop >= m_data->routes.at(row).stops.size())
        return;
    m_data->routes[row].stops.remove(stop);
    refresh();
    emit routesChanged();
}
