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

    QTemporaryDir folder;
    QString reason;
};

TEST_F(Export, draws_a_solved_equation_as_a_picture) {
    ExportRequest request{path("a.png"), QStringLiteral("Solving Equations"), QStringLiteral("x+3=12")};
    ASSERT_TRUE(runExport(request, reason)) << reason.toStdString();
    const QImage image(path("a.png"));
    EXPECT_EQ(image.width(), 1600);
    EXPECT_GT(inkIn(image, QRect(70, 110, 200, 40)), 100) << "the problem";
    EXPECT_GT(inkIn(image, QRect(70, 180, 200, 120)), 100) << "the steps";
    EXPECT_EQ(inkIn(image, QRect(70, 400, 700, 240)), 0) << "the rest of the paper is empty";
}

TEST_F(Export, draws_figures_with_what_was_entered) {
    ExportRequest request{path("a.png"), QStringLiteral("Area of a Circle"), {}, {{2, QStringLiteral("4")}}};
    ASSERT_TRUE(runExport(request, reason)) << reason.toStdString();
    EXPECT_GT(inkIn(QImage(path("a.png")), QRect(330, 178, 54, 28)), 20) << "the number in its box";
}

TEST_F(Export, gives_each_sheet_a_page) {
    ExportRequest request{path("a.pdf"), QStringLiteral("Prime Factorization"), QStringLiteral("1024")};
    ASSERT_TRUE(runExport(request, reason)) << reason.toStdString();
    EXPECT_EQ(contents("a.pdf").count("/Type /Page\n"), 2);
    request.file = path("a.svg");
    ASSERT_TRUE(runExport(request, reason)) << reason.toStdString();
    EXPECT_TRUE(contents("a.svg").contains("<path"));
}

TEST_F(Export, answers_the_questions_of_a_solve) {
    ExportRequest request{path("a.svg"), QStringLiteral("Evaluating Polynomials"), QStringLiteral("2x+1")};
    EXPECT_FALSE(runExport(request, reason));
    EXPECT_TRUE(reason.contains(QStringLiteral("Enter a value for x"))) << reason.toStdString();
    request.answers = {QStringLiteral("3")};
    EXPECT_TRUE(runExport(request, reason)) << reason.toStdString();
}

TEST_F(Export, says_why_nothing_was_drawn) {
    const auto refusal = [&](ExportRequest request) {
        request.file = path("none.png");
        EXPECT_FALSE(runExport(request, reason));
        EXPECT_FALSE(QFile::exists(path("none.png")));
        return reason.toStdString();
    };
    EXPECT_EQ(refusal({{}, QStringLiteral("Geometry"), {}}), "'Geometry' is no problem type.");
    EXPECT_NE(refusal({{}, QStringLiteral("Arithmetic"), QStringLiteral("4+x")}).find("Variables are not allowed"),
              std::string::npos);
    EXPECT_NE(refusal({{}, QStringLiteral("Arithmetic"), QStringLiteral("4+")}).find("not complete"),
              std::string::npos);
    EXPECT_NE(refusal({{}, QStringLiteral("Area of a Circle"), {}, {{9, QStringLiteral("4")}}}).find("1 to 6"),
              std::string::npos);
    EXPECT_FALSE(runExport({path("a.gif"), QStringLiteral("Arithmetic"), QStringLiteral("4+5")}, reason));
    EXPECT_TRUE(reason.contains(QStringLiteral(".png, .svg or .pdf")));
    EXPECT_FALSE(runExport({path("no/such/folder.png"), QStringLiteral("Arithmetic"), QStringLiteral("4+5")}, reason));
    EXPECT_TRUE(reason.contains(QStringLiteral("could not be written")));
}

}  // namespace
}  // namespace ordwise
