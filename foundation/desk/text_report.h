#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

// Reports of ruled columns of fixed width, which the desktop's text editor shows:
//
//   TextReport report({{" Funcionário", 34}, {"Horas", 9, TextColumn::Side::Right}});
//   report.addRule();                          // ----------------------------------+---------+
//   report.addTitles();                        //  Funcionário                      |    Horas|
//   report.addRow({one.name, one.hours});      // ANA PAULA                         |    44:00|

namespace winvrx {

class TextEditor;
struct Workplace;

/// A column of so many characters; longer texts are cut.
struct TextColumn {
    enum class Side { Left, Right };

    std::string title;
    std::size_t width;
    Side side = Side::Left;
};

/// The lines of a report, or of one table of it, as UTF-8. Each column is closed by "|".
class TextReport {
  public:
    explicit TextReport(std::vector<TextColumn> columns);

    /// A line as it stands.
    void addLine(std::string line) { lines_.push_back(std::move(line)); }
    /// A line across all columns.
    void addHeading(std::string_view heading);
    /// `end` stands under the last "|".
    void addRule(char end = '+');
    void addTitles();
    /// One text a column; throws std::logic_error for another number of them.
    void addRow(const std::vector<std::string>& cells);

    [[nodiscard]] const std::vector<std::string>& lines() const& { return lines_; }
    [[nodiscard]] std::vector<std::string> lines() && { return std::move(lines_); }

  private:
    std::vector<TextColumn> columns_;
    std::size_t width_ = 0;  ///< with what closes the columns
    std::vector<std::string> lines_;
};

struct ReportFile {
    std::filesystem::path path;
    std::vector<std::string> lines;
};

/// Writes the reports, then opens one after the other. False as soon as one cannot be shown.
/// Throws Fault when they cannot be written.
[[nodiscard]] bool showReports(const Workplace& at, TextEditor& editor,
                               const std::vector<ReportFile>& reports);

}  // namespace winvrx
