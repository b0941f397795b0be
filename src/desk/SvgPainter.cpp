#include "SvgPainter.hpp"

#include "HalvernShapes.hpp"
#include "TextTools.hpp"

#include <cstdio>

namespace ordwise {
namespace {

// Hundredths of a unit are finer than any screen or printer shows.
std::string number(double value) {
    const auto hundredths = static_cast<long long>(value * 100 + (value < 0 ? -0.5 : 0.5));
    const long long part = hundredths < 0 ? -hundredths : hundredths;
    char text[40];
    std::snprintf(text, sizeof text, "%s%lld.%02lld", hundredths < 0 ? "-" : "", part / 100, part % 100);
    return text;
}

std::string attribute(const char* name, const std::string& value) {
    return std::string(" ") + name + "=\"" + value + "\"";
}

std::string colourText(const Colour& colour) {
    char text[8];
    std::snprintf(text, sizeof text, "#%02x%02x%02x", colour.red, colour.green, colour.blue);
    return text;
}

std::string escaped(const std::string& text) {
    return replaced(replaced(replaced(replaced(text, "&", "&amp;"), "<", "&lt;"), ">", "&gt;"), "\"", "&quot;");
}

const char* fontOf(Face face) {
    switch (face) {
        case Face::Halvern:
        case Face::Heading: return " font-family=\"'TeX Gyre Schola', 'Century Schoolbook', serif\"";
        case Face::Explanation: return " font-family=\"'TeX Gyre Pagella', Palatino, serif\" font-weight=\"bold\"";
        case Face::Note: return " font-family=\"'TeX Gyre Pagella', Palatino, serif\"";
        case Face::Sans: return " font-family=\"'TeX Gyre Heros', Helvetica, Arial, sans-serif\"";
        case Face::Courier: break;
    }
    return " font-family=\"'TeX Gyre Cursor', 'Courier New', monospace\" font-weight=\"bold\"";
}

class SvgWriter {
public:
    // Every letter has a place of its own: a list of places for a whole word is not read by all viewers.
    void operator()(const Glyphs& run) {
        std::string letters;
        for (const PlacedGlyph& glyph : placedGlyphs(run)) {
            if (glyph.shape != nullptr) {
                shape(run, glyph);
            } else {
                letters += "<tspan" + attribute("x", number(glyph.x)) + ">" + escaped(glyph.character) + "</tspan>";
            }
        }
        if (letters.empty()) return;
        svg += "<text" + attribute("y", number(baselineOf(run))) + fontOf(run.face) +
               attribute("font-size", number(emOf(run.face, run.size))) + attribute("fill", colourText(run.colour)) +
               ">" + letters + "</text>\n";
    }

    void operator()(const Stroke& stroke) {
        svg += "<line" + attribute("x1", number(stroke.x1)) + attribute("y1", number(stroke.y1)) +
               attribute("x2", number(stroke.x2)) + attribute("y2", number(stroke.y2)) +
               pen(stroke.width, stroke.colour) + " stroke-linecap=\"round\"/>\n";
    }

    void operator()(const Circle& circle) {
        svg += "<circle" + attribute("cx", number(circle.x)) + attribute("cy", number(circle.y)) +
               attribute("r", number(circle.radius)) + pen(circle.width, circle.colour) +
               attribute("fill", circle.filled ? colourText(circle.colour) : "none") + "/>\n";
    }

    void operator()(const Picture& picture) {
        svg += "<image" + attribute("href", escaped(picture.key) + ".svg") + attribute("x", number(picture.x)) +
               attribute("y", number(picture.y)) + attribute("width", number(picture.width)) +
               attribute("height", number(picture.height)) + "/>\n";
    }

    std::string svg;

private:
    void shape(const Glyphs& run, const PlacedGlyph& glyph) {
        const double scale = emOf(run.face, run.size) / 1000;
        std::string path;
        for (const std::vector<ShapePoint>& contour : *glyph.shape) {
            char command = 'M';
            for (const ShapePoint& point : contour) {
                path += command + number(glyph.x + point.x * glyph.stretch * scale) + " " +
                        number(baselineOf(run) + point.y * scale);
                command = 'L';
            }
            path += "Z";
        }
        svg += "<path" + attribute("d", path) + attribute("fill", colourText(run.colour)) + "/>\n";
    }

    static std::string pen(double width, const Colour& colour) {
        return attribute("stroke", colourText(colour)) + attribute("stroke-width", number(width));
    }
};

}  // namespace

std::string svgOf(const DisplayList& list, double width, double height, Colour background) {
    const std::string size = number(width) + " " + number(height);
    SvgWriter writer;
    writer.svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " + size + "\"" +
                 attribute("width", number(width)) + attribute("height", number(height)) + ">\n" +
                 "<rect width=\"100%\" height=\"100%\"" + attribute("fill", colourText(background)) + "/>\n";
    for (const DrawOperation& operation : list) std::visit(writer, operation);
    return writer.svg + "</svg>\n";
}

}  // namespace ordwise
