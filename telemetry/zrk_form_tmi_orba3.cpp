#include "telemetry/zrk_form_tmi_orba3.h"

#include "telemetry/orba_field_labels.h"
#include "telemetry/orba_page.h"
#include "ui_zrk_form_tmi_orba3.h"

#include <algorithm>

#include <QAbstractTableModel>
#include <QAction>
#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QTableView>
#include <QTableWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

struct FieldRange
{
    int from, to;
};

// The tabs and the fields each shows, in the order a technician reads a record. The tyres and
// the raw bytes have tabs of their own shape.
struct TabDef
{
    const char* titleId;
    std::initializer_list<FieldRange> fields;
};

const TabDef kTabs[] = {
    //% "Основное"
    { QT_TRID_NOOP("tmio_001"),
        { { 1, 6 }, { 123, 125 }, { 7, 8 }, { 200, 200 }, { 104, 105 }, { 122, 122 } } },
    //% "Навигация"
    { QT_TRID_NOOP("tmio_002"), { { 9, 18 }, { 70, 77 } } },
    //% "Питание, входы и выходы"
    { QT_TRID_NOOP("tmio_003"),
        { { 19, 30 }, { 126, 126 }, { 31, 34 }, { 127, 132 }, { 35, 36 }, { 133, 138 }, { 37, 37 },
            { 205, 206 } } },
    //% "Датчики"
    { QT_TRID_NOOP("tmio_004"), { { 38, 52 }, { 78, 93 }, { 147, 170 } } },
    //% "Шина CAN"
    { QT_TRID_NOOP("tmio_005"), { { 53, 69 }, { 201, 204 } } },
    //% "Тахограф"
    { QT_TRID_NOOP("tmio_007"), { { 98, 103 } } },
    //% "Акселерометр и эко-вождение"
    { QT_TRID_NOOP("tmio_008"), { { 106, 109 }, { 139, 146 } } },
    //% "Пассажиры"
    { QT_TRID_NOOP("tmio_009"), { { 110, 117 } } },
    //% "Геоинформация"
    { QT_TRID_NOOP("tmio_010"), { { 118, 121 } } },
    //% "Датчики расхода топлива"
    { QT_TRID_NOOP("tmio_011"), { { 171, 181 } } },
    //% "Рефрижератор"
    { QT_TRID_NOOP("tmio_012"), { { 182, 199 } } },
    //% "Пользовательские параметры"
    { QT_TRID_NOOP("tmio_013"), { { 207, 255 } } },
};
constexpr int kTyreTabAfter = 4; // the tyres follow the CAN tab
//% "Шины"
const char* const kTyreTitle = QT_TRID_NOOP("tmio_006");
//% "Исходные данные"
const char* const kRawTitle = QT_TRID_NOOP("tmio_014");

constexpr int kTyres = 30;
static_assert(orba::S_TiresTemp30 == orba::S_TiresNum1 + 3 * kTyres - 1, "tyre sub-values are consecutive");

int tyreField(int i)
{
    return i < 2 ? orba::F_Tires1_2
        : i < 6  ? orba::F_Tires3_6
        : i < 14 ? orba::F_Tires7_14
                 : orba::F_Tires15_30;
}

bool isDiagnostic(int sub)
{
    return sub == orba::S_CAN3FailureCode || (sub >= orba::S_RefrErrorCode1 && sub <= orba::S_RefrErrorCode6);
}

QIcon lampIcon(bool on)
{
    QPixmap pm(14, 14);
    pm.fill(Qt::transparent);
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QColor(0x40, 0x40, 0x40));
    p.setBrush(on ? QColor(0x2e, 0xcc, 0x40) : QColor(0xc8, 0xc8, 0xc8));
    p.drawEllipse(1, 1, 12, 12);
    return QIcon(pm);
}

const QColor kAbsentColour(0x99, 0x99, 0x99);

} // namespace

