// Showing a record in the visible telemetry view (decode, form update, session list) against the
// pure data work of the same record (decode plus every display text of its present fields),
// measured in one run. Two records with different values alternate, so every shown record really
// changes the form. Prints the ratio of the fastest CPU times of several repetitions.
#include "best_times.h"
#include "config_model/orba_fieldset.h"
#include "telemetry/orba_dispatch.h"
#include "telemetry/orba_page.h"
#include "telemetry/zrk_widget_tmi_view.h"

#include <QApplication>
#include <QString>

#include <benchmark/benchmark.h>

#include <cstdio>

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

void BM_ShowRecordInView(benchmark::State& state)
{
    ZRK_Widget_Tmi_View view;
    view.show();
    view.setTmiPage(record(0), true);
    QCoreApplication::processEvents();
    int i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(view.setTmiPage(record(++i), true));
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

BENCHMARK(BM_ShowRecordInView);
BENCHMARK(BM_DecodeAndTexts);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    BestTimesReporter recorder;
    if (!runBenchmarks(argc, argv, recorder))
        return 1;
    const double show = recorder.time("BM_ShowRecordInView");
    const double data = recorder.time("BM_DecodeAndTexts");
    if (show <= 0 || data <= 0) {
        std::printf("ratios: not measured (run all benchmarks)\n");
        return 0;
    }
    std::printf("ratio show record in view / decode + texts: %.2f (goal at most 3)\n", show / data);
    return 0;
}
