#include "PdfProperties.hpp"

#include <QRegularExpression>

#include <optional>

namespace ordwise {
namespace {

// An object of the file: a dictionary, from its "<<" to its ">>".
struct PdfObject {
    int number = 0;
    QByteArray dictionary;
};

// The number behind the last place that a name stands. e.g. "/Root 3 0 R" -> 3
std::optional<int> numberBehind(const QByteArray& pdf, const char* name) {
    const qsizetype at = pdf.lastIndexOf(name);
    if (at < 0) return std::nullopt;
    const QByteArray behind = pdf.mid(at + static_cast<qsizetype>(qstrlen(name)), 24);
    const QRegularExpressionMatch match =
        QRegularExpression(QStringLiteral("^\\s+(\\d+)")).match(QString::fromLatin1(behind));
    if (!match.hasMatch()) return std::nullopt;
    return match.captured(1).toInt();
}

std::optional<PdfObject> objectOf(const QByteArray& pdf, const char* name) {
    const std::optional<int> number = numberBehind(pdf, name);
    if (!number) return std::nullopt;
    const qsizetype at = pdf.indexOf("\n" + QByteArray::number(*number) + " 0 obj");
    const qsizetype begin = at < 0 ? -1 : pdf.indexOf("<<", at);
    const qsizetype end = begin < 0 ? -1 : pdf.indexOf("endobj", begin);
    const qsizetype close = end < 0 ? -1 : pdf.lastIndexOf(">>", end);
    if (close < begin) return std::nullopt;
    return PdfObject{*number, pdf.mid(begin, close - begin)};
}

QByteArray asObject(const PdfObject& object, const QByteArray& entry) {
    return QByteArray::number(object.number) + " 0 obj\n" + object.dictionary + entry + "\n>>\nendobj\n";
}

QByteArray crossReference(int number, qsizetype offset) {
    return QByteArray::number(number) + " 1\n" + QByteArray::number(offset).rightJustified(10, '0') + " 00000 n \n";
}

}  // namespace

QByteArray withProperties(const QByteArray& pdf, const QByteArray& author, const QByteArray& language) {
    const std::optional<PdfObject> catalog = objectOf(pdf, "/Root");
    const std::optional<PdfObject> info = objectOf(pdf, "/Info");
    const std::optional<int> size = numberBehind(pdf, "/Size");
    const std::optional<int> before = numberBehind(pdf, "startxref");
    if (!catalog || !info || !size || !before) return pdf;
    QByteArray updated = pdf;
    const qsizetype catalogAt = updated.size();
    updated += asObject(*catalog, "/Lang (" + language + ")");
    const qsizetype infoAt = updated.size();
    updated += asObject(*info, "/Author (" + author + ")");
    const qsizetype referencesAt = updated.size();
    updated += "xref\n" + crossReference(catalog->number, catalogAt) + crossReference(info->number, infoAt);
    updated += "trailer\n<<\n/Size " + QByteArray::number(*size) + "\n/Root " + QByteArray::number(catalog->number) +
               " 0 R\n/Info " + QByteArray::number(info->number) + " 0 R\n/Prev " + QByteArray::number(*before) +
               "\n>>\nstartxref\n" + QByteArray::number(referencesAt) + "\n%%EOF\n";
    return updated;
}

}  // namespace ordwise