// The record body, sixteen bytes a row, offsets down the side.
class ZRK_Form_TMI_Orba3::RawBytesModel : public QAbstractTableModel
{
public:
    using QAbstractTableModel::QAbstractTableModel;

    const QByteArray& bytes() const { return m_bytes; }
    void setBytes(const QByteArray& bytes)
    {
        if (rows(bytes) != rows(m_bytes) || bytes.size() % 16 != m_bytes.size() % 16) {
            beginResetModel();
            m_bytes = bytes;
            endResetModel();
        } else if (!bytes.isEmpty()) {
            m_bytes = bytes;
            emit dataChanged(index(0, 0), index(rows(bytes) - 1, 15), { Qt::DisplayRole });
        }
    }
    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : rows(m_bytes);
    }
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : 16; }
    QVariant data(const QModelIndex& index, int role) const override
    {
        const int at = index.row() * 16 + index.column();
        if (at >= m_bytes.size())
            return {};
        if (role == Qt::DisplayRole)
            return QStringLiteral("%1").arg(quint8(m_bytes.at(at)), 2, 16, QLatin1Char('0'));
        if (role == Qt::TextAlignmentRole)
            return int(Qt::AlignCenter);
        return {};
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (role != Qt::DisplayRole)
            return {};
        if (orientation == Qt::Horizontal)
            return QString::number(section, 16).toUpper();
        return QStringLiteral("%1").arg(section * 16, 4, 16, QLatin1Char('0'));
    }

private:
    static int rows(const QByteArray& b) { return (b.size() + 15) / 16; }
    QByteArray m_bytes;
};

ZRK_Form_TMI_Orba3::ZRK_Form_TMI_Orba3(QWidget* parent)
    : QWidget(parent)
    , ui(new Ui::ZRK_Designer_Form_TMI_Orba3)
{
    ui->setupUi(this);
    setObjectName(QStringLiteral("ZRK_Form_TMI_Orba3"));
    m_fieldRow.fill(-1, orba::kFieldCount + 1);
    buildTabs();
    m_tabStale.fill(false, ui->Tabs->count());
    connect(ui->Tabs, &QTabWidget::currentChanged, this, &ZRK_Form_TMI_Orba3::refreshTab);
    translateForm();
}

ZRK_Form_TMI_Orba3::~ZRK_Form_TMI_Orba3() = default;

void ZRK_Form_TMI_Orba3::setTextSources(EventText eventText, DiagnosticText diagnosticText)
{
    m_eventText = std::move(eventText);
    m_diagnosticText = std::move(diagnosticText);
}

