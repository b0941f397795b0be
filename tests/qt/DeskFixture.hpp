// A fresh program with its real frame, and hands to press its keys and buttons.
#pragma once

#include "FrameWindow.hpp"
#include "QtPrinter.hpp"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QString>

#include <functional>
#include <memory>
#include <string>

namespace ordwise::test {

class DeskTest : public testing::Test {
protected:
    DeskTest();
    ~DeskTest() override;

    // Whether the desk holds still; it does unless a test wants to see it move.
    void setSteady(bool steady);
    // New Problem by its key; the topic is found by typing into the search box.
    void choose(const QString& typed);
    // What a person does with the next dialog; the test fails if none opens.
    void atNextDialog(const std::function<void(QWidget& dialog)>& act);
    // The same for a dialog of that name, which may be opened from another one.
    void atDialog(const QString& name, const std::function<void(QWidget& dialog)>& act);

    // Keys go to whatever has the keyboard, as they do on a real desk.
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const QString& keys);
    static void clickOn(QWidget& widget);

    template <class Widget = QWidget>
    Widget& child(const char* name) {
        auto* found = frame->findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return *found;
    }

    // Keeps a picture of the frame in the folder that ORDWISE_SHOTS names, if it names one.
    void shoot(const char* name);
    static void shootWidget(QWidget& widget, const char* name);

    // The widget that has the keyboard.
    QWidget* focused();

    std::unique_ptr<FrameWindow> frame;

private:
    QtPrinter printer_{QtPrinter::Devices::None};
    int dialogsAwaited_ = 0;
};

}  // namespace ordwise::test
