#include "telemetry/zrk_widget_tmi_file.h"

#include "map/zrk_dialog_map_track.h"
#include "telemetry/orba_dispatch.h"
#include "telemetry/orba_field_labels.h"
#include "telemetry/tmipage_orba3.h"
#include "telemetry/zrk_form_tmi_ext.h"
#include "telemetry/zrk_form_tmi_orba3.h"
#include "ui_zrk_widget_tmi_page.h"
#include "ui_zrk_widget_tmi_table.h"

#include <QFileDialog>
#include <QHeaderView>
#include <QMenu>
#include <QMessageBox>
#include <QRegularExpression>
#include <QSaveFile>

namespace {

// The texts of the forms, which carry only their ids.
[[maybe_unused]] const char* const kFormTexts[] = {
    //% "Первая"
    QT_TRID_NOOP("tmif_020"),
    //% "Предыдущая"
    QT_TRID_NOOP("tmif_021"),
    //% "Следующая"
    QT_TRID_NOOP("tmif_022"),
    //% "Последняя"
    QT_TRID_NOOP("tmif_023"),
    //% "Номер:"
    QT_TRID_NOOP("tmif_024"),
    //% "Перейти"
    QT_TRID_NOOP("tmif_025"),
    //% "Найти по времени"
    QT_TRID_NOOP("tmif_026"),
    //% "Номер записи в файле, от 1 до числа записей"
    QT_TRID_NOOP("tmif_030"),
    //% "Первая запись, время которой не раньше заданного"
    QT_TRID_NOOP("tmif_031"),
    //% "Коды событий:"
    QT_TRID_NOOP("tmif_040"),
    //% "Коды событий через запятую или пробел, от 0 до 65535; пусто — любые"
    QT_TRID_NOOP("tmif_041"),
    //% "Время с"
    QT_TRID_NOOP("tmif_042"),
    //% "по"
    QT_TRID_NOOP("tmif_043"),
    //% "Применить"
    QT_TRID_NOOP("tmif_044"),
    //% "Сбросить"
    QT_TRID_NOOP("tmif_045"),
    //% "Столбцы…"
    QT_TRID_NOOP("tmif_046"),
    //% "Экспорт CSV…"
    QT_TRID_NOOP("tmif_047"),
    //% "Экспорт KML…"
    QT_TRID_NOOP("tmif_048"),
    //% "Время записи (местное), границы включены"
    QT_TRID_NOOP("tmif_053"),
    //% "Какие поля показывать столбцами"
    QT_TRID_NOOP("tmif_054"),
    //% "Сохранить показанные записи в CSV"
    QT_TRID_NOOP("tmif_055"),
    //% "Сохранить трек показанных записей в KML"
    QT_TRID_NOOP("tmif_056"),
    //% "На карте…"
    QT_TRID_NOOP("tmif_062"),
    //% "Показать трек показанных записей на карте"
    QT_TRID_NOOP("tmif_063"),
};

QString boxTitle()
{
    //% "Файл телеметрии"
    return qtTrId("tmif_060");
}

} // namespace

// ---- The common part ---------------------------------------------------------------------------

ZRK_Widget_Tmi_File::ZRK_Widget_Tmi_File(const char* objectName, QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QString::fromLatin1(objectName));
    askShowGoodRecords = [this](const QString& message, int goodRecords) {
        if (goodRecords == 0) {
            QMessageBox::warning(this, boxTitle(), message);
            return false;
        }
        //% "%1\n\nДо ошибки прочитано записей: %2. Показать их?"
        const QString text = qtTrId("tmif_061").arg(message).arg(goodRecords);
        return QMessageBox::warning(
                   this, boxTitle(), text, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes)
            == QMessageBox::Yes;
    };
}

ZRK_Widget_Tmi_File::~ZRK_Widget_Tmi_File() = default;

void ZRK_Widget_Tmi_File::showForm()
{
    show();
    raise();
}

void ZRK_Widget_Tmi_File::setFileTmi(const QString& name)
{
    zrk::tmi::RecordStore store;
    const QString error = store.load(name);
    if (!error.isEmpty()) {
        // Nothing good in it: told, and what was shown stays.
        const bool showGood = askShowGoodRecords(error, store.size());
        if (store.size() == 0 || !showGood)
            return;
    }
    m_fileName = name;
    setRecords(std::move(store));
}

void ZRK_Widget_Tmi_File::tell(const QString& message)
{
    askShowGoodRecords(message, 0);
}

// ---- The page ----------------------------------------------------------------------------------

