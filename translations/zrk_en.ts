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
