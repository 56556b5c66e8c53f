#include "config_ui/zrk_form_config_set_orba3.h"

#include "config_model/xml_workdata.h"
#include "telemetry/orba_field_labels.h"
#include "ui_zrk_form_config_set_orba3.h"
#include "ui_zrk_form_config_set_orba3_tab.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>

#include <memory>

using namespace zrk::fieldset;

namespace {

QVector<int> range(int first, int last)
{
    QVector<int> out;
    for (int pos = first; pos <= last; ++pos)
        out << pos;
    return out;
}

QVector<int> join(std::initializer_list<QVector<int>> parts)
{
    QVector<int> out;
    for (const QVector<int>& part : parts)
        out += part;
    return out;
}

// The tyre-count combo box stands for positions 93..96 together.
constexpr int kTiresFirst = 93;
constexpr int kTiresCount = 4;

// Tab titles, in the order the tabs are described.
const char* const kTabTitles[] = {
    //% "Основные"
    QT_TRID_NOOP("cfgo_001"),
    //% "Навигация"
    QT_TRID_NOOP("cfgo_002"),
    //% "Датчики RS"
    QT_TRID_NOOP("cfgo_003"),
    //% "Шина CAN"
    QT_TRID_NOOP("cfgo_004"),
    //% "Тахограф"
    QT_TRID_NOOP("cfgo_005"),
    //% "Дополнительно"
    QT_TRID_NOOP("cfgo_006"),
    //% "Акселерометр"
    QT_TRID_NOOP("cfgo_007"),
    //% "Расходомер"
    QT_TRID_NOOP("cfgo_008"),
    //% "Рефрижератор"
    QT_TRID_NOOP("cfgo_009"),
    //% "Пользовательские"
    QT_TRID_NOOP("cfgo_010"),
};

// "navigation only": the fields that make a track, besides the three every record has.
const QVector<int> kNaviPreset = { 0, 1, 2, 8, 9, 10, 11, 12, 13, 14 };

} // namespace

// ---- The tab base ----------------------------------------------------------------------------

ZRK_Form_Config_Set_Orba3_Tab::ZRK_Form_Config_Set_Orba3_Tab(QWidget* parent)
    : QWidget(parent)
    , ui(new Ui::ZRK_Designer_Form_Config_Set_Orba3_Tab)
{
    ui->setupUi(this);
}

ZRK_Form_Config_Set_Orba3_Tab::~ZRK_Form_Config_Set_Orba3_Tab()
{
    delete ui;
}

QString ZRK_Form_Config_Set_Orba3_Tab::tabTitle() const
{
    return m_titleId ? qtTrId(m_titleId) : QString();
}

QList<int> ZRK_Form_Config_Set_Orba3_Tab::positions() const
{
    return m_boxes.keys();
}

int ZRK_Form_Config_Set_Orba3_Tab::tickedSize(int generation) const
{
    int size = 0;
    for (auto it = m_boxes.cbegin(); it != m_boxes.cend(); ++it) {
        if (it.value()->isChecked() && positionGeneration(it.key()) <= generation + 1)
            size += positionWidth(it.key());
    }
    return size;
}

bool ZRK_Form_Config_Set_Orba3_Tab::isPositionShown(int pos) const
{
    return m_boxes.contains(pos) && !m_hidden.contains(pos);
}

int ZRK_Form_Config_Set_Orba3_Tab::shownCount(const QVector<int>& positions) const
{
    int count = 0;
    for (int pos : positions)
        count += isPositionShown(pos) ? 1 : 0;
    return count;
}

int ZRK_Form_Config_Set_Orba3_Tab::applyFilter(const QString& text, bool onlyTicked)
{
    m_filtered.clear();
    int inSight = 0;
    for (auto it = m_boxes.cbegin(); it != m_boxes.cend(); ++it) {
        const bool match = (text.isEmpty() || it.value()->text().contains(text, Qt::CaseInsensitive))
            && (!onlyTicked || it.value()->isChecked());
        if (!match)
            m_filtered.insert(it.key());
        refreshBox(it.key());
        inSight += match && !m_hidden.contains(it.key()) ? 1 : 0;
    }
    refreshSections();
    return inSight;
}

QVBoxLayout* ZRK_Form_Config_Set_Orba3_Tab::boxesLayout() const
{
    return ui->layout_Boxes;
}

QGroupBox* ZRK_Form_Config_Set_Orba3_Tab::makeSection(const char* titleId)
{
    auto* group = new QGroupBox(ui->widget_Boxes);
    group->setObjectName(QStringLiteral("groupBox_%1").arg(QLatin1String(titleId)));
    new QGridLayout(group);
    ui->layout_Boxes->addWidget(group);
    m_sections.append({ group, titleId });
    return group;
}

QCheckBox* ZRK_Form_Config_Set_Orba3_Tab::makeBox(int pos, QGroupBox* section)
{
    auto* box = new QCheckBox(section);
    box->setObjectName(QStringLiteral("checkBox_Field_%1").arg(pos + 1, 3, 10, QLatin1Char('0')));
    m_boxes.insert(pos, box);
    m_sectionOf.insert(box, section);
    connect(box, &QCheckBox::toggled, this, [this, pos](bool on) { notifyToggled(pos, on); });
    return box;
}

void ZRK_Form_Config_Set_Orba3_Tab::buildSections(
    const char* titleId, const QVector<Section>& sections, int columns)
{
    m_titleId = titleId;
    for (const Section& section : sections) {
        QGroupBox* group = makeSection(section.titleId);
        auto* grid = static_cast<QGridLayout*>(group->layout());
        int i = 0;
        for (int pos : section.positions) {
            grid->addWidget(makeBox(pos, group), i / columns, i % columns);
            ++i;
        }
    }
    ui->layout_Boxes->addStretch(1);
    translateBoxes();
}

void ZRK_Form_Config_Set_Orba3_Tab::translateBoxes()
{
    for (auto it = m_boxes.cbegin(); it != m_boxes.cend(); ++it) {
        const int no = it.key() + 1;
        it.value()->setText(orba::fieldLabel(no));
        //% "Поле %1, размер в записи: %2 байт"
        it.value()->setToolTip(qtTrId("cfgo_015").arg(no).arg(positionWidth(it.key())));
    }
    for (const auto& section : qAsConst(m_sections))
        section.first->setTitle(qtTrId(section.second));
}

void ZRK_Form_Config_Set_Orba3_Tab::writeSpan(QString& mask, int g) const
{
    for (auto it = m_boxes.cbegin(); it != m_boxes.cend(); ++it) {
        if (positionGeneration(it.key()) == g && it.key() < mask.size())
            mask[it.key()] = QLatin1Char(it.value()->isChecked() ? '1' : '0');
    }
}

void ZRK_Form_Config_Set_Orba3_Tab::readSpan(const QString& mask, int g)
{
    for (auto it = m_boxes.cbegin(); it != m_boxes.cend(); ++it) {
        if (positionGeneration(it.key()) != g)
            continue;
        const bool on = m_forced.contains(it.key())
            || (it.key() < mask.size() && mask.at(it.key()) == QLatin1Char('1'));
        it.value()->setChecked(on);
    }
}

void ZRK_Form_Config_Set_Orba3_Tab::enableSpan(int g, bool enabled)
{
    m_spanEnabled[qBound(0, g, 3)] = enabled;
    for (auto it = m_boxes.cbegin(); it != m_boxes.cend(); ++it) {
        if (positionGeneration(it.key()) == g)
            refreshBox(it.key());
    }
}

void ZRK_Form_Config_Set_Orba3_Tab::showPosition(int pos, bool shown)
{
    if (!m_boxes.contains(pos))
        return;
    if (shown)
        m_hidden.remove(pos);
    else
        m_hidden.insert(pos);
    refreshBox(pos);
    refreshSections();
}

