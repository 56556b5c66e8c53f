<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name></name>
    <message id="host_078">
        <source>%1 КБ</source>
        <translation>%1 KB</translation>
    </message>
    <message id="host_006">
        <source>пустая запись</source>
        <translation>empty record</translation>
    </message>
    <message id="host_007">
        <source>%1 байт: %2%3</source>
        <translation>%1 bytes: %2%3</translation>
    </message>
    <message id="host_008">
        <source>адрес 0x%1</source>
        <translation>address 0x%1</translation>
    </message>
    <message id="host_009">
        <source>чужой описатель, пропущено</source>
        <translation>foreign handle, skipped</translation>
    </message>
    <message id="host_017">
        <source>zrk-host — эталонный хост модулей устройств</source>
        <translation>zrk-host — reference host for device plug-ins</translation>
    </message>
    <message id="host_018">
        <source>Журнал сообщений</source>
        <translation>Message log</translation>
    </message>
    <message id="host_019">
        <source>От модуля: %1 %2</source>
        <translation>From plug-in: %1 %2</translation>
    </message>
    <message id="host_020">
        <source>Модуль не загружен</source>
        <translation>No plug-in loaded</translation>
    </message>
    <message id="host_021">
        <source>Модуль устройства</source>
        <translation>Device plug-in</translation>
    </message>
    <message id="host_022">
        <source>Файл:</source>
        <translation>File:</translation>
    </message>
    <message id="host_023">
        <source>Название:</source>
        <translation>Name:</translation>
    </message>
    <message id="host_024">
        <source>Тип устройства:</source>
        <translation>Device type:</translation>
    </message>
    <message id="host_025">
        <source>Параметры хоста:</source>
        <translation>Host values:</translation>
    </message>
    <message id="host_026">
        <source>Версия прошивки:</source>
        <translation>Firmware version:</translation>
    </message>
    <message id="host_027">
        <source>Описатель:</source>
        <translation>Handle:</translation>
    </message>
    <message id="host_028">
        <source>Загрузить модуль…</source>
        <translation>Load plug-in…</translation>
    </message>
    <message id="host_029">
        <source>Ответы модуля на запросы</source>
        <translation>Plug-in&apos;s answers to queries</translation>
    </message>
    <message id="host_030">
        <source>Модуль отвечает (2001):</source>
        <translation>Plug-in alive (2001):</translation>
    </message>
    <message id="host_031">
        <source>Версия прошивки (2002):</source>
        <translation>Firmware version (2002):</translation>
    </message>
    <message id="host_032">
        <source>Номер протокола (2003):</source>
        <translation>Protocol number (2003):</translation>
    </message>
    <message id="host_033">
        <source>Версия модуля (2006):</source>
        <translation>Plug-in version (2006):</translation>
    </message>
    <message id="host_034">
        <source>Возможности (2010):</source>
        <translation>Capabilities (2010):</translation>
    </message>
    <message id="host_035">
        <source>Возможности (2272):</source>
        <translation>Capabilities (2272):</translation>
    </message>
    <message id="host_036">
        <source>Возможности (2399):</source>
        <translation>Capabilities (2399):</translation>
    </message>
    <message id="host_037">
        <source>Параметры конфигурации (2356):</source>
        <translation>Configuration parameters (2356):</translation>
    </message>
    <message id="host_038">
        <source>Опросить модуль</source>
        <translation>Query the plug-in</translation>
    </message>
    <message id="host_039">
        <source>Настройки хоста</source>
        <translation>Host settings</translation>
    </message>
    <message id="host_040">
        <source>Телеметрия:</source>
        <translation>Telemetry:</translation>
    </message>
    <message id="host_041">
        <source>Конфигурации XML:</source>
        <translation>XML configurations:</translation>
    </message>
    <message id="host_042">
        <source>Прошивки:</source>
        <translation>Firmware:</translation>
    </message>
    <message id="host_043">
        <source>Звуки:</source>
        <translation>Sounds:</translation>
    </message>
    <message id="host_044">
        <source>по умолчанию модуля</source>
        <translation>plug-in&apos;s default</translation>
    </message>
    <message id="host_045">
        <source>Передать каталоги (2049)</source>
        <translation>Send directories (2049)</translation>
    </message>
    <message id="host_046">
        <source>5 — сервисный режим с окном теста терминала</source>
        <translation>5 — service mode with the terminal test window</translation>
    </message>
    <message id="host_047">
        <source>Установить режим (2004)</source>
        <translation>Set mode (2004)</translation>
    </message>
    <message id="host_048">
        <source>Режим конфигуратора:</source>
        <translation>Configurator mode:</translation>
    </message>
    <message id="host_049">
        <source>Сменить язык (2031)</source>
        <translation>Change language (2031)</translation>
    </message>
    <message id="host_050">
        <source>Язык модуля:</source>
        <translation>Plug-in language:</translation>
    </message>
    <message id="host_051">
        <source>Терминал (имитация)</source>
        <translation>Terminal (simulated)</translation>
    </message>
    <message id="host_052">
        <source>Удалённо через сервер</source>
        <translation>Remotely through the server</translation>
    </message>
    <message id="host_053">
        <source>Тип:</source>
        <translation>Type:</translation>
    </message>
    <message id="host_054">
        <source>Прошивка:</source>
        <translation>Firmware:</translation>
    </message>
    <message id="host_055">
        <source>Связь:</source>
        <translation>Link:</translation>
    </message>
    <message id="host_056">
        <source>Подключить (2051)</source>
        <translation>Connect (2051)</translation>
    </message>
    <message id="host_057">
        <source>Отключить (2052)</source>
        <translation>Disconnect (2052)</translation>
    </message>
    <message id="host_058">
        <source>Терминал не подключён</source>
        <translation>Terminal not connected</translation>
    </message>
    <message id="host_059">
        <source>Окна модуля</source>
        <translation>Plug-in&apos;s windows</translation>
    </message>
    <message id="host_060">
        <source>Новая конфигурация (2101)</source>
        <translation>New configuration (2101)</translation>
    </message>
    <message id="host_061">
        <source>Телеметрия (2102)</source>
        <translation>Telemetry (2102)</translation>
    </message>
    <message id="host_062">
        <source>Файл телеметрии… (2103)</source>
        <translation>Telemetry file… (2103)</translation>
    </message>
    <message id="host_063">
        <source>постранично</source>
        <translation>page by page</translation>
    </message>
    <message id="host_064">
        <source>таблицей</source>
        <translation>as a table</translation>
    </message>
    <message id="host_065">
        <source>Модуль загружен и инициализирован</source>
        <translation>Plug-in loaded and initialised</translation>
    </message>
    <message id="host_066">
        <source>%1, %2, %3, %4 (слово %5)</source>
        <translation>%1, %2, %3, %4 (word %5)</translation>
    </message>
    <message id="host_067">
        <source>%1 (результат)</source>
        <translation>%1 (result)</translation>
    </message>
    <message id="host_068">
        <source>пусто</source>
        <translation>empty</translation>
    </message>
    <message id="host_069">
        <source>тип «%1», IMEI %2, прошивка %3, связь %4</source>
        <translation>type &quot;%1&quot;, IMEI %2, firmware %3, link %4</translation>
    </message>
    <message id="host_070">
        <source>Терминал %1 подключён (%2)</source>
        <translation>Terminal %1 connected (%2)</translation>
    </message>
    <message id="host_071">
        <source>язык «%1»</source>
        <translation>language &quot;%1&quot;</translation>
    </message>
    <message id="host_072">
        <source>%1: полный редактор, новая</source>
        <translation>%1: full editor, new</translation>
    </message>
    <message id="host_073">
        <source>Модули (*.so);;Все файлы (*)</source>
        <translation>Plug-ins (*.so);;All files (*)</translation>
    </message>
    <message id="host_074">
        <source>Файл телеметрии</source>
        <translation>Telemetry file</translation>
    </message>
    <message id="host_075">
        <source>Телеметрия (*.tmi *.xml);;Все файлы (*)</source>
        <translation>Telemetry (*.tmi *.xml);;All files (*)</translation>
    </message>
    <message id="host_010">
        <source>№</source>
        <translation>#</translation>
    </message>
    <message id="host_011">
        <source>Время</source>
        <translation>Time</translation>
    </message>
    <message id="host_012">
        <source>Направление</source>
        <translation>Direction</translation>
    </message>
    <message id="host_013">
        <source>Сообщение</source>
        <translation>Message</translation>
    </message>
    <message id="host_014">
        <source>Результат</source>
        <translation>Result</translation>
    </message>
    <message id="host_015">
        <source>хост → модуль</source>
        <translation>host → plug-in</translation>
    </message>
    <message id="host_016">
        <source>модуль → хост</source>
        <translation>plug-in → host</translation>
    </message>
    <message id="host_001">
        <source>Файл «%1» не найден.</source>
        <translation>File &quot;%1&quot; not found.</translation>
    </message>
    <message id="host_002">
        <source>Файл «%1» не загружается как библиотека: %2</source>
        <translation>File &quot;%1&quot; cannot be loaded as a library: %2</translation>
    </message>
    <message id="host_003">
        <source>«%1» не является модулем устройства: нет экспорта %2.</source>
        <translation>&quot;%1&quot; is not a device plug-in: no export %2.</translation>
    </message>
    <message id="host_004">
        <source>«%1» не является модулем устройства: %2() вернула %3 вместо 1.</source>
        <translation>&quot;%1&quot; is not a device plug-in: %2() returned %3 instead of 1.</translation>
    </message>
    <message id="host_005">
        <source>«%1»: %2() не сообщила описатель модуля.</source>
        <translation>&quot;%1&quot;: %2() reported no plug-in handle.</translation>
    </message>
    <message id="host_500">
        <source>SD-карта терминала</source>
        <translation>Terminal&apos;s SD card</translation>
    </message>
    <message id="host_501">
        <source>Файлы, записанные модулем на SD-карту имитируемого терминала (сообщение 2400)</source>
        <translation>Files the plug-in wrote to the simulated terminal&apos;s SD card (message 2400)</translation>
    </message>
    <message id="host_502">
        <source>(карты нет)</source>
        <translation>(no card)</translation>
    </message>
    <message id="host_503">
        <source>(пусто)</source>
        <translation>(empty)</translation>
    </message>
    <message id="host_504">
        <source>%1 — %2 байт</source>
        <translation>%1 — %2 bytes</translation>
    </message>
    <message id="host_301">
        <source>Запись по времени</source>
        <translation>Record by time</translation>
    </message>
    <message id="host_302">
        <source>Запись по изменению курса</source>
        <translation>Record on course change</translation>
    </message>
    <message id="host_303">
        <source>Включение зажигания</source>
        <translation>Ignition on</translation>
    </message>
    <message id="host_304">
        <source>Выключение зажигания</source>
        <translation>Ignition off</translation>
    </message>
    <message id="host_305">
        <source>Включение выхода</source>
        <translation>Output switched on</translation>
    </message>
    <message id="host_306">
        <source>Выключение выхода</source>
        <translation>Output switched off</translation>
    </message>
    <message id="host_307">
        <source>Постановка на охрану</source>
        <translation>Guard mode on</translation>
    </message>
    <message id="host_308">
        <source>Снятие с охраны</source>
        <translation>Guard mode off</translation>
    </message>
    <message id="host_309">
        <source>Событие %1</source>
        <translation>Event %1</translation>
    </message>
    <message id="host_310">
        <source>Нет ошибок</source>
        <translation>No faults</translation>
    </message>
    <message id="host_311">
        <source>Нет связи с навигационным приёмником</source>
        <translation>No link to the navigation receiver</translation>
    </message>
    <message id="host_312">
        <source>Низкое напряжение питания</source>
        <translation>Low supply voltage</translation>
    </message>
    <message id="host_313">
        <source>Ошибка SIM-карты</source>
        <translation>SIM card fault</translation>
    </message>
    <message id="host_314">
        <source>Ошибка памяти</source>
        <translation>Memory fault</translation>
    </message>
    <message id="host_315">
        <source>Диагностический код %1</source>
        <translation>Diagnostic code %1</translation>
    </message>
    <message id="host_316">
        <source>Терминал: телеметрия</source>
        <translation>Terminal: telemetry</translation>
    </message>
    <message id="host_317">
        <source>Версия записей, которые отдаёт терминал; её меняет и записанная конфигурация</source>
        <translation>Version of the records the terminal sends; a written configuration changes it too</translation>
    </message>
    <message id="host_318">
        <source>Передать расширенную запись (2312)</source>
        <translation>Send extended record (2312)</translation>
    </message>
    <message id="host_319">
        <source>Версия записей:</source>
        <translation>Record version:</translation>
    </message>
    <message id="host_320">
        <source>Записей: %1 (№ %2–%3); полей в записи: %4, %5 байт</source>
        <translation>Records: %1 (No. %2–%3); fields per record: %4, %5 bytes</translation>
    </message>
    <message id="host_708">
        <source>Открыть конфигурацию… (2101)</source>
        <translation>Open configuration… (2101)</translation>
    </message>
    <message id="host_709">
        <source>%1: полный редактор, файл «%2»</source>
        <translation>%1: full editor, file «%2»</translation>
    </message>
    <message id="host_710">
        <source>Файл конфигурации</source>
        <translation>Configuration file</translation>
    </message>
    <message id="host_711">
        <source>Конфигурации (*.xml)</source>
        <translation>Configurations (*.xml)</translation>
    </message>
    <message id="host_701">
        <source>чтение конфигурации: %1 байт</source>
        <translation>configuration read: %1 bytes</translation>
    </message>
    <message id="host_702">
        <source>нет пути к файлу</source>
        <translation>no file path</translation>
    </message>
    <message id="host_703">
        <source>прошивка «%1» (не записывается симулятором)</source>
        <translation>firmware «%1» (not written by the simulator)</translation>
    </message>
    <message id="host_704">
        <source>неизвестный вид файла %1</source>
        <translation>unknown file kind %1</translation>
    </message>
    <message id="host_705">
        <source>файл «%1» не читается: %2</source>
        <translation>file «%1» cannot be read: %2</translation>
    </message>
    <message id="host_706">
        <source>конфигурация записана в терминал: %1 байт</source>
        <translation>configuration written to the terminal: %1 bytes</translation>
    </message>
    <message id="host_707">
        <source>%1: полный редактор, из терминала «%2»</source>
        <translation>%1: full editor, from the terminal «%2»</translation>
    </message>
</context>
</TS>
