// zrk-tool decode: telemetry records as the host delivers them (kind byte first), decoded by the
// plug-in's own decoder and written one JSON object (or CSV row) a line.
//
// Built for archives of millions of records: every input (lines of hex, a binary record, a saved
// .tmi file) is read in large blocks by one reader, the blocks are decoded by a pool of threads
// straight into text, and the texts are written in input order.
#include "telemetry/orba_writer.h"
#include "telemetry/tmi_file.h"
#include "tools/commands.h"
#include "translations/catalogue.h"
#include "zrk/zrk_text.h"

#include <QFile>
#include <QThread>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <cstring>
#include <deque>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

const char* const kDecodeUsage
    = "  decode [--csv] [--lang ru|en] [-j N] [--progress | --no-progress] [--input hex|binary|tmi]\n"
      "         [--hex HEX | FILE... | -]\n"
      "                                  decode telemetry records (kind byte first): one hex string,\n"
      "                                  files, or lines of hex on standard input (-, the default).\n"
      "                                  A file holds lines of hex, one binary record, or is a saved\n"
      "                                  .tmi file, told by its content (--input says which). One\n"
      "                                  JSON object per record (--csv: one row, after a header row),\n"
      "                                  texts in the catalogue's language (default ru). -j N: N\n"
      "                                  threads (default: the cores), output in input order.\n"
      "                                  --progress: records per second on standard error (the\n"
      "                                  default when it is a terminal)\n";

namespace {

constexpr int kBlockBytes = 64 * 1024; // hex text a batch holds: its JSON stays in the cache
constexpr int kBatchRecords = 256; // records a batch of a .tmi file holds
constexpr int kMaxJobs = 256;

enum class InputKind
{
    Auto,
    Hex, // lines of hex, one record a line
    Binary, // the whole input is one record
    Tmi, // a saved telemetry file
};

struct Input
{
    QString path; // empty: standard input
    InputKind kind = InputKind::Auto;
};

// A run of consecutive input, decoded by one thread into its own text.
struct Batch
{
    InputKind kind = InputKind::Hex;
    std::string text; // Hex: whole lines; otherwise the records' bytes, one after the other
    std::vector<int> ends; // not Hex: where each record ends in text
    QString where; // for messages: empty for standard input, else the file
    qint64 firstLine = 1; // Hex: the number of the first line
    QString readError; // what stopped the reader after these records (a damaged .tmi file)

