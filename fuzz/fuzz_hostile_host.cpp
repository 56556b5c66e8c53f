// A host that misbehaves, played against the device object and its windows. The input is a script:
// each step presses a button of the plug-in's windows, types into one of its fields, switches a
// tab, opens a generated file, connects or disconnects, or sends any host message with arguments
// made from the input. Whenever the plug-in calls the host, the script decides what the host does:
// fill the result fields with anything, answer inside the call (with the paired reply or any other
// message, once or several times), answer later, or not at all, and what the callback returns.
// Record replies have any length, 2401 any header, 2153 is answered with a generated file.
//
// The windows are made once and kept, as a host keeps a loaded plug-in; each input starts from a
// disconnected terminal with the later answers of the input before dropped.
#include "device/zrk_device_k7140.h"
#include "translations/catalogue.h"
#include "zrk/zrk_host_api.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QDateTime>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <iterator>
#include <memory>
#include <vector>

namespace {

// Reads the script from the front; past its end every read is zero, which makes the host quiet.
class Script
{
public:
    Script(const uint8_t* data, size_t size)
        : m_p(data)
        , m_end(data + size)
    {
    }
    bool done() const { return m_p >= m_end; }
    uint8_t u8() { return done() ? 0 : *m_p++; }
    uint16_t u16() { return uint16_t(u8() | (u8() << 8)); }
    uint32_t u32() { return uint32_t(u16()) | (uint32_t(u16()) << 16); }
    uint64_t u64() { return uint64_t(u32()) | (uint64_t(u32()) << 32); }
    // A length (16 bits) and that many bytes, fewer at the end of the script.
    QByteArray blob()
    {
        const size_t want = u16();
        const size_t take = std::min<size_t>(want, size_t(m_end - m_p));
        QByteArray out(reinterpret_cast<const char*>(m_p), int(take));
        m_p += take;
        return out;
    }
    QString text() { return QString::fromUtf8(blob()); }

private:
    const uint8_t* m_p;
    const uint8_t* m_end;
};

Script* g_script = nullptr; // the input being played; null between inputs
ZRK_Device_K7140* g_device = nullptr;
QTemporaryDir* g_home = nullptr;
int g_depth = 0; // nesting of the host's answers inside the plug-in's calls
std::vector<std::function<void()>> g_later; // answers the host gives after the call returned
QByteArray g_fileText; // what the next generated file holds
QString g_fileSuffix = QStringLiteral(".xml");
int g_files = 0;
QObject g_eventBus; // what the host hands over with 2346
// ZRK_FUZZ_TRACE=1: every step and every call of the host on stderr, to read what an input does.
const bool g_trace = qEnvironmentVariableIntValue("ZRK_FUZZ_TRACE") != 0;

uint8_t next8()
{
    return g_script ? g_script->u8() : 0;
}

QString generatedFile()
{
    const QString path
        = QDir(g_home->path()).filePath(QStringLiteral("gen%1%2").arg(++g_files % 8).arg(g_fileSuffix));
    QFile f(path);
    if (f.open(QIODevice::WriteOnly))
        f.write(g_fileText);
    return path;
}

void send(int msg, unsigned long w, unsigned long l)
{
    if (g_trace)
        std::fprintf(stderr, "  host -> %d\n", msg);
    g_device->ZRK_ReceiveMessage(g_device, msg, w, l);
}

// The host's side of a message to the plug-in, arguments made from the script by the kind of word
// the message table names. Messages whose words the host must not invent (paths of the host's own
// folders, its event bus) get fixed values.
void hostMessage(const ZrkMessageInfo& row, Script& s)
{
    struct Word
    {
        QByteArray bytes;
        QString text[4];
        quint64 value = 0;
        bool flag = false;
        szConfigFile file {};
        szConfigParam param {};
        szDeviceConnect connect {};
        szDirPath paths;
        char record[512] {};
    };
    const auto make = [&s](const char* kind, Word& word) -> unsigned long {
        const QByteArray k(kind);
        if (k == "-" || k.isEmpty())
            return s.u8() & 1 ? 0 : s.u32();
        if (k.startsWith("QByteArray*")) {
            word.bytes = s.blob();
            return reinterpret_cast<unsigned long>(&word.bytes);
        }
        if (k.startsWith("QString[2]")) {
            word.text[0] = s.u8() & 1 ? s.text() : QStringLiteral("K-7140");
            word.text[1] = s.text();
            return reinterpret_cast<unsigned long>(&word.text[0]);
        }
        if (k.startsWith("QString* file")) { // a telemetry file to open: a generated one
            word.text[0] = generatedFile();
            return reinterpret_cast<unsigned long>(&word.text[0]);
        }
        if (k.startsWith("QString*")) {
            word.text[0] = s.text();
            return reinterpret_cast<unsigned long>(&word.text[0]);
        }
        if (k.startsWith("bool*")) {
            word.flag = s.u8() & 1;
            return reinterpret_cast<unsigned long>(&word.flag);
        }
        if (k.startsWith("uint") || k.startsWith("int")) {
            word.value = s.u64();
            return reinterpret_cast<unsigned long>(&word.value);
        }
        if (k.startsWith("szConfigFile*")) {
            word.file.mode = qint32(s.u8() % 3);
            word.file.source = qint32(s.u8() % 3);
            if (s.u8() & 1) {
                const QByteArray path = generatedFile().toLocal8Bit().left(ZRK_CONFIG_PATH_SIZE - 1);
                std::memcpy(word.file.path, path.constData(), size_t(path.size()));
            }
            return reinterpret_cast<unsigned long>(&word.file);
        }
        if (k.startsWith("szDeviceConnect*")) {
            word.connect.deviceType = s.u8() & 3 ? QStringLiteral("K-7140") : s.text();
            word.connect.imei = s.text();
            word.connect.firmwareVersion = s.text();
            word.connect.bhr = s.u64();
            word.connect.connectType = s.u32();
            return reinterpret_cast<unsigned long>(&word.connect);
        }
        if (k.startsWith("szDirPath*")) {
            word.paths = { g_home->filePath(QStringLiteral("tmi/")), g_home->filePath(QStringLiteral("xml/")),
                g_home->filePath(QStringLiteral("fw/")), g_home->filePath(QStringLiteral("snd/")) };
            return reinterpret_cast<unsigned long>(&word.paths);
        }
        if (k.startsWith("event bus"))
            return reinterpret_cast<unsigned long>(&g_eventBus);
        if (k.startsWith("szConfigParam*")) {
            const QByteArray b = s.blob();
            std::memcpy(
                word.param.text, b.constData(), std::min<size_t>(sizeof word.param.text, size_t(b.size())));
            return reinterpret_cast<unsigned long>(&word.param);
        }
        // Records whose layout is the host's: any bytes.
        const QByteArray b = s.blob();
        std::memcpy(word.record, b.constData(), std::min<size_t>(sizeof word.record, size_t(b.size())));
        return reinterpret_cast<unsigned long>(&word.record);
    };
    Word w, l;
    const unsigned long wp = make(row.wParam, w);
    const unsigned long lp = make(row.lParam, l);
    send(row.id, wp, lp);
}

std::vector<const ZrkMessageInfo*> incoming()
{
    std::vector<const ZrkMessageInfo*> rows;
    for (const ZrkMessageInfo& row : kZrkMessageTable) {
        if (row.direction == ZrkMessageDirection::HostToPlugin)
            rows.push_back(&row);
    }
    return rows;
}

const std::vector<const ZrkMessageInfo*>& incomingRows()
{
    static const std::vector<const ZrkMessageInfo*> rows = incoming();
    return rows;
}

// The reply a host gives to a request (the ids' pairs), 0 when none.
int pairedReply(int msg)
{
    static const int pairs[][2]
        = { { 2080, 2081 }, { 2082, 2083 }, { 2121, 2122 }, { 2125, 2126 }, { 2127, 2128 }, { 2153, 2101 },
              { 2240, 2241 }, { 2242, 2243 }, { 2246, 2245 }, { 2248, 2249 }, { 2250, 2251 }, { 2252, 2253 },
              { 2254, 2255 }, { 2260, 2263 }, { 2261, 2259 }, { 2264, 2265 }, { 2266, 2267 }, { 2270, 2271 },
              { 2290, 2291 }, { 2292, 2293 }, { 2294, 2295 }, { 2300, 2301 }, { 2302, 2303 }, { 2304, 2305 },
              { 2306, 2307 }, { 2311, 2241 }, { 2342, 2343 }, { 2350, 2351 }, { 2352, 2353 }, { 2354, 2355 },
              { 2366, 2362 }, { 2402, 2403 }, { 2406, 2407 }, { 2410, 2411 }, { 2413, 2413 } };
    for (const auto& p : pairs) {
        if (p[0] == msg)
            return p[1];
    }
    return 0;
}

// 2401 with any header: the request echoed with a chosen result, or anything at all.
QByteArray sdReply(const szSDFile* request, Script& s)
{
    szSDFileReplyHeader h {};
    QByteArray name = request ? request->fileName.toUtf8() : QByteArray();
    QByteArray payload;
    if (request && (s.u8() & 3)) {
        h.operation = quint8(request->operation);
        h.offset = request->offset;
        h.result = qint8(s.u8() % 6 == 0 ? s.u8() : 0);
        h.fileSize = request->offset + quint32(request->data.size());
    } else {
        h.operation = s.u8();
        h.result = qint8(s.u8());
        h.offset = s.u32();
        h.fileSize = s.u32();
        name = s.blob();
        payload = s.blob();
    }
    h.nameLength = quint16(name.size());
    h.payloadLength = quint32(payload.size());
    if (s.u8() % 8 == 0) { // lengths that lie
        h.nameLength = s.u16();
        h.payloadLength = s.u32();
    }
    return QByteArray(reinterpret_cast<const char*>(&h), sizeof h) + name + payload;
}

void reply(int msg, unsigned long w, Script& s)
{
    const uint8_t how = s.u8();
    const int paired = pairedReply(msg);
    if (msg == ZRK_MSG_SD_FILE_OPERATION && !(how & 1)) {
        QByteArray bytes = sdReply(reinterpret_cast<const szSDFile*>(w), s);
        send(ZRK_MSG_SD_FILE_DATA, reinterpret_cast<unsigned long>(&bytes), 0);
        return;
    }
    if (paired && !(how & 2)) {
        if (const ZrkMessageInfo* row = zrkMessageInfo(paired, ZrkMessageDirection::HostToPlugin))
            hostMessage(*row, s);
        return;
    }
    const auto& rows = incomingRows();
    hostMessage(*rows[s.u8() % rows.size()], s);
}

// The host's callback. Nothing it does is the plug-in's fault except what the plug-in does next.
unsigned long hostCallback(void*, int msg, unsigned long w, unsigned long l)
{
    if (!g_script || g_depth > 4)
        return 0;
    Script& s = *g_script;
    const uint8_t what = s.u8();
    if (g_trace)
        std::fprintf(stderr, "  plug-in -> %d (host: %d)\n", msg, what);
    if (what & 1) { // fill the result fields with anything
        if ((msg == ZRK_MSG_EVENT_CODE_TEXT || msg == ZRK_MSG_DIAGNOSTIC_CODE_TEXT) && l)
            *reinterpret_cast<QString*>(l) = s.text();
        else if (msg == ZRK_MSG_SD_FILE_OPERATION && w)
            reinterpret_cast<szSDFile*>(w)->result = qint32(s.u32());
        else if (msg == ZRK_MSG_LOOKUP_MODULE_FUNCTIONS && l) {
            auto* f = reinterpret_cast<szLibraryFunctions*>(l);
            f->moduleName = s.text();
            f->moduleFile = s.text();
            f->moduleVersion = s.text();
        }
    }
    ++g_depth;
    for (int i = 0, n = (what & 2) ? 1 + ((what >> 4) & 3) : 0; i < n; ++i)
        reply(msg, w, s); // inside the call, once or several times
    --g_depth;
    if (what & 4) { // later, once the call has returned: the host keeps what it needs of the request
        const QByteArray later = s.blob();
        szSDFile request;
        const bool sd = msg == ZRK_MSG_SD_FILE_OPERATION && w;
        if (sd)
            request = *reinterpret_cast<const szSDFile*>(w);
        g_later.push_back([msg, later, sd, request] {
            Script again(reinterpret_cast<const uint8_t*>(later.constData()), size_t(later.size()));
            Script* outer = g_script;
            g_script = &again;
            reply(msg, sd ? reinterpret_cast<unsigned long>(&request) : 0, again);
            g_script = outer;
        });
    }
    return (what & 8) ? s.u32() : 0;
}

// A modal dialog or popup met while the script plays: answered as the script says.
void answerDialogs()
{
    if (QWidget* popup = QApplication::activePopupWidget()) {
        popup->close();
        return;
    }
    QWidget* modal = QApplication::activeModalWidget();
    auto* dialog = qobject_cast<QDialog*>(modal);
    if (!dialog)
        return;
    const uint8_t how = next8();
    if (auto* files = qobject_cast<QFileDialog*>(dialog)) {
        if (how & 1) {
            const QString path = generatedFile();
            files->setDirectory(QFileInfo(path).absolutePath());
            files->selectFile(QFileInfo(path).fileName());
            static_cast<QDialog*>(files)->done(QDialog::Accepted);
        } else {
            files->reject();
        }
    } else if (auto* box = qobject_cast<QMessageBox*>(dialog)) {
        const QList<QAbstractButton*> buttons = box->buttons();
        if (!buttons.isEmpty() && (how & 1))
            buttons.at((how >> 1) % buttons.size())->click();
        else
            box->reject();
    } else if (auto* input = qobject_cast<QInputDialog*>(dialog)) {
        input->setTextValue(g_script ? g_script->text() : QString());
        input->setIntValue(int(next8()));
        input->done(how & 1 ? QDialog::Accepted : QDialog::Rejected);
    } else {
        dialog->done(how & 1 ? QDialog::Accepted : QDialog::Rejected);
    }
}

void settle()
{
    for (int i = 0; i < 3; ++i)
        QApplication::processEvents(QEventLoop::AllEvents, 5);
}

// The plug-in's widgets of one kind, in a stable order.
template <typename W> QList<W*> widgets()
{
    QList<QWidget*> tops = QApplication::topLevelWidgets();
    std::sort(tops.begin(), tops.end(), [](QWidget* a, QWidget* b) {
        const QString ka = QLatin1String(a->metaObject()->className()) + a->objectName();
        const QString kb = QLatin1String(b->metaObject()->className()) + b->objectName();
        return ka < kb;
    });
    QList<W*> out;
    for (QWidget* top : tops) {
        if (auto* self = qobject_cast<W*>(top))
            out << self;
        for (W* w : top->findChildren<W*>()) {
            if (w->isEnabled())
                out << w;
        }
    }
    return out;
}

// Buttons a user presses most, by their object names in the forms: the configuration window's
// (new, open, save, read from and write to the terminal, ...), the geo page's (write to the card,
// open, save, add, KML) and the telemetry view's (current record, steps, auto-request, each
// terminal command, map, save). A name no window has any more presses nothing.
const char* const kNamedButtons[] = { "pushButton_New", "pushButton_Open", "pushButton_Save",
    "pushButton_SaveAs", "pushButton_Read", "pushButton_Load", "pushButton_Defaults", "pushButton_Compare",
    "pushButton_Editor", "BtnWriteDevice", "BtnOpenFile", "BtnSaveFile", "ListGeo_BtnAdd",
    "ListGeo_BtnAdd_FileKML", "ListGeo_BtnDel", "GetCurrent", "GetPrev", "GetNext", "Show", "GetAutoTmi",
    "OutOn", "OutOff", "GuardOn", "GuardOff", "Clear", "NmeaOutput", "SetParam", "RunCommand", "ReadTouch",
    "ReadRfid", "GetTouch", "GetRfid", "SendFlsCommand", "FirmwareUpdate", "TahoQuery", "TahoFileRequest",
    "TahoFileRead", "FlsData", "FlsDataFile", "ShowOnMap", "SaveFile" };

void pressNamed(const char* name)
{
    for (QAbstractButton* b : widgets<QAbstractButton>()) {
        if (b->objectName() == QLatin1String(name)) {
            b->click();
            return;
        }
    }
}

void step(Script& s)
{
    const int op = s.u8() % 15;
    if (g_trace)
        std::fprintf(stderr, "step %d\n", op);
    switch (op) {
    case 0: { // a button of one of the windows
        const QList<QAbstractButton*> buttons = widgets<QAbstractButton>();
        if (!buttons.isEmpty())
            buttons.at(s.u16() % buttons.size())->click();
        break;
    }
    case 1: { // any host message
        const auto& rows = incomingRows();
        hostMessage(*rows[s.u8() % rows.size()], s);
        break;
    }
    case 2: { // the answers promised for later
        std::vector<std::function<void()>> later;
        later.swap(g_later);
        for (auto& answer : later)
            answer();
        break;
    }
    case 3: // connect, as the terminal of this plug-in
        hostMessage(*zrkMessageInfo(ZRK_MSG_DEVICE_CONNECTED, ZrkMessageDirection::HostToPlugin), s);
        break;
    case 4:
        send(ZRK_MSG_DEVICE_DISCONNECTED, 0, 0);
        break;
    case 5: // open a configuration: new, or a generated file
        hostMessage(*zrkMessageInfo(ZRK_MSG_OPEN_CONFIGURATION, ZrkMessageDirection::HostToPlugin), s);
        break;
    case 6: { // the telemetry view, and a tick of its auto-request timer
        QString text;
        send(ZRK_MSG_OPEN_TELEMETRY_VIEW, reinterpret_cast<unsigned long>(&text), 0);
        // Through the meta-object system: the view's own timer slot, whatever its class looks like.
        for (QWidget* view : QApplication::topLevelWidgets()) {
            if (view->objectName() == QLatin1String("ZRK_Widget_Tmi_View")
                && !QMetaObject::invokeMethod(view, "slot_timeout_m_Timer_Auto_TMI"))
                QMetaObject::invokeMethod(view, "autoRequestTick");
        }
        break;
    }
    case 7: { // a tab
        const QList<QTabWidget*> tabs = widgets<QTabWidget>();
        if (!tabs.isEmpty()) {
            QTabWidget* t = tabs.at(s.u8() % tabs.size());
            if (t->count() > 0)
                t->setCurrentIndex(s.u8() % t->count());
        }
        break;
    }
    case 8: { // what the next generated file holds
        static const char* const suffixes[] = { ".xml", ".tmi", ".kml", ".csv" };
        g_fileSuffix = QLatin1String(suffixes[s.u8() % 4]);
        g_fileText = s.blob();
        break;
    }
    case 9: { // typing into a field
        const QList<QLineEdit*> edits = widgets<QLineEdit>();
        if (!edits.isEmpty()) {
            QLineEdit* e = edits.at(s.u16() % edits.size());
            const QString t = s.text();
            e->setText(t);
            emit e->textEdited(t);
            emit e->editingFinished();
            emit e->returnPressed();
        }
        break;
    }
    case 10: { // a number box
        const QList<QSpinBox*> boxes = widgets<QSpinBox>();
        if (!boxes.isEmpty())
            boxes.at(s.u16() % boxes.size())->setValue(int(s.u32()));
        break;
    }
    case 12:
        pressNamed(kNamedButtons[s.u8() % std::size(kNamedButtons)]);
        break;
    case 14: { // a table cell typed over (zones' stops, speed zones, sounds)
        const QList<QTableWidget*> tables = widgets<QTableWidget>();
        if (!tables.isEmpty()) {
            QTableWidget* t = tables.at(s.u8() % tables.size());
            const int row = t->rowCount() ? s.u16() % t->rowCount() : 0;
            const int column = t->columnCount() ? s.u8() % t->columnCount() : 0;
            if (QTableWidgetItem* item = t->item(row, column))
                item->setText(s.text());
        }
        break;
    }
    case 13: // the geo page of the configuration window, built when its tab is first opened
        for (QTabWidget* tabs : widgets<QTabWidget>()) {
            if (QWidget* geo = tabs->findChild<QWidget*>(QStringLiteral("ZRK_Form_Config_Ainf_Holder"));
                geo && tabs->indexOf(geo) >= 0)
                tabs->setCurrentWidget(geo);
        }
        break;
    default:
        settle();
        break;
    }
    answerDialogs();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("DISPLAY"); // no OpenGL: the map shows its message, as on a workstation without it
    // Made once and never destroyed: the process ends by exit() from inside the fuzzing loop, and
    // Qt's thread data must not be torn down under the windows still living then.
    auto* home = new QTemporaryDir(QDir::tempPath() + QStringLiteral("/fuzz_hostile_host-XXXXXX"));
    g_home = home;
    std::atexit([] { QDir(g_home->path()).removeRecursively(); });
    for (const char* var :
        { "HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR" })
        qputenv(var, home->path().toLocal8Bit());
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    new QApplication(*argc, *argv);
    QCoreApplication::setOrganizationName(QStringLiteral("zrk-fuzz"));
    QCoreApplication::setApplicationName(QStringLiteral("fuzz_hostile_host"));
    zrk::installCatalogue(QStringLiteral("ru"));
    g_device = new ZRK_Device_K7140(QStringLiteral("K-7140"), 3, 5, 8, 1);
    g_device->InitConfigurator(&hostCallback);
    szDirPath paths { home->filePath(QStringLiteral("tmi/")), home->filePath(QStringLiteral("xml/")),
        home->filePath(QStringLiteral("fw/")), home->filePath(QStringLiteral("snd/")) };
    send(ZRK_MSG_SET_DIRECTORY_PATHS, reinterpret_cast<unsigned long>(&paths), 0);
    // Modal dialogs and popups are answered as the script says, from inside their own loops.
    auto* dialogs = new QTimer;
    QObject::connect(dialogs, &QTimer::timeout, &answerDialogs);
    dialogs->start(0);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    // The light editor writes what it sends to the terminal into the working folder: the scratch
    // home while the input plays, the fuzzer's own folder (corpus, artifacts) again afterwards.
    const QString folder = QDir::currentPath();
    QDir::setCurrent(g_home->path());
    Script script(data, size);
    g_script = &script;
    quint32 mode = script.u8() % 6;
    send(ZRK_MSG_SET_CONFIGURATOR_MODE, reinterpret_cast<unsigned long>(&mode), 0);
    for (int steps = 0; !script.done() && steps < 64; ++steps)
        step(script);
    // The host keeps no promises across inputs; the next one starts disconnected.
    g_later.clear();
    g_script = nullptr;
    send(ZRK_MSG_DEVICE_DISCONNECTED, 0, 0);
    settle();
    QDir::setCurrent(folder);
    return 0;
}
