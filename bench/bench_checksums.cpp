// CRC-32 against zlib's over the same 1 MiB, and the packet finder against a bare memmem of the
// preamble over the same 16 MiB of noise that ends in one packet. Prints the two ratios.
#include "config_model/common_routines.h"
#include "device/common_functions.h"

#include <benchmark/benchmark.h>
#include <zlib.h>

#include <cstdio>
#include <cstring>
#include <map>
#include <random>
#include <string.h> // memmem

// zlib's function crc32 hides the class of the same name; the class is reached as "class crc32".
using Crc32 = class crc32;

namespace {

QByteArray noise(int size, unsigned seed)
{
    std::mt19937 gen(seed);
    QByteArray out(size, Qt::Uninitialized);
    for (int i = 0; i < size; ++i)
        out[i] = static_cast<char>(gen() & 0xFF);
    return out;
}

const QByteArray& crcBuffer()
{
    static const QByteArray buffer = noise(1 << 20, 1);
    return buffer;
}

// Noise without a preamble in it, then one packet that ends the buffer.
const QByteArray& captureBuffer()
{
    static const QByteArray buffer = [] {
        const QByteArray packet = commonFunctions::getUsbCommand_Ping();
        QByteArray b = noise((16 << 20) - packet.size(), 2);
        for (int i = b.indexOf("@ZRK"); i >= 0; i = b.indexOf("@ZRK", i))
            b[i] = 'x';
        return b + packet;
    }();
    return buffer;
}

void BM_crc32_ours(benchmark::State& state)
{
    const QByteArray& b = crcBuffer();
    Crc32 crc;
    for (auto _ : state) {
        crc.ClearCRC();
        benchmark::DoNotOptimize(crc.ProcessCRC(b.constData(), b.size()));
    }
    if (crc.value()
        != ::crc32(0L, reinterpret_cast<const Bytef*>(b.constData()), static_cast<uInt>(b.size())))
        state.SkipWithError("check sums differ");
    state.SetBytesProcessed(state.iterations() * b.size());
}
BENCHMARK(BM_crc32_ours);

void BM_crc32_zlib(benchmark::State& state)
{
    const QByteArray& b = crcBuffer();
    for (auto _ : state)
        benchmark::DoNotOptimize(
            ::crc32(0L, reinterpret_cast<const Bytef*>(b.constData()), static_cast<uInt>(b.size())));
    state.SetBytesProcessed(state.iterations() * b.size());
}
BENCHMARK(BM_crc32_zlib);

void BM_find_ours(benchmark::State& state)
{
    const QByteArray& b = captureBuffer();
    int found = -1;
    for (auto _ : state) {
        found = commonFunctions::findPacketZRKB(b);
        benchmark::DoNotOptimize(found);
    }
    if (found != b.size() - 24)
        state.SkipWithError("packet not found at the end");
    state.SetBytesProcessed(state.iterations() * b.size());
}
BENCHMARK(BM_find_ours);

void BM_find_memmem(benchmark::State& state)
{
    const QByteArray& b = captureBuffer();
    for (auto _ : state)
        benchmark::DoNotOptimize(memmem(b.constData(), static_cast<size_t>(b.size()), "@ZRK", 4));
    state.SetBytesProcessed(state.iterations() * b.size());
}
BENCHMARK(BM_find_memmem);

// Keeps the CPU time per iteration of every run so that the ratios can be printed at the end.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    // Plain text: the output ends up in CI logs, not on a terminal.
    RatioReporter()
        : ConsoleReporter(OO_Tabular)
    {
    }
    std::map<std::string, double> seconds;

    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& r : runs) {
            if (r.run_type == Run::RT_Iteration && !r.error_occurred && r.iterations > 0)
                seconds[r.benchmark_name()] = r.cpu_accumulated_time / static_cast<double>(r.iterations);
        }
        ConsoleReporter::ReportRuns(runs);
    }

    void printRatio(const char* label, const std::string& ours, const std::string& reference) const
    {
        const auto a = seconds.find(ours);
        const auto b = seconds.find(reference);
        if (a == seconds.end() || b == seconds.end() || b->second <= 0) {
            std::printf("ratio %s: not measured\n", label);
            return;
        }
        std::printf("ratio %s: %.2f\n", label, a->second / b->second);
    }
};

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    reporter.printRatio("crc32/zlib", "BM_crc32_ours", "BM_crc32_zlib");
    reporter.printRatio("findPacketZRKB/memmem", "BM_find_ours", "BM_find_memmem");
    return 0;
}
