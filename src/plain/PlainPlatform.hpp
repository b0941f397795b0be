// The outside without a window: message boxes are kept, input boxes are answered from a list, the
// clock stands still. The terminal program and the tests run on it.
#pragma once

#include "Platform.hpp"

#include <deque>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace ordwise {

struct ShownMessage {
    std::string caption;
    std::string text;
    bool operator==(const ShownMessage&) const = default;
};

struct ShownPrompt {
    std::string caption;
    std::string text;
    std::string answer;
    bool operator==(const ShownPrompt&) const = default;
};

// An input box was opened and the answers were used up. It ends the run: a question that nobody
// answers would be asked without end.
class NoAnswerLeft : public std::runtime_error {
public:
    explicit NoAnswerLeft(const std::string& prompt) : std::runtime_error(prompt) {}
};

class PlainDialogs : public Dialogs {
public:
    std::vector<ShownMessage> messages;
    std::vector<ShownPrompt> prompts;
    std::deque<std::string> answers;
    MessageAnswer nextAnswer = MessageAnswer::Ok;

    MessageAnswer messageBox(std::string_view text, std::string_view caption, MessageButtons buttons) override;
    std::string inputBox(std::string_view prompt, std::string_view caption) override;
};

// Keeps the names of what was asked for: "+frmGraph" shown, "-frmGraph" unloaded, "^mnuHidden" popped up.
class PlainWindows : public WindowOpener {
public:
    std::vector<std::string> requests;

    void show(std::string_view name) override { requests.push_back("+" + std::string(name)); }
    void unload(std::string_view name) override { requests.push_back("-" + std::string(name)); }
    void popUp(std::string_view menu) override { requests.push_back("^" + std::string(menu)); }
};

class PlainClock : public Clock {
public:
    int mmss = 0;
    std::string date;

    [[nodiscard]] int minuteAndSecond() const override { return mmss; }
    std::string fileDate;
    std::string isoDate;

    [[nodiscard]] std::string today() const override { return date; }
    [[nodiscard]] std::string todayForPrograms() const override { return isoDate; }
    [[nodiscard]] std::string todayForFile() const override { return fileDate; }
};

// Answers with the next colour of a list, and cancels when there is none left.
class PlainColours : public ColourDialog {
public:
    std::deque<Colour> answers;
    std::vector<Colour> offered;

    std::optional<Colour> chooseColour(Colour current) override;
};

// Keeps the jobs that were printed; refuses them with a sentence when one is set.
class PlainPrinter : public Printer {
public:
    std::string name = "Plain printer";
    PaperSize size;
    std::string refusal;
    std::size_t refuseAfter = 0;  // so many jobs are taken first
    std::vector<PrintJob> jobs;
    int setups = 0;

    [[nodiscard]] std::string DeviceName() const override { return name; }
    [[nodiscard]] PaperSize paper() const override { return size; }
    [[nodiscard]] std::string print(const PrintJob& job) override;
    void setup() override { ++setups; }
};

// Files in memory. Writing is refused with a sentence when one is set.
class PlainFiles : public Files {
public:
    std::map<std::string, std::string> contents;  // by path
    std::vector<std::string> directories;
    std::string refusal;

    [[nodiscard]] std::optional<std::string> read(const std::string& path) override;
    [[nodiscard]] std::string write(const std::string& path, std::string_view bytes) override;
    bool createDirectory(const std::string& path) override;
};

// Answers with the next path of a list, and cancels when there is none left.
class PlainFileDialogs : public FileDialogs {
public:
    std::deque<std::string> answers;
    std::vector<FileQuestion> questions;

    std::optional<std::string> fileToSave(const FileQuestion& question) override;
    std::optional<std::string> fileToOpen(const FileQuestion& question) override;
};

// Keeps the addresses that were asked for.
class PlainBrowser : public Browser {
public:
    std::vector<std::string> addresses;
    bool works = true;

    bool open(const std::string& address) override {
        addresses.push_back(address);
        return works;
    }
};

class PlainSystemReport : public SystemReport {
public:
    std::string facts;

    [[nodiscard]] std::string text() const override { return facts; }
};

// All together; makes itself the platform of the process for as long as it lives.
class PlainPlatform {
public:
    PlainPlatform();
    ~PlainPlatform();
    PlainPlatform(const PlainPlatform&) = delete;
    PlainPlatform& operator=(const PlainPlatform&) = delete;

    PlainDialogs dialogs;
    PlainWindows windows;
    PlainClock clock;
    PlainColours colours;
    PlainPrinter printer;
    PlainFiles files;
    PlainFileDialogs fileDialogs;
    PlainBrowser browser;
    PlainSystemReport systemReport;

private:
    Platform before_;
};

}  // namespace ordwise
