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
    <message id="abou_001">
        <source></source>
        <translation>Parameter information</translation>
    </message>
    <message id="abou_002">
        <source></source>
        <translation>Close</translation>
    </message>
    <message id="iopr_001">
        <source></source>
        <translation>Please wait</translation>
    </message>
    <message id="iopr_003">
        <source></source>
        <translation>Done:</translation>
    </message>
    <message id="iopr_004">
        <source></source>
        <translation>Total:</translation>
    </message>
    <message id="iopr_005">
        <source></source>
        <translation>Time:</translation>
    </message>
    <message id="iopr_006">
        <source></source>
        <translation>Cancel</translation>
    </message>
    <message id="abbr_017">
        <source>°С</source>
        <translation>°C</translation>
    </message>
    <message id="abou_003">
        <source>Модуль терминала %1
Версия %2.%3.%4, сборка %5
Версия библиотеки %6
Собран %7</source>
        <translation>Terminal module %1
Version %2.%3.%4, build %5
Library version %6
Built %7</translation>
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
    <message id="cfgt3_007">
        <source>Ставить точки только в движении (правило старт/стоп)</source>
        <translation>Lay points only while moving (start/stop rule)</translation>
    </message>
    <message id="cfgt3_008">
        <source>Ставить точку при превышении скорости</source>
        <translation>Lay a point when the speed limit is exceeded</translation>
    </message>
    <message id="cfgt3_009">
        <source>Порог скорости, км/ч</source>
        <translation>Speed limit, km/h</translation>
    </message>
    <message id="cfgt3_010">
        <source>Правило поворота</source>
        <translation>Turn rule</translation>
    </message>
    <message id="cfgt3_013">
        <source>Угол поворота, °</source>
        <translation>Turn angle, °</translation>
    </message>
    <message id="cfgt3_014">
        <source>Ставить точку по расстоянию, м</source>
        <translation>Lay a point by distance, m</translation>
    </message>
    <message id="cfgt3_015">
        <source>Расстояние, м</source>
        <translation>Distance, m</translation>
    </message>
    <message id="cfgt3_016">
        <source>Ставить точку по таймеру в движении, с</source>
        <translation>Lay a point by timer while moving, s</translation>
    </message>
    <message id="cfgt3_017">
        <source>Таймер в движении, с</source>
        <translation>Timer while moving, s</translation>
    </message>
    <message id="cfgt3_018">
        <source>Признаки движения для таймера</source>
        <translation>Movement signs for the timer</translation>
    </message>
    <message id="cfgt3_023">
        <source>Таймер на стоянке, с</source>
        <translation>Timer while stopped, s</translation>
    </message>
    <message id="cfgt3_025">
        <source>Не ставить точки ближе, м</source>
        <translation>No points closer than, m</translation>
    </message>
    <message id="cfgt3_026">
        <source>Минимальное расстояние между точками, м</source>
        <translation>Minimum distance between points, m</translation>
    </message>
    <message id="cfgt3_027">
        <source>Не ставить точки чаще, с</source>
        <translation>No points more often than, s</translation>
    </message>
    <message id="cfgt3_028">
        <source>Минимальный интервал между точками, с</source>
        <translation>Minimum interval between points, s</translation>
    </message>
    <message id="cfgt3_029">
        <source>Фильтр координат</source>
        <translation>Coordinate filter</translation>
    </message>
    <message id="cfgt3_031">
        <source>Минимум спутников</source>
        <translation>Minimum satellites</translation>
    </message>
    <message id="cfgt3_032">
        <source>Максимальный HDOP</source>
        <translation>Maximum HDOP</translation>
    </message>
    <message id="cfgt3_033">
        <source>Максимальная скорость, км/ч</source>
        <translation>Maximum speed, km/h</translation>
    </message>
    <message id="cfgt3_034">
        <source>Максимальное ускорение</source>
        <translation>Maximum acceleration</translation>
    </message>
    <message id="cfgt3_035">
        <source>Максимальный скачок, м</source>
        <translation>Maximum jump, m</translation>
    </message>
    <message id="cfgt3_036">
        <source>Отбраковок подряд, не более</source>
        <translation>Rejections in a row, at most</translation>
    </message>
    <message id="cfgt3_037">
        <source>Минимальная высота, м</source>
        <translation>Minimum altitude, m</translation>
    </message>
    <message id="cfgt3_038">
        <source>Максимальная высота, м</source>
        <translation>Maximum altitude, m</translation>
    </message>
    <message id="cfgt3_039">
        <source>Расхождение с временем сети, с</source>
        <translation>Difference from network time, s</translation>
    </message>
    <message id="cfgt3_040">
        <source>Координаты на стоянке</source>
        <translation>Coordinates while stopped</translation>
    </message>
    <message id="cfgt3_044">
        <source>Признаки стоянки</source>
        <translation>Standstill signs</translation>
    </message>
    <message id="cfgt3_051">
        <source>Режим стоянки</source>
        <translation>Parking mode</translation>
    </message>
    <message id="cfgt3_056">
        <source>Время до стоянки, с</source>
        <translation>Time until parking, s</translation>
    </message>
    <message id="cfgt3_057">
        <source>Спутниковые системы</source>
        <translation>Satellite systems</translation>
    </message>
    <message id="cfgt3_058">
        <source>Помощь A-GPS</source>
        <translation>A-GPS assistance</translation>
    </message>
    <message id="cfgt3_059">
        <source>Прогноз орбит (EPO)</source>
        <translation>Orbit prediction (EPO)</translation>
    </message>
    <message id="cfgt3_060">
        <source>Маска возвышения спутников, °</source>
        <translation>Satellite elevation mask, °</translation>
    </message>
    <message id="cfgt3_061">
        <source>Система координат</source>
        <translation>Datum</translation>
    </message>
    <message id="cfgt3_064">
        <source>Приёмник</source>
        <translation>Receiver</translation>
    </message>
    <message id="cfgt3_067">
        <source>Таймер холодного рестарта приёмника</source>
        <translation>Receiver cold restart timer</translation>
    </message>
    <message id="cfgt3_071">
        <source>Период в движении, с</source>
        <translation>Period while moving, s</translation>
    </message>
    <message id="cfgt3_072">
        <source>Признаки движения</source>
        <translation>Movement signs</translation>
    </message>
    <message id="cfgt3_073">
        <source>Период на стоянке, с (0 — выключено)</source>
        <translation>Period while parked, s (0: off)</translation>
    </message>
    <message id="cfgt3_070">
        <source>Источники</source>
        <translation>Sources</translation>
    </message>
    <message id="cfgt3_069">
        <source>Позиционирование для телеметрии</source>
        <translation>Alternative positioning for telemetry</translation>
    </message>
    <message id="cfgt3_074">
        <source>Сервис локации</source>
        <translation>Locator service</translation>
    </message>
    <message id="cfgt3_075">
        <source>Ключ доступа</source>
        <translation>Access key</translation>
    </message>
    <message id="cfgt3_076">
        <source>Условие</source>
        <translation>Condition</translation>
    </message>
    <message id="cfgt3_077">
        <source>Добавлять в телеметрию</source>
        <translation>Add to telemetry</translation>
    </message>
    <message id="cfgt3_078">
        <source>Фильтр координат локатора</source>
        <translation>Locator coordinate filter</translation>
    </message>
    <message id="cfgt3_079">
        <source>Предельная скорость, км/ч</source>
        <translation>Speed limit, km/h</translation>
    </message>
    <message id="cfgt3_080">
        <source>Отбраковок подряд до принятия</source>
        <translation>Rejections in a row before accepting</translation>
    </message>
    <message id="cfgt3_081">
        <source>Записывать отбракованные координаты</source>
        <translation>Record rejected positions</translation>
    </message>
    <message id="cfgt3_082">
        <source>Перепроверять по Wi-Fi</source>
        <translation>Recheck by Wi-Fi</translation>
    </message>
    <message id="cfgt3_083">
        <source>Перепроверять по GNSS</source>
        <translation>Recheck by GNSS</translation>
    </message>
    <message id="cfgt3_084">
        <source>Фильтр точек доступа</source>
        <translation>Access point filter</translation>
    </message>
    <message id="cfgt3_085">
        <source>Минимальный уровень точки доступа, дБм</source>
        <translation>Minimum access point level, dBm</translation>
    </message>
    <message id="cfgt3_087">
        <source>Чёрный список, строка %1</source>
        <translation>Black list, row %1</translation>
    </message>
    <message id="cfgt3_065">
        <source>При отсутствии координат GNSS</source>
        <translation>Without a GNSS fix</translation>
    </message>
    <message id="cfgt3_066">
        <source>Всегда</source>
        <translation>Always</translation>
    </message>
    <message id="cfgt3_001">
        <source>Трек</source>
        <translation>Track</translation>
    </message>
    <message id="cfgt3_100">
        <source>Диапазон: %1..%2</source>
        <translation>Range: %1..%2</translation>
    </message>
    <message id="cfgt3_102">
        <source>Диапазон: %1..%2; 0 — выключено</source>
        <translation>Range: %1..%2; 0: off</translation>
    </message>
    <message id="cfgt3_101">
        <source></source>
        <translation>When to lay a point</translation>
    </message>
    <message id="cfgt3_011">
        <source></source>
        <translation>Turn by angle, °</translation>
    </message>
    <message id="cfgt3_012">
        <source></source>
        <translation>Turn by direction</translation>
    </message>
    <message id="cfgt3_019">
        <source></source>
        <translation>Input 1</translation>
    </message>
    <message id="cfgt3_020">
        <source></source>
        <translation>Ignition</translation>
    </message>
    <message id="cfgt3_021">
        <source></source>
        <translation>Tachometer</translation>
    </message>
    <message id="cfgt3_022">
        <source></source>
        <translation>Vibration sensor</translation>
    </message>
    <message id="cfgt3_024">
        <source></source>
        <translation>Point density limits</translation>
    </message>
    <message id="cfgt3_002">
        <source></source>
        <translation>Track points</translation>
    </message>
    <message id="cfgt3_030">
        <source></source>
        <translation>Rejection of fixes</translation>
    </message>
    <message id="cfgt3_041">
        <source></source>
        <translation>No averaging</translation>
    </message>
    <message id="cfgt3_042">
        <source></source>
        <translation>Average</translation>
    </message>
    <message id="cfgt3_043">
        <source></source>
        <translation>Fixed point</translation>
    </message>
    <message id="cfgt3_049">
        <source></source>
        <translation>Accelerometer</translation>
    </message>
    <message id="cfgt3_050">
        <source></source>
        <translation>Accelerometer (SH5)</translation>
    </message>
    <message id="cfgt3_003">
        <source></source>
        <translation>Filtering</translation>
    </message>
    <message id="cfgt3_104">
        <source></source>
        <translation>Parking</translation>
    </message>
    <message id="cfgt3_052">
        <source></source>
        <translation>By the motion sensor</translation>
    </message>
    <message id="cfgt3_053">
        <source></source>
        <translation>By the accelerometer settings</translation>
    </message>
    <message id="cfgt3_054">
        <source></source>
        <translation>Accelerometer…</translation>
    </message>
    <message id="cfgt3_055">
        <source></source>
        <translation>Parking is detected by the accelerometer</translation>
    </message>
    <message id="cfgt3_103">
        <source></source>
        <translation>GNSS receiver</translation>
    </message>
    <message id="cfgt3_062">
        <source></source>
        <translation>WGS-84 (world)</translation>
    </message>
    <message id="cfgt3_063">
        <source></source>
        <translation>PZ-90</translation>
    </message>
    <message id="cfgt3_068">
        <source></source>
        <translation>Receiver assistance</translation>
    </message>
    <message id="cfgt3_098">
        <source></source>
        <translation>Built-in</translation>
    </message>
    <message id="cfgt3_099">
        <source></source>
        <translation>External</translation>
    </message>
    <message id="cfgt3_004">
        <source></source>
        <translation>Receiver and parking</translation>
    </message>
    <message id="cfgt3_107">
        <source></source>
        <translation>Use</translation>
    </message>
    <message id="cfgt3_095">
        <source></source>
        <translation>No</translation>
    </message>
    <message id="cfgt3_096">
        <source></source>
        <translation>Coordinates</translation>
    </message>
    <message id="cfgt3_097">
        <source></source>
        <translation>Coordinates and access points</translation>
    </message>
    <message id="cfgt3_086">
        <source></source>
        <translation>Black list…</translation>
    </message>
    <message id="cfgt3_005">
        <source></source>
        <translation>Locator</translation>
    </message>
    <message id="cfgt3_088">
        <source></source>
        <translation>Wi-Fi access points</translation>
    </message>
    <message id="cfgt3_090">
        <source></source>
        <translation>Wi-Fi module…</translation>
    </message>
    <message id="cfgt3_089">
        <source></source>
        <translation>Mobile cells (LBS)</translation>
    </message>
    <message id="cfgt3_093">
        <source></source>
        <translation>Access point black list</translation>
    </message>
    <message id="cfgt3_094">
        <source></source>
        <translation>Access point name</translation>
    </message>
    <message id="cfgt3_106">
        <source></source>
        <translation>Defaults</translation>
    </message>
    <message id="cfgt3_105">
        <source></source>
        <translation>Close</translation>
    </message>
    <message id="cfgt3_091">
        <source></source>
        <translation>While parked</translation>
    </message>
    <message id="cfgt3_047">
        <source>GPS + ГЛОНАСС</source>
        <translation>GPS + GLONASS</translation>
    </message>
    <message id="cfgt3_048">
        <source>GPS и BeiDou</source>
        <translation>GPS and BeiDou</translation>
    </message>
    <message id="cfgt3_045">
        <source>Только GPS</source>
        <translation>GPS only</translation>
    </message>
    <message id="cfgt3_046">
        <source>ГЛОНАСС</source>
        <translation>GLONASS</translation>
    </message>
</context>
</TS>