void ZRK_Form_Config_Set_Orba3_Tab::showFirst(const QVector<int>& positions, int count)
{
    for (int i = 0; i < positions.size(); ++i)
        showPosition(positions.at(i), i < count);
}

void ZRK_Form_Config_Set_Orba3_Tab::forcePosition(int pos, bool forced)
{
    QCheckBox* b = m_boxes.value(pos);
    if (!b)
        return;
    if (forced) {
        m_forced.insert(pos);
        b->setChecked(true);
    } else {
        m_forced.remove(pos);
    }
    refreshBox(pos);
}

void ZRK_Form_Config_Set_Orba3_Tab::lockPosition(int pos, bool locked)
{
    if (locked)
        m_locked.insert(pos);
    else
        m_locked.remove(pos);
    refreshBox(pos);
}

void ZRK_Form_Config_Set_Orba3_Tab::refreshBox(int pos)
{
    QCheckBox* b = m_boxes.value(pos);
    if (!b)
        return;
    b->setVisible(!m_hidden.contains(pos) && !m_filtered.contains(pos));
    b->setEnabled(
        m_spanEnabled[positionGeneration(pos)] && !m_forced.contains(pos) && !m_locked.contains(pos));
}

void ZRK_Form_Config_Set_Orba3_Tab::refreshSections()
{
    for (const auto& section : qAsConst(m_sections)) {
        bool any = false;
        for (auto it = m_sectionOf.cbegin(); it != m_sectionOf.cend() && !any; ++it)
            any = it.value() == section.first && !it.key()->isHidden();
        // A section without boxes of its own (the tyre combo) keeps its own visibility.
        bool owns = false;
        for (auto it = m_sectionOf.cbegin(); it != m_sectionOf.cend() && !owns; ++it)
            owns = it.value() == section.first;
        if (owns)
            section.first->setVisible(any);
    }
}

void ZRK_Form_Config_Set_Orba3_Tab::notifyToggled(int pos, bool on)
{
    emit positionToggled(pos, on);
}

// ---- Main ------------------------------------------------------------------------------------

namespace {
const QVector<int> kMainAnalogue = range(20, 27);
const QVector<int> kMainPulse = join({ range(32, 33), range(126, 131) });
const QVector<int> kMainFrequency = join({ range(34, 35), range(132, 137) });
const QVector<int> kMainTemp = range(44, 51);
} // namespace

ZRK_Form_Config_Set_Orba3_Tab_Main::ZRK_Form_Config_Set_Orba3_Tab_Main(int deviceType, QWidget* parent)
    : ZRK_Form_Config_Set_Orba3_Tab(parent)
    , m_deviceType(deviceType)
{
    buildSections(kTabTitles[0],
        {
            //% "Запись и состояние терминала"
            { QT_TRID_NOOP("cfgo_050"), join({ range(0, 6), range(122, 124), { 199 } }) },
            //% "Питание"
            { QT_TRID_NOOP("cfgo_051"), range(18, 19) },
            //% "Аналоговые входы"
            { QT_TRID_NOOP("cfgo_052"), kMainAnalogue },
            //% "Дискретные входы и выходы"
            { QT_TRID_NOOP("cfgo_053"), { 28, 29, 125, 30, 31 } },
            //% "Счётчики импульсов и частота"
            { QT_TRID_NOOP("cfgo_054"), join({ kMainPulse, kMainFrequency }) },
            //% "Моточасы"
            { QT_TRID_NOOP("cfgo_055"), { 36, 204, 205 } },
            //% "Температура"
            { QT_TRID_NOOP("cfgo_056"), kMainTemp },
        });
    // Positions 3..5 have a second box for the other device type; only one of each pair is used.
    for (int pos = 3; pos <= 5; ++pos) {
        QCheckBox* primary = m_boxes.value(pos);
        auto* other = new QCheckBox(primary->parentWidget());
        other->setObjectName(QStringLiteral("checkBox_Field_%1_Alt").arg(pos + 1, 3, 10, QLatin1Char('0')));
        primary->parentWidget()->layout()->addWidget(other);
        if (m_deviceType != 0) {
            m_sectionOf.remove(primary);
            m_sectionOf.insert(other, static_cast<QGroupBox*>(other->parentWidget()));
            std::swap(primary, other);
            m_boxes.insert(pos, primary);
            connect(primary, &QCheckBox::toggled, this, [this, pos](bool on) { notifyToggled(pos, on); });
            disconnect(other, nullptr, this, nullptr);
        }
        other->hide();
        m_alternate.insert(pos, other);
    }
    for (int pos = 0; pos < kAlwaysOn; ++pos)
        forcePosition(pos, true);
    translateForm();
}

void ZRK_Form_Config_Set_Orba3_Tab_Main::translateForm()
{
    translateBoxes();
    for (auto it = m_alternate.cbegin(); it != m_alternate.cend(); ++it)
        it.value()->setText(orba::fieldLabel(it.key() + 1));
}

void ZRK_Form_Config_Set_Orba3_Tab_Main::getStrFormat_Orba_1(QString& mask)
{
    writeSpan(mask, 1);
}
void ZRK_Form_Config_Set_Orba3_Tab_Main::getStrFormat_Orba_3(QString& mask)
{
    writeSpan(mask, 3);
}

void ZRK_Form_Config_Set_Orba3_Tab_Main::setStrFormat_Orba_1(QString mask)
{
    readSpan(mask, 1);
    for (auto it = m_alternate.cbegin(); it != m_alternate.cend(); ++it)
        it.value()->setChecked(m_boxes.value(it.key())->isChecked());
}

void ZRK_Form_Config_Set_Orba3_Tab_Main::setStrFormat_Orba_3(QString mask)
{
    readSpan(mask, 3);
}
void ZRK_Form_Config_Set_Orba3_Tab_Main::setFormat_Enabled_Orba_1(bool enabled)
{
    enableSpan(1, enabled);
}
void ZRK_Form_Config_Set_Orba3_Tab_Main::setFormat_Enabled_Orba_3(bool enabled)
{
    enableSpan(3, enabled);
}

void ZRK_Form_Config_Set_Orba3_Tab_Main::setDeviceUseState(bool state, bool state2)
{
    showPosition(3, state);
    showPosition(122, state2);
}

void ZRK_Form_Config_Set_Orba3_Tab_Main::setDeviceAlwaysUseState(bool state, bool state2)
{
    forcePosition(3, state);
    forcePosition(122, state2);
}

void ZRK_Form_Config_Set_Orba3_Tab_Main::setDeviceUseModule(bool module1, bool module2, bool module3)
{
    showPosition(4, module1);
    showPosition(5, module2);
    showPosition(123, module3);
}

void ZRK_Form_Config_Set_Orba3_Tab_Main::setDeviceAlwaysUseModule(bool module1, bool module2, bool module3)
{
    forcePosition(4, module1);
    forcePosition(5, module2);
    forcePosition(123, module3);
}

void ZRK_Form_Config_Set_Orba3_Tab_Main::setDeviceUseGSM(bool gsm, bool connections)
{
    showPosition(6, gsm);
    showPosition(124, connections);
}

void ZRK_Form_Config_Set_Orba3_Tab_Main::setDeviceUseMotochas(bool motochas, bool loadOn, bool loadOff)
{
    showPosition(36, motochas);
    showPosition(204, loadOn);
    showPosition(205, loadOff);
}

void ZRK_Form_Config_Set_Orba3_Tab_Main::setDeviceEnabledMotochasMore(bool enabled)
{
    lockPosition(204, !enabled);
    lockPosition(205, !enabled);
}

// Outputs and input states come eight to a byte.
void ZRK_Form_Config_Set_Orba3_Tab_Main::setMaxCountLinesOut(int count)
{
    showFirst({ 30, 31 }, (count + 7) / 8);
}

void ZRK_Form_Config_Set_Orba3_Tab_Main::setMaxCountStateIn(int count)
{
    showFirst({ 28, 29, 125 }, (count + 7) / 8);
}