    zrk::TextBuffer out;
    qint64 records = 0;
    QString error; // what stopped the decoding (bad hex)
    bool done = false;
};

// Latin-1 white space, as QString::trimmed sees it: a line of nothing else is skipped.
bool isBlank(const char* p, int n)
{
    for (int i = 0; i < n; ++i) {
        const unsigned char c = static_cast<unsigned char>(p[i]);
        if (!(c == ' ' || (c >= '\t' && c <= '\r') || c == 0x85 || c == 0xA0))
            return false;
    }
    return true;
}

void decodeBatch(Batch& b, orba::RecordWriter& writer, std::vector<unsigned char>& bytes)
{
    if (b.kind != InputKind::Hex) {
        const auto* data = reinterpret_cast<const unsigned char*>(b.text.data());
        int from = 0;
        for (const int end : b.ends) {
            writer.write(data + from, end - from, b.out);
            from = end;
        }
        b.records = qint64(b.ends.size());
        return;
    }
    const char* p = b.text.data();
    const char* const end = p + b.text.size();
    qint64 line = b.firstLine;
    for (; p < end; ++line) {
        const char* eol = static_cast<const char*>(std::memchr(p, '\n', size_t(end - p)));
        const int n = int((eol ? eol : end) - p);
        if (bytes.size() < size_t(n / 2 + 1))
            bytes.resize(size_t(n / 2 + 1));
        const zrk::HexDecoded r = zrk::decodeHex(reinterpret_cast<const unsigned char*>(p), n, bytes.data());
        if (r.ok() && r.digits > 0) {
            writer.write(bytes.data(), r.bytes, b.out);
            ++b.records;
        } else if (!isBlank(p, n)) {
            // The message comes from the one hex rule, told again for this line only.
            QByteArray ignored;
            QString why;
            zrk::parseHex(QByteArray::fromRawData(p, n), ignored, &why);
            b.error = b.where.isEmpty()
                ? QStringLiteral("bad hex on line %1: %2").arg(line).arg(why)
                : QStringLiteral("bad hex in %1 on line %2: %3").arg(b.where, QString::number(line), why);
            return;
        }
        p = eol ? eol + 1 : end;
    }
}

// Records per second on standard error, on one line that a terminal rewrites.
class Progress
{
public:
    Progress(const QString& who, bool on, QTextStream& err)
        : m_who(who)
        , m_on(on)
        , m_terminal(isatty(STDERR_FILENO) != 0)
        , m_err(err)
        , m_start(Clock::now())
        , m_last(m_start)
    {
    }
    void add(qint64 records)
    {
        m_records += records;
        const auto now = Clock::now();
        if (m_on && now - m_last >= (m_terminal ? std::chrono::milliseconds(250) : std::chrono::seconds(1))) {
            m_last = now;
            show(false);
        }
    }
    void finish()
    {
        if (m_on)
            show(true);
    }

private:
    using Clock = std::chrono::steady_clock;
    void show(bool last)
    {
        const double seconds = std::chrono::duration<double>(Clock::now() - m_start).count();
        const qint64 rate = seconds > 0 ? qint64(double(m_records) / seconds) : 0;
        const QString text
            = QStringLiteral("%1: %2 records, %3 records/s").arg(m_who).arg(m_records).arg(rate);
        if (m_terminal)
            m_err << '\r' << text << "\x1b[K" << (last ? "\n" : "");
        else
            m_err << text << '\n';
        m_err.flush();
    }

    QString m_who;
    bool m_on;
    bool m_terminal;
    QTextStream& m_err;
    Clock::time_point m_start, m_last;
    qint64 m_records = 0;
};

// Batches in, text out in the same order. With one job the batches are decoded as they come;
// with more, by that many threads, while this thread reads and writes.
class Pipeline
{
public:
    Pipeline(
        const QString& who, int jobs, orba::RecordWriter::Format format, Progress& progress, QTextStream& err)
        : m_who(who)
        , m_progress(progress)
        , m_err(err)
        , m_limit(size_t(2 * jobs + 2))
    {
        // The writers read the catalogue here, on the thread that installed it.
        for (int i = 0; i < jobs; ++i)
            m_writers.push_back(std::make_unique<orba::RecordWriter>(format));
        if (jobs > 1) {
            for (int i = 0; i < jobs; ++i)
                m_threads.emplace_back([this, i] { work(*m_writers[size_t(i)]); });
        }
    }
    ~Pipeline() { stop(); }

    orba::RecordWriter& firstWriter() { return *m_writers.front(); }

    // An empty batch for the reader. Batches are used again once written, with the room their
    // text and output took: an output of tens of megabytes is not asked of the system anew.
    std::unique_ptr<Batch> take(InputKind kind, const QString& where)
    {
        std::unique_ptr<Batch> b;
        if (m_free.empty()) {
            b = std::make_unique<Batch>();
        } else {
            b = std::move(m_free.back());
            m_free.pop_back();
        }
        b->kind = kind;
        b->where = where;
        return b;
    }

    // Hands a batch over; false once the output has failed or an input error was written, so
    // reading should stop.
    bool submit(std::unique_ptr<Batch> batch)
    {
        if (m_failed)
            return false;
        if (m_threads.empty()) {
            decodeBatch(*batch, *m_writers.front(), m_bytes);
            writeOut(*batch);
            recycle(std::move(batch));
            return !m_failed;
        }
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            m_pending.push_back(batch.get());
            m_inOrder.push_back(std::move(batch));
        }
        m_workReady.notify_one();
        writeDone(m_inOrder.size() >= m_limit);
        return !m_failed;
    }

