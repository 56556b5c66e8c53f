<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name></name>
    <message id="iopr_002">
        <source>Обмен данными с терминалом</source>
        <translation>Обмен данными с терминалом</translation>
    </message>
    <message id="wcfg_001">
        <source>Конфигурация</source>
        <translation>Конфигурация</translation>
    </message>
    <message id="wtmi_002">
        <source>Просмотр записей телеметрии</source>
        <translation>Просмотр записей телеметрии</translation>
    </message>
    <message id="wtmi_003">
        <source>Таблица записей телеметрии</source>
        <translation>Таблица записей телеметрии</translation>
    </message>
    <message id="wtmi_001">
        <source>Телеметрия</source>
        <translation>Телеметрия</translation>
    </message>
    <message id="wtst_001">
        <source>Тест терминала</source>
        <translation>Тест терминала</translation>
    </message>
    <message id="abbr_017">
        <source>°С</source>
        <translation>°С</translation>
    </message>
    <message id="geod_001">
        <source>Слишком много геозон: %1 (терминал хранит не более %2).</source>
        <translation>Слишком много геозон: %1 (терминал хранит не более %2).</translation>
    </message>
    <message id="geod_002">
        <source>Слишком много маршрутов: %1 (терминал хранит не более %2).</source>
        <translation>Слишком много маршрутов: %1 (терминал хранит не более %2).</translation>
    </message>
    <message id="geod_003">
        <source>В маршруте %1 остановок: %2 (не более %3 на маршрут).</source>
        <translation>В маршруте %1 остановок: %2 (не более %3 на маршрут).</translation>
    </message>
    <message id="geod_004">
        <source>Слишком много скоростных зон: %1 (терминал хранит не более %2).</source>
        <translation>Слишком много скоростных зон: %1 (терминал хранит не более %2).</translation>
    </message>
    <message id="geod_005">
        <source>Слишком много звуковых файлов: %1 (не более %2).</source>
        <translation>Слишком много звуковых файлов: %1 (не более %2).</translation>
    </message>
    <message id="geod_006">
        <source>Геозона &quot;%1&quot;: номер %2 вне диапазона 1..%3.</source>
        <translation>Геозона &quot;%1&quot;: номер %2 вне диапазона 1..%3.</translation>
    </message>
    <message id="geod_007">
        <source>Геозона %1: радиус %2 м вне диапазона %3..%4 м.</source>
        <translation>Геозона %1: радиус %2 м вне диапазона %3..%4 м.</translation>
    </message>
    <message id="geod_008">
        <source>Геозона %1: координаты %2, %3 вне земного шара.</source>
        <translation>Геозона %1: координаты %2, %3 вне земного шара.</translation>
    </message>
    <message id="geod_009">
        <source>Номер геозоны %1 встречается дважды.</source>
        <translation>Номер геозоны %1 встречается дважды.</translation>
    </message>
    <message id="geod_010">
        <source>Маршрут %1: остановка ссылается на несуществующую геозону %2.</source>
        <translation>Маршрут %1: остановка ссылается на несуществующую геозону %2.</translation>
    </message>
    <message id="geod_020">
        <source>узел &quot;%1&quot; объявляет записей: %2, а содержит: %3</source>
        <translation>узел &quot;%1&quot; объявляет записей: %2, а содержит: %3</translation>
    </message>
    <message id="geod_021">
        <source>геозона %1: &quot;%2&quot; не является координатой</source>
        <translation>геозона %1: &quot;%2&quot; не является координатой</translation>
    </message>
    <message id="geod_022">
        <source>версия файла %1 новее, чем читает эта программа (%2)</source>
        <translation>версия файла %1 новее, чем читает эта программа (%2)</translation>
    </message>
    <message id="geod_023">
        <source>маршрут %1 объявляет остановок: %2, а содержит: %3</source>
        <translation>маршрут %1 объявляет остановок: %2, а содержит: %3</translation>
    </message>
    <message id="geod_024">
        <source>Не удалось открыть файл геоинформации &quot;%1&quot;: %2.</source>
        <translation>Не удалось открыть файл геоинформации &quot;%1&quot;: %2.</translation>
    </message>
    <message id="geod_025">
        <source>Не удалось записать файл &quot;%1&quot;: %2.</source>
        <translation>Не удалось записать файл &quot;%1&quot;: %2.</translation>
    </message>
    <message id="geod_026">
        <source>файл записан в старом формате геоинформации (PARAMAINF), который программа распознаёт, но не читает; сохраните данные заново в новом формате</source>
        <translation>файл записан в старом формате геоинформации (PARAMAINF), который программа распознаёт, но не читает; сохраните данные заново в новом формате</translation>
    </message>
    <message id="geod_027">
        <source>это не файл геоинформации (нет корня &quot;AINF&quot;)</source>
        <translation>это не файл геоинформации (нет корня &quot;AINF&quot;)</translation>
    </message>
    <message id="geod_028">
        <source>файл больше %1 МБ</source>
        <translation>файл больше %1 МБ</translation>
    </message>
    <message id="geod_029">
        <source>текст не является правильным XML (%1)</source>
        <translation>текст не является правильным XML (%1)</translation>
    </message>
    <message id="geod_030">
        <source>Не удалось создать папку &quot;%1&quot;.</source>
        <translation>Не удалось создать папку &quot;%1&quot;.</translation>
    </message>
    <message id="geod_040">
        <source>Не удалось прочитать файл KML &quot;%1&quot;: %2.</source>
        <translation>Не удалось прочитать файл KML &quot;%1&quot;: %2.</translation>
    </message>
    <message id="geod_041">
        <source>файл больше %1 МБ</source>
        <translation>файл больше %1 МБ</translation>
    </message>
    <message id="geod_042">
        <source>файл объявляет DTD или сущности, которые в KML не используются</source>
        <translation>файл объявляет DTD или сущности, которые в KML не используются</translation>
    </message>
    <message id="geod_043">
        <source>вложенность элементов глубже %1 уровней</source>
        <translation>вложенность элементов глубже %1 уровней</translation>
    </message>
    <message id="geod_044">
        <source>корневой элемент &quot;%1&quot;, а не &quot;kml&quot;</source>
        <translation>корневой элемент &quot;%1&quot;, а не &quot;kml&quot;</translation>
    </message>
    <message id="geod_045">
        <source>метка &quot;%1&quot;: не удалось прочитать координаты &quot;%2&quot;</source>
        <translation>метка &quot;%1&quot;: не удалось прочитать координаты &quot;%2&quot;</translation>
    </message>
    <message id="geod_046">
        <source>строка %1: %2</source>
        <translation>строка %1: %2</translation>
    </message>
    <message id="geod_047">
        <source>файл пуст</source>
        <translation>файл пуст</translation>
    </message>
    <message id="geod_048">
        <source>В файле &quot;%1&quot; точек: %2; вместе с %3 геозонами списка это больше %4, которые хранит терминал. Ничего не добавлено.</source>
        <translation>В файле &quot;%1&quot; точек: %2; вместе с %3 геозонами списка это больше %4, которые хранит терминал. Ничего не добавлено.</translation>
    </message>
    <message id="geod_049">
        <source>Номера геозон 1..%1 все заняты. Ничего не добавлено.</source>
        <translation>Номера геозон 1..%1 все заняты. Ничего не добавлено.</translation>
    </message>
    <message id="geod_050">
        <source>Геозоны</source>
        <translation>Геозоны</translation>
    </message>
    <message id="geod_051">
        <source>Геозона %1, радиус %2 м</source>
        <translation>Геозона %1, радиус %2 м</translation>
    </message>
    <message id="geod_052">
        <source>Маршруты</source>
        <translation>Маршруты</translation>
    </message>
    <message id="gain_260">
        <source>Номер</source>
        <translation>Номер</translation>
    </message>
    <message id="gain_261">
        <source>Название</source>
        <translation>Название</translation>
    </message>
    <message id="gain_262">
        <source>Широта</source>
        <translation>Широта</translation>
    </message>
    <message id="gain_263">
        <source>Долгота</source>
        <translation>Долгота</translation>
    </message>
    <message id="gain_264">
        <source>Радиус, м</source>
        <translation>Радиус, м</translation>
    </message>
    <message id="gain_265">
        <source>Курс, °</source>
        <translation>Курс, °</translation>
    </message>
    <message id="gain_270">
        <source>Номер</source>
        <translation>Номер</translation>
    </message>
    <message id="gain_271">
        <source>Файл</source>
        <translation>Файл</translation>
    </message>
    <message id="gain_272">
        <source>Геоинформация</source>
        <translation>Геоинформация</translation>
    </message>
    <message id="gain_292">
        <source>Терминал не ответил; запись на SD-карту прервана.</source>
        <translation>Терминал не ответил; запись на SD-карту прервана.</translation>
    </message>
    <message id="gain_280">
        <source>Терминал отключён; запись на SD-карту прервана.</source>
        <translation>Терминал отключён; запись на SD-карту прервана.</translation>
    </message>
    <message id="gain_281">
        <source>Зон: %1 из %2, маршрутов: %3, скоростных зон: %4</source>
        <translation>Зон: %1 из %2, маршрутов: %3, скоростных зон: %4</translation>
    </message>
    <message id="gain_282">
        <source>Терминал хранит не более %1 геозон; новая зона не добавлена.</source>
        <translation>Терминал хранит не более %1 геозон; новая зона не добавлена.</translation>
    </message>
    <message id="gain_283">
        <source>Все номера зон от 1 до %1 заняты; новая зона не добавлена.</source>
        <translation>Все номера зон от 1 до %1 заняты; новая зона не добавлена.</translation>
    </message>
    <message id="gain_284">
        <source>Координаты зоны заданы неверно: широта от -90 до 90, долгота от -180 до 180 градусов.</source>
        <translation>Координаты зоны заданы неверно: широта от -90 до 90, долгота от -180 до 180 градусов.</translation>
    </message>
    <message id="gain_285">
        <source>Зона %1</source>
        <translation>Зона %1</translation>
    </message>
    <message id="gain_286">
        <source>Зоны %1 — остановки маршрутов и не удалены; сначала удалите эти остановки.</source>
        <translation>Зоны %1 — остановки маршрутов и не удалены; сначала удалите эти остановки.</translation>
    </message>
    <message id="gain_287">
        <source>Добавлено зон: %1. Меток без точки (линии, полигоны): %2, они пропущены: %3</source>
        <translation>Добавлено зон: %1. Меток без точки (линии, полигоны): %2, они пропущены: %3</translation>
    </message>
    <message id="gain_289">
        <source>Запись на SD-карту: %1</source>
        <translation>Запись на SD-карту: %1</translation>
    </message>
    <message id="gain_288">
        <source>Не удалось передать файл %1 на SD-карту терминала.</source>
        <translation>Не удалось передать файл %1 на SD-карту терминала.</translation>
    </message>
    <message id="gain_290">
        <source>На SD-карте терминала нет места для файла %1.</source>
        <translation>На SD-карте терминала нет места для файла %1.</translation>
    </message>
    <message id="gain_291">
        <source>В терминале нет SD-карты; файл %1 не записан.</source>
        <translation>В терминале нет SD-карты; файл %1 не записан.</translation>
    </message>
    <message id="gain_293">
        <source>Введите широту (от -90 до 90) и долготу (от -180 до 180) новой зоны или сделайте двойной щелчок по карте.</source>
        <translation>Введите широту (от -90 до 90) и долготу (от -180 до 180) новой зоны или сделайте двойной щелчок по карте.</translation>
    </message>
    <message id="gain_294">
        <source>Открыть файл геоинформации</source>
        <translation>Открыть файл геоинформации</translation>
    </message>
    <message id="gain_295">
        <source>Сохранить файл геоинформации</source>
        <translation>Сохранить файл геоинформации</translation>
    </message>
    <message id="gain_296">
        <source>Терминал хранит не более %1 звуковых файлов.</source>
        <translation>Терминал хранит не более %1 звуковых файлов.</translation>
    </message>
    <message id="gain_201">
        <source>Широта должна быть числом от -90 до 90 градусов.</source>
        <translation>Широта должна быть числом от -90 до 90 градусов.</translation>
    </message>
    <message id="gain_202">
        <source>Долгота должна быть числом от -180 до 180 градусов.</source>
        <translation>Долгота должна быть числом от -180 до 180 градусов.</translation>
    </message>
    <message id="gain_250">
        <source>Файл KML</source>
        <translation>Файл KML</translation>
    </message>
    <message id="gain_230">
        <source>Номер</source>
        <translation>Номер</translation>
    </message>
    <message id="gain_231">
        <source>Маршрут</source>
        <translation>Маршрут</translation>
    </message>
    <message id="gain_232">
        <source>Литера</source>
        <translation>Литера</translation>
    </message>
    <message id="gain_233">
        <source>Начало</source>
        <translation>Начало</translation>
    </message>
    <message id="gain_234">
        <source>Конец</source>
        <translation>Конец</translation>
    </message>
    <message id="gain_235">
        <source>Звуки</source>
        <translation>Звуки</translation>
    </message>
    <message id="gain_236">
        <source>Остановок</source>
        <translation>Остановок</translation>
    </message>
    <message id="gain_237">
        <source>Тип</source>
        <translation>Тип</translation>
    </message>
    <message id="gain_238">
        <source>Зона</source>
        <translation>Зона</translation>
    </message>
    <message id="gain_239">
        <source>Название</source>
        <translation>Название</translation>
    </message>
    <message id="gain_240">
        <source>Звуки (номера через запятую)</source>
        <translation>Звуки (номера через запятую)</translation>
    </message>
    <message id="gain_241">
        <source>Терминал хранит не более %1 маршрутов.</source>
        <translation>Терминал хранит не более %1 маршрутов.</translation>
    </message>
    <message id="gain_242">
        <source>Маршрут может иметь не более %1 остановок.</source>
        <translation>Маршрут может иметь не более %1 остановок.</translation>
    </message>
    <message id="gain_243">
        <source>Выберите зону остановки в списке зон или на карте.</source>
        <translation>Выберите зону остановки в списке зон или на карте.</translation>
    </message>
    <message id="gain_210">
        <source>Номер</source>
        <translation>Номер</translation>
    </message>
    <message id="gain_211">
        <source>Название</source>
        <translation>Название</translation>
    </message>
    <message id="gain_212">
        <source>Скорость, км/ч</source>
        <translation>Скорость, км/ч</translation>
    </message>
    <message id="gain_213">
        <source>Допуск, км/ч</source>
        <translation>Допуск, км/ч</translation>
    </message>
    <message id="gain_214">
        <source>Звук превышения</source>
        <translation>Звук превышения</translation>
    </message>
    <message id="gain_215">
        <source>Звук активации</source>
        <translation>Звук активации</translation>
    </message>
    <message id="gain_216">
        <source>Повтор превышения, с</source>
        <translation>Повтор превышения, с</translation>
    </message>
    <message id="gain_217">
        <source>Повтор активации, с</source>
        <translation>Повтор активации, с</translation>
    </message>
    <message id="gain_218">
        <source>Задержка, с</source>
        <translation>Задержка, с</translation>
    </message>
    <message id="gain_219">
        <source>Зуммер</source>
        <translation>Зуммер</translation>
    </message>
    <message id="gain_220">
        <source>Терминал хранит не более %1 скоростных зон.</source>
        <translation>Терминал хранит не более %1 скоростных зон.</translation>
    </message>
    <message id="gain_221">
        <source>Скоростная зона %1</source>
        <translation>Скоростная зона %1</translation>
    </message>
    <message id="gain_001">
        <source>Список геозон; двойной щелчок показывает зону на карте</source>
        <translation>Список геозон; двойной щелчок показывает зону на карте</translation>
    </message>
    <message id="gain_002">
        <source>Добавить</source>
        <translation>Добавить</translation>
    </message>
    <message id="gain_003">
        <source>Добавить зону по введённым координатам; зону можно добавить и щелчком по карте</source>
        <translation>Добавить зону по введённым координатам; зону можно добавить и щелчком по карте</translation>
    </message>
    <message id="gain_004">
        <source>Из KML…</source>
        <translation>Из KML…</translation>
    </message>
    <message id="gain_005">
        <source>Добавить зоны из точек файла KML</source>
        <translation>Добавить зоны из точек файла KML</translation>
    </message>
    <message id="gain_006">
        <source>Копировать</source>
        <translation>Копировать</translation>
    </message>
    <message id="gain_007">
        <source>Копия выбранной зоны с новым номером</source>
        <translation>Копия выбранной зоны с новым номером</translation>
    </message>
    <message id="gain_008">
        <source>Удалить</source>
        <translation>Удалить</translation>
    </message>
    <message id="gain_009">
        <source>Удалить выбранные зоны</source>
        <translation>Удалить выбранные зоны</translation>
    </message>
    <message id="gain_010">
        <source>Геозоны</source>
        <translation>Геозоны</translation>
    </message>
    <message id="gain_011">
        <source>Маршруты</source>
        <translation>Маршруты</translation>
    </message>
    <message id="gain_012">
        <source>Скоростные зоны</source>
        <translation>Скоростные зоны</translation>
    </message>
    <message id="gain_013">
        <source>Добавить</source>
        <translation>Добавить</translation>
    </message>
    <message id="gain_014">
        <source>Добавить звуковой файл (номер 1…65535, имя файла на карте)</source>
        <translation>Добавить звуковой файл (номер 1…65535, имя файла на карте)</translation>
    </message>
    <message id="gain_015">
        <source>Удалить</source>
        <translation>Удалить</translation>
    </message>
    <message id="gain_016">
        <source>Удалить выбранный звук</source>
        <translation>Удалить выбранный звук</translation>
    </message>
    <message id="gain_017">
        <source>Звуки</source>
        <translation>Звуки</translation>
    </message>
    <message id="gain_018">
        <source>Открыть…</source>
        <translation>Открыть…</translation>
    </message>
    <message id="gain_019">
        <source>Открыть файл геоинформации (*.xml)</source>
        <translation>Открыть файл геоинформации (*.xml)</translation>
    </message>
    <message id="gain_020">
        <source>Сохранить…</source>
        <translation>Сохранить…</translation>
    </message>
    <message id="gain_021">
        <source>Сохранить геоинформацию в файл (*.xml)</source>
        <translation>Сохранить геоинформацию в файл (*.xml)</translation>
    </message>
    <message id="gain_022">
        <source>Записать в терминал</source>
        <translation>Записать в терминал</translation>
    </message>
    <message id="gain_023">
        <source>Записать файлы геоинформации на SD-карту терминала; доступно при подключённом терминале</source>
        <translation>Записать файлы геоинформации на SD-карту терминала; доступно при подключённом терминале</translation>
    </message>
    <message id="gain_024">
        <source>Номер</source>
        <translation>Номер</translation>
    </message>
    <message id="gain_025">
        <source>Название</source>
        <translation>Название</translation>
    </message>
    <message id="gain_026">
        <source>Название зоны, до 64 символов</source>
        <translation>Название зоны, до 64 символов</translation>
    </message>
    <message id="gain_027">
        <source>Широта</source>
        <translation>Широта</translation>
    </message>
    <message id="gain_028">
        <source>Широта, градусы: от -90 до 90, например 55.751244</source>
        <translation>Широта, градусы: от -90 до 90, например 55.751244</translation>
    </message>
    <message id="gain_029">
        <source>Долгота</source>
        <translation>Долгота</translation>
    </message>
    <message id="gain_030">
        <source>Долгота, градусы: от -180 до 180, например 37.618423</source>
        <translation>Долгота, градусы: от -180 до 180, например 37.618423</translation>
    </message>
    <message id="gain_031">
        <source>Радиус, м</source>
        <translation>Радиус, м</translation>
    </message>
    <message id="gain_032">
        <source>Радиус зоны: от 10 до 100000 м</source>
        <translation>Радиус зоны: от 10 до 100000 м</translation>
    </message>
    <message id="gain_033">
        <source>Курс въезда, °</source>
        <translation>Курс въезда, °</translation>
    </message>
    <message id="gain_034">
        <source>Курс въезда: от 0 до 359°</source>
        <translation>Курс въезда: от 0 до 359°</translation>
    </message>
    <message id="gain_035">
        <source>Выходы</source>
        <translation>Выходы</translation>
    </message>
    <message id="gain_036">
        <source>16 знаков 0/1: состояние выходов 1…16 при въезде</source>
        <translation>16 знаков 0/1: состояние выходов 1…16 при въезде</translation>
    </message>
    <message id="gain_037">
        <source>Режим скорости</source>
        <translation>Режим скорости</translation>
    </message>
    <message id="gain_038">
        <source>Режим скорости в зоне: номер скоростной зоны или 0</source>
        <translation>Режим скорости в зоне: номер скоростной зоны или 0</translation>
    </message>
    <message id="gain_039">
        <source>Событие при въезде</source>
        <translation>Событие при въезде</translation>
    </message>
    <message id="gain_040">
        <source>Событие при выезде</source>
        <translation>Событие при выезде</translation>
    </message>
    <message id="gain_041">
        <source>Звук при въезде</source>
        <translation>Звук при въезде</translation>
    </message>
    <message id="gain_042">
        <source>Звук при выезде</source>
        <translation>Звук при выезде</translation>
    </message>
    <message id="gain_043">
        <source>Выходы при въезде</source>
        <translation>Выходы при въезде</translation>
    </message>
    <message id="gain_044">
        <source>Контроль скорости</source>
        <translation>Контроль скорости</translation>
    </message>
    <message id="gain_045">
        <source>Проверять курс въезда</source>
        <translation>Проверять курс въезда</translation>
    </message>
    <message id="gain_046">
        <source>Зона отключена</source>
        <translation>Зона отключена</translation>
    </message>
    <message id="gain_047">
        <source>По умолчанию для новых</source>
        <translation>По умолчанию для новых</translation>
    </message>
    <message id="gain_048">
        <source>Параметры отмеченных флагов станут параметрами новых зон</source>
        <translation>Параметры отмеченных флагов станут параметрами новых зон</translation>
    </message>
    <message id="gain_049">
        <source>Параметры зоны</source>
        <translation>Параметры зоны</translation>
    </message>
    <message id="gain_050">
        <source>Добавить маршрут</source>
        <translation>Добавить маршрут</translation>
    </message>
    <message id="gain_051">
        <source>Новый маршрут с параметрами по умолчанию (не более 100 маршрутов)</source>
        <translation>Новый маршрут с параметрами по умолчанию (не более 100 маршрутов)</translation>
    </message>
    <message id="gain_052">
        <source>Удалить маршрут</source>
        <translation>Удалить маршрут</translation>
    </message>
    <message id="gain_053">
        <source>Удалить выбранный маршрут</source>
        <translation>Удалить выбранный маршрут</translation>
    </message>
    <message id="gain_054">
        <source>Кольцевой</source>
        <translation>Кольцевой</translation>
    </message>
    <message id="gain_055">
        <source>Объявлять следующую</source>
        <translation>Объявлять следующую</translation>
    </message>
    <message id="gain_056">
        <source>Обратный ход</source>
        <translation>Обратный ход</translation>
    </message>
    <message id="gain_057">
        <source>Строгий порядок</source>
        <translation>Строгий порядок</translation>
    </message>
    <message id="gain_058">
        <source>Пропускать пропущенные</source>
        <translation>Пропускать пропущенные</translation>
    </message>
    <message id="gain_059">
        <source>Событие при сходе</source>
        <translation>Событие при сходе</translation>
    </message>
    <message id="gain_060">
        <source>Резерв 6</source>
        <translation>Резерв 6</translation>
    </message>
    <message id="gain_061">
        <source>Резерв 7</source>
        <translation>Резерв 7</translation>
    </message>
    <message id="gain_062">
        <source>Добавить остановку</source>
        <translation>Добавить остановку</translation>
    </message>
    <message id="gain_063">
        <source>Остановка в выбранной на карте/в списке зоне (не более 200 на маршрут)</source>
        <translation>Остановка в выбранной на карте/в списке зоне (не более 200 на маршрут)</translation>
    </message>
    <message id="gain_064">
        <source>Удалить остановку</source>
        <translation>Удалить остановку</translation>
    </message>
    <message id="gain_065">
        <source>Удалить выбранную остановку</source>
        <translation>Удалить выбранную остановку</translation>
    </message>
    <message id="gain_066">
        <source>Номер</source>
        <translation>Номер</translation>
    </message>
    <message id="gain_067">
        <source>Номер нового маршрута</source>
        <translation>Номер нового маршрута</translation>
    </message>
    <message id="gain_068">
        <source>Литера</source>
        <translation>Литера</translation>
    </message>
    <message id="gain_069">
        <source>Литера нового маршрута</source>
        <translation>Литера нового маршрута</translation>
    </message>
    <message id="gain_070">
        <source>Начало</source>
        <translation>Начало</translation>
    </message>
    <message id="gain_071">
        <source>Начальная остановка нового маршрута</source>
        <translation>Начальная остановка нового маршрута</translation>
    </message>
    <message id="gain_072">
        <source>Конец</source>
        <translation>Конец</translation>
    </message>
    <message id="gain_073">
        <source>Конечная остановка нового маршрута</source>
        <translation>Конечная остановка нового маршрута</translation>
    </message>
    <message id="gain_074">
        <source>Набор звуков</source>
        <translation>Набор звуков</translation>
    </message>
    <message id="gain_075">
        <source>Набор звуков: от 0 до 255</source>
        <translation>Набор звуков: от 0 до 255</translation>
    </message>
    <message id="gain_076">
        <source>Флаги</source>
        <translation>Флаги</translation>
    </message>
    <message id="gain_077">
        <source>8 знаков 0/1: флаги нового маршрута, бит 0 первым</source>
        <translation>8 знаков 0/1: флаги нового маршрута, бит 0 первым</translation>
    </message>
    <message id="gain_078">
        <source>Параметры по умолчанию</source>
        <translation>Параметры по умолчанию</translation>
    </message>
    <message id="gain_079">
        <source>Добавить</source>
        <translation>Добавить</translation>
    </message>
    <message id="gain_080">
        <source>Новая скоростная зона (не более 100)</source>
        <translation>Новая скоростная зона (не более 100)</translation>
    </message>
    <message id="gain_081">
        <source>Удалить</source>
        <translation>Удалить</translation>
    </message>
    <message id="gain_082">
        <source>Удалить выбранную скоростную зону</source>
        <translation>Удалить выбранную скоростную зону</translation>
    </message>
    <message id="gain_083">
        <source>Режим скорости</source>
        <translation>Режим скорости</translation>
    </message>
    <message id="gain_084">
        <source>Режим скорости по умолчанию: от 0 до 255</source>
        <translation>Режим скорости по умолчанию: от 0 до 255</translation>
    </message>
    <message id="gain_085">
        <source>Флаги</source>
        <translation>Флаги</translation>
    </message>
    <message id="gain_086">
        <source>8 знаков 0/1: флаги скоростных зон, бит 0 первым</source>
        <translation>8 знаков 0/1: флаги скоростных зон, бит 0 первым</translation>
    </message>
    <message id="gain_087">
        <source>Параметры по умолчанию</source>
        <translation>Параметры по умолчанию</translation>
    </message>
    <message id="gain_088">
        <source>Подложка</source>
        <translation>Подложка</translation>
    </message>
    <message id="gain_089">
        <source>Пусто — координатная сетка; адрес сервера тайлов вида http://host/{z}/{x}/{y}.png; или папка с тайлами z/x/y</source>
        <translation>Пусто — координатная сетка; адрес сервера тайлов вида http://host/{z}/{x}/{y}.png; или папка с тайлами z/x/y</translation>
    </message>
    <message id="gain_090">
        <source>Применить</source>
        <translation>Применить</translation>
    </message>
    <message id="gain_091">
        <source>Показать выбранную подложку</source>
        <translation>Показать выбранную подложку</translation>
    </message>
    <message id="gain_092">
        <source>Все зоны</source>
        <translation>Все зоны</translation>
    </message>
    <message id="gain_093">
        <source>Показать все зоны на карте</source>
        <translation>Показать все зоны на карте</translation>
    </message>
    <message id="gain_094">
        <source>Двойной щелчок по карте добавляет зону; выбранную зону можно перетащить за центр, радиус — за край</source>
        <translation>Двойной щелчок по карте добавляет зону; выбранную зону можно перетащить за центр, радиус — за край</translation>
    </message>
    <message id="gain_095">
        <source>Файл KML</source>
        <translation>Файл KML</translation>
    </message>
    <message id="gain_096">
        <source>Файл KML с точками (Placemark/Point)</source>
        <translation>Файл KML с точками (Placemark/Point)</translation>
    </message>
    <message id="gain_097">
        <source>Обзор…</source>
        <translation>Обзор…</translation>
    </message>
    <message id="gain_098">
        <source>Радиус, м</source>
        <translation>Радиус, м</translation>
    </message>
    <message id="gain_099">
        <source>Радиус новых зон: от 10 до 100000 м</source>
        <translation>Радиус новых зон: от 10 до 100000 м</translation>
    </message>
    <message id="gain_100">
        <source>Курс въезда, °</source>
        <translation>Курс въезда, °</translation>
    </message>
    <message id="gain_101">
        <source>Курс въезда: от 0 до 359°</source>
        <translation>Курс въезда: от 0 до 359°</translation>
    </message>
    <message id="gain_102">
        <source>Флаги зоны</source>
        <translation>Флаги зоны</translation>
    </message>
    <message id="gain_103">
        <source>Флаги новых зон, 8 бит: от 0 до 255</source>
        <translation>Флаги новых зон, 8 бит: от 0 до 255</translation>
    </message>
    <message id="gain_104">
        <source>Импорт зон из KML</source>
        <translation>Импорт зон из KML</translation>
    </message>
    <message id="gmap_001">
        <source>Трек на карте</source>
        <translation>Трек на карте</translation>
    </message>
    <message id="abou_001">
        <source></source>
        <translation></translation>
    </message>
    <message id="abou_002">
        <source></source>
        <translation></translation>
    </message>
    <message id="iopr_001">
        <source></source>
        <translation></translation>
    </message>
    <message id="iopr_003">
        <source></source>
        <translation></translation>
    </message>
    <message id="iopr_004">
        <source></source>
        <translation></translation>
    </message>
    <message id="iopr_005">
        <source></source>
        <translation></translation>
    </message>
    <message id="iopr_006">
        <source></source>
        <translation></translation>
    </message>
    <message id="gain_244">
        <source>Тип остановки: 0 — остановка, 1 — путевая точка, 2 — конечная</source>
        <translation>Тип остановки: 0 — остановка, 1 — путевая точка, 2 — конечная</translation>
    </message>
    <message id="gain_245">
        <source>Номер зоны остановки: от 1 до 65535</source>
        <translation>Номер зоны остановки: от 1 до 65535</translation>
    </message>
</context>
</TS>
