#include "telemetry/tmi_time.h"

#include "telemetry/orba_page.h"
#include "telemetry/tmipage_orba3.h"

namespace zrk::tmi {

int offsetSeconds(int hours, int minutes)
{
    return hours * 3600 + (hours < 0 ? -minutes : minutes) * 60;
}

QDateTime requestMoment(const QDateTime& chosen, int offsetSeconds)
{
    return chosen.addSecs(-qint64(offsetSeconds));
}

Freshness freshnessOf(const OrbaPage& page, const QDateTime& received, Origin origin)
{
    Freshness f;
    f.received = received;
    f.origin = origin;
    if (page.isExtended()) {
        const auto& ext = static_cast<const TmiPage_Orba3&>(page);
        f.hasTime = f.hasFix = true;
        f.time = ext.getEventTime_Ext();
        f.lastFix = ext.getLastTime_Ext();
        return f;
    }
    const unsigned char* rec = page.recordBytes();
    f.hasTime = page.isUsed(orba::F_Time);
    f.time = f.hasTime ? quint32(orba::readLE(rec + orba::kOffsets[orba::F_Time], 4)) : 0;
    f.hasFix = page.isUsed(orba::F_LastTime);
    f.lastFix = f.hasFix ? quint32(orba::readLE(rec + orba::kOffsets[orba::F_LastTime], 4)) : 0;
    return f;
}

QString freshnessText(const Freshness& f)
{
    if (!f.received.isValid())
        return QString();
    //% "Получена: %1"
    QString text = qtTrId("tmiw_085").arg(f.received.toString(QStringLiteral("dd.MM.yyyy HH:mm:ss")));
    if (f.hasTime)
        //% "время записи: %1"
        text += QStringLiteral(" · ") + qtTrId("tmiw_086").arg(orba::dateTimeText(f.time));
    if (f.hasFix && f.hasTime && f.lastFix != 0) {
        const qint64 age = qint64(f.time) - qint64(f.lastFix);
        //% "возраст координат: %1 %2"
        text += QStringLiteral(" · ") + qtTrId("tmiw_087").arg(age).arg(qtTrId("abbr_003"));
    } else if (f.hasFix) {
        //% "координат нет"
        text += QStringLiteral(" · ") + qtTrId("tmiw_088");
    }
    return text;
}

QString historyMarkText(Origin origin)
{
    switch (origin) {
    case Origin::Live:
        break;
    case Origin::ByNumber:
        //% "ИЗ ИСТОРИИ (по номеру)"
        return qtTrId("tmiw_089");
    case Origin::ByTime:
        //% "ИЗ ИСТОРИИ (по времени)"
        return qtTrId("tmiw_090");
    }
    return QString();
}

} // namespace zrk::tmi
