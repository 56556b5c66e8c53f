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
</context>
</TS>
