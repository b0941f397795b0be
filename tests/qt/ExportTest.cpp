// Sheets drawn into files, without a window.
#include "ExportCommand.hpp"

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QTemporaryDir>

namespace ordwise {
namespace {

class Export : public testing::Test {
protected:
    QString path(const char* name) const { return folder.filePath(QString::fromLatin1(name)); }

    QByteArray contents(const char* name) const {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        return file.readAll();
    }

    // Dark pixels in a part of the picture, in points of the sheet.
    static int inkIn(const QImage& image, const QRect& part) {
        int ink = 0;
        for (int y = part.top() * 2; y < part.bottom() * 2; ++y) {
            for (int x = part.left() * 2; x < part.right() * 2; ++x) ink += qGray(image.pixel(x, y)) < 96 ? 1 : 0;
        }
        return ink;
    }

    // Why the export was refused, "" when it was done.
    static std::string reasonOf(const ExportRequest& request) {
        const CommandEnd end = runExport(request);
        EXPECT_EQ(end.status == CommandEnd::Done, end.reason.isEmpty());
        return end.reason.toStdString();
    }

    QTemporaryDir folder;
};

TEST_F(Export, draws_a_solved_equation_as_a_picture) {
    ExportRequest request{path("a.png"), QStringLiteral("Solving Equations"), QStringLiteral("x+3=12")};
    ASSERT_EQ(reasonOf(request), "");
    const QImage image(path("a.png"));
    EXPECT_EQ(image.width(), 1600);
    EXPECT_GT(inkIn(image, QRect(70, 110, 200, 40)), 100) << "the problem";
    EXPECT_GT(inkIn(image, QRect(70, 180, 200, 120)), 100) << "the steps";
    EXPECT_EQ(inkIn(image, QRect(70, 400, 700, 240)), 0) << "the rest of the paper is empty";
}

TEST_F(Export, draws_figures_with_what_was_entered) {
    ExportRequest request{path("a.png"), QStringLiteral("Area of a Circle"), {}, {{2, QStringLiteral("4")}}};
    ASSERT_EQ(reasonOf(request), "");
    EXPECT_GT(inkIn(QImage(path("a.png")), QRect(330, 178, 54, 28)), 20) << "the number in its box";
}

TEST_F(Export, gives_each_sheet_a_page) {
    ExportRequest request{path("a.pdf"), QStringLiteral("Prime Factorization"), QStringLiteral("1024")};
    ASSERT_EQ(reasonOf(request), "");
    EXPECT_EQ(contents("a.pdf").count("/Type /Page\n"), 2);
    request.file = path("a.svg");
    ASSERT_EQ(reasonOf(request), "");
    EXPECT_TRUE(contents("a.svg").contains("<path"));
}

TEST_F(Export, answers_the_questions_of_a_solve) {
    ExportRequest request{path("a.svg"), QStringLiteral("Evaluating Polynomials"), QStringLiteral("2x+1")};
    EXPECT_NE(reasonOf(request).find("Enter a value for x"), std::string::npos);
    request.answers = {QStringLiteral("3")};
    EXPECT_EQ(reasonOf(request), "");
}

TEST_F(Export, prints_a_problem_a_saved_one_and_a_graph) {
    ExportRequest request{path("a.pdf"), QStringLiteral("Solving Equations"), QStringLiteral("3x-4=11")};
    request.paper = PaperSize{};
    ASSERT_EQ(reasonOf(request), "");
    const QByteArray typed = contents("a.pdf");
    EXPECT_EQ(typed.count("/Type /Page\n"), 1);
    EXPECT_EQ(typed.count("/Subtype /Type0\n"), 1) << "the letters are letters";

    QFile saved(path("a.hvx"));
    ASSERT_TRUE(saved.open(QIODevice::WriteOnly));
    saved.write("Solving Equations BB 3x-4=11 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 101\r\n");
    saved.close();
    request.topic = saved.fileName();
    request.problem.clear();
    request.explanations = true;
    ASSERT_EQ(reasonOf(request), "");
    EXPECT_EQ(contents("a.pdf").count("/Subtype /Type0\n"), 2) << "the face of the explanations";

    request = {path("a.pdf"), QStringLiteral("Plotting A Point"), QStringLiteral("(3,4)")};
    request.paper = PaperSize{};
    ASSERT_EQ(reasonOf(request), "") << "its solution is its graph";
    request.topic = path("none.hvx");
    EXPECT_EQ(runExport(request).status, CommandEnd::Unreadable);
    request = {path("b.pdf"), QStringLiteral("Arithmetic"), QStringLiteral("4+5")};
    request.paper = PaperSize{};
    request.graph = true;
    EXPECT_EQ(reasonOf(request), "The problem has no graph.");
}

TEST_F(Export, says_why_nothing_was_drawn) {
    const auto refusal = [&](ExportRequest request) {
        request.file = path("none.png");
        const std::string reason = reasonOf(request);
        EXPECT_FALSE(QFile::exists(path("none.png")));
        return reason;
    };
    EXPECT_EQ(refusal({{}, QStringLiteral("Geometry"), {}}), "'Geometry' is no problem type.");
    EXPECT_NE(refusal({{}, QStringLiteral("Arithmetic"), QStringLiteral("4+x")}).find("Variables are not allowed"),
              std::string::npos);
    EXPECT_NE(refusal({{}, QStringLiteral("Arithmetic"), QStringLiteral("4+")}).find("not complete"),
              std::string::npos);
    EXPECT_NE(refusal({{}, QStringLiteral("Area of a Circle"), {}, {{9, QStringLiteral("4")}}}).find("1 to 6"),
              std::string::npos);
    const auto reasonFor = [&](const char* file) {
        return reasonOf({path(file), QStringLiteral("Arithmetic"), QStringLiteral("4+5")});
    };
    EXPECT_NE(reasonFor("a.gif").find(".png, .svg or .pdf"), std::string::npos);
    EXPECT_NE(reasonFor("no/such/folder.png").find("folder.png"), std::string::npos);
}

}  // namespace
}  // namespace ordwise