ZRK_Widget_Tmi_Page::ZRK_Widget_Tmi_Page(QWidget* parent)
    : ZRK_Widget_Tmi_File("ZRK_Widget_Tmi_Page", parent)
    , m_ui(std::make_unique<Ui::ZRK_Designer_Tmi_Page>())
{
    m_ui->setupUi(this);
    m_ui->Values->horizontalHeader()->setStretchLastSection(true);
    m_ui->Values->verticalHeader()->hide();
    connect(m_ui->First, &QPushButton::pressed, this, &ZRK_Widget_Tmi_Page::slot_pressed_First);
    connect(m_ui->Prev, &QPushButton::pressed, this, &ZRK_Widget_Tmi_Page::slot_pressed_Prev);
    connect(m_ui->Next, &QPushButton::pressed, this, &ZRK_Widget_Tmi_Page::slot_pressed_Next);
    connect(m_ui->Last, &QPushButton::pressed, this, &ZRK_Widget_Tmi_Page::slot_pressed_Last);
    connect(m_ui->GoNumber, &QPushButton::pressed, this, &ZRK_Widget_Tmi_Page::slot_pressed_GoNumber);
    connect(m_ui->GoTime, &QPushButton::pressed, this, &ZRK_Widget_Tmi_Page::slot_pressed_GoTime);
    translateForm();
    updateNavigation();
}

ZRK_Widget_Tmi_Page::~ZRK_Widget_Tmi_Page() = default;

void ZRK_Widget_Tmi_Page::translateForm()
{
    m_ui->retranslateUi(this);
    //% "Поле"
    const QString field = qtTrId("tmif_028");
    //% "Значение"
    m_ui->Values->setHorizontalHeaderLabels({ field, qtTrId("tmif_029") });
    //% "Просмотр записей телеметрии"
    setWindowTitle(qtTrId("wtmi_002"));
    updateNavigation();
}

void ZRK_Widget_Tmi_Page::setRecords(zrk::tmi::RecordStore&& store)
{
    m_store = std::move(store);
    m_current = -1;
    m_ui->FileName->setText(fileName());
    m_ui->Number->setMaximum(std::max(1, m_store.size()));
    double first = 0;
    if (m_store.numberOf(0, orba::F_Time, &first))
        m_ui->Moment->setDateTime(QDateTime::fromSecsSinceEpoch(qint64(first)));
    showRecord(0);
    updateNavigation();
}

void ZRK_Widget_Tmi_Page::showRecord(int index)
{
    if (m_store.size() == 0) {
        m_current = -1;
        fillRecordView(QByteArray());
        updateNavigation();
        return;
    }
    m_current = qBound(0, index, m_store.size() - 1);
    fillRecordView(m_store.bytes(m_current));
    updateNavigation();
}

bool ZRK_Widget_Tmi_Page::showRecordAtTime(const QDateTime& moment)
{
    const double wanted = double(moment.toSecsSinceEpoch());
    for (int i = 0; i < m_store.size(); ++i) {
        double t = 0;
        if (m_store.numberOf(i, orba::F_Time, &t) && t >= wanted) {
            showRecord(i);
            return true;
        }
    }
    return false;
}

// Current records in the record form, extended ones in theirs; anything else as its bytes.
void ZRK_Widget_Tmi_Page::fillRecordView(const QByteArray& record)
{
    orba::Decoded d = orba::decodeRecord(record);
    const bool extended = d.form == orba::Form::Extended;
    const bool current = d.page && !extended;
    if (current) {
        if (!m_form) {
            m_form = new ZRK_Form_TMI_Orba3(this);
            m_form->translateForm();
            m_ui->layout_Main->addWidget(m_form, 1);
        }
        m_form->setPage(std::move(d.page));
    } else if (extended) {
        if (!m_formExt) {
            m_formExt = new ZRK_Form_TMI_Ext(this);
            m_ui->layout_Main->addWidget(m_formExt, 1);
        }
        m_formExt->setPage(static_cast<const TmiPage_Orba3&>(*d.page));
    } else {
        m_ui->Values->setRowCount(record.isEmpty() ? 0 : 1);
        if (!record.isEmpty()) {
            //% "Неизвестная запись"
            m_ui->Values->setItem(0, 0, new QTableWidgetItem(qtTrId("tmif_032")));
            m_ui->Values->setItem(0, 1, new QTableWidgetItem(QString::fromLatin1(record.toHex(' '))));
        }
    }
    if (m_form)
        m_form->setVisible(current);
    if (m_formExt)
        m_formExt->setVisible(extended);
    m_ui->Values->setVisible(!current && !extended);
}

void ZRK_Widget_Tmi_Page::updateNavigation()
{
    const int n = m_store.size();
    const bool any = n > 0;
    m_ui->First->setEnabled(any && m_current > 0);
    m_ui->Prev->setEnabled(any && m_current > 0);
    m_ui->Next->setEnabled(any && m_current < n - 1);
    m_ui->Last->setEnabled(any && m_current < n - 1);
    m_ui->Number->setEnabled(any);
    m_ui->GoNumber->setEnabled(any);
    m_ui->Moment->setEnabled(any);
    m_ui->GoTime->setEnabled(any);
    //% "Запись %1 из %2"
    m_ui->Position->setText(any ? qtTrId("tmif_027").arg(m_current + 1).arg(n) : QString());
    if (any)
        m_ui->Number->setValue(m_current + 1);
}

