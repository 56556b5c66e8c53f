#include "telemetry/tmi_record_model.h"

#include "telemetry/orba_dispatch.h"
#include "telemetry/orba_field_labels.h"
#include "telemetry/tmipage_orba3.h"

#include <QFile>

#include <algorithm>
#include <cmath>
#include <limits>

namespace zrk::tmi {

namespace {

constexpr int kRowWindow = 512; // decoded rows kept: a few screens of a table

// The extended head value that stands for field no, or -1.
int extIdOf(int no)
{
    for (int id = 0; id < orba::kExtCount; ++id) {
        if (QLatin1String(orba::kExtFields[id].xml) == QLatin1String(orba::kFields[no - 1].name))
            return id;
    }
    return -1;
}

// The version index (1..3) of a current record's version byte, 0 for none.
int versionOf(unsigned char versionByte)
{
    for (int v = 1; v <= 3; ++v) {
        if (orba::kVersionByte[v] == versionByte)
            return v;
    }
    return 0;
}

bool numberAt(orba::Type type, int width, const unsigned char* p, double* value)
{
    switch (type) {
    case orba::Type::U:
        *value = double(orba::readLE(p, width));
        return true;
    case orba::Type::S:
        *value = double(orba::signExtend(orba::readLE(p, width), width));
        return true;
    case orba::Type::F:
        *value = double(orba::readValue<4, orba::Type::F>(p));
        return true;
    case orba::Type::D:
        *value = orba::readValue<8, orba::Type::D>(p);
        return true;
    case orba::Type::B:
        break;
    }
    return false;
}

} // namespace

// ---- RecordStore -------------------------------------------------------------------------------

QString RecordStore::load(const QString& path)
{
    clear();
    // Hex is two characters a byte: half the file bounds the records' bytes. Reserved pages that
    // are never written cost no memory.
    m_blob.reserve(int(std::min<qint64>(QFile(path).size() / 2, std::numeric_limits<int>::max() / 2)));
    const QString error = readEach(path, &m_header, [this](const QByteArray& bytes, qint64 ms, bool history) {
        if (qint64(m_blob.size()) + bytes.size() > std::numeric_limits<int>::max() / 2)
            return false;
        append(bytes, ms, history);
        return true;
    });
    squeeze();
    return error;
}

void RecordStore::clear()
{
    *this = RecordStore();
}

void RecordStore::append(const QByteArray& bytes, qint64 receivedMs, bool fromHistory)
{
    m_blob += bytes;
    m_offsets.append(quint32(m_blob.size()));
    m_received.append(receivedMs);
    const int n = m_received.size();
    if (m_history.size() < n)
        m_history.resize(std::max(64, n * 2));
    m_history.setBit(n - 1, fromHistory);
}

void RecordStore::squeeze()
{
    m_blob.squeeze();
    m_offsets.squeeze();
    m_received.squeeze();
    m_history.resize(size());
}

QByteArray RecordStore::bytes(int i) const
{
    if (i < 0 || i >= size())
        return QByteArray();
    return QByteArray::fromRawData(m_blob.constData() + m_offsets[i], int(m_offsets[i + 1] - m_offsets[i]));
}

Record RecordStore::record(int i) const
{
    Record r;
    if (i < 0 || i >= size())
        return r;
    r.bytes = QByteArray(bytes(i).constData(), int(m_offsets[i + 1] - m_offsets[i]));
    if (m_received[i] != kNoTime)
        r.received = QDateTime::fromMSecsSinceEpoch(m_received[i], Qt::UTC);
    r.fromHistory = m_history.testBit(i);
    return r;
}

qint64 RecordStore::overheadBytes() const
{
    return qint64(m_offsets.capacity()) * sizeof(quint32) + qint64(m_received.capacity()) * sizeof(qint64)
        + m_history.size() / 8 + (m_blob.capacity() - m_blob.size());
}

bool RecordStore::numberOf(int i, int no, double* value) const
{
    const QByteArray r = bytes(i);
    const auto* p = reinterpret_cast<const unsigned char*>(r.constData());
    const int len = r.size();
    if (no < 1 || no > orba::kFieldCount || len < 2)
        return false;
    const int version = p[0] == orba::kKindCurrent ? versionOf(p[1]) : 0;
    if (version) {
        if (len < orba::kBodyOffset || no > orba::kLastField[version]
            || !zrkOrbaMaskBit(p + orba::kMaskOffset, no))
            return false;
        int at = orba::kBodyOffset;
        for (int n = 1; n < no; ++n) {
            if (zrkOrbaMaskBit(p + orba::kMaskOffset, n))
                at += orba::kFields[n - 1].width;
        }
        // Bytes the mask demands beyond the record read as zero, as the decoder reads them.
        unsigned char value8[8] = {};
        const orba::FieldInfo& f = orba::kFields[no - 1];
        if (f.width > 8)
            return false;
        for (int b = 0; b < f.width && at + b < len; ++b)
            value8[b] = p[at + b];
        return numberAt(f.type, f.width, value8, value);
    }
    const orba::Decoded d = orba::decodeRecord(p, len);
    if (!d.page)
        return false;
    if (d.form == orba::Form::Extended) {
        const int id = extIdOf(no);
        if (id < 0)
            return false;
        const orba::ExtInfo& e = orba::kExtFields[id];
        const auto* ext
            = reinterpret_cast<const unsigned char*>(&static_cast<const TmiPage_Orba3&>(*d.page).extTMI());
        return numberAt(e.type, e.width, ext + e.offset, value);
    }
    const orba::FieldInfo& f = orba::kFields[no - 1];
    if (no > d.page->lastField() || !d.page->isUsed(no) || f.width > 8)
        return false;
    return numberAt(f.type, f.width, d.page->recordBytes() + orba::kOffsets[no], value);
}

QVector<int> RecordStore::presentFields() const
{
    unsigned char mask[orba::kMaskBytes] = {};
    bool ext = false;
    for (int i = 0; i < size(); ++i) {
        const QByteArray r = bytes(i);
        const auto* p = reinterpret_cast<const unsigned char*>(r.constData());
        const int version = r.size() >= orba::kBodyOffset && p[0] == orba::kKindCurrent ? versionOf(p[1]) : 0;
        if (version) {
            for (int b = 0; b < orba::kMaskBytes; ++b)
                mask[b] |= p[orba::kMaskOffset + b];
            continue;
        }
        const orba::Decoded d = orba::decodeRecord(p, r.size());
        if (d.form == orba::Form::Extended) {
            ext = true;
        } else if (d.page) {
            for (int no = 1; no <= d.page->lastField(); ++no) {
                if (d.page->isUsed(no))
                    mask[(no - 1) / 8] |= 0x80 >> ((no - 1) % 8);
            }
        }
    }
    QVector<int> fields;
    for (int no = 1; no <= orba::kFieldCount; ++no) {
        if (zrkOrbaMaskBit(mask, no) || (ext && extIdOf(no) >= 0))
            fields << no;
    }
    return fields;
}

// ---- TmiRecordModel ----------------------------------------------------------------------------

TmiRecordModel::TmiRecordModel(QObject* parent)
    : QAbstractTableModel(parent)
    , m_rows(kRowWindow)
{
}

void TmiRecordModel::setStore(RecordStore&& store)
{
    beginResetModel();
    m_store = std::move(store);
    m_columns = m_store.presentFields();
    m_filter = Filter();
    m_sortColumn = -1;
    m_rows.clear();
    rebuildOrder();
    endResetModel();
}

void TmiRecordModel::setColumns(const QVector<int>& fields)
{
    beginResetModel();
    m_columns = fields;
    m_rows.clear();
    if (m_sortColumn > m_columns.size())
        m_sortColumn = -1;
    rebuildOrder();
    endResetModel();
}

void TmiRecordModel::setFilter(const Filter& filter)
{
    beginResetModel();
    m_filter = filter;
    rebuildOrder();
    endResetModel();
}

void TmiRecordModel::rebuildOrder()
{
    m_order.clear();
    m_order.reserve(m_store.size());
    for (int i = 0; i < m_store.size(); ++i) {
        if (!m_filter.codes.isEmpty()) {
            double code = 0;
            if (!m_store.numberOf(i, orba::F_Code, &code) || !m_filter.codes.contains(int(code)))
                continue;
        }
        if (m_filter.from >= 0 || m_filter.to >= 0) {
            double t = 0;
            if (!m_store.numberOf(i, orba::F_Time, &t) || (m_filter.from >= 0 && t < m_filter.from)
                || (m_filter.to >= 0 && t > m_filter.to))
                continue;
        }
        m_order.append(i);
    }
    if (m_sortColumn <= 0) {
        if (m_sortOrder == Qt::DescendingOrder && m_sortColumn == 0)
            std::reverse(m_order.begin(), m_order.end());
        return;
    }
    // Keys are read for this sort only, from each record's own mask; absent values sort last.
    const int no = m_columns.value(m_sortColumn - 1);
    QVector<QPair<double, int>> keyed;
    keyed.reserve(m_order.size());
    for (int i : m_order) {
        double v = 0;
        keyed.append(
            { m_store.numberOf(i, no, &v) && !std::isnan(v) ? v : std::numeric_limits<double>::quiet_NaN(),
                i });
    }
    const bool descending = m_sortOrder == Qt::DescendingOrder;
    std::stable_sort(keyed.begin(), keyed.end(), [descending](const auto& a, const auto& b) {
        if (std::isnan(a.first) || std::isnan(b.first))
            return !std::isnan(a.first) && std::isnan(b.first);
        return descending ? a.first > b.first : a.first < b.first;
    });
    for (int k = 0; k < keyed.size(); ++k)
        m_order[k] = keyed[k].second;
}

void TmiRecordModel::sort(int column, Qt::SortOrder order)
{
    beginResetModel();
    m_sortColumn = column;
    m_sortOrder = order;
    rebuildOrder();
    endResetModel();
}

RecordSource TmiRecordModel::shownRecords() const
{
    return [this, row = 0](Record& next) mutable {
        if (row >= m_order.size())
            return false;
        next = m_store.record(m_order[row++]);
        return true;
    };
}

int TmiRecordModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_order.size();
}

int TmiRecordModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_columns.size() + 1;
}

const QStringList* TmiRecordModel::rowTexts(int record) const
{
    if (const QStringList* cached = m_rows.object(record))
        return cached;
    auto* texts = new QStringList;
    texts->reserve(m_columns.size());
    const QByteArray bytes = m_store.bytes(record);
    const orba::Decoded d = orba::decodeRecord(bytes);
    for (int no : qAsConst(m_columns)) {
        QString text;
        if (d.form == orba::Form::Extended) {
            const int id = extIdOf(no);
            if (id >= 0)
                text = orba::extFieldText(id, static_cast<const TmiPage_Orba3&>(*d.page).extTMI());
        } else if (d.page && no <= d.page->lastField() && d.page->isUsed(no)) {
            text = d.page->fieldText(no);
        }
        texts->append(text);
    }
    m_rows.insert(record, texts);
    return texts;
}

QVariant TmiRecordModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_order.size() || index.column() > m_columns.size())
        return QVariant();
    const int record = m_order[index.row()];
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return QVariant();
    if (index.column() == 0)
        return record + 1;
    return rowTexts(record)->value(index.column() - 1);
}

QVariant TmiRecordModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return QVariant();
    if (orientation == Qt::Vertical)
        return section + 1;
    if (section == 0) {
        //% "№ в файле"
        return qtTrId("tmif_017");
    }
    return orba::fieldLabel(m_columns.value(section - 1));
}

} // namespace zrk::tmi
