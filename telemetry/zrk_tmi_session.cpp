#include "telemetry/zrk_tmi_session.h"

#include "telemetry/orba_page.h"

#include <QBrush>
#include <QColor>

#include <cstring>

ZRK_Tmi_Session::ZRK_Tmi_Session(int capacity, QObject* parent)
    : QAbstractListModel(parent)
    , m_capacity(qMax(1, capacity))
{
}

void ZRK_Tmi_Session::append(const QByteArray& bytes, const OrbaPage* page, int origin, const QDateTime& received)
{
    if (m_entries.size() >= m_capacity) {
        beginRemoveRows(QModelIndex(), 0, 0);
        m_entries.removeFirst();
        endRemoveRows();
    }
    Entry e;
    e.bytes = bytes;
    e.received = received;
    e.origin = origin;
    QString what;
    if (page && !page->isExtended() && page->isUsed(orba::F_NumPage)) {
        e.hasNumber = true;
        e.number = quint32(orba::readLE(page->recordBytes() + orba::kOffsets[orba::F_NumPage], 4));
        what = QStringLiteral("#%1").arg(e.number);
    } else if (page && page->isExtended()) {
        //% "расширенная"
        what = qtTrId("tmiw_040");
    } else {
        //% "неизвестная"
        what = qtTrId("tmiw_041");
    }
    e.label = received.toString(QStringLiteral("HH:mm:ss")) + QLatin1String("  ") + what;
    if (origin != 0)
        //% "история"
        e.label += QStringLiteral("  [%1]").arg(qtTrId("tmiw_042"));
    beginInsertRows(QModelIndex(), m_entries.size(), m_entries.size());
    m_entries.append(e);
    endInsertRows();
}

void ZRK_Tmi_Session::clear()
{
    beginResetModel();
    m_entries.clear();
    endResetModel();
}

int ZRK_Tmi_Session::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_entries.size();
}

QVariant ZRK_Tmi_Session::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_entries.size())
        return {};
    const Entry& e = m_entries.at(index.row());
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) // the list may be narrower than a label
        return e.label;
    if (role == Qt::ForegroundRole && e.origin != 0)
        return QBrush(QColor(0x80, 0x50, 0x00));
    return {};
}

namespace orba {

bool isPlottable(int no)
{
    if (no < 1 || no > kFieldCount)
        return false;
    const FieldInfo& f = kFields[no - 1];
    return f.type != Type::B && f.rule != Rule::Bits && f.rule != Rule::Parts && f.rule != Rule::DateTime;
}

bool fieldNumber(const OrbaPage& page, int no, double* value)
{
    if (!isPlottable(no) || !page.isUsed(no))
        return false;
    const FieldInfo& f = kFields[no - 1];
    const unsigned char* p = page.recordBytes() + kOffsets[no];
    double v = 0;
    if (f.type == Type::F) {
        float x;
        std::memcpy(&x, p, 4);
        v = x;
    } else if (f.type == Type::S) {
        v = double(signExtend(readLE(p, f.width), f.width));
    } else {
        v = double(readLE(p, f.width));
    }
    // Shown values, not raw units: the chart reads like the form.
    switch (f.rule) {
    case Rule::Volts:
        v /= 1000.0;
        break;
    case Rule::Altitude:
        v = double(qint64(v / 10));
        break;
    case Rule::HpTemp:
        if (qint16(v) == qint16(0x8000))
            return false;
        v /= 20.0;
        break;
    case Rule::Temp:
        if (v == -128)
            return false;
        break;
    case Rule::Tenths:
        v /= 10.0;
        break;
    default:
        break;
    }
    *value = v;
    return true;
}

} // namespace orba
