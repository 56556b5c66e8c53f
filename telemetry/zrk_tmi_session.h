#pragma once

#include <QAbstractListModel>
#include <QByteArray>
#include <QDateTime>
#include <QVector>

class OrbaPage;

// The records received in this session, newest last, for the list beside the record form, the
// chart and saving. Bounded: the oldest record goes first when the list is full.
class ZRK_Tmi_Session : public QAbstractListModel
{
    Q_OBJECT

public:
    struct Entry
    {
        QByteArray bytes; // kind, version, mask and body: the host's prefix removed
        QDateTime received;
        int origin = 0; // ZRK_Widget_Tmi_View::Origin
        bool hasNumber = false;
        quint32 number = 0;
        QString label; // the list's line, made once
    };

    explicit ZRK_Tmi_Session(int capacity = 500, QObject* parent = nullptr);

    // Adds a record and its decoded page (for the list line); drops the oldest beyond capacity.
    void append(const QByteArray& bytes, const OrbaPage* page, int origin, const QDateTime& received);
    void clear();
    int capacity() const { return m_capacity; }
    int count() const { return m_entries.size(); }
    const Entry& at(int row) const { return m_entries.at(row); }
    const QList<Entry>& entries() const { return m_entries; }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    QList<Entry> m_entries; // a list of pointers: dropping the oldest of a full session moves nothing
    int m_capacity;
};

namespace orba {
// The value of field no as a number, for plotting; false when the field is absent, beyond the
// page's version or not a single number (byte blocks, status bytes).
bool fieldNumber(const OrbaPage& page, int no, double* value);
// Whether field no holds a single number that can be plotted.
bool isPlottable(int no);
} // namespace orba