void ZRK_Widget_Tmi_Page::slot_pressed_First()
{
    showRecord(0);
}

void ZRK_Widget_Tmi_Page::slot_pressed_Prev()
{
    showRecord(m_current - 1);
}

void ZRK_Widget_Tmi_Page::slot_pressed_Next()
{
    showRecord(m_current + 1);
}

void ZRK_Widget_Tmi_Page::slot_pressed_Last()
{
    showRecord(m_store.size() - 1);
}

void ZRK_Widget_Tmi_Page::slot_pressed_GoNumber()
{
    showRecord(m_ui->Number->value() - 1);
}

void ZRK_Widget_Tmi_Page::slot_pressed_GoTime()
{
    if (!showRecordAtTime(m_ui->Moment->dateTime())) {
        //% "Нет записей с временем не раньше %1."
        tell(qtTrId("tmif_033").arg(m_ui->Moment->dateTime().toString(m_ui->Moment->displayFormat())));
    }
}

// ---- The table ---------------------------------------------------------------------------------

ZRK_Widget_Tmi_Table::ZRK_Widget_Tmi_Table(QWidget* parent)
    : ZRK_Widget_Tmi_File("ZRK_Widget_Tmi_Table", parent)
    , m_ui(std::make_unique<Ui::ZRK_Designer_Tmi_Table>())
    , m_model(new zrk::tmi::TmiRecordModel(this))
{
    m_ui->setupUi(this);
    m_ui->Table->setModel(m_model);
    m_ui->Table->verticalHeader()->hide(); // the first column numbers the records
    m_ui->Table->setWordWrap(false);
    m_ui->Table->verticalHeader()->setDefaultSectionSize(m_ui->Table->fontMetrics().height() + 6);
    m_ui->Table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_ui->Table->horizontalHeader()->setSortIndicatorShown(true);
    m_ui->Table->horizontalHeader()->setSortIndicator(0, Qt::AscendingOrder);
    connect(m_ui->ApplyFilter, &QPushButton::pressed, this, &ZRK_Widget_Tmi_Table::slot_pressed_ApplyFilter);
    connect(m_ui->ResetFilter, &QPushButton::pressed, this, &ZRK_Widget_Tmi_Table::slot_pressed_ResetFilter);
    connect(m_ui->Columns, &QPushButton::pressed, this, &ZRK_Widget_Tmi_Table::slot_pressed_Columns);
    connect(m_ui->ExportCsv, &QPushButton::pressed, this, &ZRK_Widget_Tmi_Table::slot_pressed_ExportCsv);
    connect(m_ui->ExportKml, &QPushButton::pressed, this, &ZRK_Widget_Tmi_Table::slot_pressed_ExportKml);
    connect(m_ui->ShowOnMap, &QPushButton::pressed, this, &ZRK_Widget_Tmi_Table::slot_pressed_ShowOnMap);
    connect(m_ui->UseTime, &QCheckBox::toggled, m_ui->From, &QWidget::setEnabled);
    connect(m_ui->UseTime, &QCheckBox::toggled, m_ui->To, &QWidget::setEnabled);
    connect(m_model, &QAbstractItemModel::modelReset, this, &ZRK_Widget_Tmi_Table::updateCount);
    m_ui->From->setEnabled(false);
    m_ui->To->setEnabled(false);
    translateForm();
}

ZRK_Widget_Tmi_Table::~ZRK_Widget_Tmi_Table() = default;

void ZRK_Widget_Tmi_Table::translateForm()
{
    m_ui->retranslateUi(this);
    //% "Таблица записей телеметрии"
    setWindowTitle(qtTrId("wtmi_003"));
    updateCount();
}

void ZRK_Widget_Tmi_Table::setRecords(zrk::tmi::RecordStore&& store)
{
    m_model->setStore(std::move(store));
    m_present = m_model->columns();
    m_ui->Table->horizontalHeader()->setSortIndicator(0, Qt::AscendingOrder);
    // Sized by the rows on screen, not by all of them.
    m_ui->Table->resizeColumnsToContents();
    // The time range offered is that of the file's first and last records.
    const zrk::tmi::RecordStore& s = m_model->store();
    double first = 0, last = 0;
    if (s.numberOf(0, orba::F_Time, &first) && s.numberOf(s.size() - 1, orba::F_Time, &last)) {
        m_ui->From->setDateTime(QDateTime::fromSecsSinceEpoch(qint64(std::min(first, last))));
        m_ui->To->setDateTime(QDateTime::fromSecsSinceEpoch(qint64(std::max(first, last))));
    }
    updateCount();
}