void ZRK_Form_Config_Set_Orba3_Tab_Main::setMaxCountLinesIn(int count)
{
    showFirst(kMainAnalogue, count);
    showFirst(kMainPulse, count);
    showFirst(kMainFrequency, count);
}

void ZRK_Form_Config_Set_Orba3_Tab_Main::setMaxCountSensorsTemp(int count)
{
    showFirst(kMainTemp, count);
}

void ZRK_Form_Config_Set_Orba3_Tab_Main::setDeviceUseReservPower(bool use)
{
    m_useReserv = use;
    showPosition(kPosReserv, use);
}

// ---- Navigation ------------------------------------------------------------------------------

ZRK_Form_Config_Set_Orba3_Tab_Navi::ZRK_Form_Config_Set_Orba3_Tab_Navi(QWidget* parent)
    : ZRK_Form_Config_Set_Orba3_Tab(parent)
{
    buildSections(kTabTitles[1],
        {
            //% "Координаты и движение"
            { QT_TRID_NOOP("cfgo_057"), range(7, 17) },
            //% "Навигационный приёмник"
            { QT_TRID_NOOP("cfgo_058"), range(69, 75) },
            //% "Базовые станции"
            { QT_TRID_NOOP("cfgo_059"), { 76 } },
        });
}

void ZRK_Form_Config_Set_Orba3_Tab_Navi::translateForm()
{
    translateBoxes();
}
void ZRK_Form_Config_Set_Orba3_Tab_Navi::getStrFormat_Orba_1(QString& mask)
{
    writeSpan(mask, 1);
}
void ZRK_Form_Config_Set_Orba3_Tab_Navi::getStrFormat_Orba_2(QString& mask)
{
    writeSpan(mask, 2);
}
void ZRK_Form_Config_Set_Orba3_Tab_Navi::setStrFormat_Orba_1(QString mask)
{
    readSpan(mask, 1);
}
void ZRK_Form_Config_Set_Orba3_Tab_Navi::setStrFormat_Orba_2(QString mask)
{
    readSpan(mask, 2);
}
void ZRK_Form_Config_Set_Orba3_Tab_Navi::setFormat_Enabled_Orba_1(bool enabled)
{
    enableSpan(1, enabled);
}
void ZRK_Form_Config_Set_Orba3_Tab_Navi::setFormat_Enabled_Orba_2(bool enabled)
{
    enableSpan(2, enabled);
}

void ZRK_Form_Config_Set_Orba3_Tab_Navi::setDeviceUseNaviMore(bool naviMore, bool preciseCoord)
{
    for (int pos : { 69, 70, 71, 73, 74, 75 })
        showPosition(pos, naviMore);
    showPosition(72, naviMore && preciseCoord);
}

void ZRK_Form_Config_Set_Orba3_Tab_Navi::setDeviceUseLBS(bool use)
{
    showPosition(76, use);
}

// ---- Serial sensors --------------------------------------------------------------------------

namespace {
const QVector<int> kRsLevel = join({ range(37, 42), range(83, 92) }); // sensors 1..16 in order
const QVector<int> kRsTemp = range(77, 82); // sensors 1..6
const QVector<int> kRsFreq = range(146, 161); // sensors 1..16
} // namespace

ZRK_Form_Config_Set_Orba3_Tab_RS::ZRK_Form_Config_Set_Orba3_Tab_RS(
    bool rs232, bool rs485Temp, bool rs485Freq, QWidget* parent)
    : ZRK_Form_Config_Set_Orba3_Tab(parent)
    , m_rs485Temp(rs485Temp)
    , m_rs485Freq(rs485Freq)
{
    buildSections(kTabTitles[2],
        {
            //% "ДУТ RS-485 1–6 и RS-232"
            { QT_TRID_NOOP("cfgo_060"), range(37, 43) },
            //% "Температура ДУТ RS-485"
            { QT_TRID_NOOP("cfgo_061"), kRsTemp },
            //% "ДУТ RS-485 7–16"
            { QT_TRID_NOOP("cfgo_062"), range(83, 92) },
            //% "Частота ДУТ RS-485"
            { QT_TRID_NOOP("cfgo_063"), kRsFreq },
        });
    showPosition(43, rs232);
    setRS485_FLS_MaxCount(16);
}

void ZRK_Form_Config_Set_Orba3_Tab_RS::setRS485_FLS_MaxCount(int count)
{
    showFirst(kRsLevel, count);
    showFirst(kRsTemp, m_rs485Temp ? count : 0);
    showFirst(kRsFreq, m_rs485Freq ? count : 0);
}

void ZRK_Form_Config_Set_Orba3_Tab_RS::translateForm()
{
    translateBoxes();
}
void ZRK_Form_Config_Set_Orba3_Tab_RS::getStrFormat_Orba_1(QString& mask)
{
    writeSpan(mask, 1);
}
void ZRK_Form_Config_Set_Orba3_Tab_RS::getStrFormat_Orba_2(QString& mask)
{
    writeSpan(mask, 2);
}
void ZRK_Form_Config_Set_Orba3_Tab_RS::getStrFormat_Orba_3(QString& mask)
{
    writeSpan(mask, 3);
}
void ZRK_Form_Config_Set_Orba3_Tab_RS::setStrFormat_Orba_1(QString mask)
{
    readSpan(mask, 1);
}
void ZRK_Form_Config_Set_Orba3_Tab_RS::setStrFormat_Orba_2(QString mask)
{
    readSpan(mask, 2);
}
void ZRK_Form_Config_Set_Orba3_Tab_RS::setStrFormat_Orba_3(QString mask)
{
    readSpan(mask, 3);
}
void ZRK_Form_Config_Set_Orba3_Tab_RS::setFormat_Enabled_Orba_1(bool enabled)
{
    enableSpan(1, enabled);
}
void ZRK_Form_Config_Set_Orba3_Tab_RS::setFormat_Enabled_Orba_2(bool enabled)
{
    enableSpan(2, enabled);
}
void ZRK_Form_Config_Set_Orba3_Tab_RS::setFormat_Enabled_Orba_3(bool enabled)
{
    enableSpan(3, enabled);
}

// ---- CAN -------------------------------------------------------------------------------------

ZRK_Form_Config_Set_Orba3_Tab_CAN::ZRK_Form_Config_Set_Orba3_Tab_CAN(QWidget* parent)
    : ZRK_Form_Config_Set_Orba3_Tab(parent)
{
    buildSections(kTabTitles[3],
        {
            //% "Данные шины CAN"
            { QT_TRID_NOOP("cfgo_064"), range(52, 68) },
            //% "Состояние систем ТС по CAN"
            { QT_TRID_NOOP("cfgo_065"), range(200, 203) },
        });
}

void ZRK_Form_Config_Set_Orba3_Tab_CAN::setDeviceUseCANState(bool use)
{
    showFirst(range(200, 203), use ? 4 : 0);
}

void ZRK_Form_Config_Set_Orba3_Tab_CAN::translateForm()
{
    translateBoxes();
}
void ZRK_Form_Config_Set_Orba3_Tab_CAN::getStrFormat_Orba_1(QString& mask)
{
    writeSpan(mask, 1);
}
void ZRK_Form_Config_Set_Orba3_Tab_CAN::getStrFormat_Orba_3(QString& mask)
{
    writeSpan(mask, 3);
}
void ZRK_Form_Config_Set_Orba3_Tab_CAN::setStrFormat_Orba_1(QString mask)
{
    readSpan(mask, 1);
}
void ZRK_Form_Config_Set_Orba3_Tab_CAN::setStrFormat_Orba_3(QString mask)
{
    readSpan(mask, 3);
}
void ZRK_Form_Config_Set_Orba3_Tab_CAN::setFormat_Enabled_Orba_1(bool enabled)
{
    enableSpan(1, enabled);
}
void ZRK_Form_Config_Set_Orba3_Tab_CAN::setFormat_Enabled_Orba_3(bool enabled)
{
    enableSpan(3, enabled);
}

