#pragma once

// The commands the telemetry view sends to the terminal, and the lines its log pane writes for
// the terminal's answers: each a row of one table, so that what a button sends, whether it asks
// first and what an answer looks like are read in one place. No widgets: the view reads the
// controls a row names into a CommandInput and hands it here.

#include <QDate>
#include <QString>
#include <QStringList>

#include <functional>

namespace zrk::tmi {

// Key code kinds of 2311.
constexpr unsigned long kKeyTouchMemory = 1;
constexpr unsigned long kKeyRfid = 3;

// How a command's wParam (and lParam) is made from its input.
enum class CommandArg
{
    None, // 0
    Fixed, // the row's fixed value, by value
    Value, // the input's integer (a spin box, or a choice counted from 1), by value
    Flag, // bool* of the input check box
    Number, // float* of the input number
    Text, // QString* of the first text; nothing is sent while it is empty
    Cp1251Text, // QByteArray* of the first text in windows-1251
    TachoQuery, // szQueryTaho*: file kind (choice from 1), first and last day of the period
    FlsQuery, // szQueryFlsData*: sensor and query texts
    FirmwareFile, // QString* of the chosen file, lParam the row's fixed value
};

struct CommandRow
{
    const char* control; // object name of the button (or check box) that sends it
    int msg;
    CommandArg arg;
    unsigned long fixed; // wParam for Fixed, lParam for FirmwareFile
    const char* inputs; // object names of the controls the argument is read from, comma-separated
    const char* confirmId; // catalogue id of the question asked first; null: sent at once
    bool awaitsKey; // its answer (2241) is routed to the window marked as waiting for a key
    bool needsConnection;
};

// What the view read from a row's controls.
struct CommandInput
{
    qint64 value = 0; // spin box; a choice as its index + 1
    double number = 0;
    bool flag = false;
    QStringList texts; // line edits, and a choice's text, in the row's order
    QDate from, to;
};

// Every command of the view, in the order of its commands tab.
const CommandRow* commandRows();
int commandCount();
const CommandRow* findCommand(const QString& control);

// The question asked before sending, with the input in it; empty when the row asks none.
QString confirmationText(const CommandRow& row, const CommandInput& input);

using CommandSender = std::function<unsigned long(int msg, unsigned long w, unsigned long l)>;
// Builds the row's arguments (kept alive for the synchronous call) and sends them; false, with
// nothing sent, when the input lacks what the command needs.
bool sendCommand(const CommandRow& row, const CommandInput& input, const CommandSender& send);

// ---- the log pane's lines for the terminal's answers

// An answer carrying bytes (2005, 2083, 2155, 2315, 2317, 2320, 2351, 2353, 2411): its name, length,
// text (windows-1251, control bytes as dots) and hex.
QString replyLogText(int msg, const QByteArray& data);
// An answer carrying success (2355, 2413).
QString resultLogText(int msg, bool ok);
// An answer carrying a value: a key code (2241), a card code and its reader (2267), the display
// value (2265), the universal inputs' A/D values (2247, whose arrival alone is noted).
QString valueLogText(int msg, quint64 value, quint64 extra = 0);

} // namespace zrk::tmi