void ZRK_Form_TMI_Orba3::buildTabs()
{
    int tabNo = 0;
    for (const TabDef& tab : kTabs) {
        auto* tree = new QTreeWidget;
        tree->setObjectName(QStringLiteral("Tab_%1").arg(QLatin1String(tab.titleId)));
        tree->setColumnCount(2);
        tree->setHeaderHidden(true);
        tree->setUniformRowHeights(true);
        tree->setAlternatingRowColors(true);
        tree->setRootIsDecorated(true);
        tree->header()->setSectionResizeMode(0, QHeaderView::Interactive);
        tree->header()->resizeSection(0, 210);
        tree->header()->setStretchLastSection(true);
        for (const FieldRange& r : tab.fields)
            for (int no = r.from; no <= r.to; ++no)
                addFieldRows(tree, no);
        tree->expandAll();
        // Wide enough for the names, once: the rows never change their names afterwards.
        tree->resizeColumnToContents(0);
        tree->setColumnWidth(0, qBound(210, tree->columnWidth(0) + 8, 360));
        ui->Tabs->addTab(tree, QString());
        m_tabTitleIds << tabNo++;
        if (tabNo == kTyreTabAfter + 1) {
            m_tyres = new QTableWidget(kTyres, 3);
            m_tyres->setObjectName(QStringLiteral("Tyres"));
            m_tyres->verticalHeader()->setVisible(false);
            m_tyres->setEditTriggers(QAbstractItemView::NoEditTriggers);
            m_tyres->horizontalHeader()->setStretchLastSection(true);
            for (int i = 0; i < kTyres * 3; ++i)
                m_tyres->setItem(i / 3, i % 3, new QTableWidgetItem);
            m_tyreTexts.fill(QString(), kTyres * 3);
            m_tyreState.fill(-1, kTyres);
            ui->Tabs->addTab(m_tyres, QString());
            m_tabTitleIds << -1;
        }
    }
    // The raw tab: the field set as names, and the body as a hex table whose cells change in
    // place, so a live record costs no text layout here.
    auto* raw = new QWidget;
    raw->setObjectName(QStringLiteral("Raw"));
    auto* rawLayout = new QVBoxLayout(raw);
    m_rawFields = new QLabel;
    m_rawFields->setObjectName(QStringLiteral("RawFields"));
    m_rawFields->setWordWrap(true);
    m_rawFields->setTextInteractionFlags(Qt::TextSelectableByMouse);
    rawLayout->addWidget(m_rawFields);
    m_rawModel = new RawBytesModel(this);
    m_rawBytes = new QTableView;
    m_rawBytes->setObjectName(QStringLiteral("RawBytes"));
    m_rawBytes->setModel(m_rawModel);
    // The system's fixed font rather than a family named by a literal: Qt's font cache keeps such a
    // name after the plug-in is unloaded, and the literal's bytes go with the plug-in.
    QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    fixed.setPointSize(9);
    m_rawBytes->setFont(fixed);
    m_rawBytes->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_rawBytes->horizontalHeader()->setDefaultSectionSize(
        QFontMetrics(fixed).horizontalAdvance(QStringLiteral("000")) + 6);
    m_rawBytes->verticalHeader()->setFont(fixed);
    m_rawBytes->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_rawBytes->verticalHeader()->setDefaultSectionSize(QFontMetrics(fixed).height() + 4);
    m_rawBytes->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_rawCopy = new QAction(this);
    m_rawCopy->setShortcut(QKeySequence::Copy);
    m_rawCopy->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(
        m_rawCopy, &QAction::triggered, this, [this] { QGuiApplication::clipboard()->setText(rawText()); });
    m_rawBytes->addAction(m_rawCopy);
    rawLayout->addWidget(m_rawBytes, 1);
    m_raw = raw;
    ui->Tabs->addTab(raw, QString());
    m_tabTitleIds << -2;
}

void ZRK_Form_TMI_Orba3::addFieldRows(QTreeWidget* tree, int no)
{
    auto* item = new QTreeWidgetItem(tree, QStringList { orba::fieldLabel(no), QString() });
    item->setToolTip(0, QStringLiteral("%1 (%2)").arg(no).arg(QLatin1String(orba::kFields[no - 1].name)));
    Kind kind = Kind::Field;
    if (no == orba::F_Code)
        kind = Kind::EventCode;
    else if (no == orba::F_Time)
        kind = Kind::TimeUtc;
    const int tab = ui->Tabs->count();
    m_fieldRow[no] = m_rows.size();
    m_rows.append({ item, tab, no, -1, kind, QString() });
    const orba::Rule rule = orba::kFields[no - 1].rule;
    if (rule != orba::Rule::Bits && rule != orba::Rule::Parts)
        return;
    for (int id = 0; id < orba::kSubCount; ++id) {
        const orba::SubInfo& s = orba::kSubValues[id];
        if (s.field != no || !s.shown)
            continue;
        auto* child = new QTreeWidgetItem(item, QStringList { orba::subValueLabel(id), QString() });
        child->setToolTip(0, QLatin1String(s.name));
        Kind k = Kind::Sub;
        if (no == orba::F_Out1 || no == orba::F_Out2)
            k = Kind::Lamp;
        else if (isDiagnostic(id))
            k = Kind::Diagnostic;
        m_rows.append({ child, tab, no, id, k, QString() });
    }
}

