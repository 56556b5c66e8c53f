#pragma once

// The record field-set page's tabs as data: which mask positions each tab offers, in which titled
// sections and in what order. The page builds every tab from its row; the size each tab adds to a
// record is counted here, from the field table. No widgets.

#include <QString>
#include <QVector>

namespace zrk::fieldset {

enum TabId
{
    TabMain,
    TabNavi,
    TabRS,
    TabCAN,
    TabTaho,
    TabMore,
    TabAccel,
    TabFFS,
    TabRefr,
    TabUser,
    TabCount,
};

enum class SectionKind
{
    Boxes, // one check box a position
    TyreCount, // one list for positions 93..96 together ("0000", "1000", ... "1111")
    UserParams, // a box, a name and a type a position (206..254)
};

struct TabSection
{
    const char* titleId;
    SectionKind kind;
    QVector<int> positions;
};

struct TabDecl
{
    TabId id;
    const char* titleId;
    QVector<TabSection> sections;
    int columns; // boxes a row
};

// The ten tabs in the order the page creates them.
const QVector<TabDecl>& tabTable();
const TabDecl& tabDecl(TabId id);
// Every position a tab writes, in its sections' order.
QVector<int> tabPositions(TabId id);
// The tab a mask position belongs to; TabCount for none.
TabId tabOfPosition(int pos);
// Bytes the positions of a tab that the mask selects add to a record within generation 0..2.
int tabRecordSize(TabId id, const QString& mask, int generation);

// Position groups the device description shows by count (inputs, sensors) or feature.
extern const QVector<int> kMainAnalogue; // analogue inputs 1..8
extern const QVector<int> kMainPulse; // pulse counters 1..8
extern const QVector<int> kMainFrequency; // frequency inputs 1..8
extern const QVector<int> kMainTemp; // temperature sensors 1..8
extern const QVector<int> kRsLevel; // RS-485 level sensors 1..16
extern const QVector<int> kRsTemp; // their temperatures 1..6
extern const QVector<int> kRsFreq; // their frequencies 1..16
extern const QVector<int> kPassenger; // passenger counters 1..8
extern const QVector<int> kHpTemp; // high-precision temperature 1..4
extern const QVector<int> kHumidity; // humidity 1..4
constexpr int kTiresFirst = 93;
constexpr int kTiresCount = 4;
// "0000", "1000", "1100", "1110", "1111" for tyre-count index 0..4, and back (leading "1"s).
QString tiresText(int index);
int tiresIndex(const QString& fourChars);

} // namespace zrk::fieldset
