#include "DeskFixture.hpp"

#include "ChooserDialog.hpp"
#include "DeskView.hpp"
#include "FreshProgram.hpp"

#include <QAction>
#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QTimer>

namespace ordwise::test {

DeskTest::DeskTest() {
    startFreshProgram();
    frame = std::make_unique<FrameWindow>();
    platform.printer = &printer_;  // nothing may reach a printer of this machine
    printer_.parent = frame.get();
    frame->resize(1120, 930);
    frame->show();
    frame->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(frame.get()));
    setSteady(true);
}

void DeskTest::setSteady(bool steady) {
    child<QAction>("steadySignals").setChecked(steady);
}

DeskTest::~DeskTest() {
    EXPECT_EQ(dialogsAwaited_, 0) << "a dialog that was expected did not open";
}

void DeskTest::atNextDialog(const std::function<void(QWidget& dialog)>& act) {
    atDialog(QString(), act);
}

void DeskTest::atDialog(const QString& name, const std::function<void(QWidget& dialog)>& act) {
    ++dialogsAwaited_;
    auto* watch = new QTimer(frame.get());
    QObject::connect(watch, &QTimer::timeout, frame.get(), [this, watch, name, act] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (dialog == nullptr || (!name.isEmpty() && dialog->objectName() != name)) return;
        if (!dialog->isActiveWindow()) return;  // not yet: it has no keyboard
        watch->stop();
        watch->deleteLater();
        --dialogsAwaited_;
        const QPointer<QWidget> opened = dialog;
        act(*dialog);
        if (opened.isNull() || !opened->isVisible()) return;
        ADD_FAILURE() << "the dialog was left open";
        opened->close();
    });
    watch->start(1);
}

void DeskTest::choose(const QString& typed) {
    atNextDialog([typed](QWidget& dialog) {
        auto& chooser = dynamic_cast<ChooserDialog&>(dialog);
        QTest::keyClicks(&chooser.searchBox(), typed);
        QTest::keyClick(&chooser.searchBox(), Qt::Key_Return);
    });
    press(Qt::Key_N, Qt::ControlModifier);
}

// The platform without a screen does not give the keyboard back when a dialog closes.
QWidget* DeskTest::focused() {
    if (QApplication::focusWidget() == nullptr) {
        frame->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(frame.get()));
    }
    return QApplication::focusWidget();
}

void DeskTest::press(int key, Qt::KeyboardModifiers modifiers) {
    QWidget* target = focused();
    ASSERT_NE(target, nullptr);
    QTest::keyClick(target, static_cast<Qt::Key>(key), modifiers);
}

void DeskTest::type(const QString& keys) {
    for (const QChar key : keys) {
        QWidget* target = focused();
        ASSERT_NE(target, nullptr);
        QTest::keyClicks(target, key);
    }
}

void DeskTest::clickOn(QWidget& widget) {
    ASSERT_TRUE(widget.isVisible());
    QTest::mouseClick(&widget, Qt::LeftButton);
}

void DeskTest::shoot(const char* name) {
    shootWidget(*frame, name);
}

void DeskTest::shootWidget(QWidget& widget, const char* name) {
    const QString folder = qEnvironmentVariable("ORDWISE_SHOTS");
    if (folder.isEmpty()) return;
    QTest::qWait(20);
    EXPECT_TRUE(widget.grab().save(folder + QLatin1Char('/') + QString::fromLatin1(name) + QStringLiteral(".png")));
}

}  // namespace ordwise::test
