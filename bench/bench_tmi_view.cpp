// Showing a record in the visible telemetry view (decode, form update, session list) against the
// pure data work of the same record (decode plus every display text of its present fields),
// measured in one run. Two records with different values alternate, so every shown record really
// changes the form. Prints the ratio of the fastest CPU times of several repetitions.
#include "telemetry/orba_dispatch.h"
#include "telemetry/orba_page.h"
#include "telemetry/zrk_widget_tmi_view.h"

#include <QApplication>
#include <QString>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace {

// The default field set of a terminal (field numbers).
const int kDefaultFields[] = { 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 19, 20, 29, 31, 37, 71, 123,
    124, 125, 139, 200, 206 };

QByteArray makeRecord(quint32 number, int seed)
{
    QByteArray mask(orba::kMaskBytes, '\0');
    QByteArray body;
    for (int no : kDefaultFields) {
        mask[(no - 1) / 8] = char(mask[(no - 1) / 8] | (0x80 >> ((no - 1) % 8)));
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

class Recorder : public benchmark::ConsoleReporter
{
public:
    // Plain text: the output ends up in CI logs, not on a terminal.
    Recorder()
        : ConsoleReporter(OO_Tabular)
    {
    }
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& r : runs) {
            if (r.run_type != Run::RT_Iteration || r.error_occurred)
                continue;
            const std::string name = r.run_name.function_name;
            const double t = r.GetAdjustedCPUTime();
            if (!times.count(name) || t < times[name])
                times[name] = t;
        }
        ConsoleReporter::ReportRuns(runs);
    }
    std::map<std::string, double> times;
};

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    std::vector<char*> args(argv, argv + argc);
    bool repetitionsGiven = false;
    for (char* a : args)
        repetitionsGiven = repetitionsGiven || std::string(a).rfind("--benchmark_repetitions", 0) == 0;
    char repetitions[] = "--benchmark_repetitions=5";
    if (!repetitionsGiven)
        args.push_back(repetitions);
    argc = int(args.size());
    args.push_back(nullptr);
    argv = args.data();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    Recorder recorder;
    benchmark::RunSpecifiedBenchmarks(&recorder);
    const double show = recorder.times["BM_ShowRecordInView"];
    const double data = recorder.times["BM_DecodeAndTexts"];
    if (show <= 0 || data <= 0) {
        std::printf("ratios: not measured (run all benchmarks)\n");
        return 0;
    }
    std::printf("ratio show record in view / decode + texts: %.2f (goal at most 3)\n", show / data);
    return 0;
}
