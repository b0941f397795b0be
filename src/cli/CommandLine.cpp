#include "CommandLine.hpp"

#include "Arguments.hpp"
#include "Batch.hpp"
#include "Channels.hpp"
#include "PeopleOutput.hpp"
#include "Requests.hpp"

#include <CLI/CLI.hpp>

#include <functional>
#include <istream>
#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace ordwise {
namespace {

using Json = nlohmann::ordered_json;

// Bytes that are no UTF-8 are shown as the replacement character rather than ending the answer.
std::string dumped(const Json& answer) {
    return answer.dump(-1, ' ', false, Json::error_handler_t::replace);
}

void printOrDump(const Json& answer, bool json, std::ostream& out) {
    if (json) {
        out << dumped(answer) << '\n';
    } else {
        printSolution(answer, out);
    }
}

// The status of a command that solves, with the sentence for what was not solved.
int solvedStatus(const Json& answer, std::ostream& out, std::ostream& err) {
    out.flush();  // output that is lost is the first thing to be told
    if (wasSolved(answer)) return exitDone;
    err << "ordwise-cli: " << failureSentence(answer) << '\n';
    return exitRefused;
}

std::map<std::string, std::string> settingsOf(const std::vector<std::string>& assignments) {
    std::map<std::string, std::string> settings;
    for (const std::string& setting : assignments) {
        const auto [key, value] = assignmentOf("--set", setting);
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
    for (const std::string& box : options.boxes) {
        const auto [number, content] = assignmentOf("--box", box);
        options.request.boxes[numberOf("--box", number)] = content;
    }
    for (const std::string& combo : options.combos) {
        const auto [number, index] = assignmentOf("--combo", combo);
        options.request.combos[numberOf("--combo", number)] = numberOf("--combo", index);
    }
    options.request.settings = settingsOf(options.settings);
}

int runSolve(SolveOptions& options, std::ostream& out, std::ostream& err) {
    readAssignments(options);
    const Json answer = answerSolve(options.request);
    printOrDump(answer, options.json, out);
    return solvedStatus(answer, out, err);
}

struct CheckOptions : SolveOptions {
    std::vector<std::string> lines;
};

int runCheck(CheckOptions& options, std::ostream& out, std::ostream& err) {
    readAssignments(options);
    const Json answer = answerCheck({options.request, options.lines});
    if (options.json) {
        out << dumped(answer) << '\n';
    } else {
        printCheck(answer, out);
    }
    out.flush();
    if (lastLineIsAnswer(answer)) return exitDone;
    err << "ordwise-cli: " << checkFailureSentence(answer) << '\n';
    return exitRefused;
}

struct LoadOptions {
    LoadRequest request;
    std::vector<std::string> settings;
    bool json = false;
};

int runLoad(LoadOptions& options, std::ostream& out, std::ostream& err) {
    options.request.settings = settingsOf(options.settings);
    const Json answer = answerLoad(options.request);
    printOrDump(answer, options.json, out);
    return solvedStatus(answer, out, err);
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
    return solvedStatus(answer, out, err);
}

struct TestOptions {
    TestRequest request;
    std::string format = "text";
    bool json = false;
};

int runTest(const TestOptions& options, std::ostream& out) {
    static const std::map<std::string, TestFormat> formats{
        {"html", TestFormat::Html}, {"latex", TestFormat::Latex}, {"moodle", TestFormat::Moodle}};
    if (const auto format = formats.find(options.format); format != formats.end()) {
        if (options.json) throw BadRequest("--json and --format " + options.format + " cannot be had together.");
        out << testDocument(options.request, format->second);
        return exitDone;
    }
    if (options.format != "text")
        throw BadRequest("--format takes text, html, latex or moodle, not \"" + options.format + "\".");
    const Json answer = answerTest(options.request);
    if (options.json) {
        out << dumped(answer) << '\n';
    } else {
        printTest(answer, options.request.seed, out);
    }
    return exitDone;
}

int runKeys(const KeysRequest& request, bool json, std::ostream& out) {
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

// An option that may be given again and again, each time with one value.
void addRepeated(CLI::App& command, const std::string& name, std::vector<std::string>& values,
                 const std::string& meaning) {
    command.add_option(name, values, meaning)->expected(1)->take_all();
}

// The seed is read by ourselves: the library takes 0x10, -1 and what is too large as well.
void addSeed(CLI::App& command, std::uint64_t& seed, const std::string& meaning) {
    seed = freshSeed();
    const auto take = [&seed](const std::string& text) { seed = seedOf(text); };
    command.add_option_function<std::string>("--seed", take, meaning)->type_name("NUMBER");
}

void addForms(CLI::App& command, std::vector<std::string>& forms) {
    command.add_option("--forms", forms, "Each line also as latex, mathml, spoken or plain, FORM[,FORM]...")
        ->delimiter(',')
        ->allow_extra_args(false);
}

void addProblemOptions(CLI::App& command, SolveOptions& options) {
    command.add_option("TOPIC", options.request.topic, "Name of the topic, exactly")->required();
    command.add_option("PROBLEM", options.request.problem, "The problem, flat (3/4+x^2) or as the paper draws it");
    addRepeated(command, "--box", options.boxes, "N=TEXT fills TextN");
    addRepeated(command, "--combo", options.combos, "N=INDEX selects in ComboN");
    addRepeated(command, "--answer", options.request.answers, "Answer to the next question of the solve");
    addRepeated(command, "--set", options.settings, "KEY=VALUE, a setting of the per-user store");
    addForms(command, options.request.forms);
    command.add_flag("--json", options.json, "One JSON object");
}

void addCheckOptions(CLI::App& command, CheckOptions& options) {
    addProblemOptions(command, options);
    command.add_option("--line", options.lines, "The next line of one's own, flat or as the paper draws it")
        ->expected(1)
        ->take_all()
        ->required();
}

void addSolveOptions(CLI::App& command, SolveOptions& options) {
    addProblemOptions(command, options);
    const auto saveTo = [&options](const std::string& file) {
        if (file.empty()) throw BadRequest("--save needs the name of a file.");
        options.request.saveTo = file;
    };
    command.add_option_function<std::string>("--save", saveTo, "Save the solved problem to this file");
    command.add_flag("--drop-refused", options.request.dropRefused, "Type on without the refused keys");
}

void addLoadOptions(CLI::App& command, LoadOptions& options) {
    command.add_option("FILE", options.request.file, "A saved problem")->required();
    addRepeated(command, "--answer", options.request.answers, "Answer to the next question of the solve");
    addRepeated(command, "--set", options.settings, "KEY=VALUE, a setting of the per-user store");
    addForms(command, options.request.forms);
    command.add_flag("--json", options.json, "One JSON object");
}

void addExampleOptions(CLI::App& command, ExampleOptions& options) {
    command.add_option("TOPIC", options.request.topic, "Name of the topic, exactly")->required();
    command.add_flag("--complex", options.request.complex, "A harder problem");
    addSeed(command, options.request.seed, "The same number makes up the same problem");
    addRepeated(command, "--set", options.settings, "KEY=VALUE, a setting of the per-user store");
    addForms(command, options.request.forms);
    command.add_flag("--json", options.json, "One JSON object");
}

void addTestOptions(CLI::App& command, TestOptions& options) {
    command.add_option("--section", options.request.sections, "TOPIC:COUNT or TOPIC:COUNT:complex, up to ten")
        ->expected(1)
        ->take_all()
        ->required();
    addRepeated(command, "--heading", options.request.heading, "A line of the heading, up to three");
    command.add_option("--key", options.request.key, "The answer key: none, answers or steps");
    const auto take = [&options](const std::string& text) { options.request.versions = numberOf("--versions", text); };
    command.add_option_function<std::string>("--versions", take, "Make versions A, B and C of the test: 1 to 3")
        ->type_name("COUNT");
    addSeed(command, options.request.seed, "The same number makes the same test");
    const auto space = [&options](const std::string& text) { options.request.space = numberOf("--space", text); };
    command.add_option_function<std::string>("--space", space, "Lines to work in below each problem: 0 to 20")
        ->type_name("LINES");
    const auto columns = [&options](const std::string& text) { options.request.columns = numberOf("--columns", text); };
    command.add_option_function<std::string>("--columns", columns, "Set short problems side by side on paper: 1 or 2")
        ->type_name("COUNT");
    command.add_flag("--no-name-line", options.request.noNameLine, "No line for name, date and class on paper");
    command.add_option("--format", options.format, "text, html, latex, or moodle for a question bank");
    command.add_flag("--json", options.json, "One JSON object");
}

// What a command was asked to do, filled by the library as it reads the arguments.
struct Commands {
    SolveOptions solve;
    CheckOptions check;
    LoadOptions load;
    ExampleOptions example;
    TestOptions test;
    KeysRequest keys;
    bool json = false;
    std::function<int()> run;
};

void addCommands(CLI::App& app, Commands& commands, std::istream& in, std::ostream& out, std::ostream& err) {
    const auto add = [&](const char* name, const char* meaning, std::function<int()> run) {
        CLI::App* command = app.add_subcommand(name, meaning);
        command->callback([&commands, run = std::move(run)] { commands.run = run; });
        return command;
    };
    CLI::App* topics = add("topics", "List the topics", [&] { return runTopics(commands.json, out); });
    topics->add_flag("--json", commands.json, "One JSON array");

    CLI::App* keys = add("keys", "Check a text key by key", [&] { return runKeys(commands.keys, commands.json, out); });
    keys->add_option("TOPIC", commands.keys.topic, "Name of the topic, exactly")->required();
    keys->add_option("TEXT", commands.keys.text, "Every character a key; U+0008 is a backspace")->required();
    keys->add_flag("--json", commands.json, "One JSON object");

    addSolveOptions(*add("solve", "Solve a problem", [&] { return runSolve(commands.solve, out, err); }),
                    commands.solve);
    addCheckOptions(
        *add("check", "Judge the lines of one's own solution", [&] { return runCheck(commands.check, out, err); }),
        commands.check);
    addLoadOptions(*add("load", "Solve a saved problem", [&] { return runLoad(commands.load, out, err); }),
                   commands.load);
    addExampleOptions(
        *add("example", "Make up a problem and solve it", [&] { return runExample(commands.example, out, err); }),
        commands.example);
    addTestOptions(*add("test", "Make a practice test", [&] { return runTest(commands.test, out); }), commands.test);
    add("batch", "Answer requests, one JSON object a line on standard input", [&] { return runBatch(in, out, err); });
}

std::vector<std::string> namesOf(const std::vector<CLI::App*>& commands) {
    std::vector<std::string> names;
    for (const CLI::App* command : commands) names.push_back(command->get_name());
    return names;
}

// Reads the arguments and does what they say. Throws what is told by runCommandLine.
int runArguments(int argc, const char* const* argv, std::istream& in, std::ostream& out, std::ostream& err) {
    CLI::App app{"Ordwise, a tutor and solver for school mathematics, in the terminal", "ordwise-cli"};
    app.require_subcommand(1);
    app.set_version_flag("--version", ORDWISE_VERSION);
    Commands commands;
    addCommands(app, commands, in, out, err);
    const std::vector<CLI::App*> all = app.get_subcommands([](const CLI::App*) { return true; });
    for (CLI::App* command : all) {
        for (CLI::Option* option : command->get_options()) option->transform(unmarked, "");
    }
    const std::string complaint = commandComplaint(argc, argv, namesOf(all));
    if (!complaint.empty()) throw BadRequest(complaint);
    try {
        app.parse(markedArguments(argc, argv));
    } catch (const CLI::CallForHelp&) {
        out << app.help("", CLI::AppFormatMode::Normal);
        return exitDone;
    } catch (const CLI::CallForVersion&) {
        out << "ordwise-cli " << ORDWISE_VERSION << '\n';
        return exitDone;
    } catch (const CLI::ParseError& trouble) {
        throw BadRequest(withoutMarks(trouble.what()));
    }
    return commands.run();
}

}  // namespace

int runCommandLine(int argc, const char* const* argv, std::istream& in, std::ostream& out, std::ostream& err) {
    const auto told = [&err](const char* sentence, int status) {
        err << "ordwise-cli: " << sentence << '\n';
        return status;
    };
    try {
        const int status = runArguments(argc, argv, in, out, err);
        out.flush();
        return status;
    } catch (const AnswersUsedUp& trouble) {
        return told(trouble.what(), exitRefused);
    } catch (const BadRequest& trouble) {
        return told(trouble.what(), exitUnreadable);
    } catch (const ChannelFailure& trouble) {
        return told(trouble.what(), exitUnreadable);
    } catch (const std::bad_alloc&) {
        return told("There is not enough memory.", exitUnreadable);
    }
}

}  // namespace ordwise
