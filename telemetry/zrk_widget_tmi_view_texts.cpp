// Russian texts of the telemetry view's form: the .ui file carries only the ids.
#include <QtGlobal>

namespace {
[[maybe_unused]] const char* const kTmiViewFormTexts[] = {
    //% "Текущая запись"
    QT_TRID_NOOP("tmiw_001"),
    //% "◀ Предыдущая"
    QT_TRID_NOOP("tmiw_002"),
    //% "Следующая ▶"
    QT_TRID_NOOP("tmiw_003"),
    //% "Показать"
    QT_TRID_NOOP("tmiw_004"),
    //% "Часы терминала от UTC:"
    QT_TRID_NOOP("tmiw_005"),
    //% "Автозапрос"
    QT_TRID_NOOP("tmiw_006"),
    //% "Период автозапроса, 1..60 с"
    QT_TRID_NOOP("tmiw_007"),
    //% "Скрывать отсутствующие поля"
    QT_TRID_NOOP("tmiw_008"),
    //% "Сохранить…"
    QT_TRID_NOOP("tmiw_009"),
    //% "На карте…"
    QT_TRID_NOOP("tmiw_116"),
    //% "Показать на карте трек записей этого сеанса"
    QT_TRID_NOOP("tmiw_117"),
    //% "График"
    QT_TRID_NOOP("tmiw_010"),
    //% "Команды"
    QT_TRID_NOOP("tmiw_011"),
    //% "Журнал"
    QT_TRID_NOOP("tmiw_012"),
    //% "Добавить"
    QT_TRID_NOOP("tmiw_013"),
    //% "Очистить"
    QT_TRID_NOOP("tmiw_014"),
    //% "Выход"
    QT_TRID_NOOP("tmiw_015"),
    //% "Включить"
    QT_TRID_NOOP("tmiw_016"),
    //% "Выключить"
    QT_TRID_NOOP("tmiw_017"),
    //% "Охрана"
    QT_TRID_NOOP("tmiw_018"),
    //% "Поставить"
    QT_TRID_NOOP("tmiw_019"),
    //% "Снять"
    QT_TRID_NOOP("tmiw_020"),
    //% "Очистка"
    QT_TRID_NOOP("tmiw_021"),
    //% "Очистить"
    QT_TRID_NOOP("tmiw_022"),
    //% "Вывод GNSS/NMEA"
    QT_TRID_NOOP("tmiw_023"),
    //% "Параметр"
    QT_TRID_NOOP("tmiw_024"),
    //% "Установить"
    QT_TRID_NOOP("tmiw_025"),
    //% "Команда с числом"
    QT_TRID_NOOP("tmiw_026"),
    //% "Выполнить"
    QT_TRID_NOOP("tmiw_027"),
    //% "Ключ / карта"
    QT_TRID_NOOP("tmiw_028"),
    //% "Прочитать ключ ТМ"
    QT_TRID_NOOP("tmiw_029"),
    //% "Прочитать RFID-карту"
    QT_TRID_NOOP("tmiw_030"),
    //% "Код ключа ТМ"
    QT_TRID_NOOP("tmiw_031"),
    //% "Код RFID"
    QT_TRID_NOOP("tmiw_032"),
    //% "ДУТ: команда"
    QT_TRID_NOOP("tmiw_033"),
    //% "Отправить"
    QT_TRID_NOOP("tmiw_034"),
    //% "Прошивка датчика"
    QT_TRID_NOOP("tmiw_035"),
    //% "Выбрать файл…"
    QT_TRID_NOOP("tmiw_036"),
    //% "Тахограф: запрос"
    QT_TRID_NOOP("tmiw_037"),
    //% "Запросить"
    QT_TRID_NOOP("tmiw_038"),
    //% "Тахограф: файл"
    QT_TRID_NOOP("tmiw_039"),
    //% "Тахограф: чтение файла"
    QT_TRID_NOOP("tmiw_045"),
    //% "Прочитать"
    QT_TRID_NOOP("tmiw_046"),
    //% "ДУТ: данные"
    QT_TRID_NOOP("tmiw_047"),
    //% "ДУТ: файл данных"
    QT_TRID_NOOP("tmiw_048"),
    //% "Память записей"
    QT_TRID_NOOP("tmiw_049"),
    //% "Счётчики"
    QT_TRID_NOOP("tmiw_050"),
    //% "Всё"
    QT_TRID_NOOP("tmiw_051"),
    //% "Бортовое устройство"
    QT_TRID_NOOP("tmiw_052"),
    //% "Карта водителя"
    QT_TRID_NOOP("tmiw_053"),
    //% "Номер выхода, 1..8"
    QT_TRID_NOOP("tmiw_054"),
    //% "Смещение часов терминала от UTC, часы (-12..14). 0 — терминал живёт по UTC. Время записей показано по часам этого компьютера; «Показать» ищет запись на момент из поля минус это смещение."
    QT_TRID_NOOP("tmiw_055"),
    //% "Минуты смещения часов терминала от UTC (0..45), со знаком часов"
    QT_TRID_NOOP("tmiw_056"),
    //% "Номер показанной записи"
    QT_TRID_NOOP("tmiw_057"),
    //% "Число для команды"
    QT_TRID_NOOP("tmiw_058"),
    //% "Момент по часам этого компьютера: «Показать» находит ближайшую запись до него"
    QT_TRID_NOOP("tmiw_059"),
    //% "Числовое поле для графика"
    QT_TRID_NOOP("tmiw_060"),
    //% "Текст параметра, например «имя=значение»"
    QT_TRID_NOOP("tmiw_061"),
    //% "Команда датчику уровня топлива"
    QT_TRID_NOOP("tmiw_062"),
    //% "Вид запроса тахографа, 0..255"
    QT_TRID_NOOP("tmiw_063"),
    //% "Начало периода"
    QT_TRID_NOOP("tmiw_064"),
    //% "Конец периода"
    QT_TRID_NOOP("tmiw_065"),
    //% "Имя файла тахографа"
    QT_TRID_NOOP("tmiw_066"),
    //% "Датчик"
    QT_TRID_NOOP("tmiw_067"),
    //% "Запрос"
    QT_TRID_NOOP("tmiw_068"),
    //% "Имя файла данных датчика"
    QT_TRID_NOOP("tmiw_069"),
    //% "Запросите текущую запись"
    QT_TRID_NOOP("tmiw_070"),
    //% "Записи этого сеанса; щелчок показывает запись"
    QT_TRID_NOOP("tmiw_071"),
};

} // namespace