void ZRK_Form_TMI_Orba3::translateForm()
{
    for (const Row& row : m_rows)
        row.item->setText(0, row.sub < 0 ? orba::fieldLabel(row.field) : orba::subValueLabel(row.sub));
    for (int i = 0; i < ui->Tabs->count(); ++i) {
        const int id = m_tabTitleIds.value(i);
        const char* title = id >= 0 ? kTabs[id].titleId : id == -1 ? kTyreTitle : kRawTitle;
        ui->Tabs->setTabText(i, qtTrId(title));
    }
    //% "Копировать"
    m_rawCopy->setText(qtTrId("tmio_055"));
    if (m_tyres) {
        m_tyres->setHorizontalHeaderLabels({
            //% "Номер датчика"
            qtTrId("tmio_020"),
            //% "Давление"
            qtTrId("tmio_021"),
            //% "Температура"
            qtTrId("tmio_022"),
        });
    }
}

void ZRK_Form_TMI_Orba3::setHideAbsent(bool hide)
{
    if (m_hideAbsent == hide)
        return;
    m_hideAbsent = hide;
    for (Row& row : m_rows)
        row.item->setHidden(row.state == 2 || (row.state == 0 && hide));
    for (int i = 0; i < kTyres; ++i)
        m_tyres->setRowHidden(i, m_tyreState[i] == 2 || (m_tyreState[i] == 0 && hide));
}

QString ZRK_Form_TMI_Orba3::rowText(const Row& row, const OrbaPage& page) const
{
    switch (row.kind) {
    case Kind::Field:
        return page.fieldText(row.field);
    case Kind::Sub:
    case Kind::Lamp:
        return page.subValueText(row.sub);
    case Kind::TimeUtc:
        return page.getStrDateTimeUTC_Offset();
    case Kind::EventCode: {
        const QString code = page.fieldText(row.field);
        const QString text = m_eventText
            ? m_eventText(quint16(orba::readLE(page.recordBytes() + orba::kOffsets[row.field], 2)))
            : QString();
        return text.isEmpty() ? code : code + QStringLiteral(" — ") + text;
    }
    case Kind::Diagnostic: {
        const QString code = page.subValueText(row.sub);
        const orba::SubInfo& s = orba::kSubValues[row.sub];
        const quint8 low = page.recordBytes()[orba::kOffsets[s.field] + s.offset];
        const QString text = m_diagnosticText ? m_diagnosticText(low) : QString();
        return text.isEmpty() ? code : code + QStringLiteral(" — ") + text;
    }
    }
    return QString();
}

void ZRK_Form_TMI_Orba3::updateRow(Row& row, const OrbaPage& page)
{
    const int state = row.field > page.lastField() ? 2 : page.isUsed(row.field) ? 1 : 0;
    if (state != row.state) {
        row.state = state;
        row.item->setHidden(state == 2 || (state == 0 && m_hideAbsent));
        const QBrush brush = state == 1 ? QBrush() : QBrush(kAbsentColour);
        row.item->setForeground(0, brush);
        row.item->setForeground(1, brush);
        if (state != 1)
            row.item->setIcon(1, QIcon());
    }
    if (state == 2)
        return;
    const QString text = state == 1 ? rowText(row, page) : orba::noDataText();
    if (text == row.text)
        return;
    ++m_changed;
    if (row.kind == Kind::Lamp && state == 1) {
        static const QIcon on = lampIcon(true), off = lampIcon(false);
        row.item->setIcon(1, text == QLatin1String("1") ? on : off);
    }
    row.text = text;
    row.item->setText(1, text);
}

