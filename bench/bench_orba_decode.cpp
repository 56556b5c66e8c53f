// Decoding an ORBA version-3 record against copying its body with memcpy, measured in one run:
// the record with every field, the record with the default field set, and a stream whose field
// set changes every record. Prints the ratios of
// the fastest CPU times of several repetitions (the build machine is shared, so wall time would
// count other processes' turns).
#include "best_times.h"
#include "config_model/orba_fieldset.h"
#include "telemetry/tmipage_orba3.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

// A record of the given fields, laid out field by field at the table's widths.
QByteArray makeRecord(const std::vector<int>& fields)
{
    QByteArray mask(orba::kMaskBytes, '\0');
    QByteArray body;
    for (int no : fields) {
        zrkOrbaSetMaskBit(reinterpret_cast<unsigned char*>(mask.data()), no, true);
        for (int i = 0; i < orba::kFields[no - 1].width; ++i)
            body.append(char(no + i));
    }
    return QByteArray("\xB0\x1E", 2) + mask + body;
}

std::vector<int> allFields()
{
    std::vector<int> f;
    for (int no = 1; no <= orba::kFieldCount; ++no)
        f.push_back(no);
    return f;
}

// The field set a new configuration starts with.
std::vector<int> defaultFields()
{
    std::vector<int> f;
    const QString& set = zrk::fieldset::const_qsDef_Orba3;
    for (int p = 0; p < set.size(); ++p) {
        if (set.at(p) == QLatin1Char('1'))
            f.push_back(p + 1);
    }
    return f;
}

const QByteArray& allRecord()
{
    static const QByteArray r = makeRecord(allFields());
    return r;
}

const QByteArray& defaultRecord()
{
    static const QByteArray r = makeRecord(defaultFields());
    return r;
}

const unsigned char* bytes(const QByteArray& b)
{
    return reinterpret_cast<const unsigned char*>(b.constData());
}

// The decoder proper: the page keeps the record's mask, setCurrentTMI unpacks the body.
void decode(benchmark::State& state, const QByteArray& record)
{
    TmiPage_Orba3 page(record);
    const unsigned char* body = bytes(record) + orba::kBodyOffset;
    const int len = record.size() - orba::kBodyOffset;
    for (auto _ : state) {
        page.setCurrentTMI(body, len);
        benchmark::DoNotOptimize(&page.currentTMI());
        benchmark::ClobberMemory();
    }
}

// The reference: the same body bytes copied with memcpy into the same place, a page's structure.
void copy(benchmark::State& state, const QByteArray& record, int size)
{
    TmiPage_Orba3 page(record);
    auto* target = const_cast<szCurrentTMI_ORBA3*>(&page.currentTMI());
    const unsigned char* body = bytes(record) + orba::kBodyOffset;
    for (auto _ : state) {
        benchmark::DoNotOptimize(body);
        std::memcpy(target, body, size_t(size));
        benchmark::DoNotOptimize(target);
        benchmark::ClobberMemory();
    }
}

void BM_DecodeAllFields(benchmark::State& s)
{
    decode(s, allRecord());
}
void BM_MemcpyAllFields(benchmark::State& s)
{
    copy(s, allRecord(), 734);
}
void BM_DecodeDefaultSet(benchmark::State& s)
{
    decode(s, defaultRecord());
}
void BM_MemcpyDefaultSet(benchmark::State& s)
{
    copy(s, defaultRecord(), defaultRecord().size() - orba::kBodyOffset);
}

// The field sets of eight terminals configured differently: the default set, without and with
// some of its fields, and with groups a fleet adds (mobile cells, CAN, tyres, sensors, fuel).
std::vector<std::vector<int>> fleetFieldSets()
{
    const std::vector<std::vector<int>> extra = { {}, { orba::F_LBS }, { 53, 54, 55, 56, 57, 67 },
        { orba::F_Tires1_2, orba::F_Tires3_6 }, { 45, 46, 47, 48, 163, 164 }, { 171, 172, 173, 174, 175 },
        { 21, 22, 23, 24, 33, 34 }, { 78, 79, 80, 84, 85 } };
    std::vector<std::vector<int>> sets;
    for (size_t i = 0; i < extra.size(); ++i) {
        std::vector<int> f = defaultFields();
        if (i % 2)
            f.pop_back(); // an older configuration without the last default field
        f.insert(f.end(), extra[i].begin(), extra[i].end());
        std::sort(f.begin(), f.end());
        f.erase(std::unique(f.begin(), f.end()), f.end());
        sets.push_back(f);
    }
    return sets;
}

