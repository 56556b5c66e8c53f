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
    <message id="geod_004">
        <source>Слишком много скоростных зон: %1 (терминал хранит не более %2).</source>
        <translation>Too many speed zones: %1 (this terminal keeps at most %2).</translation>
    </message>
    <message id="geod_005">
        <source>Слишком много звуковых файлов: %1 (не более %2).</source>
        <translation>Too many sound files: %1 (at most %2).</translation>
    </message>
    <message id="geod_009">
        <source>Номер геозоны %1 встречается дважды.</source>
        <translation>Geo-zone id %1 is used twice.</translation>
    </message>
    <message id="geod_020">
        <source>узел &quot;%1&quot; объявляет записей: %2, а содержит: %3</source>
        <translation>the node &quot;%1&quot; declares %2 records but holds %3</translation>
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
        <source>метка &quot;%1&quot;: координаты &quot;%2&quot; не прочитаны: %3</source>
        <translation>placemark &quot;%1&quot;: the coordinates &quot;%2&quot; cannot be read: %3</translation>
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
    <message id="tmif_001">
        <source>Файл «%1»: %2</source>
        <translation>File “%1”: %2</translation>
    </message>
    <message id="tmif_002">
        <source>не удаётся записать: %1</source>
        <translation>cannot write: %1</translation>
    </message>
    <message id="tmif_003">
        <source>нет байтов записи (атрибут data)</source>
        <translation>the record has no bytes (data attribute)</translation>
    </message>
    <message id="tmif_004">
        <source>запись длиннее %1 байт</source>
        <translation>the record is longer than %1 bytes</translation>
    </message>
    <message id="tmif_005">
        <source>байты записи не в шестнадцатеричном виде</source>
        <translation>the record bytes are not hexadecimal</translation>
    </message>
    <message id="tmif_006">
        <source>неверное время получения</source>
        <translation>invalid reception time</translation>
    </message>
    <message id="tmif_011">
        <source>запись %1 повреждена: %2</source>
        <translation>record %1 is damaged: %2</translation>
    </message>
    <message id="tmif_007">
        <source>это не файл телеметрии .tmi</source>
        <translation>this is not a .tmi telemetry file</translation>
    </message>
    <message id="tmif_008">
        <source>файл обрывается: нет конца &lt;/TMI&gt;</source>
        <translation>the file is cut short: no closing &lt;/TMI&gt;</translation>
    </message>
    <message id="tmif_009">
        <source>после записи %1 стоит посторонний текст</source>
        <translation>stray text after record %1</translation>
    </message>
    <message id="tmif_010">
        <source>файл обрывается внутри записи %1</source>
        <translation>the file is cut short inside record %1</translation>
    </message>
    <message id="tmif_012">
        <source>нарушена разметка</source>
        <translation>broken markup</translation>
    </message>
    <message id="tmif_016">
        <source>нарушена разметка после записи %1</source>
        <translation>broken markup after record %1</translation>
    </message>
    <message id="tmif_013">
        <source>не удаётся открыть: %1</source>
        <translation>cannot open: %1</translation>
    </message>
    <message id="tmif_014">
        <source>Время: %1; скорость: %2 км/ч; событие: %3</source>
        <translation>Time: %1; speed: %2 km/h; event: %3</translation>
    </message>
    <message id="tmif_015">
        <source>Трек</source>
        <translation>Track</translation>
    </message>
    <message id="orbf_001">
        <source>Номер записи</source>
        <translation>Record number</translation>
    </message>
    <message id="orbf_002">
        <source>Код события</source>
        <translation>Event code</translation>
    </message>
    <message id="orbf_003">
        <source>Время</source>
        <translation>Time</translation>
    </message>
    <message id="orbf_004">
        <source>Состояние терминала</source>
        <translation>Terminal state</translation>
    </message>
    <message id="orbf_005">
        <source>Состояние модулей 1</source>
        <translation>Module state 1</translation>
    </message>
    <message id="orbf_006">
        <source>Состояние модулей 2</source>
        <translation>Module state 2</translation>
    </message>
    <message id="orbf_007">
        <source>Уровень сигнала GSM</source>
        <translation>GSM signal level</translation>
    </message>
    <message id="orbf_008">
        <source>Состояние навигации</source>
        <translation>Navigation state</translation>
    </message>
    <message id="orbf_009">
        <source>Время последних достоверных координат</source>
        <translation>Time of the last valid fix</translation>
    </message>
    <message id="orbf_010">
        <source>Широта</source>
        <translation>Latitude</translation>
    </message>
    <message id="orbf_011">
        <source>Долгота</source>
        <translation>Longitude</translation>
    </message>
    <message id="orbf_012">
        <source>Высота</source>
        <translation>Altitude</translation>
    </message>
    <message id="orbf_013">
        <source>Скорость</source>
        <translation>Speed</translation>
    </message>
    <message id="orbf_014">
        <source>Курс</source>
        <translation>Course</translation>
    </message>
    <message id="orbf_015">
        <source>Пробег</source>
        <translation>Mileage</translation>
    </message>
    <message id="orbf_016">
        <source>Расстояние от предыдущей точки</source>
        <translation>Distance from the previous point</translation>
    </message>
    <message id="orbf_017">
        <source>Время в движении, с</source>
        <translation>Time in motion, s</translation>
    </message>
    <message id="orbf_018">
        <source>Секунд с предыдущей записи</source>
        <translation>Seconds since the previous record</translation>
    </message>
    <message id="orbf_019">
        <source>Напряжение питания</source>
        <translation>Supply voltage</translation>
    </message>
    <message id="orbf_020">
        <source>Напряжение резервного аккумулятора</source>
        <translation>Backup battery voltage</translation>
    </message>
    <message id="orbf_021">
        <source>Напряжение на аналоговом входе 1</source>
        <translation>Analogue input 1 voltage</translation>
    </message>
    <message id="orbf_022">
        <source>Напряжение на аналоговом входе 2</source>
        <translation>Analogue input 2 voltage</translation>
    </message>
    <message id="orbf_023">
        <source>Напряжение на аналоговом входе 3</source>
        <translation>Analogue input 3 voltage</translation>
    </message>
    <message id="orbf_024">
        <source>Напряжение на аналоговом входе 4</source>
        <translation>Analogue input 4 voltage</translation>
    </message>
    <message id="orbf_025">
        <source>Напряжение на аналоговом входе 5</source>
        <translation>Analogue input 5 voltage</translation>
    </message>
    <message id="orbf_026">
        <source>Напряжение на аналоговом входе 6</source>
        <translation>Analogue input 6 voltage</translation>
    </message>
    <message id="orbf_027">
        <source>Напряжение на аналоговом входе 7</source>
        <translation>Analogue input 7 voltage</translation>
    </message>
    <message id="orbf_028">
        <source>Напряжение на аналоговом входе 8</source>
        <translation>Analogue input 8 voltage</translation>
    </message>
    <message id="orbf_029">
        <source>Состояние входов 1–8</source>
        <translation>Input states 1–8</translation>
    </message>
    <message id="orbf_030">
        <source>Состояние входов 9–16</source>
        <translation>Input states 9–16</translation>
    </message>
    <message id="orbf_031">
        <source>Состояние выходов 1–8</source>
        <translation>Output states 1–8</translation>
    </message>
    <message id="orbf_032">
        <source>Состояние выходов 9–16</source>
        <translation>Output states 9–16</translation>
    </message>
    <message id="orbf_033">
        <source>Счётчик импульсов 1</source>
        <translation>Pulse counter 1</translation>
    </message>
    <message id="orbf_034">
        <source>Счётчик импульсов 2</source>
        <translation>Pulse counter 2</translation>
    </message>
    <message id="orbf_035">
        <source>Частота на входе 1</source>
        <translation>Input 1 frequency</translation>
    </message>
    <message id="orbf_036">
        <source>Частота на входе 2</source>
        <translation>Input 2 frequency</translation>
    </message>
    <message id="orbf_037">
        <source>Моточасы</source>
        <translation>Engine hours</translation>
    </message>
    <message id="orbf_038">
        <source>Уровень топлива ДУТ RS-485 1</source>
        <translation>RS-485 fuel sensor 1 level</translation>
    </message>
    <message id="orbf_039">
        <source>Уровень топлива ДУТ RS-485 2</source>
        <translation>RS-485 fuel sensor 2 level</translation>
    </message>
    <message id="orbf_040">
        <source>Уровень топлива ДУТ RS-485 3</source>
        <translation>RS-485 fuel sensor 3 level</translation>
    </message>
    <message id="orbf_041">
        <source>Уровень топлива ДУТ RS-485 4</source>
        <translation>RS-485 fuel sensor 4 level</translation>
    </message>
    <message id="orbf_042">
        <source>Уровень топлива ДУТ RS-485 5</source>
        <translation>RS-485 fuel sensor 5 level</translation>
    </message>
    <message id="orbf_043">
        <source>Уровень топлива ДУТ RS-485 6</source>
        <translation>RS-485 fuel sensor 6 level</translation>
    </message>
    <message id="orbf_044">
        <source>Уровень топлива ДУТ RS-232</source>
        <translation>RS-232 fuel sensor level</translation>
    </message>
    <message id="orbf_045">
        <source>Температура, датчик 1</source>
        <translation>Temperature sensor 1</translation>
    </message>
    <message id="orbf_046">
        <source>Температура, датчик 2</source>
        <translation>Temperature sensor 2</translation>
    </message>
    <message id="orbf_047">
        <source>Температура, датчик 3</source>
        <translation>Temperature sensor 3</translation>
    </message>
    <message id="orbf_048">
        <source>Температура, датчик 4</source>
        <translation>Temperature sensor 4</translation>
    </message>
    <message id="orbf_049">
        <source>Температура, датчик 5</source>
        <translation>Temperature sensor 5</translation>
    </message>
    <message id="orbf_050">
        <source>Температура, датчик 6</source>
        <translation>Temperature sensor 6</translation>
    </message>
    <message id="orbf_051">
        <source>Температура, датчик 7</source>
        <translation>Temperature sensor 7</translation>
    </message>
    <message id="orbf_052">
        <source>Температура, датчик 8</source>
        <translation>Temperature sensor 8</translation>
    </message>
    <message id="orbf_053">
        <source>CAN: уровень топлива</source>
        <translation>CAN: fuel level</translation>
    </message>
    <message id="orbf_054">
        <source>CAN: расход топлива</source>
        <translation>CAN: fuel used</translation>
    </message>
    <message id="orbf_055">
        <source>CAN: обороты двигателя</source>
        <translation>CAN: engine speed</translation>
    </message>
    <message id="orbf_056">
        <source>CAN: температура охлаждающей жидкости</source>
        <translation>CAN: coolant temperature</translation>
    </message>
    <message id="orbf_057">
        <source>CAN: полный пробег</source>
        <translation>CAN: total mileage</translation>
    </message>
    <message id="orbf_058">
        <source>CAN: нагрузка на ось 1</source>
        <translation>CAN: axle 1 load</translation>
    </message>
    <message id="orbf_059">
        <source>CAN: нагрузка на ось 2</source>
        <translation>CAN: axle 2 load</translation>
    </message>
    <message id="orbf_060">
        <source>CAN: нагрузка на ось 3</source>
        <translation>CAN: axle 3 load</translation>
    </message>
    <message id="orbf_061">
        <source>CAN: нагрузка на ось 4</source>
        <translation>CAN: axle 4 load</translation>
    </message>
    <message id="orbf_062">
        <source>CAN: нагрузка на ось 5</source>
        <translation>CAN: axle 5 load</translation>
    </message>
    <message id="orbf_063">
        <source>CAN: положение педали газа</source>
        <translation>CAN: accelerator pedal</translation>
    </message>
    <message id="orbf_064">
        <source>CAN: положение педали тормоза</source>
        <translation>CAN: brake pedal</translation>
    </message>
    <message id="orbf_065">
        <source>CAN: нагрузка двигателя</source>
        <translation>CAN: engine load</translation>
    </message>
    <message id="orbf_066">
        <source>CAN: уровень топлива после фильтра</source>
        <translation>CAN: filtered fuel level</translation>
    </message>
    <message id="orbf_067">
        <source>CAN: время работы двигателя</source>
        <translation>CAN: engine running time</translation>
    </message>
    <message id="orbf_068">
        <source>CAN: до технического обслуживания</source>
        <translation>CAN: until service</translation>
    </message>
    <message id="orbf_069">
        <source>CAN: скорость</source>
        <translation>CAN: speed</translation>
    </message>
    <message id="orbf_070">
        <source>Спутники по навигационным системам</source>
        <translation>Satellites per navigation system</translation>
    </message>
    <message id="orbf_071">
        <source>Точность (HDOP, PDOP)</source>
        <translation>Precision (HDOP, PDOP)</translation>
    </message>
    <message id="orbf_072">
        <source>Режим навигации и число спутников</source>
        <translation>Fix mode and satellite count</translation>
    </message>
    <message id="orbf_073">
        <source>Точные координаты приёмника</source>
        <translation>Receiver&apos;s precise coordinates</translation>
    </message>
    <message id="orbf_074">
        <source>Высота по приёмнику</source>
        <translation>Receiver altitude</translation>
    </message>
    <message id="orbf_075">
        <source>Курс по приёмнику</source>
        <translation>Receiver course</translation>
    </message>
    <message id="orbf_076">
        <source>Скорость по приёмнику</source>
        <translation>Receiver speed</translation>
    </message>
    <message id="orbf_077">
        <source>Базовые станции (LBS)</source>
        <translation>Mobile cells (LBS)</translation>
    </message>
    <message id="orbf_078">
        <source>Температура ДУТ RS-485 1</source>
        <translation>RS-485 fuel sensor 1 temperature</translation>
    </message>
    <message id="orbf_079">
        <source>Температура ДУТ RS-485 2</source>
        <translation>RS-485 fuel sensor 2 temperature</translation>
    </message>
    <message id="orbf_080">
        <source>Температура ДУТ RS-485 3</source>
        <translation>RS-485 fuel sensor 3 temperature</translation>
    </message>
    <message id="orbf_081">
        <source>Температура ДУТ RS-485 4</source>
        <translation>RS-485 fuel sensor 4 temperature</translation>
    </message>
    <message id="orbf_082">
        <source>Температура ДУТ RS-485 5</source>
        <translation>RS-485 fuel sensor 5 temperature</translation>
    </message>
    <message id="orbf_083">
        <source>Температура ДУТ RS-485 6</source>
        <translation>RS-485 fuel sensor 6 temperature</translation>
    </message>
    <message id="orbf_084">
        <source>ДУТ RS-485 7: уровень и температура</source>
        <translation>RS-485 fuel sensor 7: level and temperature</translation>
    </message>
    <message id="orbf_085">
        <source>ДУТ RS-485 8: уровень и температура</source>
        <translation>RS-485 fuel sensor 8: level and temperature</translation>
    </message>
    <message id="orbf_086">
        <source>ДУТ RS-485 9: уровень и температура</source>
        <translation>RS-485 fuel sensor 9: level and temperature</translation>
    </message>
    <message id="orbf_087">
        <source>ДУТ RS-485 10: уровень и температура</source>
        <translation>RS-485 fuel sensor 10: level and temperature</translation>
    </message>
    <message id="orbf_088">
        <source>ДУТ RS-485 11: уровень и температура</source>
        <translation>RS-485 fuel sensor 11: level and temperature</translation>
    </message>
    <message id="orbf_089">
        <source>ДУТ RS-485 12: уровень и температура</source>
        <translation>RS-485 fuel sensor 12: level and temperature</translation>
    </message>
    <message id="orbf_090">
        <source>ДУТ RS-485 13: уровень и температура</source>
        <translation>RS-485 fuel sensor 13: level and temperature</translation>
    </message>
    <message id="orbf_091">
        <source>ДУТ RS-485 14: уровень и температура</source>
        <translation>RS-485 fuel sensor 14: level and temperature</translation>
    </message>
    <message id="orbf_092">
        <source>ДУТ RS-485 15: уровень и температура</source>
        <translation>RS-485 fuel sensor 15: level and temperature</translation>
    </message>
    <message id="orbf_093">
        <source>ДУТ RS-485 16: уровень и температура</source>
        <translation>RS-485 fuel sensor 16: level and temperature</translation>
    </message>
    <message id="orbf_094">
        <source>Шины 1–2</source>
        <translation>Tyres 1–2</translation>
    </message>
    <message id="orbf_095">
        <source>Шины 3–6</source>
        <translation>Tyres 3–6</translation>
    </message>
    <message id="orbf_096">
        <source>Шины 7–14</source>
        <translation>Tyres 7–14</translation>
    </message>
    <message id="orbf_097">
        <source>Шины 15–30</source>
        <translation>Tyres 15–30</translation>
    </message>
    <message id="orbf_098">
        <source>Тахограф: состояние</source>
        <translation>Tachograph: state</translation>
    </message>
    <message id="orbf_099">
        <source>Тахограф: режим</source>
        <translation>Tachograph: mode</translation>
    </message>
    <message id="orbf_100">
        <source>Тахограф: флаги</source>
        <translation>Tachograph: flags</translation>
    </message>
    <message id="orbf_101">
        <source>Тахограф: скорость</source>
        <translation>Tachograph: speed</translation>
    </message>
    <message id="orbf_102">
        <source>Тахограф: одометр</source>
        <translation>Tachograph: odometer</translation>
    </message>
    <message id="orbf_103">
        <source>Тахограф: время</source>
        <translation>Tachograph: time</translation>
    </message>
    <message id="orbf_104">
        <source>Диспетчерское сообщение: текущее</source>
        <translation>Dispatcher message: current</translation>
    </message>
    <message id="orbf_105">
        <source>Диспетчерское сообщение: последний номер</source>
        <translation>Dispatcher message: last number</translation>
    </message>
    <message id="orbf_106">
        <source>Акселерометр: изменение ускорения</source>
        <translation>Accelerometer: acceleration change</translation>
    </message>
    <message id="orbf_107">
        <source>Акселерометр: ускорение по осям X, Y, Z</source>
        <translation>Accelerometer: X, Y, Z acceleration</translation>
    </message>
    <message id="orbf_108">
        <source>Акселерометр: модуль ускорения</source>
        <translation>Accelerometer: acceleration magnitude</translation>
    </message>
    <message id="orbf_109">
        <source>Акселерометр: углы наклона</source>
        <translation>Accelerometer: tilt angles</translation>
    </message>
    <message id="orbf_110">
        <source>Пассажиропоток, датчики 1–2</source>
        <translation>Passenger counters 1–2</translation>
    </message>
    <message id="orbf_111">
        <source>Пассажиропоток, датчики 3–4</source>
        <translation>Passenger counters 3–4</translation>
    </message>
    <message id="orbf_112">
        <source>Пассажиропоток, датчики 5–6</source>
        <translation>Passenger counters 5–6</translation>
    </message>
    <message id="orbf_113">
        <source>Пассажиропоток, датчики 7–8</source>
        <translation>Passenger counters 7–8</translation>
    </message>
    <message id="orbf_114">
        <source>Пассажиропоток, датчики 9–10</source>
        <translation>Passenger counters 9–10</translation>
    </message>
    <message id="orbf_115">
        <source>Пассажиропоток, датчики 11–12</source>
        <translation>Passenger counters 11–12</translation>
    </message>
    <message id="orbf_116">
        <source>Пассажиропоток, датчики 13–14</source>
        <translation>Passenger counters 13–14</translation>
    </message>
    <message id="orbf_117">
        <source>Пассажиропоток, датчики 15–16</source>
        <translation>Passenger counters 15–16</translation>
    </message>
    <message id="orbf_118">
        <source>Автоинформатор: состояние</source>
        <translation>Route announcer: state</translation>
    </message>
    <message id="orbf_119">
        <source>Автоинформатор: геозона</source>
        <translation>Route announcer: geo-zone</translation>
    </message>
    <message id="orbf_120">
        <source>Автоинформатор: остановка</source>
        <translation>Route announcer: stop</translation>
    </message>
    <message id="orbf_121">
        <source>Автоинформатор: маршрут</source>
        <translation>Route announcer: route</translation>
    </message>
    <message id="orbf_122">
        <source>Камера</source>
        <translation>Camera</translation>
    </message>
    <message id="orbf_123">
        <source>Состояние терминала 2</source>
        <translation>Terminal state 2</translation>
    </message>
    <message id="orbf_124">
        <source>Состояние модулей 3</source>
        <translation>Module state 3</translation>
    </message>
    <message id="orbf_125">
        <source>Состояние соединений</source>
        <translation>Connection state</translation>
    </message>
    <message id="orbf_126">
        <source>Состояние входов 17–24</source>
        <translation>Input states 17–24</translation>
    </message>
    <message id="orbf_127">
        <source>Счётчик импульсов 3</source>
        <translation>Pulse counter 3</translation>
    </message>
    <message id="orbf_128">
        <source>Счётчик импульсов 4</source>
        <translation>Pulse counter 4</translation>
    </message>
    <message id="orbf_129">
        <source>Счётчик импульсов 5</source>
        <translation>Pulse counter 5</translation>
    </message>
    <message id="orbf_130">
        <source>Счётчик импульсов 6</source>
        <translation>Pulse counter 6</translation>
    </message>
    <message id="orbf_131">
        <source>Счётчик импульсов 7</source>
        <translation>Pulse counter 7</translation>
    </message>
    <message id="orbf_132">
        <source>Счётчик импульсов 8</source>
        <translation>Pulse counter 8</translation>
    </message>
    <message id="orbf_133">
        <source>Частота на входе 3</source>
        <translation>Input 3 frequency</translation>
    </message>
    <message id="orbf_134">
        <source>Частота на входе 4</source>
        <translation>Input 4 frequency</translation>
    </message>
    <message id="orbf_135">
        <source>Частота на входе 5</source>
        <translation>Input 5 frequency</translation>
    </message>
    <message id="orbf_136">
        <source>Частота на входе 6</source>
        <translation>Input 6 frequency</translation>
    </message>
    <message id="orbf_137">
        <source>Частота на входе 7</source>
        <translation>Input 7 frequency</translation>
    </message>
    <message id="orbf_138">
        <source>Частота на входе 8</source>
        <translation>Input 8 frequency</translation>
    </message>
    <message id="orbf_139">
        <source>Акселерометр ТС: состояние</source>
        <translation>Vehicle accelerometer: state</translation>
    </message>
    <message id="orbf_140">
        <source>Акселерометр ТС: вертикальное ускорение</source>
        <translation>Vehicle accelerometer: vertical</translation>
    </message>
    <message id="orbf_141">
        <source>Акселерометр ТС: продольное и боковое</source>
        <translation>Vehicle accelerometer: longitudinal and roll</translation>
    </message>
    <message id="orbf_142">
        <source>Акселерометр ТС: оси X, Y, Z</source>
        <translation>Vehicle accelerometer: X, Y, Z axes</translation>
    </message>
    <message id="orbf_143">
        <source>Эко-вождение: максимальное ускорение</source>
        <translation>Eco-driving: peak acceleration</translation>
    </message>
    <message id="orbf_144">
        <source>Эко-вождение: максимальная скорость</source>
        <translation>Eco-driving: peak speed</translation>
    </message>
    <message id="orbf_145">
        <source>Эко-вождение: превышение скорости</source>
        <translation>Eco-driving: speeding</translation>
    </message>
    <message id="orbf_146">
        <source>Эко-вождение: события</source>
        <translation>Eco-driving: events</translation>
    </message>
    <message id="orbf_147">
        <source>Частота ДУТ RS-485 1</source>
        <translation>RS-485 fuel sensor 1 frequency</translation>
    </message>
    <message id="orbf_148">
        <source>Частота ДУТ RS-485 2</source>
        <translation>RS-485 fuel sensor 2 frequency</translation>
    </message>
    <message id="orbf_149">
        <source>Частота ДУТ RS-485 3</source>
        <translation>RS-485 fuel sensor 3 frequency</translation>
    </message>
    <message id="orbf_150">
        <source>Частота ДУТ RS-485 4</source>
        <translation>RS-485 fuel sensor 4 frequency</translation>
    </message>
    <message id="orbf_151">
        <source>Частота ДУТ RS-485 5</source>
        <translation>RS-485 fuel sensor 5 frequency</translation>
    </message>
    <message id="orbf_152">
        <source>Частота ДУТ RS-485 6</source>
        <translation>RS-485 fuel sensor 6 frequency</translation>
    </message>
    <message id="orbf_153">
        <source>Частота ДУТ RS-485 7</source>
        <translation>RS-485 fuel sensor 7 frequency</translation>
    </message>
    <message id="orbf_154">
        <source>Частота ДУТ RS-485 8</source>
        <translation>RS-485 fuel sensor 8 frequency</translation>
    </message>
    <message id="orbf_155">
        <source>Частота ДУТ RS-485 9</source>
        <translation>RS-485 fuel sensor 9 frequency</translation>
    </message>
    <message id="orbf_156">
        <source>Частота ДУТ RS-485 10</source>
        <translation>RS-485 fuel sensor 10 frequency</translation>
    </message>
    <message id="orbf_157">
        <source>Частота ДУТ RS-485 11</source>
        <translation>RS-485 fuel sensor 11 frequency</translation>
    </message>
    <message id="orbf_158">
        <source>Частота ДУТ RS-485 12</source>
        <translation>RS-485 fuel sensor 12 frequency</translation>
    </message>
    <message id="orbf_159">
        <source>Частота ДУТ RS-485 13</source>
        <translation>RS-485 fuel sensor 13 frequency</translation>
    </message>
    <message id="orbf_160">
        <source>Частота ДУТ RS-485 14</source>
        <translation>RS-485 fuel sensor 14 frequency</translation>
    </message>
    <message id="orbf_161">
        <source>Частота ДУТ RS-485 15</source>
        <translation>RS-485 fuel sensor 15 frequency</translation>
    </message>
    <message id="orbf_162">
        <source>Частота ДУТ RS-485 16</source>
        <translation>RS-485 fuel sensor 16 frequency</translation>
    </message>
    <message id="orbf_163">
        <source>Точная температура 1</source>
        <translation>High-precision temperature 1</translation>
    </message>
    <message id="orbf_164">
        <source>Точная температура 2</source>
        <translation>High-precision temperature 2</translation>
    </message>
    <message id="orbf_165">
        <source>Точная температура 3</source>
        <translation>High-precision temperature 3</translation>
    </message>
    <message id="orbf_166">
        <source>Точная температура 4</source>
        <translation>High-precision temperature 4</translation>
    </message>
    <message id="orbf_167">
        <source>Влажность 1</source>
        <translation>Humidity 1</translation>
    </message>
    <message id="orbf_168">
        <source>Влажность 2</source>
        <translation>Humidity 2</translation>
    </message>
    <message id="orbf_169">
        <source>Влажность 3</source>
        <translation>Humidity 3</translation>
    </message>
    <message id="orbf_170">
        <source>Влажность 4</source>
        <translation>Humidity 4</translation>
    </message>
    <message id="orbf_171">
        <source>Расходомер: состояние</source>
        <translation>Flow meter: state</translation>
    </message>
    <message id="orbf_172">
        <source>Расходомер: ошибки</source>
        <translation>Flow meter: errors</translation>
    </message>
    <message id="orbf_173">
        <source>Расходомер: общий расход</source>
        <translation>Flow meter: total fuel</translation>
    </message>
    <message id="orbf_174">
        <source>Расходомер: расход за поездку</source>
        <translation>Flow meter: trip fuel</translation>
    </message>
    <message id="orbf_175">
        <source>Расходомер: мгновенный расход</source>
        <translation>Flow meter: current rate</translation>
    </message>
    <message id="orbf_176">
        <source>Расходомер: объём подачи</source>
        <translation>Flow meter: supply volume</translation>
    </message>
    <message id="orbf_177">
        <source>Расходомер: скорость подачи</source>
        <translation>Flow meter: supply rate</translation>
    </message>
    <message id="orbf_178">
        <source>Расходомер: температура подачи</source>
        <translation>Flow meter: supply temperature</translation>
    </message>
    <message id="orbf_179">
        <source>Расходомер: объём обратки</source>
        <translation>Flow meter: return volume</translation>
    </message>
    <message id="orbf_180">
        <source>Расходомер: скорость обратки</source>
        <translation>Flow meter: return rate</translation>
    </message>
    <message id="orbf_181">
        <source>Расходомер: температура обратки</source>
        <translation>Flow meter: return temperature</translation>
    </message>
    <message id="orbf_182">
        <source>Рефрижератор: состояние</source>
        <translation>Refrigerator: state</translation>
    </message>
    <message id="orbf_183">
        <source>Рефрижератор: температура камеры 1</source>
        <translation>Refrigerator: chamber 1 temperature</translation>
    </message>
    <message id="orbf_184">
        <source>Рефрижератор: температура камеры 2</source>
        <translation>Refrigerator: chamber 2 temperature</translation>
    </message>
    <message id="orbf_185">
        <source>Рефрижератор: температура камеры 3</source>
        <translation>Refrigerator: chamber 3 temperature</translation>
    </message>
    <message id="orbf_186">
        <source>Рефрижератор: заданная температура камеры 1</source>
        <translation>Refrigerator: chamber 1 set point</translation>
    </message>
    <message id="orbf_187">
        <source>Рефрижератор: заданная температура камеры 2</source>
        <translation>Refrigerator: chamber 2 set point</translation>
    </message>
    <message id="orbf_188">
        <source>Рефрижератор: заданная температура камеры 3</source>
        <translation>Refrigerator: chamber 3 set point</translation>
    </message>
    <message id="orbf_189">
        <source>Рефрижератор: температура воздуха</source>
        <translation>Refrigerator: air temperature</translation>
    </message>
    <message id="orbf_190">
        <source>Рефрижератор: температура охлаждающей жидкости</source>
        <translation>Refrigerator: coolant temperature</translation>
    </message>
    <message id="orbf_191">
        <source>Рефрижератор: напряжение</source>
        <translation>Refrigerator: voltage</translation>
    </message>
    <message id="orbf_192">
        <source>Рефрижератор: ток</source>
        <translation>Refrigerator: current</translation>
    </message>
    <message id="orbf_193">
        <source>Рефрижератор: моточасы от двигателя</source>
        <translation>Refrigerator: engine hours</translation>
    </message>
    <message id="orbf_194">
        <source>Рефрижератор: моточасы от сети</source>
        <translation>Refrigerator: mains hours</translation>
    </message>
    <message id="orbf_195">
        <source>Рефрижератор: число ошибок и ошибка 1</source>
        <translation>Refrigerator: error count and error 1</translation>
    </message>
    <message id="orbf_196">
        <source>Рефрижератор: ошибки 2–3</source>
        <translation>Refrigerator: errors 2–3</translation>
    </message>
    <message id="orbf_197">
        <source>Рефрижератор: ошибки 4–6</source>
        <translation>Refrigerator: errors 4–6</translation>
    </message>
    <message id="orbf_198">
        <source>Рефрижератор: режим и обороты двигателя</source>
        <translation>Refrigerator: engine mode and speed</translation>
    </message>
    <message id="orbf_199">
        <source>Рефрижератор: компрессор</source>
        <translation>Refrigerator: compressor</translation>
    </message>
    <message id="orbf_200">
        <source>Миллисекунды времени</source>
        <translation>Time milliseconds</translation>
    </message>
    <message id="orbf_201">
        <source>CAN: состояние систем</source>
        <translation>CAN: system state</translation>
    </message>
    <message id="orbf_202">
        <source>CAN: событие</source>
        <translation>CAN: event</translation>
    </message>
    <message id="orbf_203">
        <source>CAN: аварии</source>
        <translation>CAN: crash flags</translation>
    </message>
    <message id="orbf_204">
        <source>CAN: неисправность (лампа, код)</source>
        <translation>CAN: fault (lamp, code)</translation>
    </message>
    <message id="orbf_205">
        <source>Моточасы под нагрузкой</source>
        <translation>Engine hours under load</translation>
    </message>
    <message id="orbf_206">
        <source>Моточасы без нагрузки</source>
        <translation>Engine hours without load</translation>
    </message>
    <message id="orbf_207">
        <source>Параметр пользователя 1 байт, №1</source>
        <translation>User parameter, 1 byte, no. 1</translation>
    </message>
    <message id="orbf_208">
        <source>Параметр пользователя 1 байт, №2</source>
        <translation>User parameter, 1 byte, no. 2</translation>
    </message>
    <message id="orbf_209">
        <source>Параметр пользователя 1 байт, №3</source>
        <translation>User parameter, 1 byte, no. 3</translation>
    </message>
    <message id="orbf_210">
        <source>Параметр пользователя 1 байт, №4</source>
        <translation>User parameter, 1 byte, no. 4</translation>
    </message>
    <message id="orbf_211">
        <source>Параметр пользователя 1 байт, №5</source>
        <translation>User parameter, 1 byte, no. 5</translation>
    </message>
    <message id="orbf_212">
        <source>Параметр пользователя 1 байт, №6</source>
        <translation>User parameter, 1 byte, no. 6</translation>
    </message>
    <message id="orbf_213">
        <source>Параметр пользователя 1 байт, №7</source>
        <translation>User parameter, 1 byte, no. 7</translation>
    </message>
    <message id="orbf_214">
        <source>Параметр пользователя 1 байт, №8</source>
        <translation>User parameter, 1 byte, no. 8</translation>
    </message>
    <message id="orbf_215">
        <source>Параметр пользователя 1 байт, №9</source>
        <translation>User parameter, 1 byte, no. 9</translation>
    </message>
    <message id="orbf_216">
        <source>Параметр пользователя 1 байт, №10</source>
        <translation>User parameter, 1 byte, no. 10</translation>
    </message>
    <message id="orbf_217">
        <source>Параметр пользователя 1 байт, №11</source>
        <translation>User parameter, 1 byte, no. 11</translation>
    </message>
    <message id="orbf_218">
        <source>Параметр пользователя 1 байт, №12</source>
        <translation>User parameter, 1 byte, no. 12</translation>
    </message>
    <message id="orbf_219">
        <source>Параметр пользователя 1 байт, №13</source>
        <translation>User parameter, 1 byte, no. 13</translation>
    </message>
    <message id="orbf_220">
        <source>Параметр пользователя 1 байт, №14</source>
        <translation>User parameter, 1 byte, no. 14</translation>
    </message>
    <message id="orbf_221">
        <source>Параметр пользователя 1 байт, №15</source>
        <translation>User parameter, 1 byte, no. 15</translation>
    </message>
    <message id="orbf_222">
        <source>Параметр пользователя 1 байт, №16</source>
        <translation>User parameter, 1 byte, no. 16</translation>
    </message>
    <message id="orbf_223">
        <source>Параметр пользователя 2 байта, №1</source>
        <translation>User parameter, 2 bytes, no. 1</translation>
    </message>
    <message id="orbf_224">
        <source>Параметр пользователя 2 байта, №2</source>
        <translation>User parameter, 2 bytes, no. 2</translation>
    </message>
    <message id="orbf_225">
        <source>Параметр пользователя 2 байта, №3</source>
        <translation>User parameter, 2 bytes, no. 3</translation>
    </message>
    <message id="orbf_226">
        <source>Параметр пользователя 2 байта, №4</source>
        <translation>User parameter, 2 bytes, no. 4</translation>
    </message>
    <message id="orbf_227">
        <source>Параметр пользователя 2 байта, №5</source>
        <translation>User parameter, 2 bytes, no. 5</translation>
    </message>
    <message id="orbf_228">
        <source>Параметр пользователя 2 байта, №6</source>
        <translation>User parameter, 2 bytes, no. 6</translation>
    </message>
    <message id="orbf_229">
        <source>Параметр пользователя 2 байта, №7</source>
        <translation>User parameter, 2 bytes, no. 7</translation>
    </message>
    <message id="orbf_230">
        <source>Параметр пользователя 2 байта, №8</source>
        <translation>User parameter, 2 bytes, no. 8</translation>
    </message>
    <message id="orbf_231">
        <source>Параметр пользователя 2 байта, №9</source>
        <translation>User parameter, 2 bytes, no. 9</translation>
    </message>
    <message id="orbf_232">
        <source>Параметр пользователя 2 байта, №10</source>
        <translation>User parameter, 2 bytes, no. 10</translation>
    </message>
    <message id="orbf_233">
        <source>Параметр пользователя 2 байта, №11</source>
        <translation>User parameter, 2 bytes, no. 11</translation>
    </message>
    <message id="orbf_234">
        <source>Параметр пользователя 2 байта, №12</source>
        <translation>User parameter, 2 bytes, no. 12</translation>
    </message>
    <message id="orbf_235">
        <source>Параметр пользователя 2 байта, №13</source>
        <translation>User parameter, 2 bytes, no. 13</translation>
    </message>
    <message id="orbf_236">
        <source>Параметр пользователя 2 байта, №14</source>
        <translation>User parameter, 2 bytes, no. 14</translation>
    </message>
    <message id="orbf_237">
        <source>Параметр пользователя 2 байта, №15</source>
        <translation>User parameter, 2 bytes, no. 15</translation>
    </message>
    <message id="orbf_238">
        <source>Параметр пользователя 4 байта, №1</source>
        <translation>User parameter, 4 bytes, no. 1</translation>
    </message>
    <message id="orbf_239">
        <source>Параметр пользователя 4 байта, №2</source>
        <translation>User parameter, 4 bytes, no. 2</translation>
    </message>
    <message id="orbf_240">
        <source>Параметр пользователя 4 байта, №3</source>
        <translation>User parameter, 4 bytes, no. 3</translation>
    </message>
    <message id="orbf_241">
        <source>Параметр пользователя 4 байта, №4</source>
        <translation>User parameter, 4 bytes, no. 4</translation>
    </message>
    <message id="orbf_242">
        <source>Параметр пользователя 4 байта, №5</source>
        <translation>User parameter, 4 bytes, no. 5</translation>
    </message>
    <message id="orbf_243">
        <source>Параметр пользователя 4 байта, №6</source>
        <translation>User parameter, 4 bytes, no. 6</translation>
    </message>
    <message id="orbf_244">
        <source>Параметр пользователя 4 байта, №7</source>
        <translation>User parameter, 4 bytes, no. 7</translation>
    </message>
    <message id="orbf_245">
        <source>Параметр пользователя 4 байта, №8</source>
        <translation>User parameter, 4 bytes, no. 8</translation>
    </message>
    <message id="orbf_246">
        <source>Параметр пользователя 4 байта, №9</source>
        <translation>User parameter, 4 bytes, no. 9</translation>
    </message>
    <message id="orbf_247">
        <source>Параметр пользователя 4 байта, №10</source>
        <translation>User parameter, 4 bytes, no. 10</translation>
    </message>
    <message id="orbf_248">
        <source>Параметр пользователя 4 байта, №11</source>
        <translation>User parameter, 4 bytes, no. 11</translation>
    </message>
    <message id="orbf_249">
        <source>Параметр пользователя 4 байта, №12</source>
        <translation>User parameter, 4 bytes, no. 12</translation>
    </message>
    <message id="orbf_250">
        <source>Параметр пользователя 4 байта, №13</source>
        <translation>User parameter, 4 bytes, no. 13</translation>
    </message>
    <message id="orbf_251">
        <source>Параметр пользователя 4 байта, №14</source>
        <translation>User parameter, 4 bytes, no. 14</translation>
    </message>
    <message id="orbf_252">
        <source>Параметр пользователя 4 байта, №15</source>
        <translation>User parameter, 4 bytes, no. 15</translation>
    </message>
    <message id="orbf_253">
        <source>Параметр пользователя 8 байт, №1</source>
        <translation>User parameter, 8 bytes, no. 1</translation>
    </message>
    <message id="orbf_254">
        <source>Параметр пользователя 8 байт, №2</source>
        <translation>User parameter, 8 bytes, no. 2</translation>
    </message>
    <message id="orbf_255">
        <source>Параметр пользователя 8 байт, №3</source>
        <translation>User parameter, 8 bytes, no. 3</translation>
    </message>
    <message id="tmio_030">
        <source>Расширенная запись</source>
        <translation>Extended record</translation>
    </message>
    <message id="tmio_031">
        <source>Поле</source>
        <translation>Field</translation>
    </message>
    <message id="tmio_032">
        <source>Значение</source>
        <translation>Value</translation>
    </message>
    <message id="tmio_033">
        <source>Тип</source>
        <translation>Type</translation>
    </message>
    <message id="tmio_034">
        <source>Размер</source>
        <translation>Size</translation>
    </message>
    <message id="tmio_001">
        <source>Основное</source>
        <translation>Main</translation>
    </message>
    <message id="tmio_002">
        <source>Навигация</source>
        <translation>Navigation</translation>
    </message>
    <message id="tmio_003">
        <source>Питание, входы и выходы</source>
        <translation>Power, inputs and outputs</translation>
    </message>
    <message id="tmio_004">
        <source>Датчики</source>
        <translation>Sensors</translation>
    </message>
    <message id="tmio_005">
        <source>Шина CAN</source>
        <translation>CAN</translation>
    </message>
    <message id="tmio_007">
        <source>Тахограф</source>
        <translation>Tachograph</translation>
    </message>
    <message id="tmio_008">
        <source>Акселерометр и эко-вождение</source>
        <translation>Accelerometer and eco-driving</translation>
    </message>
    <message id="tmio_009">
        <source>Пассажиры</source>
        <translation>Passengers</translation>
    </message>
    <message id="tmio_010">
        <source>Геоинформация</source>
        <translation>Geo-information</translation>
    </message>
    <message id="tmio_011">
        <source>Датчики расхода топлива</source>
        <translation>Fuel-flow sensors</translation>
    </message>
    <message id="tmio_012">
        <source>Рефрижератор</source>
        <translation>Refrigerator</translation>
    </message>
    <message id="tmio_013">
        <source>Пользовательские параметры</source>
        <translation>User parameters</translation>
    </message>
    <message id="tmio_006">
        <source>Шины</source>
        <translation>Tyres</translation>
    </message>
    <message id="tmio_014">
        <source>Исходные данные</source>
        <translation>Raw data</translation>
    </message>
    <message id="tmio_020">
        <source>Номер датчика</source>
        <translation>Sensor number</translation>
    </message>
    <message id="tmio_021">
        <source>Давление</source>
        <translation>Pressure</translation>
    </message>
    <message id="tmio_022">
        <source>Температура</source>
        <translation>Temperature</translation>
    </message>
    <message id="tmio_023">
        <source>Версия %1, набор полей (%2): %3</source>
        <translation>Version %1, field set (%2): %3</translation>
    </message>
    <message id="tmio_024">
        <source>Тело записи, %1 байт:</source>
        <translation>Record body, %1 bytes:</translation>
    </message>
    <message id="tmio_041">
        <source>Питание</source>
        <translation>Power</translation>
    </message>
    <message id="tmio_042">
        <source>Входы 1-8</source>
        <translation>Inputs 1-8</translation>
    </message>
    <message id="tmio_043">
        <source>Аналоговый вход 1</source>
        <translation>Analog input 1</translation>
    </message>
    <message id="tmio_044">
        <source>Аналоговый вход 2</source>
        <translation>Analog input 2</translation>
    </message>
    <message id="tmio_045">
        <source>Выход 1</source>
        <translation>Output 1</translation>
    </message>
    <message id="tmio_046">
        <source>Выход 2</source>
        <translation>Output 2</translation>
    </message>
    <message id="tmio_047">
        <source>Спутники</source>
        <translation>Satellites</translation>
    </message>
    <message id="tmio_048">
        <source>Навигация (фиксация)</source>
        <translation>Navigation (fix)</translation>
    </message>
    <message id="tmio_049">
        <source>Уровень GSM</source>
        <translation>GSM level</translation>
    </message>
    <message id="tmio_050">
        <source>Температура 1</source>
        <translation>Temperature 1</translation>
    </message>
    <message id="tmio_051">
        <source>Температура 2</source>
        <translation>Temperature 2</translation>
    </message>
    <message id="tmio_052">
        <source>Температура (точная) 1</source>
        <translation>Temperature (precise) 1</translation>
    </message>
    <message id="tmio_040">
        <source>Проверка на производстве</source>
        <translation>Production check</translation>
    </message>
    <message id="tmio_053">
        <source>ВКЛ</source>
        <translation>ON</translation>
    </message>
    <message id="tmio_054">
        <source>выкл</source>
        <translation>off</translation>
    </message>
    <message id="tmiw_043">
        <source>%1: мин. %2, макс. %3</source>
        <translation>%1: min %2, max %3</translation>
    </message>
    <message id="tmiw_044">
        <source>%1: нет данных</source>
        <translation>%1: no data</translation>
    </message>
    <message id="tmiw_040">
        <source>расширенная</source>
        <translation>extended</translation>
    </message>
    <message id="tmiw_041">
        <source>без номера</source>
        <translation>no number</translation>
    </message>
    <message id="tmiw_042">
        <source>история</source>
        <translation>history</translation>
    </message>
    <message id="tmiw_001">
        <source>Текущая запись</source>
        <translation>Current record</translation>
    </message>
    <message id="tmiw_002">
        <source>◀ Предыдущая</source>
        <translation>◀ Previous</translation>
    </message>
    <message id="tmiw_003">
        <source>Следующая ▶</source>
        <translation>Next ▶</translation>
    </message>
    <message id="tmiw_004">
        <source>Показать</source>
        <translation>Show</translation>
    </message>
    <message id="tmiw_005">
        <source>Часы терминала от UTC:</source>
        <translation>Terminal clock from UTC:</translation>
    </message>
    <message id="tmiw_006">
        <source>Автозапрос</source>
        <translation>Auto-request</translation>
    </message>
    <message id="tmiw_007">
        <source>Период автозапроса, 1..60 с</source>
        <translation>Auto-request period, 1..60 s</translation>
    </message>
    <message id="tmiw_008">
        <source>Скрывать отсутствующие поля</source>
        <translation>Hide absent fields</translation>
    </message>
    <message id="tmiw_009">
        <source>Сохранить…</source>
        <translation>Save…</translation>
    </message>
    <message id="tmiw_010">
        <source>График</source>
        <translation>Chart</translation>
    </message>
    <message id="tmiw_011">
        <source>Команды</source>
        <translation>Commands</translation>
    </message>
    <message id="tmiw_012">
        <source>Журнал</source>
        <translation>Log</translation>
    </message>
    <message id="tmiw_013">
        <source>Добавить</source>
        <translation>Add</translation>
    </message>
    <message id="tmiw_014">
        <source>Очистить</source>
        <translation>Clear</translation>
    </message>
    <message id="tmiw_015">
        <source>Выход</source>
        <translation>Output</translation>
    </message>
    <message id="tmiw_016">
        <source>Включить</source>
        <translation>Switch on</translation>
    </message>
    <message id="tmiw_017">
        <source>Выключить</source>
        <translation>Switch off</translation>
    </message>
    <message id="tmiw_018">
        <source>Охрана</source>
        <translation>Guard</translation>
    </message>
    <message id="tmiw_019">
        <source>Поставить</source>
        <translation>Arm</translation>
    </message>
    <message id="tmiw_020">
        <source>Снять</source>
        <translation>Disarm</translation>
    </message>
    <message id="tmiw_021">
        <source>Очистка</source>
        <translation>Clearing</translation>
    </message>
    <message id="tmiw_022">
        <source>Очистить</source>
        <translation>Clear</translation>
    </message>
    <message id="tmiw_023">
        <source>Вывод GNSS/NMEA</source>
        <translation>GNSS/NMEA output</translation>
    </message>
    <message id="tmiw_024">
        <source>Параметр</source>
        <translation>Parameter</translation>
    </message>
    <message id="tmiw_025">
        <source>Установить</source>
        <translation>Set</translation>
    </message>
    <message id="tmiw_026">
        <source>Команда с числом</source>
        <translation>Command with a number</translation>
    </message>
    <message id="tmiw_027">
        <source>Выполнить</source>
        <translation>Run</translation>
    </message>
    <message id="tmiw_028">
        <source>Ключ / карта</source>
        <translation>Key / card</translation>
    </message>
    <message id="tmiw_029">
        <source>Прочитать ключ ТМ</source>
        <translation>Read touch-memory key</translation>
    </message>
    <message id="tmiw_030">
        <source>Прочитать RFID-карту</source>
        <translation>Read RFID card</translation>
    </message>
    <message id="tmiw_031">
        <source>Код ключа ТМ</source>
        <translation>Touch-memory key code</translation>
    </message>
    <message id="tmiw_032">
        <source>Код RFID</source>
        <translation>RFID code</translation>
    </message>
    <message id="tmiw_033">
        <source>ДУТ: команда</source>
        <translation>Fuel sensor: command</translation>
    </message>
    <message id="tmiw_034">
        <source>Отправить</source>
        <translation>Send</translation>
    </message>
    <message id="tmiw_035">
        <source>Прошивка датчика</source>
        <translation>Sensor firmware</translation>
    </message>
    <message id="tmiw_036">
        <source>Выбрать файл…</source>
        <translation>Choose file…</translation>
    </message>
    <message id="tmiw_037">
        <source>Тахограф: запрос</source>
        <translation>Tachograph: query</translation>
    </message>
    <message id="tmiw_038">
        <source>Запросить</source>
        <translation>Request</translation>
    </message>
    <message id="tmiw_039">
        <source>Тахограф: файл</source>
        <translation>Tachograph: file</translation>
    </message>
    <message id="tmiw_045">
        <source>Тахограф: чтение файла</source>
        <translation>Tachograph: read file</translation>
    </message>
    <message id="tmiw_046">
        <source>Прочитать</source>
        <translation>Read</translation>
    </message>
    <message id="tmiw_047">
        <source>ДУТ: данные</source>
        <translation>Fuel sensor: data</translation>
    </message>
    <message id="tmiw_048">
        <source>ДУТ: файл данных</source>
        <translation>Fuel sensor: data file</translation>
    </message>
    <message id="tmiw_049">
        <source>Память записей</source>
        <translation>Record memory</translation>
    </message>
    <message id="tmiw_050">
        <source>Счётчики</source>
        <translation>Counters</translation>
    </message>
    <message id="tmiw_051">
        <source>Всё</source>
        <translation>Everything</translation>
    </message>
    <message id="tmiw_052">
        <source>Бортовое устройство</source>
        <translation>Vehicle unit</translation>
    </message>
    <message id="tmiw_053">
        <source>Карта водителя</source>
        <translation>Driver card</translation>
    </message>
    <message id="tmiw_054">
        <source>Номер выхода, 1..8</source>
        <translation>Output number, 1..8</translation>
    </message>
    <message id="tmiw_055">
        <source>Смещение часов терминала от UTC, часы (-12..14). 0 — терминал живёт по UTC. Время записей показано по часам этого компьютера; «Показать» ищет запись на момент из поля минус это смещение.</source>
        <translation>Offset of the terminal clock from UTC, hours (-12..14). 0 for a terminal that keeps UTC. Record times are shown by this computer&apos;s clock; &quot;Show&quot; looks for the record at the moment in the box less this offset.</translation>
    </message>
    <message id="tmiw_056">
        <source>Минуты смещения часов терминала от UTC (0..45), со знаком часов</source>
        <translation>Minutes of the terminal clock&apos;s offset from UTC (0..45), with the sign of the hours</translation>
    </message>
    <message id="tmiw_057">
        <source>Номер показанной записи</source>
        <translation>Number of the shown record</translation>
    </message>
    <message id="tmiw_058">
        <source>Число для команды</source>
        <translation>Number for the command</translation>
    </message>
    <message id="tmiw_059">
        <source>Момент по часам этого компьютера: «Показать» находит ближайшую запись до него</source>
        <translation>Moment by this computer&apos;s clock: &quot;Show&quot; finds the nearest record before it</translation>
    </message>
    <message id="tmiw_060">
        <source>Числовое поле для графика</source>
        <translation>Numeric field to plot</translation>
    </message>
    <message id="tmiw_061">
        <source>Текст параметра, например «имя=значение»</source>
        <translation>Parameter text, e.g. &quot;name=value&quot;</translation>
    </message>
    <message id="tmiw_062">
        <source>Команда датчику уровня топлива</source>
        <translation>Command to the fuel-level sensor</translation>
    </message>
    <message id="tmiw_063">
        <source>Вид запроса тахографа, 0..255</source>
        <translation>Tachograph query kind, 0..255</translation>
    </message>
    <message id="tmiw_064">
        <source>Начало периода</source>
        <translation>Start of the period</translation>
    </message>
    <message id="tmiw_065">
        <source>Конец периода</source>
        <translation>End of the period</translation>
    </message>
    <message id="tmiw_066">
        <source>Имя файла тахографа</source>
        <translation>Tachograph file name</translation>
    </message>
    <message id="tmiw_067">
        <source>Датчик</source>
        <translation>Sensor</translation>
    </message>
    <message id="tmiw_068">
        <source>Запрос</source>
        <translation>Query</translation>
    </message>
    <message id="tmiw_069">
        <source>Имя файла данных датчика</source>
        <translation>Sensor data file name</translation>
    </message>
    <message id="tmiw_070">
        <source>Запросите текущую запись</source>
        <translation>Request the current record</translation>
    </message>
    <message id="tmiw_071">
        <source>Записи этого сеанса; щелчок показывает запись</source>
        <translation>Records of this session; click one to show it</translation>
    </message>
    <message id="tmiw_080">
        <source>Удалённый сеанс с терминалом завершён</source>
        <translation>Remote session with the terminal ended</translation>
    </message>
    <message id="tmiw_081">
        <source>Терминал подключён</source>
        <translation>Terminal connected</translation>
    </message>
    <message id="tmiw_082">
        <source>Терминал не подключён</source>
        <translation>Terminal not connected</translation>
    </message>
    <message id="tmiw_083">
        <source>Параметры конфигурации: %1</source>
        <translation>Configuration parameters: %1</translation>
    </message>
    <message id="tmiw_084">
        <source>Запрос режима проверки</source>
        <translation>Test mode query</translation>
    </message>
    <message id="tmiw_223">
        <source>Неизвестный тип записи</source>
        <translation>Unknown record type</translation>
    </message>
    <message id="tmiw_085">
        <source>Получена: %1</source>
        <translation>Received: %1</translation>
    </message>
    <message id="tmiw_086">
        <source>время записи: %1</source>
        <translation>record time: %1</translation>
    </message>
    <message id="tmiw_087">
        <source>возраст координат: %1 %2</source>
        <translation>position age: %1 %2</translation>
    </message>
    <message id="abbr_003">
        <source>с</source>
        <translation>s</translation>
    </message>
    <message id="tmiw_088">
        <source>координат нет</source>
        <translation>no position</translation>
    </message>
    <message id="tmiw_089">
        <source>ИЗ ИСТОРИИ (по номеру)</source>
        <translation>FROM HISTORY (by number)</translation>
    </message>
    <message id="tmiw_090">
        <source>ИЗ ИСТОРИИ (по времени)</source>
        <translation>FROM HISTORY (by time)</translation>
    </message>
    <message id="tmiw_091">
        <source>Команда терминалу</source>
        <translation>Command to the terminal</translation>
    </message>
    <message id="tmiw_092">
        <source>Включить выход %1?</source>
        <translation>Switch output %1 on?</translation>
    </message>
    <message id="tmiw_093">
        <source>Выключить выход %1?</source>
        <translation>Switch output %1 off?</translation>
    </message>
    <message id="tmiw_094">
        <source>Поставить терминал на охрану?</source>
        <translation>Arm the terminal&apos;s guard mode?</translation>
    </message>
    <message id="tmiw_095">
        <source>Снять терминал с охраны?</source>
        <translation>Disarm the terminal&apos;s guard mode?</translation>
    </message>
    <message id="tmiw_096">
        <source>Выполнить «%1»? Данные терминала будут удалены.</source>
        <translation>Run &quot;%1&quot;? The terminal&apos;s data will be deleted.</translation>
    </message>
    <message id="tmiw_097">
        <source>Файл прошивки датчика</source>
        <translation>Sensor firmware file</translation>
    </message>
    <message id="tmiw_098">
        <source>Записать прошивку %1 в датчик? Датчик будет недоступен до конца записи.</source>
        <translation>Write firmware %1 to the sensor? The sensor is unavailable until it is written.</translation>
    </message>
    <message id="tmiw_099">
        <source>Значение параметра</source>
        <translation>Parameter value</translation>
    </message>
    <message id="tmiw_100">
        <source>Ответ на команду</source>
        <translation>Command reply</translation>
    </message>
    <message id="tmiw_101">
        <source>Ответ датчика топлива</source>
        <translation>Fuel sensor reply</translation>
    </message>
    <message id="tmiw_102">
        <source>Параметры прошивки датчика</source>
        <translation>Sensor firmware parameters</translation>
    </message>
    <message id="tmiw_103">
        <source>Ключ ТМ: %1</source>
        <translation>Touch-memory key: %1</translation>
    </message>
    <message id="tmiw_104">
        <source>Получены значения АЦП универсальных входов</source>
        <translation>Universal input A/D values received</translation>
    </message>
    <message id="tmiw_105">
        <source>Текущее значение дисплея: %1</source>
        <translation>Current display value: %1</translation>
    </message>
    <message id="tmiw_106">
        <source>RFID-карта: %1 (%2)</source>
        <translation>RFID card: %1 (%2)</translation>
    </message>
    <message id="tmiw_107">
        <source>Ответ тахографа</source>
        <translation>Tachograph reply</translation>
    </message>
    <message id="tmiw_108">
        <source>Файл тахографа прочитан</source>
        <translation>Tachograph file read</translation>
    </message>
    <message id="tmiw_109">
        <source>Файл тахографа не прочитан</source>
        <translation>Tachograph file not read</translation>
    </message>
    <message id="tmiw_110">
        <source>Ответ на запрос файла данных датчика</source>
        <translation>Sensor data file query reply</translation>
    </message>
    <message id="tmiw_111">
        <source>Файл данных датчика прочитан</source>
        <translation>Sensor data file read</translation>
    </message>
    <message id="tmiw_112">
        <source>Файл данных датчика не прочитан</source>
        <translation>Sensor data file not read</translation>
    </message>
    <message id="tmiw_114">
        <source>Сохранить записи телеметрии</source>
        <translation>Save telemetry records</translation>
    </message>
    <message id="tmiw_115">
        <source>Телеметрия (*.tmi);;XML (*.xml);;CSV (*.csv);;KML (*.kml)</source>
        <translation>Telemetry (*.tmi);;XML (*.xml);;CSV (*.csv);;KML (*.kml)</translation>
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
    <message id="cfgo_001">
        <source>Основные</source>
        <translation>Main</translation>
    </message>
    <message id="cfgo_002">
        <source>Навигация</source>
        <translation>Navigation</translation>
    </message>
    <message id="cfgo_003">
        <source>Датчики RS</source>
        <translation>RS sensors</translation>
    </message>
    <message id="cfgo_004">
        <source>Шина CAN</source>
        <translation>CAN</translation>
    </message>
    <message id="cfgo_005">
        <source>Тахограф</source>
        <translation>Tachograph</translation>
    </message>
    <message id="cfgo_006">
        <source>Дополнительно</source>
        <translation>More</translation>
    </message>
    <message id="cfgo_007">
        <source>Акселерометр</source>
        <translation>Accelerometer</translation>
    </message>
    <message id="cfgo_008">
        <source>Расходомер</source>
        <translation>Flow meter</translation>
    </message>
    <message id="cfgo_009">
        <source>Рефрижератор</source>
        <translation>Refrigerator</translation>
    </message>
    <message id="cfgo_010">
        <source>Пользовательские</source>
        <translation>User</translation>
    </message>
    <message id="cfgo_015">
        <source>Поле %1, размер в записи: %2 байт</source>
        <translation>Field %1, %2 byte(s) in the record</translation>
    </message>
    <message id="cfgo_050">
        <source>Запись и состояние терминала</source>
        <translation>Record and terminal state</translation>
    </message>
    <message id="cfgo_051">
        <source>Питание</source>
        <translation>Power</translation>
    </message>
    <message id="cfgo_052">
        <source>Аналоговые входы</source>
        <translation>Analogue inputs</translation>
    </message>
    <message id="cfgo_053">
        <source>Дискретные входы и выходы</source>
        <translation>Discrete inputs and outputs</translation>
    </message>
    <message id="cfgo_054">
        <source>Счётчики импульсов и частота</source>
        <translation>Pulse counters and frequency</translation>
    </message>
    <message id="cfgo_055">
        <source>Моточасы</source>
        <translation>Engine hours</translation>
    </message>
    <message id="cfgo_056">
        <source>Температура</source>
        <translation>Temperature</translation>
    </message>
    <message id="cfgo_057">
        <source>Координаты и движение</source>
        <translation>Position and motion</translation>
    </message>
    <message id="cfgo_058">
        <source>Навигационный приёмник</source>
        <translation>Navigation receiver</translation>
    </message>
    <message id="cfgo_059">
        <source>Базовые станции</source>
        <translation>Mobile cells</translation>
    </message>
    <message id="cfgo_060">
        <source>ДУТ RS-485 1–6 и RS-232</source>
        <translation>RS-485 fuel sensors 1–6 and RS-232</translation>
    </message>
    <message id="cfgo_061">
        <source>Температура ДУТ RS-485</source>
        <translation>RS-485 fuel sensor temperature</translation>
    </message>
    <message id="cfgo_062">
        <source>ДУТ RS-485 7–16</source>
        <translation>RS-485 fuel sensors 7–16</translation>
    </message>
    <message id="cfgo_063">
        <source>Частота ДУТ RS-485</source>
        <translation>RS-485 fuel sensor frequency</translation>
    </message>
    <message id="cfgo_064">
        <source>Данные шины CAN</source>
        <translation>CAN bus data</translation>
    </message>
    <message id="cfgo_065">
        <source>Состояние систем ТС по CAN</source>
        <translation>Vehicle systems over CAN</translation>
    </message>
    <message id="cfgo_066">
        <source>Данные тахографа</source>
        <translation>Tachograph data</translation>
    </message>
    <message id="cfgo_021">
        <source>Датчики давления в шинах</source>
        <translation>Tyre pressure sensors</translation>
    </message>
    <message id="cfgo_067">
        <source>Диспетчерские сообщения</source>
        <translation>Dispatcher messages</translation>
    </message>
    <message id="cfgo_068">
        <source>Пассажиропоток</source>
        <translation>Passenger counters</translation>
    </message>
    <message id="cfgo_069">
        <source>Автоинформатор</source>
        <translation>Route announcer</translation>
    </message>
    <message id="cfgo_070">
        <source>Камера и акселерометр ТС</source>
        <translation>Camera and vehicle accelerometer</translation>
    </message>
    <message id="cfgo_071">
        <source>Точная температура</source>
        <translation>High-precision temperature</translation>
    </message>
    <message id="cfgo_072">
        <source>Влажность</source>
        <translation>Humidity</translation>
    </message>
    <message id="cfgo_022">
        <source>Нет</source>
        <translation>None</translation>
    </message>
    <message id="cfgo_028">
        <source>Поля 94–97: шины 1–2, 3–6, 7–14 и 15–30</source>
        <translation>Fields 94–97: tyres 1–2, 3–6, 7–14 and 15–30</translation>
    </message>
    <message id="cfgo_073">
        <source>Акселерометр терминала</source>
        <translation>Terminal accelerometer</translation>
    </message>
    <message id="cfgo_074">
        <source>Акселерометр ТС и эко-вождение</source>
        <translation>Vehicle accelerometer and eco-driving</translation>
    </message>
    <message id="cfgo_075">
        <source>Расходомер топлива</source>
        <translation>Fuel flow meter</translation>
    </message>
    <message id="cfgo_076">
        <source>Рефрижераторная установка</source>
        <translation>Refrigerator unit</translation>
    </message>
    <message id="cfgo_077">
        <source>Параметры 1 байт</source>
        <translation>1-byte parameters</translation>
    </message>
    <message id="cfgo_078">
        <source>Параметры 2 байта</source>
        <translation>2-byte parameters</translation>
    </message>
    <message id="cfgo_079">
        <source>Параметры 4 байта</source>
        <translation>4-byte parameters</translation>
    </message>
    <message id="cfgo_080">
        <source>Параметры 8 байт</source>
        <translation>8-byte parameters</translation>
    </message>
    <message id="cfgo_023">
        <source>Целое без знака</source>
        <translation>Unsigned integer</translation>
    </message>
    <message id="cfgo_024">
        <source>Целое со знаком</source>
        <translation>Signed integer</translation>
    </message>
    <message id="cfgo_025">
        <source>Шестнадцатеричное</source>
        <translation>Hexadecimal</translation>
    </message>
    <message id="cfgo_026">
        <source>С плавающей точкой</source>
        <translation>Floating point</translation>
    </message>
    <message id="cfgo_027">
        <source>Название параметра</source>
        <translation>Parameter name</translation>
    </message>
    <message id="cfgo_014">
        <source>Запись</source>
        <translation>Record</translation>
    </message>
    <message id="cfgo_011">
        <source>ORBA 1 (поля 1–69)</source>
        <translation>ORBA 1 (fields 1–69)</translation>
    </message>
    <message id="cfgo_012">
        <source>ORBA 2 (поля 1–122)</source>
        <translation>ORBA 2 (fields 1–122)</translation>
    </message>
    <message id="cfgo_013">
        <source>ORBA 3 (поля 1–255)</source>
        <translation>ORBA 3 (fields 1–255)</translation>
    </message>
    <message id="cfgo_017">
        <source>По вкладкам, байт: %1</source>
        <translation>By tab, bytes: %1</translation>
    </message>
    <message id="cfgo_016">
        <source>Запись: %1 байт, больше допустимых %2, терминал не сохранит такие записи. Снимите часть полей.</source>
        <translation>The record takes %1 bytes, more than the %2 allowed: the terminal would not keep such records. Untick some fields.</translation>
    </message>
    <message id="cfgo_019">
        <source>Файл %1 не является конфигурацией с набором полей записи.</source>
        <translation>The file %1 is not a configuration with a record field set.</translation>
    </message>
    <message id="cfgo_018">
        <source>Набор полей из файла конфигурации</source>
        <translation>Record field set from a configuration file</translation>
    </message>
    <message id="cfgo_020">
        <source>Файлы конфигурации (*.xml);;Все файлы (*)</source>
        <translation>Configuration files (*.xml);;All files (*)</translation>
    </message>
    <message id="cfgo_029">
        <source>Ошибка</source>
        <translation>Error</translation>
    </message>
    <message id="cfgo_030">
        <source></source>
        <translation>Protocol generation:</translation>
    </message>
    <message id="cfgo_031">
        <source></source>
        <translation>Which fields the terminal can record: ORBA 1 fields 1–69, ORBA 2 1–122, ORBA 3 1–255</translation>
    </message>
    <message id="cfgo_032">
        <source></source>
        <translation>Record size, bytes:</translation>
    </message>
    <message id="cfgo_033">
        <source></source>
        <translation>Sum of the ticked fields&apos; sizes; at most 512 bytes</translation>
    </message>
    <message id="cfgo_034">
        <source></source>
        <translation>Find a field by name on all tabs</translation>
    </message>
    <message id="cfgo_035">
        <source></source>
        <translation>Find a field…</translation>
    </message>
    <message id="cfgo_036">
        <source></source>
        <translation>Ticked only</translation>
    </message>
    <message id="cfgo_037">
        <source></source>
        <translation>Field sets:</translation>
    </message>
    <message id="cfgo_038">
        <source></source>
        <translation>Default</translation>
    </message>
    <message id="cfgo_039">
        <source></source>
        <translation>The fields the terminal records by default</translation>
    </message>
    <message id="cfgo_040">
        <source></source>
        <translation>Navigation only</translation>
    </message>
    <message id="cfgo_041">
        <source></source>
        <translation>Number, event, time, position, altitude, speed, course and mileage</translation>
    </message>
    <message id="cfgo_042">
        <source></source>
        <translation>From a file…</translation>
    </message>
    <message id="cfgo_043">
        <source></source>
        <translation>Take the field set from another configuration file</translation>
    </message>
    <message id="cfgo_081">
        <source>Поколение протокола ORBA</source>
        <translation>ORBA protocol generation</translation>
    </message>
    <message id="cfgo_082">
        <source>Поля записи (маска)</source>
        <translation>Record fields (mask)</translation>
    </message>
    <message id="tmif_017">
        <source>№ в файле</source>
        <translation>No. in file</translation>
    </message>
    <message id="tmif_020">
        <source>Первая</source>
        <translation>First</translation>
    </message>
    <message id="tmif_021">
        <source>Предыдущая</source>
        <translation>Previous</translation>
    </message>
    <message id="tmif_022">
        <source>Следующая</source>
        <translation>Next</translation>
    </message>
    <message id="tmif_023">
        <source>Последняя</source>
        <translation>Last</translation>
    </message>
    <message id="tmif_024">
        <source>Номер:</source>
        <translation>Number:</translation>
    </message>
    <message id="tmif_025">
        <source>Перейти</source>
        <translation>Go</translation>
    </message>
    <message id="tmif_026">
        <source>Найти по времени</source>
        <translation>Find by time</translation>
    </message>
    <message id="tmif_030">
        <source>Номер записи в файле, от 1 до числа записей</source>
        <translation>Record number in the file, 1 to the number of records</translation>
    </message>
    <message id="tmif_031">
        <source>Первая запись, время которой не раньше заданного</source>
        <translation>The first record whose time is not earlier than this</translation>
    </message>
    <message id="tmif_040">
        <source>Коды событий:</source>
        <translation>Event codes:</translation>
    </message>
    <message id="tmif_041">
        <source>Коды событий через запятую или пробел, от 0 до 65535; пусто — любые</source>
        <translation>Event codes separated by commas or spaces, 0 to 65535; empty: any</translation>
    </message>
    <message id="tmif_042">
        <source>Время с</source>
        <translation>Time from</translation>
    </message>
    <message id="tmif_043">
        <source>по</source>
        <translation>to</translation>
    </message>
    <message id="tmif_044">
        <source>Применить</source>
        <translation>Apply</translation>
    </message>
    <message id="tmif_045">
        <source>Сбросить</source>
        <translation>Reset</translation>
    </message>
    <message id="tmif_046">
        <source>Столбцы…</source>
        <translation>Columns…</translation>
    </message>
    <message id="tmif_047">
        <source>Экспорт CSV…</source>
        <translation>Export CSV…</translation>
    </message>
    <message id="tmif_048">
        <source>Экспорт KML…</source>
        <translation>Export KML…</translation>
    </message>
    <message id="tmif_053">
        <source>Время записи (местное), границы включены</source>
        <translation>Record time (local), bounds included</translation>
    </message>
    <message id="tmif_054">
        <source>Какие поля показывать столбцами</source>
        <translation>Which fields to show as columns</translation>
    </message>
    <message id="tmif_055">
        <source>Сохранить показанные записи в CSV</source>
        <translation>Save the shown records as CSV</translation>
    </message>
    <message id="tmif_056">
        <source>Сохранить трек показанных записей в KML</source>
        <translation>Save the track of the shown records as KML</translation>
    </message>
    <message id="tmif_060">
        <source>Файл телеметрии</source>
        <translation>Telemetry file</translation>
    </message>
    <message id="tmif_061">
        <source>%1

