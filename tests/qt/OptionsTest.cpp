// The settings window, worked by mouse and by keys.
#include "DeskFixture.hpp"

#include "Art.hpp"
#include "DeskView.hpp"
#include "OptionsDialog.hpp"
#include "PictureButton.hpp"
#include "Workspace.hpp"

#include <QAction>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTest>

namespace ordwise::test {
namespace {

class Options : public DeskTest {
protected:
    // Opens the settings from the menu and lets a person act on them.
    void change(const std::function<void(OptionsDialog&)>& act) {
        atNextDialog([act](QWidget& dialog) { act(dynamic_cast<OptionsDialog&>(dialog)); });
        frame->actionOf(frmMain.mnuChange)->trigger();
    }
};

TEST_F(Options, are_shown_as_they_stand_and_taken_over_by_ok) {
    choose(QStringLiteral("arithmetic"));
    ws.RoundPlaces = 4;
    ws.ExpDetail = 2;
    ws.StepDetail = 2;
    change([](OptionsDialog& dialog) {
        shootWidget(dialog, "settings");
        EXPECT_TRUE(dialog.assistant(1).isChecked());
        EXPECT_TRUE(dialog.assistant(1).hasFocus());
        EXPECT_FALSE(dialog.complexExamples().isChecked());
        EXPECT_TRUE(dialog.clickNotification().isChecked());
        EXPECT_EQ(dialog.detail().currentText(), QStringLiteral("Medium"));
        EXPECT_EQ(dialog.digits().currentText(), QStringLiteral("4"));

        QTest::mouseClick(&dialog.assistant(3), Qt::LeftButton);
        EXPECT_FALSE(dialog.assistant(1).isChecked());
        QTest::keyClick(&dialog.assistant(3), Qt::Key_Left);
        EXPECT_TRUE(dialog.assistant(2).isChecked()) << "the mark moves with the arrow keys";
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        QTest::keyClick(&dialog, Qt::Key_C, Qt::AltModifier);
        QTest::keyClick(&dialog, Qt::Key_K, Qt::AltModifier);
        dialog.detail().setCurrentIndex(0);
        dialog.digits().setCurrentIndex(2);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog.clickNotification().isChecked(); })) << "a key reaches it";
        EXPECT_EQ(frmPaper.Wizard.Image, "wiz1") << "nothing is taken over before OK";
        shootWidget(dialog, "settings-changed");
        QTest::mouseClick(dialog.buttons().button(QDialogButtonBox::Ok), Qt::LeftButton);
    });
    EXPECT_EQ(ws.AssistantChoice, 2);
    EXPECT_EQ(frame->desk().assistant().imageKey(), "wiz2") << "the new assistant stands on the desk at once";
    EXPECT_EQ(ws.ComplexExamples, 2);
    EXPECT_FALSE(ws.ClickNotify);
    EXPECT_EQ(ws.ExpDetail, 3);
    EXPECT_EQ(ws.StepDetail, 1);
    EXPECT_EQ(ws.RoundPlaces, 3);
}

TEST_F(Options, stay_as_they_were_by_cancel_and_by_escape) {
    const auto upset = [](OptionsDialog& dialog) {
        dialog.assistant(2).click();
        dialog.complexExamples().setChecked(true);
        dialog.digits().setCurrentIndex(4);
    };
    change([&](OptionsDialog& dialog) {
        upset(dialog);
        QTest::mouseClick(dialog.buttons().button(QDialogButtonBox::Cancel), Qt::LeftButton);
    });
    change([&](OptionsDialog& dialog) {
        EXPECT_TRUE(dialog.assistant(1).isChecked());
        upset(dialog);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    EXPECT_EQ(ws.AssistantChoice, 1);
    EXPECT_EQ(ws.ComplexExamples, 0);
    EXPECT_EQ(ws.RoundPlaces, 2);
}

}  // namespace
}  // namespace ordwise::test
