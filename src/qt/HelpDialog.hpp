// frmHelp: the guide with its contents, its search and its pages.
#pragma once

#include "DeskWindows.hpp"

#include <QDialog>

#include <map>
#include <string>

class QAction;
class QLineEdit;
class QToolBar;
class QTreeWidget;
class QTreeWidgetItem;

namespace ordwise {

class HelpBrowser;
class Stage;

class HelpDialog : public QDialog, public WindowView {
public:
    HelpDialog(QWidget* parent, Stage& stage);

    // Turns to the page that was asked for, once: from then on the reader turns the pages.
    void showChanges() override;

    [[nodiscard]] HelpBrowser& page() const { return *page_; }
    [[nodiscard]] QLineEdit& searchBox() const { return *search_; }
    [[nodiscard]] QTreeWidget& contents() const { return *contents_; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void reject() override;

private:
    void buildContents();
    QWidget* buildSide();
    QWidget* buildPage();
    QAction* addCommand(QToolBar& bar, const char* art, const QString& text, const QList<QKeySequence>& keys);
    void turnTo(const QString& place);
    void followPage(const QUrl& page);
    void search(const QString& words);
    void findNext();
    void printPage();

    Stage& stage_;
    QLineEdit* search_;
    QTreeWidget* contents_;
    HelpBrowser* page_;
    QAction* back_ = nullptr;
    QAction* forward_ = nullptr;
    std::map<QString, QString> plainTexts_;  // of the pages, for the search
};

}  // namespace ordwise
