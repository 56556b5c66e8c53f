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
</context>
</TS>
