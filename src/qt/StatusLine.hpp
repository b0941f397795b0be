// The sentence in the status bar. A refusal stands out by a picture and bold letters, not by colour
// alone, and is announced. A long sentence takes up to three rows; it is
// whole in its tool tip.
#pragma once

#include <QCache>
#include <QStaticText>
#include <QWidget>

namespace ordwise {

class StatusLine : public QWidget {
public:
    explicit StatusLine(QWidget* parent);

    void showSentence(const QString& sentence, bool refusal);
    // The line takes as many rows as its longest sentence has needed since then or since it was resized:
    // what stands above it must not move with every refused key.
    void startAfresh();
    [[nodiscard]] const QString& sentence() const { return sentence_; }
    [[nodiscard]] bool isRefusal() const { return refusal_; }

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct LaidOut {
        QStaticText whole;
        QStaticText onOneRow;  // with an ellipsis where it is cut
        int rows = 1;
    };

    [[nodiscard]] QFont sentenceFont() const;
    [[nodiscard]] QRect room() const;
    [[nodiscard]] const LaidOut& laidOut();
    void makeRoom(int atLeast);
    void forgetLayout();

    QString sentence_;
    bool refusal_ = false;
    int rows_ = 1;
    QCache<QString, LaidOut> laidOut_{8};  // of the sentences shown last, at this width
};

}  // namespace ordwise
