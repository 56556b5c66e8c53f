#pragma once

// The records of a saved telemetry file as the viewers hold them: packed in one block (a file of
// 100,000 records costs little more than its raw bytes), decoded only for the rows on screen.
// No widgets: the table viewer puts a view over the model.

#include "telemetry/tmi_file.h"

#include <QAbstractTableModel>
#include <QBitArray>
#include <QCache>

namespace zrk::tmi {

class RecordStore
{
public:
    // Reads a file; the error text as read() gives it (good records before a fault are kept).
    QString load(const QString& path);
    void clear();
    void append(const QByteArray& bytes, qint64 receivedMs, bool fromHistory);
    void squeeze();

    int size() const { return m_offsets.size() - 1; }
    // A view of record i's bytes, valid while the store is unchanged.
    QByteArray bytes(int i) const;
    Record record(int i) const;
    const Header& header() const { return m_header; }
    // The raw record bytes held, and what the store holds besides them (its own overhead).
    qint64 rawBytes() const { return m_blob.size(); }
    qint64 overheadBytes() const;

    // Field no of record i as a number (the stored value, floats as they are); false when the
    // record does not carry it. Reads the record's own mask without decoding the whole record.
    bool numberOf(int i, int no, double* value) const;
    // The fields any record carries, ascending.
    QVector<int> presentFields() const;

private:
    Header m_header;
    QByteArray m_blob;
    QVector<quint32> m_offsets { 0 };
    QVector<qint64> m_received;
    QBitArray m_history;
};

// The table over a store: column 0 the record's place in the file, then the chosen fields.
// Sorting and filtering reorder a list of row indexes; cells are decoded on demand and a window
// of decoded rows is kept.
class TmiRecordModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    explicit TmiRecordModel(QObject* parent = nullptr);

    // Takes the records of a store (the previous ones are dropped); all present fields as columns.
    void setStore(RecordStore&& store);
    const RecordStore& store() const { return m_store; }

    void setColumns(const QVector<int>& fields);
    const QVector<int>& columns() const { return m_columns; }

    struct Filter
    {
        QVector<int> codes; // empty: any event code
        qint64 from = -1, to = -1; // Unix seconds, inclusive; -1: open
        bool isEmpty() const { return codes.isEmpty() && from < 0 && to < 0; }
    };
    void setFilter(const Filter& filter);
    const Filter& filter() const { return m_filter; }

    // The store's index of a shown row.
    int recordAt(int row) const { return m_order.value(row, -1); }
    // The shown records, in the shown order, one at a time (for the exports).
    RecordSource shownRecords() const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

private:
    void rebuildOrder();
    const QStringList* rowTexts(int record) const;

    RecordStore m_store;
    QVector<int> m_columns;
    QVector<int> m_order;
    Filter m_filter;
    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    mutable QCache<int, QStringList> m_rows;
};

} // namespace zrk::tmi
