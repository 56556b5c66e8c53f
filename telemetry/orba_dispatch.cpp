#include "telemetry/orba_dispatch.h"

#include "telemetry/tmipage_orba1.h"
#include "telemetry/tmipage_orba2.h"
#include "telemetry/tmipage_orba3.h"

namespace orba {

Form chooseForm(const unsigned char* buf, int len, int configuratorMode, bool showUnknown)
{
    if (!buf || len < 2)
        return Form::Dropped;
    const unsigned char kind = buf[0];
    const unsigned char version = buf[1];
    if (kind == kKindCurrent && version == kVersionByte[2])
        return Form::Orba2;
    if (kind == kKindCurrent && version == kVersionByte[1])
        return Form::Orba1;
    if (kind == kKindCurrent && version == kVersionByte[3])
        return (configuratorMode == 1 || configuratorMode == 2) ? Form::Orba3Production : Form::Orba3;
    if (kind == kKindExtended)
        return Form::Extended;
    // The fixed packet of old firmware is a version-1 record with a fixed field set: a
    // technician reads it on the version-1 page rather than as an unknown buffer.
    if (kind == kKindFixedPacket)
        return Form::Orba1;
    return showUnknown ? Form::Unknown : Form::Dropped;
}

Form chooseForm(const QByteArray& buf, int configuratorMode, bool showUnknown)
{
    return chooseForm(
        reinterpret_cast<const unsigned char*>(buf.constData()), buf.size(), configuratorMode, showUnknown);
}

std::unique_ptr<OrbaPage> buildPage(Form form, const unsigned char* buf, int len)
{
    switch (form) {
    case Form::Orba1:
        return std::make_unique<TmiPage_Orba1>(buf, len);
    case Form::Orba2:
        return std::make_unique<TmiPage_Orba2>(buf, len);
    case Form::Orba3:
    case Form::Orba3Production:
        return std::make_unique<TmiPage_Orba3>(buf, len);
    case Form::Extended:
        return std::make_unique<TmiPage_Orba3>(buf, len, TmiPage_Orba3::AsExtended {});
    case Form::Dropped:
    case Form::Unknown:
        break;
    }
    return nullptr;
}

const char* pageClassName(Form form)
{
    switch (form) {
    case Form::Orba1:
        return "TmiPage_Orba1";
    case Form::Orba2:
        return "TmiPage_Orba2";
    case Form::Orba3:
    case Form::Orba3Production:
    case Form::Extended:
        return "TmiPage_Orba3";
    case Form::Dropped:
    case Form::Unknown:
        break;
    }
    return "unknown";
}

} // namespace orba

namespace orba {

Decoded decodeRecord(const unsigned char* buf, int len)
{
    Decoded d;
    d.form = chooseForm(buf, len, 0, true);
    if (buf && len >= 1 && buf[0] == kKindFixedPacket)
        d.form = Form::Orba1;
    d.page = buildPage(d.form, buf, len);
    d.className = pageClassName(d.form);
    return d;
}

Decoded decodeRecord(const QByteArray& record)
{
    return decodeRecord(reinterpret_cast<const unsigned char*>(record.constData()), record.size());
}

} // namespace orba
