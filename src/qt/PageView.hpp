// A page of the preview as it will lie on the paper, with its margins, at any scale.
#pragma once

#include <QScrollArea>

#include <functional>

namespace ordwise {

class PageView : public QScrollArea {
public:
    // How the scale is chosen: by the room there is, or by itself.
    enum class Fit { Page, Width, None };

    explicit PageView(QWidget* parent);

    std::function<void()> scaleChanged;  // also by the wheel with Ctrl
    std::function<void(int)> turned;     // 1 or -1: the wheel went on beyond the end of the page

    void setFit(Fit fit);
    // 1 is the size of the paper. Stays between the limits and lets go of the fit.
    void setScale(double scale);
    [[nodiscard]] Fit fit() const { return fit_; }
    [[nodiscard]] double scale() const { return scale_; }

    // Shows the page in front as frmPrintPreview has it now.
    void showPage();

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void layOut();
    void paintPaper();

    QWidget* page_;
    Fit fit_ = Fit::Page;
    double scale_ = 1;
    int beyond_ = 0;  // how far the wheel went, in its own units
};

}  // namespace ordwise
