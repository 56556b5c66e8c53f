#include "sim_config.h"

#include "host_dispatcher.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>
#include <QTimer>

#include <cstring>

namespace {

constexpr unsigned long kConfigurationFile = 0; // lParam of 2151
constexpr unsigned long kFirmwareFile = 6;
constexpr char kFactoryResource[] = ":/zrk-host/data/terminal_config.xml";
constexpr char kReadFileName[] = "zrk-host-terminal-config.xml";

} // namespace

ZrkSimConfig::ZrkSimConfig(ZrkHostDispatcher& dispatcher, QObject* parent)
    : QObject(parent)
    , m_dispatcher(dispatcher)
    , m_stored(factoryConfiguration())
{
    setObjectName(QStringLiteral("ZrkSimConfig"));
    m_dispatcher.setHandler(ZRK_MSG_WRITE_FILE_TO_DEVICE,
        [this](unsigned long w, unsigned long l, QString& result) { return writeFile(w, l, result); });
    m_dispatcher.setHandler(ZRK_MSG_READ_CONFIG_FILE, [this](unsigned long, unsigned long, QString& result) {
        // The transfer takes its time on a real terminal; the answer comes after the request returns.
        QTimer::singleShot(0, this, &ZrkSimConfig::sendStoredConfiguration);
        //% "чтение конфигурации: %1 байт"
        result = qtTrId("host_701").arg(m_stored.size());
        return 0ul;
    });
}

QByteArray ZrkSimConfig::factoryConfiguration()
{
    QFile file(QString::fromLatin1(kFactoryResource));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString ZrkSimConfig::readFilePath() const
{
    const QString dir = QStandardPaths::writableLocation(QStandardPaths::TempLocation);
    return QDir(dir).filePath(QString::fromLatin1(kReadFileName));
}

unsigned long ZrkSimConfig::writeFile(unsigned long wParam, unsigned long lParam, QString& result)
{
    const QString* path = reinterpret_cast<const QString*>(wParam);
    if (!path) {
        //% "нет пути к файлу"
        result = qtTrId("host_702");
        return 0;
    }
    if (lParam == kFirmwareFile) {
        emit firmwareWritten(*path);
        //% "прошивка «%1» (не записывается симулятором)"
        result = qtTrId("host_703").arg(*path);
        return 0;
    }
    if (lParam != kConfigurationFile) {
        //% "неизвестный вид файла %1"
        result = qtTrId("host_704").arg(lParam);
        return 0;
    }
    QFile file(*path);
    if (!file.open(QIODevice::ReadOnly)) {
        //% "файл «%1» не читается: %2"
        result = qtTrId("host_705").arg(*path, file.errorString());
        return 0;
    }
    m_stored = file.readAll();
    ++m_writes;
    emit configurationWritten(m_stored);
    //% "конфигурация записана в терминал: %1 байт"
    result = qtTrId("host_706").arg(m_stored.size());
    return 0;
}

void ZrkSimConfig::sendStoredConfiguration()
{
    const QString path = readFilePath();
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(m_stored) != m_stored.size() || !file.commit())
        return;
    szConfigFile record;
    std::memset(&record, 0, sizeof record);
    record.mode = 1;
    record.source = 0; // as read from the device
    const QByteArray local = path.toLocal8Bit().left(ZRK_CONFIG_PATH_SIZE - 1);
    std::memcpy(record.path, local.constData(), static_cast<size_t>(local.size()));
    m_dispatcher.send(ZRK_MSG_OPEN_CONFIGURATION, reinterpret_cast<unsigned long>(&record), 0,
        //% "%1: полный редактор, из терминала «%2»"
        qtTrId("host_707").arg(QStringLiteral("szConfigFile"), path));
}
