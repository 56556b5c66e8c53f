#include "telemetry/zrk_form_tmi_orba3.h"

#include "telemetry/orba_page.h"
#include "telemetry/orba_field_labels.h"
#include "ui_zrk_form_tmi_orba3.h"

#include <QFontDatabase>
#include <QHeaderView>
#include <QPainter>
#include <QPlainTextEdit>
#include <QTableWidget>
#include <QTreeWidget>

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
    { QT_TRID_NOOP("tmio_001"), { { 1, 6 }, { 123, 125 }, { 7, 8 }, { 200, 200 }, { 104, 105 }, { 122, 122 } } },
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
    return i < 2 ? orba::F_Tires1_2 : i < 6 ? orba::F_Tires3_6 : i < 14 ? orba::F_Tires7_14 : orba::F_Tires15_30;
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

ZRK_Form_TMI_Orba3::ZRK_Form_TMI_Orba3(QWidget* parent)
    : QWidget(parent)
    , ui(new Ui::ZRK_Designer_Form_TMI_Orba3)
{
    ui->setupUi(this);
    setObjectName(QStringLiteral("ZRK_Form_TMI_Orba3"));
    m_fieldRow.fill(-1, orba::kFieldCount + 1);
    buildTabs();
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
    m_raw = new QPlainTextEdit;
    m_raw->setObjectName(QStringLiteral("RawText"));
    m_raw->setReadOnly(true);
    // The system's fixed font rather than a family named by a literal: Qt's font cache keeps such a
    // name after the plug-in is unloaded, and the literal's bytes go with the plug-in.
    QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    fixed.setPointSize(9);
    m_raw->setFont(fixed);
    m_raw->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    ui->Tabs->addTab(m_raw, QString());
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
    m_fieldRow[no] = m_rows.size();
    m_rows.append({ item, no, -1, kind, QString() });
    const orba::Rule rule = orba::kFields[no - 1].rule;
    if (rule != orba::Rule::Bits && rule != orba::Rule::Parts)
        return;
    for (int id = 0; id < orba::kSubCount; ++id) {
        const orba::SubInfo& s = orba::kSubValues[id];
        if (s.field != no || !s.shown)
            continue;
        auto* child = new QTreeWidgetItem(item, QStringList { QString::fromLatin1(s.name), QString() });
        Kind k = Kind::Sub;
        if (no == orba::F_Out1 || no == orba::F_Out2)
            k = Kind::Lamp;
        else if (isDiagnostic(id))
            k = Kind::Diagnostic;
        m_rows.append({ child, no, id, k, QString() });
    }
}

void ZRK_Form_TMI_Orba3::translateForm()
{
    for (int i = 0; i < ui->Tabs->count(); ++i) {
        const int id = m_tabTitleIds.value(i);
        const char* title = id >= 0 ? kTabs[id].titleId : id == -1 ? kTyreTitle : kRawTitle;
        ui->Tabs->setTabText(i, qtTrId(title));
    }
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
        const QString text
            = m_eventText ? m_eventText(quint16(orba::readLE(page.recordBytes() + orba::kOffsets[row.field], 2)))
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
    if (page.version() == m_rawVersion && page.body() == m_rawShown)
        return;
    m_rawVersion = page.version();
    m_rawShown = page.body();
    QStringList names;
    for (int no = 1; no <= page.lastField(); ++no)
        if (page.isUsed(no))
            names << QLatin1String(orba::kFields[no - 1].name);
    QString text;
    //% "Версия %1, набор полей (%2): %3"
    text += qtTrId("tmio_023").arg(page.version()).arg(names.size()).arg(names.join(QStringLiteral(", ")));
    //% "Тело записи, %1 байт:"
    text += QStringLiteral("\n\n") + qtTrId("tmio_024").arg(m_rawShown.size()) + QLatin1Char('\n');
    for (int at = 0; at < m_rawShown.size(); at += 16) {
        text += QStringLiteral("%1  ").arg(at, 4, 16, QLatin1Char('0'));
        text += QString::fromLatin1(m_rawShown.mid(at, 16).toHex(' ')) + QLatin1Char('\n');
    }
    m_raw->setPlainText(text);
}

void ZRK_Form_TMI_Orba3::setPage(const OrbaPage& page)
{
    m_changed = 0;
    for (Row& row : m_rows)
        updateRow(row, page);
    updateTyres(page);
    updateRaw(page);
}

QString ZRK_Form_TMI_Orba3::shownText(int no, int sub) const
{
    if (no < 1 || no > orba::kFieldCount || m_fieldRow[no] < 0)
        return QString();
    for (int i = m_fieldRow[no]; i < m_rows.size() && m_rows[i].field == no; ++i)
        if (m_rows[i].sub == sub)
            return m_rows[i].text;
    return QString();
}

bool ZRK_Form_TMI_Orba3::isRowHidden(int no) const
{
    if (no < 1 || no > orba::kFieldCount || m_fieldRow[no] < 0)
        return true;
    return m_rows[m_fieldRow[no]].item->isHidden();
}

int ZRK_Form_TMI_Orba3::tabCount() const
{
    return ui->Tabs->count();
}
