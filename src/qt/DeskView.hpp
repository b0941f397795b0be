// frmPaper: the desk with its sheets, the pencil, the light and the assistant. It forwards keys and
// mouse to the logic and shows the window's data after each event.
#pragma once

#include "Windows.hpp"
#include "WritingPause.hpp"

#include <QTimer>
#include <QWidget>

#include <array>
#include <string_view>

namespace ordwise {

class ExplanationPopup;
class NotesView;
class PictureButton;
class SheetView;
class Stage;
class StillPicture;

class DeskView : public QWidget {
public:
    // The desk as it is laid out, in points of the sheets; a pile of sheets makes it larger.
    static constexpr double deskWidth = 1024;
    static constexpr double deskHeight = 740;

    DeskView(QWidget* parent, Stage& stage);

    void showChanges();
    // Nothing blinks or moves by itself, for those whom it disturbs.
    void setSteady(bool steady);
    [[nodiscard]] bool steady() const { return steady_; }

    // The notes of a solution stand beside its lines, or under them in a narrow window.
    void setNotes(bool wanted);
    [[nodiscard]] bool notes() const { return notesWanted_; }

    // 1 fits the desk into the window.
    void setZoom(double zoom);
    [[nodiscard]] double zoom() const { return zoom_; }
    [[nodiscard]] double scale() const { return scale_; }

    [[nodiscard]] SheetView& sheet(int number) const { return *sheets_[static_cast<std::size_t>(number)]; }
    // How far to the right the sheets reach on the screen.
    [[nodiscard]] int sheetsEnd() const;
    [[nodiscard]] PictureButton& light() const { return *light_; }
    [[nodiscard]] PictureButton& assistant() const { return *wizard_; }
    [[nodiscard]] ExplanationPopup& explanation() const { return *explanation_; }

    // Shows for the time of a key how a problem is written; nothing on a desk that holds still.
    void letSeeWriting();
    // Opens a hidden menu of the main window where the mouse or the key asked for it. e.g. "mnuHidden"
    void popUp(std::string_view menu);

    // Tab goes through the boxes as they are read, then the lists, Next Step, and what lies beside.
    void orderTabs();
    // Takes the keyboard: the first box of a box topic, otherwise the desk itself.
    void takeKeys();
    // The part of the desk that the window shows has this size.
    void setViewport(QSize size);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void connectPictures();
    [[nodiscard]] static QSizeF deskSize();
    [[nodiscard]] double fittingScale(const QSizeF& desk) const;
    void fitScale();
    void findRoomForNotes();
    void growToSheets();
    void showPictures();
    void stackWindows();
    void runTimers();
    void giveKeyboard();
    bool pictureEnter(const QEvent& event);
    void announce();
    bool wizardMouse(const QEvent& event);
    bool rightClick(QObject* watched, QEvent& event);
    void askForMenu(QObject* of, const QPoint& place);
    [[nodiscard]] QPointF onDesk(const QPointF& global) const;

    Stage& stage_;
    double zoom_ = 1;
    double scale_ = 1;
    QSize viewport_;
    bool steady_ = false;
    bool notesWanted_ = false;
    std::array<SheetView*, PaperWindow::lastSheet + 1> sheets_{};
    PictureButton* light_;
    PictureButton* wizard_;
    PictureButton* click_;
    StillPicture* pencil_;
    StillPicture* deskPencil_;
    NotesView* notes_;
    ExplanationPopup* explanation_;
    std::array<int, PaperWindow::lastSheet + 1> stacked_{};  // sheets from the lowest to the foremost
    std::array<QTimer, 5> timers_;
    WritingPause writing_;
    bool dragged_ = false;
    QPoint menuPlace_;
};

}  // namespace ordwise
