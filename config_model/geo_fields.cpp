#include "config_model/geo_fields.h"

QString geoRecordName(const GeoRecordKind& kind, int number, int second)
{
    const QString name = qtTrId(kind.nameId).arg(number);
    return second > 0 ? name.arg(second) : name;
}

QString geoRangeMessage(const QString& who, const char* key, const QString& value, int min, int max)
{
    //% "%1: \"%2\" = %3 вне диапазона %4..%5."
    return qtTrId("geod_067").arg(who, QLatin1String(key), value).arg(min).arg(max);
}
