// Showing a record in the visible telemetry view (decode, form update, session list, chart,
// freshness line) against the pure data work of the same record (decode plus every display text
// of its present fields), measured in one run, once with each tab of the record form open. Two
// records with different values alternate, so every shown record really changes the form. Prints
// the ratio of the fastest CPU times of several repetitions for each tab, and the worst of them.
#include "best_times.h"
#include "config_model/orba_fieldset.h"
#include "telemetry/orba_dispatch.h"
#include "telemetry/orba_page.h"
#include "telemetry/zrk_form_tmi_orba3.h"
#include "telemetry/zrk_widget_tmi_view.h"
#include "translations/catalogue.h"

#include <QApplication>
#include <QString>
#include <QTabWidget>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace {

// A record of the field set a new configuration starts with.
QByteArray makeRecord(quint32 number, int seed)
{
    QByteArray mask(orba::kMaskBytes, '\0');
    QByteArray body;
    const QString& set = zrk::fieldset::const_qsDef_Orba3;
    for (int no = 1; no <= set.size(); ++no) {
        if (set.at(no - 1) != QLatin1Char('1'))
            continue;
        zrkOrbaSetMaskBit(reinterpret_cast<unsigned char*>(mask.data()), no, true);
        for (int i = 0; i < orba::kFields[no - 1].width; ++i)
            body.append(char(no == 1 && i == 0 ? number : no + i + seed));
    }
    return QByteArray("\xB0\x1E", 2) + mask + body;
}

const QByteArray& record(int which)
{
    static const QByteArray r[2] = { makeRecord(1, 0), makeRecord(2, 7) };
    return r[which & 1];
}

QTabWidget* formTabs(const ZRK_Widget_Tmi_View& view)
{
    return view.formOrba3() ? view.formOrba3()->findChild<QTabWidget*>(QStringLiteral("Tabs")) : nullptr;
}

void showRecordOnTab(benchmark::State& state, int tab)
{
    ZRK_Widget_Tmi_View view;
    view.show();
    view.setTmiPage(record(0), true);
    if (QTabWidget* tabs = formTabs(view))
        tabs->setCurrentIndex(tab);
    QCoreApplication::processEvents();
    int i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(view.setTmiPage(record(++i), true));
    }
}

// For the record only: the same with the window painted after every record. Painting is not part
// of the goal (between two frames any number of records share one repaint), but its cost is
// worth seeing next to it.
void BM_ShowAndPaintRecord(benchmark::State& state)
{
    ZRK_Widget_Tmi_View view;
    view.show();
    view.setTmiPage(record(0), true);
    QCoreApplication::processEvents();
    int i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(view.setTmiPage(record(++i), true));
        QCoreApplication::processEvents();
    }
}

void BM_DecodeAndTexts(benchmark::State& state)
{
    int i = 0;
    for (auto _ : state) {
        const QByteArray& r = record(++i);
        const auto* buf = reinterpret_cast<const unsigned char*>(r.constData());
        const std::unique_ptr<OrbaPage> page
            = orba::buildPage(orba::chooseForm(buf, r.size(), 0, true), buf, r.size());
        for (int no = 1; no <= page->lastField(); ++no) {
            if (page->isUsed(no)) {
                QString text = page->fieldText(no);
                benchmark::DoNotOptimize(text);
            }
        }
    }
}

BENCHMARK(BM_DecodeAndTexts);
BENCHMARK(BM_ShowAndPaintRecord);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    // The texts the plug-in shows: without its catalogue every formatted text warns per record.
    zrk::installCatalogue(QStringLiteral("ru"));
    int tabCount = 0;
    {
        ZRK_Widget_Tmi_View view;
        view.setTmiPage(record(0), true);
        tabCount = formTabs(view) ? formTabs(view)->count() : 0;
    }
    std::vector<std::string> names;
    for (int tab = 0; tab < tabCount; ++tab) {
        names.push_back("BM_ShowRecordInView_Tab" + std::to_string(tab));
        benchmark::RegisterBenchmark(names.back().c_str(), showRecordOnTab, tab);
    }
    BestTimesReporter recorder;
    if (!runBenchmarks(argc, argv, recorder))
        return 1;
    const double data = recorder.time("BM_DecodeAndTexts");
    double worst = 0;
    for (int tab = 0; tab < tabCount; ++tab) {
        const double show = recorder.time(names[size_t(tab)].c_str());
        if (show > 0 && data > 0) {
            std::printf("ratio show record in view, tab %d open / decode + texts: %.2f\n", tab, show / data);
            worst = std::max(worst, show / data);
        }
    }
    if (worst <= 0) {
        std::printf("ratios: not measured (run all benchmarks)\n");
        return 0;
    }
    std::printf("ratio show record in view / decode + texts, worst tab: %.2f (goal at most 3)\n", worst);
    const double painted = recorder.time("BM_ShowAndPaintRecord");
    if (painted > 0)
        std::printf("for information, show and paint / decode + texts: %.2f\n", painted / data);
    return 0;
}
