// The outside, as a few narrow interfaces. The folder plain/ answers them without a window for the
// terminal and the tests; the desktop answers them with real dialogs, files and printers.
#pragma once

#include "DisplayList.hpp"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ordwise {

class DrawingSurface;

enum class MessageButtons { Ok, OkCancel };
enum class MessageAnswer { Ok, Cancel };

class Dialogs {
public:
    virtual ~Dialogs() = default;
    virtual MessageAnswer messageBox(std::string_view text, std::string_view caption, MessageButtons buttons) = 0;
    // The answer typed by the student; empty when the box was cancelled.
    virtual std::string inputBox(std::string_view prompt, std::string_view caption) = 0;
};

// Opening and closing of windows is asked for, not called. `name` is the window's name, "frmGraph".
class WindowOpener {
public:
    virtual ~WindowOpener() = default;
    virtual void show(std::string_view name) = 0;
    virtual void unload(std::string_view name) = 0;
    // A chance for a window to show what has changed in the middle of a command, such as a problem
    // being written key by key.
    virtual void redraw(std::string_view /*name*/) {}
    // Opens one of the main window's hidden menus where the mouse is. e.g. "mnuHidden"
    virtual void popUp(std::string_view /*menu*/) {}
};

class Clock {
public:
    virtual ~Clock() = default;
    // Minute and second of the local time as one number, "mmss": 0 to 5959.
    [[nodiscard]] virtual int minuteAndSecond() const = 0;
    // Today's date in the form of the user's locale, e.g. "11/22/2026".
    [[nodiscard]] virtual std::string today() const = 0;
    // The same as ISO 8601 writes it, for programs. e.g. "2026-11-22"
    [[nodiscard]] virtual std::string todayForPrograms() const = 0;
    // The same for the name of a file, "mm-dd-yy". e.g. "03-14-02"
    [[nodiscard]] virtual std::string todayForFile() const = 0;
};

// What a file dialog is opened with.
struct FileQuestion {
    std::string title;             // e.g. "Save Problem As"
    std::string filter;            // description and pattern: "Ordwise files (.hvx)|*.hvx"
    std::string defaultExtension;  // given to a name without one, e.g. "hvx"
    std::string directory;         // where it starts
    std::string proposedName;
};

// The file that the user has chosen; empty when the dialog was cancelled. Saving asks before an
// existing file is taken, opening offers existing files only.
class FileDialogs {
public:
    virtual ~FileDialogs() = default;
    virtual std::optional<std::string> fileToSave(const FileQuestion& question) = 0;
    virtual std::optional<std::string> fileToOpen(const FileQuestion& question) = 0;
};

// Files by their path, as bytes.
class Files {
public:
    virtual ~Files() = default;
    // The whole file; nothing for one that cannot be read, is no plain file or is far larger than
    // anything that this program writes.
    [[nodiscard]] virtual std::optional<std::string> read(const std::string& path) = 0;
    // Writes the file so that it holds either its old content or all of the new one, whatever
    // happens on the way. Empty when it went well, otherwise one sentence that says why not.
    [[nodiscard]] virtual std::string write(const std::string& path, std::string_view bytes) = 0;
    // The directory exists afterwards, with those above it, or the answer is false.
    virtual bool createDirectory(const std::string& path) = 0;
};

// Where this user's files lie; an empty path where there is no place for them.
struct UserFolders {
    std::string settingsFile;
    std::string savedProblems;
    std::string state = {};  // what the program remembers by itself: recent problems, the frame's place
};

// A colour for the user to choose; empty when the dialog was cancelled.
class ColourDialog {
public:
    virtual ~ColourDialog() = default;
    virtual std::optional<Colour> chooseColour(Colour current) = 0;
};

// A sheet of paper in 96ths of an inch, as it stands in front of the reader.
struct PaperSize {
    double width = 816;  // Letter
    double height = 1056;
    double margin = 48;
    bool operator==(const PaperSize&) const = default;
};

// What somebody copies out of a place of a page where the letters that are drawn do not read so: a
// fraction stands as "3/4" and not as a 3 above a 4. The operations `first` to `last` of the page are
// its drawing.
struct PageText {
    std::string text;  // UTF-8
    double x = 0;      // the top left of the line, and how far the drawing reaches
    double y = 0;
    double width = 0;
    std::size_t first = 0;
    std::size_t last = 0;  // one behind
    bool operator==(const PageText&) const = default;
};

struct PrintedPage {
    DisplayList drawing;
    std::vector<PageText> texts;  // in the order of reading
    bool operator==(const PrintedPage&) const = default;
};

// What is sent to the printer in one piece. A page is drawn with its origin at the corner of the
// printable area, that is, the margin in from the edges of the paper.
struct PrintJob {
    std::string title;
    PaperSize paper;
    std::vector<PrintedPage> pages;
};

// A job is laid out to its end before it is sent, so that a fault on the way leaves nothing behind.
class Printer {
public:
    virtual ~Printer() = default;
    // Empty when there is no printer.
    [[nodiscard]] virtual std::string DeviceName() const = 0;
    [[nodiscard]] virtual PaperSize paper() const = 0;
    // Prints all pages, or says in one sentence why it could not. Empty when it went well.
    [[nodiscard]] virtual std::string print(const PrintJob& job) = 0;
    // The dialog in which the user chooses a printer and its paper.
    virtual void setup() = 0;
};

// The user's browser. False where none could be opened.
class Browser {
public:
    virtual ~Browser() = default;
    virtual bool open(const std::string& address) = 0;
};

// What there is to tell of the machine, the desktop and the program, a fact a line; empty where
// nothing can be told. e.g. "Qt: 6.4.2"
class SystemReport {
public:
    virtual ~SystemReport() = default;
    [[nodiscard]] virtual std::string text() const = 0;
};

// The outside that the program is running in. All pointers are set before any routine of the logic
// runs and stay valid while it does; the platform owns nothing.
struct Platform {
    Dialogs* dialogs = nullptr;
    WindowOpener* windows = nullptr;
    Clock* clock = nullptr;
    ColourDialog* colours = nullptr;
    Printer* printer = nullptr;
    Files* files = nullptr;
    FileDialogs* fileDialogs = nullptr;
    Browser* browser = nullptr;
    SystemReport* systemReport = nullptr;
    UserFolders folders;
};

extern Platform platform;

}  // namespace ordwise
