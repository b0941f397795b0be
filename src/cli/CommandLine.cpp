#include "CommandLine.hpp"

#include "NumberText.hpp"
#include "PeopleOutput.hpp"
#include "Requests.hpp"

#include <CLI/CLI.hpp>

#include <unistd.h>

#include <functional>
#include <istream>
#include <map>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace ordwise {
namespace {

using Json = nlohmann::ordered_json;

// Bytes that are no UTF-8 are shown as the replacement character rather than ending the answer.
std::string dumped(const Json& answer) {
    return answer.dump(-1, ' ', false, Json::error_handler_t::replace);
}

// "3=12" -> "3", "12"
std::pair<std::string, std::string> assignment(const std::string& option, const std::string& text) {
    const std::size_t equals = text.find('=');
    if (equals == std::string::npos) throw BadRequest(option + " takes NAME=VALUE, not \"" + text + "\".");
    return {text.substr(0, equals), text.substr(equals + 1)};
}

int numberOf(const std::string& option, const std::string& text) {
    if (text.empty() || text.size() > 4 || text.find_first_not_of("0123456789") != std::string::npos)
        throw BadRequest(option + " takes a whole number, not \"" + text + "\".");
    return std::stoi(text);
}

// A problem or an answer may begin with "-", which the command line would take for an option. Such
// arguments are marked before it reads them; no option of ours but -h has a single dash.
constexpr char mark = '\x1f';

std::vector<std::string> markedArguments(int argc, const char* const* argv) {
    std::vector<std::string> arguments;
    for (int i = argc - 1; i > 0; --i) {  // the reader wants them last first
        std::string argument = argv[i];
        const bool single = argument.size() > 1 && argument[0] == '-' && argument[1] != '-';
        if (single && argument != "-h") argument.insert(argument.begin(), mark);
        arguments.push_back(std::move(argument));
    }
    return arguments;
}

void unmark(std::string& argument) {
    if (!argument.empty() && argument.front() == mark) argument.erase(0, 1);
}

void printOrDump(const Json& answer, bool json, std::ostream& out) {
    if (json) {
        out << dumped(answer) << '\n';
    } else {
        printSolution(answer, out);
    }
}

// The status of a command that solves, with the sentence for what was not solved.
int solvedStatus(const Json& answer, std::ostream& err) {
    if (wasSolved(answer)) return exitDone;
    err << "ordwise-cli: " << failureSentence(answer) << '\n';
    return exitRefused;
}

std::map<std::string, std::string> settingsOf(const std::vector<std::string>& assignments) {
    std::map<std::string, std::string> settings;
    for (const std::string& setting : assignments) {
        const auto [key, value] = assignment("--set", setting);
        settings[key] = value;
    }
    return settings;
}

struct SolveOptions {
    SolveRequest request;
    std::vector<std::string> boxes;
    std::vector<std::string> combos;
    std::vector<std::string> settings;
    bool json = false;
};

void readAssignments(SolveOptions& options) {
    unmark(options.request.problem);
    for (std::string& answer : options.request.answers) unmark(answer);
    for (const std::string& box : options.boxes) {
        const auto [number, content] = assignment("--box", box);
        options.request.boxes[numberOf("--box", number)] = content;
    }
    for (const std::string& combo : options.combos) {
        const auto [number, index] = assignment("--combo", combo);
        options.request.combos[numberOf("--combo", number)] = numberOf("--combo", index);
    }
    options.request.settings = settingsOf(options.settings);
}

int runSolve(SolveOptions& options, std::ostream& out, std::ostream& err) {
    readAssignments(options);
    const Json answer = answerSolve(options.request);
    printOrDump(answer, options.json, out);
    return solvedStatus(answer, err);
}

struct LoadOptions {
    LoadRequest request;
    std::vector<std::string> settings;
    bool json = false;
};

int runLoad(LoadOptions& options, std::ostream& out, std::ostream& err) {
    for (std::string& answer : options.request.answers) unmark(answer);
    unmark(options.request.file);
    options.request.settings = settingsOf(options.settings);
    const Json answer = answerLoad(options.request);
    printOrDump(answer, options.json, out);
    return solvedStatus(answer, err);
}

struct ExampleOptions {
    ExampleRequest request;
    std::vector<std::string> settings;
    bool json = false;
};

int runExample(ExampleOptions& options, std::ostream& out, std::ostream& err) {
    options.request.settings = settingsOf(options.settings);
    const Json answer = answerExample(options.request);
    printOrDump(answer, options.json, out);
    if (!options.json) out << "--seed " << options.request.seed << " makes up this problem again.\n";
    return solvedStatus(answer, err);
}

struct TestOptions {
    TestRequest request;
    bool json = false;
};

int runTest(const TestOptions& options, std::ostream& out) {
    const Json answer = answerTest(options.request);
    if (options.json) {
        out << dumped(answer) << '\n';
    } else {
        printTest(answer, options.request.seed, out);
    }
    return exitDone;
}

int runKeys(KeysRequest request, bool json, std::ostream& out) {
    unmark(request.text);
    const Json answer = answerKeys(request);
    if (json) {
        out << dumped(answer) << '\n';
    } else {
        printKeys(answer, out);
    }
    return exitDone;
}

int runTopics(bool json, std::ostream& out) {
    const Json answer = answerTopics();
    if (json) {
        out << dumped(answer) << '\n';
    } else {
        printTopics(answer, out);
    }
    return exitDone;
}

// One answer a line, in order; a request that cannot be read makes the status 2, and the batch
// goes on.
int runBatch(std::istream& in, std::ostream& out, std::ostream& err) {
    constexpr long progressEvery = 1000;
    const bool progress = isatty(STDERR_FILENO) == 1;
    int status = exitDone;
    long answered = 0;
    for (std::string line; std::getline(in, line);) {
        if (line.empty()) continue;
        const AnswerText answer = answerTextOfLine(line);
        if (answer.isError) status = exitUnreadable;
        out << answer.text << '\n';
        // Whoever waits for an answer before he asks on gets it at once; a long file is written in blocks.
        if (in.rdbuf()->in_avail() <= 0) out.flush();
        if (progress && ++answered % progressEvery == 0) err << '\r' << answered << " requests answered" << std::flush;
    }
    if (progress && answered >= progressEvery) err << '\n';
    return status;
}

// An option that may be given again and again, each time with one value.
void addRepeated(CLI::App& command, const std::string& name, std::vector<std::string>& values,
                 const std::string& meaning) {
    command.add_option(name, values, meaning)->expected(1)->take_all();
}

void addSolveOptions(CLI::App& command, SolveOptions& options) {
    command.add_option("TOPIC", options.request.topic, "Name of the topic, exactly")->required();
    command.add_option("PROBLEM", options.request.problem, "The problem, flat (3/4+x^2) or as the paper draws it");
    addRepeated(command, "--box", options.boxes, "N=TEXT fills TextN");
    addRepeated(command, "--combo", options.combos, "N=INDEX selects in ComboN");
    addRepeated(command, "--answer", options.request.answers, "Answer to the next question of the solve");
    addRepeated(command, "--set", options.settings, "KEY=VALUE, a setting of the per-user store");
    command.add_option("--save", options.request.saveTo, "Save the solved problem to this file");
    command.add_flag("--drop-refused", options.request.dropRefused, "Type on without the refused keys");
    command.add_flag("--json", options.json, "One JSON object");
}

void addLoadOptions(CLI::App& command, LoadOptions& options) {
    command.add_option("FILE", options.request.file, "A saved problem")->required();
    addRepeated(command, "--answer", options.request.answers, "Answer to the next question of the solve");
    addRepeated(command, "--set", options.settings, "KEY=VALUE, a setting of the per-user store");
    command.add_flag("--json", options.json, "One JSON object");
}

void addExampleOptions(CLI::App& command, ExampleOptions& options) {
    options.request.seed = freshSeed();
    command.add_option("TOPIC", options.request.topic, "Name of the topic, exactly")->required();
    command.add_flag("--complex", options.request.complex, "A harder problem");
    command.add_option("--seed", options.request.seed, "The same number makes up the same problem");
    addRepeated(command, "--set", options.settings, "KEY=VALUE, a setting of the per-user store");
    command.add_flag("--json", options.json, "One JSON object");
}

void addTestOptions(CLI::App& command, TestOptions& options) {
    options.request.seed = freshSeed();
    command.add_option("--section", options.request.sections, "TOPIC:COUNT or TOPIC:COUNT:complex, up to ten")
        ->expected(1)
        ->take_all()
        ->required();
    addRepeated(command, "--heading", options.request.heading, "A line of the heading, up to three");
    command.add_option("--key", options.request.key, "The answer key: none, answers or steps");
    command.add_option("--versions", options.request.versions, "Make versions A, B and C of the test: 1 to 3");
    command.add_option("--seed", options.request.seed, "The same number makes the same test");
    command.add_flag("--json", options.json, "One JSON object");
}

}  // namespace