// The records of those eight terminals, each decoded `repeat` times in a row before the next; per
// record. A repeat of 1 is a stream whose field set changes every record.
void decodeFleet(benchmark::State& state, int repeat)
{
    std::vector<QByteArray> records;
    for (const std::vector<int>& f : fleetFieldSets())
        records.push_back(makeRecord(f));
    szCurrentTMI_ORBA3 rec = {};
    auto* target = reinterpret_cast<unsigned char*>(&rec);
    for (auto _ : state) {
        for (const QByteArray& r : records) {
            for (int i = 0; i < repeat; ++i) {
                orba::decodeFields(bytes(r) + orba::kMaskOffset, bytes(r) + orba::kBodyOffset,
                    r.size() - orba::kBodyOffset, target, orba::kFieldCount);
                benchmark::DoNotOptimize(target);
                benchmark::ClobberMemory();
            }
        }
    }
}
constexpr int kFixedRepeat = 16;
void BM_DecodeChangingFieldSets(benchmark::State& s)
{
    decodeFleet(s, 1);
}
void BM_DecodeFleetFieldSetsFixed(benchmark::State& s)
{
    decodeFleet(s, kFixedRepeat);
}

// The whole setNewTMI (head and raw copies, clearing the structure, decoding), for reference.
void BM_SetNewTMIAllFields(benchmark::State& state)
{
    TmiPage_Orba3 page(allRecord());
    for (auto _ : state) {
        page.setNewTMI(bytes(allRecord()), allRecord().size());
        benchmark::DoNotOptimize(&page.currentTMI());
        benchmark::ClobberMemory();
    }
}

BENCHMARK(BM_DecodeAllFields);
BENCHMARK(BM_MemcpyAllFields);
BENCHMARK(BM_DecodeDefaultSet);
BENCHMARK(BM_MemcpyDefaultSet);
BENCHMARK(BM_DecodeChangingFieldSets);
BENCHMARK(BM_DecodeFleetFieldSetsFixed);
BENCHMARK(BM_SetNewTMIAllFields);

} // namespace

int main(int argc, char** argv)
{
    BestTimesReporter recorder;
    if (!runBenchmarks(argc, argv, recorder))
        return 1;
    auto t = [&](const char* name) { return recorder.time(name); };
    const double memcpyAll = t("BM_MemcpyAllFields");
    const double memcpyDefault = t("BM_MemcpyDefaultSet");
    if (memcpyAll <= 0 || memcpyDefault <= 0) {
        std::printf("ratios: not measured (run all benchmarks)\n");
        return 0;
    }
    const int defaultBody = defaultRecord().size() - orba::kBodyOffset;
    const double decodeAll = t("BM_DecodeAllFields"), decodeDefault = t("BM_DecodeDefaultSet");
    std::printf(
        "ratio all-fields decode / memcpy of its 734-byte body: %.2f (%.1f ns / %.1f ns, goal <= 2)\n",
        decodeAll / memcpyAll, decodeAll, memcpyAll);
    std::printf("ratio default-set decode / memcpy of a 734-byte body: %.2f (%.1f ns / %.1f ns, goal <= 3)\n",
        decodeDefault / memcpyAll, decodeDefault, memcpyAll);
    std::printf("ratio default-set decode / memcpy of its own %d-byte body: %.2f (%.1f ns / %.1f ns)\n",
        defaultBody, decodeDefault / memcpyDefault, decodeDefault, memcpyDefault);
    const double fleet = double(fleetFieldSets().size());
    const double changing = t("BM_DecodeChangingFieldSets") / fleet;
    const double fixed = t("BM_DecodeFleetFieldSetsFixed") / fleet / kFixedRepeat;
    std::printf(
        "ratio decode with the field set changing every record (8 terminals) / memcpy of a 734-byte body: "
        "%.2f (%.1f ns / %.1f ns, goal <= 3)\n",
        changing / memcpyAll, changing, memcpyAll);
    std::printf("ratio decode with the field set changing every record / the same records with a fixed set: "
                "%.2f (%.1f ns / %.1f ns)\n",
        changing / fixed, changing, fixed);
    std::printf("ratio all-fields setNewTMI / memcpy of its 734-byte body: %.2f (whole page update)\n",
        t("BM_SetNewTMIAllFields") / memcpyAll);
    return 0;
}
