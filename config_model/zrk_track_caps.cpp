#include "config_model/zrk_track_caps.h"

// This model: five averaging flags, both parking modes, a receiver without datum, EPO, A-GPS or
// receiver choice, and the whole locator with Wi-Fi and mobile cells.
ZRK_Track_Caps zrkTrackCaps()
{
    ZRK_Track_Caps c;
    c.avgSensorCount = 5;
    c.avgSensor4 = true;
    c.avgSensorsDefault = QStringLiteral("1110");
    c.parkingModeSelect = true;
    c.rejectDeltaNtp = true;
    c.maxHdopDefault = 2.5f;
    c.gnssPresent = true;
    c.gnssSystems = {
        //% "GPS + ГЛОНАСС"
        { QStringLiteral("11000"), QLatin1String(QT_TRID_NOOP("cfgt3_047")), QString() },
        //% "GPS и BeiDou"
        { QStringLiteral("10001"), QLatin1String(QT_TRID_NOOP("cfgt3_048")), QString() },
        { QString(), QString(), QString() },
        //% "Только GPS"
        { QStringLiteral("10000"), QLatin1String(QT_TRID_NOOP("cfgt3_045")), QString() },
        //% "ГЛОНАСС"
        { QStringLiteral("01000"), QLatin1String(QT_TRID_NOOP("cfgt3_046")), QString() },
    };
    c.gnssModeDefault = QStringLiteral("11000");
    c.gnssDatum = false;
    c.gnssEpo = false;
    c.gnssAgps = false;
    c.gnssAngle = true;
    c.gnssReceiver = false;
    c.coldRestartTimer = true;
    c.locatorTlm = true;
    c.locatorGlobal = true;
    c.altNavSources = 2;
    c.locatorAddTlm = true;
    c.locatorCoordFilter = true;
    c.locatorRecheckWifi = true;
    c.locatorApFilter = true;
    c.locatorReserved = true;
    c.locatorBlackList = true;
    return c;
}
