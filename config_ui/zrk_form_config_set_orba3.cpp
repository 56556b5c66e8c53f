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

// "navigation only": the fields that make a track, besides the three every record has.
const QVector<int> kNaviPreset = { 0, 1, 2, 8, 9, 10, 11, 12, 13, 14 };

// The types a user parameter can be shown as.
const char* const kUserTypeIds[4] = {
    //% "Целое без знака"
    QT_TRID_NOOP("cfgo_023"),
    //% "Целое со знаком"
    QT_TRID_NOOP("cfgo_024"),
    //% "Шестнадцатеричное"
    QT_TRID_NOOP("cfgo_025"),
    //% "С плавающей точкой"
    QT_TRID_NOOP("cfgo_026"),
};

int userGroupOf(int pos)
{
    for (int g = 3; g >= 0; --g) {
        if (pos >= kUserFirstPos[g])
            return g;
    }
    return 0;
}

} // namespace

// ---- The tab ---------------------------------------------------------------------------------

ZRK_Form_Config_Set_Orba3_Tab::ZRK_Form_Config_Set_Orba3_Tab(TabId id, int deviceType, QWidget* parent)
    : QWidget(parent)
    , ui(new Ui::ZRK_Designer_Form_Config_Set_Orba3_Tab)
    , m_id(id)
    , m_deviceType(deviceType)
{
    ui->setupUi(this);
    const TabDecl& decl = tabDecl(id);
    for (const TabSection& section : decl.sections) {
        QGroupBox* group = makeSection(section.titleId);
        auto* grid = static_cast<QGridLayout*>(group->layout());
        int i = 0;
        switch (section.kind) {
        case SectionKind::Boxes:
            for (int pos : section.positions) {
                grid->addWidget(makeBox(pos, group), i / decl.columns, i % decl.columns);
                ++i;
            }
            break;
        case SectionKind::TyreCount:
            m_tiresGroup = group;
            m_tires = new QComboBox(group);
            m_tires->setObjectName(QStringLiteral("Tires"));
            for (int n = 0; n <= kTiresCount; ++n)
                m_tires->addItem(QString());
            grid->addWidget(m_tires, 0, 0);
            connect(m_tires, qOverload<int>(&QComboBox::currentIndexChanged), this,
                &ZRK_Form_Config_Set_Orba3_Tab::slot_currentIndexChanged_Tires);
            break;
        case SectionKind::UserParams:
            for (int pos : section.positions)
                makeUserRow(pos, userGroupOf(pos), group, i++);
            break;
        }
    }
    ui->layout_Boxes->addStretch(1);
    if (id == TabMain) {
        makeAlternates();
        for (int pos = 0; pos < kAlwaysOn; ++pos)
            forcePosition(pos, true);
    }
    translateForm();
}

ZRK_Form_Config_Set_Orba3_Tab::~ZRK_Form_Config_Set_Orba3_Tab()
{
    delete ui;
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
    connect(box, &QCheckBox::toggled, this, [this, pos](bool on) { emit positionToggled(pos, on); });
    return box;
}

void ZRK_Form_Config_Set_Orba3_Tab::makeUserRow(int pos, int group, QGroupBox* section, int row)
{
    auto* grid = static_cast<QGridLayout*>(section->layout());
    QCheckBox* box = makeBox(pos, section);
    auto* name = new QLineEdit(section);
    name->setObjectName(QStringLiteral("lineEdit_UserName_%1").arg(pos + 1));
    name->setMaxLength(32);
    auto* type = new QComboBox(section);
    type->setObjectName(QStringLiteral("comboBox_UserType_%1").arg(pos + 1));
    for (int t = 0; t < userTypeCount(group); ++t)
        type->addItem(QString());
    grid->addWidget(box, row, 0);
    grid->addWidget(name, row, 1);
    grid->addWidget(type, row, 2);
    m_names.insert(pos, name);
    m_types.insert(pos, type);
}

// Positions 3..5 have a second box for the other device type; only one of each pair is used.
void ZRK_Form_Config_Set_Orba3_Tab::makeAlternates()
{
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
            connect(
                primary, &QCheckBox::toggled, this, [this, pos](bool on) { emit positionToggled(pos, on); });
            disconnect(other, nullptr, this, nullptr);
        }
        other->hide();
        m_alternate.insert(pos, other);
    }
}

