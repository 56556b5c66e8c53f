#include "config_model/orba_fieldset_tabs.h"

#include "config_model/orba_fieldset.h"

#include <QtGlobal>

#include <initializer_list>

namespace zrk::fieldset {

namespace {

QVector<int> range(int first, int last)
{
    QVector<int> out;
    for (int pos = first; pos <= last; ++pos)
        out << pos;
    return out;
}

QVector<int> join(std::initializer_list<QVector<int>> parts)
{
    QVector<int> out;
    for (const QVector<int>& part : parts)
        out += part;
    return out;
}

TabSection boxes(const char* titleId, QVector<int> positions)
{
    return { titleId, SectionKind::Boxes, std::move(positions) };
}

} // namespace

const QVector<int> kMainAnalogue = range(20, 27);
const QVector<int> kMainPulse = join({ range(32, 33), range(126, 131) });
const QVector<int> kMainFrequency = join({ range(34, 35), range(132, 137) });
const QVector<int> kMainTemp = range(44, 51);
const QVector<int> kRsLevel = join({ range(37, 42), range(83, 92) });
const QVector<int> kRsTemp = range(77, 82);
const QVector<int> kRsFreq = range(146, 161);
const QVector<int> kPassenger = range(109, 116);
const QVector<int> kHpTemp = range(162, 165);
const QVector<int> kHumidity = range(166, 169);

const QVector<TabDecl>& tabTable()
{
    static const QVector<TabDecl> table = [] {
        QVector<TabDecl> t;
        //% "Основные"
        t.append({ TabMain, QT_TRID_NOOP("cfgo_001"),
            {
                //% "Запись и состояние терминала"
                boxes(QT_TRID_NOOP("cfgo_050"), join({ range(0, 6), range(122, 124), { 199 } })),
                //% "Питание"
                boxes(QT_TRID_NOOP("cfgo_051"), range(18, 19)),
                //% "Аналоговые входы"
                boxes(QT_TRID_NOOP("cfgo_052"), kMainAnalogue),
                //% "Дискретные входы и выходы"
                boxes(QT_TRID_NOOP("cfgo_053"), { 28, 29, 125, 30, 31 }),
                //% "Счётчики импульсов и частота"
                boxes(QT_TRID_NOOP("cfgo_054"), join({ kMainPulse, kMainFrequency })),
                //% "Моточасы"
                boxes(QT_TRID_NOOP("cfgo_055"), { 36, 204, 205 }),
                //% "Температура"
                boxes(QT_TRID_NOOP("cfgo_056"), kMainTemp),
            },
            2 });
        //% "Навигация"
        t.append({ TabNavi, QT_TRID_NOOP("cfgo_002"),
            {
                //% "Координаты и движение"
                boxes(QT_TRID_NOOP("cfgo_057"), range(7, 17)),
                //% "Навигационный приёмник"
                boxes(QT_TRID_NOOP("cfgo_058"), range(69, 75)),
                //% "Базовые станции"
                boxes(QT_TRID_NOOP("cfgo_059"), { 76 }),
            },
            2 });
        //% "Датчики RS"
        t.append({ TabRS, QT_TRID_NOOP("cfgo_003"),
            {
                //% "ДУТ RS-485 1–6 и RS-232"
                boxes(QT_TRID_NOOP("cfgo_060"), range(37, 43)),
                //% "Температура ДУТ RS-485"
                boxes(QT_TRID_NOOP("cfgo_061"), kRsTemp),
                //% "ДУТ RS-485 7–16"
                boxes(QT_TRID_NOOP("cfgo_062"), range(83, 92)),
                //% "Частота ДУТ RS-485"
                boxes(QT_TRID_NOOP("cfgo_063"), kRsFreq),
            },
            2 });
        //% "Шина CAN"
        t.append({ TabCAN, QT_TRID_NOOP("cfgo_004"),
            {
                //% "Данные шины CAN"
                boxes(QT_TRID_NOOP("cfgo_064"), range(52, 68)),
                //% "Состояние систем ТС по CAN"
                boxes(QT_TRID_NOOP("cfgo_065"), range(200, 203)),
            },
            2 });
        //% "Тахограф"
        t.append({ TabTaho, QT_TRID_NOOP("cfgo_005"),
            {
                //% "Данные тахографа"
                boxes(QT_TRID_NOOP("cfgo_066"), range(97, 102)),
            },
            2 });
        //% "Дополнительно"
        t.append({ TabMore, QT_TRID_NOOP("cfgo_006"),
            {
                //% "Датчики давления в шинах"
                { QT_TRID_NOOP("cfgo_021"), SectionKind::TyreCount,
                    range(kTiresFirst, kTiresFirst + kTiresCount - 1) },
                //% "Диспетчерские сообщения"
                boxes(QT_TRID_NOOP("cfgo_067"), range(103, 104)),
                //% "Пассажиропоток"
                boxes(QT_TRID_NOOP("cfgo_068"), kPassenger),
                //% "Автоинформатор"
                boxes(QT_TRID_NOOP("cfgo_069"), range(117, 120)),
                //% "Камера и акселерометр ТС"
                boxes(QT_TRID_NOOP("cfgo_070"), { 121, 141 }),
                //% "Точная температура"
                boxes(QT_TRID_NOOP("cfgo_071"), kHpTemp),
                //% "Влажность"
                boxes(QT_TRID_NOOP("cfgo_072"), kHumidity),
            },
            2 });
        //% "Акселерометр"
        t.append({ TabAccel, QT_TRID_NOOP("cfgo_007"),
            {
                //% "Акселерометр терминала"
                boxes(QT_TRID_NOOP("cfgo_073"), range(105, 108)),
                //% "Акселерометр ТС и эко-вождение"
                boxes(QT_TRID_NOOP("cfgo_074"), join({ range(138, 140), range(142, 145) })),
            },
            2 });
        //% "Расходомер"
        t.append({ TabFFS, QT_TRID_NOOP("cfgo_008"),
            {
                //% "Расходомер топлива"
                boxes(QT_TRID_NOOP("cfgo_075"), range(170, 180)),
            },
            2 });
        //% "Рефрижератор"
        t.append({ TabRefr, QT_TRID_NOOP("cfgo_009"),
            {
                //% "Рефрижераторная установка"
                boxes(QT_TRID_NOOP("cfgo_076"), range(181, 198)),
            },
            2 });
        //% "Пользовательские"
        t.append({ TabUser, QT_TRID_NOOP("cfgo_010"),
            {
                //% "Параметры 1 байт"
                { QT_TRID_NOOP("cfgo_077"), SectionKind::UserParams,
                    range(kUserFirstPos[0], kUserFirstPos[1] - 1) },
                //% "Параметры 2 байта"
                { QT_TRID_NOOP("cfgo_078"), SectionKind::UserParams,
                    range(kUserFirstPos[1], kUserFirstPos[2] - 1) },
                //% "Параметры 4 байта"
                { QT_TRID_NOOP("cfgo_079"), SectionKind::UserParams,
                    range(kUserFirstPos[2], kUserFirstPos[3] - 1) },
                //% "Параметры 8 байт"
                { QT_TRID_NOOP("cfgo_080"), SectionKind::UserParams,
                    range(kUserFirstPos[3], kMaskLength - 1) },
            },
            1 });
        return t;
    }();
    return table;
}

const TabDecl& tabDecl(TabId id)
{
    return tabTable()[qBound(0, int(id), TabCount - 1)];
}

QVector<int> tabPositions(TabId id)
{
    QVector<int> out;
    for (const TabSection& section : tabDecl(id).sections)
        out += section.positions;
    return out;
}

TabId tabOfPosition(int pos)
{
    static const QVector<TabId> owner = [] {
        QVector<TabId> o(kMaskLength, TabCount);
        for (const TabDecl& tab : tabTable()) {
            for (int p : tabPositions(tab.id))
                o[p] = tab.id;
        }
        return o;
    }();
    return pos >= 0 && pos < kMaskLength ? owner[pos] : TabCount;
}

int tabRecordSize(TabId id, const QString& mask, int generation)
{
    int size = 0;
    for (int pos : tabPositions(id)) {
        if (pos < mask.size() && mask.at(pos) == QLatin1Char('1')
            && positionGeneration(pos) <= generation + 1)
            size += positionWidth(pos);
    }
    return size;
}

QString tiresText(int index)
{
    const int n = qBound(0, index, kTiresCount);
    return QString(n, QLatin1Char('1')) + QString(kTiresCount - n, QLatin1Char('0'));
}

// The count of leading "1"s: a gap ("1010") means the sensors after it are not there.
int tiresIndex(const QString& fourChars)
{
    int n = 0;
    while (n < kTiresCount && n < fourChars.size() && fourChars.at(n) == QLatin1Char('1'))
        ++n;
    return n;
}

} // namespace zrk::fieldset
