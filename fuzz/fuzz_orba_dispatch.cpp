// Any buffer through the version choice and the page it picks, and through the record writer of
// zrk-tool decode, which must write what the JSON document and the CSV cells write.
#include "orba_fuzz_common.h"
#include "telemetry/orba_dispatch.h"
#include "telemetry/orba_export.h"
#include "telemetry/orba_writer.h"
#include "telemetry/tmipage_orba3.h"
#include "zrk/zrk_text.h"

#include <QJsonDocument>

#include <algorithm>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const int len = int(std::min<size_t>(size, 1 << 16));
    for (int mode = 0; mode <= 2; ++mode) {
        const orba::Form shown = orba::chooseForm(data, len, mode, true);
        const orba::Form quiet = orba::chooseForm(data, len, mode, false);
        if ((len < 2) != (shown == orba::Form::Dropped)
            || (shown == orba::Form::Unknown) != (quiet == orba::Form::Dropped && len >= 2))
            std::abort();
    }
    const orba::Form form = orba::chooseForm(data, len, 0, true);
    const std::unique_ptr<OrbaPage> page = orba::buildPage(form, data, len);
    if (page) {
        readEverything(*page);
        if (form == orba::Form::Extended)
            readExtended(static_cast<const TmiPage_Orba3&>(*page).extTMI());
    }
    static orba::RecordWriter json(orba::RecordWriter::Format::JsonLines);
    static orba::RecordWriter csv(orba::RecordWriter::Format::Csv);
    const QByteArray record = QByteArray::fromRawData(reinterpret_cast<const char*>(data), len);
    zrk::TextBuffer jsonLine, csvLine;
    json.write(record, jsonLine);
    csv.write(record, csvLine);
    if (QByteArray(jsonLine.data(), int(jsonLine.size()))
            != QJsonDocument(orba::recordJson(record)).toJson(QJsonDocument::Compact) + '\n'
        || QByteArray(csvLine.data(), int(csvLine.size()))
            != zrk::csvLine(orba::csvCells(record)).toUtf8() + '\n')
        std::abort();
    return 0;
}