    // Writes what is left; the exit code.
    int finish()
    {
        while (!m_failed && !m_inOrder.empty())
            writeDone(true);
        stop();
        return m_failed ? 1 : 0;
    }

    // Says why the command fails; nothing more is written after it.
    void fail(const QString& why)
    {
        m_err << m_who << ": " << why << '\n';
        m_failed = true;
    }

    // Writes text that is not a batch's, such as the CSV header.
    bool writeText(const char* data, size_t size)
    {
        while (size > 0) {
            const ssize_t n = ::write(STDOUT_FILENO, data, size);
            if (n < 0 && errno == EINTR)
                continue;
            if (n <= 0) {
                fail(QStringLiteral("cannot write the output: %1")
                         .arg(QString::fromLocal8Bit(std::strerror(errno))));
                return false;
            }
            data += n;
            size -= size_t(n);
        }
        return true;
    }

private:
    // Writes the finished batches at the head, waiting for the first when asked to.
    void writeDone(bool wait)
    {
        while (!m_failed && !m_inOrder.empty()) {
            Batch* head = m_inOrder.front().get();
            {
                std::unique_lock<std::mutex> lock(m_mutex);
                if (!head->done && !wait)
                    return;
                m_batchDone.wait(lock, [head] { return head->done; });
            }
            writeOut(*head);
            recycle(std::move(m_inOrder.front()));
            m_inOrder.pop_front();
            wait = m_inOrder.size() >= m_limit;
        }
    }

    void recycle(std::unique_ptr<Batch> b)
    {
        b->text.clear();
        b->ends.clear();
        b->firstLine = 1;
        b->readError.clear();
        b->out.clear();
        b->records = 0;
        b->error.clear();
        b->done = false;
        m_free.push_back(std::move(b));
    }

    void writeOut(Batch& b)
    {
        if (!writeText(b.out.data(), b.out.size()))
            return;
        m_progress.add(b.records);
        const QString& error = b.error.isEmpty() ? b.readError : b.error;
        if (!error.isEmpty())
            fail(error);
    }

    void work(orba::RecordWriter& writer)
    {
        std::vector<unsigned char> bytes;
        for (;;) {
            Batch* b = nullptr;
            {
                std::unique_lock<std::mutex> lock(m_mutex);
                m_workReady.wait(lock, [this] { return m_stopping || !m_pending.empty(); });
                if (m_pending.empty())
                    return;
                b = m_pending.front();
                m_pending.pop_front();
            }
            decodeBatch(*b, writer, bytes);
            {
                std::lock_guard<std::mutex> lock(m_mutex);
                b->done = true;
            }
            m_batchDone.notify_all();
        }
    }

    void stop()
    {
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            m_stopping = true;
            m_pending.clear();
        }
        m_workReady.notify_all();
        for (std::thread& t : m_threads)
            t.join();
        m_threads.clear();
    }

    QString m_who; // "zrk-tool decode", before every message
    Progress& m_progress;
    QTextStream& m_err;
    const size_t m_limit; // batches in flight at most, so memory stays bounded
    std::vector<std::unique_ptr<orba::RecordWriter>> m_writers;
    std::vector<std::thread> m_threads;
    std::vector<unsigned char> m_bytes;
    std::mutex m_mutex;
    std::condition_variable m_workReady, m_batchDone;
    std::deque<std::unique_ptr<Batch>> m_inOrder; // submitted, not written yet
    std::vector<std::unique_ptr<Batch>> m_free; // written, to be used again
    std::deque<Batch*> m_pending; // submitted, not taken by a thread yet
    bool m_stopping = false;
    bool m_failed = false;
};

