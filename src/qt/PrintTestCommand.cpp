#include "PrintTestCommand.hpp"

#include "Art.hpp"
#include "FreshProgram.hpp"
#include "PlainPlatform.hpp"
#include "PracticeTest.hpp"
#include "PrintedLines.hpp"
#include "PrintedPages.hpp"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <limits>

namespace ordwise {
namespace {

// What keeps a line of the input from being a practice test, as the end of a sentence.
class NotATest {
public:
    explicit NotATest(QString why) : why_(std::move(why)) {}
    [[nodiscard]] const QString& why() const { return why_; }

private:
    QString why_;
};

std::vector<std::string> textsOf(const QJsonObject& object, const QString& name) {
    std::vector<std::string> texts;
    const QJsonValue value = object.value(name);
    bool valid = value.isArray();
    for (const QJsonValue& text : value.toArray()) {
        valid = valid && text.isString();
        texts.push_back(text.toString().toStdString());
    }
    if (!valid) throw NotATest(QStringLiteral("\"%1\" is no list of texts").arg(name));
    return texts;
}

std::array<std::string, 3> headingOf(const QJsonObject& test) {
    const std::vector<std::string> lines = textsOf(test, QStringLiteral("heading"));
    std::array<std::string, 3> heading;
    if (lines.size() > heading.size()) throw NotATest(QStringLiteral("\"heading\" has more than three lines"));
    std::copy(lines.begin(), lines.end(), heading.begin());
    return heading;
}

qint64 numberOf(const QJsonObject& object, const char* name, qint64 least, qint64 most) {
    const qint64 number = object.value(QLatin1String(name)).toInteger(-1);
    if (number < least || number > most)
        throw NotATest(QStringLiteral("\"%1\" is no whole number").arg(QLatin1String(name)));
    return number;
}

// How the sheets are laid out, where the test says so.
void readLayout(const QJsonObject& test, TestPlan& plan) {
    plan.nameLine = test.value(QStringLiteral("nameLine")).toBool(true);
    if (test.contains(QStringLiteral("space"))) plan.space = static_cast<int>(numberOf(test, "space", 0, mostSpace));
    if (test.contains(QStringLiteral("columns")))
        plan.columns = static_cast<int>(numberOf(test, "columns", 1, mostColumns));
}

std::uint64_t seedOf(const QJsonObject& object) {
    return static_cast<std::uint64_t>(numberOf(object, "seed", 0, std::numeric_limits<qint64>::max()));
}

// A test of older days has no seed, and a seed may be larger than what is read exactly.
std::vector<PrintSheet> onlySheet(const QJsonObject& test, const TestPlan& plan, std::vector<std::string> lines) {
    constexpr double largestRead = 9.2e18;
    const QJsonValue seed = test.value(QStringLiteral("seed"));
    const bool seeded = !seed.isUndefined() && seed.toDouble() < largestRead;
    std::vector<PrintSheet> sheets =
        sheetsOf(plan, {MadeTest{seeded ? seedOf(test) : 0, "", std::move(lines), {}, {}}});
    if (!seeded) sheets.front().Seed.clear();
    return sheets;
}

MadeTest versionOf(const QJsonValue& value) {
    if (!value.isObject()) throw NotATest(QStringLiteral("\"versions\" is no list of objects"));
    const QJsonObject version = value.toObject();
    const QJsonValue name = version.value(QStringLiteral("version"));
    if (!name.isString()) throw NotATest(QStringLiteral("\"version\" is no text"));
    return {seedOf(version),
            name.toString().toStdString(),
            textsOf(version, QStringLiteral("lines")),
            textsOf(version, QStringLiteral("key")),
            {}};
}

std::vector<PrintSheet> sheetsOfJson(const QByteArray& line) {
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(line, &error);
    if (error.error != QJsonParseError::NoError) throw NotATest(error.errorString());
    if (!document.isObject()) throw NotATest(QStringLiteral("it is no object"));
    const QJsonObject test = document.object();
    TestPlan plan;
    plan.heading = headingOf(test);
    const std::vector<std::string> lines = textsOf(test, QStringLiteral("lines"));
    const QJsonValue versions = test.value(QStringLiteral("versions"));
    readLayout(test, plan);
    if (versions.isUndefined()) return onlySheet(test, plan, lines);
    if (!versions.isArray()) throw NotATest(QStringLiteral("\"versions\" is no list of objects"));
    std::vector<MadeTest> tests;
    for (const QJsonValue& version : versions.toArray()) tests.push_back(versionOf(version));
    return sheetsOf(plan, tests);
}

CommandEnd readTests(const QByteArray& json, std::vector<PrintSheet>& sheets) {
    int number = 0;
    for (const QByteArray& line : json.split('\n')) {
        ++number;
        if (line.trimmed().isEmpty()) continue;
        try {
            for (PrintSheet& sheet : sheetsOfJson(line)) sheets.push_back(std::move(sheet));
        } catch (const NotATest& trouble) {
            return {CommandEnd::Unreadable,
                    QStringLiteral("Line %1 of the input is no practice test: %2.").arg(number).arg(trouble.why())};
        }
    }
    if (!sheets.empty()) return {};
    return {CommandEnd::Unreadable, QStringLiteral("There is no practice test in the input.")};
}

// The first line that has marks which do not belong together; "" if all can be drawn.
std::string lineNotDrawn(const std::vector<PrintSheet>& sheets, const PaperSize& paper) {
    for (const PrintSheet& sheet : sheets) {
        for (const std::string& line : sheet.Lines) {
            if (!roomOf({PlannedLine::Kind::Math, line}, paper).drawable) return line;
        }
    }
    return "";
}

}  // namespace

CommandEnd printTests(const QByteArray& json, const QString& file, const PaperSize& paper) {
    startFreshProgram();
    PlainPlatform outside;
    outside.printer.size = paper;
    std::vector<PrintSheet> sheets;
    const CommandEnd read = readTests(json, sheets);
    if (read.status != CommandEnd::Done) return read;
    const std::string notDrawn = lineNotDrawn(sheets, paper);
    if (!notDrawn.empty()) {
        constexpr int shown = 60;
        return {CommandEnd::Refused,
                QStringLiteral("This line of the test cannot be drawn: %1").arg(qstringOf(notDrawn).left(shown))};
    }
    if (!printSheets("Practice Test", sheets)) return {CommandEnd::Refused, qstringOf(frmMain.StatusText)};
    return writePages(file, outside.printer.jobs);
}

}  // namespace ordwise
