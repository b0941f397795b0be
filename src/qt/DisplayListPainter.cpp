#include "DisplayListPainter.hpp"

#include "Art.hpp"
#include "HalvernShapes.hpp"
#include "PlainForm.hpp"

#include <QGlyphRun>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QRawFont>

#include <map>
#include <utility>

namespace ordwise {
namespace {

constexpr double textPoints = 12;  // of text that nobody sees

QColor colourOf(Colour colour) {
    return QColor(colour.red, colour.green, colour.blue);
}

QString familyOf(Face face) {
    switch (face) {
        case Face::Halvern:
        case Face::Heading: return QStringLiteral("TeX Gyre Schola");
        case Face::Explanation:
        case Face::Note: return QStringLiteral("TeX Gyre Pagella");
        case Face::Sans: return QStringLiteral("TeX Gyre Heros");
        case Face::Courier: break;
    }
    return QStringLiteral("TeX Gyre Cursor");
}

// The text face at the height of em, without hinting, so that a line looks alike at every scale. A
// machine without the face gets another serif one: every glyph is placed by itself, nothing moves.
QRawFont rawFont(Face face, double em) {
    constexpr std::size_t kept = 50;  // a window that fits the sheet to its size asks for ever other heights
    static std::map<std::pair<Face, double>, QRawFont> fonts;
    const auto known = fonts.find({face, em});
    if (known != fonts.end()) return known->second;
    QRawFont raw = QRawFont::fromFont(fontOf(face));
    raw.setPixelSize(em);
    if (fonts.size() == kept) fonts.clear();
    return fonts.emplace(std::pair(face, em), std::move(raw)).first->second;
}

QPainterPath pathOf(const Shape& shape, double em, double stretch) {
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    const double unit = em / 1000;
    for (const auto& contour : shape) {
        QPolygonF polygon;
        for (const ShapePoint& point : contour) polygon << QPointF(point.x * unit * stretch, point.y * unit);
        path.addPolygon(polygon);
        path.closeSubpath();
    }
    return path;
}

// Letters that nobody sees, spread over a width.
void paintUnseen(QPainter& painter, const QString& text, double x, double base, double width, double em) {
    const QRawFont font = rawFont(Face::Halvern, em);
    const QList<quint32> glyphs = font.glyphIndexesForString(text);
    QList<QPointF> places;
    double end = 0;
    for (const QPointF& advance : font.advancesForGlyphIndexes(glyphs)) {
        places << QPointF(end, 0);
        end += advance.x();
    }
    if (end <= 0) return;
    QGlyphRun run;
    run.setRawFont(font);
    run.setGlyphIndexes(glyphs);
    run.setPositions(places);
    painter.save();
    painter.setPen(QColor(0, 0, 0, 0));
    painter.translate(x, base);
    painter.scale(width / end, 1);
    painter.drawGlyphRun(QPointF(), run);
    painter.restore();
}

// What the letters of a run become.
enum class LetterUse {
    Seen,      // letters, and signs are shapes
    Readable,  // signs have letters that nobody sees, too
    Shapes     // none: the text of the place is told otherwise
};

class OperationPainter {
public:
    explicit OperationPainter(QPainter& painter)
        : painter_(painter), pixels_(painter.paintEngine()->type() == QPaintEngine::Raster) {}

    LetterUse letters = LetterUse::Seen;
    // Free room beside the run, which belongs to a sign at its end: "3 + 4" is copied as "3+4".
    double airBefore = 0;
    double airBehind = 0;

    void operator()(const Glyphs& run) {
        const QColor colour = colourOf(run.colour);
        const double em = emOf(run.face, run.size);
        const double base = baselineOf(run);
        const QRawFont font = rawFont(run.face, em);
        const double runEnd = run.x + textWidth(run.face, run.text, run.size);
        GlyphsInARow row;
        painter_.setPen(colour);
        for (const PlacedGlyph& glyph : placedGlyphs(run)) {
            if (glyph.shape != nullptr) {
                painter_.fillPath(pathOf(*glyph.shape, em, glyph.stretch).translated(glyph.x, base), colour);
                if (letters != LetterUse::Readable) continue;
                drawRow(row, font);  // whoever copies gets it in this order
                const double end = glyph.x + glyph.stretch * textWidth(run.face, glyph.character, run.size);
                const double from = glyph.x - run.x < 1 ? glyph.x - airBefore : glyph.x;
                const double until = end > runEnd - 1 ? end + airBehind : end;
                paintUnseen(painter_, qstringOf(plainText(glyph.character)), from, base, until - from, em);
                continue;
            }
            for (const quint32 index : font.glyphIndexesForString(qstringOf(glyph.character))) {
                if (letters == LetterUse::Shapes) {
                    painter_.fillPath(font.pathForGlyph(index).translated(glyph.x, base), colour);
                } else {
                    row.indexes << index;
                    row.places << QPointF(glyph.x, base);
                }
            }
        }
        drawRow(row, font);
    }

