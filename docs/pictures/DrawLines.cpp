// Draws a file of lines of markup into a picture, two columns of them, as a surface draws them:
//
//     draw_lines LINES.txt OUT.png [--scale N] [--surface sheet|explanation|page]
//
// docs/pictures/constructs.png shows every construct:
//
//     cmake --build build/release --target draw_lines
//     build/release/docs/pictures/draw_lines docs/pictures/constructs.txt docs/pictures/constructs.png --scale 1.5
#include "DisplayListPainter.hpp"
#include "PictureFile.hpp"
#include "basFPrint.hpp"

#include <QCommandLineParser>
#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QTextStream>

namespace {

using namespace ordwise;

constexpr double columnWidth = 470;
constexpr double margin = 24;

// A surface, and how far the lines are apart on it, which is more than the highest construct takes.
struct Ground {
    const SurfaceOffsets& offsets;
    Face face;
    double points;
    double perX;  // units of the picture in one of the pen
    double perY;
    Colour colour;
    double row;
};

const Ground grounds[] = {
    {worksheetOffsets, Face::Halvern, 18, 1, 1, black, 62},
    {explanationOffsets, Face::Explanation, 12, 1, 1, blue, 46},
    {printerOffsets, Face::Halvern, 12, 0.9, 1.6, black, 50},
};

DisplayList drawnLine(const std::string& markup, const Ground& ground, double x, double y) {
    SurfaceOffsets offsets = ground.offsets;
    offsets.indentBlanks = 0;
    offsets.indent = 0;
    offsets.moveDown = offsets.moveDownFraction = {};
    offsets.pageFull = 1e9;
    DrawingSurface surface;
    surface.Scale(0, 0, 1, 1, {x, y, ground.perX, ground.perY});
    surface.FontFace = ground.face;
    surface.FontSize = ground.points;
    MathLineRenderer renderer(surface, offsets, ground.colour, [&](bool) -> DrawingSurface& { return surface; });
    renderer.line(markup);
    return surface.drawn();
}

PictureSource pictureOf(const QStringList& lines, const Ground& ground) {
    const int rows = static_cast<int>(lines.size() + 1) / 2;
    PictureSource source;
    source.title = QStringLiteral("Lines");
    source.pageSize = {2 * columnWidth, rows * ground.row + 2 * margin};
    source.paint = [=](QPainter& painter, int) {
        for (int i = 0; i < lines.size(); ++i)
            replay(drawnLine(lines[i].toStdString(), ground, margin + (i / rows) * columnWidth,
                             margin + (i % rows + 0.25) * ground.row),
                   painter);
    };
    return source;
}

QStringList linesOf(const QString& name) {
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) return {};
    QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    lines.removeAll(QString());
    return lines;
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addOptions(
        {{QStringLiteral("scale"), QStringLiteral("Pixels of a unit."), QStringLiteral("N"), QStringLiteral("1")},
         {QStringLiteral("surface"), QStringLiteral("sheet, explanation or page."), QStringLiteral("NAME"),
          QStringLiteral("sheet")}});
    parser.addPositionalArgument(QStringLiteral("lines"), QStringLiteral("A file of markup, a line each."));
    parser.addPositionalArgument(QStringLiteral("picture"), QStringLiteral("The PNG to be written."));
    parser.process(application);
    const QStringList files = parser.positionalArguments();
    const auto number =
        QStringList{QStringLiteral("sheet"), QStringLiteral("explanation"), QStringLiteral("page")}.indexOf(
            parser.value(QStringLiteral("surface")));
    const QStringList lines = files.size() == 2 && number >= 0 ? linesOf(files[0]) : QStringList();
    if (lines.isEmpty()) parser.showHelp(2);
    const PictureSource source = pictureOf(lines, grounds[number]);
    return imageOf(source, parser.value(QStringLiteral("scale")).toDouble()).save(files[1]) ? 0 : 1;
}
