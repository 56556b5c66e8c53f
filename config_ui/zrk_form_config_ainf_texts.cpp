// Russian texts of the geo page's forms: the .ui files carry only the ids.
#include <QtGlobal>

namespace {
[[maybe_unused]] const char* const kAinfFormTexts[] = {
    //% "Список геозон; двойной щелчок показывает зону на карте"
    QT_TRID_NOOP("gain_001"),
    //% "Добавить"
    QT_TRID_NOOP("gain_002"),
    //% "Добавить зону по введённым координатам; зону можно добавить и щелчком по карте"
    QT_TRID_NOOP("gain_003"),
    //% "Из KML…"
    QT_TRID_NOOP("gain_004"),
    //% "Добавить зоны из точек файла KML"
    QT_TRID_NOOP("gain_005"),
    //% "Копировать"
    QT_TRID_NOOP("gain_006"),
    //% "Копия выбранной зоны с новым номером"
    QT_TRID_NOOP("gain_007"),
    //% "Удалить"
    QT_TRID_NOOP("gain_008"),
    //% "Удалить выбранные зоны"
    QT_TRID_NOOP("gain_009"),
    //% "Геозоны"
    QT_TRID_NOOP("gain_010"),
    //% "Маршруты"
    QT_TRID_NOOP("gain_011"),
    //% "Скоростные зоны"
    QT_TRID_NOOP("gain_012"),
    //% "Добавить"
    QT_TRID_NOOP("gain_013"),
    //% "Добавить звуковой файл (номер 1…65535, имя файла на карте)"
    QT_TRID_NOOP("gain_014"),
    //% "Удалить"
    QT_TRID_NOOP("gain_015"),
    //% "Удалить выбранный звук"
    QT_TRID_NOOP("gain_016"),
    //% "Звуки"
    QT_TRID_NOOP("gain_017"),
    //% "Открыть…"
    QT_TRID_NOOP("gain_018"),
    //% "Открыть файл геоинформации (*.xml)"
    QT_TRID_NOOP("gain_019"),
    //% "Сохранить…"
    QT_TRID_NOOP("gain_020"),
    //% "Сохранить геоинформацию в файл (*.xml)"
    QT_TRID_NOOP("gain_021"),
    //% "Записать в терминал"
    QT_TRID_NOOP("gain_022"),
    //% "Записать файлы геоинформации на SD-карту терминала; доступно при подключённом терминале"
    QT_TRID_NOOP("gain_023"),
    //% "Номер"
    QT_TRID_NOOP("gain_024"),
    //% "Название"
    QT_TRID_NOOP("gain_025"),
    //% "Название зоны, до 64 символов"
    QT_TRID_NOOP("gain_026"),
    //% "Широта"
    QT_TRID_NOOP("gain_027"),
    //% "Широта, градусы: от -90 до 90, например 55.751244"
    QT_TRID_NOOP("gain_028"),
    //% "Долгота"
    QT_TRID_NOOP("gain_029"),
    //% "Долгота, градусы: от -180 до 180, например 37.618423"
    QT_TRID_NOOP("gain_030"),
    //% "Радиус, м"
    QT_TRID_NOOP("gain_031"),
    //% "Радиус зоны: от 10 до 100000 м"
    QT_TRID_NOOP("gain_032"),
    //% "Курс въезда, °"
    QT_TRID_NOOP("gain_033"),
    //% "Курс въезда: от 0 до 359°"
    QT_TRID_NOOP("gain_034"),
    //% "Выходы"
    QT_TRID_NOOP("gain_035"),
    //% "16 знаков 0/1: состояние выходов 1…16 при въезде"
    QT_TRID_NOOP("gain_036"),
    //% "Режим скорости"
    QT_TRID_NOOP("gain_037"),
    //% "Режим скорости в зоне: номер скоростной зоны или 0"
    QT_TRID_NOOP("gain_038"),
    //% "Событие при въезде"
    QT_TRID_NOOP("gain_039"),
    //% "Событие при выезде"
    QT_TRID_NOOP("gain_040"),
    //% "Звук при въезде"
    QT_TRID_NOOP("gain_041"),
    //% "Звук при выезде"
    QT_TRID_NOOP("gain_042"),
    //% "Выходы при въезде"
    QT_TRID_NOOP("gain_043"),
    //% "Контроль скорости"
    QT_TRID_NOOP("gain_044"),
    //% "Проверять курс въезда"
    QT_TRID_NOOP("gain_045"),
    //% "Зона отключена"
    QT_TRID_NOOP("gain_046"),
    //% "По умолчанию для новых"
    QT_TRID_NOOP("gain_047"),
    //% "Параметры отмеченных флагов станут параметрами новых зон"
    QT_TRID_NOOP("gain_048"),
    //% "Параметры зоны"
    QT_TRID_NOOP("gain_049"),
    //% "Добавить маршрут"
    QT_TRID_NOOP("gain_050"),
    //% "Новый маршрут с параметрами по умолчанию (не более 100 маршрутов)"
    QT_TRID_NOOP("gain_051"),
    //% "Удалить маршрут"
    QT_TRID_NOOP("gain_052"),
    //% "Удалить выбранный маршрут"
    QT_TRID_NOOP("gain_053"),
    //% "Кольцевой"
    QT_TRID_NOOP("gain_054"),
    //% "Объявлять следующую"
    QT_TRID_NOOP("gain_055"),
    //% "Обратный ход"
    QT_TRID_NOOP("gain_056"),
    //% "Строгий порядок"
    QT_TRID_NOOP("gain_057"),
    //% "Пропускать пропущенные"
    QT_TRID_NOOP("gain_058"),
    //% "Событие при сходе"
    QT_TRID_NOOP("gain_059"),
    //% "Резерв 6"
    QT_TRID_NOOP("gain_060"),
    //% "Резерв 7"
    QT_TRID_NOOP("gain_061"),
    //% "Добавить остановку"
    QT_TRID_NOOP("gain_062"),
    //% "Остановка в выбранной на карте/в списке зоне (не более 200 на маршрут)"
    QT_TRID_NOOP("gain_063"),
    //% "Удалить остановку"
    QT_TRID_NOOP("gain_064"),
    //% "Удалить выбранную остановку"
    QT_TRID_NOOP("gain_065"),
    //% "Номер"
    QT_TRID_NOOP("gain_066"),
    //% "Номер нового маршрута"
    QT_TRID_NOOP("gain_067"),
    //% "Литера"
    QT_TRID_NOOP("gain_068"),
    //% "Литера нового маршрута"
    QT_TRID_NOOP("gain_069"),
    //% "Начало"
    QT_TRID_NOOP("gain_070"),
    //% "Начальная остановка нового маршрута"
    QT_TRID_NOOP("gain_071"),
    //% "Конец"
    QT_TRID_NOOP("gain_072"),
    //% "Конечная остановка нового маршрута"
    QT_TRID_NOOP("gain_073"),
    //% "Набор звуков"
    QT_TRID_NOOP("gain_074"),
    //% "Набор звуков: от 0 до 255"
    QT_TRID_NOOP("gain_075"),
    //% "Флаги"
    QT_TRID_NOOP("gain_076"),
    //% "8 знаков 0/1: флаги нового маршрута, бит 0 первым"
    QT_TRID_NOOP("gain_077"),
    //% "Параметры по умолчанию"
    QT_TRID_NOOP("gain_078"),
    //% "Добавить"
    QT_TRID_NOOP("gain_079"),
    //% "Новая скоростная зона (не более 100)"
    QT_TRID_NOOP("gain_080"),
    //% "Удалить"
    QT_TRID_NOOP("gain_081"),
    //% "Удалить выбранную скоростную зону"
    QT_TRID_NOOP("gain_082"),
    //% "Режим скорости"
    QT_TRID_NOOP("gain_083"),
    //% "Режим скорости по умолчанию: от 0 до 255"
    QT_TRID_NOOP("gain_084"),
    //% "Флаги"
    QT_TRID_NOOP("gain_085"),
    //% "8 знаков 0/1: флаги скоростных зон, бит 0 первым"
    QT_TRID_NOOP("gain_086"),
    //% "Параметры по умолчанию"
    QT_TRID_NOOP("gain_087"),
    //% "Подложка"
    QT_TRID_NOOP("gain_088"),
    //% "Пусто — координатная сетка; адрес сервера тайлов вида http://host/{z}/{x}/{y}.png; или папка с "
    //% "тайлами z/x/y"
    QT_TRID_NOOP("gain_089"),
    //% "Применить"
    QT_TRID_NOOP("gain_090"),
    //% "Показать выбранную подложку"
    QT_TRID_NOOP("gain_091"),
    //% "Все зоны"
    QT_TRID_NOOP("gain_092"),
    //% "Показать все зоны на карте"
    QT_TRID_NOOP("gain_093"),
    //% "Двойной щелчок по карте добавляет зону; выбранную зону можно перетащить за центр, радиус — за край"
    QT_TRID_NOOP("gain_094"),
    //% "Файл KML"
    QT_TRID_NOOP("gain_095"),
    //% "Файл KML с точками (Placemark/Point)"
    QT_TRID_NOOP("gain_096"),
    //% "Обзор…"
    QT_TRID_NOOP("gain_097"),
    //% "Радиус, м"
    QT_TRID_NOOP("gain_098"),
    //% "Радиус новых зон: от 10 до 100000 м"
    QT_TRID_NOOP("gain_099"),
    //% "Курс въезда, °"
    QT_TRID_NOOP("gain_100"),
    //% "Курс въезда: от 0 до 359°"
    QT_TRID_NOOP("gain_101"),
    //% "Флаги зоны"
    QT_TRID_NOOP("gain_102"),
    //% "Флаги новых зон, 8 бит: от 0 до 255"
    QT_TRID_NOOP("gain_103"),
    //% "Импорт зон из KML"
    QT_TRID_NOOP("gain_104"),
};
} // namespace
