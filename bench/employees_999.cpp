// A company of 999 employees: reading its list beside reading and splitting the same bytes, and
// what the operator waits for: the window's opening, a keystroke of the search, a sort.
#include "foundation/desk/desktop/file_log.h"
#include "foundation/desk/desktop/message_box_operator.h"
#include "foundation/desk/desktop/system_clock.h"
#include "foundation/desk/desktop/xlsx_spreadsheet.h"
#include "foundation/files/host.h"
#include "foundation/files/record_names.h"
#include "foundation/register/desktop/empregados_window.h"
#include "foundation/register/employee_import.h"
#include "foundation/register/empregados.h"
#include "tests/support/employees.h"
#include "timecard/rotation/rotation_records.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <functional>
#include <sstream>
#include <vector>

namespace {

using namespace winvrx;

constexpr int kRounds = 15;
constexpr double kMostMilliseconds = 50;
constexpr double kMostRatio = 3;

/// The median of some runs, the first of which only fills the caches.
double milliseconds(const std::function<void()>& work) {
    std::vector<double> times;
    for (int round = 0; round <= kRounds; ++round) {
        QElapsedTimer timer;
        timer.start();
        work();
        if (round > 0) times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

struct Agreeing final : Operator {
    Answer ask(const Message& message) override {
        return message.buttons == Buttons::YesNo ? Answer::Yes : Answer::Ok;
    }
};

struct NoEditor final : TextEditor {
    bool open(const std::filesystem::path&) override { return false; }
};

std::vector<EmployeeLine> employees() {
    const std::vector<std::string> names = {"CONCEIÇÃO", "D'ÁVILA", "LIMA", "ÁLVARES", "NUNES"};
    std::vector<EmployeeLine> lines;
    for (int number = 1; number <= EmployeeCode::kHighest; ++number) {
        Employee one = testing::employee(
            EmployeeCode::fromNumber(number)->text(),
            "MARIA " + names[static_cast<std::size_t>(number * 7) % names.size()] + " " +
                std::to_string(number * 37 % 1000),
            {.admission = "12/03/20" + std::to_string(10 + number % 14)});
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

bool report(const char* what, double ours) {
    std::printf("bench employees-999 %s=%.1f ms limit=%.0f ms\n", what, ours, kMostMilliseconds);
    return ours < kMostMilliseconds;
}

bool measureReading(const Workplace& at) {
    const EmployeeRegister list(at.store(), *at.session.company);
    const auto file = at.session.companyFile(kEmployeeListStem);
    std::size_t read = 0;
    const double floor = milliseconds([&] { read = readAndSplit(file); });
    const double ours = milliseconds([&] { read = std::min(read, list.load().size()); });
    std::printf("bench employees-999 ours=%.2f floor=%.2f ratio=%.2f\n", ours, floor, ours / floor);
    return read == static_cast<std::size_t>(EmployeeCode::kHighest) && ours / floor <= kMostRatio;
}

bool measureScreen(const Workplace& at) {
    NoEditor editor;
    XlsxSpreadsheet spreadsheet;
    const RecordedAnswers records(at.store());
    const RotationRecords rotation(at.store(), at.clock);
    Empregados screen(at, {editor, spreadsheet, rotation, records});
    EmployeeImport import(at);
    const bool opened = report("open", milliseconds([&] {
                                   EmpregadosWindow window(screen, import);
                                   window.show();
                                   QCoreApplication::processEvents();
                               }));
    EmpregadosWindow window(screen, import);
    window.show();
    auto* search = window.findChild<QLineEdit*>(QStringLiteral("empregados.search"));
    bool longer = false;
    const bool searched =
        report("keystroke", milliseconds([&] {
                   longer = !longer;
                   search->setText(longer ? QStringLiteral("davi") : QStringLiteral("dav"));
                   QCoreApplication::processEvents();
               }));
    const bool sorted = report("sort", milliseconds([&] { (void)screen.sortByName(); }));
    return opened && searched && sorted;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QTemporaryDir folder;
    const std::filesystem::path path = folder.path().toStdString();
    const auto files = systemFiles();
    const auto disk = systemDisk();
    const auto host = systemHost();
    FolderLock lock(*disk, *host);
    Agreeing person;
    const SystemClock clock;
    FileLog log(folder.filePath(QStringLiteral("log")));
    Session session{.folder = DataFolder('C', path), .company = CompanyCode::parse("01")};
    const Workplace at{*files, person, clock, log, session, lock};
    EmployeeRegister({*files, session.folder}, *session.company).save(employees(), clock.now());
    const bool read = measureReading(at);
    const bool shown = measureScreen(at);
    return read && shown ? 0 : 1;
}