// The one reader of every input, files and standard input alike: large blocks straight from the
// file descriptor, as much as there is at the moment, so that a live stream is decoded as it comes.
class Reader
{
public:
    explicit Reader(const Input& input)
        : m_input(input)
    {
    }

    bool open(QString* why)
    {
        if (m_input.path.isEmpty()) {
            m_fd = STDIN_FILENO;
            return true;
        }
        m_file.setFileName(m_input.path);
        if (!m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
            *why = QStringLiteral("cannot read %1: %2").arg(m_input.path, m_file.errorString());
            return false;
        }
        m_fd = m_file.handle();
        return true;
    }

    // Appends what there is to read now, at most n bytes: their count, 0 at the end, -1 on an error.
    int readSome(std::string& buf, int n)
    {
        if (!m_peeked.empty()) {
            const std::string some = m_peeked.substr(0, size_t(n));
            m_peeked.erase(0, some.size());
            buf += some;
            return int(some.size());
        }
        const size_t had = buf.size();
        buf.resize(had + size_t(n));
        ssize_t r;
        do {
            r = ::read(m_fd, &buf[had], size_t(n));
        } while (r < 0 && errno == EINTR);
        if (r < 0)
            m_error = errno;
        buf.resize(had + size_t(std::max<ssize_t>(r, 0)));
        return int(r);
    }

    // Everything up to the end.
    bool readAll(std::string& buf)
    {
        for (;;) {
            const int r = readSome(buf, 4 * kBlockBytes);
            if (r <= 0)
                return r == 0;
        }
    }

    // What the input holds: the kind asked for, else told from the name and the first bytes.
    InputKind kind()
    {
        if (m_input.kind != InputKind::Auto)
            return m_input.kind;
        if (m_input.path.isEmpty())
            return InputKind::Hex;
        if (m_input.path.endsWith(QLatin1String(".tmi"), Qt::CaseInsensitive))
            return InputKind::Tmi;
        std::string head;
        while (head.size() < 4096 && readSome(head, 4096 - int(head.size())) > 0) { }
        m_peeked = head;
        size_t i = 0;
        while (i < head.size() && zrk::detail::hexClass(uchar(head[i])) == zrk::detail::kHexSpace)
            ++i;
        if (head.compare(i, 5, "<?xml") == 0)
            return InputKind::Tmi;
        // Lines of hex start with a line of hex digits; a binary record starts with its kind byte.
        const size_t eol = head.find('\n', i);
        const int n = int((eol == std::string::npos ? head.size() : eol) - i);
        std::vector<uchar> bytes(size_t(n / 2 + 1));
        const zrk::HexDecoded r
            = zrk::decodeHex(reinterpret_cast<const uchar*>(head.data() + i), n, bytes.data());
        return r.badAt < 0 && r.digits > 0 ? InputKind::Hex : InputKind::Binary;
    }

    QString readError() const
    {
        return QStringLiteral("cannot read %1: %2")
            .arg(m_input.path.isEmpty() ? QStringLiteral("standard input") : m_input.path,
                QString::fromLocal8Bit(std::strerror(m_error)));
    }

    const QString& where() const { return m_input.path; }

private:
    Input m_input;
    QFile m_file;
    int m_fd = -1;
    int m_error = 0;
    std::string m_peeked; // read to tell the kind, not handed out yet
};

