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
</context>
</TS>
