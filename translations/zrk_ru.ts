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
    <message id="geod_001">
        <source>Слишком много геозон: %1 (терминал хранит не более %2).</source>
        <translation>Слишком много геозон: %1 (терминал хранит не более %2).</translation>
    </message>
    <message id="geod_002">
        <source>Слишком много маршрутов: %1 (терминал хранит не более %2).</source>
        <translation>Слишком много маршрутов: %1 (терминал хранит не более %2).</translation>
    </message>
    <message id="geod_004">
        <source>Слишком много скоростных зон: %1 (терминал хранит не более %2).</source>
        <translation>Слишком много скоростных зон: %1 (терминал хранит не более %2).</translation>
    </message>
    <message id="geod_005">
        <source>Слишком много звуковых файлов: %1 (не более %2).</source>
        <translation>Слишком много звуковых файлов: %1 (не более %2).</translation>
    </message>
    <message id="geod_009">
        <source>Номер геозоны %1 встречается дважды.</source>
        <translation>Номер геозоны %1 встречается дважды.</translation>
    </message>
    <message id="geod_020">
        <source>узел &quot;%1&quot; объявляет записей: %2, а содержит: %3</source>
        <translation>узел &quot;%1&quot; объявляет записей: %2, а содержит: %3</translation>
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
        <source>метка &quot;%1&quot;: координаты &quot;%2&quot; не прочитаны: %3</source>
        <translation>метка &quot;%1&quot;: координаты &quot;%2&quot; не прочитаны: %3</translation>
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
    <message id="tmif_001">
        <source>Файл «%1»: %2</source>
        <translation>Файл «%1»: %2</translation>
    </message>
    <message id="tmif_002">
        <source>не удаётся записать: %1</source>
        <translation>не удаётся записать: %1</translation>
    </message>
    <message id="tmif_003">
        <source>нет байтов записи (атрибут data)</source>
        <translation>нет байтов записи (атрибут data)</translation>
    </message>
    <message id="tmif_004">
        <source>запись длиннее %1 байт</source>
        <translation>запись длиннее %1 байт</translation>
    </message>
    <message id="tmif_005">
        <source>байты записи не в шестнадцатеричном виде</source>
        <translation>байты записи не в шестнадцатеричном виде</translation>
    </message>
    <message id="tmif_006">
        <source>неверное время получения</source>
        <translation>неверное время получения</translation>
    </message>
    <message id="tmif_011">
        <source>запись %1 повреждена: %2</source>
        <translation>запись %1 повреждена: %2</translation>
    </message>
    <message id="tmif_007">
        <source>это не файл телеметрии .tmi</source>
        <translation>это не файл телеметрии .tmi</translation>
    </message>
    <message id="tmif_008">
        <source>файл обрывается: нет конца &lt;/TMI&gt;</source>
        <translation>файл обрывается: нет конца &lt;/TMI&gt;</translation>
    </message>
    <message id="tmif_009">
        <source>после записи %1 стоит посторонний текст</source>
        <translation>после записи %1 стоит посторонний текст</translation>
    </message>
    <message id="tmif_010">
        <source>файл обрывается внутри записи %1</source>
        <translation>файл обрывается внутри записи %1</translation>
    </message>
    <message id="tmif_012">
        <source>нарушена разметка</source>
        <translation>нарушена разметка</translation>
    </message>
    <message id="tmif_016">
        <source>нарушена разметка после записи %1</source>
        <translation>нарушена разметка после записи %1</translation>
    </message>
    <message id="tmif_013">
        <source>не удаётся открыть: %1</source>
        <translation>не удаётся открыть: %1</translation>
    </message>
    <message id="tmif_014">
        <source>Время: %1; скорость: %2 км/ч; событие: %3</source>
        <translation>Время: %1; скорость: %2 км/ч; событие: %3</translation>
    </message>
    <message id="tmif_015">
        <source>Трек</source>
        <translation>Трек</translation>
    </message>
    <message id="orbf_001">
        <source>Номер записи</source>
        <translation>Номер записи</translation>
    </message>
    <message id="orbf_002">
        <source>Код события</source>
        <translation>Код события</translation>
    </message>
    <message id="orbf_003">
        <source>Время</source>
        <translation>Время</translation>
    </message>
    <message id="orbf_004">
        <source>Состояние терминала</source>
        <translation>Состояние терминала</translation>
    </message>
    <message id="orbf_005">
        <source>Состояние модулей 1</source>
        <translation>Состояние модулей 1</translation>
    </message>
    <message id="orbf_006">
        <source>Состояние модулей 2</source>
        <translation>Состояние модулей 2</translation>
    </message>
    <message id="orbf_007">
        <source>Уровень сигнала GSM</source>
        <translation>Уровень сигнала GSM</translation>
    </message>
    <message id="orbf_008">
        <source>Состояние навигации</source>
        <translation>Состояние навигации</translation>
    </message>
    <message id="orbf_009">
        <source>Время последних достоверных координат</source>
        <translation>Время последних достоверных координат</translation>
    </message>
    <message id="orbf_010">
        <source>Широта</source>
        <translation>Широта</translation>
    </message>
    <message id="orbf_011">
        <source>Долгота</source>
        <translation>Долгота</translation>
    </message>
    <message id="orbf_012">
        <source>Высота</source>
        <translation>Высота</translation>
    </message>
    <message id="orbf_013">
        <source>Скорость</source>
        <translation>Скорость</translation>
    </message>
    <message id="orbf_014">
        <source>Курс</source>
        <translation>Курс</translation>
    </message>
    <message id="orbf_015">
        <source>Пробег</source>
        <translation>Пробег</translation>
    </message>
    <message id="orbf_016">
        <source>Расстояние от предыдущей точки</source>
        <translation>Расстояние от предыдущей точки</translation>
    </message>
    <message id="orbf_017">
        <source>Время в движении, с</source>
        <translation>Время в движении, с</translation>
    </message>
    <message id="orbf_018">
        <source>Секунд с предыдущей записи</source>
        <translation>Секунд с предыдущей записи</translation>
    </message>
    <message id="orbf_019">
        <source>Напряжение питания</source>
        <translation>Напряжение питания</translation>
    </message>
    <message id="orbf_020">
        <source>Напряжение резервного аккумулятора</source>
        <translation>Напряжение резервного аккумулятора</translation>
    </message>
    <message id="orbf_021">
        <source>Напряжение на аналоговом входе 1</source>
        <translation>Напряжение на аналоговом входе 1</translation>
    </message>
    <message id="orbf_022">
        <source>Напряжение на аналоговом входе 2</source>
        <translation>Напряжение на аналоговом входе 2</translation>
    </message>
    <message id="orbf_023">
        <source>Напряжение на аналоговом входе 3</source>
        <translation>Напряжение на аналоговом входе 3</translation>
    </message>
    <message id="orbf_024">
        <source>Напряжение на аналоговом входе 4</source>
        <translation>Напряжение на аналоговом входе 4</translation>
    </message>
    <message id="orbf_025">
        <source>Напряжение на аналоговом входе 5</source>
        <translation>Напряжение на аналоговом входе 5</translation>
    </message>
    <message id="orbf_026">
        <source>Напряжение на аналоговом входе 6</source>
        <translation>Напряжение на аналоговом входе 6</translation>
    </message>
    <message id="orbf_027">
        <source>Напряжение на аналоговом входе 7</source>
        <translation>Напряжение на аналоговом входе 7</translation>
    </message>
    <message id="orbf_028">
        <source>Напряжение на аналоговом входе 8</source>
        <translation>Напряжение на аналоговом входе 8</translation>
    </message>
    <message id="orbf_029">
        <source>Состояние входов 1–8</source>
        <translation>Состояние входов 1–8</translation>
    </message>
    <message id="orbf_030">
        <source>Состояние входов 9–16</source>
        <translation>Состояние входов 9–16</translation>
    </message>
    <message id="orbf_031">
        <source>Состояние выходов 1–8</source>
        <translation>Состояние выходов 1–8</translation>
    </message>
    <message id="orbf_032">
        <source>Состояние выходов 9–16</source>
        <translation>Состояние выходов 9–16</translation>
    </message>
    <message id="orbf_033">
        <source>Счётчик импульсов 1</source>
        <translation>Счётчик импульсов 1</translation>
    </message>
    <message id="orbf_034">
        <source>Счётчик импульсов 2</source>
        <translation>Счётчик импульсов 2</translation>
    </message>
    <message id="orbf_035">
        <source>Частота на входе 1</source>
        <translation>Частота на входе 1</translation>
    </message>
    <message id="orbf_036">
        <source>Частота на входе 2</source>
        <translation>Частота на входе 2</translation>
    </message>
    <message id="orbf_037">
        <source>Моточасы</source>
        <translation>Моточасы</translation>
    </message>
    <message id="orbf_038">
        <source>Уровень топлива ДУТ RS-485 1</source>
        <translation>Уровень топлива ДУТ RS-485 1</translation>
    </message>
    <message id="orbf_039">
        <source>Уровень топлива ДУТ RS-485 2</source>
        <translation>Уровень топлива ДУТ RS-485 2</translation>
    </message>
    <message id="orbf_040">
        <source>Уровень топлива ДУТ RS-485 3</source>
        <translation>Уровень топлива ДУТ RS-485 3</translation>
    </message>
    <message id="orbf_041">
        <source>Уровень топлива ДУТ RS-485 4</source>
        <translation>Уровень топлива ДУТ RS-485 4</translation>
    </message>
    <message id="orbf_042">
        <source>Уровень топлива ДУТ RS-485 5</source>
        <translation>Уровень топлива ДУТ RS-485 5</translation>
    </message>
    <message id="orbf_043">
        <source>Уровень топлива ДУТ RS-485 6</source>
        <translation>Уровень топлива ДУТ RS-485 6</translation>
    </message>
    <message id="orbf_044">
        <source>Уровень топлива ДУТ RS-232</source>
        <translation>Уровень топлива ДУТ RS-232</translation>
    </message>
    <message id="orbf_045">
        <source>Температура, датчик 1</source>
        <translation>Температура, датчик 1</translation>
    </message>
    <message id="orbf_046">
        <source>Температура, датчик 2</source>
        <translation>Температура, датчик 2</translation>
    </message>
    <message id="orbf_047">
        <source>Температура, датчик 3</source>
        <translation>Температура, датчик 3</translation>
    </message>
    <message id="orbf_048">
        <source>Температура, датчик 4</source>
        <translation>Температура, датчик 4</translation>
    </message>
    <message id="orbf_049">
        <source>Температура, датчик 5</source>
        <translation>Температура, датчик 5</translation>
    </message>
    <message id="orbf_050">
        <source>Температура, датчик 6</source>
        <translation>Температура, датчик 6</translation>
    </message>
    <message id="orbf_051">
        <source>Температура, датчик 7</source>
        <translation>Температура, датчик 7</translation>
    </message>
    <message id="orbf_052">
        <source>Температура, датчик 8</source>
        <translation>Температура, датчик 8</translation>
    </message>
    <message id="orbf_053">
        <source>CAN: уровень топлива</source>
        <translation>CAN: уровень топлива</translation>
    </message>
    <message id="orbf_054">
        <source>CAN: расход топлива</source>
        <translation>CAN: расход топлива</translation>
    </message>
    <message id="orbf_055">
        <source>CAN: обороты двигателя</source>
        <translation>CAN: обороты двигателя</translation>
    </message>
    <message id="orbf_056">
        <source>CAN: температура охлаждающей жидкости</source>
        <translation>CAN: температура охлаждающей жидкости</translation>
    </message>
    <message id="orbf_057">
        <source>CAN: полный пробег</source>
        <translation>CAN: полный пробег</translation>
    </message>
    <message id="orbf_058">
        <source>CAN: нагрузка на ось 1</source>
        <translation>CAN: нагрузка на ось 1</translation>
    </message>
    <message id="orbf_059">
        <source>CAN: нагрузка на ось 2</source>
        <translation>CAN: нагрузка на ось 2</translation>
    </message>
    <message id="orbf_060">
        <source>CAN: нагрузка на ось 3</source>
        <translation>CAN: нагрузка на ось 3</translation>
    </message>
    <message id="orbf_061">
        <source>CAN: нагрузка на ось 4</source>
        <translation>CAN: нагрузка на ось 4</translation>
    </message>
    <message id="orbf_062">
        <source>CAN: нагрузка на ось 5</source>
        <translation>CAN: нагрузка на ось 5</translation>
    </message>
    <message id="orbf_063">
        <source>CAN: положение педали газа</source>
        <translation>CAN: положение педали газа</translation>
    </message>
    <message id="orbf_064">
        <source>CAN: положение педали тормоза</source>
        <translation>CAN: положение педали тормоза</translation>
    </message>
    <message id="orbf_065">
        <source>CAN: нагрузка двигателя</source>
        <translation>CAN: нагрузка двигателя</translation>
    </message>
    <message id="orbf_066">
        <source>CAN: уровень топлива после фильтра</source>
        <translation>CAN: уровень топлива после фильтра</translation>
    </message>
    <message id="orbf_067">
        <source>CAN: время работы двигателя</source>
        <translation>CAN: время работы двигателя</translation>
    </message>
    <message id="orbf_068">
        <source>CAN: до технического обслуживания</source>
        <translation>CAN: до технического обслуживания</translation>
    </message>
    <message id="orbf_069">
        <source>CAN: скорость</source>
        <translation>CAN: скорость</translation>
    </message>
    <message id="orbf_070">
        <source>Спутники по навигационным системам</source>
        <translation>Спутники по навигационным системам</translation>
    </message>
    <message id="orbf_071">
        <source>Точность (HDOP, PDOP)</source>
        <translation>Точность (HDOP, PDOP)</translation>
    </message>
    <message id="orbf_072">
        <source>Режим навигации и число спутников</source>
        <translation>Режим навигации и число спутников</translation>
    </message>
    <message id="orbf_073">
        <source>Точные координаты приёмника</source>
        <translation>Точные координаты приёмника</translation>
    </message>
    <message id="orbf_074">
        <source>Высота по приёмнику</source>
        <translation>Высота по приёмнику</translation>
    </message>
    <message id="orbf_075">
        <source>Курс по приёмнику</source>
        <translation>Курс по приёмнику</translation>
    </message>
    <message id="orbf_076">
        <source>Скорость по приёмнику</source>
        <translation>Скорость по приёмнику</translation>
    </message>
    <message id="orbf_077">
        <source>Базовые станции (LBS)</source>
        <translation>Базовые станции (LBS)</translation>
    </message>
    <message id="orbf_078">
        <source>Температура ДУТ RS-485 1</source>
        <translation>Температура ДУТ RS-485 1</translation>
    </message>
    <message id="orbf_079">
        <source>Температура ДУТ RS-485 2</source>
        <translation>Температура ДУТ RS-485 2</translation>
    </message>
    <message id="orbf_080">
        <source>Температура ДУТ RS-485 3</source>
        <translation>Температура ДУТ RS-485 3</translation>
    </message>
    <message id="orbf_081">
        <source>Температура ДУТ RS-485 4</source>
        <translation>Температура ДУТ RS-485 4</translation>
    </message>
    <message id="orbf_082">
        <source>Температура ДУТ RS-485 5</source>
        <translation>Температура ДУТ RS-485 5</translation>
    </message>
    <message id="orbf_083">
        <source>Температура ДУТ RS-485 6</source>
        <translation>Температура ДУТ RS-485 6</translation>
    </message>
    <message id="orbf_084">
        <source>ДУТ RS-485 7: уровень и температура</source>
        <translation>ДУТ RS-485 7: уровень и температура</translation>
    </message>
    <message id="orbf_085">
        <source>ДУТ RS-485 8: уровень и температура</source>
        <translation>ДУТ RS-485 8: уровень и температура</translation>
    </message>
    <message id="orbf_086">
        <source>ДУТ RS-485 9: уровень и температура</source>
        <translation>ДУТ RS-485 9: уровень и температура</translation>
    </message>
    <message id="orbf_087">
        <source>ДУТ RS-485 10: уровень и температура</source>
        <translation>ДУТ RS-485 10: уровень и температура</translation>
    </message>
    <message id="orbf_088">
        <source>ДУТ RS-485 11: уровень и температура</source>
        <translation>ДУТ RS-485 11: уровень и температура</translation>
    </message>
    <message id="orbf_089">
        <source>ДУТ RS-485 12: уровень и температура</source>
        <translation>ДУТ RS-485 12: уровень и температура</translation>
    </message>
    <message id="orbf_090">
        <source>ДУТ RS-485 13: уровень и температура</source>
        <translation>ДУТ RS-485 13: уровень и температура</translation>
    </message>
    <message id="orbf_091">
        <source>ДУТ RS-485 14: уровень и температура</source>
        <translation>ДУТ RS-485 14: уровень и температура</translation>
    </message>
    <message id="orbf_092">
        <source>ДУТ RS-485 15: уровень и температура</source>
        <translation>ДУТ RS-485 15: уровень и температура</translation>
    </message>
    <message id="orbf_093">
        <source>ДУТ RS-485 16: уровень и температура</source>
        <translation>ДУТ RS-485 16: уровень и температура</translation>
    </message>
    <message id="orbf_094">
        <source>Шины 1–2</source>
        <translation>Шины 1–2</translation>
    </message>
    <message id="orbf_095">
        <source>Шины 3–6</source>
        <translation>Шины 3–6</translation>
    </message>
    <message id="orbf_096">
        <source>Шины 7–14</source>
        <translation>Шины 7–14</translation>
    </message>
    <message id="orbf_097">
        <source>Шины 15–30</source>
        <translation>Шины 15–30</translation>
    </message>
    <message id="orbf_098">
        <source>Тахограф: состояние</source>
        <translation>Тахограф: состояние</translation>
    </message>
    <message id="orbf_099">
        <source>Тахограф: режим</source>
        <translation>Тахограф: режим</translation>
    </message>
    <message id="orbf_100">
        <source>Тахограф: флаги</source>
        <translation>Тахограф: флаги</translation>
    </message>
    <message id="orbf_101">
        <source>Тахограф: скорость</source>
        <translation>Тахограф: скорость</translation>
    </message>
    <message id="orbf_102">
        <source>Тахограф: одометр</source>
        <translation>Тахограф: одометр</translation>
    </message>
    <message id="orbf_103">
        <source>Тахограф: время</source>
        <translation>Тахограф: время</translation>
    </message>
    <message id="orbf_104">
        <source>Диспетчерское сообщение: текущее</source>
        <translation>Диспетчерское сообщение: текущее</translation>
    </message>
    <message id="orbf_105">
        <source>Диспетчерское сообщение: последний номер</source>
        <translation>Диспетчерское сообщение: последний номер</translation>
    </message>
    <message id="orbf_106">
        <source>Акселерометр: изменение ускорения</source>
        <translation>Акселерометр: изменение ускорения</translation>
    </message>
    <message id="orbf_107">
        <source>Акселерометр: ускорение по осям X, Y, Z</source>
        <translation>Акселерометр: ускорение по осям X, Y, Z</translation>
    </message>
    <message id="orbf_108">
        <source>Акселерометр: модуль ускорения</source>
        <translation>Акселерометр: модуль ускорения</translation>
    </message>
    <message id="orbf_109">
        <source>Акселерометр: углы наклона</source>
        <translation>Акселерометр: углы наклона</translation>
    </message>
    <message id="orbf_110">
        <source>Пассажиропоток, датчики 1–2</source>
        <translation>Пассажиропоток, датчики 1–2</translation>
    </message>
    <message id="orbf_111">
        <source>Пассажиропоток, датчики 3–4</source>
        <translation>Пассажиропоток, датчики 3–4</translation>
    </message>
    <message id="orbf_112">
        <source>Пассажиропоток, датчики 5–6</source>
        <translation>Пассажиропоток, датчики 5–6</translation>
    </message>
    <message id="orbf_113">
        <source>Пассажиропоток, датчики 7–8</source>
        <translation>Пассажиропоток, датчики 7–8</translation>
    </message>
    <message id="orbf_114">
        <source>Пассажиропоток, датчики 9–10</source>
        <translation>Пассажиропоток, датчики 9–10</translation>
    </message>
    <message id="orbf_115">
        <source>Пассажиропоток, датчики 11–12</source>
        <translation>Пассажиропоток, датчики 11–12</translation>
    </message>
    <message id="orbf_116">
        <source>Пассажиропоток, датчики 13–14</source>
        <translation>Пассажиропоток, датчики 13–14</translation>
    </message>
    <message id="orbf_117">
        <source>Пассажиропоток, датчики 15–16</source>
        <translation>Пассажиропоток, датчики 15–16</translation>
    </message>
    <message id="orbf_118">
        <source>Автоинформатор: состояние</source>
        <translation>Автоинформатор: состояние</translation>
    </message>
    <message id="orbf_119">
        <source>Автоинформатор: геозона</source>
        <translation>Автоинформатор: геозона</translation>
    </message>
    <message id="orbf_120">
        <source>Автоинформатор: остановка</source>
        <translation>Автоинформатор: остановка</translation>
    </message>
    <message id="orbf_121">
        <source>Автоинформатор: маршрут</source>
        <translation>Автоинформатор: маршрут</translation>
    </message>
    <message id="orbf_122">
        <source>Камера</source>
        <translation>Камера</translation>
    </message>
    <message id="orbf_123">
        <source>Состояние терминала 2</source>
        <translation>Состояние терминала 2</translation>
    </message>
    <message id="orbf_124">
        <source>Состояние модулей 3</source>
        <translation>Состояние модулей 3</translation>
    </message>
    <message id="orbf_125">
        <source>Состояние соединений</source>
        <translation>Состояние соединений</translation>
    </message>
    <message id="orbf_126">
        <source>Состояние входов 17–24</source>
        <translation>Состояние входов 17–24</translation>
    </message>
    <message id="orbf_127">
        <source>Счётчик импульсов 3</source>
        <translation>Счётчик импульсов 3</translation>
    </message>
    <message id="orbf_128">
        <source>Счётчик импульсов 4</source>
        <translation>Счётчик импульсов 4</translation>
    </message>
    <message id="orbf_129">
        <source>Счётчик импульсов 5</source>
        <translation>Счётчик импульсов 5</translation>
    </message>
    <message id="orbf_130">
        <source>Счётчик импульсов 6</source>
        <translation>Счётчик импульсов 6</translation>
    </message>
    <message id="orbf_131">
        <source>Счётчик импульсов 7</source>
        <translation>Счётчик импульсов 7</translation>
    </message>
    <message id="orbf_132">
        <source>Счётчик импульсов 8</source>
        <translation>Счётчик импульсов 8</translation>
    </message>
    <message id="orbf_133">
        <source>Частота на входе 3</source>
        <translation>Частота на входе 3</translation>
    </message>
    <message id="orbf_134">
        <source>Частота на входе 4</source>
        <translation>Частота на входе 4</translation>
    </message>
    <message id="orbf_135">
        <source>Частота на входе 5</source>
        <translation>Частота на входе 5</translation>
    </message>
    <message id="orbf_136">
        <source>Частота на входе 6</source>
        <translation>Частота на входе 6</translation>
    </message>
    <message id="orbf_137">
        <source>Частота на входе 7</source>
        <translation>Частота на входе 7</translation>
    </message>
    <message id="orbf_138">
        <source>Частота на входе 8</source>
        <translation>Частота на входе 8</translation>
    </message>
    <message id="orbf_139">
        <source>Акселерометр ТС: состояние</source>
        <translation>Акселерометр ТС: состояние</translation>
    </message>
    <message id="orbf_140">
        <source>Акселерометр ТС: вертикальное ускорение</source>
        <translation>Акселерометр ТС: вертикальное ускорение</translation>
    </message>
    <message id="orbf_141">
        <source>Акселерометр ТС: продольное и боковое</source>
        <translation>Акселерометр ТС: продольное и боковое</translation>
    </message>
    <message id="orbf_142">
        <source>Акселерометр ТС: оси X, Y, Z</source>
        <translation>Акселерометр ТС: оси X, Y, Z</translation>
    </message>
    <message id="orbf_143">
        <source>Эко-вождение: максимальное ускорение</source>
        <translation>Эко-вождение: максимальное ускорение</translation>
    </message>
    <message id="orbf_144">
        <source>Эко-вождение: максимальная скорость</source>
        <translation>Эко-вождение: максимальная скорость</translation>
    </message>
    <message id="orbf_145">
        <source>Эко-вождение: превышение скорости</source>
        <translation>Эко-вождение: превышение скорости</translation>
    </message>
    <message id="orbf_146">
        <source>Эко-вождение: события</source>
        <translation>Эко-вождение: события</translation>
    </message>
    <message id="orbf_147">
        <source>Частота ДУТ RS-485 1</source>
        <translation>Частота ДУТ RS-485 1</translation>
    </message>
    <message id="orbf_148">
        <source>Частота ДУТ RS-485 2</source>
        <translation>Частота ДУТ RS-485 2</translation>
    </message>
    <message id="orbf_149">
        <source>Частота ДУТ RS-485 3</source>
        <translation>Частота ДУТ RS-485 3</translation>
    </message>
    <message id="orbf_150">
        <source>Частота ДУТ RS-485 4</source>
        <translation>Частота ДУТ RS-485 4</translation>
    </message>
    <message id="orbf_151">
        <source>Частота ДУТ RS-485 5</source>
        <translation>Частота ДУТ RS-485 5</translation>
    </message>
    <message id="orbf_152">
        <source>Частота ДУТ RS-485 6</source>
        <translation>Частота ДУТ RS-485 6</translation>
    </message>
    <message id="orbf_153">
        <source>Частота ДУТ RS-485 7</source>
        <translation>Частота ДУТ RS-485 7</translation>
    </message>
    <message id="orbf_154">
        <source>Частота ДУТ RS-485 8</source>
        <translation>Частота ДУТ RS-485 8</translation>
    </message>
    <message id="orbf_155">
        <source>Частота ДУТ RS-485 9</source>
        <translation>Частота ДУТ RS-485 9</translation>
    </message>
    <message id="orbf_156">
        <source>Частота ДУТ RS-485 10</source>
        <translation>Частота ДУТ RS-485 10</translation>
    </message>
    <message id="orbf_157">
        <source>Частота ДУТ RS-485 11</source>
        <translation>Частота ДУТ RS-485 11</translation>
    </message>
    <message id="orbf_158">
        <source>Частота ДУТ RS-485 12</source>
        <translation>Частота ДУТ RS-485 12</translation>
    </message>
    <message id="orbf_159">
        <source>Частота ДУТ RS-485 13</source>
        <translation>Частота ДУТ RS-485 13</translation>
    </message>
    <message id="orbf_160">
        <source>Частота ДУТ RS-485 14</source>
        <translation>Частота ДУТ RS-485 14</translation>
    </message>
    <message id="orbf_161">
        <source>Частота ДУТ RS-485 15</source>
        <translation>Частота ДУТ RS-485 15</translation>
    </message>
    <message id="orbf_162">
        <source>Частота ДУТ RS-485 16</source>
        <translation>Частота ДУТ RS-485 16</translation>
    </message>
    <message id="orbf_163">
        <source>Точная температура 1</source>
        <translation>Точная температура 1</translation>
    </message>
    <message id="orbf_164">
        <source>Точная температура 2</source>
        <translation>Точная температура 2</translation>
    </message>
    <message id="orbf_165">
        <source>Точная температура 3</source>
        <translation>Точная температура 3</translation>
    </message>
    <message id="orbf_166">
        <source>Точная температура 4</source>
        <translation>Точная температура 4</translation>
    </message>
    <message id="orbf_167">
        <source>Влажность 1</source>
        <translation>Влажность 1</translation>
    </message>
    <message id="orbf_168">
        <source>Влажность 2</source>
        <translation>Влажность 2</translation>
    </message>
    <message id="orbf_169">
        <source>Влажность 3</source>
        <translation>Влажность 3</translation>
    </message>
    <message id="orbf_170">
        <source>Влажность 4</source>
        <translation>Влажность 4</translation>
    </message>
    <message id="orbf_171">
        <source>Расходомер: состояние</source>
        <translation>Расходомер: состояние</translation>
    </message>
    <message id="orbf_172">
        <source>Расходомер: ошибки</source>
        <translation>Расходомер: ошибки</translation>
    </message>
    <message id="orbf_173">
        <source>Расходомер: общий расход</source>
        <translation>Расходомер: общий расход</translation>
    </message>
    <message id="orbf_174">
        <source>Расходомер: расход за поездку</source>
        <translation>Расходомер: расход за поездку</translation>
    </message>
    <message id="orbf_175">
        <source>Расходомер: мгновенный расход</source>
        <translation>Расходомер: мгновенный расход</translation>
    </message>
    <message id="orbf_176">
        <source>Расходомер: объём подачи</source>
        <translation>Расходомер: объём подачи</translation>
    </message>
    <message id="orbf_177">
        <source>Расходомер: скорость подачи</source>
        <translation>Расходомер: скорость подачи</translation>
    </message>
    <message id="orbf_178">
        <source>Расходомер: температура подачи</source>
        <translation>Расходомер: температура подачи</translation>
    </message>
    <message id="orbf_179">
        <source>Расходомер: объём обратки</source>
        <translation>Расходомер: объём обратки</translation>
    </message>
    <message id="orbf_180">
        <source>Расходомер: скорость обратки</source>
        <translation>Расходомер: скорость обратки</translation>
    </message>
    <message id="orbf_181">
        <source>Расходомер: температура обратки</source>
        <translation>Расходомер: температура обратки</translation>
    </message>
    <message id="orbf_182">
        <source>Рефрижератор: состояние</source>
        <translation>Рефрижератор: состояние</translation>
    </message>
    <message id="orbf_183">
        <source>Рефрижератор: температура камеры 1</source>
        <translation>Рефрижератор: температура камеры 1</translation>
    </message>
    <message id="orbf_184">
        <source>Рефрижератор: температура камеры 2</source>
        <translation>Рефрижератор: температура камеры 2</translation>
    </message>
    <message id="orbf_185">
        <source>Рефрижератор: температура камеры 3</source>
        <translation>Рефрижератор: температура камеры 3</translation>
    </message>
    <message id="orbf_186">
        <source>Рефрижератор: заданная температура камеры 1</source>
        <translation>Рефрижератор: заданная температура камеры 1</translation>
    </message>
    <message id="orbf_187">
        <source>Рефрижератор: заданная температура камеры 2</source>
        <translation>Рефрижератор: заданная температура камеры 2</translation>
    </message>
    <message id="orbf_188">
        <source>Рефрижератор: заданная температура камеры 3</source>
        <translation>Рефрижератор: заданная температура камеры 3</translation>
    </message>
    <message id="orbf_189">
        <source>Рефрижератор: температура воздуха</source>
        <translation>Рефрижератор: температура воздуха</translation>
    </message>
    <message id="orbf_190">
        <source>Рефрижератор: температура охлаждающей жидкости</source>
        <translation>Рефрижератор: температура охлаждающей жидкости</translation>
    </message>
    <message id="orbf_191">
        <source>Рефрижератор: напряжение</source>
        <translation>Рефрижератор: напряжение</translation>
    </message>
    <message id="orbf_192">
        <source>Рефрижератор: ток</source>
        <translation>Рефрижератор: ток</translation>
    </message>
    <message id="orbf_193">
        <source>Рефрижератор: моточасы от двигателя</source>
        <translation>Рефрижератор: моточасы от двигателя</translation>
    </message>
    <message id="orbf_194">
        <source>Рефрижератор: моточасы от сети</source>
        <translation>Рефрижератор: моточасы от сети</translation>
    </message>
    <message id="orbf_195">
        <source>Рефрижератор: число ошибок и ошибка 1</source>
        <translation>Рефрижератор: число ошибок и ошибка 1</translation>
    </message>
    <message id="orbf_196">
        <source>Рефрижератор: ошибки 2–3</source>
        <translation>Рефрижератор: ошибки 2–3</translation>
    </message>
    <message id="orbf_197">
        <source>Рефрижератор: ошибки 4–6</source>
        <translation>Рефрижератор: ошибки 4–6</translation>
    </message>
    <message id="orbf_198">
        <source>Рефрижератор: режим и обороты двигателя</source>
        <translation>Рефрижератор: режим и обороты двигателя</translation>
    </message>
    <message id="orbf_199">
        <source>Рефрижератор: компрессор</source>
        <translation>Рефрижератор: компрессор</translation>
    </message>
    <message id="orbf_200">
        <source>Миллисекунды времени</source>
        <translation>Миллисекунды времени</translation>
    </message>
    <message id="orbf_201">
        <source>CAN: состояние систем</source>
        <translation>CAN: состояние систем</translation>
    </message>
    <message id="orbf_202">
        <source>CAN: событие</source>
        <translation>CAN: событие</translation>
    </message>
    <message id="orbf_203">
        <source>CAN: аварии</source>
        <translation>CAN: аварии</translation>
    </message>
    <message id="orbf_204">
        <source>CAN: неисправность (лампа, код)</source>
        <translation>CAN: неисправность (лампа, код)</translation>
    </message>
    <message id="orbf_205">
        <source>Моточасы под нагрузкой</source>
        <translation>Моточасы под нагрузкой</translation>
    </message>
    <message id="orbf_206">
        <source>Моточасы без нагрузки</source>
        <translation>Моточасы без нагрузки</translation>
    </message>
    <message id="orbf_207">
        <source>Параметр пользователя 1 байт, №1</source>
        <translation>Параметр пользователя 1 байт, №1</translation>
    </message>
    <message id="orbf_208">
        <source>Параметр пользователя 1 байт, №2</source>
        <translation>Параметр пользователя 1 байт, №2</translation>
    </message>
    <message id="orbf_209">
        <source>Параметр пользователя 1 байт, №3</source>
        <translation>Параметр пользователя 1 байт, №3</translation>
    </message>
    <message id="orbf_210">
        <source>Параметр пользователя 1 байт, №4</source>
        <translation>Параметр пользователя 1 байт, №4</translation>
    </message>
    <message id="orbf_211">
        <source>Параметр пользователя 1 байт, №5</source>
        <translation>Параметр пользователя 1 байт, №5</translation>
    </message>
    <message id="orbf_212">
        <source>Параметр пользователя 1 байт, №6</source>
        <translation>Параметр пользователя 1 байт, №6</translation>
    </message>
    <message id="orbf_213">
        <source>Параметр пользователя 1 байт, №7</source>
        <translation>Параметр пользователя 1 байт, №7</translation>
    </message>
    <message id="orbf_214">
        <source>Параметр пользователя 1 байт, №8</source>
        <translation>Параметр пользователя 1 байт, №8</translation>
    </message>
    <message id="orbf_215">
        <source>Параметр пользователя 1 байт, №9</source>
        <translation>Параметр пользователя 1 байт, №9</translation>
    </message>
    <message id="orbf_216">
        <source>Параметр пользователя 1 байт, №10</source>
        <translation>Параметр пользователя 1 байт, №10</translation>
    </message>
    <message id="orbf_217">
        <source>Параметр пользователя 1 байт, №11</source>
        <translation>Параметр пользователя 1 байт, №11</translation>
    </message>
    <message id="orbf_218">
        <source>Параметр пользователя 1 байт, №12</source>
        <translation>Параметр пользователя 1 байт, №12</translation>
    </message>
    <message id="orbf_219">
        <source>Параметр пользователя 1 байт, №13</source>
        <translation>Параметр пользователя 1 байт, №13</translation>
    </message>
    <message id="orbf_220">
        <source>Параметр пользователя 1 байт, №14</source>
        <translation>Параметр пользователя 1 байт, №14</translation>
    </message>
    <message id="orbf_221">
        <source>Параметр пользователя 1 байт, №15</source>
        <translation>Параметр пользователя 1 байт, №15</translation>
    </message>
    <message id="orbf_222">
        <source>Параметр пользователя 1 байт, №16</source>
        <translation>Параметр пользователя 1 байт, №16</translation>
    </message>
    <message id="orbf_223">
        <source>Параметр пользователя 2 байта, №1</source>
        <translation>Параметр пользователя 2 байта, №1</translation>
    </message>
    <message id="orbf_224">
        <source>Параметр пользователя 2 байта, №2</source>
        <translation>Параметр пользователя 2 байта, №2</translation>
    </message>
    <message id="orbf_225">
        <source>Параметр пользователя 2 байта, №3</source>
        <translation>Параметр пользователя 2 байта, №3</translation>
    </message>
    <message id="orbf_226">
        <source>Параметр пользователя 2 байта, №4</source>
        <translation>Параметр пользователя 2 байта, №4</translation>
    </message>
    <message id="orbf_227">
        <source>Параметр пользователя 2 байта, №5</source>
        <translation>Параметр пользователя 2 байта, №5</translation>
    </message>
    <message id="orbf_228">
        <source>Параметр пользователя 2 байта, №6</source>
        <translation>Параметр пользователя 2 байта, №6</translation>
    </message>
    <message id="orbf_229">
        <source>Параметр пользователя 2 байта, №7</source>
        <translation>Параметр пользователя 2 байта, №7</translation>
    </message>
    <message id="orbf_230">
        <source>Параметр пользователя 2 байта, №8</source>
        <translation>Параметр пользователя 2 байта, №8</translation>
    </message>
    <message id="orbf_231">
        <source>Параметр пользователя 2 байта, №9</source>
        <translation>Параметр пользователя 2 байта, №9</translation>
    </message>
    <message id="orbf_232">
        <source>Параметр пользователя 2 байта, №10</source>
        <translation>Параметр пользователя 2 байта, №10</translation>
    </message>
    <message id="orbf_233">
        <source>Параметр пользователя 2 байта, №11</source>
        <translation>Параметр пользователя 2 байта, №11</translation>
    </message>
    <message id="orbf_234">
        <source>Параметр пользователя 2 байта, №12</source>
        <translation>Параметр пользователя 2 байта, №12</translation>
    </message>
    <message id="orbf_235">
        <source>Параметр пользователя 2 байта, №13</source>
        <translation>Параметр пользователя 2 байта, №13</translation>
    </message>
    <message id="orbf_236">
        <source>Параметр пользователя 2 байта, №14</source>
        <translation>Параметр пользователя 2 байта, №14</translation>
    </message>
    <message id="orbf_237">
        <source>Параметр пользователя 2 байта, №15</source>
        <translation>Параметр пользователя 2 байта, №15</translation>
    </message>
    <message id="orbf_238">
        <source>Параметр пользователя 4 байта, №1</source>
        <translation>Параметр пользователя 4 байта, №1</translation>
    </message>
    <message id="orbf_239">
        <source>Параметр пользователя 4 байта, №2</source>
        <translation>Параметр пользователя 4 байта, №2</translation>
    </message>
    <message id="orbf_240">
        <source>Параметр пользователя 4 байта, №3</source>
        <translation>Параметр пользователя 4 байта, №3</translation>
    </message>
    <message id="orbf_241">
        <source>Параметр пользователя 4 байта, №4</source>
        <translation>Параметр пользователя 4 байта, №4</translation>
    </message>
    <message id="orbf_242">
        <source>Параметр пользователя 4 байта, №5</source>
        <translation>Параметр пользователя 4 байта, №5</translation>
    </message>
    <message id="orbf_243">
        <source>Параметр пользователя 4 байта, №6</source>
        <translation>Параметр пользователя 4 байта, №6</translation>
    </message>
    <message id="orbf_244">
        <source>Параметр пользователя 4 байта, №7</source>
        <translation>Параметр пользователя 4 байта, №7</translation>
    </message>
    <message id="orbf_245">
        <source>Параметр пользователя 4 байта, №8</source>
        <translation>Параметр пользователя 4 байта, №8</translation>
    </message>
    <message id="orbf_246">
        <source>Параметр пользователя 4 байта, №9</source>
        <translation>Параметр пользователя 4 байта, №9</translation>
    </message>
    <message id="orbf_247">
        <source>Параметр пользователя 4 байта, №10</source>
        <translation>Параметр пользователя 4 байта, №10</translation>
    </message>
    <message id="orbf_248">
        <source>Параметр пользователя 4 байта, №11</source>
        <translation>Параметр пользователя 4 байта, №11</translation>
    </message>
    <message id="orbf_249">
        <source>Параметр пользователя 4 байта, №12</source>
        <translation>Параметр пользователя 4 байта, №12</translation>
    </message>
    <message id="orbf_250">
        <source>Параметр пользователя 4 байта, №13</source>
        <translation>Параметр пользователя 4 байта, №13</translation>
    </message>
    <message id="orbf_251">
        <source>Параметр пользователя 4 байта, №14</source>
        <translation>Параметр пользователя 4 байта, №14</translation>
    </message>
    <message id="orbf_252">
        <source>Параметр пользователя 4 байта, №15</source>
        <translation>Параметр пользователя 4 байта, №15</translation>
    </message>
    <message id="orbf_253">
        <source>Параметр пользователя 8 байт, №1</source>
        <translation>Параметр пользователя 8 байт, №1</translation>
    </message>
    <message id="orbf_254">
        <source>Параметр пользователя 8 байт, №2</source>
        <translation>Параметр пользователя 8 байт, №2</translation>
    </message>
    <message id="orbf_255">
        <source>Параметр пользователя 8 байт, №3</source>
        <translation>Параметр пользователя 8 байт, №3</translation>
    </message>
    <message id="tmio_030">
        <source>Расширенная запись</source>
        <translation>Расширенная запись</translation>
    </message>
    <message id="tmio_031">
        <source>Поле</source>
        <translation>Поле</translation>
    </message>
    <message id="tmio_032">
        <source>Значение</source>
        <translation>Значение</translation>
    </message>
    <message id="tmio_033">
        <source>Тип</source>
        <translation>Тип</translation>
    </message>
    <message id="tmio_034">
        <source>Размер</source>
        <translation>Размер</translation>
    </message>
    <message id="tmio_001">
        <source>Основное</source>
        <translation>Основное</translation>
    </message>
    <message id="tmio_002">
        <source>Навигация</source>
        <translation>Навигация</translation>
    </message>
    <message id="tmio_003">
        <source>Питание, входы и выходы</source>
        <translation>Питание, входы и выходы</translation>
    </message>
    <message id="tmio_004">
        <source>Датчики</source>
        <translation>Датчики</translation>
    </message>
    <message id="tmio_005">
        <source>Шина CAN</source>
        <translation>Шина CAN</translation>
    </message>
    <message id="tmio_007">
        <source>Тахограф</source>
        <translation>Тахограф</translation>
    </message>
    <message id="tmio_008">
        <source>Акселерометр и эко-вождение</source>
        <translation>Акселерометр и эко-вождение</translation>
    </message>
    <message id="tmio_009">
        <source>Пассажиры</source>
        <translation>Пассажиры</translation>
    </message>
    <message id="tmio_010">
        <source>Геоинформация</source>
        <translation>Геоинформация</translation>
    </message>
    <message id="tmio_011">
        <source>Датчики расхода топлива</source>
        <translation>Датчики расхода топлива</translation>
    </message>
    <message id="tmio_012">
        <source>Рефрижератор</source>
        <translation>Рефрижератор</translation>
    </message>
    <message id="tmio_013">
        <source>Пользовательские параметры</source>
        <translation>Пользовательские параметры</translation>
    </message>
    <message id="tmio_006">
        <source>Шины</source>
        <translation>Шины</translation>
    </message>
    <message id="tmio_014">
        <source>Исходные данные</source>
        <translation>Исходные данные</translation>
    </message>
    <message id="tmio_020">
        <source>Номер датчика</source>
        <translation>Номер датчика</translation>
    </message>
    <message id="tmio_021">
        <source>Давление</source>
        <translation>Давление</translation>
    </message>
    <message id="tmio_022">
        <source>Температура</source>
        <translation>Температура</translation>
    </message>
    <message id="tmio_023">
        <source>Версия %1, набор полей (%2): %3</source>
        <translation>Версия %1, набор полей (%2): %3</translation>
    </message>
    <message id="tmio_024">
        <source>Тело записи, %1 байт:</source>
        <translation>Тело записи, %1 байт:</translation>
    </message>
    <message id="tmio_041">
        <source>Питание</source>
        <translation>Питание</translation>
    </message>
    <message id="tmio_042">
        <source>Входы 1-8</source>
        <translation>Входы 1-8</translation>
    </message>
    <message id="tmio_043">
        <source>Аналоговый вход 1</source>
        <translation>Аналоговый вход 1</translation>
    </message>
    <message id="tmio_044">
        <source>Аналоговый вход 2</source>
        <translation>Аналоговый вход 2</translation>
    </message>
    <message id="tmio_045">
        <source>Выход 1</source>
        <translation>Выход 1</translation>
    </message>
    <message id="tmio_046">
        <source>Выход 2</source>
        <translation>Выход 2</translation>
    </message>
    <message id="tmio_047">
        <source>Спутники</source>
        <translation>Спутники</translation>
    </message>
    <message id="tmio_048">
        <source>Навигация (фиксация)</source>
        <translation>Навигация (фиксация)</translation>
    </message>
    <message id="tmio_049">
        <source>Уровень GSM</source>
        <translation>Уровень GSM</translation>
    </message>
    <message id="tmio_050">
        <source>Температура 1</source>
        <translation>Температура 1</translation>
    </message>
    <message id="tmio_051">
        <source>Температура 2</source>
        <translation>Температура 2</translation>
    </message>
    <message id="tmio_052">
        <source>Температура (точная) 1</source>
        <translation>Температура (точная) 1</translation>
    </message>
    <message id="tmio_040">
        <source>Проверка на производстве</source>
        <translation>Проверка на производстве</translation>
    </message>
    <message id="tmio_053">
        <source>ВКЛ</source>
        <translation>ВКЛ</translation>
    </message>
    <message id="tmio_054">
        <source>выкл</source>
        <translation>выкл</translation>
    </message>
    <message id="tmiw_043">
        <source>%1: мин. %2, макс. %3</source>
        <translation>%1: мин. %2, макс. %3</translation>
    </message>
    <message id="tmiw_044">
        <source>%1: нет данных</source>
        <translation>%1: нет данных</translation>
    </message>
    <message id="tmiw_040">
        <source>расширенная</source>
        <translation>расширенная</translation>
    </message>
    <message id="tmiw_041">
        <source>без номера</source>
        <translation>без номера</translation>
    </message>
    <message id="tmiw_042">
        <source>история</source>
        <translation>история</translation>
    </message>
    <message id="tmiw_001">
        <source>Текущая запись</source>
        <translation>Текущая запись</translation>
    </message>
    <message id="tmiw_002">
        <source>◀ Предыдущая</source>
        <translation>◀ Предыдущая</translation>
    </message>
    <message id="tmiw_003">
        <source>Следующая ▶</source>
        <translation>Следующая ▶</translation>
    </message>
    <message id="tmiw_004">
        <source>Показать</source>
        <translation>Показать</translation>
    </message>
    <message id="tmiw_005">
        <source>Часы терминала от UTC:</source>
        <translation>Часы терминала от UTC:</translation>
    </message>
    <message id="tmiw_006">
        <source>Автозапрос</source>
        <translation>Автозапрос</translation>
    </message>
    <message id="tmiw_007">
        <source>Период автозапроса, 1..60 с</source>
        <translation>Период автозапроса, 1..60 с</translation>
    </message>
    <message id="tmiw_008">
        <source>Скрывать отсутствующие поля</source>
        <translation>Скрывать отсутствующие поля</translation>
    </message>
    <message id="tmiw_009">
        <source>Сохранить…</source>
        <translation>Сохранить…</translation>
    </message>
    <message id="tmiw_010">
        <source>График</source>
        <translation>График</translation>
    </message>
    <message id="tmiw_011">
        <source>Команды</source>
        <translation>Команды</translation>
    </message>
    <message id="tmiw_012">
        <source>Журнал</source>
        <translation>Журнал</translation>
    </message>
    <message id="tmiw_013">
        <source>Добавить</source>
        <translation>Добавить</translation>
    </message>
    <message id="tmiw_014">
        <source>Очистить</source>
        <translation>Очистить</translation>
    </message>
    <message id="tmiw_015">
        <source>Выход</source>
        <translation>Выход</translation>
    </message>
    <message id="tmiw_016">
        <source>Включить</source>
        <translation>Включить</translation>
    </message>
    <message id="tmiw_017">
        <source>Выключить</source>
        <translation>Выключить</translation>
    </message>
    <message id="tmiw_018">
        <source>Охрана</source>
        <translation>Охрана</translation>
    </message>
    <message id="tmiw_019">
        <source>Поставить</source>
        <translation>Поставить</translation>
    </message>
    <message id="tmiw_020">
        <source>Снять</source>
        <translation>Снять</translation>
    </message>
    <message id="tmiw_021">
        <source>Очистка</source>
        <translation>Очистка</translation>
    </message>
    <message id="tmiw_022">
        <source>Очистить</source>
        <translation>Очистить</translation>
    </message>
    <message id="tmiw_023">
        <source>Вывод GNSS/NMEA</source>
        <translation>Вывод GNSS/NMEA</translation>
    </message>
    <message id="tmiw_024">
        <source>Параметр</source>
        <translation>Параметр</translation>
    </message>
    <message id="tmiw_025">
        <source>Установить</source>
        <translation>Установить</translation>
    </message>
    <message id="tmiw_026">
        <source>Команда с числом</source>
        <translation>Команда с числом</translation>
    </message>
    <message id="tmiw_027">
        <source>Выполнить</source>
        <translation>Выполнить</translation>
    </message>
    <message id="tmiw_028">
        <source>Ключ / карта</source>
        <translation>Ключ / карта</translation>
    </message>
    <message id="tmiw_029">
        <source>Прочитать ключ ТМ</source>
        <translation>Прочитать ключ ТМ</translation>
    </message>
    <message id="tmiw_030">
        <source>Прочитать RFID-карту</source>
        <translation>Прочитать RFID-карту</translation>
    </message>
    <message id="tmiw_031">
        <source>Код ключа ТМ</source>
        <translation>Код ключа ТМ</translation>
    </message>
    <message id="tmiw_032">
        <source>Код RFID</source>
        <translation>Код RFID</translation>
    </message>
    <message id="tmiw_033">
        <source>ДУТ: команда</source>
        <translation>ДУТ: команда</translation>
    </message>
    <message id="tmiw_034">
        <source>Отправить</source>
        <translation>Отправить</translation>
    </message>
    <message id="tmiw_035">
        <source>Прошивка датчика</source>
        <translation>Прошивка датчика</translation>
    </message>
    <message id="tmiw_036">
        <source>Выбрать файл…</source>
        <translation>Выбрать файл…</translation>
    </message>
    <message id="tmiw_037">
        <source>Тахограф: запрос</source>
        <translation>Тахограф: запрос</translation>
    </message>
    <message id="tmiw_038">
        <source>Запросить</source>
        <translation>Запросить</translation>
    </message>
    <message id="tmiw_039">
        <source>Тахограф: файл</source>
        <translation>Тахограф: файл</translation>
    </message>
    <message id="tmiw_045">
        <source>Тахограф: чтение файла</source>
        <translation>Тахограф: чтение файла</translation>
    </message>
    <message id="tmiw_046">
        <source>Прочитать</source>
        <translation>Прочитать</translation>
    </message>
    <message id="tmiw_047">
        <source>ДУТ: данные</source>
        <translation>ДУТ: данные</translation>
    </message>
    <message id="tmiw_048">
        <source>ДУТ: файл данных</source>
        <translation>ДУТ: файл данных</translation>
    </message>
    <message id="tmiw_049">
        <source>Память записей</source>
        <translation>Память записей</translation>
    </message>
    <message id="tmiw_050">
        <source>Счётчики</source>
        <translation>Счётчики</translation>
    </message>
    <message id="tmiw_051">
        <source>Всё</source>
        <translation>Всё</translation>
    </message>
    <message id="tmiw_052">
        <source>Бортовое устройство</source>
        <translation>Бортовое устройство</translation>
    </message>
    <message id="tmiw_053">
        <source>Карта водителя</source>
        <translation>Карта водителя</translation>
    </message>
    <message id="tmiw_054">
        <source>Номер выхода, 1..8</source>
        <translation>Номер выхода, 1..8</translation>
    </message>
    <message id="tmiw_055">
        <source>Смещение часов терминала от UTC, часы (-12..14). 0 — терминал живёт по UTC. Время записей показано по часам этого компьютера; «Показать» ищет запись на момент из поля минус это смещение.</source>
        <translation>Смещение часов терминала от UTC, часы (-12..14). 0 — терминал живёт по UTC. Время записей показано по часам этого компьютера; «Показать» ищет запись на момент из поля минус это смещение.</translation>
    </message>
    <message id="tmiw_056">
        <source>Минуты смещения часов терминала от UTC (0..45), со знаком часов</source>
        <translation>Минуты смещения часов терминала от UTC (0..45), со знаком часов</translation>
    </message>
    <message id="tmiw_057">
        <source>Номер показанной записи</source>
        <translation>Номер показанной записи</translation>
    </message>
    <message id="tmiw_058">
        <source>Число для команды</source>
        <translation>Число для команды</translation>
    </message>
    <message id="tmiw_059">
        <source>Момент по часам этого компьютера: «Показать» находит ближайшую запись до него</source>
        <translation>Момент по часам этого компьютера: «Показать» находит ближайшую запись до него</translation>
    </message>
    <message id="tmiw_060">
        <source>Числовое поле для графика</source>
        <translation>Числовое поле для графика</translation>
    </message>
    <message id="tmiw_061">
        <source>Текст параметра, например «имя=значение»</source>
        <translation>Текст параметра, например «имя=значение»</translation>
    </message>
    <message id="tmiw_062">
        <source>Команда датчику уровня топлива</source>
        <translation>Команда датчику уровня топлива</translation>
    </message>
    <message id="tmiw_063">
        <source>Вид запроса тахографа, 0..255</source>
        <translation>Вид запроса тахографа, 0..255</translation>
    </message>
    <message id="tmiw_064">
        <source>Начало периода</source>
        <translation>Начало периода</translation>
    </message>
    <message id="tmiw_065">
        <source>Конец периода</source>
        <translation>Конец периода</translation>
    </message>
    <message id="tmiw_066">
        <source>Имя файла тахографа</source>
        <translation>Имя файла тахографа</translation>
    </message>
    <message id="tmiw_067">
        <source>Датчик</source>
        <translation>Датчик</translation>
    </message>
    <message id="tmiw_068">
        <source>Запрос</source>
        <translation>Запрос</translation>
    </message>
    <message id="tmiw_069">
        <source>Имя файла данных датчика</source>
        <translation>Имя файла данных датчика</translation>
    </message>
    <message id="tmiw_070">
        <source>Запросите текущую запись</source>
        <translation>Запросите текущую запись</translation>
    </message>
    <message id="tmiw_071">
        <source>Записи этого сеанса; щелчок показывает запись</source>
        <translation>Записи этого сеанса; щелчок показывает запись</translation>
    </message>
    <message id="tmiw_080">
        <source>Удалённый сеанс с терминалом завершён</source>
        <translation>Удалённый сеанс с терминалом завершён</translation>
    </message>
    <message id="tmiw_081">
        <source>Терминал подключён</source>
        <translation>Терминал подключён</translation>
    </message>
    <message id="tmiw_082">
        <source>Терминал не подключён</source>
        <translation>Терминал не подключён</translation>
    </message>
    <message id="tmiw_083">
        <source>Параметры конфигурации: %1</source>
        <translation>Параметры конфигурации: %1</translation>
    </message>
    <message id="tmiw_084">
        <source>Запрос режима проверки</source>
        <translation>Запрос режима проверки</translation>
    </message>
    <message id="tmiw_223">
        <source>Неизвестный тип записи</source>
        <translation>Неизвестный тип записи</translation>
    </message>
    <message id="tmiw_085">
        <source>Получена: %1</source>
        <translation>Получена: %1</translation>
    </message>
    <message id="tmiw_086">
        <source>время записи: %1</source>
        <translation>время записи: %1</translation>
    </message>
    <message id="tmiw_087">
        <source>возраст координат: %1 %2</source>
        <translation>возраст координат: %1 %2</translation>
    </message>
    <message id="abbr_003">
        <source>с</source>
        <translation>с</translation>
    </message>
    <message id="tmiw_088">
        <source>координат нет</source>
        <translation>координат нет</translation>
    </message>
    <message id="tmiw_089">
        <source>ИЗ ИСТОРИИ (по номеру)</source>
        <translation>ИЗ ИСТОРИИ (по номеру)</translation>
    </message>
    <message id="tmiw_090">
        <source>ИЗ ИСТОРИИ (по времени)</source>
        <translation>ИЗ ИСТОРИИ (по времени)</translation>
    </message>
    <message id="tmiw_091">
        <source>Команда терминалу</source>
        <translation>Команда терминалу</translation>
    </message>
    <message id="tmiw_092">
        <source>Включить выход %1?</source>
        <translation>Включить выход %1?</translation>
    </message>
    <message id="tmiw_093">
        <source>Выключить выход %1?</source>
        <translation>Выключить выход %1?</translation>
    </message>
    <message id="tmiw_094">
        <source>Поставить терминал на охрану?</source>
        <translation>Поставить терминал на охрану?</translation>
    </message>
    <message id="tmiw_095">
        <source>Снять терминал с охраны?</source>
        <translation>Снять терминал с охраны?</translation>
    </message>
    <message id="tmiw_096">
        <source>Выполнить «%1»? Данные терминала будут удалены.</source>
        <translation>Выполнить «%1»? Данные терминала будут удалены.</translation>
    </message>
    <message id="tmiw_097">
        <source>Файл прошивки датчика</source>
        <translation>Файл прошивки датчика</translation>
    </message>
    <message id="tmiw_098">
        <source>Записать прошивку %1 в датчик? Датчик будет недоступен до конца записи.</source>
        <translation>Записать прошивку %1 в датчик? Датчик будет недоступен до конца записи.</translation>
    </message>
    <message id="tmiw_099">
        <source>Значение параметра</source>
        <translation>Значение параметра</translation>
    </message>
    <message id="tmiw_100">
        <source>Ответ на команду</source>
        <translation>Ответ на команду</translation>
    </message>
    <message id="tmiw_101">
        <source>Ответ датчика топлива</source>
        <translation>Ответ датчика топлива</translation>
    </message>
    <message id="tmiw_102">
        <source>Параметры прошивки датчика</source>
        <translation>Параметры прошивки датчика</translation>
    </message>
    <message id="tmiw_103">
        <source>Ключ ТМ: %1</source>
        <translation>Ключ ТМ: %1</translation>
    </message>
    <message id="tmiw_104">
        <source>Получены значения АЦП универсальных входов</source>
        <translation>Получены значения АЦП универсальных входов</translation>
    </message>
    <message id="tmiw_105">
        <source>Текущее значение дисплея: %1</source>
        <translation>Текущее значение дисплея: %1</translation>
    </message>
    <message id="tmiw_106">
        <source>RFID-карта: %1 (%2)</source>
        <translation>RFID-карта: %1 (%2)</translation>
    </message>
    <message id="tmiw_107">
        <source>Ответ тахографа</source>
        <translation>Ответ тахографа</translation>
    </message>
    <message id="tmiw_108">
        <source>Файл тахографа прочитан</source>
        <translation>Файл тахографа прочитан</translation>
    </message>
    <message id="tmiw_109">
        <source>Файл тахографа не прочитан</source>
        <translation>Файл тахографа не прочитан</translation>
    </message>
    <message id="tmiw_110">
        <source>Ответ на запрос файла данных датчика</source>
        <translation>Ответ на запрос файла данных датчика</translation>
    </message>
    <message id="tmiw_111">
        <source>Файл данных датчика прочитан</source>
        <translation>Файл данных датчика прочитан</translation>
    </message>
    <message id="tmiw_112">
        <source>Файл данных датчика не прочитан</source>
        <translation>Файл данных датчика не прочитан</translation>
    </message>
    <message id="tmiw_114">
        <source>Сохранить записи телеметрии</source>
        <translation>Сохранить записи телеметрии</translation>
    </message>
    <message id="tmiw_115">
        <source>Телеметрия (*.tmi);;XML (*.xml);;CSV (*.csv);;KML (*.kml)</source>
        <translation>Телеметрия (*.tmi);;XML (*.xml);;CSV (*.csv);;KML (*.kml)</translation>
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
    <message id="cfgo_001">
        <source>Основные</source>
        <translation>Основные</translation>
    </message>
    <message id="cfgo_002">
        <source>Навигация</source>
        <translation>Навигация</translation>
    </message>
    <message id="cfgo_003">
        <source>Датчики RS</source>
        <translation>Датчики RS</translation>
    </message>
    <message id="cfgo_004">
        <source>Шина CAN</source>
        <translation>Шина CAN</translation>
    </message>
    <message id="cfgo_005">
        <source>Тахограф</source>
        <translation>Тахограф</translation>
    </message>
    <message id="cfgo_006">
        <source>Дополнительно</source>
        <translation>Дополнительно</translation>
    </message>
    <message id="cfgo_007">
        <source>Акселерометр</source>
        <translation>Акселерометр</translation>
    </message>
    <message id="cfgo_008">
        <source>Расходомер</source>
        <translation>Расходомер</translation>
    </message>
    <message id="cfgo_009">
        <source>Рефрижератор</source>
        <translation>Рефрижератор</translation>
    </message>
    <message id="cfgo_010">
        <source>Пользовательские</source>
        <translation>Пользовательские</translation>
    </message>
    <message id="cfgo_015">
        <source>Поле %1, размер в записи: %2 байт</source>
        <translation>Поле %1, размер в записи: %2 байт</translation>
    </message>
    <message id="cfgo_050">
        <source>Запись и состояние терминала</source>
        <translation>Запись и состояние терминала</translation>
    </message>
    <message id="cfgo_051">
        <source>Питание</source>
        <translation>Питание</translation>
    </message>
    <message id="cfgo_052">
        <source>Аналоговые входы</source>
        <translation>Аналоговые входы</translation>
    </message>
    <message id="cfgo_053">
        <source>Дискретные входы и выходы</source>
        <translation>Дискретные входы и выходы</translation>
    </message>
    <message id="cfgo_054">
        <source>Счётчики импульсов и частота</source>
        <translation>Счётчики импульсов и частота</translation>
    </message>
    <message id="cfgo_055">
        <source>Моточасы</source>
        <translation>Моточасы</translation>
    </message>
    <message id="cfgo_056">
        <source>Температура</source>
        <translation>Температура</translation>
    </message>
    <message id="cfgo_057">
        <source>Координаты и движение</source>
        <translation>Координаты и движение</translation>
    </message>
    <message id="cfgo_058">
        <source>Навигационный приёмник</source>
        <translation>Навигационный приёмник</translation>
    </message>
    <message id="cfgo_059">
        <source>Базовые станции</source>
        <translation>Базовые станции</translation>
    </message>
    <message id="cfgo_060">
        <source>ДУТ RS-485 1–6 и RS-232</source>
        <translation>ДУТ RS-485 1–6 и RS-232</translation>
    </message>
    <message id="cfgo_061">
        <source>Температура ДУТ RS-485</source>
        <translation>Температура ДУТ RS-485</translation>
    </message>
    <message id="cfgo_062">
        <source>ДУТ RS-485 7–16</source>
        <translation>ДУТ RS-485 7–16</translation>
    </message>
    <message id="cfgo_063">
        <source>Частота ДУТ RS-485</source>
        <translation>Частота ДУТ RS-485</translation>
    </message>
    <message id="cfgo_064">
        <source>Данные шины CAN</source>
        <translation>Данные шины CAN</translation>
    </message>
    <message id="cfgo_065">
        <source>Состояние систем ТС по CAN</source>
        <translation>Состояние систем ТС по CAN</translation>
    </message>
    <message id="cfgo_066">
        <source>Данные тахографа</source>
        <translation>Данные тахографа</translation>
    </message>
    <message id="cfgo_021">
        <source>Датчики давления в шинах</source>
        <translation>Датчики давления в шинах</translation>
    </message>
    <message id="cfgo_067">
        <source>Диспетчерские сообщения</source>
        <translation>Диспетчерские сообщения</translation>
    </message>
    <message id="cfgo_068">
        <source>Пассажиропоток</source>
        <translation>Пассажиропоток</translation>
    </message>
    <message id="cfgo_069">
        <source>Автоинформатор</source>
        <translation>Автоинформатор</translation>
    </message>
    <message id="cfgo_070">
        <source>Камера и акселерометр ТС</source>
        <translation>Камера и акселерометр ТС</translation>
    </message>
    <message id="cfgo_071">
        <source>Точная температура</source>
        <translation>Точная температура</translation>
    </message>
    <message id="cfgo_072">
        <source>Влажность</source>
        <translation>Влажность</translation>
    </message>
    <message id="cfgo_022">
        <source>Нет</source>
        <translation>Нет</translation>
    </message>
    <message id="cfgo_028">
        <source>Поля 94–97: шины 1–2, 3–6, 7–14 и 15–30</source>
        <translation>Поля 94–97: шины 1–2, 3–6, 7–14 и 15–30</translation>
    </message>
    <message id="cfgo_073">
        <source>Акселерометр терминала</source>
        <translation>Акселерометр терминала</translation>
    </message>
    <message id="cfgo_074">
        <source>Акселерометр ТС и эко-вождение</source>
        <translation>Акселерометр ТС и эко-вождение</translation>
    </message>
    <message id="cfgo_075">
        <source>Расходомер топлива</source>
        <translation>Расходомер топлива</translation>
    </message>
    <message id="cfgo_076">
        <source>Рефрижераторная установка</source>
        <translation>Рефрижераторная установка</translation>
    </message>
    <message id="cfgo_077">
        <source>Параметры 1 байт</source>
        <translation>Параметры 1 байт</translation>
    </message>
    <message id="cfgo_078">
        <source>Параметры 2 байта</source>
        <translation>Параметры 2 байта</translation>
    </message>
    <message id="cfgo_079">
        <source>Параметры 4 байта</source>
        <translation>Параметры 4 байта</translation>
    </message>
    <message id="cfgo_080">
        <source>Параметры 8 байт</source>
        <translation>Параметры 8 байт</translation>
    </message>
    <message id="cfgo_023">
        <source>Целое без знака</source>
        <translation>Целое без знака</translation>
    </message>
    <message id="cfgo_024">
        <source>Целое со знаком</source>
        <translation>Целое со знаком</translation>
    </message>
    <message id="cfgo_025">
        <source>Шестнадцатеричное</source>
        <translation>Шестнадцатеричное</translation>
    </message>
    <message id="cfgo_026">
        <source>С плавающей точкой</source>
        <translation>С плавающей точкой</translation>
    </message>
    <message id="cfgo_027">
        <source>Название параметра</source>
        <translation>Название параметра</translation>
    </message>
    <message id="cfgo_014">
        <source>Запись</source>
        <translation>Запись</translation>
    </message>
    <message id="cfgo_011">
        <source>ORBA 1 (поля 1–69)</source>
        <translation>ORBA 1 (поля 1–69)</translation>
    </message>
    <message id="cfgo_012">
        <source>ORBA 2 (поля 1–122)</source>
        <translation>ORBA 2 (поля 1–122)</translation>
    </message>
    <message id="cfgo_013">
        <source>ORBA 3 (поля 1–255)</source>
        <translation>ORBA 3 (поля 1–255)</translation>
    </message>
    <message id="cfgo_017">
        <source>По вкладкам, байт: %1</source>
        <translation>По вкладкам, байт: %1</translation>
    </message>
    <message id="cfgo_016">
        <source>Запись: %1 байт, больше допустимых %2, терминал не сохранит такие записи. Снимите часть полей.</source>
        <translation>Запись: %1 байт, больше допустимых %2, терминал не сохранит такие записи. Снимите часть полей.</translation>
    </message>
    <message id="cfgo_019">
        <source>Файл %1 не является конфигурацией с набором полей записи.</source>
        <translation>Файл %1 не является конфигурацией с набором полей записи.</translation>
    </message>
    <message id="cfgo_018">
        <source>Набор полей из файла конфигурации</source>
        <translation>Набор полей из файла конфигурации</translation>
    </message>
    <message id="cfgo_020">
        <source>Файлы конфигурации (*.xml);;Все файлы (*)</source>
        <translation>Файлы конфигурации (*.xml);;Все файлы (*)</translation>
    </message>
    <message id="cfgo_029">
        <source>Ошибка</source>
        <translation>Ошибка</translation>
    </message>
    <message id="cfgo_030">
        <source></source>
        <translation>Поколение протокола:</translation>
    </message>
    <message id="cfgo_031">
        <source></source>
        <translation>Какие поля может записывать терминал: ORBA 1 — поля 1–69, ORBA 2 — 1–122, ORBA 3 — 1–255</translation>
    </message>
    <message id="cfgo_032">
        <source></source>
        <translation>Размер записи, байт:</translation>
    </message>
    <message id="cfgo_033">
        <source></source>
        <translation>Сумма размеров отмеченных полей; не более 512 байт</translation>
    </message>
    <message id="cfgo_034">
        <source></source>
        <translation>Поиск поля по названию на всех вкладках</translation>
    </message>
    <message id="cfgo_035">
        <source></source>
        <translation>Найти поле…</translation>
    </message>
    <message id="cfgo_036">
        <source></source>
        <translation>Только отмеченные</translation>
    </message>
    <message id="cfgo_037">
        <source></source>
        <translation>Наборы полей:</translation>
    </message>
    <message id="cfgo_038">
        <source></source>
        <translation>По умолчанию</translation>
    </message>
    <message id="cfgo_039">
        <source></source>
        <translation>Поля, которые терминал записывает по умолчанию</translation>
    </message>
    <message id="cfgo_040">
        <source></source>
        <translation>Только навигация</translation>
    </message>
    <message id="cfgo_041">
        <source></source>
        <translation>Номер, событие, время, координаты, высота, скорость, курс и пробег</translation>
    </message>
    <message id="cfgo_042">
        <source></source>
        <translation>Из файла…</translation>
    </message>
    <message id="cfgo_043">
        <source></source>
        <translation>Взять набор полей из другого файла конфигурации</translation>
    </message>
    <message id="cfgo_081">
        <source>Поколение протокола ORBA</source>
        <translation>Поколение протокола ORBA</translation>
    </message>
    <message id="cfgo_082">
        <source>Поля записи (маска)</source>
        <translation>Поля записи (маска)</translation>
    </message>
    <message id="tmif_017">
        <source>№ в файле</source>
        <translation>№ в файле</translation>
    </message>
    <message id="tmif_020">
        <source>Первая</source>
        <translation>Первая</translation>
    </message>
    <message id="tmif_021">
        <source>Предыдущая</source>
        <translation>Предыдущая</translation>
    </message>
    <message id="tmif_022">
        <source>Следующая</source>
        <translation>Следующая</translation>
    </message>
    <message id="tmif_023">
        <source>Последняя</source>
        <translation>Последняя</translation>
    </message>
    <message id="tmif_024">
        <source>Номер:</source>
        <translation>Номер:</translation>
    </message>
    <message id="tmif_025">
        <source>Перейти</source>
        <translation>Перейти</translation>
    </message>
    <message id="tmif_026">
        <source>Найти по времени</source>
        <translation>Найти по времени</translation>
    </message>
    <message id="tmif_030">
        <source>Номер записи в файле, от 1 до числа записей</source>
        <translation>Номер записи в файле, от 1 до числа записей</translation>
    </message>
    <message id="tmif_031">
        <source>Первая запись, время которой не раньше заданного</source>
        <translation>Первая запись, время которой не раньше заданного</translation>
    </message>
    <message id="tmif_040">
        <source>Коды событий:</source>
        <translation>Коды событий:</translation>
    </message>
    <message id="tmif_041">
        <source>Коды событий через запятую или пробел, от 0 до 65535; пусто — любые</source>
        <translation>Коды событий через запятую или пробел, от 0 до 65535; пусто — любые</translation>
    </message>
    <message id="tmif_042">
        <source>Время с</source>
        <translation>Время с</translation>
    </message>
    <message id="tmif_043">
        <source>по</source>
        <translation>по</translation>
    </message>
    <message id="tmif_044">
        <source>Применить</source>
        <translation>Применить</translation>
    </message>
    <message id="tmif_045">
        <source>Сбросить</source>
        <translation>Сбросить</translation>
    </message>
    <message id="tmif_046">
        <source>Столбцы…</source>
        <translation>Столбцы…</translation>
    </message>
    <message id="tmif_047">
        <source>Экспорт CSV…</source>
        <translation>Экспорт CSV…</translation>
    </message>
    <message id="tmif_048">
        <source>Экспорт KML…</source>
        <translation>Экспорт KML…</translation>
    </message>
    <message id="tmif_053">
        <source>Время записи (местное), границы включены</source>
        <translation>Время записи (местное), границы включены</translation>
    </message>
    <message id="tmif_054">
        <source>Какие поля показывать столбцами</source>
        <translation>Какие поля показывать столбцами</translation>
    </message>
    <message id="tmif_055">
        <source>Сохранить показанные записи в CSV</source>
        <translation>Сохранить показанные записи в CSV</translation>
    </message>
    <message id="tmif_056">
        <source>Сохранить трек показанных записей в KML</source>
        <translation>Сохранить трек показанных записей в KML</translation>
    </message>
    <message id="tmif_060">
        <source>Файл телеметрии</source>
        <translation>Файл телеметрии</translation>
    </message>
    <message id="tmif_061">
        <source>%1

