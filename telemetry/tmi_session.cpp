#include "telemetry/tmi_session.h"

#include "telemetry/orba_page.h"

#include <QBrush>
#include <QColor>
#include <QFileInfo>
#include <QRegularExpression>

namespace zrk::tmi {

Session::Session(int capacity, QObject* parent)
    : QAbstractListModel(parent)
    , m_capacity(qMax(1, capacity))
{
}

bool Session::append(const QByteArray& bytes, std::shared_ptr<const OrbaPage> page, orba::Form form,
    Origin origin, const QDateTime& received)
{
    Q_ASSERT(page);
    const bool dropped = m_entries.size() >= m_capacity;
    if (dropped) {
        beginRemoveRows(QModelIndex(), 0, 0);
        m_entries.removeFirst();
        endRemoveRows();
    }
    SessionEntry e;
    e.bytes = bytes;
    e.form = form;
    e.received = received;
    e.origin = origin;
    const RecordKeys keys = keysOf(*page);
    e.hasNumber = keys.hasNumber;
    e.number = keys.number;
    e.page = std::move(page);
    beginInsertRows(QModelIndex(), m_entries.size(), m_entries.size());
    m_entries.append(std::move(e));
    endInsertRows();
    return dropped;
}

void Session::clear()
{
    beginResetModel();
    m_entries.clear();
    endResetModel();
}

QVector<Record> Session::records() const
{
    QVector<Record> out;
    out.reserve(m_entries.size());
    for (const SessionEntry& e : m_entries) {
        Record r { e.bytes, e.received, e.origin != Origin::Live };
        // A saved file tells an extended record by its kind byte alone; 2312 brings one whatever
        // that byte says, so the file gets the kind the record was shown as.
        if (e.form == orba::Form::Extended && !r.bytes.isEmpty())
            r.bytes[0] = char(orba::kKindExtended);
        out.append(r);
    }
    return out;
}

QVector<ZrkMapTrackPoint> Session::track() const
{
    QVector<ZrkMapTrackPoint> points;
    ZrkMapTrackPoint p;
    for (const SessionEntry& e : m_entries)
        if (zrkTrackPointOf(keysOf(*e.page), &p))
            points.append(p);
    return points;
}

QString Session::label(int row) const
{
    if (row < 0 || row >= m_entries.size())
        return QString();
    const SessionEntry& e = m_entries.at(row);
    QString what;
    if (e.form == orba::Form::Extended)
        //% "расширенная"
        what = qtTrId("tmiw_040") + (e.hasNumber ? QStringLiteral(" #%1").arg(e.number) : QString());
    else if (e.hasNumber)
        what = QStringLiteral("#%1").arg(e.number);
    else
        //% "без номера"
        what = qtTrId("tmiw_041");
    QString text = e.received.toString(QStringLiteral("HH:mm:ss")) + QLatin1String("  ") + what;
    if (e.origin != Origin::Live)
        //% "история"
        text += QStringLiteral("  [%1]").arg(qtTrId("tmiw_042"));
    return text;
}

int Session::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_entries.size();
}

QVariant Session::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_entries.size())
        return {};
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) // the list may be narrower than a label
        return label(index.row());
    if (role == Qt::ForegroundRole && m_entries.at(index.row()).origin != Origin::Live)
        return QBrush(QColor(0x80, 0x50, 0x00));
    return {};
}

// ---- saving ---------------------------------------------------------------------------------------

namespace {

SaveFormat formatOfSuffix(const QString& suffix)
{
    if (suffix.compare(QLatin1String("csv"), Qt::CaseInsensitive) == 0)
        return SaveFormat::Csv;
    if (suffix.compare(QLatin1String("kml"), Qt::CaseInsensitive) == 0)
        return SaveFormat::Kml;
    return SaveFormat::Tmi;
}

} // namespace

SaveTarget saveTarget(const QString& chosenName, const QString& selectedFilter)
{
    SaveTarget target { chosenName, formatOfSuffix(QFileInfo(chosenName).suffix()) };
    // The filter's first pattern, "(*.csv)" or "(*.csv *.txt)": its extension is the format's.
    static const QRegularExpression pattern(QStringLiteral("\\(\\*\\.([A-Za-z0-9]+)"));
    const QRegularExpressionMatch m = pattern.match(selectedFilter);
    if (!m.hasMatch() || chosenName.isEmpty())
        return target;
    const QString extension = m.captured(1);
    target.format = formatOfSuffix(extension);
    const QString suffix = QFileInfo(chosenName).suffix().toLower();
    // .tmi and .xml hold the same text: either name keeps a telemetry file as it is.
    static const QStringList known { QStringLiteral("tmi"), QStringLiteral("xml"), QStringLiteral("csv"),
        QStringLiteral("kml") };
    const bool fits = known.contains(suffix) && formatOfSuffix(suffix) == target.format;
    if (!fits)
        target.path = chosenName + QLatin1Char('.') + extension.toLower();
    return target;
}

bool saveSession(const SaveTarget& target, const Session& session, const Header& header, QString* error)
{
    const QVector<Record> records = session.records();
    QString fault;
    bool ok = false;
    switch (target.format) {
    case SaveFormat::Csv:
        ok = exportCsv(target.path, records, &fault);
        break;
    case SaveFormat::Kml:
        ok = exportKml(target.path, records, &fault);
        break;
    case SaveFormat::Tmi:
        ok = write(target.path, header, records, &fault);
        break;
    }
    if (!ok && error)
        *error = fault;
    return ok;
}

} // namespace zrk::tmi
