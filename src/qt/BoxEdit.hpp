// A box of a box topic. It shows what the logic holds; every key is asked of the box's own rule, and
// a key always goes to the end of the number.
#pragma once

#include <QLineEdit>

#include <functional>
#include <string_view>

namespace ordwise {

class BoxEdit : public QLineEdit {
public:
    BoxEdit(QWidget* parent, std::function<void(std::string_view key)> onKey);

    void showText(const QString& text);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    std::function<void(std::string_view key)> onKey_;
};

}  // namespace ordwise
