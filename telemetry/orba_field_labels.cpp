#include "orba_field_labels.h"

#include "orba_record.h"

#include <QtGlobal>

#include <array>
#include <iterator>

namespace orba {
namespace {

// Indexed by field number - 1; the texts name the value a field carries, not its storage.
const char* const kLabelIds[] = {
    //% "Номер записи"
    QT_TRID_NOOP("orbf_001"),
    //% "Код события"
    QT_TRID_NOOP("orbf_002"),
    //% "Время"
    QT_TRID_NOOP("orbf_003"),
    //% "Состояние терминала"
    QT_TRID_NOOP("orbf_004"),
    //% "Состояние модулей 1"
    QT_TRID_NOOP("orbf_005"),
    //% "Состояние модулей 2"
    QT_TRID_NOOP("orbf_006"),
    //% "Уровень сигнала GSM"
    QT_TRID_NOOP("orbf_007"),
    //% "Состояние навигации"
    QT_TRID_NOOP("orbf_008"),
    //% "Время последних достоверных координат"
    QT_TRID_NOOP("orbf_009"),
    //% "Широта"
    QT_TRID_NOOP("orbf_010"),
    //% "Долгота"
    QT_TRID_NOOP("orbf_011"),
    //% "Высота"
    QT_TRID_NOOP("orbf_012"),
    //% "Скорость"
    QT_TRID_NOOP("orbf_013"),
    //% "Курс"
    QT_TRID_NOOP("orbf_014"),
    //% "Пробег"
    QT_TRID_NOOP("orbf_015"),
    //% "Расстояние от предыдущей точки"
    QT_TRID_NOOP("orbf_016"),
    //% "Время в движении, с"
    QT_TRID_NOOP("orbf_017"),
    //% "Секунд с предыдущей записи"
    QT_TRID_NOOP("orbf_018"),
    //% "Напряжение питания"
    QT_TRID_NOOP("orbf_019"),
    //% "Напряжение резервного аккумулятора"
    QT_TRID_NOOP("orbf_020"),
    //% "Напряжение на аналоговом входе 1"
    QT_TRID_NOOP("orbf_021"),
    //% "Напряжение на аналоговом входе 2"
    QT_TRID_NOOP("orbf_022"),
    //% "Напряжение на аналоговом входе 3"
    QT_TRID_NOOP("orbf_023"),
    //% "Напряжение на аналоговом входе 4"
    QT_TRID_NOOP("orbf_024"),
    //% "Напряжение на аналоговом входе 5"
    QT_TRID_NOOP("orbf_025"),
    //% "Напряжение на аналоговом входе 6"
    QT_TRID_NOOP("orbf_026"),
    //% "Напряжение на аналоговом входе 7"
    QT_TRID_NOOP("orbf_027"),
    //% "Напряжение на аналоговом входе 8"
    QT_TRID_NOOP("orbf_028"),
    //% "Состояние входов 1–8"
    QT_TRID_NOOP("orbf_029"),
    //% "Состояние входов 9–16"
    QT_TRID_NOOP("orbf_030"),
    //% "Состояние выходов 1–8"
    QT_TRID_NOOP("orbf_031"),
    //% "Состояние выходов 9–16"
    QT_TRID_NOOP("orbf_032"),
    //% "Счётчик импульсов 1"
    QT_TRID_NOOP("orbf_033"),
    //% "Счётчик импульсов 2"
    QT_TRID_NOOP("orbf_034"),
    //% "Частота на входе 1"
    QT_TRID_NOOP("orbf_035"),
    //% "Частота на входе 2"
    QT_TRID_NOOP("orbf_036"),
    //% "Моточасы"
    QT_TRID_NOOP("orbf_037"),
    //% "Уровень топлива ДУТ RS-485 1"
    QT_TRID_NOOP("orbf_038"),
    //% "Уровень топлива ДУТ RS-485 2"
    QT_TRID_NOOP("orbf_039"),
    //% "Уровень топлива ДУТ RS-485 3"
    QT_TRID_NOOP("orbf_040"),
    //% "Уровень топлива ДУТ RS-485 4"
    QT_TRID_NOOP("orbf_041"),
    //% "Уровень топлива ДУТ RS-485 5"
    QT_TRID_NOOP("orbf_042"),
    //% "Уровень топлива ДУТ RS-485 6"
    QT_TRID_NOOP("orbf_043"),
    //% "Уровень топлива ДУТ RS-232"
    QT_TRID_NOOP("orbf_044"),
    //% "Температура, датчик 1"
    QT_TRID_NOOP("orbf_045"),
    //% "Температура, датчик 2"
    QT_TRID_NOOP("orbf_046"),
    //% "Температура, датчик 3"
    QT_TRID_NOOP("orbf_047"),
    //% "Температура, датчик 4"
    QT_TRID_NOOP("orbf_048"),
    //% "Температура, датчик 5"
    QT_TRID_NOOP("orbf_049"),
    //% "Температура, датчик 6"
    QT_TRID_NOOP("orbf_050"),
    //% "Температура, датчик 7"
    QT_TRID_NOOP("orbf_051"),
    //% "Температура, датчик 8"
    QT_TRID_NOOP("orbf_052"),
    //% "CAN: уровень топлива"
    QT_TRID_NOOP("orbf_053"),
    //% "CAN: расход топлива"
    QT_TRID_NOOP("orbf_054"),
    //% "CAN: обороты двигателя"
    QT_TRID_NOOP("orbf_055"),
    //% "CAN: температура охлаждающей жидкости"
    QT_TRID_NOOP("orbf_056"),
    //% "CAN: полный пробег"
    QT_TRID_NOOP("orbf_057"),
    //% "CAN: нагрузка на ось 1"
    QT_TRID_NOOP("orbf_058"),
    //% "CAN: нагрузка на ось 2"
    QT_TRID_NOOP("orbf_059"),
    //% "CAN: нагрузка на ось 3"
    QT_TRID_NOOP("orbf_060"),
    //% "CAN: нагрузка на ось 4"
    QT_TRID_NOOP("orbf_061"),
    //% "CAN: нагрузка на ось 5"
    QT_TRID_NOOP("orbf_062"),
    //% "CAN: положение педали газа"
    QT_TRID_NOOP("orbf_063"),
    //% "CAN: положение педали тормоза"
    QT_TRID_NOOP("orbf_064"),
    //% "CAN: нагрузка двигателя"
    QT_TRID_NOOP("orbf_065"),
    //% "CAN: уровень топлива после фильтра"
    QT_TRID_NOOP("orbf_066"),
    //% "CAN: время работы двигателя"
    QT_TRID_NOOP("orbf_067"),
    //% "CAN: до технического обслуживания"
    QT_TRID_NOOP("orbf_068"),
    //% "CAN: скорость"
    QT_TRID_NOOP("orbf_069"),
    //% "Спутники по навигационным системам"
    QT_TRID_NOOP("orbf_070"),
    //% "Точность (HDOP, PDOP)"
    QT_TRID_NOOP("orbf_071"),
    //% "Режим навигации и число спутников"
    QT_TRID_NOOP("orbf_072"),
    //% "Точные координаты приёмника"
    QT_TRID_NOOP("orbf_073"),
    //% "Высота по приёмнику"
    QT_TRID_NOOP("orbf_074"),
    //% "Курс по приёмнику"
    QT_TRID_NOOP("orbf_075"),
    //% "Скорость по приёмнику"
    QT_TRID_NOOP("orbf_076"),
    //% "Базовые станции (LBS)"
    QT_TRID_NOOP("orbf_077"),
    //% "Температура ДУТ RS-485 1"
    QT_TRID_NOOP("orbf_078"),
    //% "Температура ДУТ RS-485 2"
    QT_TRID_NOOP("orbf_079"),
    //% "Температура ДУТ RS-485 3"
    QT_TRID_NOOP("orbf_080"),
    //% "Температура ДУТ RS-485 4"
    QT_TRID_NOOP("orbf_081"),
    //% "Температура ДУТ RS-485 5"
    QT_TRID_NOOP("orbf_082"),
    //% "Температура ДУТ RS-485 6"
    QT_TRID_NOOP("orbf_083"),
    //% "ДУТ RS-485 7: уровень и температура"
    QT_TRID_NOOP("orbf_084"),
    //% "ДУТ RS-485 8: уровень и температура"
    QT_TRID_NOOP("orbf_085"),
    //% "ДУТ RS-485 9: уровень и температура"
    QT_TRID_NOOP("orbf_086"),
    //% "ДУТ RS-485 10: уровень и температура"
    QT_TRID_NOOP("orbf_087"),
    //% "ДУТ RS-485 11: уровень и температура"
    QT_TRID_NOOP("orbf_088"),
    //% "ДУТ RS-485 12: уровень и температура"
    QT_TRID_NOOP("orbf_089"),
    //% "ДУТ RS-485 13: уровень и температура"
    QT_TRID_NOOP("orbf_090"),
    //% "ДУТ RS-485 14: уровень и температура"
    QT_TRID_NOOP("orbf_091"),
    //% "ДУТ RS-485 15: уровень и температура"
    QT_TRID_NOOP("orbf_092"),
    //% "ДУТ RS-485 16: уровень и температура"
    QT_TRID_NOOP("orbf_093"),
    //% "Шины 1–2"
    QT_TRID_NOOP("orbf_094"),
    //% "Шины 3–6"
    QT_TRID_NOOP("orbf_095"),
    //% "Шины 7–14"
    QT_TRID_NOOP("orbf_096"),
    //% "Шины 15–30"
    QT_TRID_NOOP("orbf_097"),
    //% "Тахограф: состояние"
    QT_TRID_NOOP("orbf_098"),
    //% "Тахограф: режим"
    QT_TRID_NOOP("orbf_099"),
    //% "Тахограф: флаги"
    QT_TRID_NOOP("orbf_100"),
    //% "Тахограф: скорость"
    QT_TRID_NOOP("orbf_101"),
    //% "Тахограф: одометр"
    QT_TRID_NOOP("orbf_102"),
    //% "Тахограф: время"
    QT_TRID_NOOP("orbf_103"),
    //% "Диспетчерское сообщение: текущее"
    QT_TRID_NOOP("orbf_104"),
    //% "Диспетчерское сообщение: последний номер"
    QT_TRID_NOOP("orbf_105"),
    //% "Акселерометр: изменение ускорения"
    QT_TRID_NOOP("orbf_106"),
    //% "Акселерометр: ускорение по осям X, Y, Z"
    QT_TRID_NOOP("orbf_107"),
    //% "Акселерометр: модуль ускорения"
    QT_TRID_NOOP("orbf_108"),
    //% "Акселерометр: углы наклона"
    QT_TRID_NOOP("orbf_109"),
    //% "Пассажиропоток, датчики 1–2"
    QT_TRID_NOOP("orbf_110"),
    //% "Пассажиропоток, датчики 3–4"
    QT_TRID_NOOP("orbf_111"),
    //% "Пассажиропоток, датчики 5–6"
    QT_TRID_NOOP("orbf_112"),
    //% "Пассажиропоток, датчики 7–8"
    QT_TRID_NOOP("orbf_113"),
    //% "Пассажиропоток, датчики 9–10"
    QT_TRID_NOOP("orbf_114"),
    //% "Пассажиропоток, датчики 11–12"
    QT_TRID_NOOP("orbf_115"),
    //% "Пассажиропоток, датчики 13–14"
    QT_TRID_NOOP("orbf_116"),
    //% "Пассажиропоток, датчики 15–16"
    QT_TRID_NOOP("orbf_117"),
    //% "Автоинформатор: состояние"
    QT_TRID_NOOP("orbf_118"),
    //% "Автоинформатор: геозона"
    QT_TRID_NOOP("orbf_119"),
    //% "Автоинформатор: остановка"
    QT_TRID_NOOP("orbf_120"),
    //% "Автоинформатор: маршрут"
    QT_TRID_NOOP("orbf_121"),
    //% "Камера"
    QT_TRID_NOOP("orbf_122"),
    //% "Состояние терминала 2"
    QT_TRID_NOOP("orbf_123"),
    //% "Состояние модулей 3"
    QT_TRID_NOOP("orbf_124"),
    //% "Состояние соединений"
    QT_TRID_NOOP("orbf_125"),
    //% "Состояние входов 17–24"
    QT_TRID_NOOP("orbf_126"),
    //% "Счётчик импульсов 3"
    QT_TRID_NOOP("orbf_127"),
    //% "Счётчик импульсов 4"
    QT_TRID_NOOP("orbf_128"),
    //% "Счётчик импульсов 5"
    QT_TRID_NOOP("orbf_129"),
    //% "Счётчик импульсов 6"
    QT_TRID_NOOP("orbf_130"),
    //% "Счётчик импульсов 7"
    QT_TRID_NOOP("orbf_131"),
    //% "Счётчик импульсов 8"
    QT_TRID_NOOP("orbf_132"),
    //% "Частота на входе 3"
    QT_TRID_NOOP("orbf_133"),
    //% "Частота на входе 4"
    QT_TRID_NOOP("orbf_134"),
    //% "Частота на входе 5"
    QT_TRID_NOOP("orbf_135"),
    //% "Частота на входе 6"
    QT_TRID_NOOP("orbf_136"),
    //% "Частота на входе 7"
    QT_TRID_NOOP("orbf_137"),
    //% "Частота на входе 8"
    QT_TRID_NOOP("orbf_138"),
    //% "Акселерометр ТС: состояние"
    QT_TRID_NOOP("orbf_139"),
    //% "Акселерометр ТС: вертикальное ускорение"
    QT_TRID_NOOP("orbf_140"),
    //% "Акселерометр ТС: продольное и боковое"
    QT_TRID_NOOP("orbf_141"),
    //% "Акселерометр ТС: оси X, Y, Z"
    QT_TRID_NOOP("orbf_142"),
    //% "Эко-вождение: максимальное ускорение"
    QT_TRID_NOOP("orbf_143"),
    //% "Эко-вождение: максимальная скорость"
    QT_TRID_NOOP("orbf_144"),
    //% "Эко-вождение: превышение скорости"
    QT_TRID_NOOP("orbf_145"),
    //% "Эко-вождение: события"
    QT_TRID_NOOP("orbf_146"),
    //% "Частота ДУТ RS-485 1"
    QT_TRID_NOOP("orbf_147"),
    //% "Частота ДУТ RS-485 2"
    QT_TRID_NOOP("orbf_148"),
    //% "Частота ДУТ RS-485 3"
    QT_TRID_NOOP("orbf_149"),
    //% "Частота ДУТ RS-485 4"
    QT_TRID_NOOP("orbf_150"),
    //% "Частота ДУТ RS-485 5"
    QT_TRID_NOOP("orbf_151"),
    //% "Частота ДУТ RS-485 6"
    QT_TRID_NOOP("orbf_152"),
    //% "Частота ДУТ RS-485 7"
    QT_TRID_NOOP("orbf_153"),
    //% "Частота ДУТ RS-485 8"
    QT_TRID_NOOP("orbf_154"),
    //% "Частота ДУТ RS-485 9"
    QT_TRID_NOOP("orbf_155"),
    //% "Частота ДУТ RS-485 10"
    QT_TRID_NOOP("orbf_156"),
    //% "Частота ДУТ RS-485 11"
    QT_TRID_NOOP("orbf_157"),
    //% "Частота ДУТ RS-485 12"
    QT_TRID_NOOP("orbf_158"),
    //% "Частота ДУТ RS-485 13"
    QT_TRID_NOOP("orbf_159"),
    //% "Частота ДУТ RS-485 14"
    QT_TRID_NOOP("orbf_160"),
    //% "Частота ДУТ RS-485 15"
    QT_TRID_NOOP("orbf_161"),
    //% "Частота ДУТ RS-485 16"
    QT_TRID_NOOP("orbf_162"),
    //% "Точная температура 1"
    QT_TRID_NOOP("orbf_163"),
    //% "Точная температура 2"
    QT_TRID_NOOP("orbf_164"),
    //% "Точная температура 3"
    QT_TRID_NOOP("orbf_165"),
    //% "Точная температура 4"
    QT_TRID_NOOP("orbf_166"),
    //% "Влажность 1"
    QT_TRID_NOOP("orbf_167"),
    //% "Влажность 2"
    QT_TRID_NOOP("orbf_168"),
    //% "Влажность 3"
    QT_TRID_NOOP("orbf_169"),
    //% "Влажность 4"
    QT_TRID_NOOP("orbf_170"),
    //% "Расходомер: состояние"
    QT_TRID_NOOP("orbf_171"),
    //% "Расходомер: ошибки"
    QT_TRID_NOOP("orbf_172"),
    //% "Расходомер: общий расход"
    QT_TRID_NOOP("orbf_173"),
    //% "Расходомер: расход за поездку"
    QT_TRID_NOOP("orbf_174"),
    //% "Расходомер: мгновенный расход"
    QT_TRID_NOOP("orbf_175"),
    //% "Расходомер: объём подачи"
    QT_TRID_NOOP("orbf_176"),
    //% "Расходомер: скорость подачи"
    QT_TRID_NOOP("orbf_177"),
    //% "Расходомер: температура подачи"
    QT_TRID_NOOP("orbf_178"),
    //% "Расходомер: объём обратки"
    QT_TRID_NOOP("orbf_179"),
    //% "Расходомер: скорость обратки"
    QT_TRID_NOOP("orbf_180"),
    //% "Расходомер: температура обратки"
    QT_TRID_NOOP("orbf_181"),
    //% "Рефрижератор: состояние"
    QT_TRID_NOOP("orbf_182"),
    //% "Рефрижератор: температура камеры 1"
    QT_TRID_NOOP("orbf_183"),
    //% "Рефрижератор: температура камеры 2"
    QT_TRID_NOOP("orbf_184"),
    //% "Рефрижератор: температура камеры 3"
    QT_TRID_NOOP("orbf_185"),
    //% "Рефрижератор: заданная температура камеры 1"
    QT_TRID_NOOP("orbf_186"),
    //% "Рефрижератор: заданная температура камеры 2"
    QT_TRID_NOOP("orbf_187"),
    //% "Рефрижератор: заданная температура камеры 3"
    QT_TRID_NOOP("orbf_188"),
    //% "Рефрижератор: температура воздуха"
    QT_TRID_NOOP("orbf_189"),
    //% "Рефрижератор: температура охлаждающей жидкости"
    QT_TRID_NOOP("orbf_190"),
    //% "Рефрижератор: напряжение"
    QT_TRID_NOOP("orbf_191"),
    //% "Рефрижератор: ток"
    QT_TRID_NOOP("orbf_192"),
    //% "Рефрижератор: моточасы от двигателя"
    QT_TRID_NOOP("orbf_193"),
    //% "Рефрижератор: моточасы от сети"
    QT_TRID_NOOP("orbf_194"),
    //% "Рефрижератор: число ошибок и ошибка 1"
    QT_TRID_NOOP("orbf_195"),
    //% "Рефрижератор: ошибки 2–3"
    QT_TRID_NOOP("orbf_196"),
    //% "Рефрижератор: ошибки 4–6"
    QT_TRID_NOOP("orbf_197"),
    //% "Рефрижератор: режим и обороты двигателя"
    QT_TRID_NOOP("orbf_198"),
    //% "Рефрижератор: компрессор"
    QT_TRID_NOOP("orbf_199"),
    //% "Миллисекунды времени"
    QT_TRID_NOOP("orbf_200"),
    //% "CAN: состояние систем"
    QT_TRID_NOOP("orbf_201"),
    //% "CAN: событие"
    QT_TRID_NOOP("orbf_202"),
    //% "CAN: аварии"
    QT_TRID_NOOP("orbf_203"),
    //% "CAN: неисправность (лампа, код)"
    QT_TRID_NOOP("orbf_204"),
    //% "Моточасы под нагрузкой"
    QT_TRID_NOOP("orbf_205"),
    //% "Моточасы без нагрузки"
    QT_TRID_NOOP("orbf_206"),
    //% "Параметр пользователя 1 байт, №1"
    QT_TRID_NOOP("orbf_207"),
    //% "Параметр пользователя 1 байт, №2"
    QT_TRID_NOOP("orbf_208"),
    //% "Параметр пользователя 1 байт, №3"
    QT_TRID_NOOP("orbf_209"),
    //% "Параметр пользователя 1 байт, №4"
    QT_TRID_NOOP("orbf_210"),
    //% "Параметр пользователя 1 байт, №5"
    QT_TRID_NOOP("orbf_211"),
    //% "Параметр пользователя 1 байт, №6"
    QT_TRID_NOOP("orbf_212"),
    //% "Параметр пользователя 1 байт, №7"
    QT_TRID_NOOP("orbf_213"),
    //% "Параметр пользователя 1 байт, №8"
    QT_TRID_NOOP("orbf_214"),
    //% "Параметр пользователя 1 байт, №9"
    QT_TRID_NOOP("orbf_215"),
    //% "Параметр пользователя 1 байт, №10"
    QT_TRID_NOOP("orbf_216"),
    //% "Параметр пользователя 1 байт, №11"
    QT_TRID_NOOP("orbf_217"),
    //% "Параметр пользователя 1 байт, №12"
    QT_TRID_NOOP("orbf_218"),
    //% "Параметр пользователя 1 байт, №13"
    QT_TRID_NOOP("orbf_219"),
    //% "Параметр пользователя 1 байт, №14"
    QT_TRID_NOOP("orbf_220"),
    //% "Параметр пользователя 1 байт, №15"
    QT_TRID_NOOP("orbf_221"),
    //% "Параметр пользователя 1 байт, №16"
    QT_TRID_NOOP("orbf_222"),
    //% "Параметр пользователя 2 байта, №1"
    QT_TRID_NOOP("orbf_223"),
    //% "Параметр пользователя 2 байта, №2"
    QT_TRID_NOOP("orbf_224"),
    //% "Параметр пользователя 2 байта, №3"
    QT_TRID_NOOP("orbf_225"),
    //% "Параметр пользователя 2 байта, №4"
    QT_TRID_NOOP("orbf_226"),
    //% "Параметр пользователя 2 байта, №5"
    QT_TRID_NOOP("orbf_227"),
    //% "Параметр пользователя 2 байта, №6"
    QT_TRID_NOOP("orbf_228"),
    //% "Параметр пользователя 2 байта, №7"
    QT_TRID_NOOP("orbf_229"),
    //% "Параметр пользователя 2 байта, №8"
    QT_TRID_NOOP("orbf_230"),
    //% "Параметр пользователя 2 байта, №9"
    QT_TRID_NOOP("orbf_231"),
    //% "Параметр пользователя 2 байта, №10"
    QT_TRID_NOOP("orbf_232"),
    //% "Параметр пользователя 2 байта, №11"
    QT_TRID_NOOP("orbf_233"),
    //% "Параметр пользователя 2 байта, №12"
    QT_TRID_NOOP("orbf_234"),
    //% "Параметр пользователя 2 байта, №13"
    QT_TRID_NOOP("orbf_235"),
    //% "Параметр пользователя 2 байта, №14"
    QT_TRID_NOOP("orbf_236"),
    //% "Параметр пользователя 2 байта, №15"
    QT_TRID_NOOP("orbf_237"),
    //% "Параметр пользователя 4 байта, №1"
    QT_TRID_NOOP("orbf_238"),
    //% "Параметр пользователя 4 байта, №2"
    QT_TRID_NOOP("orbf_239"),
    //% "Параметр пользователя 4 байта, №3"
    QT_TRID_NOOP("orbf_240"),
    //% "Параметр пользователя 4 байта, №4"
    QT_TRID_NOOP("orbf_241"),
    //% "Параметр пользователя 4 байта, №5"
    QT_TRID_NOOP("orbf_242"),
    //% "Параметр пользователя 4 байта, №6"
    QT_TRID_NOOP("orbf_243"),
    //% "Параметр пользователя 4 байта, №7"
    QT_TRID_NOOP("orbf_244"),
    //% "Параметр пользователя 4 байта, №8"
    QT_TRID_NOOP("orbf_245"),
    //% "Параметр пользователя 4 байта, №9"
    QT_TRID_NOOP("orbf_246"),
    //% "Параметр пользователя 4 байта, №10"
    QT_TRID_NOOP("orbf_247"),
    //% "Параметр пользователя 4 байта, №11"
    QT_TRID_NOOP("orbf_248"),
    //% "Параметр пользователя 4 байта, №12"
    QT_TRID_NOOP("orbf_249"),
    //% "Параметр пользователя 4 байта, №13"
    QT_TRID_NOOP("orbf_250"),
    //% "Параметр пользователя 4 байта, №14"
    QT_TRID_NOOP("orbf_251"),
    //% "Параметр пользователя 4 байта, №15"
    QT_TRID_NOOP("orbf_252"),
    //% "Параметр пользователя 8 байт, №1"
    QT_TRID_NOOP("orbf_253"),
    //% "Параметр пользователя 8 байт, №2"
    QT_TRID_NOOP("orbf_254"),
    //% "Параметр пользователя 8 байт, №3"
    QT_TRID_NOOP("orbf_255"),
};

static_assert(sizeof(kLabelIds) / sizeof(kLabelIds[0]) == kFieldCount, "one label per record field");

// Sub-value names: one row names a run of sub-values, every step-th id from `from` to `to`; the
// n-th of the run shows `first` + n in place of %1 (no number when first is -1), or `arg` when
// it is given. The decoder's identifiers stay in the tooltips; these are what a technician reads.
struct SubLabelRow
{
    int from, to, step;
    const char* id;
    int first;
    const char* arg;
};

constexpr int kNone = -1;

const SubLabelRow kSubLabels[] = {
    //% "Тревожное сообщение"
    { S_AlarmMessage, S_AlarmMessage, 1, QT_TRID_NOOP("orbs_001"), kNone, nullptr },
    //% "Тревога"
    { S_Alarm, S_Alarm, 1, QT_TRID_NOOP("orbs_002"), kNone, nullptr },
    //% "Режим охраны"
    { S_Guard, S_Guard, 1, QT_TRID_NOOP("orbs_003"), kNone, nullptr },
    //% "Эвакуация"
    { S_Evacuation, S_Evacuation, 1, QT_TRID_NOOP("orbs_004"), kNone, nullptr },
    //% "Энергосбережение"
    { S_EnergySaving, S_EnergySaving, 1, QT_TRID_NOOP("orbs_005"), kNone, nullptr },
    //% "Калибровка акселерометра"
    { S_AccelCalibr, S_AccelCalibr, 1, QT_TRID_NOOP("orbs_006"), kNone, nullptr },
    //% "Выход %1"
    { S_StateO1, S_StateO8, 1, QT_TRID_NOOP("orbs_007"), 1, nullptr },
    //% "Расширенная навигация"
    { S_NaviMore, S_NaviMore, 1, QT_TRID_NOOP("orbs_008"), kNone, nullptr },
    //% "Номер SIM-карты"
    { S_NumSIM, S_NumSIM, 1, QT_TRID_NOOP("orbs_009"), kNone, nullptr },
    //% "Координаты зафиксированы"
    { S_CoordFixed, S_CoordFixed, 1, QT_TRID_NOOP("orbs_010"), kNone, nullptr },
    //% "Акселерометр"
    { S_State_Accel, S_State_Accel, 1, QT_TRID_NOOP("orbs_011"), kNone, nullptr },
    //% "Модуль %1"
    { S_State_Bluetooth, S_State_Bluetooth, 1, QT_TRID_NOOP("orbs_012"), kNone, "Bluetooth" },
    { S_State_WiFi, S_State_WiFi, 1, QT_TRID_NOOP("orbs_012"), kNone, "Wi-Fi" },
    { S_StateO9, S_StateO16, 1, QT_TRID_NOOP("orbs_007"), 9, nullptr },
    //% "Спутники %1"
    { S_NaviInfoGlonass, S_NaviInfoGlonass, 1, QT_TRID_NOOP("orbs_013"), kNone, "GLONASS" },
    { S_NaviInfoGPS, S_NaviInfoGPS, 1, QT_TRID_NOOP("orbs_013"), kNone, "GPS" },
    { S_NaviInfoGalileo, S_NaviInfoGalileo, 1, QT_TRID_NOOP("orbs_013"), kNone, "Galileo" },
    { S_NaviInfoCompass, S_NaviInfoCompass, 1, QT_TRID_NOOP("orbs_013"), kNone, "Compass" },
    { S_NaviInfoBeidou, S_NaviInfoBeidou, 1, QT_TRID_NOOP("orbs_013"), kNone, "BeiDou" },
    { S_NaviInfoDoris, S_NaviInfoDoris, 1, QT_TRID_NOOP("orbs_013"), kNone, "DORIS" },
    { S_NaviInfoIrnss, S_NaviInfoIrnss, 1, QT_TRID_NOOP("orbs_013"), kNone, "IRNSS" },
    { S_NaviInfoQzss, S_NaviInfoQzss, 1, QT_TRID_NOOP("orbs_013"), kNone, "QZSS" },
    //% "Снижение точности в плане (HDOP)"
    { S_NaviHDop, S_NaviHDop, 1, QT_TRID_NOOP("orbs_014"), kNone, nullptr },
    //% "Снижение точности по положению (PDOP)"
    { S_NaviPDop, S_NaviPDop, 1, QT_TRID_NOOP("orbs_015"), kNone, nullptr },
    //% "Режим навигации"
    { S_NaviStateMode, S_NaviStateMode, 1, QT_TRID_NOOP("orbs_016"), kNone, nullptr },
    //% "Число спутников"
    { S_NaviStateSatelCount, S_NaviStateSatelCount, 1, QT_TRID_NOOP("orbs_017"), kNone, nullptr },
    //% "Широта приёмника"
    { S_NaviLatitude, S_NaviLatitude, 1, QT_TRID_NOOP("orbs_018"), kNone, nullptr },
    //% "Долгота приёмника"
    { S_NaviLongitude, S_NaviLongitude, 1, QT_TRID_NOOP("orbs_019"), kNone, nullptr },
    //% "Сота %1: идентификатор (CID)"
    { S_LbsCellID, S_LbsCellID_2, 5, QT_TRID_NOOP("orbs_020"), 1, nullptr },
    //% "Сота %1: код зоны (LAC)"
    { S_LbsLac, S_LbsLac_2, 5, QT_TRID_NOOP("orbs_021"), 1, nullptr },
    //% "Сота %1: код страны (MCC)"
    { S_LbsMcc, S_LbsMcc_2, 5, QT_TRID_NOOP("orbs_022"), 1, nullptr },
    //% "Сота %1: код сети (MNC)"
    { S_LbsMnc, S_LbsMnc_2, 5, QT_TRID_NOOP("orbs_023"), 1, nullptr },
    //% "Сота %1: уровень сигнала"
    { S_LbsLevel, S_LbsLevel_2, 5, QT_TRID_NOOP("orbs_024"), 1, nullptr },
    //% "Время измерения"
    { S_LbsTime, S_LbsTime, 1, QT_TRID_NOOP("orbs_025"), kNone, nullptr },
    //% "Уровень топлива"
    { S_LevelRS485_7, S_LevelRS485_16, 2, QT_TRID_NOOP("orbs_026"), kNone, nullptr },
    //% "Температура"
    { S_TempRS485_7, S_TempRS485_16, 2, QT_TRID_NOOP("orbs_027"), kNone, nullptr },
    //% "Шина %1: номер датчика"
    { S_TiresNum1, S_TiresNum30, 3, QT_TRID_NOOP("orbs_028"), 1, nullptr },
    //% "Шина %1: давление"
    { S_TiresPres1, S_TiresPres30, 3, QT_TRID_NOOP("orbs_029"), 1, nullptr },
    //% "Шина %1: температура"
    { S_TiresTemp1, S_TiresTemp30, 3, QT_TRID_NOOP("orbs_030"), 1, nullptr },
    //% "Ускорение по оси %1"
    { S_AccelLinearX, S_AccelLinearX, 1, QT_TRID_NOOP("orbs_031"), kNone, "X" },
    { S_AccelLinearY, S_AccelLinearY, 1, QT_TRID_NOOP("orbs_031"), kNone, "Y" },
    { S_AccelLinearZ, S_AccelLinearZ, 1, QT_TRID_NOOP("orbs_031"), kNone, "Z" },
    //% "Угловое ускорение, плюс"
    { S_AccelAngularPlus, S_AccelAngularPlus, 1, QT_TRID_NOOP("orbs_032"), kNone, nullptr },
    //% "Угловое ускорение, минус"
    { S_AccelAngularMinus, S_AccelAngularMinus, 1, QT_TRID_NOOP("orbs_033"), kNone, nullptr },
    //% "Угол"
    { S_AccelAngularCorner, S_AccelAngularCorner, 1, QT_TRID_NOOP("orbs_034"), kNone, nullptr },
    //% "Канал %1"
    { S_Passager_1, S_Passager_16, 1, QT_TRID_NOOP("orbs_035"), 1, nullptr },
    //% "Тангенциальное ускорение"
    { S_VAccelLineTangential, S_VAccelLineTangential, 1, QT_TRID_NOOP("orbs_036"), kNone, nullptr },
    //% "Крен"
    { S_VAccelLineRoll, S_VAccelLineRoll, 1, QT_TRID_NOOP("orbs_037"), kNone, nullptr },
    { S_VAccelAxelsX, S_VAccelAxelsX, 1, QT_TRID_NOOP("orbs_031"), kNone, "X" },
    { S_VAccelAxelsY, S_VAccelAxelsY, 1, QT_TRID_NOOP("orbs_031"), kNone, "Y" },
    { S_VAccelAxelsZ, S_VAccelAxelsZ, 1, QT_TRID_NOOP("orbs_031"), kNone, "Z" },
    //% "Байт %1"
    { S_EcoDrivingAccel1, S_EcoDrivingAccel3, 1, QT_TRID_NOOP("orbs_038"), 1, nullptr },
    //% "Разгон, степень %1"
    { S_EcoDriving_Accel_1, S_EcoDriving_Accel_4, 1, QT_TRID_NOOP("orbs_039"), 1, nullptr },
    //% "Торможение, степень %1"
    { S_EcoDriving_Braking_1, S_EcoDriving_Braking_4, 1, QT_TRID_NOOP("orbs_040"), 1, nullptr },
    //% "Поворот влево, степень %1"
    { S_EcoDriving_Left_1, S_EcoDriving_Left_4, 1, QT_TRID_NOOP("orbs_041"), 1, nullptr },
    //% "Поворот вправо, степень %1"
    { S_EcoDriving_Right_1, S_EcoDriving_Right_4, 1, QT_TRID_NOOP("orbs_042"), 1, nullptr },
    //% "Вертикальное ускорение, степень %1"
    { S_EcoDriving_Vertical_1, S_EcoDriving_Vertical_4, 1, QT_TRID_NOOP("orbs_043"), 1, nullptr },
    //% "Число ошибок"
    { S_RefrErrorCount, S_RefrErrorCount, 1, QT_TRID_NOOP("orbs_044"), kNone, nullptr },
    //% "Код ошибки %1"
    { S_RefrErrorCode1, S_RefrErrorCode1, 1, QT_TRID_NOOP("orbs_045"), 1, nullptr },
    { S_RefrErrorCode2, S_RefrErrorCode3, 1, QT_TRID_NOOP("orbs_045"), 2, nullptr },
    { S_RefrErrorCode4, S_RefrErrorCode6, 1, QT_TRID_NOOP("orbs_045"), 4, nullptr },
    //% "Режим двигателя"
    { S_RefrEngineMode, S_RefrEngineMode, 1, QT_TRID_NOOP("orbs_046"), kNone, nullptr },
    //% "Обороты двигателя"
    { S_RefrEngineTurns, S_RefrEngineTurns, 1, QT_TRID_NOOP("orbs_047"), kNone, nullptr },
    //% "Лампа неисправности"
    { S_CAN3FailureLamp, S_CAN3FailureLamp, 1, QT_TRID_NOOP("orbs_048"), kNone, nullptr },
    //% "Код неисправности"
    { S_CAN3FailureCode, S_CAN3FailureCode, 1, QT_TRID_NOOP("orbs_049"), kNone, nullptr },
};

// The row naming each sub-value and its place in the row's run; -1 where no row names it.
struct SubLabelRef
{
    int row = -1, index = 0;
};

const std::array<SubLabelRef, kSubCount>& subLabelRefs()
{
    static const std::array<SubLabelRef, kSubCount> refs = [] {
        std::array<SubLabelRef, kSubCount> r {};
        for (int i = 0; i < int(std::size(kSubLabels)); ++i) {
            const SubLabelRow& row = kSubLabels[i];
            for (int id = row.from, n = 0; id <= row.to; id += row.step, ++n)
                r[size_t(id)] = { i, n };
        }
        return r;
    }();
    return refs;
}

// The extended record's head: most values are current-record fields and take their names; the
// rest describe the record itself.
struct ExtLabelRow
{
    int ext;
    int field; // 0: named by id
    const char* id;
};

constexpr ExtLabelRow kExtLabels[] = {
    //% "Тип записи"
    { E_Kind, 0, QT_TRID_NOOP("orbs_050") },
    //% "Размер данных"
    { E_DataSize, 0, QT_TRID_NOOP("orbs_051") },
    //% "Версия открытой части"
    { E_VisibleVer, 0, QT_TRID_NOOP("orbs_052") },
    //% "Размер открытой части"
    { E_VisibleSize, 0, QT_TRID_NOOP("orbs_053") },
    { E_NumberTmiPage, F_NumPage, nullptr },
    { E_Code, F_Code, nullptr },
    { E_EventTime, F_Time, nullptr },
    { E_StateNGauge, F_StateNGauge, nullptr },
    { E_LastTime, F_LastTime, nullptr },
    { E_Latitude, F_Latitude, nullptr },
    { E_Longitude, F_Longitude, nullptr },
    { E_Altitude, F_Altitude, nullptr },
    { E_Speed, F_Speed, nullptr },
    { E_Course, F_Course, nullptr },
    { E_Run, F_Run, nullptr },
    //% "Версия скрытой части"
    { E_HiddenVer, 0, QT_TRID_NOOP("orbs_054") },
    //% "Размер скрытой части"
    { E_HiddenSize, 0, QT_TRID_NOOP("orbs_055") },
    { E_State, F_State, nullptr },
    { E_StateOut1, F_Out1, nullptr },
    { E_StateIn_Imp1, F_In_Imp1, nullptr },
    { E_StateIn_Imp2, F_In_Imp2, nullptr },
    { E_Motochas, F_Motochas, nullptr },
};
static_assert(std::size(kExtLabels) == kExtCount, "one name per extended head value");

constexpr bool extLabelsInOrder()
{
    for (int i = 0; i < kExtCount; ++i)
        if (kExtLabels[i].ext != i)
            return false;
    return true;
}
static_assert(extLabelsInOrder(), "extended head names in head order");

} // namespace

QString extFieldLabel(int id)
{
    if (id < 0 || id >= kExtCount)
        return QString();
    const ExtLabelRow& row = kExtLabels[id];
    return row.field ? fieldLabel(row.field) : qtTrId(row.id);
}

const char* subValueLabelId(int id)
{
    if (id < 0 || id >= kSubCount || subLabelRefs()[size_t(id)].row < 0)
        return nullptr;
    return kSubLabels[subLabelRefs()[size_t(id)].row].id;
}

QString subValueLabel(int id)
{
    const char* trId = subValueLabelId(id);
    if (!trId)
        return QString();
    const SubLabelRef ref = subLabelRefs()[size_t(id)];
    const SubLabelRow& row = kSubLabels[ref.row];
    if (row.arg)
        return qtTrId(trId).arg(QLatin1String(row.arg));
    if (row.first != kNone)
        return qtTrId(trId).arg(row.first + ref.index);
    return qtTrId(trId);
}

const char* fieldLabelId(int no)
{
    if (no < 1 || no > kFieldCount)
        return nullptr;
    return kLabelIds[no - 1];
}

QString fieldLabel(int no)
{
    const char* id = fieldLabelId(no);
    return id ? qtTrId(id) : QString();
}

} // namespace orba
