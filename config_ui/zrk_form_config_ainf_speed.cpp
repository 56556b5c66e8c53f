#include "config_ui/zrk_form_config_ainf_speed.h"

#include "config_model/geo_fields.h"
#include "ui_zrk_form_config_ainf_speed.h"

#include <QHeaderView>

#include <iterator>

namespace {

// One column per key of the file's speed-zone record, in its order: the id (not edited), the title,
// then the integers with the ranges the file allows.
constexpr int kColumnCount = int(std::size(kGeoSpeedKeys));
static_assert(kColumnCount == 10, "the headers in translateForm name every column");

} // namespace

ZRK_Form_Config_Ainf_Speed::ZRK_Form_Config_Ainf_Speed(QWidget* parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui_ZRK_Designer_Form_Config_Ainf_Speed>())
{
    ui->setupUi(this);
    ui->tableWidget_Speeds->setColumnCount(kColumnCount);
    ui->tableWidget_Speeds->horizontalHeader()->setStretchLastSection(true);
    connect(
        ui->tableWidget_Speeds, &QTableWidget::itemChanged, this, &ZRK_Form_Config_Ainf_Speed::itemChanged);
    connect(ui->Speeds_BtnAdd, &QPushButton::clicked, this,
        &ZRK_Form_Config_Ainf_Speed::slot_pressed_Speeds_BtnAdd);
    connect(ui->Speeds_BtnDel, &QPushButton::clicked, this,
        &ZRK_Form_Config_Ainf_Speed::slot_pressed_Speeds_BtnDel);
    connect(ui->spinBox_SpeedMode, QOverload<int>::of(&QSpinBox::valueChanged), this, [this](int v) {
        if (!m_filling)
            m_data->defaults.speedmode = v;
    });
    connect(ui->lineEdit_DefSpeedOptions, &QLineEdit::textEdited, this,
        [this](const QString& t) { m_data->defaults.setDefSpeedsOptionsStr(t); });
    translateForm();
}

ZRK_Form_Config_Ainf_Speed::~ZRK_Form_Config_Ainf_Speed() = default;

void ZRK_Form_Config_Ainf_Speed::translateForm()
{
    ui->retranslateUi(this);
    ui->tableWidget_Speeds->setHorizontalHeaderLabels({
        //% "Номер"
        qtTrId("gain_210"),
        //% "Название"
        qtTrId("gain_211"),
        //% "Скорость, км/ч"
        qtTrId("gain_212"),
        //% "Допуск, км/ч"
        qtTrId("gain_213"),
        //% "Звук превышения"
        qtTrId("gain_214"),
        //% "Звук активации"
        qtTrId("gain_215"),
        //% "Повтор превышения, с"
        qtTrId("gain_216"),
        //% "Повтор активации, с"
        qtTrId("gain_217"),
        //% "Задержка, с"
        qtTrId("gain_218"),
        //% "Зуммер"
        qtTrId("gain_219"),
    });
}

void ZRK_Form_Config_Ainf_Speed::setData(coreAinfData* data, std::function<void(const QString&)> message)
{
    m_data = data;
    m_message = std::move(message);
    refresh();
}

void ZRK_Form_Config_Ainf_Speed::refresh()
{
    m_filling = true;
    QTableWidget* t = ui->tableWidget_Speeds;
    t->setRowCount(m_data->speeds.size());
    for (int row = 0; row < m_data->speeds.size(); ++row) {
        const coreSpeedZone& s = m_data->speeds.at(row);
        for (int column = 0; column < kColumnCount; ++column) {
            const GeoKey<coreSpeedZone>& k = kGeoSpeedKeys[column];
            auto* item = new QTableWidgetItem(
                k.type == GeoKeyType::Text ? s.*k.text : QString::number(s.*k.integer));
            if (k.integer == &coreSpeedZone::id)
                item->setFlags(item->flags() & ~Qt::ItemIsEditable);
            else if (k.type == GeoKeyType::Integer)
                item->setToolTip(QStringLiteral("%1..%2").arg(k.min).arg(k.max));
            t->setItem(row, column, item);
        }
    }
    ui->spinBox_SpeedMode->setValue(m_data->defaults.speedmode);
    ui->lineEdit_DefSpeedOptions->setText(m_data->defaults.getDefSpeedsOptionsStr());
    m_filling = false;
}

void ZRK_Form_Config_Ainf_Speed::itemChanged(QTableWidgetItem* item)
{
    if (m_filling || item->row() >= m_data->speeds.size())
        return;
    if (item->column() < 0 || item->column() >= kColumnCount)
        return;
    coreSpeedZone& s = m_data->speeds[item->row()];
    const GeoKey<coreSpeedZone>& k = kGeoSpeedKeys[item->column()];
    if (k.type == GeoKeyType::Text) {
        s.*k.text = item->text().left(zrkAinfCaps().maxNameLength);
    } else if (k.type == GeoKeyType::Integer && k.integer != &coreSpeedZone::id) {
        bool ok = false;
        const int v = item->text().trimmed().toInt(&ok);
        int& field = s.*k.integer;
        if (ok && v >= k.min && v <= k.max)
            field = v;
        m_filling = true;
        item->setText(QString::number(field)); // a value that is not a number or out of range goes back
        m_filling = false;
    }
}

int ZRK_Form_Config_Ainf_Speed::addSpeedZone()
{
    const int max = zrkAinfCaps().maxSpeedZones;
    if (m_data->speeds.size() >= max) {
        if (m_message)
            //% "Терминал хранит не более %1 скоростных зон."
            m_message(qtTrId("gain_220").arg(max));
        return 0;
    }
    int id = 1;
    for (const coreSpeedZone& s : qAsConst(m_data->speeds))
        id = qMax(id, s.id + 1);
    coreSpeedZone s;
    s.id = id;
    //% "Скоростная зона %1"
    s.title = qtTrId("gain_221").arg(id);
    m_data->speeds.append(s);
    refresh();
    return id;
}

void ZRK_Form_Config_Ainf_Speed::deleteSpeedZone(int row)
{
    if (row < 0 || row >= m_data->speeds.size())
        return;
    m_data->speeds.remove(row);
    refresh();
}

void ZRK_Form_Config_Ainf_Speed::setDefSpeedsOptionsStr(const QString& text)
{
    m_data->defaults.setDefSpeedsOptionsStr(text);
    refresh();
}

void ZRK_Form_Config_Ainf_Speed::slot_pressed_Speeds_BtnAdd()
{
    addSpeedZone();
}

void ZRK_Form_Config_Ainf_Speed::slot_pressed_Speeds_BtnDel()
{
    deleteSpeedZone(ui->tableWidget_Speeds->currentRow());
}
