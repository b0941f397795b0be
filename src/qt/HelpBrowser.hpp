// A page of the guide. Besides HTML and its pictures it shows the program's own art and lines of
// mathematics, drawn as they are drawn on the sheet:
//
//   <img src="art:light3?36">          its height
//   <img src="line:%231%2F2%23">       markup, percent-encoded
#pragma once

#include <QTextBrowser>

#include <string_view>

class QPagedPaintDevice;

namespace ordwise {

class HelpBrowser : public QTextBrowser {
public:
    explicit HelpBrowser(QWidget* parent);

    // 1 is the size of the desktop's own letters.
    void setZoom(double zoom);
    [[nodiscard]] double zoom() const { return zoom_; }

    // Prints the page in view, black on white also from a dark desktop.
    void printOn(QPagedPaintDevice& device);

    // A page's HTML. e.g. pageText("welcome.html")
    [[nodiscard]] static QString pageText(const QString& file);

protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void changeEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void applyStyle();
    // How much larger the letters are than those for which the pages are laid out.
    [[nodiscard]] double letterScale() const;
    [[nodiscard]] QImage pictureOfArt(std::string_view key, int height) const;
    [[nodiscard]] QImage pictureOfLine(std::string_view markup) const;

    double zoom_ = 1;
};

}  // namespace ordwise
