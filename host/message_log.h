#pragma once

#include "host_dispatcher.h"

#include <QHash>
#include <QWidget>

class QStandardItemModel;
class QTableView;

// The live log of every message in both directions: time, direction, id, name, words, result.
class ZrkMessageLog : public QWidget
{
    Q_OBJECT

public:
    explicit ZrkMessageLog(QWidget* parent = nullptr);

    int rowCount() const;
    // The text of one cell, for tests and the demo.
    QString cell(int row, int column) const;

    enum Column
    {
        Sequence,
        Time,
        Direction,
        Id,
        Name,
        WParam,
        LParam,
        Result,
        ColumnCount
    };

public slots:
    void addMessage(const ZrkLoggedMessage& message);
    void setResult(int sequence, const QString& result);
    void clear();

private:
    QStandardItemModel* m_model;
    QTableView* m_view;
    QHash<int, int> m_rowOfSequence;
};