// Lines of hex, cut into batches at line ends.
bool readHex(Reader& reader, Pipeline& pipeline)
{
    qint64 line = 1;
    std::unique_ptr<Batch> b = pipeline.take(InputKind::Hex, reader.where());
    for (;;) {
        // The batch's text begins with the line the last block cut, which has no line end.
        std::string& block = b->text;
        const size_t had = block.size();
        const int r = reader.readSome(block, kBlockBytes);
        if (r < 0) {
            pipeline.fail(reader.readError());
            return false;
        }
        const bool atEnd = r == 0;
        // Only the new bytes are searched, so a line of any length is read in linear time.
        const void* lastEnd = memrchr(block.data() + had, '\n', block.size() - had);
        if (!atEnd && !lastEnd)
            continue; // a line longer than a block: read on
        const size_t cut
            = atEnd ? block.size() : size_t(static_cast<const char*>(lastEnd) - block.data()) + 1;
        std::string rest(block, cut);
        block.resize(cut);
        if (!block.empty()) {
            b->firstLine = line;
            line += std::count(block.begin(), block.end(), '\n');
            if (!pipeline.submit(std::move(b)))
                return false;
            b = pipeline.take(InputKind::Hex, reader.where());
        }
        if (atEnd)
            return true;
        b->text.assign(rest);
    }
}

// The whole input as one record.
bool readBinary(Reader& reader, Pipeline& pipeline)
{
    auto b = pipeline.take(InputKind::Binary, reader.where());
    if (!reader.readAll(b->text)) {
        pipeline.fail(reader.readError());
        return false;
    }
    b->ends.push_back(int(b->text.size()));
    return pipeline.submit(std::move(b));
}

// The records of a saved file, through the file reader the viewers use.
bool readTmi(Reader& reader, Pipeline& pipeline)
{
    std::string all;
    if (!reader.readAll(all)) {
        pipeline.fail(reader.readError());
        return false;
    }
    auto b = pipeline.take(InputKind::Tmi, reader.where());
    bool going = true;
    const QString name = reader.where().isEmpty() ? QStringLiteral("-") : reader.where();
    const QString error = zrk::tmi::parse(
        all.data(), qint64(all.size()), name, nullptr, [&](const QByteArray& bytes, qint64, bool) {
            b->text.append(bytes.constData(), size_t(bytes.size()));
            b->ends.push_back(int(b->text.size()));
            if (int(b->ends.size()) >= kBatchRecords || b->text.size() >= size_t(kBlockBytes)) {
                going = pipeline.submit(std::move(b));
                b = pipeline.take(InputKind::Tmi, reader.where());
            }
            return going;
        });
    if (!going)
        return false;
    // The good records before a fault are written; the fault still fails the command.
    b->readError = error;
    return pipeline.submit(std::move(b));
}

bool parseJobs(const QString& text, int* jobs)
{
    bool ok = false;
    const int n = text.toInt(&ok);
    if (!ok || n < 1 || n > kMaxJobs)
        return false;
    *jobs = n;
    return true;
}

} // namespace

