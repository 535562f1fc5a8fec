#include "report/desktop/layout.h"

#include "report/desktop/layout_reader.h"

#include <QFile>

#include <algorithm>

namespace winvrx {

namespace {

std::string listed(const std::vector<std::filesystem::path>& folders) {
    std::string text;
    for (const auto& folder : folders)
        text += (text.empty() ? "" : ", ") + folder.string();
    return text;
}

void collect(const LayoutText& text, std::vector<std::size_t>& columns) {
    for (const LayoutText::Piece& piece : text.pieces)
        if (piece.column) columns.push_back(*piece.column);
    columns.insert(columns.end(), text.unless.begin(), text.unless.end());
    columns.insert(columns.end(), text.when.begin(), text.when.end());
}

void makeUnique(std::vector<std::size_t>& columns) {
    std::sort(columns.begin(), columns.end());
    columns.erase(std::unique(columns.begin(), columns.end()), columns.end());
}

bool isOfFirstRow(const LayoutSection& section) {
    return section.rows == 0 && section.first == 0;
}

}  // namespace

QRectF cardArea(const Layout& layout) {
    QRectF area;
    for (const LayoutSection& section : layout.sections)
        if (section.block == LayoutBlock::Stock && section.rows == 0)
            for (const LayoutMark& mark : section.marks)
                if (const auto* rect = std::get_if<LayoutRect>(&mark)) area |= rect->area;
    return area.isEmpty() ? QRectF(QPointF(), layout.page * kLayoutUnitsPerMillimetre) : area;
}

DrawnColumns drawnColumns(const Layout& layout) {
    DrawnColumns columns;
    for (const LayoutSection& section : layout.sections)
        for (const LayoutMark& mark : section.marks)
            if (const auto* text = std::get_if<LayoutText>(&mark))
                collect(*text, isOfFirstRow(section) ? columns.once : columns.inRows);
    makeUnique(columns.once);
    makeUnique(columns.inRows);
    return columns;
}

LayoutFault::LayoutFault(const std::string& file, const std::string& cause)
    : Fault(file + ": " + cause, "O layout " + file + " não pôde ser aberto.") {}

LayoutFault::LayoutFault(const std::string& file, long long line, const std::string& cause)
    : Fault(file + ":" + std::to_string(line) + ": " + cause,
            "O layout " + file + " tem um erro na linha " + std::to_string(line) + ".") {}

std::optional<std::filesystem::path> findLayout(const std::vector<std::filesystem::path>& folders,
                                                const std::string& name) {
    for (const auto& folder : folders) {
        std::error_code error;
        const auto file = folder / name;
        if (std::filesystem::is_regular_file(file, error)) return file;
    }
    return std::nullopt;
}

Layout loadLayout(const std::vector<std::filesystem::path>& folders, const std::string& name) {
    if (name.empty() || std::filesystem::path(name).filename() != name)
        throw LayoutFault(name, "not the name of a layout file");
    const auto path = findLayout(folders, name);
    if (!path) throw LayoutFault(name, "not found in " + listed(folders));
    QFile file(*path);
    if (!file.open(QIODevice::ReadOnly))
        throw LayoutFault(path->string(), file.errorString().toStdString());
    return readLayout(file, path->string());
}

}  // namespace winvrx
