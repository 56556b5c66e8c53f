#include "message_log.h"

#include <QHeaderView>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

namespace {
const int kMaxRows = 5000;
}

ZrkMessageLog::ZrkMessageLog(QWidget* parent)
    : QWidget(parent)
    , m_model(new QStandardItemModel(0, ColumnCount, this))
    , m_view(new QTableView(this))
{
    QStringList headers;
    //% "№"
    headers << qtTrId("host_010");
    //% "Время"
    headers << qtTrId("host_011");
    //% "Направление"
    headers << qtTrId("host_012") << QStringLiteral("Id");
    //% "Сообщение"
    headers << qtTrId("host_013") << QStringLiteral("wParam") << QStringLiteral("lParam");
    //% "Результат"
    headers << qtTrId("host_014");
    m_model->setHorizontalHeaderLabels(headers);
    m_view->setModel(m_model);
    m_view->verticalHeader()->hide();
    m_view->verticalHeader()->setDefaultSectionSize(22);
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setAlternatingRowColors(false);
    m_view->setWordWrap(false);
    QHeaderView* header = m_view->horizontalHeader();
    header->setStretchLastSection(true);
    header->resizeSection(Sequence, 42);
    header->resizeSection(Time, 100);
    header->resizeSection(Direction, 110);
    header->resizeSection(Id, 52);
    header->resizeSection(Name, 230);
    header->resizeSection(WParam, 250);
    header->resizeSection(LParam, 150);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view);
}

int ZrkMessageLog::rowCount() const
{
    return m_model->rowCount();
}

QString ZrkMessageLog::cell(int row, int column) const
{
    const QStandardItem* item = m_model->item(row, column);
    return item ? item->text() : QString();
}

void ZrkMessageLog::addMessage(const ZrkLoggedMessage& message)
{
    if (m_model->rowCount() >= kMaxRows) {
        m_model->removeRows(0, kMaxRows / 10);
        m_rowOfSequence.clear();
        for (int r = 0; r < m_model->rowCount(); ++r)
            m_rowOfSequence.insert(m_model->item(r, Sequence)->text().toInt(), r);
    }
    const bool toPlugin = message.direction == ZrkMessageDirection::HostToPlugin;
    //% "хост → модуль"
    const QString toPluginText = qtTrId("host_015");
    //% "модуль → хост"
    const QString toHostText = qtTrId("host_016");
    QList<QStandardItem*> row;
    row << new QStandardItem(QString::number(message.sequence))
        << new QStandardItem(message.time.toString(QStringLiteral("HH:mm:ss.zzz")))
        << new QStandardItem(toPlugin ? toPluginText : toHostText)
        << new QStandardItem(QString::number(message.id)) << new QStandardItem(message.name)
        << new QStandardItem(message.wParam) << new QStandardItem(message.lParam)
        << new QStandardItem(message.result);
    const QColor background = toPlugin ? QColor(0xEE, 0xF4, 0xFB) : QColor(0xEF, 0xF8, 0xEC);
    for (QStandardItem* item : row) {
        item->setBackground(background);
        item->setToolTip(item->text());
    }
    m_rowOfSequence.insert(message.sequence, m_model->rowCount());
    m_model->appendRow(row);
    m_view->scrollToBottom();
}

void ZrkMessageLog::setResult(int sequence, const QString& result)
{
    const auto it = m_rowOfSequence.constFind(sequence);
    if (it == m_rowOfSequence.constEnd())
        return;
    if (QStandardItem* item = m_model->item(*it, Result)) {
        item->setText(result);
        item->setToolTip(result);
    }
}

void ZrkMessageLog::clear()
{
    m_model->removeRows(0, m_model->rowCount());
    m_rowOfSequence.clear();
}