До ошибки прочитано записей: %2. Показать их?</source>
        <translation>%1

До ошибки прочитано записей: %2. Показать их?</translation>
    </message>
    <message id="tmif_028">
        <source>Поле</source>
        <translation>Поле</translation>
    </message>
    <message id="tmif_029">
        <source>Значение</source>
        <translation>Значение</translation>
    </message>
    <message id="tmif_032">
        <source>Неизвестная запись</source>
        <translation>Неизвестная запись</translation>
    </message>
    <message id="tmif_027">
        <source>Запись %1 из %2</source>
        <translation>Запись %1 из %2</translation>
    </message>
    <message id="tmif_033">
        <source>Нет записей с временем не раньше %1.</source>
        <translation>Нет записей с временем не раньше %1.</translation>
    </message>
    <message id="tmif_034">
        <source>«%1» — не код события (от 0 до 65535)</source>
        <translation>«%1» — не код события (от 0 до 65535)</translation>
    </message>
    <message id="tmif_035">
        <source>Начало интервала позже его конца</source>
        <translation>Начало интервала позже его конца</translation>
    </message>
    <message id="tmif_036">
        <source>Не удаётся записать файл «%1»: %2</source>
        <translation>Не удаётся записать файл «%1»: %2</translation>
    </message>
    <message id="tmif_037">
        <source>Сохранить записи</source>
        <translation>Сохранить записи</translation>
    </message>
    <message id="tmif_049">
        <source>Показано записей: %1 из %2</source>
        <translation>Показано записей: %1 из %2</translation>
    </message>
    <message id="cmpc_001">
        <source>Сравнение конфигураций</source>
        <translation>Сравнение конфигураций</translation>
    </message>
    <message id="cmpc_002">
        <source>Раздел / узел</source>
        <translation>Раздел / узел</translation>
    </message>
    <message id="cmpc_003">
        <source>Ключ</source>
        <translation>Ключ</translation>
    </message>
    <message id="cmpc_004">
        <source>Название</source>
        <translation>Название</translation>
    </message>
    <message id="cmpc_005">
        <source>В редакторе</source>
        <translation>В редакторе</translation>
    </message>
    <message id="cmpc_006">
        <source>В другой</source>
        <translation>В другой</translation>
    </message>
    <message id="cmpc_007">
        <source>Сравнение с: %1</source>
        <translation>Сравнение с: %1</translation>
    </message>
    <message id="cmpc_008">
        <source>Различий нет.</source>
        <translation>Различий нет.</translation>
    </message>
    <message id="cmpc_009">
        <source>Различий: %1</source>
        <translation>Различий: %1</translation>
    </message>
    <message id="cmpc_010">
        <source>(нет)</source>
        <translation>(нет)</translation>
    </message>
    <message id="cmpc_011">
        <source>(корень)</source>
        <translation>(корень)</translation>
    </message>
    <message id="cfgx_002">
        <source>Настройки терминала, для которых в этом редакторе нет страницы. Они сохраняются и записываются в терминал без изменений; значения можно править (двойной щелчок по строке).</source>
        <translation>Настройки терминала, для которых в этом редакторе нет страницы. Они сохраняются и записываются в терминал без изменений; значения можно править (двойной щелчок по строке).</translation>
    </message>
    <message id="cfgx_003">
        <source>Фильтр:</source>
        <translation>Фильтр:</translation>
    </message>
    <message id="cfgx_004">
        <source>Показать только узлы, ключи и значения, содержащие этот текст</source>
        <translation>Показать только узлы, ключи и значения, содержащие этот текст</translation>
    </message>
    <message id="cfgx_005">
        <source>Разделы конфигурации, которые терминал прислал сверх страниц редактора</source>
        <translation>Разделы конфигурации, которые терминал прислал сверх страниц редактора</translation>
    </message>
    <message id="cfgx_006">
        <source>Узел</source>
        <translation>Узел</translation>
    </message>
    <message id="cfgx_007">
        <source>Ключ</source>
        <translation>Ключ</translation>
    </message>
    <message id="cfgx_008">
        <source>Значение</source>
        <translation>Значение</translation>
    </message>
    <message id="cfgx_001">
        <source>Прочие настройки</source>
        <translation>Прочие настройки</translation>
    </message>
    <message id="wcfg_002">
        <source>Новая</source>
        <translation>Новая</translation>
    </message>
    <message id="wcfg_003">
        <source>Новая конфигурация со значениями по умолчанию</source>
        <translation>Новая конфигурация со значениями по умолчанию</translation>
    </message>
    <message id="wcfg_004">
        <source>Открыть...</source>
        <translation>Открыть...</translation>
    </message>
    <message id="wcfg_005">
        <source>Открыть файл конфигурации</source>
        <translation>Открыть файл конфигурации</translation>
    </message>
    <message id="wcfg_006">
        <source>Сохранить</source>
        <translation>Сохранить</translation>
    </message>
    <message id="wcfg_007">
        <source>Сохранить конфигурацию в её файл</source>
        <translation>Сохранить конфигурацию в её файл</translation>
    </message>
    <message id="wcfg_008">
        <source>Сохранить как...</source>
        <translation>Сохранить как...</translation>
    </message>
    <message id="wcfg_009">
        <source>Сохранить конфигурацию в другой файл</source>
        <translation>Сохранить конфигурацию в другой файл</translation>
    </message>
    <message id="wcfg_010">
        <source>Прочитать из терминала</source>
        <translation>Прочитать из терминала</translation>
    </message>
    <message id="wcfg_011">
        <source>Прочитать конфигурацию из подключённого терминала</source>
        <translation>Прочитать конфигурацию из подключённого терминала</translation>
    </message>
    <message id="wcfg_012">
        <source>Записать в терминал</source>
        <translation>Записать в терминал</translation>
    </message>
    <message id="wcfg_013">
        <source>Записать конфигурацию в подключённый терминал</source>
        <translation>Записать конфигурацию в подключённый терминал</translation>
    </message>
    <message id="wcfg_014">
        <source>По умолчанию</source>
        <translation>По умолчанию</translation>
    </message>
    <message id="wcfg_015">
        <source>Вернуть настройкам страниц значения по умолчанию; прочие настройки терминала остаются</source>
        <translation>Вернуть настройкам страниц значения по умолчанию; прочие настройки терминала остаются</translation>
    </message>
    <message id="wcfg_016">
        <source>Сравнить</source>
        <translation>Сравнить</translation>
    </message>
    <message id="wcfg_017">
        <source>Сравнить конфигурацию с файлом или с последней прочитанной из терминала</source>
        <translation>Сравнить конфигурацию с файлом или с последней прочитанной из терминала</translation>
    </message>
    <message id="wcfg_019">
        <source>Переключить полный и простой редактор</source>
        <translation>Переключить полный и простой редактор</translation>
    </message>
    <message id="wcfg_030">
        <source>последняя прочитанная из терминала</source>
        <translation>последняя прочитанная из терминала</translation>
    </message>
    <message id="wcfg_020">
        <source>С файлом...</source>
        <translation>С файлом...</translation>
    </message>
    <message id="wcfg_021">
        <source>С последней прочитанной из терминала</source>
        <translation>С последней прочитанной из терминала</translation>
    </message>
    <message id="wcfg_022">
        <source>строка %1, столбец %2: %3</source>
        <translation>строка %1, столбец %2: %3</translation>
    </message>
    <message id="wcfg_023">
        <source>файл не найден</source>
        <translation>файл не найден</translation>
    </message>
    <message id="wcfg_024">
        <source>файл пуст</source>
        <translation>файл пуст</translation>
    </message>
    <message id="wcfg_025">
        <source>это не файл конфигурации терминала (нет корневого элемента «DEVICE»)</source>
        <translation>это не файл конфигурации терминала (нет корневого элемента «DEVICE»)</translation>
    </message>
    <message id="wcfg_026">
        <source>Не удалось открыть файл конфигурации «%1»:
