#pragma once

#include <QByteArray>

#include <memory>

class OrbaPage;

namespace orba {

// Where a received record goes, by its kind and version bytes.
enum class Form
{
    Dropped, // fewer than 2 bytes, or unknown and not asked to show it
    Orba1, // current record, version 1, or the fixed packet (kind 0x08)
    Orba2, // current record, version 2
    Orba3, // current record, version 3
    Orba3Production, // current record, version 3, in the production configurator modes
    Extended, // extended record
    Unknown, // unknown kind or version, shown as such
};

// The choice the telemetry view makes for a buffer (kind byte first). configuratorMode is the
// device object's mode (1 and 2 are the production modes); showUnknown asks for an unknown-record
// page instead of dropping the buffer.
Form chooseForm(const unsigned char* buf, int len, int configuratorMode, bool showUnknown);
Form chooseForm(const QByteArray& buf, int configuratorMode, bool showUnknown);

// The decoded page for a chosen form: TmiPage_Orba1/2/3, TmiPage_Orba3 for an extended record
// (read as one whatever its kind byte); null for Dropped and Unknown.
std::unique_ptr<OrbaPage> buildPage(Form form, const unsigned char* buf, int len);

// The class name of the page a form is shown with, "unknown" when there is none.
const char* pageClassName(Form form);

} // namespace orba

namespace orba {

// A record read outside the view (saved files, exports, zrk-tool): the view's choice of page, with
// a fixed packet read as the version-1 record it stands for, since a technician reading an
// export would rather see its values than "unknown".
struct Decoded
{
    Form form = Form::Dropped;
    std::unique_ptr<OrbaPage> page; // null when the record cannot be read
    const char* className = "unknown";
};
Decoded decodeRecord(const unsigned char* buf, int len);
Decoded decodeRecord(const QByteArray& record);

} // namespace orba