// ---- Tachograph ------------------------------------------------------------------------------

ZRK_Form_Config_Set_Orba3_Tab_Taho::ZRK_Form_Config_Set_Orba3_Tab_Taho(QWidget* parent)
    : ZRK_Form_Config_Set_Orba3_Tab(parent)
{
    buildSections(kTabTitles[4],
        {
            //% "Данные тахографа"
            { QT_TRID_NOOP("cfgo_066"), range(97, 102) },
        });
}

void ZRK_Form_Config_Set_Orba3_Tab_Taho::translateForm()
{
    translateBoxes();
}
void ZRK_Form_Config_Set_Orba3_Tab_Taho::getStrFormat_Orba_2(QString& mask)
{
    writeSpan(mask, 2);
}
void ZRK_Form_Config_Set_Orba3_Tab_Taho::setStrFormat_Orba_2(QString mask)
{
    readSpan(mask, 2);
}
void ZRK_Form_Config_Set_Orba3_Tab_Taho::setFormat_Enabled_Orba_2(bool enabled)
{
    enableSpan(2, enabled);
}

// ---- More ------------------------------------------------------------------------------------

namespace {
const QVector<int> kPassager = range(109, 116);
const QVector<int> kHpTemp = range(162, 165);
const QVector<int> kHumidity = range(166, 169);
} // namespace

ZRK_Form_Config_Set_Orba3_Tab_More::ZRK_Form_Config_Set_Orba3_Tab_More(QWidget* parent)
    : ZRK_Form_Config_Set_Orba3_Tab(parent)
{
    //% "Датчики давления в шинах"
    m_tiresGroup = makeSection(QT_TRID_NOOP("cfgo_021"));
    m_tires = new QComboBox(m_tiresGroup);
    m_tires->setObjectName(QStringLiteral("Tires"));
    for (int i = 0; i <= kTiresCount; ++i)
        m_tires->addItem(QString());
    static_cast<QGridLayout*>(m_tiresGroup->layout())->addWidget(m_tires, 0, 0);
    buildSections(kTabTitles[5],
        {
            //% "Диспетчерские сообщения"
            { QT_TRID_NOOP("cfgo_067"), range(103, 104) },
            //% "Пассажиропоток"
            { QT_TRID_NOOP("cfgo_068"), kPassager },
            //% "Автоинформатор"
            { QT_TRID_NOOP("cfgo_069"), range(117, 120) },
            //% "Камера и акселерометр ТС"
            { QT_TRID_NOOP("cfgo_070"), { 121, 141 } },
            //% "Точная температура"
            { QT_TRID_NOOP("cfgo_071"), kHpTemp },
            //% "Влажность"
            { QT_TRID_NOOP("cfgo_072"), kHumidity },
        });
    connect(m_tires, qOverload<int>(&QComboBox::currentIndexChanged), this,
        &ZRK_Form_Config_Set_Orba3_Tab_More::slot_currentIndexChanged_Tires);
    translateForm();
}

QString ZRK_Form_Config_Set_Orba3_Tab_More::tiresText(int index)
{
    const int n = qBound(0, index, kTiresCount);
    return QString(n, QLatin1Char('1')) + QString(kTiresCount - n, QLatin1Char('0'));
}

// The count of leading "1"s: a gap ("1010") means the sensors after it are not there.
int ZRK_Form_Config_Set_Orba3_Tab_More::tiresIndex(const QString& fourChars)
{
    int n = 0;
    while (n < kTiresCount && n < fourChars.size() && fourChars.at(n) == QLatin1Char('1'))
        ++n;
    return n;
}

int ZRK_Form_Config_Set_Orba3_Tab_More::tickedSize(int generation) const
{
    int size = ZRK_Form_Config_Set_Orba3_Tab::tickedSize(generation);
    if (generation >= 1) {
        for (int i = 0; i < m_tiresIndex; ++i)
            size += positionWidth(kTiresFirst + i);
    }
    return size;
}

void ZRK_Form_Config_Set_Orba3_Tab_More::slot_currentIndexChanged_Tires(int index)
{
    const int before = m_tiresIndex;
    m_tiresIndex = qBound(0, index, kTiresCount);
    for (int i = qMin(before, m_tiresIndex); i < qMax(before, m_tiresIndex); ++i)
        notifyToggled(kTiresFirst + i, m_tiresIndex > before);
}

void ZRK_Form_Config_Set_Orba3_Tab_More::translateForm()
{
    translateBoxes();
    //% "Нет"
    m_tires->setItemText(0, qtTrId("cfgo_022"));
    const int upTo[] = { 0, 2, 6, 14, 30 };
    for (int i = 1; i <= kTiresCount; ++i)
        m_tires->setItemText(i, QStringLiteral("1–%1").arg(upTo[i]));
    //% "Поля 94–97: шины 1–2, 3–6, 7–14 и 15–30"
    m_tires->setToolTip(qtTrId("cfgo_028"));
}

void ZRK_Form_Config_Set_Orba3_Tab_More::getStrFormat_Orba_2(QString& mask)
{
    writeSpan(mask, 2);
    if (mask.size() >= kTiresFirst + kTiresCount)
        mask.replace(kTiresFirst, kTiresCount, tiresText(m_tiresIndex));
}

void ZRK_Form_Config_Set_Orba3_Tab_More::getStrFormat_Orba_3(QString& mask)
{
    writeSpan(mask, 3);
}

void ZRK_Form_Config_Set_Orba3_Tab_More::setStrFormat_Orba_2(QString mask)
{
    readSpan(mask, 2);
    m_tires->setCurrentIndex(tiresIndex(mask.mid(kTiresFirst, kTiresCount)));
}

void ZRK_Form_Config_Set_Orba3_Tab_More::setStrFormat_Orba_3(QString mask)
{
    readSpan(mask, 3);
}

void ZRK_Form_Config_Set_Orba3_Tab_More::setFormat_Enabled_Orba_2(bool enabled)
{
    enableSpan(2, enabled);
    m_tires->setEnabled(enabled);
}

void ZRK_Form_Config_Set_Orba3_Tab_More::setFormat_Enabled_Orba_3(bool enabled)
{
    enableSpan(3, enabled);
}

void ZRK_Form_Config_Set_Orba3_Tab_More::setDeviceUsePassager(bool use)
{
    showFirst(kPassager, use ? 8 : 0);
}
void ZRK_Form_Config_Set_Orba3_Tab_More::setDeviceUseTires(bool use)
{
    m_tiresGroup->setVisible(use);
}
void ZRK_Form_Config_Set_Orba3_Tab_More::setDeviceUseDisp(bool use)
{
    showFirst({ 103, 104 }, use ? 2 : 0);
}
void ZRK_Form_Config_Set_Orba3_Tab_More::setDeviceUseVAccelAxels(bool use)
{
    showPosition(141, use);
}
void ZRK_Form_Config_Set_Orba3_Tab_More::setDeviceUseAinf(bool use)
{
    showFirst(range(117, 120), use ? 4 : 0);
}
void ZRK_Form_Config_Set_Orba3_Tab_More::setDeviceUseCamera(bool use)
{
    showPosition(121, use);
}
void ZRK_Form_Config_Set_Orba3_Tab_More::setMaxCountHighPrecisionTemp(int count)
{
    showFirst(kHpTemp, count);
}
void ZRK_Form_Config_Set_Orba3_Tab_More::setMaxCountHighPrecisionHumidity(int count)
{
    showFirst(kHumidity, count);
}

// ---- Accelerometer, flow meter, refrigerator -------------------------------------------------

