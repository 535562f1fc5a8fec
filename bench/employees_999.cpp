// A company of 999 employees: reading its list beside reading and splitting the same bytes, and
// what the operator waits for: the window's opening, a keystroke of the search, a sort.
#include "bench/desk.h"
#include "bench/figure.h"
#include "bench/office.h"
#include "foundation/desk/desktop/xlsx_spreadsheet.h"
#include "foundation/files/record_names.h"
#include "foundation/register/desktop/empregados_window.h"
#include "foundation/register/employee_import.h"
#include "foundation/register/empregados.h"
#include "timecard/rotation/rotation_records.h"

#include <QApplication>
#include <QLineEdit>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <vector>

namespace {

using namespace winvrx;

constexpr int kRounds = 15;
constexpr double kMostMilliseconds = 50;
constexpr double kMostRatio = 3;

struct NoEditor final : TextEditor {
    bool open(const std::filesystem::path&) override { return false; }
};

std::vector<EmployeeLine> employees() {
    const std::vector<std::string> names = {"CONCEIÇÃO", "D'ÁVILA", "LIMA", "ÁLVARES", "NUNES"};
    std::vector<EmployeeLine> lines;
    int number = 0;
    for (Employee& one : staff("MARIA", {})) {
        ++number;
        one.name = "MARIA " + names[static_cast<std::size_t>(number * 7) % names.size()] + " " +
                   std::to_string(number * 37 % 1000);
        one.admission = "12/03/20" + std::to_string(10 + number % 14);
        one.function = "AUXILIAR DE ESCRITÓR";
        one.taxId = "529.982.247-25";
        one.address = "RUA DAS ACÁCIAS, 120";
        one.city = "TAUBATÉ";
        lines.push_back(lineOf(one));
    }
    return lines;
}

/// The least that reading the list can be: the bytes, each line's fields as they stand.
std::size_t readAndSplit(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::string line;
    std::vector<std::vector<std::string>> all;
    while (std::getline(in, line)) {
        auto& fields = all.emplace_back();
        fields.reserve(kEmployeeFields.size());
        for (const EmployeeField& field : kEmployeeFields)
            fields.push_back(line.substr(field.column.start - 1, field.column.width));
    }
    return all.size();
}

/// What the operator waits for: the median of some runs, the first of which fills the caches.
template <typename Work>
bool reportWait(const char* what, Work&& work) {
    std::vector<double> times;
    for (int round = 0; round <= kRounds; ++round)
        times.push_back(milliseconds(work));
    const double ours = median({times.begin() + 1, times.end()});
    std::printf("bench employees-999 %s=%.1f ms limit=%.0f ms\n", what, ours, kMostMilliseconds);
    return ours < kMostMilliseconds;
}

bool measureReading(const Workplace& at) {
    const EmployeeRegister list(at.store(), *at.session.company);
    const auto file = at.session.companyFile(kEmployeeListStem);
    std::size_t read = 0;
    Figure figure("employees-999", kMostRatio);
    for (int round = 0; round <= kRounds; ++round) {
        figure.floor([&] { read = readAndSplit(file); });
        figure.ours([&] { read = std::min(read, list.load().size()); });
    }
    return figure.report(2) && read == static_cast<std::size_t>(EmployeeCode::kHighest);
}

bool measureScreen(const Workplace& at) {
    NoEditor editor;
    XlsxSpreadsheet spreadsheet;
    const RecordedAnswers records(at.store());
    const RotationRecords rotation(at.store(), at.clock);
    Empregados screen(at, {editor, spreadsheet, rotation, records});
    EmployeeImport import(at);
    const bool opened = reportWait("open", [&] {
        EmpregadosWindow window(screen, import);
        window.show();
        QCoreApplication::processEvents();
    });
    EmpregadosWindow window(screen, import);
    window.show();
    auto* search = window.findChild<QLineEdit*>(QStringLiteral("empregados.search"));
    bool longer = false;
    const bool searched = reportWait("keystroke", [&] {
        longer = !longer;
        search->setText(longer ? QStringLiteral("davi") : QStringLiteral("dav"));
        QCoreApplication::processEvents();
    });
    const bool sorted = reportWait("sort", [&] { (void)screen.sortByName(); });
    return opened && searched && sorted;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QTemporaryDir folder;
    BenchDesk desk(folder.path().toStdString(), *parseDate("15/03/2024"));
    EmployeeRegister(desk.at.store(), *desk.session.company).save(employees(), desk.clock.now());
    const bool read = measureReading(desk.at);
    const bool shown = measureScreen(desk.at);
    return read && shown ? 0 : 1;
}