int runDecodeCommand(const QString& name, const QStringList& args, QTextStream& out, QTextStream& err)
{
    bool csv = false;
    QString hex;
    bool haveHex = false;
    QString language = QStringLiteral("ru");
    int jobs = std::max(1, std::min(QThread::idealThreadCount(), kMaxJobs));
    int progress = -1; // -1: when standard error is a terminal
    InputKind kind = InputKind::Auto;
    std::vector<Input> inputs;
    for (int i = 0; i < args.size(); ++i) {
        const QString& a = args[i];
        // The value after an option; false (and the error said) when there is none.
        const auto value = [&](QString& into, const char* needs) {
            if (i + 1 >= args.size()) {
                err << "zrk-tool " << name << ": " << a << " needs " << needs << "\n";
                return false;
            }
            into = args[++i];
            return true;
        };
        QString v;
        if (a == QLatin1String("--csv")) {
            csv = true;
        } else if (a == QLatin1String("--hex")) {
            if (!value(hex, "a hex string"))
                return 2;
            haveHex = true;
        } else if (a == QLatin1String("--lang")) {
            if (!value(language, "ru or en"))
                return 2;
        } else if (a == QLatin1String("-j") || a == QLatin1String("--jobs")
            || a.startsWith(QLatin1String("-j"))) {
            if (a.size() > 2 && a.startsWith(QLatin1String("-j")))
                v = a.mid(2);
            else if (!value(v, "a number of threads"))
                return 2;
            if (!parseJobs(v, &jobs)) {
                err << "zrk-tool " << name << ": -j needs a number of threads from 1 to " << kMaxJobs
                    << ", not '" << v << "'\n";
                return 2;
            }
        } else if (a == QLatin1String("--progress")) {
            progress = 1;
        } else if (a == QLatin1String("--no-progress")) {
            progress = 0;
        } else if (a == QLatin1String("--input")) {
            if (!value(v, "hex, binary or tmi"))
                return 2;
            const InputKind kinds[] = { InputKind::Hex, InputKind::Binary, InputKind::Tmi };
            const char* names[] = { "hex", "binary", "tmi" };
            kind = InputKind::Auto;
            for (int k = 0; k < 3; ++k) {
                if (v == QLatin1String(names[k]))
                    kind = kinds[k];
            }
            if (kind == InputKind::Auto) {
                err << "zrk-tool " << name << ": --input is hex, binary or tmi, not '" << v << "'\n";
                return 2;
            }
        } else if (a.startsWith(QLatin1String("--"))) {
            err << "zrk-tool " << name << ": unknown option '" << a << "'\n";
            return 2;
        } else if (a == QLatin1String("-")) {
            inputs.push_back(Input { QString(), InputKind::Auto });
        } else {
            inputs.push_back(Input { a, InputKind::Auto });
        }
    }
    if (haveHex && !inputs.empty()) {
        err << "zrk-tool " << name << ": give either --hex or inputs, not both\n";
        return 2;
    }
    int stdinCount = 0;
    for (Input& input : inputs) {
        input.kind = kind;
        stdinCount += input.path.isEmpty() ? 1 : 0;
    }
    if (stdinCount > 1) {
        err << "zrk-tool " << name << ": standard input (-) given more than once\n";
        return 2;
    }
    if (inputs.empty() && !haveHex)
        inputs.push_back(Input { QString(), kind });

    // The unit texts of the display rules come from the catalogue, as in the plug-in.
    zrk::installCatalogue(language);
    out.flush();
    const auto format = csv ? orba::RecordWriter::Format::Csv : orba::RecordWriter::Format::JsonLines;
    const QString who = QStringLiteral("zrk-tool ") + name;
    Progress shown(who, progress == 1 || (progress < 0 && !haveHex && isatty(STDERR_FILENO)), err);
    Pipeline pipeline(who, haveHex ? 1 : jobs, format, shown, err);
    // Every file is opened first, so a name mistyped fails before anything is written.
    std::vector<std::unique_ptr<Reader>> readers;
    for (const Input& input : inputs) {
        readers.push_back(std::make_unique<Reader>(input));
        QString why;
        if (!readers.back()->open(&why)) {
            err << "zrk-tool " << name << ": " << why << '\n';
            return 1;
        }
    }
    zrk::TextBuffer head;
    pipeline.firstWriter().writeHeader(head);
    if (!pipeline.writeText(head.data(), head.size()))
        return 1;
    if (haveHex) {
        auto b = pipeline.take(InputKind::Binary, QString());
        QString why;
        QByteArray record;
        if (!zrk::parseHex(hex, record, &why)) {
            err << "zrk-tool " << name << ": bad hex: " << why << '\n';
            return 1;
        }
        b->text.assign(record.constData(), size_t(record.size()));
        b->ends.push_back(int(b->text.size()));
        pipeline.submit(std::move(b));
        return pipeline.finish();
    }
    bool ok = true;
    for (const auto& reader : readers) {
        switch (reader->kind()) {
        case InputKind::Binary:
            ok = readBinary(*reader, pipeline);
            break;
        case InputKind::Tmi:
            ok = readTmi(*reader, pipeline);
            break;
        case InputKind::Auto:
        case InputKind::Hex:
            ok = readHex(*reader, pipeline);
            break;
        }
        if (!ok)
            break;
    }
    const int code = pipeline.finish();
    shown.finish();
    return ok ? code : 1;
}
