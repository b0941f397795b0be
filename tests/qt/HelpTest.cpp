// The guide in its window.
#include "DeskFixture.hpp"

#include "Art.hpp"
#include "HelpBrowser.hpp"
#include "HelpDialog.hpp"
#include "HelpPages.hpp"
#include "HelpWindow.hpp"
#include "Shortcuts.hpp"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QPdfWriter>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTreeWidget>

namespace ordwise::test {
namespace {

class Help : public DeskTest {
protected:
    HelpDialog& open() {
        frame->actionOf(frmMain.mnuHelpTopics)->trigger();
        auto* dialog = dynamic_cast<HelpDialog*>(frame->windows().open("frmHelp"));
        EXPECT_NE(dialog, nullptr);
        dialog->activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([dialog] { return QApplication::activeWindow() == dialog; }));
        return *dialog;
    }
    static std::string placeIn(const HelpDialog& help) { return help.page().source().toString().toStdString(); }
    static std::string markedIn(const HelpDialog& help) { return help.contents().currentItem()->text(0).toStdString(); }
};

TEST_F(Help, OpensAtTheTopicInWorkAndGoesBackAndForward) {
    choose(QStringLiteral("recip"));
    HelpDialog* help = &open();
    EXPECT_EQ(placeIn(*help), "fractions.html#reciprocals");
    EXPECT_EQ(markedIn(*help), "Reciprocals");
    EXPECT_GT(help->page().verticalScrollBar()->value(), 0) << "the place within the page";
    shootWidget(*help, "help-topic");
    help->page().setSource(QUrl(QStringLiteral("typing.html#light")));
    EXPECT_EQ(markedIn(*help), "Typing a Problem");
    shootWidget(*help, "help-typing");
    QTest::keyClick(help, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(markedIn(*help), "Reciprocals");
    QTest::keyClick(help, Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(placeIn(*help), "typing.html#light");
    EXPECT_EQ(&open(), help);
    EXPECT_EQ(placeIn(*help), "fractions.html#reciprocals") << "asked for again";
    QTest::keyClick(help, Qt::Key_Escape);
    EXPECT_EQ(frame->windows().open("frmHelp"), nullptr);
    EXPECT_FALSE(frmHelp.Loaded);
}

TEST_F(Help, PrintsAPageBlackOnWhite) {
    HelpDialog& help = open();
    help.page().setSource(QUrl(QStringLiteral("fractions.html")));
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("guide.pdf"));
    QPalette dark(Qt::black);
    help.setPalette(dark);
    QPdfWriter pdf(file);
    help.page().printOn(pdf);
    if (qEnvironmentVariableIsSet("ORDWISE_SHOTS"))
        QFile::copy(file, qEnvironmentVariable("ORDWISE_SHOTS") + QStringLiteral("/guide.pdf"));
    EXPECT_GT(QFileInfo(file).size(), 20000) << "with its pictures";
    EXPECT_EQ(help.page().palette().color(QPalette::Base), dark.color(QPalette::Base)) << "the screen is as it was";
}

TEST_F(Help, DrawsEveryPageWithAllItsPictures) {
    HelpDialog& help = open();
    for (const HelpPageRow& row : helpPages()) {
        const QString file = QString::fromUtf8(row.file.data(), static_cast<qsizetype>(row.file.size()));
        SCOPED_TRACE(row.file);
        help.page().setSource(QUrl(file));
        EXPECT_EQ(markedIn(help), row.title);
        int pictures = 0;
        for (QTextBlock block = help.page().document()->begin(); block.isValid(); block = block.next()) {
            for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment) {
                const QTextImageFormat format = fragment.fragment().charFormat().toImageFormat();
                if (!format.isValid()) continue;
                const auto picture =
                    help.page().document()->resource(QTextDocument::ImageResource, QUrl(format.name())).value<QImage>();
                EXPECT_FALSE(picture.isNull()) << format.name().toStdString();
                EXPECT_LT(picture.width(), 660) << format.name().toStdString() << " is wider than the page";
                ++pictures;
            }
        }
        EXPECT_TRUE(pictures > 0 || file == QStringLiteral("saving.html") || file == QStringLiteral("keys.html"));
        shootWidget(help, qPrintable(QStringLiteral("help-page-") + file.section(QLatin1Char('.'), 0, 0)));
    }
}

TEST_F(Help, FindsPagesByTheirWordsAndThePlaceInThePage) {
    HelpDialog& help = open();
    QTest::keyClicks(&help.searchBox(), QStringLiteral("hypotenuse"));
    QStringList left;
    for (int i = 0; i < help.contents().topLevelItemCount(); ++i) {
        if (!help.contents().topLevelItem(i)->isHidden()) left << help.contents().topLevelItem(i)->text(0);
    }
    EXPECT_EQ(left, QStringList{QStringLiteral("Angles and Triangles")});
    QTest::keyClick(&help.searchBox(), Qt::Key_Return);
    EXPECT_EQ(placeIn(help), "triangles.html");
    EXPECT_EQ(help.page().textCursor().selectedText(), QStringLiteral("hypotenuse"));
    help.searchBox().clear();
    EXPECT_FALSE(help.contents().topLevelItem(0)->isHidden());
}

TEST_F(Help, NamesEveryKey) {
    const QString text = HelpBrowser::pageText(QStringLiteral("keys.html"));
    for (const ShortcutRow& row : shortcutRows()) {
        const QString line = QStringLiteral("<b>%1</b></td><td>%2</td>").arg(qstringOf(row.keys), qstringOf(row.words));
        EXPECT_TRUE(text.contains(line)) << line.toStdString();
        // What the list says of a command is what its menu does.
        if (row.command == nullptr) continue;
        const QAction* action = frame->actionOf(*row.command);
        EXPECT_EQ(action->shortcut(), QKeySequence(qstringOf(row.keys)));
        EXPECT_FALSE(action->shortcut().isEmpty());
    }
}

TEST_F(Help, GrowsWithItsPictures) {
    HelpDialog& help = open();
    const auto width = [&help] {
        return help.page()
            .document()
            ->resource(QTextDocument::ImageResource, QUrl(QStringLiteral("line:x%3D5")))
            .value<QImage>()
            .width();
    };
    const int before = width();
    const double letters = help.page().font().pointSizeF();
    QTest::keyClick(&help, Qt::Key_Plus, Qt::ControlModifier);
    QTest::keyClick(&help, Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GT(width(), before);
    EXPECT_GT(help.page().font().pointSizeF(), letters);
    shootWidget(help, "help-larger");
    QTest::keyClick(&help, Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(width(), before);
}

}  // namespace
}  // namespace ordwise::test
