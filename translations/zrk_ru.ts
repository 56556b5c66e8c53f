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
    <message id="cfgt3_007">
        <source>Ставить точки только в движении (правило старт/стоп)</source>
        <translation>Ставить точки только в движении (правило старт/стоп)</translation>
    </message>
    <message id="cfgt3_008">
        <source>Ставить точку при превышении скорости</source>
        <translation>Ставить точку при превышении скорости</translation>
    </message>
    <message id="cfgt3_009">
        <source>Порог скорости, км/ч</source>
        <translation>Порог скорости, км/ч</translation>
    </message>
    <message id="cfgt3_010">
        <source>Правило поворота</source>
        <translation>Правило поворота</translation>
    </message>
    <message id="cfgt3_013">
        <source>Угол поворота, °</source>
        <translation>Угол поворота, °</translation>
    </message>
    <message id="cfgt3_014">
        <source>Ставить точку по расстоянию, м</source>
        <translation>Ставить точку по расстоянию, м</translation>
    </message>
    <message id="cfgt3_015">
        <source>Расстояние, м</source>
        <translation>Расстояние, м</translation>
    </message>
    <message id="cfgt3_016">
        <source>Ставить точку по таймеру в движении, с</source>
        <translation>Ставить точку по таймеру в движении, с</translation>
    </message>
    <message id="cfgt3_017">
        <source>Таймер в движении, с</source>
        <translation>Таймер в движении, с</translation>
    </message>
    <message id="cfgt3_018">
        <source>Признаки движения для таймера</source>
        <translation>Признаки движения для таймера</translation>
    </message>
    <message id="cfgt3_023">
        <source>Таймер на стоянке, с</source>
        <translation>Таймер на стоянке, с</translation>
    </message>
    <message id="cfgt3_025">
        <source>Не ставить точки ближе, м</source>
        <translation>Не ставить точки ближе, м</translation>
    </message>
    <message id="cfgt3_026">
        <source>Минимальное расстояние между точками, м</source>
        <translation>Минимальное расстояние между точками, м</translation>
    </message>
    <message id="cfgt3_027">
        <source>Не ставить точки чаще, с</source>
        <translation>Не ставить точки чаще, с</translation>
    </message>
    <message id="cfgt3_028">
        <source>Минимальный интервал между точками, с</source>
        <translation>Минимальный интервал между точками, с</translation>
    </message>
    <message id="cfgt3_029">
        <source>Фильтр координат</source>
        <translation>Фильтр координат</translation>
    </message>
    <message id="cfgt3_031">
        <source>Минимум спутников</source>
        <translation>Минимум спутников</translation>
    </message>
    <message id="cfgt3_032">
        <source>Максимальный HDOP</source>
        <translation>Максимальный HDOP</translation>
    </message>
    <message id="cfgt3_033">
        <source>Максимальная скорость, км/ч</source>
        <translation>Максимальная скорость, км/ч</translation>
    </message>
    <message id="cfgt3_034">
        <source>Максимальное ускорение</source>
        <translation>Максимальное ускорение</translation>
    </message>
    <message id="cfgt3_035">
        <source>Максимальный скачок, м</source>
        <translation>Максимальный скачок, м</translation>
    </message>
    <message id="cfgt3_036">
        <source>Отбраковок подряд, не более</source>
        <translation>Отбраковок подряд, не более</translation>
    </message>
    <message id="cfgt3_037">
        <source>Минимальная высота, м</source>
        <translation>Минимальная высота, м</translation>
    </message>
    <message id="cfgt3_038">
        <source>Максимальная высота, м</source>
        <translation>Максимальная высота, м</translation>
    </message>
    <message id="cfgt3_039">
        <source>Расхождение с временем сети, с</source>
        <translation>Расхождение с временем сети, с</translation>
    </message>
    <message id="cfgt3_040">
        <source>Координаты на стоянке</source>
        <translation>Координаты на стоянке</translation>
    </message>
    <message id="cfgt3_044">
        <source>Признаки стоянки</source>
        <translation>Признаки стоянки</translation>
    </message>
    <message id="cfgt3_051">
        <source>Режим стоянки</source>
        <translation>Режим стоянки</translation>
    </message>
    <message id="cfgt3_056">
        <source>Время до стоянки, с</source>
        <translation>Время до стоянки, с</translation>
    </message>
    <message id="cfgt3_057">
        <source>Спутниковые системы</source>
        <translation>Спутниковые системы</translation>
    </message>
    <message id="cfgt3_058">
        <source>Помощь A-GPS</source>
        <translation>Помощь A-GPS</translation>
    </message>
    <message id="cfgt3_059">
        <source>Прогноз орбит (EPO)</source>
        <translation>Прогноз орбит (EPO)</translation>
    </message>
    <message id="cfgt3_060">
        <source>Маска возвышения спутников, °</source>
        <translation>Маска возвышения спутников, °</translation>
    </message>
    <message id="cfgt3_061">
        <source>Система координат</source>
        <translation>Система координат</translation>
    </message>
    <message id="cfgt3_064">
        <source>Приёмник</source>
        <translation>Приёмник</translation>
    </message>
    <message id="cfgt3_067">
        <source>Таймер холодного рестарта приёмника</source>
        <translation>Таймер холодного рестарта приёмника</translation>
    </message>
    <message id="cfgt3_071">
        <source>Период в движении, с</source>
        <translation>Период в движении, с</translation>
    </message>
    <message id="cfgt3_072">
        <source>Признаки движения</source>
        <translation>Признаки движения</translation>
    </message>
    <message id="cfgt3_073">
        <source>Период на стоянке, с (0 — выключено)</source>
        <translation>Период на стоянке, с (0 — выключено)</translation>
    </message>
    <message id="cfgt3_070">
        <source>Источники</source>
        <translation>Источники</translation>
    </message>
    <message id="cfgt3_069">
        <source>Позиционирование для телеметрии</source>
        <translation>Позиционирование для телеметрии</translation>
    </message>
    <message id="cfgt3_074">
        <source>Сервис локации</source>
        <translation>Сервис локации</translation>
    </message>
    <message id="cfgt3_075">
        <source>Ключ доступа</source>
        <translation>Ключ доступа</translation>
    </message>
    <message id="cfgt3_076">
        <source>Условие</source>
        <translation>Условие</translation>
    </message>
    <message id="cfgt3_077">
        <source>Добавлять в телеметрию</source>
        <translation>Добавлять в телеметрию</translation>
    </message>
    <message id="cfgt3_078">
        <source>Фильтр координат локатора</source>
        <translation>Фильтр координат локатора</translation>
    </message>
    <message id="cfgt3_079">
        <source>Предельная скорость, км/ч</source>
        <translation>Предельная скорость, км/ч</translation>
    </message>
    <message id="cfgt3_080">
        <source>Отбраковок подряд до принятия</source>
        <translation>Отбраковок подряд до принятия</translation>
    </message>
    <message id="cfgt3_081">
        <source>Записывать отбракованные координаты</source>
        <translation>Записывать отбракованные координаты</translation>
    </message>
    <message id="cfgt3_082">
        <source>Перепроверять по Wi-Fi</source>
        <translation>Перепроверять по Wi-Fi</translation>
    </message>
    <message id="cfgt3_083">
        <source>Перепроверять по GNSS</source>
        <translation>Перепроверять по GNSS</translation>
    </message>
    <message id="cfgt3_084">
        <source>Фильтр точек доступа</source>
        <translation>Фильтр точек доступа</translation>
    </message>
    <message id="cfgt3_085">
        <source>Минимальный уровень точки доступа, дБм</source>
        <translation>Минимальный уровень точки доступа, дБм</translation>
    </message>
    <message id="cfgt3_087">
        <source>Чёрный список, строка %1</source>
        <translation>Чёрный список, строка %1</translation>
    </message>
    <message id="cfgt3_065">
        <source>При отсутствии координат GNSS</source>
        <translation>При отсутствии координат GNSS</translation>
    </message>
    <message id="cfgt3_066">
        <source>Всегда</source>
        <translation>Всегда</translation>
    </message>
    <message id="cfgt3_001">
        <source>Трек</source>
        <translation>Трек</translation>
    </message>
    <message id="cfgt3_100">
        <source>Диапазон: %1..%2</source>
        <translation>Диапазон: %1..%2</translation>
    </message>
    <message id="cfgt3_102">
        <source>Диапазон: %1..%2; 0 — выключено</source>
        <translation>Диапазон: %1..%2; 0 — выключено</translation>
    </message>
    <message id="cfgt3_101">
        <source></source>
        <translation>Когда ставить точку</translation>
    </message>
    <message id="cfgt3_011">
        <source></source>
        <translation>По углу поворота, °</translation>
    </message>
    <message id="cfgt3_012">
        <source></source>
        <translation>По изменению направления</translation>
    </message>
    <message id="cfgt3_019">
        <source></source>
        <translation>Вход 1</translation>
    </message>
    <message id="cfgt3_020">
        <source></source>
        <translation>Зажигание</translation>
    </message>
    <message id="cfgt3_021">
        <source></source>
        <translation>Тахометр</translation>
    </message>
    <message id="cfgt3_022">
        <source></source>
        <translation>Датчик вибрации</translation>
    </message>
    <message id="cfgt3_024">
        <source></source>
        <translation>Ограничение частоты точек</translation>
    </message>
    <message id="cfgt3_002">
        <source></source>
        <translation>Точки трека</translation>
    </message>
    <message id="cfgt3_030">
        <source></source>
        <translation>Отбраковка координат</translation>
    </message>
    <message id="cfgt3_041">
        <source></source>
        <translation>Не усреднять</translation>
    </message>
    <message id="cfgt3_042">
        <source></source>
        <translation>Усреднять</translation>
    </message>
    <message id="cfgt3_043">
        <source></source>
        <translation>Фиксировать точку</translation>
    </message>
    <message id="cfgt3_049">
        <source></source>
        <translation>Акселерометр</translation>
    </message>
    <message id="cfgt3_050">
        <source></source>
        <translation>Акселерометр (SH5)</translation>
    </message>
    <message id="cfgt3_003">
        <source></source>
        <translation>Фильтрация</translation>
    </message>
    <message id="cfgt3_104">
        <source></source>
        <translation>Стоянка</translation>
    </message>
    <message id="cfgt3_052">
        <source></source>
        <translation>По датчику движения</translation>
    </message>
    <message id="cfgt3_053">
        <source></source>
        <translation>По настройкам акселерометра</translation>
    </message>
    <message id="cfgt3_054">
        <source></source>
        <translation>Акселерометр…</translation>
    </message>
    <message id="cfgt3_055">
        <source></source>
        <translation>Стоянка определяется акселерометром</translation>
    </message>
    <message id="cfgt3_103">
        <source></source>
        <translation>Приёмник GNSS</translation>
    </message>
    <message id="cfgt3_062">
        <source></source>
        <translation>WGS-84 (мировая)</translation>
    </message>
    <message id="cfgt3_063">
        <source></source>
        <translation>ПЗ-90</translation>
    </message>
    <message id="cfgt3_068">
        <source></source>
        <translation>Помощь приёмнику</translation>
    </message>
    <message id="cfgt3_098">
        <source></source>
        <translation>Встроенный</translation>
    </message>
    <message id="cfgt3_099">
        <source></source>
        <translation>Внешний</translation>
    </message>
    <message id="cfgt3_004">
        <source></source>
        <translation>Приёмник и стоянка</translation>
    </message>
    <message id="cfgt3_107">
        <source></source>
        <translation>Использовать</translation>
    </message>
    <message id="cfgt3_095">
        <source></source>
        <translation>Нет</translation>
    </message>
    <message id="cfgt3_096">
        <source></source>
        <translation>Координаты</translation>
    </message>
    <message id="cfgt3_097">
        <source></source>
        <translation>Координаты и точки доступа</translation>
    </message>
    <message id="cfgt3_086">
        <source></source>
        <translation>Чёрный список…</translation>
    </message>
    <message id="cfgt3_005">
        <source></source>
        <translation>Локатор</translation>
    </message>
    <message id="cfgt3_088">
        <source></source>
        <translation>Точки доступа Wi-Fi</translation>
    </message>
    <message id="cfgt3_090">
        <source></source>
        <translation>Модуль Wi-Fi…</translation>
    </message>
    <message id="cfgt3_089">
        <source></source>
        <translation>Сотовые станции (LBS)</translation>
    </message>
    <message id="cfgt3_093">
        <source></source>
        <translation>Чёрный список точек доступа</translation>
    </message>
    <message id="cfgt3_094">
        <source></source>
        <translation>Имя точки доступа</translation>
    </message>
    <message id="cfgt3_106">
        <source></source>
        <translation>По умолчанию</translation>
    </message>
    <message id="cfgt3_105">
        <source></source>
        <translation>Закрыть</translation>
    </message>
    <message id="cfgt3_091">
        <source></source>
        <translation>На стоянке</translation>
    </message>
    <message id="cfgt3_047">
        <source>GPS + ГЛОНАСС</source>
        <translation>GPS + ГЛОНАСС</translation>
    </message>
    <message id="cfgt3_048">
        <source>GPS и BeiDou</source>
        <translation>GPS и BeiDou</translation>
    </message>
    <message id="cfgt3_045">
        <source>Только GPS</source>
        <translation>Только GPS</translation>
    </message>
    <message id="cfgt3_046">
        <source>ГЛОНАСС</source>
        <translation>ГЛОНАСС</translation>
    </message>
</context>
</TS>