bool ZRK_Widget_Tmi_Table::applyFilter(
    const QString& codes, bool byTime, const QDateTime& from, const QDateTime& to, QString* why)
{
    zrk::tmi::TmiRecordModel::Filter f;
    for (const QString& part :
        codes.split(QRegularExpression(QStringLiteral("[,;\\s]+")), Qt::SkipEmptyParts)) {
        bool ok = false;
        const uint code = part.toUInt(&ok);
        if (!ok || code > 0xFFFF) {
            //% "«%1» — не код события (от 0 до 65535)"
            *why = qtTrId("tmif_034").arg(part);
            return false;
        }
        f.codes << int(code);
    }
    if (byTime) {
        f.from = from.toSecsSinceEpoch();
        f.to = to.toSecsSinceEpoch();
        if (f.from > f.to) {
            //% "Начало интервала позже его конца"
            *why = qtTrId("tmif_035");
            return false;
        }
    }
    m_model->setFilter(f);
    return true;
}

void ZRK_Widget_Tmi_Table::setFieldShown(int no, bool shown)
{
    QVector<int> columns = m_model->columns();
    if (shown == columns.contains(no))
        return;
    if (shown) {
        columns.append(no);
        std::sort(columns.begin(), columns.end());
    } else {
        columns.removeAll(no);
    }
    m_model->setColumns(columns);
}

bool ZRK_Widget_Tmi_Table::exportShown(const QString& path, bool kml, QString* error)
{
    const QByteArray bytes
        = kml ? zrk::tmi::kmlBytes(m_model->shownRecords()) : zrk::tmi::csvBytes(m_model->shownRecords());
    QSaveFile f(path);
    if (f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size() && f.commit())
        return true;
    //% "Не удаётся записать файл «%1»: %2"
    *error = qtTrId("tmif_036").arg(path, f.errorString());
    return false;
}

void ZRK_Widget_Tmi_Table::slot_pressed_ApplyFilter()
{
    QString why;
    if (!applyFilter(m_ui->Codes->text(), m_ui->UseTime->isChecked(), m_ui->From->dateTime(),
            m_ui->To->dateTime(), &why))
        tell(why);
}

void ZRK_Widget_Tmi_Table::slot_pressed_ResetFilter()
{
    m_ui->Codes->clear();
    m_ui->UseTime->setChecked(false);
    m_model->setFilter({});
}

void ZRK_Widget_Tmi_Table::slot_pressed_Columns()
{
    QMenu menu(this);
    for (int no : qAsConst(m_present)) {
        QAction* a = menu.addAction(orba::fieldLabel(no));
        a->setCheckable(true);
        a->setChecked(m_model->columns().contains(no));
        connect(a, &QAction::toggled, this, [this, no](bool on) { setFieldShown(no, on); });
    }
    menu.exec(m_ui->Columns->mapToGlobal(QPoint(0, m_ui->Columns->height())));
}

void ZRK_Widget_Tmi_Table::slot_pressed_ExportCsv()
{
    exportWithDialog(false);
}

void ZRK_Widget_Tmi_Table::slot_pressed_ExportKml()
{
    exportWithDialog(true);
}

void ZRK_Widget_Tmi_Table::slot_pressed_ShowOnMap()
{
    const QVector<ZrkMapTrackPoint> points = shownTrack();
    if (points.isEmpty()) {
        //% "Среди показанных записей нет ни одной с координатами."
        tell(qtTrId("tmif_064"));
        return;
    }
    ZRK_Dialog_Map_Track::showTrack(points, this);
}

QVector<ZrkMapTrackPoint> ZRK_Widget_Tmi_Table::shownTrack() const
{
    QVector<ZrkMapTrackPoint> points;
    const zrk::tmi::RecordSource next = m_model->shownRecords();
    zrk::tmi::Record record;
    ZrkMapTrackPoint p;
    while (next(record))
        if (zrkTrackPointOf(record.bytes, &p))
            points.append(p);
    return points;
}

void ZRK_Widget_Tmi_Table::exportWithDialog(bool kml)
{
    //% "Сохранить записи"
    const QString path = QFileDialog::getSaveFileName(this, qtTrId("tmif_037"), QString(),
        kml ? QStringLiteral("KML (*.kml)") : QStringLiteral("CSV (*.csv)"));
    if (path.isEmpty())
        return;
    QString error;
    if (!exportShown(path, kml, &error))
        tell(error);
}

void ZRK_Widget_Tmi_Table::updateCount()
{
    //% "Показано записей: %1 из %2"
    m_ui->Count->setText(qtTrId("tmif_049").arg(m_model->rowCount()).arg(m_model->store().size()));
}
