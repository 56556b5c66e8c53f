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
    <message id="abou_001">
        <source></source>
        <translation>Справка о параметре</translation>
    </message>
    <message id="abou_002">
        <source></source>
        <translation>Закрыть</translation>
    </message>
    <message id="iopr_001">
        <source></source>
        <translation>Ожидание</translation>
    </message>
    <message id="iopr_003">
        <source></source>
        <translation>Выполнено:</translation>
    </message>
    <message id="iopr_004">
        <source></source>
        <translation>Всего:</translation>
    </message>
    <message id="iopr_005">
        <source></source>
        <translation>Время:</translation>
    </message>
    <message id="iopr_006">
        <source></source>
        <translation>Отмена</translation>
    </message>
    <message id="abbr_017">
        <source>°С</source>
        <translation>°С</translation>
    </message>
    <message id="abou_003">
        <source>Модуль терминала %1
Версия %2.%3.%4, сборка %5
Версия библиотеки %6
Собран %7</source>
        <translation>Модуль терминала %1
Версия %2.%3.%4, сборка %5
Версия библиотеки %6
Собран %7</translation>
    </message>
</context>
</TS>