ZRK_Form_Config_Set_Orba3_Tab_Accel::ZRK_Form_Config_Set_Orba3_Tab_Accel(QWidget* parent)
    : ZRK_Form_Config_Set_Orba3_Tab(parent)
{
    buildSections(kTabTitles[6],
        {
            //% "Акселерометр терминала"
            { QT_TRID_NOOP("cfgo_073"), range(105, 108) },
            //% "Акселерометр ТС и эко-вождение"
            { QT_TRID_NOOP("cfgo_074"), join({ range(138, 140), range(142, 145) }) },
        });
}

void ZRK_Form_Config_Set_Orba3_Tab_Accel::translateForm()
{
    translateBoxes();
}
void ZRK_Form_Config_Set_Orba3_Tab_Accel::getStrFormat_Orba_2(QString& mask)
{
    writeSpan(mask, 2);
}
void ZRK_Form_Config_Set_Orba3_Tab_Accel::getStrFormat_Orba_3(QString& mask)
{
    writeSpan(mask, 3);
}
void ZRK_Form_Config_Set_Orba3_Tab_Accel::setStrFormat_Orba_2(QString mask)
{
    readSpan(mask, 2);
}
void ZRK_Form_Config_Set_Orba3_Tab_Accel::setStrFormat_Orba_3(QString mask)
{
    readSpan(mask, 3);
}
void ZRK_Form_Config_Set_Orba3_Tab_Accel::setFormat_Enabled_Orba_2(bool enabled)
{
    enableSpan(2, enabled);
}
void ZRK_Form_Config_Set_Orba3_Tab_Accel::setFormat_Enabled_Orba_3(bool enabled)
{
    enableSpan(3, enabled);
}

ZRK_Form_Config_Set_Orba3_Tab_FFS::ZRK_Form_Config_Set_Orba3_Tab_FFS(QWidget* parent)
    : ZRK_Form_Config_Set_Orba3_Tab(parent)
{
    buildSections(kTabTitles[7],
        {
            //% "Расходомер топлива"
            { QT_TRID_NOOP("cfgo_075"), range(170, 180) },
        });
}

void ZRK_Form_Config_Set_Orba3_Tab_FFS::translateForm()
{
    translateBoxes();
}
void ZRK_Form_Config_Set_Orba3_Tab_FFS::getStrFormat_Orba_3(QString& mask)
{
    writeSpan(mask, 3);
}
void ZRK_Form_Config_Set_Orba3_Tab_FFS::setStrFormat_Orba_3(QString mask)
{
    readSpan(mask, 3);
}
void ZRK_Form_Config_Set_Orba3_Tab_FFS::setFormat_Enabled_Orba_3(bool enabled)
{
    enableSpan(3, enabled);
}

ZRK_Form_Config_Set_Orba3_Tab_Refr::ZRK_Form_Config_Set_Orba3_Tab_Refr(QWidget* parent)
    : ZRK_Form_Config_Set_Orba3_Tab(parent)
{
    buildSections(kTabTitles[8],
        {
            //% "Рефрижераторная установка"
            { QT_TRID_NOOP("cfgo_076"), range(181, 198) },
        });
}

void ZRK_Form_Config_Set_Orba3_Tab_Refr::translateForm()
{
    translateBoxes();
}
void ZRK_Form_Config_Set_Orba3_Tab_Refr::getStrFormat_Orba_3(QString& mask)
{
    writeSpan(mask, 3);
}
void ZRK_Form_Config_Set_Orba3_Tab_Refr::setStrFormat_Orba_3(QString mask)
{
    readSpan(mask, 3);
}
void ZRK_Form_Config_Set_Orba3_Tab_Refr::setFormat_Enabled_Orba_3(bool enabled)
{
    enableSpan(3, enabled);
}

// ---- User parameters -------------------------------------------------------------------------

ZRK_Form_Config_Set_Orba3_Tab_User::ZRK_Form_Config_Set_Orba3_Tab_User(QWidget* parent)
    : ZRK_Form_Config_Set_Orba3_Tab(parent)
{
    setTitleId(kTabTitles[9]);
    const char* titles[4] = {
        //% "Параметры 1 байт"
        QT_TRID_NOOP("cfgo_077"),
        //% "Параметры 2 байта"
        QT_TRID_NOOP("cfgo_078"),
        //% "Параметры 4 байта"
        QT_TRID_NOOP("cfgo_079"),
        //% "Параметры 8 байт"
        QT_TRID_NOOP("cfgo_080"),
    };
    for (int g = 0; g < 4; ++g) {
        QGroupBox* group = makeSection(titles[g]);
        auto* grid = static_cast<QGridLayout*>(group->layout());
        for (int i = 0; i < kUserCounts[g]; ++i) {
            const int pos = kUserFirstPos[g] + i;
            QCheckBox* box = makeBox(pos, group);
            auto* name = new QLineEdit(group);
            name->setObjectName(QStringLiteral("lineEdit_UserName_%1").arg(pos + 1));
            name->setMaxLength(32);
            auto* type = new QComboBox(group);
            type->setObjectName(QStringLiteral("comboBox_UserType_%1").arg(pos + 1));
            fillTypes(type, g);
            grid->addWidget(box, i, 0);
            grid->addWidget(name, i, 1);
            grid->addWidget(type, i, 2);
            m_names.insert(pos, name);
            m_types.insert(pos, type);
        }
    }
    boxesLayout()->addStretch(1);
    translateForm();
}

void ZRK_Form_Config_Set_Orba3_Tab_User::fillTypes(QComboBox* box, int group)
{
    box->clear();
    for (int t = 0; t < userTypeCount(group); ++t)
        box->addItem(QString());
}

void ZRK_Form_Config_Set_Orba3_Tab_User::translateForm()
{
    translateBoxes();
    const char* typeIds[4] = {
        //% "Целое без знака"
        QT_TRID_NOOP("cfgo_023"),
        //% "Целое со знаком"
        QT_TRID_NOOP("cfgo_024"),
        //% "Шестнадцатеричное"
        QT_TRID_NOOP("cfgo_025"),
        //% "С плавающей точкой"
        QT_TRID_NOOP("cfgo_026"),
    };
    for (QComboBox* type : qAsConst(m_types)) {
        for (int t = 0; t < type->count(); ++t)
            type->setItemText(t, qtTrId(typeIds[t]));
    }
    for (QLineEdit* name : qAsConst(m_names))
        //% "Название параметра"
        name->setPlaceholderText(qtTrId("cfgo_027"));
}

void ZRK_Form_Config_Set_Orba3_Tab_User::setDefaultParam()
{
    setUserParams(defaultUserParams());
}

void ZRK_Form_Config_Set_Orba3_Tab_User::setFormEnabled(bool enabled)
{
    setEnabled(enabled);
}

void ZRK_Form_Config_Set_Orba3_Tab_User::getStrFormat_Orba_3(QString& mask)
{
    writeSpan(mask, 3);
}
void ZRK_Form_Config_Set_Orba3_Tab_User::setStrFormat_Orba_3(QString mask)
{
    readSpan(mask, 3);
}
void ZRK_Form_Config_Set_Orba3_Tab_User::setFormat_Enabled_Orba_3(bool enabled)
{
    enableSpan(3, enabled);
}

zrk::fieldset::UserParams ZRK_Form_Config_Set_Orba3_Tab_User::userParams() const
{
    UserParams params;
    for (int g = 0; g < 4; ++g) {
        for (int i = 0; i < kUserCounts[g]; ++i) {
            const int pos = kUserFirstPos[g] + i;
            params.names[g] << m_names.value(pos)->text();
            params.types[g]
                += QChar(QLatin1Char('0').unicode() + qMax(0, m_types.value(pos)->currentIndex()));
        }
    }
    return params;
}

void ZRK_Form_Config_Set_Orba3_Tab_User::setUserParams(const zrk::fieldset::UserParams& params)
{
    for (int g = 0; g < 4; ++g) {
        for (int i = 0; i < kUserCounts[g]; ++i) {
            const int pos = kUserFirstPos[g] + i;
            m_names.value(pos)->setText(params.names[g].value(i));
            const int type = i < params.types[g].size() ? params.types[g].at(i).digitValue() : 0;
            m_types.value(pos)->setCurrentIndex(type >= 0 && type < userTypeCount(g) ? type : 0);
        }
    }
}