%2.

В редакторе остаётся прежняя конфигурация.</source>
        <translation>Не удалось открыть файл конфигурации «%1»:
%2.

В редакторе остаётся прежняя конфигурация.</translation>
    </message>
    <message id="wcfg_027">
        <source>Не удалось записать файл «%1»:
%2.

Прежний файл не изменён.</source>
        <translation>Не удалось записать файл «%1»:
%2.

Прежний файл не изменён.</translation>
    </message>
    <message id="wcfg_028">
        <source>Конфигурация ещё не читалась из терминала: сравнивать не с чем.</source>
        <translation>Конфигурация ещё не читалась из терминала: сравнивать не с чем.</translation>
    </message>
    <message id="wcfg_018">
        <source>Простой редактор</source>
        <translation>Простой редактор</translation>
    </message>
    <message id="wcfg_029">
        <source>Полный редактор</source>
        <translation>Полный редактор</translation>
    </message>
    <message id="wcfg_031">
        <source>Конфигурация изменена. Сохранить изменения?</source>
        <translation>Конфигурация изменена. Сохранить изменения?</translation>
    </message>
    <message id="wcfg_032">
        <source>Сохранить</source>
        <translation>Сохранить</translation>
    </message>
    <message id="wcfg_033">
        <source>Не сохранять</source>
        <translation>Не сохранять</translation>
    </message>
    <message id="wcfg_034">
        <source>Отмена</source>
        <translation>Отмена</translation>
    </message>
    <message id="wcfg_035">
        <source>Файлы конфигурации (*.xml)</source>
        <translation>Файлы конфигурации (*.xml)</translation>
    </message>
    <message id="cfgl_001">
        <source>Основные настройки записи трека. Остальные настройки конфигурации сохраняются без изменений.</source>
        <translation>Основные настройки записи трека. Остальные настройки конфигурации сохраняются без изменений.</translation>
    </message>
    <message id="cfgl_002">
        <source>Период записи в движении, с:</source>
        <translation>Период записи в движении, с:</translation>
    </message>
    <message id="cfgl_003">
        <source>Интервал между точками трека в движении, от 0 до 99999 с</source>
        <translation>Интервал между точками трека в движении, от 0 до 99999 с</translation>
    </message>
    <message id="cfgl_004">
        <source>Дистанция, м:</source>
        <translation>Дистанция, м:</translation>
    </message>
    <message id="cfgl_005">
        <source>Точка трека через каждые N метров, от 1 до 10000 м</source>
        <translation>Точка трека через каждые N метров, от 1 до 10000 м</translation>
    </message>
    <message id="cfgl_006">
        <source>Угол поворота, °:</source>
        <translation>Угол поворота, °:</translation>
    </message>
    <message id="cfgl_007">
        <source>Точка трека при повороте на этот угол, от 1 до 90°</source>
        <translation>Точка трека при повороте на этот угол, от 1 до 90°</translation>
    </message>
    <message id="cfgl_008">
        <source>Период записи на стоянке, с:</source>
        <translation>Период записи на стоянке, с:</translation>
    </message>
    <message id="cfgl_009">
        <source>Интервал между точками трека на стоянке, от 0 до 99999 с</source>
        <translation>Интервал между точками трека на стоянке, от 0 до 99999 с</translation>
    </message>
    <message id="cfgl_010">
        <source>Поколение протокола:</source>
        <translation>Поколение протокола:</translation>
    </message>
    <message id="cfgl_011">
        <source>Формат записей телеметрии ORBA: 1, 2 или 3</source>
        <translation>Формат записей телеметрии ORBA: 1, 2 или 3</translation>
    </message>
    <message id="cfgl_012">
        <source>Поколение 1 (ORBA 1)</source>
        <translation>Поколение 1 (ORBA 1)</translation>
    </message>
    <message id="cfgl_013">
        <source>Поколение 2 (ORBA 2)</source>
        <translation>Поколение 2 (ORBA 2)</translation>
    </message>
    <message id="cfgl_014">
        <source>Поколение 3 (ORBA 3)</source>
        <translation>Поколение 3 (ORBA 3)</translation>
    </message>
    <message id="gain_260">
        <source>Номер</source>
        <translation>Номер</translation>
    </message>
    <message id="gain_261">
        <source>Название</source>
        <translation>Название</translation>
    </message>
    <message id="gain_262">
        <source>Широта</source>
        <translation>Широта</translation>
    </message>
    <message id="gain_263">
        <source>Долгота</source>
        <translation>Долгота</translation>
    </message>
    <message id="gain_264">
        <source>Радиус, м</source>
        <translation>Радиус, м</translation>
    </message>
    <message id="gain_265">
        <source>Курс, °</source>
        <translation>Курс, °</translation>
    </message>
    <message id="gain_270">
        <source>Номер</source>
        <translation>Номер</translation>
    </message>
    <message id="gain_271">
        <source>Файл</source>
        <translation>Файл</translation>
    </message>
    <message id="gain_272">
        <source>Геоинформация</source>
        <translation>Геоинформация</translation>
    </message>
    <message id="gain_292">
        <source>Терминал не ответил; запись на SD-карту прервана.</source>
        <translation>Терминал не ответил; запись на SD-карту прервана.</translation>
    </message>
    <message id="gain_280">
        <source>Терминал отключён; запись на SD-карту прервана.</source>
        <translation>Терминал отключён; запись на SD-карту прервана.</translation>
    </message>
    <message id="gain_281">
        <source>Зон: %1 из %2, маршрутов: %3, скоростных зон: %4</source>
        <translation>Зон: %1 из %2, маршрутов: %3, скоростных зон: %4</translation>
    </message>
    <message id="gain_282">
        <source>Терминал хранит не более %1 геозон; новая зона не добавлена.</source>
        <translation>Терминал хранит не более %1 геозон; новая зона не добавлена.</translation>
    </message>
    <message id="gain_283">
        <source>Все номера зон от 1 до %1 заняты; новая зона не добавлена.</source>
        <translation>Все номера зон от 1 до %1 заняты; новая зона не добавлена.</translation>
    </message>
    <message id="gain_284">
        <source>Координаты зоны заданы неверно: широта от -90 до 90, долгота от -180 до 180 градусов.</source>
        <translation>Координаты зоны заданы неверно: широта от -90 до 90, долгота от -180 до 180 градусов.</translation>
    </message>
    <message id="gain_285">
        <source>Зона %1</source>
        <translation>Зона %1</translation>
    </message>
    <message id="gain_286">
        <source>Зоны %1 — остановки маршрутов и не удалены; сначала удалите эти остановки.</source>
        <translation>Зоны %1 — остановки маршрутов и не удалены; сначала удалите эти остановки.</translation>
    </message>
    <message id="gain_289">
        <source>Запись на SD-карту: %1</source>
        <translation>Запись на SD-карту: %1</translation>
    </message>
    <message id="gain_288">
        <source>Не удалось передать файл %1 на SD-карту терминала.</source>
        <translation>Не удалось передать файл %1 на SD-карту терминала.</translation>
    </message>
    <message id="gain_290">
        <source>На SD-карте терминала нет места для файла %1.</source>
        <translation>На SD-карте терминала нет места для файла %1.</translation>
    </message>
    <message id="gain_291">
        <source>В терминале нет SD-карты; файл %1 не записан.</source>
        <translation>В терминале нет SD-карты; файл %1 не записан.</translation>
    </message>
    <message id="gain_293">
        <source>Введите широту (от -90 до 90) и долготу (от -180 до 180) новой зоны или сделайте двойной щелчок по карте.</source>
        <translation>Введите широту (от -90 до 90) и долготу (от -180 до 180) новой зоны или сделайте двойной щелчок по карте.</translation>
    </message>
    <message id="gain_294">
        <source>Открыть файл геоинформации</source>
        <translation>Открыть файл геоинформации</translation>
    </message>
    <message id="gain_295">
        <source>Сохранить файл геоинформации</source>
        <translation>Сохранить файл геоинформации</translation>
    </message>
    <message id="gain_296">
        <source>Терминал хранит не более %1 звуковых файлов.</source>
        <translation>Терминал хранит не более %1 звуковых файлов.</translation>
    </message>
    <message id="gain_201">
        <source>Широта должна быть числом от -90 до 90 градусов.</source>
        <translation>Широта должна быть числом от -90 до 90 градусов.</translation>
    </message>
    <message id="gain_202">
        <source>Долгота должна быть числом от -180 до 180 градусов.</source>
        <translation>Долгота должна быть числом от -180 до 180 градусов.</translation>
    </message>
    <message id="gain_250">
        <source>Файл KML</source>
        <translation>Файл KML</translation>
    </message>
    <message id="gain_230">
        <source>Номер</source>
        <translation>Номер</translation>
    </message>
    <message id="gain_231">
        <source>Маршрут</source>
        <translation>Маршрут</translation>
    </message>
    <message id="gain_232">
        <source>Литера</source>
        <translation>Литера</translation>
    </message>
    <message id="gain_233">
        <source>Начало</source>
        <translation>Начало</translation>
    </message>
    <message id="gain_234">
        <source>Конец</source>
        <translation>Конец</translation>
    </message>
    <message id="gain_235">
        <source>Звуки</source>
        <translation>Звуки</translation>
    </message>
    <message id="gain_236">
        <source>Остановок</source>
        <translation>Остановок</translation>
    </message>
    <message id="gain_237">
        <source>Тип</source>
        <translation>Тип</translation>
    </message>
    <message id="gain_238">
        <source>Зона</source>
        <translation>Зона</translation>
    </message>
    <message id="gain_239">
        <source>Название</source>
        <translation>Название</translation>
    </message>
    <message id="gain_240">
        <source>Звуки (номера через запятую)</source>
        <translation>Звуки (номера через запятую)</translation>
    </message>
    <message id="gain_241">
        <source>Терминал хранит не более %1 маршрутов.</source>
        <translation>Терминал хранит не более %1 маршрутов.</translation>
    </message>
    <message id="gain_242">
        <source>Маршрут может иметь не более %1 остановок.</source>
        <translation>Маршрут может иметь не более %1 остановок.</translation>
    </message>
    <message id="gain_243">
        <source>Выберите зону остановки в списке зон или на карте.</source>
        <translation>Выберите зону остановки в списке зон или на карте.</translation>
    </message>
    <message id="gain_210">
        <source>Номер</source>
        <translation>Номер</translation>
    </message>
    <message id="gain_211">
        <source>Название</source>
        <translation>Название</translation>
    </message>
    <message id="gain_212">
        <source>Скорость, км/ч</source>
        <translation>Скорость, км/ч</translation>
    </message>
    <message id="gain_213">
        <source>Допуск, км/ч</source>
        <translation>Допуск, км/ч</translation>
    </message>
    <message id="gain_214">
        <source>Звук превышения</source>
        <translation>Звук превышения</translation>
    </message>
    <message id="gain_215">
        <source>Звук активации</source>
        <translation>Звук активации</translation>
    </message>
    <message id="gain_216">
        <source>Повтор превышения, с</source>
        <translation>Повтор превышения, с</translation>
    </message>
    <message id="gain_217">
        <source>Повтор активации, с</source>
        <translation>Повтор активации, с</translation>
    </message>
    <message id="gain_218">
        <source>Задержка, с</source>
        <translation>Задержка, с</translation>
    </message>
    <message id="gain_219">
        <source>Зуммер</source>
        <translation>Зуммер</translation>
    </message>
    <message id="gain_220">
        <source>Терминал хранит не более %1 скоростных зон.</source>
        <translation>Терминал хранит не более %1 скоростных зон.</translation>
    </message>
    <message id="gain_221">
        <source>Скоростная зона %1</source>
        <translation>Скоростная зона %1</translation>
    </message>
    <message id="gain_001">
        <source>Список геозон; двойной щелчок показывает зону на карте</source>
        <translation>Список геозон; двойной щелчок показывает зону на карте</translation>
    </message>
    <message id="gain_002">
        <source>Добавить</source>
        <translation>Добавить</translation>
    </message>
    <message id="gain_003">
        <source>Добавить зону по введённым координатам; зону можно добавить и щелчком по карте</source>
        <translation>Добавить зону по введённым координатам; зону можно добавить и щелчком по карте</translation>
    </message>
    <message id="gain_004">
        <source>Из KML…</source>
        <translation>Из KML…</translation>
    </message>
    <message id="gain_005">
        <source>Добавить зоны из точек файла KML</source>
        <translation>Добавить зоны из точек файла KML</translation>
    </message>
    <message id="gain_006">
        <source>Копировать</source>
        <translation>Копировать</translation>
    </message>
    <message id="gain_007">
        <source>Копия выбранной зоны с новым номером</source>
        <translation>Копия выбранной зоны с новым номером</translation>
    </message>
    <message id="gain_008">
        <source>Удалить</source>
        <translation>Удалить</translation>
    </message>
    <message id="gain_009">
        <source>Удалить выбранные зоны</source>
        <translation>Удалить выбранные зоны</translation>
    </message>
    <message id="gain_010">
        <source>Геозоны</source>
        <translation>Геозоны</translation>
    </message>
    <message id="gain_011">
        <source>Маршруты</source>
        <translation>Маршруты</translation>
    </message>
    <message id="gain_012">
        <source>Скоростные зоны</source>
        <translation>Скоростные зоны</translation>
    </message>
    <message id="gain_013">
        <source>Добавить</source>
        <translation>Добавить</translation>
    </message>
    <message id="gain_014">
        <source>Добавить звуковой файл (номер 1…65535, имя файла на карте)</source>
        <translation>Добавить звуковой файл (номер 1…65535, имя файла на карте)</translation>
    </message>
    <message id="gain_015">
        <source>Удалить</source>
        <translation>Удалить</translation>
    </message>
    <message id="gain_016">
        <source>Удалить выбранный звук</source>
        <translation>Удалить выбранный звук</translation>
    </message>
    <message id="gain_017">
        <source>Звуки</source>
        <translation>Звуки</translation>
    </message>
    <message id="gain_018">
        <source>Открыть…</source>
        <translation>Открыть…</translation>
    </message>
    <message id="gain_019">
        <source>Открыть файл геоинформации (*.xml)</source>
        <translation>Открыть файл геоинформации (*.xml)</translation>
    </message>
    <message id="gain_020">
        <source>Сохранить…</source>
        <translation>Сохранить…</translation>
    </message>
    <message id="gain_021">
        <source>Сохранить геоинформацию в файл (*.xml)</source>
        <translation>Сохранить геоинформацию в файл (*.xml)</translation>
    </message>
    <message id="gain_022">
        <source>Записать в терминал</source>
        <translation>Записать в терминал</translation>
    </message>
    <message id="gain_023">
        <source>Записать файлы геоинформации на SD-карту терминала; доступно при подключённом терминале</source>
        <translation>Записать файлы геоинформации на SD-карту терминала; доступно при подключённом терминале</translation>
    </message>
    <message id="gain_024">
        <source>Номер</source>
        <translation>Номер</translation>
    </message>
    <message id="gain_025">
        <source>Название</source>
        <translation>Название</translation>
    </message>
    <message id="gain_026">
        <source>Название зоны, до 64 символов</source>
        <translation>Название зоны, до 64 символов</translation>
    </message>
    <message id="gain_027">
        <source>Широта</source>
        <translation>Широта</translation>
    </message>
    <message id="gain_028">
        <source>Широта, градусы: от -90 до 90, например 55.751244</source>
        <translation>Широта, градусы: от -90 до 90, например 55.751244</translation>
    </message>
    <message id="gain_029">
        <source>Долгота</source>
        <translation>Долгота</translation>
    </message>
    <message id="gain_030">
        <source>Долгота, градусы: от -180 до 180, например 37.618423</source>
        <translation>Долгота, градусы: от -180 до 180, например 37.618423</translation>
    </message>
    <message id="gain_031">
        <source>Радиус, м</source>
        <translation>Радиус, м</translation>
    </message>
    <message id="gain_032">
        <source>Радиус зоны: от 10 до 100000 м</source>
        <translation>Радиус зоны: от 10 до 100000 м</translation>
    </message>
    <message id="gain_033">
        <source>Курс въезда, °</source>
        <translation>Курс въезда, °</translation>
    </message>
    <message id="gain_034">
        <source>Курс въезда: от 0 до 359°</source>
        <translation>Курс въезда: от 0 до 359°</translation>
    </message>
    <message id="gain_035">
        <source>Выходы</source>
        <translation>Выходы</translation>
    </message>
    <message id="gain_036">
        <source>16 знаков 0/1: состояние выходов 1…16 при въезде</source>
        <translation>16 знаков 0/1: состояние выходов 1…16 при въезде</translation>
    </message>
    <message id="gain_037">
        <source>Режим скорости</source>
        <translation>Режим скорости</translation>
    </message>
    <message id="gain_038">
        <source>Режим скорости в зоне: номер скоростной зоны или 0</source>
        <translation>Режим скорости в зоне: номер скоростной зоны или 0</translation>
    </message>
    <message id="gain_039">
        <source>Событие при въезде</source>
        <translation>Событие при въезде</translation>
    </message>
    <message id="gain_040">
        <source>Событие при выезде</source>
        <translation>Событие при выезде</translation>
    </message>
    <message id="gain_041">
        <source>Звук при въезде</source>
        <translation>Звук при въезде</translation>
    </message>
    <message id="gain_042">
        <source>Звук при выезде</source>
        <translation>Звук при выезде</translation>
    </message>
    <message id="gain_043">
        <source>Выходы при въезде</source>
        <translation>Выходы при въезде</translation>
    </message>
    <message id="gain_044">
        <source>Контроль скорости</source>
        <translation>Контроль скорости</translation>
    </message>
    <message id="gain_045">
        <source>Проверять курс въезда</source>
        <translation>Проверять курс въезда</translation>
    </message>
    <message id="gain_046">
        <source>Зона отключена</source>
        <translation>Зона отключена</translation>
    </message>
    <message id="gain_047">
        <source>По умолчанию для новых</source>
        <translation>По умолчанию для новых</translation>
    </message>
    <message id="gain_048">
        <source>Параметры отмеченных флагов станут параметрами новых зон</source>
        <translation>Параметры отмеченных флагов станут параметрами новых зон</translation>
    </message>
    <message id="gain_049">
        <source>Параметры зоны</source>
        <translation>Параметры зоны</translation>
    </message>
    <message id="gain_050">
        <source>Добавить маршрут</source>
        <translation>Добавить маршрут</translation>
    </message>
    <message id="gain_051">
        <source>Новый маршрут с параметрами по умолчанию (не более 100 маршрутов)</source>
        <translation>Новый маршрут с параметрами по умолчанию (не более 100 маршрутов)</translation>
    </message>
    <message id="gain_052">
        <source>Удалить маршрут</source>
        <translation>Удалить маршрут</translation>
    </message>
    <message id="gain_053">
        <source>Удалить выбранный маршрут</source>
        <translation>Удалить выбранный маршрут</translation>
    </message>
    <message id="gain_054">
        <source>Кольцевой</source>
        <translation>Кольцевой</translation>
    </message>
    <message id="gain_055">
        <source>Объявлять следующую</source>
        <translation>Объявлять следующую</translation>
    </message>
    <message id="gain_056">
        <source>Обратный ход</source>
        <translation>Обратный ход</translation>
    </message>
    <message id="gain_057">
        <source>Строгий порядок</source>
        <translation>Строгий порядок</translation>
    </message>
    <message id="gain_058">
        <source>Пропускать пропущенные</source>
        <translation>Пропускать пропущенные</translation>
    </message>
    <message id="gain_059">
        <source>Событие при сходе</source>
        <translation>Событие при сходе</translation>
    </message>
    <message id="gain_060">
        <source>Резерв 6</source>
        <translation>Резерв 6</translation>
    </message>
    <message id="gain_061">
        <source>Резерв 7</source>
        <translation>Резерв 7</translation>
    </message>
    <message id="gain_062">
        <source>Добавить остановку</source>
        <translation>Добавить остановку</translation>
    </message>
    <message id="gain_063">
        <source>Остановка в выбранной на карте/в списке зоне (не более 200 на маршрут)</source>
        <translation>Остановка в выбранной на карте/в списке зоне (не более 200 на маршрут)</translation>
    </message>
    <message id="gain_064">
        <source>Удалить остановку</source>
        <translation>Удалить остановку</translation>
    </message>
    <message id="gain_065">
        <source>Удалить выбранную остановку</source>
        <translation>Удалить выбранную остановку</translation>
    </message>
    <message id="gain_066">
        <source>Номер</source>
        <translation>Номер</translation>
    </message>
    <message id="gain_067">
        <source>Номер нового маршрута</source>
        <translation>Номер нового маршрута</translation>
    </message>
    <message id="gain_068">
        <source>Литера</source>
        <translation>Литера</translation>
    </message>
    <message id="gain_069">
        <source>Литера нового маршрута</source>
        <translation>Литера нового маршрута</translation>
    </message>
    <message id="gain_070">
        <source>Начало</source>
        <translation>Начало</translation>
    </message>
    <message id="gain_071">
        <source>Начальная остановка нового маршрута</source>
        <translation>Начальная остановка нового маршрута</translation>
    </message>
    <message id="gain_072">
        <source>Конец</source>
        <translation>Конец</translation>
    </message>
    <message id="gain_073">
        <source>Конечная остановка нового маршрута</source>
        <translation>Конечная остановка нового маршрута</translation>
    </message>
    <message id="gain_074">
        <source>Набор звуков</source>
        <translation>Набор звуков</translation>
    </message>
    <message id="gain_075">
        <source>Набор звуков: от 0 до 255</source>
        <translation>Набор звуков: от 0 до 255</translation>
    </message>
    <message id="gain_076">
        <source>Флаги</source>
        <translation>Флаги</translation>
    </message>
    <message id="gain_077">
        <source>8 знаков 0/1: флаги нового маршрута, бит 0 первым</source>
        <translation>8 знаков 0/1: флаги нового маршрута, бит 0 первым</translation>
    </message>
    <message id="gain_078">
        <source>Параметры по умолчанию</source>
        <translation>Параметры по умолчанию</translation>
    </message>
    <message id="gain_079">
        <source>Добавить</source>
        <translation>Добавить</translation>
    </message>
    <message id="gain_080">
        <source>Новая скоростная зона (не более 100)</source>
        <translation>Новая скоростная зона (не более 100)</translation>
    </message>
    <message id="gain_081">
        <source>Удалить</source>
        <translation>Удалить</translation>
    </message>
    <message id="gain_082">
        <source>Удалить выбранную скоростную зону</source>
        <translation>Удалить выбранную скоростную зону</translation>
    </message>
    <message id="gain_083">
        <source>Режим скорости</source>
        <translation>Режим скорости</translation>
    </message>
    <message id="gain_084">
        <source>Режим скорости по умолчанию: от 0 до 255</source>
        <translation>Режим скорости по умолчанию: от 0 до 255</translation>
    </message>
    <message id="gain_085">
        <source>Флаги</source>
        <translation>Флаги</translation>
    </message>
    <message id="gain_086">
        <source>8 знаков 0/1: флаги скоростных зон, бит 0 первым</source>
        <translation>8 знаков 0/1: флаги скоростных зон, бит 0 первым</translation>
    </message>
    <message id="gain_087">
        <source>Параметры по умолчанию</source>
        <translation>Параметры по умолчанию</translation>
    </message>
    <message id="gain_088">
        <source>Подложка</source>
        <translation>Подложка</translation>
    </message>
    <message id="gain_089">
        <source>Пусто — координатная сетка; адрес сервера тайлов вида http://host/{z}/{x}/{y}.png; или папка с тайлами z/x/y</source>
        <translation>Пусто — координатная сетка; адрес сервера тайлов вида http://host/{z}/{x}/{y}.png; или папка с тайлами z/x/y</translation>
    </message>
    <message id="gain_090">
        <source>Применить</source>
        <translation>Применить</translation>
    </message>
    <message id="gain_091">
        <source>Показать выбранную подложку</source>
        <translation>Показать выбранную подложку</translation>
    </message>
    <message id="gain_092">
        <source>Все зоны</source>
        <translation>Все зоны</translation>
    </message>
    <message id="gain_093">
        <source>Показать все зоны на карте</source>
        <translation>Показать все зоны на карте</translation>
    </message>
    <message id="gain_094">
        <source>Двойной щелчок по карте добавляет зону; выбранную зону можно перетащить за центр, радиус — за край</source>
        <translation>Двойной щелчок по карте добавляет зону; выбранную зону можно перетащить за центр, радиус — за край</translation>
    </message>
    <message id="gain_095">
        <source>Файл KML</source>
        <translation>Файл KML</translation>
    </message>
    <message id="gain_096">
        <source>Файл KML с точками (Placemark/Point)</source>
        <translation>Файл KML с точками (Placemark/Point)</translation>
    </message>
    <message id="gain_097">
        <source>Обзор…</source>
        <translation>Обзор…</translation>
    </message>
    <message id="gain_098">
        <source>Радиус, м</source>
        <translation>Радиус, м</translation>
    </message>
    <message id="gain_099">
        <source>Радиус новых зон: от 10 до 100000 м</source>
        <translation>Радиус новых зон: от 10 до 100000 м</translation>
    </message>
    <message id="gain_100">
        <source>Курс въезда, °</source>
        <translation>Курс въезда, °</translation>
    </message>
    <message id="gain_101">
        <source>Курс въезда: от 0 до 359°</source>
        <translation>Курс въезда: от 0 до 359°</translation>
    </message>
    <message id="gain_102">
        <source>Флаги зоны</source>
        <translation>Флаги зоны</translation>
    </message>
    <message id="gain_103">
        <source>Флаги новых зон, 8 бит: от 0 до 255</source>
        <translation>Флаги новых зон, 8 бит: от 0 до 255</translation>
    </message>
    <message id="gain_104">
        <source>Импорт зон из KML</source>
        <translation>Импорт зон из KML</translation>
    </message>
    <message id="gmap_001">
        <source>Трек на карте</source>
        <translation>Трек на карте</translation>
    </message>
    <message id="gain_244">
        <source>Тип остановки: 0 — остановка, 1 — путевая точка, 2 — конечная</source>
        <translation>Тип остановки: 0 — остановка, 1 — путевая точка, 2 — конечная</translation>
    </message>
    <message id="wcfg_036">
        <source>Геозоны</source>
        <translation>Геозоны</translation>
    </message>
    <message id="tmif_062">
        <source>На карте…</source>
        <translation>На карте…</translation>
    </message>
    <message id="tmif_063">
        <source>Показать трек показанных записей на карте</source>
        <translation>Показать трек показанных записей на карте</translation>
    </message>
    <message id="tmif_064">
        <source>Среди показанных записей нет ни одной с координатами.</source>
        <translation>Среди показанных записей нет ни одной с координатами.</translation>
    </message>
    <message id="tmiw_116">
        <source>На карте…</source>
        <translation>На карте…</translation>
    </message>
    <message id="tmiw_117">
        <source>Показать на карте трек записей этого сеанса</source>
        <translation>Показать на карте трек записей этого сеанса</translation>
    </message>
    <message id="tmiw_118">
        <source>Ни в одной записи сеанса нет координат.</source>
        <translation>Ни в одной записи сеанса нет координат.</translation>
    </message>
    <message id="tmio_055">
        <source>Копировать</source>
        <translation>Копировать</translation>
    </message>
    <message id="orbs_001">
        <source>Тревожное сообщение</source>
        <translation>Тревожное сообщение</translation>
    </message>
    <message id="orbs_002">
        <source>Тревога</source>
        <translation>Тревога</translation>
    </message>
    <message id="orbs_003">
        <source>Режим охраны</source>
        <translation>Режим охраны</translation>
    </message>
    <message id="orbs_004">
        <source>Эвакуация</source>
        <translation>Эвакуация</translation>
    </message>
    <message id="orbs_005">
        <source>Энергосбережение</source>
        <translation>Энергосбережение</translation>
    </message>
    <message id="orbs_006">
        <source>Калибровка акселерометра</source>
        <translation>Калибровка акселерометра</translation>
    </message>
    <message id="orbs_007">
        <source>Выход %1</source>
        <translation>Выход %1</translation>
    </message>
    <message id="orbs_008">
        <source>Расширенная навигация</source>
        <translation>Расширенная навигация</translation>
    </message>
    <message id="orbs_009">
        <source>Номер SIM-карты</source>
        <translation>Номер SIM-карты</translation>
    </message>
    <message id="orbs_010">
        <source>Координаты зафиксированы</source>
        <translation>Координаты зафиксированы</translation>
    </message>
    <message id="orbs_011">
        <source>Акселерометр</source>
        <translation>Акселерометр</translation>
    </message>
    <message id="orbs_012">
        <source>Модуль %1</source>
        <translation>Модуль %1</translation>
    </message>
    <message id="orbs_013">
        <source>Спутники %1</source>
        <translation>Спутники %1</translation>
    </message>
    <message id="orbs_014">
        <source>Снижение точности в плане (HDOP)</source>
        <translation>Снижение точности в плане (HDOP)</translation>
    </message>
    <message id="orbs_015">
        <source>Снижение точности по положению (PDOP)</source>
        <translation>Снижение точности по положению (PDOP)</translation>
    </message>
    <message id="orbs_016">
        <source>Режим навигации</source>
        <translation>Режим навигации</translation>
    </message>
    <message id="orbs_017">
        <source>Число спутников</source>
        <translation>Число спутников</translation>
    </message>
    <message id="orbs_018">
        <source>Широта приёмника</source>
        <translation>Широта приёмника</translation>
    </message>
    <message id="orbs_019">
        <source>Долгота приёмника</source>
        <translation>Долгота приёмника</translation>
    </message>
    <message id="orbs_020">
        <source>Сота %1: идентификатор (CID)</source>
        <translation>Сота %1: идентификатор (CID)</translation>
    </message>
    <message id="orbs_021">
        <source>Сота %1: код зоны (LAC)</source>
        <translation>Сота %1: код зоны (LAC)</translation>
    </message>
    <message id="orbs_022">
        <source>Сота %1: код страны (MCC)</source>
        <translation>Сота %1: код страны (MCC)</translation>
    </message>
    <message id="orbs_023">
        <source>Сота %1: код сети (MNC)</source>
        <translation>Сота %1: код сети (MNC)</translation>
    </message>
    <message id="orbs_024">
        <source>Сота %1: уровень сигнала</source>
        <translation>Сота %1: уровень сигнала</translation>
    </message>
    <message id="orbs_025">
        <source>Время измерения</source>
        <translation>Время измерения</translation>
    </message>
    <message id="orbs_026">
        <source>Уровень топлива</source>
        <translation>Уровень топлива</translation>
    </message>
    <message id="orbs_027">
        <source>Температура</source>
        <translation>Температура</translation>
    </message>
    <message id="orbs_028">
        <source>Шина %1: номер датчика</source>
        <translation>Шина %1: номер датчика</translation>
    </message>
    <message id="orbs_029">
        <source>Шина %1: давление</source>
        <translation>Шина %1: давление</translation>
    </message>
    <message id="orbs_030">
        <source>Шина %1: температура</source>
        <translation>Шина %1: температура</translation>
    </message>
    <message id="orbs_031">
        <source>Ускорение по оси %1</source>
        <translation>Ускорение по оси %1</translation>
    </message>
    <message id="orbs_032">
        <source>Угловое ускорение, плюс</source>
        <translation>Угловое ускорение, плюс</translation>
    </message>
    <message id="orbs_033">
        <source>Угловое ускорение, минус</source>
        <translation>Угловое ускорение, минус</translation>
    </message>
    <message id="orbs_034">
        <source>Угол</source>
        <translation>Угол</translation>
    </message>
    <message id="orbs_035">
        <source>Канал %1</source>
        <translation>Канал %1</translation>
    </message>
    <message id="orbs_036">
        <source>Тангенциальное ускорение</source>
        <translation>Тангенциальное ускорение</translation>
    </message>
    <message id="orbs_037">
        <source>Крен</source>
        <translation>Крен</translation>
    </message>
    <message id="orbs_038">
        <source>Байт %1</source>
        <translation>Байт %1</translation>
    </message>
    <message id="orbs_039">
        <source>Разгон, степень %1</source>
        <translation>Разгон, степень %1</translation>
    </message>
    <message id="orbs_040">
        <source>Торможение, степень %1</source>
        <translation>Торможение, степень %1</translation>
    </message>
    <message id="orbs_041">
        <source>Поворот влево, степень %1</source>
        <translation>Поворот влево, степень %1</translation>
    </message>
    <message id="orbs_042">
        <source>Поворот вправо, степень %1</source>
        <translation>Поворот вправо, степень %1</translation>
    </message>
    <message id="orbs_043">
        <source>Вертикальное ускорение, степень %1</source>
        <translation>Вертикальное ускорение, степень %1</translation>
    </message>
    <message id="orbs_044">
        <source>Число ошибок</source>
        <translation>Число ошибок</translation>
    </message>
    <message id="orbs_045">
        <source>Код ошибки %1</source>
        <translation>Код ошибки %1</translation>
    </message>
    <message id="orbs_046">
        <source>Режим двигателя</source>
        <translation>Режим двигателя</translation>
    </message>
    <message id="orbs_047">
        <source>Обороты двигателя</source>
        <translation>Обороты двигателя</translation>
    </message>
    <message id="orbs_048">
        <source>Лампа неисправности</source>
        <translation>Лампа неисправности</translation>
    </message>
    <message id="orbs_049">
        <source>Код неисправности</source>
        <translation>Код неисправности</translation>
    </message>
    <message id="orbs_050">
        <source>Тип записи</source>
        <translation>Тип записи</translation>
    </message>
    <message id="orbs_051">
        <source>Размер данных</source>
        <translation>Размер данных</translation>
    </message>
    <message id="orbs_052">
        <source>Версия открытой части</source>
        <translation>Версия открытой части</translation>
    </message>
    <message id="orbs_053">
        <source>Размер открытой части</source>
        <translation>Размер открытой части</translation>
    </message>
    <message id="orbs_054">
        <source>Версия скрытой части</source>
        <translation>Версия скрытой части</translation>
    </message>
    <message id="orbs_055">
        <source>Размер скрытой части</source>
        <translation>Размер скрытой части</translation>
    </message>
    <message id="cfgo_083">
        <source>Типы пользовательских параметров (0 — без знака, 1 — со знаком, 2 — hex, 3 — float)</source>
        <translation>Типы пользовательских параметров (0 — без знака, 1 — со знаком, 2 — hex, 3 — float)</translation>
    </message>
    <message id="cfgo_084">
        <source>Название пользовательского параметра %1</source>
        <translation>Название пользовательского параметра %1</translation>
    </message>
    <message id="cmpc_012">
        <source>Запись в терминал: что изменится</source>
        <translation>Запись в терминал: что изменится</translation>
    </message>
    <message id="cmpc_013">
        <source>Сравнение с: %1.