До ошибки прочитано записей: %2. Показать их?</source>
        <translation>%1

Records read before the fault: %2. Show them?</translation>
    </message>
    <message id="tmif_028">
        <source>Поле</source>
        <translation>Field</translation>
    </message>
    <message id="tmif_029">
        <source>Значение</source>
        <translation>Value</translation>
    </message>
    <message id="tmif_032">
        <source>Неизвестная запись</source>
        <translation>Unknown record</translation>
    </message>
    <message id="tmif_027">
        <source>Запись %1 из %2</source>
        <translation>Record %1 of %2</translation>
    </message>
    <message id="tmif_033">
        <source>Нет записей с временем не раньше %1.</source>
        <translation>No records at or after %1.</translation>
    </message>
    <message id="tmif_034">
        <source>«%1» — не код события (от 0 до 65535)</source>
        <translation>“%1” is not an event code (0 to 65535)</translation>
    </message>
    <message id="tmif_035">
        <source>Начало интервала позже его конца</source>
        <translation>The start of the interval is after its end</translation>
    </message>
    <message id="tmif_036">
        <source>Не удаётся записать файл «%1»: %2</source>
        <translation>Cannot write file “%1”: %2</translation>
    </message>
    <message id="tmif_037">
        <source>Сохранить записи</source>
        <translation>Save records</translation>
    </message>
    <message id="tmif_049">
        <source>Показано записей: %1 из %2</source>
        <translation>Records shown: %1 of %2</translation>
    </message>
    <message id="cmpc_001">
        <source>Сравнение конфигураций</source>
        <translation>Compare configurations</translation>
    </message>
    <message id="cmpc_002">
        <source>Раздел / узел</source>
        <translation>Section / node</translation>
    </message>
    <message id="cmpc_003">
        <source>Ключ</source>
        <translation>Key</translation>
    </message>
    <message id="cmpc_004">
        <source>Название</source>
        <translation>Name</translation>
    </message>
    <message id="cmpc_005">
        <source>В редакторе</source>
        <translation>In the editor</translation>
    </message>
    <message id="cmpc_006">
        <source>В другой</source>
        <translation>In the other</translation>
    </message>
    <message id="cmpc_007">
        <source>Сравнение с: %1</source>
        <translation>Compared with: %1</translation>
    </message>
    <message id="cmpc_008">
        <source>Различий нет.</source>
        <translation>No differences.</translation>
    </message>
    <message id="cmpc_009">
        <source>Различий: %1</source>
        <translation>Differences: %1</translation>
    </message>
    <message id="cmpc_010">
        <source>(нет)</source>
        <translation>(none)</translation>
    </message>
    <message id="cmpc_011">
        <source>(корень)</source>
        <translation>(root)</translation>
    </message>
    <message id="cfgx_002">
        <source>Настройки терминала, для которых в этом редакторе нет страницы. Они сохраняются и записываются в терминал без изменений; значения можно править (двойной щелчок по строке).</source>
        <translation>Terminal settings this editor has no page for. They are kept and written to the terminal unchanged; values can be edited (double-click a row).</translation>
    </message>
    <message id="cfgx_003">
        <source>Фильтр:</source>
        <translation>Filter:</translation>
    </message>
    <message id="cfgx_004">
        <source>Показать только узлы, ключи и значения, содержащие этот текст</source>
        <translation>Show only the nodes, keys and values containing this text</translation>
    </message>
    <message id="cfgx_005">
        <source>Разделы конфигурации, которые терминал прислал сверх страниц редактора</source>
        <translation>Configuration sections the terminal sent beyond the editor&apos;s pages</translation>
    </message>
    <message id="cfgx_006">
        <source>Узел</source>
        <translation>Node</translation>
    </message>
    <message id="cfgx_007">
        <source>Ключ</source>
        <translation>Key</translation>
    </message>
    <message id="cfgx_008">
        <source>Значение</source>
        <translation>Value</translation>
    </message>
    <message id="cfgx_001">
        <source>Прочие настройки</source>
        <translation>Other settings</translation>
    </message>
    <message id="wcfg_002">
        <source>Новая</source>
        <translation>New</translation>
    </message>
    <message id="wcfg_003">
        <source>Новая конфигурация со значениями по умолчанию</source>
        <translation>A new configuration with default values</translation>
    </message>
    <message id="wcfg_004">
        <source>Открыть...</source>
        <translation>Open...</translation>
    </message>
    <message id="wcfg_005">
        <source>Открыть файл конфигурации</source>
        <translation>Open a configuration file</translation>
    </message>
    <message id="wcfg_006">
        <source>Сохранить</source>
        <translation>Save</translation>
    </message>
    <message id="wcfg_007">
        <source>Сохранить конфигурацию в её файл</source>
        <translation>Save the configuration to its file</translation>
    </message>
    <message id="wcfg_008">
        <source>Сохранить как...</source>
        <translation>Save as...</translation>
    </message>
    <message id="wcfg_009">
        <source>Сохранить конфигурацию в другой файл</source>
        <translation>Save the configuration to another file</translation>
    </message>
    <message id="wcfg_010">
        <source>Прочитать из терминала</source>
        <translation>Read from terminal</translation>
    </message>
    <message id="wcfg_011">
        <source>Прочитать конфигурацию из подключённого терминала</source>
        <translation>Read the configuration from the connected terminal</translation>
    </message>
    <message id="wcfg_012">
        <source>Записать в терминал</source>
        <translation>Write to terminal</translation>
    </message>
    <message id="wcfg_013">
        <source>Записать конфигурацию в подключённый терминал</source>
        <translation>Write the configuration to the connected terminal</translation>
    </message>
    <message id="wcfg_014">
        <source>По умолчанию</source>
        <translation>Defaults</translation>
    </message>
    <message id="wcfg_015">
        <source>Вернуть настройкам страниц значения по умолчанию; прочие настройки терминала остаются</source>
        <translation>Reset the pages&apos; settings to their defaults; the terminal&apos;s other settings stay</translation>
    </message>
    <message id="wcfg_016">
        <source>Сравнить</source>
        <translation>Compare</translation>
    </message>
    <message id="wcfg_017">
        <source>Сравнить конфигурацию с файлом или с последней прочитанной из терминала</source>
        <translation>Compare the configuration with a file or with the one last read from the terminal</translation>
    </message>
    <message id="wcfg_019">
        <source>Переключить полный и простой редактор</source>
        <translation>Switch between the full and the simple editor</translation>
    </message>
    <message id="wcfg_030">
        <source>последняя прочитанная из терминала</source>
        <translation>the one last read from the terminal</translation>
    </message>
    <message id="wcfg_020">
        <source>С файлом...</source>
        <translation>With a file...</translation>
    </message>
    <message id="wcfg_021">
        <source>С последней прочитанной из терминала</source>
        <translation>With the one last read from the terminal</translation>
    </message>
    <message id="wcfg_022">
        <source>строка %1, столбец %2: %3</source>
        <translation>line %1, column %2: %3</translation>
    </message>
    <message id="wcfg_023">
        <source>файл не найден</source>
        <translation>file not found</translation>
    </message>
    <message id="wcfg_024">
        <source>файл пуст</source>
        <translation>the file is empty</translation>
    </message>
    <message id="wcfg_025">
        <source>это не файл конфигурации терминала (нет корневого элемента «DEVICE»)</source>
        <translation>not a terminal configuration (no «DEVICE» root element)</translation>
    </message>
    <message id="wcfg_026">
        <source>Не удалось открыть файл конфигурации «%1»:
%2.

В редакторе остаётся прежняя конфигурация.</source>
        <translation>Cannot open the configuration file «%1»:
%2.

The editor keeps the configuration it had.</translation>
    </message>
    <message id="wcfg_027">
        <source>Не удалось записать файл «%1»:
%2.

Прежний файл не изменён.</source>
        <translation>Cannot write the file «%1»:
%2.

The old file is unchanged.</translation>
    </message>
    <message id="wcfg_028">
        <source>Конфигурация ещё не читалась из терминала: сравнивать не с чем.</source>
        <translation>No configuration has been read from the terminal yet: nothing to compare with.</translation>
    </message>
    <message id="wcfg_018">
        <source>Простой редактор</source>
        <translation>Simple editor</translation>
    </message>
    <message id="wcfg_029">
        <source>Полный редактор</source>
        <translation>Full editor</translation>
    </message>
    <message id="wcfg_031">
        <source>Конфигурация изменена. Сохранить изменения?</source>
        <translation>The configuration has changed. Save the changes?</translation>
    </message>
    <message id="wcfg_032">
        <source>Сохранить</source>
        <translation>Save</translation>
    </message>
    <message id="wcfg_033">
        <source>Не сохранять</source>
        <translation>Don&apos;t save</translation>
    </message>
    <message id="wcfg_034">
        <source>Отмена</source>
        <translation>Cancel</translation>
    </message>
    <message id="wcfg_035">
        <source>Файлы конфигурации (*.xml)</source>
        <translation>Configuration files (*.xml)</translation>
    </message>
    <message id="cfgl_001">
        <source>Основные настройки записи трека. Остальные настройки конфигурации сохраняются без изменений.</source>
        <translation>The main track settings. The rest of the configuration is kept unchanged.</translation>
    </message>
    <message id="cfgl_002">
        <source>Период записи в движении, с:</source>
        <translation>Period while moving, s:</translation>
    </message>
    <message id="cfgl_003">
        <source>Интервал между точками трека в движении, от 0 до 99999 с</source>
        <translation>Interval between track points while moving, 0 to 99999 s</translation>
    </message>
    <message id="cfgl_004">
        <source>Дистанция, м:</source>
        <translation>Distance, m:</translation>
    </message>
    <message id="cfgl_005">
        <source>Точка трека через каждые N метров, от 1 до 10000 м</source>
        <translation>A track point every N metres, 1 to 10000 m</translation>
    </message>
    <message id="cfgl_006">
        <source>Угол поворота, °:</source>
        <translation>Turn angle, °:</translation>
    </message>
    <message id="cfgl_007">
        <source>Точка трека при повороте на этот угол, от 1 до 90°</source>
        <translation>A track point on a turn by this angle, 1 to 90°</translation>
    </message>
    <message id="cfgl_008">
        <source>Период записи на стоянке, с:</source>
        <translation>Period while stopped, s:</translation>
    </message>
    <message id="cfgl_009">
        <source>Интервал между точками трека на стоянке, от 0 до 99999 с</source>
        <translation>Interval between track points while stopped, 0 to 99999 s</translation>
    </message>
    <message id="cfgl_010">
        <source>Поколение протокола:</source>
        <translation>Protocol generation:</translation>
    </message>
    <message id="cfgl_011">
        <source>Формат записей телеметрии ORBA: 1, 2 или 3</source>
        <translation>ORBA telemetry record format: 1, 2 or 3</translation>
    </message>
    <message id="cfgl_012">
        <source>Поколение 1 (ORBA 1)</source>
        <translation>Generation 1 (ORBA 1)</translation>
    </message>
    <message id="cfgl_013">
        <source>Поколение 2 (ORBA 2)</source>
        <translation>Generation 2 (ORBA 2)</translation>
    </message>
    <message id="cfgl_014">
        <source>Поколение 3 (ORBA 3)</source>
        <translation>Generation 3 (ORBA 3)</translation>
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
    <message id="gain_244">
        <source>Тип остановки: 0 — остановка, 1 — путевая точка, 2 — конечная</source>
        <translation>Stop type: 0 stop, 1 waypoint, 2 terminal</translation>
    </message>
    <message id="wcfg_036">
        <source>Геозоны</source>
        <translation>Geo-zones</translation>
    </message>
    <message id="tmif_062">
        <source>На карте…</source>
        <translation>On the map…</translation>
    </message>
    <message id="tmif_063">
        <source>Показать трек показанных записей на карте</source>
        <translation>Show the track of the shown records on the map</translation>
    </message>
    <message id="tmif_064">
        <source>Среди показанных записей нет ни одной с координатами.</source>
        <translation>None of the shown records has coordinates.</translation>
    </message>
    <message id="tmiw_116">
        <source>На карте…</source>
        <translation>On the map…</translation>
    </message>
    <message id="tmiw_117">
        <source>Показать на карте трек записей этого сеанса</source>
        <translation>Show the track of this session&apos;s records on the map</translation>
    </message>
    <message id="tmiw_118">
        <source>Ни в одной записи сеанса нет координат.</source>
        <translation>None of the session&apos;s records has coordinates.</translation>
    </message>
    <message id="tmio_055">
        <source>Копировать</source>
        <translation>Copy</translation>
    </message>
    <message id="orbs_001">
        <source>Тревожное сообщение</source>
        <translation>Alarm message</translation>
    </message>
    <message id="orbs_002">
        <source>Тревога</source>
        <translation>Alarm</translation>
    </message>
    <message id="orbs_003">
        <source>Режим охраны</source>
        <translation>Guard mode</translation>
    </message>
    <message id="orbs_004">
        <source>Эвакуация</source>
        <translation>Evacuation</translation>
    </message>
    <message id="orbs_005">
        <source>Энергосбережение</source>
        <translation>Energy saving</translation>
    </message>
    <message id="orbs_006">
        <source>Калибровка акселерометра</source>
        <translation>Accelerometer calibration</translation>
    </message>
    <message id="orbs_007">
        <source>Выход %1</source>
        <translation>Output %1</translation>
    </message>
    <message id="orbs_008">
        <source>Расширенная навигация</source>
        <translation>Extended navigation</translation>
    </message>
    <message id="orbs_009">
        <source>Номер SIM-карты</source>
        <translation>SIM card number</translation>
    </message>
    <message id="orbs_010">
        <source>Координаты зафиксированы</source>
        <translation>Coordinates fixed</translation>
    </message>
    <message id="orbs_011">
        <source>Акселерометр</source>
        <translation>Accelerometer</translation>
    </message>
    <message id="orbs_012">
        <source>Модуль %1</source>
        <translation>%1 module</translation>
    </message>
    <message id="orbs_013">
        <source>Спутники %1</source>
        <translation>%1 satellites</translation>
    </message>
    <message id="orbs_014">
        <source>Снижение точности в плане (HDOP)</source>
        <translation>Horizontal dilution of precision (HDOP)</translation>
    </message>
    <message id="orbs_015">
        <source>Снижение точности по положению (PDOP)</source>
        <translation>Position dilution of precision (PDOP)</translation>
    </message>
    <message id="orbs_016">
        <source>Режим навигации</source>
        <translation>Navigation mode</translation>
    </message>
    <message id="orbs_017">
        <source>Число спутников</source>
        <translation>Satellite count</translation>
    </message>
    <message id="orbs_018">
        <source>Широта приёмника</source>
        <translation>Receiver latitude</translation>
    </message>
    <message id="orbs_019">
        <source>Долгота приёмника</source>
        <translation>Receiver longitude</translation>
    </message>
    <message id="orbs_020">
        <source>Сота %1: идентификатор (CID)</source>
        <translation>Cell %1: identifier (CID)</translation>
    </message>
    <message id="orbs_021">
        <source>Сота %1: код зоны (LAC)</source>
        <translation>Cell %1: area code (LAC)</translation>
    </message>
    <message id="orbs_022">
        <source>Сота %1: код страны (MCC)</source>
        <translation>Cell %1: country code (MCC)</translation>
    </message>
    <message id="orbs_023">
        <source>Сота %1: код сети (MNC)</source>
        <translation>Cell %1: network code (MNC)</translation>
    </message>
    <message id="orbs_024">
        <source>Сота %1: уровень сигнала</source>
        <translation>Cell %1: signal level</translation>
    </message>
    <message id="orbs_025">
        <source>Время измерения</source>
        <translation>Measurement time</translation>
    </message>
    <message id="orbs_026">
        <source>Уровень топлива</source>
        <translation>Fuel level</translation>
    </message>
    <message id="orbs_027">
        <source>Температура</source>
        <translation>Temperature</translation>
    </message>
    <message id="orbs_028">
        <source>Шина %1: номер датчика</source>
        <translation>Tyre %1: sensor number</translation>
    </message>
    <message id="orbs_029">
        <source>Шина %1: давление</source>
        <translation>Tyre %1: pressure</translation>
    </message>
    <message id="orbs_030">
        <source>Шина %1: температура</source>
        <translation>Tyre %1: temperature</translation>
    </message>
    <message id="orbs_031">
        <source>Ускорение по оси %1</source>
        <translation>Acceleration along %1</translation>
    </message>
    <message id="orbs_032">
        <source>Угловое ускорение, плюс</source>
        <translation>Angular acceleration, plus</translation>
    </message>
    <message id="orbs_033">
        <source>Угловое ускорение, минус</source>
        <translation>Angular acceleration, minus</translation>
    </message>
    <message id="orbs_034">
        <source>Угол</source>
        <translation>Angle</translation>
    </message>
    <message id="orbs_035">
        <source>Канал %1</source>
        <translation>Channel %1</translation>
    </message>
    <message id="orbs_036">
        <source>Тангенциальное ускорение</source>
        <translation>Tangential acceleration</translation>
    </message>
    <message id="orbs_037">
        <source>Крен</source>
        <translation>Roll</translation>
    </message>
    <message id="orbs_038">
        <source>Байт %1</source>
        <translation>Byte %1</translation>
    </message>
    <message id="orbs_039">
        <source>Разгон, степень %1</source>
        <translation>Acceleration, grade %1</translation>
    </message>
    <message id="orbs_040">
        <source>Торможение, степень %1</source>
        <translation>Braking, grade %1</translation>
    </message>
    <message id="orbs_041">
        <source>Поворот влево, степень %1</source>
        <translation>Left turn, grade %1</translation>
    </message>
    <message id="orbs_042">
        <source>Поворот вправо, степень %1</source>
        <translation>Right turn, grade %1</translation>
    </message>
    <message id="orbs_043">
        <source>Вертикальное ускорение, степень %1</source>
        <translation>Vertical acceleration, grade %1</translation>
    </message>
    <message id="orbs_044">
        <source>Число ошибок</source>
        <translation>Error count</translation>
    </message>
    <message id="orbs_045">
        <source>Код ошибки %1</source>
        <translation>Error code %1</translation>
    </message>
    <message id="orbs_046">
        <source>Режим двигателя</source>
        <translation>Engine mode</translation>
    </message>
    <message id="orbs_047">
        <source>Обороты двигателя</source>
        <translation>Engine speed</translation>
    </message>
    <message id="orbs_048">
        <source>Лампа неисправности</source>
        <translation>Malfunction lamp</translation>
    </message>
    <message id="orbs_049">
        <source>Код неисправности</source>
        <translation>Malfunction code</translation>
    </message>
    <message id="orbs_050">
        <source>Тип записи</source>
        <translation>Record kind</translation>
    </message>
    <message id="orbs_051">
        <source>Размер данных</source>
        <translation>Data size</translation>
    </message>
    <message id="orbs_052">
        <source>Версия открытой части</source>
        <translation>Visible part version</translation>
    </message>
    <message id="orbs_053">
        <source>Размер открытой части</source>
        <translation>Visible part size</translation>
    </message>
    <message id="orbs_054">
        <source>Версия скрытой части</source>
        <translation>Hidden part version</translation>
    </message>
    <message id="orbs_055">
        <source>Размер скрытой части</source>
        <translation>Hidden part size</translation>
    </message>
    <message id="cfgo_083">
        <source>Типы пользовательских параметров (0 — без знака, 1 — со знаком, 2 — hex, 3 — float)</source>
        <translation>User parameter types (0 unsigned, 1 signed, 2 hex, 3 float)</translation>
    </message>
    <message id="cfgo_084">
        <source>Название пользовательского параметра %1</source>
        <translation>User parameter name %1</translation>
    </message>
    <message id="cmpc_012">
        <source>Запись в терминал: что изменится</source>
        <translation>Write to the terminal: what will change</translation>
    </message>
    <message id="cmpc_013">
        <source>Сравнение с: %1.