void ZRK_Form_TMI_Orba3::updateTyres(const OrbaPage& page)
{
    for (int i = 0; i < kTyres; ++i) {
        const int no = tyreField(i);
        const int state = no > page.lastField() ? 2 : page.isUsed(no) ? 1 : 0;
        if (state != m_tyreState[i]) {
            m_tyreState[i] = state;
            m_tyres->setRowHidden(i, state == 2 || (state == 0 && m_hideAbsent));
        }
        if (state == 2)
            continue;
        for (int c = 0; c < 3; ++c) {
            const int sub = orba::S_TiresNum1 + 3 * i + c;
            const QString text = state == 1 ? page.subValueText(sub) : orba::noDataText();
            QString& shown = m_tyreTexts[3 * i + c];
            if (text != shown) {
                shown = text;
                ++m_changed;
                QTableWidgetItem* item = m_tyres->item(i, c);
                item->setText(text);
                item->setForeground(state == 1 ? QBrush() : QBrush(kAbsentColour));
            }
        }
    }
}

void ZRK_Form_TMI_Orba3::updateRaw(const OrbaPage& page)
{
    if (page.version() == m_rawVersion && page.body() == m_rawModel->bytes())
        return;
    m_rawVersion = page.version();
    QStringList names;
    for (int no = 1; no <= page.lastField(); ++no)
        if (page.isUsed(no))
            names << QLatin1String(orba::kFields[no - 1].name);
    //% "Версия %1, набор полей (%2): %3"
    QString text
        = qtTrId("tmio_023").arg(page.version()).arg(names.size()).arg(names.join(QStringLiteral(", ")));
    //% "Тело записи, %1 байт:"
    text += QLatin1Char('\n') + qtTrId("tmio_024").arg(page.body().size());
    if (text != m_rawFields->text())
        m_rawFields->setText(text);
    m_rawModel->setBytes(page.body());
}

QString ZRK_Form_TMI_Orba3::rawText()
{
    refreshTab(ui->Tabs->indexOf(m_raw));
    QString text = m_rawFields->text() + QLatin1Char('\n');
    const QByteArray& body = m_rawModel->bytes();
    for (int at = 0; at < body.size(); at += 16)
        text += QStringLiteral("%1  ").arg(at, 4, 16, QLatin1Char('0'))
            + QString::fromLatin1(body.mid(at, 16).toHex(' ')) + QLatin1Char('\n');
    return text;
}

void ZRK_Form_TMI_Orba3::setPage(std::shared_ptr<const OrbaPage> page)
{
    m_page = std::move(page);
    m_tabStale.fill(bool(m_page));
    m_changed = 0;
    refreshTab(ui->Tabs->currentIndex());
}

void ZRK_Form_TMI_Orba3::refreshTab(int tab)
{
    if (tab < 0 || tab >= m_tabStale.size() || !m_tabStale[tab])
        return;
    m_tabStale[tab] = false;
    const OrbaPage& page = *m_page;
    const QWidget* widget = ui->Tabs->widget(tab);
    if (widget == m_tyres) {
        updateTyres(page);
    } else if (widget == m_raw) {
        updateRaw(page);
    } else {
        // A tab's rows are consecutive, in the order the tabs were built.
        auto row = std::find_if(m_rows.begin(), m_rows.end(), [tab](const Row& r) { return r.tab == tab; });
        for (; row != m_rows.end() && row->tab == tab; ++row)
            updateRow(*row, page);
    }
}

QString ZRK_Form_TMI_Orba3::shownText(int no, int sub)
{
    if (no < 1 || no > orba::kFieldCount || m_fieldRow[no] < 0)
        return QString();
    refreshTab(m_rows[m_fieldRow[no]].tab);
    for (int i = m_fieldRow[no]; i < m_rows.size() && m_rows[i].field == no; ++i)
        if (m_rows[i].sub == sub)
            return m_rows[i].text;
    return QString();
}

bool ZRK_Form_TMI_Orba3::isRowHidden(int no)
{
    if (no < 1 || no > orba::kFieldCount || m_fieldRow[no] < 0)
        return true;
    refreshTab(m_rows[m_fieldRow[no]].tab);
    return m_rows[m_fieldRow[no]].item->isHidden();
}

int ZRK_Form_TMI_Orba3::tabCount() const
{
    return ui->Tabs->count();
}
