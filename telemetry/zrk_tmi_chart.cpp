#include "telemetry/zrk_tmi_chart.h"

#include "telemetry/orba_dispatch.h"
#include "telemetry/orba_field_labels.h"
#include "telemetry/orba_page.h"
#include "telemetry/orba_plot.h"
#include "telemetry/tmi_session.h"

#include <QLayout>
#include <QtCharts/QChart>
#include <QtCharts/QChartView>
#include <QtCharts/QDateTimeAxis>
#include <QtCharts/QLineSeries>
#include <QtCharts/QValueAxis>

#include <limits>

using namespace QtCharts;

ZRK_Tmi_Chart::ZRK_Tmi_Chart(QWidget* host, QObject* parent)
    : QObject(parent)
    , m_chart(new QChart)
    , m_axisX(new QDateTimeAxis)
    , m_axisY(new QValueAxis)
{
    m_chart->legend()->setAlignment(Qt::AlignBottom);
    m_chart->setMargins(QMargins(2, 2, 2, 2));
    m_axisX->setFormat(QStringLiteral("HH:mm:ss"));
    m_axisX->setTickCount(4);
    m_axisY->setLabelFormat(QStringLiteral("%g")); // round ticks (below) need no fixed decimals
    m_chart->addAxis(m_axisX, Qt::AlignBottom);
    m_chart->addAxis(m_axisY, Qt::AlignLeft);
    m_view = new QChartView(m_chart, host);
    m_view->setObjectName(QStringLiteral("ChartView"));
    m_view->setRenderHint(QPainter::Antialiasing);
    m_view->setMinimumHeight(180);
    if (host && host->layout())
        host->layout()->addWidget(m_view);
}

QVector<int> ZRK_Tmi_Chart::fields() const
{
    QVector<int> out;
    for (const Plot& p : m_plots)
        out << p.field;
    return out;
}

void ZRK_Tmi_Chart::addField(int no, const zrk::tmi::Session& session)
{
    if (!orba::isPlottable(no) || fields().contains(no))
        return;
    auto* series = new QLineSeries;
    series->setName(orba::fieldLabel(no));
    series->setPointsVisible(true);
    m_chart->addSeries(series);
    series->attachAxis(m_axisX);
    series->attachAxis(m_axisY);
    m_plots.append({ no, series });
    rebuild(session);
}

void ZRK_Tmi_Chart::clearFields()
{
    m_chart->removeAllSeries();
    m_plots.clear();
    m_timeLabelsDrawn = false;
    emit changed();
}

void ZRK_Tmi_Chart::appendRecord(const OrbaPage& page, const QDateTime& received, bool dropOldest)
{
    if (m_plots.isEmpty())
        return;
    for (Plot& p : m_plots) {
        if (dropOldest && p.series->count() > 0)
            p.series->remove(0);
        double v;
        if (orba::fieldNumber(page, p.field, &v))
            p.series->append(double(received.toMSecsSinceEpoch()), v);
    }
    updateRanges();
}

void ZRK_Tmi_Chart::rebuild(const zrk::tmi::Session& session)
{
    for (Plot& p : m_plots)
        p.series->clear();
    for (const zrk::tmi::SessionEntry& e : session.entries()) {
        const OrbaPage* page = e.page.get();
        if (page->isExtended())
            continue;
        for (Plot& p : m_plots) {
            double v;
            if (orba::fieldNumber(*page, p.field, &v))
                p.series->append(double(e.received.toMSecsSinceEpoch()), v);
        }
    }
    updateRanges();
}

void ZRK_Tmi_Chart::updateRanges()
{
    double lo = std::numeric_limits<double>::max(), hi = std::numeric_limits<double>::lowest();
    qreal t0 = std::numeric_limits<qreal>::max(), t1 = std::numeric_limits<qreal>::lowest();
    for (Plot& p : m_plots) {
        p.any = p.series->count() > 0;
        p.min = std::numeric_limits<double>::max();
        p.max = std::numeric_limits<double>::lowest();
        for (const QPointF& pt : p.series->pointsVector()) {
            p.min = qMin(p.min, pt.y());
            p.max = qMax(p.max, pt.y());
            t0 = qMin(t0, pt.x());
            t1 = qMax(t1, pt.x());
        }
        if (p.any) {
            lo = qMin(lo, p.min);
            hi = qMax(hi, p.max);
            p.series->setName(QStringLiteral("%1 (%2 … %3)")
                                  .arg(orba::fieldLabel(p.field))
                                  .arg(p.min, 0, 'g', 6)
                                  .arg(p.max, 0, 'g', 6));
        }
    }
    if (t0 <= t1) {
        const qreal pad = qMax<qreal>(1000, (t1 - t0) * 0.02);
        m_axisX->setRange(QDateTime::fromMSecsSinceEpoch(qint64(t0 - pad)),
            QDateTime::fromMSecsSinceEpoch(qint64(t1 + pad)));
        const double span = hi - lo;
        const double margin = span > 0 ? span * 0.05 : qMax(1.0, qAbs(hi) * 0.05);
        m_axisY->setRange(lo - margin, hi + margin);
        m_axisY->applyNiceNumbers();
        if (!m_timeLabelsDrawn) {
            // A time axis whose first series came after the chart was shown draws no labels until
            // they are switched on again.
            m_axisX->setLabelsVisible(false);
            m_axisX->setLabelsVisible(true);
            m_timeLabelsDrawn = true;
        }
    }
    emit changed();
}

QString ZRK_Tmi_Chart::minMaxText() const
{
    QStringList lines;
    for (const Plot& p : m_plots) {
        if (p.any)
            //% "%1: мин. %2, макс. %3"
            lines << qtTrId("tmiw_043")
                         .arg(orba::fieldLabel(p.field))
                         .arg(p.min, 0, 'g', 6)
                         .arg(p.max, 0, 'g', 6);
        else
            //% "%1: нет данных"
            lines << qtTrId("tmiw_044").arg(orba::fieldLabel(p.field));
    }
    return lines.join(QLatin1Char('\n'));
}
