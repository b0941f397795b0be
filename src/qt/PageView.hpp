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

    std::function<void()> scaleChanged;  // also by the wheel

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
};

}  // namespace ordwise