void ZRK_Form_Config_Set_Orba3_Tab_User::readUserParam(CXMLWorkData* root)
{
    if (root)
        setUserParams(readUserParams(root));
}

void ZRK_Form_Config_Set_Orba3_Tab_User::writeUserParam(CXMLWorkData* root)
{
    if (root)
        writeUserParams(root, userParams());
}

// ---- The page --------------------------------------------------------------------------------

ZRK_Form_Config_Set_Orba3::ZRK_Form_Config_Set_Orba3(QWidget* parent)
    : ZRK_Form_Config_Page(parent)
    , ui(new Ui::ZRK_Designer_Form_Config_Set_Orba3)
{
    ui->setupUi(this);
    applyCaps();
    translateForm();
    initForm();
}

ZRK_Form_Config_Set_Orba3::~ZRK_Form_Config_Set_Orba3()
{
    delete ui;
}

void ZRK_Form_Config_Set_Orba3::applyCaps()
{
    ui->FlashFormat->clear();
    for (int i = 0; i < 3; ++i)
        ui->FlashFormat->addItem(QString());
    ui->label_Warning->hide();
}

void ZRK_Form_Config_Set_Orba3::translateForm()
{
    //% "Запись"
    m_tabTitle = qtTrId("cfgo_014");
    //% "ORBA 1 (поля 1–69)"
    ui->FlashFormat->setItemText(0, qtTrId("cfgo_011"));
    //% "ORBA 2 (поля 1–122)"
    ui->FlashFormat->setItemText(1, qtTrId("cfgo_012"));
    //% "ORBA 3 (поля 1–255)"
    ui->FlashFormat->setItemText(2, qtTrId("cfgo_013"));
    for (ZRK_Form_Config_Set_Orba3_Tab* tab : qAsConst(m_tabs)) {
        tab->translateForm();
        ui->tabWidget_Tabs->setTabText(ui->tabWidget_Tabs->indexOf(tab), tab->tabTitle());
    }
    setFormatSize();
}

void ZRK_Form_Config_Set_Orba3::initForm()
{
    connect(ui->FlashFormat, qOverload<int>(&QComboBox::currentIndexChanged), this,
        &ZRK_Form_Config_Set_Orba3::slot_currentIndexChanged_FlashFormat);
    connect(ui->Filter, &QLineEdit::textChanged, this, &ZRK_Form_Config_Set_Orba3::slot_textChanged_Filter);
    connect(ui->OnlyTicked, &QCheckBox::stateChanged, this,
        &ZRK_Form_Config_Set_Orba3::slot_stateChanged_OnlyTicked);
    connect(ui->PresetDefault, &QPushButton::pressed, this,
        &ZRK_Form_Config_Set_Orba3::slot_pressed_PresetDefault);
    connect(ui->PresetNavi, &QPushButton::pressed, this, &ZRK_Form_Config_Set_Orba3::slot_pressed_PresetNavi);
    connect(ui->PresetFile, &QPushButton::pressed, this, &ZRK_Form_Config_Set_Orba3::slot_pressed_PresetFile);
}

void ZRK_Form_Config_Set_Orba3::addTab(ZRK_Form_Config_Set_Orba3_Tab* tab)
{
    m_tabs.append(tab);
    ui->tabWidget_Tabs->addTab(tab, tab->tabTitle());
    connect(tab, &ZRK_Form_Config_Set_Orba3_Tab::positionToggled, this,
        &ZRK_Form_Config_Set_Orba3::slot_positionToggled);
    const int g = ui->FlashFormat->currentIndex();
    tab->setFormat_Enabled_Orba_1(true);
    tab->setFormat_Enabled_Orba_2(g >= 1);
    tab->setFormat_Enabled_Orba_3(g >= 2);
}

void ZRK_Form_Config_Set_Orba3::createTab_Main(int deviceType)
{
    if (!m_tabMain)
        addTab(m_tabMain = new ZRK_Form_Config_Set_Orba3_Tab_Main(deviceType));
}

void ZRK_Form_Config_Set_Orba3::createTab_Navi()
{
    if (!m_tabNavi)
        addTab(m_tabNavi = new ZRK_Form_Config_Set_Orba3_Tab_Navi);
}

void ZRK_Form_Config_Set_Orba3::createTab_RS(bool rs232, bool rs485Temp, bool rs485Freq)
{
    if (!m_tabRS)
        addTab(m_tabRS = new ZRK_Form_Config_Set_Orba3_Tab_RS(rs232, rs485Temp, rs485Freq));
}

void ZRK_Form_Config_Set_Orba3::createTab_CAN()
{
    if (!m_tabCAN)
        addTab(m_tabCAN = new ZRK_Form_Config_Set_Orba3_Tab_CAN);
}

void ZRK_Form_Config_Set_Orba3::createTab_Taho()
{
    if (!m_tabTaho)
        addTab(m_tabTaho = new ZRK_Form_Config_Set_Orba3_Tab_Taho);
}

void ZRK_Form_Config_Set_Orba3::createTab_Accel()
{
    if (!m_tabAccel)
        addTab(m_tabAccel = new ZRK_Form_Config_Set_Orba3_Tab_Accel);
}

void ZRK_Form_Config_Set_Orba3::createTab_Refr()
{
    if (!m_tabRefr)
        addTab(m_tabRefr = new ZRK_Form_Config_Set_Orba3_Tab_Refr);
}

void ZRK_Form_Config_Set_Orba3::createTab_FFS()
{
    if (!m_tabFFS)
        addTab(m_tabFFS = new ZRK_Form_Config_Set_Orba3_Tab_FFS);
}

void ZRK_Form_Config_Set_Orba3::createTab_More()
{
    if (!m_tabMore)
        addTab(m_tabMore = new ZRK_Form_Config_Set_Orba3_Tab_More);
}

void ZRK_Form_Config_Set_Orba3::createTab_User()
{
    if (!m_tabUser)
        addTab(m_tabUser = new ZRK_Form_Config_Set_Orba3_Tab_User);
}

// Main first and user last, whatever order they were created in.
static QList<ZRK_Form_Config_Set_Orba3_Tab*> maskOrder(const QList<ZRK_Form_Config_Set_Orba3_Tab*>& tabs,
    ZRK_Form_Config_Set_Orba3_Tab* main, ZRK_Form_Config_Set_Orba3_Tab* user)
{
    QList<ZRK_Form_Config_Set_Orba3_Tab*> order;
    if (main)
        order << main;
    for (auto* tab : tabs) {
        if (tab != main && tab != user)
            order << tab;
    }
    if (user)
        order << user;
    return order;
}

QString ZRK_Form_Config_Set_Orba3::getStrFormat() const
{
    const auto order = maskOrder(m_tabs, m_tabMain, m_tabUser);
    QString mask = QStringLiteral("111").leftJustified(kSpanEnd[1], QLatin1Char('0'));
    for (auto* tab : order)
        tab->getStrFormat_Orba_1(mask);
    mask = mask.leftJustified(kSpanEnd[2], QLatin1Char('0'));
    for (auto* tab : order)
        tab->getStrFormat_Orba_2(mask);
    mask = mask.leftJustified(kSpanEnd[3], QLatin1Char('0'));
    for (auto* tab : order)
        tab->getStrFormat_Orba_3(mask);
    return mask;
}

void ZRK_Form_Config_Set_Orba3::setStrFormatQuiet(const QString& text)
{
    const QString mask = sanitizedMask(text);
    const auto order = maskOrder(m_tabs, m_tabMain, m_tabUser);
    m_bulk = true;
    for (auto* tab : order)
        tab->setStrFormat_Orba_1(mask);
    for (auto* tab : order)
        tab->setStrFormat_Orba_2(mask);
    for (auto* tab : order)
        tab->setStrFormat_Orba_3(mask);
    m_bulk = false;
}