В терминале ничего не изменится: записываемая конфигурация совпадает.</source>
        <translation>Compared with: %1.
Nothing changes on the terminal: the configuration to write is the same.</translation>
    </message>
    <message id="cmpc_014">
        <source>Сравнение с: %1.
В терминале изменится настроек: %2. Записать?</source>
        <translation>Compared with: %1.
Settings that change on the terminal: %2. Write?</translation>
    </message>
    <message id="cmpc_015">
        <source>Сейчас в терминале</source>
        <translation>Now on the terminal</translation>
    </message>
    <message id="cmpc_016">
        <source>Будет записано</source>
        <translation>To be written</translation>
    </message>
    <message id="cmpc_017">
        <source>Записать в терминал</source>
        <translation>Write to terminal</translation>
    </message>
    <message id="cmpc_018">
        <source>Отмена</source>
        <translation>Cancel</translation>
    </message>
    <message id="cmpc_019">
        <source>Показывать этот обзор перед каждой записью</source>
        <translation>Show this review before every write</translation>
    </message>
    <message id="wcfg_040">
        <source>Отменить</source>
        <translation>Undo</translation>
    </message>
    <message id="wcfg_041">
        <source>Отменить последнее изменение (Ctrl+Z)</source>
        <translation>Undo the last change (Ctrl+Z)</translation>
    </message>
    <message id="wcfg_042">
        <source>Повторить</source>
        <translation>Redo</translation>
    </message>
    <message id="wcfg_043">
        <source>Повторить отменённое изменение (Ctrl+Shift+Z)</source>
        <translation>Redo the undone change (Ctrl+Shift+Z)</translation>
    </message>
    <message id="wcfg_044">
        <source>Обзор перед записью</source>
        <translation>Review before writing</translation>
    </message>
    <message id="wcfg_045">
        <source>Перед записью в терминал показывать, какие настройки в нём изменятся</source>
        <translation>Before writing to the terminal, show which settings change on it</translation>
    </message>
    <message id="wcfg_046">
        <source>В папке данных XML нет сохранённых копий конфигураций, прочитанных из терминала.</source>
        <translation>The XML data folder holds no saved copies of configurations read from a terminal.</translation>
    </message>
    <message id="wcfg_047">
        <source>С копией из истории чтений...</source>
        <translation>With a copy from the read history...</translation>
    </message>
    <message id="wcfg_048">
        <source>Открытие конфигурации</source>
        <translation>Open configuration</translation>
    </message>
    <message id="wcfg_049">
        <source>Новая конфигурация</source>
        <translation>New configuration</translation>
    </message>
    <message id="wcfg_050">
        <source>Значения по умолчанию</source>
        <translation>Defaults</translation>
    </message>
    <message id="wcfg_051">
        <source>конфигурация, прочитанная из этого терминала</source>
        <translation>the configuration read from this terminal</translation>
    </message>
    <message id="wcfg_052">
        <source>значения по умолчанию (из этого терминала конфигурация ещё не читалась)</source>
        <translation>the defaults (no configuration was read from this terminal yet)</translation>
    </message>
    <message id="wcfg_053">
        <source>История чтений</source>
        <translation>Read history</translation>
    </message>
    <message id="wcfg_054">
        <source>Конфигурация, прочитанная из терминала:</source>
        <translation>Configuration read from the terminal:</translation>
    </message>
    <message id="tmiw_119">
        <source>Данные NMEA</source>
        <translation>NMEA data</translation>
    </message>
    <message id="tmiw_120">
        <source>Текущая запись из %1 байт пропущена: она короче 101 байта</source>
        <translation>Current record of %1 bytes ignored: shorter than 101 bytes</translation>
    </message>
    <message id="gmap_003">
        <source>не удалось создать контекст OpenGL (платформа «%1»)</source>
        <translation>an OpenGL context cannot be created (platform &quot;%1&quot;)</translation>
    </message>
    <message id="gmap_004">
        <source>контекст OpenGL создан, но не становится текущим (платформа «%1»)</source>
        <translation>an OpenGL context was created but cannot be made current (platform &quot;%1&quot;)</translation>
    </message>
    <message id="gmap_002">
        <source>Карта недоступна: %1.
