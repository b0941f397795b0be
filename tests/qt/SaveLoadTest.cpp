// A problem of every topic is saved and loaded by the commands of the desk, through real file dialogs.
#include "DeskFixture.hpp"

#include "Art.hpp"
#include "Catalogue.hpp"
#include "RandomDraws.hpp"
#include "Workspace.hpp"

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace ordwise::test {
namespace {

class SaveLoad : public DeskTest {
protected:
    QTemporaryDir folder;
    QString file;  // what a file dialog is answered with
    int fileDialogs = 0;

    SaveLoad() {
        platform.folders.savedProblems = folder.path().toStdString();
        QObject::connect(&watch_, &QTimer::timeout, &watch_, [this] { answer(QApplication::activeModalWidget()); });
        watch_.start(1);
    }

    // What the desk shows of a problem: what stands in it and every step with its note.
    static std::vector<std::string> shown() {
        std::vector<std::string> all{ws.TopicName, ws.ProblemText};
        for (int number = 1; number <= 6; ++number) all.push_back(frmPaper.box(number).Text);
        for (int number = 1; number <= 3; ++number) all.push_back(std::to_string(frmPaper.combo(number).ListIndex));
        for (int step = 1; step < ws.StepCount; ++step) all.push_back(ws.StepLines[step] + " | " + ws.StepNotes[step]);
        return all;
    }

private:
    void answer(QWidget* dialog) {
        if (auto* question = qobject_cast<QInputDialog*>(dialog)) {
            question->setTextValue(QStringLiteral("3"));
            question->accept();
        } else if (auto* files = qobject_cast<QFileDialog*>(dialog)) {
            ++fileDialogs;
            auto* name = files->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            name->setText(file);
            QTest::keyClick(name, Qt::Key_Return);
        } else if (dialog != nullptr) {
            ADD_FAILURE() << "an unforeseen dialog: " << dialog->windowTitle().toStdString();
            dialog->close();
        }
    }

    QTimer watch_;
};

TEST_F(SaveLoad, give_the_same_solution_of_every_topic_again) {
    frame->actionOf(frmMain.mnuShowStep)->trigger();  // the whole solution at once
    const auto open = [](const TopicRow& topic) {
        TreeViewSelect(topic.name);
        platform.windows->unload("frmPaper");
        platform.windows->show("frmPaper");
    };
    const auto table = topicTable();
    for (std::size_t i = 0; i < table.size(); ++i) {
        const TopicRow& topic = table[i];
        SCOPED_TRACE(std::string(topic.name));
        seedDraws(static_cast<std::uint64_t>(topic.code));
        open(topic);
        frame->actionOf(frmMain.mnuExample)->trigger();
        const std::vector<std::string> before = shown();
        const DisplayList drawn = frmPaper.Paper[0].drawn();
        file = folder.filePath(QStringLiteral("problem %1").arg(i));
        frame->actionOf(frmMain.mnuSave)->trigger();
        EXPECT_TRUE(QFileInfo::exists(file + QStringLiteral(".hvx"))) << "the extension is given";

        open(table[(i + 1) % table.size()]);
        file += QStringLiteral(".hvx");
        frame->actionOf(frmMain.mnuLoad)->trigger();
        EXPECT_EQ(shown(), before);
        EXPECT_EQ(frmPaper.Paper[0].drawn(), drawn);
        EXPECT_FALSE(ws.InputOpen);
        ASSERT_FALSE(HasFailure());
    }
    EXPECT_EQ(fileDialogs, 2 * static_cast<int>(table.size()));
    unseedDraws();
}

}  // namespace
}  // namespace ordwise::test
