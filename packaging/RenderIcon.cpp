// render_icon PICTURE.svg SIZE ICON.png: an icon of that many pixels, for the installed program.
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

int main(int argc, char** argv) {
    if (argc != 4) return 2;
    QSvgRenderer picture(QString::fromLocal8Bit(argv[1]));
    const int size = QString::fromLocal8Bit(argv[2]).toInt();
    if (!picture.isValid() || size <= 0) return 2;

    QImage icon(size, size, QImage::Format_ARGB32);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    picture.render(&painter);
    painter.end();
    return icon.save(QString::fromLocal8Bit(argv[3])) ? 0 : 1;
}
