#pragma once

#include <QDateTime>
#include <QObject>
#include <QVector>

class OrbaPage;
namespace zrk::tmi {
class Session;
}
class QWidget;
namespace QtCharts {
class QChart;
class QChartView;
class QDateTimeAxis;
class QLineSeries;
class QValueAxis;
} // namespace QtCharts

// The chart beside the record form: the numeric fields the user picked, over the time the session's
// records were received, with the minimum and maximum of each. Points are added as records
// arrive; the whole chart is rebuilt only when the picked fields change.
class ZRK_Tmi_Chart : public QObject
{
    Q_OBJECT

public:
    // The chart view is placed into host's layout.
    explicit ZRK_Tmi_Chart(QWidget* host, QObject* parent = nullptr);

    void addField(int no, const zrk::tmi::Session& session);
    void clearFields();
    QVector<int> fields() const;
    // One record more; dropOldest when the session dropped its first record for it.
    void appendRecord(const OrbaPage& page, const QDateTime& received, bool dropOldest);
    void rebuild(const zrk::tmi::Session& session);
    // "Name: min … max" per picked field, one line each.
    QString minMaxText() const;
    QtCharts::QChartView* view() const { return m_view; }

signals:
    void changed();

private:
    struct Plot
    {
        int field;
        QtCharts::QLineSeries* series;
        double min = 0, max = 0;
        bool any = false;
    };
    void updateRanges();

    QtCharts::QChart* m_chart;
    QtCharts::QChartView* m_view;
    QtCharts::QDateTimeAxis* m_axisX;
    QtCharts::QValueAxis* m_axisY;
    QVector<Plot> m_plots;
    bool m_timeLabelsDrawn = false;
};