void ZRK_Form_Config_Set_Orba3::setStrFormat(const QString& mask)
{
    setStrFormatQuiet(mask);
    recountSize();
}

QComboBox* ZRK_Form_Config_Set_Orba3::flashFormat() const
{
    return ui->FlashFormat;
}

QLabel* ZRK_Form_Config_Set_Orba3::sizeLabel() const
{
    return ui->label_SizeValue;
}

QLabel* ZRK_Form_Config_Set_Orba3::warningLabel() const
{
    return ui->label_Warning;
}

QTabWidget* ZRK_Form_Config_Set_Orba3::tabWidget() const
{
    return ui->tabWidget_Tabs;
}

QString ZRK_Form_Config_Set_Orba3::getTypeDFProtocol() const
{
    return generationText(ui->FlashFormat->currentIndex());
}

void ZRK_Form_Config_Set_Orba3::setTypeDFProtocol(const QString& format)
{
    const int index = generationIndex(format);
    const QSignalBlocker block(ui->FlashFormat);
    ui->FlashFormat->setCurrentIndex(index);
    applyGeneration(index);
}

void ZRK_Form_Config_Set_Orba3::applyGeneration(int index)
{
    for (auto* tab : qAsConst(m_tabs)) {
        tab->setFormat_Enabled_Orba_1(true);
        tab->setFormat_Enabled_Orba_2(index >= 1);
        tab->setFormat_Enabled_Orba_3(index >= 2);
    }
    recountSize();
}

void ZRK_Form_Config_Set_Orba3::slot_currentIndexChanged_FlashFormat(int index)
{
    applyGeneration(index);
}

QString ZRK_Form_Config_Set_Orba3::defaultMask() const
{
    return zrk::fieldset::defaultMask(m_useDefState2);
}

void ZRK_Form_Config_Set_Orba3::setProtocol_CurSize_Inc(int bytes)
{
    m_curSize += bytes;
}

void ZRK_Form_Config_Set_Orba3::setProtocol_CurSize_Dec(int bytes)
{
    m_curSize -= bytes;
}

void ZRK_Form_Config_Set_Orba3::recountSize()
{
    m_curSize = maskRecordSize(getStrFormat(), ui->FlashFormat->currentIndex());
    setFormatSize();
}

QString ZRK_Form_Config_Set_Orba3::sizeBreakdown() const
{
    QStringList parts;
    const int g = ui->FlashFormat->currentIndex();
    for (auto* tab : m_tabs)
        parts << QStringLiteral("%1 %2").arg(tab->tabTitle()).arg(tab->tickedSize(g));
    return parts.join(QStringLiteral(" · "));
}

void ZRK_Form_Config_Set_Orba3::setFormatSize()
{
    ui->label_SizeValue->setText(QString::number(m_curSize));
    //% "По вкладкам, байт: %1"
    ui->label_Breakdown->setText(qtTrId("cfgo_017").arg(sizeBreakdown()));
    const bool over = m_curSize > kSizeLimit;
    ui->label_SizeValue->setStyleSheet(
        over ? QStringLiteral("color: rgb(200, 0, 0); font-weight: bold;") : QString());
    //% "Запись: %1 байт, больше допустимых %2, терминал не сохранит такие записи. Снимите часть полей."
    ui->label_Warning->setText(qtTrId("cfgo_016").arg(m_curSize).arg(kSizeLimit));
    ui->label_Warning->setVisible(over);
    if (m_tabUser)
        m_tabUser->setFormEnabled(!over);
    if (over != m_excessSize) {
        m_excessSize = over;
        emit notify_Excess_Size(over);
    }
}

void ZRK_Form_Config_Set_Orba3::slot_positionToggled(int pos, bool on)
{
    if (m_bulk || positionGeneration(pos) > ui->FlashFormat->currentIndex() + 1)
        return;
    if (on)
        setProtocol_CurSize_Inc(positionWidth(pos));
    else
        setProtocol_CurSize_Dec(positionWidth(pos));
    setFormatSize();
}

void ZRK_Form_Config_Set_Orba3::setDefaultParam()
{
    m_excessSize = false;
    {
        const QSignalBlocker block(ui->FlashFormat);
        ui->FlashFormat->setCurrentIndex(0);
    }
    m_defMask = zrk::fieldset::defaultMask(m_useDefState2, m_tabMain ? m_tabMain->isUseReservPower() : true);
    setStrFormatQuiet(m_defMask);
    for (auto* tab : qAsConst(m_tabs))
        tab->setDefaultParam();
    applyGeneration(0);
}

void ZRK_Form_Config_Set_Orba3::readFormParam(CXMLWorkData* root)
{
    if (!root)
        return;
    const FieldSetChoice choice = readFieldSet(root, m_useDefState2);
    setTypeDFProtocol(choice.format);
    setStrFormat(choice.mask);
}

void ZRK_Form_Config_Set_Orba3::writeFormParam(CXMLWorkData* root)
{
    if (!root)
        return;
    writeFieldSet(root, { getTypeDFProtocol(), getStrFormat() });
}

QVector<zrk::cfg::BranchDecl> ZRK_Form_Config_Set_Orba3::shownBranches() const
{
    return { zrk::cfg::protocolBranch(m_useDefState2), zrk::cfg::userParamBranch() };
}

// The user branch's values run by width: the type digits, then the names.
zrk::cfg::Values ZRK_Form_Config_Set_Orba3::shownValues(int branch) const
{
    if (branch == 0)
        return { getTypeDFProtocol(), getStrFormat() };
    zrk::cfg::Values values;
    const UserParams params = m_tabUser ? m_tabUser->userParams() : defaultUserParams();
    for (int g = 0; g < 4; ++g) {
        values << params.types[g];
        for (const QString& name : params.names[g])
            values << name;
    }
    return values;
}

void ZRK_Form_Config_Set_Orba3::showValues(int branch, const zrk::cfg::Values& values)
{
    if (branch == 0) {
        setTypeDFProtocol(values.value(0));
        setStrFormat(values.value(1));
        return;
    }
    if (!m_tabUser)
        return;
    UserParams params;
    int at = 0;
    for (int g = 0; g < 4; ++g) {
        params.types[g] = values.value(at++);
        for (int i = 0; i < kUserCounts[g]; ++i)
            params.names[g] << values.value(at++);
    }
    m_tabUser->setUserParams(params);
}

void ZRK_Form_Config_Set_Orba3::deviceConnect()
{
    for (auto* tab : qAsConst(m_tabs))
        tab->deviceConnect();
}

void ZRK_Form_Config_Set_Orba3::deviceDisconnect()
{
    for (auto* tab : qAsConst(m_tabs))
        tab->deviceDisconnect();
}

void ZRK_Form_Config_Set_Orba3::setFormEnabled(bool enabled)
{
    Q_UNUSED(enabled)
}

void ZRK_Form_Config_Set_Orba3::readUserParam(CXMLWorkData* root)
{
    if (m_tabUser)
        m_tabUser->readUserParam(root);
}

void ZRK_Form_Config_Set_Orba3::writeUserParam(CXMLWorkData* root)
{
    if (m_tabUser)
        m_tabUser->writeUserParam(root);
}

void ZRK_Form_Config_Set_Orba3::openTab(int value)
{
    if (value == 2 && ui->tabWidget_Tabs->count() > 0)
        ui->tabWidget_Tabs->setCurrentIndex(0);
    else if (value >= 201 && value - 201 < ui->tabWidget_Tabs->count())
        ui->tabWidget_Tabs->setCurrentIndex(value - 201);
}

void ZRK_Form_Config_Set_Orba3::openTabAccel()
{
    if (m_tabAccel)
        ui->tabWidget_Tabs->setCurrentWidget(m_tabAccel);
}

