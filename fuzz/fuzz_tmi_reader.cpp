// Any bytes as a saved telemetry file: the reader, then every record it accepts through the keys
// and the texts the viewers show.
#include "telemetry/orba_export.h"
#include "telemetry/tmi_file.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    zrk::tmi::Header header;
    int records = 0;
    const QString error = zrk::tmi::parse(reinterpret_cast<const char*>(data), qint64(size),
        QStringLiteral("fuzz.tmi"), &header, [&records](const QByteArray& bytes, qint64, bool) {
            // A record is never empty and never longer than the reader allows.
            if (bytes.isEmpty() || bytes.size() > 65536)
                std::abort();
            zrk::tmi::keysOf(bytes);
            orba::csvCells(bytes);
            return ++records < 64;
        });
    // A file that reads cleanly writes back to a file that reads to the same records.
    if (error.isEmpty() && records < 64) {
        QVector<zrk::tmi::Record> first;
        zrk::tmi::parse(reinterpret_cast<const char*>(data), qint64(size), QString(), nullptr,
            [&first](const QByteArray& bytes, qint64 ms, bool history) {
                zrk::tmi::Record r;
                r.bytes = bytes;
                if (ms != zrk::tmi::kNoTime)
                    r.received = QDateTime::fromMSecsSinceEpoch(ms, Qt::UTC);
                r.fromHistory = history;
                first << r;
                return true;
            });
        const QByteArray again = zrk::tmi::fileBytes(header, first);
        int n = 0;
        const QString error2 = zrk::tmi::parse(
            again.constData(), again.size(), QString(), nullptr, [&](const QByteArray& bytes, qint64, bool) {
                return n < first.size() && bytes == first[n++].bytes;
            });
        if (!error2.isEmpty() || n != first.size())
            std::abort();
    }
    return 0;
}