Всё остальное работает как обычно; на рабочем месте с OpenGL здесь будет карта.</source>
        <translation>Map unavailable: %1.
Everything else works as usual; on a workstation with OpenGL the map appears here.</translation>
    </message>
    <message id="geod_065">
        <source>%1 ссылается на несуществующую геозону %2.</source>
        <translation>%1 refers to geo-zone %2, which does not exist.</translation>
    </message>
    <message id="geod_067">
        <source>%1: &quot;%2&quot; = %3 вне диапазона %4..%5.</source>
        <translation>%1: &quot;%2&quot; = %3 is outside %4..%5.</translation>
    </message>
    <message id="geod_060">
        <source>Геозона %1</source>
        <translation>Geo-zone %1</translation>
    </message>
    <message id="geod_061">
        <source>Маршрут %1</source>
        <translation>Route %1</translation>
    </message>
    <message id="geod_062">
        <source>Маршрут %1, остановка %2</source>
        <translation>Route %1, stop %2</translation>
    </message>
    <message id="geod_066">
        <source>В маршруте %3 остановок: %1 (не более %2 на маршрут).</source>
        <translation>Route %3 has %1 stops (at most %2 a route).</translation>
    </message>
    <message id="geod_063">
        <source>Скоростная зона %1</source>
        <translation>Speed zone %1</translation>
    </message>
    <message id="geod_064">
        <source>Звуковой файл %1</source>
        <translation>Sound file %1</translation>
    </message>
    <message id="geod_068">
        <source>%1: &quot;%2&quot; = &quot;%3&quot; не является координатой</source>
        <translation>%1: &quot;%2&quot; = &quot;%3&quot; is not a coordinate</translation>
    </message>
    <message id="geod_069">
        <source>нужны долгота и широта через запятую</source>
        <translation>longitude and latitude separated by a comma are needed</translation>
    </message>
    <message id="geod_070">
        <source>долгота или широта не число</source>
        <translation>the longitude or the latitude is not a number</translation>
    </message>
    <message id="geod_071">
        <source>широта вне -90..90 или долгота вне -180..180</source>
        <translation>latitude outside -90..90 or longitude outside -180..180</translation>
    </message>
    <message id="geod_072">
        <source>файл повреждён (%1); метки после этого места не прочитаны</source>
        <translation>the file is damaged (%1); placemarks after that point were not read</translation>
    </message>
    <message id="gain_298">
        <source>Меток без точки (линии, полигоны): %1, они пропущены: %2</source>
        <translation>Placemarks without a point (lines, polygons): %1, skipped: %2</translation>
    </message>
    <message id="gain_299">
        <source>Меток с неверными координатами: %1, зоны для них не добавлены:</source>
        <translation>Placemarks with bad coordinates: %1, no zones were added for them:</translation>
    </message>
    <message id="gain_297">
        <source>Добавлено зон: %1.</source>
        <translation>Zones added: %1.</translation>
    </message>
    <message id="gain_247">
        <source>Зона остановки: одна из зон списка</source>
        <translation>The stop&apos;s zone: one of the zones in the list</translation>
    </message>
    <message id="gain_246">
        <source>Зоны &quot;%1&quot; нет в списке зон; остановка осталась у зоны %2.</source>
        <translation>There is no zone &quot;%1&quot; in the zone list; the stop stays at zone %2.</translation>
    </message>
    <message id="gain_248">
        <source>Зоны %1 нет в списке зон.</source>
        <translation>There is no zone %1 in the zone list.</translation>
    </message>
</context>
</TS>