QString ZRK_Form_Config_Set_Orba3_Tab::tabTitle() const
{
    return qtTrId(tabDecl(m_id).titleId);
}

QList<int> ZRK_Form_Config_Set_Orba3_Tab::positions() const
{
    return m_boxes.keys();
}

int ZRK_Form_Config_Set_Orba3_Tab::tickedSize(int generation) const
{
    QString mask(kMaskLength, QLatin1Char('0'));
    for (int g = 1; g <= 3; ++g)
        writeSpan(mask, g);
    return tabRecordSize(m_id, mask, generation);
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

void ZRK_Form_Config_Set_Orba3_Tab::translateForm()
{
    for (auto it = m_boxes.cbegin(); it != m_boxes.cend(); ++it) {
        const int no = it.key() + 1;
        it.value()->setText(orba::fieldLabel(no));
        //% "Поле %1, размер в записи: %2 байт"
        it.value()->setToolTip(qtTrId("cfgo_015").arg(no).arg(positionWidth(it.key())));
    }
    for (auto it = m_alternate.cbegin(); it != m_alternate.cend(); ++it)
        it.value()->setText(orba::fieldLabel(it.key() + 1));
    for (const auto& section : qAsConst(m_sections))
        section.first->setTitle(qtTrId(section.second));
    if (m_tires) {
        //% "Нет"
        m_tires->setItemText(0, qtTrId("cfgo_022"));
        const int upTo[] = { 0, 2, 6, 14, 30 };
        for (int i = 1; i <= kTiresCount; ++i)
            m_tires->setItemText(i, QStringLiteral("1–%1").arg(upTo[i]));
        //% "Поля 94–97: шины 1–2, 3–6, 7–14 и 15–30"
        m_tires->setToolTip(qtTrId("cfgo_028"));
    }
    for (QComboBox* type : qAsConst(m_types)) {
        for (int t = 0; t < type->count(); ++t)
            type->setItemText(t, qtTrId(kUserTypeIds[t]));
    }
    for (QLineEdit* name : qAsConst(m_names))
        //% "Название параметра"
        name->setPlaceholderText(qtTrId("cfgo_027"));
}

QPair<ZRK_Form_Config_Set_Orba3_Tab::BoxIt, ZRK_Form_Config_Set_Orba3_Tab::BoxIt>
ZRK_Form_Config_Set_Orba3_Tab::spanBoxes(int g) const
{
    // A generation's positions are one span of the mask: one run of the map, in order.
    if (g >= 1 && g <= 3)
        return { m_boxes.lowerBound(kSpanEnd[g - 1]), m_boxes.lowerBound(kSpanEnd[g]) };
    return { m_boxes.cend(), m_boxes.cend() };
}

void ZRK_Form_Config_Set_Orba3_Tab::writeSpan(QString& mask, int g) const
{
    const auto span = spanBoxes(g);
    for (auto it = span.first; it != span.second; ++it) {
        if (it.key() < mask.size())
            mask[it.key()] = QLatin1Char(it.value()->isChecked() ? '1' : '0');
    }
    if (m_tires && positionGeneration(kTiresFirst) == g && mask.size() >= kTiresFirst + kTiresCount)
        mask.replace(kTiresFirst, kTiresCount, tiresText(m_tiresIndex));
}

void ZRK_Form_Config_Set_Orba3_Tab::readSpan(const QString& mask, int g)
{
    const auto span = spanBoxes(g);
    for (auto it = span.first; it != span.second; ++it) {
        const bool on = m_forced.contains(it.key())
            || (it.key() < mask.size() && mask.at(it.key()) == QLatin1Char('1'));
        it.value()->setChecked(on);
    }
    if (m_tires && positionGeneration(kTiresFirst) == g)
        m_tires->setCurrentIndex(tiresIndex(mask.mid(kTiresFirst, kTiresCount)));
    if (g == 1) {
        for (auto it = m_alternate.cbegin(); it != m_alternate.cend(); ++it)
            it.value()->setChecked(m_boxes.value(it.key())->isChecked());
    }
}

void ZRK_Form_Config_Set_Orba3_Tab::enableSpan(int g, bool enabled)
{
    m_spanEnabled[qBound(0, g, 3)] = enabled;
    const auto span = spanBoxes(g);
    for (auto it = span.first; it != span.second; ++it)
        refreshBox(it.key());
    if (m_tires && positionGeneration(kTiresFirst) == g)
        m_tires->setEnabled(enabled);
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

void ZRK_Form_Config_Set_Orba3_Tab::showTyres(bool shown)
{
    if (m_tiresGroup)
        m_tiresGroup->setVisible(shown);
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
        bool owns = false;
        for (auto it = m_sectionOf.cbegin(); it != m_sectionOf.cend() && !any; ++it) {
            if (it.value() != section.first)
                continue;
            owns = true;
            any = !it.key()->isHidden();
        }
        // A section without boxes of its own (the tyre list) keeps its own visibility.
        if (owns)
            section.first->setVisible(any);
    }
}

void ZRK_Form_Config_Set_Orba3_Tab::slot_currentIndexChanged_Tires(int index)
{
    const int before = m_tiresIndex;
    m_tiresIndex = qBound(0, index, kTiresCount);
    for (int i = qMin(before, m_tiresIndex); i < qMax(before, m_tiresIndex); ++i)
        emit positionToggled(kTiresFirst + i, m_tiresIndex > before);
}

void ZRK_Form_Config_Set_Orba3_Tab::setDefaultParam()
{
    if (!m_names.isEmpty())
        setUserParams(defaultUserParams());
}

void ZRK_Form_Config_Set_Orba3_Tab::setFormEnabled(bool enabled)
{
    // Only the user parameters give way when the record is too long.
    if (!m_names.isEmpty())
        setEnabled(enabled);
}

zrk::fieldset::UserParams ZRK_Form_Config_Set_Orba3_Tab::userParams() const
{
    UserParams params;
    for (int g = 0; g < 4 && !m_names.isEmpty(); ++g) {
        params.names[g].reserve(kUserCounts[g]);
        params.types[g].reserve(kUserCounts[g]);
        for (int i = 0; i < kUserCounts[g]; ++i) {
            const int pos = kUserFirstPos[g] + i;
            params.names[g] << m_names.value(pos)->text();
            params.types[g]
                += QChar(QLatin1Char('0').unicode() + qMax(0, m_types.value(pos)->currentIndex()));
        }
    }
    return params;
}

void ZRK_Form_Config_Set_Orba3_Tab::setUserParams(const zrk::fieldset::UserParams& params)
{
    for (int g = 0; g < 4 && !m_names.isEmpty(); ++g) {
        for (int i = 0; i < kUserCounts[g]; ++i) {
            const int pos = kUserFirstPos[g] + i;
            m_names.value(pos)->setText(params.names[g].value(i));
            const int type = i < params.types[g].size() ? params.types[g].at(i).digitValue() : 0;
            m_types.value(pos)->setCurrentIndex(type >= 0 && type < userTypeCount(g) ? type : 0);
        }
    }
}

void ZRK_Form_Config_Set_Orba3_Tab::readUserParam(CXMLWorkData* root)
{
    if (root && !m_names.isEmpty())
        setUserParams(readUserParams(root));
}

void ZRK_Form_Config_Set_Orba3_Tab::writeUserParam(CXMLWorkData* root)
{
    if (root && !m_names.isEmpty())
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

ZRK_Form_Config_Set_Orba3_Tab* ZRK_Form_Config_Set_Orba3::addTab(TabId id, int deviceType)
{
    auto* tab = new ZRK_Form_Config_Set_Orba3_Tab(id, deviceType);
    m_tabs.append(tab);
    ui->tabWidget_Tabs->addTab(tab, tab->tabTitle());
    connect(tab, &ZRK_Form_Config_Set_Orba3_Tab::positionToggled, this,
        &ZRK_Form_Config_Set_Orba3::slot_positionToggled);
    const int g = ui->FlashFormat->currentIndex();
    tab->setFormat_Enabled_Orba_1(true);
    tab->setFormat_Enabled_Orba_2(g >= 1);
    tab->setFormat_Enabled_Orba_3(g >= 2);
    return tab;
}

void ZRK_Form_Config_Set_Orba3::createTab_Main(int deviceType)
{
    if (!m_tabMain)
        m_tabMain = addTab(TabMain, deviceType);
}

void ZRK_Form_Config_Set_Orba3::createTab_Navi()
{
    if (!m_tabNavi)
        m_tabNavi = addTab(TabNavi);
}

void ZRK_Form_Config_Set_Orba3::createTab_RS(bool rs232, bool rs485Temp, bool rs485Freq)
{
    if (m_tabRS)
        return;
    m_tabRS = addTab(TabRS);
    m_rs485Temp = rs485Temp;
    m_rs485Freq = rs485Freq;
    m_tabRS->showPosition(43, rs232);
    setRS485_FLS_MaxCount(16);
}

void ZRK_Form_Config_Set_Orba3::createTab_CAN()
{
    if (!m_tabCAN)
        m_tabCAN = addTab(TabCAN);
}

void ZRK_Form_Config_Set_Orba3::createTab_Taho()
{
    if (!m_tabTaho)
        m_tabTaho = addTab(TabTaho);
}

void ZRK_Form_Config_Set_Orba3::createTab_Accel()
{
    if (!m_tabAccel)
        m_tabAccel = addTab(TabAccel);
}

void ZRK_Form_Config_Set_Orba3::createTab_Refr()
{
    if (!m_tabRefr)
        m_tabRefr = addTab(TabRefr);
}

void ZRK_Form_Config_Set_Orba3::createTab_FFS()
{
    if (!m_tabFFS)
        m_tabFFS = addTab(TabFFS);
}

void ZRK_Form_Config_Set_Orba3::createTab_More()
{
    if (!m_tabMore)
        m_tabMore = addTab(TabMore);
}

void ZRK_Form_Config_Set_Orba3::createTab_User()
{
    if (!m_tabUser)
        m_tabUser = addTab(TabUser);
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
    m_defMask = zrk::fieldset::defaultMask(m_useDefState2, m_useReserv);
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
    values.reserve(4 + kUserCounts[0] + kUserCounts[1] + kUserCounts[2] + kUserCounts[3]);
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
    setStrFormat(zrk::fieldset::defaultMask(m_useDefState2, m_useReserv));
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

// ---- Device description: each setter shows, locks or ticks the boxes of its tab ----------------

void ZRK_Form_Config_Set_Orba3::setDeviceUseState(bool state, bool state2)
{
    if (m_tabMain) {
        m_tabMain->showPosition(3, state);
        m_tabMain->showPosition(kPosState2, state2);
    }
}

void ZRK_Form_Config_Set_Orba3::setDeviceAlwaysUseState(bool state, bool state2)
{
    if (m_tabMain) {
        m_tabMain->forcePosition(3, state);
        m_tabMain->forcePosition(kPosState2, state2);
    }
}

void ZRK_Form_Config_Set_Orba3::setDeviceUseModule(bool module1, bool module2, bool module3)
{
    if (m_tabMain) {
        m_tabMain->showPosition(4, module1);
        m_tabMain->showPosition(5, module2);
        m_tabMain->showPosition(123, module3);
    }
}

void ZRK_Form_Config_Set_Orba3::setDeviceAlwaysUseModule(bool module1, bool module2, bool module3)
{
    if (m_tabMain) {
        m_tabMain->forcePosition(4, module1);
        m_tabMain->forcePosition(5, module2);
        m_tabMain->forcePosition(123, module3);
    }
}

void ZRK_Form_Config_Set_Orba3::setDeviceUseGSM(bool gsm, bool connections)
{
    if (m_tabMain) {
        m_tabMain->showPosition(6, gsm);
        m_tabMain->showPosition(124, connections);
    }
}

void ZRK_Form_Config_Set_Orba3::setDeviceUseMotochas(bool motochas, bool loadOn, bool loadOff)
{
    if (m_tabMain) {
        m_tabMain->showPosition(36, motochas);
        m_tabMain->showPosition(204, loadOn);
        m_tabMain->showPosition(205, loadOff);
    }
}

void ZRK_Form_Config_Set_Orba3::setDeviceEnabledMotochasMore(bool enabled)
{
    if (m_tabMain) {
        m_tabMain->lockPosition(204, !enabled);
        m_tabMain->lockPosition(205, !enabled);
    }
}

// Outputs and input states come eight to a byte.
void ZRK_Form_Config_Set_Orba3::setMaxCountLinesOut(int count)
{
    if (m_tabMain)
        m_tabMain->showFirst({ 30, 31 }, (count + 7) / 8);
}

void ZRK_Form_Config_Set_Orba3::setMaxCountStateIn(int count)
{
    if (m_tabMain)
        m_tabMain->showFirst({ 28, 29, 125 }, (count + 7) / 8);
}

void ZRK_Form_Config_Set_Orba3::setMaxCountLinesIn(int count)
{
    if (m_tabMain) {
        m_tabMain->showFirst(kMainAnalogue, count);
        m_tabMain->showFirst(kMainPulse, count);
        m_tabMain->showFirst(kMainFrequency, count);
    }
}

void ZRK_Form_Config_Set_Orba3::setMaxCountSensorsTemp(int count)
{
    if (m_tabMain)
        m_tabMain->showFirst(kMainTemp, count);
}

void ZRK_Form_Config_Set_Orba3::setDeviceUseReservPower(bool use)
{
    m_useReserv = use;
    if (m_tabMain)
        m_tabMain->showPosition(kPosReserv, use);
}

void ZRK_Form_Config_Set_Orba3::setDeviceUseNaviMore(bool naviMore, bool preciseCoord)
{
    if (!m_tabNavi)
        return;
    for (int pos : { 69, 70, 71, 73, 74, 75 })
        m_tabNavi->showPosition(pos, naviMore);
    m_tabNavi->showPosition(72, naviMore && preciseCoord);
}

void ZRK_Form_Config_Set_Orba3::setDeviceUseLBS(bool use)
{
    if (m_tabNavi)
        m_tabNavi->showPosition(76, use);
}

void ZRK_Form_Config_Set_Orba3::setDeviceUseCANState(bool use)
{
    if (m_tabCAN)
        m_tabCAN->showFirst({ 200, 201, 202, 203 }, use ? 4 : 0);
}

void ZRK_Form_Config_Set_Orba3::setDeviceUsePassager(bool use)
{
    if (m_tabMore)
        m_tabMore->showFirst(kPassenger, use ? kPassenger.size() : 0);
}

void ZRK_Form_Config_Set_Orba3::setDeviceUseTires(bool use)
{
    if (m_tabMore)
        m_tabMore->showTyres(use);
}

void ZRK_Form_Config_Set_Orba3::setDeviceUseDisp(bool use)
{
    if (m_tabMore)
        m_tabMore->showFirst({ 103, 104 }, use ? 2 : 0);
}

void ZRK_Form_Config_Set_Orba3::setDeviceUseVAccelAxels(bool use)
{
    if (m_tabMore)
        m_tabMore->showPosition(141, use);
}

void ZRK_Form_Config_Set_Orba3::setDeviceUseAinf(bool use)
{
    if (m_tabMore)
        m_tabMore->showFirst({ 117, 118, 119, 120 }, use ? 4 : 0);
}

void ZRK_Form_Config_Set_Orba3::setDeviceUseCamera(bool use)
{
    if (m_tabMore)
        m_tabMore->showPosition(121, use);
}

void ZRK_Form_Config_Set_Orba3::setMaxCountHighPrecisionTemp(int count)
{
    if (m_tabMore)
        m_tabMore->showFirst(kHpTemp, count);
}

void ZRK_Form_Config_Set_Orba3::setMaxCountHighPrecisionHumidity(int count)
{
    if (m_tabMore)
        m_tabMore->showFirst(kHumidity, count);
}

void ZRK_Form_Config_Set_Orba3::setRS485_FLS_MaxCount(int count)
{
    if (!m_tabRS)
        return;
    m_tabRS->showFirst(kRsLevel, count);
    m_tabRS->showFirst(kRsTemp, m_rs485Temp ? count : 0);
    m_tabRS->showFirst(kRsFreq, m_rs485Freq ? count : 0);
}
