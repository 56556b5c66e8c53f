<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="iopr_002">
        <source>Обмен данными с терминалом</source>
        <translation>Exchanging data with the terminal</translation>
    </message>
    <message id="wcfg_001">
        <source>Конфигурация</source>
        <translation>Configuration</translation>
    </message>
    <message id="wtmi_002">
        <source>Просмотр записей телеметрии</source>
        <translation>Telemetry records</translation>
    </message>
    <message id="wtmi_003">
        <source>Таблица записей телеметрии</source>
        <translation>Telemetry table</translation>
    </message>
    <message id="wtmi_001">
        <source>Телеметрия</source>
        <translation>Telemetry</translation>
    </message>
    <message id="wtst_001">
        <source>Тест терминала</source>
        <translation>Terminal test</translation>
    </message>
    <message id="abbr_017">
        <source>°С</source>
        <translation>°C</translation>
    </message>
    <message id="geod_001">
        <source>Слишком много геозон: %1 (терминал хранит не более %2).</source>
        <translation>Too many geo-zones: %1 (this terminal keeps at most %2).</translation>
    </message>
    <message id="geod_002">
        <source>Слишком много маршрутов: %1 (терминал хранит не более %2).</source>
        <translation>Too many routes: %1 (this terminal keeps at most %2).</translation>
    </message>
    <message id="geod_003">
        <source>В маршруте %1 остановок: %2 (не более %3 на маршрут).</source>
        <translation>Route %1 has %2 stops (at most %3 per route).</translation>
    </message>
    <message id="geod_004">
        <source>Слишком много скоростных зон: %1 (терминал хранит не более %2).</source>
        <translation>Too many speed zones: %1 (this terminal keeps at most %2).</translation>
    </message>
    <message id="geod_005">
        <source>Слишком много звуковых файлов: %1 (не более %2).</source>
        <translation>Too many sound files: %1 (at most %2).</translation>
    </message>
    <message id="geod_006">
        <source>Геозона &quot;%1&quot;: номер %2 вне диапазона 1..%3.</source>
        <translation>Geo-zone &quot;%1&quot;: id %2 is outside 1..%3.</translation>
    </message>
    <message id="geod_007">
        <source>Геозона %1: радиус %2 м вне диапазона %3..%4 м.</source>
        <translation>Geo-zone %1: radius %2 m is outside %3..%4 m.</translation>
    </message>
    <message id="geod_008">
        <source>Геозона %1: координаты %2, %3 вне земного шара.</source>
        <translation>Geo-zone %1: coordinates %2, %3 are off the globe.</translation>
    </message>
    <message id="geod_009">
        <source>Номер геозоны %1 встречается дважды.</source>
        <translation>Geo-zone id %1 is used twice.</translation>
    </message>
    <message id="geod_010">
        <source>Маршрут %1: остановка ссылается на несуществующую геозону %2.</source>
        <translation>Route %1: a stop refers to geo-zone %2, which does not exist.</translation>
    </message>
    <message id="geod_020">
        <source>узел &quot;%1&quot; объявляет записей: %2, а содержит: %3</source>
        <translation>the node &quot;%1&quot; declares %2 records but holds %3</translation>
    </message>
    <message id="geod_021">
        <source>геозона %1: &quot;%2&quot; не является координатой</source>
        <translation>geo-zone %1: &quot;%2&quot; is not a coordinate</translation>
    </message>
    <message id="geod_022">
        <source>версия файла %1 новее, чем читает эта программа (%2)</source>
        <translation>version %1 of the file is newer than this program reads (%2)</translation>
    </message>
    <message id="geod_023">
        <source>маршрут %1 объявляет остановок: %2, а содержит: %3</source>
        <translation>route %1 declares %2 stops but holds %3</translation>
    </message>
    <message id="geod_024">
        <source>Не удалось открыть файл геоинформации &quot;%1&quot;: %2.</source>
        <translation>Cannot open the geo-information file &quot;%1&quot;: %2.</translation>
    </message>
    <message id="geod_025">
        <source>Не удалось записать файл &quot;%1&quot;: %2.</source>
        <translation>Cannot write the file &quot;%1&quot;: %2.</translation>
    </message>
    <message id="geod_026">
        <source>файл записан в старом формате геоинформации (PARAMAINF), который программа распознаёт, но не читает; сохраните данные заново в новом формате</source>
        <translation>the file is in the old geo-information format (PARAMAINF), which this program recognises but does not read; save the data again in the new format</translation>
    </message>
    <message id="geod_027">
        <source>это не файл геоинформации (нет корня &quot;AINF&quot;)</source>
        <translation>it is not a geo-information file (no &quot;AINF&quot; root)</translation>
    </message>
    <message id="geod_028">
        <source>файл больше %1 МБ</source>
        <translation>the file is larger than %1 MB</translation>
    </message>
    <message id="geod_029">
        <source>текст не является правильным XML (%1)</source>
        <translation>the text is not well-formed XML (%1)</translation>
    </message>
    <message id="geod_030">
        <source>Не удалось создать папку &quot;%1&quot;.</source>
        <translation>Cannot create the folder &quot;%1&quot;.</translation>
    </message>
    <message id="geod_040">
        <source>Не удалось прочитать файл KML &quot;%1&quot;: %2.</source>
        <translation>Cannot read the KML file &quot;%1&quot;: %2.</translation>
    </message>
    <message id="geod_041">
        <source>файл больше %1 МБ</source>
        <translation>the file is larger than %1 MB</translation>
    </message>
    <message id="geod_042">
        <source>файл объявляет DTD или сущности, которые в KML не используются</source>
        <translation>the file declares a DTD or entities, which KML does not use</translation>
    </message>
    <message id="geod_043">
        <source>вложенность элементов глубже %1 уровней</source>
        <translation>elements are nested deeper than %1 levels</translation>
    </message>
    <message id="geod_044">
        <source>корневой элемент &quot;%1&quot;, а не &quot;kml&quot;</source>
        <translation>the root element is &quot;%1&quot;, not &quot;kml&quot;</translation>
    </message>
    <message id="geod_045">
        <source>метка &quot;%1&quot;: не удалось прочитать координаты &quot;%2&quot;</source>
        <translation>placemark &quot;%1&quot;: the coordinates &quot;%2&quot; cannot be read</translation>
    </message>
    <message id="geod_046">
        <source>строка %1: %2</source>
        <translation>line %1: %2</translation>
    </message>
    <message id="geod_047">
        <source>файл пуст</source>
        <translation>the file is empty</translation>
    </message>
    <message id="geod_048">
        <source>В файле &quot;%1&quot; точек: %2; вместе с %3 геозонами списка это больше %4, которые хранит терминал. Ничего не добавлено.</source>
        <translation>The file &quot;%1&quot; has %2 points; with the %3 geo-zones already in the list that is more than the %4 this terminal keeps. Nothing was added.</translation>
    </message>
    <message id="geod_049">
        <source>Номера геозон 1..%1 все заняты. Ничего не добавлено.</source>
        <translation>The geo-zone ids 1..%1 are all taken. Nothing was added.</translation>
    </message>
    <message id="geod_050">
        <source>Геозоны</source>
        <translation>Geo-zones</translation>
    </message>
    <message id="geod_051">
        <source>Геозона %1, радиус %2 м</source>
        <translation>Geo-zone %1, radius %2 m</translation>
    </message>
    <message id="geod_052">
        <source>Маршруты</source>
        <translation>Routes</translation>
    </message>
    <message id="gain_260">
        <source>Номер</source>
        <translation>Id</translation>
    </message>
    <message id="gain_261">
        <source>Название</source>
        <translation>Name</translation>
    </message>
    <message id="gain_262">
        <source>Широта</source>
        <translation>Latitude</translation>
    </message>
    <message id="gain_263">
        <source>Долгота</source>
        <translation>Longitude</translation>
    </message>
    <message id="gain_264">
        <source>Радиус, м</source>
        <translation>Radius, m</translation>
    </message>
    <message id="gain_265">
        <source>Курс, °</source>
        <translation>Heading, °</translation>
    </message>
    <message id="gain_270">
        <source>Номер</source>
        <translation>Id</translation>
    </message>
    <message id="gain_271">
        <source>Файл</source>
        <translation>File</translation>
    </message>
    <message id="gain_272">
        <source>Геоинформация</source>
        <translation>Geo-information</translation>
    </message>
    <message id="gain_292">
        <source>Терминал не ответил; запись на SD-карту прервана.</source>
        <translation>The terminal did not answer; writing to the SD card was stopped.</translation>
    </message>
    <message id="gain_280">
        <source>Терминал отключён; запись на SD-карту прервана.</source>
        <translation>The terminal was disconnected; writing to the SD card was stopped.</translation>
    </message>
    <message id="gain_281">
        <source>Зон: %1 из %2, маршрутов: %3, скоростных зон: %4</source>
        <translation>Zones: %1 of %2, routes: %3, speed zones: %4</translation>
    </message>
    <message id="gain_282">
        <source>Терминал хранит не более %1 геозон; новая зона не добавлена.</source>
        <translation>The terminal keeps at most %1 geo-zones; the new zone was not added.</translation>
    </message>
    <message id="gain_283">
        <source>Все номера зон от 1 до %1 заняты; новая зона не добавлена.</source>
        <translation>All zone ids from 1 to %1 are taken; the new zone was not added.</translation>
    </message>
    <message id="gain_284">
        <source>Координаты зоны заданы неверно: широта от -90 до 90, долгота от -180 до 180 градусов.</source>
        <translation>The zone&apos;s coordinates are wrong: latitude -90 to 90, longitude -180 to 180 degrees.</translation>
    </message>
    <message id="gain_285">
        <source>Зона %1</source>
        <translation>Zone %1</translation>
    </message>
    <message id="gain_286">
        <source>Зоны %1 — остановки маршрутов и не удалены; сначала удалите эти остановки.</source>
        <translation>Zones %1 are stops of routes and were not deleted; delete those stops first.</translation>
    </message>
    <message id="gain_287">
        <source>Добавлено зон: %1. Меток без точки (линии, полигоны): %2, они пропущены: %3</source>
        <translation>Zones added: %1. Placemarks without a point (lines, polygons): %2, skipped: %3</translation>
    </message>
    <message id="gain_289">
        <source>Запись на SD-карту: %1</source>
        <translation>Writing to the SD card: %1</translation>
    </message>
    <message id="gain_288">
        <source>Не удалось передать файл %1 на SD-карту терминала.</source>
        <translation>The file %1 could not be written to the terminal&apos;s SD card.</translation>
    </message>
    <message id="gain_290">
        <source>На SD-карте терминала нет места для файла %1.</source>
        <translation>The terminal&apos;s SD card has no room for the file %1.</translation>
    </message>
    <message id="gain_291">
        <source>В терминале нет SD-карты; файл %1 не записан.</source>
        <translation>The terminal has no SD card; the file %1 was not written.</translation>
    </message>
    <message id="gain_293">
        <source>Введите широту (от -90 до 90) и долготу (от -180 до 180) новой зоны или сделайте двойной щелчок по карте.</source>
        <translation>Type the new zone&apos;s latitude (-90 to 90) and longitude (-180 to 180), or double-click the map.</translation>
    </message>
    <message id="gain_294">
        <source>Открыть файл геоинформации</source>
        <translation>Open a geo-information file</translation>
    </message>
    <message id="gain_295">
        <source>Сохранить файл геоинформации</source>
        <translation>Save the geo-information file</translation>
    </message>
    <message id="gain_296">
        <source>Терминал хранит не более %1 звуковых файлов.</source>
        <translation>The terminal keeps at most %1 sound files.</translation>
    </message>
    <message id="gain_201">
        <source>Широта должна быть числом от -90 до 90 градусов.</source>
        <translation>The latitude must be a number from -90 to 90 degrees.</translation>
    </message>
    <message id="gain_202">
        <source>Долгота должна быть числом от -180 до 180 градусов.</source>
        <translation>The longitude must be a number from -180 to 180 degrees.</translation>
    </message>
    <message id="gain_250">
        <source>Файл KML</source>
        <translation>KML file</translation>
    </message>
    <message id="gain_230">
        <source>Номер</source>
        <translation>Id</translation>
    </message>
    <message id="gain_231">
        <source>Маршрут</source>
        <translation>Route</translation>
    </message>
    <message id="gain_232">
        <source>Литера</source>
        <translation>Letter</translation>
    </message>
    <message id="gain_233">
        <source>Начало</source>
        <translation>Begin</translation>
    </message>
    <message id="gain_234">
        <source>Конец</source>
        <translation>End</translation>
    </message>
    <message id="gain_235">
        <source>Звуки</source>
        <translation>Sounds</translation>
    </message>
    <message id="gain_236">
        <source>Остановок</source>
        <translation>Stops</translation>
    </message>
    <message id="gain_237">
        <source>Тип</source>
        <translation>Type</translation>
    </message>
    <message id="gain_238">
        <source>Зона</source>
        <translation>Zone</translation>
    </message>
    <message id="gain_239">
        <source>Название</source>
        <translation>Title</translation>
    </message>
    <message id="gain_240">
        <source>Звуки (номера через запятую)</source>
        <translation>Sounds (ids separated by commas)</translation>
    </message>
    <message id="gain_241">
        <source>Терминал хранит не более %1 маршрутов.</source>
        <translation>The terminal keeps at most %1 routes.</translation>
    </message>
    <message id="gain_242">
        <source>Маршрут может иметь не более %1 остановок.</source>
        <translation>A route has at most %1 stops.</translation>
    </message>
    <message id="gain_243">
        <source>Выберите зону остановки в списке зон или на карте.</source>
        <translation>Select the stop&apos;s zone in the zone list or on the map.</translation>
    </message>
    <message id="gain_210">
        <source>Номер</source>
        <translation>Id</translation>
    </message>
    <message id="gain_211">
        <source>Название</source>
        <translation>Title</translation>
    </message>
    <message id="gain_212">
        <source>Скорость, км/ч</source>
        <translation>Speed, km/h</translation>
    </message>
    <message id="gain_213">
        <source>Допуск, км/ч</source>
        <translation>Tolerance, km/h</translation>
    </message>
    <message id="gain_214">
        <source>Звук превышения</source>
        <translation>Limit sound</translation>
    </message>
    <message id="gain_215">
        <source>Звук активации</source>
        <translation>Activation sound</translation>
    </message>
    <message id="gain_216">
        <source>Повтор превышения, с</source>
        <translation>Limit repeat, s</translation>
    </message>
    <message id="gain_217">
        <source>Повтор активации, с</source>
        <translation>Activation repeat, s</translation>
    </message>
    <message id="gain_218">
        <source>Задержка, с</source>
        <translation>Delay, s</translation>
    </message>
    <message id="gain_219">
        <source>Зуммер</source>
        <translation>Buzzer</translation>
    </message>
    <message id="gain_220">
        <source>Терминал хранит не более %1 скоростных зон.</source>
        <translation>The terminal keeps at most %1 speed zones.</translation>
    </message>
    <message id="gain_221">
        <source>Скоростная зона %1</source>
        <translation>Speed zone %1</translation>
    </message>
    <message id="gain_001">
        <source>Список геозон; двойной щелчок показывает зону на карте</source>
        <translation>Geo-zones; a double click shows the zone on the map</translation>
    </message>
    <message id="gain_002">
        <source>Добавить</source>
        <translation>Add</translation>
    </message>
    <message id="gain_003">
        <source>Добавить зону по введённым координатам; зону можно добавить и щелчком по карте</source>
        <translation>Add a zone at the typed coordinates; a click on the map adds one too</translation>
    </message>
    <message id="gain_004">
        <source>Из KML…</source>
        <translation>From KML…</translation>
    </message>
    <message id="gain_005">
        <source>Добавить зоны из точек файла KML</source>
        <translation>Add zones from the points of a KML file</translation>
    </message>
    <message id="gain_006">
        <source>Копировать</source>
        <translation>Duplicate</translation>
    </message>
    <message id="gain_007">
        <source>Копия выбранной зоны с новым номером</source>
        <translation>A copy of the selected zone with a new id</translation>
    </message>
    <message id="gain_008">
        <source>Удалить</source>
        <translation>Delete</translation>
    </message>
    <message id="gain_009">
        <source>Удалить выбранные зоны</source>
        <translation>Delete the selected zones</translation>
    </message>
    <message id="gain_010">
        <source>Геозоны</source>
        <translation>Geo-zones</translation>
    </message>
    <message id="gain_011">
        <source>Маршруты</source>
        <translation>Routes</translation>
    </message>
    <message id="gain_012">
        <source>Скоростные зоны</source>
        <translation>Speed zones</translation>
    </message>
    <message id="gain_013">
        <source>Добавить</source>
        <translation>Add</translation>
    </message>
    <message id="gain_014">
        <source>Добавить звуковой файл (номер 1…65535, имя файла на карте)</source>
        <translation>Add a sound file (id 1…65535, file name on the card)</translation>
    </message>
    <message id="gain_015">
        <source>Удалить</source>
        <translation>Delete</translation>
    </message>
    <message id="gain_016">
        <source>Удалить выбранный звук</source>
        <translation>Delete the selected sound</translation>
    </message>
    <message id="gain_017">
        <source>Звуки</source>
        <translation>Sounds</translation>
    </message>
    <message id="gain_018">
        <source>Открыть…</source>
        <translation>Open…</translation>
    </message>
    <message id="gain_019">
        <source>Открыть файл геоинформации (*.xml)</source>
        <translation>Open a geo-information file (*.xml)</translation>
    </message>
    <message id="gain_020">
        <source>Сохранить…</source>
        <translation>Save…</translation>
    </message>
    <message id="gain_021">
        <source>Сохранить геоинформацию в файл (*.xml)</source>
        <translation>Save the geo-information to a file (*.xml)</translation>
    </message>
    <message id="gain_022">
        <source>Записать в терминал</source>
        <translation>Write to terminal</translation>
    </message>
    <message id="gain_023">
        <source>Записать файлы геоинформации на SD-карту терминала; доступно при подключённом терминале</source>
        <translation>Write the geo-information files to the terminal&apos;s SD card; available while connected</translation>
    </message>
    <message id="gain_024">
        <source>Номер</source>
        <translation>Id</translation>
    </message>
    <message id="gain_025">
        <source>Название</source>
        <translation>Name</translation>
    </message>
    <message id="gain_026">
        <source>Название зоны, до 64 символов</source>
        <translation>Zone name, up to 64 characters</translation>
    </message>
    <message id="gain_027">
        <source>Широта</source>
        <translation>Latitude</translation>
    </message>
    <message id="gain_028">
        <source>Широта, градусы: от -90 до 90, например 55.751244</source>
        <translation>Latitude, degrees: -90 to 90, e.g. 55.751244</translation>
    </message>
    <message id="gain_029">
        <source>Долгота</source>
        <translation>Longitude</translation>
    </message>
    <message id="gain_030">
        <source>Долгота, градусы: от -180 до 180, например 37.618423</source>
        <translation>Longitude, degrees: -180 to 180, e.g. 37.618423</translation>
    </message>
    <message id="gain_031">
        <source>Радиус, м</source>
        <translation>Radius, m</translation>
    </message>
    <message id="gain_032">
        <source>Радиус зоны: от 10 до 100000 м</source>
        <translation>Zone radius: 10 to 100000 m</translation>
    </message>
    <message id="gain_033">
        <source>Курс въезда, °</source>
        <translation>Heading of entry, °</translation>
    </message>
    <message id="gain_034">
        <source>Курс въезда: от 0 до 359°</source>
        <translation>Heading of entry: 0 to 359°</translation>
    </message>
    <message id="gain_035">
        <source>Выходы</source>
        <translation>Outputs</translation>
    </message>
    <message id="gain_036">
        <source>16 знаков 0/1: состояние выходов 1…16 при въезде</source>
        <translation>16 characters 0/1: outputs 1…16 on entry</translation>
    </message>
    <message id="gain_037">
        <source>Режим скорости</source>
        <translation>Speed mode</translation>
    </message>
    <message id="gain_038">
        <source>Режим скорости в зоне: номер скоростной зоны или 0</source>
        <translation>Speed mode inside the zone: a speed zone id or 0</translation>
    </message>
    <message id="gain_039">
        <source>Событие при въезде</source>
        <translation>Event on entry</translation>
    </message>
    <message id="gain_040">
        <source>Событие при выезде</source>
        <translation>Event on exit</translation>
    </message>
    <message id="gain_041">
        <source>Звук при въезде</source>
        <translation>Sound on entry</translation>
    </message>
    <message id="gain_042">
        <source>Звук при выезде</source>
        <translation>Sound on exit</translation>
    </message>
    <message id="gain_043">
        <source>Выходы при въезде</source>
        <translation>Outputs on entry</translation>
    </message>
    <message id="gain_044">
        <source>Контроль скорости</source>
        <translation>Speed control</translation>
    </message>
    <message id="gain_045">
        <source>Проверять курс въезда</source>
        <translation>Check heading of entry</translation>
    </message>
    <message id="gain_046">
        <source>Зона отключена</source>
        <translation>Zone disabled</translation>
    </message>
    <message id="gain_047">
        <source>По умолчанию для новых</source>
        <translation>Default for new zones</translation>
    </message>
    <message id="gain_048">
        <source>Параметры отмеченных флагов станут параметрами новых зон</source>
        <translation>The ticked options become those of new zones</translation>
    </message>
    <message id="gain_049">
        <source>Параметры зоны</source>
        <translation>Zone parameters</translation>
    </message>
    <message id="gain_050">
        <source>Добавить маршрут</source>
        <translation>Add route</translation>
    </message>
    <message id="gain_051">
        <source>Новый маршрут с параметрами по умолчанию (не более 100 маршрутов)</source>
        <translation>A new route with the default parameters (at most 100 routes)</translation>
    </message>
    <message id="gain_052">
        <source>Удалить маршрут</source>
        <translation>Delete route</translation>
    </message>
    <message id="gain_053">
        <source>Удалить выбранный маршрут</source>
        <translation>Delete the selected route</translation>
    </message>
    <message id="gain_054">
        <source>Кольцевой</source>
        <translation>Cyclic</translation>
    </message>
    <message id="gain_055">
        <source>Объявлять следующую</source>
        <translation>Announce next</translation>
    </message>
    <message id="gain_056">
        <source>Обратный ход</source>
        <translation>Reverse trip</translation>
    </message>
    <message id="gain_057">
        <source>Строгий порядок</source>
        <translation>Strict order</translation>
    </message>
    <message id="gain_058">
        <source>Пропускать пропущенные</source>
        <translation>Skip missed</translation>
    </message>
    <message id="gain_059">
        <source>Событие при сходе</source>
        <translation>Event on deviation</translation>
    </message>
    <message id="gain_060">
        <source>Резерв 6</source>
        <translation>Reserved 6</translation>
    </message>
    <message id="gain_061">
        <source>Резерв 7</source>
        <translation>Reserved 7</translation>
    </message>
    <message id="gain_062">
        <source>Добавить остановку</source>
        <translation>Add stop</translation>
    </message>
    <message id="gain_063">
        <source>Остановка в выбранной на карте/в списке зоне (не более 200 на маршрут)</source>
        <translation>A stop at the zone selected on the map or in the list (at most 200 a route)</translation>
    </message>
    <message id="gain_064">
        <source>Удалить остановку</source>
        <translation>Delete stop</translation>
    </message>
    <message id="gain_065">
        <source>Удалить выбранную остановку</source>
        <translation>Delete the selected stop</translation>
    </message>
    <message id="gain_066">
        <source>Номер</source>
        <translation>Number</translation>
    </message>
    <message id="gain_067">
        <source>Номер нового маршрута</source>
        <translation>Number of a new route</translation>
    </message>
    <message id="gain_068">
        <source>Литера</source>
        <translation>Letter</translation>
    </message>
    <message id="gain_069">
        <source>Литера нового маршрута</source>
        <translation>Letter of a new route</translation>
    </message>
    <message id="gain_070">
        <source>Начало</source>
        <translation>Begin</translation>
    </message>
    <message id="gain_071">
        <source>Начальная остановка нового маршрута</source>
        <translation>First terminal of a new route</translation>
    </message>
    <message id="gain_072">
        <source>Конец</source>
        <translation>End</translation>
    </message>
    <message id="gain_073">
        <source>Конечная остановка нового маршрута</source>
        <translation>Last terminal of a new route</translation>
    </message>
    <message id="gain_074">
        <source>Набор звуков</source>
        <translation>Sound set</translation>
    </message>
    <message id="gain_075">
        <source>Набор звуков: от 0 до 255</source>
        <translation>Sound set: 0 to 255</translation>
    </message>
    <message id="gain_076">
        <source>Флаги</source>
        <translation>Options</translation>
    </message>
    <message id="gain_077">
        <source>8 знаков 0/1: флаги нового маршрута, бит 0 первым</source>
        <translation>8 characters 0/1: options of a new route, bit 0 first</translation>
    </message>
    <message id="gain_078">
        <source>Параметры по умолчанию</source>
        <translation>Defaults</translation>
    </message>
    <message id="gain_079">
        <source>Добавить</source>
        <translation>Add</translation>
    </message>
    <message id="gain_080">
        <source>Новая скоростная зона (не более 100)</source>
        <translation>A new speed zone (at most 100)</translation>
    </message>
    <message id="gain_081">
        <source>Удалить</source>
        <translation>Delete</translation>
    </message>
    <message id="gain_082">
        <source>Удалить выбранную скоростную зону</source>
        <translation>Delete the selected speed zone</translation>
    </message>
    <message id="gain_083">
        <source>Режим скорости</source>
        <translation>Speed mode</translation>
    </message>
    <message id="gain_084">
        <source>Режим скорости по умолчанию: от 0 до 255</source>
        <translation>Default speed mode: 0 to 255</translation>
    </message>
    <message id="gain_085">
        <source>Флаги</source>
        <translation>Options</translation>
    </message>
    <message id="gain_086">
        <source>8 знаков 0/1: флаги скоростных зон, бит 0 первым</source>
        <translation>8 characters 0/1: speed-zone options, bit 0 first</translation>
    </message>
    <message id="gain_087">
        <source>Параметры по умолчанию</source>
        <translation>Defaults</translation>
    </message>
    <message id="gain_088">
        <source>Подложка</source>
        <translation>Tiles</translation>
    </message>
    <message id="gain_089">
        <source>Пусто — координатная сетка; адрес сервера тайлов вида http://host/{z}/{x}/{y}.png; или папка с тайлами z/x/y</source>
        <translation>Empty: the coordinate grid; a tile server address like http://host/{z}/{x}/{y}.png; or a folder of z/x/y tiles</translation>
    </message>
    <message id="gain_090">
        <source>Применить</source>
        <translation>Apply</translation>
    </message>
    <message id="gain_091">
        <source>Показать выбранную подложку</source>
        <translation>Show the chosen background</translation>
    </message>
    <message id="gain_092">
        <source>Все зоны</source>
        <translation>All zones</translation>
    </message>
    <message id="gain_093">
        <source>Показать все зоны на карте</source>
        <translation>Show all zones on the map</translation>
    </message>
    <message id="gain_094">
        <source>Двойной щелчок по карте добавляет зону; выбранную зону можно перетащить за центр, радиус — за край</source>
        <translation>A double click on the map adds a zone; drag the selected zone by its centre, its radius by the edge</translation>
    </message>
    <message id="gain_095">
        <source>Файл KML</source>
        <translation>KML file</translation>
    </message>
    <message id="gain_096">
        <source>Файл KML с точками (Placemark/Point)</source>
        <translation>A KML file of points (Placemark/Point)</translation>
    </message>
    <message id="gain_097">
        <source>Обзор…</source>
        <translation>Browse…</translation>
    </message>
    <message id="gain_098">
        <source>Радиус, м</source>
        <translation>Radius, m</translation>
    </message>
    <message id="gain_099">
        <source>Радиус новых зон: от 10 до 100000 м</source>
        <translation>Radius of the new zones: 10 to 100000 m</translation>
    </message>
    <message id="gain_100">
        <source>Курс въезда, °</source>
        <translation>Heading of entry, °</translation>
    </message>
    <message id="gain_101">
        <source>Курс въезда: от 0 до 359°</source>
        <translation>Heading of entry: 0 to 359°</translation>
    </message>
    <message id="gain_102">
        <source>Флаги зоны</source>
        <translation>Zone options</translation>
    </message>
    <message id="gain_103">
        <source>Флаги новых зон, 8 бит: от 0 до 255</source>
        <translation>Options of the new zones, 8 bits: 0 to 255</translation>
    </message>
    <message id="gain_104">
        <source>Импорт зон из KML</source>
        <translation>Import zones from KML</translation>
    </message>
    <message id="gmap_001">
        <source>Трек на карте</source>
        <translation>Track on the map</translation>
    </message>
    <message id="abou_001">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="abou_002">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="iopr_001">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="iopr_003">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="iopr_004">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="iopr_005">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="iopr_006">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="gain_244">
        <source>Тип остановки: 0 — остановка, 1 — путевая точка, 2 — конечная</source>
        <translation>Stop type: 0 stop, 1 waypoint, 2 terminal</translation>
    </message>
    <message id="gain_245">
        <source>Номер зоны остановки: от 1 до 65535</source>
        <translation>Zone id of the stop: 1 to 65535</translation>
    </message>
</context>
</TS>
