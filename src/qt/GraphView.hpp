// frmGraph: the graph in a window of its own beside the desk. The picture takes all the room; to its
// right stand the list of coordinates and the zoom buttons, unless they are switched off.
#pragma once

#include "DeskWindows.hpp"
#include "GraphWindow.hpp"

#include <QAbstractListModel>
#include <QKeySequence>
#include <QListView>
#include <QMainWindow>
#include <QPushButton>

#include <functional>
#include <utility>
#include <vector>

class QLabel;

namespace ordwise {

class FrameWindow;
class Stage;
class StatusLine;
struct PictureSource;

// The coordinates, which may be thousands: a row is made only when it comes into view.
class CoordinateRows : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    void showRows(const std::vector<std::string>& rows);
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    std::vector<std::string> rows_;
};

// The picture as the logic has drawn it.
class GraphCanvas : public QWidget {
public:
    explicit GraphCanvas(QWidget* parent);

    // Paints anew where the picture or its background is another one.
    void showChanges();
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    DisplayList shown_;
    Colour background_;
};

class GraphView : public QMainWindow, public WindowView {
public:
    // The window's data are loaded already.
    GraphView(FrameWindow& frame, Stage& stage);

    void showChanges() override;

    [[nodiscard]] GraphCanvas& canvas() const { return *canvas_; }
    [[nodiscard]] QListView& list() const { return *list_; }
    [[nodiscard]] StatusLine& statusLine() const { return *status_; }
    // Where the mouse points.
    [[nodiscard]] const QLabel& coordinates() const { return *coordinates_; }
    [[nodiscard]] QAction& actionOf(const Control& menu) const;
    [[nodiscard]] QPushButton& button(const Control& control) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    using Keys = QList<QKeySequence>;

    void addStrip();
    void addMenus();
    void addFileMenu();
    void addEditMenu();
    void addViewMenu();
    QAction* add(QMenu& menu, const Control& control, std::function<void()> routine, const Keys& keys = {});
    void addChecked(QMenu& menu, const Control& control, void (*routine)());

    void placeBeside(const FrameWindow& frame);
    void run(const std::function<void()>& routine);
    void tell(const QString& sentence, bool complaint);
    void print();
    void takeSize(void (*routine)());
    void copyPicture();
    void copyCoordinates();
    void savePicture();
    [[nodiscard]] PictureSource picture() const;

    void showControls();
    void fitPicture();
    void writeSize();
    void keepOnScreen();
    void turnWheel(int turned);

    Stage& stage_;
    GraphCanvas* canvas_;
    QWidget* strip_;
    QListView* list_;
    CoordinateRows* rows_;
    QPushButton* zoomIn_;
    QPushButton* zoomOut_;
    StatusLine* status_;
    QLabel* coordinates_;
    std::vector<std::pair<const Control*, QAction*>> actions_;
    std::string complaint_;  // what the last command of this window had to complain of
    bool fitting_ = false;   // the window follows the data, not the data the window
    int wheel_ = 0;          // turned since the last zoom, in eighths of a degree
};

}  // namespace ordwise
