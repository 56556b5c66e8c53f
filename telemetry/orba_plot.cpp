#include "telemetry/orba_plot.h"

#include "telemetry/orba_page.h"

#include <cstring>

namespace orba {

bool isPlottable(int no)
{
    if (no < 1 || no > kFieldCount)
        return false;
    const FieldInfo& f = kFields[no - 1];
    return f.type != Type::B && f.rule != Rule::Bits && f.rule != Rule::Parts && f.rule != Rule::DateTime;
}

bool fieldNumber(const OrbaPage& page, int no, double* value)
{
    if (!isPlottable(no) || !page.isUsed(no))
        return false;
    const FieldInfo& f = kFields[no - 1];
    const unsigned char* p = page.recordBytes() + kOffsets[no];
    double v = 0;
    if (f.type == Type::F) {
        float x;
        std::memcpy(&x, p, 4);
        v = x;
    } else if (f.type == Type::S) {
        v = double(signExtend(readLE(p, f.width), f.width));
    } else {
        v = double(readLE(p, f.width));
    }
    // Shown values, not raw units: the chart reads like the form.
    switch (f.rule) {
    case Rule::Volts:
        v /= 1000.0;
        break;
    case Rule::Altitude:
        v = double(qint64(v / 10));
        break;
    case Rule::HpTemp:
        if (qint16(v) == qint16(0x8000))
            return false;
        v /= 20.0;
        break;
    case Rule::Temp:
        if (v == -128)
            return false;
        break;
    case Rule::Tenths:
        v /= 10.0;
        break;
    default:
        break;
    }
    *value = v;
    return true;
}

} // namespace orba
