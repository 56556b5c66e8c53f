<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name></name>
    <message id="host_078">
        <source>%1 КБ</source>
        <translation>%1 КБ</translation>
    </message>
    <message id="host_006">
        <source>пустая запись</source>
        <translation>пустая запись</translation>
    </message>
    <message id="host_007">
        <source>%1 байт: %2%3</source>
        <translation>%1 байт: %2%3</translation>
    </message>
    <message id="host_008">
        <source>адрес 0x%1</source>
        <translation>адрес 0x%1</translation>
    </message>
    <message id="host_009">
        <source>чужой описатель, пропущено</source>
        <translation>чужой описатель, пропущено</translation>
    </message>
    <message id="host_017">
        <source>zrk-host — эталонный хост модулей устройств</source>
        <translation>zrk-host — эталонный хост модулей устройств</translation>
    </message>
    <message id="host_018">
        <source>Журнал сообщений</source>
        <translation>Журнал сообщений</translation>
    </message>
    <message id="host_019">
        <source>От модуля: %1 %2</source>
        <translation>От модуля: %1 %2</translation>
    </message>
    <message id="host_020">
        <source>Модуль не загружен</source>
        <translation>Модуль не загружен</translation>
    </message>
    <message id="host_021">
        <source>Модуль устройства</source>
        <translation>Модуль устройства</translation>
    </message>
    <message id="host_022">
        <source>Файл:</source>
        <translation>Файл:</translation>
    </message>
    <message id="host_023">
        <source>Название:</source>
        <translation>Название:</translation>
    </message>
    <message id="host_024">
        <source>Тип устройства:</source>
        <translation>Тип устройства:</translation>
    </message>
    <message id="host_025">
        <source>Параметры хоста:</source>
        <translation>Параметры хоста:</translation>
    </message>
    <message id="host_026">
        <source>Версия прошивки:</source>
        <translation>Версия прошивки:</translation>
    </message>
    <message id="host_027">
        <source>Описатель:</source>
        <translation>Описатель:</translation>
    </message>
    <message id="host_028">
        <source>Загрузить модуль…</source>
        <translation>Загрузить модуль…</translation>
    </message>
    <message id="host_029">
        <source>Ответы модуля на запросы</source>
        <translation>Ответы модуля на запросы</translation>
    </message>
    <message id="host_030">
        <source>Модуль отвечает (2001):</source>
        <translation>Модуль отвечает (2001):</translation>
    </message>
    <message id="host_031">
        <source>Версия прошивки (2002):</source>
        <translation>Версия прошивки (2002):</translation>
    </message>
    <message id="host_032">
        <source>Номер протокола (2003):</source>
        <translation>Номер протокола (2003):</translation>
    </message>
    <message id="host_033">
        <source>Версия модуля (2006):</source>
        <translation>Версия модуля (2006):</translation>
    </message>
    <message id="host_034">
        <source>Возможности (2010):</source>
        <translation>Возможности (2010):</translation>
    </message>
    <message id="host_035">
        <source>Возможности (2272):</source>
        <translation>Возможности (2272):</translation>
    </message>
    <message id="host_036">
        <source>Возможности (2399):</source>
        <translation>Возможности (2399):</translation>
    </message>
    <message id="host_037">
        <source>Параметры конфигурации (2356):</source>
        <translation>Параметры конфигурации (2356):</translation>
    </message>
    <message id="host_038">
        <source>Опросить модуль</source>
        <translation>Опросить модуль</translation>
    </message>
    <message id="host_039">
        <source>Настройки хоста</source>
        <translation>Настройки хоста</translation>
    </message>
    <message id="host_040">
        <source>Телеметрия:</source>
        <translation>Телеметрия:</translation>
    </message>
    <message id="host_041">
        <source>Конфигурации XML:</source>
        <translation>Конфигурации XML:</translation>
    </message>
    <message id="host_042">
        <source>Прошивки:</source>
        <translation>Прошивки:</translation>
    </message>
    <message id="host_043">
        <source>Звуки:</source>
        <translation>Звуки:</translation>
    </message>
    <message id="host_044">
        <source>по умолчанию модуля</source>
        <translation>по умолчанию модуля</translation>
    </message>
    <message id="host_045">
        <source>Передать каталоги (2049)</source>
        <translation>Передать каталоги (2049)</translation>
    </message>
    <message id="host_046">
        <source>5 — сервисный режим с окном теста терминала</source>
        <translation>5 — сервисный режим с окном теста терминала</translation>
    </message>
    <message id="host_047">
        <source>Установить режим (2004)</source>
        <translation>Установить режим (2004)</translation>
    </message>
    <message id="host_048">
        <source>Режим конфигуратора:</source>
        <translation>Режим конфигуратора:</translation>
    </message>
    <message id="host_049">
        <source>Сменить язык (2031)</source>
        <translation>Сменить язык (2031)</translation>
    </message>
    <message id="host_050">
        <source>Язык модуля:</source>
        <translation>Язык модуля:</translation>
    </message>
    <message id="host_051">
        <source>Терминал (имитация)</source>
        <translation>Терминал (имитация)</translation>
    </message>
    <message id="host_052">
        <source>Удалённо через сервер</source>
        <translation>Удалённо через сервер</translation>
    </message>
    <message id="host_053">
        <source>Тип:</source>
        <translation>Тип:</translation>
    </message>
    <message id="host_054">
        <source>Прошивка:</source>
        <translation>Прошивка:</translation>
    </message>
    <message id="host_055">
        <source>Связь:</source>
        <translation>Связь:</translation>
    </message>
    <message id="host_056">
        <source>Подключить (2051)</source>
        <translation>Подключить (2051)</translation>
    </message>
    <message id="host_057">
        <source>Отключить (2052)</source>
        <translation>Отключить (2052)</translation>
    </message>
    <message id="host_058">
        <source>Терминал не подключён</source>
        <translation>Терминал не подключён</translation>
    </message>
    <message id="host_059">
        <source>Окна модуля</source>
        <translation>Окна модуля</translation>
    </message>
    <message id="host_060">
        <source>Новая конфигурация (2101)</source>
        <translation>Новая конфигурация (2101)</translation>
    </message>
    <message id="host_061">
        <source>Телеметрия (2102)</source>
        <translation>Телеметрия (2102)</translation>
    </message>
    <message id="host_062">
        <source>Файл телеметрии… (2103)</source>
        <translation>Файл телеметрии… (2103)</translation>
    </message>
    <message id="host_063">
        <source>постранично</source>
        <translation>постранично</translation>
    </message>
    <message id="host_064">
        <source>таблицей</source>
        <translation>таблицей</translation>
    </message>
    <message id="host_065">
        <source>Модуль загружен и инициализирован</source>
        <translation>Модуль загружен и инициализирован</translation>
    </message>
    <message id="host_066">
        <source>%1, %2, %3, %4 (слово %5)</source>
        <translation>%1, %2, %3, %4 (слово %5)</translation>
    </message>
    <message id="host_067">
        <source>%1 (результат)</source>
        <translation>%1 (результат)</translation>
    </message>
    <message id="host_068">
        <source>пусто</source>
        <translation>пусто</translation>
    </message>
    <message id="host_069">
        <source>тип «%1», IMEI %2, прошивка %3, связь %4</source>
        <translation>тип «%1», IMEI %2, прошивка %3, связь %4</translation>
    </message>
    <message id="host_070">
        <source>Терминал %1 подключён (%2)</source>
        <translation>Терминал %1 подключён (%2)</translation>
    </message>
    <message id="host_071">
        <source>язык «%1»</source>
        <translation>язык «%1»</translation>
    </message>
    <message id="host_072">
        <source>%1: полный редактор, новая</source>
        <translation>%1: полный редактор, новая</translation>
    </message>
    <message id="host_073">
        <source>Модули (*.so);;Все файлы (*)</source>
        <translation>Модули (*.so);;Все файлы (*)</translation>
    </message>
    <message id="host_074">
        <source>Файл телеметрии</source>
        <translation>Файл телеметрии</translation>
    </message>
    <message id="host_075">
        <source>Телеметрия (*.tmi *.xml);;Все файлы (*)</source>
        <translation>Телеметрия (*.tmi *.xml);;Все файлы (*)</translation>
    </message>
    <message id="host_010">
        <source>№</source>
        <translation>№</translation>
    </message>
    <message id="host_011">
        <source>Время</source>
        <translation>Время</translation>
    </message>
    <message id="host_012">
        <source>Направление</source>
        <translation>Направление</translation>
    </message>
    <message id="host_013">
        <source>Сообщение</source>
        <translation>Сообщение</translation>
    </message>
    <message id="host_014">
        <source>Результат</source>
        <translation>Результат</translation>
    </message>
    <message id="host_015">
        <source>хост → модуль</source>
        <translation>хост → модуль</translation>
    </message>
    <message id="host_016">
        <source>модуль → хост</source>
        <translation>модуль → хост</translation>
    </message>
    <message id="host_001">
        <source>Файл «%1» не найден.</source>
        <translation>Файл «%1» не найден.</translation>
    </message>
    <message id="host_002">
        <source>Файл «%1» не загружается как библиотека: %2</source>
        <translation>Файл «%1» не загружается как библиотека: %2</translation>
    </message>
    <message id="host_003">
        <source>«%1» не является модулем устройства: нет экспорта %2.</source>
        <translation>«%1» не является модулем устройства: нет экспорта %2.</translation>
    </message>
    <message id="host_004">
        <source>«%1» не является модулем устройства: %2() вернула %3 вместо 1.</source>
        <translation>«%1» не является модулем устройства: %2() вернула %3 вместо 1.</translation>
    </message>
    <message id="host_005">
        <source>«%1»: %2() не сообщила описатель модуля.</source>
        <translation>«%1»: %2() не сообщила описатель модуля.</translation>
    </message>
    <message id="host_500">
        <source>SD-карта терминала</source>
        <translation>SD-карта терминала</translation>
    </message>
    <message id="host_501">
        <source>Файлы, записанные модулем на SD-карту имитируемого терминала (сообщение 2400)</source>
        <translation>Файлы, записанные модулем на SD-карту имитируемого терминала (сообщение 2400)</translation>
    </message>
    <message id="host_502">
        <source>(карты нет)</source>
        <translation>(карты нет)</translation>
    </message>
    <message id="host_503">
        <source>(пусто)</source>
        <translation>(пусто)</translation>
    </message>
    <message id="host_504">
        <source>%1 — %2 байт</source>
        <translation>%1 — %2 байт</translation>
    </message>
    <message id="host_301">
        <source>Запись по времени</source>
        <translation>Запись по времени</translation>
    </message>
    <message id="host_302">
        <source>Запись по изменению курса</source>
        <translation>Запись по изменению курса</translation>
    </message>
    <message id="host_303">
        <source>Включение зажигания</source>
        <translation>Включение зажигания</translation>
    </message>
    <message id="host_304">
        <source>Выключение зажигания</source>
        <translation>Выключение зажигания</translation>
    </message>
    <message id="host_305">
        <source>Включение выхода</source>
        <translation>Включение выхода</translation>
    </message>
    <message id="host_306">
        <source>Выключение выхода</source>
        <translation>Выключение выхода</translation>
    </message>
    <message id="host_307">
        <source>Постановка на охрану</source>
        <translation>Постановка на охрану</translation>
    </message>
    <message id="host_308">
        <source>Снятие с охраны</source>
        <translation>Снятие с охраны</translation>
    </message>
    <message id="host_309">
        <source>Событие %1</source>
        <translation>Событие %1</translation>
    </message>
    <message id="host_310">
        <source>Нет ошибок</source>
        <translation>Нет ошибок</translation>
    </message>
    <message id="host_311">
        <source>Нет связи с навигационным приёмником</source>
        <translation>Нет связи с навигационным приёмником</translation>
    </message>
    <message id="host_312">
        <source>Низкое напряжение питания</source>
        <translation>Низкое напряжение питания</translation>
    </message>
    <message id="host_313">
        <source>Ошибка SIM-карты</source>
        <translation>Ошибка SIM-карты</translation>
    </message>
    <message id="host_314">
        <source>Ошибка памяти</source>
        <translation>Ошибка памяти</translation>
    </message>
    <message id="host_315">
        <source>Диагностический код %1</source>
        <translation>Диагностический код %1</translation>
    </message>
    <message id="host_316">
        <source>Терминал: телеметрия</source>
        <translation>Терминал: телеметрия</translation>
    </message>
    <message id="host_317">
        <source>Версия записей, которые отдаёт терминал; её меняет и записанная конфигурация</source>
        <translation>Версия записей, которые отдаёт терминал; её меняет и записанная конфигурация</translation>
    </message>
    <message id="host_318">
        <source>Передать расширенную запись (2312)</source>
        <translation>Передать расширенную запись (2312)</translation>
    </message>
    <message id="host_319">
        <source>Версия записей:</source>
        <translation>Версия записей:</translation>
    </message>
    <message id="host_320">
        <source>Записей: %1 (№ %2–%3); полей в записи: %4, %5 байт</source>
        <translation>Записей: %1 (№ %2–%3); полей в записи: %4, %5 байт</translation>
    </message>
    <message id="host_708">
        <source>Открыть конфигурацию… (2101)</source>
        <translation>Открыть конфигурацию… (2101)</translation>
    </message>
    <message id="host_709">
        <source>%1: полный редактор, файл «%2»</source>
        <translation>%1: полный редактор, файл «%2»</translation>
    </message>
    <message id="host_710">
        <source>Файл конфигурации</source>
        <translation>Файл конфигурации</translation>
    </message>
    <message id="host_711">
        <source>Конфигурации (*.xml)</source>
        <translation>Конфигурации (*.xml)</translation>
    </message>
    <message id="host_701">
        <source>чтение конфигурации: %1 байт</source>
        <translation>чтение конфигурации: %1 байт</translation>
    </message>
    <message id="host_702">
        <source>нет пути к файлу</source>
        <translation>нет пути к файлу</translation>
    </message>
    <message id="host_703">
        <source>прошивка «%1» (не записывается симулятором)</source>
        <translation>прошивка «%1» (не записывается симулятором)</translation>
    </message>
    <message id="host_704">
        <source>неизвестный вид файла %1</source>
        <translation>неизвестный вид файла %1</translation>
    </message>
    <message id="host_705">
        <source>файл «%1» не читается: %2</source>
        <translation>файл «%1» не читается: %2</translation>
    </message>
    <message id="host_706">
        <source>конфигурация записана в терминал: %1 байт</source>
        <translation>конфигурация записана в терминал: %1 байт</translation>
    </message>
    <message id="host_707">
        <source>%1: полный редактор, из терминала «%2»</source>
        <translation>%1: полный редактор, из терминала «%2»</translation>
    </message>
</context>
</TS>
