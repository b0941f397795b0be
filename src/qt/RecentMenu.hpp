// Open Recent: the saved problems of the last days and the problem that was left without being saved.
#pragma once

#include <QMenu>

namespace ordwise {

class Stage;

class RecentMenu : public QMenu {
public:
    RecentMenu(QWidget* parent, Stage& stage);

private:
    // The list may have changed since the menu was open last.
    void fill();
    void addFile(const QString& text, const std::string& path);

    Stage& stage_;
};

}  // namespace ordwise
