// A saved telemetry file of 100,000 records opened in the table viewer's model, against a libxml2
// SAX parse of the same file measured in the same run (goal: at most 3x), and the resident memory
// the open model holds against the raw record bytes (goal: at most 2x plus a fixed overhead).
// Prints plain lines.
#include "best_times.h"
#include "telemetry/orba_record.h"
#include "telemetry/tmi_record_model.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <libxml/parser.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <functional>
#include <unistd.h>

namespace {

constexpr int kRecords = 100000;

long residentBytes()
{
    long pages = 0, resident = 0;
    if (FILE* f = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(f, "%ld %ld", &pages, &resident) != 2)
            resident = 0;
        std::fclose(f);
    }
    return resident * sysconf(_SC_PAGESIZE);
}

void put(QByteArray& body, QByteArray& mask, int no, quint64 value)
{
    mask[(no - 1) / 8] = char(mask[(no - 1) / 8] | (0x80 >> ((no - 1) % 8)));
    for (int i = 0; i < orba::kFields[no - 1].width; ++i)
        body.append(char((value >> (8 * i)) & 0xFF));
}

// A vehicle on the move, in a field set a terminal commonly sends (22 fields, 63 value bytes).
QByteArray record(int i)
{
    QByteArray mask(orba::kMaskBytes, '\0'), body;
    float speed = float(i % 90), run = float(i) * 0.01f;
    quint32 speedBits, runBits;
    std::memcpy(&speedBits, &speed, 4);
    std::memcpy(&runBits, &run, 4);
    const int fields[][2] = { { orba::F_NumPage, i }, { orba::F_Code, i % 7 },
        { orba::F_Time, 1700000000 + i * 10 }, { orba::F_State, 0x21 }, { orba::F_Module1, 0x0f },
        { orba::F_GSM, 20 + i % 11 }, { orba::F_LastTime, 1700000000 + i * 10 },
        { orba::F_Latitude, 33456789 + i }, { orba::F_Longitude, 22345678 + i },
        { orba::F_Altitude, 1500 + i % 100 }, { orba::F_Speed, int(speedBits) }, { orba::F_Course, i % 360 },
        { orba::F_Run, int(runBits) }, { orba::F_Power, 12000 + i % 900 }, { orba::F_StateU_Ain1, 5000 },
        { orba::F_StateU_Ain2, 0 }, { orba::F_In1, i % 2 }, { orba::F_Out1, 1 }, { orba::F_Temp1, 21 },
        { orba::F_Temp2, 22 }, { orba::F_Temp3, 0x80 }, { orba::F_Temp4, 5 } };
    for (const auto& f : fields)
        put(body, mask, f[0], quint32(f[1]));
    return QByteArray(1, char(orba::kKindCurrent)) + char(orba::kVersionByte[3]) + mask + body;
}

struct SaxCount
{
    long elements = 0;
    long chars = 0;
};

long libxml2Parse(const QString& path)
{
    xmlSAXHandler h;
    std::memset(&h, 0, sizeof h);
    h.startElement
        = [](void* ctx, const xmlChar*, const xmlChar**) { ++static_cast<SaxCount*>(ctx)->elements; };
    h.characters = [](void* ctx, const xmlChar*, int len) { static_cast<SaxCount*>(ctx)->chars += len; };
    SaxCount c;
    if (xmlSAXUserParseFile(&h, &c, QFile::encodeName(path).constData()) != 0)
        return -1;
    return c.elements;
}

// Opening as the viewer does: read the file into the packed store, set it on the model (which
// finds the fields present), and decode the first screen of rows.
long openInModel(zrk::tmi::TmiRecordModel& model, const QString& path)
{
    zrk::tmi::RecordStore store;
    if (!store.load(path).isEmpty())
        return -1;
    model.setStore(std::move(store));
    long chars = 0;
    for (int row = 0; row < 40; ++row) {
        for (int c = 0; c < model.columnCount(); ++c)
            chars += model.index(row, c).data().toString().size();
    }
    return chars;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("records.tmi"));
    {
        QVector<zrk::tmi::Record> records;
        records.reserve(kRecords);
        for (int i = 0; i < kRecords; ++i)
            records.append(
                { record(i), QDateTime::fromMSecsSinceEpoch(1700000000000 + i * 10000LL, Qt::UTC), false });
        const auto t0 = std::chrono::steady_clock::now();
        QString error;
        if (!zrk::tmi::write(path, zrk::tmi::Header(), records, &error)) {
            std::printf("write failed: %s\n", qPrintable(error));
            return 1;
        }
        std::printf("file: %d records, %lld bytes, written in %.3f s\n", kRecords, QFile(path).size(),
            std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count());
    }

    // Memory first, in a heap that has not yet held the timing runs.
    const long before = residentBytes();
    long rawBytes = 0, ownOverhead = 0, resident = 0;
    {
        zrk::tmi::TmiRecordModel model;
        openInModel(model, path);
        resident = residentBytes() - before;
        rawBytes = long(model.store().rawBytes());
        ownOverhead = long(model.store().overheadBytes());
    }
    std::printf("memory: raw record bytes %ld, resident growth with the model open %ld (%.2fx raw), "
                "store's own overhead %ld bytes (%.1f per record)\n",
        rawBytes, resident, double(resident) / double(rawBytes), ownOverhead, double(ownOverhead) / kRecords);
    std::printf("memory goal (resident <= 2x raw + fixed overhead): %s\n",
        resident <= 2 * rawBytes + (4 << 20) ? "met" : "NOT met");

    const int runs = 5;
    long sink = 0;
    const double ref = bestSeconds(runs, [&] { sink += libxml2Parse(path); });
    const double ours = bestSeconds(runs, [&] {
        zrk::tmi::TmiRecordModel model;
        sink += openInModel(model, path);
    });
    if (sink <= 0)
        std::printf("a parse failed\n");
    std::printf("libxml2 SAX parse of the file: %.3f s\n", ref);
    std::printf("open in the table model: %.3f s  (%.2fx libxml2; goal <= 3x: %s)\n", ours, ours / ref,
        ours <= 3 * ref ? "met" : "NOT met");
    return 0;
}
