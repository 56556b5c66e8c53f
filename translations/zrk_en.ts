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
    <message id="tmif_001">
        <source>Файл «%1»: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="tmif_002">
        <source>не удаётся записать: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="tmif_003">
        <source>нет байтов записи (атрибут data)</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="tmif_004">
        <source>запись длиннее %1 байт</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="tmif_005">
        <source>байты записи не в шестнадцатеричном виде</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="tmif_006">
        <source>неверное время получения</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="tmif_011">
        <source>запись %1 повреждена: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="tmif_007">
        <source>это не файл телеметрии .tmi</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="tmif_008">
        <source>файл обрывается: нет конца &lt;/TMI&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="tmif_009">
        <source>после записи %1 стоит посторонний текст</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="tmif_010">
        <source>файл обрывается внутри записи %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="tmif_012">
        <source>нарушена разметка</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="tmif_016">
        <source>нарушена разметка после записи %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="tmif_013">
        <source>не удаётся открыть: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="tmif_014">
        <source>Время: %1; скорость: %2 км/ч; событие: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="tmif_015">
        <source>Трек</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
