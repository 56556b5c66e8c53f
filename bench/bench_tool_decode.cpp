// zrk-tool decode on 100,000 records of a fleet (lines of hex, eight terminals with different field
// sets taking turns, about 250 bytes a record), against `xxd -r -p` of the same input measured in
// the same run: JSON lines (goal: at most 10x), CSV (at most 5x), and two files with -j 2 against
// one file with one thread (at least 1.6x the records per second). The tool and xxd run as
// processes with their output thrown away; the ratios are of the CPU time they take (the machine
// is shared, so wall time would count other processes' turns), the -j ratio of wall time. Then
// where the tool's time goes, measured inside this process on the same records.
#include "best_times.h"
#include "config_model/orba_fieldset.h"
#include "telemetry/orba_writer.h"
#include "translations/catalogue.h"
#include "zrk/zrk_text.h"

#include <QCoreApplication>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char** environ;

namespace {

constexpr int kRecords = 100000;
constexpr int kRuns = 3;

std::vector<int> range(int first, int last)
{
    std::vector<int> r;
    for (int no = first; no <= last; ++no)
        r.push_back(no);
    return r;
}

// Eight terminals: the default field set with the satellite and mobile-cell block, and what fleets
// add to it (CAN, tyres, sensors, fuel and refrigerator, user values, counters), so that records
// run from about 170 to 330 bytes.
std::vector<std::vector<int>> terminalFieldSets()
{
    auto join = [](std::initializer_list<std::vector<int>> parts) {
        std::vector<int> all;
        for (const std::vector<int>& p : parts)
            all.insert(all.end(), p.begin(), p.end());
        return all;
    };
    const std::vector<int> can = range(53, 69), tyres = range(94, 97), fuel = range(171, 181);
    const std::vector<std::vector<int>> extra = {
        {},
        join({ can, range(201, 204) }),
        tyres,
        join({ range(45, 52), range(163, 170), range(78, 93), range(110, 117) }),
        join({ fuel, range(182, 199) }),
        range(207, 255),
        join({ range(21, 28), range(33, 44), range(98, 109) }),
        join({ tyres, can, fuel }),
    };
    std::vector<std::vector<int>> sets;
    const QString& def = zrk::fieldset::const_qsDef_Orba3;
    for (const std::vector<int>& more : extra) {
        std::vector<int> f = join({ more, range(70, 77) });
        for (int p = 0; p < def.size(); ++p) {
            if (def.at(p) == QLatin1Char('1'))
                f.push_back(p + 1);
        }
        std::sort(f.begin(), f.end());
        f.erase(std::unique(f.begin(), f.end()), f.end());
        sets.push_back(f);
    }
    return sets;
}

void put(QByteArray& body, int no, quint64 value)
{
    for (int i = 0; i < orba::kFields[no - 1].width; ++i)
        body.append(char(i < 8 ? (value >> (8 * i)) & 0xFF : (value * 31 + quint64(i)) & 0xFF));
}

quint32 floatBits(float f)
{
    quint32 u;
    std::memcpy(&u, &f, 4);
    return u;
}

// Record i of the stream: terminal i % 8 on the move.
QByteArray record(const std::vector<std::vector<int>>& sets, int i)
{
    const int terminal = i % int(sets.size());
    QByteArray mask(orba::kMaskBytes, '\0'), body;
    const quint32 t = 1700000000u + quint32(i / 8) * 60u;
    for (int no : sets[size_t(terminal)]) {
        mask[(no - 1) / 8] = char(mask[(no - 1) / 8] | (0x80 >> ((no - 1) % 8)));
        quint64 v = quint64(i) * 2654435761u + quint64(no) * 40503u; // changing, plausible-looking
        switch (no) {
        case orba::F_NumPage:
            v = quint64(i / 8);
            break;
        case orba::F_Time:
        case orba::F_LastTime:
            v = t;
            break;
        case orba::F_Latitude:
            v = quint64(qint64(33456789 + i * 7 + terminal * 100000));
            break;
        case orba::F_Longitude:
            v = quint64(qint64(22345678 - i * 5));
            break;
        case orba::F_Speed:
            v = floatBits(float(i % 900) / 10.f);
            break;
        case orba::F_Run:
            v = floatBits(float(i) * 0.37f);
            break;
        default:
            break;
        }
        put(body, no, v);
    }
    return QByteArray(1, char(orba::kKindCurrent)) + char(orba::kVersionByte[3]) + mask + body;
}

struct Timing
{
    double wall = 0, cpu = 0; // seconds
    bool ok = false;
};

// Runs a program with its output thrown away; wall and CPU (user + system) time.
Timing runProgram(const std::vector<QByteArray>& args)
{
    std::vector<char*> argv;
    for (const QByteArray& a : args)
        argv.push_back(const_cast<char*>(a.constData()));
    argv.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    Timing t;
    const auto t0 = std::chrono::steady_clock::now();
    pid_t pid;
    if (posix_spawn(&pid, argv[0], &actions, nullptr, argv.data(), environ) == 0) {
        int status = 0;
        struct rusage use = {};
        if (wait4(pid, &status, 0, &use) == pid) {
            t.wall = std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count();
            t.cpu = double(use.ru_utime.tv_sec + use.ru_stime.tv_sec)
                + double(use.ru_utime.tv_usec + use.ru_stime.tv_usec) / 1e6;
            t.ok = WIFEXITED(status) && WEXITSTATUS(status) == 0;
        }
    }
    posix_spawn_file_actions_destroy(&actions);
    return t;
}

// The best wall and the best CPU time of several runs.
Timing best(const std::vector<QByteArray>& args, int runs = kRuns)
{
    Timing b { 1e30, 1e30, true };
    for (int i = 0; i < runs; ++i) {
        const Timing t = runProgram(args);
        b.ok = b.ok && t.ok;
        b.wall = std::min(b.wall, t.wall);
        b.cpu = std::min(b.cpu, t.cpu);
    }
    return b;
}

// Other work on the machine slows what runs on it: shown beside the ratios.
QByteArray loadAverage()
{
    QFile f(QStringLiteral("/proc/loadavg"));
    return f.open(QIODevice::ReadOnly) ? f.readLine() : QByteArray("unknown\n");
}

const char* verdict(bool met)
{
    return met ? "met" : "NOT MET";
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv); // the catalogue of the breakdown below needs one
    const QString xxd = QStandardPaths::findExecutable(QStringLiteral("xxd"));
    if (xxd.isEmpty()) {
        std::printf("xxd not found: it is the reference (scripts/install-deps.sh installs it)\n");
        return 1;
    }
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("fleet.hex"));
    const std::vector<std::vector<int>> sets = terminalFieldSets();
    std::vector<QByteArray> records;
    records.reserve(kRecords);
    QByteArray text;
    for (int i = 0; i < kRecords; ++i) {
        records.push_back(record(sets, i));
        text += records.back().toHex() + '\n';
    }
    {
        QFile f(path);
        if (!f.open(QIODevice::WriteOnly) || f.write(text) != text.size()) {
            std::printf("cannot write %s\n", qPrintable(path));
            return 1;
        }
    }
    std::printf("load average before: %s", loadAverage().constData());
    std::printf("input: %d records of 8 terminals taking turns, %.1f MB of hex lines, %.0f bytes a record\n",
        kRecords, double(text.size()) / 1e6, double(text.size() - kRecords) / 2 / kRecords);

    const QByteArray file = QFile::encodeName(path), tool = ZRK_TOOL_PATH;
    const Timing ref = best({ QFile::encodeName(xxd), "-r", "-p", file });
    const Timing json = best({ tool, "decode", "-j", "1", file });
    const Timing csv = best({ tool, "decode", "--csv", "-j", "1", file });
    // Wall time, so more tries: the one with both cores free counts.
    const Timing two = best({ tool, "decode", "-j", "2", file, file }, 2 * kRuns);
    const Timing oneAll = best({ tool, "decode", file });
    if (!ref.ok || !json.ok || !csv.ok || !two.ok || !oneAll.ok) {
        std::printf("a run failed\n");
        return 1;
    }
    std::printf("xxd -r -p: %.3f s CPU (%.3f s wall)\n", ref.cpu, ref.wall);
    std::printf("ratio JSON lines (-j 1) / xxd -r -p: %.2f (%.3f s CPU, %.0f records/s; goal <= 10: %s)\n",
        json.cpu / ref.cpu, json.cpu, kRecords / json.cpu, verdict(json.cpu / ref.cpu <= 10));
    std::printf("ratio CSV (-j 1) / xxd -r -p: %.2f (%.3f s CPU, %.0f records/s; goal <= 5: %s)\n",
        csv.cpu / ref.cpu, csv.cpu, kRecords / csv.cpu, verdict(csv.cpu / ref.cpu <= 5));
    // One thread can go no faster than its CPU time: that is the reference of the -j ratio.
    const double speedup = (2.0 * kRecords / two.wall) / (kRecords / json.cpu);
    std::printf(
        "ratio records/s of two files with -j 2 / one file with -j 1: %.2f (%.3f s wall / %.3f s CPU; "
        "goal >= 1.6: %s)\n",
        speedup, two.wall, json.cpu, verdict(speedup >= 1.6));
    std::printf("one file with the default -j (the cores): %.3f s wall, %.2fx one thread\n", oneAll.wall,
        json.cpu / oneAll.wall);

    // Where the time goes, one thread, inside this process: the hex, the decoding and the texts,
    // the rest being the reading, the writing and the start of the process.
    zrk::installCatalogue(QStringLiteral("ru"));
    std::vector<unsigned char> bytes(1 << 16);
    const double hexOnly = bestCpuSeconds(kRuns, [&] {
        const char* p = text.constData();
        const char* end = p + text.size();
        while (p < end) {
            const char* eol = static_cast<const char*>(std::memchr(p, '\n', size_t(end - p)));
            zrk::decodeHex(reinterpret_cast<const uchar*>(p), int(eol - p), bytes.data());
            p = eol + 1;
        }
    });
    szCurrentTMI_ORBA3 rec = {};
    const double decodeOnly = bestCpuSeconds(kRuns, [&] {
        for (const QByteArray& r : records) {
            const auto* b = reinterpret_cast<const unsigned char*>(r.constData());
            orba::decodeFields(b + orba::kMaskOffset, b + orba::kBodyOffset, r.size() - orba::kBodyOffset,
                reinterpret_cast<unsigned char*>(&rec), orba::kFieldCount);
        }
    });
    for (const auto format : { orba::RecordWriter::Format::JsonLines, orba::RecordWriter::Format::Csv }) {
        orba::RecordWriter writer(format);
        zrk::TextBuffer out;
        qint64 size = 0;
        const double written = bestCpuSeconds(kRuns, [&] {
            size = 0;
            for (const QByteArray& r : records) {
                writer.write(r, out);
                if (out.size() > (1 << 22)) {
                    size += qint64(out.size());
                    out.clear();
                }
            }
            size += qint64(out.size());
            out.clear();
        });
        const Timing& whole = format == orba::RecordWriter::Format::Csv ? csv : json;
        std::printf("%s, per record: %.2f us in all; hex %.2f us, decoding %.2f us, texts %.2f us, the rest "
                    "(reading, writing, starting) %.2f us; %.0f output bytes a record\n",
            format == orba::RecordWriter::Format::Csv ? "CSV" : "JSON", whole.cpu / kRecords * 1e6,
            hexOnly / kRecords * 1e6, decodeOnly / kRecords * 1e6, (written - decodeOnly) / kRecords * 1e6,
            std::max(0.0, whole.cpu - hexOnly - written) / kRecords * 1e6, double(size) / kRecords);
    }
    std::printf("load average after: %s", loadAverage().constData());
    return 0;
}
