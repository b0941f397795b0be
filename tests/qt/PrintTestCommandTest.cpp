// Practice tests made elsewhere, printed into a PDF; and input that is none.
#include "PlainForm.hpp"
#include "PrintTestCommand.hpp"

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <random>

namespace ordwise {
namespace {

const QByteArray plainTest =
    R"({"heading": ["Class 7b", "Test", ""], "lines": ["", "Simplify the following fractions:", "1) #4/8#"]})";
const QByteArray versions = R"({"heading":["A","B"],"lines":["1) 2+3"],"versions":[)"
                            R"({"version":"A","seed":4,"lines":["1) 2+3"],"key":["1) 5"]},)"
                            R"({"version":"B","seed":5,"lines":["1) x^2^+~9~"],"key":[]}]})";

class PrintTestCommand : public testing::Test {
protected:
    CommandEnd print(const QByteArray& json) {
        QFile::remove(file);
        CommandEnd end = printTests(json, file, PaperSize{});
        EXPECT_EQ(end.status == CommandEnd::Done, end.reason.isEmpty());
        EXPECT_EQ(end.status == CommandEnd::Done, QFile::exists(file)) << end.reason.toStdString();
        return end;
    }

    qsizetype pages() const {
        QFile pdf(file);
        EXPECT_TRUE(pdf.open(QIODevice::ReadOnly));
        return pdf.readAll().count("/Type /Page\n");
    }

    QTemporaryDir folder;
    QString file = folder.filePath(QStringLiteral("test.pdf"));
};

TEST_F(PrintTestCommand, gives_every_test_every_version_and_every_key_a_page_of_its_own) {
    EXPECT_EQ(print(plainTest).status, CommandEnd::Done);
    EXPECT_EQ(pages(), 1);
    EXPECT_EQ(print("\n" + plainTest + "\r\n\n" + versions + "\n").status, CommandEnd::Done);
    EXPECT_EQ(pages(), 1 + 3) << "version A, its key, version B without one";
}

TEST_F(PrintTestCommand, gives_text_that_can_be_copied) {
    const QString reader = QStandardPaths::findExecutable(QStringLiteral("pdftotext"));
    if (reader.isEmpty()) GTEST_SKIP() << "there is no pdftotext";
    const char* const lines[] = {"3y+5-8+7y=2-5y", "#3/4#+x^2^",          "~9~*2-`",
                                 "6#1/3#{2",       "64 miles = ? inches", "#4x/[2]#=8, when x = 4 and y = 5"};
    QJsonArray problems;
    int number = 0;
    for (const char* line : lines) problems.append(QStringLiteral("%1) %2").arg(++number).arg(QLatin1String(line)));
    const QString wide = QStringLiteral("7) ") + QStringLiteral("#12/345#+678-").repeated(20) + QStringLiteral("9");
    problems.append(wide);
    const QJsonObject test{{QStringLiteral("heading"), QJsonArray{QStringLiteral("Class 7b")}},
                           {QStringLiteral("lines"), problems},
                           {QStringLiteral("seed"), 7}};
    EXPECT_EQ(print(QJsonDocument(test).toJson(QJsonDocument::Compact)).status, CommandEnd::Done);
    QProcess reading;
    reading.start(reader, {file, QStringLiteral("-")});
    ASSERT_TRUE(reading.waitForFinished());
    const QStringList read = QString::fromUtf8(reading.readAllStandardOutput()).split(QLatin1Char('\n'));
    for (const QJsonValue& problem : problems) {
        const QString text = QString::fromStdString(plainText(problem.toString().toStdString()));
        EXPECT_TRUE(read.contains(text)) << text.toStdString() << " is not in "
                                         << read.join(QLatin1Char('|')).toStdString();
    }
    EXPECT_TRUE(read.contains(QStringLiteral("Seed 7")));
    QFile pdf(file);
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
    const QByteArray bytes = pdf.readAll();
    EXPECT_TRUE(bytes.contains("/Author (Ordwise)") && bytes.contains("/Lang (en)"));
}

TEST_F(PrintTestCommand, says_in_one_sentence_what_cannot_be_printed) {
    const auto reasonFor = [&](const QByteArray& json, CommandEnd::Status status) {
        const CommandEnd end = print(json);
        EXPECT_EQ(end.status, status) << json.constData();
        return end.reason.toStdString();
    };
    EXPECT_EQ(reasonFor(" \n", CommandEnd::Unreadable), "There is no practice test in the input.");
    EXPECT_EQ(reasonFor(plainTest + "\n[1]", CommandEnd::Unreadable),
              "Line 2 of the input is no practice test: it is no object.");
    EXPECT_EQ(reasonFor(R"({"heading": []})", CommandEnd::Unreadable),
              "Line 1 of the input is no practice test: \"lines\" is no list of texts.");
    EXPECT_EQ(reasonFor(R"({"heading": ["", "", "", ""], "lines": []})", CommandEnd::Unreadable),
              "Line 1 of the input is no practice test: \"heading\" has more than three lines.");
    EXPECT_EQ(reasonFor(R"({"heading": [], "lines": [], "versions": [{"version": "A", "seed": 0.5}]})",
                        CommandEnd::Unreadable),
              "Line 1 of the input is no practice test: \"seed\" is no whole number.");
    EXPECT_EQ(reasonFor(R"({"heading": [], "lines": ["1) x^2"]})", CommandEnd::Refused),
              "This line of the test cannot be drawn: 1) x^2");
    EXPECT_EQ(printTests(plainTest, folder.filePath(QStringLiteral("no/test.pdf")), PaperSize{}).status,
              CommandEnd::Refused);
}

TEST_F(PrintTestCommand, comes_to_an_end_with_whatever_it_is_given) {
    std::mt19937 draws(7);  // NOLINT: the same every time
    const auto below = [&](qsizetype limit) {
        return static_cast<qsizetype>(draws() % static_cast<unsigned>(std::max<qsizetype>(limit, 1)));
    };
    const QByteArray pieces[] = {"\"", "{", "[", "]", "^", "#", "~", "-1", "1e400", "\\u0000", "null", "\xff", "\n"};
    int done = 0;
    for (int round = 0; round < 1500; ++round) {
        QByteArray json = round % 2 == 0 ? plainTest : versions;
        for (qsizetype i = below(3); i >= 0; --i) {
            const qsizetype at = below(json.size());
            switch (below(4)) {
                case 0: json.truncate(at); break;
                case 1: json.remove(at, below(9)); break;
                case 2: json.insert(at, json.mid(below(json.size()), below(40))); break;
                default: json.insert(at, pieces[below(std::size(pieces))]);
            }
        }
        done += print(json).status == CommandEnd::Done ? 1 : 0;
    }
    EXPECT_GT(done, 50) << "some changes are harmless";
    EXPECT_LT(done, 1000);
}

}  // namespace
}  // namespace ordwise