В терминале ничего не изменится: записываемая конфигурация совпадает.</source>
        <translation>Сравнение с: %1.
В терминале ничего не изменится: записываемая конфигурация совпадает.</translation>
    </message>
    <message id="cmpc_014">
        <source>Сравнение с: %1.
В терминале изменится настроек: %2. Записать?</source>
        <translation>Сравнение с: %1.
В терминале изменится настроек: %2. Записать?</translation>
    </message>
    <message id="cmpc_015">
        <source>Сейчас в терминале</source>
        <translation>Сейчас в терминале</translation>
    </message>
    <message id="cmpc_016">
        <source>Будет записано</source>
        <translation>Будет записано</translation>
    </message>
    <message id="cmpc_017">
        <source>Записать в терминал</source>
        <translation>Записать в терминал</translation>
    </message>
    <message id="cmpc_018">
        <source>Отмена</source>
        <translation>Отмена</translation>
    </message>
    <message id="cmpc_019">
        <source>Показывать этот обзор перед каждой записью</source>
        <translation>Показывать этот обзор перед каждой записью</translation>
    </message>
    <message id="wcfg_040">
        <source>Отменить</source>
        <translation>Отменить</translation>
    </message>
    <message id="wcfg_041">
        <source>Отменить последнее изменение (Ctrl+Z)</source>
        <translation>Отменить последнее изменение (Ctrl+Z)</translation>
    </message>
    <message id="wcfg_042">
        <source>Повторить</source>
        <translation>Повторить</translation>
    </message>
    <message id="wcfg_043">
        <source>Повторить отменённое изменение (Ctrl+Shift+Z)</source>
        <translation>Повторить отменённое изменение (Ctrl+Shift+Z)</translation>
    </message>
    <message id="wcfg_044">
        <source>Обзор перед записью</source>
        <translation>Обзор перед записью</translation>
    </message>
    <message id="wcfg_045">
        <source>Перед записью в терминал показывать, какие настройки в нём изменятся</source>
        <translation>Перед записью в терминал показывать, какие настройки в нём изменятся</translation>
    </message>
    <message id="wcfg_046">
        <source>В папке данных XML нет сохранённых копий конфигураций, прочитанных из терминала.</source>
        <translation>В папке данных XML нет сохранённых копий конфигураций, прочитанных из терминала.</translation>
    </message>
    <message id="wcfg_047">
        <source>С копией из истории чтений...</source>
        <translation>С копией из истории чтений...</translation>
    </message>
    <message id="wcfg_048">
        <source>Открытие конфигурации</source>
        <translation>Открытие конфигурации</translation>
    </message>
    <message id="wcfg_049">
        <source>Новая конфигурация</source>
        <translation>Новая конфигурация</translation>
    </message>
    <message id="wcfg_050">
        <source>Значения по умолчанию</source>
        <translation>Значения по умолчанию</translation>
    </message>
    <message id="wcfg_051">
        <source>конфигурация, прочитанная из этого терминала</source>
        <translation>конфигурация, прочитанная из этого терминала</translation>
    </message>
    <message id="wcfg_052">
        <source>значения по умолчанию (из этого терминала конфигурация ещё не читалась)</source>
        <translation>значения по умолчанию (из этого терминала конфигурация ещё не читалась)</translation>
    </message>
    <message id="wcfg_053">
        <source>История чтений</source>
        <translation>История чтений</translation>
    </message>
    <message id="wcfg_054">
        <source>Конфигурация, прочитанная из терминала:</source>
        <translation>Конфигурация, прочитанная из терминала:</translation>
    </message>
    <message id="tmiw_119">
        <source>Данные NMEA</source>
        <translation>Данные NMEA</translation>
    </message>
    <message id="tmiw_120">
        <source>Текущая запись из %1 байт пропущена: она короче 101 байта</source>
        <translation>Текущая запись из %1 байт пропущена: она короче 101 байта</translation>
    </message>
    <message id="gmap_003">
        <source>не удалось создать контекст OpenGL (платформа «%1»)</source>
        <translation>не удалось создать контекст OpenGL (платформа «%1»)</translation>
    </message>
    <message id="gmap_004">
        <source>контекст OpenGL создан, но не становится текущим (платформа «%1»)</source>
        <translation>контекст OpenGL создан, но не становится текущим (платформа «%1»)</translation>
    </message>
    <message id="gmap_002">
        <source>Карта недоступна: %1.
