#pragma once

// Records (kind byte first) written straight into a text buffer, one JSON object or one CSV row a
// line, in the shapes of recordJson and csvCells (orba_export.h), byte for byte, but without a
// JSON document, a string list or a page object per record: a current record is decoded into the
// writer's own structure and each text is formatted in place. Parts that every absent field
// writes the same way are made once, when the writer is made.
//
// A writer keeps scratch space and a clock: one per thread.

#include "telemetry/orba_record.h"
#include "telemetry/text_buffer.h"

#include <QByteArray>

#include <array>

namespace orba {

class RecordWriter
{
public:
    enum class Format
    {
        JsonLines,
        Csv,
    };

    // lineEnd ends every line: "\n" for the tool, "\r\n" for saved CSV files. The texts take the
    // catalogue installed now and the process's time zone.
    explicit RecordWriter(Format format, const char* lineEnd = "\n");

    Format format() const { return m_format; }

    // The CSV header row; nothing for JSON lines.
    void writeHeader(zrk::TextBuffer& out) const;
    // One record, one line.
    void write(const unsigned char* buf, int len, zrk::TextBuffer& out);
    void write(const QByteArray& record, zrk::TextBuffer& out)
    {
        write(reinterpret_cast<const unsigned char*>(record.constData()), record.size(), out);
    }

private:
    // A record read through its field mask: the present fields' values at their places in rec.
    struct Fields
    {
        int kind;
        int version; // the version byte
        const char* className;
        const unsigned char* mask;
        const unsigned char* rec;
        int lastField;
    };
    void writeFields(const Fields& f, const unsigned char* buf, int len, zrk::TextBuffer& out);
    void writeJsonFields(const Fields& f, zrk::TextBuffer& out);
    void writeCsvFields(const Fields& f, const unsigned char* buf, int len, zrk::TextBuffer& out);
    void writeExtended(const unsigned char* buf, int len, const szExtTMI_ORBA3& ext, zrk::TextBuffer& out);
    void writeUnknown(const unsigned char* buf, int len, zrk::TextBuffer& out);
    void writeFormat(const unsigned char* mask, int lastField, zrk::TextBuffer& out) const;
    void endLine(zrk::TextBuffer& out) const
    {
        out.append(m_lineEnd.constData(), std::size_t(m_lineEnd.size()));
    }
    // Makes what was appended since from fit inside a JSON string, or a CSV cell.
    void escapeJson(zrk::TextBuffer& out, std::size_t from);
    void quoteCsv(zrk::TextBuffer& out, std::size_t from);
    void appendJsonString(zrk::TextBuffer& out, const QString& text);

    Format m_format;
    QByteArray m_lineEnd;
    TextContext m_context;
    bool m_textsArePlain = false; // no field text needs escaping in JSON
    zrk::TextBuffer m_scratch;
    szCurrentTMI_ORBA3 m_rec = {};

    // JSON: every field absent, one after the other with their commas, and where field n's part
    // starts in it (m_absentAt[256] is its end); the same for the opening of a present field.
    QByteArray m_absent, m_present;
    std::array<int, kFieldCount + 2> m_absentAt {}, m_presentAt {};
    // CSV: the header row, and a run of 255 absent cells.
    QByteArray m_csvHeader, m_csvAbsent;
    // The head values of an extended record in the order of their names (JSON), and the field
    // column each fills (CSV, -1: none).
    std::array<int, kExtCount> m_extByName {};
    std::array<int, kFieldCount + 1> m_extOfField {};
};

} // namespace orba
