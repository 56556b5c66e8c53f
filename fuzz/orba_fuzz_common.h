#pragma once

// What every ORBA fuzz target does with a decoded page: read every value and every text, so that
// a read outside the record or the buffer shows up under the sanitizers.
#include "telemetry/orba_page.h"

#include <QTextStream>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

inline void readEverything(const OrbaPage& page)
{
    for (int no = 0; no <= orba::kFieldCount + 1; ++no)
        (void)page.fieldText(no);
    for (int id = 0; id < orba::kSubCount; ++id)
        (void)page.subValueText(id);
    (void)page.formatText();
    (void)page.getStrDateTimeUTC_Offset();
}

// The extended record as the view shows it.
inline void readExtended(const szExtTMI_ORBA3& ext)
{
    for (int id = 0; id < orba::kExtCount; ++id)
        (void)orba::extFieldText(id, ext);
    if (orba::dynamicItems(ext).size() > orba::kExtDynamicBytes / 2)
        std::abort(); // every item takes at least 2 of the kept bytes
    QString xml;
    QTextStream s(&xml);
    orba::writeXmlPageExt(s, ext);
}

// A received buffer of any bytes given to a version-2 or version-3 page, and to its decoder
// directly with the mask the page kept.
template <class Page> int fuzzCurrentOrExtPage(const uint8_t* data, size_t size)
{
    const int len = int(std::min<size_t>(size, 1 << 16));
    Page page(data, len);
    readEverything(page);
    readExtended(page.extTMI());
    page.setCurrentTMI(data, len);
    readEverything(page);
    return 0;
}
