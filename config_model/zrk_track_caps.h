#pragma once

#include <QString>
#include <QVector>

#include <functional>

// One satellite-system choice of the track page: the mode string stored in "GNSS"/"mode" and the
// catalogue id of its button label. An entry with an empty mode is a gap: its button never shows.
struct ZRK_Track_GnssSystem
{
    QString mode;
    QString labelId;
    QString spare;
};

// What this model's track page offers. Filled once by zrkTrackCaps(); the page and the key
// declarations never change it.
struct ZRK_Track_Caps
{
    int avgSensorCount = 0;
    bool avgSensor4 = false;
    QString avgSensorsDefault;
    bool parkingModeSelect = false;
    bool rejectDeltaNtp = false;
    float maxHdopDefault = 0.0f;
    bool gnssPresent = false;
    QVector<ZRK_Track_GnssSystem> gnssSystems;
    QString gnssModeDefault;
    bool gnssDatum = false;
    bool gnssEpo = false;
    bool gnssAgps = false;
    bool gnssAngle = false;
    bool gnssReceiver = false;
    // Asks a connected terminal for its capability word; empty when the model cannot be asked.
    std::function<quint32()> deviceCapsQuery;
    bool coldRestartTimer = false;
    bool locatorTlm = false;
    bool locatorGlobal = false;
    int altNavSources = 0; // 0: no choice; 1: Wi-Fi only; 2: Wi-Fi and mobile cells
    bool locatorAddTlm = false;
    bool locatorCoordFilter = false;
    bool locatorRecheckWifi = false;
    bool locatorApFilter = false;
    bool locatorReserved = false; // not read by the track page
    bool locatorBlackList = false;
};

ZRK_Track_Caps zrkTrackCaps();