Всё остальное работает как обычно; на рабочем месте с OpenGL здесь будет карта.</source>
        <translation>Карта недоступна: %1.
Всё остальное работает как обычно; на рабочем месте с OpenGL здесь будет карта.</translation>
    </message>
    <message id="geod_065">
        <source>%1 ссылается на несуществующую геозону %2.</source>
        <translation>%1 ссылается на несуществующую геозону %2.</translation>
    </message>
    <message id="geod_067">
        <source>%1: &quot;%2&quot; = %3 вне диапазона %4..%5.</source>
        <translation>%1: &quot;%2&quot; = %3 вне диапазона %4..%5.</translation>
    </message>
    <message id="geod_060">
        <source>Геозона %1</source>
        <translation>Геозона %1</translation>
    </message>
    <message id="geod_061">
        <source>Маршрут %1</source>
        <translation>Маршрут %1</translation>
    </message>
    <message id="geod_062">
        <source>Маршрут %1, остановка %2</source>
        <translation>Маршрут %1, остановка %2</translation>
    </message>
    <message id="geod_066">
        <source>В маршруте %3 остановок: %1 (не более %2 на маршрут).</source>
        <translation>В маршруте %3 остановок: %1 (не более %2 на маршрут).</translation>
    </message>
    <message id="geod_063">
        <source>Скоростная зона %1</source>
        <translation>Скоростная зона %1</translation>
    </message>
    <message id="geod_064">
        <source>Звуковой файл %1</source>
        <translation>Звуковой файл %1</translation>
    </message>
    <message id="geod_068">
        <source>%1: &quot;%2&quot; = &quot;%3&quot; не является координатой</source>
        <translation>%1: &quot;%2&quot; = &quot;%3&quot; не является координатой</translation>
    </message>
    <message id="geod_069">
        <source>нужны долгота и широта через запятую</source>
        <translation>нужны долгота и широта через запятую</translation>
    </message>
    <message id="geod_070">
        <source>долгота или широта не число</source>
        <translation>долгота или широта не число</translation>
    </message>
    <message id="geod_071">
        <source>широта вне -90..90 или долгота вне -180..180</source>
        <translation>широта вне -90..90 или долгота вне -180..180</translation>
    </message>
    <message id="geod_072">
        <source>файл повреждён (%1); метки после этого места не прочитаны</source>
        <translation>файл повреждён (%1); метки после этого места не прочитаны</translation>
    </message>
    <message id="gain_298">
        <source>Меток без точки (линии, полигоны): %1, они пропущены: %2</source>
        <translation>Меток без точки (линии, полигоны): %1, они пропущены: %2</translation>
    </message>
    <message id="gain_299">
        <source>Меток с неверными координатами: %1, зоны для них не добавлены:</source>
        <translation>Меток с неверными координатами: %1, зоны для них не добавлены:</translation>
    </message>
    <message id="gain_297">
        <source>Добавлено зон: %1.</source>
        <translation>Добавлено зон: %1.</translation>
    </message>
    <message id="gain_247">
        <source>Зона остановки: одна из зон списка</source>
        <translation>Зона остановки: одна из зон списка</translation>
    </message>
    <message id="gain_246">
        <source>Зоны &quot;%1&quot; нет в списке зон; остановка осталась у зоны %2.</source>
        <translation>Зоны &quot;%1&quot; нет в списке зон; остановка осталась у зоны %2.</translation>
    </message>
    <message id="gain_248">
        <source>Зоны %1 нет в списке зон.</source>
        <translation>Зоны %1 нет в списке зон.</translation>
    </message>
</context>
</TS>