    // A stroke that begins where the last one ended goes on with it, so that a traced curve is one
    // line without notches or knots where its segments meet.
    void operator()(const Stroke& stroke) {
        const QPointF from(stroke.x1, stroke.y1);
        const QPen pen(colourOf(stroke.colour), stroke.width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
        if (path_.isEmpty() || path_.last() != from || pen != pen_) {
            finishPath();
            pen_ = pen;
            path_ << from;
        }
        path_ << QPointF(stroke.x2, stroke.y2);
    }

    void operator()(const Circle& circle) {
        painter_.setPen(QPen(colourOf(circle.colour), circle.width));
        painter_.setBrush(circle.filled ? QBrush(colourOf(circle.colour)) : QBrush(Qt::NoBrush));
        painter_.drawEllipse(QPointF(circle.x, circle.y), circle.radius, circle.radius);
    }

    void paint(const DrawOperation& operation) {
        if (!std::holds_alternative<Stroke>(operation)) finishPath();
        std::visit(*this, operation);
    }

    // Draws the strokes that are still held back for others to join them.
    void finishPath() {
        if (path_.isEmpty()) return;
        const QRectF line = QRectF(path_.first(), path_.last()).normalized();
        if (pixels_ && path_.size() == 2 && (line.width() == 0 || line.height() == 0)) {
            // The same pixels, and a grid of hundreds of lines is there four times as fast.
            const double reach = pen_.widthF() / 2;
            painter_.fillRect(line.adjusted(-reach, -reach, reach, reach), pen_.color());
        } else {
            painter_.setPen(pen_);
            painter_.drawPolyline(path_);
        }
        path_.clear();
    }

    void operator()(const Picture& picture) {
        paintArt(painter_, picture.key, QRectF(picture.x, picture.y, picture.width, picture.height));
    }

private:
    struct GlyphsInARow {
        QList<quint32> indexes;
        QList<QPointF> places;
    };

    void drawRow(GlyphsInARow& row, const QRawFont& font) {
        if (row.indexes.isEmpty()) return;
        QGlyphRun run;
        run.setRawFont(font);
        run.setGlyphIndexes(std::exchange(row.indexes, {}));
        run.setPositions(std::exchange(row.places, {}));
        painter_.drawGlyphRun(QPointF(), run);
    }

    QPainter& painter_;
    bool pixels_;
    QPolygonF path_;
    QPen pen_;
};

struct Extent {
    QRectF operator()(const Glyphs& run) const {
        const double em = emOf(run.face, run.size);
        const double width = textWidth(run.face, run.text, run.size);
        return {run.x - em, run.y - em, width + 2 * em, lineHeightOf(run.face, run.size) + 2 * em};
    }
    QRectF operator()(const Stroke& stroke) const {
        const QRectF line(QPointF(stroke.x1, stroke.y1), QPointF(stroke.x2, stroke.y2));
        return line.normalized().adjusted(-stroke.width, -stroke.width, stroke.width, stroke.width);
    }
    QRectF operator()(const Circle& circle) const {
        const double reach = circle.radius + circle.width;
        return {circle.x - reach, circle.y - reach, 2 * reach, 2 * reach};
    }
    QRectF operator()(const Picture& picture) const { return {picture.x, picture.y, picture.width, picture.height}; }
};

// The room between two runs that stand on one line, 0 between others.
double airBetween(const DrawOperation& left, const DrawOperation& right) {
    const auto* first = std::get_if<Glyphs>(&left);
    const auto* second = std::get_if<Glyphs>(&right);
    if (first == nullptr || second == nullptr || first->y != second->y) return 0;
    const double air = second->x - first->x - textWidth(first->face, first->text, first->size);
    return air > 0 && air < emOf(first->face, first->size) / 2 ? air : 0;
}

}  // namespace

QFont fontOf(Face face) {
    QFont font(familyOf(face));
    font.setStyleHint(face == Face::Sans ? QFont::SansSerif : face == Face::Courier ? QFont::Monospace : QFont::Serif);
    font.setBold(face == Face::Explanation || face == Face::Courier);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QRectF extentOf(const DrawOperation& operation) {
    return std::visit(Extent{}, operation);
}

void replay(const DisplayList& list, QPainter& painter) {
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    OperationPainter paint(painter);
    for (const DrawOperation& operation : list) paint.paint(operation);
    paint.finishPath();
    painter.restore();
}

void replayReadable(const DisplayList& list, const std::vector<PageText>& texts, QPainter& painter) {
    painter.save();
    OperationPainter paint(painter);
    auto text = texts.begin();
    for (std::size_t i = 0; i < list.size(); ++i) {
        if (text != texts.end() && i == text->last) ++text;
        const bool told = text != texts.end() && i >= text->first;
        if (told && i == text->first) {
            const Glyphs place{"", text->x, text->y, Face::Halvern, textPoints, black};
            paintUnseen(painter, qstringOf(text->text), text->x, baselineOf(place), text->width,
                        emOf(Face::Halvern, textPoints));
        }
        paint.airBefore = i > 0 ? airBetween(list[i - 1], list[i]) : 0;
        paint.airBehind = i + 1 < list.size() ? airBetween(list[i], list[i + 1]) : 0;
        paint.letters = told ? LetterUse::Shapes : LetterUse::Readable;
        paint.paint(list[i]);
    }
    paint.finishPath();
    painter.restore();
}

double paintText(QPainter& painter, std::string_view text, double x, double y, Face face, double points,
                 Colour colour) {
    replay({Glyphs{std::string(text), x, y, face, points, colour}}, painter);
    return x + textWidth(face, text, points);
}

}  // namespace ordwise