void ZRK_Form_Config_Set_Orba3::openTabCan()
{
    if (m_tabCAN)
        ui->tabWidget_Tabs->setCurrentWidget(m_tabCAN);
}

void ZRK_Form_Config_Set_Orba3::openTabUser()
{
    if (m_tabUser)
        ui->tabWidget_Tabs->setCurrentWidget(m_tabUser);
}

void ZRK_Form_Config_Set_Orba3::applyPresetDefault()
{
    setStrFormat(
        zrk::fieldset::defaultMask(m_useDefState2, m_tabMain ? m_tabMain->isUseReservPower() : true));
}

void ZRK_Form_Config_Set_Orba3::applyPresetNavigation()
{
    QString mask(kMaskLength, QLatin1Char('0'));
    for (int pos : kNaviPreset)
        mask[pos] = QLatin1Char('1');
    setStrFormat(mask);
}

bool ZRK_Form_Config_Set_Orba3::applyPresetFromFile(const QString& path, QString* error)
{
    QString mask;
    if (!readMaskFromFile(path, &mask)) {
        if (error)
            //% "Файл %1 не является конфигурацией с набором полей записи."
            *error = qtTrId("cfgo_019").arg(path);
        return false;
    }
    setStrFormat(mask);
    return true;
}

int ZRK_Form_Config_Set_Orba3::applyFilter(const QString& text, bool onlyTicked)
{
    int inSight = 0;
    for (auto* tab : qAsConst(m_tabs)) {
        const int n = tab->applyFilter(text.trimmed(), onlyTicked);
        ui->tabWidget_Tabs->setTabEnabled(
            ui->tabWidget_Tabs->indexOf(tab), n > 0 || (text.isEmpty() && !onlyTicked));
        inSight += n;
    }
    return inSight;
}

void ZRK_Form_Config_Set_Orba3::slot_textChanged_Filter(const QString& text)
{
    applyFilter(text, ui->OnlyTicked->isChecked());
}

void ZRK_Form_Config_Set_Orba3::slot_stateChanged_OnlyTicked(int state)
{
    applyFilter(ui->Filter->text(), state != Qt::Unchecked);
}

void ZRK_Form_Config_Set_Orba3::slot_pressed_PresetDefault()
{
    applyPresetDefault();
}

void ZRK_Form_Config_Set_Orba3::slot_pressed_PresetNavi()
{
    applyPresetNavigation();
}

void ZRK_Form_Config_Set_Orba3::slot_pressed_PresetFile()
{
    //% "Набор полей из файла конфигурации"
    const QString path = QFileDialog::getOpenFileName(this, qtTrId("cfgo_018"), QString(),
        //% "Файлы конфигурации (*.xml);;Все файлы (*)"
        qtTrId("cfgo_020"));
    if (path.isEmpty())
        return;
    QString error;
    if (!applyPresetFromFile(path, &error))
        //% "Ошибка"
        QMessageBox::warning(this, qtTrId("cfgo_029"), error);
}

// ---- Device description forwards -------------------------------------------------------------

#define ZRK_FORWARD(tab, call)                                                                               \
    do {                                                                                                     \
        if (tab)                                                                                             \
            tab->call;                                                                                       \
    } while (0)

void ZRK_Form_Config_Set_Orba3::setDeviceUseState(bool a, bool b)
{
    ZRK_FORWARD(m_tabMain, setDeviceUseState(a, b));
}
void ZRK_Form_Config_Set_Orba3::setDeviceAlwaysUseState(bool a, bool b)
{
    ZRK_FORWARD(m_tabMain, setDeviceAlwaysUseState(a, b));
}
void ZRK_Form_Config_Set_Orba3::setDeviceUseModule(bool a, bool b, bool c)
{
    ZRK_FORWARD(m_tabMain, setDeviceUseModule(a, b, c));
}
void ZRK_Form_Config_Set_Orba3::setDeviceAlwaysUseModule(bool a, bool b, bool c)
{
    ZRK_FORWARD(m_tabMain, setDeviceAlwaysUseModule(a, b, c));
}
void ZRK_Form_Config_Set_Orba3::setDeviceUseGSM(bool a, bool b)
{
    ZRK_FORWARD(m_tabMain, setDeviceUseGSM(a, b));
}
void ZRK_Form_Config_Set_Orba3::setDeviceUseMotochas(bool a, bool b, bool c)
{
    ZRK_FORWARD(m_tabMain, setDeviceUseMotochas(a, b, c));
}
void ZRK_Form_Config_Set_Orba3::setDeviceEnabledMotochasMore(bool e)
{
    ZRK_FORWARD(m_tabMain, setDeviceEnabledMotochasMore(e));
}
void ZRK_Form_Config_Set_Orba3::setMaxCountLinesOut(int n)
{
    ZRK_FORWARD(m_tabMain, setMaxCountLinesOut(n));
}
void ZRK_Form_Config_Set_Orba3::setMaxCountStateIn(int n)
{
    ZRK_FORWARD(m_tabMain, setMaxCountStateIn(n));
}
void ZRK_Form_Config_Set_Orba3::setMaxCountLinesIn(int n)
{
    ZRK_FORWARD(m_tabMain, setMaxCountLinesIn(n));
}
void ZRK_Form_Config_Set_Orba3::setMaxCountSensorsTemp(int n)
{
    ZRK_FORWARD(m_tabMain, setMaxCountSensorsTemp(n));
}
void ZRK_Form_Config_Set_Orba3::setDeviceUseReservPower(bool u)
{
    ZRK_FORWARD(m_tabMain, setDeviceUseReservPower(u));
}
void ZRK_Form_Config_Set_Orba3::setDeviceUseNaviMore(bool a, bool b)
{
    ZRK_FORWARD(m_tabNavi, setDeviceUseNaviMore(a, b));
}
void ZRK_Form_Config_Set_Orba3::setDeviceUseLBS(bool u)
{
    ZRK_FORWARD(m_tabNavi, setDeviceUseLBS(u));
}
void ZRK_Form_Config_Set_Orba3::setDeviceUseCANState(bool u)
{
    ZRK_FORWARD(m_tabCAN, setDeviceUseCANState(u));
}
void ZRK_Form_Config_Set_Orba3::setDeviceUsePassager(bool u)
{
    ZRK_FORWARD(m_tabMore, setDeviceUsePassager(u));
}
void ZRK_Form_Config_Set_Orba3::setDeviceUseTires(bool u)
{
    ZRK_FORWARD(m_tabMore, setDeviceUseTires(u));
}
void ZRK_Form_Config_Set_Orba3::setDeviceUseDisp(bool u)
{
    ZRK_FORWARD(m_tabMore, setDeviceUseDisp(u));
}
void ZRK_Form_Config_Set_Orba3::setDeviceUseVAccelAxels(bool u)
{
    ZRK_FORWARD(m_tabMore, setDeviceUseVAccelAxels(u));
}
void ZRK_Form_Config_Set_Orba3::setDeviceUseAinf(bool u)
{
    ZRK_FORWARD(m_tabMore, setDeviceUseAinf(u));
}
void ZRK_Form_Config_Set_Orba3::setDeviceUseCamera(bool u)
{
    ZRK_FORWARD(m_tabMore, setDeviceUseCamera(u));
}
void ZRK_Form_Config_Set_Orba3::setMaxCountHighPrecisionTemp(int n)
{
    ZRK_FORWARD(m_tabMore, setMaxCountHighPrecisionTemp(n));
}
void ZRK_Form_Config_Set_Orba3::setMaxCountHighPrecisionHumidity(int n)
{
    ZRK_FORWARD(m_tabMore, setMaxCountHighPrecisionHumidity(n));
}
void ZRK_Form_Config_Set_Orba3::setRS485_FLS_MaxCount(int n)
{
    ZRK_FORWARD(m_tabRS, setRS485_FLS_MaxCount(n));
}

#undef ZRK_FORWARD