int runCommandLine(int argc, const char* const* argv, std::istream& in, std::ostream& out, std::ostream& err) {
    CLI::App app{"Ordwise, a tutor and solver for school mathematics, in the terminal", "ordwise-cli"};
    app.require_subcommand(1);
    app.set_version_flag("--version", ORDWISE_VERSION);
    SolveOptions solve;
    LoadOptions load;
    ExampleOptions example;
    TestOptions test;
    KeysRequest keys;
    bool json = false;
    std::function<int()> run;

    CLI::App* topics = app.add_subcommand("topics", "List the topics");
    topics->add_flag("--json", json, "One JSON array");
    topics->callback([&] { run = [&] { return runTopics(json, out); }; });

    CLI::App* keysCommand = app.add_subcommand("keys", "Check a text key by key");
    keysCommand->add_option("TOPIC", keys.topic, "Name of the topic, exactly")->required();
    keysCommand->add_option("TEXT", keys.text, "Every character a key; U+0008 is a backspace")->required();
    keysCommand->add_flag("--json", json, "One JSON object");
    keysCommand->callback([&] { run = [&] { return runKeys(keys, json, out); }; });

    CLI::App* solveCommand = app.add_subcommand("solve", "Solve a problem");
    addSolveOptions(*solveCommand, solve);
    solveCommand->callback([&] { run = [&] { return runSolve(solve, out, err); }; });

    CLI::App* loadCommand = app.add_subcommand("load", "Solve a saved problem");
    addLoadOptions(*loadCommand, load);
    loadCommand->callback([&] { run = [&] { return runLoad(load, out, err); }; });

    CLI::App* exampleCommand = app.add_subcommand("example", "Make up a problem and solve it");
    addExampleOptions(*exampleCommand, example);
    exampleCommand->callback([&] { run = [&] { return runExample(example, out, err); }; });

    CLI::App* testCommand = app.add_subcommand("test", "Make a practice test");
    addTestOptions(*testCommand, test);
    testCommand->callback([&] { run = [&] { return runTest(test, out); }; });

    CLI::App* batch = app.add_subcommand("batch", "Answer requests, one JSON object a line on standard input");
    batch->callback([&] { run = [&] { return runBatch(in, out, err); }; });

    try {
        app.parse(markedArguments(argc, argv));
    } catch (const CLI::CallForHelp&) {
        out << app.help("", CLI::AppFormatMode::Normal);
        return exitDone;
    } catch (const CLI::CallForVersion&) {
        out << "ordwise-cli " << ORDWISE_VERSION << '\n';
        return exitDone;
    } catch (const CLI::ParseError& trouble) {
        err << "ordwise-cli: " << trouble.what() << '\n';
        return exitUnreadable;
    }
    try {
        return run();
    } catch (const BadRequest& trouble) {
        err << "ordwise-cli: " << trouble.what() << '\n';
        return exitUnreadable;
    } catch (const AnswersUsedUp& trouble) {
        err << "ordwise-cli: " << trouble.what() << '\n';
        return exitRefused;
    }
}

}  // namespace ordwise
