#include "HeadlessCommands.hpp"

#include "ExportCommand.hpp"
#include "PagePainter.hpp"
#include "PrintTestCommand.hpp"

#include <QCommandLineParser>
#include <QFile>
#include <QTextStream>

#include <algorithm>
#include <iterator>
#include <string_view>

namespace ordwise {
namespace {

// A command line that says something else than a command takes.
class Misspelled {
public:
    explicit Misspelled(const char* sentence) : sentence_(QString::fromLatin1(sentence)) {}
    [[nodiscard]] const QString& sentence() const { return sentence_; }

private:
    QString sentence_;
};

const QString exportOption = QStringLiteral("export");
const QString printOption = QStringLiteral("print");
const QString explanationsOption = QStringLiteral("explanations");
const QString graphOption = QStringLiteral("graph");
const QString printTestOption = QStringLiteral("print-test");
const QString paperOption = QStringLiteral("paper");
const QString boxOption = QStringLiteral("box");
const QString comboOption = QStringLiteral("combo");
const QString answerOption = QStringLiteral("answer");

// "2=3.5" -> 2, "3.5"; false without a number before the "=".
bool readPair(const QString& text, int& number, QString& value) {
    const qsizetype equals = text.indexOf(QLatin1Char('='));
    bool valid = false;
    number = text.left(equals).toInt(&valid);
    value = text.mid(equals + 1);
    return equals > 0 && valid;
}

void readBoxes(const QCommandLineParser& parser, ExportRequest& request) {
    int number = 0;
    QString value;
    for (const QString& text : parser.values(boxOption)) {
        if (!readPair(text, number, value)) throw Misspelled("--box takes N=TEXT.");
        request.boxes.emplace_back(number, value);
    }
    for (const QString& text : parser.values(comboOption)) {
        bool valid = readPair(text, number, value);
        const int index = valid ? value.toInt(&valid) : 0;
        if (!valid) throw Misspelled("--combo takes N=INDEX.");
        request.combos.emplace_back(number, index);
    }
}

PaperSize paperAskedFor(const QCommandLineParser& parser) {
    QPageLayout layout = localPaper();
    if (parser.isSet(paperOption)) {
        const QString name = parser.value(paperOption).toLower();
        if (name != QStringLiteral("a4") && name != QStringLiteral("letter"))
            throw Misspelled("--paper takes a4 or letter.");
        layout.setPageSize(QPageSize(name == QStringLiteral("a4") ? QPageSize::A4 : QPageSize::Letter));
    }
    return paperOf(layout);
}

CommandEnd exportProblem(const QCommandLineParser& parser) {
    const QStringList words = parser.positionalArguments();
    if (words.isEmpty() || words.size() > 2)
        throw Misspelled("--export takes a problem type and a problem, or a saved problem.");
    ExportRequest request;
    request.file = parser.value(exportOption);
    request.topic = words[0];
    request.problem = words.value(1);
    request.answers = parser.values(answerOption);
    request.explanations = parser.isSet(explanationsOption);
    request.graph = parser.isSet(graphOption);
    if (parser.isSet(printOption)) request.paper = paperAskedFor(parser);
    if (!request.paper && (request.explanations || request.graph))
        throw Misspelled("--explanations and --graph go with --print.");
    if (request.paper && !request.file.endsWith(QStringLiteral(".pdf"), Qt::CaseInsensitive))
        throw Misspelled("--print needs a file that ends in .pdf.");
    readBoxes(parser, request);
    return runExport(request);
}

QByteArray inputOf(const QString& name) {
    QFile input(name);
    const bool opened = name.isEmpty() || name == QStringLiteral("-") ? input.open(stdin, QIODevice::ReadOnly)
                                                                      : input.open(QIODevice::ReadOnly);
    QByteArray bytes;
    if (opened) bytes = input.readAll();
    if (input.error() != QFileDevice::NoError) throw Misspelled("The file with the practice tests cannot be read.");
    return bytes;
}

CommandEnd printTestsOfInput(const QCommandLineParser& parser) {
    const QStringList words = parser.positionalArguments();
    if (words.size() > 1) throw Misspelled("--print-test takes one file to read at most.");
    const PaperSize paper = paperAskedFor(parser);
    return printTests(inputOf(words.value(0)), parser.value(printTestOption), paper);
}

}  // namespace

bool needsNoDisplay(int argc, char** argv) {
    constexpr std::string_view words[] = {"--export", "--print-test", "--help", "--help-all", "-h", "--version", "-v"};
    return std::any_of(argv + 1, argv + argc, [&](std::string_view argument) {
        const std::string_view name = argument.substr(0, argument.find('='));
        return std::find(std::begin(words), std::end(words), name) != std::end(words);
    });
}

void addOptions(QCommandLineParser& parser) {
    const auto text = [](const char* words) { return QString::fromLatin1(words); };
    parser.setApplicationDescription(text("Desktop tutor and solver for school mathematics."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions(
        {{exportOption, text("Draw the solved sheets into FILE (.png, .svg, .pdf)."), text("FILE")},
         {printOption, text("With --export, print the solution into a PDF instead.")},
         {explanationsOption, text("With --print, the explanation under each step.")},
         {graphOption, text("With --print, the graph on a page of its own.")},
         {boxOption, text("Fill box N of a box topic."), text("N=TEXT")},
         {comboOption, text("Select entry INDEX of list N."), text("N=INDEX")},
         {answerOption, text("Answer the next question of the solve."), text("TEXT")},
         {printTestOption,
          text("Print the practice tests of `ordwise-cli test --json`, read from standard input or from a file "
               "named as the argument, into FILE (.pdf)."),
          text("FILE")},
         {paperOption, text("Paper of the printed pages: letter or a4."), text("SIZE")}});
    parser.addPositionalArgument(text("topic"),
                                 text("A saved problem to open; with --export, a problem type or a saved problem."));
    parser.addPositionalArgument(text("problem"), text("The problem as it is typed, with --export."));
}

std::optional<int> runHeadless(const QCommandLineParser& parser) {
    CommandEnd end;
    try {
        if (parser.isSet(exportOption)) {
            end = exportProblem(parser);
        } else if (parser.isSet(printTestOption)) {
            end = printTestsOfInput(parser);
        } else {
            return std::nullopt;
        }
    } catch (const Misspelled& trouble) {
        end = {CommandEnd::Unreadable, trouble.sentence()};
    }
    if (end.status != CommandEnd::Done) QTextStream(stderr) << end.reason << Qt::endl;
    return end.status;
}

}  // namespace ordwise
